#!/usr/bin/env bash
# Types a film into the real program and ends it by signals, a kill included, with and without a box: each signal but
# the kill ends it with status 0, and the next start offers what was typed. Usage: session_end_test.sh REELORA_PRIMA
set -uo pipefail
program=$(readlink -f -- "$1")
source_folder=$(cd -- "$(dirname -- "$0")/../.." && pwd)
for tool in Xvfb xdotool; do
  command -v "$tool" >/dev/null || { echo "skipped: $tool is missing"; exit 0; }
done
work=$(mktemp -d)
server=
running=
trap 'kill $running $server 2>/dev/null; wait 2>/dev/null; rm -rf -- "$work"' EXIT
exec {display_pipe}<> <(:)
# Without -noreset the server starts over when its last program goes, and refuses one that comes meanwhile.
Xvfb -noreset -displayfd "$display_pipe" -screen 0 1280x900x24 >"$work/server" 2>&1 &
server=$!
read -r -t 30 -u "$display_pipe" number || { echo "skipped: Xvfb does not start"; exit 0; }
export DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work

collection=$work/films
mkdir -- "$collection"
find "$source_folder/delivered" -maxdepth 1 -type f -exec cp -t "$collection" -- {} +
printf 'NO\r\n' >"$collection/Fo"
printf 'NO\r\n' >"$collection/Fo1"
draft=$collection/.reelora/draft
passed=0
failed=0

check() {
  local name=$1
  shift
  if "$@"; then passed=$((passed + 1)); else failed=$((failed + 1)); echo "FAILED: $name"; fi
}
# until_true COMMAND...: polls for ten seconds.
until_true() {
  local tries
  for ((tries = 0; tries < 200; ++tries)); do
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
# Presses Start and types the beginning of a new film.
type_film() {
  until_true in_front "Reelora Prima version" && xdotool key alt+s
  until_true in_front "Reelora Prima Record" && xdotool key alt+w
  until_true in_front "Reelora Record Prima" && xdotool type --delay 20 "$1"
  until_true typed "$1"
}
# ended_by SIGNAL STATUS
ended_by() {
  local status
  kill "-$1" "$running"
  wait "$running" 2>/dev/null
  status=$?
  running=
  [ "$status" = "$2" ] || { echo "status $status"; return 1; }
}

start
check "a film is typed" type_film Alien
check "SIGTERM ends the program cleanly" ended_by TERM 0
check "the draft stands" typed Alien

for signal in TERM INT HUP; do
  start
  check "the next start asks" until_true in_front "Reelora Prima$"
  check "SIG$signal ends it at the question" ended_by "$signal" 0
  check "the draft still stands" typed Alien
done

start
until_true in_front "Reelora Prima$" && xdotool key Return
check "a second film is typed" type_film Brazil
check "the first one was kept" grep -q Alien "$collection/Recpra.Dat"
xdotool key alt+f
xdotool key x
check "closing asks" until_true in_front "Reelora Prima$"
check "SIGHUP ends it at that question" ended_by HUP 0
check "the question was not answered" typed Brazil

start
until_true in_front "Reelora Prima$" && xdotool key Escape
check "Esc leaves it for the next start" until_true in_front "Reelora Prima version"
check "the draft was left" typed Brazil
check "SIGINT ends the opening window" ended_by INT 0

start
until_true in_front "Reelora Prima$" && xdotool key Return
check "a third film is typed" type_film Casablanca
check "a kill ends it at once" ended_by KILL 137
start
until_true in_front "Reelora Prima$" && xdotool key Return
check "and the film is kept" until_true grep -q Casablanca "$collection/Recpra.Dat"
check "in a slot of its own" [ "$(stat -c %s "$collection/Recpra.Dat")" = $((3 * 649)) ]
check "SIGTERM ends the program" ended_by TERM 0

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
