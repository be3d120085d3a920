"""The best time of several runs of a function: what the numpy timing scripts of the
statistics benchmarks report for each problem."""
import time


def best(f, runs, clock=time.perf_counter):
    """`clock` may be time.process_time, for CPU time on a loaded machine."""
    t = float("inf")
    for _ in range(runs):
        t0 = clock()
        f()
        t = min(t, clock() - t0)
    return t
