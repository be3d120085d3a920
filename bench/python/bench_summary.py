"""brenn.stats.summary (mean and covariance) of 10^6 x 32 float64 beside numpy.cov, in
one run (best of several rounds), by wall time and by process CPU time (every
thread's), with the library's pool and on one thread. On a shared machine the wall
time wanders with the load; the CPU time shows what the pools' threads cost (numpy's
product runs on its BLAS's threads).

Run:  PYTHONPATH=build/default/python /usr/bin/python3 bench/python/bench_summary.py [--quick]
Ratios are numpy's time over ours (target 1.5x by wall time, as bench_python.py)."""
import sys
import time

import numpy as np

import brenn


def best_wall_and_cpu(f, rounds):
    wall, cpu = [], []
    for _ in range(rounds):
        t, c = time.perf_counter(), time.process_time()
        f()
        wall.append(time.perf_counter() - t)
        cpu.append(time.process_time() - c)
    return min(wall), min(cpu)


def main():
    quick = "--quick" in sys.argv
    rounds = 3 if quick else 9
    x = np.random.default_rng(1).standard_normal((2 * 10**5 if quick else 10**6, 32))
    print(f"{x.shape[0]} x 32; numpy {np.__version__}")
    print("| threads | ours wall ms | ours CPU ms | numpy wall ms | numpy CPU ms | wall ratio | CPU ratio |")
    print("|---|---|---|---|---|---|---|")
    for limit, label in ((0, "pool"), (1, "one")):
        old = brenn.set_num_threads(limit)
        ours = best_wall_and_cpu(lambda: brenn.stats.summary(x, estimates=("mean", "covariance")),
                                 rounds)
        brenn.set_num_threads(old)
        peer = best_wall_and_cpu(lambda: np.cov(x, rowvar=False), rounds)
        print(f"| {label} | {ours[0] * 1e3:.0f} | {ours[1] * 1e3:.0f} | {peer[0] * 1e3:.0f} | "
              f"{peer[1] * 1e3:.0f} | {peer[0] / ours[0]:.2f}x | {peer[1] / ours[1]:.2f}x |")


if __name__ == "__main__":
    main()
