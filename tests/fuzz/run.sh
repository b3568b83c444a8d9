#!/usr/bin/env bash
# tests/fuzz/run.sh FOLDER [TARGET...]: runs the fuzz targets that were built in FOLDER from their corpora, as many at a
# time as there are processors. A finding is kept in FOLDER/findings; FOLDER/fuzz_TARGET FILE plays it again.
#   REELORA_FUZZ_RUNS   executions of each target; without it the small number of the table below
#   REELORA_FUZZ_GROW   a folder that keeps new inputs, a subfolder for each target; without it they are dropped
set -uo pipefail
folder=$(realpath -- "$1")
shift
cd -- "$(dirname -- "$0")"

# Executions that take about two seconds; the slowest targets first.
targets=(counts views reports settings sort story help csv journal history draft weights statement json rec tellico zip check copy)
declare -A runs=(
  [counts]=4000 [views]=3000 [reports]=3000 [settings]=6000 [sort]=6000 [story]=20000 [help]=40000 [journal]=40000
  [history]=40000 [draft]=20000 [weights]=40000 [statement]=400000
  [csv]=3000 [json]=12000 [rec]=12000 [tellico]=8000 [zip]=10000 [check]=1500 [copy]=20000
)
[ $# -gt 0 ] || set -- "${targets[@]}"
# One allocation of more, or one input that takes longer, is a finding.
limits=(-malloc_limit_mb=32 -rss_limit_mb=512 -timeout=10 -max_len=1024)
# Quick: few freed bytes are kept, and the stack of an allocation is not.
export ASAN_OPTIONS=quarantine_size_mb=1:malloc_context_size=0${ASAN_OPTIONS:+:$ASAN_OPTIONS}
mkdir -p "$folder/findings"
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT

# run TARGET: ends with one line, and a status of 0 if nothing was found.
run() {
  local target=$1 corpus=${REELORA_FUZZ_GROW:-$work}/$1 log=$work/$1.log dictionary=() status
  mkdir -p "$corpus"
  [ -f "dictionaries/$target.dict" ] && dictionary=(-dict="dictionaries/$target.dict")
  "$folder/fuzz_$target" -runs="${REELORA_FUZZ_RUNS:-${runs[$target]}}" -seed=1 -entropic=0 "${limits[@]}" \
    "${dictionary[@]}" -artifact_prefix="$folder/findings/$target-" "$corpus" "corpus/$target" >"$log" 2>&1
  status=$?
  if [ "$status" -eq 0 ]; then
    echo "$target: $(sed -nE 's/^Done ([0-9]+) runs.*$/\1/p' "$log") executions"
  else
    echo "$target: FAILED"
    grep -E 'does not hold|ERROR|runtime error|Test unit' "$log"
  fi
  return "$status"
}

failed=0 running=0
for target in "$@"; do
  if [ "$running" -ge "$(nproc)" ]; then
    wait -n || failed=$((failed + 1))
    running=$((running - 1))
  fi
  run "$target" &
  running=$((running + 1))
done
for ((; running > 0; --running)); do wait -n || failed=$((failed + 1)); done
echo "$(($# - failed)) passed, $failed failed"
[ "$failed" -eq 0 ]
