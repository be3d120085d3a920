"""One Cornish-Fisher row's counts as an exact distribution over a continuous standard
normal: the count is below k + 1 exactly where the quartic v(z) is below k + 1, so
P(count <= k) is the normal mass of the intervals between the real roots of
v(z) - (k + 1) where it is negative (a quartic may turn back in a tail, so all four
roots count). Exact up to the single-precision evaluation of v, which moves a
crossing by about an ulp of v (a mass below 1e-7), where a partition of the normal
into cells would err by up to half a cell's mass at each crossing.

Shared by fit_rows.py (the minimax refinement, on unrounded coefficients so that the
distance is smooth in the row's entries) and poisson_model.py (the report, on the
coefficients rounded to float as the library rounds them)."""
import os
import re

import numpy as np
from scipy.special import ndtr
from scipy.stats import poisson


def quartics(T, ts, rounded):
    """The coefficients a0 to a4 of v(z) = c0 + (z c1)(c2 + z (c3 + z (c4 + z c5)))
    for each mantissa fraction in ts, with c0 to c5 rounded to float if `rounded`."""
    T = np.asarray(T, dtype=np.float64)
    ts = np.asarray(ts, dtype=np.float64)
    c = [1.0 + T[0] + ts * (T[1] + ts * T[2])]
    c += [T[j] + ts * (T[j + 1] + ts * (T[j + 2] + ts * T[j + 3])) for j in (3, 7, 11, 15, 19)]
    if rounded:
        c = [np.float32(x).astype(np.float64) for x in c]
    return np.stack([c[0], c[1] * c[2], c[1] * c[3], c[1] * c[4], c[1] * c[5]], -1)


def mass_below(a, levels):
    """Normal mass of {z : a0 + a1 z + ... + a4 z^4 < level}; a is (n, 5), levels
    (n, K); the result is (n, K)."""
    n, K = levels.shape
    A = np.repeat(a[:, None, :], K, 1)
    A[:, :, 0] -= levels
    A = A.reshape(-1, 5)
    m = A.shape[0]
    companion = np.zeros((m, 4, 4))
    companion[:, 1, 0] = companion[:, 2, 1] = companion[:, 3, 2] = 1.0
    companion[:, :, 3] = -A[:, :4] / A[:, 4:5]
    roots = np.linalg.eigvals(companion)
    real = np.abs(roots.imag) <= 1e-9 * (1.0 + np.abs(roots.real))
    x = np.sort(np.where(real, roots.real, np.inf), 1)  # complex pairs sort last
    lo = np.concatenate([np.full((m, 1), -np.inf), x], 1)
    hi = np.concatenate([x, np.full((m, 1), np.inf)], 1)
    # A point inside each interval decides its sign; intervals past the last real root
    # but one are empty (inf, inf).
    with np.errstate(invalid="ignore"):
        inside = np.where(np.isfinite(lo) & np.isfinite(hi), 0.5 * (lo + hi),
                          np.where(np.isfinite(lo), lo + 1.0, np.where(np.isfinite(hi), hi - 1.0, 0.0)))
        value = A[:, :1] + inside * (A[:, 1:2] + inside * (A[:, 2:3] + inside * (A[:, 3:4] + inside * A[:, 4:5])))
        negative = (value < 0) & ~(lo == np.inf)
        mass = np.where(negative, ndtr(hi) - ndtr(lo), 0.0)
    return mass.sum(1).reshape(n, K)


class RowGrid:
    """The Poisson pmf at the lambdas 2^e (1 + t) of one row, for t in ts, over counts
    0 to K - 1 with the rest as one tail cell."""

    def __init__(self, e, ts):
        self.ts = np.asarray(ts, dtype=np.float64)
        self.lam = 2.0 ** e * (1.0 + self.ts)
        top = self.lam.max()
        self.ks = np.arange(int(top + 12.0 * np.sqrt(top) + 15))
        self.cdf = poisson.cdf(self.ks[None, :], self.lam[:, None])
        self.levels = np.repeat((self.ks + 1.0)[None, :], len(self.ts), 0)

    def errors(self, T, rounded=False):
        """P(count = k) - pmf(k) for each lambda and k, the tail cell last."""
        cdf = mass_below(quartics(T, self.ts, rounded), self.levels)
        return np.diff(np.concatenate([np.zeros((len(self.ts), 1)), cdf - self.cdf,
                                       np.zeros((len(self.ts), 1))], 1), axis=1)

    def tv(self, T, rounded=False):
        return 0.5 * np.abs(self.errors(T, rounded)).sum(1)


# The lambdas a row's largest distance is taken over: 1024 steps of its range and its
# largest float, 2^(e+1) (1 - 2^-24), where rows 0 to 2 are at their worst.
CHECK_TS = np.append(np.arange(1024) / 1024.0, 1.0 - 2.0 ** -23)


def worst(T, e):
    """The row's largest distance over CHECK_TS, with its coefficients rounded to float
    as the library rounds them, and the lambda where it is reached."""
    grid = RowGrid(e, CHECK_TS)
    tv = grid.tv(T, rounded=True)
    return tv.max(), grid.lam[tv.argmax()]


def committed_rows():
    """The eleven rows of rng/dist/poisson_rows.cpp, exponent -4 first."""
    here = os.path.dirname(os.path.abspath(__file__))
    text = open(os.path.join(here, "..", "..", "rng", "dist", "poisson_rows.cpp")).read()
    body = text[text.index("= {") + 3:]
    rows = [[float(x) for x in block.replace("\n", " ").split(",") if x.strip()]
            for block in re.findall(r"\{([^{}]*)\}", body)]
    assert len(rows) == 11 and all(len(r) == 23 for r in rows)
    return rows
