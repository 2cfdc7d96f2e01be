#!/usr/bin/env bash
# A git pre-commit hook: refuses a commit whose drawings do not follow the layer standard. Copy it to
# .git/hooks/pre-commit, or link it there. LAYER_STANDARD names the standard (layers.json otherwise),
# LAYERTOOL the program.
set -euo pipefail

standard=${LAYER_STANDARD:-layers.json}
[ -e "$standard" ] || {
    echo "没有图层标准 $standard；用 LAYER_STANDARD 指明。" >&2
    echo "There is no layer standard $standard; name it in LAYER_STANDARD." >&2
    exit 2
}
# What is staged counts, not what lies in the work tree.
staged=$(mktemp -d)
trap 'rm -rf "$staged"' EXIT
git diff --cached --name-only --diff-filter=ACMR -z -- '*.dxf' '*.DXF' |
    git checkout-index --prefix="$staged/" --stdin -z
[ -n "$(ls -A "$staged")" ] || exit 0
"${LAYERTOOL:-layertool}" check --quiet --standard "$standard" --root "$staged" "$staged"
