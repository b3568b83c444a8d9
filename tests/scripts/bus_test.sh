#!/usr/bin/env bash
# Asks the accessibility bus what the real program tells screen readers, and compares it with the tables of the source.
# Usage: bus_test.sh REELORA_PRIMA. Says so where a tool is missing.
set -uo pipefail
python=/usr/bin/python3  # the system's, which has the bindings
if [ -z "${REELORA_BUS:-}" ]; then
  command -v dbus-run-session >/dev/null || { echo "skipped: dbus-run-session is missing"; exit 0; }
  [ -x /usr/libexec/at-spi-bus-launcher ] || { echo "skipped: at-spi2-core is missing"; exit 0; }
  "$python" -c 'import gi; gi.require_version("Atspi", "2.0")' 2>/dev/null ||
    { echo "skipped: python3-gi or gir1.2-atspi-2.0 is missing"; exit 0; }
  REELORA_BUS=1 exec dbus-run-session -- bash "$0" "$@"
fi
. "$(dirname -- "$0")/real_program.sh"
real_program "$1"

export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 NO_AT_BRIDGE=0 GSETTINGS_BACKEND=memory
cp -- "$source_folder/delivered/sample/Recpra.Dat" "$collection/"
printf 'YES\r\n' >"$collection/Fo"
printf 'YES\r\n' >"$collection/Fo1"
"$python" -B "$source_folder/tests/scripts/bus_test.py" "$program" "$source_folder" "$collection"
