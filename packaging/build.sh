#!/usr/bin/env bash
# Configures and builds presets, called from any folder:
#     packaging/build.sh release sanitize
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

Fail() {
    echo "build.sh: $*" >&2
    exit 1
}

MovedSinceLastBuild() {  # a build folder knows its checkout by the full path
    local home
    home=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "build/$1/CMakeCache.txt" 2>/dev/null || true)
    [ -n "$home" ] && ! [ "$home" -ef . ]
}

for preset in "$@"; do
    { mkdir -p "build/$preset" && [ -w "build/$preset" ]; } || Fail "cannot write to $PWD/build/$preset; does it belong to somebody else?"
    afresh=()
    MovedSinceLastBuild "$preset" && afresh=(--fresh)
    cmake --preset "$preset" "${afresh[@]}" || Fail "preset $preset could not be configured; the reason stands above"
    cmake --build --preset "$preset" || Fail "preset $preset did not build; the compiler's message stands above"
done
