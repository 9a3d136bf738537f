"""Checks screw_threads.dat: tolerances against their formulas, holes and hex sizes against each other."""

import unittest

from table_reader import fields_of, inches, lines_of

SERIES_40 = [100, 106, 112, 118, 125, 132, 140, 150, 160, 170, 180, 190, 200, 212, 224, 236, 250, 265, 280, 300,
             315, 335, 355, 375, 400, 425, 450, 475, 500, 530, 560, 600, 630, 670, 710, 750, 800, 850, 900, 950]
RANGES = [1.4, 2.8, 5.6, 11.2, 22.4, 45, 90]  # of diameters, mm
MEASURES = ("close", "normal", "loose", "head", "height", "nut", "thickness", "key")


def read_threads():
    """Names; diameter and pitch or threads per inch; measures as name and number; tolerances."""
    fields = [text for text, _ in fields_of("\r\n".join(lines_of("screw_threads.dat")[1:]))]
    at, threads = 0, []
    while at < len(fields):
        names, numbers = fields[at : at + 3], [float(text) for text in fields[at + 3 : at + 5]]
        pairs = fields[at + 5 : at + 21]
        measures = {
            what: (pairs[2 * n], float(pairs[2 * n + 1])) for n, what in enumerate(MEASURES)
        }
        at += 21
        count = 5 if names[0] == "metric" else 0
        threads.append((names, numbers, measures, [float(x) for x in fields[at : at + count]]))
        at += count
    return threads


def steps_apart(tolerance, value):
    """How many steps of the series a tolerance is off a computed value."""
    ladder = [step * scale for scale in (0.1, 1, 10) for step in SERIES_40]
    nearest = min(range(len(ladder)), key=lambda n: abs(ladder[n] - value))
    return abs(ladder.index(min(ladder, key=lambda step: abs(step - tolerance))) - nearest)


class Threads(unittest.TestCase):
    def setUp(self):
        self.threads = read_threads()

    def test_sizes(self):
        seen = set()
        for (standard, size, series), (major, number), _, _ in self.threads:
            with self.subTest((size, series, number)):
                self.assertNotIn((major, number), seen)
                seen.add((major, number))
                if standard == "metric":
                    self.assertEqual(float(size[1:]), major)
                elif size.isdigit() and major < 0.25:
                    self.assertAlmostEqual(major, 0.06 + 0.013 * int(size), 9)
                else:
                    self.assertEqual(inches(size), major)
        # A finer series has finer threads.
        for one in {(names[0], major) for names, (major, _), *_ in self.threads}:
            pitches = [
                number if names[0] == "metric" else -number
                for names, (major, number), *_ in self.threads
                if (names[0], major) == one
            ]
            self.assertEqual(pitches, sorted(pitches, reverse=True), one)

    def test_holes_and_hexes(self):
        for (standard, size, _), (major, _), measures, _ in self.threads:
            with self.subTest((standard, size)):
                for name, value in measures.values():
                    if "/" in name or (name[:1].isdigit() and standard == "unified"):
                        self.assertAlmostEqual(inches(name), value, delta=0.00006)
                    elif name and standard == "metric":
                        self.assertEqual(float(name), value)
                value = {what: number for what, (name, number) in measures.items() if name}
                holes = [value[what] for what in ("close", "normal", "loose") if what in value]
                self.assertEqual(holes, sorted(set(holes)))
                if holes:
                    self.assertTrue(1.02 < holes[0] / major < 1.17)
                    self.assertTrue(holes[2] / major < 1.58)
                if "head" in value:
                    self.assertTrue(1.42 < value["head"] / major < 2.01)
                if "height" in value:
                    self.assertTrue(0.59 < value["height"] / major < 0.71)
                if "nut" in value:
                    self.assertTrue(1.42 < value["nut"] / major < 2.62)
                if "thickness" in value:
                    self.assertTrue(0.57 < value["thickness"] / major < 0.95)
                if "key" in value:
                    self.assertTrue(0.66 < value["key"] / major < 0.94)

    def test_metric_tolerances_against_the_formulas(self):
        """ISO 965-1; its tables are smoothed by a step of the series here and there."""
        for (standard, size, _), (major, pitch), _, tolerances in self.threads:
            if standard != "metric":
                continue
            allowance, of_major, external, minor, internal = tolerances
            most = next(most for most in RANGES if major <= most)
            mean = (most * RANGES[RANGES.index(most) - 1]) ** 0.5
            pitch_tolerance = 90 * pitch**0.4 * mean**0.1
            by_pitch = 230 * pitch**0.7 if pitch >= 1 else 433 * pitch - 190 * pitch**1.22
            with self.subTest((size, pitch)):
                self.assertLess(abs(allowance - (15 + 11 * pitch)), 1.6)
                self.assertLessEqual(
                    steps_apart(of_major, 180 * pitch ** (2 / 3) - 3.15 / pitch**0.5), 1
                )
                self.assertLessEqual(steps_apart(external, pitch_tolerance), 1)
                self.assertLessEqual(steps_apart(minor, by_pitch), 1)
                self.assertLessEqual(steps_apart(internal, 1.32 * pitch_tolerance), 1)


if __name__ == "__main__":
    unittest.main()
