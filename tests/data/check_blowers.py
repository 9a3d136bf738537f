"""Checks the sample blower wheels: curves that a wheel can have, and efficiencies that it can reach."""

import math
import unittest

from table_reader import fields_of, lines_of

AIR_HP = 6356  # cfm times inches of water in a horsepower


def read_records(name, width):
    fields = [text for text, _ in fields_of("\r\n".join(lines_of(name)[1:]))]
    return [fields[n : n + width] for n in range(0, len(fields), width)]


class Blowers(unittest.TestCase):
    def setUp(self):
        self.wheels = read_records("BLOWERS.dat", 8)
        self.curves = {}
        for number, *point in read_records("BLOWERS2.dat", 4):
            self.curves.setdefault(int(number), []).append(tuple(map(float, point)))

    def test_they_are_called_samples(self):
        for name in ("BLOWERS.dat", "BLOWERS2.dat"):
            self.assertIn("sample", lines_of(name)[0])

    def test_each_wheel_has_a_curve(self):
        self.assertEqual(list(self.curves), list(range(1, len(self.wheels) + 1)))
        for number, (kind, *texts) in enumerate(self.wheels, 1):
            diameter, width, rpm, largest, *rated = map(float, texts)
            points = self.curves[number]
            with self.subTest((kind, diameter)):
                self.assertTrue(0.2 < width / diameter < 0.6)
                self.assertTrue(1.2 * rpm < largest)
                self.assertLess(math.pi * diameter / 12 * largest, 16001)  # ft/min, of steel wheels
                self.assertIn(tuple(rated), points)
                flows = [flow for flow, _, _ in points]
                self.assertEqual(flows, sorted(set(flows)))
                # One system line meets the curve in one point.
                slopes = [pressure / flow**2 for flow, pressure, _ in points]
                self.assertEqual(slopes, sorted(set(slopes), reverse=True))

    def test_efficiencies(self):
        best = {}
        for number, (kind, diameter, *_) in enumerate(self.wheels, 1):
            efficiencies = [
                flow * pressure / AIR_HP / power for flow, pressure, power in self.curves[number]
            ]
            peak = max(efficiencies)
            with self.subTest((kind, diameter)):
                self.assertTrue(all(0 < efficiency < 0.85 for efficiency in efficiencies))
                # It rises to one peak and falls from there.
                at = efficiencies.index(peak)
                self.assertTrue(0 < at < len(efficiencies) - 1)
                self.assertEqual(efficiencies[: at + 1], sorted(efficiencies[: at + 1]))
                self.assertEqual(efficiencies[at:], sorted(efficiencies[at:], reverse=True))
            best.setdefault(kind, []).append(peak)
        for peaks in best.values():  # larger wheels are no worse, but for the rounding
            self.assertTrue(all(b > a - 0.001 for a, b in zip(peaks, peaks[1:])))
        self.assertTrue(min(best["Backward Inclined"]) > max(best["Radial"]))
        self.assertTrue(max(best["Forward Curved"]) < 0.7)

    def test_one_family_obeys_the_fan_laws(self):
        """At one tip speed flow goes with the square of the diameter, pressure not at all."""
        kinds = {}
        for number, (kind, diameter, _, rpm, *_) in enumerate(self.wheels, 1):
            kinds.setdefault(kind, []).append((float(diameter), float(rpm), self.curves[number]))
        for kind, rows in kinds.items():
            d0, n0, points0 = rows[0]
            for d, n, points in rows[1:]:
                for (q0, p0, _), (q, p, _) in zip(points0, points, strict=True):
                    with self.subTest((kind, d)):
                        self.assertLess(abs(q / q0 / ((d / d0) ** 3 * n / n0) - 1), 0.002)
                        self.assertLess(abs(p / p0 / ((d / d0) ** 2 * (n / n0) ** 2) - 1), 0.005)


if __name__ == "__main__":
    unittest.main()
