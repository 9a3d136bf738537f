"""Conversion_Factors.dat: the pairs of units.txt as records of six fields.

Direction -1 means second = first * factor + offset, and 0 second = (first - offset) / factor: the
one of which both numbers are exact is taken, so that 12 inches are 1 foot to the last digit.
"""

import re
from collections import Counter
from decimal import Decimal, localcontext
from fractions import Fraction
from pathlib import Path
from typing import NamedTuple

from table_file import quoted, write_lines

DIGITS = 15
NAME_LENGTH = 50


class Unit(NamedTuple):
    name: str
    scale: Fraction
    zero: Fraction


def value_of(expression, units):
    """A product and quotient: numbers and keys, each after a blank, a * or a /."""
    value = Fraction(1)
    for divide, term in re.findall(r"(/?)[\s*]*([^\s*/]+)", expression):
        base, _, power = term.partition("^")
        factor = Fraction(base) if base[0].isdigit() else units[base].scale
        factor **= int(power or 1)
        value = value / factor if divide else value * factor
    return value


def read(path):
    units, pairs = {}, []
    for line in path.read_text("utf-8").splitlines():
        line = line.split("#")[0].strip()
        if " = " in line:
            key, definition = line.split(" = ", 1)
            expression, _, name = definition.partition("|")
            scale, _, zero = expression.partition(" + ")
            if key in units or len(name.strip()) > NAME_LENGTH:
                raise ValueError(f"units.txt: {line}")
            start = value_of(zero, units) if zero else Fraction(0)
            units[key] = Unit(name.strip(), value_of(scale, units), start)
        elif line and not line.startswith("["):
            first, seconds = line.split(":")
            pairs += [(first, second) for second in seconds.split()]
    times = Counter(frozenset(pair) for pair in pairs)
    if twice := [set(pair) for pair in times if times[pair] > 1]:
        raise ValueError(f"units.txt: listed twice: {twice}")
    return units, pairs


def text_of(value):
    """The shortest text of 15 digits, and whether it is the exact value."""
    with localcontext() as context:
        context.prec = DIGITS
        context.rounding = "ROUND_HALF_EVEN"
        short = Decimal(value.numerator) / Decimal(value.denominator)
        short = short.normalize()
    digits = "".join(map(str, short.as_tuple().digits))
    if short == 0 or -5 <= short.adjusted() < DIGITS:
        text = f"{short:f}"
    else:
        point = f"{digits[0]}.{digits[1:]}".rstrip(".")
        text = f"{'-' if short < 0 else ''}{point}E{short.adjusted():+03d}"
    return text, Fraction(short) == value


def record(first, second):
    multiply = (first.scale / second.scale, (first.zero - second.zero) / second.scale)
    divide = (second.scale / first.scale, (second.zero - first.zero) / first.scale)
    for direction, numbers in ((-1, multiply), (0, divide), (-1, multiply)):
        (factor, exact), (offset, also) = map(text_of, numbers)
        if exact and also:
            break
    names = [quoted(unit.name) for unit in (first, second)]
    return ",".join([*names, factor, offset, str(direction), "0"])


def write(folder):
    units, pairs = read(Path(__file__).with_name("units.txt"))
    named = [(units[first], units[second]) for first, second in pairs]
    named.sort(key=lambda pair: [unit.name.casefold() for unit in pair])
    write_lines(folder / "Conversion_Factors.dat", [record(*pair) for pair in named])
