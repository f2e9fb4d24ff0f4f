#!/bin/bash
# The real window with something wrong: window_faults.sh GAME SOURCES. Starts the game on a
# display of its own (Xvfb), asks it to end, and compares its exit code and its standard error.
set -u
game=$1 sources=$2
failures=0
. "${0%/*}/../support/display.sh"
cp -r "$sources"/{data,fonts,Sounds} "$folder"
mkdir "$folder/Songs"
touch "$folder/said"

# Without that file a line says that the game has its window and is about to turn.
ready="Can't read bind1.conf"

# What follows this on a line are SDL's own words, which differ between its libraries.
refused="Couldn't set the video mode:"

# What, exit code, standard error but for the line above and GL's own (one or the other), command...
expect() {
    local what=$1 code=$2 errors=$3 got got_code
    shift 3
    (cd "$folder" && exec "$@" >/dev/null 2>said) &
    local pid=$!
    while kill -0 $pid 2>/dev/null && ! grep -q "$ready" "$folder/said"; do sleep 0.05; done
    kill "-${signal:-TERM}" $pid 2>/dev/null # as a closed window
    wait $pid
    got_code=$?
    got=$(grep -v -e "$ready" -e "^libGL error:" -e "^glx:" "$folder/said" |
        sed "s/^\($refused\).*/\1/")
    : >"$folder/said"
    [ "$got_code" = "$code" ] && [[ "|$errors|" == *"|$got|"* ]] && return
    printf '%s: exit code %s, not %s; said:\n%s\n' "$what" "$got_code" "$code" "$got"
    failures=$((failures + 1))
}

expect "nothing wrong" 0 "" "$game"
# One library refuses a mode that the screen is too small for, the other scales the picture.
expect "mode too large" 0 "$refused|" "$game" -f -w=1920 -l=1080
expect "no display" 255 "$refused
$refused" env -u DISPLAY SDL_VIDEODRIVER=dummy "$game"
expect "no GL driver" 255 "No window with OpenGL can be opened. Is its driver installed?" \
    env GALLIUM_DRIVER=none "$game"
signal=HUP expect "asleep between ticks" 0 "" "$game" -u

icon=$folder/data/kov.ico
rm "$icon" && expect "no icon" 0 "" "$game"
mkfifo "$icon" && expect "a pipe for an icon" 0 "" "$game"
rm "$icon" && head -c 300 "$sources/data/kov.ico" >"$icon" && expect "half an icon" 0 "" "$game"

exit $failures
