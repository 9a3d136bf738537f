"""Water and steam at saturation by the IAPWS Industrial Formulation 1997 (IAPWS R7-97(2012)).

Regions 1 (liquid) and 2 (vapour) to 623.15 K, region 3 (by density) up to the critical point, and
region 4 (the saturation line). Units: K, MPa, m3/kg, kJ/kg, kJ/kg K.
"""

import math
from typing import NamedTuple

R = 0.461526  # kJ/kg K
T_TRIPLE, T_CRITICAL = 273.16, 647.096
P_CRITICAL, RHO_CRITICAL = 22.064, 322.0
T_REGION_3 = 623.15

REGION_1 = [
    (0, -2, 0.14632971213167), (0, -1, -0.84548187169114), (0, 0, -0.37563603672040e1),
    (0, 1, 0.33855169168385e1), (0, 2, -0.95791963387872), (0, 3, 0.15772038513228),
    (0, 4, -0.16616417199501e-1), (0, 5, 0.81214629983568e-3), (1, -9, 0.28319080123804e-3),
    (1, -7, -0.60706301565874e-3), (1, -1, -0.18990068218419e-1), (1, 0, -0.32529748770505e-1),
    (1, 1, -0.21841717175414e-1), (1, 3, -0.52838357969930e-4), (2, -3, -0.47184321073267e-3),
    (2, 0, -0.30001780793026e-3), (2, 1, 0.47661393906987e-4), (2, 3, -0.44141845330846e-5),
    (2, 17, -0.72694996297594e-15), (3, -4, -0.31679644845054e-4), (3, 0, -0.28270797985312e-5),
    (3, 6, -0.85205128120103e-9), (4, -5, -0.22425281908000e-5), (4, -2, -0.65171222895601e-6),
    (4, 10, -0.14341729937924e-12), (5, -8, -0.40516996860117e-6), (8, -11, -0.12734301741641e-8),
    (8, -6, -0.17424871230634e-9), (21, -29, -0.68762131295531e-18),
    (23, -31, 0.14478307828521e-19), (29, -38, 0.26335781662795e-22),
    (30, -39, -0.11947622640071e-22), (31, -40, 0.18228094581404e-23),
    (32, -41, -0.93537087292458e-25),
]  # fmt: skip

REGION_2_IDEAL = [
    (0, -0.96927686500217e1), (1, 0.10086655968018e2), (-5, -0.56087911283020e-2),
    (-4, 0.71452738081455e-1), (-3, -0.40710498223928), (-2, 0.14240819171444e1),
    (-1, -0.43839511319450e1), (2, -0.28408632460772), (3, 0.21268463753307e-1),
]  # fmt: skip

REGION_2 = [
    (1, 0, -0.17731742473213e-2), (1, 1, -0.17834862292358e-1), (1, 2, -0.45996013696365e-1),
    (1, 3, -0.57581259083432e-1), (1, 6, -0.50325278727930e-1), (2, 1, -0.33032641670203e-4),
    (2, 2, -0.18948987516315e-3), (2, 4, -0.39392777243355e-2), (2, 7, -0.43797295650573e-1),
    (2, 36, -0.26674547914087e-4), (3, 0, 0.20481737692309e-7), (3, 1, 0.43870667284435e-6),
    (3, 3, -0.32277677238570e-4), (3, 6, -0.15033924542148e-2), (3, 35, -0.40668253562649e-1),
    (4, 1, -0.78847309559367e-9), (4, 2, 0.12790717852285e-7), (4, 3, 0.48225372718507e-6),
    (5, 7, 0.22922076337661e-5), (6, 3, -0.16714766451061e-10), (6, 16, -0.21171472321355e-2),
    (6, 35, -0.23895741934104e2), (7, 0, -0.59059564324270e-17), (7, 11, -0.12621808899101e-5),
    (7, 25, -0.38946842435739e-1), (8, 8, 0.11256211360459e-10), (8, 36, -0.82311340897998e1),
    (9, 13, 0.19809712802088e-7), (10, 4, 0.10406965210174e-18), (10, 10, -0.10234747095929e-12),
    (10, 14, -0.10018179379511e-8), (16, 29, -0.80882908646985e-10), (16, 50, 0.10693031879409),
    (18, 57, -0.33662250574171), (20, 20, 0.89185845355421e-24), (20, 35, 0.30629316876232e-12),
    (20, 48, -0.42002467698208e-5), (21, 21, -0.59056029685639e-25),
    (22, 53, 0.37826947613457e-5), (23, 39, -0.12768608934681e-14), (24, 26, 0.73087610595061e-28),
    (24, 40, 0.55414715350778e-16), (24, 58, -0.94369707241210e-6),
]  # fmt: skip

REGION_3_LOG = 0.10658070028513e1
REGION_3 = [
    (0, 0, -0.15732845290239e2), (0, 1, 0.20944396974307e2), (0, 2, -0.76867707878716e1),
    (0, 7, 0.26185947787954e1), (0, 10, -0.28080781148620e1), (0, 12, 0.12053369696517e1),
    (0, 23, -0.84566812812502e-2), (1, 2, -0.12654315477714e1), (1, 6, -0.11524407806681e1),
    (1, 15, 0.88521043984318), (1, 17, -0.64207765181607), (2, 0, 0.38493460186671),
    (2, 2, -0.85214708824206), (2, 6, 0.48972281541877e1), (2, 7, -0.30502617256965e1),
    (2, 22, 0.39420536879154e-1), (2, 26, 0.12558408424308), (3, 0, -0.27999329698710),
    (3, 2, 0.13899799569460e1), (3, 4, -0.20189915023570e1), (3, 16, -0.82147637173963e-2),
    (3, 26, -0.47596035734923), (4, 0, 0.43984074473500e-1), (4, 2, -0.44476435428739),
    (4, 4, 0.90572070719733), (4, 26, 0.70522450087967), (5, 1, 0.10770512626332),
    (5, 3, -0.32913623258954), (5, 26, -0.50871062041158), (6, 0, -0.22175400873096e-1),
    (6, 2, 0.94260751665092e-1), (6, 26, 0.16436278447961), (7, 2, -0.13503372241348e-1),
    (8, 26, -0.14834345352472e-1), (9, 2, 0.57922953628084e-3), (9, 26, 0.32308904703711e-2),
    (10, 0, 0.80964802996215e-4), (10, 1, -0.16557679795037e-3), (11, 26, -0.44923899061815e-4),
]  # fmt: skip

REGION_4 = [
    0.11670521452767e4, -0.72421316703206e6, -0.17073846940092e2, 0.12020824702470e5,
    -0.32325550322333e7, 0.14915108613530e2, -0.48232657361591e4, 0.40511340542057e6,
    -0.23855557567849, 0.65017534844798e3,
]  # fmt: skip


class State(NamedTuple):
    v: float
    u: float
    s: float
    h: float
    cp: float


def of_gibbs(p, t, pi, tau, g, g_pi, g_tau, g_tautau):
    return State(
        v=R * t / p * pi * g_pi / 1000,
        u=R * t * (tau * g_tau - pi * g_pi),
        s=R * (tau * g_tau - g),
        h=R * t * tau * g_tau,
        cp=-R * tau * tau * g_tautau,
    )


def liquid(p, t):
    """Region 1."""
    pi, tau = p / 16.53, 1386 / t
    a, b = 7.1 - pi, tau - 1.222
    g = g_pi = g_tau = g_tautau = 0
    for i, j, n in REGION_1:
        g += n * a**i * b**j
        g_pi -= n * i * a ** (i - 1) * b**j
        g_tau += n * a**i * j * b ** (j - 1)
        g_tautau += n * a**i * j * (j - 1) * b ** (j - 2)
    return of_gibbs(p, t, pi, tau, g, g_pi, g_tau, g_tautau)


def vapor(p, t):
    """Region 2."""
    pi, tau = p, 540 / t
    b = tau - 0.5
    g, g_pi = math.log(pi), 1 / pi
    g_tau = g_tautau = 0
    for j, n in REGION_2_IDEAL:
        g += n * tau**j
        g_tau += n * j * tau ** (j - 1)
        g_tautau += n * j * (j - 1) * tau ** (j - 2)
    for i, j, n in REGION_2:
        g += n * pi**i * b**j
        g_pi += n * i * pi ** (i - 1) * b**j
        g_tau += n * pi**i * j * b ** (j - 1)
        g_tautau += n * pi**i * j * (j - 1) * b ** (j - 2)
    return of_gibbs(p, t, pi, tau, g, g_pi, g_tau, g_tautau)


def dense(rho, t):
    """Region 3: the pressure and the state at a density in kg/m3."""
    delta, tau = rho / RHO_CRITICAL, T_CRITICAL / t
    f, f_d, f_dd = REGION_3_LOG * math.log(delta), REGION_3_LOG / delta, -REGION_3_LOG / delta**2
    f_t = f_tt = f_dt = 0
    for i, j, n in REGION_3:
        f += n * delta**i * tau**j
        f_d += n * i * delta ** (i - 1) * tau**j
        f_dd += n * i * (i - 1) * delta ** (i - 2) * tau**j
        f_t += n * delta**i * j * tau ** (j - 1)
        f_tt += n * delta**i * j * (j - 1) * tau ** (j - 2)
        f_dt += n * i * delta ** (i - 1) * j * tau ** (j - 1)
    p = rho * R * t * delta * f_d / 1000
    u = R * t * tau * f_t
    isochoric = -(tau**2) * f_tt
    expansion = (delta * f_d - delta * tau * f_dt) ** 2 / (2 * delta * f_d + delta**2 * f_dd)
    state = State(
        v=1 / rho,
        u=u,
        s=R * (tau * f_t - f),
        h=R * t * (tau * f_t + delta * f_d),
        cp=R * (isochoric + expansion),
    )
    return p, state


def saturation_pressure(t):
    n = REGION_4
    theta = t + n[8] / (t - n[9])
    a = theta**2 + n[0] * theta + n[1]
    b = n[2] * theta**2 + n[3] * theta + n[4]
    c = n[5] * theta**2 + n[6] * theta + n[7]
    return (2 * c / (-b + math.sqrt(b * b - 4 * a * c))) ** 4


def saturation_temperature(p):
    n = REGION_4
    beta = p**0.25
    e = beta**2 + n[2] * beta + n[5]
    f = n[0] * beta**2 + n[3] * beta + n[6]
    g = n[1] * beta**2 + n[4] * beta + n[7]
    d = 2 * g / (-f - math.sqrt(f * f - 4 * e * g))
    return (n[9] + d - math.sqrt((n[9] + d) ** 2 - 4 * (n[8] + n[9] * d))) / 2


def saturated_liquid(p, t):
    return liquid(p, t) if t <= T_REGION_3 else at_pressure(p, t, RHO_CRITICAL, 600)


def saturated_vapor(p, t):
    return vapor(p, t) if t <= T_REGION_3 else at_pressure(p, t, 90, RHO_CRITICAL)


def at_pressure(p, t, low, high):
    """The state of region 3 whose density lies between these; there the pressure rises with it,
    but for the loop between the phases, which the halves leave on their own side."""
    is_liquid = high > RHO_CRITICAL
    for _ in range(100):
        rho = (low + high) / 2
        above = dense(rho, t)[0] > p
        # Within the loop, on either side of it, the pressure misleads: follow the slope.
        if slope(rho, t) < 0:
            above = not is_liquid
        low, high = (low, rho) if above else (rho, high)
    return dense((low + high) / 2, t)[1]


def slope(rho, t):
    return dense(rho * 1.00001, t)[0] - dense(rho * 0.99999, t)[0]
