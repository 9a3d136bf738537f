"""BLOWERS.dat and BLOWERS2.dat: a family of sample blower wheels, made up, and their performance.

The wheels are nobody's: three usual types in usual diameters, whose curves follow one form for each type.
With the speed of the tip u in ft/min and the part x of the flow at free delivery, in standard air of
0.075 lb/ft3:

    flow      x F (pi/4 D^2) u                cfm, D in feet
    pressure  S f(x) (u / 4005)^2             inches of water; 4005 ft/min have a velocity pressure of 1
    power     flow at x = 1 times pressure at f(x) = 1 over 6356, times p(x) (24 / d)^0.04, in hp

so that the efficiency x f(x) / p(x) grows a little with the diameter d in inches.

The points go from the right of the stall to near free delivery. The rated point is that of the best
efficiency.
"""

from math import pi

from table_file import quoted, write_lines

AIR_HP = 6356  # cfm times inches of water in a horsepower
UNIT_SPEED = 4005  # ft/min with a velocity pressure of 1 in of water
PARTS = [0.25 + 0.07 * n for n in range(11)]  # of the flow at free delivery

# Name; diameters and width by diameter; flow F and pressure S; forms of pressure and power; tip speeds at the
# rated and the largest speed, ft/min.
FAMILIES = [
    ("Backward Inclined", (10.5, 12.25, 13.5, 15, 16.5, 18.25, 20, 22.25, 24.5, 27, 30, 33, 36.5), 0.4,
     0.42, 0.92, lambda x: 1 + 0.45 * x - 1.45 * x**2.2, lambda x: 0.22 + 1.05 * x - 0.68 * x * x,
     8000, 13000),
    ("Forward Curved", (6, 7.5, 9, 10.5, 12.5, 15, 18, 20), 0.5,
     0.9, 1.9, lambda x: 1 - x + 4 * x**2 - 4 * x**3, lambda x: 0.12 + 0.9 * x + 0.9 * x * x,
     3500, 6000),
    ("Radial", (9, 11, 13, 15, 18, 21, 25, 30), 0.3,
     0.3, 1.1, lambda x: 1 + 0.25 * x - 1.25 * x * x, lambda x: 0.22 + 0.85 * x,
     9000, 16000),
]  # fmt: skip


def significant(value, digits=4):
    return float(f"{value:.{digits}g}")


def wheels():
    """Type, diameter, width, rated and largest speed in rpm, points of flow, pressure, power."""
    for kind, diameters, width, flow, pressure, form, power, rated, largest in FAMILIES:
        for d in diameters:
            girth = pi * d / 12
            rpm = round(rated / girth, -1)
            u = rpm * girth
            free = flow * pi / 4 * (d / 12) ** 2 * u
            head = pressure * (u / UNIT_SPEED) ** 2
            points = [
                (
                    significant(x * free),
                    round(head * form(x), 3),
                    significant(free * head * power(x) * (24 / d) ** 0.04 / AIR_HP),
                )
                for x in PARTS
            ]
            yield kind, d, round(width * d * 8) / 8, rpm, largest / girth // 10 * 10, points


def number(value):
    return f"{value:g}" if value < 100000 else f"{value:.0f}"


def write(folder):
    heads, curves = [], []
    for n, (kind, d, width, rpm, largest, points) in enumerate(wheels(), 1):
        best = max(points, key=lambda point: point[0] * point[1] / point[2])
        heads.append(",".join([quoted(kind), *map(number, (d, width, rpm, largest, *best))]))
        curves += [",".join(map(number, (n, *point))) for point in points]
    write_lines(folder / "BLOWERS.dat", [
        "BLOWERS.dat: sample blower wheels, made up: type, diameter and width in inches, rated and largest "
        "speed in rpm, rated point: flow in cfm, static pressure in inches of water, power in hp",
        *heads])  # fmt: skip
    write_lines(folder / "BLOWERS2.dat", [
        "BLOWERS2.dat: performance of the sample wheels at their rated speeds in standard air: number of "
        "the wheel, flow in cfm, static pressure in inches of water, power in hp",
        *curves])  # fmt: skip
