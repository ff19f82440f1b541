# Sourced by what builds for Windows: the folder outside the checkout that holds what Debian has no Windows package of.
# ensure_headers_and_tests takes a minute, build-qt.sh half an hour to an hour on two cores; both only once.
windows_packages=(g++-mingw-w64-x86-64-posix nlohmann-json3-dev googletest)
windows_qt_packages=(perl dpkg-dev qt6-base-dev qt6-translations-l10n)
windows_package_packages=(nsis zip librsvg2-bin icoutils cmark-gfm)
windows_test_packages=(wine wine64 xvfb openbox xdotool)

export BOGENWERKER_WINDOWS=${BOGENWERKER_WINDOWS:-${XDG_CACHE_HOME:-$HOME/.cache}/bogenwerker/windows}
windows_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
windows_toolchain=$windows_folder/toolchain.cmake

# The one library of headers, and GoogleTest. /usr/include itself would give the cross compiler the headers of Linux.
ensure_headers_and_tests() {
  [[ ! -e $BOGENWERKER_WINDOWS/lib/libgtest_main.a ]] || return 0
  mkdir -p "$BOGENWERKER_WINDOWS"/{include,share/cmake}
  cp -r /usr/include/nlohmann "$BOGENWERKER_WINDOWS/include"
  cp -r /usr/share/cmake/nlohmann_json "$BOGENWERKER_WINDOWS/share/cmake"
  local build=$BOGENWERKER_WINDOWS/build-googletest
  cmake -S /usr/src/googletest -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_GMOCK=OFF \
    --toolchain "$windows_toolchain" -DCMAKE_INSTALL_PREFIX="$BOGENWERKER_WINDOWS" >"$BOGENWERKER_WINDOWS/googletest.log" &&
    cmake --build "$build" --target install >>"$BOGENWERKER_WINDOWS/googletest.log" ||
    { tail -20 "$BOGENWERKER_WINDOWS/googletest.log" >&2; return 1; }
  rm -r "$build"
}
