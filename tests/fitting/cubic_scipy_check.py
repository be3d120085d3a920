"""Compares the cubic splines of the library with scipy: natural and default cubics
with CubicSpline for the seven boundary columns; Akima with Akima1DInterpolator; the
Hermite cubic with CubicHermiteSpline; Bessel and Hyman with CubicHermiteSpline on
derivatives by their published formulas, computed here in numpy; the periodic local
cubics with their column-7 splines of the data extended by a period each side.
Coefficients and values with derivatives 1 to 3 (through interpolation) must agree to
1e-12 of each quantity's largest magnitude (1e-5 in single precision).

Usage: cubic_scipy_check.py DRIVER WORKDIR. Fails, loudly, without numpy or scipy."""
import os
import subprocess
import sys

import numpy as np
from scipy.interpolate import Akima1DInterpolator, CubicHermiteSpline, CubicSpline

NATURAL, DEFAULT, AKIMA, BESSEL, HYMAN, HERMITE = range(6)
NAMES = ["Natural", "Default", "Akima", "Bessel", "Hyman", "Hermite"]
BC_TYPES = [1, 2, 12, 36, 24, 48, 64, 0]
S_TYPES = [0, 9, 2, 4, 5, 3]
Y_ROWS, Y_COLUMNS = 16, 32
NSITES = 200

rng = np.random.default_rng(25)


def partition(nx, uniform, single):
    """Uniform: a power-of-two step from an integer start, exact in either precision
    (the nodes x0 + i*step are what the evaluator places); else jittered steps."""
    if uniform:
        step = 2.0 ** int(rng.integers(-3, 2))
        x0 = float(rng.integers(-8, 8))
        return x0 + step * np.arange(nx)
    x = (np.arange(nx) + 0.45 * rng.random(nx)) * (0.01 if nx > 1000 else 0.37) - 1.0
    return x.astype(np.float32).astype(np.float64) if single else x


def values(nx, ny, single, periodic):
    y = rng.uniform(-1.0, 1.0, (ny, nx))
    if single:
        y = y.astype(np.float32).astype(np.float64)
    if periodic:
        y[:, -1] = y[:, 0]
    return y


def sites(x, single, inside):
    lo, hi = x[0], x[-1]
    if not inside:
        pad = 0.05 * (hi - lo)
        lo, hi = lo - pad, hi + pad
    s = rng.uniform(lo, hi, NSITES)
    return s.astype(np.float32).astype(np.float64) if single else s


def bessel(x, y):
    h = np.diff(x)
    m = np.diff(y) / h
    d = np.empty_like(y)
    d[1:-1] = (h[1:] * m[:-1] + h[:-1] * m[1:]) / (h[:-1] + h[1:])
    d[0] = ((2 * h[0] + h[1]) * m[0] - h[0] * m[1]) / (h[0] + h[1])
    d[-1] = ((2 * h[-1] + h[-2]) * m[-1] - h[-1] * m[-2]) / (h[-1] + h[-2])
    return d


def hyman_limit(d, ml, mr):
    """Hyman's filter: with slopes of one sign, the derivative between 0 and three
    times the smaller slope; beside a flat cell, zero; at an extremum, unchanged."""
    same = ml * mr > 0
    sign = np.sign(ml)
    lim = 3 * np.minimum(np.abs(ml), np.abs(mr))
    cut = sign * np.minimum(np.maximum(sign * d, 0.0), lim)
    return np.where(same, cut, np.where((ml == 0) | (mr == 0), 0.0, d))


def hyman(x, y):
    m = np.diff(y) / np.diff(x)
    d = bessel(x, y)
    d[1:-1] = hyman_limit(d[1:-1], m[:-1], m[1:])
    d[0] = hyman_limit(d[0], m[0], m[0])
    d[-1] = hyman_limit(d[-1], m[-1], m[-1])
    return d


def extended(x, y):
    """The periodic data a period each side."""
    p = x[-1] - x[0]
    xe = np.concatenate([x[:-1] - p, x, x[1:] + p])
    ye = np.concatenate([y[:-1], y, y[1:]])
    return xe, ye


def reference(family, col, x, y, bc, ic):
    """The reference piecewise polynomial of one function."""
    if family in (NATURAL, DEFAULT):
        a, b = bc
        bct = ["not-a-knot", "natural", ((1, a), (1, b)), ((1, a), (2, b)), ((2, a), (1, b)),
               ((2, a), (2, b)), "periodic"][col]
        return CubicSpline(x, y, bc_type=bct, extrapolate=True)
    if col == 6:
        xe, ye = extended(x, y)
        if family == AKIMA:
            return Akima1DInterpolator(xe, ye)
        return CubicHermiteSpline(xe, ye, bessel(xe, ye) if family == BESSEL else hyman(xe, ye))
    if family == AKIMA:
        return Akima1DInterpolator(x, y)
    if family == HERMITE:
        return CubicHermiteSpline(x, y, ic)
    return CubicHermiteSpline(x, y, bessel(x, y) if family == BESSEL else hyman(x, y))


def cases():
    out = []
    for single in (0, 1):
        for family in (NATURAL, DEFAULT):
            for col in range(7):
                for nx in (2, 3, 4, 5, 100, 10000):
                    if nx < (2 if family == NATURAL else 3) or (nx == 2 and col == 0):
                        continue
                    for uniform in (0, 1):
                        for ny in ((1, 3, 17) if nx <= 100 else (1, 3)):
                            for yhint in (Y_ROWS, Y_COLUMNS):
                                out.append((family, single, nx, ny, uniform, yhint, col))
        for family in (AKIMA, BESSEL, HYMAN, HERMITE):
            for col in (7, 6) if family != HERMITE else (7,):
                least = {AKIMA: 5, BESSEL: 4, HYMAN: 4, HERMITE: 3}[family]
                for nx in (least, least + 1, 100, 10000):
                    for uniform in (0, 1):
                        for ny in (1, 3, 17) if nx <= 100 else (1, 3):
                            for yhint in (Y_ROWS, Y_COLUMNS):
                                out.append((family, single, nx, ny, uniform, yhint, col))
    return out


def main():
    driver, work = sys.argv[1], sys.argv[2]
    os.makedirs(work, exist_ok=True)
    cases_path = os.path.join(work, "cubic_cases.bin")
    answers_path = os.path.join(work, "cubic_answers.bin")
    plan = []
    with open(cases_path, "wb") as f:
        for family, single, nx, ny, uniform, yhint, col in cases():
            periodic = col == 6
            x = partition(nx, uniform, single)
            y = values(nx, ny, single, periodic)
            ic = rng.uniform(-2, 2, (ny, nx))
            if single:
                ic = ic.astype(np.float32).astype(np.float64)
            # Boundary values of the data's size: a derivative of order k as 1/h^k.
            width = (x[-1] - x[0]) / (nx - 1)
            order = [(1, 1), (1, 1), (1, 1), (1, 2), (2, 1), (2, 2), (1, 1), (1, 1)][col]
            bc = rng.uniform(-2, 2, 2) / np.array([width ** order[0], width ** order[1]])
            if single:
                bc = bc.astype(np.float32).astype(np.float64)
            s = sites(x, single, family in (AKIMA, BESSEL, HYMAN) or family == HERMITE)
            header = np.array([family, single, nx, ny, uniform, yhint, BC_TYPES[col], NSITES,
                               S_TYPES[family]], dtype=np.int64)
            f.write(header.tobytes())
            for a in (bc, x, y.ravel(), ic.ravel(), s):
                f.write(np.asarray(a, dtype=np.float64).tobytes())
            plan.append((family, single, nx, ny, uniform, yhint, col, x, y, ic, bc, s))
    subprocess.run([driver, cases_path, answers_path], check=True)
    answers = open(answers_path, "rb").read()
    offset = 0
    failures = 0
    worst = {}
    for family, single, nx, ny, uniform, yhint, col, x, y, ic, bc, s in plan:
        status = int(np.frombuffer(answers, np.int64, 1, offset)[0])
        offset += 8
        nc, nr = ny * (nx - 1) * 4, ny * NSITES * 4
        coeff = np.frombuffer(answers, np.float64, nc, offset).reshape(ny, nx - 1, 4)
        offset += 8 * nc
        res = np.frombuffer(answers, np.float64, nr, offset).reshape(ny, NSITES, 4)
        offset += 8 * nr
        label = "%s %s nx=%d ny=%d %s yHint=%d bcType=%d" % (
            NAMES[family], "single" if single else "double", nx, ny,
            "uniform" if uniform else "non-uniform", yhint, BC_TYPES[col])
        if status != 0:
            print("FAIL %s: status %d" % (label, status))
            failures += 1
            continue
        tol = 1e-5 if single else 1e-12
        # Each quantity against its largest magnitude over the case's functions; one
        # that is zero throughout (a line's c2, a parabola's c3) against the size of
        # that coefficient (or derivative) of the data over the whole range.
        refs = [reference(family, col, x, y[f], bc, ic[f]) for f in range(ny)]
        floor = [np.max(np.abs(y)) / (x[-1] - x[0]) ** k for k in range(4)]
        errs = {}
        if family in (NATURAL, DEFAULT) or col == 7:
            # The same cells as ours: scipy's c[3-k] is the coefficient of power k.
            rc = np.stack([r.c[::-1, :].T for r in refs])
            for k in range(4):
                scale = max(np.max(np.abs(rc[:, :, k])), floor[k])
                errs["c%d" % k] = np.max(np.abs(coeff[:, :, k] - rc[:, :, k])) / scale
        for k in range(4):
            rv = np.stack([r(s, k) for r in refs])
            scale = max(np.max(np.abs(rv)), floor[k] * [1, 1, 2, 6][k])
            errs["d%d" % k] = np.max(np.abs(res[:, :, k] - rv)) / scale
        err = max(errs.values())
        key = (NAMES[family], "single" if single else "double")
        worst[key] = max(worst.get(key, 0.0), err)
        if not err <= tol:
            print("FAIL %s: error %.3g of the largest magnitude (limit %g): %s" % (
                label, err, tol, " ".join("%s %.2g" % kv for kv in sorted(errs.items()))))
            failures += 1
    for (name, prec), err in sorted(worst.items()):
        print("%-8s %-6s worst error %.3g of the largest magnitude" % (name, prec, err))
    print("%d cases, %d failures" % (len(plan), failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
