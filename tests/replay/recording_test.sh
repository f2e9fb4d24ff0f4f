#!/bin/sh
# A kept game, played again. Usage: recording_test.sh kov-replay-verify FILE SOURCES
"$@" && exit
[ $? -ne 1 ] || echo "Play isn't what it was. If that is meant, raise rule_set in replay/Blocks.h," \
                     "build, and run tools/record_games.sh."
exit 1
