#!/usr/bin/env bash
# Plays thousands of waves under the thread sanitizer, with SDL's thread that mixes them running, into nothing and into a file:
#     tests/threads/run.sh
# The build stays in build/threads. Ends with "N passed, N failed".
set -euo pipefail
here=$(readlink -f "$(dirname "$0")")
build=$(readlink -f "$here/../..")/build/threads

cmake -S "$here" -B "$build" -G Ninja >/dev/null
cmake --build "$build" >"$build/log" || { cat "$build/log"; exit 1; }
export TSAN_OPTIONS=exitcode=66
export SDL_DISKAUDIOFILE=$build/heard.raw SDL_DISKAUDIODELAY=3

PlayOn() {
    rm -f "$SDL_DISKAUDIOFILE"
    SDL_AUDIODRIVER=$1 "$build/play_waves" >"$build/$1.log" 2>&1 || return 1
    [ "$1" != disk ] || [ -s "$SDL_DISKAUDIOFILE" ] || { echo "nothing was heard" >>"$build/$1.log"; return 1; }
}

passed=0
failed=0
for driver in dummy disk; do
    if PlayOn "$driver"; then
        passed=$((passed + 1))
    else
        grep -vE '^(seed|[01] passed)' "$build/$driver.log" | head -n 80
        failed=$((failed + 1))
    fi
done
rm -f "$SDL_DISKAUDIOFILE"
echo "$passed passed, $failed failed"
[ "$failed" = 0 ]
