#!/usr/bin/env bash
# Checks what is installed with the system's own validators. Says which of them is missing here.
#   package_test.sh          the files in the tree
#   package_test.sh BUILD    what the build in the folder BUILD installs
set -uo pipefail
tree=$(cd -- "$(dirname -- "$0")/../.." && pwd)
build=${1:+$(readlink -f -- "$1")}
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
passed=0
failed=0

# check NAME COMMAND...
check() {
  local name=$1
  shift
  if "$@" >"$work/output" 2>&1; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    echo "FAILED: $name"
    cat -- "$work/output"
  fi
}

# with TOOL NAME COMMAND...: the check, if there is the tool.
with() {
  local tool=$1
  shift
  if command -v "$tool" >/dev/null; then check "$@"; else echo "skipped: $tool is missing"; fi
}

silent() { local said; said=$("$@" 2>&1) && [ -z "$said" ] || { echo "$said"; return 1; }; }
# A page that refers to another one is read from the folder above it.
formats() { (cd -- "$(dirname -- "$1")/.." && silent sh -c 'LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 -Z "$1" >/dev/null' sh "$1"); }
valid_appstream() { appstreamcli validate --no-net "$1"; }
says() { grep -qF -- "$2" "$1" || { echo "$1 lacks: $2"; return 1; }; }

# The packages of packaging/prepare.sh, but for the compiler, which is always there, and what only tests of the widgets need.
needs_are_listed() {
  local needs
  . "$tree/packaging/prepare.sh"
  printf '%s\n' "${needs[@]}" debhelper-compat | grep -vxE 'g\+\+|fonts-liberation|poppler-utils' | sort >"$work/needed"
  sed -nE '/^Build-Depends:/,/^[^ ]/s/^ ([^ ,]+).*/\1/p' "$tree/debian/control" | sort >"$work/listed"
  diff "$work/needed" "$work/listed"
}

# The version is written in CMakeLists.txt. These take it from there, or must follow.
version=$(sed -nE 's/^project\(.* VERSION ([0-9.]+).*/\1/p' "$tree/CMakeLists.txt")
in_the_tree() {
  check "a version" [ -n "$version" ]
  check "the changelog of the Debian package" grep -qE "^reelora-prima \(${version//./\\.}(\)|[-+~])" "$tree/debian/changelog"
  check "the changelog" says "$tree/CHANGELOG.md" "## $version"
  check "the AppStream data" says "$tree/packaging/local.reelora.prima.metainfo.xml" 'release version="@PROJECT_VERSION@"'
  check "what the Debian package needs to build" needs_are_listed
  mkdir -p -- "$work/man1"
  local page
  for page in "$tree"/packaging/*.1; do
    sed "s/@PROJECT_VERSION@/$version/" "$page" >"$work/man1/${page##*/}"
    grep -q '^\.so ' "$page" || check "the version of ${page##*/}" says "$page" '"Reelora Prima @PROJECT_VERSION@"'
  done
  for page in "$work"/man1/*; do with man "${page##*/}" formats "$page"; done
  with desktop-file-validate "the desktop entry" silent desktop-file-validate "$tree/packaging/reelora-prima.desktop"
  with dpkg-parsechangelog "the form of the Debian changelog" dpkg-parsechangelog --all -l "$tree/debian/changelog"
  local screenshots filled=$work/local.reelora.prima.metainfo.xml
  for screenshots in "" "$(sed 's,@REELORA_SCREENSHOTS@,https://example.org,' "$tree/packaging/screenshots.xml")"; do
    awk -v shots="$screenshots" '/@screenshots@/ { print shots; next } { print }' "$tree/packaging/${filled##*/}" |
      sed "s/@PROJECT_VERSION@/$version/" >"$filled"
    with appstreamcli "the AppStream data" valid_appstream "$filled"
  done
}

has_page() { [ -s "$share/man/man1/$1.1" ]; }
# The width and height of a picture are its bytes 16 to 23.
has_icon() { [ "$(od -An -tu1 -j16 -N8 "$share/icons/hicolor/$1x$1/apps/reelora-prima.png" | xargs)" = "0 0 $(($1 / 256)) $(($1 % 256)) 0 0 $(($1 / 256)) $(($1 % 256))" ]; }
# But for the links into the sources: those of the README's second half, and those to ../ of the others.
links_lead_somewhere() {
  local link wrong=0
  while read -r link; do
    [ -e "$(dirname -- "$1")/$link" ] || { echo "$1: $link is not installed"; wrong=1; }
  done < <(sed '/^## For developers/,$d' "$1" | grep -oE '\]\([A-Za-z0-9_./-]+' | sed 's/^](//' | grep -v '^http\|^\.\.')
  return "$wrong"
}
nothing_found() { local found; found=$(find "$@"); [ -z "$found" ] || { echo "$found"; return 1; }; }

installed() {
  local name share=$work/usr/share
  check "the installation" cmake --install "$build" --prefix "$work/usr"
  for name in "$work"/usr/bin/*; do check "the man page of ${name##*/}" has_page "${name##*/}"; done
  for name in "$share"/man/man1/*; do
    check "the program of ${name##*/}" test -x "$work/usr/bin/$(basename -- "$name" .1)"
    with man "${name##*/}" formats "$name"
  done
  while read -r name; do check "$name, which the menu starts" test -x "$work/usr/bin/$name"
  done < <(sed -nE 's/^(Try)?Exec=([^ ]+).*/\2/p' "$share/applications/reelora-prima.desktop")
  for name in 16 22 24 32 48 64 128 256; do check "the icon of $name pixels" has_icon "$name"; done
  check "the drawing of the icon" test -s "$share/icons/hicolor/scalable/apps/reelora-prima.svg"
  with desktop-file-validate "the desktop entry" silent desktop-file-validate "$share/applications/reelora-prima.desktop"
  with appstreamcli "the AppStream data" valid_appstream "$share/metainfo/local.reelora.prima.metainfo.xml"
  with appstreamcli "the AppStream data among the others" appstreamcli validate-tree --no-net "$work/usr"
  check "the delivered files and the sample" diff -r -x README.md -x films.txt "$tree/delivered" "$share/reelora-prima/delivered"
  for name in copyright LICENSE CHANGELOG.md README.md; do check "$name" test -s "$share/doc/reelora-prima/$name"; done
  for name in "$share"/doc/reelora-prima/{README,docs/*}.md; do check "the links of ${name##*/}" links_lead_somewhere "$name"; done
  check "a value is missing" nothing_found "$share" -type f '(' -name '*.1' -o -name '*.xml' ')' -exec grep -l '@[A-Za-z_]*@' {} +
  check "files that not everybody reads" nothing_found "$work/usr" ! -type l ! -perm -u=rwX,go=rX
  check "data that runs" nothing_found "$share" -type f -perm /111
}

in_the_tree
[ -z "$build" ] || installed
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
