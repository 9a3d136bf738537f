"""The sketches of the solids: Volumes.plt, drawn as large as the panel lets them be."""

from math import acos, cos, degrees, radians, sin

from sketches.figures import FigureSketch, angle_of, between, shifted
from sketches.strokes import MEASURE, SUPPORT, write_sketches

OFF = 230  # of a dimension line from its outline
DEPTH = (0.55, 0.38)  # how the depth of a block is seen, from the left below
TILT = 0.26  # height of a circle that is seen from above, as a share of its width


def block_points(width, depth, height):
    """The corners of a block: front and back, each from the left below around."""
    back = (depth * DEPTH[0], depth * DEPTH[1])
    front = [(0, 0), (width, 0), (width, height), (0, height)]
    return front, [shifted(corner, *back) for corner in front]


def block(width, depth, height):
    sketch = FigureSketch()
    front, back = block_points(width, depth, height)
    sketch.polygon(*front)
    sketch.line(front[3], back[3], back[2], back[1], front[1])
    sketch.line(front[2], back[2])
    sketch.dashed(front[0], back[0], back[1])
    sketch.dashed(back[0], back[3])
    return sketch, front, back


def cube():
    sketch, front, back = block(1500, 1500, 1500)
    sketch.measure(front[0], front[1], "s", -OFF)
    sketch.measure(front[1], back[1], "s", -OFF)
    sketch.measure(front[0], front[3], "s", OFF)
    return sketch


def rectangular_prism():
    sketch, front, back = block(2000, 1100, 1300)
    sketch.measure(front[0], front[1], "a", -OFF)
    sketch.measure(front[1], back[1], "b", -OFF)
    sketch.measure(front[0], front[3], "c", OFF)
    return sketch


def hexagon(center, radius):
    """Seen from above, its corners from the right around over the back."""
    return [
        (center[0] + radius * cos(radians(a)), center[1] + 0.38 * radius * sin(radians(a)))
        for a in range(0, 360, 60)
    ]


def polygon_radii(sketch, center, corners):
    """R to a corner, r to the middle of a side, and the side s, of what is seen from above."""
    sketch.dot(center)
    sketch.measure(center, corners[0], "R")
    sketch.measure(center, between(corners[3], corners[4]), "r")


def prism():
    sketch = FigureSketch()
    bottom, top = hexagon((0, 0), 1000), hexagon((0, 1700), 1000)
    sketch.polygon(*top)
    sketch.line(top[3], bottom[3], bottom[4], bottom[5], bottom[0], top[0])
    for n in (4, 5):
        sketch.line(bottom[n], top[n])
    sketch.dashed(*(bottom[n] for n in (0, 1, 2, 3)))
    for n in (1, 2):
        sketch.dashed(bottom[n], top[n])
    polygon_radii(sketch, (0, 1700), top)
    sketch.measure(bottom[4], bottom[5], "s", -OFF)
    sketch.measure(bottom[0], top[0], "h", -OFF)
    return sketch


def pyramid_rectangular():
    sketch = FigureSketch()
    width, depth, height = 1900, 1500, 1900
    front, back = block_points(width, depth, 1)
    center = between(front[0], back[1])
    apex = shifted(center, 0, height)
    sketch.line(front[0], front[1], back[1])
    for corner in (front[0], front[1], back[1]):
        sketch.line(corner, apex)
    sketch.dashed(front[0], back[0], back[1])
    sketch.dashed(back[0], apex)
    sketch.measure(front[0], front[1], "a", -OFF)
    sketch.measure(front[1], back[1], "b", -OFF)
    sketch.measure(center, apex, "h", share=0.4)
    return sketch


def pyramid_polygon():
    sketch = FigureSketch()
    base, apex = hexagon((0, 0), 1100), (0, 2000)
    sketch.line(base[3], base[4], base[5], base[0])
    for n in (0, 3, 4, 5):
        sketch.line(base[n], apex)
    sketch.dashed(*(base[n] for n in (0, 1, 2, 3)))
    for n in (1, 2):
        sketch.dashed(base[n], apex)
    polygon_radii(sketch, (0, 0), base)
    sketch.measure((0, 0), apex, "h", share=0.45)
    sketch.measure(base[4], base[5], "s", -OFF)
    return sketch


def pyramid_frustrum():
    sketch = FigureSketch()
    width, depth, height = 2000, 1500, 1400
    front, back = block_points(width, depth, 1)
    base = [front[0], front[1], back[1], back[0]]
    center = between(base[0], base[2])
    top = [shifted(between(center, corner, 0.55), 0, height) for corner in base]
    sketch.polygon(*top)
    sketch.line(base[0], base[1], base[2])
    for n in range(3):
        sketch.line(base[n], top[n])
    sketch.dashed(base[0], base[3], base[2])
    sketch.dashed(base[3], top[3])
    sketch.text("A1", between(top[0], top[2]))
    sketch.text("A2", between(center, base[0], 0.45))
    foot = (base[2][0], center[1])
    head = shifted(foot, 0, height)
    sketch.measure(foot, head, "h", -OFF)
    sketch.dashed(between(base[1], base[2]), foot)
    sketch.dashed(between(top[1], top[2]), head)
    return sketch


def wedge():
    sketch = FigureSketch()
    width, depth, height = 2000, 1300, 1300
    front, back = block_points(width, depth, 1)
    middles = (between(front[0], back[0]), between(front[1], back[1]))
    edge = (shifted(middles[0], 450, height), shifted(middles[1], -450, height))
    sketch.line(front[0], front[1], back[1])
    sketch.line(front[0], edge[0], edge[1], front[1])
    sketch.line(edge[1], back[1])
    sketch.dashed(front[0], back[0], back[1])
    sketch.dashed(back[0], edge[0])
    sketch.measure(front[0], front[1], "a", -OFF)
    sketch.measure(front[1], back[1], "b", -OFF)
    sketch.measure(edge[0], edge[1], "c", OFF)
    foot = between(*middles)
    sketch.measure(foot, shifted(foot, 0, height), "h")
    return sketch


def standing(sketch, center, radius, top):
    """A cylinder's bottom and sides, up to the heights of its left and right side."""
    tilt = radius * TILT
    left, right = center[0] - radius, center[0] + radius
    sketch.ellipse(center, radius, tilt, 180, 360)
    sketch.hidden_ellipse(center, radius, tilt, 0, 180)
    sketch.line((left, center[1]), (left, top[0]))
    sketch.line((right, center[1]), (right, top[1]))


def cylinder():
    sketch = FigureSketch()
    r, height = 850, 1700
    standing(sketch, (0, 0), r, (height, height))
    sketch.ellipse((0, height), r, r * TILT)
    sketch.measure((0, height), (r, height), "r")
    sketch.dot((0, height))
    sketch.measure((-r, 0), (r, 0), "d", -r * TILT - OFF)
    sketch.measure((r, 0), (r, height), "h", -OFF)
    return sketch


def slanted_ellipse(sketch, radius, low, high):
    """The cut through a cylinder on the y axis, from its left side to its right side."""
    points = [
        (x, low + (high - low) * (x + radius) / (2 * radius) + y)
        for x, y in sketch.ellipse_points((0, 0), radius, radius * TILT)
    ]
    sketch.line(*points)


def cylinder_portion_1():
    sketch = FigureSketch()
    r, h1, h2 = 850, 1000, 1900
    standing(sketch, (0, 0), r, (h1, h2))
    slanted_ellipse(sketch, r, h1, h2)
    sketch.dot((0, 0))
    sketch.measure((0, 0), (r, 0), "r")
    sketch.measure((-r, 0), (r, 0), "d", -r * TILT - OFF)
    sketch.measure((-r, 0), (-r, h1), "h1", OFF + 50)
    sketch.measure((r, 0), (r, h2), "h2", -OFF - 50)
    return sketch


def cylinder_portion_2():
    """From the side, and below it from above: a plane through a chord of the base."""
    sketch = FigureSketch()
    r, b, height, level = 800, 330, 1000, 1150
    chord = -b  # the base lies on its right
    half = (r * r - b * b) ** 0.5
    side = angle_of((0, 0), (chord, half))
    sketch.polygon((chord, level), (r, level), (r, level + height))
    sketch.dashed((chord, level), (-r, level), (-r, level + height), (r, level + height))
    sketch.measure((r, level), (r, level + height), "h", -OFF)
    sketch.arc((0, 0), r, -side, side)
    sketch.line((chord, -half), (chord, half))
    sketch.hidden_ellipse((0, 0), r, r, side, 360 - side)
    sketch.witness((chord, half + 30), (chord, level - 30))
    sketch.witness((r, 30), (r, level - 30))
    sketch.radius((0, 0), r, 35, "r")
    sketch.measure((chord, 0), (0, 0), "b")
    sketch.measure((chord, 0), (chord, half), "a", r - b + OFF)
    sketch.witness((chord + 30, 0), (-r - OFF - 30, 0))
    sketch.measure((-r, 0), (r, 0), "d", -r - OFF)
    return sketch


def cylinder_hollow():
    sketch = FigureSketch()
    R, r, height = 900, 520, 1300
    standing(sketch, (0, 0), R, (height, height))
    sketch.ellipse((0, height), R, R * TILT)
    sketch.ellipse((0, height), r, r * TILT)
    sketch.hidden_ellipse((0, 0), r, r * TILT)
    for x in (-r, r):
        sketch.dashed((x, 0), (x, height))
    sketch.measure((-r, height), (r, height), "d", R * TILT + OFF)
    sketch.measure((-R, height), (R, height), "D", R * TILT + 2 * OFF)
    sketch.dot((0, height))
    sketch.measure((0, height), (r, height), "r")
    sketch.dot((0, 0))
    sketch.measure((0, 0), (R, 0), "R", -R * TILT - OFF)
    sketch.pinched((-R, 0.55 * height), (-r, 0.55 * height), "t", reach=170)
    sketch.measure((R, 0), (R, height), "h", -OFF)
    return sketch


def cone():
    sketch = FigureSketch()
    r, height = 950, 1900
    sketch.ellipse((0, 0), r, r * TILT, 180, 360)
    sketch.hidden_ellipse((0, 0), r, r * TILT, 0, 180)
    sketch.line((-r, 0), (0, height), (r, 0))
    sketch.measure((0, 0), (0, height), "H", share=0.42)
    sketch.measure((0, 0), (r, 0), "r")
    sketch.measure((0, height), (r, 0), "S", OFF)
    sketch.measure((-r, 0), (r, 0), "D", -r * TILT - OFF)
    return sketch


def cone_frustrum():
    sketch = FigureSketch()
    R, r, height = 1000, 560, 1300
    sketch.ellipse((0, 0), R, R * TILT, 180, 360)
    sketch.hidden_ellipse((0, 0), R, R * TILT, 0, 180)
    sketch.ellipse((0, height), r, r * TILT)
    sketch.line((-R, 0), (-r, height))
    sketch.line((R, 0), (r, height))
    sketch.dot((0, height))
    sketch.measure((0, height), (r, height), "r")
    sketch.measure((-r, height), (r, height), "d", r * TILT + OFF)
    sketch.measure((0, 0), (R, 0), "R")
    sketch.measure((-R, 0), (R, 0), "D", -R * TILT - OFF)
    sketch.measure((0, 0), (0, height), "h")
    sketch.measure((r, height), (R, 0), "s", OFF)
    return sketch


def ball(sketch, r):
    sketch.circle((0, 0), r)
    sketch.ellipse((0, 0), r, r * TILT, 180, 360)
    sketch.hidden_ellipse((0, 0), r, r * TILT, 0, 180)


def sphere():
    sketch = FigureSketch()
    r = 1050
    ball(sketch, r)
    sketch.radius((0, 0), r, 50, "r")
    sketch.measure((-r, 0), (r, 0), "D", -r - OFF)
    return sketch


def cap(r, angle):
    """Half the chord of a sphere's circle at this latitude, and its level."""
    return r * cos(radians(angle)), r * sin(radians(angle))


def spherical_sector():
    sketch = FigureSketch()
    r, angle = 1500, 52
    half, level = cap(r, angle)
    sketch.arc((0, 0), r, angle, 180 - angle)
    sketch.line((-half, level), (0, 0), (half, level))
    sketch.ellipse((0, level), half, half * TILT, 180, 360)
    sketch.hidden_ellipse((0, level), half, half * TILT, 0, 180)
    sketch.measure((0, 0), (half, level), "r", -OFF)
    sketch.measure((0, level), (0, r), "h", -half - OFF)
    sketch.witness((30, r), (half + OFF + 30, r))
    sketch.witness((half + 30, level), (half + OFF + 30, level))
    sketch.measure((-half, level), (half, level), "c", r - level + OFF)
    sketch.hidden_ellipse((0, 0), r, r, 180 - angle, 220)
    sketch.hidden_ellipse((0, 0), r, r, angle, -40)
    return sketch


def spherical_segment():
    sketch = FigureSketch()
    r, angle = 1300, 30
    half, level = cap(r, angle)
    sketch.arc((0, 0), r, angle, 180 - angle)
    sketch.ellipse((0, level), half, half * TILT, 180, 360)
    sketch.hidden_ellipse((0, level), half, half * TILT, 0, 180)
    sketch.hidden_ellipse((0, 0), r, r, 180 - angle, 220)
    sketch.hidden_ellipse((0, 0), r, r, angle, -40)
    sketch.radius((0, 0), r, 65, "r", share=0.66)
    sketch.measure((half, level), (half, r), "h", -OFF)
    sketch.witness((30, r), (half + OFF + 30, r))
    sketch.measure((-half, level), (half, level), "c", r - level + OFF)
    return sketch


def spherical_zone():
    sketch = FigureSketch()
    r, low, high = 1200, -8, 50
    top, bottom = cap(r, high), cap(r, low)
    for start, end in ((low, high), (180 - high, 180 - low)):
        sketch.arc((0, 0), r, start, end)
    sketch.ellipse((0, top[1]), top[0], top[0] * TILT)
    sketch.ellipse((0, bottom[1]), bottom[0], bottom[0] * TILT, 180, 360)
    sketch.hidden_ellipse((0, bottom[1]), bottom[0], bottom[0] * TILT, 0, 180)
    sketch.hidden_ellipse((0, 0), r, r, high, 180 - high)
    sketch.hidden_ellipse((0, 0), r, r, 180 - low, 360 + low)
    sketch.radius((0, 0), r, 22, "r")
    sketch.measure((-top[0], top[1]), (top[0], top[1]), "C1", r - top[1] + OFF)
    sketch.measure((-bottom[0], bottom[1]), (bottom[0], bottom[1]), "C2", -r - bottom[1] - OFF)
    sketch.measure((r, bottom[1]), (r, top[1]), "h", -OFF)
    sketch.witness((top[0] + 30, top[1]), (r, top[1]))
    return sketch


def spherical_wedge():
    sketch = FigureSketch()
    r = 1150
    edges = (260, 900)  # half widths of the two circles that bound the wedge
    sketch.ellipse((0, 0), edges[0], r, 90, 270)
    sketch.ellipse((0, 0), edges[1], r, -90, 90)
    sketch.line((0, -r), (0, r))
    sketch.hidden_ellipse((0, 0), r, r)
    tilt = r * TILT
    left = sketch.ellipse_points((0, 0), r, tilt, 180, 360)
    sketch.dashed(*left)
    # Where the equator meets the two faces, and the angle between them.
    ends = [-degrees(acos(-edges[0] / r)), -degrees(acos(edges[1] / r))]
    for end in ends:
        sketch.line((0, 0), sketch.ellipse_points((0, 0), r, tilt, end, end + 1)[0])
    angle = sketch.ellipse_points((0, 0), 0.55 * r, 0.55 * tilt, *ends)
    sketch.pen(MEASURE).line(*angle)
    sketch.arrow_head(angle[3], angle[0])
    sketch.arrow_head(angle[-4], angle[-1])
    sketch.text("a", (170, -390))
    sketch.radius((0, 0), r, 48, "r", share=0.6)
    return sketch


def hollow_sphere():
    """Cut in halves."""
    sketch = FigureSketch()
    R, r = 1000, 640
    sketch.circle((0, 0), R)
    sketch.circle((0, 0), r)
    sketch.radius((0, 0), r, 140, "r")
    sketch.radius((0, 0), R, 40, "R", share=0.38)
    sketch.measure((-r, 0), (r, 0), "d", -R - OFF)
    sketch.measure((-R, 0), (R, 0), "D", -R - 2 * OFF)
    sketch.pinched((r, 0), (R, 0), "R-r", reach=200)
    for off in range(-960, 961, 120):  # of a slanted line from the center
        outer = (R * R - off * off) ** 0.5
        inner = max(r * r - off * off, 0) ** 0.5
        ends = [outer, -outer] if inner == 0 else [outer, inner, -inner, -outer]
        ends = [((off + along) / 2**0.5, (along - off) / 2**0.5) for along in ends]
        for start, end in zip(ends[::2], ends[1::2]):
            sketch.pen(SUPPORT).line(start, end)
    return sketch


def torus():
    """Cut through its axis."""
    sketch = FigureSketch()
    R, r = 1000, 380
    for x in (-R, R):
        sketch.circle((x, 0), r)
        sketch.witness((x - 60, 0), (x + 60, 0))
        sketch.witness((x, -60), (x, 60))
    for y in (-r, r):
        sketch.line((-R, y), (R, y))
    sketch.dashed((0, -r - 150), (0, r + 150))
    sketch.measure((0, 0), (R, 0), "R", share=0.35)
    sketch.radius((-R, 0), r, 50, "r", share=0.5)
    sketch.measure((R, -r), (R, r), "d", -r - OFF)
    sketch.measure((-R + r, 0), (R - r, 0), "I.D.", -r - OFF)
    sketch.measure((-R - r, 0), (R + r, 0), "O.D.", -r - 2 * OFF)
    return sketch


def write(folder):
    write_sketches(
        folder / "Volumes.plt",
        "Volumes.plt: sketches of the solids",
        [
            ("CUBE", cube()),
            ("RECTANGULAR PRISM", rectangular_prism()),
            ("PRISM", prism()),
            ("PYRAMID RB", pyramid_rectangular()),
            ("PYRAMID", pyramid_polygon()),
            ("PYRAMID FRUSTRUM", pyramid_frustrum()),
            ("WEDGE", wedge()),
            ("CYLINDER", cylinder()),
            ("CYLINDER PORTION 1", cylinder_portion_1()),
            ("CYLINDER PORTION 2", cylinder_portion_2()),
            ("CYLINDER HOLLOW", cylinder_hollow()),
            ("CONE", cone()),
            ("CONE FRUSTRUM", cone_frustrum()),
            ("SPHERE", sphere()),
            ("SPHERICAL SECTOR", spherical_sector()),
            ("SPHERICAL SEGMENT", spherical_segment()),
            ("SPHERICAL ZONE", spherical_zone()),
            ("SPHERICAL WEDGE", spherical_wedge()),
            ("HOLLOW SPHERE", hollow_sphere()),
            ("TORUS", torus()),
        ],
    )
