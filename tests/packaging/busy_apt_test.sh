#!/bin/sh
# Packages are installed although another program has apt's locks for a while.
# Usage: busy_apt_test.sh SOURCES
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
esac'
export CALLS="$folder/calls" LOCK=/var/lib/apt/lists/lock
fail() { echo "FAILED: $1" && cat "$folder/said" "$CALLS" && failures=1; }

PATH="$folder:$PATH" "$1/tools/install_packages.sh" portable >"$folder/said" 2>&1 ||
    fail "a lock that was let go"
[ "$(grep -c 'waits for process 12 (unattended-upgr)' "$folder/said")" = 2 ] ||
    fail "not once a step whom it waits for"
grep -q 'DPkg::Lock::Timeout=[123].* install .*patchelf' "$CALLS" || fail "nothing installed"
exit $failures
