"""Six pairs of tables: saturation pressures of refrigerants by temperature.

Computed by the corresponding states of Ambrose and Walton (Pure and Applied Chemistry 61, 1395,
1989) from the critical point, with the acentric factor that gives the normal boiling point. The
bubble and the dew line of a blend have a boiling point each.
"""

import math
from pathlib import Path

from table_file import Column, rows_of, write_table

ATMOSPHERE = 0.101325  # MPa
PSI = 0.006894757293168  # MPa
ZERO = 273.15

GROUPS = [
    ("Auto_AC_Type", "Automotive Air Conditioning", ["R-12", "R-134a", "R-1234yf"], (-40, 180)),
    ("Centrifugal_AC", "Centrifugal Chillers",
     ["R-11", "R-113", "R-114", "R-123", "R-245fa", "R-1233zd(E)"], (-20, 180)),
    ("R-12_Type", "R-12 and Its Substitutes", ["R-12", "R-134a", "R-401A", "R-409A", "R-500"],
     (-40, 160)),
    ("R-22_Type", "R-22 and Its Substitutes", ["R-22", "R-407C", "R-410A"], (-60, 140)),
    ("R-502_Type", "R-502 and Its Substitutes",
     ["R-502", "R-402A", "R-404A", "R-408A", "R-507A"], (-60, 140)),
    ("Ultra_Low_Temp", "Ultra Low Temperature", ["R-13", "R-23", "R-503", "R-508B"], (-150, 40)),
]  # fmt: skip


def terms(reduced):
    """The three functions of the reduced temperature."""
    x = 1 - reduced
    powers = (x, x**1.5, x**2.5, x**5)
    factors = (
        (-5.97616, 1.29874, -0.60394, -1.06841),
        (-5.03365, 1.11505, -5.41217, -7.46628),
        (-0.64771, 2.41539, -4.26979, 3.25259),
    )
    return [sum(f * p for f, p in zip(row, powers)) / reduced for row in factors]


class Line:
    """The saturation line through a critical point (K, MPa) and a normal boiling point."""

    def __init__(self, critical, pressure, boiling):
        self.critical, self.pressure = critical, pressure
        f0, f1, f2 = terms(boiling / critical)
        rest = f0 - math.log(ATMOSPHERE / pressure)
        roots = [(-f1 + sign * math.sqrt(f1 * f1 - 4 * f2 * rest)) / (2 * f2) for sign in (1, -1)]
        self.acentric = next(root for root in roots if 0 < root < 1)

    def __call__(self, t):
        """MPa at a temperature in K; None above the critical point."""
        if t > self.critical:
            return None
        f0, f1, f2 = terms(t / self.critical)
        return self.pressure * math.exp(f0 + self.acentric * (f1 + self.acentric * f2))


def lines():
    """The lines of each refrigerant, with what parts those of a blend."""
    found = {}
    for name, critical, pressure, boilings in rows_of(Path(__file__).with_name("refrigerants.txt")):
        points = [float(text) + ZERO for text in boilings.split()]
        made = [Line(float(critical) + ZERO, float(pressure), point) for point in points]
        words = [""] if len(made) == 1 else ["bubble", "dew"]
        found[name] = list(zip(words, made))
    return found


def cells(line, t, mpa):
    """Absolute and gauge pressure; empty above the critical point."""
    p = line(t)
    return ["", ""] if p is None else [f"{p / mpa:.1f}", f"{(p - ATMOSPHERE) / mpa:z.1f}"]


def write(folder):
    known = lines()
    for file, title, names, span in GROUPS:
        parts = [(name, word, line) for name in names for word, line in known[name]]
        fahrenheit = range(span[0], span[1] + 1, 5)
        low, high = (round((f - 32) / 1.8 / 5) * 5 for f in span)
        celsius = range(low, high + 1, 2)
        for system, degree, unit, mpa, points in (
            ("US", "°F", "psi", PSI, [(f, (f + 459.67) / 1.8) for f in fahrenheit]),
            ("SI", "°C", "kPa", 0.001, [(c, c + ZERO) for c in celsius]),
        ):
            columns = [Column(("Temperature", "", degree))]
            for name, word, _ in parts:
                columns += [Column((name, word, f"{unit} {kind}")) for kind in ("abs", "gauge")]
            rows = [
                [degrees] + [cell for *_, line in parts for cell in cells(line, t, mpa)]
                for degrees, t in points
            ]
            write_table(
                folder / f"Refrigerants_{file}_{system}.dat",
                "corresponding states of Ambrose and Walton through critical and normal boiling "
                "point, within some 2 %; a negative gauge pressure is a vacuum",
                f"Refrigerant Vapor Pressure - {title}",
                columns,
                rows,
            )
