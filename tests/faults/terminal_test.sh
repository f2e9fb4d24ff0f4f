#!/bin/sh
# In a terminal and without a working display, the programs say what is wrong and leave the terminal
# as it was: no escape sequence goes there. Usage: terminal_test.sh KOV KOV_KEYS KOV_REPLAY SOURCES
set -u
game=$1 keys=$2 replay=$3 sources=$4
folder=$(mktemp -d) failures=0
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit
for each in data fonts Sounds Songs; do ln -s "$sources/$each" .; done
ln -s /bin/true ffmpeg
kept=$(find "$sources/tests/recordings" -name '*.kovreplay' | head -n 1)
unset WAYLAND_DISPLAY SDL_VIDEODRIVER
export PATH="$folder:$PATH" TERM=xterm SHELL=/bin/sh ASAN_OPTIONS=detect_leaks=0
nobody=:31999 # a display that nobody serves

expect() { # display, exit code, text that the terminal must show, command
    DISPLAY=$1 script -qec "$4" /dev/null >shown </dev/null
    code=$?
    grep -q "$(printf '[\033\016\017]')" shown && echo "FAILED: $4: took the terminal" && failures=1
    [ "$code" = "$2" ] || { echo "FAILED: $4: exit code $code, not $2" && failures=1; }
    grep -qF -e "$3" shown || { echo "FAILED: $4: no '$3' in:" && cat shown && failures=1; }
}

for display in "" $nobody; do
    expect "$display" 255 "Couldn't set the video mode:" "$game"
    expect "$display" 0 "  -w, --ScreenWidth" "$game --help"
    expect "$display" 0 "Usage: $game [OPTION]..." "$game --nonsense"
    expect "$display" 255 "Couldn't set the video mode:" "$keys"
    expect "$display" 2 "kov-replay: there is no display here" "$replay watch $kept"
    expect "$display" 2 "kov-replay: there is no display here" "$replay film $kept film.mp4"
    expect "$display" 2 "kov-replay: there is no display here" "$replay record kept.kovreplay"
done
WAYLAND_DISPLAY=$nobody expect "" 255 "Couldn't set the video mode:" "$game"
[ ! -e kept.kovreplay ] || { echo "FAILED: a game was kept that couldn't be played" && failures=1; }
exit $failures
