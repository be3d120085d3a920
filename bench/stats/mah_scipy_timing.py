#!/usr/bin/python3
"""Times scipy's Mahalanobis distances of the benchmark's problem: 10^6 observations of
32 variables from their mean, cdist(x, [mean], 'mahalanobis', VI=inv(cov)); prints
`name seconds`, the best of three in process CPU time (as the benchmark times its side)
and, under a name ending in _wall, in wall-clock time. The data are made as mah_bench.cpp
makes them."""
import time

import numpy as np
from scipy.spatial.distance import cdist

from best_time import best

n, p = 1000000, 32
i = np.arange(n, dtype=np.float64)[:, None]
j = np.arange(p, dtype=np.float64)[None, :]
x = np.sin(i * 0.7 + j * 1.3) + 0.25 * np.cos(i * (0.11 + 0.01 * j))
mean = x.mean(axis=0)
vi = np.linalg.inv(np.cov(x, rowvar=False))
run = lambda: cdist(x, mean[None, :], "mahalanobis", VI=vi)
print("scipy_cdist_mahalanobis_1e6x32", best(run, 3, time.process_time))
print("scipy_cdist_mahalanobis_1e6x32_wall", best(run, 3))
