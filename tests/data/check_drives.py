"""Checks keys and chains against the proportions of their standards."""

import unittest

from table_reader import Table, inches


class Keys(unittest.TestCase):
    def test_inch_seats_against_charts(self):
        rows = Table("keys_inch.dat").by_key()
        charts = {"1": (0.859, 1.114), "1-1/2": (1.289, 1.669), "2": (1.718, 2.223),
                  "3": (2.577, 3.332), "4-1/2": (3.944, 4.949)}  # fmt: skip
        for shaft, seats in charts.items():
            for text, value in zip(rows[shaft][4:6], seats, strict=True):
                self.assertLess(abs(float(text) - value), 0.0011, (shaft, text))
        for shaft, row in rows.items():
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
