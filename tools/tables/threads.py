"""screw_threads.dat: unified and metric screw threads with the holes, hex sizes and tolerances of each.

A record is the key of its standard, size, series, major diameter, threads per inch or pitch; then eight
measures, each as it is called and as a number: clearance hole close, normal, loose, hex head across flats
and its height, hex nut across flats and its thickness, hex key (empty and 0: there is none). A metric record
goes on with the allowance g and the tolerances of grade 6 of the external major and pitch and the internal
minor and pitch diameters in micrometers. Unified tolerances follow from formulas.
"""

from fractions import Fraction
from pathlib import Path

import drills
from table_file import fixed, quoted, rows_of, write_lines

HERE = Path(__file__).parent
TITLE = (
    "screw_threads.dat: unified threads in inches (ASME B1.1, B18.2.8, B18.2.1, B18.2.2, B18.3), metric "
    "threads in mm (ISO 261, 965-1, 273, 272, 4014, 4032, 4762)"
)
NONE = ("", "0")


def inches(text):
    """1-3/4 as a fraction."""
    return sum(Fraction(part) for part in text.split("-"))


def trimmed(number):
    return f"{float(number):g}"


def inch_measure(text):
    return (text if "/" in text or "." not in text else f"0{text}", fixed(inches(text), 4))


def drill_measure(name):
    """Among the drills a whole number may be a number drill as well as a fraction."""
    wanted = "fraction" if "/" in name else "letter" if name.isalpha() else "number"
    diameter = next(size for other, kind, size in drills.sizes() if (other, kind) == (name, wanted))
    return (f"No. {name}" if wanted == "number" else name, fixed(diameter, 4))


def filled(measures, count):
    return measures or [NONE] * count


def unified():
    for size, major, pitches, holes, head, nut, key in rows_of(HERE / "unified_threads.txt"):
        measures = [
            *filled([drill_measure(name) for name in holes.split()], 3),
            *filled([inch_measure(text) for text in head.split()], 2),
            *filled([inch_measure(text) for text in nut.split()], 2),
            *filled([inch_measure(text) for text in key.split()], 1),
        ]
        for series, pitch in zip(("UNC", "UNF", "UNEF"), pitches.split(), strict=True):
            if pitch != "-":
                yield ["unified", size, series], [fixed(Fraction(major), 4), pitch], measures, []


def metric_sections():
    sections = {}
    for first, *rest in rows_of(HERE / "metric_threads.txt"):
        if first.startswith("["):
            rows = sections.setdefault(first.strip("[]"), [])
        else:
            rows.append([first, *rest])
    return sections


def metric():
    sections = metric_sections()
    by_pitch = {Fraction(row[0]): row[1:] for row in sections["pitches"]}
    ranges = [
        (Fraction(most), {Fraction(pitch): tolerances.split() for pitch, tolerances in
                          (part.split(":") for part in text.split(";"))})
        for most, text in sections["pitch diameters"]
    ]  # fmt: skip
    for size, pitches, holes, hexes, key in sections["sizes"]:
        flats, head, nut = hexes.split()
        texts = [*holes.split(), flats, head, flats, nut, key]
        measures = [NONE if text == "-" else (text, text) for text in texts]
        for n, text in enumerate(pitches.split()):
            pitch = Fraction(text)
            allowance, major, minor = by_pitch[pitch]
            external, internal = next(
                table[pitch] for most, table in ranges if Fraction(size) <= most
            )
            yield (["metric", f"M{size}", "fine" if n else "coarse"], [size, trimmed(pitch)], measures,
                   [allowance, major, external, minor, internal])  # fmt: skip


def write(folder):
    lines = []
    for names, numbers, measures, tolerances in [*unified(), *metric()]:
        flat = [field for text, number in measures for field in (quoted(text), number)]
        lines.append(",".join([*map(quoted, names), *numbers, *flat, *tolerances]))
    write_lines(folder / "screw_threads.dat", [TITLE, *lines])
