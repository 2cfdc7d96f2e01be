#!/usr/bin/env bash
# Installs, from Debian, what building and running needs and is missing; --tests adds what tests need,
# --pictures what scripts/compare_pictures.py needs, --fuzz what fuzzing needs, --tidy what scripts/tidy.sh
# needs, --docs what scripts/docs.sh needs.
set -euo pipefail

packages=(
    g++ cmake ninja-build
    qtbase5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n
    libexpected-dev libcli11-dev libxxhash-dev
    fonts-wqy-zenhei
)
if [ "${1:-}" = "--tests" ]; then
    packages+=(libbenchmark-dev libdxflib-dev pkg-config pybind11-dev python3-dev python3-ezdxf python3-jsonschema parallel)
elif [ "${1:-}" = "--pictures" ]; then # For compare_pictures.py.
    packages+=(python3-ezdxf python3-matplotlib)
elif [ "${1:-}" = "--fuzz" ]; then
    packages+=(clang libclang-rt-dev python3)
elif [ "${1:-}" = "--docs" ]; then
    packages=(doxygen)
elif [ "${1:-}" = "--tidy" ]; then
    packages+=(clang clang-tidy python3)
fi

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
        echo "需要以 root 身份安装 / to be installed as root: ${missing[*]}" >&2
        exit 1
    }
    as_root=(sudo)
fi
echo "安装 / installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
