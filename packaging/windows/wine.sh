#!/bin/sh
# Runs a program for Windows under Wine:
#     wine.sh PREFIX PROGRAM [ARGUMENT...]
# What it takes for the computer is the folder PREFIX, unless WINEPREFIX names another.
export WINEPREFIX="${WINEPREFIX:-$1}" WINEDEBUG="${WINEDEBUG:--all}"
shift
exec /usr/lib/wine/wine64 "$@"
