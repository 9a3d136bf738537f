"""Checks transcribed tables against physics, rules of thumb and each other."""

import math
import re
import unittest

from table_reader import Table, inches


def numbers(text):
    return [float(x.replace(",", "")) for x in re.findall(r"-?[\d,]*\.?\d+", text)]


def entries(table):
    """The rows that are no headings of groups."""
    return [row for row in table.body if any(row[1:])]


class Fuels(unittest.TestCase):
    ATOMS = {"C": 12.011, "H": 1.008, "O": 15.999, "N": 14.007, "S": 32.06}

    def test_heats_follow_from_the_formula(self):
        for row in Table("Heats_of_Combustion.dat").body:
            parts = re.findall(r"([A-Z])(\d*)", row[1])
            count = {element: int(n or 1) for element, n in parts}
            molar = sum(self.ATOMS[element] * n for element, n in count.items())
            density, gross, net, gross_lb, net_lb = map(float, row[2:7])
            # A pound mole of a real gas takes some 379.5 ft3 or, near its boiling point, less.
            self.assertTrue(0.965 < molar / density / 379.5 < 1.02, row)
            self.assertLess(abs(gross / density / gross_lb - 1), 0.012, row)
            self.assertLess(abs(net / density / net_lb - 1), 0.012, row)
            # The two heats differ by that of condensing the water: 1059.9 Btu/lb at 60 F.
            water = 18.015 * count.get("H", 0) / 2 / molar
            self.assertLess(abs(gross_lb - net_lb - 1060 * water), 15 + 0.01 * gross_lb * water, row)
            oxygen = count.get("C", 0) + count.get("H", 0) / 4 - count.get("O", 0) / 2
            oxygen += count.get("S", 0)
            self.assertLess(abs(float(row[11]) - oxygen / 0.2099), 0.05, row)


class Cryogens(unittest.TestCase):
    def test_rules_of_liquids(self):
        for row in Table("Cryogens.dat").body:
            boiling, critical, liquid, heat, gas = (float(row[n]) for n in (2, 5, 8, 10, 12))
            self.assertTrue(0.56 < boiling / critical < 0.82, row)
            # Trouton: heat of vaporization per mole over R T, quantum fluids apart.
            molar = gas * 24.146
            trouton = heat * molar / (8.314 * boiling)
            self.assertTrue(8 < trouton < 11 or row[1] in ("He", "H2", "D2", "Ne"), (row[0], trouton))
            self.assertLess(abs(float(row[13]) * gas / liquid - 1), 1.5e-3, row)


class Nails(unittest.TestCase):
    def test_pennies_grow_by_the_quarter_inch(self):
        for name in ("Nails_Common_Smooth.dat", "Nails_Common_Ring.dat", "Nails_Box.dat",
                     "Nails_Finishing.dat"):  # fmt: skip
            for row in Table(name).body:
                penny = int(row[0].removesuffix("d"))
                if penny <= 10:
                    self.assertEqual(inches(row[1]), 0.5 + penny / 4, (name, row))
        for name in ("Nails_Roofing_Smooth.dat", "Nails_Roofing_Ring.dat"):
            lengths = [inches(row[0]) for row in Table(name).body]
            self.assertEqual(lengths, sorted(lengths))


class Hardness(unittest.TestCase):
    def test_scales_rise_together(self):
        for scale in (0, 1):  # Rockwell C, and B below it
            body = [row for row in Table("hardness.dat").body if row[scale]]
            for column in (scale, 2, 3, 4, 5):
                values = [float(row[column]) for row in body if row[column]]
                self.assertTrue(all(a >= b for a, b in zip(values, values[1:])), column)

    def test_brinell_tells_the_strength(self):
        """Some 500 psi for a Brinell number, as steelmakers reckon."""
        for row in Table("hardness.dat").body:
            if row[4] and row[5]:
                self.assertTrue(0.465 < float(row[5]) / float(row[4]) < 0.58, row)


class CleanRooms(unittest.TestCase):
    def test_limits_follow_the_standard_power(self):
        """10^M (0.5 / d)^2.2 in a cubic metre, rounded to three digits by way of the foot's."""
        sizes = (0.1, 0.2, 0.3, 0.5, 5)
        for row in Table("FS-209-E.dat").body:
            m = float(row[0].removeprefix("M "))
            for n, size in enumerate(sizes):
                metric, foot = row[2 + 2 * n : 4 + 2 * n]
                if not metric:
                    continue
                exact = 10**m * (0.5 / size) ** 2.2
                # Half steps are defined by the foot: M 3.5 is class 100, or 3530.
                self.assertLess(abs(float(metric) / exact - 1), 0.25, row)
                self.assertLess(abs(float(metric) / float(foot) * 0.0283168 - 1), 0.011, row)

    def test_old_classes_agree(self):
        new = {row[1]: row for row in Table("FS-209-E.dat").body if row[1]}
        for row in Table("FS-209-D.dat").body:
            for old, column in zip(row[1:6], (3, 5, 7, 9, 11)):
                if old and new[row[0]][column]:
                    self.assertEqual(float(old), float(new[row[0]][column]), row)


class Temperatures(unittest.TestCase):
    def test_both_scales_tell_the_same(self):
        for name, f, c, off in (("Color_Temp.dat", 1, 2, 6), ("Emissivity.dat", 2, 3, 45)):
            for row in entries(Table(name)):
                for one, other in zip(numbers(row[f].replace(" - ", " ")),
                                      numbers(row[c].replace(" - ", " ")), strict=True):
                    self.assertLessEqual(abs((one - 32) / 1.8 - other), off, row)


class Pipes(unittest.TestCase):
    def test_sizes_agree(self):
        dn = {row[0]: row for row in Table("NPS-DN.dat").body}
        for row in Table("NPS-DN.dat").body:
            self.assertLess(abs(float(row[2]) * 25.4 - float(row[3])), 0.9, row)
            nps = inches(row[0])
            if nps >= 14:
                self.assertEqual(float(row[2]), nps)
                self.assertEqual(int(row[1]), nps * 25)
        for row in Table("NPS-BSP.dat").body:
            if row[0] in dn:
                self.assertEqual(row[2], dn[row[0]][1])
                self.assertEqual(float(row[5]), float(dn[row[0]][2]))
            for inch, mm in ((5, 7), (6, 8)):
                if row[inch]:
                    self.assertLess(abs(float(row[inch]) * 25.4 - float(row[mm])), 0.006, row)


class WoodScrews(unittest.TestCase):
    def test_shanks_follow_the_gauge(self):
        for row in Table("Pilothol.dat").body:
            self.assertAlmostEqual(float(row[1]), 0.06 + 0.013 * int(row[0]), 6)
            shank, hard, soft = (inches(cell) for cell in row[4:7])
            self.assertTrue(soft <= hard < shank, row)
            self.assertLess(abs(shank - float(row[1])), 0.012, row)


class Light(unittest.TestCase):
    def test_angles_and_reflections_follow_the_index(self):
        for row in entries(Table("Index_of_Refraction.dat")):
            n = float(row[1])
            if row[2]:
                self.assertLess(abs(math.degrees(math.asin(1 / n)) - float(row[2])), 0.06, row)
                self.assertLess(abs(100 * ((n - 1) / (n + 1)) ** 2 - float(row[3])), 0.06, row)


class Series(unittest.TestCase):
    def test_galvanic_order(self):
        rows = entries(Table("Cathodic_Series.dat"))
        middles = [(float(row[1]) + float(row[2])) / 2 for row in rows]
        for row in rows:
            self.assertLess(float(row[1]), float(row[2]))
        for before, after in zip(middles, middles[1:]):
            self.assertGreater(after, before - 0.04)

    def test_bearing_limits(self):
        for row in entries(Table("PV_Limits.dat")):
            p, v, pv, f, mpa, ms, metric, c = map(float, row[1:])
            self.assertLess(pv, p * v, row)
            for us, si, factor in ((p, mpa, 0.00689476), (v, ms, 0.00508),
                                   (pv, metric, 0.00689476 * 0.00508)):  # fmt: skip
                self.assertLess(abs(us * factor / si - 1), 0.05, row)
            self.assertLess(abs((f - 32) / 1.8 - c), 0.6, row)


class Properties(unittest.TestCase):
    def test_metals_conduct_heat_as_they_do_current(self):
        """Wiedemann and Franz: k times resistivity is 2.44E-8 V2/K2 times the temperature."""
        found = 0
        for row in entries(Table("Phys_Prop_Met_SI.dat")):
            if row[1] and row[1] not in ("Be", "Bi", "Mn"):  # poor followers of the law
                found += 1
                lorenz = float(row[7]) * float(row[9]) * 1e-8 / 293
                self.assertTrue(1.9e-8 < lorenz < 4.2e-8, (row[0], lorenz))
        self.assertGreater(found, 25)

    def test_metals_melt_before_they_boil(self):
        for row in entries(Table("Phys_Prop_Met_US.dat")):
            if row[4]:
                self.assertLess(max(numbers(row[3])), float(row[4]), row)

    def test_gases_are_ideal(self):
        mono = {"Argon", "Helium", "Krypton", "Neon", "Xenon"}
        for row in Table("Therm_Prop_Gas_SI.dat").body:
            molar, density, cp, cv, ratio = map(float, row[2:7])
            self.assertLess(abs(cp - cv - 8.3145 / molar), 0.002, row)
            self.assertTrue(0.995 < density / (molar / 24.465) < 1.04, row)
            self.assertLess(abs(cp / cv - ratio), 0.013, row)
            if row[0] in mono:
                self.assertLess(abs(ratio - 5 / 3), 0.02, row)
            # Eucken: the conductivity follows from viscosity and specific heats.
            eucken = float(row[8]) * 1e-6 * (cv * 1000 + 2.25 * 8314.5 / molar)
            self.assertTrue(0.84 < float(row[7]) / eucken < 1.17, (row[0], float(row[7]) / eucken))

    def test_liquids_boil_above_freezing(self):
        for row in Table("Therm_Prop_Liq_SI.dat").body:
            if row[7] and row[8]:
                self.assertLess(float(row[7]), float(row[8]), row)

    def test_strength_follows_hardness_in_steels(self):
        table = Table("Mech_Prop_Met_US.dat").body
        steels = table[1 : [row[0] for row in table].index("Stainless steels")]
        for row in steels:
            if row[5]:
                strength, hardness = numbers(row[2])[-1], numbers(row[5])[-1]
                self.assertTrue(0.37 < strength / hardness < 0.58, row)
            self.assertLess(float(row[3]), max(numbers(row[2])), row)

    def test_shear_modulus_follows_poisson(self):
        """G = E / 2 (1 + nu) in isotropic metals."""
        for row in entries(Table("Mech_Prop_Met_US.dat")):
            e, g, nu = map(float, row[6:9])
            self.assertTrue(0.85 < g * 2 * (1 + nu) / e < 1.2, row)
