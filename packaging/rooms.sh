#!/usr/bin/env bash
# Arrows between the rooms of src/ run one way: a file includes its own room and those ahead of it here, and neither
# front end the other.
set -euo pipefail
cd "$(dirname "$0")/.."
rooms=(values outside forms catalogues zusatzmodul finish equipment skills attributes priorities wizard headless desktop launcher)

allowed="" bad=0
for room in "${rooms[@]}"; do
  allowed+="|$room"
  may=${allowed#|}
  [[ $room != desktop ]] || may=${may/|headless/}
  [[ $room != launcher ]] || may=launcher
  grep -HnoE '^#include "[a-z]+/' -r "src/$room" | grep -vE "\"($may)/" && bad=1
done
for folder in src/*/; do
  [[ " ${rooms[*]} " == *" $(basename "$folder") "* ]] || { echo "$folder is no room yet"; bad=1; }
done
exit $bad
