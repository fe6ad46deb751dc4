#!/usr/bin/env bash
# Saves a screenshot of the start screen, the main menu and every section
# menu (and of the model screens that tests/screens can reach) under Xvfb.
# VOREL_SCREENS=name,name... pictures only those entry screens and their solutions.
set -euo pipefail
build=${1:-build}
out=${2:-screenshots}
mkdir -p "$out"
source "$(dirname "$0")/xvfb.sh"
start_xvfb 1366x768  # a common laptop screen
VOREL_SCREENSHOTS="$out" "$build/tests/vorel_gui_tests" \
  --gtest_filter='Screenshots.*' --gtest_also_run_disabled_tests > /dev/null
ls "$out"
