#!/usr/bin/env bash
# try_session.sh KEYS: run by try.sh as an ordinary player: a desktop session without a screen, in which the program is
# started as the menu does and then played by those keys alone.
set -euo pipefail
export LANG=C.UTF-8
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x900x24 2>/dev/null)
read -r number <&3
export DISPLAY=:$number
openbox &
sleep 1
wait_for() {
  local tries
  for ((tries = 0; tries < 120; tries++)); do
    sleep 0.5
    ! xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1 || return 0
  done
  echo "No window is called $1"
  return 1
}

LC_NUMERIC=de_DE.UTF-8 sh -c "$(sed -n 's/^Exec=//p' /usr/share/applications/bogenwerker.desktop)" </dev/null >session.log 2>&1 &
program=$!
wait_for Bogenwerker # what the launcher says
xdotool key Return
window=''
while read -r verb what; do
  case $verb in
    window) [[ $what == "$window" ]] || wait_for "$what"; window=$what ;;
    key) xdotool key "$what" ;;
    type) xdotool type --delay 20 "$what" ;;
  esac
done < <(sed -n 's/^key Space/key space/; /^window/,$p' "$1")
wait_for Bogenwerker # the closing message
xdotool key Return
wait $program
cat session.log
ls -A Bogenwerker
