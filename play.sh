#!/bin/sh
# Builds KOV, if need be with the packages that it takes, and starts it. Arguments go to the game.
# Without a display it shows itself on a virtual one and leaves pictures and sound.
set -eu
cd "$(dirname "$0")"

case " $* " in
*" --version "*) exec sed -n 's/^project(kov VERSION \([0-9.]*\) .*/KOV \1/p' CMakeLists.txt ;;
esac

if [ ! -x build/release/kov ]; then
    echo "First start: missing Debian packages are installed (as root or through sudo) and the game"
    echo "is built. That takes about three minutes; later starts take a second."
fi
tools/install_packages.sh build
[ -f build/release/build.ninja ] || cmake --preset release -DKOV_TESTS=OFF >/dev/null
cmake --build --preset release --target kov >build/build.log || { cat build/build.log; exit 1; }
[ -e bind1.conf ] || cp packaging/bind1.conf .

for argument in "$@"; do
    case $argument in
    -h | --help) SDL_VIDEODRIVER=dummy exec build/release/kov "$@" ;;
    esac
done

has_display() {
    [ -z "${WAYLAND_DISPLAY:-}${SDL_VIDEODRIVER:-}" ] || return 0
    case ${DISPLAY:-} in
    "") return 1 ;;
    :*) # on this machine: somebody must be listening
        number=${DISPLAY#:}
        grep -q "/tmp/.X11-unix/X${number%%.*}\$" /proc/net/unix ;;
    esac
}
if ! has_display; then
    echo "There is no display here. The game plays a short round on a virtual one instead."
    exec tools/demo/demo.sh "$@"
fi
exec build/release/kov "$@"
