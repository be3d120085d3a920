"""The best time of several runs of a function: what the numpy timing scripts of the
statistics benchmarks report for each problem."""
import time


def best(f, runs):
    t = float("inf")
    for _ in range(runs):
        t0 = time.perf_counter()
        f()
        t = min(t, time.perf_counter() - t0)
    return t
