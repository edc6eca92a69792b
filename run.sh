#!/usr/bin/env bash
# Installs what is missing, builds Marlbrook and starts it:
#     ./run.sh
# Where there is no display it plays a short counting session of two samples instead (docs/demo.drive), prints the sheet that was saved
# and tells where the sheet and the pictures of the windows lie.
set -euo pipefail
top=$(dirname "$(readlink -f "$0")")
bin=$top/build/release/bin
demo=$top/build/demo

Fail() {
    echo "run.sh: $*" >&2
    exit 1
}

Start() {
    "$bin/marlbrook" || Fail "marlbrook ended with status $?"
}

PlayDemo() {  # the script leaves its files beside itself
    rm -rf "$demo"
    mkdir -p "$demo"
    cp "$top/docs/demo.drive" "$demo/"
    echo "No display: playing docs/demo.drive"
    QT_QPA_PLATFORM=offscreen "$bin/marlbrook-drive" --windows "$demo/demo.drive" || Fail "docs/demo.drive did not play as it should"
    echo
    tr -d '\r' <"$demo/mere.csv"
    echo
    echo "The sheet above and pictures of the windows are in $demo:"
    ls "$demo"
}

"$top/packaging/debian-packages.sh" build  # it and the next say themselves what went wrong
"$top/packaging/build.sh" release
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then Start; else PlayDemo; fi
