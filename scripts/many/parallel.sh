#!/usr/bin/env bash
# Runs a verb of layertool over the drawings of a list on several hosts with GNU parallel; see
# docs/many-drawings.md.
set -euo pipefail

if [ $# -lt 3 ]; then
    echo "用法：$0 图形列表 输出文件夹 命令 [layertool 的选项...]" >&2
    echo "Usage: $0 LIST-OF-DRAWINGS OUTPUT-FOLDER VERB [options of layertool...]" >&2
    exit 2
fi
here=$(cd "$(dirname "$0")" && pwd)
program=$(realpath "${LAYERTOOL:-$here/../../build/release/bin/layertool}")
list=$(realpath "$1")
mkdir -p "$2/.layertool"
out=$(realpath "$2")
shift 2
shards=${SHARDS:-8}

# A shard is one run of the program; one that is lost with its host goes to another. That something
# was found, or that a drawing failed, is no reason to run a shard again: the report tells it.
failed=0
seq "$shards" | parallel -q --sshlogin "${HOSTS:-:}" --jobs "${SLOTS:-1}" --workdir "$PWD" --retries 2 \
    --joblog "$out/.layertool/parallel.log" --line-buffer \
    sh -c 'code=0; "$@" || code=$?; [ "$code" -le 1 ]' sh \
    "$program" "$@" --quiet --wait --list "$list" --out "$out" --shard "{}/$shards" || failed=$?

"$program" report "$out" --output "$out/report.csv" || failed=$?
exit $((failed > 0))
