#!/usr/bin/env bash
# Runs the Python package's tests (pytest) against the package in the build tree
# given. Exits 77 (CTest's skip) with a message saying what is missing when the
# interpreter, numpy, scipy, mpmath, pytest or the built module is absent, so that a
# machine without them reports the tests skipped rather than passed.
set -uo pipefail
pkg_root=$1
here=$(cd "$(dirname "$0")" && pwd)
python=/usr/bin/python3
if [ ! -x "$python" ]; then
  echo "python tests SKIPPED: $python is missing (bash scripts/install-deps.sh)"
  exit 77
fi
for mod in numpy scipy mpmath pytest; do
  if ! "$python" -c "import $mod" 2>/dev/null; then
    echo "python tests SKIPPED: the Python module $mod is missing (bash scripts/install-deps.sh)"
    exit 77
  fi
done
if ! ls "$pkg_root"/brenn/_brenn*.so >/dev/null 2>&1; then
  echo "python tests SKIPPED: brenn._brenn was not built in $pkg_root (needs pybind11-dev and python3-dev)"
  exit 77
fi
export PYTHONPATH=$pkg_root${PYTHONPATH:+:$PYTHONPATH}
export PYTHONDONTWRITEBYTECODE=1
cd "$here" && exec "$python" -m pytest -q -p no:cacheprovider "$here"
