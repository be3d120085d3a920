#!/usr/bin/env bash
# Installs what building, testing and measuring the library needs on Debian 12, as
# root. Packages already present are left alone; nothing is fetched from elsewhere.
set -euo pipefail

packages=(
  # build
  build-essential g++ clang cmake ninja-build pkg-config git ccache
  # the loader fuzzer (libFuzzer and the sanitizer runtimes of clang)
  libclang-rt-14-dev
  # tests and benchmarks
  libgtest-dev libgmock-dev libbenchmark-dev valgrind
  # runtime dependencies of the library
  libopenblas-dev liblapack-dev
  # references: correctly rounded functions, peers, generator and statistics oracles
  libmpfr-dev libmpc-dev libgmp-dev libsleef-dev libgsl-dev librandom123-dev
  python3 python3-numpy python3-scipy python3-sklearn
  # the Python package (pybind11) and its tests
  python3-dev pybind11-dev python3-pybind11 python3-pytest python3-mpmath
  # fitting of coefficients and statistical quality of generators
  sollya dieharder
  # API reference and the Debian packages (scripts/package.sh)
  doxygen dpkg-dev fakeroot file lintian
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ ${#missing[@]} -eq 0 ]; then
  echo "install-deps: everything is installed"
  exit 0
fi

if [ "$(id -u)" -ne 0 ]; then
  echo "install-deps: missing ${missing[*]}; run this script as root" >&2
  exit 1
fi

export DEBIAN_FRONTEND=noninteractive
apt-get update -q
apt-get install -y -q --no-install-recommends "${missing[@]}"
