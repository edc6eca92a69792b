#!/usr/bin/env bash
# Runs the fuzzers side by side, each for some seconds:
#     tests/fuzz/run.sh SECONDS
# open_sheet opens sheets that were spoiled at random, key_settings starts the program with spoiled key settings, script plays spoiled
# scripts. They begin with what lies in corpus/ here, with fresh sheets and with the scripts of the tests; what they learn stays in
# build/fuzz/corpus, and the next run goes on from there. Bytes that the program cannot bear are left in build/fuzz/found;
# NAME_fuzzer FILE shows them again. Ends with "N passed, N failed".
set -euo pipefail
here=$(readlink -f "$(dirname "$0")")
top=$(readlink -f "$here/../..")
build=$top/build/fuzz

Fail() {
    echo "fuzz/run.sh: $*" >&2
    exit 1
}

[[ ${1:-} =~ ^[0-9]+$ ]] || Fail "say for how many seconds"
seconds=$1
command -v clang++ >/dev/null || Fail "clang++ is not there"
cmake -S "$here" -B "$build" -G Ninja -DCMAKE_CXX_COMPILER=clang++ >/dev/null
cmake --build "$build"
"$build/make_corpus" "$build/sheets"

Fuzz() {  # NAME LENGTH FOLDER...: begins with the files in the folders, and none that it makes is longer
    local name=$1 length=$2
    shift 2
    mkdir -p "$build/corpus/$name" "$build/found" "$build/tmp/$name"
    TMPDIR=$build/tmp/$name "$build/${name}_fuzzer" -max_total_time="$seconds" -max_len="$length" -timeout=20 -rss_limit_mb=1500 \
        -dict="$here/$name.dict" -artifact_prefix="$build/found/$name-" -print_final_stats=1 -verbosity=1 \
        "$build/corpus/$name" "$here/corpus/$name" "$@" >"$build/$name.log" 2>&1
}

rm -rf "$build/tmp"
names=(open_sheet key_settings script)
Fuzz open_sheet 40000 "$build/sheets" &
runs=($!)
Fuzz key_settings 4000 &
runs+=($!)
Fuzz script 6000 "$top/tests/scripts" &
runs+=($!)

passed=0
for place in "${!names[@]}"; do
    name=${names[place]}
    if wait "${runs[place]}"; then
        echo "$name: $(sed -n 's/^stat::number_of_executed_units: *//p' "$build/$name.log") runs"
        passed=$((passed + 1))
    else
        tail -n 40 "$build/$name.log"
    fi
done
rm -rf "$build/tmp"
echo "$passed passed, $((${#names[@]} - passed)) failed"
[ "$passed" = "${#names[@]}" ]
