"""flow_air_US.dat, flow_air_SI.dat, flow-h2o.DAT, flo-h2om.DAT: pressure drops of compressed air and
water in schedule 40 steel pipe; flow-gas.DAT: capacities for natural gas at low pressure.

Air and water by Darcy and Weisbach with the friction factor of Haaland (within 2 % of Colebrook's);
gas by the low-pressure formula of NFPA 54.
"""

import math

from table_file import Column, write_table

# Schedule 40 (ASME B36.10M): NPS, DN, inside diameter in inches.
PIPES = [
    ("1/2", "15", 0.622), ("3/4", "20", 0.824), ("1", "25", 1.049), ("1-1/4", "32", 1.380),
    ("1-1/2", "40", 1.610), ("2", "50", 2.067), ("2-1/2", "65", 2.469), ("3", "80", 3.068),
    ("4", "100", 4.026), ("5", "125", 5.047), ("6", "150", 6.065), ("8", "200", 7.981),
    ("10", "250", 10.020), ("12", "300", 11.938),
]  # fmt: skip
ROUGHNESS = 0.00015 * 0.3048  # m, commercial steel
INCH, FOOT, PSI = 0.0254, 0.3048, 6894.757293168
GALLON = 0.003785411784  # m3

WATER = (999.0, 1.122e-3)  # kg/m3 and Pa s at 60 F (15.6 C)
AIR_MOLAR, AIR_VISCOSITY = 287.05, 1.80e-5  # J/kg K, Pa s
LINE = (100 * PSI + 101325, 288.71)  # of the air: 100 psig, 60 F
LINE_METRIC = (700e3 + 101325, 288.15)  # 7 bar gauge, 15 C
STANDARD = (101325, 288.71)  # of free air: 14.7 psia and 60 F
NORMAL = (101325, 288.15)  # 1.013 bar and 15 C


def friction(reynolds, diameter):
    if reynolds < 2300:
        return 64 / reynolds
    relative = ROUGHNESS / diameter / 3.7
    return (-1.8 * math.log10(relative**1.11 + 6.9 / reynolds)) ** -2


def drop(mass_flow, density, viscosity, diameter):
    """Pa in a metre of pipe, and m/s, for kg/s."""
    speed = mass_flow / (density * math.pi / 4 * diameter**2)
    reynolds = density * speed * diameter / viscosity
    return friction(reynolds, diameter) / diameter * density * speed**2 / 2, speed


def digits(value):
    return f"{value:.{max(2 - math.floor(math.log10(value)), 0)}f}"


def rows_of_drops(flows, mass_flow, density, viscosity, scale, least, most):
    """Each flow with its drop in each pipe, where that is worth telling."""
    rows = []
    for flow in flows:
        row = [f"{flow:g}"]
        for *_, inches in PIPES:
            value = drop(flow * mass_flow, density, viscosity, inches * INCH)[0] * scale
            row.append(digits(value) if least <= value <= most else "")
        rows.append(row)
    return rows


def series(first, last):
    """Preferred steps of each decade: 1, 1.5, 2, ..."""
    steps = (1, 1.5, 2, 2.5, 3, 4, 5, 6, 8)
    values = [s * 10**n for n in range(-2, 6) for s in steps]
    return [value for value in values if first <= value <= last]


def write_drops(folder, name, title, comment, heads, unit, rows):
    flow, sizes = heads
    columns = [Column((flow[0], flow[1]))]
    columns += [Column((f"{sizes} {pipe[sizes == 'DN']}", unit)) for pipe in PIPES]
    write_table(folder / name, comment, title, columns, rows)


def write_air(folder):
    comment = (
        "Darcy and Weisbach with Haaland's friction factor, schedule 40 steel pipe (0.00015 ft), "
        "constant density; pressure falls linearly with length for small drops"
    )
    density = LINE[0] / (AIR_MOLAR * LINE[1])
    free = STANDARD[0] / (AIR_MOLAR * STANDARD[1]) * FOOT**3 / 60  # kg/s in a cfm
    write_drops(
        folder, "flow_air_US.dat",
        "Air Flow in Schedule 40 Pipe at 100 psig - Pressure Drop, psi per 100 ft", comment,
        (("Free air", "cfm"), "NPS"), "psi",
        rows_of_drops(series(5, 20000), free, density, AIR_VISCOSITY, 100 * FOOT / PSI, 0.001, 15),
    )  # fmt: skip
    density = LINE_METRIC[0] / (AIR_MOLAR * LINE_METRIC[1])
    free = NORMAL[0] / (AIR_MOLAR * NORMAL[1]) / 60000  # kg/s in a L/min
    write_drops(
        folder, "flow_air_SI.dat",
        "Air Flow in Schedule 40 Pipe at 7 bar Gauge - Pressure Drop, kPa per 100 m", comment,
        (("Free air", "L/min"), "DN"), "kPa",
        rows_of_drops(series(150, 600000), free, density, AIR_VISCOSITY, 0.1, 0.02, 350),
    )  # fmt: skip


def write_water(folder):
    comment = (
        "Darcy and Weisbach with Haaland's friction factor, clean schedule 40 steel pipe "
        "(0.00015 ft), water at 60 F"
    )
    write_drops(
        folder, "flow-h2o.DAT",
        "Water Flow in Schedule 40 Pipe - Pressure Drop, psi per 100 ft", comment,
        (("Flow", "gpm"), "NPS"), "psi",
        rows_of_drops(series(1, 5000), GALLON / 60 * WATER[0], *WATER, 100 * FOOT / PSI, 0.01, 25),
    )  # fmt: skip
    write_drops(
        folder, "flo-h2om.DAT",
        "Water Flow in Schedule 40 Pipe - Pressure Drop, kPa per 100 m", comment,
        (("Flow", "L/s"), "DN"), "kPa",
        rows_of_drops(series(0.05, 300), WATER[0] / 1000, *WATER, 0.1, 0.2, 550),
    )  # fmt: skip


def gas_capacity(inches, feet, drop_in_water):
    """Cubic feet an hour of natural gas of gravity 0.60, at 1.5 psig or less (NFPA 54)."""
    cr = 0.6094
    return (inches * 19.17 * (drop_in_water / (cr * feet)) ** 0.206) ** (1 / 0.381)


def write_gas(folder):
    lengths = [10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 125, 150, 175, 200, 250, 300, 350, 400, 450,
               500, 600, 700, 800, 900, 1000]  # fmt: skip
    columns = [Column(("Length", "ft"))]
    columns += [Column((f"NPS {pipe[0]}", "ft³/h")) for pipe in PIPES]
    rows = [
        [length] + [f"{float(f'{gas_capacity(pipe[2], length, 0.5):.3g}'):.0f}" for pipe in PIPES]
        for length in lengths
    ]
    write_table(
        folder / "flow-gas.DAT",
        "low-pressure formula of NFPA 54: schedule 40 pipe, gravity 0.60, inlet 1.5 psig or less, "
        "drop 0.5 in of water",
        "Natural Gas Capacity of Schedule 40 Pipe - 0.5 in Water Drop",
        columns,
        rows,
    )


def write(folder):
    write_air(folder)
    write_water(folder)
    write_gas(folder)
