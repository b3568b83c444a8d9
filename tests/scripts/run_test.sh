#!/usr/bin/env bash
# Plays ./run with a command that only reports how it was called: which folder is meant.
set -uo pipefail
source_folder=$(cd -- "$(dirname -- "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
passed=0
failed=0

# A tree with the real script. Its build makes a command that writes its arguments to `called`, a line each.
tree=$work/source
mkdir -p "$tree/packaging" "$work/home"
cp -- "$source_folder/run" "$tree/"
cat >"$tree/packaging/prepare.sh" <<END
install_needs() { [ ! -e "$work/missing" ] || { echo "Please install these packages first" >&2; return 1; }; }
build_tree() {
  mkdir -p build
  printf '#!/bin/sh\nprintf "%%s\\\\n" "\$@" >"%s"\n' "$work/called" >"build/\$2"
  chmod +x "build/\$2"
}
END

# start [FOLDER]: runs the script from the home folder; `called` stays away if no command starts.
start() {
  rm -f -- "$work/called"
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

called_with() { [ "$(cat -- "$work/called" 2>/dev/null)" = "$1" ]; }
not_called() { [ ! -e "$work/called" ]; }
says() { grep -q -- "$1" "$work/output"; }

start
check "no folder: the sample" called_with --sample
check "which it says" says "sample collection"

start films
check "a relative folder is meant from where the user stands" called_with "$work/home/films"
start "../home/./films/"
check "its name is made short" called_with "$work/home/films"
start "/no/such folder"
check "an absolute folder" called_with "/no/such folder"
start "-my own \"films\""
check "a name with a leading dash, blanks and quotes" called_with "$work/home/-my own \"films\""
ln -s /media/disk "$work/home/link"
start link
check "a link stays a link" called_with "$work/home/link"

: >"$work/missing"
start films
check "missing packages end the script" [ $? -ne 0 ]
check "and nothing is started" not_called
check "with the reason" says "Please install"

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
