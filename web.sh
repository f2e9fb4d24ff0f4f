#!/bin/sh
# Builds KOV for browsers, if need be with the packages that this takes, and serves it here. The
# folder build/web can be put on any web server as it is; `./web.sh --build` stops once it is there.
set -eu
cd "$(dirname "$0")"

port=8000
case ${1:-} in
"" | --build) ;;
*)
    echo "usage: ./web.sh [--build]" >&2
    exit 2
    ;;
esac

if [ ! -d build/wasm ]; then
    echo "First start: missing Debian packages are installed (as root or through sudo) and the page"
    echo "is built. That takes about five minutes; later starts take seconds."
fi
tools/install_packages.sh web
mkdir -p build
[ -f build/wasm/build.ninja ] || cmake --preset web >/dev/null
cmake --build --preset web --target kov_web_site >build/web.log || { cat build/web.log; exit 1; }
[ "${1:-}" != --build ] || exit 0

echo "KOV is at http://localhost:$port/ until you press Ctrl+C here."
python3 -m http.server $port --bind 127.0.0.1 --directory build/web \
    >/dev/null 2>build/web-server.log || { tail -n 1 build/web-server.log >&2; exit 1; }
