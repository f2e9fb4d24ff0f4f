#!/bin/sh
# ms from the start of the process to the first frame, and of --help: the game and a bare program
# with the same libraries in turn, median of eleven runs each. Wants a display, and the programs of
# a build with -DKOV_BENCH=ON.
#
#   bench/start.sh [build folder]
set -eu
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build/release}")

exec python3 - "$build" <<'PYTHON'
import os, statistics, subprocess, sys, time

build = sys.argv[1]
game, bare = build + "/kov", build + "/bench/kov_bare_start"
first_frame = """
import os, sys, time
os.environ["LD_PRELOAD"] = sys.argv[1]
os.environ["KOV_STARTED"] = str(time.monotonic_ns())
os.execv(sys.argv[2], sys.argv[2:])
"""


def to_first_frame(program):
    preload = build + "/bench/libkov_first_frame.so"
    run = subprocess.run([sys.executable, "-c", first_frame, preload, program],
                         stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    return float(run.stdout)


def to_end(program):
    start = time.monotonic_ns()
    subprocess.run([program, "--help"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return (time.monotonic_ns() - start) / 1e6


for name, measure in (("first frame", to_first_frame), ("--help", to_end)):
    times = [(measure(game), measure(bare)) for _ in range(11)]
    print("%-12s game %6.1f ms, bare %6.1f ms" % (name, *map(statistics.median, zip(*times))))
PYTHON
