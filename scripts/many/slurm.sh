#!/usr/bin/env bash
# Translates the drawings of a list as a Slurm array job; see docs/many-drawings.md.
#SBATCH --job-name=layertrans
set -euo pipefail

# The job's own part: one shard of the array, or the merging of the reports behind all of them.
if [ "${LAYERTRANS_PART:-}" = shard ]; then
    exec "$LAYERTRANS" --standard "$1" --list "$2" --out "$3" \
        --shard "$SLURM_ARRAY_TASK_ID/$SLURM_ARRAY_TASK_COUNT" \
        --jobs "${SLURM_CPUS_PER_TASK:-1}" \
        --report "$3/reports/shard-$SLURM_ARRAY_TASK_ID.csv" "${@:4}"
elif [ "${LAYERTRANS_PART:-}" = merge ]; then
    earlier=()
    [ ! -e "$3/report.csv" ] || earlier=("$3/report.csv")
    exec "$LAYERTRANS" --merge-reports "$3/report.csv" "${earlier[@]}" "$3"/reports/shard-*.csv
fi

if [ $# -lt 3 ]; then
    echo "用法：$0 标准文件 图形列表 输出文件夹 [layertrans 的选项...]" >&2
    exit 2
fi
here=$(cd "$(dirname "$0")" && pwd)
LAYERTRANS=$(realpath "${LAYERTRANS:-$here/../../build/release/bin/layertrans}")
export LAYERTRANS
standard=$(realpath "$1")
list=$(realpath "$2")
mkdir -p "$3/reports"
out=$(realpath "$3")
shift 3

# Slurm keeps a copy of this script, so the parts find their way without its place. A task that is
# lost with its node is put into the queue again.
array=$(LAYERTRANS_PART=shard sbatch --parsable --requeue --array="1-${SHARDS:-8}" \
    --cpus-per-task="${CPUS:-1}" --output="$out/reports/shard-%a.log" \
    "$0" "$standard" "$list" "$out" "$@")
merge=$(LAYERTRANS_PART=merge sbatch --parsable --dependency="afterany:$array" \
    --output="$out/reports/merge.log" "$0" "$standard" "$list" "$out")
echo "已提交：数组作业 $array，合并报告的作业 $merge。结果在 $out/report.csv。"
