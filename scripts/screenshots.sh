#!/usr/bin/env bash
# Saves a screenshot of the start screen, the main menu and every section
# menu (and of the model screens that tests/screens can reach) under Xvfb.
set -euo pipefail
build=${1:-build}
out=${2:-screenshots}
mkdir -p "$out"
display=:78
Xvfb "$display" -screen 0 1280x860x24 -nolisten tcp > /dev/null 2>&1 &
xvfb=$!
trap 'kill $xvfb 2>/dev/null || true' EXIT
sleep 1
DISPLAY=$display VOREL_SCREENSHOTS="$out" "$build/tests/vorel_gui_tests" \
  --gtest_filter='Screenshots.*' --gtest_also_run_disabled_tests > /dev/null
ls "$out"
