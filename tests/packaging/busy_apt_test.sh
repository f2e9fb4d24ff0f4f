#!/bin/sh
# Packages are installed although another program has apt's locks for a while; other failures count
# at once. Usage: busy_apt_test.sh SOURCES
# shellcheck disable=SC2016 # the doubles expand what they are given
set -u
folder=$(mktemp -d) failures=0
trap 'rm -rf "$folder"' EXIT
double() { # name, what it does
    printf '#!/bin/sh\n%s\n' "$2" >"$folder/$1" && chmod +x "$folder/$1"
}
double dpkg-query 'exit 1'
double apt-cache 'echo known'
double sudo 'exec "$@"'
double sleep :
double apt-get 'echo "$@" >>"$CALLS"
case $(wc -l <"$CALLS") in
[135])
    echo "E: Could not get lock $LOCK. It is held by process 12 (unattended-upgr)" >&2
    exit 100 ;;
[24]) [ -z "$BROKEN" ] || { echo "E: no network" >&2 && exit 100; } ;;
esac'
export CALLS="$folder/calls" LOCK=/var/lib/apt/lists/lock BROKEN=""
install() { PATH="$folder:$PATH" "$1/tools/install_packages.sh" portable >"$folder/said" 2>&1; }

install "$1" || { echo "FAILED: a lock that was let go:" && cat "$folder/said" && failures=1; }
[ "$(grep -c 'waits for process 12 (unattended-upgr)' "$folder/said")" = 2 ] ||
    { echo "FAILED: not once a step whom it waits for:" && cat "$folder/said" && failures=1; }
grep -q 'DPkg::Lock::Timeout=[123].* install .*patchelf' "$CALLS" ||
    { echo "FAILED: nothing installed:" && cat "$CALLS" && failures=1; }
rm "$CALLS"
BROKEN=yes install "$1" && echo "FAILED: no network, and that is success" && failures=1
[ "$(tail -n 1 "$folder/said")" = "E: no network" ] || { echo "FAILED: no reason" && failures=1; }
exit $failures
