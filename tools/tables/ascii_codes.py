"""Ascii.dat: the codes 0 to 127 of ASCII and 128 to 255 of code page 1252."""

import re
import unicodedata
from pathlib import Path

from table_file import CENTER, LEFT, Column, rows_of, write_table

# A cell can't begin with a quotation mark: it stands behind a no-break space.
QUOTATION_MARK = '\N{NO-BREAK SPACE}"'

UNSEEN = {" ": "SP", '"': QUOTATION_MARK, "\N{NO-BREAK SPACE}": "NBSP", "\N{SOFT HYPHEN}": "SHY"}


def described(code):
    try:
        character = bytes([code]).decode("cp1252")
    except UnicodeDecodeError:
        return "", "Not assigned"
    name = unicodedata.name(character).capitalize()
    name = re.sub(r"(?<=letter )\w{1,2}\b", lambda letter: letter[0].upper(), name)
    return UNSEEN.get(character, character), name


def write(folder):
    names = rows_of(Path(__file__).with_name("ascii_names.txt"))
    named = {int(code): (sign, name) for code, sign, name in names}
    rows = []
    for code in range(256):
        sign, name = named.get(code) or described(code)
        rows.append([code, f"{code:02X}", f"{code:03o}", f"{code:08b}", sign, name])
    write_table(
        folder / "Ascii.dat",
        "ANSI X3.4-1986, and Windows code page 1252 from 128 on",
        "ASCII Character Codes",
        [Column((head,), CENTER) for head in ("Decimal", "Hex", "Octal", "Binary", "Character")]
        + [Column(("Meaning",), LEFT)],
        rows,
    )
