#!/usr/bin/env bash
# Runs the tests of the program for Windows under Wine, on a screen of their own: unit tests, scripts without windows and on them, and the
# installed program with real keys. Installs what is missing; builds with packaging/windows/build.sh what is not up to date, and for
# Linux the program whose files are compared. Scripts in ../shared/acceptance are run too.
# What fails is run a second time, alone: under load Wine itself fails now and then. The last lines tell of what passed only then, and
# "N passed, N failed"; the status is 0 if nothing failed.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."

packaging/debian-packages.sh build
packaging/windows/build.sh
cmake --preset release >/dev/null
cmake --build --preset release --target marlbrook-figure
more=$(readlink -f ../shared/acceptance || true)
[ -d "$more" ] || more=
cmake --preset windows -DMARLBROOK_SCRIPT_FOLDERS="$more" >/dev/null

work=$(mktemp -d)
export WINEPREFIX=$work/prefix HOME=$work/home WINEDEBUG=-all WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml="
End() {
    /usr/lib/wine/wineserver64 -k || true  # all of this prefix, and nothing else
    kill "${processes[@]}" 2>/dev/null || true
    rm -rf "$work"
}
processes=()
trap End EXIT
mkdir "$HOME"
mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp -noreset 3>"$work/display" 2>/dev/null &
processes+=($!)
read -r number <"$work/display"
export DISPLAY=:$number
openbox --config-file tests/windows/openbox.xml 2>/dev/null &
processes+=($!)
/usr/lib/wine/wine64 wineboot --init >/dev/null 2>&1
/usr/lib/wine/wineserver64 -w
# What Wine itself runs, until its last program ends, would keep the output of the test that is the first to need it, and that test would not end.
/usr/lib/wine/wine64 explorer.exe /desktop </dev/null >/dev/null 2>&1 &
/usr/lib/wine/wine64 cmd /c exit </dev/null >/dev/null 2>&1  # they are there now

again=build/junit/wine-again.xml
rm -f build/junit/wine.xml "$again"
CTEST_PARALLEL_LEVEL=$(nproc) ctest --preset wine || ctest --preset wine --rerun-failed --output-junit "$PWD/$again" || true
tests/total.py wine
