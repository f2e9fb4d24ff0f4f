#!/bin/sh
# Builds KOV, if need be with the packages that it takes, and starts it. Arguments go to the game.
set -eu
cd "$(dirname "$0")"

if [ ! -x build/release/kov ]; then
    echo "First start: installing what is missing and building. This takes a few minutes."
fi
tools/install_packages.sh build
[ -f build/release/build.ninja ] || cmake --preset release -DKOV_TESTS=OFF >/dev/null
cmake --build --preset release --target kov >build/build.log || { cat build/build.log; exit 1; }
exec build/release/kov "$@"
