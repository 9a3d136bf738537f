"""Checks that the U.S. and the metric file of a table tell the same, cell by cell.

Which files are pairs is read from the menu; which columns, from their order; by what they differ,
from the units in their headings.
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


class Pairs(unittest.TestCase):
    def test_cell_by_cell(self):
        compared = 0
        for us_name, metric_name in menu_pairs():
            us, metric = Table(us_name), Table(metric_name)
            if [row[0] for row in us.body] != [row[0] for row in metric.body]:
                continue  # each has the steps of its own system
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
