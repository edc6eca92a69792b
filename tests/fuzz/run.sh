#!/usr/bin/env bash
# Opens sheets that were spoiled at random, for some seconds:
#     tests/fuzz/run.sh SECONDS
# What it learns stays in build/fuzz/corpus, and the next run goes on from there. A file that the program cannot bear is left in
# build/fuzz/found; open_sheet_fuzzer FILE shows it again. Ends with "N passed, N failed".
set -euo pipefail
top=$(readlink -f "$(dirname "$0")/../..")
build=$top/build/fuzz

Fail() {
    echo "fuzz/run.sh: $*" >&2
    exit 1
}

[[ ${1:-} =~ ^[0-9]+$ ]] || Fail "say for how many seconds"
command -v clang++ >/dev/null || Fail "clang++ is not there"
cmake -S "$top/tests/fuzz" -B "$build" -G Ninja -DCMAKE_CXX_COMPILER=clang++ >/dev/null
cmake --build "$build"
mkdir -p "$build/corpus" "$build/found"
"$build/make_corpus" "$build/seeds"

if "$build/open_sheet_fuzzer" -max_total_time="$1" -max_len=40000 -timeout=10 -rss_limit_mb=1024 -dict="$top/tests/fuzz/sheet.dict" \
    -artifact_prefix="$build/found/" -print_final_stats=1 -verbosity=1 "$build/corpus" "$build/seeds" >"$build/log" 2>&1; then
    grep -E '^stat::(number_of_executed_units|average_exec_per_sec)' "$build/log"
    echo "1 passed, 0 failed"
else
    tail -n 40 "$build/log"
    echo "0 passed, 1 failed"
    exit 1
fi
