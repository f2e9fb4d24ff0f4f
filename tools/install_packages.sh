#!/bin/sh
# Installs those of the named groups' Debian packages that are missing: build, test, web, webtest,
# check, fuzz, demo, package, portable, gallery, assets, report. Of "one|other" one will do: the one
# that is installed, else the first that this release has. "one|" is left out where the release
# hasn't got it.
set -eu

if ! command -v apt-get >/dev/null; then
    exec "$(dirname "$0")/find_libraries.sh" "$@"
fi

# The number in the names of the compiler that `clang` stands for here.
clang_version() {
    apt-cache depends clang 2>/dev/null | sed -n 's/.*Depends: clang-\([0-9]*\)$/\1/p' | head -n 1
}

packages=""
for group in "$@"; do
    case "$group" in
    build) packages="$packages g++ cmake ninja-build pkgconf|pkg-config
        libsdl1.2-dev|libsdl1.2-compat-dev libglew-dev libgl-dev libx11-dev libglu1-mesa-dev
        libftgl-dev libfreetype-dev libloki-dev| libboost-dev libboost-filesystem-dev zlib1g-dev
        libopenal-dev libsndfile1-dev libmpg123-dev libgl1-mesa-dri" ;;
    test) packages="$packages libgtest-dev libmpfr-dev clang-format xvfb xdotool python3" ;;
    web) packages="$packages emscripten node-pako g++ cmake ninja-build pkgconf|pkg-config
        libsdl1.2-dev|libsdl1.2-compat-dev libglew-dev libftgl-dev libfreetype-dev libboost-dev
        zlib1g-dev libsndfile1-dev libmpg123-dev sndfile-programs python3" ;;
    webtest) packages="$packages chromium firefox-esr xvfb xauth"
        command -v npm >/dev/null || packages="$packages npm" ;; # node's own packages bring it
    check) packages="$packages clang-tidy cppcheck" ;;
    fuzz) packages="$packages clang libclang-rt-$(clang_version)-dev" ;;
    demo) packages="$packages xvfb xdotool imagemagick" ;;
    package) packages="$packages build-essential debhelper dpkg-dev" ;;
    portable) packages="$packages patchelf xz-utils" ;;
    gallery) packages="$packages xvfb xauth imagemagick optipng gifsicle python3" ;;
    report) packages="$packages libbenchmark-dev xvfb python3" ;;
    assets) packages="$packages python3-fonttools python3-shapely" ;;
    *) echo "install_packages.sh: no such group: $group" >&2; exit 2 ;;
    esac
done

# shellcheck disable=SC2046 # a list of words
installed=$(dpkg-query -W -f ' ${Package}=${db:Status-Status} ' \
    $(echo "$packages" | tr '|' ' ') 2>/dev/null || true)
is_known() { apt-cache show "$1" 2>/dev/null | grep -q .; }
have_lists() { [ -n "$(find /var/lib/apt/lists -name '*_Packages*' -print -quit)" ]; }

missing=""
for choice in $packages; do
    for package in $(echo "$choice" | tr '|' ' '); do
        case $installed in
        *" $package=installed "*) continue 2 ;;
        esac
    done
    case $choice in
    *"|") if have_lists && ! is_known "${choice%"|"}"; then continue; fi ;;
    esac
    missing="$missing $choice"
done
[ -n "$missing" ] || exit 0

as_root=""
if [ "$(id -u)" -ne 0 ]; then
    as_root=sudo
    if ! command -v sudo >/dev/null; then
        echo "As root, please: apt-get install$(echo "$missing" | sed 's/|[^ ]*//g')" >&2
        exit 1
    fi
fi

# Waits while another program has one of apt's locks, an automatic update for example. By itself
# apt-get waits for dpkg's alone, and says nothing about it.
patience=300 # seconds
errors=$(mktemp)
trap 'rm -f "$errors"' EXIT
run_apt() { # arguments of apt-get
    until="" left=0
    while :; do
        code=0
        $as_root env DEBIAN_FRONTEND=noninteractive LC_ALL=C \
            apt-get -qq -o DPkg::Lock::Timeout=$left "$@" >/dev/null 2>"$errors" || code=$?
        if [ "$code" -eq 0 ] || ! grep -q 'Could not get lock' "$errors"; then break; fi
        if [ -z "$until" ]; then
            holder=$(sed -n 's/.*held by \(process .*)\).*/\1/p' "$errors")
            minutes=$((patience / 60))
            echo "apt is busy: waits for ${holder:-another program}, up to $minutes minutes."
            until=$(($(date +%s) + patience))
        fi
        left=$((until - $(date +%s)))
        [ $left -gt 0 ] || break
        sleep 1
    done
    cat "$errors" >&2
    return "$code"
}
run_apt update

chosen=""
for choice in $missing; do
    for package in $(echo "$choice" | tr '|' ' '); do
        if is_known "$package"; then
            chosen="$chosen $package"
            continue 2
        fi
    done
    case $choice in
    *"|") ;;
    *) chosen="$chosen ${choice%%|*}" ;; # apt says that there is none
    esac
done
[ -n "$chosen" ] || exit 0
echo "Installing:$chosen"
# shellcheck disable=SC2086 # a list of words
run_apt install -y --no-install-recommends $chosen
