"""The sketches of the beam cases: beams.dat."""

from sketches.strokes import LOAD, MEASURE, OUTLINE, SUPPORT, Sketch, write_sketches

# Levels, from the bottom up.
LENGTH = 26  # dimension lines: of the length, of its parts, of the place x
PARTS = 88
PLACE = 150
BOTTOM, TOP = 236, 258  # of the beam
LOAD_TOP = 350
LETTERS = 364

LEFT, RIGHT = 100, 900  # ends of the beam
MIDDLE = (LEFT + RIGHT) / 2
X = 265  # where the place x is drawn


class Beam(Sketch):
    """A beam with what holds and loads it, from left to right."""

    def __init__(self, left=LEFT, right=RIGHT):
        super().__init__()
        self.left, self.right = left, right
        self.box(left, BOTTOM, right, TOP)

    # ---- Supports, each with its reaction ----

    def reaction(self, x, text, side):
        self.pen(SUPPORT).arrow((x, PLACE - 22), (x, 184))
        self.letters(text, x + 20 * side, PLACE - 24, anchor=0 if side > 0 else 1)

    def pin(self, x, text, side=-1):
        self.pen(SUPPORT).polygon((x, BOTTOM), (x - 24, 200), (x + 24, 200))
        self.line((x - 40, 200), (x + 40, 200))
        self.hatch((x - 40, 200), (x + 40, 200), (0, -12), (-10, 0), 5)
        self.reaction(x, text, side)

    def roller(self, x, text, side=1):
        self.pen(SUPPORT).circle((x, BOTTOM - 18), 18)
        self.line((x - 40, 200), (x + 40, 200))
        self.hatch((x - 40, 200), (x + 40, 200), (0, -12), (-10, 0), 5)
        self.reaction(x, text, side)

    def wall(self, x, text, side):
        """Holds the end of the beam on the left (-1) or right (1)."""
        self.pen(SUPPORT).line((x, 192), (x, 302))
        self.line((x + 3 * side, 192), (x + 3 * side, 302))
        self.hatch((x, 192), (x, 302), (24 * side, 0), (0, -16), 6)
        self.reaction(x, text, side)

    def simple(self):
        self.pin(self.left, "R1")
        self.roller(self.right, "R2")

    # ---- Loads ----

    def force(self, x, text):
        self.pen(LOAD).arrow((x, LOAD_TOP), (x, TOP))
        self.letters(text, x, LETTERS)

    def spread(self, start, end, text, heights=(1, 1)):
        """A distributed load between its heights at both ends, from 0 to 1."""
        self.pen(LOAD)
        full = LOAD_TOP - TOP - 8
        tops = [TOP + full * height for height in heights]
        self.line((start, TOP), (start, tops[0]), (end, tops[1]), (end, TOP))
        count = max(2, round((end - start) / 52))
        for n in range(count + 1):
            x = start + (end - start) * n / count
            top = tops[0] + (tops[1] - tops[0]) * n / count
            if top > TOP + 14:
                self.arrow((x, top), (x, TOP))
        if text:
            at = (start + end) / 2 if heights[0] == heights[1] else end - 60
            self.letters(text, at, LETTERS)

    def moment(self, x, start, end, at):
        """A turning arrow about a point of the beam, to the angle `end`, and its letter."""
        center = (x, (BOTTOM + TOP) / 2)
        points = self.arc_points(center, 56, start, end)
        self.pen(LOAD).line(*points)
        self.arrow_head(points[-2], points[-1])
        self.letters("M", *at)

    # ---- Dimensions ----

    def measure(self, level, *marks):
        """Dimension lines on a level: places along the beam, parted by texts."""
        self.pen(MEASURE)
        for place in marks[::2]:
            if level == PLACE:
                continue
            self.line((place, PLACE - 30), (place, level - 14))
        for start, text, end in zip(marks[::2], marks[1::2], marks[2::2]):
            self.dimension((start, level), (end, level), text)

    def length(self, start=None, end=None):
        self.measure(LENGTH, start or self.left, "L", end or self.right)

    def place(self, start=None, x=X):
        """The place x, from the left end on."""
        self.pen(MEASURE).line((x, BOTTOM + 34), (x, PLACE - 14))
        self.measure(PLACE, start or self.left, "x", x)


def simple_span():
    beam = Beam()
    beam.simple()
    return beam


def cantilever():
    """Free on the left, held on the right."""
    beam = Beam()
    beam.wall(RIGHT, "R", 1)
    return beam


def held_both():
    beam = Beam()
    beam.wall(LEFT, "R1", -1)
    beam.wall(RIGHT, "R2", 1)
    return beam


def propped():
    """Simply supported on the left, held on the right."""
    beam = Beam()
    beam.pin(LEFT, "R1")
    beam.wall(RIGHT, "R2", 1)
    return beam


def overhung_right(second):
    beam = Beam()
    beam.pin(LEFT, "R1")
    beam.roller(second, "R2", side=-1)
    return beam


def overhung_both(first, second):
    beam = Beam()
    beam.pin(first, "R1", side=1)
    beam.roller(second, "R2", side=-1)
    return beam


def held_and_overhung(support):
    """Overhung on the left, held on the right."""
    beam = Beam()
    beam.pin(support, "R1", side=1)
    beam.wall(RIGHT, "R2", 1)
    return beam


def parts(beam, *marks):
    beam.measure(PARTS, *marks)


def finish(beam, place=True):
    if place:
        beam.place()
    beam.length()
    return beam


def case_1():
    beam = simple_span()
    beam.force(MIDDLE, "P")
    parts(beam, LEFT, "L/2", MIDDLE, "L/2", RIGHT)
    return finish(beam)


def case_2():
    beam = simple_span()
    for x in (LEFT + 250, RIGHT - 250):
        beam.force(x, "P")
    parts(beam, LEFT, "a", LEFT + 250)
    parts(beam, RIGHT - 250, "a", RIGHT)
    return finish(beam)


def case_3():
    beam = simple_span()
    beam.force(LEFT + 520, "P")
    parts(beam, LEFT, "a", LEFT + 520, "b", RIGHT)
    return finish(beam)


def case_4():
    beam = simple_span()
    beam.force(320, "P1")
    beam.force(560, "P2")
    parts(beam, LEFT, "a", 320, "b", 560, "c", RIGHT)
    return finish(beam, place=False)


def case_5():
    beam = simple_span()
    beam.force(350, "P")
    beam.force(610, "P")
    parts(beam, LEFT, "a", 350, "b", 610, "c", RIGHT)
    return finish(beam)


def case_6():
    beam = simple_span()
    beam.spread(LEFT, RIGHT, "w")
    return finish(beam)


def case_7():
    beam = simple_span()
    beam.spread(LEFT, RIGHT, "W", (0, 1))
    return finish(beam)


def case_8():
    beam = simple_span()
    beam.spread(LEFT, MIDDLE, "", (0, 1))
    beam.spread(MIDDLE, RIGHT, "", (1, 0))
    beam.letters("W", MIDDLE, LETTERS)
    parts(beam, LEFT, "L/2", MIDDLE, "L/2", RIGHT)
    return finish(beam)


def case_9():
    beam = simple_span()
    beam.spread(LEFT, 500, "w")
    parts(beam, LEFT, "a", 500)
    return finish(beam)


def case_10():
    beam = simple_span()
    beam.spread(340, 640, "w")
    parts(beam, LEFT, "a", 340, "b", 640, "c", RIGHT)
    return finish(beam)


def case_11():
    beam = simple_span()
    beam.spread(LEFT, 380, "w1")
    beam.spread(660, RIGHT, "w2")
    parts(beam, LEFT, "a", 380, "b", 660, "c", RIGHT)
    return finish(beam)


def case_12():
    beam = simple_span()
    beam.moment(LEFT, 250, 110, (44, 300, 1))
    beam.moment(RIGHT, -70, 70, (956, 300, 0))
    return finish(beam)


def case_13():
    beam = simple_span()
    beam.moment(520, -50, 230, (520, 318))
    beam.circle((520, (BOTTOM + TOP) / 2), 5)
    parts(beam, LEFT, "a", 520, "b", RIGHT)
    return finish(beam)


def case_14():
    beam = cantilever()
    beam.force(LEFT, "P")
    return finish(beam)


def case_15():
    beam = cantilever()
    beam.moment(LEFT, 110, 250, (44, 300, 1))
    return finish(beam)


def case_16():
    beam = cantilever()
    beam.spread(LEFT, RIGHT, "w")
    return finish(beam)


def case_17():
    beam = cantilever()
    beam.spread(LEFT, RIGHT, "W", (0, 1))
    return finish(beam)


def case_18():
    beam = cantilever()
    beam.force(400, "P")
    parts(beam, LEFT, "a", 400)
    return finish(beam)


def case_19():
    beam = overhung_both(280, 720)
    beam.spread(LEFT, RIGHT, "w")
    parts(beam, LEFT, "a", 280)
    parts(beam, 720, "a", RIGHT)
    return finish(beam, place=False)


def case_20():
    beam = overhung_right(680)
    beam.force(RIGHT, "P")
    beam.measure(PARTS, 680, "a", RIGHT)
    beam.place()
    beam.length(end=680)
    return beam


def case_21():
    beam = overhung_right(680)
    beam.force(420, "P")
    parts(beam, 420, "b", 680, "a", RIGHT)
    beam.place()
    beam.length(end=680)
    return beam


def case_22():
    beam = overhung_both(280, 720)
    beam.force(LEFT, "P")
    beam.force(RIGHT, "P")
    parts(beam, LEFT, "a", 280)
    parts(beam, 720, "a", RIGHT)
    beam.length(280, 720)
    return beam


def case_23():
    beam = overhung_right(640)
    beam.spread(640, RIGHT, "w")
    parts(beam, 640, "a", RIGHT)
    beam.length(end=640)
    return beam


def case_24():
    beam = overhung_right(640)
    beam.spread(LEFT, 640, "w")
    parts(beam, 640, "a", RIGHT)
    beam.length(end=640)
    return beam


def case_25():
    beam = held_both()
    beam.spread(LEFT, RIGHT, "w")
    return finish(beam)


def case_26():
    beam = held_both()
    beam.force(MIDDLE, "P")
    parts(beam, LEFT, "L/2", MIDDLE, "L/2", RIGHT)
    return finish(beam)


def case_27():
    beam = held_both()
    beam.force(620, "P")
    parts(beam, LEFT, "a", 620, "b", RIGHT)
    return finish(beam, place=False)


def case_28():
    beam = propped()
    beam.spread(LEFT, RIGHT, "w")
    return finish(beam)


def case_29():
    beam = propped()
    beam.force(MIDDLE, "P")
    parts(beam, LEFT, "L/2", MIDDLE, "L/2", RIGHT)
    return finish(beam)


def case_30():
    beam = propped()
    beam.force(620, "P")
    parts(beam, LEFT, "a", 620, "b", RIGHT)
    return finish(beam, place=False)


def case_31():
    beam = held_and_overhung(360)
    beam.force(LEFT, "P")
    parts(beam, LEFT, "a", 360)
    beam.length(start=360)
    return beam


def case_32():
    beam = held_and_overhung(360)
    beam.spread(LEFT, 360, "w")
    parts(beam, LEFT, "a", 360)
    beam.length(start=360)
    return beam


def write(folder):
    draw = [globals()[f"case_{n}"] for n in range(1, 33)]
    write_sketches(
        folder / "beams.dat",
        "beams.dat: sketches of the beam cases",
        [(f"Case {n:02}", case()) for n, case in enumerate(draw, 1)],
    )
