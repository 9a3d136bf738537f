"""Checks what the electrical windows read themselves."""

import re
import unittest

from check_handbook import numbers
from table_reader import Table, fields_of, lines_of


class Dielectrics(unittest.TestCase):
    def test_constants_lie_in_the_ranges_of_the_table(self):
        table = Table("Dielectric.dat").by_key()
        fields = [text for text, _ in fields_of("\r\n".join(lines_of("dielect.dat")[1:]))]
        self.assertGreater(len(fields), 50)
        for name, k in zip(fields[::2], fields[1::2], strict=True):
            with self.subTest(name):
                span = numbers(table[name][1].replace(" - ", " "))
                self.assertTrue(0.999 * min(span) <= float(k) <= 1.001 * max(span), span)
                self.assertLessEqual(len(k), 6)  # the window takes the constant by its place


class HazardClasses(unittest.TestCase):
    LINES = lines_of("Hazard_Class.dat")

    def test_temperatures(self):
        found = re.findall(r"(T\d[A-D]?) +(\d+) C +(\d+) F", "\n".join(self.LINES))
        self.assertEqual(len(found), 14)
        for name, celsius, fahrenheit in found:
            self.assertEqual(int(celsius) * 1.8 + 32, int(fahrenheit), name)
        by_name = [int(celsius) for _, celsius, _ in sorted(found)]
        self.assertEqual(by_name, sorted(by_name, reverse=True))

    def test_all_are_told_in_lines_that_fit(self):
        text = "\n".join(self.LINES)
        for heading in ["Class I ", "Class II ", "Class III "] + [f"Group {x} " for x in "ABCDEFG"]:
            self.assertEqual(len(re.findall(f"^{heading} ", text, re.M)), 1, heading)
        self.assertEqual(text.count("  Division 1 "), 3)
        self.assertEqual(text.count("  Division 2 "), 3)
        self.assertLessEqual(max(map(len, self.LINES)), 102)
