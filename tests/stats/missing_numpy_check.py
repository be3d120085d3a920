"""Compares the missing-value estimates of the library with numpy: with nothing missing
the EM mean and covariance must be numpy's mean and numpy.cov(x, bias=True) (1e-12
relative to the scale of the variables in double, 1e-6 in single, beyond the rounding
of the stored result); with a monotone
bivariate pattern, Anderson's closed form (mean and variance of the first variable over
all rows, the regression of the second on the first over the complete rows) to 1e-10;
with a general pattern, every imputation must complete x: the completed set's means
(observed entries from x, imputed ones read in x's memory order) equal missingSimMeans,
and the mean of the imputations' means lies within Monte Carlo error of the EM mean.

Usage: missing_numpy_check.py DRIVER WORKDIR. Fails, loudly, without numpy."""
import os
import subprocess
import sys

import numpy as np

ROWS, COLS = 0x10000, 0x20000
rng = np.random.default_rng(26)


def normal(p, n, single):
    a = rng.normal(size=(p, p)) / np.sqrt(p) + np.eye(p)
    v = (a @ rng.normal(size=(p, n))) * 10.0 ** rng.integers(-2, 3, (p, 1)) + 5.0
    if single:
        v = v.astype(np.float32).astype(np.float64)
    return v  # p x n


cases = []
for single in (0, 1):
    for layout in (ROWS, COLS):
        for p, n in ((1, 50), (4, 300), (9, 2000)):
            cases.append(("complete", single, layout, normal(p, n, single), 0, [20, 1e-12]))
        v = normal(2, 500, single)
        v[1, 320:] = np.nan
        cases.append(("monotone", single, layout, v, 0, [10000, 1e-14 if not single else 1e-7]))
        v = normal(5, 400, single)
        drop = rng.random(v.shape) < 0.2
        drop[0] = False
        v[drop] = np.nan
        cases.append(("general", single, layout, v, 300, [500, 1e-9, 2, 11]))

work = sys.argv[2]
os.makedirs(work, exist_ok=True)
inp, outp = os.path.join(work, "in.bin"), os.path.join(work, "out.bin")
with open(inp, "wb") as f:
    for kind, single, layout, v, sims, params in cases:
        p, n = v.shape
        np.array([single, p, n, layout, sims, len(params)], np.int64).tofile(f)
        (v if layout == ROWS else v.T).astype(np.float64).tofile(f)
        np.array(params, np.float64).tofile(f)
subprocess.run([sys.argv[1], inp, outp], check=True)
answers = np.fromfile(outp, np.uint8)

failures = 0


def far(got, want, scale, tol, single):
    """Off by more than tol on the variables' scale, beyond the rounding of the stored
    results (float32 in single)."""
    ulp = 2.0 ** -22 if single else 2.0 ** -51
    return np.any(np.abs(got - want) > tol * scale + ulp * np.abs(want))


def fail(what):
    global failures
    failures += 1
    print("FAIL", what)


at = 0
worst = {}
for kind, single, layout, v, sims, params in cases:
    p, n = v.shape
    status, k = np.frombuffer(answers[at:at + 16].tobytes(), np.int64)
    at += 16
    count = p + p * p + sims * k + sims * p
    r = np.frombuffer(answers[at:at + 8 * count].tobytes(), np.float64)
    at += 8 * count
    mean, cov = r[:p], r[p:p + p * p].reshape(p, p)
    patterns = r[p + p * p:p + p * p + sims * k].reshape(sims, k)
    sim_means = r[p + p * p + sims * k:].reshape(sims, p)
    what = f"{kind} single={single} layout={layout:#x} p={p} n={n}"
    if status != 0:
        fail(f"{what}: status {status}")
        continue
    sd = np.sqrt(np.nanvar(v, axis=1))
    tol = 1e-6 if single else 1e-12
    if kind == "complete":
        want_mean, want_cov = v.mean(axis=1), np.atleast_2d(np.cov(v, bias=True))
    elif kind == "monotone":
        tol = 1e-5 if single else 1e-10
        x, y = v[0], v[1]
        c = ~np.isnan(y)
        m1, s11 = x.mean(), x.var()
        t = np.cov(np.vstack([x[c], y[c]]), bias=True)
        b1 = t[0, 1] / t[0, 0]
        b0 = y[c].mean() - b1 * x[c].mean()
        want_mean = np.array([m1, b0 + b1 * m1])
        s12 = b1 * s11
        want_cov = np.array([[s11, s12], [s12, t[1, 1] - t[0, 1] ** 2 / t[0, 0] + b1 * b1 * s11]])
    else:
        want_mean = want_cov = None
        # Each imputation completes x in x's memory order.
        miss = np.isnan(v if layout == ROWS else v.T).ravel()
        for s in range(sims):
            flat = (v if layout == ROWS else v.T).ravel().copy()
            flat[miss] = patterns[s]
            done = flat.reshape(v.shape) if layout == ROWS else flat.reshape(v.T.shape).T
            if far(sim_means[s], done.mean(axis=1), sd, 1e-6 if single else 1e-12, single):
                fail(f"{what}: imputation {s} is not a completion of x")
                break
        se = np.sqrt(np.diag(cov) / n / sims)
        if np.any(np.abs(sim_means.mean(axis=0) - mean) > 5 * se):
            fail(f"{what}: imputation means {sim_means.mean(axis=0)} far from EM {mean}")
    if want_mean is not None:
        key = (kind, single)
        worst[key] = max(worst.get(key, 0.0), np.max(np.abs(mean - want_mean) / (sd + np.abs(want_mean))),
                         np.max(np.abs(cov - want_cov) / np.outer(sd, sd)))
        if far(mean, want_mean, sd + np.abs(want_mean), tol, single):
            fail(f"{what}: mean {mean} want {want_mean}")
        if far(cov, want_cov, np.outer(sd, sd), tol, single):
            fail(f"{what}: cov off by {np.max(np.abs(cov - want_cov) / np.outer(sd, sd))}")
for (kind, single), e in sorted(worst.items()):
    print(f"{kind} {'single' if single else 'double'}: largest error {e:.2e} of the scale")
print(f"{len(cases)} cases, {failures} failures")
sys.exit(1 if failures else 0)
