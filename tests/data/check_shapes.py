"""Checks SHAPES.dat: each row against its own geometry, and against what handbooks print."""

import math
import re
import unittest

from table_reader import inches, lines_of

AXES = "Ix Sx rx Zx Iy Sy ry Zy"
COLUMNS = {
    "beam": f"d bf tw tf k fillet toe slope W A {AXES} J",
    "channel": f"d bf tw tf k fillet toe slope W A {AXES} x J",
    "angle": "d b t k fillet toe W A Ix Sx rx Zx y Iy Sy ry Zy x rz tan J",
    "tube": f"d b t outer inner W A {AXES} J",
}
STEEL, ALUMINUM = 490 / 144, 12 * 0.098  # lb/ft of 1 in2
KG_M = 0.45359237 / 0.3048


class Shape(dict):
    """A row: its numbers by name, and half of the last digit that each is printed with."""

    def __init__(self, us, metric, kind, texts):
        columns = COLUMNS[kind].split()
        if len(texts) != len(columns):
            raise ValueError(us)
        super().__init__(zip(columns, map(float, texts)))
        self.us, self.metric, self.kind = us, metric, kind
        self.slack = {}
        for name, text in zip(columns, texts):
            whole = len(text) if "." not in text else 0  # has three digits and then zeros
            places = max(whole - 3, 0) if whole else -len(text.partition(".")[2])
            self.slack[name] = 0.5 * 10.0**places

    def doubt(self, *names):
        """How much of itself a product of these values may be off."""
        return sum(self.slack[name] / self[name] for name in names)


def read_shapes():
    """The shapes by section, in their order."""
    found, kind, rows = {}, None, []
    for line in lines_of("SHAPES.dat")[1:]:
        if line.startswith("["):
            key, kind = line.split(",")
            rows = found.setdefault(key, [])
        elif line:
            us, metric, *texts = line.split(",")
            rows.append(Shape(us.strip('"'), metric.strip('"'), kind, texts))
    return found


class Pieces(list):
    """A section as pieces: area, centroid x and y, own moments about x and y."""

    def box(self, left, bottom, width, height, sign=1):
        area = sign * width * height
        x, y = left + width / 2, bottom + height / 2
        self.append((area, x, y, area * height**2 / 12, area * width**2 / 12))

    def wedge(self, x, y, across, up):
        """A triangle with its right angle at x, y and legs in the directions of their signs."""
        area = abs(across * up) / 2
        own = area * up**2 / 18, area * across**2 / 18
        self.append((area, x + across / 3, y + up / 3, *own))

    def rounding(self, x, y, radius, across, up, angle=90.0, sign=1):
        """What an arc leaves in a corner of so many degrees, on the sides of the signs."""
        half = math.radians(180 - angle) / 2
        area = sign * (math.tan(half) - half) * radius**2
        away = 0.2234 * radius * math.tan(half)
        own = 0.00754 * sign * radius**4
        self.append((area, x + across * away, y + up * away, own, own))

    def sums(self):
        area = sum(p[0] for p in self)
        x, y = (sum(p[0] * p[n] for p in self) / area for n in (1, 2))
        ix = sum(p[3] + p[0] * (p[2] - y) ** 2 for p in self)
        iy = sum(p[4] + p[0] * (p[1] - x) ** 2 for p in self)
        ixy = sum(p[0] * (p[1] - x) * (p[2] - y) for p in self)
        least = (ix + iy) / 2 - math.hypot((ix - iy) / 2, ixy)
        turn = math.atan2(2 * abs(ixy), ix - iy) / 2
        found = {"A": area, "x": x, "y": y, "Ix": ix, "Iy": iy, "rz": math.sqrt(least / area)}
        return found | {"tan": math.tan(turn)}


def flanged(shape):
    """A beam about its middle, or a channel with its back at x = 0."""
    d, bf, tw, tf = (shape[n] for n in ("d", "bf", "tw", "tf"))
    pieces = Pieces()
    beam = shape.kind == "beam"
    pieces.box(-tw / 2 if beam else 0, -d / 2, tw, d)
    reach = (bf - tw) / 2 if beam else bf - tw
    corner = 90 + math.degrees(math.atan(shape["slope"]))
    thin = tf - shape["slope"] * reach / 2
    for side in (-1, 1) if beam else (1,):
        root = side * tw / 2 if beam else tw
        for up in (-1, 1):
            face = up * (d / 2 - thin)
            pieces.box(min(root, root + side * reach), min(face, up * d / 2), reach, thin)
            pieces.wedge(root, face, side * reach, -up * shape["slope"] * reach)
            inner = face - up * shape["slope"] * reach
            tip = root + side * reach
            pieces.rounding(root, inner, shape["fillet"], side, -up, corner)
            pieces.rounding(tip, face, shape["toe"], -side, up, corner, -1)
    return pieces


def legs(shape, radii=True):
    """An angle with its heel at the origin."""
    d, b, t = shape["d"], shape["b"], shape["t"]
    pieces = Pieces()
    pieces.box(0, 0, t, d)
    pieces.box(t, 0, b - t, t)
    if radii:
        pieces.rounding(t, t, shape["fillet"], 1, 1)
        for x, y in ((t, d), (b, t)):
            pieces.rounding(x, y, shape["toe"], -1, -1, 90, -1)
    return pieces


def hollow(d, b, t, outer, inner):
    pieces = Pieces()
    for width, height, radius, sign in ((b, d, outer, 1), (b - 2 * t, d - 2 * t, inner, -1)):
        pieces.box(-width / 2, -height / 2, width, height, sign)
        for side in (-1, 1):
            for up in (-1, 1):
                corner = side * width / 2, up * height / 2
                pieces.rounding(*corner, radius, -side, -up, 90, -sign)
    return pieces


def tube_of(shape):
    return hollow(*(shape[n] for n in ("d", "b", "t", "outer", "inner")))


class ShapesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.sections = read_shapes()

    def each(self, check, *words):
        """Has the shapes of all sections checked whose keys have these words."""
        for key, shapes in self.sections.items():
            if all(word in key for word in words):
                for shape in shapes:
                    with self.subTest(f"{key} {shape.us}"):
                        check(shape)

    def compare(self, shape, found, name, share):
        told, slack = shape[name], shape.slack[name]
        self.assertLess(abs(found - told), share * told + 1.01 * slack, f"{name}: {found}")

    def test_sections_are_whole(self):
        counts = {key: len(shapes) for key, shapes in self.sections.items()}
        expected = {
            "[STEEL W-BEAMS]": 283,
            "[STEEL S-BEAMS]": 28,
            "[STEEL CHANNELS]": 32,
            "[STEEL EQUAL ANGLES]": 61,
            "[STEEL UNEQUAL ANGLES]": 76,
            "[STEEL SQUARE TUBING]": 107,
            "[STEEL RECTANGULAR TUBING]": 281,
            "[ALUMINUM ASSOCIATION I-BEAMS]": 15,
            "[ALUMINUM STANDARD W-BEAMS]": 15,
            "[ALUMINUM ASSOCIATION CHANNELS]": 20,
            "[ALUMINUM STANDARD CHANNELS]": 25,
            "[ALUMINUM EQUAL ANGLES]": 46,
            "[ALUMINUM UNEQUAL ANGLES]": 46,
            "[ALUMINUM SQUARE TUBING]": 30,
            "[ALUMINUM RECTANGULAR TUBING]": 30,
        }
        self.assertEqual(counts, expected)
        for key, shapes in self.sections.items():
            for names in ([s.us for s in shapes], [s.metric for s in shapes]):
                self.assertEqual(len(names), len(set(names)), key)
            for shape in shapes:
                self.assertTrue(all(v > 0 for c, v in shape.items() if c not in NONE_ALLOWED))

    def test_geometry_of_beams_and_channels(self):
        def check(shape):
            found = flanged(shape).sums()
            computed = shape.us[0] == "I" or shape.us.startswith("CS")
            # The flanges of the smallest rolled shapes are more than 2 % off their tables.
            small = shape["slope"] > 0 and shape["d"] <= 8
            share = 0.003 if computed else 0.01
            for name in ("A", "Ix", "x") if "x" in shape else ("A", "Ix"):
                self.compare(shape, found[name], name, share)
            self.compare(shape, found["Iy"], "Iy", 0.03 if small else 1.5 * share)

        self.each(check, "BEAMS")
        self.each(check, "CHANNELS")

    def test_geometry_of_angles(self):
        def check_rolled(shape):
            # The tables count some or all of the fillet, and round the toes of some.
            found = [legs(shape, radii).sums() for radii in (False, True)]
            for name, low in (("A", 0.01), ("Ix", 0.03), ("Iy", 0.03), ("rz", 0.03), ("tan", 0.01)):
                least, most = sorted(sums[name] for sums in found)
                slack = 1.01 * shape.slack[name]
                self.assertLess(shape[name], most * 1.006 + slack, name)
                self.assertGreater(shape[name], least * (1 - low) - slack, name)
            for name in "xy":
                self.compare(shape, found[1][name], name, 0.012)

        def check_extruded(shape):
            found = legs(shape).sums()
            for name in ("A", "Ix", "Iy", "x", "y", "rz", "tan"):
                self.compare(shape, found[name], name, 0.006)

        self.each(check_rolled, "STEEL", "ANGLES")
        self.each(check_extruded, "ALUMINUM", "ANGLES")

    def test_geometry_of_tubes(self):
        def check(shape):
            d, b, t, outer, inner = (shape[n] for n in ("d", "b", "t", "outer", "inner"))
            found = hollow(d, b, t, outer, inner).sums()
            for name in ("A", "Ix", "Iy"):
                self.compare(shape, found[name], name, 0.001)
            corner = (outer + inner) / 2
            around = 2 * (d + b) - 4 * t - (8 - 2 * math.pi) * corner
            within = (d - t) * (b - t) - (4 - math.pi) * corner**2
            self.compare(shape, 4 * within**2 * t / around, "J", 0.0005)

        self.each(check, "TUBING")

    def test_moduli_and_radii_follow(self):
        def check(shape):
            angle = shape.kind == "angle"
            across = shape["bf"] if "bf" in shape else shape["b"]
            far = {
                "x": shape["d"] - shape["y"] if angle else shape["d"] / 2,
                "y": across - shape["x"] if "x" in shape else across / 2,
            }
            for axis in "xy":
                inertia = "I" + axis
                doubt = shape.doubt(inertia)
                self.compare(shape, shape[inertia] / far[axis], "S" + axis, doubt + 0.009)
                radius = math.sqrt(shape[inertia] / shape["A"])
                doubt = shape.doubt(inertia, "A") / 2
                self.compare(shape, radius, "r" + axis, doubt + 0.005)

        self.each(check)

    def test_plastic_moduli(self):
        def check_wide_flange(shape):
            d, bf, tw, tf, r = (shape[n] for n in ("d", "bf", "tw", "tf", "fillet"))
            h, fillets = d - 2 * tf, 4 * (1 - math.pi / 4) * r * r
            about_x = bf * tf * (d - tf) + tw * h * h / 4 + fillets * (h / 2 - 0.2234 * r)
            about_y = tf * bf * bf / 2 + h * tw * tw / 4 + fillets * (tw / 2 + 0.2234 * r)
            self.compare(shape, about_x, "Zx", 0.01)
            self.compare(shape, about_y, "Zy", 0.012)

        # A box's shape factor is 1.5; walls far out bring it down, legs to one side up.
        factors = {
            "beam": ((1.08, 1.35), (1.45, 1.9)),
            "channel": ((1.13, 1.32), (1.7, 2.3)),
            "angle": ((1.7, 1.95), (1.7, 2.1)),
            "tube": ((1.07, 1.6), (1.07, 1.5)),
        }

        def check_factor(shape):
            for axis, (least, most) in zip("xy", factors[shape.kind]):
                factor = shape["Z" + axis] / shape["S" + axis]
                self.assertTrue(least < factor < most, factor)

        self.each(check_wide_flange, "STEEL W-BEAMS")
        self.each(check_factor)

    def test_torsion(self):
        def check_walls(shape):
            if shape.kind == "angle":
                d, b, t = shape["d"], shape["b"], shape["t"]
                walls = (d + b - t) * t**3 / 3
            else:
                d, bf, tw, tf = (shape[n] for n in ("d", "bf", "tw", "tf"))
                walls = (2 * bf * tf**3 + (d - 2 * tf) * tw**3) / 3
            # The joints of the walls add to what they have alone.
            self.assertTrue(0.93 < shape["J"] / walls < 1.6, shape["J"] / walls)

        def check_wide_flange(shape):
            # El Darwish and Johnston, 1965, for the joints of flange and web.
            bf, tw, tf, r = (shape[n] for n in ("bf", "tw", "tf", "fillet"))
            alpha = -0.042 + 0.2204 * tw / tf + 0.1355 * r / tf
            alpha -= 0.0865 * r * tw / tf**2 + 0.0725 * (tw / tf) ** 2
            circle = ((tf + r) ** 2 + tw * (r + tw / 4)) / (2 * r + tf)
            walls = 2 / 3 * bf * tf**3 + (shape["d"] - 2 * tf) * tw**3 / 3
            self.compare(shape, walls + 2 * alpha * circle**4 - 0.42 * tf**4, "J", 0.05)

        for kind in ("BEAMS", "CHANNELS", "ANGLES"):
            self.each(check_walls, kind)
        self.each(check_wide_flange, "STEEL W-BEAMS")

    def test_weights(self):
        def check_rolled(shape):
            if shape.kind != "angle":
                self.assertEqual(shape["W"], float(shape.us.split("x")[-1]))
            # C3x3.5 is printed with the area of 3.7 lb/ft.
            share = 0.06 if shape.us == "C3x3.5" else 0.017
            self.compare(shape, STEEL * shape["A"], "W", share)

        def check_tube(shape):
            d, b, t = map(inches, shape.us.removeprefix("HSS").split("x"))
            self.compare(shape, STEEL * hollow(d, b, t, 2 * t, t).sums()["A"], "W", 0.0005)
            self.compare(shape, 0.93 * t, "t", 0)

        for kind in ("BEAMS", "CHANNELS", "ANGLES"):
            self.each(check_rolled, "STEEL", kind)
        self.each(check_tube, "STEEL", "TUBING")
        self.each(lambda s: self.compare(s, ALUMINUM * s["A"], "W", 0.008), "ALUMINUM")

    def test_designations(self):
        # A6M names steel shapes by their series.
        series = {44: 1100, 40: 1000, 36: 920, 33: 840, 30: 760, 27: 690, 24: 610, 21: 530}
        series |= {20: 510, 18: 460, 16: 410, 15: 380, 14: 360, 12: 310, 10: 250, 9: 230, 8: 200}
        series |= {7: 180, 6: 150, 5: 130, 4: 100, 3: 75}

        def check(shape):
            letters = re.match("[A-Z]+", shape.us).group()
            self.assertTrue(shape.metric.startswith(letters))
            us = [inches(text) for text in shape.us[len(letters) :].split("x")]
            metric = [float(text) for text in shape.metric[len(letters) :].split("x")]
            if shape.kind in ("beam", "channel"):
                rolled = shape["W"] > 3 * shape["A"]
                self.assertEqual(metric[0], series[us[0]] if rolled else round(25.4 * us[0]))
                # C5x6.7 is named by 10.4 kg/m.
                share = 0.045 if shape.us.startswith("C5x") else 0.03
                self.assertLess(abs(metric[1] / (KG_M * us[1]) - 1), share)
                return
            slack = 0.51 if shape.kind == "angle" else 0.051
            for given, told in zip(us, metric):
                self.assertLess(abs(25.4 * given - told), slack)

        self.each(check)

    def test_published(self):
        """Values of second sources, which round in places of their own."""
        for key, rows in PUBLISHED.items():
            shapes = {shape.us: shape for shape in self.sections[key]}
            for us, (columns, texts) in rows.items():
                shape = shapes[us]
                for name, text in zip(columns.split(), texts.split(), strict=True):
                    slack = shape.slack[name] + 0.5 * 10.0 ** -len(text.partition(".")[2])
                    with self.subTest(f"{us} {name}"):
                        value = float(text)
                        self.assertLessEqual(abs(shape[name] - value), 0.0075 * value + slack)


NONE_ALLOWED = ("toe", "slope", "outer", "inner")
WIDE = "A d bf tf tw Ix Sx rx Iy Sy ry"
STANDARD = "d bf tw A Ix Iy Sx Sy"
HOLLOW = "W A Ix Zx Sx rx Iy Zy Sy ry J"
CHANNEL = "A Ix rx Iy Sy ry x J"
BEAM = "A Ix Sx rx Iy Sy ry"
ANGLE = "A Ix Sx y Iy Sy x"
PUBLISHED = {
    # A mechanics textbook's appendix of rolled shapes, 2010.
    "[STEEL W-BEAMS]": {
        "W36x302": (WIDE, "88.8 37.3 16.7 1.68 0.945 21100 1130 15.4 1300 156 3.82"),
        "W30x99": (WIDE, "29.1 29.7 10.50 0.670 0.520 3990 269 11.7 128 24.5 2.10"),
        "W24x68": (WIDE, "20.1 23.7 8.97 0.585 0.415 1830 154 9.55 70.4 15.7 1.87"),
        "W18x50": (WIDE, "14.7 18.0 7.50 0.570 0.355 800 88.9 7.38 40.1 10.7 1.65"),
        "W16x26": (WIDE, "7.68 15.7 5.50 0.345 0.250 301 38.4 6.26 9.59 3.49 1.12"),
        "W14x145": (WIDE, "42.7 14.8 15.5 1.09 0.680 1710 232 6.33 677 87.3 3.98"),
    },
    # A reference on the web.
    "[STEEL S-BEAMS]": {
        "S24x80": (STANDARD, "24 7.000 0.500 23.5 2100 42.2 175 12.1"),
        "S20x86": (STANDARD, "20.3 7.060 0.660 25.3 1580 46.8 155 13.3"),
        "S15x50": (STANDARD, "15 5.640 0.550 14.7 486 15.7 64.8 5.57"),
        "S12x35": (STANDARD, "12 5.078 0.428 10.3 229 9.87 38.2 3.89"),
        "S10x35": (STANDARD, "10 4.944 0.594 10.3 147 8.36 29.4 3.38"),
    },
    # A designer's example program, a list of stair stringers, a maker's list.
    "[STEEL CHANNELS]": {
        "C10x15.3": ("A Ix Iy Zx Sx rx", "4.48 67.3 2.27 15.9 13.5 3.87"),
        "C12x20.7": ("A Ix Iy tw tf rx ry", "6.08 129 3.88 0.282 0.501 4.61 0.799"),
        "C7x9.8": ("bf tw tf A", "2.09 0.210 0.366 2.87"),
        "C9x15": ("bf tw tf A", "2.49 0.285 0.413 4.41"),
        "C15x33.9": ("bf tw tf A", "3.40 0.400 0.650 9.96"),
    },
    # The tables of tubing in two open structural programs.
    "[STEEL SQUARE TUBING]": {
        "HSS22x22x7/8": ("W Ix", "244.88 4970"),
        "HSS16x16x1/2": (HOLLOW, "103.3 28.3 1130 164 141 6.31 1130 164 141 6.31 1770"),
        "HSS10x10x3/4": ("W Ix", "89.50 347"),
        "HSS6x6x5/16": ("W Ix", "23.34 34.3"),
        "HSS5-1/2x5-1/2x1/8": ("W Ix", "9.01 11.8"),
        "HSS2x2x1/4": ("W Ix", "5.41 0.747"),
    },
    "[STEEL RECTANGULAR TUBING]": {
        "HSS20x12x5/8": (HOLLOW, "127.37 35.0 1880 230 188 7.33 851 162 142 4.93 1890"),
        "HSS14x4x5/8": (HOLLOW, "67.82 18.7 373 73.1 53.3 4.47 47.2 28.5 23.6 1.59 148"),
        "HSS12x2x3/16": ("W Ix", "17.08 67.4"),
        "HSS8x3x1/4": ("W Ix", "17.32 35.5"),
        "HSS4x2-1/2x3/8": ("W Ix", "13.44 6.77"),
        "HSS2x1x1/8": ("W Ix", "2.20 0.280"),
    },
    # The Aluminum Design Manual, 2010, Table 4.
    "[ALUMINUM ASSOCIATION CHANNELS]": {
        "CS2x0.577": (CHANNEL, "0.490 0.288 0.766 0.0450 0.0639 0.303 0.296 0.00274"),
        "CS3x1.60": (CHANNEL, "1.36 1.97 1.20 0.417 0.368 0.554 0.617 0.0246"),
        "CS5x3.09": (CHANNEL, "2.63 11.1 2.06 2.05 1.14 0.884 0.955 0.0700"),
        "CS6x2.83": (CHANNEL, "2.41 14.4 2.44 1.53 0.896 0.798 0.788 0.0495"),
        "CS8x4.15": (CHANNEL, "3.53 37.4 3.26 3.25 1.57 0.959 0.934 0.102"),
    },
    # A structures textbook's appendix.
    "[ALUMINUM ASSOCIATION I-BEAMS]": {
        "I3x1.64": (BEAM, "1.392 2.24 1.49 1.27 0.52 0.42 0.61"),
        "I6x4.69": (BEAM, "3.990 25.5 8.50 2.53 3.74 1.87 0.97"),
        "I8x6.18": (BEAM, "5.256 59.69 14.92 3.37 7.30 2.92 1.18"),
        "I10x8.65": (BEAM, "7.352 132.09 26.42 4.24 14.78 4.93 1.42"),
        "I12x14.3": (BEAM, "12.153 317.33 52.89 5.11 35.48 10.14 1.71"),
    },
    # A list of sizes on the web.
    "[ALUMINUM STANDARD CHANNELS]": {
        "C3x1.42": ("bf tw tf A", "1.41 0.170 0.273 1.210"),
        "C5x3.11": ("bf tw tf A", "1.89 0.325 0.320 2.640"),
        "C7x3.38": ("bf tw tf A", "2.09 0.210 0.366 2.870"),
        "C10x6.91": ("bf tw tf A", "2.74 0.379 0.436 5.880"),
        "C12x8.64": ("bf tw tf A", "3.05 0.387 0.501 7.350"),
    },
    # A designer's table of aluminum angles.
    "[ALUMINUM UNEQUAL ANGLES]": {
        "L2x1-1/2x1/8": (ANGLE, "0.42 0.17 0.12 0.60 0.08 0.07 0.36"),
        "L3x2x3/16": (ANGLE, "0.91 0.82 0.40 0.94 0.29 0.19 0.46"),
        "L4x3x1/4": (ANGLE, "1.69 2.68 0.96 1.21 1.29 0.56 0.72"),
        "L4x3x1/2": (ANGLE, "3.25 4.96 1.85 1.31 2.36 1.08 0.82"),
        "L6x4x1/2": (ANGLE, "4.74 16.95 4.19 1.96 6.01 1.98 0.97"),
    },
}


if __name__ == "__main__":
    unittest.main()
