"""Checks pipe.dat: its geometry, and weights as the standards and makers print them."""

import math
import unittest

from table_reader import Table, fields_of, inches, lines_of

STANDARDS = ("steel", "stainless", "copper", "tube")


def read_pipes():
    """Outside diameter and wall in inches, and in mm, by standard, size and name of the wall."""
    fields = [text for text, _ in fields_of("\r\n".join(lines_of("pipe.dat")[1:]))]
    pipes = {}
    for n in range(0, len(fields), 8):
        standard, size, dn, names = fields[n : n + 4]
        measures = [float(text) for text in fields[n + 4 : n + 8]]
        for name in names.split(", "):
            if (standard, size, name) in pipes:
                raise ValueError(f"twice: {standard} {size} {name}")
            pipes[standard, size, name] = (dn, *measures)
    return pipes


class Pipes(unittest.TestCase):
    def setUp(self):
        self.pipes = read_pipes()

    def test_geometry(self):
        self.assertEqual({key[0] for key in self.pipes}, set(STANDARDS))
        for key, (_, od, wall, od_mm, wall_mm) in self.pipes.items():
            with self.subTest(key):
                self.assertTrue(0 < 2 * wall < od)
                self.assertTrue(0 < 2 * wall_mm < od_mm)
                # Metric diameters of pipe are round ones: 457 is 18 in.
                self.assertLess(abs(od_mm - od * 25.4), max(0.0501, 0.001 * od_mm))
                self.assertLessEqual(abs(wall_mm - wall * 25.4), 0.0051)

    def test_outside_diameters(self):
        nps = Table("NPS-DN.dat").by_key()
        for (standard, size, name), (dn, od, _, od_mm, _) in self.pipes.items():
            with self.subTest((standard, size, name)):
                if standard in ("steel", "stainless"):
                    self.assertEqual([dn, od, od_mm], [nps[size][1], *map(float, nps[size][2:4])])
                elif standard == "copper":
                    self.assertEqual(od, inches(size) + 1 / 8)
                else:
                    self.assertEqual(od, inches(size))

    def test_walls_grow(self):
        ladders = {
            "steel": ["5", "10", "20", "30", "40", "60", "80", "100", "120", "140", "160"],
            "stainless": ["5S", "10S", "40S", "80S"],
            "copper": ["DWV", "M", "L", "K"],
            "tube": [str(gauge) for gauge in range(27, 6, -1)],
        }
        by_size = {}
        for (standard, size, name), (_, _, wall, *_) in self.pipes.items():
            by_size.setdefault((standard, size), {})[name] = wall
        for (standard, size), walls in by_size.items():
            ladder = [walls[name] for name in ladders[standard] if name in walls]
            with self.subTest((standard, size)):
                self.assertTrue(ladder or standard == "steel")
                self.assertEqual(ladder, sorted(set(ladder)))
                if standard == "steel":
                    self.assertLess(walls["STD"] if "STD" in walls else 0, walls["XS"])
        # Schedules 40 and 80 are STD and XS up to NPS 10 and 8.
        for size, last in (("40", "10"), ("80", "8")):
            weight = {"40": "STD", "80": "XS"}[size]
            for (standard, nps), walls in by_size.items():
                if standard == "steel" and size in walls and inches(nps) <= int(last):
                    self.assertEqual(walls[size], walls[weight], nps)

    def test_published_weights(self):
        # lb/ft: ASME B36.10M and B36.19M, plain ends; tables of copper and exchanger tube makers.
        published = {
            ("steel", "1/8", "40"): 0.24,
            ("steel", "1/2", "XXS"): 1.72,
            ("steel", "1", "80"): 2.17,
            ("steel", "2", "40"): 3.66,
            ("steel", "3", "160"): 14.34,
            ("steel", "4", "40"): 10.80,
            ("steel", "6", "120"): 36.43,
            ("steel", "6", "40"): 18.99,
            ("steel", "8", "40"): 28.58,
            ("steel", "10", "40"): 40.52,
            ("steel", "12", "STD"): 49.61,
            ("steel", "12", "XXS"): 125.61,
            ("steel", "14", "STD"): 54.62,
            ("steel", "16", "STD"): 62.64,
            ("steel", "20", "STD"): 78.67,
            ("steel", "24", "160"): 542.64,
            ("steel", "36", "XS"): 189.75,
            ("stainless", "2", "10S"): 2.64,
            ("stainless", "6", "5S"): 7.59,
            ("copper", "1/4", "L"): 0.126,
            ("copper", "1/2", "L"): 0.285,
            ("copper", "1", "K"): 0.839,
            ("copper", "2", "L"): 1.75,
            ("copper", "3", "K"): 4.00,
            ("copper", "4", "DWV"): 2.87,
            ("copper", "6", "DWV"): 6.10,
            ("copper", "8", "K"): 25.9,
            ("copper", "10", "L"): 30.1,
            ("copper", "12", "L"): 40.4,
        }
        for key, told in published.items():
            _, od, wall, *_ = self.pipes[key]
            factor = 12 * math.pi * 0.323 if key[0] == "copper" else 10.69
            with self.subTest(key):
                # Half of the last digit that is printed may be all of 0.5 %.
                slack = max(0.005 * told, 0.0051 if told < 1 and key[0] == "steel" else 0)
                self.assertLess(abs(factor * (od - wall) * wall - told), slack)

    def test_published_flow_areas_of_tube(self):
        # in2, a process design handbook's table of tubing
        for size, gauge, told in (("1/4", 22, 0.0296), ("5/8", 12, 0.1301), ("3/4", 14, 0.2679),
                                  ("1", 8, 0.3526), ("1-1/4", 7, 0.6221), ("2", 14, 2.6417)):
            _, od, wall, *_ = self.pipes["tube", size, str(gauge)]
            self.assertAlmostEqual(math.pi / 4 * (od - 2 * wall) ** 2, told, delta=0.00021)


if __name__ == "__main__":
    unittest.main()
