#!/usr/bin/env bash
# Installs every Debian package the build, the application, the tests and the benchmarks need.
set -euo pipefail

# What the application needs at run time is listed once, in runtime-packages.txt (the .deb
# depends on the same list); what building, testing and packaging need is listed here.
packages=(
  # build
  cmake g++ ninja-build pkg-config python3 ccache
  # Qt 6 toolkit, headers and tools
  qt6-base-dev qt6-base-dev-tools qt6-declarative-dev qt6-declarative-dev-tools qt6-svg-dev
  qt6-tools-dev qt6-l10n-tools libgl-dev libfontconfig-dev qt6-speech-dev
  # tests: Qt Quick Test, a real window without a display, benchmarks
  qml6-module-qttest xvfb xauth libbenchmark-dev
  # tests: a screen reader's view of the running application (AT-SPI over a session bus)
  python3-pyatspi dbus at-spi2-core
  # packaging: shared-library dependencies of the .deb, and the two validators
  dpkg-dev desktop-file-utils appstream
  # the file readers' libFuzzer targets (scripts/fuzz.sh)
  clang-14 libclang-rt-14-dev
)
while read -r line; do
  line="${line%%#*}"
  for p in $line; do packages+=("$p"); done
done < "$(dirname "$0")/runtime-packages.txt"

SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ "${#missing[@]}" -gt 0 ]; then
  $SUDO apt-get update
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y --no-install-recommends "${missing[@]}"
fi
