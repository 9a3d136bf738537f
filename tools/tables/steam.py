"""Twelve saturation tables: liquid, vapour and the change of phase, by pressure and by temperature.

Each U.S. and metric pair comes from the same formulation and the same columns; only the steps are
those that a reader of either system looks for.
"""

from typing import NamedTuple

from table_file import Column, write_table
from water import (P_CRITICAL, RHO_CRITICAL, T_CRITICAL, T_TRIPLE, dense, saturated_liquid,
                   saturated_vapor, saturation_pressure, saturation_temperature)

COMMENT = "IAPWS Industrial Formulation 1997 (IAPWS R7-97), saturation line"

# International Table values of the units.
FOOT, POUND, BTU = 0.3048, 0.45359237, 1.05505585262
PSI = 4.4482216152605 / 0.0254**2 / 1e6  # MPa
ENERGY = BTU / POUND  # kJ/kg in a Btu/lb
ENTROPY = ENERGY * 1.8


class Units(NamedTuple):
    """What a value in K, MPa, m3/kg, kJ/kg and kJ/kg K is divided by, and what it is called."""

    title: str
    temperature: str
    pressure: str
    volume: str
    density: str
    energy: str
    entropy: str
    mpa: float
    m3_per_kg: float
    kj_per_kg: float
    kj_per_kg_k: float
    places: dict


US = Units(
    "U.S. Units", "°F", "psia", "ft³/lb", "lb/ft³", "Btu/lb", "Btu/lb·°R",
    PSI, FOOT**3 / POUND, ENERGY, ENTROPY,
    {"t": 2, "p": 4, "vf": 6, "vg": 5, "rhof": 3, "rhog": 6, "h": 2, "s": 4, "c": 4},
)  # fmt: skip
METRIC = Units(
    "Metric Units", "°C", "kPa", "m³/kg", "kg/m³", "kJ/kg", "kJ/kg·K",
    1e-3, 1, 1, 1,
    {"t": 2, "p": 3, "vf": 7, "vg": 6, "rhof": 2, "rhog": 5, "h": 2, "s": 4, "c": 3},
)  # fmt: skip


class Point(NamedTuple):
    t: float
    p: float
    liquid: tuple
    vapor: tuple


def saturated(t, p):
    if t >= T_CRITICAL:
        state = dense(RHO_CRITICAL, T_CRITICAL)[1]._replace(cp=None)
        return Point(T_CRITICAL, P_CRITICAL, state, state)
    return Point(t, p, saturated_liquid(p, t), saturated_vapor(p, t))


def at_temperature(t):
    return saturated(t, saturation_pressure(min(t, T_CRITICAL)))


def at_pressure(p):
    return saturated(T_CRITICAL if p >= P_CRITICAL else saturation_temperature(p), p)


def span(*parts):
    """Numbers from each (first, last, step)."""
    return [
        first + n * step
        for first, last, step in parts
        for n in range(round((last - first) / step) + 1)
    ]


FAHRENHEIT = [(f + 459.67) / 1.8 for f in span((34, 60, 2), (65, 200, 5), (210, 700, 10))]
CELSIUS = [c + 273.15 for c in span((1, 30, 1), (32, 100, 2), (105, 370, 5))]
PSIA = span((0.1, 0.4, 0.1), (0.5, 0.9, 0.1), (1, 9, 0.5), (10, 14, 1))
PSIA += [14.696] + span((15, 50, 1), (55, 100, 5), (110, 300, 10), (320, 600, 20))
PSIA += span((650, 1000, 50), (1100, 3100, 100))
KPA = span((1, 3, 0.5), (4, 9, 1), (10, 45, 5), (50, 90, 10)) + [100, 101.325]
KPA += span((120, 200, 20), (225, 500, 25), (550, 1000, 50), (1100, 2000, 100), (2250, 5000, 250))
KPA += span((5500, 10000, 500), (11000, 22000, 1000))


def points(by_temperature, units):
    """From the triple to the critical point."""
    if by_temperature:
        inner = [at_temperature(t) for t in (FAHRENHEIT if units is US else CELSIUS)]
    else:
        inner = [at_pressure(p * units.mpa) for p in (PSIA if units is US else KPA)]
    return [at_temperature(T_TRIPLE), *inner, at_temperature(T_CRITICAL)]


def degrees(t, units):
    return t * 1.8 - 459.67 if units is US else t - 273.15


def first_columns(by_temperature, units):
    heads = [Column(("Temperature", units.temperature)), Column(("Abs. pressure", units.pressure))]
    return heads if by_temperature else heads[::-1]


def first_cells(point, by_temperature, units):
    t = f"{degrees(point.t, units):.{units.places['t']}f}"
    p = f"{point.p / units.mpa:.{units.places['p']}f}"
    return [t, p] if by_temperature else [p, t]


def of_a_phase(phase, by_temperature, units):
    columns = first_columns(by_temperature, units) + [
        Column(("Specific volume", units.volume)),
        Column(("Density", units.density)),
        Column(("Internal energy", units.energy)),
        Column(("Enthalpy", units.energy)),
        Column(("Entropy", units.entropy)),
        Column(("Specific heat cp", units.entropy.replace("°R", "°F"))),
    ]
    short = "f" if phase == "liquid" else "g"
    places, rows = units.places, []
    for point in points(by_temperature, units):
        state = getattr(point, phase)
        v = state.v / units.m3_per_kg
        rows.append(
            first_cells(point, by_temperature, units)
            + [f"{v:.{places['v' + short]}f}", f"{1 / v:.{places['rho' + short]}f}"]
            + [f"{e / units.kj_per_kg:z.{places['h']}f}" for e in (state.u, state.h)]
            + [f"{state.s / units.kj_per_kg_k:z.{places['s']}f}"]
            + ["" if state.cp is None else f"{state.cp / units.kj_per_kg_k:.{places['c']}f}"]
        )
    return columns, rows


def of_the_change(by_temperature, units):
    columns = first_columns(by_temperature, units)
    columns += [Column((f"v {name}", units.volume)) for name in ("liquid", "vapor")]
    columns += [Column((f"h {name}", units.energy)) for name in ("liquid", "change", "vapor")]
    columns += [Column((f"s {name}", units.entropy)) for name in ("liquid", "change", "vapor")]
    columns += [Column(("u change", units.energy)), Column(("v change", units.volume))]
    places, rows = units.places, []
    for point in points(by_temperature, units):
        f, g = point.liquid, point.vapor
        h = [x / units.kj_per_kg for x in (f.h, g.h - f.h, g.h, g.u - f.u)]
        s = [x / units.kj_per_kg_k for x in (f.s, g.s - f.s, g.s)]
        v = [x / units.m3_per_kg for x in (f.v, g.v, g.v - f.v)]
        rows.append(
            first_cells(point, by_temperature, units)
            + [f"{v[0]:.{places['vf']}f}", f"{v[1]:.{places['vg']}f}"]
            + [f"{x:z.{places['h']}f}" for x in h[:3]]
            + [f"{x:z.{places['s']}f}" for x in s]
            + [f"{h[3]:z.{places['h']}f}", f"{v[2]:z.{places['vg']}f}"]
        )
    return columns, rows


# By pressure and by temperature, U.S. and metric.
FILES = {
    "liquid": (("liquid-p.DAT", "Sat_LP_M.dat"), ("liquid-t.DAT", "Sat_LT_M.dat")),
    "vapor": (("vapor-p.DAT", "Sat_VP_M.dat"), ("vapor-t.DAT", "Sat_VT_M.dat")),
    "change": (("steam-p.DAT", "Steam-pm.dat"), ("steam-t.DAT", "Steam-tm.DAT")),
}
TITLES = {
    "liquid": "Saturated Water - Liquid Phase",
    "vapor": "Saturated Steam - Vapor Phase",
    "change": "Saturated Water and Steam - Change of Phase",
}


def write(folder):
    for content, pairs in FILES.items():
        for by_temperature, pair in enumerate(pairs):
            for units, name in zip((US, METRIC), pair):
                if content == "change":
                    columns, rows = of_the_change(by_temperature, units)
                else:
                    columns, rows = of_a_phase(content, by_temperature, units)
                step = "Temperature" if by_temperature else "Pressure"
                title = f"{TITLES[content]} by {step} - {units.title}"
                write_table(folder / name, COMMENT, title, columns, rows)
