#!/usr/bin/env bash
# 20,000 steps through the films and 200 reports in the real program: its memory does not grow with them.
# Usage: no_growth_test.sh REELORA_PRIMA
set -uo pipefail
. "$(dirname -- "$0")/real_program.sh"
real_program "$1"
sample=$source_folder/delivered/sample/Recpra.Dat
films=$(($(stat -c %s -- "$sample") / 649))
steps=20000
reports=200
growth_allowed=1024  # KiB, of the toolkit's cache of pictures; a report that stays in memory has 10

# The memory of its own that the program holds, in KiB.
memory() { sed -n 's/^RssAnon:[^0-9]*\([0-9]*\) kB$/\1/p' "/proc/$running/status"; }
has_not_grown() {
  local now
  now=$(memory)
  [ "$now" -le $(($1 + growth_allowed)) ] || { echo "from $1 to $now KiB"; return 1; }
}

# step_to FILM: presses Next; keys that wait to be read would be memory too, so it goes in small parts.
position=1
step_to() {
  while [ "$position" -lt "$1" ]; do
    xdotool key --delay 0 --repeat 250 alt+n
    position=$((position + 250))
    until_true in_front "Reelora Prima Record *$position/" || return
  done
}
pdf_files() { find "$work/Documents" -name '*.pdf' 2>/dev/null | wc -l; }
printed() { [ "$(pdf_files)" -gt "$1" ]; }
# The abridged list: its question, the file, its closing box.
report() {
  local before
  before=$(pdf_files)
  xdotool key --delay 0 alt+f p Down Return
  until_true in_front "Reelora Prima Print" && xdotool key Return
  until_true printed "$before"
  until_true in_front "Reelora Prima Print" && xdotool key Return
  until_true no_box
}
no_box() { ! in_front "Reelora Prima Print"; }

for ((copies = 0; copies * films <= steps; ++copies)); do cat -- "$sample"; done >"$collection/Recpra.Dat"
start
check "the record screen comes" open_record_screen
check "the first steps come" step_to 1001
before=$(memory)
check "all steps come" step_to $((steps + 1))
check "steps cost no memory" has_not_grown "$before"
check "SIGTERM ends it" ended_by TERM 0

cp -- "$sample" "$collection/Recpra.Dat"
start
check "the record screen comes" open_record_screen
sorted() { [ -s "$collection/VHSpra.Dat" ]; }
xdotool key alt+o
check "the films are sorted" until_true sorted
for ((count = 0; count < 20; ++count)); do report; done
before=$(memory)
for ((; count < reports; ++count)); do report; done
check "all reports are printed" [ "$(pdf_files)" = "$reports" ]
check "reports cost no memory" has_not_grown "$before"
check "SIGTERM ends it" ended_by TERM 0
finish
