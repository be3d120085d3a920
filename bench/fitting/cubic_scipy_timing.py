"""scipy figures for the cubic spline benchmark (cubic_bench.cpp): construction on 10^4
knots, alone and with the values at 10^6 random sites, for CubicSpline (not-a-knot and
periodic), Akima1DInterpolator, CubicHermiteSpline (the Hermite cubic) and
PchipInterpolator (scipy's nearest to the Bessel and Hyman cubics, which it lacks).
Run with /usr/bin/python3 in the same session as the benchmark. CPU time
(process_time), the best of several rounds."""
import time

import numpy as np
import scipy
from scipy.interpolate import (Akima1DInterpolator, CubicHermiteSpline, CubicSpline,
                               PchipInterpolator)

rng = np.random.default_rng(3)
x = np.cumsum(0.5 + rng.random(10000))
x = (x - x[0]) / (x[-1] - x[0])
y = rng.random(10000)
yp = y.copy()
yp[-1] = yp[0]
dydx = rng.random(10000) - 0.5
s = rng.random(1000000)


def best(f, repeat=7, inner=1):
    times = []
    for _ in range(repeat):
        t0 = time.process_time()
        for _ in range(inner):
            f()
        times.append((time.process_time() - t0) / inner)
    return min(times)


makers = [
    ("CubicSpline not-a-knot", lambda: CubicSpline(x, y)),
    ("CubicSpline periodic", lambda: CubicSpline(x, yp, bc_type="periodic")),
    ("Akima1DInterpolator", lambda: Akima1DInterpolator(x, y)),
    ("PchipInterpolator", lambda: PchipInterpolator(x, y)),
    ("CubicHermiteSpline", lambda: CubicHermiteSpline(x, y, dydx)),
]
print("scipy %s, numpy %s" % (scipy.__version__, np.__version__))
for name, make in makers:
    alone = best(make, inner=50)
    both = best(lambda: make()(s), repeat=5)
    print("%-24s construction %.3f ms   with 10^6 sites %.1f ms" % (name, alone * 1e3, both * 1e3))
