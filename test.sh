#!/bin/sh
# Builds the tests, if need be with the packages that they take, and runs them: optimised, and
# under the sanitizers. Ends with a summary.
set -eu
cd "$(dirname "$0")"

tools/install_packages.sh build test

run() { # preset
    echo "== $1"
    cmake --preset "$1" -DKOV_TESTS=ON >/dev/null
    cmake --build --preset "$1" | grep -vE '^\[[0-9]+/[0-9]+\]|^ninja' || true
    ctest --preset "$1" -j "$(nproc)" --output-on-failure
}

echo "== format"
find Framework game platform tests -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run --Werror
run release
run sanitize
