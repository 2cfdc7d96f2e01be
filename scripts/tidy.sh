#!/usr/bin/env bash
# Runs clang-tidy over all sources, or over those whose paths match: tidy.sh [regular expression...]
# Any finding fails it. Nothing is built: a list of compile commands and what moc makes are enough.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh --tests # Tests and benchmarks are looked at, too.
scripts/setup.sh --tidy
cmake --preset tidy >/dev/null

build=build/tidy
# The build's own targets for moc would build the libraries that theirs are linked with first.
find "$build" -name AutogenInfo.json -print0 |
    xargs -0 -P "$(nproc)" -I{} cmake -E cmake_autogen {} Debug >/dev/null

# Each source once, though several targets may build it, and none that was generated.
mkdir -p "$build/sources"
python3 - "$build" <<'END'
import json, os, sys
build = os.path.abspath(sys.argv[1])
with open(build + "/compile_commands.json") as commands:
    once = {}
    for command in json.load(commands):
        if not command["file"].startswith(build + "/"):
            once.setdefault(command["file"], command)
with open(build + "/sources/compile_commands.json", "w") as commands:
    json.dump(list(once.values()), commands)
END
run-clang-tidy -quiet -j "${TIDY_JOBS:-$(nproc)}" -p "$build/sources" "$@" 2>&1 |
    sed -E '/^clang-tidy|[0-9]+ warnings? generated/d'
