# Sourced by ./run and ./test: installs what is missing and builds, out of tree.

needs=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libgl-dev libgtest-dev nlohmann-json3-dev libexpat1-dev libcsv-dev libminizip-dev
  fonts-liberation poppler-utils)

# Whether a person sits at the terminal and may be asked.
person_here() { [ -t 0 ] && [ "${CI:-}" != true ]; }

# Installs missing packages, or lists them if it may not. A person is asked first.
install_needs() {
  local missing=() package answer
  for package in "${needs[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Please install these packages first: ${missing[*]}" >&2; return 1; }
    as_root=(sudo)
  fi
  if person_here; then
    read -r -p "Install ${missing[*]}? [y/N] " answer
    case $answer in
      [yY]*) ;;
      *) echo "Nothing was installed." >&2; return 1 ;;
    esac
  fi
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build_tree FOLDER TARGET... [-- CMAKE_OPTION...]
build_tree() {
  local folder=$1 targets=()
  shift
  while [ $# -gt 0 ] && [ "$1" != -- ]; do targets+=("$1"); shift; done
  [ $# -gt 0 ] && shift
  mkdir -p "$folder"
  local log=$folder/build.log
  cmake -S . -B "$folder" -G Ninja "$@" >"$log" 2>&1 || { cat "$log" >&2; return 1; }
  cmake --build "$folder" --target "${targets[@]}" >>"$log" 2>&1 || { tail -n 60 "$log" >&2; return 1; }
}
