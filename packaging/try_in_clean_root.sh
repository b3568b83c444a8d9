#!/usr/bin/env bash
# try_in_clean_root.sh OLD.deb NEW.deb [PICTURES]: tries the package in a fresh Debian: install, start, upgrade with a
# running program, a second user, a home that is read-only, remove, purge. The films of the first user stay as they are.
# Pictures of the display go to the folder PICTURES. Needs root, mmdebstrap, Xvfb and xdotool; takes some minutes, less
# with BASE=FILE.tar, made once by: mmdebstrap --variant=apt --include=adduser bookworm FILE.tar
set -uo pipefail
tree=$(cd -- "$(dirname -- "$0")/.." && pwd)
[ $# -ge 2 ] && [ "$(id -u)" -eq 0 ] || { sed -n '2,5p' "$0" >&2; exit 2; }
# All mounts are this script's own and go with it.
[ -n "${REELORA_OWN_MOUNTS:-}" ] || REELORA_OWN_MOUNTS=1 exec unshare --mount --propagation private -- "$0" "$@"
. "$tree/tests/scripts/real_program.sh"
old=$(readlink -f -- "$1")
new=$(readlink -f -- "$2")
pictures=${3:+$(mkdir -p -- "$3" && readlink -f -- "$3")}
work=$(mktemp -d)
root=$work/root
server= running= passed=0 failed=0
trap 'kill $running $server 2>/dev/null; wait 2>/dev/null; umount -l "$root"; rm -rf --one-file-system -- "$work"' EXIT

# vital NAME COMMAND...: a check without which the others say nothing.
vital() { local before=$failed; check "$@"; [ "$failed" -eq "$before" ] || { finish; exit 1; }; }
in_root() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
quietly() { "$@" >"$work/output" 2>&1 || { tail -n 20 "$work/output"; return 1; }; }
install_package() { cp -- "$1" "$root/tmp/package.deb" && quietly in_root apt-get install -y --allow-downgrades "${@:2}" /tmp/package.deb; }
installed_version() { in_root dpkg-query -W -f='${Version}' reelora-prima; }
version_is() { [ "$(installed_version)" = "$(dpkg-deb -f "$1" Version)" ]; }
show() { [ -z "$pictures" ] || import -window root "$pictures/$1.png"; }

# start USER ARGUMENT...: what the menu entry starts, as that user.
start() {
  local user=$1 command
  command=$(sed -n '/^\[Desktop Entry\]/,/^$/s/^Exec=\([^ ]*\).*/\1/p' "$root/usr/share/applications/reelora-prima.desktop")
  in_root install -d -o "$user" -m 700 "/run/user/$user"
  (exec chroot --userspec="$user:$user" "$root" env -i PATH=/usr/bin:/bin LANG=C.UTF-8 HOME="/home/$user" USER="$user" \
    XDG_RUNTIME_DIR="/run/user/$user" DISPLAY="$DISPLAY" "$command" "${@:2}") >"$work/output" 2>&1 &
  running=$!
}
runs() { kill -0 "$running" 2>/dev/null; }
opens() { until_true in_front "Reelora Prima version" && show "$1"; }
ends() { ended_by TERM 0 || { cat -- "$work/output"; return 1; }; }

films="/home/anna/Film Collection"
draft=$root$films/.reelora/draft
# All files but the help, which a new version brings up to date, and its own notes.
sums() { (cd -- "$root$films" && find . -type f ! -path './.reelora/*' ! -name Reelora4.HLP -exec sha256sum {} + | sort -k 2) >"$work/sums"; }
films_stay() { (cd -- "$root$films" && sha256sum --quiet -c "$work/sums"); }
put_sample() {
  in_root install -d -o anna -g anna "$1"
  cp -- "$tree/delivered/sample/Recpra.Dat" "$root$1/"
  printf 'NO\r\n' | tee "$root$1/Fo" >"$root$1/Fo1"
  in_root chown -R anna:anna "$1"
}
traces() { find "$root" -xdev -iname '*reelora*' ! -path "$root/home/*" ! -path "$root/srv/*" ! -path "$root/run/*"; }
no_traces() { local found; found=$(traces); [ -z "$found" ] || { echo "$found"; return 1; }; }

mkdir "$root"
mount -t tmpfs -o mode=755 none "$root"
if [ -n "${BASE:-}" ]; then tar -x -C "$root" -f "$BASE"; else quietly mmdebstrap --variant=apt --include=adduser bookworm "$root" || exit 1; fi
mount -t proc none "$root/proc"
mkdir -p "$root/tmp/.X11-unix"
open_display || { echo "Xvfb does not start"; exit 1; }
mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
cp /etc/resolv.conf "$root/etc/"
quietly in_root apt-get update || exit 1
for user in anna ben; do in_root useradd --create-home --shell /bin/sh "$user"; done
chmod 700 "$root"/home/*
put_sample "$films"

vital "the old version is installed" install_package "$old"
start anna "$films"
vital "it starts" opens 1_old_version
sums
check "a film is typed" type_film Metropolis

vital "the new version takes its place" install_package "$new"
check "it is the new one" version_is "$new"
check "the running program goes on" runs
show 2_after_the_upgrade
check "the films stay" films_stay
check "it ends cleanly" ends
start anna "$films"
check "the new version asks for the typed film" until_true in_front "Reelora Prima$"
show 3_draft
xdotool key Escape
check "and starts" opens 4_new_version
check "it ends cleanly" ends
check "the films stay" films_stay
check "the help is the new one" cmp "$root/usr/share/reelora-prima/delivered/Reelora4.HLP" "$root$films/Reelora4.HLP"
check "there is a copy of the films" sh -c 'cmp "$1/Recpra.Dat" "$1"/backups/Recpra*.Dat' sh "$root$films"

start ben
check "a second user is asked where his films shall be" until_true in_front "Reelora Prima - Open a Collection"
show 5_first_start
xdotool key Return
check "and starts" opens 6_second_user
check "it ends cleanly" ends
check "with a collection of his own" test -s "$root/home/ben/Film Collection/UPPER.ALT"
start ben "$films"
check "he is told that he cannot open the films of the first" until_true in_front "Reelora Prima$"
show 7_not_allowed
xdotool key Return
check "and ends there" ends_with 1
start ben --sample
check "he can look at the sample" opens 8_sample
check "it ends cleanly" ends
start ben
check "the next start asks no more" opens 9_second_user_again
check "it ends cleanly" ends

put_sample /srv/films
mount --bind "$root/home/anna" "$root/home/anna"
mount -o remount,bind,ro "$root/home/anna"
start anna /srv/films
check "with a home that is read-only a collection elsewhere starts" opens 10_read_only_home
check "it ends cleanly" ends
start anna "$films"
check "with a collection in it she is told" until_true in_front "Reelora Prima$"
show 11_read_only_collection
xdotool key Return
check "and it ends there" ends_with 1
umount "$root/home/anna"
check "the films stay" films_stay

check "the package is removed" quietly in_root apt-get remove -y reelora-prima
check "no program is left" test ! -e "$root/usr/bin/reelora-prima"
check "the films stay" films_stay
check "it is installed again, without what it recommends" install_package "$new" --no-install-recommends
check "and that is taken away" quietly in_root apt-get purge -y --autoremove fonts-liberation fonts-liberation2 qt6-wayland
start anna "$films"
until_true in_front "Reelora Prima$" && xdotool key Escape
check "and starts" opens 12_installed_again
check "it ends cleanly" ends
check "the package is purged" quietly in_root apt-get purge -y reelora-prima
rm -f -- "$root/tmp/package.deb"
check "no trace is left outside the homes" no_traces
check "the films stay" films_stay

finish
