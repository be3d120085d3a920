"""Compares the order-based estimates of the library with numpy and scipy:
quantiles with numpy.quantile(x, b, method='linear'), the one numpy rule equal to the
library's (h = b (n - 1), a (1 - f) + f c). numpy forms the interpolation its own way,
so a quantile must agree within 4 ulps of max(|a|, |c|), a and c the two values it lies
between; b = 0 and 1 must give the minimum and maximum exactly. Order statistics and
sorted observations must equal numpy.sort bit for bit, the MAD
scipy.stats.median_abs_deviation(x) (scale 1) within 1 ulp, the weighted median with
unit weights numpy.median exactly. Variables that the
indices leave out must keep their results. Single-precision cases are checked against
numpy on the same float32 values, the ulps being float32's.

Usage: order_numpy_check.py DRIVER WORKDIR. Fails, loudly, without numpy or scipy."""
import os
import subprocess
import sys

import numpy as np
from scipy.stats import median_abs_deviation

ROWS, COLS = 0x10000, 0x20000
QUANTILES, SORT, SORT_IN_PLACE, MAD, WMEDIAN = range(5)
UNTOUCHED = 12345.0

rng = np.random.default_rng(24)


def data(p, n, ties, single):
    if ties:
        v = rng.integers(-3, 4, (p, n)).astype(np.float64)
    else:
        v = rng.normal(size=(p, n)) * 10.0 ** rng.integers(-3, 4, (p, 1))
    if single:
        v = v.astype(np.float32).astype(np.float64)
    return v


def orders(m, single):
    b = rng.random(m)
    if m >= 3:
        b[0], b[1], b[2] = 0.0, 1.0, 0.5
    if single:
        b = b.astype(np.float32).astype(np.float64)
    return b


def cases():
    sizes = [1, 2, 3, 6, 7, 8, 13, 100, 1001, 100000]
    for single in (0, 1):
        for n in sizes:
            for layout in (ROWS, COLS):
                ties = n > 5 and rng.random() < 0.4
                p = 1 if n >= 100000 else int(rng.integers(1, 6))
                m = int(rng.choice([0, 1, 3, 17, 99]))
                ind = p > 1 and rng.random() < 0.5
                out = ROWS if rng.random() < 0.5 else COLS
                yield QUANTILES, single, p, n, layout, out, m, ind, ties
                yield SORT, single, p, n, layout, out, 0, ind, ties
                yield SORT_IN_PLACE, single, p, n, layout, layout, 0, False, ties
                yield MAD, single, p, n, layout, layout, 0, ind, ties
                yield WMEDIAN, single, p, n, layout, layout, 0, ind, ties
        yield QUANTILES, single, 1, 1000000, ROWS, ROWS, 99, False, False
        yield QUANTILES, single, 3, 1000000, COLS, COLS, 5, True, True
        yield MAD, single, 1, 1000000, ROWS, ROWS, 0, False, False
    # A constant variable has a MAD of 0.
    for single in (0, 1):
        yield MAD, single, 2, 500, COLS, COLS, 0, False, "constant"


def layout_matrix(v, layout):
    return v if layout == ROWS else v.T


def ulp(x, single):
    return np.spacing(np.abs(x).astype(np.float32 if single else np.float64)).astype(np.float64)


def check_quantiles(v, b, q, single, keep):
    bad = 0
    dtype = np.float32 if single else np.float64
    for j in range(v.shape[0]):
        if not keep[j]:
            bad += int(np.any(q[j] != UNTOUCHED))
            continue
        x = v[j].astype(dtype)
        s = np.sort(x).astype(np.float64)
        n = len(s)
        for k, order in enumerate(b):
            ref = float(np.quantile(x, np.float64(order), method="linear"))
            h = order * (n - 1)
            i = min(int(h), n - 1)
            a, c = s[i], s[min(i + 1, n - 1)]
            tol = 4 * ulp(np.float64(max(abs(a), abs(c))), single)
            exact = order in (0.0, 1.0)
            want = s[0] if order == 0.0 else s[-1] if order == 1.0 else ref
            if (exact and q[j, k] != want) or (not exact and abs(q[j, k] - ref) > tol):
                print(f"  quantile var {j} order {order}: {q[j, k]!r} numpy {ref!r}")
                bad += 1
    return bad


def check_sorted(v, r, single, keep):
    bad = 0
    dtype = np.float32 if single else np.float64
    for j in range(v.shape[0]):
        want = np.sort(v[j].astype(dtype)).astype(np.float64) if keep[j] else UNTOUCHED
        if np.any(r[j] != want):
            print(f"  sorted var {j} differs")
            bad += 1
    return bad


def mad(x):
    return float(median_abs_deviation(x, scale=1.0))


def median(x):
    return float(np.median(x))


def check_per_variable(v, r, single, keep, reference, ulps, name):
    """One result a variable (MAD, weighted median) against numpy or scipy."""
    bad = 0
    dtype = np.float32 if single else np.float64
    for j in range(v.shape[0]):
        want = reference(v[j].astype(dtype)) if keep[j] else UNTOUCHED
        if abs(r[j] - want) > ulps * ulp(np.float64(want), single):
            print(f"  {name} var {j}: {r[j]!r} reference {want!r}")
            bad += 1
    return bad


def main():
    driver, work = sys.argv[1], sys.argv[2]
    os.makedirs(work, exist_ok=True)
    cases_path = os.path.join(work, "order_cases.bin")
    answers_path = os.path.join(work, "order_answers.bin")
    plan = []
    with open(cases_path, "wb") as f:
        for kind, single, p, n, layout, out, m, ind, ties in cases():
            v = data(p, n, ties is True, single)
            if ties == "constant":
                v[:] = 2.5
            b = orders(m, single)
            keep = np.ones(p, np.int64)
            if ind:
                keep = (rng.random(p) < 0.6).astype(np.int64)
            head = [kind, single, p, n, layout, out, m, int(ind)]
            f.write(np.array(head, np.int64).tobytes())
            f.write(np.ascontiguousarray(layout_matrix(v, layout)).tobytes())
            f.write(b.tobytes())
            if ind:
                f.write(keep.tobytes())
            plan.append((kind, single, p, n, layout, out, m, keep, v, b))
    subprocess.run([driver, cases_path, answers_path], check=True)
    answers = open(answers_path, "rb").read()
    offset, failures = 0, 0
    names = ["quantiles", "sort", "sort in place", "MAD", "weighted median"]
    for kind, single, p, n, layout, out, m, keep, v, b in plan:
        status = int(np.frombuffer(answers, np.int64, 1, offset)[0])
        offset += 8
        q = np.frombuffer(answers, np.float64, p * m, offset).reshape(p, m)
        offset += 8 * p * m
        r = np.frombuffer(answers, np.float64, p * n, offset)
        offset += 8 * p * n
        r = r.reshape(p, n) if out == ROWS else r.reshape(n, p).T
        label = f"{names[kind]} single={single} p={p} n={n} layout={layout:#x} m={m}"
        if status != 0:
            print(f"{label}: status {status}")
            failures += 1
            continue
        if kind == QUANTILES:
            bad = check_quantiles(v, b, q, single, keep) + check_sorted(v, r, single, keep)
        elif kind in (SORT, SORT_IN_PLACE):
            bad = check_sorted(v, r, single, keep)
        else:
            first = np.frombuffer(answers, np.float64, p, offset - 8 * p * n)
            if kind == MAD:
                bad = check_per_variable(v, first, single, keep, mad, 1, "MAD")
            else:
                bad = check_per_variable(v, first, single, keep, median, 0, "weighted median")
        if bad:
            print(f"{label}: {bad} differences")
            failures += 1
    print(f"{len(plan)} cases, {failures} failing")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
