#!/usr/bin/env bash
# Builds the library and runs the whole default test suite.
#   scripts/test.sh            release build (build/default)
#   scripts/test.sh asan       AddressSanitizer + UndefinedBehaviorSanitizer (build/asan)
#   scripts/test.sh tsan       ThreadSanitizer on the tests labelled `threads` (build/tsan)
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-default}
cmake --preset "$preset" >/dev/null
if [ "$preset" = tsan ]; then
    # The thread run takes only the tests labelled `threads`; build just their programs.
    cmake --build --preset tsan --target brenn_threads_tests
else
    cmake --build --preset "$preset"
fi
ctest --preset "$preset"
