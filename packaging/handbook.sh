#!/usr/bin/env bash
# Makes the handbook: handbook.sh DOCS FOLDER
# Each of the player's texts becomes one page without anything from outside, its pictures inside. What opens a page may
# drop the place behind its #, so every section of the handbook gets a small page of its own that leads there.
set -euo pipefail
docs=$1 folder=$2
mkdir -p "$folder"

page() {  # page NAME: docs/NAME.md becomes FOLDER/NAME.html
  {
    printf '<!DOCTYPE html>\n<html lang="de">\n<head>\n<meta charset="utf-8">\n'
    printf '<meta name="viewport" content="width=device-width, initial-scale=1">\n'
    printf '<title>%s</title>\n<style>\n' "$(sed -n 's/^# //p' "$docs/$1.md" | head -n 1)"
    cat "$docs/handbuch.css"
    printf '</style>\n</head>\n<body>\n'
    cmark-gfm --unsafe --extension table "$docs/$1.md" | sed -E 's/(href="[a-z]+)\.md/\1.html/g' |
      while IFS= read -r line; do
        while [[ $line =~ src=\"([a-z0-9-]+\.png)\" ]]; do
          picture=${BASH_REMATCH[1]}
          line=${line/"src=\"$picture\""/"src=\"data:image/png;base64,$(base64 -w 0 "$docs/$picture")\""}
        done
        printf '%s\n' "$line"
      done
    printf '</body>\n</html>\n'
  } >"$folder/$1.html"
}

for name in handbuch kataloge glossar; do page "$name"; done
sed -n 's/^<a id="\([a-z0-9]*\)"><\/a>$/\1/p' "$docs/handbuch.md" | while read -r section; do
  printf '<!DOCTYPE html>\n<meta charset="utf-8">\n<meta http-equiv="refresh" content="0; url=handbuch.html#%s">\n%s\n' \
    "$section" "<title>Handbuch des Bogenwerkers</title><p><a href=\"handbuch.html#$section\">Zum Handbuch</a>" \
    >"$folder/handbuch-$section.html"
done
