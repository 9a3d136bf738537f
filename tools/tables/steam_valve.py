"""Steam_Cv.dat: saturated steam by its gauge pressure, for sizing valves.

The rows are so close that a straight line between two of them is within 0.15 % of the volume.
"""

from steam import BTU, FOOT, POUND, PSI, at_pressure, degrees, span, US
from table_file import write_lines

ATMOSPHERE = 0.101325  # MPa, at which a gauge stands at 0
PSIG = span((0, 30, 1), (32, 60, 2), (65, 150, 5), (160, 300, 10), (320, 600, 20))


def write(folder):
    lines = [
        "Steam_Cv.dat: saturated steam by gauge pressure, IAPWS Industrial Formulation 1997",
        "gauge pressure, specific volume, temperature, latent heat",
        "psig, ft3/lb, F, Btu/lb",
    ]
    for psig in PSIG:
        point = at_pressure(psig * PSI + ATMOSPHERE)
        v = point.vapor.v / (FOOT**3 / POUND)
        latent = (point.vapor.h - point.liquid.h) / (BTU / POUND)
        lines.append(f"{psig}, {v:.5g}, {degrees(point.t, US):.2f}, {latent:.1f}")
    write_lines(folder / "Steam_Cv.dat", lines)
