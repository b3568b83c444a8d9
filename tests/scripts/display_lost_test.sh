#!/usr/bin/env bash
# The display server dies while a film is typed: the program ends, and the next start offers the film.
# Usage: display_lost_test.sh REELORA_PRIMA
set -uo pipefail
. "$(dirname -- "$0")/real_program.sh"
real_program "$1"

start
check "a film is typed" type_film Alien
kill -KILL "$server"
wait "$server" 2>/dev/null
check "the program ends, not by a crash" ends_with 1
check "it names what is lost" grep -q "X11 connection broke" "$work/output"
check "the draft stands" typed Alien

open_display
start
until_true in_front "Reelora Prima$" && xdotool key Return
check "the film is kept" until_true grep -q Alien "$collection/Recpra.Dat"
check "the program goes on" open_record_screen
check "SIGTERM ends it" ended_by TERM 0
finish
