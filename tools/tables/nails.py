"""Six tables of nails: sizes of ASTM F1667, and the count of a pound computed from the shank.

The counts of handbooks follow the shank's weight alone; only roofing nails, with their large heads,
weigh more by that of the head.
"""

import math
from fractions import Fraction
from pathlib import Path

from table_file import CENTER, Column, fixed, rows_of, write_table

STEEL = 0.2836  # lb/in3
ROOFING_HEAD = 0.0026  # in3
MM = Fraction("25.4")
POUNDS_PER_KG = 1 / 0.45359237

TITLES = {
    "box": ("Nails_Box.dat", "Box Nails"),
    "common": ("Nails_Common_Smooth.dat", "Common Nails - Smooth Shank"),
    "common ring": ("Nails_Common_Ring.dat", "Common Nails - Ring Barb Shank"),
    "finishing": ("Nails_Finishing.dat", "Finishing Nails"),
    "roofing": ("Nails_Roofing_Smooth.dat", "Roofing Nails - Smooth Shank"),
    "roofing ring": ("Nails_Roofing_Ring.dat", "Roofing Nails - Ring Barb Shank"),
}


def inches(text):
    return sum(Fraction(part) for part in text.split("-"))


def count_per_pound(kind, length, shank):
    volume = math.pi / 4 * float(shank) ** 2 * float(length)
    if kind.startswith("roofing"):
        volume += ROOFING_HEAD
    return 1 / (STEEL * volume)


def write(folder):
    kinds = {}
    for kind, *nail in rows_of(Path(__file__).with_name("nails.txt")):
        kinds.setdefault(kind, []).append(nail)
    for kind, (name, title) in TITLES.items():
        sized = any(size for size, *_ in kinds[kind])
        rows = []
        for size, length, shank, head in kinds[kind]:
            count = count_per_pound(kind, inches(length), Fraction(shank))
            rows.append(
                ([size] if sized else [])
                + [length, fixed(inches(length) * MM, 0), fixed(Fraction(shank), 3)]
                + [fixed(Fraction(shank) * MM, 2)]
                + ([fixed(inches(head), 3), fixed(inches(head) * MM, 1)] if head else [])
                + [f"{count:.0f}", f"{count * POUNDS_PER_KG:.0f}"]
            )
        columns = [Column(("Size", "pennyweight"), CENTER)] if sized else []
        columns += [
            Column(("Length", "in"), CENTER),
            Column(("Length", "mm")),
            Column(("Shank", "in")),
            Column(("Shank", "mm")),
        ]
        if kinds[kind][0][3]:
            columns += [Column(("Head", "in")), Column(("Head", "mm"))]
        columns += [Column(("Count, about", "per lb")), Column(("Count, about", "per kg"))]
        write_table(
            folder / name,
            "ASTM F1667 sizes of bright steel nails; counts computed from the weight of steel",
            title,
            columns,
            rows,
        )
