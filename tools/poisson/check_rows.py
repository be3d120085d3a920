#!/usr/bin/python3
"""Checks the committed Cornish-Fisher rows (rng/dist/poisson_rows.cpp): each fitted
row from 1 to 6 must reach no larger a total variation distance to the Poisson pmf
over its range than the published row 0 over [1, 2) (row_model.worst, exact, with
the coefficients rounded to float). Prints each row's largest distance and exits 1
when a row exceeds row 0's. A few seconds; a ctest.

    /usr/bin/python3 tools/poisson/check_rows.py"""
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import row_model  # noqa: E402


def main():
    rows = row_model.committed_rows()
    ceiling, at = row_model.worst(rows[4], 0)
    print("row 0: largest TV %.4g at lambda %.9g" % (ceiling, at))
    failed = False
    for e in range(1, 7):
        tv, at = row_model.worst(rows[e + 4], e)
        over = tv > ceiling
        failed |= over
        print("row %d: largest TV %.4g at lambda %.9g%s" % (e, tv, at, "  ABOVE ROW 0" if over else ""))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
