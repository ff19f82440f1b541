#!/bin/sh
# The closing line of ./test: how many lines of tests there are to the lines of code, blank ones aside. Fails above 34 in
# a hundred.
set -eu
cd "$(dirname "$(readlink -f "$0")")/.."
lines() { find "$@" -type f ! -name '*.pyc' ! -name '*.png' -exec cat {} + | grep -c '[^[:space:]]'; }
grouped() { echo "$1" | sed -e ':more' -e 's/\([0-9]\)\([0-9]\{3\}\)\($\|\.\)/\1.\2\3/' -e 't more'; }
tests=$(lines tests fuzz/*.cpp)
code=$(lines src)
share=$(((tests * 100 + code - 1) / code))
echo "Tests: $(grouped "$tests") Zeilen auf $(grouped "$code") Zeilen Code, $share von 100"
[ "$share" -le 34 ]
