#!/usr/bin/env bash
# test.sh windows-core: core and headless program for Windows, their tests and the examples under wine, in minutes.
# test.sh windows: all of that, the windows too, the packages made, installed, started and removed.
set -euo pipefail
cd "$(dirname "$0")/../.."
source packaging/setup.sh
source packaging/windows/prefix.sh
ensure_packages "${build_packages[@]}" "${windows_packages[@]}" "${windows_test_packages[@]}"
ensure_headers_and_tests
if [[ $1 == windows-core ]]; then
  exec cmake --workflow --preset windows-core
fi

packaging/windows/build.sh
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows/CMakeCache.txt)
installer=build/windows/packages/Bogenwerker-$version-Setup.exe

# A screen of our own that has room for every window, with a window manager: without one a change of window takes long.
exec {numbers}< <(exec Xvfb -displayfd 1 -screen 0 3000x2000x24 2>/dev/null)
screen=$!
read -r -u "$numbers" number
export DISPLAY=:$number
openbox &
manager=$!
trap 'kill $manager $screen' EXIT

# One at a time: two windows would fight for the keys.
ctest --preset windows -j1

failed() { echo "$*" >&2; exit 1; }
wine=packaging/windows/under-wine.sh
user=$BOGENWERKER_WINDOWS/wine/prefix/drive_c/users/$(id -un)
installed=$user/AppData/Local/Programs/Bogenwerker
documents=$user/Documents  # wine makes it a link into this home
rm -rf "$installed" "$documents/Bogenwerker"

$wine 120 "$installer" /S
diff -r -x uninstall.exe "build/windows/tree/Bogenwerker-$version" "$installed" || failed "Installiert ist anderes als im Zip."
$wine 60 reg query 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Bogenwerker' /v DisplayVersion |
  grep -q "$version" || failed "Unter den Apps steht nichts."

# The launcher fills the player's folder and starts the program; while that runs, nothing is replaced.
$wine 60 "$installed/Bogenwerker.exe" &
xdotool search --sync --onlyvisible --name 'Bogenwerker - Schritt 1' >/dev/null
diff -r -x .geliefert -x Bogenwerker.sperre data "$documents/Bogenwerker" || failed "Im Ordner des Spielers liegt anderes als geliefert."
if $wine 120 "$installer" /S; then failed "Das laufende Programm wurde ersetzt."; fi
$wine 60 wineboot -k
wait %?Bogenwerker.exe || true

$wine 120 "$installed/uninstall.exe" /S "_?=$(sed 's|.*/drive_c|C:|; s|/|\\|g' <<<"$installed")"
left=$(find "$installed" -type f ! -name uninstall.exe 2>/dev/null)
[[ -z $left ]] || failed "Nach dem Entfernen liegt noch da: $left"
[[ -e $documents/Bogenwerker/Bioware.txt ]] || failed "Das Entfernen nahm den Ordner des Spielers mit."
echo "Eingerichtet, gestartet und entfernt: $installer"
