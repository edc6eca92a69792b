#!/usr/bin/env bash
# Measures Marlbrook and writes docs/benchmarks.md anew, from any folder. It takes about five minutes; nothing else should run meanwhile.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"

packaging/debian-packages.sh test bench
packaging/build.sh release
cmake --build --preset release --target sheet_bench desktop_bench bare_window window_bench
exec /usr/bin/python3 bench/report.py
