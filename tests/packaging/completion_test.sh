#!/bin/bash
# What bash offers for the commands' words. Usage: completion_test.sh SOURCES
set -u
folder=$(mktemp -d) failures=0
trap 'rm -rf "$folder"' EXIT
# shellcheck disable=SC2317 # called by the completions
compopt() { :; } # the real one works nowhere else
# shellcheck source=/dev/null
. "$1/packaging/kov.bash" && . "$1/packaging/kov-replay.bash" && cd "$folder" || exit
mkdir films && touch game.kovreplay film.mp4
cat >kov <<'KOV'
#!/bin/sh
printf '  -w, --ScreenWidth\t\t=[NUM] Set Height\n  -f, --FullScreen\t\tForces\n'
printf 'Launcher:\n  --manual\t\tOpens\n'
KOV
chmod +x kov

offers() { # words that are expected, line, as bash splits it
    local expected=$1
    shift
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
    "_${1//-/_}" "${run:-$1}"
    [ "${COMPREPLY[*]}" = "$expected" ] && return
    echo "FAILED: $*: offers '${COMPREPLY[*]}', not '$expected'"
    failures=1
}
run=./kov offers "--help --ScreenWidth= --FullScreen --manual" kov ""
run=./kov offers "--FullScreen" kov -u --Fu
run=./kov offers "" kov --ScreenWidth = ""
offers "record watch verify film show best --help --version" kov-replay ""
offers "game.kovreplay films" kov-replay watch ""
offers "--speed --from" kov-replay watch game.kovreplay --
offers "" kov-replay watch --from ""
offers "" kov-replay watch --from 2 :
offers "" kov-replay watch --from 2 : 3
offers "game.kovreplay films" kov-replay watch --from 2 : 30 --speed 4 ""
offers "" kov-replay watch game.kovreplay ""
offers "films" kov-replay film --size 640x480 game.kovreplay f
offers "game.kovreplay films" kov-replay verify game.kovreplay ""
offers "films" kov-replay best ""
offers "films" kov-replay best films --page films --with-web ""
exit $failures
