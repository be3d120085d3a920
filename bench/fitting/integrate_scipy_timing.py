"""scipy's figure for the integration benchmark (integrate_bench.cpp runs this): the
natural cubic of 10^4 knots (CubicSpline with natural ends), its antiderivative made
and evaluated at the 10^6 lower and upper limits, the difference taken. The data are
drawn the same way as the benchmark's (the same shapes, another generator). Prints
the best of several rounds of CPU time, in seconds. Argument: random or short."""
import sys
import time

import numpy as np
from scipy.interpolate import CubicSpline

rng = np.random.default_rng(3)
x = np.cumsum(0.5 + rng.random(10000))
x = (x - x[0]) / (x[-1] - x[0])
y = rng.random(10000)
if len(sys.argv) > 1 and sys.argv[1] == "short":
    lo = rng.random(1000000) * (1 - 2e-4)
    hi = lo + 2e-4 * rng.random(1000000)
else:
    a, b = rng.random(1000000), rng.random(1000000)
    lo, hi = np.minimum(a, b), np.maximum(a, b)
spline = CubicSpline(x, y, bc_type="natural")


def once():
    f = spline.antiderivative()
    return f(hi) - f(lo)


times = []
for _ in range(5):
    t0 = time.process_time()
    once()
    times.append(time.process_time() - t0)
print("%.6f" % min(times))
