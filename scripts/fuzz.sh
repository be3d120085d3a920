#!/usr/bin/env bash
# Builds the stream-loader fuzzer with Clang in build/fuzz and runs it for
# BRENN_FUZZ_SECONDS seconds (default 90) from a freshly written seed corpus: images
# of every registered family, built or not, and pairs of images in one process.
# Needs clang and clang++ (libFuzzer, AddressSanitizer). Exits non-zero on a finding;
# the reproducer is left in build/fuzz/fuzz-findings (crash-*, leak-*, oom-*, timeout-*).
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${BRENN_FUZZ_SECONDS:-90}
CXX=clang++ CC=clang cmake --preset default -B build/fuzz -DBRENN_SUBSYSTEMS=rng \
  -DBRENN_FUZZ=ON -DBRENN_FUZZ_SECONDS="$seconds" -DBRENN_BENCH=OFF -DBRENN_TOOLS=OFF >/dev/null
cmake --build build/fuzz -j2 --target rng_load_fuzz_run
