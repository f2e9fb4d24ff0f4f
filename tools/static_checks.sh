#!/bin/sh
# clang-tidy (.clang-tidy) and cppcheck (tools/cppcheck.suppressions) over the program's sources.
# Takes the compile commands of a build folder: build/release unless named. What runs in a browser
# is only looked at by clang-tidy if build/wasm is there. Silent if all is well.
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/release}

findings=$(mktemp) names=$(mktemp)
trap 'rm -f "$findings" "$names"' EXIT
sources=$(find Framework game headless keys packaging platform replay -name '*.cpp')
good=true
tidy() { # build folder, options of clang-tidy...; reads the names of sources
    folder=$1
    shift
    xargs -P "$(nproc)" -n 4 clang-tidy -p "$folder" --quiet "$@" >"$findings" 2>/dev/null ||
        good=false
    cat "$findings"
}
printf '%s\n' "$sources" | grep -v '^platform/web/' >"$names"
tidy "$build" <"$names"
if [ -f build/wasm/compile_commands.json ]; then
    # The compiler's wrapper adds these itself. Without threads, statics are made in another way.
    sysroot=/usr/share/emscripten/cache/sysroot
    printf '%s\n' "$sources" | grep '^platform/web/' | grep -v '/bake_' >"$names"
    tidy build/wasm --checks=-bugprone-dynamic-static-initializers \
        --extra-arg=--target=wasm32-unknown-emscripten --extra-arg=--sysroot=$sysroot \
        --extra-arg=-isystem$sysroot/include/c++/v1 --extra-arg=-isystem$sysroot/include/compat \
        --extra-arg=-isystem$sysroot/include <"$names"
fi

# shellcheck disable=SC2086 # a list of words
cppcheck -j "$(nproc)" --quiet --std=c++17 --enable=warning,performance,portability --inline-suppr \
    --suppressions-list=tools/cppcheck.suppressions --error-exitcode=1 -I . $sources || good=false
$good
