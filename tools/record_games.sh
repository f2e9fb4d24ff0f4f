#!/bin/sh
# Lets the bot play the games of tests/recordings anew, and the one that ships with the game: after
# a change that is meant to alter play, together with a higher `rule_set` in replay/Blocks.h.
#   tools/record_games.sh [build folder]    build/release if not given
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/release}
record=$build/tools/kov_record

# Two ways of play under one number would take each other's files.
code=0
"$build/replay/kov-replay-verify" tests/recordings/one-game.kovreplay . >/dev/null 2>&1 || code=$?
case $code in
0 | 2) ;; # it holds, or is of other rules
1) echo "Play isn't what it was: raise rule_set in replay/Blocks.h, and build." >&2 && exit 1 ;;
*) echo "$build lacks kov-replay-verify and kov_record: build them." >&2 && exit 1 ;;
esac

play() { # file without ending, options...
    file=$1.kovreplay
    shift
    rm -f "$file"
    "$record" "$file" "$@"
}

play tests/recordings/first-steps --seed 5 --ticks 1000
play tests/recordings/one-game --seed 1 --ticks 5000
play tests/recordings/pages-and-pauses --seed 2 --ticks 3000 --pages 1
play tests/recordings/long-evening --seed 7 --ticks 14000

# Two minutes to the song that is 132.6 s long. A seed with a good game is found by trying some.
play packaging/demonstration --seed 39 --ticks 4100 --songs 2 --song-length 132600
