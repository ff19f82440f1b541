# CHANGELOG.md in Debian's form: the release, its points in lines of at most 78 bytes, who and when.
function end_point(  count, words, i, line) {
  count = split(point, words, " ")
  line = "  *"
  for (i = 1; i <= count; i++) {
    if (length(line " " words[i]) > 78) {
      print line
      line = "   "
    }
    line = line " " words[i]
  }
  if (count) print line
  point = ""
}

function end_release() {
  end_point()
  if (when) printf "\n -- %s  %s\n", maintainer, when
}

/^## \[[0-9]/ {
  end_release()
  if (when) print ""
  ("LC_ALL=C date -u -R -d " $4) | getline when
  printf "bogenwerker (%s) unstable; urgency=medium\n\n", substr($2, 2, length($2) - 2)
  next
}
/^- / { end_point() }
when && /^(- |  )/ { point = point " " substr($0, 3) }
END { end_release() }
