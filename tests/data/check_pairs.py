"""Checks that the U.S. and the metric file of a table tell the same, cell by cell.

Which files are pairs is read from the menu; which columns, from their order; by what they differ,
from the units in their headings. Where each has the steps of its own system, the metric values lie
between the U.S. ones. Files with other columns and steps are after standards of their own.
"""

import re
import unittest
from decimal import Decimal

from table_reader import DATA, ROOT, Table

INCH, FOOT, POUND, BTU = 0.0254, 0.3048, 0.45359237, 1055.05585262
LBF = 4.4482216152605
PSI = LBF / INCH**2

# A metric value in the U.S. unit's.
FACTORS = {
    ("in", "mm"): 25.4,
    ("in²", "mm²"): 25.4**2,
    ("ft", "m"): FOOT,
    ("lb", "kg"): POUND,
    ("lb/ft", "kg/m"): POUND / FOOT,
    ("lb/100 ft", "kg/100 m"): POUND / FOOT,
    ("lb/1000 ft", "kg/km"): POUND / FOOT,
    ("ohms/1000 ft", "ohms/km"): 1 / FOOT,
    ("lb/ft²", "kg/m²"): POUND / FOOT**2,
    ("lb/ft³", "kg/m³"): POUND / FOOT**3,
    ("lb/in³", "g/cm³"): POUND / INCH**3 / 1000,
    ("ft³/lb", "m³/kg"): FOOT**3 / POUND,
    ("lbf", "N"): LBF,
    ("lbf", "kN"): LBF / 1000,
    ("psi", "kPa"): PSI / 1000,
    ("psi", "MPa"): PSI / 1e6,
    ("ksi", "MPa"): PSI / 1000,
    ("10^6 psi", "GPa"): PSI / 1000,
    ("Btu/lb", "kJ/kg"): BTU / POUND / 1000,
    ("Btu/lb·°F", "kJ/kg·K"): BTU / POUND * 1.8 / 1000,
    ("Btu/h·ft·°F", "W/m·K"): BTU / 3600 / FOOT * 1.8,
    ("Btu·in/h·ft²·°F", "W/m·K"): BTU / 3600 / FOOT**2 * INCH * 1.8,
    ("10^-6/°F", "10^-6/K"): 1.8,
    ("hp", "kW"): 0.745699872,
    ("ft·lbf/in", "J/m"): LBF * FOOT / INCH,
    ("psia", "kPa"): PSI / 1000,
    ("psi abs", "kPa abs"): PSI / 1000,
    ("psi gauge", "kPa gauge"): PSI / 1000,
    ("Btu/lb·°R", "kJ/kg·K"): BTU / POUND * 1.8 / 1000,
    ("10^-6 lb/ft·s", "µPa·s"): POUND / FOOT,
    ("10^-6 ft²/s", "mm²/s"): FOOT**2,
    ("ft²/h", "mm²/s"): FOOT**2 * 1e6 / 3600,
    ("ft/s", "m/s"): FOOT,
    ("cfm", "L/min"): 1000 * FOOT**3,
    ("psi/ft", "kPa/m"): PSI / 1000 / FOOT,
    ("gpm", "L/s"): 231 * INCH**3 * 1000 / 60,
}
TEMPERATURES = {("°F", "°C")}


def menu_pairs():
    text = (ROOT / "src" / "shell" / "menu_catalogue.cpp").read_text("utf-8")
    names = re.findall(r'"([^"\n]+\.dat)",\s*"([^"\n]+\.dat)"', text, re.I)
    return [(us, metric) for us, metric in names if (DATA / us).exists()]


def numbers(text):
    """The numbers of a cell, each with half a unit of its last digit."""
    decimals = [Decimal(x.replace(",", "")) for x in re.findall(r"(?<![\d.])-?[\d,]*\.?\d+", text)]
    return [(float(x), 0.5 * 10.0 ** x.as_tuple().exponent) for x in decimals]


def same_steps(us, metric):
    return [row[0] for row in us.body] == [row[0] for row in metric.body]


def same_columns(us, metric):
    return us.shape[1] == metric.shape[1]


def follows(us, metric):
    """Whether the metric table is held against the U.S. one here."""
    return same_steps(us, metric) or same_columns(us, metric)


def in_us(value, unit):
    if unit in TEMPERATURES:
        return value * 1.8 + 32
    return value if unit[0] == unit[1] else value / FACTORS[unit]


class Pairs(unittest.TestCase):
    def test_cell_by_cell(self):
        compared = 0
        for us_name, metric_name in menu_pairs():
            us, metric = Table(us_name), Table(metric_name)
            if not same_steps(us, metric):
                continue
            with self.subTest(us_name):
                compared += 1
                for column, heads in enumerate(zip(*metric.rows[: metric.fixed_rows])):
                    here, unit = self.counterpart(us, heads)
                    for one, other in zip(us.body, metric.body):
                        self.compare(one[here], other[column], unit, one[0])
        self.assertGreater(compared, 1)

    def counterpart(self, us, heads):
        """The U.S. column of one name and a unit that the metric one can be held against."""
        for column, own in enumerate(zip(*us.rows[: us.fixed_rows])):
            unit = (own[-1], heads[-1])
            known = unit[0] == unit[1] or unit in FACTORS or unit in TEMPERATURES
            if own[:-1] == heads[:-1] and known:
                return column, unit
        self.fail(f"no U.S. column for {heads}")

    def compare(self, text, converted, unit, row):
        if unit[0] == unit[1]:
            self.assertEqual(text, converted, row)
            return
        for value, shown in zip(numbers(text), numbers(converted), strict=True):
            if unit in TEMPERATURES:
                wanted, slack = (value[0] - 32) / 1.8, value[1] / 1.8
            else:
                wanted, slack = value[0] * FACTORS[unit], value[1] * FACTORS[unit]
            # A number rounded to digits may end in zeros that are none of its own.
            rounding = max(shown[1], 0.05 * abs(shown[0])) if shown[1] == 0.5 else shown[1]
            apart, allowed = abs(wanted - shown[0]), (slack + rounding) * 1.001
            self.assertLessEqual(apart, allowed, (row, text, converted))

    def test_own_steps(self):
        """Each metric value lies between those of the U.S. rows around it."""
        compared = 0
        for us_name, metric_name in menu_pairs():
            us, metric = Table(us_name), Table(metric_name)
            if same_steps(us, metric) or not same_columns(us, metric):
                continue
            units = list(zip(us.rows[us.fixed_rows - 1], metric.rows[metric.fixed_rows - 1]))
            if "per 100 ft" in us.title:
                self.assertIn("per 100 m", metric.title)
                units = [units[0]] + [("psi/ft", "kPa/m")] * (len(units) - 1)
            keys = [float(row[0]) for row in us.body]
            for row in metric.body:
                key = in_us(float(row[0]), units[0])
                for n in (n for n in range(1, len(keys)) if keys[n - 1] < key <= keys[n]):
                    around = us.body[n - 1 : n + 1]
                    for unit, *texts in list(zip(units, row, *around))[1:]:
                        if all(texts):
                            compared += 1
                            with self.subTest(metric_name, row=row[0]):
                                self.between(*texts, unit)
        self.assertGreater(compared, 1000)

    def between(self, text, one, other, unit):
        value, rounding = numbers(text)[0]
        slack = abs(in_us(rounding, unit) - in_us(0, unit)) + numbers(one)[0][1]
        ends = float(one), float(other)
        # A curve is a little higher at its peak than on both sides.
        slack += 0.02 * abs(ends[0] - ends[1]) + 2e-4 * abs(ends[0])
        value = in_us(value, unit)
        self.assertTrue(min(ends) - slack <= value <= max(ends) + slack, (value, *ends))
