"""3PH-FLA.DAT, 3PH-FLC.DAT, fla-1ph.DAT: currents of motors; starters.DAT: NEMA starters;
NEMAFRAM.DAT: which NEMA frame a motor of a power and speed has.
"""

from pathlib import Path

from table_file import CENTER, Column, rows_of, write_table

HERE = Path(__file__).parent


def currents(folder, source, name, comment, title, power, volts):
    columns = [Column(("Power", power), CENTER)] + [Column((f"{v} V", "A")) for v in volts]
    write_table(folder / name, comment, title, columns, rows_of(HERE / source))


def write(folder):
    currents(
        folder, "motor_amperes.txt", "3PH-FLA.DAT",
        "NFPA 70-2020 (NEC), Table 430.250: induction motors, squirrel cage and wound rotor",
        "Full Load Amperes of Three Phase AC Motors - 60 Hz",
        "hp", (115, 200, 208, 230, 460, 575, 2300),
    )  # fmt: skip
    currents(
        folder, "motor_amperes_1ph.txt", "fla-1ph.DAT",
        "NFPA 70-2020 (NEC), Table 430.248",
        "Full Load Amperes of Single Phase AC Motors - 60 Hz",
        "hp", (115, 200, 208, 230),
    )  # fmt: skip
    currents(
        folder, "motor_amperes_iec.txt", "3PH-FLC.DAT",
        "IEC 60947-4-1, annex G: guiding values for four-pole cage motors",
        "Full Load Current of Three Phase AC Motors - 50 Hz",
        "kW", (230, 400, 500, 690),
    )  # fmt: skip
    write_starters(folder)
    write_frames(folder)


def write_starters(folder):
    columns = [
        Column(("NEMA", "size"), CENTER),
        Column(("Continuous", "A")),
        Column(("Service limit", "A")),
    ]
    for use, volts in (
        ("Single phase", ("115", "230")),
        ("Three phase", ("200", "230", "460 / 575")),
        ("Plugging, jogging", ("200", "230", "460 / 575")),
    ):
        columns += [Column((use, f"hp at {v} V")) for v in volts]
    write_table(
        folder / "starters.DAT",
        "NEMA ICS 2: full-voltage magnetic starters, 60 Hz, largest motors",
        "NEMA Starter Sizes",
        columns,
        rows_of(HERE / "nema_starters.txt"),
    )


def write_frames(folder):
    columns = [Column(("Power", "hp"), CENTER)]
    for enclosure in ("Open", "Fan-cooled"):
        columns += [
            Column((enclosure, f"{rpm} rpm"), CENTER) for rpm in (3600, 1800, 1200, 900)
        ]
    write_table(
        folder / "NEMAFRAM.DAT",
        "NEMA MG 13: T frames of three-phase, 60 Hz, design A and B motors by synchronous speed",
        "NEMA Standard Frames",
        columns,
        rows_of(HERE / "nema_assignments.txt"),
    )
