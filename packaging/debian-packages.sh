#!/usr/bin/env bash
# The Debian and Ubuntu packages that Marlbrook needs, in this one place. Installs those that are missing, as root or with sudo:
#     packaging/debian-packages.sh build          what building and running take
#     packaging/debian-packages.sh test           that, and what the tests take
#     packaging/debian-packages.sh spreadsheet    what the tests take that send sheets through a spreadsheet
#     packaging/debian-packages.sh fuzz           what the fuzzers take
#     packaging/debian-packages.sh format         what the check of the format takes
#     packaging/debian-packages.sh lint           the compiler and the checkers of tests/lint.sh
#     packaging/debian-packages.sh windows        what a build for Windows takes, and what runs it
#     packaging/debian-packages.sh bench          the programs that the benchmarks compare with
# or several of these words.
set -euo pipefail

for_build=(
    g++ cmake ninja-build ccache
    qt6-base-dev    # windows, drawing, and the plug-ins for X11, for no screen and for JPEG
    qt6-svg-dev     # the drawn pictures
    qt6-wayland     # desktops without X11
    libx11-dev      # keys that are held, under X11
    libsdl2-mixer-dev
    libcli11-dev    # the arguments of marlbrook-figure
    pkgconf libxkbcommon-x11-dev libwayland-dev  # what the keys type
    fonts-dejavu-core fonts-dejavu-extra  # the second has the slanted faces, for genera
    python3-markdown  # the manual
)
for_test=(
    libgtest-dev libbenchmark-dev
    xvfb openbox python3-xlib x11-xkb-utils x11-xserver-utils python3  # the real window, with real keys on several layouts
    sway grim wl-clipboard libxkbcommon-tools                          # the same under Wayland
    dbus at-spi2-core python3-pyatspi                                  # what a screen reader finds
    libxtst-dev                                                        # keys for the benchmark of the window
    imagemagick xclip
    poppler-utils  # what is in a PDF
    dpkg-dev file debootstrap lintian devscripts desktop-file-utils appstream  # packages made, looked over and installed in a clean root
)
for_spreadsheet=(
    libreoffice-calc-nogui python3-pandas r-base-core
    r-cran-vegan        # a second source of the figure's numbers
    python3-matplotlib  # the figure's script in Python
)
for_bench=(python3-pandas python3-sklearn python3-scipy python3-matplotlib r-base-core)
for_fuzz=(clang libclang-rt-dev libgtest-dev libsdl2-mixer-dev)
for_format=(clang-format)
for_windows=(
    g++-mingw-w64-x86-64-posix cmake ninja-build ccache dpkg-dev
    qt6-base-dev qt6-svg-dev libsdl2-mixer-dev  # the toolkit's tools, and the licences
    libcli11-dev
    nsis zip googletest python3-markdown
    wine64 fonts-liberation                                            # letters about as wide as those of Windows
    xvfb openbox python3-xlib x11-xkb-utils x11-xserver-utils python3  # its tests: a screen, and real keys on several layouts
    imagemagick xclip unzip poppler-utils
)
for_lint=(clang clang-tidy cppcheck)

Fail() {
    echo "debian-packages.sh: $*" >&2
    exit 1
}

Missing() {  # those of the named packages that are not installed
    local installed package
    installed=$(dpkg-query --show --showformat '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true)
    for package in "$@"; do
        grep -qxF "$package installed" <<<"$installed" || echo "$package"
    done
}

AptGet() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get --quiet --yes -o DPkg::Lock::Timeout=300 "$@"
}

wanted=()
for purpose in "$@"; do
    case $purpose in
        build) wanted+=("${for_build[@]}") ;;
        test) wanted+=("${for_build[@]}" "${for_test[@]}") ;;
        spreadsheet) wanted+=("${for_spreadsheet[@]}") ;;
        bench) wanted+=("${for_bench[@]}") ;;
        fuzz) wanted+=("${for_fuzz[@]}") ;;
        format) wanted+=("${for_format[@]}") ;;
        windows) wanted+=("${for_windows[@]}") ;;
        lint) wanted+=("${for_lint[@]}") ;;
        *) wanted=() && break ;;
    esac
done
[ "${#wanted[@]}" -gt 0 ] || Fail "say build, test, spreadsheet, fuzz, format, lint, windows or bench"

if ! command -v apt-get >/dev/null; then
    echo "debian-packages.sh: no apt-get here, so nothing is installed; needed are: ${wanted[*]}" >&2
    exit 0
fi
mapfile -t missing < <(Missing "${wanted[@]}")
[ "${#missing[@]}" -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || Fail "needs root or sudo to install ${missing[*]}"
    as_root=(sudo)
    [ -t 0 ] || as_root+=(-n)  # nobody there to type a password
fi

echo "Installing ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
AptGet update >"$log" 2>&1 || true  # one broken source need not matter: the next step tells
if ! AptGet install --no-install-recommends "${missing[@]}" >>"$log" 2>&1; then
    reason=$(grep -E '^(E|sudo): ' "$log" | tail -n 1 || true)
    Fail "cannot install ${missing[*]}: ${reason:-$(tail -n 1 "$log")}"
fi
