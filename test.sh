#!/usr/bin/env bash
# Sets up, builds and runs every test; with --asan under the address and undefined-behaviour
# sanitizers, with --tsan those of several threads under the thread sanitizer.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh --tests

run_tests() {
    scripts/build.sh "$1"
    ctest --preset "$1" -j "$(nproc)"
}

if [ "${1:-}" = "--asan" ]; then
    export ASAN_OPTIONS="detect_leaks=1:strict_string_checks=1:${ASAN_OPTIONS:-}"
    export UBSAN_OPTIONS="print_stacktrace=1"
    run_tests asan
elif [ "${1:-}" = "--tsan" ]; then
    run_tests tsan
else
    run_tests release
fi
