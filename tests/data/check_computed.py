"""Checks tables that follow a formula against values published elsewhere."""

import sys
import unittest

from table_reader import ROOT, Table

sys.path.insert(0, str(ROOT / "tools" / "tables"))
import atmosphere  # noqa: E402


class Atmosphere(unittest.TestCase):
    def test_air_against_measurements(self):
        """NBS Circular 564 (Hilsenrath et al., 1955), tables of air at one atmosphere: K; kg/m3,
        J/kg K, Pa s, W/m K."""
        printed = {
            250: (1.413, 1005.3, 1.599e-5, 0.02227),
            300: (1.177, 1005.7, 1.846e-5, 0.02624),
            400: (0.8826, 1014.0, 2.286e-5, 0.03365),
            600: (0.5883, 1055.1, 3.018e-5, 0.04659),
            800: (0.4405, 1097.8, 3.625e-5, 0.05779),
        }
        for t, values in printed.items():
            rho, _, cp, _, mu, _, k, *_ = atmosphere.air(t)
            for value, wanted in zip((rho, cp, mu, k), values, strict=True):
                self.assertLess(abs(value / wanted - 1), 0.02, (t, value, wanted))


class Gauges(unittest.TestCase):
    def test_higher_numbers_are_thinner(self):
        for name in ("Wire_Gauges.dat", "Sheet_Gauges.dat"):
            table = Table(name)
            for column in range(1, table.shape[1]):
                sizes = [float(row[column]) for row in table.body if row[column]]
                if "Music" in table.rows[0][column]:
                    sizes.reverse()
                self.assertEqual(sizes, sorted(sizes, reverse=True), table.rows[0][column])

    def test_aluminum_wire_has_the_resistance_that_the_code_prints(self):
        """NFPA 70, chapter 9, table 8: stranded, some 2 % more than solid; ohms/1000 ft at 75 C."""
        rows = Table("alumWIRE.dat").by_key()
        for size, ohms in {"500 kcmil": 0.0424, "4/0": 0.1, "2": 0.319, "6": 0.808}.items():
            self.assertTrue(0.965 < float(rows[size][5]) / ohms < 0.995, size)


class Drills(unittest.TestCase):
    def test_order_and_millimetres(self):
        body = Table("drillsiz.dat").body
        kinds = [row[1] for row in body]
        self.assertEqual([kinds.count(k) for k in ("fraction", "number", "letter")], [148, 80, 26])
        inches = [float(row[2]) for row in body]
        self.assertEqual(inches, sorted(inches))
        for row in body:
            self.assertLess(abs(float(row[2]) * 25.4 - float(row[3])), 0.0018, row)
            if row[1] == "metric":
                self.assertEqual(float(row[0].split()[0]), float(row[3]))
        steps = [float(row[2]) for row in body if row[1] in ("number", "letter")]
        # Neighbours of one series are never far apart, as a slip would put them.
        self.assertLess(max(b - a for a, b in zip(steps, steps[1:])), 0.0145)
