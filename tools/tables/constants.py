"""Constants.dat: constants of physics and engineering, from constants.txt."""

from pathlib import Path

from table_file import CENTER, LEFT, RIGHT, Column, rows_of, write_table


def write(folder):
    rows = []
    for row in rows_of(Path(__file__).with_name("constants.txt")):
        rows.append(row if len(row) > 1 else [row[0].upper(), "", "", "", ""])
    write_table(
        folder / "Constants.dat",
        "CODATA 2018 (NIST); standard conditions of ISO 2533; nominal values as in common use",
        "Engineering Constants",
        [
            Column(("Constant",), LEFT),
            Column(("Symbol",), CENTER),
            Column(("Value",), RIGHT),
            Column(("Unit",), LEFT),
            Column(("Standard uncertainty",), CENTER),
        ],
        rows,
    )
