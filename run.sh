#!/usr/bin/env bash
# Sets up, builds, and opens the workbench on a sample drawing (or on the drawing named).
# Without a display it writes a picture of every dialog instead.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh
scripts/build.sh release layerbench cmdlayerui

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "没有可用的显示：改为把各对话框的图片写入 build/gallery。"
    echo "There is no display: the dialogs' pictures go to build/gallery instead."
    exec build/release/bin/layerbench --gallery build/gallery "$@"
fi
exec build/release/bin/layerbench "${@:-samples/office-floor.dxf}"
