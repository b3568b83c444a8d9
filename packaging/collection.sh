# Sourced by ./run and reelora: how a collection gets its delivered files. Plain sh.

# put_file SOURCE TARGET: copies SOURCE if TARGET is missing or empty; a file with content stays. The copy takes its
# name when it is complete. On failure the reason is printed and the status is not 0.
put_file() {
  [ -s "$2" ] && return 0
  if cp -- "$1" "$2.part" && mv -f -- "$2.part" "$2"; then return 0; fi
  rm -f -- "$2.part"
  echo "Cannot put ${1##*/} into the collection." >&2
  return 1
}

# make_collection DELIVERED FOLDER: puts every delivered file into FOLDER. FOLDER is created; its path is absolute.
make_collection() {
  mkdir -p -- "$2" || return 1
  for delivered_file in "$1"/*; do
    if [ -f "$delivered_file" ]; then
      put_file "$delivered_file" "$2/${delivered_file##*/}" || return 1
    fi
  done
}
