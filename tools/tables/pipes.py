"""pipe.dat: outside diameters and walls of pipe and tubing.

A record is the key of its standard, size, DN (pipe alone), names of the wall, then outside diameter
and wall in inches and in millimeters.
"""

from fractions import Fraction
from pathlib import Path

from table_file import fixed, quoted, rows_of, write_lines

HERE = Path(__file__).parent
MM = Fraction("25.4")
TITLE = (
    "pipe.dat: pipe and tubing by ASME B36.10M, ASME B36.19M, ASTM B88 and B306, steel tube by "
    "Birmingham wire gauge; standard, size, DN, wall, outside diameter and wall in inches, in mm"
)


def inches(text):
    """1-3/4 as a fraction."""
    return sum(Fraction(part) for part in text.split("-"))


def birmingham():
    """Inches by gauge number."""
    _, first, walls = next(row for row in rows_of(HERE / "gauge_data.txt") if row[0] == "BWG")
    return {int(first) + n: Fraction(w) / 1000 for n, w in enumerate(walls.split())}


def walls_of(text):
    """The names and inches of each wall, as they stand: ".068: 40, STD; .095: 80, XS"."""
    for part in text.split(";"):
        wall, names = part.split(":")
        yield names.strip(), Fraction(wall.strip())


def pipes():
    """Standard, size, DN, wall's names, and the four measures as texts."""
    gauges, diameters, standard = birmingham(), {}, None
    for size, *rest in rows_of(HERE / "pipes.txt"):
        if size.startswith("["):
            standard = size.strip("[]")
            continue
        if standard == "steel":
            diameters[size] = rest[:3]
        if standard in ("steel", "stainless"):
            dn, od, od_mm = diameters[size]
            for names, wall in walls_of(rest[-1]):
                yield standard, size, dn, names, od, fixed(wall, 3), od_mm, fixed(wall * MM, 2)
            continue
        if standard == "copper":
            od, walls = inches(size) + Fraction(1, 8), walls_of(rest[0])
        else:
            od, walls = inches(size), ((number, gauges[int(number)]) for number in rest[0].split())
        for names, wall in walls:
            measures = [fixed(value, 3) for value in (od, wall, od * MM, wall * MM)]
            yield standard, size, "", names, *measures


def write(folder):
    lines = [",".join([*map(quoted, pipe[:4]), *pipe[4:]]) for pipe in pipes()]
    write_lines(folder / "pipe.dat", [TITLE, *lines])
