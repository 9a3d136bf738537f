"""Checks the tables in data/: made by their generators, well-formed, and right.

The values here are independent of the generators: SI values as NIST SP 811 prints them, the rule of
the wire gauge, relations between constants, dimensions out of published frame charts.
"""

import math
import re
import subprocess
import sys
import tempfile
import unittest
from fractions import Fraction
from pathlib import Path

from table_reader import DATA, ROOT, Table, fields_of, lines_of

GENERATE = ROOT / "tools" / "tables" / "generate.py"

# Files of records that calculators read themselves, so not laid out for the table viewer.
RECORDS = {
    "BELTDATA.DAT",
    "BLOWERS.dat",
    "BLOWERS2.dat",
    "Conversion_Factors.dat",
    "Elements.dat",
    "Hazard_Class.dat",
    "SHAPES.dat",
    "SHEAVES.dat",
    "SPROCKET.dat",
    "Steam_Cv.dat",
    "beams.dat",
    "conductors.dat",
    "dielect.dat",
    "pipe.dat",
    "screw_threads.dat",
    "solvents.dat",
}


class Pair:
    """A record of the conversion file."""

    def __init__(self, record):
        self.first, self.second, factor, offset, direction, _ = record
        self.factor, self.offset, self.direction = float(factor), float(offset), int(direction)

    def forward(self, x):
        if self.direction:
            return x * self.factor + self.offset
        return (x - self.offset) / self.factor

    def backward(self, y):
        if self.direction:
            return (y - self.offset) / self.factor
        return y * self.factor + self.offset


def read_pairs():
    texts = [text for text, _ in fields_of("\r\n".join(lines_of("Conversion_Factors.dat")))]
    return [Pair(texts[n : n + 6]) for n in range(0, len(texts), 6)]


def table_names():
    return sorted(path.name for path in DATA.iterdir() if path.suffix.lower() in (".dat", ".plt"))


class Files(unittest.TestCase):
    def test_they_are_what_the_generators_make(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, "-B", str(GENERATE), folder], check=True)
            made = sorted(Path(folder).iterdir())
            self.assertTrue(made)
            for path in made:
                with self.subTest(path.name):
                    self.assertEqual(path.read_bytes(), (DATA / path.name).read_bytes())

    def test_every_table_tells_its_source(self):
        text = (DATA / "SOURCES.md").read_text("utf-8")
        told = [name for names in re.findall(r"^\| (`.*?) \|", text, re.M)
                for name in re.findall("`([^`]+)`", names)]
        self.assertEqual(sorted(told, key=str.casefold), sorted(table_names(), key=str.casefold))

    def test_names_differ_by_more_than_case(self):
        folded = [name.casefold() for name in table_names()]
        self.assertEqual(len(folded), len(set(folded)))

    def test_lines_and_code_page(self):
        for name in table_names():
            with self.subTest(name):
                content = (DATA / name).read_bytes()
                text = content.decode("cp1252")  # fails on the five bytes that have no character
                if name != "Hazard_Class.dat":  # prose has empty lines
                    self.assertEqual(text.count("\r\n"), len(re.findall("[\r\n]+", text)))
                self.assertNotRegex(text.replace("\r\n", ""), "[\r\n]")
                self.assertTrue(text.endswith("\r\n"))
                self.assertNotRegex(text, "[\x00-\x09\x0b\x0c\x0e-\x1f\x7f]")


class Sketches(unittest.TestCase):
    """Files of sections, each a line of plotter commands."""

    MOST_COMMANDS = 5000  # that the program reads
    SECTIONS = {
        "beams.dat": [f"Case {n:02}" for n in range(1, 33)],
        "MAIN.PLT": "SQUARE RECTANG2 PARAGRAM RIGHTTRI ACUTE OBTUSE TRPZOID2 TRAPZIUM POLYGON CIRCLE"
        " SECTOR SEGMENT CIRCRING RINGSECT FILLET".split(),
        "Volumes.plt": [
            "CUBE",
            "RECTANGULAR PRISM",
            "PRISM",
            "PYRAMID RB",
            "PYRAMID",
            "PYRAMID FRUSTRUM",
            "WEDGE",
            "CYLINDER",
            "CYLINDER PORTION 1",
            "CYLINDER PORTION 2",
            "CYLINDER HOLLOW",
            "CONE",
            "CONE FRUSTRUM",
            "SPHERE",
            "SPHERICAL SECTOR",
            "SPHERICAL SEGMENT",
            "SPHERICAL ZONE",
            "SPHERICAL WEDGE",
            "HOLLOW SPHERE",
            "TORUS",
        ],
    }

    def test_sections_and_commands(self):
        for name, sections in self.SECTIONS.items():
            heads, drawings = lines_of(name)[1:-1:2], lines_of(name)[2:-1:2]
            self.assertEqual(heads, [f"[{section}]" for section in sections])
            self.assertEqual(len(set(drawings)), len(sections), "two sketches are the same")
            for head, drawing in zip(heads, drawings):
                with self.subTest(name + head):
                    self.assertRegex(drawing, r"^((PU|PD|SP[1246]|PA\d+,\d+);)+$")
                    self.assertLessEqual(drawing.count(";"), self.MOST_COMMANDS)
                    points = [tuple(map(int, p)) for p in re.findall(r"PA(\d+),(\d+)", drawing)]
                    self.assertEqual((0, 0), tuple(map(min, zip(*points))))


class ViewerTables(unittest.TestCase):
    def test_shape(self):
        for name in table_names():
            if name in RECORDS or name.lower().endswith(".plt"):
                continue
            with self.subTest(name):
                table = Table(name)
                rows, columns, fixed_rows, fixed_columns = table.shape
                self.assertTrue(table.title.strip())
                self.assertEqual(len(table.cells), rows * columns)
                self.assertLess(fixed_rows, rows)
                self.assertLess(fixed_columns, columns)
                self.assertTrue(set(table.alignments) <= set(range(10)))
                bodies = [tuple(row) for row in table.body]
                self.assertEqual(len(bodies), len(set(bodies)), "a row stands twice")
                for width, *cells in zip(table.widths, *table.rows):
                    self.assertGreaterEqual(width, 90 * max(map(len, cells)), cells[0])


# SI values of units as SP 811 prints them (appendix B.8), by their listed names; a name may lack the
# parentheses at its end.
SI_VALUES = {
    "length": {
        "inches (in)": 0.0254,
        "feet (ft)": 0.3048,
        "feet, U.S. survey": 0.3048006,
        "yards": 0.9144,
        "miles (mi)": 1609.344,
        "nautical miles": 1852,
        "mils (thousandths": 2.54e-5,
        "microinches": 2.54e-8,
        "fathoms": 1.8288,
        "rods": 5.0292,
        "meters (m)": 1,
        "millimeters (mm)": 1e-3,
        "micrometers": 1e-6,
        "kilometers (km)": 1e3,
        "picas": 4.233333e-3,
        "points": 3.527778e-4,
        "light-years": 9.46073e15,
        "parsecs": 3.085678e16,
        "astronomical units": 1.495979e11,
    },
    "area": {
        "square inches": 6.4516e-4,
        "square feet": 9.290304e-2,
        "square yards": 8.361274e-1,
        "square miles": 2.589988e6,
        "acres": 4046.856,
        "hectares": 1e4,
        "square meters (m²)": 1,
        "square centimeters (cm²)": 1e-4,
        "square millimeters (mm²)": 1e-6,
        "circular mils": 5.067075e-10,
    },
    "volume": {
        "cubic inches": 1.638706e-5,
        "cubic feet": 2.831685e-2,
        "cubic yards": 7.645549e-1,
        "gallons, U.S. (gal)": 3.785412e-3,
        "gallons, Imperial": 4.54609e-3,
        "quarts, U.S. liquid": 9.463529e-4,
        "pints, U.S. liquid": 4.731765e-4,
        "fluid ounces, U.S.": 2.957353e-5,
        "fluid ounces, Imperial": 2.841306e-5,
        "barrels, oil (bbl)": 1.589873e-1,
        "bushels, U.S.": 3.523907e-2,
        "board feet": 2.359737e-3,
        "cords": 3.624556,
        "liters (L)": 1e-3,
        "cubic meters (m³)": 1,
        "milliliters (mL)": 1e-6,
        "acre-feet": 1233.482,
    },
    "mass": {
        "pounds (lb)": 0.4535924,
        "ounces (oz)": 2.834952e-2,
        "ounces, troy": 3.110348e-2,
        "grains (gr)": 6.479891e-5,
        "slugs": 14.59390,
        "tons, short (": 907.1847,
        "tons, long (": 1016.047,
        "hundredweights, short": 45.35924,
        "hundredweights, long": 50.80235,
        "stones": 6.350293,
        "kilograms (kg)": 1,
        "tonnes, metric (t)": 1e3,
        "grams (g)": 1e-3,
    },
    "density": {
        "pounds per cubic foot": 16.01846,
        "pounds per cubic inch": 2.767990e4,
        "pounds per gallon, U.S.": 119.8264,
        "pounds per gallon, Imperial": 99.77637,
        "slugs per cubic foot": 515.3788,
        "kilograms per cubic meter": 1,
        "grams per cubic centimeter": 1e3,
        "kilograms per liter": 1e3,
        "ounces per cubic inch": 1729.994,
    },
    "force": {
        "pounds-force (lbf)": 4.448222,
        "ounces-force": 0.2780139,
        "kilograms-force (kgf)": 9.80665,
        "kips (1000 lbf)": 4448.222,
        "poundals": 0.1382550,
        "dynes (dyn)": 1e-5,
        "newtons (N)": 1,
        "tons-force, short": 8896.443,
        "kilonewtons (kN)": 1e3,
    },
    "pressure": {
        "pounds per square inch": 6894.757,
        "pounds per square foot (psf)": 47.88026,
        "kips per square inch": 6.894757e6,
        "atmospheres, standard": 101325,
        "bars": 1e5,
        "kilograms-force per square centimeter": 98066.5,
        "torr": 133.3224,
        "millimeters of mercury": 133.3224,
        "inches of mercury (inHg)": 3386.389,
        "inches of mercury at 60 °F": 3376.85,
        "inches of water (inH2O)": 249.0889,
        "inches of water at 60 °F": 248.84,
        "feet of water": 2989.067,
        "kilopascals": 1e3,
        "pascals (Pa)": 1,
        "megapascals": 1e6,
    },
    "torque": {
        "pound-feet (lbf": 1.355818,
        "pound-inches (lbf": 0.1129848,
        "ounce-inches (ozf": 7.061552e-3,
        "kilogram-force meters (kgf": 9.80665,
        "newton-meters (N": 1,
    },
    "energy": {
        "Btu, International Table": 1055.056,
        "Btu, thermochemical": 1054.350,
        "calories, International Table": 4.1868,
        "calories, thermochemical": 4.184,
        "foot-pounds (ft": 1.355818,
        "kilowatt-hours (kWh)": 3.6e6,
        "therms": 1.055056e8,
        "ergs": 1e-7,
        "horsepower-hours": 2.684520e6,
        "electronvolts": 1.602177e-19,
        "tons of TNT": 4.184e9,
        "joules (J)": 1,
        "kilojoules (kJ)": 1e3,
        "megajoules (MJ)": 1e6,
        "gigajoules (GJ)": 1e9,
    },
    "power": {
        "horsepower (550": 745.6999,
        "horsepower, metric": 735.4988,
        "horsepower, electric": 746,
        "horsepower, boiler": 9809.5,
        "Btu per hour (Btu/h)": 0.2930711,
        "tons of refrigeration": 3516.853,
        "foot-pounds per second": 1.355818,
        "foot-pounds per minute": 2.259697e-2,
        "kilocalories per hour (": 1.163,
        "watts (W)": 1,
        "kilowatts (kW)": 1e3,
    },
    "heat flux": {
        "Btu per hour-square foot": 3.154591,
        "Btu per second-square foot": 1.135653e4,
        "watts per square foot": 10.76391,
        "watts per square inch": 1550.003,
        "watts per square meter (": 1,
    },
    "thermal conductivity": {
        "Btu per hour-foot-°F": 1.730735,
        "Btu-inches per hour-square foot-°F": 0.1442279,
        "Btu-inches per second-square foot-°F": 519.2204,
        "watts per meter-kelvin": 1,
    },
    "heat transfer": {
        "Btu per hour-square foot-°F": 5.678263,
        "Btu per second-square foot-°F": 2.044175e4,
        "watts per square meter-kelvin": 1,
        "kilocalories per hour-square meter-°C": 1.163,
    },
    "specific heat": {
        "Btu per pound-°F": 4186.8,
        "kilojoules per kilogram-kelvin": 1e3,
        "joules per kilogram-kelvin": 1,
    },
    "specific energy": {
        "Btu per pound (": 2326,
        "kilojoules per kilogram (": 1e3,
        "joules per kilogram (": 1,
        "foot-pounds per pound (": 2.989067,
    },
    "viscosity": {
        "centipoises": 1e-3,
        "poises": 0.1,
        "pounds per foot-second": 1.488164,
        "pounds per foot-hour": 4.133789e-4,
        "pound-force seconds per square foot": 47.88026,
        "reyns": 6894.757,
        "pascal-seconds": 1,
    },
    "kinematic viscosity": {
        "centistokes": 1e-6,
        "stokes": 1e-4,
        "square feet per second": 9.290304e-2,
        "square feet per hour": 2.58064e-5,
        "square meters per second": 1,
    },
    "volume flow": {
        "cubic feet per minute": 4.719474e-4,
        "cubic feet per second": 2.831685e-2,
        "gallons, U.S., per minute": 6.309020e-5,
        "gallons, U.S., per day": 4.381264e-8,
        "liters per second": 1e-3,
        "liters per minute": 1.666667e-5,
        "cubic meters per hour": 2.777778e-4,
        "cubic meters per second": 1,
    },
    "mass flow": {
        "pounds per hour": 1.259979e-4,
        "pounds per minute": 7.559873e-3,
        "pounds per second": 0.4535924,
        "tons, short, per hour": 0.2519958,
        "kilograms per hour": 2.777778e-4,
        "kilograms per second": 1,
    },
    "velocity": {
        "feet per minute": 5.08e-3,
        "feet per second (": 0.3048,
        "miles per hour (mph)": 0.44704,
        "knots": 0.5144444,
        "kilometers per hour": 0.2777778,
        "inches per second (": 0.0254,
        "meters per second (": 1,
    },
    "acceleration": {
        "feet per second squared": 0.3048,
        "standard gravities": 9.80665,
        "meters per second squared": 1,
    },
    "angle": {
        "degrees of angle": 1.745329e-2,
        "minutes of angle": 2.908882e-4,
        "seconds of angle": 4.848137e-6,
        "revolutions": 6.283185,
        "gradians": 1.570796e-2,
        "radians (rad)": 1,
    },
    "angular velocity": {
        "revolutions per minute (rpm)": 0.1047198,
        "degrees per second": 1.745329e-2,
        "revolutions per second": 6.283185,
        "radians per second (": 1,
    },
    "moment of inertia": {
        "pound-feet squared": 4.214011e-2,
        "pound-inches squared": 2.926397e-4,
        "kilogram-meters squared": 1,
    },
    "second moment of area": {
        "inches to the fourth": 4.162314e-7,
        "feet to the fourth": 8.630975e-3,
        "centimeters to the fourth": 1e-8,
        "millimeters to the fourth": 1e-12,
        "meters to the fourth": 1,
    },
    "illuminance": {"footcandles": 10.76391, "phots": 1e4, "lux": 1},
    "luminance": {
        "footlamberts": 3.426259,
        "lamberts": 3183.099,
        "candelas per square inch": 1550.003,
        "candelas per square meter": 1,
    },
    "charge": {
        "ampere-hours": 3600,
        "abcoulombs": 10,
        "statcoulombs": 3.335641e-10,
        "faradays": 9.648533e4,
        "coulombs (C)": 1,
    },
    "capacitance": {"abfarads": 1e9, "statfarads": 1.112650e-12, "farads (F)": 1},
    "inductance": {"abhenrys": 1e-9, "stathenrys": 8.987552e11, "henrys (H)": 1},
    "voltage": {"abvolts": 1e-8, "statvolts": 299.7925, "volts (V)": 1},
    "resistance": {"abohms": 1e-9, "statohms": 8.987552e11, "ohms": 1},
    "resistivity": {
        "ohm-circular mils per foot": 1.662426e-9,
        "ohm-centimeters": 1e-2,
        "ohm-meters": 1,
    },
    "flux density": {"gauss": 1e-4, "gammas": 1e-9, "teslas": 1},
    "magnetic flux": {"maxwells": 1e-8, "unit poles": 1.256637e-7, "webers (Wb)": 1},
    "magnetic field": {"oersteds": 79.57747, "amperes per meter": 1},
    "magnetomotive force": {"gilberts": 0.7957747, "ampere-turns": 1},
    "activity": {"curies": 3.7e10, "becquerels (Bq)": 1},
    "exposure": {"roentgens": 2.58e-4, "coulombs per kilogram": 1},
    "fuel": {
        "miles per gallon, U.S.": 4.251437e5,
        "miles per gallon, Imperial": 3.540062e5,
        "kilometers per liter": 1e6,
    },
    "permeance": {
        "perms, U.S.": 5.721349e-11,
        "nanograms per second-square meter-pascal": 1e-12,
    },
    "permeability": {"darcys": 9.869233e-13, "square micrometers": 1e-12},
    "linear mass": {
        "pounds per foot (": 1.488164,
        "pounds per inch (": 17.85797,
        "pounds per yard": 0.4960546,
        "denier": 1.111111e-7,
        "tex": 1e-6,
        "kilograms per meter": 1,
    },
    "surface mass": {
        "pounds per square foot, mass": 4.882428,
        "ounces per square yard": 3.390575e-2,
        "ounces per square foot": 0.3051517,
        "kilograms per square meter": 1,
    },
    "concentration": {
        "grains per gallon, U.S.": 1.711806e-2,
        "ounces per gallon, U.S.": 7.489152,
        "milligrams per liter": 1e-3,
        "grams per liter": 1,
    },
}
PRINTED = 6e-7  # half of the last of seven digits

TEMPERATURES = {"Celsius": (0, 100), "Fahrenheit": (32, 212), "Kelvin": (273.15, 373.15)}
TEMPERATURES["Rankine"] = (491.67, 671.67)


class Conversions(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pairs = read_pairs()

    def test_the_file_is_a_list_of_full_records(self):
        fields = fields_of("\r\n".join(lines_of("Conversion_Factors.dat")))
        self.assertEqual(len(fields) % 6, 0)
        for text, quoted in fields[0::6] + fields[1::6]:
            self.assertTrue(quoted and 0 < len(text) <= 50 and text == text.strip(), text)
        for text, quoted in fields[2::6] + fields[3::6] + fields[4::6]:
            digits = re.sub("E.*|[-.]", "", text).lstrip("0")
            self.assertTrue(not quoted and len(digits) <= 15, text)
        self.assertTrue({pair.direction for pair in self.pairs} <= {-1, 0})

    def test_it_fits_the_list_and_is_sorted_without_doubles(self):
        names = [(pair.first, pair.second) for pair in self.pairs]
        self.assertTrue(450 <= len(names) <= 2001, len(names))
        folded = [[name.casefold() for name in pair] for pair in names]
        self.assertEqual(folded, sorted(folded))
        self.assertEqual(len(names), len({frozenset(pair) for pair in names}))
        self.assertFalse([pair for pair in names if pair[0] == pair[1]])

    def test_both_directions_undo_each_other(self):
        for pair in self.pairs:
            for x in (1, -40, 12345.678):
                self.assertTrue(
                    math.isclose(pair.backward(pair.forward(x)), x, rel_tol=1e-12), pair.first
                )

    def test_factors_follow_from_the_si_values(self):
        def value_of(name, quantity):
            for start, value in quantity.items():
                if name == start or name.startswith(start if "(" in start else start + " ("):
                    return value
            return None

        checked, known = 0, set()
        for quantity in SI_VALUES.values():
            for pair in self.pairs:
                values = [value_of(name, quantity) for name in (pair.first, pair.second)]
                if None not in values:
                    checked += 1
                    known.update((pair.first, pair.second))
                    with self.subTest(pair.first, second=pair.second):
                        ratio = pair.forward(1) * values[1] / values[0]
                        self.assertLess(abs(ratio - 1), 2 * PRINTED)
        for quantity, units in SI_VALUES.items():
            for start in units:
                found = any(value_of(name, {start: 1}) for name in known)
                self.assertTrue(found, f"{quantity}: no pair has {start}")
        self.assertGreater(checked, 300)

    def test_ways_round_a_triangle_agree(self):
        steps = {}
        for pair in self.pairs:
            steps.setdefault(pair.first, {})[pair.second] = pair.forward
            steps.setdefault(pair.second, {})[pair.first] = pair.backward
        triangles = 0
        for a, onward in steps.items():
            for b in onward:
                for c in steps[b]:
                    if c in onward:
                        triangles += 1
                        around, straight = steps[b][c](onward[b](7)), onward[c](7)
                        close = math.isclose(around, straight, rel_tol=1e-13)
                        self.assertTrue(close, f"{a} -> {b} -> {c}: {around!r}, {straight!r}")
        self.assertGreater(triangles, 1000)

    def test_temperatures(self):
        found = 0
        for pair in self.pairs:
            scales = [pair.first.split()[0], pair.second.split()[0]]
            if all(scale in TEMPERATURES for scale in scales):
                found += 1
                for x, y in zip(*(TEMPERATURES[scale] for scale in scales)):
                    self.assertAlmostEqual(pair.forward(x), y, 10, scales)
        self.assertEqual(found, 6)

    def test_exact_factors_are_exact(self):
        exact = {
            ("feet (ft)", "inches (in)"): 12,
            ("inches (in)", "millimeters (mm)"): 25.4,
            ("pounds (lb)", "kilograms (kg)"): 0.45359237,
            ("gallons, U.S. (gal)", "liters (L)"): 3.785411784,
            ("acres", "square feet (ft²)"): 43560,
            ("days (d)", "seconds (s)"): 86400,
            ("cubic inches (in³)", "gallons, U.S. (gal)"): 1 / 231,
            ("horsepower (550 ft·lbf/s)", "foot-pounds per minute (ft·lbf/min)"): 33000,
        }
        values = {(pair.first, pair.second): pair.forward(1) for pair in self.pairs}
        values |= {(pair.second, pair.first): pair.backward(1) for pair in self.pairs}
        for names, value in exact.items():
            self.assertEqual(values[names], value, names)


class Contents(unittest.TestCase):
    def test_fractions(self):
        body = Table("Frac_Dec.dat").body
        self.assertEqual(len(body), 64)
        for n, (fraction, count, inches, mm) in enumerate(body, 1):
            self.assertEqual(Fraction(fraction), Fraction(n, 64))
            self.assertEqual(int(count), n)
            self.assertEqual(Fraction(inches), Fraction(n, 64))
            self.assertEqual(Fraction(mm), Fraction(n, 64) * Fraction("25.4"))

    def test_character_codes(self):
        body = Table("Ascii.dat").body
        self.assertEqual(len(body), 256)
        for code, (decimal, hexadecimal, octal, binary, sign, meaning) in enumerate(body):
            numbers = [int(decimal), int(hexadecimal, 16), int(octal, 8), int(binary, 2)]
            self.assertEqual(numbers, [code] * 4)
            self.assertTrue(meaning)
            if 32 < code < 127:
                self.assertEqual(sign.strip("\xa0"), chr(code))
        self.assertEqual([body[n][4] for n in (0, 7, 13, 27, 127)], "NUL BEL CR ESC DEL".split())
        self.assertEqual(body[128][4], "€")

    def test_wire_follows_the_gauge(self):
        us, metric = Table("COPRWIRE.dat").by_key(), Table("CoprWirM.dat").by_key()
        self.assertEqual(list(us), list(metric))
        self.assertEqual(len(us), 44 + 15)
        for name, row in us.items():
            if name.endswith("kcmil"):
                inches = math.sqrt(int(name.split()[0]) / 1000)
            else:
                number = 1 - int(name[:-2]) if name.endswith("/0") else int(name)
                inches = 0.005 * 92 ** ((36 - number) / 39)
            mm2 = math.pi / 4 * (25.4 * inches) ** 2
            ohms, kg = 17.241379 / mm2, 8.89 * mm2
            expected = [inches, 1e6 * inches**2, math.pi / 4 * inches**2]
            expected += [0.3048 * ohms, 0.3048 * ohms * 1.21615, kg * 0.6719690]
            self.close(name, row[1:7], expected)
            self.close(name, metric[name][1:6], [25.4 * inches, mm2, ohms, ohms * 1.21615, kg])
            self.assertEqual(row[7:], metric[name][6:])
            self.assertEqual(row[7:], sorted(row[7:], key=lambda text: int(text or 0)), name)

    def close(self, name, texts, values):
        for text, value in zip(texts, values, strict=True):
            # Four digits: up to half of the last in 1000.
            self.assertTrue(math.isclose(float(text), value, rel_tol=5.01e-4), (name, text, value))

    def test_thicker_wire_carries_more(self):
        body = Table("COPRWIRE.dat").body
        for column in (7, 8, 9):
            carried = [int(row[column]) for row in body if row[column]]
            self.assertEqual(carried, sorted(carried, reverse=True))
        resistances = [float(row[4]) for row in body]
        self.assertEqual(resistances, sorted(resistances))

    def test_constants_agree(self):
        values = {}
        for name, symbol, value, unit, _ in Table("Constants.dat").body:
            values.setdefault((symbol, unit), float(value) if value else None)
        si = {symbol: value for (symbol, _), value in reversed(values.items())}
        h, c, k, avogadro = si["h"], si["c"], si["k"], si["NA"]
        charge, mass = 1.602176634e-19, si["me"]
        related = {
            "R": ("J/mol·K", k * avogadro),
            "F": ("C/mol", charge * avogadro),
            "sigma": ("W/m²·K^4", 2 * math.pi**5 * k**4 / (15 * h**3 * c**2)),
            "KJ": ("Hz/V", 2 * charge / h),
            "RK": ("ohm", h / charge**2),
            "Phi0": ("Wb", h / charge / 2),
            "G0": ("S", 2 * charge**2 / h),
            "c1": ("W·m²", 2 * math.pi * h * c**2),
            "c2": ("m·K", h * c / k),
            "b": ("m·K", h * c / k / 4.965114231744276),
            "h/2pi": ("J·s", h / 2 / math.pi),
            "epsilon0": ("F/m", 1 / (si["mu0"] * c**2)),
            "Z0": ("ohm", si["mu0"] * c),
            "alpha": ("1", si["mu0"] * c * charge**2 / 2 / h),
            "Rinf": ("1/m", si["alpha"] ** 2 * mass * c / 2 / h),
            "a0": ("m", h / (2 * math.pi * mass * c * si["alpha"])),
            "re": ("m", si["alpha"] ** 2 * si["a0"]),
            "Eh": ("J", 2 * h * c * si["Rinf"]),
            "lambdaC": ("m", h / mass / c),
            "muB": ("J/T", charge * h / 4 / math.pi / mass),
            "muN": ("J/T", charge * h / 4 / math.pi / si["mp"]),
            "-e/me": ("C/kg", -charge / mass),
            "mp/me": ("1", si["mp"] / mass),
            "n0": ("1/m³", 101325 / k / 273.15),
            "sigmae": ("m²", 8 * math.pi / 3 * si["re"] ** 2),
        }
        for symbol, (unit, value) in related.items():
            told = values[symbol, unit]
            self.assertTrue(math.isclose(told, value, rel_tol=2e-9), (symbol, told, value))
        lbm_R, btu, lbf, foot = 0.45359237 / 1.8, 1055.05585262, 4.4482216152605, 0.3048
        psi, gas = lbf / 0.0254**2, 8314.46261815324
        in_units = {
            ("R", "J/kmol·K"): gas,
            ("R", "cal/mol·K (thermochemical)"): gas / 4184,
            ("R", "Btu/lbmol·°R (International Table)"): gas * lbm_R / btu,
            ("R", "ft·lbf/lbmol·°R"): gas * lbm_R / (lbf * foot),
            ("R", "psi·ft³/lbmol·°R"): gas * lbm_R / psi / foot**3,
            ("R", "atm·ft³/lbmol·°R"): gas * lbm_R / 101325 / foot**3,
            ("R", "L·atm/mol·K"): gas / 101325,
            ("R", "L·bar/mol·K"): gas / 100000,
            ("sigma", "Btu/h·ft²·°R^4"): si["sigma"] * foot**2 * 3600 / btu / 1.8**4,
            ("g0", "ft/s²"): 9.80665 / foot,
            ("atm", "psi"): 101325 / psi,
        }
        for key, value in in_units.items():
            self.assertTrue(math.isclose(values[key], value, rel_tol=3e-7), (key, value))
        # Printed in full, so held to their last digits.
        self.assertEqual([si["c"], si["atm"], h], [299792458, 101325, 6.62607015e-34])
        for symbol, value in (("pi", math.pi), ("sqrt 2", 2**0.5), ("ln 10", math.log(10))):
            self.assertTrue(math.isclose(si[symbol], value, rel_tol=5e-15), symbol)


class Motors(unittest.TestCase):
    def test_nema_frame_numbers_tell_heights(self):
        for frame, row in Table("ACMOTORS.dat").by_key().items():
            digits = re.match(r"\d+", frame)[0]
            height = int(digits[:2]) / (16 if len(digits) == 2 else 4)
            self.assertEqual(float(row[1]), height, frame)

    def test_iec_frame_numbers_tell_heights_and_flanges_bolt_circles(self):
        table = Table("IECframe.dat")
        letter = {name: n for n, name in enumerate(table.rows[0])}
        for row in table.body:
            self.assertEqual(int(row[letter["H"]]), int(re.match(r"\d+", row[0])[0]))
            self.assertEqual(row[letter["Flange"]], f"FF{row[letter['M']]}")
            sizes = [float(row[letter[name]]) for name in ("N", "M", "P")]
            self.assertEqual(sizes, sorted(sizes))
            if row[letter["D"]] != "-":
                shaft, over = float(row[letter["D"]]), float(row[letter["GA"]])
                key = float(row[letter["GD"]])
                self.assertTrue(shaft < over < shaft + key, row[0])

    def test_compared_frames_are_neighbours(self):
        body = Table("IEC_NEMA.dat").body
        frames = Table("ACMOTORS.dat").by_key()
        self.assertEqual(len(body) % 2, 0)
        for iec, nema in zip(body[0::2], body[1::2]):
            self.assertTrue(iec[0].startswith("IEC ") and nema[0].startswith("NEMA "))
            for row in (iec, nema):
                for mm, inches in zip(row[1:8], row[8:15]):
                    self.assertLess(abs(float(mm) - 25.4 * float(inches)), 0.07, row[0])
            chart = frames[nema[0].split()[1]]
            self.assertEqual(nema[8], chart[1])
            self.assertLess(abs(float(nema[10]) - 2 * float(chart[3])), 0.0016, nema[0])
            # From the 90 frames on the feet agree, but for the holes' play; below only the heights.
            if int(iec[0][4:-1]) >= 90:
                for n in (2, 3, 4):
                    self.assertLess(abs(float(iec[n]) - float(nema[n])), 2.3, (iec[0], n))
            self.assertLess(abs(float(iec[1]) - float(nema[1])), 9.1, iec[0])


class Sprockets(unittest.TestCase):
    PITCHES = {25: 0.25, 35: 0.375, 41: 0.5, 40: 0.5, 50: 0.625, 60: 0.75, 80: 1, 100: 1.25,
               120: 1.5, 140: 1.75, 160: 2}

    def test_hubs_fit_under_the_chain_and_bores_into_the_hubs(self):
        seen, before = set(), None
        for line in lines_of("SPROCKET.dat")[:-1]:
            chain, teeth, bore, length, hub = map(float, line.split(","))
            with self.subTest(chain=chain, teeth=teeth):
                pitch = self.PITCHES[chain]
                # The side plates of the chain must clear the hub, by B29.1.
                self.assertLessEqual(hub, pitch * (1 / math.tan(math.pi / teeth) - 1) - 0.03)
                self.assertLess(bore / hub, 0.7)
                self.assertGreaterEqual((hub - bore) / 2, 0.05)
                self.assertGreater(length, 0.6 * pitch)
                for size in (bore, length, hub):
                    self.assertEqual(size * 16 % 1, 0)
                if before and before[0] == chain:
                    for was, now in zip(before[1:], (teeth, bore, length, hub), strict=True):
                        self.assertLessEqual(was, now)
            seen.add((chain, teeth))
            before = (chain, teeth, bore, length, hub)
        for chain in self.PITCHES:
            for teeth in (9, 12, 15, 18, 24, 30, 36, 48, 60):
                self.assertIn((chain, teeth), seen)


class Conductors(unittest.TestCase):
    def test_the_window_makes_the_circular_mils_of_each_size(self):
        sizes = Table("COPRWIRE.dat").by_key()
        rows = [line.split(",") for line in lines_of("conductors.dat")[1:-1]]
        self.assertLessEqual(len(rows), 61)  # that the window looks at
        areas = []
        for number, quoted in rows:
            label = quoted.strip('"')
            with self.subTest(label):
                inches = 92 ** ((36 - float(number)) / 39) * 0.005
                areas.append(3.1415926 * inches**2 / 4 / 7.854e-7)
                printed = float(sizes.pop(label)[2])
                self.assertLess(abs(areas[-1] / printed - 1), 6e-4)
                if label.endswith(" kcmil"):
                    self.assertLess(abs(areas[-1] - 1000 * int(label.split()[0])), 0.01)
        self.assertFalse(sizes)
        self.assertEqual(areas, sorted(areas))
