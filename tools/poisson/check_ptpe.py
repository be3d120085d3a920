#!/usr/bin/python3
"""Checks the hat of Poisson's exact method from 27 up (rng/dist/poisson_ptpe.cpp)
against the pmf: for every lambda of a grid and every count y, the hat over the cell
[y, y + 1) must reach f(y) / f(M) (M the mode) at the cell's lowest point, in the
triangle and parallelogram, and in both exponential tails; and the squeeze bounds of
the acceptance test must hold where they are used. Exits 1 on the first failure.

    /usr/bin/python3 tools/poisson/check_ptpe.py"""
import math
import sys

import numpy as np
from scipy.special import gammaln

F32 = lambda v: float(np.float32(v))
C = [F32(v) for v in (2.195, 2.2, 0.133, 8.56, 6.83, 0.109, 8.25, 10.86)]


def setup(lam):
    m = math.floor(lam)
    p1 = math.floor(C[0] * math.sqrt(lam) - C[1]) + 0.5
    c = C[2] + C[3] / (C[4] + lam)
    ct = C[5] + C[6] / (C[7] + lam)
    xm = m + 0.5
    xl, xr = xm - p1, xm + p1
    a = (lam - xl) / lam
    ll = a * (1 + 0.5 * a)
    a = (xr - lam) / xr
    lr = a * (1 + 0.5 * a)
    return m, p1, c, ct, xm, xl, xr, ll, lr


def check(lam):
    m, p1, c, ct, xm, xl, xr, ll, lr = setup(lam)
    lf = lambda y: y * math.log(lam) - gammaln(y + 1) - (m * math.log(lam) - gammaln(m + 1))
    worst = 0.0
    # Triangle and parallelogram on [xl, xr): the hat 1 + c - |x - xm| / p1.
    y = int(xl)
    while y < xr:
        lo = min(1 + c - abs(y - xm) / p1, 1 + c - abs(y + 1 - xm) / p1)
        worst = max(worst, lf(y) - math.log(lo))
        # The triangle is accepted untested: it must stay under the pmf.
        tri = max(1 - abs(y - xm) / p1, 1 - abs(y + 1 - xm) / p1)
        worst = max(worst, math.log(tri) - lf(y) if tri > 0 else 0.0)
        y += 1
    # Left tail x < xl: ct exp(-ll (xl - x)), lowest at the cell's left end; the
    # second constant set (0.109, 8.25, 10.86) is its height at xl.
    for y in range(int(xl) - 1, -1, -1):
        worst = max(worst, lf(y) - (math.log(ct) - ll * (xl - y)))
        if xl - y > 60 / ll:
            break
    # Right tail x >= xr: c exp(-lr (x - xr)), lowest at the cell's right end.
    y = int(xr)
    while y - xr < 60 / lr:
        worst = max(worst, lf(y) - (math.log(c) - lr * (y + 1 - xr)))
        y += 1
    # Squeeze: |ln f(y)/f(M) + k^2 / (2 lam)| below rho for 20 < k < lam / 2 - 1.
    bad = 0
    for k in range(21, int(lam / 2 - 1) + 1):
        rho = (k / lam) * ((k * (k / 3.0 + 0.625) + 1.0 / 6.0) / lam + 0.5)
        t = -k * k / (2 * lam)
        for y in (m + k, m - k):
            if y >= 0 and abs(lf(y) - t) >= rho:
                bad += 1
    return worst, bad


lams = list(np.arange(27, 60, 0.37)) + list(np.geomspace(60, 3e5, 60))
ok = True
for lam in lams:
    worst, bad = check(float(lam))
    if worst > 0 or bad:
        print("lambda %.4f: hat short by %.3g (log), squeeze misses %d" % (lam, worst, bad))
        ok = False
print("hat and squeeze hold on %d lambdas" % len(lams) if ok else "FAILED")
sys.exit(0 if ok else 1)
