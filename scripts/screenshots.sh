#!/usr/bin/env bash
# Takes the screenshots the AppStream metadata shows (packaging/screenshots/), at phone size
# (412x915 logical pixels, drawn at twice the density), from a headless self-test run.
# Usage: bash scripts/screenshots.sh [BUILD_DIR]   (default: build-package, built if missing)
set -euo pipefail
cd "$(dirname "$0")/.."
build="${1:-build-package}"
if [ ! -x "$build/larkwells" ]; then
  cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DLARKWELLS_TESTS=OFF -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
  cmake --build "$build" --target larkwells
fi
shots="$(mktemp -d)"
trap 'rm -rf "$shots"' EXIT
QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 LANG=C.UTF-8 LARKWELLS_SCREENSHOTS="$shots" \
  "$build/larkwells" --self-test >/dev/null
mkdir -p packaging/screenshots
cp "$shots/Cover.png" packaging/screenshots/cover.png
cp "$shots/PoemPrayerSegue.png" packaging/screenshots/pages.png
ls -l packaging/screenshots
