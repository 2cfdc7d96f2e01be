#!/usr/bin/env bash
# Configures and builds a preset: release, debug, asan, tsan or fuzz.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-release}
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" -j "$(nproc)"
