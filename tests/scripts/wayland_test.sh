#!/usr/bin/env bash
# Opens the real program under Wayland, by hot keys from the opening window to the help: the windows carry the name of the
# desktop entry, and quick start and copy window belong to the record screen. Usage: wayland_test.sh REELORA_PRIMA.
# What a test sees is what the program tells the compositor. Says so where a tool is missing.
set -uo pipefail
. "$(dirname -- "$0")/real_program.sh"
for tool in sway wtype; do
  command -v "$tool" >/dev/null || { echo "skipped: $tool is missing"; exit 0; }
done
compgen -G "/usr/lib/*/qt6/plugins/platforms/libqwayland-generic.so" >/dev/null || { echo "skipped: qt6-wayland is missing"; exit 0; }
real_program "$1"

# The compositor refuses to run as root.
as_user=()
[ "$(id -u)" -ne 0 ] || { as_user=(setpriv --reuid=65534 --regid=65534 --clear-groups); chown 65534 "$work"; }
chmod 711 "$work"
echo 'default_border none' >"$work/sway.conf"
env -u DISPLAY WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman \
  "${as_user[@]}" sway -c "$work/sway.conf" >"$work/sway" 2>&1 &
compositor=$!
trap 'kill $running $server $compositor 2>/dev/null; wait 2>/dev/null; rm -rf -- "$work"' EXIT
has_socket() { [ -S "$work/wayland-1" ]; }
until_true has_socket || { echo "skipped: the compositor does not start"; exit 0; }
export QT_QPA_PLATFORM=wayland WAYLAND_DEBUG=1 WAYLAND_DISPLAY=wayland-1

told() { grep -q -- "$1" "$work/output"; }
# The window with that title has a parent.
has_parent() {
  local window
  window=$(grep -o "xdg_toplevel@[0-9]*.set_title(\"$1" "$work/output" | tail -n 1)
  [ -n "$window" ] && told "${window%%.*}.set_parent(xdg_toplevel@"
}
# presses TEXT KEYS...: until the program tells the text; the display has a keyboard only while keys come.
presses() {
  local text=$1
  shift
  env -u WAYLAND_DEBUG wtype "$@" 2>/dev/null
  told "$text"
}

cp -- "$source_folder/delivered/sample/Recpra.Dat" "$collection/"
printf 'YES\r\n' >"$collection/Fo"
printf 'YES\r\n' >"$collection/Fo1"
start
check "the opening window" until_true told 'set_title("Reelora Prima version'
check "its name is that of the desktop entry" told 'set_app_id("reelora-prima")'
check "whose windows have that class" grep -q '^StartupWMClass=reelora-prima$' "$source_folder/packaging/reelora-prima.desktop"
check "Alt+S starts" until_true presses 'set_title("Reelora Prima ver 4.0' -M alt s -m alt
check "the quick start belongs to the record screen" until_true has_parent "Reelora Ver 4.0 Quick Start"
until_true presses 'set_title("Reelora Prima Record' -M alt t -m alt
check "Alt+N goes to the next film" until_true presses 'set_title("Reelora Prima Record *[2-9]' -k Return -M alt n -m alt
check "F1 opens the help" until_true presses 'set_title("Reelora Prima Help' -k F1
check "the copy window opens by its hot key" until_true presses 'set_title("Copy Files' -k Escape -M alt f -m alt -k Return
check "and belongs to the record screen" until_true has_parent "Copy Files"
finish
