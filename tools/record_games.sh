#!/bin/sh
# Lets the bot play the games of tests/recordings anew: after a change that is meant to alter play,
# together with a higher `rule_set` in replay/Blocks.h.
#   tools/record_games.sh [build folder]    build/release if not given
set -eu
cd "$(dirname "$0")/.."
record=${1:-build/release}/tools/kov_record

play() { # name, options...
    file=tests/recordings/$1.kovreplay
    shift
    rm -f "$file"
    "$record" "$file" "$@"
}

play first-steps --seed 5 --ticks 1000
play one-game --seed 1 --ticks 5000
play pages-and-pauses --seed 2 --ticks 3000 --pages 1
play long-evening --seed 7 --ticks 14000
