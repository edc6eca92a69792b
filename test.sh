#!/usr/bin/env bash
# Installs what is missing, builds Marlbrook and runs its tests:
#     ./test.sh                       everything but what follows
#     ./test.sh --quick               the unit tests and the scripts without windows
#     ./test.sh --with-spreadsheet    everything, sheets that LibreOffice saves again, the manual's examples for pandas and R,
#                                    and the figure's numbers and scripts against R and Python
#     ./test.sh --fuzz                everything, and a minute of sheets, key settings and scripts that were spoiled at random
# Unit tests and scripts without windows run under the address and undefined-behaviour sanitizers; whatever shows windows runs in the
# release build, as users get it. The last line is "N passed, N failed"; the status is 0 if nothing failed.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"

packages=(test) builds=(sanitize release) tests=(core desktop)
case "${1:-}" in
    "") ;;
    --quick) builds=(sanitize) tests=(quick) ;;
    --with-spreadsheet) packages+=(spreadsheet) tests+=(spreadsheet) ;;
    --fuzz) packages+=(fuzz) builds+=(fuzz) tests+=(fuzz) ;;
    *) echo "test.sh: unknown option $1; there are --quick, --with-spreadsheet and --fuzz" >&2 && exit 1 ;;
esac

rm -rf build/junit
packaging/debian-packages.sh "${packages[@]}"  # it and the next say themselves what went wrong
packaging/build.sh "${builds[@]}"
for preset in "${tests[@]}"; do
    CTEST_PARALLEL_LEVEL=$(nproc) ctest --preset "$preset" || true  # its failures are in the total
done
tests/total.py "${tests[@]}"
