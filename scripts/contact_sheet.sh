#!/usr/bin/env bash
# Draws the pictures and lays them out on one sheet: the 35 reader papers, the cover, and the
# 35 list bands cropped to a phone's 6:1 row, each labelled with its name.
# usage: scripts/contact_sheet.sh [BUILD_DIR] [OUT.png]
set -euo pipefail

root="$(cd "$(dirname "$0")/.." && pwd)"
build="${1:-$root/build}"
out="${2:-$build/contact_sheet.png}"

if [ ! -f "$build/build.ninja" ] && [ ! -f "$build/Makefile" ]; then
  cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug
fi
# The pictures are outputs of the build; the bundle target draws them if they are stale.
cmake --build "$build" --target larkwells_pictures
"$build/larkwells_art" sheet "$build/pictures" "$out"
echo "$out"
