#!/bin/sh
# clang-tidy (.clang-tidy) and cppcheck (tools/cppcheck.suppressions) over the program's sources.
# Takes the compile commands of a build folder: build/release unless named. Silent if all is well.
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/release}

findings=$(mktemp)
trap 'rm -f "$findings"' EXIT
sources=$(find Framework game headless keys packaging platform replay -name '*.cpp')
good=true
# shellcheck disable=SC2086 # a list of words
printf '%s\n' $sources |
    xargs -P "$(nproc)" -n 4 clang-tidy -p "$build" --quiet >"$findings" 2>/dev/null || good=false
cat "$findings"

# shellcheck disable=SC2086 # a list of words
cppcheck -j "$(nproc)" --quiet --std=c++17 --enable=warning,performance,portability --inline-suppr \
    --suppressions-list=tools/cppcheck.suppressions --error-exitcode=1 -I . $sources || good=false
$good
