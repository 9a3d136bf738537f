"""SHAPES.dat: dimensions and properties of structural shapes, in inches and pounds.

A section is headed by its key and kind; a record is the U.S. and the metric designation and then
the values that its kind lists in `COLUMNS`. Steel beams, channels and angles have their published
properties; those of tubing and of the aluminum shapes are computed from the dimensions here.
"""

from decimal import Decimal
from fractions import Fraction
from math import pi
from pathlib import Path

from section_geometry import angle, channel, i_section, properties, tube
from table_file import fixed, quoted, rounded, rows_of, write_lines

HERE = Path(__file__).parent
MM = Fraction("25.4")
KG_M = Fraction("1.4881639")  # of 1 lb/ft
STEEL = 490 / 144  # lb/ft of 1 in2
ALUMINUM = 12 * 0.098

AXES = "Ix Sx rx Zx Iy Sy ry Zy"
COLUMNS = {
    "beam": f"d bf tw tf k fillet toe slope W A {AXES} J",
    "channel": f"d bf tw tf k fillet toe slope W A {AXES} x J",
    "angle": f"d b t k fillet toe W A Ix Sx rx Zx y Iy Sy ry Zy x rz tan J",
    "tube": f"d b t outer inner W A {AXES} J",
}
COMMENT = "SHAPES.dat: structural shapes in inches and pounds; " + "; ".join(
    f"{kind}: U.S. and metric designation, {columns.replace(' ', ', ')}"
    for kind, columns in COLUMNS.items()
)

# The depths in the metric names of ASTM A6M, by those in the U.S. ones.
METRIC_DEPTHS = {
    44: 1100, 40: 1000, 36: 920, 33: 840, 30: 760, 27: 690, 24: 610, 21: 530, 20: 510, 18: 460,
    16: 410, 15: 380, 14: 360, 12: 310, 10: 250, 9: 230, 8: 200, 7: 180, 6: 150, 5: 130, 4: 100,
    3: 75,
}  # fmt: skip
# American Standard beams and channels: flanges slope 1 in 6, the fillet is 0.10 in more than the
# thinnest web, the toe rounded with 0.6 of that web.
SLOPE = 0.16667


def inches(text):
    """1-3/4 as a fraction."""
    return sum(Fraction(part) for part in text.split("-"))


def short(text):
    return text.rstrip("0").rstrip(".") if "." in text else text


def metric(value, places=1):
    """Millimeters of inches, without zeros at the end."""
    return short(fixed(value * MM, places))


def three(value):
    """Three digits; what stands behind the twelfth is only noise of the computation."""
    return rounded(Decimal(f"{value:.12g}"), 3)


def sections():
    """The rows of the raw data by section."""
    found = {}
    for row in rows_of(HERE / "structural_shapes.txt"):
        if row[0].startswith("["):
            rows = found.setdefault(row[0], [])
        else:
            rows.append([field.split() for field in row])
    return found


def record(kind, us, si, values):
    return [us, si, *(values[name] for name in COLUMNS[kind].split())]


def computed(values, outlines, pounds=None):
    """Completes values with the properties of the outlines; pounds per foot of 1 in2."""
    found = properties(*outlines)
    values |= {name: three(value) for name, value in found.items() if name not in values}
    if pounds is not None:
        values["W"] = three(pounds * found["A"])
    return values


# ---- Beams and channels ----


def published(rows, letter):
    """Rolled beams and channels by (depth, lb/ft): the values of their tables."""
    names = "A d bf tw tf Ix Iy Zx Sx rx Zy Sy ry J x".split()
    shapes, fillet, k, web = {}, "0", None, None
    for row in rows:
        if row[0][0] == "fillet":
            fillet = row[0][1]
        elif row[0][0] == "k":
            k, web = row[0][1], Fraction(row[0][2])
        else:
            depth, pounds, kilograms = row[0]
            values = dict(zip(names, row[1])) | {"W": pounds}
            if web is None:
                values |= {"fillet": fillet, "toe": "0", "slope": "0"}
                values["k"] = three(float(Fraction(values["tf"]) + Fraction(fillet)))
            else:
                toe = fixed(web * Fraction("0.6"), 3)
                radius = fixed(web + Fraction("0.1"), 3)
                values |= {"fillet": radius, "toe": toe, "slope": f"{SLOPE}"}
                values["k"] = three(float(k))
            us = f"{letter}{depth}x{pounds}"
            si = f"{letter}{METRIC_DEPTHS[int(depth)]}x{kilograms}"
            shapes[depth, pounds] = us, si, values
    return shapes


def rolled(kind, letter):
    def records(found, key):
        for us, si, values in published(found[key], letter).values():
            yield record(kind, us, si, values)

    return records


def in_aluminum(kind, letter, steel_key):
    """Extruded with the section of a steel shape."""

    def records(found, key):
        steel = published(found[steel_key], letter)
        for [(pounds, *of)] in found[key]:
            values = dict(steel[tuple(of)][2])
            values["W"] = pounds = pounds.rstrip(":")
            yield record(kind, *aluminum_names(letter, of[0], pounds), values)

    return records


def aluminum_names(letters, depth, pounds):
    kilograms = three(float(Fraction(pounds) * KG_M))
    si = f"{letters}{metric(Fraction(depth), 0)}x{short(kilograms)}"
    return f"{letters}{short(depth)}x{pounds}", si


def association(kind, letters, outline):
    def records(found, key):
        for [pounds], [d, bf, tf, tw, fillet] in found[key]:
            values = {"d": d, "bf": bf, "tf": tf, "tw": tw, "fillet": fillet, "W": pounds}
            values |= {"toe": "0", "slope": "0", "k": fixed(Fraction(tf) + Fraction(fillet), 2)}
            depth, width, web, flange, radius = map(float, (d, bf, tw, tf, fillet))
            torsion = (2 * width * flange**3 + (depth - 2 * flange) * web**3) / 3
            values["J"] = three(torsion)
            values = computed(values, [outline(depth, width, web, flange, radius)])
            yield record(kind, *aluminum_names(letters, d, pounds), values)

    return records


# ---- Angles ----


def angle_names(legs, t):
    sides = "x".join(metric(inches(leg), 0) for leg in legs)
    return f"L{'x'.join(legs)}x{t}", f"L{sides}x{metric(inches(t))}"


def angle_values(legs, t, fillet):
    long, little, thick = inches(legs[0]), inches(legs[1]), inches(t)
    values = {"d": three(float(long)), "b": three(float(little))}
    values |= {"t": three(float(thick)), "fillet": fixed(fillet, 3)}
    return values | {"k": three(float(thick + fillet))}


def steel_angles(names):
    def records(found, key):
        legs, fillet = None, None
        for row in found[key]:
            if row[0][0] == "size":
                *legs, fillet = row[0][1:]
                continue
            t = row[0][0]
            values = angle_values(legs, t, Fraction(fillet)) | {"toe": "0"}
            values |= dict(zip(names.split(), row[1]))
            if legs[0] == legs[1]:
                values |= {"y": values["x"], "tan": "1.00"}
                values |= {name + "y": values[name + "x"] for name in "ISrZ"}
            yield record("angle", *angle_names(legs, t), values)

    return records


def aluminum_angles(found, key):
    for legs, radii, walls in found[key]:
        legs = legs * 2 if len(legs) == 1 else legs
        for t in walls:
            fillet, toe = inches(radii[0]), min(inches(radii[1]), inches(t))
            values = angle_values(legs, t, fillet) | {"toe": fixed(toe, 3)}
            sizes = [float(inches(size)) for size in (*legs, t)]
            values["J"] = three((sizes[0] + sizes[1] - sizes[2]) * sizes[2] ** 3 / 3)
            outline = angle(*sizes, float(fillet), float(toe))
            values = computed(values, [outline], ALUMINUM)
            yield record("angle", *angle_names(legs, t), values)


# ---- Tubing ----


def tube_values(d, b, t, outer, inner):
    """Torsion as of a thin closed section, along the middle of its wall."""
    corner = (outer + inner) / 2
    loss = (4 - pi) * corner
    around = 2 * (d + b - 2 * t) - 2 * loss
    within = (d - t) * (b - t) - loss * corner
    values = {"J": three(4 * within**2 * t / around)}
    return computed(values, tube(d, b, t, outer, inner))


def steel_tubing(found, key):
    """ASTM A500: the design wall is 0.93 of the nominal one, which the weight counts; corners
    are rounded with twice the wall outside and once inside."""
    for sides, walls in found[key]:
        d, b = sides * 2 if len(sides) == 1 else sides
        height, width = float(inches(d)), float(inches(b))
        for t in walls:
            nominal = float(inches(t))
            weight = properties(*tube(height, width, nominal, 2 * nominal, nominal))["A"] * STEEL
            wall = fixed(inches(t) * Fraction("0.93"), 3)
            thick = float(wall)
            values = tube_values(height, width, thick, 2 * thick, thick)
            values |= {"W": fixed(Fraction(weight), 2), "t": wall}
            values |= {"d": three(height), "b": three(width)}
            values |= {"outer": f"{2 * thick:.3f}", "inner": wall}
            us = f"HSS{d}x{b}x{t}"
            si = f"HSS{metric(inches(d))}x{metric(inches(b))}x{metric(inches(t))}"
            yield record("tube", us, si, values)


def aluminum_tubing(found, key):
    for sides, walls in found[key]:
        d, b = sides * 2 if len(sides) == 1 else sides
        height, width = float(inches(d)), float(inches(b))
        for t in walls:
            values = tube_values(height, width, float(t), 0.0, 0.0)
            values |= {"W": three(ALUMINUM * properties(*tube(height, width, float(t), 0, 0))["A"])}
            values |= {"d": three(height), "b": three(width), "t": t}
            values |= {"outer": "0", "inner": "0"}
            us = f"RT{d}x{b}x{t}"
            si = f"RT{metric(inches(d))}x{metric(inches(b))}x{metric(Fraction(t), 2)}"
            yield record("tube", us, si, values)


SECTIONS = {
    "[STEEL W-BEAMS]": ("beam", rolled("beam", "W")),
    "[STEEL S-BEAMS]": ("beam", rolled("beam", "S")),
    "[STEEL CHANNELS]": ("channel", rolled("channel", "C")),
    "[STEEL EQUAL ANGLES]": ("angle", steel_angles("W A x Ix Zx Sx rx rz J")),
    "[STEEL UNEQUAL ANGLES]": (
        "angle",
        steel_angles("W A x y Ix Zx Sx rx Iy Zy Sy ry rz J tan"),
    ),
    "[STEEL SQUARE TUBING]": ("tube", steel_tubing),
    "[STEEL RECTANGULAR TUBING]": ("tube", steel_tubing),
    "[ALUMINUM ASSOCIATION I-BEAMS]": ("beam", association("beam", "I", i_section)),
    "[ALUMINUM STANDARD W-BEAMS]": ("beam", in_aluminum("beam", "S", "[STEEL S-BEAMS]")),
    "[ALUMINUM ASSOCIATION CHANNELS]": ("channel", association("channel", "CS", channel)),
    "[ALUMINUM STANDARD CHANNELS]": (
        "channel",
        in_aluminum("channel", "C", "[STEEL CHANNELS]"),
    ),
    "[ALUMINUM EQUAL ANGLES]": ("angle", aluminum_angles),
    "[ALUMINUM UNEQUAL ANGLES]": ("angle", aluminum_angles),
    "[ALUMINUM SQUARE TUBING]": ("tube", aluminum_tubing),
    "[ALUMINUM RECTANGULAR TUBING]": ("tube", aluminum_tubing),
}


def write(folder):
    found = sections()
    lines = [COMMENT]
    for key, (kind, records) in SECTIONS.items():
        lines.append(f"{key},{kind}")
        for us, si, *values in records(found, key):
            lines.append(",".join([quoted(us), quoted(si), *values]))
    write_lines(folder / "SHAPES.dat", lines)
