"""solar.DAT: daily solar radiation of clear days on surfaces, by latitude and month.

Computed by the ASHRAE clear-day model: direct normal A exp(-B / sin altitude), diffuse C times that,
for the 21st of each month; without what the ground reflects.
"""

import math

from table_file import CENTER, Column, write_table

# Declination in degrees, A in Btu/h ft2, B, C (ASHRAE Fundamentals, 1977 to 1997).
MONTHS = {
    "Jan": (-20.0, 390, 0.142, 0.058), "Feb": (-10.8, 385, 0.144, 0.060),
    "Mar": (0.0, 376, 0.156, 0.071), "Apr": (11.6, 360, 0.180, 0.097),
    "May": (20.0, 350, 0.196, 0.121), "Jun": (23.45, 345, 0.205, 0.134),
    "Jul": (20.6, 344, 0.207, 0.136), "Aug": (12.3, 351, 0.201, 0.122),
    "Sep": (0.0, 365, 0.177, 0.092), "Oct": (-10.5, 378, 0.160, 0.073),
    "Nov": (-19.8, 387, 0.149, 0.063), "Dec": (-23.45, 391, 0.142, 0.057),
}  # fmt: skip
LATITUDES = (0, 8, 16, 24, 32, 40, 48, 56, 64)
KWH_PER_M2 = 1.05505585262 / 3600 / 0.3048**2  # in a Btu/ft2
STEPS_PER_HOUR = 30


def surfaces(latitude):
    """Tilt from the horizontal and azimuth from south, in degrees; None follows the sun."""
    return [None, (0, 0), (90, 0), (90, -90), (latitude, 0)]


def day(latitude, month):
    """Hours of sun, altitude at noon, and Btu/ft2 on each surface."""
    declination, a, b, c = MONTHS[month]
    phi, delta = math.radians(latitude), math.radians(declination)
    totals = [0.0] * len(surfaces(latitude))
    lit = 0
    for step in range(24 * STEPS_PER_HOUR):
        hour = math.radians(((step + 0.5) / STEPS_PER_HOUR - 12) * 15)
        up = math.sin(phi) * math.sin(delta) + math.cos(phi) * math.cos(delta) * math.cos(hour)
        if up <= 0:
            continue
        lit += 1
        south = math.sin(phi) * math.cos(delta) * math.cos(hour) - math.cos(phi) * math.sin(delta)
        west = math.cos(delta) * math.sin(hour)
        normal = a * math.exp(-b / up)
        for n, surface in enumerate(surfaces(latitude)):
            if surface is None:
                totals[n] += normal / STEPS_PER_HOUR
                continue
            tilt, azimuth = map(math.radians, surface)
            toward = math.cos(tilt) * up + math.sin(tilt) * (
                math.cos(azimuth) * south + math.sin(azimuth) * west
            )
            sky = c * (1 + math.cos(tilt)) / 2
            totals[n] += normal * (max(toward, 0) + sky) / STEPS_PER_HOUR
    return lit / STEPS_PER_HOUR, 90 - abs(latitude - declination), totals


def write(folder):
    rows = []
    for latitude in LATITUDES:
        for month in MONTHS:
            hours, noon, totals = day(latitude, month)
            rows.append(
                [f"{latitude}° N" if latitude else "0°", month, f"{hours:.1f}", f"{noon:.1f}"]
                + [f"{total:.0f}" for total in totals]
                + [f"{total * KWH_PER_M2:.2f}" for total in totals]
            )
    heads = ("Facing the sun", "Horizontal", "Vertical, south", "Vertical, east or west",
             "Tilt of latitude")  # fmt: skip
    write_table(
        folder / "solar.DAT",
        "ASHRAE clear-day model for the 21st of each month; without ground reflection; clouds, haze and "
        "altitude change it",
        "Solar Radiation of Clear Days - Daily Totals",
        [
            Column(("Latitude", ""), CENTER),
            Column(("Month", ""), CENTER),
            Column(("Daylight", "h")),
            Column(("Noon altitude", "deg")),
            *[Column((head, "Btu/ft²")) for head in heads],
            *[Column((head, "kWh/m²")) for head in heads],
        ],
        rows,
        fixed_columns=2,
    )
