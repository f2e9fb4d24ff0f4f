#!/bin/sh
# Pins the pictures of tests/pictures anew, after a change of the look that is meant.
set -eu
cd "$(dirname "$0")/.."
cmake --preset release -DKOV_TESTS=ON >/dev/null
cmake --build --preset release --target kov_tests
rm -f tests/pictures/*.txt
KOV_RENEW_PICTURES=1 build/release/tests/kov_tests --gtest_brief=1 \
    --gtest_filter='Pictures*:QuestionsTest.*' 2>/dev/null
git --no-pager diff --stat tests/pictures
