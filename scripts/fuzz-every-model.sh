#!/usr/bin/env bash
# Gives every model its own fuzzing run of a fixed number of executions, as
# many models at a time as there are cores, and prints how many inputs each
# model was given. Each model keeps its corpus in CORPUS/<id>/ (seeded from its
# examples the first time), so later runs go on from what earlier ones found;
# crashing inputs are kept in fuzz-findings/<id>/.
#   fuzz-every-model.sh TARGET RUNS VOREL-REPORT CORPUS [model...]
set -euo pipefail
target=$1
runs=$2
catalogue=$3
corpus=$4
shift 4
findings=${FUZZ_FINDINGS:-fuzz-findings}
mkdir -p "$corpus" "$findings"
target=$(cd "$(dirname "$target")" && pwd)/$(basename "$target")

ids=()
index=0
while IFS=$'\t' read -r id _; do
  if [ $# -eq 0 ] || printf '%s\n' "$@" | grep -qx "$id"; then
    ids+=("$id")
    if [ ! -d "$corpus/$id" ]; then
      mkdir -p "$corpus/$id"
      # The same seeds as the all-model run: the byte that picks the model, then the file.
      for example in examples/"$id"/*; do
        [ -f "$example" ] || continue
        { printf "\\x$(printf %02x "$index")"; cat "$example"; } > "$corpus/$id/$(basename "$example")"
      done
    fi
  fi
  index=$((index + 1))
done < <("$catalogue" --list)

fuzz_one() {
  local id=$1
  mkdir -p "$findings/$id"
  if VOREL_FUZZ_MODEL="$id" VOREL_FUZZ_COUNTS=1 "$target" -runs="$runs" -max_len=8192 -timeout=30 \
    -print_final_stats=1 -dict=fuzz/problem_file.dict -artifact_prefix="$findings/$id/" \
    "$corpus/$id" > "$corpus/$id.log" 2>&1; then
    echo "$id ok"
  else
    echo "$id FAILED: see $corpus/$id.log and $findings/$id/"
  fi
}
export -f fuzz_one
export target runs corpus findings

echo "Fuzzing ${#ids[@]} models, $runs inputs each, $(nproc) at a time"
start=$SECONDS
printf '%s\n' "${ids[@]}" | xargs -P "$(nproc)" -I{} bash -c 'fuzz_one {}' | tee "$corpus/outcome"
echo
printf '%-24s %12s %10s %8s\n' model inputs 'inputs/s' findings
for id in "${ids[@]}"; do
  inputs=$(sed -n "s/^model $id: //p" "$corpus/$id.log" | tail -1)
  rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$corpus/$id.log" | tail -1)
  printf '%-24s %12s %10s %8s\n' "$id" "${inputs:-?}" "${rate:-?}" "$(ls "$findings/$id" | wc -l)"
done
echo "$(( SECONDS - start )) s in all"
! grep -q FAILED "$corpus/outcome"
