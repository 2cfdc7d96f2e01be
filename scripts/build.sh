#!/usr/bin/env bash
# build.sh PRESET [TARGETS...]: configures and builds a preset (release, debug, asan, tsan or fuzz), all of it or
# the targets named.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-release}
[ $# -eq 0 ] || shift
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" -j "$(nproc)" ${1:+--target "$@"}
