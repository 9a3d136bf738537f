"""What the sketches of plane figures and of solids share: ellipses, dashes and slanted dimensions."""

from math import atan2, cos, degrees, hypot, radians, sin

from sketches.strokes import CAP_HEIGHT, MEASURE, OUTLINE, SUPPORT, Sketch, set_letters

DASH, GAP = 70, 45
CLEAR = 30  # around the text of a dimension, and between an outline and what is drawn off it


def polar(center, radius, angle):
    """A point of a circle; degrees, from the right to the left over the top."""
    return (center[0] + radius * cos(radians(angle)), center[1] + radius * sin(radians(angle)))


def shifted(point, dx=0, dy=0):
    return (point[0] + dx, point[1] + dy)


def between(start, end, share=0.5):
    return tuple(a + (b - a) * share for a, b in zip(start, end))


class FigureSketch(Sketch):
    letter_height = 105
    head = 80

    def scale(self, factor):
        """All that is drawn so far, letters too."""
        self._strokes = [
            (pen, [(round(x * factor), round(y * factor)) for x, y in points])
            for pen, points in self._strokes
        ]

    # ---- Outlines ----

    def ellipse_points(self, center, width, height, start=0, end=360):
        """Half axes; degrees of the parameter."""
        count = max(3, round(abs(end - start) / 5))
        angles = [radians(start + (end - start) * n / count) for n in range(count + 1)]
        return [(center[0] + width * cos(a), center[1] + height * sin(a)) for a in angles]

    def ellipse(self, center, width, height, start=0, end=360):
        self.line(*self.ellipse_points(center, width, height, start, end))

    def arc(self, center, radius, start, end):
        self.ellipse(center, radius, radius, start, end)

    def dashed(self, *points):
        """A line through the points, for an edge that is hidden or helps."""
        self.pen(SUPPORT)
        dash, left = [points[0]], DASH
        drawing = True
        for start, end in zip(points, points[1:]):
            length, done = hypot(end[0] - start[0], end[1] - start[1]), 0
            while length - done > left:
                done += left
                at = between(start, end, done / length)
                if drawing:
                    self.line(*dash, at)
                drawing = not drawing
                dash, left = [at], DASH if drawing else GAP
            left -= length - done
            dash.append(end)
        if drawing and len(dash) > 1:
            self.line(*dash)
        self.pen(OUTLINE)

    def hidden_ellipse(self, center, width, height, start=0, end=360):
        self.dashed(*self.ellipse_points(center, width, height, start, end))

    def dot(self, center):
        self.circle(center, 14)

    # ---- Dimensions ----

    def width_of(self, text):
        return set_letters(text)[1] * self.letter_height / CAP_HEIGHT

    def text(self, text, at):
        """Centred on a point."""
        self.pen(MEASURE).letters(text, at[0], at[1] - self.letter_height / 2)
        self.pen(OUTLINE)

    def measure(self, start, end, text, off=0, share=0.5):
        """A dimension line between two points, or at a distance to the left of the way between
        them, with its text in a gap."""
        self.pen(MEASURE)
        length = hypot(end[0] - start[0], end[1] - start[1])
        along = ((end[0] - start[0]) / length, (end[1] - start[1]) / length)
        across = (-along[1], along[0])
        side = 1 if off > 0 else -1
        tips = []
        for point in (start, end):
            tip = (point[0] + off * across[0], point[1] + off * across[1])
            if off:
                near, far = CLEAR * side, off + CLEAR * side
                self.line(
                    (point[0] + near * across[0], point[1] + near * across[1]),
                    (point[0] + far * across[0], point[1] + far * across[1]),
                )
            tips.append(tip)
        middle = between(*tips, share)
        # Half of what the line leaves free: where it would leave the text's box.
        half = min(
            (self.width_of(text) / 2 + CLEAR) / max(abs(along[0]), 1e-9),
            (self.letter_height / 2 + CLEAR) / max(abs(along[1]), 1e-9),
        )
        for tip, way in ((tips[0], -1), (tips[1], 1)):
            self.arrow((middle[0] + way * half * along[0], middle[1] + way * half * along[1]), tip)
        self.text(text, middle)

    def pinched(self, start, end, text, reach=230):
        """A short level or upright dimension: arrows from without, the text behind the end."""
        self.pen(MEASURE)
        length = hypot(end[0] - start[0], end[1] - start[1])
        along = ((end[0] - start[0]) / length, (end[1] - start[1]) / length)
        self.arrow((start[0] - reach * along[0], start[1] - reach * along[1]), start)
        tail = (end[0] + reach * along[0], end[1] + reach * along[1])
        self.arrow(tail, end)
        room = self.width_of(text) / 2 if along[0] else self.letter_height / 2
        room += CLEAR
        self.text(text, (tail[0] + room * along[0], tail[1] + room * along[1]))

    def leader(self, text, at, tip):
        """A text with an arrow to what it names."""
        self.pen(MEASURE)
        dx, dy = tip[0] - at[0], tip[1] - at[1]
        length = hypot(dx, dy)
        room = min(
            (self.width_of(text) / 2 + CLEAR) / max(abs(dx / length), 1e-9),
            (self.letter_height / 2 + CLEAR) / max(abs(dy / length), 1e-9),
        )
        self.arrow(between(at, tip, room / length), tip)
        self.text(text, at)

    def radius(self, center, radius, angle, text, share=0.55):
        """An arrow from the center to the circle."""
        self.pen(MEASURE)
        tip = polar(center, radius, angle)
        at = between(center, tip, share)
        dx, dy = abs(cos(radians(angle))), abs(sin(radians(angle)))
        half = min(
            (self.width_of(text) / 2 + CLEAR) / max(dx, 1e-9),
            (self.letter_height / 2 + CLEAR) / max(dy, 1e-9),
        )
        self.line(center, polar(center, radius * share - half, angle))
        self.arrow(polar(center, radius * share + half, angle), tip)
        self.text(text, at)
        self.dot(center)

    def bend(self, center, radius, start, end, text, share=0.5):
        """A dimension line along an arc: an angle, or the arc's length."""
        self.pen(MEASURE)
        middle = start + (end - start) * share
        half = degrees((max(self.width_of(text), self.letter_height) / 2 + CLEAR) / radius)
        way = 1 if end > start else -1
        for tip, side in ((start, -way), (end, way)):
            points = self.ellipse_points(center, radius, radius, middle + side * half, tip)
            self.line(*points)
            # The head follows the chord of its own length.
            back = degrees(self.head / radius)
            self.arrow_head(polar(center, radius, tip - side * back), points[-1])
        self.text(text, polar(center, radius, middle))

    def witness(self, *points):
        self.pen(MEASURE).line(*points)
        self.pen(OUTLINE)


def angle_of(center, point):
    return degrees(atan2(point[1] - center[1], point[0] - center[0]))
