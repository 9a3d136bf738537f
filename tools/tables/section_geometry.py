"""Sections of structural shapes as polygons, and what follows from them.

An outline is a list of (x, y), its arcs in short chords; a hole runs the other way.
"""

from math import acos, atan2, cos, hypot, pi, sin, sqrt, tan

STEPS = 48  # chords of an arc


def rounded(corners):
    """The outline of corners (x, y, radius of the rounding)."""
    points = []
    for n, (x, y, radius) in enumerate(corners):
        if radius == 0:
            points.append((x, y))
            continue
        (ax, ay), (bx, by) = corners[n - 1][:2], corners[(n + 1) % len(corners)][:2]
        la, lb = hypot(ax - x, ay - y), hypot(bx - x, by - y)
        ax, ay, bx, by = (ax - x) / la, (ay - y) / la, (bx - x) / lb, (by - y) / lb
        half = acos(ax * bx + ay * by) / 2
        middle = radius / sin(half) / hypot(ax + bx, ay + by)
        cx, cy = x + (ax + bx) * middle, y + (ay + by) * middle
        reach = radius / tan(half)
        start = atan2(y + ay * reach - cy, x + ax * reach - cx)
        turn = atan2(y + by * reach - cy, x + bx * reach - cx) - start
        turn += 2 * pi if turn < -pi else -2 * pi if turn > pi else 0
        angles = [start + turn * step / STEPS for step in range(STEPS + 1)]
        points += [(cx + radius * cos(a), cy + radius * sin(a)) for a in angles]
    return points


def moments(points):
    """Area, first moments about y and x, then Ix, Iy and Ixy, all about the origin."""
    sums = [0.0] * 6
    for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
        cross = x1 * y2 - x2 * y1
        sums[0] += cross / 2
        sums[1] += cross * (x1 + x2) / 6
        sums[2] += cross * (y1 + y2) / 6
        sums[3] += cross * (y1 * y1 + y1 * y2 + y2 * y2) / 12
        sums[4] += cross * (x1 * x1 + x1 * x2 + x2 * x2) / 12
        sums[5] += cross * (x1 * y2 + 2 * x1 * y1 + 2 * x2 * y2 + x2 * y1) / 24
    return sums


def below(points, y):
    """The part of an outline under a level."""
    kept = []
    for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
        if y1 <= y:
            kept.append((x1, y1))
        if (y1 <= y) != (y2 <= y):
            kept.append((x1 + (x2 - x1) * (y - y1) / (y2 - y1), y))
    return kept


def plastic_modulus(outlines):
    """About the level that halves the area."""

    def under(y):
        parts = [moments(below(outline, y)) for outline in outlines]
        return sum(part[0] for part in parts), sum(part[2] for part in parts)

    low = min(y for _, y in outlines[0])
    high = max(y for _, y in outlines[0])
    area, first = under(high)
    for _ in range(18):  # a slip of the level counts by its square
        level = (low + high) / 2
        low, high = (level, high) if under(level)[0] < area / 2 else (low, level)
    half, first_under = under(level)
    return first - 2 * first_under - (area - 2 * half) * level


def properties(*outlines):
    """By name; the distances to the extreme fibers count from the centroid."""
    area, my, mx, ix, iy, ixy = map(sum, zip(*map(moments, outlines)))
    x, y = my / area, mx / area
    ix, iy, ixy = ix - area * y * y, iy - area * x * x, ixy - area * x * y
    outer = outlines[0]
    cx = max(x - min(p[0] for p in outer), max(p[0] for p in outer) - x)
    cy = max(y - min(p[1] for p in outer), max(p[1] for p in outer) - y)
    turned = [[(-b, a) for a, b in outline] for outline in outlines]
    least = (ix + iy) / 2 - hypot((ix - iy) / 2, ixy)
    return {
        "A": area,
        "x": x,
        "y": y,
        "Ix": ix,
        "Sx": ix / cy,
        "rx": sqrt(ix / area),
        "Zx": plastic_modulus(outlines),
        "Iy": iy,
        "Sy": iy / cx,
        "ry": sqrt(iy / area),
        "Zy": plastic_modulus(turned),
        "rz": sqrt(max(least, 0) / area),
        # Of the axis of the least moment, against y-y.
        "tan": tan(atan2(2 * abs(ixy), ix - iy) / 2),
    }


def i_section(d, bf, tw, tf, fillet, slope=0.0, toe=0.0):
    """A beam; with a slope of the flanges, tf is their thickness midway between web and toe."""
    rise = slope * (bf - tw) / 4
    quarter = [
        (bf / 2, d / 2, 0.0),
        (bf / 2, d / 2 - tf + rise, toe),
        (tw / 2, d / 2 - tf - rise, fillet),
    ]
    clockwise = quarter + [(x, -y, r) for x, y, r in reversed(quarter)]
    clockwise += [(-x, -y, r) for x, y, r in quarter] + [(-x, y, r) for x, y, r in reversed(quarter)]
    return rounded(clockwise[::-1])


def channel(d, bf, tw, tf, fillet, slope=0.0, toe=0.0):
    """The back of its web at x = 0; tf as above."""
    rise = slope * (bf - tw) / 2
    upper = [
        (0.0, d / 2, 0.0),
        (bf, d / 2, 0.0),
        (bf, d / 2 - tf + rise, toe),
        (tw, d / 2 - tf - rise, fillet),
    ]
    clockwise = upper + [(x, -y, r) for x, y, r in reversed(upper)]
    return rounded(clockwise[::-1])


def angle(vertical, horizontal, t, fillet, toe=0.0):
    """Its heel at the origin; the toes are rounded on the inside of the legs."""
    corners = [
        (0.0, 0.0, 0.0),
        (horizontal, 0.0, 0.0),
        (horizontal, t, toe),
        (t, t, fillet),
        (t, vertical, toe),
        (0.0, vertical, 0.0),
    ]
    return rounded(corners)


def tube(d, b, t, outer, inner):
    """Its outline and its bore, with their corner radii."""

    def box(height, width, radius):
        x, y = width / 2, height / 2
        return rounded([(-x, -y, radius), (x, -y, radius), (x, y, radius), (-x, y, radius)])

    return box(d, b, outer), box(d - 2 * t, b - 2 * t, inner)[::-1]
