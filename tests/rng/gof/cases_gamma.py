"""Goodness-of-fit cases of the Gamma family: Kolmogorov-Smirnov for Gamma across
each change of way (alpha 0.3, 0.5999, 0.6, 0.99, 1, 1.0001, 5), ChiSquare across
its ways (v 1, 2, 16, 17, and 5), Beta in each method's region, and GaussianMV in
every storage form: each marginal by Kolmogorov-Smirnov, and every entry of the
sample covariance within 5 standard errors of the factor's T T'."""
import numpy as np
from scipy import stats

from goflib import KS, grid

# The case of gaussian_mv_case.h.
MV_MEAN = np.array([1.0, -2.0, 0.5])
MV_FACTOR = np.array([[2.0, 0.0, 0.0], [0.5, 1.0, 0.0], [-1.0, 0.3, 0.5]])


class GaussianMVTest:
    """The marginals by KS (Bonferroni over the dimension) and the covariance: an
    entry more than 5 standard errors off gives p = 0. Storage 2 (diagonal) reads
    only the factor's diagonal."""

    def __init__(self, storage):
        f = np.diag(np.diag(MV_FACTOR)) if storage == 2 else MV_FACTOR
        self.covariance = f @ f.T

    def __call__(self, x):
        d = MV_MEAN.size
        v = np.asarray(x, dtype=np.float64)
        v = v[: v.size // d * d].reshape(-1, d)
        c = self.covariance
        p = min(1.0, d * min(stats.kstest(v[:, j], stats.norm(MV_MEAN[j], np.sqrt(c[j, j])).cdf)
                             .pvalue for j in range(d)))
        s = np.cov(v, rowvar=False)
        n = v.shape[0]
        se = np.sqrt((np.outer(np.diag(c), np.diag(c)) + c * c) / n)
        worst = float(np.max(np.abs(s - c) / se))
        if worst > 5.0:
            p = 0.0
        return "cov/se", worst, p


def gamma_cases():
    sets = [(alpha, 0.0, 1.0) for alpha in (0.3, 0.5999, 0.6, 0.99, 1.0, 1.0001, 5.0)]
    sets += [(2.5, -1.0, 3.0), (300.0, 0.0, 0.01)]
    # A shape this small puts about 1% of the mass below single's smallest normal.
    tiny = [(0.05, 0.0, 1.0)]
    return (grid("Gamma", (0,), [((alpha, a, beta), KS(stats.gamma(alpha, loc=a, scale=beta)))
                                 for alpha, a, beta in sets])
            + grid("Gamma", (0,), [((alpha, a, beta), KS(stats.gamma(alpha, loc=a, scale=beta)))
                                   for alpha, a, beta in tiny], precisions="d"))


def beta_cases():
    sets = [(0.3, 0.7, 0.0, 1.0), (0.5, 0.5, 0.0, 1.0), (2.0, 3.0, 0.0, 1.0),
            (1.5, 40.0, 0.0, 1.0), (0.5, 2.0, 0.0, 1.0), (3.0, 1.0, -1.0, 4.0),
            (1.0, 1.0, 0.0, 1.0)]
    # Shapes this small put much of the mass below single's smallest number, or (for a
    # small q) within single's last step below 1, where values round to 1.
    tiny = [(0.02, 5.0, 0.0, 1.0), (0.05, 0.8, 0.0, 1.0), (0.2, 0.3, 0.0, 1.0)]

    def ks(sets, precisions="sd"):
        return grid("Beta", (0,), [((p, q, a, b), KS(stats.beta(p, q, loc=a, scale=b)))
                                   for p, q, a, b in sets], precisions=precisions)
    return ks(sets) + ks(tiny, "d")


CASES = (
    gamma_cases()
    + grid("ChiSquare", (0,), [((v,), KS(stats.chi2(v))) for v in (1, 2, 5, 16, 17)])
    + beta_cases()
    + grid("GaussianMV", (0, 1, 2), [((storage,), GaussianMVTest(storage)) for storage in (0, 1, 2)],
           n=999999)
)
