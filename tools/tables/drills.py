"""drillsiz.dat: twist drills by fraction, number, letter and millimetre, in the order of size."""

from fractions import Fraction
from pathlib import Path

from table_file import CENTER, LEFT, Column, fixed, rows_of, write_table

MM = Fraction("25.4")


def mixed(inches):
    """7/4 as 1-3/4."""
    whole, rest = divmod(inches, 1)
    return "-".join(str(part) for part in (whole, rest) if part)


def sizes():
    """Name, kind and diameter in inches."""
    # By 64ths to 1-3/4, by 32nds to 2-1/4, by 16ths to 3-1/2.
    for n in (*range(1, 113), *range(114, 145, 2), *range(148, 225, 4)):
        yield mixed(Fraction(n, 64)), "fraction", Fraction(n, 64)
    for kind, first, *values in rows_of(Path(__file__).with_name("drill_sizes.txt")):
        for n, value in enumerate(values[0].split()):
            name = chr(ord(first) + n) if kind == "letter" else str(int(first) - n)
            yield name, kind, Fraction(value)
    # By 0.1 to 14, by 0.25 to 32, by 0.5 to 51, by 1 to 76 (ISO 235).
    hundredths = [*range(40, 1401, 10), *range(1425, 3201, 25), *range(3250, 5101, 50)]
    for n in (*hundredths, *range(5200, 7601, 100)):
        yield f"{n / 100:.{2 if n % 10 else 1}f} mm", "metric", Fraction(n, 100) / MM


def write(folder):
    rows = [
        [name, kind, fixed(inches, 4), fixed(inches * MM, 3)]
        for name, kind, inches in sorted(sizes(), key=lambda size: (size[2], size[1]))
    ]
    write_table(
        folder / "drillsiz.dat",
        "twist drills: ASME B94.11M (fractions, numbers, letters), ISO 235 (millimetres)",
        "Drill Sizes",
        [
            Column(("Drill", ""), CENTER),
            Column(("Kind", ""), LEFT),
            Column(("Diameter", "in")),
            Column(("Diameter", "mm")),
        ],
        rows,
    )
