#!/usr/bin/env bash
# Runs every script (*.drive) in some folders and below, two at a time, a minute each at most:
#     tests/run_scripts.sh DRIVER [--windows] FOLDER...
# Prints what failing scripts said and ends with "N passed, N failed".
#
# Two lists bear on scripts in a folder named acceptance, a line each: the path from that folder, blanks, and why.
#     tests/acceptance-exceptions.txt    not run: a ground that will not go away
#     tests/acceptance-later.txt         run, and expected to fail until what it shows is built; one that passes must leave the list
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")

Fail() {
    echo "run_scripts.sh: $*" >&2
    exit 1
}

[ $# -ge 2 ] || Fail "say DRIVER [--windows] FOLDER..."
driver=$1
shift
mode=()
if [ "${1:-}" = --windows ]; then
    mode=(--windows)
    export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
    shift
fi
[ -x "$driver" ] || Fail "there is no driver $driver"
for folder in "$@"; do
    [ -d "$folder" ] || Fail "there is no folder $folder"
    [ -n "$(find "$(readlink -f "$folder")" -name '*.drive' -type f -print -quit)" ] || Fail "there is no script in $folder"
done

results=$(mktemp -d)
trap 'rm -rf "$results"' EXIT
mkdir "$results/tmp"
export TMPDIR=$results/tmp  # a driver that is stopped leaves its folders here

RunScript() {  # its outcome goes to $results/PLACE.status, what it said to $results/PLACE.said
    local place=$1 status=0
    timeout --kill-after=5 60 "$driver" "${mode[@]}" "${scripts[place]}" >"$results/$place.said" 2>&1 </dev/null || status=$?
    echo "$status" >"$results/$place.status"
}

Names() { sed -e 's/#.*//' -e 's/^[[:space:]]*//' -e 's/[[:space:]].*//' -e '/^$/d' "$1" 2>/dev/null || true; }
declare -A list_of=()  # path from the acceptance folder -> exceptions, later
for list in exceptions later; do
    while read -r name; do list_of[$name]=$list; done < <(Names "$here/acceptance-$list.txt")
done
ListOf() {
    if [[ $1 == */acceptance/* ]]; then echo "${list_of[${1##*/acceptance/}]:-}"; fi
}

scripts=()
excepted=0
while IFS= read -r script; do
    if [ "$(ListOf "$script")" = exceptions ]; then excepted=$((excepted + 1)); else scripts+=("$script"); fi
done < <(for folder in "$@"; do find "$(readlink -f "$folder")" -name '*.drive' -type f; done | sort)

running=0
for place in "${!scripts[@]}"; do
    if [ "$running" = 2 ]; then
        wait -n
        running=1
    fi
    RunScript "$place" &
    running=$((running + 1))
done
wait

passed=0
failed=0
later=0
Failed() {  # script, what went wrong
    failed=$((failed + 1))
    echo "FAILED $1: $2"
}
for place in "${!scripts[@]}"; do
    script=${scripts[place]}
    status=$(cat "$results/$place.status")
    if [ "$(ListOf "$script")" = later ]; then
        if [ "$status" = 0 ]; then Failed "$script" "listed as later but passes"; else later=$((later + 1)); fi
    elif [ "$status" = 0 ]; then
        passed=$((passed + 1))
    else
        case $status in
            1) what="expectations missed" ;;
            2) what="the script could not go on" ;;
            124 | 137) what="took longer than a minute" ;;
            *) what="the driver ended with status $status" ;;
        esac
        Failed "$script" "$what"
        sed 's/^/    /' "$results/$place.said" | tail -n 60
    fi
done
for folder in "$@"; do
    [[ $(readlink -f "$folder") == */acceptance ]] || continue
    for name in "${!list_of[@]}"; do
        [ -e "$folder/$name" ] || Failed "$name" "stands in acceptance-${list_of[$name]}.txt, but there is no such script"
    done
done
[ "$excepted" = 0 ] || echo "$excepted not run (acceptance-exceptions.txt)"
[ "$later" = 0 ] || echo "$later still fail as expected (acceptance-later.txt)"
echo "$passed passed, $failed failed"
[ "$failed" = 0 ]
