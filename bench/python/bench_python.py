"""The Python package beside numpy and scipy, in one run (best of several rounds):

1. brenn.vm.exp against numpy.exp on 10^6 float64 (target 1.5x at HA; LA, EP shown);
2. Generator(brenn.rng.MT19937).standard_normal(10^7) against numpy's default
   Generator (target 1.5x); numpy's own MT19937 Generator shown beside it;
3. summary statistics (mean and covariance) of 10^6 x 32 against numpy.cov
   (target 1.5x);
4. a cubic spline built on 1000 points and evaluated at 10^6 sites against scipy's
   CubicSpline (target 3x).

Run:  PYTHONPATH=build/default/python /usr/bin/python3 bench/python/bench_python.py [--quick]
Ratios are the peer's time over ours: above 1 is faster than the peer. numpy picks
its kernels by the processor (AVX-512 where there is one); the exponential is also
timed against numpy limited to the library's instruction set (SSE4.2), in a second
process started with NPY_DISABLE_CPU_FEATURES."""

# numpy's dispatch targets above SSE4.2, disabled for the same-instruction-set peer.
ABOVE_SSE42 = "AVX F16C FMA3 AVX2 AVX512F AVX512CD AVX512_SKX " \
              "AVX512_CLX AVX512_CNL AVX512_ICL"
import os
import subprocess
import sys
import time

import numpy as np
from scipy.interpolate import CubicSpline

import brenn


def best(f, rounds):
    times = []
    for _ in range(rounds):
        t = time.perf_counter()
        f()
        times.append(time.perf_counter() - t)
    return min(times)


def row(name, ours, peer, target):
    ratio = peer / ours
    verdict = "" if target is None else ("met" if ratio >= target else "not met")
    goal = "" if target is None else f"{target:.1f}x"
    print(f"| {name} | {ours * 1e3:.2f} | {peer * 1e3:.2f} | {ratio:.2f}x | {goal} | {verdict} |")


def bench_exp(rounds, label):
    a = np.random.default_rng(1).uniform(-700, 700, 10**6)
    y, z = np.empty_like(a), np.empty_like(a)
    peer = best(lambda: np.exp(a, out=z), rounds * 3)
    for level, target in (("ha", 1.5), ("la", None), ("ep", None)):
        ours = best(lambda: brenn.vm.exp(a, out=y, accuracy=level), rounds * 3)
        row(f"vm.exp 10^6 float64 {level.upper()} vs numpy.exp{label}", ours, peer, target)


def main():
    quick = "--quick" in sys.argv
    rounds = 3 if quick else 9
    if "--exp-only" in sys.argv:
        bench_exp(rounds, " (numpy on SSE4.2)")
        return
    rng = np.random.default_rng(1)
    print(f"threads: libbrenn pool (brenn.set_num_threads) default; numpy {np.__version__}")
    print("| case | ours ms | peer ms | ratio | target | |")
    print("|---|---|---|---|---|---|")
    bench_exp(rounds, "")
    sys.stdout.flush()
    env = dict(os.environ, NPY_DISABLE_CPU_FEATURES=ABOVE_SSE42)
    subprocess.run([sys.executable, __file__, "--exp-only"] + sys.argv[1:], env=env, check=True)

    n = 10**6 if quick else 10**7
    g_np = np.random.default_rng(7)
    g_mt = np.random.Generator(np.random.MT19937(7))
    peer = best(lambda: g_np.standard_normal(n), rounds)
    peer_mt = best(lambda: g_mt.standard_normal(n), rounds)
    for name, cls in sorted(brenn.rng.FAMILIES.items()):
        g = np.random.Generator(cls(7))
        ours = best(lambda: g.standard_normal(n), rounds)
        row(f"Generator({name}).standard_normal({n:.0e}) vs default Generator", ours, peer,
            1.5 if name == "MT19937" else None)
        if name == "MT19937":
            row(f"Generator({name}).standard_normal({n:.0e}) vs numpy's MT19937", ours, peer_mt, None)

    x = rng.standard_normal((10**6 if not quick else 2 * 10**5, 32))
    peer = best(lambda: np.cov(x, rowvar=False), rounds)
    ours = best(lambda: brenn.stats.summary(x, estimates=("mean", "covariance")), rounds)
    row(f"stats.summary mean+covariance {x.shape[0]:.0e}x32 vs numpy.cov", ours, peer, 1.5)
    ours_all = best(lambda: brenn.stats.summary(x), rounds)
    row(f"stats.summary default estimates {x.shape[0]:.0e}x32 vs numpy.cov", ours_all, peer, None)

    kx = np.sort(rng.uniform(0, 100, 1000))
    ky = np.sin(kx)
    sites = rng.uniform(0, 100, 10**6)
    peer = best(lambda: CubicSpline(kx, ky)(sites), rounds)
    ours = best(lambda: brenn.fit.Spline(kx, ky, kind="cubic")(sites), rounds)
    row("Spline cubic 1000 points + 10^6 sites vs scipy CubicSpline", ours, peer, 3.0)


if __name__ == "__main__":
    main()
