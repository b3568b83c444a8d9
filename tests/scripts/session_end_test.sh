#!/usr/bin/env bash
# Types a film into the real program and ends it by signals, a kill included, with and without a box: each signal but
# the kill ends it with status 0, and the next start offers what was typed. Usage: session_end_test.sh REELORA_PRIMA
set -uo pipefail
. "$(dirname -- "$0")/real_program.sh"
real_program "$1"

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

finish
