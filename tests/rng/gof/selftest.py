"""Checks of the goodness-of-fit harness itself, quick enough for the default suite:
the pooled chi-square cells, both tests rejecting a slightly wrong distribution and
passing the right one, and the driver (fixed seeds repeat, counts, refusals).

  /usr/bin/python3 tests/rng/gof/selftest.py DRIVER
"""
import os
import subprocess
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
try:
    import numpy as np
    from scipy import stats
    from goflib import P_FAIL, Case, ChiSquare, KS
except ImportError as e:
    print(f"selftest: skipped ({e})")
    sys.exit(77)

failures = []


def check(what, ok):
    print(f"{'ok  ' if ok else 'FAIL'} {what}")
    if not ok:
        failures.append(what)


g = np.random.Generator(np.random.PCG64(7))
n = 200000

# Pooled cells: every cell expects at least 5, nothing is lost, and the tails
# beyond what was seen are folded in (the expected counts sum to n).
for name, frozen, x in [("poisson(4.5)", stats.poisson(4.5), g.poisson(4.5, n)),
                        ("binom(30, 0.02)", stats.binom(30, 0.02), g.binomial(30, 0.02, n)),
                        ("geom(0.001)", stats.geom(0.001, loc=-1), g.geometric(0.001, n) - 1)]:
    obs, exp = ChiSquare(frozen).cells(x)
    check(f"cells of {name}: {obs.size} cells, least expected {exp.min():.2f}",
          exp.min() >= 5 and obs.sum() == n and abs(exp.sum() - n) < 1e-6 * n)
    check(f"chi-square passes {name}", ChiSquare(frozen)(x)[2] >= P_FAIL)

# Each test tells a 2 % change of one parameter at this n.
check("chi-square rejects poisson(4.59) as poisson(4.5)",
      ChiSquare(stats.poisson(4.5))(g.poisson(4.59, n))[2] < P_FAIL)
check("KS rejects a scale of 1.02 as the standard normal",
      KS(stats.norm(0, 1))(1.02 * g.standard_normal(n))[2] < P_FAIL)
check("KS passes the standard normal", KS(stats.norm(0, 1))(g.standard_normal(n))[2] >= P_FAIL)

# The driver: a fixed seed repeats, the count is kept, both precisions have their
# width, and bad requests are refused with status 2.
driver = sys.argv[1]


def run(*args):
    return subprocess.run([driver, *map(str, args)], stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE)


a = run("Gaussian", "d", 1, "MT19937", 99, 1001, 0.0, 1.0)
b = run("Gaussian", "d", 1, "MT19937", 99, 1001, 0.0, 1.0)
c = run("Gaussian", "d", 1, "MCG59", 99, 1001, 0.0, 1.0)
check("driver repeats a seed and writes n doubles",
      a.returncode == 0 and a.stdout == b.stdout and len(a.stdout) == 8 * 1001)
check("another generator gives other variates", c.returncode == 0 and c.stdout != a.stdout)
s = run("Exponential", "s", 0, "MCG59", 5, 3, 0.0, 1.0)
check("single precision writes n floats", s.returncode == 0 and len(s.stdout) == 12)
x = np.frombuffer(run("Gaussian", "d", 2, "MT19937", 3, n, 0.0, 1.0).stdout, dtype=np.float64)
check("KS on the driver's inverse-CDF Gaussian", KS(stats.norm(0, 1))(x)[2] >= P_FAIL)
check("KS rejects it with the location moved by 0.02",
      KS(stats.norm(0.02, 1))(x)[2] < P_FAIL)
for bad in [("NoSuch", "d", 0, "MT19937", 1, 10, 0, 1),
            ("Gaussian", "i", 0, "MT19937", 1, 10, 0, 1),
            ("Gaussian", "d", 0, "NoSuch", 1, 10, 0, 1),
            ("Gaussian", "d", 0, "MT19937", 1, 10, 0),
            ("Gaussian", "d", 0, "MT19937", 1, -1, 0, 1)]:
    check(f"driver refuses {bad[:4]} n={bad[5]} with {len(bad) - 6} parameters",
          run(*bad).returncode == 2)
listed = run("--list").stdout.decode().split("\n")
check("driver lists the continuous entries", any(l.startswith("Weibull sd 3") for l in listed))
check("a case's default seed is fixed and its own",
      Case("Gaussian", "d", 0, "MT19937", (0, 1), None).seed
      == Case("Gaussian", "d", 0, "MT19937", (0, 1), None).seed
      != Case("Gaussian", "s", 0, "MT19937", (0, 1), None).seed)

sys.exit(1 if failures else 0)
