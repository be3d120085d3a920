"""Goodness of fit of the distribution generators.

Runs the cases of the tables cases_<family>.py beside this file (all of them, or
those named by --cases), each through the driver rng_gof_draw, and tests the
variates with scipy.stats as the oracle. A case fails below p = 1e-4. Exit status 1
when a case fails, 77 when scipy is missing.

  /usr/bin/python3 tests/rng/gof/gof.py --driver build/default/tests/rng/gof/rng_gof_draw \
      [--cases continuous] [-k Gaussian] [--n 100000]
"""
import argparse
import glob
import importlib.util
import os
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

try:
    import numpy as np
    import goflib
except ImportError as e:  # scipy or numpy missing: skipped, not failed
    print(f"gof: skipped ({e})")
    sys.exit(77)


def load_tables(names):
    paths = sorted(glob.glob(os.path.join(HERE, "cases_*.py")))
    tables = []
    for path in paths:
        stem = os.path.basename(path)[len("cases_"):-len(".py")]
        if names and stem not in names:
            continue
        module_spec = importlib.util.spec_from_file_location(f"cases_{stem}", path)
        module = importlib.util.module_from_spec(module_spec)
        module_spec.loader.exec_module(module)
        tables.append((stem, module.CASES))
    missing = set(names or ()) - {stem for stem, _ in tables}
    if missing:
        sys.exit(f"gof: no table cases_{sorted(missing)[0]}.py")
    return tables


def draw(driver, case, n):
    args = [driver, case.entry, case.precision, str(case.method), case.brng,
            str(case.seed), str(n)] + [repr(float(p)) for p in case.params]
    out = subprocess.run(args, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    if out.returncode != 0:
        raise RuntimeError(out.stderr.decode().strip() or f"driver exit {out.returncode}")
    x = np.frombuffer(out.stdout, dtype=case.dtype())
    if x.size != n:
        raise RuntimeError(f"driver wrote {x.size} of {n} variates")
    return x


def main():
    ap = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    ap.add_argument("--driver", required=True)
    ap.add_argument("--cases", action="append", help="table name (cases_NAME.py)")
    ap.add_argument("-k", dest="pattern", help="only cases whose label contains this")
    ap.add_argument("--n", type=int, help="variates a case instead of the table's")
    args = ap.parse_args()

    failed = 0
    worst = None
    count = 0
    for stem, cases in load_tables(args.cases):
        print(f"# cases_{stem}.py")
        for case in cases:
            if args.pattern and args.pattern not in case.label:
                continue
            n = args.n or case.n
            count += 1
            t0 = time.time()
            try:
                x = draw(args.driver, case, n)
                if not np.all(np.isfinite(x.astype(np.float64))):
                    raise RuntimeError("non-finite variates")
                name, stat, p = case.test(x)
            except Exception as e:  # one broken case does not hide the others
                failed += 1
                print(f"ERROR {case.label} seed={case.seed}: {e}")
                continue
            ok = p >= goflib.P_FAIL
            failed += not ok
            if worst is None or p < worst[0]:
                worst = (p, case.label)
            note = f"  {case.note(x)}" if case.note else ""
            print(f"{'ok  ' if ok else 'FAIL'} {case.label:44s} seed={case.seed:<10d} "
                  f"n={n} {name}={stat:.4g} p={p:.4f}{note}  ({time.time() - t0:.1f} s)")
    if count == 0:
        sys.exit("gof: no case matched")
    print(f"# {count} cases, {failed} failed; smallest p {worst[0]:.4g} ({worst[1]})"
          if worst else f"# {count} cases, {failed} failed")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
