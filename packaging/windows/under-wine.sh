#!/usr/bin/env bash
# under-wine.sh SECONDS PROGRAM ARGUMENT...: runs a Windows program, in a home of its own, killed after that time.
# CMake runs the tests of a cross build by it. There / is Z:/.
set -euo pipefail
source "$(dirname "$0")/prefix.sh"
export HOME=$BOGENWERKER_WINDOWS/wine WINEPREFIX=$BOGENWERKER_WINDOWS/wine/prefix WINEDEBUG=${WINEDEBUG:--all}
# Without UTF-8 there is no "Prioritäten.txt"; of numbers the environment is to say nothing.
unset LANG LC_ALL LC_NUMERIC
export LC_CTYPE=C.UTF-8
export WINEDLLOVERRIDES="mscoree,mshtml=" WINE_SERVER=${WINE_SERVER:-/usr/lib/wine/wineserver64}

# Ahead of all, since the first program would else start the server and its services with its own pipes, and whoever
# reads them would wait for those. They go by themselves, a minute after the last program.
mkdir -p "$HOME"
exec 9>"$HOME/lock"
flock 9
if "$WINE_SERVER" -p60 </dev/null &>/dev/null 9>&-; then
  timeout -s KILL 120 wineboot </dev/null &>/dev/null 9>&- || true
fi
if [[ ! -e $HOME/made ]]; then
  # The folders of this prefix are in this home, so that an installer writes nowhere else; a German counts in commas.
  international='HKCU\Control Panel\International'
  timeout -s KILL 60 wine reg add "$international" /v sDecimal /d , /f &>/dev/null 9>&-
  timeout -s KILL 60 wine reg add "$international" /v sThousand /d . /f &>/dev/null 9>&-
  touch "$HOME/made"
fi
exec 9>&-
exec timeout -s KILL "$1" wine "${@:2}"
