#!/bin/sh
# Builds the page and tests it in Debian's Chromium and Firefox, on a display of its own. What was
# seen is in build/web-tests. Arguments go to node's test runner.
set -eu
cd "$(dirname "$0")/../.."

tests/web/prepare.sh
for recording in tests/recordings/*.kovreplay; do
    node build/wasm/replay/kov-replay-verify.js "$recording" "$PWD"
done
cd tests/web
xvfb-run -a -s "-screen 0 1280x1024x24" node --test "$@" pictures.test.js page.test.js kept.test.js
