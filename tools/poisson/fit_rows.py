#!/usr/bin/python3
"""Fits the Cornish-Fisher rows of the transforming Poisson methods and prints
rng/dist/poisson_rows.cpp. Run with the system interpreter (numpy, scipy):

    /usr/bin/python3 tools/poisson/fit_rows.py > rng/dist/poisson_rows.cpp

Row e (binary exponent e of lambda, -4 to 6) serves lambda = 2^e (1 + t), t in [0, 1),
and maps a standard normal z to the count trunc(max(0, v)),

    v  = c0 + (z c1) (c2 + z (c3 + z (c4 + z c5)))
    c0 = 1 + T0 + t (T1 + t T2),  ci = T(4i-1) + t (T(4i) + t (T(4i+1) + t T(4i+2))).

A row is right when v(z) crosses k + 1 where Phi(z) = F(k), the Poisson cdf, for
every k, and stays inside [K(z), K(z) + 1) in between. The fit minimises, over 24
lambdas a row, the crossing misses weighted by phi(z_k) / c1 (a miss in v moves F(k)
by about that much) and, on a grid of z in [-5.5, 5.5], the distance of v outside its
cell weighted by phi(z) (wrong counts for whole ranges of z, e.g. a quartic turning
up in a tail). Row 0 (lambda in [1, 2)) is kept as published, and row 6 keeps its
five published leading entries; the other entries of row 6 and rows -4 to -1 and 1
to 5 are fitted. Starting point: for 32 lambdas of the row, the quartic in z that
passes nearest the crossings, each of its coefficients then a polynomial in t.

A fitted row whose largest total variation distance to the pmf (row_model.worst) is
still above row 0's is then refined by minimising that largest distance itself over
129 lambdas of its range, ends included (minimax.py): least squares spreads the error
evenly over the crossings, where the distance is ruled by the worst lambdas.
"""
import sys

import os

import numpy as np
from scipy.optimize import least_squares
from scipy.special import ndtri
from scipy.stats import norm, poisson

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import minimax  # noqa: E402
import row_model  # noqa: E402

ROW0 = [0.314373, 1.01512, -0.00624665, 0.971107, 0.511716, -0.11712, 0.0284722, 1.01718,
        -0.0303538, 0.0279708, -0.0106232, 0.168931, -0.0760176, 0.0402072, -0.011962,
        -0.00952015, 0.00427584, -0.00122244, -7.94777e-05, 0.0006653, -0.000219078,
        -2.13968e-05, 7.23944e-05]
ROW6_LEAD = [63.333, 64.0003, -0.000163416, 7.99663, 3.99591]
EXPONENTS = range(-4, 7)
ZGRID = np.linspace(-5.5, 5.5, 221)
LAMBDAS = 24
MAX_EVALUATIONS = 60
MINIMAX_TS = np.arange(129) / 128.0


def coefficients(T, t):
    T = np.asarray(T)
    c0 = 1 + T[0] + t * (T[1] + t * T[2])
    cs = [T[3 + 4 * i] + t * (T[4 + 4 * i] + t * (T[5 + 4 * i] + t * T[6 + 4 * i])) for i in range(5)]
    return [c0] + cs


def v_of(T, t, z):
    c0, c1, c2, c3, c4, c5 = coefficients(T, t)
    return c0 + (z * c1) * (c2 + z * (c3 + z * (c4 + z * c5)))


def samples(e):
    ts = (np.arange(LAMBDAS) + 0.5) / LAMBDAS
    out = []
    for t in ts:
        lam = 2.0 ** e * (1 + t)
        ks = np.arange(0, int(lam + 12 * np.sqrt(lam) + 20))
        F = poisson.cdf(ks, lam)
        keep = (F > 1e-8) & (F < 1 - 1e-8)
        zk, kk = ndtri(F[keep]), ks[keep]
        quant = poisson.ppf(norm.cdf(ZGRID), lam)
        out.append((t, lam, zk, kk, quant))
    return out


def residuals(T, data):
    res = []
    for t, lam, zk, kk, quant in data:
        c1 = coefficients(T, t)[1]
        res.append((v_of(T, t, zk) - (kk + 1)) * norm.pdf(zk) / max(abs(c1), 0.25))
        v = v_of(T, t, ZGRID)
        lo, hi = np.maximum(quant, 0), quant + 1
        lo = np.where(quant == 0, -np.inf, lo)  # below 1 counts as 0 through the max
        miss = np.where(v < lo, lo - v, np.where(v >= hi, v - hi + 1e-3, 0.0))
        res.append(4 * miss * norm.pdf(ZGRID))
    return np.concatenate(res)


def start(e):
    """Each coefficient's polynomial in t fitted to the best quartic of each lambda
    alone: the weighted least-squares quartic through the crossings (z_k, k + 1), held
    below 1 far left where 0 is likely, taken as c2 = 1, c1 its slope and c3 to c5
    its higher terms over the slope."""
    ts = (np.arange(32) + 0.5) / 32
    D = []
    for t in ts:
        lam = 2.0 ** e * (1 + t)
        ks = np.arange(0, int(lam + 12 * np.sqrt(lam) + 20))
        F = poisson.cdf(ks, lam)
        keep = (F > 1e-8) & (F < 1 - 1e-8)
        zk, kk = ndtri(F[keep]), ks[keep]
        w = norm.pdf(zk)
        A = np.vander(zk, 5, increasing=True) * w[:, None]
        b = (kk + 1) * w
        if F[0] > 0.2:
            A = np.vstack([A, np.vander([-5.0], 5, increasing=True)])
            b = np.append(b, 0.5)
        D.append(np.linalg.lstsq(A, b, rcond=None)[0])
    D = np.array(D)
    cs = [D[:, 1], np.ones_like(ts), D[:, 2] / D[:, 1], D[:, 3] / D[:, 1], D[:, 4] / D[:, 1]]
    T = list(np.polyfit(ts, D[:, 0] - 1, 2)[::-1])
    for ci in cs:
        T += list(np.polyfit(ts, ci, 3)[::-1])
    return np.array(T)


def least_squares_row(e):
    data = samples(e)
    T0 = start(e)
    if e == 6:
        fixed = np.array(ROW6_LEAD)
        free = lambda x: np.concatenate([fixed, x])
        sol = least_squares(lambda x: residuals(free(x), data), T0[5:], x_scale="jac", max_nfev=MAX_EVALUATIONS)
        return list(free(sol.x))
    sol = least_squares(lambda x: residuals(x, data), T0, x_scale="jac", max_nfev=MAX_EVALUATIONS)
    return list(sol.x)


def fit(e, ceiling):
    if e == 0:
        return ROW0
    T = least_squares_row(e)
    if row_model.worst(T, e)[0] <= ceiling:
        return T
    free = range(len(ROW6_LEAD) if e == 6 else 0, len(T))
    return list(minimax.refine(T, row_model.RowGrid(e, MINIMAX_TS), free)[0])


def main():
    only = [int(a) for a in sys.argv[1:]]
    rows = []
    ceiling = row_model.worst(ROW0, 0)[0]
    for e in EXPONENTS:
        if only and e not in only:
            continue
        T = fit(e, ceiling)
        sys.stderr.write("row %d: largest TV %.3g at lambda %.9g\n" % ((e,) + row_model.worst(T, e)))
        rows.append((e, T))
    w = sys.stdout.write
    w("// The Cornish-Fisher rows of the transforming Poisson methods, one for each binary\n")
    w("// exponent of lambda from -4 to 6 (index = exponent + 4): 23 coefficients of c0 to\n")
    w("// c5 as polynomials in the mantissa fraction t (poisson.h).\n")
    w("// Fitted by tools/poisson/fit_rows.py: do not edit. The row for [1, 2) is the\n")
    w("// published one, and the row for [64, 128) keeps its five published leading\n")
    w("// entries.\n")
    w('#include "rng/dist/poisson.h"\n\nnamespace brenn::rng {\n\n// clang-format off\n')
    w("const double kPoissonRows[kPoissonRowCount][kPoissonRowLength] = {\n")
    for e, T in rows:
        w("    // lambda in [2^%d, 2^%d)\n    {" % (e, e + 1))
        items = ["%.9g" % x for x in T]
        line, lines = "", []
        for it in items:
            piece = it + ", "
            if len(line) + len(piece) > 90:
                lines.append(line.rstrip())
                line = ""
            line += piece
        lines.append(line.rstrip().rstrip(","))
        w("\n     ".join(lines) + "},\n")
    w("};\n// clang-format on\n\n} // namespace brenn::rng\n")


if __name__ == "__main__":
    main()
