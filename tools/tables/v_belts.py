"""SHEAVES.dat and BELTDATA.DAT: stock sheaves of our own numbering, and rating coefficients.

Sheaves come in the preferred pitch diameters of classical A and B sections, bored for a bushing. The
rating is the RMA/ARPM form for classical belts:

    hp = d r (C1 - C2 / d - C3 (d r)^2 - C4 log10(d r)) + r Kr

with d in inches and r in thousands of revolutions per minute. Kr is what the speed ratio adds,
C2 (1 - 1 / Ka), for which the program wants a polynomial of the fourth degree in the ratio: it is fitted
to the standard's steps of Ka by least squares.
"""

from table_file import quoted, write_lines

A_PITCH = [x / 10 for x in (*range(20, 68, 2), 70, 74, 78, 82, 86, 90, 94, 100, 106, 110, 120, 136, 150,
                            180)]
B_PITCH = [x / 10 for x in (*range(34, 76, 2), 80, 84, 86, 90, 94, 100, 110, 124, 136, 154, 160, 184,
                            200, 250)]
# The outside diameter is that much more than the pitch diameter.
RIM = {"A": 0.25, "B": 0.35}
# Smallest and largest pitch diameter of sheaves that open by five turns.
A_VARIABLE = [(x / 10, x / 10 + 1.0) for x in range(19, 51, 2)]
B_VARIABLE = [(x / 10, x / 10 + 1.3) for x in range(27, 59, 2)]
BORES = ["1/2", "5/8", "3/4", "7/8", "15/16", "1", "1-1/8", "1-3/16", "1-1/4", "1-3/8", "1-7/16", "1-1/2",
         "1-5/8", "1-3/4", "1-7/8", "1-15/16", "2", "2-1/8", "2-3/16", "2-1/4"]

# C1 to C4 of the classical sections, by RMA/ARPM IP-20.
COEFFICIENTS = {
    "A": (1.004, 1.652, 1.547e-4, 0.2126),
    "B": (1.769, 4.372, 3.081e-4, 0.3658),
    "C": (3.325, 12.07, 5.828e-4, 0.6886),
    "D": (7.160, 39.57, 1.384e-3, 1.454),
}
# Ka from this speed ratio up.
STEPS = [(1.00, 1.0000), (1.02, 1.0112), (1.05, 1.0226), (1.08, 1.0344), (1.11, 1.0463),
         (1.15, 1.0586), (1.21, 1.0711), (1.28, 1.0840), (1.40, 1.0972), (1.65, 1.1106)]
LARGEST_RATIO = 8


def added_by_ratio(ratio):
    return 1 - 1 / [ka for start, ka in STEPS if ratio >= start - 1e-9][-1]


def fitted():
    """Coefficients k0 to k4 of the least-squares polynomial for 1 - 1 / Ka, by normal equations."""
    ratios = [1 + i * i * (LARGEST_RATIO - 1) / 200**2 for i in range(201)]  # denser near 1
    rows = [[sum(r ** (i + j) for r in ratios) for j in range(5)]
            + [sum(added_by_ratio(r) * r**i for r in ratios)] for i in range(5)]
    for i in range(5):
        pivot = max(range(i, 5), key=lambda k: abs(rows[k][i]))
        rows[i], rows[pivot] = rows[pivot], rows[i]
        rows[i] = [x / rows[i][i] for x in rows[i]]
        for k in range(5):
            if k != i:
                rows[k] = [x - rows[k][i] * y for x, y in zip(rows[k], rows[i])]
    return [row[5] for row in rows]


def number(value):
    return f"{value:.6g}"


def sheave(kind, section, smallest, largest, outside, bore, bushing, part):
    sizes = ",".join(number(size) for size in (smallest, largest, outside))
    return ",".join((quoted(kind), quoted(section), sizes, quoted(bore), quoted(bushing), quoted(part)))


def write(folder):
    lines = ["SHEAVES.dat: stock sheaves for classical V-belts and their bushings, inches",
             "type, section, least and largest pitch diameter, outside diameter, bore, bushing, part"]
    for section, sizes in (("A", A_PITCH), ("B", B_PITCH)):
        lines += [sheave("FIXED", section, pd, pd, pd + RIM[section], "H", "H",
                         f"K{section}{round(pd * 10):03d}H") for pd in sizes]
    for section, sizes in (("A", A_VARIABLE), ("B", B_VARIABLE)):
        lines += [sheave("VARIABLE", section, low, high, high + RIM[section], "H", "H",
                         f"KV{section}{round(high * 10):03d}H") for low, high in sizes]
    lines += [sheave("BUSHING", "", 0, 0, 0, bore, f"H {bore}", f"KH{i + 1:02d}")
              for i, bore in enumerate(BORES)]
    write_lines(folder / "SHEAVES.dat", lines)

    k = fitted()
    write_lines(folder / "BELTDATA.DAT", [
        ",".join([quoted(section), *map(number, c), *(number(c[1] * x) for x in reversed(k))])
        for section, c in COEFFICIENTS.items()])
