"""Checks keys and chains against the proportions of their standards."""

import unittest

from table_reader import Table, inches


class Keys(unittest.TestCase):
    def test_inch_keys_are_a_quarter_of_the_shaft(self):
        for shaft, row in Table("keys_inch.dat").by_key().items():
            width = inches(row[2].split(" x ")[0])
            self.assertTrue(0.16 < width / inches(shaft) < 0.34, row)
            self.assertEqual(inches(shaft), float(row[1]))

    def test_metric_seats_hold_the_key_with_some_play(self):
        body = Table("Met_Keys.dat").body
        for row, after in zip(body, [*body[1:], None]):
            width, height = map(int, row[1].split(" x "))
            play = float(row[2]) + float(row[3]) - height
            self.assertTrue(0.1 < play < 0.55, row)
            self.assertLessEqual(height, width)
            if after:
                self.assertEqual(row[0].split(" - ")[1], after[0].split(" - ")[0])


class Chains(unittest.TestCase):
    def test_proportions_of_the_pitch(self):
        for row in Table("Chain-e.dat").body:
            pitch, roller, width, pin, plate, height = (float(text) for text in row[2:8])
            load = float(row[9])
            number = int(row[0])
            self.assertEqual(number // 10, 2 if number == 25 else round(pitch * 8), row[0])
            if number in (25, 35, 41):
                continue  # without rollers, or light
            self.assertTrue(0.56 < roller / pitch < 0.645, row[0])
            self.assertTrue(0.55 < width / pitch < 0.68, row[0])
            self.assertTrue(0.27 < pin / pitch < 0.325, row[0])
            self.assertLess(abs(plate / pitch - 0.125), 0.0051, row[0])
            self.assertLess(abs(height / pitch - 0.95), 0.001, row[0])
            self.assertLess(abs(load / (12500 * pitch**2) - 1), 0.001, row[0])


class ORings(unittest.TestCase):
    def test_outside_diameters_are_near_sixteenths(self):
        """The sizes were made to fit grooves of nominal fractions."""
        body = Table("O-Rings.dat").body
        self.assertEqual(len(body), 369)  # sizes of the standard
        for row in body:
            number = int(row[0].lstrip("-"))
            diameter, slack, section = map(float, row[1:4])
            if 4 <= number < 900:
                outside = diameter + 2 * section
                part = outside * 16 % 1
                self.assertLess(min(part, 1 - part), 0.62 if diameter > 15 else 0.45, row)
            self.assertTrue(slack < 0.2 * diameter and slack >= 0.0035 * diameter, row)
            for inch, mm in zip(row[1:5], row[5:9], strict=True):
                self.assertLess(abs(float(inch) * 25.4 - float(mm)), 0.0051, row)
