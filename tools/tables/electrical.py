"""What the electrical windows read themselves: materials of capacitors and a text to read."""

from pathlib import Path

from table_file import quoted, rows_of, write_lines

HERE = Path(__file__).parent


def write(folder):
    records = [f"{quoted(name)},{quoted(k)}" for name, k in rows_of(HERE / "dielectrics.txt")]
    write_lines(folder / "dielect.dat", ["Dielectric materials: name, dielectric constant", *records])
    text = (HERE / "hazard_class.txt").read_text("utf-8")
    write_lines(folder / "Hazard_Class.dat", text.splitlines())
