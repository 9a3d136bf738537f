"""Checks tables of flows, refrigerants and ropes against physics and rules of makers."""

import unittest

from table_reader import Table, inches


class PipeFlow(unittest.TestCase):
    def test_larger_pipes_lose_less(self):
        for name in ("flow_air_US.dat", "flow_air_SI.dat", "flow-h2o.DAT", "flo-h2om.DAT"):
            body = Table(name).body
            for row in body:
                drops = [float(cell) for cell in row[1:] if cell]
                self.assertTrue(drops, row)
                self.assertEqual(drops, sorted(drops, reverse=True), row)
            for column in range(1, 15):
                drops = [float(row[column]) for row in body if row[column]]
                self.assertEqual(drops, sorted(drops), column)


class Refrigerants(unittest.TestCase):
    def test_pressures_rise_and_dew_is_below_bubble(self):
        for group in ("Auto_AC_Type", "Centrifugal_AC", "R-12_Type", "R-22_Type", "R-502_Type",
                      "Ultra_Low_Temp"):  # fmt: skip
            for system in ("US", "SI"):
                table = Table(f"Refrigerants_{group}_{system}.dat")
                for column, word in enumerate(table.rows[1]):
                    values = [float(row[column]) for row in table.body if row[column]]
                    self.assertEqual(values, sorted(values))
                    if word == "bubble":
                        dew = [float(row[column + 2]) for row in table.body if row[column + 2]]
                        self.assertTrue(all(d <= b for d, b in zip(dew, values)), column)


class WireRopes(unittest.TestCase):
    def test_strength_and_weight_go_by_the_square(self):
        strength = {"6x19_FC_IPS": 41.8, "6x37_FC_IPS": 41.8, "6x37_IWRC_XIPS": 51.7,
                    "6x37_IWRC_XXIPS": 56.9, "8x19_Spin-Res_FC_IPS": 36.0}  # fmt: skip
        for kind, tons in strength.items():
            rows = Table(f"WR_{kind}.dat").body
            unit = next(float(row[2]) for row in rows if row[0] == "1")
            for row in rows:
                square = inches(row[0]) ** 2
                self.assertTrue(0.94 < float(row[4]) / square / tons < 1.06, (kind, row))
                self.assertLess(abs(float(row[2]) / square / unit - 1), 0.06, (kind, row))
                self.assertLess(abs(float(row[5]) - float(row[4]) * 8.8964), 0.6, row)


class FiberRopes(unittest.TestCase):
    def test_strength_follows_the_section(self):
        """Pounds over the square of the circumference, which sailors know as 900 for manila."""
        for row in Table("Fiber_Ropes_Twisted_US.dat").body:
            square = inches(row[1]) ** 2
            for column, least, most in ((3, 540, 1100), (5, 2200, 2900), (7, 1250, 2050)):
                self.assertTrue(least < float(row[column]) / square < most, (row, column))
            self.assertTrue(2.85 < inches(row[1]) / inches(row[0]) < 3.35, row)

    def test_braids_grow_weaker_per_section(self):
        for size, row in Table("Fiber_Ropes_Braided_US.dat").by_key().items():
            square = inches(size) ** 2
            self.assertTrue(1850 < float(row[2]) / square < 2350, row)
            if row[3]:
                self.assertTrue(3100 < float(row[3]) / square < 3750, row)
            self.assertTrue(3.0 < inches(size) * 25.4 / float(row[1]) < 3.25, row)
