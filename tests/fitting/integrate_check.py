"""Checks the integrals of the library exactly and against scipy. For each case the
driver builds a spline (linear, midpoint and knot-form quadratic, natural cubic with
free and not-a-knot ends, Akima, both step functions, and a generic order 6 from given
coefficients) and integrates it over intervals that lie inside, reach beyond the ends,
are given the wrong way round, are short, and lie far from x[0]. The reference is the
exact sum, in fractions.Fraction, of the integrals of the stored coefficients over the
same pieces (a piece's part in its own coordinate, whole pieces by exact prefix sums);
the library must be within 1e-13 of the integral of |s| over the interval (single:
2^-23, its result's rounding). The natural cubics also go against
scipy.interpolate.CubicSpline(...).integrate(a, b, extrapolate=True).

Usage: integrate_check.py DRIVER WORKDIR. Fails, loudly, without numpy or scipy."""
import os
import subprocess
import sys
from fractions import Fraction

import numpy as np
from scipy.interpolate import CubicSpline

KINDS = ["linear", "midpoint quadratic", "natural free", "natural not-a-knot", "akima",
         "knot quadratic", "step right", "step left", "generic order 6"]
ORDER = [2, 3, 4, 4, 4, 3, 0, 0, 6]
KNOT, STEP_RIGHT, STEP_LEFT, GENERIC = 5, 6, 7, 8
NATURAL_FREE, NATURAL_NAK = 2, 3

rng = np.random.default_rng(26)
GL_NODES, GL_WEIGHTS = np.polynomial.legendre.leggauss(16)


def partition(nx, uniform, single, offset):
    if uniform:
        x0 = offset + float(rng.integers(-4, 4))
        step = 2.0 ** int(rng.integers(-4, 1)) if not single else 0.25
        return x0 + step * np.arange(nx)
    x = offset + np.cumsum(0.2 + rng.random(nx)) * (3.0 / nx)
    return x.astype(np.float32).astype(np.float64) if single else x


def intervals(x, n, single):
    lo, hi = x[0], x[-1]
    width = hi - lo
    a = rng.uniform(lo - 0.1 * width, hi + 0.1 * width, n)
    b = rng.uniform(lo - 0.1 * width, hi + 0.1 * width, n)
    # Short ones, half of them near the right end (far from x[0]).
    k = n // 4
    a[:k] = rng.uniform(lo, hi, k)
    a[k // 2:k] = rng.uniform(hi - 0.02 * width, hi, k - k // 2)
    b[:k] = a[:k] + rng.uniform(-1, 1, k) * width * 10.0 ** rng.integers(-6, -1, k)
    # Nodes and ends as limits, and an empty interval.
    a[k:k + 4] = [lo, hi, x[len(x) // 2], lo]
    b[k:k + 4] = [hi, lo, x[len(x) // 2 + 3], lo]
    if single:
        a, b = a.astype(np.float32).astype(np.float64), b.astype(np.float32).astype(np.float64)
    return a, b


def breaks(kind, x, uniform, single, knots):
    """The left ends of the pieces as the library places them."""
    if kind == KNOT:
        return [Fraction(float(t)) for t in knots]
    if not uniform:
        return [Fraction(float(v)) for v in x]
    ft = np.float32 if single else np.float64
    x0, x1 = ft(x[0]), ft(x[-1])
    step = (x1 - x0) / ft(len(x) - 1)
    b = [Fraction(float(x0 + ft(i) * step)) for i in range(len(x) - 1)]
    return b + [Fraction(float(x1))]


class Exact:
    """Exact integrals of the stored pieces: each piece's polynomial (or value) in
    fractions, prefix sums of the whole pieces."""

    def __init__(self, kind, brk, coeff, y, order):
        self.kind, self.brk, self.order = kind, brk, order
        self.count = len(brk) - 1
        self.fbrk = np.array([float(v) for v in brk])
        if kind in (STEP_RIGHT, STEP_LEFT):
            vals = y[:-1] if kind == STEP_RIGHT else y[1:]
            self.poly = [[Fraction(float(v))] for v in vals]
        else:
            c = coeff.reshape(self.count, order)
            self.poly = [[Fraction(float(v)) for v in row] for row in c]
        self.fpoly = np.array([[float(v) for v in p] for p in self.poly])
        self.prefix = [Fraction(0)]
        self.absprefix = [0.0]
        for k in range(self.count):
            h = self.brk[k + 1] - self.brk[k]
            self.prefix.append(self.prefix[-1] + self.part(k, Fraction(0), h))
            self.absprefix.append(self.absprefix[-1] + self.abspart(k, 0.0, float(h)))

    def part(self, k, u, v):
        return sum(c * (v ** (j + 1) - u ** (j + 1)) / (j + 1)
                   for j, c in enumerate(self.poly[k]))

    def abspart(self, k, u, v):
        if v == u:
            return 0.0
        t = 0.5 * (u + v) + 0.5 * (v - u) * GL_NODES
        p = np.polynomial.polynomial.polyval(t, self.fpoly[k])
        return abs(0.5 * (v - u) * float(np.sum(GL_WEIGHTS * np.abs(p))))

    def piece(self, s, xnodes):
        nx = len(xnodes)
        c = nx - 1 if s == xnodes[-1] else int(np.searchsorted(xnodes, s, side="right"))
        i = min(max(c - 1, 0), nx - 2)
        if self.kind == KNOT and s >= self.fbrk[i + 1]:
            i += 1
        return i

    def integral(self, a, b, xnodes):
        """Exact integral and the integral of |s|, over [a, b]."""
        sign = 1
        if b < a:
            a, b, sign = b, a, -1
        i, j = self.piece(a, xnodes), self.piece(b, xnodes)
        fa, fb = Fraction(a), Fraction(b)
        if i == j:
            u, v = fa - self.brk[i], fb - self.brk[i]
            return sign * self.part(i, u, v), self.abspart(i, float(u), float(v))
        total = self.part(i, fa - self.brk[i], self.brk[i + 1] - self.brk[i])
        total += self.prefix[j] - self.prefix[i + 1]
        total += self.part(j, Fraction(0), fb - self.brk[j])
        absint = (self.abspart(i, float(fa - self.brk[i]), float(self.brk[i + 1] - self.brk[i]))
                  + self.absprefix[j] - self.absprefix[i + 1]
                  + self.abspart(j, 0.0, float(fb - self.brk[j])))
        return sign * total, absint


def make_case(kind, single, nx, uniform, offset, n):
    x = partition(nx, uniform, single, offset)
    y = rng.uniform(-1, 1, nx)
    if kind == STEP_RIGHT:
        y = rng.integers(-8, 8, nx).astype(np.float64)
    if single:
        y = y.astype(np.float32).astype(np.float64)
    extra = np.zeros(nx + 1)
    if kind == KNOT:
        extra[0], extra[-1] = x[0], x[-1]
        extra[1:-1] = x[:-1] + (0.25 + 0.5 * rng.random(nx - 1)) * np.diff(x)
        if single:
            extra = extra.astype(np.float32).astype(np.float64)
            extra[1:-1] = np.clip(extra[1:-1], np.nextafter(x[:-1], np.inf, dtype=np.float32),
                                  np.nextafter(x[1:], -np.inf, dtype=np.float32))
    else:
        extra[0] = 0.3
    order = ORDER[kind]
    coeff = np.zeros((nx - 1) * order)
    if kind == GENERIC:
        coeff = rng.uniform(-1, 1, (nx - 1) * order)
        if single:
            coeff = coeff.astype(np.float32).astype(np.float64)
    a, b = intervals(x, n, single)
    return dict(kind=kind, single=single, nx=nx, uniform=uniform, x=x, y=y, extra=extra,
                coeff=coeff, a=a, b=b, order=order)


def main():
    driver, work = sys.argv[1], sys.argv[2]
    os.makedirs(work, exist_ok=True)
    cases = []
    for kind in range(len(KINDS)):
        for single in (0, 1):
            for uniform in (0, 1):
                if kind == KNOT and uniform:
                    continue
                for nx, offset in ((7, 0.0), (120, 0.0), (1500, 1000.0)):
                    cases.append(make_case(kind, single, nx, uniform, offset, 160))
    cases_path = os.path.join(work, "cases.bin")
    answers_path = os.path.join(work, "answers.bin")
    with open(cases_path, "wb") as f:
        for c in cases:
            np.array([c["kind"], c["single"], c["nx"], c["uniform"], len(c["a"]), c["order"]],
                     dtype=np.int64).tofile(f)
            for key in ("x", "y", "extra", "coeff", "a", "b"):
                np.asarray(c[key], dtype=np.float64).tofile(f)
    subprocess.run([driver, cases_path, answers_path], check=True)
    raw = open(answers_path, "rb").read()
    at = 0
    failures, worst = 0, {}
    for c in cases:
        kind, nx, n, order = c["kind"], c["nx"], len(c["a"]), c["order"]
        status = int(np.frombuffer(raw, np.int64, 1, at)[0])
        at += 8
        pieces = nx if kind == KNOT else nx - 1
        coeff = np.frombuffer(raw, np.float64, pieces * order, at)
        at += 8 * pieces * order
        got = np.frombuffer(raw, np.float64, n, at)
        at += 8 * n
        name = "%s %s nx %d %s" % (KINDS[kind], "single" if c["single"] else "double", nx,
                                   "uniform" if c["uniform"] else "non-uniform")
        if status != 0:
            print("FAIL %s: status %d" % (name, status))
            failures += 1
            continue
        brk = breaks(kind, c["x"], c["uniform"], c["single"], c["extra"])
        exact = Exact(kind, brk, coeff, c["y"], order)
        nodes = np.array([float(v) for v in brk]) if kind != KNOT else c["x"]
        if kind != KNOT and c["uniform"]:
            nodes = np.array([float(v) for v in brk])
        tol = 2.0 ** -23 if c["single"] else 1e-13
        for k in range(n):
            ref, absint = exact.integral(c["a"][k], c["b"][k], nodes)
            err = abs(Fraction(float(got[k])) - ref)
            bound = tol * absint
            rel = float(err) / absint if absint > 0 else (0.0 if err == 0 else float("inf"))
            worst[name] = max(worst.get(name, 0.0), rel)
            if float(err) > bound and err != 0:
                if failures < 20:
                    print("FAIL %s: [%r, %r] got %r exact %r |s| %r" %
                          (name, c["a"][k], c["b"][k], got[k], float(ref), absint))
                failures += 1
        if kind in (NATURAL_FREE, NATURAL_NAK) and not c["single"]:
            spline = CubicSpline(c["x"], c["y"],
                                 bc_type="natural" if kind == NATURAL_FREE else "not-a-knot")
            for k in range(n):
                ref = spline.integrate(c["a"][k], c["b"][k], extrapolate=True)
                _, absint = exact.integral(c["a"][k], c["b"][k], nodes)
                # scipy's own coefficients and sums differ by roundings of the values'
                # size times the interval's length from x[0].
                scale = absint + 1e-3 * np.max(np.abs(c["y"])) * (
                    abs(c["a"][k] - c["x"][0]) + abs(c["b"][k] - c["x"][0]))
                if abs(got[k] - ref) > 1e-11 * scale:
                    if failures < 20:
                        print("FAIL %s vs scipy: [%r, %r] got %r scipy %r" %
                              (name, c["a"][k], c["b"][k], got[k], ref))
                    failures += 1
    for name in sorted(worst):
        print("%-48s worst error / integral of |s|: %.3g" % (name, worst[name]))
    print("%d cases, %d failures" % (len(cases), failures))
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
