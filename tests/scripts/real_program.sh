# Sourced by the tests that drive the real program on a display of their own: real_program TEST_ARGUMENTS first.
# Keys come by xdotool; what a test sees are the names of windows, the files of the collection and the process.

# real_program PROGRAM: a display, a collection of the delivered files, and the tidying up. Says so where a tool is missing.
real_program() {
  program=$(readlink -f -- "$1")
  source_folder=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
  local tool
  for tool in Xvfb xdotool; do
    command -v "$tool" >/dev/null || { echo "skipped: $tool is missing"; exit 0; }
  done
  work=$(mktemp -d)
  server=
  running=
  passed=0
  failed=0
  trap 'kill $running $server 2>/dev/null; wait 2>/dev/null; rm -rf -- "$work"' EXIT
  open_display || { echo "skipped: Xvfb does not start"; exit 0; }
  export QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work HOME=$work
  unset XDG_CONFIG_HOME XDG_DATA_HOME
  collection=$work/films
  mkdir -- "$collection"
  find "$source_folder/delivered" -maxdepth 1 -type f -exec cp -t "$collection" -- {} +
  printf 'NO\r\n' >"$collection/Fo"
  printf 'NO\r\n' >"$collection/Fo1"
  draft=$collection/.reelora/draft
}

open_display() {
  local number pipe
  exec {pipe}<> <(:)
  # Without -noreset the server starts over when its last program goes, and refuses one that comes meanwhile.
  # Without -r a key of a program that comes to a stop between press and release would repeat itself.
  Xvfb -noreset -r -displayfd "$pipe" -screen 0 1280x900x24 >"$work/server" 2>&1 &
  server=$!
  read -r -t 30 -u "$pipe" number || return
  export DISPLAY=:$number
}

# check NAME COMMAND...
check() {
  local name=$1
  shift
  if "$@"; then passed=$((passed + 1)); else failed=$((failed + 1)); echo "FAILED: $name"; fi
}

# Ends the test with its closing line.
finish() {
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ]
}

# until_true COMMAND...: polls for half a minute.
until_true() {
  local tries
  for ((tries = 0; tries < 600; ++tries)); do
    "$@" && return
    sleep 0.05
  done
  echo "gave up: $*"
  return 1
}

# The title of the window with the keyboard begins so.
in_front() { xdotool getwindowfocus getwindowname 2>/dev/null | grep -q -- "^$1"; }
typed() { grep -q -- "$1" "$draft" 2>/dev/null; }

# A shell lets background programs ignore SIGINT; the program would respect that.
start() {
  (cd -- "$collection" && exec env --default-signal=INT "$program") >"$work/output" 2>&1 &
  running=$!
}

# Presses Start in the opening window.
open_record_screen() {
  until_true in_front "Reelora Prima version" && xdotool key alt+s
  until_true in_front "Reelora Prima Record"
}

# type_film TITLE: from the opening window on, the beginning of a new film.
type_film() {
  open_record_screen && xdotool key alt+w
  until_true in_front "Reelora Record Prima" && xdotool type --delay 20 "$1"
  until_true typed "$1"
}

# ends_with STATUS
ends_with() {
  local status
  wait "$running" 2>/dev/null
  status=$?
  running=
  [ "$status" = "$1" ] || { echo "status $status"; return 1; }
}

# ended_by SIGNAL STATUS
ended_by() {
  kill "-$1" "$running"
  ends_with "$2"
}
