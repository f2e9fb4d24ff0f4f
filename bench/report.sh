#!/bin/sh
# Measures everything that docs/performance.md states, in one run, and writes the table and the
# plot anew. Installs what is missing, builds the programs, and shows the windows on a virtual
# display. Takes some five minutes; the machine should have nothing else to do.
#
#   bench/report.sh [build folder]    build/release if not given
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/release}

tools/install_packages.sh build report
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DKOV_BENCH=ON >/dev/null
cmake --build "$build" --target kov kov-replay kov-replay-verify kov_bench kov_frame_cost \
    kov_first_frame kov_bare_start
tests/web/prepare.sh

folder=$(mktemp -d)
server=
trap '[ -z "$server" ] || kill "$server"; rm -rf "$folder"' EXIT
mkfifo "$folder/number"
Xvfb -displayfd 3 -screen 0 1024x768x24 -noreset -nolisten tcp 3>"$folder/number" 2>/dev/null &
server=$!
read -r number <"$folder/number"

# OpenAL mixes as for a card, also where there is none.
DISPLAY=:$number ALSOFT_DRIVERS=null python3 bench/report.py "$build"
