"""Goodness-of-fit cases of the continuous distributions: Kolmogorov-Smirnov
against the exact CDF, on MT19937 and MCG59, single and double, each parameter set
with every method the entry has."""
import numpy as np
from scipy import stats

from goflib import KS, grid


def gaussian_z(a, sigma):
    def note(x):
        return f"max|z|={np.max(np.abs((x.astype(np.float64) - a) / sigma)):.3f}"
    return note


def gaussian(a, sigma):
    return grid("Gaussian", (0, 1, 2), [((a, sigma), KS(stats.norm(a, sigma)))],
                note=gaussian_z(a, sigma))


def lognormal(a, sigma, b, beta):
    # Method 0 is the pair Box-Muller Gaussian, any other value the inverse one.
    return grid("Lognormal", (0, 2), [((a, sigma, b, beta),
                KS(stats.lognorm(s=sigma, loc=b, scale=beta * np.exp(a))))])


def two(entry, frozen_of, sets):
    return grid(entry, (0,), [((a, beta), KS(frozen_of(a, beta))) for a, beta in sets])


CASES = (
    gaussian(0.0, 1.0) + gaussian(-3.0, 0.25) + gaussian(1e3, 40.0)
    + lognormal(0.0, 1.0, 0.0, 1.0) + lognormal(-1.0, 0.5, 2.0, 3.0)
    + two("Exponential", lambda a, b: stats.expon(loc=a, scale=b), [(0.0, 1.0), (-2.0, 0.3)])
    + two("Gumbel", lambda a, b: stats.gumbel_l(loc=a, scale=b), [(0.0, 1.0), (5.0, 2.5)])
    + two("Laplace", lambda a, b: stats.laplace(loc=a, scale=b), [(0.0, 1.0), (-1.5, 0.2)])
    + two("Rayleigh", lambda a, b: stats.rayleigh(loc=a, scale=b / np.sqrt(2)),
          [(0.0, 1.0), (3.0, 7.0)])
    + two("Cauchy", lambda a, b: stats.cauchy(loc=a, scale=b), [(0.0, 1.0), (10.0, 0.01)])
    + grid("Weibull", (0,), [((alpha, a, beta),
                              KS(stats.weibull_min(c=alpha, loc=a, scale=beta)))
                             for alpha, a, beta in [(1.0, 0.0, 1.0), (0.5, 0.0, 2.0),
                                                    (3.5, -1.0, 0.5)]])
)
