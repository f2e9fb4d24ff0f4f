#!/bin/sh
# The launcher on a made-up installation whose "game" does what a round may do to the folder.
# Usage: launcher_test.sh <launcher as configured>
# shellcheck disable=SC2016 # rounds and doubles are scripts: they expand what they are given
set -eu

if [ "$(id -u)" -eq 0 ]; then # to root nothing is read-only
    copies=$(mktemp -d)
    trap 'rm -rf "$copies"' EXIT
    cp "$0" "$1" "$copies" && chown -R nobody "$copies"
    setpriv --reuid=nobody --regid=nogroup --clear-groups sh "$copies/${0##*/}" "$copies/${1##*/}"
    exit
fi

root=$(mktemp -d)
trap 'chmod -R u+w "$root"; rm -rf "$root"' EXIT
cd "$root"
bin=$root/usr/bin
launcher=$1
# What it looks for, seen from itself.
from_bin() { sed -n "s|^$1=.*\\\$here/\\(.*\\)\")|\\1|p" "$launcher"; }
mkdir -p "$bin" && mkdir -p "$bin/$(from_bin share)" "$bin/$(from_bin programs)"
share=$(readlink -f "$bin/$(from_bin share)")
programs=$(readlink -f "$bin/$(from_bin programs)")
cp "$launcher" "$bin/kov"
for folder in data fonts Sounds Songs textures; do
    mkdir "$share/$folder"
    echo shipped >"$share/$folder/one"
done
echo "Up, UP" >"$share/bind1.conf"
echo manual >"$share/manual.html"
cat >"$programs/kov" <<'GAME'
#!/bin/sh
songs=$(ls Songs | tr '\n' ' ')
echo "arguments: $*; colours: $(cat data/one); songs: $songs; keys: $(cat bind1.conf)"
eval "${ROUND:-:}"
GAME
chmod +x "$programs/kov"

# The machine's tools, but for those that show something; doubles take their places.
mkdir tools && ln -sf /bin/* /usr/bin/* tools
rm -f tools/notify-send tools/zenity tools/xmessage tools/xdg-open
double() { # name, what it does
    rm -f "tools/$1" && echo "#!/bin/sh
$2" >"tools/$1" && chmod +x "tools/$1"
}
export PATH="$root/tools" DISPLAY=:nowhere XDG_DATA_HOME="$root/home dir" TMPDIR="$root"
home=$XDG_DATA_HOME/kov
failures=0
fail() { echo "FAILED: $*" && failures=1; }
kov() { "$bin/kov" "$@" >"$root/out" 2>&1 </dev/null; }
expect() { # what, text that the last start must have printed
    grep -qF -e "$2" "$root/out" || { fail "$1: expected '$2' in:" && cat "$root/out"; }
}
expect_not() { ! grep -qF -e "$2" "$root/out" || { fail "$1: '$2' in:" && cat "$root/out"; }; }
kov_says() { # what, text that a start must print, its arguments
    what=$1 text=$2
    shift 2
    kov "$@"
    expect "$what" "$text"
}
holds() { # what, file, content
    [ "$(cat "$2" 2>/dev/null)" = "$3" ] || fail "$1: $2 holds '$(cat "$2" 2>/dev/null)', not '$3'"
}
soon() { # what, command that must succeed within five seconds
    what=$1 tries=0
    shift
    while ! "$@" 2>/dev/null; do
        tries=$((tries + 1))
        [ $tries -lt 100 ] || { fail "$what" && return 0; }
        sleep 0.05
    done
}

ROUND='echo 1234 >s.dat; echo set >game.conf' kov_says "first start" \
    "arguments: -f --Rate=41000; colours: shipped; songs: one ; keys: Up, UP" -f --Rate=41000

# Full screen as the desktop is: options for one run, whatever else is given and whatever is saved.
echo '#!/bin/sh
echo -w=1600 -l=900' >"$programs/kov-desktop" && chmod +x "$programs/kov-desktop"
kov_says "desktop" "arguments: -u --FullScreen -w=1600 -l=900 -n=40 ;" -u --desktop "-n=40 "

# What is the player's own outlives an upgrade; what is shipped follows it.
echo mine >"$home/Songs/mine.ogg" && rm "$home/Songs/one" "$home/data/one"
echo own >"$home/data/one" && ln -s /media/stick/away.ogg "$home/Songs/away.ogg"
ln -sf "$root/mine/kov/Sounds/one" "$home/Sounds/one"
rm "$home/manual.html" && echo notes >"$home/manual.html"
echo new >"$share/Songs/two" && rm "$share/fonts/one" && echo "Up, W" >"$share/bind1.conf"
kov_says "upgrade" "colours: own; songs: away.ogg mine.ogg two ; keys: Up, W"
[ ! -L "$home/fonts/one" ] || fail "a link into nowhere was left"
[ "$(readlink "$home/Sounds/one")" = "$root/mine/kov/Sounds/one" ] ||
    fail "the player's link was replaced"
holds "a manual of the player's own" "$home/manual.html" notes
echo "Up, U" >"$home/bind1.conf" && echo "Up, I" >"$share/bind1.conf"
kov_says "changed bindings stay" "keys: Up, U"
mkdir "$root/a:=b" && cp -r usr "$root/a:=b" && ln -s "$root/a:=b/usr/bin/kov" link
ROUND='readlink textures/one' "$root/link" -x >out
expect "through a link, below a colon" "arguments: -x; colours: own"
expect "links have come along" "$root/a:=b/${share#"$root/"}/textures/one"
mv "$programs/kov" away
kov && fail "nothing was started, and that is success"
expect "damaged" "kov: the installation is damaged"
mv away "$programs/kov"
rm -r "$home/Songs" && ln -s "$root" "$home/Songs" && echo new >"$share/Songs/three"
kov
[ ! -e "$root/three" ] || fail "songs were linked into the player's own folder"
rm "$home/Songs"

# The disk gets full while the game saves, and stays full until the player has made room.
mv "$home/s.dat" elsewhere && ln -s "$root/elsewhere" "$home/s.dat"
ROUND=': >s.dat; : >game.conf' kov
kov_says "emptied score" "s.dat was empty"
holds "emptied score, a link" elsewhere 1234
holds "emptied settings" "$home/game.conf" set
echo 7 >"$home/s.dat" && kov && rm "$home/s.dat" && kov && : >"$home/s.dat" && kov
expect_not "thrown out, then begun anew" "was empty"
echo 9999 >"$home/s.dat" && ln -s /dev/full "$home/.kept/s.dat.new"
ROUND='echo $(cat s.dat game.conf); echo 5 >s.dat' kov -u
expect "full disk" "No space left on device). The game starts all the same"
expect "full disk, score and settings are known" "9999 set"
holds "full disk" "$home/s.dat" 9999
rm "$home/.kept/s.dat.new" && ln -s /dev/full "$home/.kept/room"
ROUND='echo 5 >s.dat; kill $PPID; sleep 1' kov || true # ended from outside, too
expect "no room to save in" "No space left on device)"
holds "no room to save in" "$home/s.dat" 9999
kov && chmod a-w "$home" "$home/s.dat" && kov
expect "read-only folder" "$home is read-only"
expect "read-only score" "$home/s.dat is read-only"
chmod u+w "$home" "$home/s.dat"

again="ROUND= '$bin/kov'"
ROUND="echo \"is (process \$PPID)\"; $again; : >.kept/lock; $again; kill -9 \$\$" kov || true
expect "two games" "kov: a game is running already $(sed -n 's/^is //p' out). One"
expect "two games, the first has only begun" "kov: a game is running already. One"
holds "two games" "$home/s.dat" 9999
kov_says "the lock ends with a killed game" "arguments: ;"

# What the game says comes at once, a repeated line once; it gets the launcher's signals, and the
# launcher ends as it does, with nothing left to be said.
double uniq 'sleep 0.3; exec /usr/bin/uniq'
ROUND='for i in 1 2 3 4 5; do echo same; done >&2; echo other >&2; echo same >&2; exit 255' kov &&
    fail "no exit code"
[ "$(sed 1d out | tr '\n' ' ')" = "same other same " ] || { fail "repeated lines:" && cat out; }
ln -sf /usr/bin/uniq tools/uniq
perl -e 'exit(system(@ARGV) & 127)' env ROUND='kill -SEGV $$' "$bin/kov" >out 2>&1 &&
    code=0 || code=$?
[ "$code" = 11 ] || fail "killed by a signal: $code"
waits='for s in HUP INT TERM; do trap "echo $s >&2; exit 7" $s; done; echo ready >&2
while :; do sleep 0.05; done'
for case in "HUP -" "INT " "TERM "; do # a closed terminal tells all in front of it
    : >out
    ROUND=$waits setsid env --default-signal=INT "$bin/kov" >out 2>&1 </dev/null &
    soon "not silent until the end" grep -q ready out
    kill -s "${case% *}" -- "${case#* }$!"
    wait $! && code=0 || code=$?
    [ "$code" = 7 ] || fail "signal $case: exit code $code"
    expect "signal $case" "${case% *}"
done

unusable=$root/file
echo file >file
XDG_DATA_HOME=$unusable kov_says "no folder" "kov: can't write to $unusable/kov ("
expect "no folder" "colours: shipped; songs: one three two ; keys: Up, I"
[ -z "$(find "$root" -mindepth 1 -maxdepth 1 -name 'tmp.*')" ] || fail "scratch left"
XDG_DATA_HOME=relative HOME="$root/home" kov
[ -d home/.local/share/kov ] || fail "a relative XDG_DATA_HOME counted"
DISPLAY='' kov && fail "no display, and that is success"
expect "no display" "kov: there is no display here"
DISPLAY='' kov_says "help needs no display" "arguments: --help" --help
expect "help names the launcher's own options" "  --desktop"
DISPLAY='' kov --version
grep -qxE 'KOV [0-9.]+' out || fail "no version: $(cat out)"

# The same launcher by another name keeps games in the player's folder; the rest needs none.
cp "$programs/kov" "$programs/kov-replay" && ln -s kov "$bin/kov-replay"
replay() { (cd home && "$bin/kov-replay" "$@") >out 2>&1 </dev/null; }
ROUND='pwd' replay record one.kovreplay -- -f
expect "keeping a game" "arguments: record $root/home/one.kovreplay -- -f; colours: "
expect "keeping a game, where" "$home"
replay verify "a b"
expect "proving a game" "arguments: --data $share --replays $home/Replays verify a b; "
XDG_DATA_HOME=$unusable replay record && fail "a game would be lost, and that is success"
expect "keeping a game nowhere" "no game can be kept there."
expect_not "keeping a game nowhere" "arguments:"
XDG_DATA_HOME=$unusable replay record one.kovreplay
expect "keeping a game elsewhere" "arguments: record $root/home/one.kovreplay; colours: "
XDG_DATA_HOME=$unusable kov_says "not keeping by itself" "arguments: -x; colours: " -x
rm "$bin/kov-replay"

# The game itself keeps games, too, unless it is told not to.
echo "# --no-keep" >"$home/launcher.conf" # another line
kov_says "keeping by itself" "arguments: record --auto -- -x --FullScreen; " -x --FullScreen
kov_says "not keeping" "arguments: -x; colours: " --no-keep -x
echo "--no-keep" >>"$home/launcher.conf"
kov_says "not keeping, by launcher.conf" "arguments: -x; colours: " -x
rm "$home/launcher.conf" "$programs/kov-replay"

# By a third name it asks for the keys of that folder, and does so nowhere else.
cp "$programs/kov" "$programs/kov-keys" && ln -s kov "$bin/kov-keys"
keys() { "$bin/kov-keys" >out 2>&1 </dev/null; }
ROUND='pwd; echo "Up, K" >bind1.conf' keys
expect "keys, where" "$home"
holds "keys" "$home/bind1.conf" "Up, K"
XDG_DATA_HOME=$unusable keys && fail "no folder for the keys, and that is success"
expect "keys without a folder" "Your keys are as they were."
rm "$bin/kov-keys"

# Started by its icon: each way to tell the player is taken if those before it aren't there.
for tool in xmessage zenity notify-send; do
    double $tool "printf '%s ' $tool \"\$@\" >>'$root/shown'"
    : >shown
    XDG_DATA_HOME=$unusable kov
    soon "shown by $tool" grep -q "^$tool.*Can't write to" shown
done
double notify-send false # nobody listens
: >shown
XDG_DATA_HOME=$unusable ROUND='exit 3' kov || true
soon "shown by zenity" grep -q "^zenity.*--text=Can't write to.*" shown
soon "a failed game is shown" grep -q "The game has failed" shown
: >shown
XDG_DATA_HOME=$unusable SHELL=/bin/sh script -qec "$bin/kov" /dev/null >out && sleep 0.2
expect "in a terminal" "can't write to"
holds "in a terminal" shown ""
double xdg-open "echo opened \"\$@\""
kov_says "manual" "opened $share/manual.html" --manual

exit "$failures"
