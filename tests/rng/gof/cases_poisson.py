"""Goodness-of-fit cases of the Poisson family: chi-square against scipy's poisson
pmf for the exact method on both sides of 27, the transforming method on both sides
of 1 and 100 and inside each row's range, PoissonV in both of its groups, and the
marginals of Multinomial rows of ten cells against binom(ntrial, p_j), each column
by chi-square, the smallest p-value times ten (Bonferroni); a row that does not add
up to ntrial gives p = 0."""
import numpy as np
from scipy import stats

from goflib import Case, ChiSquare

BRNGS = ("MT19937", "MCG59")


class MarginalsTest:
    def __init__(self, ntrial, p):
        self.ntrial, self.p = ntrial, np.asarray(p)

    def __call__(self, x):
        rows = np.asarray(x, dtype=np.int64).reshape(-1, self.p.size)
        if np.any(rows.sum(axis=1) != self.ntrial):
            return "rows", 0.0, 0.0
        ps = []
        for j, pj in enumerate(self.p):
            if pj == 0.0:
                if np.any(rows[:, j] != 0):
                    return "rows", 0.0, 0.0
                continue
            ps.append(ChiSquare(stats.binom(self.ntrial, pj))(rows[:, j])[2])
        worst = min(ps)
        return "min p", worst, min(1.0, worst * len(ps))


def poisson(method, lambdas, entry="Poisson"):
    return [Case(entry, "i", method, b, (lam,), ChiSquare(stats.poisson(lam)))
            for lam in lambdas for b in BRNGS]


TEN = [0.3, 0.2, 0.15, 0.1, 0.08, 0.07, 0.05, 0.03, 0.015, 0.005]


def multinomial(ntrial, p):
    return [Case("Multinomial10", "i", 0, b, [ntrial] + p, MarginalsTest(ntrial, p),
                 label=f"Multinomial10/i/m0/{b}(ntrial={ntrial})")
            for b in BRNGS]


CASES = (
    poisson(0, (0.01, 0.5, 10.0, 26.9, 27.0, 45.5, 500.0, 1e4, 1e6))
    + poisson(1, (0.05, 0.5, 0.99, 1.0, 1.5, 3.0, 6.0, 12.0, 24.0, 48.0, 99.9, 100.0,
                  500.0, 1e4))
    + poisson(0, (0.01, 0.05, 0.07, 0.2, 0.4, 0.8, 10.0, 99.9, 100.0, 1e4), entry="PoissonV")
    + multinomial(100, TEN) + multinomial(10, TEN) + multinomial(1000, TEN)
)
