"""brenn.vm on operands that are not contiguous arrays of the result's shape, in one
run (best of several rounds): the package's walk in blocks through buffers against
expanding the operands with numpy first (numpy.ascontiguousarray of the broadcast
view, then the in-place path), with numpy's own ufunc beside them; and the in-place
path against numpy on contiguous operands.

Run:  PYTHONPATH=build/default/python /usr/bin/python3 bench/python/bench_vm_layouts.py [--quick]
Ratios are the other's time over the walk's: above 1, the walk is faster."""
import sys

import numpy as np

from bench_python import best  # beside this script
from brenn import vm


def expanded(*ops):
    shape = np.broadcast_shapes(*[np.shape(a) for a in ops])
    return [np.ascontiguousarray(np.broadcast_to(a, shape)) for a in ops]


def main():
    quick = "--quick" in sys.argv
    rounds = 3 if quick else 9
    m = 500 if quick else 1000
    rng = np.random.default_rng(5)
    col, row = rng.uniform(0.5, 2, (m, 1)), rng.uniform(0.5, 2, (1, m))
    flat = rng.uniform(-5, 5, 2 * m * m)
    square = rng.uniform(-5, 5, (m, m))
    cases = [
        ("add (m,1) + (1,m)", vm.add, np.add, (col, row)),
        ("pow (m,1) ** (1,m)", vm.pow, np.power, (col, row)),
        ("add (m*m,) + Python float", vm.add, np.add, (flat[: m * m], 2.5)),
        ("exp a[::2]", vm.exp, np.exp, (flat[::2],)),
        ("exp a[::-1]", vm.exp, np.exp, (flat[::-1],)),
        ("exp Fortran (m,m)", vm.exp, np.exp, (np.asfortranarray(square),)),
        ("exp square.T[::2]", vm.exp, np.exp, (square.T[::2],)),
        ("mul a[::2] * b[::-2]", vm.mul, np.multiply, (flat[::2], flat[::-2])),
    ]
    print(f"m = {m}; numpy {np.__version__}")
    print("| case | walk ms | expand ms | numpy ms | expand / walk | numpy / walk |")
    print("|---|---|---|---|---|---|")
    for name, ours, peer, ops in cases:
        walk = best(lambda: ours(*ops), rounds)
        expand = best(lambda: ours(*expanded(*ops)), rounds)
        theirs = best(lambda: peer(*ops), rounds)
        print(f"| {name} | {walk * 1e3:.2f} | {expand * 1e3:.2f} | {theirs * 1e3:.2f} | "
              f"{expand / walk:.2f}x | {theirs / walk:.2f}x |")
    a = rng.uniform(-700, 700, 10**6)
    out = np.empty_like(a)
    ours = best(lambda: vm.exp(a, out=out), rounds * 3)
    theirs = best(lambda: np.exp(a, out=out), rounds * 3)
    print(f"| exp 10^6 contiguous (in place) | {ours * 1e3:.2f} | | {theirs * 1e3:.2f} | | "
          f"{theirs / ours:.2f}x |")


if __name__ == "__main__":
    main()
