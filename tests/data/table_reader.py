"""Reads the files of data/ for the checks beside it, as the program's reader does."""

import re
from fractions import Fraction
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
DATA = ROOT / "data"


def inches(text):
    """1-3/4 as a number."""
    return float(sum(Fraction(part) for part in text.split("-")))


def fields_of(text):
    """The fields as the program's reader sees them, each with whether it was quoted."""
    fields, at = [], 0
    while (start := re.compile(r"[ \t\r\n]*").match(text, at).end()) < len(text):
        if text[start] == '"':
            end = text.index('"', start + 1)
            fields.append((text[start + 1 : end], True))
            at = re.compile(r"[ \t]*(,|\r?\n|$)").match(text, end + 1).end()
        else:
            end = re.compile(r"[^,\r\n]*").match(text, start).end()
            fields.append((text[start:end], False))
            at = re.compile(r",|\r?\n|").match(text, end).end()
    return fields


def lines_of(name):
    return (DATA / name).read_bytes().decode("cp1252").split("\r\n")


class Table:
    """A viewer's table: its title, shape and rows, the fixed ones included."""

    def __init__(self, name):
        lines = lines_of(name)
        self.title = lines[1]
        fields = [text for text, _ in fields_of("\r\n".join(lines[2:]))]
        self.shape = [int(text) for text in fields[:4]]
        rows, columns, self.fixed_rows, self.fixed_columns = self.shape
        self.widths = [int(text) for text in fields[4 : 4 + columns]]
        self.alignments = [int(text) for text in fields[4 + columns : 4 + 2 * columns]]
        self.cells = fields[4 + 2 * columns :]
        self.rows = [self.cells[n : n + columns] for n in range(0, len(self.cells), columns)]
        self.body = self.rows[self.fixed_rows :]

    def by_key(self):
        return {row[0]: row for row in self.body}
