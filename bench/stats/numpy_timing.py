#!/usr/bin/python3
"""Times numpy on the statistics benchmark's problems; prints one line a problem,
`name seconds` (best of several runs)."""
import numpy as np

from best_time import best


rng = np.random.default_rng(1)
x = rng.normal(size=(1000000, 32))
print("numpy_cov_1e6x32", best(lambda: np.cov(x, rowvar=False), 5))
v = rng.normal(size=10000000) + 3.0
print("numpy_mean_var_1e7", best(lambda: (v.mean(), v.var(ddof=1)), 5))
