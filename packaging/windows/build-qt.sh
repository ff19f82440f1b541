#!/usr/bin/env bash
# Builds Qt for Windows, static and with no more than the program uses, out of Debian's own source package in the
# version of the tools that are installed. Half an hour to an hour on two cores, once; a change below builds it anew.
set -euo pipefail
source "$(dirname "$0")/../setup.sh"
source "$(dirname "$0")/prefix.sh"
ensure_packages "${build_packages[@]}" "${windows_packages[@]}" "${windows_qt_packages[@]}"

# Of what is left on: testlib for the tests, desktopservices for the sheet in the browser.
without=(vulkan dbus sql network concurrent printsupport xml
  glib icu zstd freetype jpeg gif ico pdf movie mimetype
  textmarkdownreader textmarkdownwriter textodfwriter hijricalendar jalalicalendar
  direct2d1_1 style_windowsvista tabletevent systemtrayicon sharedmemory systemsemaphore undocommand
  graphicsview mdiarea calendarwidget wizard fontdialog colordialog fontcombobox errormessage inputdialog
  progressdialog treewidget tablewidget columnview lcdnumber dial keysequenceedit splashscreen toolbox
  pkg_config system_zlib system_png system_pcre2 system_harfbuzz system_doubleconversion)
options=(-DBUILD_SHARED_LIBS=OFF -DCMAKE_BUILD_TYPE=Release -DINPUT_opengl=no
  -DFEATURE_optimize_size=ON -DFEATURE_gc_binaries=ON -DFEATURE_relocatable=ON
  -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_QMAKE_TARGET_MKSPEC=win32-g++)
for feature in "${without[@]}"; do options+=("-DFEATURE_$feature=OFF"); done

version=$(dpkg-query -W -f '${source:Version}' qt6-base-dev)
made="$version ${options[*]}"
mkdir -p "$BOGENWERKER_WINDOWS"

# Two at once would spoil each other's work; the second finds all done.
exec {lock}>"$BOGENWERKER_WINDOWS/qt-lock"
flock "$lock"
[[ $made != "$(cat "$BOGENWERKER_WINDOWS/qt-made" 2>/dev/null)" ]] || exit 0

work=$BOGENWERKER_WINDOWS/build-qt
fetch_source() {
  rm -rf "$work" "$BOGENWERKER_WINDOWS/qt-made"
  mkdir -p "$work"/{lists/partial,archives/partial}
  cd "$work"
  # By lists of our own, so that nothing of the machine's package lists changes.
  # shellcheck disable=SC2016  # apt fills these in
  apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Created-By: Packages' 'Origin: Debian' | sort -u >sources.list
  local apt=(apt-get -qq -o Dir::Etc::sourcelist="$work/sources.list" -o Dir::Etc::sourceparts=-
    -o Dir::State::lists="$work/lists" -o Dir::Cache="$work" -o APT::Sandbox::User="$(id -un)")
  echo "Qt $version: fetching the source …"
  "${apt[@]}" update
  "${apt[@]}" source --download-only "qt6-base=$version"
  dpkg-source --no-check -x qt6-base_*.dsc source >unpack.log
  echo "$made" >making
}
# What was interrupted goes on where it stopped.
[[ $made == "$(cat "$work/making" 2>/dev/null)" ]] || fetch_source
cd "$work"

# Where the machine's files lie is nobody's business: no path of them in the program.
echo "Qt $version: building, see $work/build.log …"
{
  CFLAGS="-ffile-prefix-map=$work=." CXXFLAGS="-ffile-prefix-map=$work=." \
    cmake -S source -B build -G Ninja --toolchain "$windows_toolchain" -DCMAKE_INSTALL_PREFIX="$BOGENWERKER_WINDOWS" \
    "${options[@]}" && cmake --build build && cmake --install build
} >build.log 2>&1 || { grep -m 5 -A 10 -E 'error|FAILED' build.log || tail -30 build.log; exit 1; } >&2
mkdir -p "$BOGENWERKER_WINDOWS/share/qt"
cp source/LICENSES/{LGPL-3.0-only,GPL-3.0-only}.txt "$BOGENWERKER_WINDOWS/share/qt"
cd /
rm -r "$work"
echo "$made" >"$BOGENWERKER_WINDOWS/qt-made"
