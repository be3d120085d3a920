#!/usr/bin/python3
"""Times numpy on the order benchmark's problems (quantiles, partition, sort); prints
one line a problem, `name seconds` (best of several runs, in process CPU time as the
benchmark times its own side)."""
import time

import numpy as np

from best_time import best as best_wall


def best(f, runs):
    return best_wall(f, runs, time.process_time)


rng = np.random.default_rng(3)
v = rng.normal(size=10000000)
rows = rng.normal(size=(32, 312500))
cols = np.ascontiguousarray(rows.T)
three = [0.25, 0.5, 0.75]
print("numpy_quantile_1e7_one", best(lambda: np.quantile(v, 0.5), 5))
print("numpy_quantile_1e7_three", best(lambda: np.quantile(v, three), 5))
print("numpy_partition_1e7", best(lambda: np.partition(v, len(v) // 2), 5))
print("numpy_quantile_32_rows_one", best(lambda: np.quantile(rows, 0.5, axis=1), 5))
print("numpy_quantile_32_rows_three", best(lambda: np.quantile(rows, three, axis=1), 5))
print("numpy_quantile_32_cols_one", best(lambda: np.quantile(cols, 0.5, axis=0), 5))
print("numpy_quantile_32_cols_three", best(lambda: np.quantile(cols, three, axis=0), 5))
print("numpy_sort_1e7", best(lambda: np.sort(v), 3))
