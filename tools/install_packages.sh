#!/bin/sh
# Installs those of the named groups' Debian packages that are missing: build, test, check, fuzz,
# demo, package, gallery, assets.
set -eu

packages=""
for group in "$@"; do
    case "$group" in
    build) packages="$packages g++ cmake ninja-build pkg-config libsdl1.2-dev libglew-dev
        libgl-dev libx11-dev libglu1-mesa-dev libftgl-dev libfreetype-dev libloki-dev libboost-dev
        libboost-filesystem-dev libopenal-dev libsndfile1-dev libmpg123-dev
        libgl1-mesa-dri" ;;
    test) packages="$packages libgtest-dev clang-format xvfb" ;;
    check) packages="$packages clang-tidy cppcheck" ;;
    fuzz) packages="$packages clang libclang-rt-14-dev" ;;
    demo) packages="$packages xvfb xdotool imagemagick" ;;
    package) packages="$packages dpkg-dev file" ;;
    gallery) packages="$packages xvfb xauth imagemagick optipng gifsicle python3" ;;
    assets) packages="$packages python3-fonttools python3-shapely" ;;
    *) echo "install_packages.sh: no such group: $group" >&2; exit 2 ;;
    esac
done

# The compatibility library's headers do as well.
if dpkg-query -W -f '${db:Status-Status}' libsdl1.2-compat-dev 2>/dev/null | grep -qx installed; then
    packages=$(echo "$packages" | sed 's/libsdl1.2-dev//')
fi

# shellcheck disable=SC2086 # a list of words
installed=$(dpkg-query -W -f ' ${Package}=${db:Status-Status} ' $packages 2>/dev/null || true)
missing=""
for package in $packages; do
    case $installed in
    *" $package=installed "*) ;;
    *) missing="$missing $package" ;;
    esac
done
[ -n "$missing" ] || exit 0

echo "Installing:$missing"
as_root=""
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Please install these packages as root first." >&2; exit 1; }
    as_root=sudo
fi
export DEBIAN_FRONTEND=noninteractive
$as_root apt-get update -qq
# shellcheck disable=SC2086 # a list of words
$as_root apt-get install -y -qq --no-install-recommends $missing >/dev/null
