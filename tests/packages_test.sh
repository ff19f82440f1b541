#!/bin/sh
# packages_test.sh BUILD_FOLDER VERSION: makes the packages, checks each by Debian's own rules, and starts what they
# hold as a player with an empty home would, after installing them and after an update.
set -eu
here=$(dirname "$(readlink -f "$0")")
cd "$1"
rm -rf packages
cpack >/dev/null

lintian --allow-root --fail-on error,warning packages/*.deb
root=$PWD/packages/installed
for package in packages/*.deb; do dpkg-deb --extract "$package" "$root"; done
desktop-file-validate "$root"/usr/share/applications/*.desktop
appstreamcli validate --no-net "$root"/usr/share/metainfo/*.xml
mandoc -T lint -W warning "$here"/../packaging/man/*/*.1

for program in bogenwerker bogenwerker-headless; do
  [ "$("$root/usr/bin/$program" --version)" = "$program, Version $2" ]
  "$root/usr/bin/$program" nonsense --help | grep -q "^Aufruf: $program \[--help"
done

# The program itself is played in the tests of the windows: what counts here is where it is started.
printf '#!/bin/sh\npwd\n' >"$root/usr/bin/bogenwerker"
shared=$root/usr/share/bogenwerker
home=$PWD/packages/"zu Hause"
folder=$home/Bogenwerker
mkdir "$home"

# expect TEXT [ARGUMENT]: what the launcher says without a screen.
expect() {
  said=$(env -u DISPLAY -u WAYLAND_DISPLAY HOME="$home" "$root/usr/bin/bogenwerker-start" ${2:+"$2"} 2>&1) || true
  # shellcheck disable=SC2254 # a pattern
  case $said in $1) ;; *) echo "Expected $1, got $said"; exit 1 ;; esac
}
expect "Neu im Ordner $folder: Bioware.txt*template.htm?$folder"
expect "$folder"
echo >>"$folder/Cyberware.txt"
rm "$folder/Bioware.txt"
expect "Neu im Ordner $folder: Bioware.txt?$folder"
for file in Cyberware.txt Bioware.txt; do echo "neu" >>"$shared/$file"; done
expect "Auf den neuen Stand gebracht: Bioware.txt?Von Ihnen geändert und so geblieben: Cyberware.txt.*?$folder"
cmp "$shared/Cyberware.txt" "$folder/Cyberware.txt.neu"
cmp "$shared/Bioware.txt" "$folder/Bioware.txt"
rm "$folder/Cyberware.txt.neu"
expect "$folder"
[ ! -e "$folder/Cyberware.txt.neu" ]

cd "$home"
expect "Neu im Ordner $home/anderswo: *$home/anderswo" anderswo
mkdir hier && cd hier
expect "Neu im Ordner $home/hier: *$home/hier" --hier
touch datei
expect "Der Ordner datei lässt sich nicht öffnen. *" datei
expect "bogenwerker-start startet *" --unbekannt
