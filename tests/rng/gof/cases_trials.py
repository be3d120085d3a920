"""Goodness-of-fit cases of the trial-counting distributions: Pearson's chi-square
against scipy's pmf, tails pooled to 5 expected, on MT19937 and MCG59. The grids
cross every change of way: Binomial's ntrial min(p, 1 - p) at 29 and 30 on both
sides of the flip and p = 0.5; Hypergeometric's folds of the sample and the marked
count, its inversion and H2PE, degenerate samples; Negbinomial's mode at 100 and its mean at
10737418.24, with a below and above 1."""
from scipy import stats

from goflib import ChiSquare, grid


def binomial(ntrial, p):
    return ((ntrial, p), ChiSquare(stats.binom(ntrial, p)))


def hypergeometric(l, s, m):
    return ((l, s, m), ChiSquare(stats.hypergeom(M=l, n=m, N=s)))


def negbinomial(a, p):
    return ((a, p), ChiSquare(stats.nbinom(n=a, p=p)))


CASES = (
    grid("Binomial", (0,), [binomial(100, 0.29), binomial(100, 0.3), binomial(100, 0.71),
                            binomial(100, 0.7), binomial(58, 0.5), binomial(60, 0.5),
                            binomial(1000, 0.3), binomial(5, 0.02), binomial(1000000, 0.4),
                            binomial(2147483647, 1e-7)], precisions="i")
    + grid("Hypergeometric", (0,), [hypergeometric(100, 20, 30), hypergeometric(100, 80, 30),
                                    hypergeometric(100, 20, 70), hypergeometric(100, 80, 70),
                                    hypergeometric(1000, 100, 100), hypergeometric(1000, 400, 450),
                                    hypergeometric(1000, 600, 550), hypergeometric(10**6, 5000, 7000),
                                    hypergeometric(10**7, 5 * 10**6, 4 * 10**6),
                                    hypergeometric(2 * 10**9, 10**5, 10**5),
                                    hypergeometric(50, 0, 20), hypergeometric(50, 50, 20),
                                    hypergeometric(50, 20, 0), hypergeometric(50, 20, 50)],
                    precisions="i")
    + grid("Negbinomial", (0,), [negbinomial(5, 0.3), negbinomial(0.5, 0.01),
                                 negbinomial(1.0, 0.0101), negbinomial(1.5, 0.0049),
                                 negbinomial(60.0, 0.37), negbinomial(60.0, 0.38),
                                 negbinomial(1e4, 0.5),
                                 negbinomial(1e7, 0.45)], precisions="i")
    # Means about 10^7 each side of 10737418.24: scipy's pmf over so wide a range takes
    # minutes a case, so one generator only.
    + grid("Negbinomial", (0,), [negbinomial(2.0, 1.9e-7), negbinomial(0.5, 4.6e-8),
                                 negbinomial(2.0, 1.8e-7)], precisions="i", brngs=("MT19937",))
)
