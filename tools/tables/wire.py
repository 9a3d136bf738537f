"""COPRWIRE.dat and CoprWirM.dat: solid copper wire, from one list of sizes.

Diameters follow ASTM B258: 0.005 inch at No. 36, 0.46 inch at No. 0000, in 39 equal ratios.
Annealed copper of 100 % IACS (IEC 60028): 1/58 ohm mm2/m at 20 C, 8.89 g/cm3, 0.00393 per degree.
"""

from decimal import Decimal, getcontext
from pathlib import Path

from table_file import CENTER, Column, rounded, rows_of, write_table

getcontext().prec = 40

PI = Decimal("3.141592653589793238462643383279502884197")
MM = Decimal("25.4")
RESISTIVITY = 1 / Decimal(58)  # ohm mm2/m
COEFFICIENT = Decimal("0.00393")
DENSITY = Decimal("8.89")
FEET = Decimal("0.3048")
POUND = Decimal("0.45359237")

AWG = [*range(-3, 41)]
KCMIL = [2000, 1750, 1500, 1250, 1000, 900, 800, 750, 700, 600, 500, 400, 350, 300, 250]


def awg_name(number):
    return f"{1 - number}/0" if number < 1 else str(number)


def sizes():
    """Names and diameters in inches, from the thickest down."""
    for kcmil in KCMIL:
        yield f"{kcmil} kcmil", (Decimal(kcmil) / 1000).sqrt()
    for number in AWG:
        yield awg_name(number), Decimal("0.005") * Decimal(92) ** (Decimal(36 - number) / 39)


def write(folder):
    rows = rows_of(Path(__file__).with_name("wire_ampacity.txt"))
    ampacities = {size: values for size, *values in rows}
    us, metric = [], []
    for name, inches in sizes():
        mm = inches * MM
        area = PI / 4 * mm * mm
        at_20 = RESISTIVITY / area * 1000  # ohm/km
        at_75 = at_20 * (1 + COEFFICIENT * 55)
        weight = area * DENSITY  # kg/km
        amperes = ampacities.get(name, ["", "", ""])
        mils = inches * inches * 1000000
        us.append(
            [name]
            + [rounded(value, 4) for value in (inches, mils, PI / 4 * inches**2)]
            + [rounded(value, 4) for value in (at_20 * FEET, at_75 * FEET, weight * FEET / POUND)]
            + amperes
        )
        metric.append(
            [name]
            + [rounded(value, 4) for value in (mm, area, at_20, at_75, weight)]
            + amperes
        )
    amperes = [Column(("NEC 310.16", f"{t} °C, A"), CENTER) for t in (60, 75, 90)]
    comment = (
        "ASTM B258 sizes, solid annealed copper of 100 % IACS; ampacities of insulated conductors, "
        "three in raceway, 30 C ambient, from NFPA 70-2020 (NEC) Table 310.16"
    )
    size = Column(("Size", "AWG / kcmil"), CENTER)
    write_table(
        folder / "COPRWIRE.dat",
        comment,
        "Copper Wire - U.S. Units (solid, annealed; NEC ampacities 2020 edition)",
        [
            size,
            Column(("Diameter", "in")),
            Column(("Area", "circular mils")),
            Column(("Area", "in²")),
            Column(("Resistance, 20 °C", "ohms/1000 ft")),
            Column(("Resistance, 75 °C", "ohms/1000 ft")),
            Column(("Weight", "lb/1000 ft")),
            *amperes,
        ],
        us,
    )
    write_table(
        folder / "CoprWirM.dat",
        comment,
        "Copper Wire - Metric Units (solid, annealed; NEC ampacities 2020 edition)",
        [
            size,
            Column(("Diameter", "mm")),
            Column(("Area", "mm²")),
            Column(("Resistance, 20 °C", "ohms/km")),
            Column(("Resistance, 75 °C", "ohms/km")),
            Column(("Weight", "kg/km")),
            *amperes,
        ],
        metric,
    )
