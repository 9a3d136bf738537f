"""Checks the tables that HVAC calculators read: solvents and saturated steam by gauge pressure."""

import re
import unittest

from table_reader import fields_of, lines_of


class Solvents(unittest.TestCase):
    def setUp(self):
        texts = [text for text, _ in fields_of("\r\n".join(lines_of("solvents.dat")))]
        self.airs = {name: float(air) for name, air in zip(texts[0::2], texts[1::2], strict=True)}
        self.names = texts[0::2]

    def test_the_list_fits_its_window(self):
        self.assertEqual((self.names[0], self.airs["UNKNOWN"]), ("UNKNOWN", 2640))
        self.assertEqual(len(self.names), len(self.airs))  # no name twice
        self.assertTrue(60 <= len(self.names) <= 101)
        # What ventilation practice takes for xylene.
        self.assertLess(abs(self.airs["o-Xylene"] / 2945 - 1), 0.001)

    def test_against_saturated_liquids_and_lean_limits(self):
        """Densities by DIPPR equation 105 as in Perry's handbook, at 20 degrees C; limits as
        estimated from what burning takes, 0.55 of the stoichiometric mixture."""
        liquids = {  # formula, C1 to C4
            "Acetone": ("C3H6O", 1233.2, 0.25886, 508.2, 0.2913),
            "n-Butyl Acetate": ("C6H12O2", 677.94, 0.2637, 575.4, 0.29318),
            "Cyclohexane": ("C6H12", 889.98, 0.27376, 553.8, 0.28571),
            "Ethyl Acetate": ("C4H8O2", 899.6, 0.25856, 523.3, 0.278),
            "Ethyl Alcohol": ("C2H6O", 1628.8, 0.27469, 514, 0.23178),
            "n-Heptane": ("C7H16", 612.59, 0.26211, 540.2, 0.28141),
            "Isopropyl Alcohol": ("C3H8O", 1179.9, 0.2644, 508.3, 0.24653),
            "Methyl Alcohol": ("CH4O", 2326.7, 0.27073, 512.5, 0.24713),
            "Methyl Isobutyl Ketone": ("C6H12O", 716.87, 0.26453, 574.6, 0.28918),
            "n-Octane": ("C8H18", 526.6, 0.25693, 568.7, 0.28571),
            "Styrene": ("C8H8", 739.7, 0.2603, 636, 0.3009),
            "Toluene": ("C7H8", 879.2, 0.27136, 591.75, 0.29241),
            "o-Xylene": ("C8H10", 699.62, 0.26143, 630.3, 0.27365),
        }  # fmt: skip
        vapor = 386.8 / 453.59 * 3.7854  # ft3 of gas at 70 F, of a gallon with 1 mol/L
        for name, (formula, c1, c2, c3, c4) in liquids.items():
            density = c1 / 1000 / c2 ** (1 + (1 - 293.15 / c3) ** c4)  # mol/L
            limit = 100 / (1 + self.airs[name] / (density * vapor))
            atoms = {atom: int(count or 1) for atom, count in re.findall(r"([CHO])(\d*)", formula)}
            oxygen = atoms["C"] + atoms["H"] / 4 - atoms.get("O", 0) / 2
            estimate = 55 / (1 + 4.773 * oxygen)
            self.assertTrue(0.75 < limit / estimate < 1.25, (name, limit, estimate))

    def test_no_air_is_out_of_range(self):
        for name, air in self.airs.items():
            self.assertTrue(600 < air < 3700, (name, air))


class Steam(unittest.TestCase):
    def setUp(self):
        self.rows = [[float(x) for x in line.split(",")] for line in lines_of("Steam_Cv.dat")[3:]
                     if line]

    def test_against_printed_steam_tables(self):
        """psia as in steam tables by IAPWS-95: the volume, and between rows its straight line."""
        published = {14.696: 26.80, 20: 20.093, 50: 8.5175, 100: 4.4327, 200: 2.2882, 500: 0.92815}
        for psia, volume in published.items():
            psig = psia - 14.69595
            for low, high in zip(self.rows, self.rows[1:]):
                if low[0] <= psig + 1e-3 and psig <= high[0]:
                    share = (psig - low[0]) / (high[0] - low[0])
                    v = low[1] + share * (high[1] - low[1])
                    self.assertLess(abs(v / volume - 1), 0.0016, psia)
                    break
            else:
                self.fail(psia)

    def test_rows_run_in_one_direction(self):
        for column, sign in ((0, 1), (1, -1), (2, 1), (3, -1)):
            values = [sign * row[column] for row in self.rows]
            self.assertEqual(values, sorted(set(values)))
        self.assertEqual((self.rows[0][0], self.rows[-1][0]), (0, 600))
        self.assertTrue(all(len(row) == 4 for row in self.rows))
