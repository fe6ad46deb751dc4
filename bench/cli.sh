#!/usr/bin/env bash
# What one vorel-report call costs against cat of the same file, and what
# solving 1000 files in one call costs. Usage: bench/cli.sh [build folder]
set -euo pipefail
build=${1:-build}
report="$build/vorel-report"
file=examples/cep/libro.txt
runs=200

per_call() {  # mean wall time of one run of the command, in ms
  local start end
  start=$(date +%s%N)
  for _ in $(seq "$runs"); do "$@" > /dev/null; done
  end=$(date +%s%N)
  awk -v t=$((end - start)) -v n="$runs" 'BEGIN { printf "%.2f", t / n / 1e6 }'
}

echo "one call, mean of $runs (ms):"
echo "  cat $file:               $(per_call cat "$file")"
echo "  vorel-report --list:     $(per_call "$report" --list)"
echo "  vorel-report cep FILE:   $(per_call "$report" cep "$file")"

many=$(mktemp -d)
trap 'rm -rf "$many"' EXIT
for i in $(seq 1000); do cp "$file" "$many/alumno$i.txt"; done
start=$(date +%s%N)
"$report" cep "$many"/*.txt > /dev/null
end=$(date +%s%N)
echo "1000 files in one call: $(awk -v t=$((end - start)) 'BEGIN { printf "%.1f", t / 1e6 }') ms"
