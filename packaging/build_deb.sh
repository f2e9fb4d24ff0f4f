#!/bin/sh
# Makes the Debian package of this tree: build/package/kov_*.deb.
set -eu
cd "$(dirname "$0")/.."

tools/install_packages.sh build package
# The package depends on the tree alone, not on its folder or the time of day.
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog --file packaging/changelog --show-field Timestamp)
export SOURCE_DATE_EPOCH DEB_BUILD_MAINT_OPTIONS=hardening=+all
cmake -G Ninja -S . -B build/package -DCMAKE_BUILD_TYPE=Release -DKOV_TESTS=OFF \
    -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_INSTALL_BINDIR=games \
    -DCMAKE_CXX_FLAGS="$(dpkg-buildflags --get CPPFLAGS) $(dpkg-buildflags --get CXXFLAGS) \"-ffile-prefix-map=$PWD=.\"" \
    -DCMAKE_EXE_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)" >/dev/null
cmake --build build/package
cd build/package
umask 022
cpack -G DEB
