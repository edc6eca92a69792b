#!/usr/bin/env bash
# What compilers and checkers have to say of the code, warnings as errors: a build with clang, clang-tidy (.clang-tidy has its checks)
# and cppcheck on every source file of the project:
#     tests/lint.sh              all of it
#     tests/lint.sh FOLDER...    the build, and the sources in these folders
# The build stays in build/lint. Ends with "N passed, N failed", a file that a checker finds fault with counting as one failure. It takes
# about twenty minutes on two cores, so that ./test.sh leaves it out. Needs clang, clang-tidy and cppcheck.
set -euo pipefail
top=$(readlink -f "$(dirname "$0")/..")
build=$top/build/lint
jobs=$(nproc)
folders=("${@:-.}")
cd "$top"
. tests/tally.sh

Fail() {
    echo "lint.sh: $*" >&2
    exit 1
}

for tool in clang++ clang-tidy cppcheck; do command -v "$tool" >/dev/null || Fail "$tool is not there"; done
for folder in "${folders[@]}"; do [ -d "$folder" ] || Fail "there is no folder $folder in $top"; done

Build() {
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_EXPORT_COMPILE_COMMANDS=ON \
        -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
    if cmake --build "$build" -- -k 0 all unit_tests >"$build/log"; then
        echo "1 passed, 0 failed"
    else
        grep -E '(error|warning):' "$build/log" | sort -u
        echo "0 passed, 1 failed"
    fi
}

Sources() {  # of the project itself, in the folders asked for: what the build made is left out
    python3 - "$build" "${folders[@]}" <<'END'
import json, os, sys
build, *folders = sys.argv[1:]
places = tuple(os.path.join(os.path.realpath(folder), "") for folder in folders)
files = {entry["file"] for entry in json.load(open(build + "/compile_commands.json"))}
for file in sorted(files):
    if file.startswith(places) and not file.startswith(build): print(file)
END
}

TidyFile() {
    local said
    said=$(clang-tidy -p "$build" --quiet "$1" 2>/dev/null) && [ -z "$said" ] && return
    echo "$said"
    return 1
}

CppcheckFile() {
    cppcheck --quiet --language=c++ --std=c++20 --library=googletest,qt --enable=warning,performance,portability --error-exitcode=1 \
        --suppressions-list=tests/cppcheck.txt -I. -Itests "$1" 2>&1
}

EachFile() {  # of the project through one of the two above
    local files failures
    files=$(Sources | wc -l)
    if [ "$files" = 0 ]; then
        echo "No source in ${folders[*]} belongs to the build"
        echo "0 passed, 1 failed"
        return
    fi
    failures=$(mktemp)
    Sources | xargs -P "$jobs" -I{} bash -c '"$0" "$2" || echo "$2" >>"$1"' "$1" "$failures" {}
    failed=$(wc -l <"$failures")
    rm -f "$failures"
    echo "$((files - failed)) passed, $failed failed"
}

export build
export -f TidyFile CppcheckFile
Tally "clang" Build
Tally "clang-tidy" EachFile TidyFile
Tally "cppcheck" EachFile CppcheckFile
echo "== All"
TallyEnd
