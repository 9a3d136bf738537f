"""COPRWIRE.dat, CoprWirM.dat, alumWIRE.dat, AlumWirM.dat: solid wire, from one list of sizes;
conductors.dat: the same sizes by their numbers in the series, for the voltage drop window.

Diameters follow ASTM B258: 0.005 inch at No. 36, 0.46 inch at No. 0000, in 39 equal ratios.
"""

from decimal import Decimal, getcontext
from pathlib import Path
from typing import NamedTuple

from table_file import CENTER, Column, quoted, rounded, rows_of, write_lines, write_table

getcontext().prec = 40

PI = Decimal("3.141592653589793238462643383279502884197")
MM = Decimal("25.4")
FEET = Decimal("0.3048")
POUND = Decimal("0.45359237")

KCMIL = [2000, 1750, 1500, 1250, 1000, 900, 800, 750, 700, 600, 500, 400, 350, 300, 250]


def awg_name(number):
    return f"{1 - number}/0" if number < 1 else str(number)


def sizes(thinnest):
    """Names and diameters in inches, from the thickest down."""
    for kcmil in KCMIL:
        yield f"{kcmil} kcmil", (Decimal(kcmil) / 1000).sqrt()
    for number in range(-3, thinnest + 1):
        yield awg_name(number), Decimal("0.005") * Decimal(92) ** (Decimal(36 - number) / 39)


class Metal(NamedTuple):
    title: str
    files: tuple
    ampacities: str
    about: str
    condition: str
    resistivity: Decimal  # ohm mm2/m at 20 C
    coefficient: Decimal  # of resistance, per degree
    density: Decimal  # g/cm3
    thinnest: int  # gauge number


METALS = [
    Metal(
        title="Copper Wire",
        files=("COPRWIRE.dat", "CoprWirM.dat"),
        ampacities="wire_ampacity.txt",
        about="annealed copper of 100 % IACS",  # IEC 60028
        condition="annealed; ",
        resistivity=1 / Decimal(58),
        coefficient=Decimal("0.00393"),
        density=Decimal("8.89"),
        thinnest=40,
    ),
    Metal(
        title="Aluminum Wire",
        files=("alumWIRE.dat", "AlumWirM.dat"),
        ampacities="aluminum_ampacity.txt",
        about="aluminum 1350 of 61.2 % IACS",  # ASTM B230
        condition="",
        resistivity=Decimal("0.028172"),
        coefficient=Decimal("0.00404"),
        density=Decimal("2.705"),
        thinnest=30,
    ),
]


def write(folder):
    for metal in METALS:
        write_metal(folder, metal)
    write_conductors(folder / "conductors.dat")


def write_conductors(path):
    """A gauge number and a label per line, from the thinnest up.

    The window makes a diameter of the number by the rule of the gauge, and circular mils of that
    with pi as 3.1415926 and a circular mil of 7.854E-07 in2. The numbers of the kcmil sizes, which
    have none of their own, are those that give their circular mils by that arithmetic.
    """
    lines = [f"{path.name}: number in the series of ASTM B258, label"]
    lines += [f"{number},{quoted(awg_name(number))}" for number in range(40, -4, -1)]
    for kcmil in reversed(KCMIL):
        inches = (kcmil * 1000 * Decimal("7.854E-7") * 4 / Decimal("3.1415926")).sqrt()
        number = 36 - 39 * (inches / Decimal("0.005")).ln() / Decimal(92).ln()
        lines.append(f"{number:.9f},{quoted(f'{kcmil} kcmil')}")
    write_lines(path, lines)


def write_metal(folder, metal):
    rows = rows_of(Path(__file__).with_name(metal.ampacities))
    ampacities = {size: values for size, *values in rows}
    us, metric = [], []
    for name, inches in sizes(metal.thinnest):
        mm = inches * MM
        area = PI / 4 * mm * mm
        at_20 = metal.resistivity / area * 1000  # ohm/km
        at_75 = at_20 * (1 + metal.coefficient * 55)
        weight = area * metal.density  # kg/km
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
        f"ASTM B258 sizes, solid {metal.about}; ampacities of insulated conductors, "
        "three in raceway, 30 C ambient, from NFPA 70-2020 (NEC) Table 310.16"
    )
    size = Column(("Size", "AWG / kcmil"), CENTER)
    write_table(
        folder / metal.files[0],
        comment,
        f"{metal.title} - U.S. Units (solid, {metal.condition}NEC ampacities 2020 edition)",
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
        folder / metal.files[1],
        comment,
        f"{metal.title} - Metric Units (solid, {metal.condition}NEC ampacities 2020 edition)",
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
