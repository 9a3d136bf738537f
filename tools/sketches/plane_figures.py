"""The sketches of the plane figures: MAIN.PLT, made to be drawn at 1.5 twips a unit."""

from math import cos, radians, sin

from sketches.figures import FigureSketch, between, polar, shifted
from sketches.strokes import write_sketches

OFF = 230  # of a dimension line from its outline
SCALE = 1.3  # so that the largest ones fill the panel


def square():
    sketch = FigureSketch()
    side = 1900
    sketch.box(0, 0, side, side)
    sketch.measure((0, 0), (side, 0), "s", -OFF)
    sketch.measure((side, 0), (side, side), "s", -OFF)
    sketch.measure((0, 0), (side, side), "d")
    return sketch


def rectangle():
    sketch = FigureSketch()
    width, height = 2400, 1500
    sketch.box(0, 0, width, height)
    sketch.measure((0, 0), (width, 0), "a", -OFF)
    sketch.measure((width, 0), (width, height), "b", -OFF)
    sketch.measure((0, 0), (width, height), "d")
    return sketch


def parallelogram():
    sketch = FigureSketch()
    width, height, lean = 2000, 1400, 600
    sketch.polygon((0, 0), (width, 0), (width + lean, height), (lean, height))
    sketch.measure((0, 0), (width, 0), "a", -OFF)
    sketch.measure((lean, 0), (lean, height), "b")
    return sketch


def right_triangle():
    sketch = FigureSketch()
    left, right, top = (0, 0), (2400, 0), (0, 1700)
    sketch.polygon(left, right, top)
    sketch.line((150, 0), (150, 150), (0, 150))
    sketch.measure(left, right, "b", -OFF)
    sketch.measure(left, top, "c", OFF)
    sketch.measure(top, right, "a", OFF)
    return sketch


def triangle(foot):
    """The apex stands above this place of the base's line."""
    sketch = FigureSketch()
    base, height = 2200 if foot < 2200 else 1500, 1600
    apex = (foot, height)
    sketch.polygon((0, 0), (base, 0), apex)
    sketch.measure((0, 0), (base, 0), "b", -OFF)
    if foot > base:
        sketch.dashed((base, 0), (foot + 100, 0))
    sketch.measure((foot, 0), apex, "h")
    sketch.text("a", shifted(between((0, 0), apex), -110, 110))
    sketch.text("c", shifted(between((base, 0), apex), 110 if foot < base else -110, 90))
    return sketch


def trapezoid():
    sketch = FigureSketch()
    sketch.polygon((0, 0), (2500, 0), (2100, 1500), (700, 1500))
    sketch.measure((700, 1500), (2100, 1500), "a", OFF)
    sketch.measure((0, 0), (2500, 0), "b", -OFF)
    sketch.measure((1000, 0), (1000, 1500), "h")
    return sketch


def trapezium():
    """Perpendiculars h and H part the base into b, a and c."""
    sketch = FigureSketch()
    low, high = (700, 1100), (2000, 1700)
    sketch.polygon((0, 0), (2600, 0), high, low)
    sketch.measure((700, 0), low, "h")
    sketch.measure((2000, 0), high, "H")
    for start, end, text in ((0, 700, "b"), (700, 2000, "a"), (2000, 2600, "c")):
        sketch.measure((start, 0), (end, 0), text, -OFF)
    return sketch


def regular_polygon():
    sketch = FigureSketch()
    center, R = (0, 0), 1000
    r = R * cos(radians(30))
    corners = [polar(center, R, angle) for angle in range(30, 390, 60)]
    sketch.polygon(*corners)
    sketch.dashed(*sketch.ellipse_points(center, R, R))
    sketch.dashed(*sketch.ellipse_points(center, r, r))
    sketch.radius(center, R, 30, "R", share=0.62)
    sketch.radius(center, r, -60, "r", share=0.58)
    # The angle at the center, and that between two sides.
    sketch.witness(center, polar(center, R, 90))
    sketch.bend(center, 450, 30, 90, "a")
    sketch.bend(polar(center, R, 150), 330, -90, 30, "b")
    sketch.measure(corners[5], corners[0], "s", -320)
    sketch.measure((-r, -R * 0.5), (r, -R * 0.5), "d", -R * 0.5 - OFF)
    sketch.measure((-R, 0), (R, 0), "D", -R - 2 * OFF)
    return sketch


def circle():
    sketch = FigureSketch()
    center, r = (0, 0), 1050
    sketch.circle(center, r)
    sketch.radius(center, r, 50, "r")
    sketch.measure((-r, 0), (r, 0), "D", -r - OFF)
    return sketch


def sector():
    sketch = FigureSketch()
    center, r, half = (0, 0), 1800, 38
    left, right = polar(center, r, 90 + half), polar(center, r, 90 - half)
    sketch.line(right, center, left)
    sketch.arc(center, r, 90 - half, 90 + half)
    sketch.bend(center, r + OFF, 90 + half, 90 - half, "L")
    sketch.bend(center, 620, 90 + half, 90 - half, "a")
    for angle in (90 - half, 90 + half):
        sketch.witness(polar(center, r + 30, angle), polar(center, r + OFF + 60, angle))
    sketch.measure(center, right, "r", -OFF)
    return sketch


def segment():
    sketch = FigureSketch()
    center, r, half = (0, 0), 1600, 50
    left, right = polar(center, r, 90 + half), polar(center, r, 90 - half)
    sketch.arc(center, r, 90 - half, 90 + half)
    sketch.line(left, right)
    sketch.dashed(left, center)
    sketch.radius(center, r, 90 - half, "r", share=0.6)
    sketch.bend(center, 480, 90 + half, 90 - half, "a")
    sketch.bend(center, r + OFF, 90 + half, 90 - half, "L")
    for angle in (90 - half, 90 + half):
        sketch.witness(polar(center, r + 30, angle), polar(center, r + OFF + 60, angle))
    sketch.measure((0, left[1]), (0, r), "h")
    sketch.measure(left, right, "c", -OFF * 0.8)
    return sketch


def ring():
    sketch = FigureSketch()
    center, R, r = (0, 0), 1050, 620
    sketch.circle(center, R)
    sketch.circle(center, r)
    sketch.measure((-r, 0), (r, 0), "I.D.")
    sketch.measure((-R, 0), (R, 0), "O.D.", -R - OFF)
    return sketch


def ring_segment():
    sketch = FigureSketch()
    center, R, r, half = (0, 0), 1020, 600, 50
    sketch.arc(center, R, 90 - half, 90 + half)
    sketch.arc(center, r, 90 - half, 90 + half)
    for angle in (90 - half, 90 + half):
        sketch.line(polar(center, r, angle), polar(center, R, angle))
        sketch.witness(polar(center, R + 30, angle), polar(center, R + OFF + 60, angle))
    sketch.dashed(*sketch.ellipse_points(center, R, R, 90 + half, 450 - half))
    sketch.dashed(*sketch.ellipse_points(center, r, r, 90 + half, 450 - half))
    sketch.bend(center, R + OFF, 90 + half, 90 - half, "L")
    sketch.dashed(center, polar(center, r, 90 + half))
    sketch.dashed(center, polar(center, r, 90 - half))
    sketch.bend(center, 330, 90 + half, 90 - half, "a")
    sketch.radius(center, R, -25, "R", share=0.76)
    sketch.radius(center, r, 205, "r")
    sketch.measure((-r, 0), (r, 0), "I.D.", -R - OFF)
    sketch.measure((-R, 0), (R, 0), "O.D.", -R - 2 * OFF)
    return sketch


def fillet():
    sketch = FigureSketch()
    r = 1800
    corner, center = (0, 0), (r, r)
    start, end = (0, r), (r, 0)
    sketch.line(start, corner, end)
    sketch.arc(center, r, 180, 270)
    sketch.measure(start, end, "c", share=0.27)
    sketch.radius(center, r, 225, "r", share=0.3)
    sketch.dashed(start, center, end)
    return sketch


def write(folder):
    draw = {
        "SQUARE": square(),
        "RECTANG2": rectangle(),
        "PARAGRAM": parallelogram(),
        "RIGHTTRI": right_triangle(),
        "ACUTE": triangle(800),
        "OBTUSE": triangle(2300),
        "TRPZOID2": trapezoid(),
        "TRAPZIUM": trapezium(),
        "POLYGON": regular_polygon(),
        "CIRCLE": circle(),
        "SECTOR": sector(),
        "SEGMENT": segment(),
        "CIRCRING": ring(),
        "RINGSECT": ring_segment(),
        "FILLET": fillet(),
    }
    for sketch in draw.values():
        sketch.scale(SCALE)
    write_sketches(
        folder / "MAIN.PLT", "MAIN.PLT: sketches of the plane figures", draw.items()
    )
