#!/bin/sh
# Whether libraries and objects want elementary functions of the C library, of any precision:
# Framework/math/Elementary.h has the game's own.
#   symbols_test.sh FILE...
set -u
functions="sin|cos|tan|sincos|asin|acos|atan|atan2|sinh|cosh|tanh|exp|exp2|expm1"
functions="$functions|log|log2|log10|log1p|pow|cbrt|fmod|hypot"

list=$(mktemp)
trap 'rm -f "$list"' EXIT
"${NM:-nm}" -u "$@" >"$list" || exit 1
grep -q 'SDL_PollEvent' "$list" || { echo "no symbols were read"; exit 1; } # the game wants that
! grep -E " U _?_?($functions)(f|l|f128|_finite)?(@.*)?\$" "$list"
