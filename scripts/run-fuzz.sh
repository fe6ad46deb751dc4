#!/usr/bin/env bash
# Runs a libFuzzer target for a bounded time from the examples as a seed corpus;
# fails when it finds a crash.
set -euo pipefail
target=$1
seconds=${2:-20}
corpus=$(mktemp -d)
trap 'rm -rf "$corpus"' EXIT
cp examples/* "$corpus"/ 2>/dev/null || true
echo "Fuzzing the problem file reader for ${seconds} s"
"$target" -max_total_time="$seconds" -max_len=4096 -print_final_stats=0 \
  -artifact_prefix="$corpus/" "$corpus" 2> "$corpus/log" || { tail -40 "$corpus/log"; exit 1; }
grep -E '^Done|#[0-9]+.*DONE' "$corpus/log" | tail -1
