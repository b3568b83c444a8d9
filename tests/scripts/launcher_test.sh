#!/usr/bin/env bash
# The command `reelora` as it is installed, on a display of its own: the first start by keyboard, plain starts, odd names
# and environments, and every box. Usage: launcher_test.sh REELORA_PRIMA, with reelora next to it
set -uo pipefail
. "$(dirname -- "$0")/real_program.sh"
real_program "$1"

# As installed, in a folder with a blank; a link leads to the command.
installed="$work/an installed tree"
mkdir -p -- "$installed/bin" "$installed/share/reelora-prima" "$work/links" "$work/home"
cp -- "$(dirname -- "$program")/reelora" "$program" "$installed/bin/"
cp -r -- "$source_folder/delivered" "$installed/share/reelora-prima/"
ln -s -- "$installed/bin/reelora" "$work/links/reelora"
export HOME=$work/home
reelora=$installed/bin/reelora
usual="$HOME/Film Collection"

# start_reelora ARGUMENT...: in the home folder.
start_reelora() {
  (cd -- "$HOME" && exec env --default-signal=INT "$reelora" "$@") >"$work/output" 2>&1 &
  running=$!
}
# plainly COMMAND...: a start without a window.
plainly() { (cd -- "$HOME" && "$@") >"$work/output" 2>&1; }

says() { grep -q -F -- "$1" "$work/output" || { cat -- "$work/output"; return 1; }; }
box() { until_true in_front "Reelora Prima$"; }
asks() { until_true in_front "Reelora Prima - Open a Collection"; }
press() { xdotool key --delay 50 "$@"; }
opens() { until_true in_front "Reelora Prima version" && [ "$(readlink -- "/proc/$running/cwd")" = "$1" ]; }
is_the_program() { [ "$(readlink -- "/proc/$running/exe")" = "$installed/bin/reelora-prima" ]; }
has_no_arguments() { [ "$(tr '\0' '\n' <"/proc/$running/cmdline" | wc -l)" = 1 ]; }
is_complete() {
  local file
  for file in "$source_folder"/delivered/*; do
    [ ! -f "$file" ] || cmp -s -- "$file" "$1/${file##*/}" || { echo "${file##*/} differs in $1"; return 1; }
  done
}
# starts FOLDER NAME: the running command becomes the program there, and is ended.
starts() {
  check "$2" opens "$1"
  check "$2: complete" is_complete "$1"
  check "$2: it ends" ended_by TERM 0
}

# Without a display.
check "--version" plainly env -u DISPLAY "$reelora" --version
check "names the version" says "Reelora Prima 4"
check "--help" plainly env -u DISPLAY "$reelora" --help
check "names the options" says "--sample"
plainly env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$reelora"
check "no display: it ends" [ $? -eq 1 ]
check "no display: the text says so" says "needs a display"
plainly env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM DISPLAY=:54321 "$reelora"
check "a display that does not answer: it ends" [ $? -eq 1 ]
check "a display that does not answer: the text says so" says "There is no display to ask on."
check "nothing was made" [ ! -e "$usual" ]

# The first start.
start_reelora
check "the first start asks" asks
press Escape
check "Esc ends it" ends_with 0
check "and makes nothing" [ ! -e "$usual" ]
start_reelora
check "it asks again" asks
press Return
check "Enter makes the usual collection" opens "$usual"
check "the command has become the program" is_the_program
check "which has no arguments" has_no_arguments
check "the collection is complete" is_complete "$usual"
check "it ends" ended_by TERM 0
start_reelora
starts "$usual" "a plain start asks nothing"

# Two at once.
start_reelora
check "a start" opens "$usual"
first=$running
start_reelora
check "a second one says that it is open" box
press Return
check "and ends" ends_with 1
running=$first
check "the first one goes on" kill -0 "$running"
check "until it ends" ended_by TERM 0

# Names, calls and environments.
start_reelora -- "-it's \"mine\" & more"
starts "$HOME/-it's \"mine\" & more" "an odd name"
(cd -- "$installed/bin" && exec ./reelora ../films) >"$work/output" 2>&1 &
running=$!
starts "$installed/films" "a relative call"
(cd -- "$HOME" && PATH=/nowhere exec "$work/links/reelora" linked) >"$work/output" 2>&1 &
running=$!
starts "$HOME/linked" "a link to the command, and no PATH"
(cd -- "$HOME" && exec env -u HOME XDG_CONFIG_HOME="$HOME/.config" "$reelora" "no home") >"$work/output" 2>&1 &
running=$!
starts "$HOME/no home" "no HOME"
: >"$work/no_home"
(cd -- "$HOME" && HOME=$work/no_home exec "$reelora" "home is a file") >"$work/output" 2>&1 &
running=$!
starts "$HOME/home is a file" "a HOME that is a file"

# Another collection, by keyboard.
start_reelora --choose
check "--choose asks" asks
press alt+n Tab ctrl+a
xdotool type --delay 20 "typed films"
press Return
starts "$HOME/typed films" "a typed name"
start_reelora --choose
check "--choose asks" asks
press alt+e Tab
xdotool type --delay 20 "~/none"
press Return
check "what is no collection is named" until_true says "There is no collection in $HOME/none."
press Return
check "and it asks again" asks
press --delay 300 alt+s Return  # a hot key presses its button for a while
starts "$HOME/.local/share/reelora-prima/sample" "the sample"
check "it has its films" cmp -s -- "$source_folder/delivered/sample/Recpra.Dat" "$HOME/.local/share/reelora-prima/sample/Recpra.Dat"
start_reelora
starts "$HOME/typed films" "the sample is not the last collection"
start_reelora --sample
starts "$HOME/.local/share/reelora-prima/sample" "--sample"

# The last one is lost.
mv -- "$HOME/typed films" "$HOME/away"
start_reelora
check "a lost collection is asked about" asks
mv -- "$HOME/away" "$HOME/typed films"
press Return
starts "$HOME/typed films" "it is tried again"

# Boxes.
start_reelora --nonsense
check "an unknown option has a box" box
press Return
check "and its status" ends_with 2
check "and its text" says "There is no option --nonsense."
mkdir -- "$HOME/papers" && : >"$HOME/papers/letter"
start_reelora papers
check "a folder with other files is asked about" box
press Return
check "Enter leaves it alone" ends_with 0
check "as it was" [ "$(ls -A -- "$HOME/papers")" = letter ]
start_reelora papers
check "it is asked again" box
press alt+p
starts "$HOME/papers" "a folder that may be filled"
start_reelora papers/letter
check "a file in place of a folder has a box" box
press Return
check "and its status" ends_with 1
check "and its text" says "cannot be made. Something else of that name is in the way."
mv -- "$installed/share" "$installed/gone"
start_reelora bare
check "a lost installation has a box" box
check "and its text" says "The files that come with Reelora Prima are missing."
press Return
check "the program is started all the same" opens "$HOME/bare"
check "and ends" ended_by TERM 0
mv -- "$installed/gone" "$installed/share"
rm -- "$installed/bin/reelora-prima"
start_reelora films
check "a lost program has a box" box
press Return
check "and its status" ends_with 1
check "and its text" says "reelora-prima cannot be started"

finish
