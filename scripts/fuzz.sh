#!/usr/bin/env bash
# Builds the file readers' libFuzzer targets with clang (build-fuzz/) and runs each for SECONDS
# (default 60). Seeds come from the shipped files and the readers' edge cases, made afresh on
# every run; what a run finds is kept in build-fuzz/corpus/, crashes in build-fuzz/crashes/.
# Prints executions and coverage per target; exits non-zero when a target found a crash.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-60}"
build=build-fuzz
launcher=()
if command -v ccache > /dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLARKWELLS_FUZZ=ON \
    -DCMAKE_CXX_COMPILER=clang++-14 "${launcher[@]}" > /dev/null
cmake --build "$build"

# Shipped files in pieces of a few lines, so every piece is a small input of its own.
split_into() {
  local file=$1 dir=$2
  split -l 6 -a 4 "$file" "$dir/shipped-"
}

# One seed file per argument.
seeds() {
  local dir=$1 i=0
  shift
  for text in "$@"; do printf '%b' "$text" > "$dir/case-$((i++))"; done
}

make_seeds() {
  local target=$1 dir="$build/seeds/$1"
  rm -rf "$dir"
  mkdir -p "$dir"
  case "$target" in
    fuzz_pagefile)
      split_into resources/Book.txt "$dir"
      seeds "$dir" '[POEMPRAYER]\r\nd1^AM^12^25^359^F^two@#@lines\r\n' '^^^' 'd^PM^1^2^3^T^say \x22day\x22 it\x27s, here\n' \
        'a^b^c^d^e^f^g^h' 'd^AM^-32768^32767^+5^F^\x8a\x9a\xb3' '\v\f\x85d^AM^1^1' ;;
    fuzz_specialdays)
      split_into resources/SpecialDays.txt "$dir"
      seeds "$dir" '[SPECIALDAYS]\r\nAM^New Year^one@#@two\n' 'PM' 'AM^a^b^c' '^^\n\n' ;;
    fuzz_about)
      split_into resources/About.txt "$dir"
      seeds "$dir" '[ABOUT]\r\nName^text@#@more\n' 'only a name' '^' 'a^b^c' '\xef\xbb\xbfName^\xc3\xa9' ;;
    fuzz_preferences)
      seeds "$dir" '{"FontName": {"type": "string", "value": "Georgia"}, "ReaderFontSize": {"type": "double", "value": 17.5},
 "useWallpaper": {"type": "integer", "value": 1}, "hasBeenLaunchedBeforeFlag": {"type": "bool", "value": true}}' \
        '{"a": {"type": "integer", "value": "x"}, "b": 3, "c": {"type": "double"}}' '{"n": {"type": "integer", "value": 1e300}}' \
        '[1, 2]' '{ not json' '' ;;
  esac
}

export ASAN_OPTIONS="abort_on_error=1:detect_leaks=1"
export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
mkdir -p "$build/crashes" "$build/logs"
status=0
summary=()
for target in fuzz_pagefile fuzz_specialdays fuzz_about fuzz_preferences; do
  make_seeds "$target"
  mkdir -p "$build/corpus/$target"
  log="$build/logs/$target.log"
  if ! "$build/$target" -max_total_time="$seconds" -max_len=4096 -timeout=10 -rss_limit_mb=2048 \
      -print_final_stats=1 -artifact_prefix="$build/crashes/$target-" \
      "$build/corpus/$target" "$build/seeds/$target" > "$log" 2>&1; then
    status=1
    tail -n 40 "$log"
    summary+=("$target: FOUND A CRASH (see $log and $build/crashes/)")
    continue
  fi
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  last=$(grep -E '^#[0-9]+' "$log" | tail -n 1 || true)
  cov=$(sed -n 's/.* cov: \([0-9]*\).*/\1/p' <<< "$last")
  ft=$(sed -n 's/.* ft: \([0-9]*\).*/\1/p' <<< "$last")
  corpus=$(sed -n 's/.* corp: \([0-9]*\/[0-9a-zA-Z]*\).*/\1/p' <<< "$last")
  summary+=("$target: $runs executions in ${seconds}s, coverage $cov edges, $ft features, corpus $corpus")
done
printf '%s\n' "${summary[@]}"
exit "$status"
