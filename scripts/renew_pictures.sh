#!/usr/bin/env bash
# Makes the manual's pictures anew, in each language: renew_pictures.sh [LAYERBENCH]
set -euo pipefail
cd "$(dirname "$0")/.."
program=${1:-build/release/bin/layerbench}
export QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false'
# Settings of whoever runs this stay out of the pictures.
XDG_CONFIG_HOME=$(mktemp -d)
export XDG_CONFIG_HOME
trap 'rm -rf "$XDG_CONFIG_HOME"' EXIT
for folder in docs/manual/*/; do
    rm -f "$folder"images/*.png
    # By a relative path, since the window says which drawing it opened.
    "$program" --language "$(basename "$folder")" --gallery "$folder"images samples/office-floor.dxf
done
