#!/bin/sh
# Plays a short round with real key events on a virtual display. Leaves pictures of it and its
# sound in build/demo/. Arguments go to the game.
set -eu
cd "$(dirname "$0")/../.."
tree=$(pwd)
out=$tree/build/demo

tools/install_packages.sh demo
rm -rf "$out" && mkdir -p "$out/run" && cd "$out/run"
for each in data fonts Sounds Songs textures; do ln -s "$tree/$each" .; done
cp "$tree/packaging/bind1.conf" . # the round is played with the default keys

Xvfb -displayfd 3 -noreset -screen 0 800x600x24 3>display 2>/dev/null &
xvfb=$!
game=""
trap 'kill $game $xvfb 2>/dev/null || true' EXIT
tries=0
while [ ! -s display ]; do
    tries=$((tries + 1))
    [ $tries -le 100 ] || { echo "demo.sh: Xvfb doesn't start" >&2; exit 1; }
    sleep 0.1
done
DISPLAY=:$(cat display)
export DISPLAY

printf '[general]\ndrivers = wave\n[wave]\nfile = %s/sound.wav\n' "$out" >sound.conf
ALSOFT_CONF=$out/run/sound.conf "$tree/build/release/kov" -w=800 -l=600 -F -u "$@" &
game=$!

alive() { kill -0 "$game" 2>/dev/null; }
picture() { import -window root "$out/$1.png"; }
press() { for key in "$@"; do xdotool key "$key" && sleep 0.05; done; }
hold() { # seconds, keys
    seconds=$1 && shift
    for key in "$@"; do xdotool keydown "$key"; done
    sleep "$seconds"
    for key in "$@"; do xdotool keyup "$key"; done
}

xdotool search --sync --onlyvisible --name '^KOV$' >/dev/null
xdotool mousemove 400 590
sleep 2
alive || { echo "demo.sh: the game has ended at its start" >&2; exit 1; }
picture 1-menu
press Return

# Two fences from the field's upper left corner, which draws the triangles there; then round
# them and close the rectangle from the opposite corner. The cube makes about 8 units a second.
for round in 1 2 3; do
    hold 1.8 Up Left
    hold 1.4 Left
    press d s
    hold 3 Right
    hold 1.9 Down
    press w a
    sleep 0.9 # until both shots have met the fences
    picture "2-game-$round"
    sleep 0.2
    picture "2-game-$round-after"
    [ $round -ne 1 ] || {
        press p && sleep 0.3
        picture 3-pause
        press p
    }
done
picture 4-end
press Escape

# Out by the menu's "Exit", after a game-over page if there is one.
for attempt in 1 2 3; do
    alive || break
    press Up Return
    sleep 1
done
if alive; then
    echo "demo.sh: the game doesn't end (attempt $attempt)" >&2
    exit 1
fi
wait "$game"
game=""
echo "Pictures and the sound of the round:"
ls "$out"/*.png "$out"/*.wav
