#!/usr/bin/python3
"""Times numpy's Generator (PCG64) on the continuous distributions at n = 1000 and
10^6; prints one line a problem, `numpy_<name>_<n> seconds-a-call` (best of several
rounds; at n = 1000 the best of rounds of 1000 calls). Times are the process's CPU
time, as the C++ side reads its own: on a loaded machine the wall clock mostly
measures the wait for a core."""
import os
import sys
import time

import numpy as np

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "stats"))
from best_time import best  # noqa: E402

g = np.random.Generator(np.random.PCG64(1))
PROBLEMS = {
    "standard_normal_f64": lambda n: g.standard_normal(n),
    "standard_normal_f32": lambda n: g.standard_normal(n, dtype=np.float32),
    "standard_exponential_f64": lambda n: g.standard_exponential(n),
    "standard_exponential_f32": lambda n: g.standard_exponential(n, dtype=np.float32),
    "lognormal": lambda n: g.lognormal(0.0, 1.0, n),
    "gumbel": lambda n: g.gumbel(0.0, 1.0, n),
    "laplace": lambda n: g.laplace(0.0, 1.0, n),
    "rayleigh": lambda n: g.rayleigh(1.0, n),
    "weibull": lambda n: g.weibull(2.0, n),
    "standard_cauchy": lambda n: g.standard_cauchy(n),
}

cpu = time.process_time
for name, f in PROBLEMS.items():
    print(f"numpy_{name}_1000", best(lambda: [f(1000) for _ in range(1000)], 7, cpu) / 1000,
          flush=True)
    print(f"numpy_{name}_1000000", best(lambda: f(1000000), 7, cpu), flush=True)
