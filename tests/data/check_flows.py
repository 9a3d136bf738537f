"""Checks tables of flows, refrigerants and ropes against charts of makers and codes."""

import unittest

from table_reader import Table, inches


class PipeFlow(unittest.TestCase):
    def cell(self, name, flow, size):
        table = Table(name)
        return float(table.by_key()[flow][table.rows[0].index(size)])

    def test_against_handbook_tables(self):
        water = {("40", "NPS 2"): 1.29, ("100", "NPS 3"): 1.05, ("100", "NPS 4"): 0.27,
                 ("10", "NPS 1"): 2.99, ("500", "NPS 6"): 0.72}  # fmt: skip
        for (flow, size), psi in water.items():
            self.assertLess(abs(self.cell("flow-h2o.DAT", flow, size) / psi - 1), 0.05, (flow, size))
        air = {("100", "NPS 1"): 2.21, ("200", "NPS 2"): 0.264, ("500", "NPS 3"): 0.203}
        for (flow, size), psi in air.items():
            self.assertLess(abs(self.cell("flow_air_US.dat", flow, size) / psi - 1), 0.05, (flow, size))

    def test_gas_against_the_code(self):
        code = {("10", "NPS 1/2"): 172, ("10", "NPS 1"): 678, ("100", "NPS 1"): 195,
                ("50", "NPS 2"): 1680, ("100", "NPS 4"): 6670}  # fmt: skip
        for (length, size), flow in code.items():
            self.assertLess(abs(self.cell("flow-gas.DAT", length, size) / flow - 1), 0.011)

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
    """Gauge pressures of makers' charts, psi at degrees F."""

    CHARTS = {
        "R-12": ("R-12_Type", {0: 9.2, 40: 37.0, 70: 70.2, 100: 117.2}),
        "R-134a": ("Auto_AC_Type", {0: 6.5, 40: 35.0, 70: 71.1, 100: 124.2, 150: 263.0}),
        "R-1234yf": ("Auto_AC_Type", {70: 74.2, 100: 124.0}),
        "R-22": ("R-22_Type", {-40: 0.5, 0: 24.0, 40: 68.5, 70: 121.4, 100: 195.9}),
        "R-410A": ("R-22_Type", {0: 48.3, 40: 118.5, 70: 200.6, 100: 317.0}),
        "R-502": ("R-502_Type", {0: 31.1, 40: 80.5, 70: 137.6, 100: 216.2}),
        "R-404A": ("R-502_Type", {0: 33.2, 70: 148.0, 100: 236.0}),
        "R-507A": ("R-502_Type", {0: 34.6, 70: 151.0, 100: 239.0}),
        "R-11": ("Centrifugal_AC", {40: -7.6, 100: 8.8}),
        "R-123": ("Centrifugal_AC", {40: -8.9, 100: 6.1}),
        "R-114": ("Centrifugal_AC", {70: 12.8, 100: 31.0}),
        "R-13": ("Ultra_Low_Temp", {-40: 73.3, 0: 160.0}),
        "R-23": ("Ultra_Low_Temp", {-40: 88.5}),
    }

    def test_against_charts(self):
        for name, (group, chart) in self.CHARTS.items():
            table = Table(f"Refrigerants_{group}_US.dat")
            gauge = table.rows[0].index(name) + 1
            for fahrenheit, psig in chart.items():
                shown = float(table.by_key()[str(fahrenheit)][gauge])
                self.assertLess(abs((shown + 14.7) / (psig + 14.7) - 1), 0.02, (name, fahrenheit, shown))

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

    def test_braids_keep_to_the_cordage_standards(self):
        """CI 1304 in pounds, and the fall of strength per section as ropes grow thicker."""
        rows = {row[0]: row for row in Table("Fiber_Ropes_Braided_US.dat").body}
        printed = {"3": 19800, "5": 51500, "6": 72000, "7": 96500, "8": 123000, "12": 270000}
        for size, strength in printed.items():
            self.assertLess(abs(float(rows[size][2]) / strength - 1), 0.004, size)
        for size, row in rows.items():
            square = inches(size) ** 2
            self.assertTrue(1850 < float(row[2]) / square < 2350, row)
            if row[3]:
                self.assertTrue(3100 < float(row[3]) / square < 3750, row)
            self.assertTrue(3.0 < inches(size) * 25.4 / float(row[1]) < 3.25, row)


class Solar(unittest.TestCase):
    def test_against_the_printed_insolation_values(self):
        """ASHRAE's tables for 40 degrees north: facing the sun, horizontal, vertical to the south."""
        rows = {(row[0], row[1]): row for row in Table("solar.DAT").body}
        printed = {"Jan": (2182, 948, 1726), "Mar": (2916, 1852, 1484), "Jun": (3180, 2648, 610),
                   "Sep": (2708, 1788, 1416), "Dec": (1978, 782, 1646)}  # fmt: skip
        for month, values in printed.items():
            for text, value in zip(rows["40° N", month][4:7], values, strict=True):
                self.assertLess(abs(float(text) / value - 1), 0.011, (month, text, value))
