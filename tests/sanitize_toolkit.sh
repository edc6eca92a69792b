#!/usr/bin/env bash
# The unit tests of the toolkit layer under the address and undefined-behaviour sanitizers:
#     tests/sanitize_toolkit.sh
# The build stays in build/sanitize-toolkit. Ends with "N passed, N failed". What the toolkit itself keeps to its end is no leak of ours.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

packaging/build.sh sanitize-toolkit >/dev/null
log=build/sanitize-toolkit/log
if ASAN_OPTIONS=detect_leaks=0 QT_QPA_PLATFORM=offscreen timeout 600 build/sanitize-toolkit/bin/unit_tests_qt --gtest_brief=1 >"$log" 2>&1; then
    echo "$(sed -n 's/^\[  PASSED  \] \([0-9]*\) tests\{0,1\}.*/\1/p' "$log") passed, 0 failed"
else
    cat "$log"
    echo "0 passed, 1 failed"
    exit 1
fi
