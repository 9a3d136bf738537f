"""Standard wire and sheet gauges, each in inches and in millimetres from one list of sizes."""

from decimal import ROUND_HALF_UP, Decimal
from pathlib import Path

from table_file import CENTER, Column, rows_of, write_table

MM = Decimal("25.4")
WIRE = range(-6, 51)
SHEET = range(3, 39)

# Sheet steel goes by its weight: 40.8 lb/ft2 and inch, and 2.5 % more since a sheet is thicker in the
# middle than at the edges where it is measured (manufacturers' standard gauge).
POUNDS_PER_INCH = Decimal("41.82")
GALVANIZED_EXTRA = Decimal("2.5")  # oz/ft2 of zinc
OUNCES_PER_INCH = 640  # of the U.S. standard gauge (1893), which stainless steel keeps
# lb/in3: stainless steel of the 300 series, aluminium 3003.
STAINLESS, ALUMINUM = Decimal("0.29"), Decimal("0.099")


def known():
    """Sizes in inches (or weights) by gauge name and number, where 0 is 1/0 and -1 is 2/0."""
    sizes = {}
    for name, first, values in rows_of(Path(__file__).with_name("gauge_data.txt")):
        sizes[name] = {int(first) + n: Decimal(v) for n, v in enumerate(values.split())}
    return sizes


def american(number):
    """American (Brown and Sharpe) gauge: 0.005 inch at 36, 0.46 inch at 4/0, in 39 equal ratios."""
    return Decimal("0.005") * Decimal(92) ** (Decimal(36 - number) / 39)


def gauge_name(number):
    return str(number) if number > 0 else "0" if number == 0 else f"{1 - number}/0"


def places(value, count):
    return "" if value is None else f"{value.quantize(Decimal(1).scaleb(-count), ROUND_HALF_UP):f}"


def write_wire(folder):
    sizes = known()
    for scale, count, unit, title, name in (
        (1, 4, "in", "U.S. Units", "Wire_Gauges.dat"),
        (MM, 3, "mm", "Metric Units", "Wire_Gauges_m.dat"),
    ):
        columns = [Column(("Gauge", "number"), CENTER)]
        columns += [
            Column((head, unit))
            for head in ("American, B&S", "Steel (W&M)", "Imperial, SWG", "Birmingham", "Music wire")
        ]
        rows = []
        for number in WIRE:
            inches = [american(number) if number >= -5 else None]
            inches += [
                size / 1000 if (size := sizes[key].get(number)) is not None else None
                for key in ("steel", "SWG", "BWG", "music")
            ]
            rows.append(
                [gauge_name(number)] + [places(x and x * scale, count) for x in inches]
            )
        write_table(
            folder / name,
            "diameters: AWG by its rule (ASTM B258), U.S. steel wire gauge, BS 3737 (SWG), "
            "Birmingham or Stubs' iron wire gauge, ASTM A228 (music wire)",
            f"Standard Wire Gauges - {title}",
            columns,
            rows,
        )


def write_sheet(folder):
    ounces = known()["ounces"]
    per_in = {"steel": POUNDS_PER_INCH, "stainless": STAINLESS * 144, "aluminum": ALUMINUM * 144}
    kg_per_m2 = Decimal("0.45359237") / Decimal("0.3048") ** 2
    for scale, weight, count, length_unit, weight_unit, title, name in (
        (1, 1, 4, "in", "lb/ft²", "U.S. Units", "Sheet_Gauges.dat"),
        (MM, kg_per_m2, 3, "mm", "kg/m²", "Metric Units", "Sheet_Gauges_m.dat"),
    ):
        columns = [Column(("Gauge", "number", ""), CENTER)]
        for material in ("Sheet steel", "Galvanized steel", "Stainless steel", "Aluminum"):
            columns.append(Column((material, "thickness", length_unit)))
            columns.append(Column((material, "weight", weight_unit)))
        rows = []
        for number in SHEET:
            steel = ounces[number] / 16
            zinc = (ounces[number] + GALVANIZED_EXTRA) / 16 if 8 <= number <= 32 else None
            stainless = ounces[number] / OUNCES_PER_INCH if number <= 32 else None
            aluminum = american(number)
            pairs = [
                (steel / POUNDS_PER_INCH, steel),
                (zinc and zinc / POUNDS_PER_INCH, zinc),
                (stainless, stainless and stainless * per_in["stainless"]),
                (aluminum, aluminum * per_in["aluminum"]),
            ]
            row = [gauge_name(number)]
            for thickness, load in pairs:
                row += [places(thickness and thickness * scale, count)]
                row += [places(load and load * weight, 3)]
            rows.append(row)
        write_table(
            folder / name,
            "manufacturers' standard gauge (sheet and galvanized steel, by weight), U.S. standard "
            "gauge of 1893 (stainless), American gauge (aluminum)",
            f"Standard Sheet Gauges - {title}",
            columns,
            rows,
        )


def write(folder):
    write_wire(folder)
    write_sheet(folder)
