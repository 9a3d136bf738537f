"""Sound.dat: what a sound pressure level is in pressure and intensity, and where it is met."""

from pathlib import Path

from table_file import LEFT, Column, rows_of, write_table

REFERENCE_PRESSURE = 20e-6  # Pa
REFERENCE_INTENSITY = 1e-12  # W/m2; the two agree within 0.2 dB in air
# OSHA 29 CFR 1910.95: 8 hours at 90 dBA, half of that for each 5 dB more, up to 115 dBA.
LIMIT, HOURS, EXCHANGE, CEILING = 90, 8, 5, 115


def engineering(value):
    """Three digits, with an exponent where the number would be long."""
    if 1000 <= value < 1e5:
        return f"{value:.0f}"
    return f"{value:.3g}" if 1e-3 <= value < 1000 else f"{value:.2E}"


def write(folder):
    rows = []
    for text, example in rows_of(Path(__file__).with_name("sound.txt")):
        level = int(text)
        pressure = REFERENCE_PRESSURE * 10 ** (level / 20)
        hours = HOURS / 2 ** ((level - LIMIT) / EXCHANGE)
        rows.append(
            [level, engineering(pressure), engineering(pressure / 6894.757)]
            + [engineering(REFERENCE_INTENSITY * 10 ** (level / 10))]
            + [f"{hours:.3g}" if LIMIT <= level <= CEILING else "", example]
        )
    write_table(
        folder / "Sound.dat",
        "computed: 20 micropascals and 1 picowatt per square meter at 0 dB; exposure of OSHA 29 CFR "
        "1910.95; typical sources as acoustics handbooks give them",
        "Sound Pressure Levels",
        [
            Column(("Level", "dB")),
            Column(("Pressure", "Pa")),
            Column(("Pressure", "psi")),
            Column(("Intensity", "W/m²")),
            Column(("Daily exposure", "h, dBA")),
            Column(("Typical source", ""), LEFT),
        ],
        rows,
    )
