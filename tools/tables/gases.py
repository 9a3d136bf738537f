"""Heats_of_Combustion.dat: fuel gases; Cryogens.dat: liquefied gases at one atmosphere."""

from pathlib import Path

from table_file import CENTER, LEFT, Column, rows_of, write_table

HERE = Path(__file__).parent
BTU, POUND, FOOT = 1.05505585262, 0.45359237, 0.3048  # kJ, kg, m
MJ_PER_KG = BTU / POUND / 1000  # in a Btu/lb
MJ_PER_M3 = BTU / FOOT**3 / 1000  # in a Btu/ft3
LB_PER_FT3 = FOOT**3 / POUND  # in a kg/m3
ROOM = 294.26  # K, 70 F
MOLAR_VOLUME = 8.314462618 * ROOM / 101.325  # m3/kmol of an ideal gas


def write_fuels(folder):
    heads = ("gross", "net")
    columns = [
        Column(("Gas", ""), LEFT),
        Column(("Formula", ""), CENTER),
        Column(("Density", "lb/ft³")),
        *[Column((f"Heat, {head}", "Btu/ft³")) for head in heads],
        *[Column((f"Heat, {head}", "Btu/lb")) for head in heads],
        *[Column((f"Heat, {head}", "MJ/m³")) for head in heads],
        *[Column((f"Heat, {head}", "MJ/kg")) for head in heads],
        Column(("Air to burn", "volumes")),
    ]
    rows = []
    for name, formula, _, density, *heats, air in rows_of(HERE / "gas_heats.txt"):
        volume, mass = [[float(text) for text in pair] for pair in (heats[:2], heats[2:])]
        rows.append(
            [name, formula, density, *heats]
            + [f"{x * MJ_PER_M3:.2f}" for x in volume]
            + [f"{x * MJ_PER_KG:.2f}" for x in mass]
            + [f"{float(air):.2f}"]
        )
    write_table(
        folder / "Heats_of_Combustion.dat",
        "dry gas at 60 °F (15.6 °C) and 30 in Hg (101.6 kPa), as combustion handbooks give it; gross: "
        "the water of the flue gas condensed",
        "Fuel Gases - Heat of Combustion",
        columns,
        rows,
    )


def write_cryogens(folder):
    columns = [
        Column(("Fluid", ""), LEFT),
        Column(("Formula", ""), CENTER),
        *[Column(("Boiling point", unit)) for unit in ("K", "°C", "°F")],
        *[Column(("Critical point", unit)) for unit in ("K", "MPa", "psia")],
        *[Column(("Liquid density", unit)) for unit in ("kg/m³", "lb/ft³")],
        *[Column(("Heat of vaporization", unit)) for unit in ("kJ/kg", "Btu/lb")],
        Column(("Gas at 70 °F", "kg/m³")),
        Column(("Gas from liquid", "volumes")),
    ]
    rows = []
    for name, formula, *texts in rows_of(HERE / "cryogens.txt"):
        molar, boiling, t, p, liquid, heat = map(float, texts)
        gas = molar / MOLAR_VOLUME
        rows.append(
            [name, formula, f"{boiling:.2f}", f"{boiling - 273.15:.2f}"]
            + [f"{boiling * 1.8 - 459.67:.1f}", f"{t:.2f}", f"{p:.3f}", f"{p / 0.006894757:.1f}"]
            + [f"{liquid:.1f}", f"{liquid * LB_PER_FT3:.2f}", f"{heat:.1f}"]
            + [f"{heat / (BTU / POUND):.1f}", f"{gas:.4f}", f"{liquid / gas:.0f}"]
        )
    write_table(
        folder / "Cryogens.dat",
        "saturated liquid at 101.325 kPa, from reference equations of state; warm gas as an ideal gas",
        "Cryogen Data",
        columns,
        rows,
    )


def write(folder):
    write_fuels(folder)
    write_cryogens(folder)
