#!/usr/bin/env bash
# try.sh SUITE [run] [test] [packages]: what a newcomer meets on a bare Debian (bookworm, trixie, testing): both commands,
# then the packages, installed and played by keyboard in a system of their own. Tries what is committed, all of it unless
# steps are named. Needs root and mmdebstrap; mirror and settings are those of this machine's own apt.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
suite=$1
shift
steps=" ${*:-run test packages} "
work=$(mktemp -d -t bogenwerker-try.XXXXXX)
trap 'rm -rf --one-file-system "$work"' EXIT

apt-config dump | grep -iE '^Acquire::(Check-|https?::)' >"$work/apt.conf" || true
mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Origin: Debian' 'Created-By: Packages' | grep -v security | head -n 1)
mmdebstrap --quiet --variant=minbase --aptopt="$work/apt.conf" "$suite" "$work/bare.tar" "$mirror"

# inside SYSTEM COMMAND...: with processes and mounts of its own, which end with it. A new system is bare.
inside() {
  local root=$work/$1
  shift
  [[ -d $root ]] || { mkdir "$root" && tar -C "$root" -xf "$work/bare.tar"; }
  unshare --mount --pid --fork --kill-child --mount-proc="$root/proc" sh -c '
    mount --rbind /dev "$0/dev" && exec chroot "$0" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin "$@"' "$root" "$@"
}
say() { printf '\n== %s: %s\n' "$suite" "$*"; }
wanted() { [[ $steps == *" $1 "* ]]; }
as_player() { inside installed su - spieler -c "$1"; }

place="/srv/Bögen und Werke"
inside built mkdir "$place"
git archive HEAD | tar -x -C "$work/built$place"
in_checkout() { inside built env -C "$place" "$@"; }

if wanted run; then
  say "./run on a bare system, without a display"
  time in_checkout ./run | tee "$work/run.log"
  [[ $(grep -c 'Das Datenblatt liegt' "$work/run.log") == 4 ]]
  say "and once more, without a network"
  time in_checkout unshare --net ./run >/dev/null
fi
if wanted test; then
  say "./test"
  time in_checkout ./test
fi
if wanted packages; then
  say "the packages"
  in_checkout ./test package | tail -n 8
  # The keys that play a whole character are those of the keyboard's own test.
  in_checkout env BOGENWERKER_KEYS=/tmp/keys build/release/tests/desktop/desktop-tests \
    --gtest_filter='WholeCharacter.*' | tail -n 2
  packages=("$work/built$place"/build/release/packages/*.deb)

  say "an older version, whose two catalogues lack their last rows, is installed and started"
  inside installed useradd --create-home spieler
  cp packaging/try_session.sh "${packages[@]}" "$work/built/tmp/keys" "$work/installed/tmp/"
  inside installed sh -ec '
    export DEBIAN_FRONTEND=noninteractive
    cd /tmp
    apt-get -qq update
    apt-get -qq install -y --no-install-recommends xvfb openbox xdotool
    for package in bogenwerker*.deb; do
      dpkg-deb -R $package old
      sed -i "s/\b1\.1\.0\b/1.0.9/g" old/DEBIAN/control
      for catalogue in old/usr/share/bogenwerker/*ware.txt; do [ ! -e $catalogue ] || sed -i "\$d" $catalogue; done
      dpkg-deb --build old old_$package
      rm -r old
    done
    apt-get -qq install -y --no-install-recommends ./old_*.deb' >"$work/log" 2>&1 || { tail "$work/log"; exit 1; }
  as_player "timeout 60 bogenwerker-start; echo >>Bogenwerker/Bioware.txt" || true

  say "this version is installed, started from the menu and played by keyboard"
  inside installed sh -c 'apt-get -qq install -y --no-install-recommends /tmp/bogenwerker*.deb' >"$work/log" 2>&1 ||
    { tail "$work/log"; exit 1; }
  as_player "bash /tmp/try_session.sh /tmp/keys"
  say "and removed"
  inside installed apt-get -qq purge -y bogenwerker bogenwerker-headless bogenwerker-data >/dev/null
  as_player "! command -v bogenwerker-start; ls Bogenwerker"
fi
say "through"
