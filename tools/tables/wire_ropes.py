"""Five tables of wire ropes, in both unit systems each."""

from fractions import Fraction
from pathlib import Path

from table_file import CENTER, Column, fixed, rows_of, write_table

MM = Fraction("25.4")
KG_PER_M = Fraction("0.45359237") / Fraction("0.3048")  # in a lb/ft
KN_PER_TON = 2 * Fraction("4.4482216152605")
FACTOR = 5  # of safety, usual for lifting
SHEAVE = {"6x19": (34, 51), "6x37": (23, 35), "8x19": (27, 41)}  # least and usual, in rope diameters

TITLES = {
    "6x19 FC IPS": "6 x 19 Class, Fiber Core, Improved Plow Steel",
    "6x37 FC IPS": "6 x 37 Class, Fiber Core, Improved Plow Steel",
    "6x37 IWRC XIPS": "6 x 37 Class, Independent Wire Rope Core, Extra Improved Plow Steel",
    "6x37 IWRC XXIPS": "6 x 37 Class, Independent Wire Rope Core, Extra Extra Improved Plow Steel",
    "8x19 Spin-Res FC IPS": "8 x 19 Class, Spin Resistant, Fiber Core, Improved Plow Steel",
}


def inches(text):
    return sum(Fraction(part) for part in text.split("-"))


def write(folder):
    ropes = {}
    for kind, *rope in rows_of(Path(__file__).with_name("wire_ropes.txt")):
        ropes.setdefault(kind, []).append(rope)
    for kind, title in TITLES.items():
        least, usual = SHEAVE[kind.split()[0]]
        rows = []
        for size, weight, tons in ropes[kind]:
            diameter, strength = inches(size), Fraction(tons)
            rows.append(
                [size, fixed(diameter * MM, 1), weight, fixed(Fraction(weight) * KG_PER_M, 2)]
                + [tons, fixed(strength * KN_PER_TON, 0)]
                + [fixed(strength / FACTOR, 2), fixed(strength * KN_PER_TON / FACTOR, 1)]
                + [fixed(diameter * least, 1), fixed(diameter * usual, 1)]
            )
        write_table(
            folder / f"WR_{kind.replace(' ', '_')}.dat",
            "nominal strengths of bright rope as in the Wire Rope Users Manual and ASTM A1023; ton: "
            "2000 lbf; load at a safety factor of 5",
            f"Wire Rope - {title}",
            [
                Column(("Diameter", "in"), CENTER),
                Column(("Diameter", "mm")),
                Column(("Weight", "lb/ft")),
                Column(("Weight", "kg/m")),
                Column(("Strength", "tons")),
                Column(("Strength", "kN")),
                Column(("Load at 5:1", "tons")),
                Column(("Load at 5:1", "kN")),
                Column(("Sheave, least", "in")),
                Column(("Sheave, usual", "in")),
            ],
            rows,
        )
