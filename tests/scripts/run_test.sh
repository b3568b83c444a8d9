#!/usr/bin/env bash
# Plays ./run and reelora with a program that only reports where it was started: which folder opens, and
# what is put into it.
set -uo pipefail
source_folder=$(cd -- "$(dirname -- "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
passed=0
failed=0

# A tree with the real script and delivered files. Its build makes a program that writes its folder to `opened`.
tree=$work/source
mkdir -p "$tree/packaging" "$work/home" "$work/bin"
cp -- "$source_folder/run" "$tree/"
cp -- "$source_folder/packaging/collection.sh" "$tree/packaging/"
cp -r -- "$source_folder/delivered" "$tree/"
cat >"$tree/packaging/prepare.sh" <<END
install_needs() { :; }
build_tree() { mkdir -p build; printf '#!/bin/sh\npwd >"%s"\n' "$work/opened" >build/reelora-prima; chmod +x build/reelora-prima; }
END

# start [FOLDER]: runs the script from the home folder; `opened` stays away if the program does not start.
start() {
  rm -f -- "$work/opened"
  (cd -- "$work/home" && DISPLAY=:none "$tree/run" "$@" >"$work/output" 2>&1)
}

# check NAME COMMAND...
check() {
  local name=$1
  shift
  if "$@"; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    echo "FAILED: $name"
    cat -- "$work/output"
  fi
}

opened_in() { [ "$(cat -- "$work/opened" 2>/dev/null)" = "$1" ]; }
not_opened() { [ ! -e "$work/opened" ]; }
is_complete() {
  local file
  for file in "$tree"/delivered/*; do
    [ ! -f "$file" ] || cmp -s -- "$file" "$1/${file##*/}" || { echo "${file##*/} differs in $1"; return 1; }
  done
}
holds() { [ "$(cat -- "$1")" = "$2" ]; }
says() { grep -q -- "$1" "$work/output"; }

start films
check "a relative folder is meant from where the user stands" opened_in "$work/home/films"
check "a new collection has every delivered file" is_complete "$work/home/films"

start "-my own films"
check "a name with a leading dash and blanks" opened_in "$work/home/-my own films"
check "its files" is_complete "$work/home/-my own films"

start
check "no folder: the sample" opened_in "$tree/build/sample"
check "the films of the sample" cmp -s -- "$tree/delivered/sample/Recpra.Dat" "$tree/build/sample/Recpra.Dat"

half=$work/home/half
mkdir -p -- "$half"
printf 'NO\r\n' >"$half/AutoSave"
printf '255\r\n' >"$half/BGColor"
: >"$half/Fo1"
start half
check "a half-made collection opens" opened_in "$half"
check "a missing file is put there" cmp -s -- "$tree/delivered/UPPER.ALT" "$half/UPPER.ALT"
check "an empty file is put there again" cmp -s -- "$tree/delivered/Fo1" "$half/Fo1"
check "a file with content stays" holds "$half/BGColor" $'255\r'
check "no temporary file stays" sh -c '! ls "$1" | grep -q "\.part$"' sh "$half"

# A disk that is full from the second copy on.
cat >"$work/bin/cp" <<END
#!/bin/sh
if [ -e "$work/copied" ]; then echo "cp: No space left on device" >&2; exit 1; fi
: >"$work/copied"
exec $(command -v cp) "\$@"
END
chmod +x "$work/bin/cp"
PATH=$work/bin:$PATH start full
check "a failed copy ends the script" [ $? -ne 0 ]
check "with the reason" says "No space left on device"
check "and with the file's name" says "Cannot put"
check "and starts no program" not_opened
start full
check "the next start completes the collection" is_complete "$work/home/full"

: >"$work/home/file"
start file/below
check "a folder that cannot be made ends the script" [ $? -ne 0 ]
check "and starts no program either" not_opened

# The installed script, beside a program that reports in the same way.
installed=$work/usr
mkdir -p -- "$installed/bin" "$installed/share/reelora-prima"
cp -r -- "$source_folder/delivered" "$source_folder/packaging/collection.sh" "$installed/share/reelora-prima/"
cp -- "$source_folder/packaging/reelora-collection" "$installed/bin/reelora"
cp -- "$tree/build/reelora-prima" "$installed/bin/"
rm -f -- "$work/opened"
(cd -- "$work/home" && "$installed/bin/reelora" "-installed one" >"$work/output" 2>&1)
check "the installed script opens a relative folder" opened_in "$work/home/-installed one"
check "and completes it" is_complete "$work/home/-installed one"

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
