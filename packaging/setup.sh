# Sourced by run and test: brings a bare Debian 12 to what they need. Says nothing and needs no network where all is there.

# ensure_packages NAME...: installs what is missing, as root or through sudo.
ensure_packages() {
  local missing=() name
  for name in "$@"; do
    [[ $(dpkg-query -W -f '${Status}' "$name" 2>/dev/null) == "install ok installed" ]] || missing+=("$name")
  done
  [[ ${#missing[@]} -gt 0 ]] || return 0
  local as_root=()
  [[ $(id -u) == 0 ]] || as_root=(sudo)
  echo "Installing ${missing[*]} …" >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq update >/dev/null &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y --no-install-recommends install "${missing[@]}" >/dev/null
}

build_packages=(g++ cmake ninja-build nlohmann-json3-dev)
desktop_packages=(qt6-base-dev qt6-wayland fonts-dejavu-core)
test_packages=(libgtest-dev libbenchmark-dev clang-14 libclang-rt-14-dev python3 strace)
browser_packages=(chromium chromium-driver python3-selenium poppler-utils)
