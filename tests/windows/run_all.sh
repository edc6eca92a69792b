#!/usr/bin/env bash
# The tests of the real window, each on a screen of its own. Ends with "N passed, N failed". They take the system's Python, which has the
# bindings for the accessible tree.
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
/usr/bin/python3 -m unittest discover -p '*_test.py' -v >"$log" 2>&1
status=$?
ran=$(sed -n 's/^Ran \([0-9]*\) tests\{0,1\} in.*/\1/p' "$log")
failed=$(grep -cE '^(FAIL|ERROR): ' "$log")
[ "${ran:-0}" -gt 0 ] || { status=1 failed=1; echo "no test was found"; }
[ "$status" = 0 ] || cat "$log"
echo "$((${ran:-0} > failed ? ran - failed : 0)) passed, $failed failed"
exit "$status"
