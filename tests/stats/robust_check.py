"""Compares the robust estimates of the library with references in Python.

Robust covariance against sklearn.covariance.MinCovDet on contaminated data (skipped,
with a note, when sklearn is absent): the same h (support_fraction (h + 1/2) / n, which
sklearn truncates to h), so both look for the same minimum covariance determinant and
reweight the same way. sklearn's reweighted covariance divides by the support's count k
and ours by k - 1: ours times (k - 1) / k must match its covariance_, and our mean its
location_, within 1e-9 of the scale (single precision 2e-5). Both searches are random;
where they end in different subsets, concentration steps from our estimate must reach
an h-subset of determinant at or below that of sklearn's raw support.

Outlier detection against a numpy transcription of BACON (Billor, Hadi and Velleman
2000, algorithm 3): the initial subset of the c q observations nearest the centre
(Mahalanobis from the mean and covariance of all, or Euclidean from the coordinate-wise
medians; ties by observation number), then subsets of distances below
c_npr sqrt(chi2_q(1 - alpha / n)) until the size repeats. The weights must be equal.

Usage: robust_check.py DRIVER WORKDIR. Fails, loudly, without numpy or scipy."""
import os
import subprocess
import sys

import numpy as np
from scipy.stats import chi2

ROWS, COLS = 0x10000, 0x20000
MCD, BACON = 0, 1
rng = np.random.default_rng(26)


def contaminated(q, n, share, shift):
    a = rng.normal(size=(q, q))
    x = rng.normal(size=(n, q)) @ a.T + rng.normal(size=q) * 3
    bad = int(share * n)
    x[n - bad:] += shift * np.sqrt(np.diag(a @ a.T))
    return x


def mcd_h(q, n):
    # Three quarters of the observations below 1000, where h near n / 2 leaves local
    # minima of nearly equal determinant inside the clean 80% that the two random
    # searches need not agree on; the default (n + q + 1) / 2 above.
    return (3 * n) // 4 if n < 1000 else (n + q + 1) // 2


def laid(x, layout):
    return (x.T if layout == ROWS else x).ravel()


def concentrate(x, mean, cov, h):
    """Concentration steps from (mean, cov) until the h-subset repeats; returns the
    log determinant of its covariance (divisor h, as sklearn's raw covariance)."""
    last = None
    while True:
        d = x - mean
        dist = np.einsum('ij,ij->i', d, np.linalg.solve(cov, d.T).T)
        sub = np.sort(np.argsort(dist, kind='stable')[:h])
        if last is not None and np.array_equal(sub, last):
            return np.linalg.slogdet(cov)[1]
        last = sub
        mean = x[sub].mean(0)
        cov = np.cov(x[sub], rowvar=False, bias=True).reshape(len(mean), len(mean))


def bacon(x, alpha, start, c):
    n, q = x.shape
    if start == 1:
        mu, s = x.mean(0), np.cov(x, rowvar=False, ddof=1).reshape(q, q)
        d = x - mu
        dist = np.einsum('ij,ij->i', d, np.linalg.solve(s, d.T).T)
    else:
        d = x - np.median(x, 0)
        dist = np.einsum('ij,ij->i', d, d)
    r = min(n, max(q + 1, int(np.ceil(c * q))))
    subset = np.sort(np.argsort(dist, kind='stable')[:r])
    h = (n + q + 1) // 2
    cnp = 1 + (q + 1) / (n - q) + 2 / (n - 1 - 3 * q)
    chi = chi2.isf(alpha / n, q)
    while True:
        mu = x[subset].mean(0)
        s = np.cov(x[subset], rowvar=False, ddof=1).reshape(q, q)
        d = x - mu
        dist = np.einsum('ij,ij->i', d, np.linalg.solve(s, d.T).T)
        chr_ = max(0.0, (h - r) / (h + r))
        nxt = np.nonzero(dist < (cnp + chr_) ** 2 * chi)[0]
        if len(nxt) == r:
            subset = nxt
            break
        subset, r = nxt, len(nxt)
    w = np.zeros(n)
    w[subset] = 1
    return w


def main():
    driver, work = sys.argv[1], sys.argv[2]
    os.makedirs(work, exist_ok=True)
    try:
        from sklearn.covariance import MinCovDet
    except ImportError:
        MinCovDet = None
        print('sklearn absent: the robust covariance comparison is skipped')
    cases = []
    for single in (0, 1):
        for q, n in ((2, 60), (3, 150), (5, 400), (3, 1000), (4, 2400)):
            x = contaminated(q, n, 0.2, 8.0)
            if single:
                x = x.astype(np.float32).astype(np.float64)
            layout = ROWS if n % 2 else COLS
            if MinCovDet is not None:
                cases.append((MCD, single, q, n, layout, x))
            for start in (1, 2):
                for alpha, c in ((0.05, 4), (0.01, 3)):
                    cases.append((BACON, single, q, n, layout, x, [alpha, start, c]))
    # A left-out variable full of NaN must change nothing.
    x = contaminated(3, 300, 0.1, 10.0)
    cases.append((BACON, 0, 3, 300, COLS, x, [0.05, 2, 4], True))
    if MinCovDet is not None:
        cases.append((MCD, 0, 3, 300, COLS, x, None, True))

    inp, outp = os.path.join(work, 'cases.bin'), os.path.join(work, 'answers.bin')
    with open(inp, 'wb') as f:
        for case in cases:
            kind, single, q, n, layout, x = case[:6]
            params = case[6] if len(case) > 6 and case[6] is not None else []
            wide = len(case) > 7
            if kind == MCD:
                params = [(mcd_h(q, n) + 0.5) / n]
            xs = x
            if wide:
                xs = np.column_stack([np.full(n, np.nan), x])
            p = xs.shape[1]
            np.array([kind, single, p, n, layout, int(wide), len(params)], np.int64).tofile(f)
            np.array(params, np.float64).tofile(f)
            laid(xs, layout).astype(np.float64).tofile(f)
            if wide:
                np.array([0] + [1] * q, np.int64).tofile(f)
    subprocess.run([driver, inp, outp], check=True)
    ans = np.fromfile(outp, np.float64)
    at, failures = 0, 0
    for case in cases:
        kind, single, q, n, layout, x = case[:6]
        wide = len(case) > 7
        p = q + wide
        status = int(ans[at:at + 1].view(np.int64)[0])
        mean = ans[at + 1:at + 1 + p]
        cov = ans[at + 1 + p:at + 1 + p + p * p].reshape(p, p)
        w = ans[at + 1 + p + p * p:at + 1 + p + p * p + n]
        at += 1 + p + p * p + n
        if wide:
            mean, cov = mean[1:], cov[1:, 1:]
        name = f"{'MCD' if kind == MCD else 'BACON'} single {single} q {q} n {n}"
        if status != 0:
            print(f'{name}: status {status}')
            failures += 1
            continue
        if kind == MCD:
            ref = MinCovDet(support_fraction=(mcd_h(q, n) + 0.5) / n, random_state=0).fit(x)
            k = ref.support_.sum()
            scale = np.sqrt(np.diag(ref.covariance_))
            tol = 2e-5 if single else 1e-9
            dm = np.max(np.abs(mean - ref.location_) / scale)
            dc = np.max(np.abs(cov * (k - 1) / k - ref.covariance_) / np.outer(scale, scale))
            ok = dm <= tol and dc <= tol
            note = ''
            if not ok:
                # Both searches are random: where they end apart, ours must not have
                # stopped at a worse subset. Concentration steps from our estimate must
                # reach an h-subset of determinant at or below sklearn's raw support's.
                h = mcd_h(q, n)
                ours = concentrate(x, mean, cov, h)
                theirs = np.linalg.slogdet(ref.raw_covariance_)[1]
                ok = ours <= theirs + 1e-9
                note = f' (apart: log det {ours:.9f} from ours, sklearn {theirs:.9f})'
            print(f'{name}: support {k}, mean {dm:.2e}, covariance {dc:.2e} of the scale'
                  f"{note}{'' if ok else '  FAIL'}")
            failures += not ok
        else:
            alpha, start, c = case[6]
            want = bacon(x, alpha, start, c)
            ok = np.array_equal(w, want)
            print(f'{name} start {start} alpha {alpha} c {c}: {int(n - want.sum())} nominated, '
                  f'{int(np.sum(w != want))} differ{"" if ok else "  FAIL"}')
            failures += not ok
    print(f'{len(cases)} cases, {failures} failures')
    sys.exit(1 if failures else 0)


main()
