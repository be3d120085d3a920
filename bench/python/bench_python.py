"""The Python package beside numpy and scipy, in one run (best of several rounds):

1. brenn.vm.exp against numpy.exp on 10^6 float64 (target 1.5x at HA; LA, EP shown);
2. Generator(brenn.rng.<family>).standard_normal(10^7) for every family against
   numpy's default Generator (target 1.5x); numpy's own MT19937 Generator shown
   beside it; what a 64-bit word costs numpy from each family (ns a word of
   integers(0, 2**64, dtype=uint64), which takes one word an element, and its excess
   over the counter's: the family's refill and read path); and the bounds: the same
   call with the cheapest bit generators there can be (counter_bitgen.c, built here
   with cc): a counter, whose regular words let numpy's sampler predict its branches,
   and the counter mixed, whose words look random to it as every real generator's
   do. numpy's ziggurat takes one word a normal, so no random bit generator passes
   the mixed counter's ratio;
3. summary statistics (mean and covariance) of 10^6 x 32 against numpy.cov
   (target 1.5x);
4. a cubic spline built on 1000 points and evaluated at 10^6 sites against scipy's
   CubicSpline (target 3x).

Run:  PYTHONPATH=build/default/python /usr/bin/python3 bench/python/bench_python.py [--quick]
      [--normals-only]
Ratios are the peer's time over ours: above 1 is faster than the peer. numpy picks
its kernels by the processor (AVX-512 where there is one); the exponential is also
timed against numpy limited to the library's instruction set (SSE4.2), in a second
process started with NPY_DISABLE_CPU_FEATURES."""

# numpy's dispatch targets above SSE4.2, disabled for the same-instruction-set peer.
ABOVE_SSE42 = "AVX F16C FMA3 AVX2 AVX512F AVX512CD AVX512_SKX " \
              "AVX512_CLX AVX512_CNL AVX512_ICL"
import ctypes
import os
import subprocess
import sys
import tempfile
import threading
import time

import numpy as np
from scipy.interpolate import CubicSpline

import brenn


def best(f, rounds, clock=time.perf_counter):
    times = []
    for _ in range(rounds):
        t = clock()
        f()
        times.append(clock() - t)
    return min(times)


def row(name, ours, peer, target):
    ratio = peer / ours
    verdict = "" if target is None else ("met" if ratio >= target else "not met")
    goal = "" if target is None else f"{target:.1f}x"
    print(f"| {name} | {ours * 1e3:.2f} | {peer * 1e3:.2f} | {ratio:.2f}x | {goal} | {verdict} |")


class CounterBitGenerator:
    """A record of counter_bitgen.c as a numpy bit generator."""

    def __init__(self, lib, name="counter_bitgen"):
        record = getattr(ctypes.CDLL(lib), name)
        record.restype = ctypes.c_void_p
        new = ctypes.pythonapi.PyCapsule_New
        new.restype = ctypes.py_object
        new.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_void_p]
        self.capsule = new(record(), b"BitGenerator", None)
        self.lock = threading.Lock()

    @staticmethod
    def build():
        """The counter and the mixed counter (None, None when no C compiler is found)."""
        here = os.path.dirname(os.path.abspath(__file__))
        lib = os.path.join(tempfile.mkdtemp(), "counter_bitgen.so")
        made = subprocess.run(["cc", "-O2", "-shared", "-fPIC", "-o", lib,
                               os.path.join(here, "counter_bitgen.c")])
        if made.returncode != 0:
            return None, None
        return CounterBitGenerator(lib), CounterBitGenerator(lib, "mixed_bitgen")


def bench_normals(n, rounds):
    """Every family's Generator beside numpy's default one, the cost of a word from
    each, and the counters' bounds."""
    counter, mixed = CounterBitGenerator.build()
    gens = {name: np.random.Generator(cls(7)) for name, cls in brenn.rng.FAMILIES.items()}
    ours = sorted(gens)
    gens["numpy default"] = np.random.default_rng(7)
    gens["numpy MT19937"] = np.random.Generator(np.random.MT19937(7))
    if counter:
        gens["counter"], gens["mixed counter"] = (np.random.Generator(counter),
                                                  np.random.Generator(mixed))
    m = n // 10
    normals = {name: [] for name in gens}
    words = {name: [] for name in gens}
    # Rounds interleaved, so that a change of the machine's load falls on every side;
    # timed by the CPU time of this thread, which runs both sides, so that the time
    # other processes take on a shared machine is left out.
    for _ in range(rounds):
        for name, g in gens.items():
            normals[name].append(best(lambda: g.standard_normal(n), 1, time.thread_time))
            words[name].append(best(lambda: g.integers(0, 2**64, m, dtype=np.uint64), 1,
                                    time.thread_time))
    normal = {name: min(t) for name, t in normals.items()}
    word = {name: min(t) / m * 1e9 for name, t in words.items()}
    peer = normal["numpy default"]
    fastest = min(ours, key=normal.get)
    for name in ours:
        target = 1.5 if name == fastest else None
        row(f"Generator({name}).standard_normal({n:.0e}) vs default Generator", normal[name],
            peer, target)
    row(f"Generator({fastest}).standard_normal({n:.0e}) vs numpy's MT19937", normal[fastest],
        normal["numpy MT19937"], None)
    for name in ("counter", "mixed counter"):
        if name in gens:
            row(f"bound: Generator({name}).standard_normal({n:.0e}) vs default Generator",
                normal[name], peer, None)
    base = word.get("counter")
    print()
    print("| bit generator | ns a 64-bit word to numpy | over the counter's |")
    print("|---|---|---|")
    for name in ours + ["numpy default", "numpy MT19937", "mixed counter", "counter"]:
        if name in word:
            extra = "" if base is None else f"{word[name] - base:.2f}"
            print(f"| {name} | {word[name]:.2f} | {extra} |")


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
    if "--normals-only" in sys.argv:
        print("| case | ours ms | peer ms | ratio | target | |")
        print("|---|---|---|---|---|---|")
        bench_normals(10**6 if quick else 10**7, rounds)
        return
    rng = np.random.default_rng(1)
    print(f"threads: libbrenn pool (brenn.set_num_threads) default; numpy {np.__version__}")
    print("| case | ours ms | peer ms | ratio | target | |")
    print("|---|---|---|---|---|---|")
    bench_exp(rounds, "")
    sys.stdout.flush()
    env = dict(os.environ, NPY_DISABLE_CPU_FEATURES=ABOVE_SSE42)
    subprocess.run([sys.executable, __file__, "--exp-only"] + sys.argv[1:], env=env, check=True)

    bench_normals(10**6 if quick else 10**7, rounds)

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
