"""solvents.dat: the air that a gallon of each solvent makes barely explosive, in cubic feet at 70 F.

A gallon of liquid becomes an ideal gas, and of the mixture at the lower flammable limit the rest is
air. Of the limits of two lists the lower one counts, which asks for more air.
"""

import re
from pathlib import Path

from table_file import quoted, rows_of, write_lines

SOLVENTS = Path(__file__).with_name("solvents.txt")

ATOMS = {"C": 12.011, "H": 1.008, "N": 14.007, "O": 15.999, "Cl": 35.45}
GALLON, FOOT = 231 * 0.0254**3, 0.3048  # m3, m
MOLAR_VOLUME = 8.314462618 * (70 + 459.67) / 1.8 / 101325  # m3/mol at 70 F
UNKNOWN_AIR = 2640  # ft3, for a solvent of which nothing is known


def molar_mass(formula):
    """Grams."""
    parts = re.findall(r"([A-Z][a-z]?)(\d*)", formula)
    return sum(ATOMS[atom] * int(count or 1) for atom, count in parts)


def air_of(formula, density, limit):
    """Cubic feet, from g/cm3 and percent."""
    moles = GALLON * 1e6 * density / molar_mass(formula)
    return moles * MOLAR_VOLUME / FOOT**3 * (100 - limit) / limit


def solvents():
    for name, formula, density, *limits in rows_of(SOLVENTS):
        yield name, formula, float(density), [float(x) for x in limits if x != "-"]


def write(folder):
    lines = [f"{quoted('UNKNOWN')},{UNKNOWN_AIR}"]
    lines += [f"{quoted(name)},{air_of(formula, density, min(limits)):.0f}"
              for name, formula, density, limits in solvents()]
    write_lines(folder / "solvents.dat", lines)
