"""O-Rings.dat: all sizes of SAE AS568 by dash number, in inches and millimetres."""

from decimal import ROUND_FLOOR, ROUND_HALF_UP, Decimal
from pathlib import Path

from table_file import CENTER, Column, rows_of, write_table

MM = Decimal("25.4")
THOUSANDTH = Decimal("0.001")


def diameters(words):
    """The numbers of a run: see the head of the text."""
    exact, sizes, words = None, [], iter(words)
    for word in words:
        if not word.startswith("x"):
            exact = Decimal(word)
            sizes.append(exact)
            continue
        step = next(words)
        rounding = ROUND_FLOOR if step.startswith("-") else ROUND_HALF_UP
        for _ in range(int(word[1:])):
            exact += abs(Decimal(step))
            sizes.append(exact.quantize(THOUSANDTH, rounding))
    return sizes


def rings():
    """Dash number, diameter, its tolerance, section, its tolerance."""
    for first, section, slack, sizes, tolerances in rows_of(Path(__file__).with_name("o_rings.txt")):
        limits = [limit.split(":") for limit in tolerances.split()]
        for number, size in enumerate(diameters(sizes.split()), int(first)):
            tolerance = next(tolerance for last, tolerance in limits if number <= int(last))
            yield number, size, Decimal(tolerance), Decimal(section), Decimal(slack)


def write(folder):
    rows = [
        [f"-{number:03}"]
        + [f"{value:.3f}" for value in sizes]
        + [f"{value * MM:.2f}" for value in sizes]
        for number, *sizes in rings()
    ]
    heads = [(f"{part}", word) for part in ("Inside diameter", "Section") for word in ("", "+/-")]
    write_table(
        folder / "O-Rings.dat",
        "SAE AS568 (and ISO 3601-1): inch sizes; millimeters computed",
        "O-Ring Standard Sizes - AS568",
        [Column(("Dash", "number", ""), CENTER)]
        + [Column((*head, unit)) for unit in ("in", "mm") for head in heads],
        rows,
    )
