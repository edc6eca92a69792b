#!/usr/bin/env bash
# The tests of the real window, on a desk of X11 and on one of Wayland, or on one of them alone:
#     tests/windows/run_all.sh [x11|wayland]
# Two files of tests run side by side, each with screens, buses and programs of its own. They take the system's Python, which has the
# bindings for the accessible tree. Ends with "N passed, N failed".
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")"
# Other layouts, frames and places that a user chooses are of X11 alone.
on_both=(diagram_test held_keys_test count_test every_key_test dialogs_test sound_device_test first_run_test unfolding_test accessibility_test)
logs=$(mktemp -d)
trap 'rm -rf "$logs"' EXIT
export logs

FilesOn() {  # a desk: the lines "desk file"
    case $1 in
        x11) basename -s .py -a ./*_test.py | sed 's/^/x11 /' ;;
        wayland) printf 'wayland %s\n' "${on_both[@]}" ;;
        *) echo "run_all.sh: there is no desk $1" >&2 ;;
    esac
}

RunFile() {  # desk, file
    MARLBROOK_DESK=$1 /usr/bin/python3 -W ignore -m unittest -v "$2" >"$logs/$1 $2" 2>&1
}
export -f RunFile

[ $# -gt 0 ] || set -- x11 wayland
for desk in "$@"; do FilesOn "$desk"; done | xargs -P 2 -L 1 bash -c 'RunFile "$1" "$2"' RunFile

passed=0 failed=0
for log in "$logs"/*; do
    ran=$(sed -n 's/^Ran \([0-9]*\) tests\{0,1\} in.*/\1/p' "$log")
    wrong=$(grep -cE '^(FAIL|ERROR): ' "$log")
    [ "${ran:-0}" -gt 0 ] || wrong=1 ran=1  # no test in it, or it broke off
    [ "$wrong" = 0 ] || { echo "== ${log##*/}" && cat "$log"; }
    passed=$((passed + ran - wrong)) failed=$((failed + wrong))
done
echo "$passed passed, $failed failed"
[ "$passed" -gt 0 ] && [ "$failed" = 0 ]
