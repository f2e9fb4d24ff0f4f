#!/bin/sh
# Where there is no apt: looks for what the named groups (build, test; others are passed over) take,
# and says in one line each what is missing and how other distributions call it. Their names were
# not tried.
set -u

missing=0
lacks() { # what, Fedora's name, Arch's name
    [ $missing -eq 1 ] || echo "Missing (package names of Fedora and Arch, not tried):" >&2
    missing=1
    printf '  %-34s Fedora: %-26s Arch: %s\n' "$1" "$2" "$3" >&2
}
command_is() { command -v "$1" >/dev/null || lacks "$@"; }
module_is() { # pkg-config's name, what, names
    module=$1
    shift
    pkg-config --exists "$module" 2>/dev/null || lacks "$@"
}
header_is() { # path below an include folder, what, names
    header=$1
    shift
    echo "#include <$header>" | "${CXX:-c++}" -E -x c++ - >/dev/null 2>&1 || lacks "$@"
}

for group in "$@"; do
    case $group in
    build)
        command_is "${CXX:-c++}" gcc-c++ gcc
        command_is cmake cmake cmake
        command_is ninja ninja-build ninja
        command_is pkg-config pkgconf-pkg-config pkgconf
        module_is sdl "SDL 1.2" sdl12-compat-devel sdl12-compat
        module_is gl "OpenGL" mesa-libGL-devel mesa
        module_is glu "GLU" mesa-libGLU-devel glu
        module_is glew "GLEW" glew-devel glew
        module_is x11 "Xlib" libX11-devel libx11
        module_is ftgl "FTGL" ftgl-devel ftgl
        module_is freetype2 "FreeType" freetype-devel freetype2
        module_is zlib "zlib" zlib-devel zlib
        module_is openal "OpenAL Soft" openal-soft-devel openal
        module_is sndfile "libsndfile" libsndfile-devel libsndfile
        module_is libmpg123 "libmpg123" mpg123-devel mpg123
        header_is boost/filesystem.hpp "Boost" boost-devel boost
        ;;
    test)
        header_is gtest/gtest.h "GoogleTest" gtest-devel gtest
        header_is mpfr.h "MPFR" mpfr-devel mpfr
        command_is clang-format clang-tools-extra clang
        command_is python3 python3 python
        command_is Xvfb xorg-x11-server-Xvfb xorg-server-xvfb
        ;;
    check)
        command_is clang-tidy clang-tools-extra clang
        command_is cppcheck cppcheck cppcheck
        ;;
    esac
done
exit $missing
