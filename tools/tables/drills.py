"""drillsiz.dat: twist drills by fraction, number, letter and millimetre, in the order of size."""

from fractions import Fraction
from pathlib import Path

from table_file import CENTER, LEFT, Column, fixed, rows_of, write_table

MM = Fraction("25.4")


def sizes():
    """Name, kind and diameter in inches."""
    for n in range(1, 65):
        yield f"{Fraction(n, 64)}", "fraction", Fraction(n, 64)
    for kind, first, *values in rows_of(Path(__file__).with_name("drill_sizes.txt")):
        for n, value in enumerate(values[0].split()):
            name = chr(ord(first) + n) if kind == "letter" else str(int(first) - n)
            yield name, kind, Fraction(value)
    tenths = [*range(4, 100), *range(100, 255, 5)]
    for mm in (Fraction(n, 10) for n in tenths):
        yield f"{float(mm):.1f} mm", "metric", mm / MM


def write(folder):
    rows = [
        [name, kind, fixed(inches, 4), fixed(inches * MM, 3)]
        for name, kind, inches in sorted(sizes(), key=lambda size: (size[2], size[1]))
    ]
    write_table(
        folder / "drillsiz.dat",
        "twist drills: ASME B94.11M (fractions to 1 inch, numbers, letters, millimetres)",
        "Drill Sizes",
        [
            Column(("Drill", ""), CENTER),
            Column(("Kind", ""), LEFT),
            Column(("Diameter", "in")),
            Column(("Diameter", "mm")),
        ],
        rows,
    )
