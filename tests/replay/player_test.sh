#!/bin/bash
# The program as a player uses it, in a window on a display of its own (Xvfb), by keys: it
# keeps a game, then shows, verifies, watches and films it. Usage:
#   player_test.sh KOV_REPLAY SOURCES CLOSE_WINDOW KOV_RECORD
set -u
replay=$1 sources=$2 close=$3 record=$4
failures=0
. "${0%/*}/../support/display.sh"
unset WAYLAND_DISPLAY SDL_VIDEODRIVER
cd "$folder" || exit
for each in data fonts Sounds; do ln -s "$sources/$each" .; done
mkdir Songs tmp bin
export TMPDIR=$folder/tmp PATH=$folder/bin:$PATH
cat >bin/ffmpeg <<'DOUBLE'
#!/bin/bash
# Counts what it is given, in bytes, and keeps the last of it; makes any film but *$NO_FILM.
for target; do :; done
case $target in
*$NO_FILM) exit 1 ;;
esac
target=${target#file:}
case " $* " in
*" pipe:0 "*) tee >(tail -c 384000 >"${target%.*}.last") | wc -c >"$target" ;;
*" -c copy "*) cat pictures.mkv sound.mka >"$target" && cp sound.last "$target.sound" ;;
*) [ "$target" = - ] || : >"$target" ;;
esac
DOUBLE
chmod +x bin/ffmpeg
export NO_FILM=.xyz

fail() { echo "FAILED: $*" && failures=1; }
expect() { # what, exit code, text that must have been said, command...
    local what=$1 code=$2 text=$3 got
    shift 3
    timeout 60 "$replay" --data "$sources" "$@" >said 2>&1 </dev/null
    got=$?
    [ $got = "$code" ] || fail "$what: exit code $got, not $code: $(cat said)"
    [[ $(cat said) == *"$text"* ]] || fail "$what: no '$text' in: $(cat said)"
}
window() { xdotool search --onlyvisible --name '^KOV' 2>/dev/null | tail -n 1; }
title() { xdotool getwindowname "$(window)" 2>/dev/null; }
press() { for key; do xdotool key "$key" && sleep 0.1; done; }
soon() { # what, pattern of the window's title
    for _ in $(seq 100); do
        title | grep -q -e "$2" && return
        sleep 0.1
    done
    fail "$1: the title is '$(title)'"
}
start() { # command...
    env --default-signal=INT timeout 60 "$replay" --data "$sources" "$@" >said 2>&1 </dev/null &
    process=$!
    xdotool mousemove 300 300
    soon "no window" "^KOV"
}
ends() { # what, exit code, text that must have been said
    wait $process
    local got=$?
    [ $got = "$2" ] || fail "$1: exit code $got, not $2: $(cat said)"
    [[ $(cat said) == *"$3"* ]] || fail "$1: no '$3' in: $(cat said)"
}

# A game of four shots, and a pause.
start record one.kovreplay -- --NoPlayMusic
sleep 1
press Return && sleep 0.5
press w d && sleep 1
press p && sleep 0.5 && press p
press a s && sleep 1
press Escape && sleep 0.5 && press Up Return
ends "record" 0 "kept in $folder/one.kovreplay"

# The game's own keeping: with a score in the name, among the latest twenty; nothing without a game.
mkdir auto
for i in $(seq 10 40); do : >"auto/2020-01-01 00.00.$i 5 auto.kovreplay"; done
start --replays auto record --auto -- --NoPlayMusic
sleep 1
press Return && sleep 0.5
press w Escape && sleep 0.5 && press Up Return
ends "keeping by itself" 0 ""
grep -qv "bind1.conf" said && fail "keeping by itself: $(cat said)" # no file is named
[ "$(find auto -name '*.kovreplay' -size +0 | grep -c ' 0 auto')" = 1 ] || fail "kept: $(ls auto)"
[ "$(find auto -type f | wc -l)" = 20 ] || fail "kept: $(ls auto)"
start --replays none record --auto
kill -TERM "$(pgrep -P $process)"
ends "nothing to keep" 0 ""
[ ! -e none ] || fail "nothing to keep, and yet: $(ls none)"
grep -q "can't write" said && fail "nothing to keep: $(cat said)"
start --replays /dev/null record --auto
kill -TERM "$(pgrep -P $process)"
ends "keeping where nothing can be" 0 "kov-replay: can't write /dev/null/"
DISPLAY=:9999 expect "no display, no file" 2 "there is no display here" record none.kovreplay
GALLIUM_DRIVER=none expect "no window, no file" 255 "" record none.kovreplay
[ ! -e none.kovreplay ] || fail "a game that wasn't there was kept"

start record ended.kovreplay -- --NoPlayMusic
sleep 1
press Return w
kill -TERM "$(pgrep -P $process)"
ends "record, TERM" 0 "kept in $folder/ended.kovreplay"
expect "a game that a signal has ended" 0 ": holds" verify ended.kovreplay
rm ended.kovreplay
expect "show" 0 "4 shots, 0 of them a side" show one.kovreplay
grep -q "1 pause of 0:0[0-2]" said || fail "show tells no pause: $(cat said)"
grep -q "ScreenWidth=800" said || fail "show tells no settings: $(cat said)"
expect "verify" 0 "one.kovreplay: " verify one.kovreplay
grep -q ": holds$" said && ! grep -q % said || fail "verify: $(cat said)"
expect "best" 0 "one.kovreplay, at 0:" best . --page page
expect "best of the kept ones" 0 "one.kovreplay, at 0:" --replays . best
[ "$(grep -c '<article>' page/index.html)" = 1 ] || fail "best: the page"
cmp -s one.kovreplay page/one.kovreplay || fail "best: the file to download"
head -c $(($(stat -c %s one.kovreplay) - 9)) one.kovreplay >cut.kovreplay
cp one.kovreplay longer.kovreplay && echo >>longer.kovreplay
expect "watching a damaged one" 2 "the file is damaged" watch longer.kovreplay --speed 64
for wrong in "" verify "record a b" "record --auto a" "watch a b" "film a" "film a b c" show \
    "show a b" "best a b" "--page a best"; do
    # shellcheck disable=SC2086 # words
    expect "usage: $wrong" 2 "usage: kov-replay record" $wrong
    [[ $wrong == --* ]] || [[ $(cat said) == usage:* ]] || fail "usage: $wrong: $(head -n 1 said)"
done
expect "usage: nonsense" 2 "no such command: nonsense" nonsense
expect "usage: a page with the web's" 2 "--with-web wants --page" best . --with-web .
expect "help" 0 "usage: kov-replay record" --replays a --replays b --help
expect "best of nowhere" 2 "no such folder" best nowhere
expect "best of none" 0 "no games are kept in" best tmp
expect "best where nothing was kept" 0 "no games are kept in $folder/nowhere" --replays nowhere best

# The best ten, of which one is forged, and a file that is none. Proofs stay as long as their game
# and the program that has made them.
mkdir many
for seed in $(seq 1 12); do "$record" many/$seed.kovreplay --seed $seed --ticks 300 >/dev/null; done
"$record" forged.kovreplay --seed 1 --ticks 300 --forge 1 >/dev/null
cp forged.kovreplay many/
echo nonsense >many/nonsense.kovreplay
expect "best of many" 0 "forged.kovreplay: differs at tick" best many
[ "$(grep -c '^ *[0-9]*\. ' said)" = 10 ] || fail "best of many: $(cat said)"
[ "$(ls many/.proofs | wc -l)" = 13 ] || fail "proofs: $(ls many/.proofs)"
rm many/[3-9].kovreplay many/1?.kovreplay
cp "$(dirname "$replay")"/kov-replay{,-verify} bin
expect "best of fewer" 0 "2.kovreplay" best many
before=$(ls many/.proofs)
[ "$(echo "$before" | wc -l)" = 3 ] || fail "proofs that stay: $before"
echo >>bin/kov-replay-verify
replay=bin/kov-replay expect "best, by another program" 0 "2.kovreplay" best many
comm -12 <(echo "$before") <(ls many/.proofs) | grep -q . && fail "proofs of another program"
for how in verify "watch --speed 64" "film --size 64x48 --from 0:08"; do
    target=$([[ $how != film* ]] || echo forged.mp4)
    # shellcheck disable=SC2086 # words
    expect "a forged one: $how" 1 "differs at tick 200" $how forged.kovreplay $target
done
expect "no file" 2 "nothing.kovreplay: no such file, or none that can be read" \
    verify nothing.kovreplay
expect "several files, one cut off" 0 "holds, but is cut off" verify cut.kovreplay one.kovreplay
"$record" pauses.kovreplay --seed 6 --ticks 4200 --pages 1 >/dev/null # six of them
expect "not fair" 4 "6 pauses of 0:03 (!)" verify --fair pauses.kovreplay
expect "not fair, but well" 0 "6 pauses of 0:03 (!)" verify pauses.kovreplay
expect "not fair, and worse" 2 "none that can be read" \
    verify --fair nothing.kovreplay pauses.kovreplay
expect "an option twice" 2 "--speed stands there twice" watch one.kovreplay --speed=2 --speed 4
expect "one that is there" 2 "File exists" record one.kovreplay
expect "version, with the data twice" 0 "KOV 1." --data . --version

# What takes a while says how far it is, on a terminal; a signal that is ignored doesn't end it; and
# a game that is killed is kept up to nine seconds before.
"$record" long.kovreplay --seed 8 --ticks 1200 --songs 4 --music 0 --idle 900 >/dev/null
[ "$(stat -c %s long.kovreplay)" -lt 3000 ] || fail "a wait takes $(stat -c %s long.kovreplay)"
SHELL=/bin/bash script -qec "'$replay' --data '$sources' verify long.kovreplay" /dev/null \
    >said </dev/null
grep -q "[0-9] % " said && ! grep -q $'\r0 %' said && grep -q $'\r      \r.*: holds' said ||
    fail "verify on a terminal: $(cat said)"
timeout -s TERM 0.3 sh -c 'trap "" TERM; exec "$@"' sh \
    "$replay" --data "$sources" verify long.kovreplay >said
grep -q ": holds" said || fail "verify, TERM ignored: $(cat said)"
proving() { # in the background
    "$replay" --data "$sources" verify long.kovreplay >said 2>&1 </dev/null &
    process=$!
    until [ -n "$(ls tmp)" ]; do sleep 0.02; done
}
proving && kill -TERM $process
ends "verify, TERM" 3 "interrupted"
proving && pkill -TERM -P $process
ends "verify, TERM to the one that plays" 3 "interrupted"
proving && pkill -KILL -P $process
ends "verify, KILL to the one that plays" 1 "the game has failed"
rm -rf tmp/*
proving && kill -KILL $process && wait $process 2>/dev/null
while pgrep -f "kov-replay-verify.* long.kovreplay" >/dev/null; do sleep 0.02; done
grep -q ": holds" said && fail "verify went on, all alone"
timeout -s KILL 1 "$record" killed.kovreplay --seed 3 --ticks 10000000 >/dev/null 2>&1
expect "a game that was killed" 0 "holds, but is cut off" verify killed.kovreplay
ticks=$(sed -n 's/.*replay: \([0-9]*\) ticks.*/\1/p' said)
[ "${ticks:-0}" -gt 600 ] || fail "a game that was killed: $ticks ticks are left"
rm -r tmp/*

# Watching.
start watch one.kovreplay --speed=0.125
soon "watch" "x0.125$"
press space
soon "watch, space" "stopped$"
before=$(title)
press Right Right # steps: the speed stays
[ "$(title)" = "$before" ] || fail "watch, right while stopped: '$(title)' after '$before'"
press Up
soon "watch, up" "x0.25 *stopped$"
press space Left
soon "watch, left" "x0.125$"
press Escape
ends "watch, Escape" 0 ""
start watch one.kovreplay --from 0:01 --speed=0.125
soon "watch from" " 0:01 / "
"$close" "$(window)"
ends "watch, closed" 0 ""
for signal in INT TERM; do
    start watch one.kovreplay --speed=0.125
    soon "watch" "x0.125$"
    kill -$signal "$(pgrep -P $process)"
    ends "watch, $signal" 3 "interrupted at 0:0"
done
expect "watch to the end" 0 "" watch one.kovreplay --speed=64

start watch --speed=64
soon "watch the game that comes with it" " / 2:0"
press Escape
ends "watch the game that comes with it" 0 ""
"$record" night.kovreplay --seed 5 --ticks 300 --wait 30000 >/dev/null
start watch night.kovreplay --from 0:04
soon "a pause of a night" "0:0[45] / 500:.*x1$"
press Escape
ends "watch, Escape in a pause of a night" 0 ""

# Filming: a picture of 320 by 240 pixels of four bytes each 30 ms, and all that is heard meanwhile.
expect "film" 0 "100 %" film night.kovreplay part.mp4 --size 320x240 --from 0:01 --to=0:03
[ "$(tr '\n' ' ' <part.mp4)" = "$((66 * 320 * 240 * 4)) $((1980 * 441 * 4 / 10)) " ] ||
    fail "film: $(cat part.mp4) bytes"
[ -n "$(tr -d '\0' <part.mp4.sound)" ] || fail "film: silence"
for size in 16x8192 8192x16; do
    expect "film, $size" 2 "File exists" film one.kovreplay part.mp4 --size=$size
done
for size in "" 15x16 16x15 8193x16 16x8193 16x16x; do
    expect "film, $size" 2 "no size such as" film one.kovreplay part.mp4 --size=$size
done
expect "film, no such ending" 2 "ffmpeg makes no films like o.xyz" film one.kovreplay o.xyz
NO_FILM="" expect "film, no ffmpeg" 2 "please install the package ffmpeg" film one.kovreplay o.mp4
expect "film, no such part" 2 "nothing lies between" film one.kovreplay o.mp4 --from 9:00
expect "film, nothing of it" 2 "nothing lies between" film one.kovreplay o.mp4 --from 0:02 --to=0:02
start film night.kovreplay stopped.mp4 --full # the whole night
sleep 2
kill -TERM "$(pgrep -P $process)"
ends "film of a whole night, interrupted" 3 "interrupted at"
grep -q " %, time left " said || fail "film says nothing of its progress: $(cat said)"
for left in stopped.mp4 o.mp4 o.xyz; do [ ! -e $left ] || fail "a film was left: $left"; done

[ -z "$(ls tmp)" ] || fail "left behind: $(ls tmp)"
exit $failures
