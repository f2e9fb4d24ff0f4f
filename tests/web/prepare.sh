#!/bin/sh
# Installs and builds what the page's tests and measurements take.
set -eu
cd "$(dirname "$0")/../.."

tools/install_packages.sh build web webtest
./web.sh --build
cmake --build --preset web --target kov-replay-verify kov_figures gallery kov_watch \
    >build/web.log || { cat build/web.log; exit 1; }
[ -f build/release/build.ninja ] || cmake --preset release -DKOV_TESTS=ON >/dev/null
cmake --build --preset release \
    --target kov_figures gallery kov-replay kov-replay-verify >build/build.log ||
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
