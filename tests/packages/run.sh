#!/usr/bin/env bash
# Makes the packages of a build folder and uses them as people would, in a clean root of this Debian or Ubuntu:
#     tests/packages/run.sh build/release
# As root or with sudo. The smallest system and the packages fetched for it are kept in the build folder's clean_root, so that a second
# run is quick. Ends with "N passed, N failed".
set -euo pipefail
build=$(readlink -f "${1:?"say which build folder"}")
here=$(dirname "$(readlink -f "$0")")
kept=$build/clean_root

if [ "$(id -u)" != 0 ]; then
    nobody_types=()
    [ -t 0 ] || nobody_types=(-n)
    exec sudo "${nobody_types[@]}" "$0" "$build"
fi

mkdir -p "$kept"
rm -rf "$kept/unfinished"  # nothing is mounted below it out here: mounts live and die with the namespace of the test
unshare --mount --propagation private /usr/bin/python3 "$here/packages_test.py" "$build"
