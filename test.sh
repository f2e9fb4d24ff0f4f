#!/bin/sh
# Builds the tests, if need be with the packages that they take, and runs them: optimised, and
# under the sanitizers. `./test.sh all` adds the static checks and a bot that plays for an hour of
# game time under the sanitizers. Goes on after a failure and ends with a summary.
set -u
cd "$(dirname "$0")" || exit 1

soak_ticks=120000 # 33 a second in play
summary="" failed=0

step() { # name, command...
    name=$1
    shift
    echo "== $name"
    started=$(date +%s)
    state=ok
    "$@" || { state=FAILED failed=1; }
    line=$(printf '%-36s %-6s %5d s' "$name" "$state" "$(($(date +%s) - started))")
    summary="$summary$line
"
}

check_format() {
    find Framework game headless keys platform replay tests tools fuzz bench \( -name '*.cpp' -o -name '*.h' \) \
        -print0 2>/dev/null | xargs -0 clang-format --dry-run --Werror
}

build() { # preset
    cmake --preset "$1" -DKOV_TESTS=ON >/dev/null || return 1
    cmake --build --preset "$1" >build/build.log 2>&1 && ! grep -q 'warning:' build/build.log &&
        return 0
    grep -vE '^\[[0-9]+/[0-9]+\] |^ninja' build/build.log
    return 1
}

# Runs a command whose output matters only if it fails, but for the last lines.
quietly() { # log, lines, command...
    log=$1 lines=$2
    shift 2
    if "$@" >"$log" 2>&1; then tail -n "$lines" "$log"; else
        cat "$log"
        return 1
    fi
}

run_tests() { # preset
    quietly "build/tests-$1.log" 3 ctest --preset "$1" -j "$(nproc)" --output-on-failure || return 1
    ! grep 'Skipped' "build/tests-$1.log" # the preparation of a whole group has failed
}

soak() {
    quietly build/soak.log 20 build/sanitize/tools/kov_soak --ticks $soak_ticks --seed 2026
}

step "packages" tools/install_packages.sh build test
step "format" check_format
step "build, optimised" build release
step "tests, optimised" run_tests release
step "build, sanitizers" build sanitize
step "tests, sanitizers" run_tests sanitize
if [ "${1:-}" = all ]; then
    step "packages of the static checks" tools/install_packages.sh check
    step "static checks" tools/static_checks.sh build/release
    step "bot, $soak_ticks ticks, sanitizers" soak
fi

printf '\n%s' "$summary"
if [ $failed -eq 0 ]; then echo "All is well."; else echo "Something FAILED."; fi
exit $failed
