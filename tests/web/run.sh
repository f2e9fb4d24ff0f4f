#!/bin/sh
# Builds the page and tests it in Debian's Chromium and Firefox, on a display of its own. What was
# seen is in build/web-tests. Arguments go to node's test runner.
set -eu
cd "$(dirname "$0")/../.."

tools/install_packages.sh build web webtest
./web.sh --build
cmake --build --preset web --target kov-replay-verify kov_moments gallery kov_watch >build/web.log ||
    { cat build/web.log; exit 1; }
[ -f build/release/build.ninja ] || cmake --preset release -DKOV_TESTS=ON >/dev/null
cmake --build --preset release --target kov_moments gallery >build/build.log ||
    { cat build/build.log; exit 1; }

# The driver's modules, out of the sources' way.
modules=build/web-modules
if ! cmp -s tests/web/package-lock.json $modules/package-lock.json; then
    rm -rf $modules
    mkdir -p $modules
    cp tests/web/package.json tests/web/package-lock.json tests/web/.npmrc $modules
    npm ci --prefix $modules --ignore-scripts >build/npm.log 2>&1 || {
        cat build/npm.log
        rm $modules/package-lock.json # so that it is tried again
        exit 1
    }
fi
ln -sfn ../../$modules/node_modules tests/web/node_modules

for recording in tests/recordings/*.kovreplay; do
    node build/wasm/replay/kov-replay-verify.js "$recording" "$PWD"
done
cd tests/web
xvfb-run -a -s "-screen 0 1280x1024x24" node --test "$@" pictures.test.js page.test.js
