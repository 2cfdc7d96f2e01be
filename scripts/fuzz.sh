#!/usr/bin/env bash
# Builds the fuzz targets and runs each for a while: fuzz.sh [seconds] [target...]
# Seeds, what was learnt and faults found are kept in build/fuzz/run. Fails when a fault was found.
# FUZZ_SEED=1 makes a first run take the same way each time.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-30}
shift || true

scripts/setup.sh --fuzz
scripts/build.sh fuzz

bin=$PWD/build/fuzz/fuzz
run=$PWD/build/fuzz/run
mkdir -p "$run"
python3 fuzz/makeseeds.py samples fuzz/seeds "$run/seeds"
if [ $# -eq 0 ]; then
    for program in $(find "$bin" -maxdepth 1 -name "fuzz_*" -type f | sort); do
        set -- "$@" "${program##*/fuzz_}"
    done
fi

fuzz_one() {
    local target=$1 extra=()
    mkdir -p "$run/corpus/$target" "$run/seeds/$target" "$run/faults"
    # Widgets keep caches, which would be searched for leaks after every single execution.
    [ "$target" = dialog ] && extra=(-detect_leaks=0)
    if nice "$bin/fuzz_$target" "$run/corpus/$target" "$run/seeds/$target" "${extra[@]}" \
        -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 -max_len=40000 \
        -seed="${FUZZ_SEED:-0}" -print_final_stats=1 -artifact_prefix="$run/faults/$target-" >"$run/$target.log" 2>&1; then
        echo "$target: $(executions) executions, no fault"
    else
        echo "$target: $(executions) executions, FAULT, see $run/$target.log"
        return 1
    fi
}
executions() { sed -n 's/^stat::number_of_executed_units: *//p' "$run/$target.log"; }

export -f fuzz_one executions
export bin run seconds
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$PWD/fuzz/lsan.supp:print_suppressions=0
printf '%s\n' "$@" | xargs -P "$(nproc)" -I{} bash -c 'fuzz_one {}'
