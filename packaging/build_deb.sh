#!/bin/sh
# Makes the Debian package of this tree, and its source package: build/package/kov_*. The tests are
# left out; `dpkg-buildpackage` in a copy of the tree runs them as well.
set -eu
cd "$(dirname "$0")/.."

tools/install_packages.sh build package
result=$PWD/build/package
source=$result/kov
rm -rf "$result"
mkdir -p "$source"

# What belongs to the project: what a player's own game has left in the folder doesn't.
files() {
    git ls-files -z --cached --others --exclude-standard 2>/dev/null ||
        find . -name .git -prune -o -path ./build -prune -o -path './build-*' -prune -o \
            -path ./game.conf -o -path ./s.dat -o -path ./bind1.conf -o -type f -print0
}
# The packages depend on the tree alone, not on the dates in this folder.
date=$(dpkg-parsechangelog --show-field Timestamp)
files | tar --create --null --files-from=- --mtime="@$date" --mode=go=rX,u+rw |
    tar --extract --directory "$source"

cd "$source"
DEB_BUILD_OPTIONS="nocheck noautodbgsym terse ${DEB_BUILD_OPTIONS:-}" DEB_BUILD_PROFILES=nocheck \
    dpkg-buildpackage --no-sign >"$result/build.log" 2>&1 || { cat "$result/build.log"; exit 1; }
rm -rf "$source"
ls "$result"
