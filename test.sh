#!/usr/bin/env bash
# Installs what is missing, builds Marlbrook and runs its tests:
#     ./test.sh                       everything but what follows
#     ./test.sh --quick               the unit tests and the scripts without windows
#     ./test.sh --with-spreadsheet    everything, sheets that LibreOffice saves again, and the manual's examples for pandas and R
#     ./test.sh --fuzz                everything, and a minute of sheets, key settings and scripts that were spoiled at random
# Unit tests and scripts without windows run under the address and undefined-behaviour sanitizers; whatever shows windows runs in the
# release build, as users get it. The last line is "N passed, N failed"; the status is 0 if nothing failed.
set -euo pipefail
top=$(dirname "$(readlink -f "$0")")
cd "$top"
. tests/tally.sh

Fail() {
    echo "test.sh: $*" >&2
    exit 1
}

UnitTests() {  # of this program, in the words of the other runs
    local status=0 ran ok
    local log=build/$(basename "$1").log
    QT_QPA_PLATFORM=offscreen timeout 600 "$1" --gtest_brief=1 >"$log" 2>&1 || status=$?
    ran=$(sed -n 's/^\[==========\] \([0-9]*\) tests\{0,1\} from .* ran.*/\1/p' "$log")
    ok=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) tests\{0,1\}.*/\1/p' "$log")
    [ "$status" = 0 ] || cat "$log"
    [ -n "$ran" ] && echo "${ok:-0} passed, $((ran - ${ok:-0})) failed"
    return "$status"
}

Demo() {  # what run.sh does where there is no display
    if env -u DISPLAY -u WAYLAND_DISPLAY ./run.sh >build/demo.log 2>&1; then
        echo "1 passed, 0 failed"
    else
        tail -n 30 build/demo.log
        echo "0 passed, 1 failed"
    fi
}

presets=(sanitize release)
packages=(test)
case "${1:-}" in
    "") ;;
    --quick) presets=(sanitize) ;;
    --with-spreadsheet) packages+=(spreadsheet) ;;
    --fuzz) packages+=(fuzz) ;;
    *) Fail "unknown option $1; there are --quick, --with-spreadsheet and --fuzz" ;;
esac

packaging/debian-packages.sh "${packages[@]}"  # it and the next say themselves what went wrong
packaging/build.sh "${presets[@]}"

export ASAN_OPTIONS=${ASAN_OPTIONS:-exitcode=99} UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1}
Tally "Unit tests" UnitTests build/sanitize/bin/unit_tests
Tally "Scripts" tests/run_scripts.sh build/sanitize/bin/marlbrook-drive tests/scripts
if [ "${1:-}" != --quick ]; then
    Tally "A long run" tests/long/run.sh 20000
    Tally "Unit tests of the toolkit layer" UnitTests build/release/bin/unit_tests_qt
    Tally "Scripts on windows" tests/run_scripts.sh build/release/bin/marlbrook-drive --windows tests/scripts
    Tally "Demonstration" Demo
    Tally "Packages" tests/packages/run.sh build/release
    Tally "The manual" tests/manual/run.sh build/release/bin/marlbrook-drive "${1:-}"
    Tally "The real window" tests/windows/run_all.sh
fi
if [ "${1:-}" = --with-spreadsheet ]; then
    Tally "Through a spreadsheet" tests/spreadsheet/run.sh build/release/bin/marlbrook-drive
fi
if [ "${1:-}" = --fuzz ]; then Tally "Spoiled files" tests/fuzz/run.sh 60; fi
echo "== All tests"
TallyEnd
