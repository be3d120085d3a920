"""What the case tables of the goodness-of-fit runner are made of.

A Case names one draw of the driver (entry, precision, method, generator, seed, n,
parameters) and the test its variates must pass:

  KS(frozen)         Kolmogorov-Smirnov against a continuous scipy.stats
                     distribution's exact CDF;
  ChiSquare(frozen)  Pearson's chi-square against a discrete distribution's pmf
                     (anything with pmf, cdf and sf), cells pooled from the left so
                     that each expects at least 5, the tails below the smallest and
                     above the largest value seen folded into the end cells.

`note`, when given, is a function of the variates whose text is printed beside the
result (the largest |z| of a Gaussian, say).
"""
import zlib
from dataclasses import dataclass, field
from typing import Callable, Optional, Sequence

import numpy as np
from scipy import stats

# A case fails below this p-value: with fixed seeds a result never flickers, and
# about one case in 10^4 is a false alarm.
P_FAIL = 1e-4


class KS:
    def __init__(self, frozen):
        self.frozen = frozen

    def __call__(self, x):
        res = stats.kstest(np.asarray(x, dtype=np.float64), self.frozen.cdf)
        return "D", float(res.statistic), float(res.pvalue)


class ChiSquare:
    def __init__(self, frozen, min_expected=5.0):
        self.frozen = frozen
        self.min_expected = min_expected

    def cells(self, x):
        """Observed and expected counts of the pooled cells."""
        x = np.asarray(x, dtype=np.int64)
        n = x.size
        lo, hi = int(x.min()), int(x.max())
        ks = np.arange(lo, hi + 1)
        observed = np.bincount(x - lo, minlength=ks.size).astype(np.float64)
        prob = self.frozen.pmf(ks)
        # The end cells take the tails beyond what was seen.
        prob[0] = self.frozen.cdf(lo)
        prob[-1] = self.frozen.sf(hi - 1) if ks.size > 1 else 1.0
        expected = n * prob
        obs, exp = [], []
        o = e = 0.0
        for oi, ei in zip(observed, expected):
            o += oi
            e += ei
            if e >= self.min_expected:
                obs.append(o)
                exp.append(e)
                o = e = 0.0
        if e > 0.0 or o > 0.0:
            if exp:
                obs[-1] += o
                exp[-1] += e
            else:
                obs.append(o)
                exp.append(e)
        return np.array(obs), np.array(exp)

    def __call__(self, x):
        obs, exp = self.cells(x)
        if obs.size < 2:
            return "chi2", 0.0, 1.0
        chi2 = float(np.sum((obs - exp) ** 2 / exp))
        return "chi2", chi2, float(stats.chi2.sf(chi2, obs.size - 1))


@dataclass
class Case:
    entry: str
    precision: str
    method: int
    brng: str
    params: Sequence[float]
    test: Callable
    seed: Optional[int] = None
    n: int = 10**6
    note: Optional[Callable] = None
    label: str = ""

    def __post_init__(self):
        if not self.label:
            ps = ",".join(f"{p:g}" for p in self.params)
            self.label = (f"{self.entry}/{self.precision}/m{self.method}/"
                          f"{self.brng}({ps})")
        if self.seed is None:
            # Fixed, and different from case to case.
            self.seed = zlib.crc32(self.label.encode()) & 0x7FFFFFFF

    def dtype(self):
        return {"s": np.float32, "d": np.float64, "i": np.int32}[self.precision]


def grid(entry, methods, params_and_tests, precisions="sd",
         brngs=("MT19937", "MCG59"), note=None, n=10**6):
    """Every method, precision and generator for each (params, test) pair."""
    cases = []
    for params, test in params_and_tests:
        for method in methods:
            for precision in precisions:
                for brng in brngs:
                    cases.append(Case(entry, precision, method, brng, params, test,
                                      note=note, n=n))
    return cases
