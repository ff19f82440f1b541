#!/usr/bin/env bash
# lint.sh BUILD_FOLDER: the direction between the rooms, form and slips of the whole tree. The build folder needs to be
# configured, not built. Each version of the two tools has a form and checks of its own: the tree is kept clean with
# Debian 12's.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

mapfile -t sources < <(find src tests bench fuzz -name '*.cpp' -o -name '*.h' | sort)
packaging/rooms.sh
echo "clang-format: ${#sources[@]} files"
clang-format-14 --dry-run -Werror "${sources[@]}"
echo "clang-tidy, in some minutes"
run-clang-tidy-14 -quiet -p "$1" -extra-arg=-Wno-unknown-warning-option "$PWD/(src|tests|bench|fuzz)/" >"$1/tidy.log" 2>&1 ||
  { grep -E -A4 '(warning|error):' "$1/tidy.log"; exit 1; }
echo "shellcheck"
shellcheck --severity=warning -x run test packaging/*.sh packaging/bogenwerker-start tests/*.sh
