"""Writes the tables that are transcribed, each from one text file in handbook/.

A file tells, as `key = value` lines:

- file: the table's file; or the U.S. and the metric file, parted by a comma;
- title, source: its title and the comment of its first line;
- given: us or si, the system of the numbers in a file that makes two tables;
- column, for each: its head, or several one below the other parted by "/"; then, behind bars, the
  unit, or the U.S. and the metric unit, each with the places (.2) or the digits (~3) to which a
  converted number is rounded. "<" ahead of the head puts the column to the left, "^" in the middle.

Its rows follow below a line "rows". "[Steel]" is a row that heads a group. A cell may hold several
numbers ("10 - 20"), of which each is converted.
"""

import re
from decimal import Decimal
from fractions import Fraction
from pathlib import Path
from typing import NamedTuple

from table_file import CENTER, LEFT, RIGHT, Column, fixed, rounded, write_table

HERE = Path(__file__).with_name("handbook")

INCH, FOOT, POUND = Fraction("0.0254"), Fraction("0.3048"), Fraction("0.45359237")
LBF, BTU = POUND * Fraction("9.80665"), Fraction("1055.05585262")
PSI = LBF / INCH**2

# What a number in the U.S. unit is multiplied by.
FACTORS = {
    ("in", "mm"): INCH * 1000,
    ("ft", "m"): FOOT,
    ("lb/100 ft", "kg/100 m"): POUND / FOOT,
    ("lb/ft³", "kg/m³"): POUND / FOOT**3,
    ("lb/in³", "g/cm³"): POUND / INCH**3 / 1000,
    ("lbf", "kN"): LBF / 1000,
    ("psi", "kPa"): PSI / 1000,
    ("psi", "MPa"): PSI / 10**6,
    ("ksi", "MPa"): PSI / 1000,
    ("10^6 psi", "GPa"): PSI / 1000,
    ("ft·lbf/in", "J/m"): LBF * FOOT / INCH,
    ("Btu/lb", "kJ/kg"): BTU / POUND / 1000,
    ("Btu/lb·°F", "kJ/kg·K"): BTU / POUND * Fraction("0.0018"),
    ("Btu/h·ft·°F", "W/m·K"): BTU / 3600 / FOOT * Fraction("1.8"),
    ("10^-6/°F", "10^-6/K"): Fraction("1.8"),
}


class Unit(NamedTuple):
    name: str
    rounding: str

    def show(self, value):
        count = int(self.rounding[1:])
        if self.rounding[0] == ".":
            return fixed(value, count)
        sign = "-" if value < 0 else ""
        exact = Decimal(abs(value).numerator) / abs(value).denominator
        return sign + (rounded(exact, count) if value else "0")


class Field(NamedTuple):
    heads: list
    alignment: int
    units: list  # none, one for both systems, or the U.S. and the metric one

    def unit(self, metric):
        return self.units[metric and len(self.units) > 1].name if self.units else ""


def field_of(text):
    head, *units = (part.strip() for part in text.split("|"))
    alignment = {"<": LEFT, "^": CENTER}.get(head[0], RIGHT)
    heads = [part.strip() for part in head.lstrip("<^ ").split(" / ")]
    return Field(heads, alignment, [Unit(*parts_of(unit)) for unit in units])


def parts_of(unit):
    match = re.fullmatch(r"(.*?)\s*([.~]\d+)?", unit)
    return match[1], match[2] or ""


def convert(text, field, to_metric):
    """A cell in the other system."""
    if len(field.units) < 2:
        return text
    us, metric = field.units
    target = metric if to_metric else us

    def other(match):
        value = Fraction(match[0].replace(",", ""))
        if (us.name, metric.name) == ("°F", "°C"):
            value = (value - 32) / Fraction("1.8") if to_metric else value * Fraction("1.8") + 32
        else:
            factor = FACTORS[us.name, metric.name]
            value = value * factor if to_metric else value / factor
        return target.show(value)

    return re.sub(r"(?<![\d.])-?[\d,]*\.?\d+", other, text)


def read(path):
    keys, fields, rows = {}, [], []
    lines = path.read_text("utf-8").splitlines()
    body = lines.index("rows")
    for line in lines[:body]:
        if line and not line.startswith("#"):
            key, value = (part.strip() for part in line.split("=", 1))
            if key == "column":
                fields.append(field_of(value))
            else:
                keys[key] = value
    for line in lines[body + 1 :]:
        if line.startswith("["):
            rows.append([line.strip("[]")] + [None] * (len(fields) - 1))
        elif line and not line.startswith("#"):
            rows.append([cell.strip() for cell in line.split("|")])
            if len(rows[-1]) != len(fields):
                raise ValueError(f"{path.name}: {len(fields)} cells wanted: {line}")
    return keys, fields, rows


def write(folder):
    for path in sorted(HERE.glob("*.txt")):
        keys, fields, rows = read(path)
        names = [name.strip() for name in keys["file"].split(",")]
        for metric, name in enumerate(names):
            converts = len(names) > 1 and (keys["given"] == "us") == bool(metric)
            title = keys["title"]
            if len(names) > 1:
                title += " - Metric Units" if metric else " - U.S. Units"
            depth = max(len(field.heads) for field in fields)
            columns = [
                Column(
                    (*field.heads, *[""] * (depth - len(field.heads)), field.unit(metric)),
                    field.alignment,
                )
                for field in fields
            ]
            if not any(field.units for field in fields):
                columns = [Column(column.heads[:-1], column.alignment) for column in columns]
            cells = [
                [
                    "" if cell is None else convert(cell, field, bool(metric)) if converts else cell
                    for cell, field in zip(row, fields)
                ]
                for row in rows
            ]
            write_table(folder / name, keys["source"], title, columns, cells)
