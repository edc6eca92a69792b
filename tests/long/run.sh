#!/usr/bin/env bash
# What takes long, built when asked for:
#     tests/long/run.sh [KEYS]         a session of so many random keys (20000) under the sanitizers, with all that analysts do between them
#     tests/long/run.sh --power-cut    three hundred processes killed while they save and back up
#     tests/long/run.sh --large-files  files of six and of sixty megabytes
# BUILD names another build folder than build/sanitize or, for the last two, build/release. Ends with "N passed, N failed".
set -euo pipefail
top=$(readlink -f "$(dirname "$0")/../..")

Fail() {
    echo "long/run.sh: $*" >&2
    exit 1
}

case "${1:-20000}" in
    --power-cut) preset=release run=(power_cut 300) ;;
    --large-files) preset=release run=(large_files) ;;
    *[!0-9]* | 0) Fail "say how many keys, --power-cut or --large-files" ;;
    *) preset=sanitize run=(long_run "${1:-20000}") ;;
esac
build=$(readlink -f "${BUILD:-$top/build/$preset}") || Fail "there is no build folder; packaging/build.sh $preset makes it"
[ -f "$build/CMakeCache.txt" ] || Fail "$build holds no build; packaging/build.sh $preset makes one"
cmake --build "$build" --target "${run[0]}" >/dev/null || Fail "${run[0]} did not build in $build"

if "$build/bin/${run[0]}" "${run[@]:1}"; then
    echo "1 passed, 0 failed"
else
    echo "0 passed, 1 failed"
    exit 1
fi
