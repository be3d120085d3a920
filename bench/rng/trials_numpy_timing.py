#!/usr/bin/python3
"""Times numpy's Generator (PCG64) on binomial(1000, 0.3), hypergeometric(30, 70, 20)
and negative_binomial(5, 0.3) at n = 10^6; prints `numpy_<name>_1000000 seconds`,
the best of five rounds in process CPU time, for trials_bench.cpp."""
import time

import numpy as np

g = np.random.Generator(np.random.PCG64(1))
PROBLEMS = {
    "binomial_1000_0.3": lambda n: g.binomial(1000, 0.3, n),
    "hypergeometric_30_70_20": lambda n: g.hypergeometric(30, 70, 20, n),
    "negative_binomial_5_0.3": lambda n: g.negative_binomial(5, 0.3, n),
}

for name, draw in PROBLEMS.items():
    seconds = float("inf")
    for _ in range(5):
        t0 = time.process_time()
        draw(1000000)
        seconds = min(seconds, time.process_time() - t0)
    print(f"numpy_{name}_1000000", seconds, flush=True)
