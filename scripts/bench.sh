#!/usr/bin/env bash
# Builds a Release tree (build-bench/, with ccache when present), runs every benchmark of bench/
# headless and prints one table: each measure beside its floor measured in the same run, the
# ratio and the target. Each benchmark's own output goes to build-bench/bench-logs/.
#   bash scripts/bench.sh [--runs N]     (N: launch rounds, 15 by default)
set -euo pipefail
cd "$(dirname "$0")/.."

runs=15
if [[ "${1:-}" == "--runs" && -n "${2:-}" ]]; then runs=$2; fi

launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DLARKWELLS_TESTS=OFF -DLARKWELLS_BENCH=ON \
    "${launcher[@]}" >/dev/null
benches=(larkwells_launch_bench larkwells_search_bench larkwells_notes_bench larkwells_list_bench
         larkwells_updatefile_bench larkwells_seeding_bench)
cmake --build build-bench --target "${benches[@]}" >/dev/null

export QT_QPA_PLATFORM=offscreen
logs=build-bench/bench-logs
mkdir -p "$logs"
rows=$(mktemp)
trap 'rm -f "$rows"' EXIT
for bench in "${benches[@]}"; do
    echo "running $bench ..." >&2
    args=()
    [[ $bench == larkwells_launch_bench ]] && args=(--runs "$runs")
    if ! "build-bench/bench/$bench" "${args[@]}" >"$logs/$bench.txt" 2>&1; then
        echo "$bench failed; see $logs/$bench.txt" >&2
    fi
    grep '^ROW' "$logs/$bench.txt" | cut -f2- >>"$rows" || true
done

echo
echo "The Larkwells Book, Release build, $(date -u '+%Y-%m-%d %H:%M UTC'), $(nproc) cores, load $(cut -d' ' -f1-3 /proc/loadavg)"
{
    printf 'measure\tfloor (same run)\tmeasured\tfloor\tratio\ttarget\tresult\n'
    cat "$rows"
} | column -t -s $'\t'
