#!/usr/bin/env bash
# Builds Marlbrook for Windows (x86_64) on Debian 12: the programs, the driver and their tests in build/windows, and two packages beside them,
# Marlbrook-VERSION-setup.exe and Marlbrook-VERSION-windows.zip.
# The libraries are those in the folder that MARLBROOK_WINDOWS_SDK names, or in build/windows-sdk, where ../shared/windows/sdk.tar.xz is
# unpacked if it is there; else libraries.sh makes them from Debian's source packages, which takes most of an hour and, for apt to find
# them, an entry of the type deb-src.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."

Fail() {
    echo "packaging/windows/build.sh: $*" >&2
    exit 1
}

packaging/debian-packages.sh windows
export MARLBROOK_WINDOWS_SDK=${MARLBROOK_WINDOWS_SDK:-$PWD/build/windows-sdk}
if ! [ -e "$MARLBROOK_WINDOWS_SDK/bin/SDL2_mixer.dll" ]; then  # the last that libraries.sh makes
    mkdir -p "$MARLBROOK_WINDOWS_SDK"
    if [ -e ../shared/windows/sdk.tar.xz ]; then
        tar xf ../shared/windows/sdk.tar.xz -C "$MARLBROOK_WINDOWS_SDK"
    else
        packaging/windows/libraries.sh "$MARLBROOK_WINDOWS_SDK"
    fi
fi

packaging/build.sh windows
installed=$(mktemp -d)
trap 'rm -rf "$installed"' EXIT
cd build/windows
rm -f Marlbrook-*-setup.exe Marlbrook-*-windows.zip  # of another version
cmake --install . --prefix "$installed" --strip >/dev/null
(  # what the setup takes away again, and nothing else
    cd "$installed"
    list=share/marlbrook/laid_down.txt
    touch "$list"
    { find . -type f -printf '%P\n' && find . -mindepth 1 -depth -type d -printf '%P\n'; } | tr / '\\' >"$list.new"
    mv "$list.new" "$list"
)
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' CMakeCache.txt)
makensis -V2 -DVERSION="$version" -DFOLDER="$installed" -DICON="$PWD/../../install/icons/marlbrook.ico" \
    -DOUTPUT="$PWD/Marlbrook-$version-setup.exe" ../../packaging/windows/setup.nsi || Fail "the setup could not be made"
cpack -G ZIP >/dev/null || Fail "the folder could not be packed"
ls -l "Marlbrook-$version-setup.exe" "Marlbrook-$version-windows.zip"
