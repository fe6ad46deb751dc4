#!/usr/bin/env bash
# Starts the desktop program. Without a display it starts a virtual one
# (Xvfb), says so, and saves a screenshot of what the program shows.
set -euo pipefail
build=${1:-build}
program="$build/vorel"

if [ -n "${DISPLAY:-}" ]; then
  exec "$program"
fi

source "$(dirname "$0")/xvfb.sh"
start_xvfb 1280x800
echo "No display found: starting the program on a virtual display (Xvfb $DISPLAY)."
"$program" &
app=$!
mkdir -p screenshots
sleep 4
import -window root screenshots/run.png
echo "Screenshot of the main menu saved to screenshots/run.png."
if [ -t 0 ]; then
  echo "The program is running on the virtual display; press Enter to end it."
  read -r _
fi
kill $app 2>/dev/null || true
