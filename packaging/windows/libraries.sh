#!/usr/bin/env bash
# Builds the libraries that Marlbrook takes on Windows (x86_64) into one folder, from Debian's source packages and with its mingw-w64:
#     packaging/windows/libraries.sh FOLDER
# Qt (Core, Gui, Widgets, Svg; painted by the processor, without a network), SDL2 and SDL2_mixer (waves alone). What it does meanwhile lies in
# FOLDER.work; what is done there is not done again. The source packages are those that apt finds, so it needs an entry of the type deb-src.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
mkdir -p "$1" "$1.work"
folder=$(readlink -f "$1")
export MARLBROOK_WINDOWS_SDK=$folder
cd "$folder.work"

Fail() {
    echo "libraries.sh: $*" >&2
    exit 1
}

Source() {  # the folder of a source package
    compgen -G "$1-[0-9]*/" >/dev/null || apt-get source --quiet "$1" >"$1.log" 2>&1 || Fail "no source of $1: $(tail -n 1 "$1.log")"
    compgen -G "$1-[0-9]*/" | head -n 1
}

Build() {  # source package, option...
    local package=$1 source
    shift
    ! [ -e "$package.done" ] || return 0
    source=$(Source "$package")
    {
        cmake -G Ninja -S "$source" -B "$package" "-DCMAKE_TOOLCHAIN_FILE=$here/toolchain.cmake" "-DCMAKE_INSTALL_PREFIX=$folder" \
            -DCMAKE_BUILD_TYPE=Release "$@"
        cmake --build "$package"
        cmake --install "$package" --strip
    } >"$package.log" 2>&1 || Fail "$package did not build: $(tail -n 1 "$package.log")"
    touch "$package.done"
    echo "$package is built"
}

qt=(-DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF)
Build qt6-base "${qt[@]}" -DBUILD_SHARED_LIBS=ON -DINPUT_opengl=no -DFEATURE_opengl=OFF -DFEATURE_vulkan=OFF -DFEATURE_network=OFF \
    -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_printsupport=OFF -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF -DFEATURE_tabletevent=OFF \
    -DFEATURE_testlib=OFF
Build qt6-svg "${qt[@]}"
Build libsdl2 -DSDL_STATIC=OFF -DSDL_TEST=OFF
Build libsdl2-mixer -DSDL2MIXER_SAMPLES=OFF -DSDL2MIXER_VENDORED=OFF -DSDL2MIXER_CMD=OFF -DSDL2MIXER_FLAC=OFF -DSDL2MIXER_MIDI=OFF \
    -DSDL2MIXER_MOD=OFF -DSDL2MIXER_MP3=OFF -DSDL2MIXER_OPUS=OFF -DSDL2MIXER_VORBIS=OFF
