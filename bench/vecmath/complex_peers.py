#!/usr/bin/python3
"""Complex Mul, Div, Abs, Exp, Ln and Sqrt, and the rows computed element by element in
extended precision (trigonometric, hyperbolic and inverse functions, Log10, Pow), beside
their peers, in one run on the same arrays: this library's kernels (through their
exported entry points, every level), a loop of the C library's scalar complex functions
(complex_loops.c) and numpy's ufuncs.

    complex_peers.py LIBBRENN_SSE42.so LIBCOMPLEX_LOOPS.so [n ...]

Prints nanoseconds per element, the best of several rounds, and the ratios of the peers'
times to the HA kernel's (above 1: the kernel is faster). Run with /usr/bin/python3, the
interpreter that has numpy.
"""
import ctypes
import sys
import time

import numpy as np

# row, numpy operation, arguments, real result
ROWS = [
    ("Mul", np.multiply, 2, False),
    ("Div", np.divide, 2, False),
    ("Abs", np.abs, 1, True),
    ("Exp", np.exp, 1, False),
    ("Ln", np.log, 1, False),
    ("Sqrt", np.sqrt, 1, False),
    ("Cos", np.cos, 1, False),
    ("Sin", np.sin, 1, False),
    ("Tan", np.tan, 1, False),
    ("Cosh", np.cosh, 1, False),
    ("Sinh", np.sinh, 1, False),
    ("Tanh", np.tanh, 1, False),
    ("Acos", np.arccos, 1, False),
    ("Asin", np.arcsin, 1, False),
    ("Atan", np.arctan, 1, False),
    ("Acosh", np.arccosh, 1, False),
    ("Asinh", np.arcsinh, 1, False),
    ("Atanh", np.arctanh, 1, False),
    ("Log10", np.log10, 1, False),
    ("Pow", np.power, 2, False),
]
# entry-point suffixes of the levels, by type
LEVELS = {"z": [("LA", "_50"), ("HA", "_HA"), ("EP", "_26")],
          "c": [("LA", "_21"), ("HA", "_HA"), ("EP", "_11")]}


def best_ns(fn, n, rounds=7):
    """Best time per element of fn() over rounds of enough calls to fill ~20 ms."""
    reps = 1
    while True:
        t0 = time.perf_counter()
        for _ in range(reps):
            fn()
        dt = time.perf_counter() - t0
        if dt > 0.02:
            break
        reps *= 2
    best = dt / reps
    for _ in range(rounds):
        t0 = time.perf_counter()
        for _ in range(reps):
            fn()
        best = min(best, (time.perf_counter() - t0) / reps)
    return best * 1e9 / n


def main():
    lib = ctypes.CDLL(sys.argv[1])
    loops = ctypes.CDLL(sys.argv[2])
    sizes = [int(s) for s in sys.argv[3:]] or [10000, 1000000]
    ptr = ctypes.c_void_p
    print("| row | n | LA | HA | EP | glibc loop | numpy | glibc/HA | numpy/HA |")
    print("|---|---|---|---|---|---|---|---|---|")
    for t, dtype, real in (("z", np.complex128, np.float64), ("c", np.complex64, np.float32)):
        for n in sizes:
            rng = np.random.default_rng(42)
            a = (rng.uniform(-10, 10, n) + 1j * rng.uniform(-10, 10, n)).astype(dtype)
            b = (rng.uniform(-10, 10, n) + 1j * rng.uniform(-10, 10, n)).astype(dtype)
            for name, op, arity, real_out in ROWS:
                y = np.empty(n, real if real_out else dtype)
                pa, pb, py = (ptr(v.ctypes.data) for v in (a, b, y))
                args = (ctypes.c_int(n), pa, pb, py) if arity == 2 else (ctypes.c_int(n), pa, py)
                times = {}
                # a row without kernels has null slots behind its entry points
                if not ptr.in_dll(lib, "brenn_zar_kernel_%s%s_ttab" % (t, name)).value:
                    continue
                for level, suffix in LEVELS[t]:
                    k = getattr(lib, "_zar%s%s%s" % (t, name, suffix))
                    times[level] = best_ns(lambda: k(*args), n)
                loop = getattr(loops, "Loop%s%s" % ("f" if t == "c" else "", name))
                times["glibc"] = best_ns(lambda: loop(*args), n)
                if arity == 2:
                    times["numpy"] = best_ns(lambda: op(a, b, out=y), n)
                else:
                    times["numpy"] = best_ns(lambda: op(a, out=y), n)
                print("| %s%s | %d | %.2f | %.2f | %.2f | %.2f | %.2f | %.1fx | %.1fx |" % (
                    t, name, n, times["LA"], times["HA"], times["EP"], times["glibc"],
                    times["numpy"], times["glibc"] / times["HA"], times["numpy"] / times["HA"]))
                sys.stdout.flush()


if __name__ == "__main__":
    main()
