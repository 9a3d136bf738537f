"""Checks the elements of the periodic chart against rules, other tables and published values."""

import re
import unittest

from check_handbook import entries, numbers
from table_reader import Table, fields_of, lines_of

FIELDS = ("number", "symbol", "name", "weight", "series", "density", "melting", "boiling",
          "configuration", "electronegativity", "crystal")  # fmt: skip
SHELLS = {"": 0, "He": 2, "Ne": 10, "Ar": 18, "Kr": 36, "Xe": 54, "Rn": 86}


def read_elements():
    fields = [text for text, _ in fields_of("\r\n".join(lines_of("Elements.dat")[1:]))]
    rows = zip(*[iter(fields)] * len(FIELDS), strict=True)
    return {row[1]: dict(zip(FIELDS, row, strict=True)) for row in rows}


def number(text):
    return float(text) if text and text != "-" else None


class Elements(unittest.TestCase):
    def setUp(self):
        self.elements = read_elements()

    def test_all_are_there_once(self):
        self.assertEqual([e["number"] for e in self.elements.values()],
                         [str(n) for n in range(1, 119)])  # fmt: skip
        self.assertEqual(len({e["name"] for e in self.elements.values()}), 118)

    def test_weights_rise_but_for_the_known_inversions(self):
        weights = [float(e["weight"].strip("[]")) for e in self.elements.values()]
        symbols = list(self.elements)
        falls = {symbols[n] for n in range(117) if weights[n] > weights[n + 1]}
        self.assertEqual(falls, {"Ar", "Co", "Te", "Th", "U", "Pu", "Bh"})
        for element, weight in zip(self.elements.values(), weights):
            self.assertTrue(weight < 1.1 or 1.99 < weight / int(element["number"]) < 2.7, element)
            # Mass numbers stand for what has no isotope of a usual composition.
            radioactive = element["number"] in ("43", "61") or int(element["number"]) > 83
            bracketed = element["weight"].startswith("[")
            self.assertEqual(bracketed, radioactive and element["symbol"] not in ("Th", "Pa", "U"))

    def test_electrons_add_up(self):
        for e in self.elements.values():
            core, shells = re.fullmatch(r"(?:\[(\w+)\] )?(.+)", e["configuration"]).groups("")
            held = SHELLS[core]
            for shell in shells.split():
                _, kind, count = re.fullmatch(r"(\d)([spdf])(\d+)", shell).groups()
                self.assertLessEqual(int(count), {"s": 2, "p": 6, "d": 10, "f": 14}[kind], e)
                held += int(count)
            self.assertEqual(held, int(e["number"]), e)

    def test_values_are_plausible(self):
        for e in self.elements.values():
            melting, boiling = number(e["melting"]), number(e["boiling"])
            density = number(e["density"])
            if melting is not None and boiling is not None:
                self.assertTrue(-260 < melting < boiling < 5700, e)
            if density and boiling is not None and boiling < 20:  # ideal gases, g/L
                atoms = 2 if e["symbol"] in ("H", "N", "O", "F", "Cl") else 1
                ideal = atoms * float(e["weight"].strip("[]")) / 22.414
                self.assertLess(abs(density / ideal - 1), 0.025, e)
            elif density:
                self.assertTrue(0.5 < density < 22.7, e)
            if e["electronegativity"]:
                self.assertTrue(0.7 <= float(e["electronegativity"]) <= 3.98, e)

    def test_against_the_tables_of_metals_and_cryogens(self):
        found = 0
        for row in entries(Table("Phys_Prop_Met_SI.dat")):
            if row[1] in self.elements:
                found += 1
                e = self.elements[row[1]]
                density, melting, boiling = (max(numbers(row[n])) for n in (2, 3, 4))
                self.assertLess(abs(number(e["density"]) / density - 1), 0.02, row)
                self.assertLess(abs(number(e["melting"]) - melting), 9, row)
                self.assertLess(abs(number(e["boiling"]) / boiling - 1), 0.03, row)
        self.assertGreater(found, 30)
        for row in Table("Cryogens.dat").body:
            if (symbol := row[1].removesuffix("2")) in self.elements and row[1] != "D2":
                boiling = number(self.elements[symbol]["boiling"])
                self.assertLess(abs(boiling + 273.15 - float(row[2])), 0.05, row)

    def test_against_published_values(self):
        """IUPAC's table of 2022, the CRC Handbook, Allred's electronegativities of 1961."""
        published = {
            "weight": {"H": "1.0080", "Ar": "39.95", "Zn": "65.38", "Yb": "173.05", "Pb": "207.2",
                       "Tc": "[97]", "Og": "[294]"},
            "melting": {"Cs": "28.5", "Ga": "29.76", "W": "3422", "Hg": "-38.83", "S": "115.21"},
            "boiling": {"H": "-252.88", "Br": "58.8", "Zn": "907", "Re": "5596", "C": "3825"},
            "density": {"Li": "0.534", "Fe": "7.874", "Os": "22.59", "Br": "3.103", "U": "19.1"},
            "electronegativity": {"F": "3.98", "Cs": "0.79", "C": "2.55", "Au": "2.54"},
            "configuration": {"Cr": "[Ar] 3d5 4s1", "Pd": "[Kr] 4d10", "Gd": "[Xe] 4f7 5d1 6s2",
                              "Lr": "[Rn] 5f14 7s2 7p1"},
        }  # fmt: skip
        for field, values in published.items():
            for symbol, value in values.items():
                self.assertEqual(self.elements[symbol][field], value, (symbol, field))
