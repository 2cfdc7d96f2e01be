#!/usr/bin/env bash
# Runs a verb of layertool over the drawings of a list as a Slurm array job; see
# docs/many-drawings.md.
#SBATCH --job-name=layertool
set -euo pipefail

# The job's own part: one shard of the array, or the report behind all of them. That something was
# found, or that a drawing failed, is for the report to tell, not for the shard's exit code.
if [ "${LAYERTOOL_PART:-}" = shard ]; then
    code=0
    "$LAYERTOOL" "${@:3}" --quiet --wait --list "$1" --out "$2" --jobs "${SLURM_CPUS_PER_TASK:-1}" \
        --shard "$SLURM_ARRAY_TASK_ID/$SLURM_ARRAY_TASK_COUNT" || code=$?
    exit $((code > 1 ? code : 0))
elif [ "${LAYERTOOL_PART:-}" = report ]; then
    exec "$LAYERTOOL" report "$1" --output "$1/report.csv"
fi

if [ $# -lt 3 ]; then
    echo "用法：$0 图形列表 输出文件夹 命令 [layertool 的选项...]" >&2
    echo "Usage: $0 LIST-OF-DRAWINGS OUTPUT-FOLDER VERB [options of layertool...]" >&2
    exit 2
fi
here=$(cd "$(dirname "$0")" && pwd)
LAYERTOOL=$(realpath "${LAYERTOOL:-$here/../../build/release/bin/layertool}")
export LAYERTOOL
list=$(realpath "$1")
mkdir -p "$2/.layertool"
out=$(realpath "$2")
shift 2

# Slurm keeps a copy of this script, so the parts find their way without its place. A task that is
# lost with its node is put into the queue again.
array=$(LAYERTOOL_PART=shard sbatch --parsable --requeue --array="1-${SHARDS:-8}" \
    --cpus-per-task="${CPUS:-1}" --output="$out/.layertool/shard-%a.log" "$0" "$list" "$out" "$@")
report=$(LAYERTOOL_PART=report sbatch --parsable --dependency="afterany:$array" \
    --output="$out/.layertool/report.log" "$0" "$out")
echo "已提交：数组作业 $array，做报告的作业 $report。结果在 $out/report.csv。"
echo "Submitted: array job $array, report job $report. The results are in $out/report.csv."
