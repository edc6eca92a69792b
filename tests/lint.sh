#!/usr/bin/env bash
# What compilers and checkers have to say of the code, warnings as errors: a build with clang, clang-tidy on what it builds (.clang-tidy
# has its checks) and cppcheck on every C++ file, the fuzzers too:
#     tests/lint.sh              all of it
#     tests/lint.sh FOLDER...    the build, and the sources in these folders
# The build stays in build/lint. It takes about twenty minutes on two cores, so that neither ./test.sh nor CI runs it.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

packaging/debian-packages.sh test lint
packaging/build.sh lint
folders=("$@")
[ $# -gt 0 ] || mapfile -t folders < <(git ls-files '*.cpp' | cut -d/ -f1 | sort -u)
status=0
run-clang-tidy -quiet -p build/lint "${folders[@]/#/^$PWD/}" || status=1
cppcheck -j "$(nproc)" --quiet --language=c++ --std=c++20 --library=googletest,qt --enable=warning,performance,portability \
    --error-exitcode=1 --suppressions-list=tests/cppcheck.txt -I. -Itests "${folders[@]}" || status=1
exit "$status"
