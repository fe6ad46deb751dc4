#!/usr/bin/env bash
# Runs a libFuzzer target for a bounded time, seeded with every example problem
# file; fails when it finds a crash, and keeps the crashing input in
# fuzz-findings/ (named in the log) so it can be reproduced.
#   run-fuzz.sh TARGET SECONDS              the problem file reader
#   run-fuzz.sh TARGET SECONDS VOREL-REPORT every model: each seed starts with
#                                           the byte that picks its model
set -euo pipefail
target=$1
seconds=${2:-20}
catalogue=${3:-}
findings=${FUZZ_FINDINGS:-fuzz-findings}
mkdir -p "$findings"
corpus=$(mktemp -d)
trap 'rm -rf "$corpus"' EXIT
if [ -n "$catalogue" ]; then
  index=0
  while IFS=$'\t' read -r id _; do
    for example in examples/"$id"/*; do
      [ -f "$example" ] || continue
      { printf "\\x$(printf %02x "$index")"; cat "$example"; } > "$corpus/$id-$(basename "$example")"
    done
    index=$((index + 1))
  done < <("$catalogue" --list)
else
  cp examples/*/* "$corpus"/
fi
echo "Fuzzing $(basename "$target") for ${seconds} s from $(ls "$corpus" | wc -l) examples"
if ! "$target" -max_total_time="$seconds" -max_len=8192 -timeout=30 -print_final_stats=1 \
  -dict=fuzz/problem_file.dict -artifact_prefix="$findings/" "$corpus" 2> "$corpus/log"; then
  tail -40 "$corpus/log"
  echo "Crashing inputs kept in $(cd "$findings" && pwd):"
  ls -l "$findings"
  exit 1
fi
grep -E '^stat::number_of_executed_units' "$corpus/log" | tail -1
