"""Writes the files in data/: the tables that the viewer shows, and plain records.

All are in code page 1252 with CR LF line ends. Texts are quoted always, so that a comma in them
splits nothing and 1.50 keeps its last digit.
"""

from decimal import ROUND_HALF_UP, Decimal, localcontext
from typing import NamedTuple

# Alignment codes of the viewer's grid.
LEFT, CENTER, RIGHT = 1, 4, 7

TWIPS_PER_CHARACTER = 110
COLUMN_MARGIN = 200
NARROWEST_COLUMN = 700


class Column(NamedTuple):
    """The texts of the fixed rows from the top down, and the alignment."""

    heads: tuple
    alignment: int = RIGHT


def quoted(text):
    """A field of the file. Only a text that doesn't begin with a quotation mark may have one."""
    if '"' not in text:
        return f'"{text}"'
    if text.startswith('"') or "," in text:
        raise ValueError(f"no field can hold {text!r}")
    return text


def write_lines(path, lines):
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("cp1252"))


def write_table(path, comment, title, columns, rows, fixed_columns=1):
    """Every column needs as many heads as the first."""
    fixed_rows = len(columns[0].heads)
    cells = [list(row) for row in zip(*(column.heads for column in columns), strict=True)]
    cells += [[str(cell) for cell in row] for row in rows]
    if any(len(row) != len(columns) for row in cells):
        raise ValueError(f"{path.name}: a row has not {len(columns)} cells")
    longest = [max(map(len, column)) for column in zip(*cells)]
    widths = [max(n * TWIPS_PER_CHARACTER + COLUMN_MARGIN, NARROWEST_COLUMN) for n in longest]
    write_lines(
        path,
        [
            f"{path.name}: {comment}",
            title,
            f"{len(cells)}, {len(columns)}, {fixed_rows}, {fixed_columns}",
            ", ".join(map(str, widths)),
            ", ".join(str(column.alignment) for column in columns),
            *(",".join(map(quoted, row)) for row in cells),
        ],
    )


def rows_of(path):
    """The fields of a data file beside the generators: one row per line, parted by bars."""
    lines = (line.split("#")[0].strip() for line in path.read_text("utf-8").splitlines())
    return [[field.strip() for field in line.split("|")] for line in lines if line]


def rounded(value, digits):
    """A Decimal above 0 with this many significant digits, half up, without an exponent."""
    with localcontext() as context:
        context.prec = digits
        context.rounding = ROUND_HALF_UP
        short = +value
        if short.adjusted() + 1 < digits:  # a rounded 1 gets its zeros: 1.000
            short = short.quantize(Decimal(1).scaleb(short.adjusted() + 1 - digits))
        return f"{short:f}"


def fixed(value, places):
    """A Fraction with this many places behind the point, half up."""
    exact = Decimal(value.numerator) / value.denominator
    return f"{exact.quantize(Decimal(1).scaleb(-places), ROUND_HALF_UP):f}"
