"""Compares the library's partial, pooled and parametrized covariance and its
Mahalanobis distances with numpy and scipy.

Partial: the Schur complement S_YY - S_YZ S_ZZ^-1 S_ZY of numpy.cov, and the
covariance of the least-squares residuals of Y on [1, Z] (E'E / (n - 1)); the partial
correlation its normalisation. Pooled: numpy.cov of each group, numpy means, and the
residuals of x on the group dummies (E'E / (n - g)). Parametrization: Higham's
example A = [[1, 1, 0], [1, 1, 1], [0, 1, 1]] (off-diagonals 0.7607 and 0.1573),
matrices not semidefinite against the solution of the dual problem
(min 1/2 |(A + diag y)_+|^2 - sum y, by scipy.optimize's BFGS and a root of its
gradient) within 1e-9, a correlation
matrix kept within 1e-14, unit diagonals exactly and eigenvalues at or above
-tolerance. Mahalanobis: scipy.spatial.distance.mahalanobis within 1e-13 relative.
Both layouts, the packed forms and indices that leave variables out; single precision
against the same data in float64 with float32's tolerances.

Usage: covariance_numpy_check.py DRIVER WORKDIR. Fails, loudly, without numpy or scipy."""
import os
import subprocess
import sys

import numpy as np
from scipy.optimize import minimize, root
from scipy.spatial.distance import mahalanobis

ROWS, COLS = 0x10000, 0x20000
PARTIAL, POOLED, PARAM, MAH = range(4)
rng = np.random.default_rng(26)
failures = []


def check(ok, what):
    if not ok:
        failures.append(what)


def full(v, form, p):
    """The full matrix of a result in storage form `form`."""
    if form == 0:
        return v.reshape(p, p)
    m = np.zeros((p, p))
    k = 0
    for j in range(p):
        cols = range(j, p) if form == 1 else range(0, j + 1)
        for col in cols:
            m[j, col] = m[col, j] = v[k]
            k += 1
    return m


def size(form, p):
    return p * p if form == 0 else p * (p + 1) // 2


def run(driver, workdir, header, arrays):
    case = os.path.join(workdir, "case.bin")
    answer = os.path.join(workdir, "answer.bin")
    with open(case, "wb") as f:
        f.write(np.array(header, dtype=np.int64).tobytes())
        for a in arrays:
            f.write(a.tobytes())
    subprocess.run([driver, case, answer], check=True)
    raw = open(answer, "rb").read()
    return int(np.frombuffer(raw[:8], dtype=np.int64)[0]), np.frombuffer(raw[8:], dtype=np.float64)


def laid_out(x, layout):
    """x is n x p; the library's matrix in the given layout."""
    return np.ascontiguousarray(x.T if layout == ROWS else x).astype(np.float64)


def close(a, b, rel, what):
    scale = max(1.0, np.max(np.abs(b))) if b.size else 1.0
    err = np.max(np.abs(a - b)) / scale if b.size else 0.0
    check(err <= rel, f"{what}: error {err:.3g} above {rel:.1g}")


def partial_cases(driver, workdir):
    for single in (0, 1):
        tol = 2e-4 if single else 1e-11
        for n, p in ((50, 4), (400, 7), (1000, 12)):
            for layout in (ROWS, COLS):
                for form in (0, 1, 2):
                    x = rng.normal(size=(n, p)) @ (np.eye(p) + 0.3 * rng.normal(size=(p, p))) + rng.normal(size=p) * 5
                    if single:
                        x = x.astype(np.float32).astype(np.float64)
                    words = rng.choice([1, -1, 0], size=p, p=[0.4, 0.4, 0.2]).astype(np.int64)
                    words[0], words[-1] = 1, -1
                    idx = (rng.random(p) > 0.2).astype(np.int64) if form == 2 else None
                    if idx is not None:
                        idx[0] = idx[-1] = 1
                    act = np.ones(p, bool) if idx is None else idx != 0
                    y = np.flatnonzero((words == 1) & act)
                    z = np.flatnonzero((words == -1) & act)
                    header = [PARTIAL, single, p, n, layout, 0, idx is not None, form]
                    arrays = [laid_out(x, layout), words] + ([idx] if idx is not None else [])
                    status, r = run(driver, workdir, header, arrays)
                    what = f"partial single={single} n={n} p={p} layout={layout:#x} form={form}"
                    check(status == 0, f"{what}: status {status}")
                    ny = len(y)
                    k = size(form, ny)
                    pc, pr = full(r[p * p:p * p + k], form, ny), full(r[p * p + k:], form, ny)
                    s = np.cov(x, rowvar=False)
                    schur = s[np.ix_(y, y)] - s[np.ix_(y, z)] @ np.linalg.solve(
                        s[np.ix_(z, z)], s[np.ix_(z, y)])
                    close(pc, schur, tol, what + " vs Schur complement")
                    design = np.column_stack([np.ones(n), x[:, z]])
                    resid = x[:, y] - design @ np.linalg.lstsq(design, x[:, y], rcond=None)[0]
                    close(pc, resid.T @ resid / (n - 1), 10 * tol, what + " vs residuals")
                    d = np.sqrt(np.diag(schur))
                    close(pr, schur / np.outer(d, d), tol, what + " correlation")


def pooled_cases(driver, workdir):
    for single in (0, 1):
        tol = 2e-5 if single else 1e-12
        for n, p, g in ((40, 3, 2), (500, 6, 5), (3000, 9, 11)):
            for layout in (ROWS, COLS):
                for form in (0, 1, 2):
                    labels = rng.integers(0, g, n).astype(np.int64)
                    labels[:g] = np.arange(g)  # each group at least one ...
                    labels[g:2 * g] = np.arange(g)  # ... and two observations
                    x = rng.normal(size=(n, p)) * 3 + labels[:, None] * 10.0
                    if single:
                        x = x.astype(np.float32).astype(np.float64)
                    idx = (rng.random(p) > 0.3).astype(np.int64) if form == 1 else None
                    if idx is not None:
                        idx[0] = 1
                    act = np.flatnonzero(np.ones(p, bool) if idx is None else idx != 0)
                    header = [POOLED, single, p, n, layout, g, idx is not None, form]
                    arrays = [laid_out(x, layout), labels] + ([idx] if idx is not None else [])
                    status, r = run(driver, workdir, header, arrays)
                    what = f"pooled single={single} n={n} p={p} g={g} layout={layout:#x} form={form}"
                    check(status == 0, f"{what}: status {status}")
                    k = size(form, p)
                    gm = r[:g * p].reshape(g, p)
                    gc = r[g * p:g * p + g * k].reshape(g, k)
                    pm = r[g * p + g * k:g * p + g * k + p]
                    pc = full(r[g * p + g * k + p:], form, p)
                    sub = np.ix_(act, act)
                    for c in range(g):
                        xs = x[labels == c]
                        close(gm[c, act], xs.mean(axis=0)[act], tol, f"{what} group {c} mean")
                        close(full(gc[c], form, p)[sub], np.cov(xs, rowvar=False)[sub], tol,
                              f"{what} group {c} covariance")
                    close(pm[act], x.mean(axis=0)[act], tol, what + " pooled mean")
                    dummies = (labels[:, None] == np.arange(g)).astype(np.float64)
                    resid = x - dummies @ np.linalg.lstsq(dummies, x, rcond=None)[0]
                    close(pc[sub], (resid.T @ resid / (n - g))[sub], tol, what + " pooled covariance")


def dual_nearest(a):
    """The nearest correlation matrix by the dual: min 1/2 |(A + diag y)_+|^2 - sum y."""

    def plus(m):
        w, v = np.linalg.eigh(m)
        return (v * np.maximum(w, 0)) @ v.T

    def f(y):
        x = plus(a + np.diag(y))
        return 0.5 * np.sum(x * x) - np.sum(y), np.diag(x) - 1

    y = minimize(f, np.zeros(len(a)), jac=True, method="BFGS",
                 options={"gtol": 1e-14, "maxiter": 100000}).x
    # BFGS stalls near 1e-8 on the larger cases: the root of the gradient
    # diag((A + diag y)_+) - 1 from there settles the last digits.
    y = root(lambda v: f(v)[1], y, method="hybr", options={"xtol": 1e-15}).x
    return plus(a + np.diag(y))


def param_case(driver, workdir, a, form, tol, limit, weights=None, single=0):
    p = len(a)
    header = [PARAM, single, p, 1, ROWS, weights is not None, 0, form]
    arrays = [np.ascontiguousarray(a, np.float64), np.array([tol, limit], np.float64)]
    if weights is not None:
        arrays.append(np.asarray(weights, np.float64))
    status, r = run(driver, workdir, header, arrays)
    return status, full(r, form, p)


def param_cases(driver, workdir):
    a = np.array([[1.0, 1, 0], [1, 1, 1], [0, 1, 1]])
    for form in (0, 1, 2):
        status, x = param_case(driver, workdir, a, form, 1e-15, 1e6)
        check(status == 0, f"Higham's example form={form}: status {status}")
        check(round(x[0, 1], 4) == 0.7607 and round(x[1, 2], 4) == 0.7607
              and round(x[0, 2], 4) == 0.1573, f"Higham's example: {x}")
        close(x, dual_nearest(a), 1e-9, "Higham's example vs the dual")
        check(np.all(np.diag(x) == 1.0), "Higham's example: unit diagonal")
    for p in (4, 10, 25):
        for single in (0, 1):
            tol = 1e-5 if single else 1e-13
            m = rng.uniform(-1, 1, (p, p))
            m = (m + m.T) / 2
            np.fill_diagonal(m, 1)
            if single:
                m = m.astype(np.float32).astype(np.float64)
            status, x = param_case(driver, workdir, m, 0, tol, 1e6, single=single)
            what = f"random p={p} single={single}"
            check(status == 0, f"{what}: status {status}")
            check(np.all(np.diag(x) == 1.0), what + ": unit diagonal")
            check(np.linalg.eigvalsh(x).min() >= -tol, what + ": eigenvalues")
            close(x, dual_nearest(m), 1e-3 if single else 1e-9, what + " vs the dual")
            # A correlation matrix comes back as it was.
            c = np.corrcoef(rng.normal(size=(3 * p, p)), rowvar=False)
            np.fill_diagonal(c, 1)
            status, x = param_case(driver, workdir, c, 2, tol, 100, single=single)
            close(x, c, 1e-6 if single else 1e-14, f"correlation p={p} single={single} kept")
    # Weights: the weighted problem's answer moves toward the heavily weighted entries,
    # and W = c I gives the unweighted answer.
    m = np.array([[1.0, 0.9, -0.6], [0.9, 1, 0.9], [-0.6, 0.9, 1]])
    status, x1 = param_case(driver, workdir, m, 0, 1e-14, 1e6)
    status2, x2 = param_case(driver, workdir, m, 0, 1e-14, 1e6, weights=[4.0, 4.0, 4.0])
    check(status == 0 and status2 == 0, "weighted statuses")
    close(x2, x1, 1e-10, "W = 4 I equals W = I")
    status, xw = param_case(driver, workdir, m, 0, 1e-14, 1e6, weights=[100.0, 100.0, 1.0])
    check(status == 0 and abs(xw[0, 1] - 0.9) < abs(x1[0, 1] - 0.9), "weights pull (0, 1) to A")


def mah_cases(driver, workdir):
    for single in (0, 1):
        tol = 1e-4 if single else 1e-13
        for n, p in ((10, 1), (300, 5), (1001, 32)):
            for layout in (ROWS, COLS):
                x = rng.normal(size=(n, p)) @ (np.eye(p) + 0.3 * rng.normal(size=(p, p))) + 3
                if single:
                    x = x.astype(np.float32).astype(np.float64)
                mean = x.mean(axis=0)
                cov = np.atleast_2d(np.cov(x, rowvar=False))
                idx = (rng.random(p) > 0.3).astype(np.int64) if layout == COLS and p > 1 else None
                if idx is not None:
                    idx[0] = 1
                act = np.flatnonzero(np.ones(p, bool) if idx is None else idx != 0)
                header = [MAH, single, p, n, layout, 0, idx is not None, 0]
                arrays = [laid_out(x, layout), mean, cov] + ([idx] if idx is not None else [])
                status, d = run(driver, workdir, header, arrays)
                what = f"mahalanobis single={single} n={n} p={p} layout={layout:#x}"
                check(status == 0, f"{what}: status {status}")
                vi = np.linalg.inv(cov[np.ix_(act, act)])
                want = np.array([mahalanobis(x[i, act], mean[act], vi) for i in range(n)])
                err = np.max(np.abs(d - want) / want)
                check(err <= tol, f"{what}: relative error {err:.3g}")


def main():
    driver, workdir = sys.argv[1], sys.argv[2]
    os.makedirs(workdir, exist_ok=True)
    partial_cases(driver, workdir)
    pooled_cases(driver, workdir)
    param_cases(driver, workdir)
    mah_cases(driver, workdir)
    for f in failures[:40]:
        print("FAIL", f)
    print(f"{len(failures)} failures")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
