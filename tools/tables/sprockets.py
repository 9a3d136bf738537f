"""SPROCKET.dat: hubs of stock roller chain sprockets, inches, by a rule of our own.

A hub is as large as the side plates of the chain let pass, but no larger than is usual for its
chain; its largest bore leaves a wall for the keyseat; large sprockets have longer hubs.
"""

import math

from table_file import write_lines

TEETH = [*range(9, 31), 32, 35, 36, 40, 42, 45, 48, 52, 54, 60, 70, 72, 80, 84, 96, 112]
LONG_FROM = 45  # teeth
# Chain: pitch, usual largest hub diameter, lengths through bore of small and of large sprockets.
CHAINS = {
    25: (0.25, 1.5, 0.5, 0.75),
    35: (0.375, 2.25, 0.75, 1),
    41: (0.5, 2.75, 0.8125, 1),
    40: (0.5, 3, 0.875, 1.25),
    50: (0.625, 3.5, 1, 1.25),
    60: (0.75, 4.25, 1.25, 1.75),
    80: (1, 5, 1.625, 2),
    100: (1.25, 5.75, 2, 2.5),
    120: (1.5, 6.5, 2.25, 2.75),
    140: (1.75, 7, 2.5, 3),
    160: (2, 7.5, 2.75, 3.25),
}
BORE_TO_HUB = 0.68


def largest_hub(pitch, teeth):
    """By ASME B29.1."""
    return pitch * (1 / math.tan(math.pi / teeth) - 1) - 0.03


def sixteenths_below(inches):
    return math.floor(16 * inches + 1e-9) / 16


def write(folder):
    lines = []
    for chain, (pitch, usual, short, long) in CHAINS.items():
        for teeth in TEETH:
            hub = sixteenths_below(min(usual, largest_hub(pitch, teeth)))
            bore = sixteenths_below(BORE_TO_HUB * hub)
            length = short if teeth < LONG_FROM else long
            lines.append(f"{chain},{teeth},{bore:g},{length:g},{hub:g}")
    write_lines(folder / "SPROCKET.dat", lines)
