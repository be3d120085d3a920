#!/usr/bin/python3
"""Times numpy's Generator (PCG64) on Poisson and Multinomial for poisson_bench:
prints `numpy_<name> seconds-a-call` (best of several rounds), Poisson at n = 10^6,
Multinomial(100, ten cells) at 10^5 rows."""
import os
import sys

import numpy as np

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "stats"))
from best_time import best  # noqa: E402

g = np.random.Generator(np.random.PCG64(1))
TEN = [0.3, 0.2, 0.15, 0.1, 0.08, 0.07, 0.05, 0.03, 0.015, 0.005]
PROBLEMS = {
    "poisson_0.5": lambda: g.poisson(0.5, 10**6),
    "poisson_10": lambda: g.poisson(10.0, 10**6),
    "poisson_500": lambda: g.poisson(500.0, 10**6),
    "multinomial_100_10": lambda: g.multinomial(100, TEN, 10**5),
}

for name, f in PROBLEMS.items():
    print(f"numpy_{name}", best(f, 7), flush=True)
