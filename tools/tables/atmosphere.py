"""Std_Atm_SI.dat and Std_Atm_US.dat: the U.S. Standard Atmosphere 1976 up to 80 km, by its layers;
air-prop.DAT and airpropm.dat: dry air at one atmosphere, by the same transport formulas.
"""

import math

from table_file import Column, write_table

# U.S. Standard Atmosphere 1976, tables 2 to 4.
G0 = 9.80665
R_STAR = 8314.32  # J/kmol K
MOLAR_MASS = 28.9644  # kg/kmol
EARTH = 6356766  # m
P0 = 101325  # Pa
GAMMA = 1.4
LAYERS = [  # base in geopotential m, K per m
    (0, -0.0065), (11000, 0), (20000, 0.001), (32000, 0.0028), (47000, 0), (51000, -0.0028),
    (71000, -0.002),
]  # fmt: skip
T0 = 288.15

FOOT, POUND, INCH = 0.3048, 0.45359237, 0.0254
PSI = 4.4482216152605 / INCH**2
INCH_HG = 3386.389  # Pa, mercury at 0 C
BTU = 1055.05585262


def atmosphere(z):
    """Temperature in K and pressure in Pa at a geometric altitude in m, up to 80 km."""
    h = EARTH * z / (EARTH + z)
    t, p = T0, P0
    for n, (base, lapse) in enumerate(LAYERS):
        top = LAYERS[n + 1][0] if n + 1 < len(LAYERS) else math.inf
        rise = min(h, top) - base
        exponent = G0 * MOLAR_MASS / R_STAR
        if lapse:
            p *= (t / (t + lapse * rise)) ** (exponent / lapse)
        else:
            p *= math.exp(-exponent * rise / t)
        t += lapse * rise
        if h <= top:
            return t, p


def density(t, p):
    return p * MOLAR_MASS / (R_STAR * t)


def sound(t):
    return math.sqrt(GAMMA * R_STAR * t / MOLAR_MASS)


def viscosity(t):
    return 1.458e-6 * t**1.5 / (t + 110.4)  # Pa s


def conductivity(t):
    return 2.64638e-3 * t**1.5 / (t + 245.4 * 10 ** (-12 / t))  # W/m K


# Specific heat of the parts at zero pressure, in gas constants: NASA polynomials of degree 4, 200 to
# 1000 K, with the mole fractions of dry air.
PARTS = [
    (0.78084, (3.53100528, -1.23660988e-4, -5.02999433e-7, 2.43530612e-9, -1.40881235e-12)),
    (0.209476, (3.78245636, -2.99673416e-3, 9.84730201e-6, -9.68129509e-9, 3.24372837e-12)),
    (0.00934, (2.5, 0, 0, 0, 0)),
    (0.000314, (2.35677352, 8.98459677e-3, -7.12356269e-6, 2.45919022e-9, -1.43699548e-13)),
]


def specific_heat(t):
    """J/kg K."""
    per_mole = sum(x * sum(a * t**n for n, a in enumerate(terms)) for x, terms in PARTS)
    return per_mole * R_STAR / MOLAR_MASS


def steps(*parts):
    return [value for first, last, step in parts for value in range(first, last + step, step)]


METERS = steps((-2000, 10000, 250), (10500, 20000, 500), (21000, 40000, 1000), (42000, 80000, 2000))
FEET = steps((-5000, 40000, 1000), (42000, 70000, 2000), (75000, 130000, 5000))
FEET += steps((140000, 260000, 10000))


def digits(value, count):
    """Fixed-point text with this many significant digits."""
    return f"{value:.{max(count - 1 - math.floor(math.log10(value)), 0)}f}"


def write_atmosphere(folder):
    t0, p0 = atmosphere(0)
    comment = "U.S. Standard Atmosphere 1976 (NOAA/NASA/USAF), by its layer equations; dry air"
    rows = []
    for z in METERS:
        t, p = atmosphere(z)
        rho = density(t, p)
        rows.append(
            [z, f"{t:.3f}", f"{t - 273.15:.3f}", digits(p / 1000, 5), digits(p / p0, 5)]
            + [digits(rho, 5), digits(rho / density(t0, p0), 5), f"{sound(t):.2f}"]
            + [f"{G0 * (EARTH / (EARTH + z)) ** 2:.4f}", f"{viscosity(t) * 1e6:.3f}"]
            + [digits(viscosity(t) / rho * 1e6, 5), f"{conductivity(t) * 1000:.3f}"]
        )
    write_table(
        folder / "Std_Atm_SI.dat", comment, "U.S. Standard Atmosphere, 1976 - SI Units",
        [Column(heads) for heads in (
            ("Altitude", "m"), ("Temperature", "K"), ("Temperature", "°C"), ("Pressure", "kPa"),
            ("Pressure", "ratio"), ("Density", "kg/m³"), ("Density", "ratio"),
            ("Speed of sound", "m/s"), ("Gravity", "m/s²"), ("Dynamic visc.", "µPa·s"),
            ("Kinematic visc.", "mm²/s"), ("Conductivity", "mW/m·K"))],
        rows,
    )  # fmt: skip
    rows = []
    for z in FEET:
        t, p = atmosphere(z * FOOT)
        rho = density(t, p)
        rows.append(
            [z, f"{t * 1.8:.2f}", f"{t * 1.8 - 459.67:.2f}", digits(p / PSI, 5)]
            + [digits(p / INCH_HG, 5), digits(p / p0, 5), digits(rho / POUND * FOOT**3, 5)]
            + [digits(rho / density(t0, p0), 5), f"{sound(t) / FOOT:.1f}"]
            + [f"{G0 / FOOT * (EARTH / (EARTH + z * FOOT)) ** 2:.3f}"]
            + [f"{viscosity(t) * FOOT / POUND * 1e6:.3f}"]
            + [digits(viscosity(t) / rho / FOOT**2 * 1e6, 5)]
        )
    write_table(
        folder / "Std_Atm_US.dat", comment, "U.S. Standard Atmosphere, 1976 - U.S. Units",
        [Column(heads) for heads in (
            ("Altitude", "ft"), ("Temperature", "°R"), ("Temperature", "°F"), ("Pressure", "psia"),
            ("Pressure", "in Hg"), ("Pressure", "ratio"), ("Density", "lb/ft³"),
            ("Density", "ratio"), ("Speed of sound", "ft/s"), ("Gravity", "ft/s²"),
            ("Dynamic visc.", "10^-6 lb/ft·s"), ("Kinematic visc.", "10^-6 ft²/s"))],
        rows,
    )  # fmt: skip


# Of a property of air: head, U.S. unit, metric unit, what an SI value is multiplied by in either, and
# the places shown in either.
AIR = [
    ("Density", "lb/ft³", "kg/m³", FOOT**3 / POUND, 1, 5, 4),
    ("Specific volume", "ft³/lb", "m³/kg", POUND / FOOT**3, 1, 4, 4),
    ("Specific heat cp", "Btu/lb·°F", "kJ/kg·K", POUND / BTU / 1.8, 1e-3, 4, 4),
    ("Ratio cp/cv", "", "", 1, 1, 4, 4),
    ("Dynamic visc.", "10^-6 lb/ft·s", "µPa·s", 1e6 * FOOT / POUND, 1e6, 3, 3),
    ("Kinematic visc.", "10^-6 ft²/s", "mm²/s", 1e6 / FOOT**2, 1e6, 2, 3),
    ("Conductivity", "Btu/h·ft·°F", "W/m·K", 3600 * FOOT / BTU / 1.8, 1, 5, 5),
    ("Diffusivity", "ft²/h", "mm²/s", 3600 / FOOT**2, 1e6, 3, 2),
    ("Prandtl number", "", "", 1, 1, 3, 3),
    ("Speed of sound", "ft/s", "m/s", 1 / FOOT, 1, 1, 1),
]


def air(t):
    """The properties above in SI units at a temperature in K and one atmosphere."""
    rho, cp, mu, k = density(t, P0), specific_heat(t), viscosity(t), conductivity(t)
    gas = R_STAR / MOLAR_MASS
    ratio = cp / (cp - gas)
    c = math.sqrt(ratio * gas * t)
    return rho, 1 / rho, cp, ratio, mu, mu / rho, k, k / (rho * cp), cp * mu / k, c


FAHRENHEIT = steps((-80, 150, 10), (160, 400, 20), (425, 600, 25), (650, 1300, 50))
CELSIUS = steps((-60, 60, 5), (70, 200, 10), (220, 400, 20), (450, 700, 50))


def write_air(folder):
    comment = (
        "dry air at 101.325 kPa: ideal gas; viscosity and conductivity as in the U.S. Standard "
        "Atmosphere 1976, specific heat from NASA polynomials"
    )
    us = [(f, air((f + 459.67) / 1.8)) for f in FAHRENHEIT]
    metric = [(c, air(c + 273.15)) for c in CELSIUS]
    for n, (name, points, degree, title) in enumerate(
        (
            ("air-prop.DAT", us, "°F", "U.S. Units, at 14.696 psia"),
            ("airpropm.dat", metric, "°C", "Metric Units, at 101.325 kPa"),
        )
    ):
        columns = [Column(("Temperature", degree))] + [Column((p[0], p[1 + n])) for p in AIR]
        rows = [
            [shown] + [f"{x * p[3 + n]:.{p[5 + n]}f}" for x, p in zip(values, AIR)]
            for shown, values in points
        ]
        write_table(folder / name, comment, f"Properties of Dry Air - {title}", columns, rows)


def write(folder):
    write_atmosphere(folder)
    write_air(folder)
