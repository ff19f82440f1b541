#!/usr/bin/env bash
# Makes what players at Windows get, in build/windows/packages: the installer, the zip with the same tree, and the
# objects of the program to link it anew with another Qt. Arguments go to CMake. A few minutes, once Qt is there.
set -euo pipefail
cd "$(dirname "$0")/../.."
source packaging/setup.sh
source packaging/windows/prefix.sh
ensure_packages "${build_packages[@]}" "${windows_packages[@]}" "${windows_qt_packages[@]}" "${windows_package_packages[@]}"
ensure_headers_and_tests
packaging/windows/build-qt.sh

build=$PWD/build/windows
packages=$build/packages
rm -rf "$build/tree" "$build/objects" "$packages"
mkdir -p "$packages"
cmake --preset windows "$@" >"$build/configure.log" || { cat "$build/configure.log" >&2; exit 1; }
cmake --build "$build"
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
qt_made=$(cat "$BOGENWERKER_WINDOWS/qt-made")
name=Bogenwerker-$version

# fill_in FILE: with what it says in Windows' line ends.
fill_in() { sed -e "s/@VERSION@/$version/g" -e "s/@QT_VERSION@/${qt_made%% *}/g" -e 's/$/\r/' "$1"; }

tree=$build/tree/$name
cmake --install "$build" --prefix "$tree" --strip >/dev/null
mkdir -p "$tree/Lizenzen"
fill_in packaging/windows/LIESMICH-Lizenzen.txt >"$tree/Lizenzen/LIESMICH.txt"
cp "$BOGENWERKER_WINDOWS"/share/qt/*.txt "$tree/Lizenzen"
for package in qt6-base-dev qt6-translations-l10n nlohmann-json3-dev gcc-mingw-w64-base mingw-w64-x86-64-dev; do
  cp "/usr/share/doc/$package/copyright" "$tree/Lizenzen/copyright-$package.txt"
done

# The last command of the build is the link: its objects by the names that it has for them, Qt by a name of its own.
objects=$build/objects/$name-objekte
mkdir -p "$objects"
link=$(ninja -C "$build" -t commands bogenwerker.exe | tail -n 1 | sed -E 's/^: && //; s/ && :.*$//; s/^[^ ]*ccache //')
(cd "$build" && tr ' ' '\n' <<<"$link" | grep -E '^[^-/].*\.(obj|a)$' | xargs cp --parents -t "$objects")
{
  # shellcheck disable=SC2016  # the script's own variable
  printf '#!/bin/sh\n: "${QT:?}"\n%s\n' "${link//"$BOGENWERKER_WINDOWS"/\"\$QT\"}"
} >"$objects/binden.sh"
chmod +x "$objects/binden.sh"
fill_in packaging/windows/LIESMICH-Objekte.txt >"$objects/LIESMICH.txt"
echo "$qt_made" >"$objects/qt-gebaut.txt"

(cd "$build/tree" && zip -qXr "$packages/$name-windows.zip" "$name")
(cd "$build/objects" && zip -qXr "$packages/$name-windows-objekte.zip" "$name-objekte")
# What the uninstaller takes away: each file by its name, then each folder if it is empty.
(cd "$tree" && find . -mindepth 1 -type f -printf '  Delete "$INSTDIR\\%P"\n' &&
  find . -mindepth 1 -depth -type d -printf '  RMDir "$INSTDIR\\%P"\n') | tr / '\\' >"$build/list.nsh"
makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DTREE="$tree" -DLIST="$build/list.nsh" \
  -DICON="$build/packaging/windows/bogenwerker.ico" -DOUT="$packages/$name-Setup.exe" packaging/windows/setup.nsi
ls -l "$packages"
