"""Strokes for sketches, and the writer of sketch files.

A sketch is drawn by a pen plotter's commands: "SP" and a digit select a pen, "PU" and "PD" lift and
lower it, "PA" goes to a point. All is strokes, letters and arrow heads too. y grows upwards. The
reader fits a sketch between 0 and its largest coordinates.
"""

from math import atan2, cos, hypot, radians, sin

# The pens, as the reader colours them.
OUTLINE, LOAD, MEASURE, SUPPORT = 1, 2, 4, 6  # black, red, blue, grey

CAP_HEIGHT = 8  # of the letters below, in their own units
SUBSCRIPT = 0.7
LETTER_GAP = 1.8

# Each letter is strokes, parted by bars, of points.
LETTERS = {
    "A": "0,0 3,8 6,0|1,3 5,3",
    "B": "0,0 0,8 3.5,8 5,7 5,5.3 3.5,4.2 0,4.2|3.5,4.2 5.3,3.2 5.3,1 3.7,0 0,0",
    "C": "5.5,6.5 4.3,8 1.7,8 0,6.2 0,1.8 1.7,0 4.3,0 5.5,1.5",
    "D": "0,0 0,8 3,8 5.5,6 5.5,2 3,0 0,0",
    "E": "5,8 0,8 0,0 5,0|0,4.2 4,4.2",
    "F": "5,8 0,8 0,0|0,4.2 4,4.2",
    "G": "5.5,6.5 4.3,8 1.7,8 0,6.2 0,1.8 1.7,0 4.3,0 5.5,1.5 5.5,3.6 3.2,3.6",
    "H": "0,0 0,8|5.5,0 5.5,8|0,4.2 5.5,4.2",
    "I": "0,0 0,8",
    "J": "3.6,8 3.6,1.5 2.4,0 1.1,0 0,1.3",
    "K": "0,0 0,8|5,8 0,3|1.8,4.8 5.2,0",
    "L": "0,8 0,0 4.6,0",
    "M": "0,0 0,8 3.3,2.5 6.6,8 6.6,0",
    "N": "0,0 0,8 5.5,0 5.5,8",
    "O": "1.7,0 0,1.8 0,6.2 1.7,8 3.9,8 5.6,6.2 5.6,1.8 3.9,0 1.7,0",
    "P": "0,0 0,8 3.6,8 5.2,6.9 5.2,5 3.6,3.8 0,3.8",
    "Q": "1.7,0 0,1.8 0,6.2 1.7,8 3.9,8 5.6,6.2 5.6,1.8 3.9,0 1.7,0|3.4,2.2 5.8,-0.6",
    "R": "0,0 0,8 3.6,8 5.2,6.9 5.2,5 3.6,3.8 0,3.8|2.8,3.8 5.4,0",
    "S": "5,6.8 3.8,8 1.5,8 0.1,6.8 0.1,5.3 1.2,4.4 4,3.7 5.2,2.7 5.2,1.2 3.9,0 1.3,0 0,1.2",
    "T": "0,8 5.6,8|2.8,8 2.8,0",
    "U": "0,8 0,1.8 1.6,0 3.9,0 5.5,1.8 5.5,8",
    "V": "0,8 3,0 6,8",
    "W": "0,8 1.8,0 3.8,6.5 5.8,0 7.6,8",
    "X": "0,0 5.4,8|0,8 5.4,0",
    "Y": "0,8 2.8,4 5.6,8|2.8,4 2.8,0",
    "Z": "0,8 5.2,8 0,0 5.2,0",
    "a": "4.2,5.2 4.2,0|4.2,4 3,5.2 1.4,5.2 0,3.9 0,1.3 1.4,0 3,0 4.2,1.2",
    "b": "0,8 0,0|0,1.2 1.2,0 2.8,0 4.2,1.3 4.2,3.9 2.8,5.2 1.2,5.2 0,4",
    "c": "4,4.2 2.9,5.2 1.4,5.2 0,3.9 0,1.3 1.4,0 2.9,0 4,1",
    "d": "4.2,8 4.2,0|4.2,4 3,5.2 1.4,5.2 0,3.9 0,1.3 1.4,0 3,0 4.2,1.2",
    "e": "0,2.8 4.2,2.8 4.2,3.9 2.9,5.2 1.4,5.2 0,3.9 0,1.3 1.4,0 2.9,0 4,1",
    "f": "2.8,8 1.8,8 1,7.2 1,0|0,5.2 2.5,5.2",
    "g": "4.2,5.2 4.2,-1.4 3,-2.6 1.2,-2.6|4.2,4 3,5.2 1.4,5.2 0,3.9 0,1.3 1.4,0 3,0 4.2,1.2",
    "h": "0,8 0,0|0,3.8 1.3,5.2 2.9,5.2 4,4.1 4,0",
    "i": "0,0 0,5.2|0,7 0,7.6",
    "j": "1,5.2 1,-1.6 0,-2.6|1,7 1,7.6",
    "k": "0,8 0,0|3.8,5.2 0,1.8|1.3,3 4,0",
    "l": "0,8 0,0",
    "m": "0,5.2 0,0|0,4 1,5.2 2.2,5.2 3,4.2 3,0|3,4 4,5.2 5.2,5.2 6,4.2 6,0",
    "n": "0,5.2 0,0|0,3.8 1.3,5.2 2.9,5.2 4,4.1 4,0",
    "o": "1.4,0 0,1.3 0,3.9 1.4,5.2 2.8,5.2 4.2,3.9 4.2,1.3 2.8,0 1.4,0",
    "p": "0,5.2 0,-2.6|0,4 1.2,5.2 2.8,5.2 4.2,3.9 4.2,1.3 2.8,0 1.2,0 0,1.2",
    "q": "4.2,5.2 4.2,-2.6|4.2,4 3,5.2 1.4,5.2 0,3.9 0,1.3 1.4,0 3,0 4.2,1.2",
    "r": "0,5.2 0,0|0,3.4 1.2,4.9 2.8,5.2",
    "s": "3.6,4.4 2.7,5.2 1,5.2 0.1,4.3 0.1,3.4 1,2.8 2.8,2.3 3.7,1.7 3.7,0.9 2.8,0 1,0 0,0.8",
    "t": "1.2,7.4 1.2,1 2,0 3,0|0,5.2 2.8,5.2",
    "u": "0,5.2 0,1.2 1.1,0 2.7,0 4,1.4|4,5.2 4,0",
    "v": "0,5.2 2.1,0 4.2,5.2",
    "w": "0,5.2 1.5,0 3,4.4 4.5,0 6,5.2",
    "x": "0,5.2 4,0|0,0 4,5.2",
    "y": "0,5.2 2.1,0|4.2,5.2 2.1,0 1.2,-2 0,-2.6",
    "z": "0,5.2 3.9,5.2 0,0 3.9,0",
    "0": "1.7,0 0,1.8 0,6.2 1.7,8 3.5,8 5.2,6.2 5.2,1.8 3.5,0 1.7,0",
    "1": "0,6.4 2,8 2,0",
    "2": "0,6.4 1.4,8 3.6,8 5,6.6 5,5.2 0,0 5.1,0",
    "3": "0.1,6.8 1.4,8 3.5,8 4.8,6.9 4.8,5.3 3.4,4.3 1.8,4.3|3.4,4.3 5,3.2 5,1.2 3.6,0 1.3,0 0,1.2",
    "4": "3.8,0 3.8,8 0,2.4 5.2,2.4",
    "5": "4.6,8 0.6,8 0.3,4.6 3.2,4.9 5,3.6 5,1.5 3.4,0 1.2,0 0,1",
    "6": "4.6,7.2 3.4,8 2,8 0,5.6 0,1.8 1.6,0 3.4,0 5,1.6 5,3 3.4,4.6 1.6,4.6 0,3",
    "7": "0,8 5,8 1.8,0",
    "8": "1.6,4.3 0.3,5.4 0.3,6.9 1.6,8 3.4,8 4.7,6.9 4.7,5.4 3.4,4.3 1.6,4.3 0,3.1 0,1.2 1.5,0"
    " 3.5,0 5,1.2 5,3.1 3.4,4.3",
    "9": "0.4,0.8 1.6,0 3,0 5,2.4 5,6.2 3.4,8 1.6,8 0,6.4 0,5 1.6,3.4 3.4,3.4 5,5",
    ".": "0,0 0,0.6",
    ",": "0.4,0.6 0,-1.2",
    "/": "0,-0.8 3.6,8.8",
    "-": "0,3 3.4,3",
    "+": "0,3 4,3|2,1 2,5",
    "=": "0,2 4,2|0,4.4 4,4.4",
    "(": "1.6,9 0,6 0,2 1.6,-1",
    ")": "0,9 1.6,6 1.6,2 0,-1",
    " ": "",
}


def strokes_of(letter):
    """The strokes of a letter, each a list of points."""
    return [
        [tuple(map(float, point.split(","))) for point in stroke.split()]
        for stroke in LETTERS[letter].split("|")
        if stroke
    ]


def set_letters(text):
    """The strokes of a text in the letters' units, and its width. A digit right behind a letter
    stands lower, as in P1."""
    strokes, width = [], 0
    for before, letter in zip(" " + text, text):
        low = letter.isdigit() and before.isalpha()
        size, drop = (SUBSCRIPT, -1.6) if low else (1, 0)
        own = strokes_of(letter)
        strokes += [[(width + size * x, drop + size * y) for x, y in stroke] for stroke in own]
        width += size * max((x for stroke in own for x, _ in stroke), default=2) + LETTER_GAP
    return strokes, width - LETTER_GAP


class Sketch:
    """The strokes of a picture, in any units; they are rounded to whole ones."""

    letter_height = 50
    head = 26  # length of an arrow's head

    def __init__(self):
        self._strokes = []  # pen and points
        self._pen = OUTLINE

    def pen(self, pen):
        self._pen = pen
        return self

    def line(self, *points):
        self._strokes.append((self._pen, [(round(x), round(y)) for x, y in points]))

    def polygon(self, *points):
        self.line(*points, points[0])

    def box(self, left, bottom, right, top):
        self.polygon((left, bottom), (right, bottom), (right, top), (left, top))

    def arc(self, center, radius, start, end):
        """Angles in degrees, from the right to the left over the top."""
        self.line(*self.arc_points(center, radius, start, end))

    @staticmethod
    def arc_points(center, radius, start, end):
        count = max(2, round(abs(end - start) / 12))
        angles = [radians(start + (end - start) * n / count) for n in range(count + 1)]
        return [(center[0] + radius * cos(a), center[1] + radius * sin(a)) for a in angles]

    def circle(self, center, radius):
        self.arc(center, radius, 0, 360)

    def arrow_head(self, tail, tip):
        angle = atan2(tip[1] - tail[1], tip[0] - tail[0])
        length = min(self.head, 0.6 * hypot(tip[0] - tail[0], tip[1] - tail[1]))
        sides = [
            (tip[0] - length * cos(angle + turn), tip[1] - length * sin(angle + turn))
            for turn in (radians(20), radians(-20))
        ]
        self.line(sides[0], tip, sides[1])

    def arrow(self, tail, tip):
        self.line(tail, tip)
        self.arrow_head(tail, tip)

    def letters(self, text, x, y, anchor=0.5, height=None):
        """A text on the base line y; x is its left edge, middle or right edge (anchor 0 to 1)."""
        scale = (height or self.letter_height) / CAP_HEIGHT
        strokes, width = set_letters(text)
        left = x - anchor * width * scale
        for stroke in strokes:
            self.line(*((left + scale * px, y + scale * py) for px, py in stroke))

    def dimension(self, start, end, text):
        """A level or upright dimension line with its text in a gap."""
        scale = self.letter_height / CAP_HEIGHT
        level = start[1] == end[1]
        _, width = set_letters(text)
        gap = (width * scale if level else self.letter_height) / 2 + 12
        middle = ((start[0] + end[0]) / 2, (start[1] + end[1]) / 2)
        along = (1, 0) if level else (0, 1)
        for tip, way in ((start, -1), (end, 1)):
            inner = (middle[0] + way * gap * along[0], middle[1] + way * gap * along[1])
            self.arrow(inner, tip)
        self.letters(text, middle[0], middle[1] - self.letter_height * 0.4)

    def hatch(self, start, end, depth, slant, count):
        """Short strokes on one side of a line: the ground or a wall."""
        for n in range(count):
            share = (n + 0.5) / count
            x = start[0] + (end[0] - start[0]) * share
            y = start[1] + (end[1] - start[1]) * share
            self.line((x, y), (x + depth[0] + slant[0], y + depth[1] + slant[1]))

    def commands(self):
        """The plotter commands, each closed by a semicolon, with the lowest coordinates 0."""
        left = min(x for _, points in self._strokes for x, _ in points)
        bottom = min(y for _, points in self._strokes for _, y in points)
        commands, pen = [], None
        for wanted, points in self._strokes:
            if wanted != pen:
                commands += ["PU", f"SP{wanted}"]
                pen = wanted
            to = [f"PA{x - left},{y - bottom}" for x, y in points]
            commands += ["PU", to[0], "PD", *to[1:]]
        return "".join(command + ";" for command in [*commands, "PU"])


def write_sketches(path, comment, sketches):
    """Each sketch by its name, in code page 1252 with CR LF line ends."""
    lines = [comment]
    for name, sketch in sketches:
        lines += [f"[{name}]", sketch.commands()]
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("cp1252"))
