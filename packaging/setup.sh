# shellcheck shell=bash disable=SC2034
# Sourced by run and test: brings a bare Debian to what they need, and tells how far that is. Says nothing, asks apt
# nothing and needs no network where all is there. No package is named with a version: each Debian has its own.

build_packages=(g++ cmake ninja-build nlohmann-json3-dev)
desktop_packages=(qt6-base-dev cmark-gfm qt6-translations-l10n qt6-wayland fonts-dejavu-core)
test_packages=(libgtest-dev libbenchmark-dev clang libclang-rt-dev python3 locales)
lint_packages=(clang-format-14 clang-tidy-14 shellcheck)
package_packages=(dpkg-dev lintian desktop-file-utils appstream mandoc librsvg2-bin)
browser_packages=(chromium chromium-driver firefox-esr python3-websocket poppler-utils fontconfig
                  fonts-liberation fonts-noto-core fonts-crosextra-carlito)

# progress WHAT DONE TOTAL: on a terminal a line that is rewritten in place, otherwise a plain line each quarter.
progress() {
  local mark="$1 $(($2 * 4 / $3))"
  if [[ -t 2 ]]; then
    printf '\r\e[K%s: %d von %d' "$@" >&2
    [[ $2 != "$3" ]] || echo >&2
  elif [[ $mark != "${told:-}" ]]; then
    echo "$1: $2 von $3" >&2
  fi
  told=$mark
}

# give_up LOG WHAT_TO_DO: shows the end of what failed.
give_up() {
  printf '\n' >&2
  tail -n 15 "$1" >&2
  printf '\nDas ist misslungen. %s\nAlles, was dabei gemeldet wurde, steht in %s\n' "$2" "$1" >&2
  exit 1
}

# ensure_packages NAME...: installs what is missing, as root or through sudo.
ensure_packages() {
  command -v dpkg-query >/dev/null || return 0  # another system: CMake tells what is missing
  local installed missing=() name
  installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null) || true
  for name in "$@"; do
    [[ $'\n'$installed$'\n' == *$'\n'"$name installed"$'\n'* ]] || missing+=("$name")
  done
  [[ ${#missing[@]} -gt 0 ]] || return 0

  local apt=(env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get -y -o DPkg::Lock::Timeout=60)
  local by_hand="apt-get update && apt-get install --no-install-recommends ${missing[*]}"
  if [[ $(id -u) != 0 ]]; then
    if ! command -v sudo >/dev/null; then
      printf 'Es fehlen Pakete. Bitte lassen Sie diese Zeile als root ausführen:\n  %s\n' "$by_hand" >&2
      exit 1
    fi
    apt=(sudo "${apt[@]}")
  fi
  echo "Es fehlen Pakete: ${missing[*]}" >&2
  local log to_do="Ist das Netz erreichbar? Sonst lassen Sie diese Zeile als root ausführen:"$'\n'"  $by_hand"
  log=$(mktemp -t bogenwerker-apt.XXXXXX)
  echo "Die Paketlisten werden geholt." >&2
  "${apt[@]}" update >"$log" 2>&1 || give_up "$log" "$to_do"
  apt+=(--no-install-recommends install "${missing[@]}")
  "${apt[@]}" --print-uris >"$log" 2>&1 || give_up "$log" "$to_do"
  local files megabytes
  read -r files megabytes < <(awk '/^\x27/ { files++; bytes += $3 } END { print files + 0, int(bytes / 1e6) + 1 }' "$log")
  echo "$files Pakete werden geholt ($megabytes MB) und eingerichtet." >&2
  # apt tells percents of what it fetches (dlstatus) and then of what it sets up (pmstatus), among all else.
  "${apt[@]}" -o APT::Status-Fd=1 2>&1 | tee "$log" | while IFS=: read -r kind _ percent _; do
    case $kind in
      dlstatus) progress "Geholte Pakete" $((files * ${percent%.*} / 100)) "$files" ;;
      pmstatus) progress "Eingerichtete Pakete" $((files * ${percent%.*} / 100)) "$files" ;;
    esac
  done || give_up "$log" "$to_do"
  rm -f "$log"
}

# drop_moved_build FOLDER: CMake refuses a build folder that was made for a checkout at another place.
drop_moved_build() {
  [[ ! -e $1/CMakeCache.txt ]] || grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$1/CMakeCache.txt" || rm -rf "$1"
}

# bring_up_to_date FOLDER LOG: builds what is not, and says nothing where nothing is to be built.
bring_up_to_date() {
  NINJA_STATUS='[%f/%t] ' ninja -C "$1" 2>&1 | tee "$2" | while read -r status _; do
    [[ ! $status =~ ^\[([0-9]+)/([2-9]|[0-9]{2,})\]$ ]] ||
      progress "Gebaute Dateien" "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
  done
}
