#!/usr/bin/env bash
# Sets up the machine, builds the application and its tests with AddressSanitizer and
# UndefinedBehaviorSanitizer, runs the whole suite headless, then gives each file reader's fuzz
# target a short run so the targets keep building and working.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake -S . -B build-test -G Ninja -DCMAKE_BUILD_TYPE=Debug -DLARKWELLS_SANITIZE=ON -DLARKWELLS_TESTS=ON
cmake --build build-test
export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1:strict_string_checks=1:fast_unwind_on_malloc=0"
export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
ctest --test-dir build-test --output-on-failure -j "$(nproc)"
bash scripts/fuzz.sh 20
