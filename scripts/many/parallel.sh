#!/usr/bin/env bash
# Translates the drawings of a list on several hosts with GNU parallel; see docs/many-drawings.md.
set -euo pipefail

if [ $# -lt 3 ]; then
    echo "用法：$0 标准文件 图形列表 输出文件夹 [layertrans 的选项...]" >&2
    exit 2
fi
here=$(cd "$(dirname "$0")" && pwd)
program=$(realpath "${LAYERTRANS:-$here/../../build/release/bin/layertrans}")
standard=$(realpath "$1")
list=$(realpath "$2")
mkdir -p "$3/reports"
out=$(realpath "$3")
shift 3
hosts=${HOSTS:-:}
shards=${SHARDS:-8}

# A shard is one run of the program; one that is lost with its host goes to another.
failed=0
seq "$shards" | parallel -q --sshlogin "$hosts" --jobs "${SLOTS:-1}" --workdir "$PWD" --retries 2 \
    --joblog "$out/reports/parallel.log" --line-buffer \
    "$program" --standard "$standard" --list "$list" --shard "{}/$shards" --out "$out" \
    --report "$out/reports/shard-{}.csv" "$@" || failed=$?

# What an earlier run did is not forgotten by shards that only found it done.
earlier=()
[ ! -e "$out/report.csv" ] || earlier=("$out/report.csv")
"$program" --merge-reports "$out/report.csv" "${earlier[@]}" "$out"/reports/shard-*.csv || failed=$?
exit $((failed > 0))
