#!/usr/bin/env bash
# Makes the reference in build/docs/html; fails on a warning.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh --docs
mkdir -p build/docs
inputs=()
[[ -d python ]] && inputs+=(python)
{ cat docs/Doxyfile; printf 'INPUT += %s\n' "${inputs[*]}"; } | doxygen -
