#!/usr/bin/env bash
# The manual tells what is so: its words stand in the program, its pages cover every window and message, its links lead somewhere, its
# days play as it tells them, and its examples print what they promise:
#     tests/manual/run.sh DRIVER                       all but what follows
#     tests/manual/run.sh DRIVER --with-spreadsheet    and the examples for pandas and R, which are large to install
# Ends with "N passed, N failed".
set -uo pipefail
[ -x "${1:-}" ] || { echo "manual/run.sh: say DRIVER" >&2; exit 1; }
DRIVER=$(readlink -f "$1")
[ "${2:-}" = --with-spreadsheet ] && export WITH_TOOLS=yes
export DRIVER LC_ALL=C.UTF-8 PYTHONDONTWRITEBYTECODE=1
cd "$(dirname "$(readlink -f "$0")")" || exit
log=$(mktemp)
trap 'rm -f "$log"' EXIT
/usr/bin/python3 -m unittest discover -p '*_test.py' -v >"$log" 2>&1
status=$?
ran=$(sed -n 's/^Ran \([0-9]*\) tests\{0,1\} in.*/\1/p' "$log")
failed=$(sed -nE 's/^(FAIL|ERROR): ([^ ]*).*/\2/p' "$log" | sort -u | wc -l)  # a test can fail in several places
skipped=$(grep -c '\.\.\. skipped ' "$log")
[ "$status" = 0 ] || cat "$log"
echo "$((${ran:-0} - failed - skipped)) passed, $failed failed"
exit "$status"
