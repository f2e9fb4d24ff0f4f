#!/bin/sh
# Builds the program that verifies kept games in the ways in which a bit could come out otherwise,
# and plays the games of tests/recordings by each: a line for each build.
#   tools/verify_builds.sh [COMPILER...]    g++ and clang++ if none is named
# With a cross compiler, TOOLCHAIN names a CMake toolchain file, and RUN what runs the programs.
set -u
cd "$(dirname "$0")/.." || exit 1

failed=0
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

verify() { # what, command...
    what=$1
    shift
    for file in tests/recordings/*.kovreplay; do
        "$@" "$file" . || echo "exit code $?"
    done >"$folder/log" 2>&1
    set -- tests/recordings/*.kovreplay
    if [ "$(grep -c ': holds$' "$folder/log")" -eq $# ]; then
        echo "$what: all hold"
    else
        failed=1
        echo "$what:"
        cat "$folder/log"
    fi
}

build() { # compiler, options
    rm -rf "$folder/build"
    cmake -S . -B "$folder/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER="$1" \
        ${TOOLCHAIN:+-DCMAKE_TOOLCHAIN_FILE="$TOOLCHAIN"} \
        -DCMAKE_CXX_FLAGS="$2" >"$folder/log" 2>&1 &&
        cmake --build "$folder/build" --target kov-replay-verify >"$folder/log" 2>&1 && return
    failed=1
    echo "$1 $2: doesn't build"
    cat "$folder/log"
    return 1
}

# Of the ways that the compiler knows: with level 3 of x86-64 it may use fused operations.
options_of() { # compiler
    printf '%s\n' -O2 -O0 -flto
    if echo | "$1" -x c++ -c -march=x86-64-v3 -o /dev/null - 2>/dev/null; then
        echo "-O3 -march=x86-64-v3"
    fi
}

[ $# -gt 0 ] || set -- g++ clang++
for compiler in "$@"; do
    version=$("$compiler" --version | head -n 1)
    options_of "$compiler" >"$folder/options"
    while read -r options; do
        build "$compiler" "$options" || continue
        # shellcheck disable=SC2086 # a command with its arguments, or nothing
        verify "$version, $options" ${RUN:-} "$folder/build/replay/kov-replay-verify"
        # Older processors: the C library chooses its functions as it starts.
        [ "$options" != -O2 ] || [ -n "${RUN:-}" ] || verify "$version, $options, FMA hidden" \
            env GLIBC_TUNABLES=glibc.cpu.hwcaps=-FMA,-FMA4,-AVX2 \
            "$folder/build/replay/kov-replay-verify"
    done <"$folder/options"
done
exit $failed
