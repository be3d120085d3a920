#!/usr/bin/python3
"""Times numpy's Generator (PCG64) on Gamma, chi-square, Beta and the multivariate
normal at n = 10^6 (vectors of 10 for the last); prints one line a problem,
`numpy_<name>_1000000 seconds-a-call`, the best of several rounds in process CPU
time, as gamma_bench.cpp times its own side."""
import time

import numpy as np


def best(f, runs):
    t = float("inf")
    for _ in range(runs):
        t0 = time.process_time()
        f()
        t = min(t, time.process_time() - t0)
    return t


g = np.random.Generator(np.random.PCG64(1))
# The covariance of gamma_bench.cpp's factor: T(i, j) = 1 on the diagonal, 0.1 below.
D = 10
T = np.tril(np.full((D, D), 0.1), -1) + np.eye(D)
COV = T @ T.T
PROBLEMS = {
    "standard_gamma_0.3": lambda n: g.standard_gamma(0.3, n),
    "standard_gamma_3": lambda n: g.standard_gamma(3.0, n),
    "standard_gamma_3_f32": lambda n: g.standard_gamma(3.0, n, dtype=np.float32),
    "chisquare_5": lambda n: g.chisquare(5, n),
    "beta_2_3": lambda n: g.beta(2.0, 3.0, n),
    "multivariate_normal_10": lambda n: g.multivariate_normal(np.zeros(D), COV, n),
}

for name, f in PROBLEMS.items():
    print(f"numpy_{name}_1000000", best(lambda: f(1000000), 5), flush=True)
