#!/usr/bin/env bash
# Sets up the machine, builds the application and starts it in a window.
# Extra arguments go to the application (for example --data-dir DIR).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release -DLARKWELLS_TESTS=OFF
cmake --build build-release
exec ./build-release/larkwells "$@"
