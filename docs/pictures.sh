#!/usr/bin/env bash
# Makes the pictures of the manual and of the README anew, from any folder:
#     docs/pictures.sh [DRIVER]     the driver of the release build, if none is named; marlbrook-figure lies beside it
# The clock, the sheet, the screen and the letters are always the same ones: the same build makes the same bytes on any machine.
set -euo pipefail
docs=$(dirname "$(readlink -f "$0")")
driver=${1:-$docs/../build/release/bin/marlbrook-drive}
letters=/usr/share/fonts/truetype/dejavu

Fail() {
    echo "pictures.sh: $*" >&2
    exit 1
}

figure=$(dirname "$driver")/marlbrook-figure
for program in "$driver" "$figure"; do
    [ -x "$program" ] || Fail "there is no program at $program; build the release preset first"
done
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

FONTCONFIG_FILE=$work/fonts.conf MARLBROOK_BIN=$(dirname "$(readlink -f "$driver")") /usr/bin/python3 -W ignore "$docs/about_picture.py" ||
    Fail "about_picture.py made no picture of About"

DrawFigure() {  # PICTURE OPTION...
    FONTCONFIG_FILE=$work/fonts.conf "$figure" "$docs/manual/lake_core.csv" --no-tables --output "$work" --png 96 "${@:2}"
    mv "$work/lake_core.png" "$docs/pictures/$1"
}
DrawFigure figure_bars.png --zones 3
DrawFigure figure_silhouettes.png --basis subtotal-1 --marker Lycopodium --style silhouette --exaggerate 10 --names 45 --tree grimm \
    --zones auto --richness
