#!/bin/sh
# Builds the tests, if need be with the packages that they take, and runs them: optimised, and
# under the sanitizers. `./test.sh all` takes a compiler's warnings as errors, and adds recorded
# games with link-time optimisation, the page in two browsers, the static checks, and a bot that
# plays for an hour of game time under the sanitizers. Goes on after a failure and ends with a
# summary.
set -u
cd "$(dirname "$0")" || exit 1

soak_ticks=120000 # 33 a second in play
format_version=14 # of clang-format, Debian 12's
summary="" failed=0
# A warning of a compiler that nobody here has seen is shown, and fails nobody's run but ours.
strictness=""
[ "${1:-}" != all ] || strictness=-DCMAKE_COMPILE_WARNING_AS_ERROR=ON

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

# Versions of clang-format differ in small things. What others than the tree's own find is shown.
check_format() {
    find Framework game headless keys packaging platform replay tests tools fuzz bench \
        \( -name '*.cpp' -o -name '*.h' \) -print0 2>/dev/null |
        xargs -0 clang-format --dry-run --Werror ||
        ! clang-format --version | grep -q "version $format_version\."
}

build() { # preset, targets... (all if none is named)
    preset=$1
    shift
    # shellcheck disable=SC2086 # one option or none
    cmake --preset "$preset" -DKOV_TESTS=ON $strictness >/dev/null || return 1
    cmake --build --preset "$preset" ${1:+--target "$@"} >build/build.log 2>&1
    code=$?
    grep -avE '^(\[[0-9]+/[0-9]+\] |ninja|-- )' build/build.log # warnings, and errors
    return "$code"
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

verify_optimised_whole() {
    build lto kov-replay kov-replay-verify &&
        build/lto/replay/kov-replay verify tests/recordings/*.kovreplay
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
    step "link-time optimisation" verify_optimised_whole
    # KOV_PAGE=no leaves out what takes two browsers.
    [ "${KOV_PAGE:-yes}" = no ] ||
        step "page, Chromium and Firefox" quietly build/tests-web.log 9 tests/web/run.sh
    step "packages of the static checks" tools/install_packages.sh check
    step "static checks" tools/static_checks.sh build/release
    step "bot, $soak_ticks ticks, sanitizers" soak
fi

printf '\n%s' "$summary"
if [ $failed -eq 0 ]; then echo "All is well."; else echo "Something FAILED."; fi
exit $failed
