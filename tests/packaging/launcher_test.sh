#!/bin/sh
# The launcher on a made-up installation whose "game" does what a round may do to the folder.
# Usage: launcher_test.sh <launcher as configured>
set -eu

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
bin=$root/usr/bin
from_bin() { sed -n "s|^$1=.*\\\$here/\\(.*\\)\")|\\1|p" "$launcher"; } # what it looks for, seen from itself
launcher=$1
share=$root/usr/bin/$(from_bin share)
programs=$root/usr/bin/$(from_bin programs)
mkdir -p "$bin" && mkdir -p "$share" "$programs"
share=$(readlink -f "$share")
cp "$launcher" "$bin/kov"
for folder in data fonts Sounds Songs textures; do
    mkdir "$share/$folder"
    echo shipped >"$share/$folder/one"
done
echo "Up, UP" >"$share/bind1.conf"
echo manual >"$share/manual.html"
cat >"$programs/kov" <<'GAME'
#!/bin/sh
echo "arguments: $*; colours: $(cat data/one); songs: $(ls Songs | tr '\n' ' '); keys: $(cat bind1.conf)"
eval "${ROUND:-:}"
GAME
chmod +x "$programs/kov"

export DISPLAY=:nowhere XDG_DATA_HOME="$root/home dir" TMPDIR="$root"
home=$XDG_DATA_HOME/kov
failures=0
kov() { "$bin/kov" "$@" >"$root/out" 2>&1; }
expect() { # what, text that the last start must have printed
    grep -qF -e "$2" "$root/out" && return
    echo "FAILED: $1: expected '$2' in:" && cat "$root/out"
    failures=1
}
holds() { # what, file, content
    [ "$(cat "$2" 2>/dev/null)" = "$3" ] && return
    echo "FAILED: $1: $2 holds '$(cat "$2" 2>/dev/null)', not '$3'"
    failures=1
}

ROUND='echo 1234 >s.dat; echo set >game.conf' kov -f --Rate=41000
expect "first start" "arguments: -f --Rate=41000; colours: shipped; songs: one ; keys: Up, UP"
holds "first start" "$home/s.dat" 1234
holds "help page names it" "$home/manual.html" manual

# What is the player's own outlives an upgrade; what is shipped follows it.
echo mine >"$home/Songs/mine.ogg" && rm "$home/Songs/one" "$home/data/one" && echo own >"$home/data/one"
ln -s /media/stick/away.ogg "$home/Songs/away.ogg"
echo new >"$share/Songs/two" && rm "$share/fonts/one" && echo "Up, W" >"$share/bind1.conf"
kov
expect "upgrade" "colours: own; songs: away.ogg mine.ogg two ; keys: Up, W"
[ ! -L "$home/fonts/one" ] || { echo "FAILED: a link into nowhere was left" && failures=1; }
echo "Up, U" >"$home/bind1.conf" && echo "Up, I" >"$share/bind1.conf"
kov
expect "changed bindings stay" "keys: Up, U"
rm -r "$home/Songs" && ln -s "$root" "$home/Songs" && echo new >"$share/Songs/three"
kov
[ ! -e "$root/three" ] || { echo "FAILED: songs were linked into the player's own folder" && failures=1; }

# The disk gets full while the game saves, and stays full until the player has made room.
ROUND=': >s.dat; : >game.conf' kov
kov
expect "emptied score" "s.dat was empty"
holds "emptied score" "$home/s.dat" 1234
holds "emptied settings" "$home/game.conf" set
echo 9999 >"$home/s.dat" && ln -s /dev/full "$home/.kept/s.dat.new"
ROUND='cat s.dat; echo 5 >s.dat' kov -u
expect "full disk" "No space left on device). The game starts all the same"
expect "full disk, the game" "arguments: -u; colours: own"
expect "full disk, the score is known" 9999
holds "full disk" "$home/s.dat" 9999
rm "$home/.kept/s.dat.new" && ln -s /dev/full "$home/.kept/room"
ROUND='echo 5 >s.dat; kill $PPID' kov || true # ended from outside, too
expect "no room to save in" "No space left on device)"
holds "no room to save in" "$home/s.dat" 9999

ROUND="echo second: && ROUND='echo 2 >s.dat' '$bin/kov'; kill -9 \$\$" kov || true
expect "two games" "kov: a game is running already (process"
holds "two games" "$home/s.dat" 9999
kov
expect "the lock ends with a killed game" "arguments: ;"

echo file >"$root/file"
for unusable in "$root/file" /proc; do
    XDG_DATA_HOME=$unusable kov || true
    expect "no folder in $unusable" "kov: can't write to $unusable/kov ("
    expect "no folder in $unusable" "colours: shipped; songs: one three two ; keys: Up, I"
done
[ -z "$(find "$root" -mindepth 1 -maxdepth 1 -name 'tmp.*')" ] || { echo "FAILED: scratch left" && failures=1; }
XDG_DATA_HOME=relative HOME="$root/home" kov
[ -d "$root/home/.local/share/kov" ] || { echo "FAILED: a relative XDG_DATA_HOME counted" && failures=1; }
DISPLAY='' kov && failures=1
expect "no display" "kov: there is no display here"
DISPLAY='' kov --help
expect "help needs no display" "arguments: --help"

exit "$failures"
