#!/usr/bin/env bash
# Runs build/release/bin/window_bench [TASK [ACTS]] on a screen of its own, with a sound device that nobody hears.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
export SDL_AUDIODRIVER=dummy
xvfb-run --auto-servernum --server-args="-screen 0 1920x1200x24" \
    bash -c 'openbox & manager=$!; build/release/bin/window_bench "$@"; status=$?; kill $manager; exit $status' window_bench "$@"
