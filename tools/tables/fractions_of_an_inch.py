"""Frac_Dec.dat: the 64ths of an inch. All values are exact."""

from fractions import Fraction

from table_file import CENTER, Column, fixed, write_table


def write(folder):
    rows = []
    for n in range(1, 65):
        inches = Fraction(n, 64)
        rows.append([inches, n, fixed(inches, 6), fixed(inches * Fraction("25.4"), 6)])
    write_table(
        folder / "Frac_Dec.dat",
        "computed, 1 inch = 25.4 mm exactly",
        "Fractions - Decimals - Millimeters",
        [
            Column(("Fraction", "in"), CENTER),
            Column(("64ths", "of an inch"), CENTER),
            Column(("Decimal", "in")),
            Column(("Metric", "mm")),
        ],
        rows,
    )
