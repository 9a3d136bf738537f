"""Elements.dat: the elements, for their periodic chart.

A record is the atomic number, then ten texts, which the raw data's head explains.
"""

from pathlib import Path

from table_file import quoted, rows_of, write_lines

TITLE = (
    "Elements.dat: number, symbol, name, atomic weight (IUPAC 2021), series, density (g/cm3, gases "
    "g/L), melting and boiling point (C), configuration, electronegativity (Pauling), crystal"
)


def write(folder):
    rows = rows_of(Path(__file__).with_name("elements.txt"))
    lines = [",".join([str(n), *map(quoted, row)]) for n, row in enumerate(rows, 1)]
    write_lines(folder / "Elements.dat", [TITLE, *lines])
