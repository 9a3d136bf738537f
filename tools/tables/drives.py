"""keys_inch.dat, Met_Keys.dat: parallel keys; Chain-e.dat, Chain-m.dat: roller chains."""

import math
from fractions import Fraction
from pathlib import Path

from table_file import CENTER, Column, fixed, rows_of, write_table

HERE = Path(__file__).parent
MM = Fraction("25.4")
NEWTON = Fraction("4.4482216152605")  # in a lbf
KG_PER_M = Fraction("0.45359237") / Fraction("0.3048")  # in a lb/ft

# ASME B17.1, table 1: shafts up to this diameter, width, height of the rectangular key or "-".
INCH_KEYS = """
7/16 3/32 - | 9/16 1/8 3/32 | 7/8 3/16 1/8 | 1-1/4 1/4 3/16 | 1-3/8 5/16 1/4 | 1-3/4 3/8 1/4
2-1/4 1/2 3/8 | 2-3/4 5/8 7/16 | 3-1/4 3/4 1/2 | 3-3/4 7/8 5/8 | 4-1/2 1 3/4 | 5-1/2 1-1/4 7/8
6-1/2 1-1/2 1
"""
HUB_CLEARANCE = 0.005  # over a parallel key, in


def inches(text):
    """1-3/4 as a fraction."""
    return sum(Fraction(part) for part in text.split("-"))


def mixed(size):
    """A fraction as 1-3/4."""
    whole, rest = divmod(size, 1)
    return "-".join([str(whole)] * bool(whole) + [str(rest)] * bool(rest))


def shafts():
    """Stock shafting from 3/8 to 6-1/2 in, up to 3-1/2 by sixteenths and then by eighths."""
    yield from (Fraction(n, 16) for n in range(6, 57))
    yield from (Fraction(n, 8) for n in range(29, 53))


def inch_keys():
    """Shaft, and width and heights of its square and rectangular key."""
    sizes = [
        [None if word == "-" else inches(word) for word in size.split()]
        for line in INCH_KEYS.strip().splitlines()
        for size in line.split("|")
    ]
    for shaft in shafts():
        _, width, height = next(size for size in sizes if shaft <= size[0])
        yield shaft, width, height


def across(shaft, width, height):
    """S and T of ASME B17.1: from the far side of the bore to the bottom of the shaft's keyseat, and
    to the top of the hub's."""
    chord = math.sqrt(shaft**2 - width**2)
    s = (shaft - height + chord) / 2
    return f"{s:.3f}", f"{s + height + HUB_CLEARANCE:.3f}"


def key_cells(shaft, width, height):
    seats = across(float(shaft), float(width), float(height))
    return [f"{mixed(width)} x {mixed(height)}", fixed(height / 2, 4), *seats]


def write_keys(folder):
    rows = []
    for shaft, width, height in inch_keys():
        rows.append(
            [mixed(shaft), fixed(shaft, 4)]
            + key_cells(shaft, width, width)
            + (key_cells(shaft, width, height) if height else [""] * 4)
        )
    write_table(
        folder / "keys_inch.dat",
        "ASME B17.1 parallel keys; S and T computed from its formulas, hub clearance 0.005 in",
        "Keys and Keyseats - U.S. Units",
        [
            Column(("Shaft", "in"), CENTER),
            Column(("Shaft", "decimal")),
            Column(("Square key", "in"), CENTER),
            Column(("Depth in shaft", "in")),
            Column(("S, shaft", "in")),
            Column(("T, hub", "in")),
            Column(("Rectangular key", "in"), CENTER),
            Column(("Depth in shaft", "in")),
            Column(("S, shaft", "in")),
            Column(("T, hub", "in")),
        ],
        rows,
    )
    rows = [
        [f"{over} - {to}", f"{width} x {height}", shaft, hub, f"+{play} / 0", lengths]
        for over, to, width, height, shaft, hub, lengths, play in rows_of(HERE / "metric_keys.txt")
    ]
    write_table(
        folder / "Met_Keys.dat",
        "ISO/R 773 and DIN 6885-1, parallel keys of the usual height",
        "Keys and Keyseats - Metric",
        [
            Column(("Shaft over - to", "mm"), CENTER),
            Column(("Key, width x height", "mm"), CENTER),
            Column(("Depth in shaft", "mm")),
            Column(("Depth in hub", "mm")),
            Column(("Tolerance of depths", "mm"), CENTER),
            Column(("Key lengths", "mm"), CENTER),
        ],
        rows,
    )


def write_chains(folder):
    rows = rows_of(HERE / "chains.txt")
    lengths = ("Pitch", "Roller dia", "Inner width", "Pin dia", "Plate thickness", "Plate height",
               "Strand pitch")  # fmt: skip
    for name, title, unit, scale, places, load, weight in (
        ("Chain-e.dat", "U.S. Units", "in", Fraction(1), 4, ("lbf", 1, 0), ("lb/ft", 1, 2)),
        ("Chain-m.dat", "Metric Units", "mm", MM, 3, ("kN", NEWTON / 1000, 1),
         ("kg/m", KG_PER_M, 2)),
    ):  # fmt: skip
        columns = [Column(("Chain", "ANSI"), CENTER), Column(("Chain", "ISO 606"), CENTER)]
        columns += [Column((length, unit)) for length in lengths]
        columns += [Column(("Breaking load, min", load[0])), Column(("Weight, average", weight[0]))]
        body = []
        for ansi, iso, *sizes, breaking, mass in rows:
            cells = [fixed(inches(size) * scale, places) if size else "" for size in sizes]
            body.append(
                [ansi, iso, *cells]
                + [fixed(Fraction(breaking) * load[1], load[2])]
                + [fixed(Fraction(mass) * weight[1], weight[2])]
            )
        write_table(
            folder / name,
            "ASME B29.1 (dimensions, least breaking load of one strand); weights as makers give them",
            f"Roller Chain Dimensions - {title}",
            columns,
            body,
        )


def write(folder):
    write_keys(folder)
    write_chains(folder)
