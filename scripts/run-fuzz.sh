#!/usr/bin/env bash
# Runs a libFuzzer target for a bounded time, seeded with every example problem
# file; fails when it finds a crash, and keeps the crashing input in
# fuzz-findings/ (named in the log) so it can be reproduced.
#   run-fuzz.sh TARGET SECONDS VOREL-REPORT [models]
# VOREL-REPORT lists the models (in the catalogue's order); with "models" the
# target is the one over every model.
set -euo pipefail
target=$1
seconds=${2:-20}
catalogue=$3
models=${4:-}
findings=${FUZZ_FINDINGS:-fuzz-findings}
mkdir -p "$findings"
corpus=$(mktemp -d)
trap 'rm -rf "$corpus"' EXIT
# Each seed is an example, named after its model; for every model's target it
# starts with the byte that picks that model.
index=0
while IFS=$'\t' read -r id _; do
  for example in examples/"$id"/*; do
    [ -f "$example" ] || continue
    seed="$corpus/$id-$(basename "$example")"
    if [ -n "$models" ]; then
      { printf "\\x$(printf %02x "$index")"; cat "$example"; } > "$seed"
    else
      cp "$example" "$seed"
    fi
  done
  index=$((index + 1))
done < <("$catalogue" --list)
echo "Fuzzing $(basename "$target") for ${seconds} s from $(ls "$corpus" | wc -l) examples"
if ! "$target" -max_total_time="$seconds" -max_len=8192 -timeout=30 -print_final_stats=1 \
  -dict=fuzz/problem_file.dict -artifact_prefix="$findings/" "$corpus" 2> "$corpus/log"; then
  tail -40 "$corpus/log"
  echo "Crashing inputs kept in $(cd "$findings" && pwd):"
  ls -l "$findings"
  exit 1
fi
grep -E '^stat::number_of_executed_units' "$corpus/log" | tail -1
