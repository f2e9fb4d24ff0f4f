#!/bin/sh
# Makes build/portable/kov-VERSION-MACHINE.tar.xz: the game with its data and all libraries but
# those of GL, X, C and C++, to be unpacked anywhere. It runs where the C library is no older than
# here: make it on the oldest system that it is for.
set -eu
cd "$(dirname "$0")/.."

tools/install_packages.sh build portable
name=kov-$(./play.sh --version | cut -d ' ' -f 2)-$(uname -m)
tree=$PWD/build/portable/$name
libraries=$tree/lib/kov
licences=$tree/share/doc/kov/libraries

# GL and X have to fit the machine's driver. So has what the driver itself takes: C, C++, packers.
is_the_systems() {
    case $1 in
    libGL.so* | libGLX.so* | libGLdispatch.so* | libX*.so* | libxcb*.so* | ld-*.so* | \
        libc.so* | libm.so* | libdl.so* | libpthread.so* | librt.so* | libresolv.so* | \
        libstdc++.so* | libgcc_s.so* | libz.so* | libzstd.so* | liblzma.so*) return 0 ;;
    esac
    return 1
}

copy_libraries_of() { # program
    ldd "$1" | sed -n 's/.* => \(\/[^ ]*\) .*/\1/p' | while read -r library; do
        file=$(basename "$library")
        if is_the_systems "$file" || [ -e "$libraries/$file" ]; then continue; fi
        cp -L "$library" "$libraries/$file"
        patchelf --set-rpath "\$ORIGIN" "$libraries/$file"
        package=$(dpkg-query -S "*/$(basename "$(readlink -f "$library")")" |
            sed 's/[:,].*//' | head -n 1)
        cp "/usr/share/doc/$package/copyright" "$licences/$package"
    done
}

cmake -G Ninja -S . -B build/portable/cmake -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build/portable/cmake
rm -rf "$tree"
cmake --install build/portable/cmake --prefix "$tree" --strip >/dev/null
mkdir -p "$libraries" "$licences"
for program in "$tree"/libexec/kov/*; do
    copy_libraries_of "$program"
    patchelf --set-rpath "\$ORIGIN/../../lib/kov" "$program"
done
ln -s bin/kov "$tree/kov"

date=$(sed -n 's/^ -- .*>  //p' debian/changelog | head -n 1)
tar --create --xz --file "$tree.tar.xz" --directory build/portable --sort=name --mtime="$date" \
    --owner=0 --group=0 --numeric-owner "$name"
du -h "$tree.tar.xz"
