"""Holds cells of every table of the menus against published values: spot_values.list."""

import re
import unittest
from pathlib import Path

from check_pairs import follows, menu_pairs, numbers
from table_reader import DATA, ROOT, Table, inches


def read_spots():
    """By table file: row, column, published value, what it may differ by."""
    spots = {}
    for line in Path(__file__).with_name("spot_values.list").read_text("utf-8").splitlines():
        if line.startswith("["):
            here = spots.setdefault(line.strip("[]"), [])
        elif line and not line.startswith("#"):
            row, columns, values, apart, source = (part.strip() for part in line.split("|"))
            if not source:
                raise ValueError(f"no source: {line}")
            for column, value in zip(columns.split("; "), values.split("; "), strict=True):
                here.append((row, column, value, apart))
    return spots


def named(lines, name):
    """The place of the only line whose cells begin with the name."""
    texts = [" ".join(cell for cell in line if cell) + " " for line in lines]
    found = [n for n, text in enumerate(texts) if text.startswith(name + " ")]
    # One cell may be the beginning of another's.
    exact = [n for n in found if name in (lines[n][0], texts[n].strip())]
    if len(found) != 1:
        found = exact
    if len(found) != 1:
        raise LookupError(f"{len(found)} are named {name}")
    return found[0]


def span(text):
    """The least and the greatest number of a cell, or nothing."""
    text = text.replace(" - ", " ").replace(" to ", " ")
    if re.fullmatch(r"\d+(-\d+)?/\d+", text):
        return inches(text), inches(text)
    try:
        values = [float(text.replace(",", ""))]
    except ValueError:
        values = [value for value, _ in numbers(text)]
    return (min(values), max(values)) if values else None


def agree(cell, value, apart):
    if apart == "words":
        return all(word in cell.lower() for word in value.split())
    one, other = span(cell), span(value)
    if cell == value or not one or not other:
        return cell == value
    if apart.endswith("%"):
        slack = float(apart[:-1]) / 100 * max(map(abs, other))
    else:
        slack = float(apart or 0)
    slack += 1e-9 * abs(other[0])
    return one[0] - slack <= other[1] and other[0] - slack <= one[1]


class Spots(unittest.TestCase):
    SPOTS = read_spots()

    def test_cells_are_as_published(self):
        for name, spots in self.SPOTS.items():
            table = Table(name)
            columns = list(zip(*table.rows[: table.fixed_rows]))
            for row, column, value, apart in spots:
                with self.subTest(name, row=row, column=column):
                    place = int(column) if column.isdigit() else named(columns, column)
                    cell = table.body[named(table.body, row)][place]
                    self.assertTrue(agree(cell, value, apart), (cell, value, apart))

    def test_every_table_has_some(self):
        """Five where it is computed, else three; a metric table can follow its U.S. one."""
        menu = (ROOT / "src" / "shell" / "menu_catalogue.cpp").read_text("utf-8")
        tables = set(re.findall(r'"([^"\n]+\.dat)"', menu, re.I))
        tables -= {metric for us, metric in menu_pairs() if follows(Table(us), Table(metric))}
        self.assertGreater(len(tables), 70)
        computed = set()
        for line in (DATA / "SOURCES.md").read_text("utf-8").splitlines():
            if line.startswith("| `") and "computed" in line.split("|")[2]:
                computed.update(re.findall("`(.+?)`", line.split("|")[1]))
        for name in sorted(tables):
            with self.subTest(name):
                wanted = 5 if name in computed else 3
                self.assertGreaterEqual(len(self.SPOTS.get(name, [])), wanted)
