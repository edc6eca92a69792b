#!/usr/bin/env bash
# Sheets go through LibreOffice and come back:
#     tests/spreadsheet/run.sh DRIVER
# Ends with "N passed, N failed".
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")

Fail() {
    echo "spreadsheet/run.sh: $*" >&2
    exit 1
}

[ -x "${1:-}" ] || Fail "say DRIVER"
driver=$(readlink -f "$1")
command -v soffice >/dev/null || Fail "soffice is not there"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
export LC_ALL=C.UTF-8
passed=0
failed=0

Check() {  # what is so, command
    local status=0
    "${@:2}" >said 2>&1 || status=$?
    if [ "$status" = 0 ]; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAILED: $1"
        tail -n 20 said | sed 's/^/    /'
    fi
}

Make() {  # script: a new folder in which that script has left its sheet
    rm -rf sheet
    mkdir sheet
    cp "$here/$1" "$here/read.drive" "$here/changed.drive" sheet/
    "$driver" "sheet/$1"
}

# The spreadsheet opens sheet/sheet.csv and saves it again: comma, quotation mark, encoding, from the first row, language; in the end
# whether quoted cells are texts and numbers are looked for in all forms, and whether all texts are quoted.
Resave() {  # encoding (1: Windows-1252, 76: UTF-8), language, quoted cells are texts, find all numbers, quote all texts
    local filter="Text - txt - csv (StarCalc)"
    HOME=$work timeout 100 soffice -env:UserInstallation="file://$work/profile" --headless --infilter="$filter:44,34,$1,1,,$2,$3,$4" \
        --convert-to "csv:$filter:44,34,$1,1,,$2,$5" --outdir "$work/saved" "$work/sheet/sheet.csv" || return
    mv saved/sheet.csv sheet/sheet.csv
}

Read() {  # the sheet, whichever way its notes break their lines
    "$driver" sheet/read.drive >dump || return
    sed 's/\\r\\n/\\n/g' dump
}

SameSheet() {  # script, then as Resave
    Make "$1" && Read >before && Resave "${@:2}" && Read >after && diff before after
}

SameBytes() {  # but for the ends of lines
    Make "$1" && tr -d '\r' <sheet/sheet.csv >before && Resave "${@:2}" && tr -d '\r' <sheet/sheet.csv >after && cmp before after
}

Changed() {
    Make odd.drive && Resave 76 1033 false true false && "$driver" sheet/changed.drive
}

for language in 1033 1031 1036; do  # English, German, French
    Check "a plain sheet comes back without quotes (language $language)" SameSheet plain.drive 1 "$language" false false false
    Check "a plain sheet comes back with quotes (language $language)" SameSheet plain.drive 1 "$language" false false true
    Check "quoted cells read as texts come back as they were (language $language)" SameSheet odd.drive 76 "$language" true true true
done
Check "the file comes back as it was but for its line ends" SameBytes odd.drive 76 1033 true true true
Check "what the spreadsheet changes opens all the same" Changed

echo "$passed passed, $failed failed"
[ "$failed" = 0 ]
