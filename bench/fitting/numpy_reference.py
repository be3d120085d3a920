"""numpy figures for the fitting benchmark: searchsorted of 10^6 random sites in a
10^5-node partition, and interp of the same sites (construction is nothing for numpy).
Run with /usr/bin/python3. Times are CPU time (process_time), the best of seven,
to compare with the CPU column of the benchmark on a shared machine."""
import time

import numpy as np

rng = np.random.default_rng(1)
x = np.sort(rng.random(100000))
x[0], x[-1] = 0.0, 1.0
y = rng.random(100000)
s = rng.random(1000000)


def best(f, repeat=7):
    times = []
    for _ in range(repeat):
        t0 = time.process_time()
        f()
        times.append(time.process_time() - t0)
    return min(times) * 1e3


print("numpy %s" % np.__version__)
print("searchsorted(side='right'): %.2f ms" % best(lambda: np.searchsorted(x, s, side="right")))
print("interp: %.2f ms" % best(lambda: np.interp(s, x, y)))
