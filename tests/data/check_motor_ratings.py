"""Checks motor currents, starters and frame assignments against what physics and other tables say."""

import math
import unittest

from table_reader import Table, inches


class Currents(unittest.TestCase):
    def test_power_over_apparent_power_is_plausible(self):
        """Efficiency times power factor: rises with the size, from a small motor's 0.4 to 0.9."""
        for name, watts, phases in (
            ("3PH-FLA.DAT", 745.7, math.sqrt(3)),
            ("3PH-FLC.DAT", 1000, math.sqrt(3)),
            ("fla-1ph.DAT", 745.7, 1),
        ):
            table = Table(name)
            for column, head in enumerate(table.rows[0][1:], 1):
                volts = float(head.split()[0])
                ratios = [
                    inches(row[0]) * watts / (phases * volts * float(row[column]))
                    for row in table.body
                    if row[column]
                ]
                self.assertTrue(0.24 < ratios[0] and ratios[-1] < 0.96, (name, head))
                for before, after in zip(ratios, ratios[1:]):
                    self.assertGreater(after, before * 0.9, (name, head, ratios))

    def test_currents_fall_as_voltages_rise(self):
        for name in ("3PH-FLA.DAT", "3PH-FLC.DAT", "fla-1ph.DAT"):
            table = Table(name)
            volts = [float(head.split()[0]) for head in table.rows[0][1:]]
            for row in table.body:
                # 200 and 208 V motors are rated for 230 V less what the line loses.
                powers = [v * float(a) for v, a in zip(volts, row[1:]) if a]
                self.assertLess(max(powers) / min(powers), 1.38, (name, row))


class Nema(unittest.TestCase):
    def test_assigned_frames_have_dimensions_and_grow(self):
        frames = list(Table("ACMOTORS.dat").by_key())
        for column in range(1, 9):
            assigned = [row[column] for row in Table("NEMAFRAM.DAT").body if row[column]]
            places = [frames.index(frame.removesuffix("S")) for frame in assigned]
            self.assertEqual(places, sorted(places), column)
            self.assertTrue(set(assigned) <= set(frames))

    def test_starters_carry_the_currents_of_their_motors(self):
        motors = Table("3PH-FLA.DAT").by_key()
        for row in Table("starters.DAT").body:
            for power, column in ((row[6], 4), (row[7], 5)):  # at 230 and 460 V
                if power in motors and motors[power][column]:
                    amperes = float(motors[power][column])
                    self.assertLessEqual(amperes, float(row[1]) * 1.001, row)
            self.assertGreater(float(row[2]), float(row[1]))
