#!/usr/bin/env bash
# Makes the pictures of the manual and of the README anew, from any folder:
#     docs/pictures.sh [DRIVER]     the driver of the release build, if none is named
# The clock, the sheet, the screen and the letters are always the same ones: the same build makes the same bytes on any machine.
set -euo pipefail
docs=$(dirname "$(readlink -f "$0")")
driver=${1:-$docs/../build/release/bin/marlbrook-drive}
letters=/usr/share/fonts/truetype/dejavu

Fail() {
    echo "pictures.sh: $*" >&2
    exit 1
}

[ -x "$driver" ] || Fail "there is no driver at $driver; build the release preset first"
[ -f "$letters/DejaVuSans-Oblique.ttf" ] || Fail "the letters of the pictures are not in $letters; install fonts-dejavu-core and fonts-dejavu-extra"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/letters"
cp "$letters"/DejaVuSans{,-Bold,-Oblique,-BoldOblique}.ttf "$work/letters/"
cat >"$work/fonts.conf" <<END
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><dir>$work/letters</dir><cachedir>$work/cache</cachedir></fontconfig>
END

mkdir -p "$docs/pictures"
if ! FONTCONFIG_FILE=$work/fonts.conf QT_QPA_PLATFORM=offscreen "$driver" --windows "$docs/pictures.drive" >"$work/said" 2>&1; then
    grep -v '^This plugin does not support' "$work/said" >&2
    Fail "docs/pictures.drive did not play as it should"
fi
