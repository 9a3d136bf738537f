"""ACMOTORS.dat, IECframe.dat and IEC_NEMA.dat: the dimensions of motor frames."""

import math
from fractions import Fraction
from pathlib import Path

from table_file import CENTER, Column, fixed, rows_of, write_table

HERE = Path(__file__).parent
MM = Fraction("25.4")
NOT_FIXED = "-"


def inches(text):
    """1-3/4 as a fraction."""
    return sum(Fraction(part) for part in text.split("-"))


def keyseat_depth(shaft, key):
    """R: from the bottom of the seat of a square key to the far side of the shaft (ASME B17.1)."""
    shaft, key = float(shaft), float(key)
    return (shaft + math.sqrt(shaft * shaft - key * key)) / 2 - key / 2


def nema_frames():
    for frames, d, e, f, ba, h, u, nw, v, key, es in rows_of(HERE / "nema_frames.txt"):
        for frame, two_f in zip(frames.split(), f.split(), strict=True):
            size, _, slot = h.partition(" ")
            flat = key.removeprefix("flat ") if key.startswith("flat") else None
            yield {
                "frame": frame,
                **{"D": inches(d), "E": inches(e), "F": inches(two_f) / 2, "BA": inches(ba)},
                **{"H": inches(size), "slot": bool(slot), "U": inches(u), "N-W": inches(nw)},
                "V": inches(v) if v else None,
                "R": Fraction(flat or keyseat_depth(inches(u), inches(key))),
                "S": None if flat else inches(key),
                "ES": inches(es) if es else None,
            }


def iec_frames():
    shafts = {d: row for d, *row in rows_of(HERE / "iec_shafts.txt")}
    flanges = {name: row for name, *row in rows_of(HERE / "iec_flanges.txt")}
    for frames, h, a, bs, c, k, two, more, flange in rows_of(HERE / "iec_frames.txt"):
        for frame, b in zip(frames.split(), bs.split(), strict=True):
            for poles, d in [("all", two)] if two == more else [("2", two), ("4 and more", more)]:
                e, f, gd, ga = shafts.get(d, [NOT_FIXED] * 4)
                yield {
                    **{"frame": frame, "poles": poles, "H": h, "A": a, "B": b, "C": c, "K": k},
                    **{"D": d or NOT_FIXED, "E": e, "F": f, "GD": gd, "GA": ga, "flange": flange},
                    **dict(zip(("M", "N", "P", "S", "T", "holes"), flanges[flange], strict=True)),
                }


def write_nema(folder):
    letters = {
        "D": "shaft height",
        "E": "half across",
        "F": "half along",
        "BA": "foot to shoulder",
        "H": "foot hole",
        "U": "shaft dia.",
        "N-W": "shaft length",
        "V": "usable, min.",
        "R": "keyseat to far side",
        "S": "key, square",
        "ES": "keyseat, min.",
    }
    rows = []
    for frame in nema_frames():
        texts = [NOT_FIXED if frame[x] is None else fixed(frame[x], 3) for x in letters]
        if frame["slot"]:
            texts[list(letters).index("H")] += " slot"
        if frame["S"] is None:
            texts[list(letters).index("S")] = "flat"
        rows.append([frame["frame"], *texts])
    write_table(
        folder / "ACMOTORS.dat",
        "NEMA MG 1, 4.4.1; U frames as rerated in 1953; E and F are half the feet's distances",
        "AC Motor Dimensions - NEMA Frames (inches)",
        [Column(("Frame", ""), CENTER)]
        + [Column((letter, meaning), CENTER) for letter, meaning in letters.items()],
        rows,
    )


def write_iec(folder):
    letters = {
        "H": "shaft height",
        "A": "feet across",
        "B": "feet along",
        "C": "foot to shoulder",
        "K": "foot hole",
        "D": "shaft dia.",
        "E": "shaft length",
        "F": "key width",
        "GD": "key height",
        "GA": "over key",
        "flange": "",
        "M": "bolt circle",
        "N": "spigot",
        "P": "outside",
        "S": "holes",
        "T": "spigot depth",
    }
    rows = []
    for frame in iec_frames():
        texts = dict(frame, S=f"{frame['holes']} x {frame['S']}")
        rows.append([frame["frame"], frame["poles"], *(texts[letter] for letter in letters)])
    write_table(
        folder / "IECframe.dat",
        "IEC 60072-1:1991; shafts and flanges as assigned in EN 50347:2001, none above 315",
        "AC Motor Dimensions - IEC Frames (mm)",
        [Column(("Frame", ""), CENTER), Column(("Poles", ""), CENTER)]
        + [Column((letter.capitalize() if len(letter) > 2 else letter, meaning), CENTER)
           for letter, meaning in letters.items()],
        rows,
    )


def write_comparison(folder):
    iec = {frame["frame"]: frame for frame in iec_frames()}  # the shaft of 4 and more poles
    nema = {frame["frame"]: frame for frame in nema_frames()}
    rows = []
    for metric, us in rows_of(HERE / "iec_nema_pairs.txt"):
        of_iec = [Fraction(iec[metric][letter]) for letter in ("H", "A", "B", "C", "K", "D", "E")]
        frame = nema[us]
        of_nema = [
            *(frame["D"], 2 * frame["E"], 2 * frame["F"], frame["BA"]),
            *(frame["H"], frame["U"], frame["N-W"]),
        ]
        for name, sizes in (
            (f"IEC {metric}", of_iec),
            (f"NEMA {us}", [size * MM for size in of_nema]),
        ):
            texts = [fixed(mm, 1) for mm in sizes] + [fixed(mm / MM, 3) for mm in sizes]
            rows.append([name, *texts])
    letters = ("H / D", "A / 2E", "B / 2F", "C / BA", "K / H", "D / U", "E / N-W")
    write_table(
        folder / "IEC_NEMA.dat",
        "IEC 60072-1:1991, shafts of 4 and more poles, and NEMA MG 1, 4.4.1; nearest, not equal",
        "IEC vs NEMA Frames",
        [Column(("IEC / NEMA", "Frame"), CENTER)]
        + [Column((letter, unit)) for unit in ("mm", "in") for letter in letters],
        rows,
    )


def write(folder):
    write_nema(folder)
    write_iec(folder)
    write_comparison(folder)
