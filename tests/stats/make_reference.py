#!/usr/bin/python3
"""Writes the reference cases of the basic compute: data drawn with numpy and the
estimates computed by numpy (numpy.cov, numpy.corrcoef, numpy.var and weighted sums),
normalised as the library documents. Usage: make_reference.py OUTPUT

Each case: int64 p, n, layout, weighted, hasIndices, flags; then x in the layout
(n * p doubles), the n weights when weighted, the p indices (int64) when present; then
the reference vectors in position order (mean, raw 2-4, central 2-4, kurtosis,
skewness, variation, sum, raw sums 2-4, central sums 2-4: 18 * p doubles) and the
matrices covariance, correlation, cross-product (3 * p * p doubles, full).
"""
import struct
import sys

import numpy as np

ROWS, COLS = 0x10000, 0x20000


def estimates(x, w):
    """x: n x p float64 (observation per row), w: n weights."""
    W = w.sum()
    W2 = (w * w).sum()
    m = (w[:, None] * x).sum(0) / W
    # One step of correction: with a large common offset the rounded mean is off by
    # more than the third moment can bear.
    m = m + (w[:, None] * (x - m)).sum(0) / W
    d = x - m
    raw = [(w[:, None] * x**k).sum(0) / W for k in (2, 3, 4)]
    cs = [(w[:, None] * d**k).sum(0) for k in (2, 3, 4)]
    unbiased = W / (W * W - W2) if W * W != W2 else np.nan
    if x.shape[0] > 1:
        if np.all(w == 1.0):
            c2 = np.var(x, axis=0, ddof=1)
            cov = np.atleast_2d(np.cov(x, rowvar=False))
        else:
            c2 = cs[0] * unbiased
            cov = np.atleast_2d(np.cov(x, rowvar=False, aweights=w))
        with np.errstate(invalid="ignore", divide="ignore"):
            s = np.sqrt(np.diag(cov))
            cor = cov / np.outer(s, s)
    else:
        c2 = np.full(x.shape[1], np.nan)
        cov = np.full((x.shape[1],) * 2, np.nan)
        cor = cov.copy()
    c3 = cs[1] / W
    c4 = cs[2] / W
    with np.errstate(invalid="ignore", divide="ignore"):
        kurt = c4 / (c2 * c2) - 3
        skew = c3 / np.sqrt(c2**3)
        variation = np.sqrt(c2) / m
    cp = (d * w[:, None]).T @ d
    vectors = [m, *raw, c2, c3, c4, kurt, skew, variation, m * W,
               *[r * W for r in raw], *cs]
    return vectors, [cov, cor, cp]


def write_case(out, rng, p, n, layout, weighted, indices, flags=0, offset=0.0):
    # Correlated variables with different scales and means.
    mix = rng.normal(size=(p, p)) / np.sqrt(p) + np.eye(p)
    x = rng.normal(size=(n, p)) @ mix * rng.uniform(0.5, 3.0, size=p) + rng.normal(size=p) * 2
    x += offset
    w = rng.uniform(0.1, 2.0, size=n) if weighted else np.ones(n)
    if weighted and n > 3 and flags & 1:
        w[:3] = 0.0  # a leading run of zero weights
    idx = (rng.uniform(size=p) < 0.7).astype(np.int64) if indices else None
    if idx is not None and p > 1:
        idx[0] = 1
    vectors, matrices = estimates(x, w)
    out.write(struct.pack("<6q", p, n, layout, int(weighted), int(indices), flags))
    data = x.T if layout == ROWS else x
    out.write(np.ascontiguousarray(data, dtype="<f8").tobytes())
    if weighted:
        out.write(w.astype("<f8").tobytes())
    if indices:
        out.write(idx.astype("<i8").tobytes())
    for v in vectors:
        out.write(np.asarray(v, dtype="<f8").tobytes())
    for mat in matrices:
        out.write(np.ascontiguousarray(mat, dtype="<f8").tobytes())


def main():
    rng = np.random.default_rng(20240611)
    with open(sys.argv[1], "wb") as out:
        for p, n in [(1, 1), (1, 2), (2, 10), (3, 7), (7, 1000), (16, 3000), (50, 2000)]:
            for layout in (ROWS, COLS):
                for weighted in (False, True):
                    for indices in ((False, True) if p > 1 else (False,)):
                        write_case(out, rng, p, n, layout, weighted, indices,
                                   flags=1 if weighted else 0)
        # A million observations, a few shapes only (the file stays small).
        write_case(out, rng, 1, 1000000, ROWS, False, False)
        write_case(out, rng, 2, 1000000, COLS, True, False, flags=1)
        write_case(out, rng, 3, 1000000, ROWS, False, True)
        # Large common offset: the stable paths must keep the digits that exist.
        for layout in (ROWS, COLS):
            write_case(out, rng, 3, 20000, layout, False, False, flags=2, offset=1e9)


if __name__ == "__main__":
    main()
