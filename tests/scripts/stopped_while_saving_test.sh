#!/usr/bin/env bash
# Saves new films without pause in the real program and sends signals meanwhile: each film is there whole or not at all,
# the old ones stay, and the next start works. Usage: stopped_while_saving_test.sh REELORA_PRIMA
set -uo pipefail
. "$(dirname -- "$0")/real_program.sh"
real_program "$1"
sample=$source_folder/delivered/sample/Recpra.Dat
master=$collection/Recpra.Dat
old_bytes=$((25 * 649))  # no free slot among them
head -c "$old_bytes" -- "$sample" >"$master"

bytes() { stat -c %s -- "$master"; }
grows() { [ "$(bytes)" -gt "$1" ]; }
whole_records() { [ $(($(bytes) % 649)) = 0 ]; }
old_films_stay() { cmp -s -n "$old_bytes" -- "$sample" "$master"; }
# A record's line end is its last two bytes, so that the new films are lines.
new_films_are_alike() { [ "$(tail -c +$((old_bytes + 1)) "$master" | sort -u | wc -l)" = 1 ]; }

save_without_pause() {
  while xdotool key --delay 0 alt+w Z alt+s; do :; done 2>/dev/null
}

for signal in KILL TERM KILL INT KILL HUP; do
  start
  check "the program starts" until_true in_front "Reelora Prima"
  if in_front "Reelora Prima$"; then xdotool key Escape; fi
  check "the record screen comes" open_record_screen
  check "no film is torn" whole_records
  check "the old films stay" old_films_stay
  before=$(bytes)
  save_without_pause &
  saving=$!
  check "it saves" until_true grows "$before"
  sleep "0.$RANDOM"
  case $signal in
    KILL) check "a kill ends it" ended_by KILL 137 ;;
    *) check "SIG$signal ends it" ended_by "$signal" 0 ;;
  esac
  kill "$saving"
  wait "$saving" 2>/dev/null
done

start
check "the program starts" until_true in_front "Reelora Prima"
check "SIGTERM ends it" ended_by TERM 0
check "no film is torn" whole_records
check "the old films stay" old_films_stay
check "the new films are alike" new_films_are_alike
finish
