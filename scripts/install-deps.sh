#!/usr/bin/env bash
# Installs through apt whatever the build, the tests and the program need and
# the machine does not have yet. Does nothing when all is there.
set -euo pipefail

packages=(
  build-essential cmake ninja-build clang libclang-rt-14-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  qt6-base-dev libqt6opengl6-dev qt6-charts-dev qt6-svg-dev libqt6svg6 qt6-qpa-plugins libgl-dev
  qt6-translations-l10n
  xvfb xauth fonts-liberation poppler-utils imagemagick librsvg2-bin dpkg-dev lintian
  appstream desktop-file-utils
  emscripten node-acorn chromium
)
# The machine may bring its own Node.js and npm; Debian's only where there is none.
command -v npm >/dev/null || packages+=(nodejs npm)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
