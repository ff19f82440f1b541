#!/bin/sh
# make_share.sh FOLDER MAINTAINER: makes what packages hold beside the programs, as FOLDER/COMPONENT/...
set -eu
here=$(dirname "$(readlink -f "$0")")
rm -rf "$1"
mkdir -p "$1"
cd "$1"

for manual in "$here"/man/*/*.1; do
  component=desktop
  [ "${manual##*/}" != bogenwerker-headless.1 ] || component=headless
  language=$(basename "$(dirname "$manual")")/
  folder=$component/man/${language#en/}man1
  mkdir -p "$folder"
  gzip -9n <"$manual" >"$folder/${manual##*/}.gz"
done

for size in 48 64 128; do
  folder=desktop/icons/hicolor/${size}x$size/apps
  mkdir -p "$folder"
  rsvg-convert --width $size --height $size --output "$folder/bogenwerker.png" "$here/bogenwerker.svg"
done

awk -v maintainer="$2" -f "$here/debian_changelog.awk" "$here/../CHANGELOG.md" >changelog
for component in desktop headless data; do
  package=bogenwerker-$component
  folder=$component/doc/${package%-desktop}
  mkdir -p "$folder"
  cp "$here/copyright" "$folder/"
  gzip -9n <changelog >"$folder/changelog.gz"
done

# What the player's folder gets is stored as the program reads and writes it, in Windows-1252.
mkdir -p data/lintian/overrides
echo 'bogenwerker-data: national-encoding [usr/share/bogenwerker/*]' >data/lintian/overrides/bogenwerker-data
