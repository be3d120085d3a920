#!/usr/bin/env python3
"""Replaces the estimated cost figures in frame/rows.def by figures measured in
docs/performance.md, on the scale of the library's fixed figures.

The fixed figures (the reference rows below, the stand-by figures 220.1 to 220.3 and
the 1111 of pack and unpack) are never changed. The measured ticks an element at
n = 1000 are turned into cost figures by the median ratio of fixed figure to measured
ticks over the reference rows' slots, so that every figure in the table stays on one
scale. Slots that share a kernel get one figure, the larger. Rows without kernels
keep their estimates.

    /usr/bin/python3 bench/vecmath/update_costs.py [--dry-run]
"""
import re
import statistics
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
ROWS = ROOT / "frame" / "rows.def"
PERF = ROOT / "docs" / "performance.md"

# Rows whose three figures are the library's published reference figures.
REFERENCE = {"sCeil", "sAdd", "sInv", "sSqrt", "sExp", "sLn", "sSin", "sPow", "dExp", "dLn",
             "dSin", "dPow", "sExpm1", "dLGamma", "cAcos", "zMul", "cConj"}
STANDBY = {220.1, 220.2, 220.3, 1111.0}

ROW_RE = re.compile(r"^ROW\((\w), (\w+), (\w+), (\w+), (\w+), ([\d.]+), ([\d.]+), ([\d.]+), (\d)\)$")


def measured():
    ticks = {}
    for line in PERF.read_text().splitlines():
        cells = [c.strip() for c in line.strip().strip("|").split("|")]
        if len(cells) < 6 or cells[1] != "1000":
            continue
        try:
            ticks[cells[0]] = [float(c.split()[0]) if c else None for c in cells[2:5]]
        except ValueError:
            continue
    return ticks


def main():
    dry = "--dry-run" in sys.argv
    ticks = measured()
    lines = ROWS.read_text().splitlines()
    rows = {}
    for i, line in enumerate(lines):
        m = ROW_RE.match(line)
        if m:
            rows[m.group(1) + m.group(2)] = (i, m)
    ratios = []
    for name in REFERENCE:
        if name in ticks and name in rows:
            m = rows[name][1]
            for s in range(3):
                t = ticks[name][s]
                if t:
                    ratios.append(float(m.group(6 + s)) / t)
    if len(ratios) < 6:
        sys.exit("too few reference slots measured to set the scale")
    scale = statistics.median(ratios)
    print(f"scale: {scale:.3f} cost units a tick ({len(ratios)} reference slots)")
    changed = 0
    for name, (i, m) in rows.items():
        old = [float(m.group(6 + s)) for s in range(3)]
        if name in REFERENCE or old[0] in STANDBY or name not in ticks:
            continue
        t = ticks[name]
        if any(x is None for x in t):
            continue
        new = [round(x * scale, 2) for x in t]
        share = m.group(5)
        groups = {"All": [[0, 1, 2]], "LaHa": [[0, 1], [2]], "LaEp": [[0, 2], [1]], "Own": [[0], [1], [2]]}[share]
        for g in groups:
            top = max(new[s] for s in g)
            for s in g:
                new[s] = top
        new = [max(x, 0.01) for x in new]
        if new != old:
            changed += 1
            print(f"{name}: {old} -> {new}")
            lines[i] = (f"ROW({m.group(1)}, {m.group(2)}, {m.group(3)}, {m.group(4)}, {share}, "
                        f"{new[0]!r}, {new[1]!r}, {new[2]!r}, {m.group(9)})")
    print(f"{changed} rows changed")
    if not dry and changed:
        ROWS.write_text("\n".join(lines) + "\n")
        print("rows.def rewritten; regenerate include/brenn_vecmath_rows.h with "
              "brenn_gen_exports header include/brenn_vecmath_rows.h")


if __name__ == "__main__":
    main()
