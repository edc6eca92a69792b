#!/usr/bin/env bash
# How much of the core the unit tests and the scripts without windows go through:
#     tests/coverage.sh              lines and branches of each folder
#     tests/coverage.sh --missing    and the lines that none of them reaches
# The build stays in build/coverage. The acceptance scripts run too where they lie beside the checkout. Needs gcovr.
set -euo pipefail
top=$(readlink -f "$(dirname "$0")/..")
build=$top/build/coverage

Fail() {
    echo "coverage.sh: $*" >&2
    exit 1
}

[[ ${1:-} == "" || $1 == --missing ]] || Fail "unknown option $1; there is --missing"
command -v gcovr >/dev/null || Fail "gcovr is not there"
cmake -S "$top" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS=--coverage \
    -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON >/dev/null
cmake --build "$build" --target unit_tests marlbrook-drive
find "$build" -name '*.gcda' -delete
"$build/bin/unit_tests" --gtest_brief=1
folders=("$top/tests/scripts")
if [ -d "$top/../shared/acceptance" ]; then folders+=("$top/../shared/acceptance"); fi
"$top/tests/run_scripts.sh" "$build/bin/marlbrook-drive" "${folders[@]}"

core=(platform session files keys taxa diagram accessories windows events drive)
gcovr --root "$top" --object-directory "$build" --exclude-throw-branches --exclude-unreachable-branches -j 2 \
    --json "$build/coverage.json" "${core[@]/#/--filter=}"
Report() { gcovr --root "$top" --add-tracefile "$build/coverage.json" --exclude-throw-branches "$@"; }
for folder in "${core[@]}"; do
    printf '%-12s' "$folder"
    Report --filter "$folder/" --print-summary --output /dev/null 2>/dev/null | sed -n 's/^\(lines\|branches\): /\1 /p' | paste -s -d ' '
done
if [ "${1:-}" = --missing ]; then Report; fi
