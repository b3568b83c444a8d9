#!/usr/bin/env bash
# check_package.sh [FOLDER]: builds the Debian packages of the last commit in FOLDER, by default build/debian, and
# checks them with lintian, and the programs for what a linker may leave out. With a compiler cache it takes a minute.
set -euo pipefail
cd -- "$(dirname -- "$0")/.."
mkdir -p -- "${1:-build/debian}"
folder=$(readlink -f -- "${1:-build/debian}")

for tool in dh dpkg-buildpackage lintian; do
  command -v "$tool" >/dev/null || { echo "$tool is missing: apt-get install debhelper dpkg-dev lintian" >&2; exit 1; }
done
rm -rf -- "$folder"/reelora-prima* "$folder/unpacked"
git archive --prefix=reelora-prima/ HEAD | tar -x -C "$folder"
cd -- "$folder/reelora-prima"
# The home folder of a package build is empty, and with it the usual place of the compiler cache.
command -v ccache >/dev/null && export CCACHE_DIR=${CCACHE_DIR:-$(ccache --get-config cache_dir)}
DEB_BUILD_OPTIONS=${DEB_BUILD_OPTIONS:-nocheck parallel=$(nproc)} dpkg-buildpackage -us -uc >../build.log 2>&1 ||
  { tail -n 40 ../build.log; exit 1; }
cd ..

status=0
lintian --allow-root --display-info --pedantic --show-overrides ./*.changes >lintian.log || status=1
cat lintian.log
! grep -q '^[EWIPC]:' lintian.log || status=1
dpkg-deb -x reelora-prima_*.deb unpacked
for program in unpacked/usr/bin/*; do
  for sign in 'Type: *DYN' 'BIND_NOW' 'GNU_RELRO' '__[a-z]*_chk' '__stack_chk_fail'; do
    readelf --wide --file-header --program-headers --dynamic --dyn-syms "$program" | grep "$sign" >/dev/null || { echo "$program: no $sign"; status=1; }
  done
  ! readelf --sections "$program" | grep -q '\.symtab\|\.debug' || { echo "$program is not stripped"; status=1; }
done
rm -rf unpacked
ls -l ./*.deb
[ "$status" -eq 0 ] && echo "The package is clean."
exit "$status"
