#!/bin/sh
# ms from the start of the process to the first frame, and of --help: ten runs each, sorted. Wants
# a display, and the programs of a build with -DKOV_BENCH=ON.
#
#   bench/start.sh [build folder]
set -eu
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build/release}")
runs=10

echo "first frame:"
for _ in $(seq $runs); do
    # The clock is read by the shell's child at once before it becomes the game.
    python3 -c 'import os, sys, time
os.environ["LD_PRELOAD"] = sys.argv[1]
os.environ["KOV_STARTED"] = str(time.monotonic_ns())
os.execv(sys.argv[2], sys.argv[2:])' "$build/bench/libkov_first_frame.so" "$build/kov" 2>/dev/null
done | sort -n | paste -sd ' '

echo "--help:"
for _ in $(seq $runs); do
    python3 -c 'import subprocess, sys, time
start = time.monotonic_ns()
subprocess.run(sys.argv[1:], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
print("%.1f" % ((time.monotonic_ns() - start) / 1e6))' "$build/kov" --help
done | sort -n | paste -sd ' '
