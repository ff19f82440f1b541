# shellcheck shell=sh
# Sourced by the launcher and by run, in plain sh.

# What version 1.0.0 gave, which left no list of it in the player's folder.
given_by_1_0_0='
ab5b1744f2a347b30af7fc1612e7d05cd810f983f557479d3adc21fa32a5cb1a  Bioware.txt
4e164f9a73f5c3f3650d4907ac50441cdb395bf18bb6309565b28f77190f0536  Connection.txt
1e3142ecd0ad7cac46e7941cfdea03db2d811050b49822df1f450f87dcf34e72  Cyberdecks.txt
654de6ac12f4ca7ee14f0fc31ed6de6a54c81d28a0d5afa72f3be8e59da7b554  Cyberware.txt
488ec58e67ba4492596a70b3ad5f93af972c1655fde8c4d7fab347d7bc75381c  Lebensstil.txt
846c6a1113e8a6d581a2745d680f9529075059e1d27cd9b1284aae4298d9487d  MagicStuff.txt
330012adcdaff675efcbcf3d5ec6e795310769556d750ccdc4377d9b53c8adfa  template.htm
'

# supply FROM FOLDER: copies the catalogues and the template that FOLDER lacks. After an update, a file that the player
# left alone is renewed; beside one that the player changed the new one is laid as NAME.neu, once. What was given last
# stands in FOLDER/.geliefert. Tells on standard output what it did, in whole sentences, and nothing for nothing.
supply() {
  added='' renewed='' kept=''
  shipped=$(cd "$1" && sha256sum -- *.txt template.htm) || return
  given=$(cat "$2/.geliefert" 2>/dev/null) || given=$given_by_1_0_0
  while read -r sum name; do
    if [ ! -e "$2/$name" ]; then
      put "$1/$name" "$2/$name" || return
      added="$added $name"
    elif ! has "$given" "$sum  $name"; then
      own=$(sha256sum <"$2/$name") || return
      if has "$given" "${own%% *}  $name"; then
        put "$1/$name" "$2/$name" || return
        renewed="$renewed $name"
      elif [ "${own%% *}" != "$sum" ]; then
        put "$1/$name" "$2/$name.neu" || return
        kept="$kept $name"
      fi
    fi
  done <<END
$shipped
END
  [ "$given" = "$shipped" ] && [ -e "$2/.geliefert" ] || echo "$shipped" >"$2/.geliefert" || return
  [ -z "$added" ] || echo "Neu im Ordner $2:$added"
  [ -z "$renewed" ] || echo "Auf den neuen Stand gebracht:$renewed"
  [ -z "$kept" ] || echo "Von Ihnen geändert und so geblieben:$kept. Die neue Fassung liegt daneben, mit .neu am Ende."
}

has() { case $1 in *"$2"*) ;; *) return 1 ;; esac; }

# A file is renamed into its place whole, and never write-protected as the shipped one may be.
put() { cp --no-preserve=mode -- "$1" "$2.kopie" && mv -- "$2.kopie" "$2"; }
