#!/usr/bin/env bash
# installed.sh SOURCE BUILD BUILD-TYPE: installs the build, moves the installation, and uses it as those do who have
# nothing else: the programs run, the examples are built against it in empty folders, and no file knows the build.
set -euo pipefail
source=$1 build=$2 type=$3
work=$build/installation
prefix=$work/moved
samples=$prefix/share/quenlith-layers/samples
rm -rf "$work"
mkdir -p "$work"
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work/runtime
export XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache XDG_DATA_HOME=$work/data
mkdir -m 700 "$XDG_RUNTIME_DIR"

fail() {
    echo "FAIL: $*" >&2
    exit 1
}
# Says what a command says only when it fails.
quietly() { "$@" >"$work/log" 2>&1 || fail "$*: $(tail -30 "$work/log")"; }

quietly cmake --install "$build" --prefix "$work/first"
mv "$work/first" "$prefix"
lib=$(dirname "$(find "$prefix" -name libvnhost.so)")

names_build() { grep -qF -e "$build" -e "$source" "$1"; }
while read -r file; do
    # Debug information may name its sources; what is delivered is stripped.
    strip --strip-all -o "$work/stripped" "$file" 2>/dev/null || cp "$file" "$work/stripped"
    # An unoptimised build names them in its assertions, too.
    [ "$type" = Debug ] || ! names_build "$work/stripped" || fail "$file names the folder of the build"
done < <(grep -rlF -e "$build" -e "$source" "$prefix")
for library in vnplatform vnhost; do
    readelf -d "$lib/lib$library.so" | grep -q "SONAME.*lib$library.so.1" || fail "$library has no SONAME"
done

quietly "$prefix/bin/layertool" list "$samples/office-floor.dxf"
quietly "$prefix/bin/layerbench" --gallery "$work/gallery"
[ -s "$work/gallery/layer-properties.png" ] || fail "the installed workbench shows no layer manager"
for program in layertool layerbench; do
    grep -q '^\.TP' "$prefix/share/man/man1/$program.1" || fail "the manual page of $program tells no option"
done
# What bash offers for the last of these words.
offered() {
    . "$prefix/share/bash-completion/completions/$1"
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
    "_$1" 2>/dev/null || true # It cannot set options outside of a completion.
    echo "${COMPREPLY[@]}"
}
while IFS=: read -r words wanted; do
    found=$(offered $words)
    [ "$found" = "$wanted" ] || fail "bash offers '$found' for $words"
done <<EOF
layertool list --lang:--language
layerbench --lang:--language
layertool list --format = j:json
layertool list $samples/office-f:$samples/office-floor.dxf
layertool report $samples/off:
layertool report $prefix/sh:$prefix/share
layertool explain layer-un:layer-unused
EOF

for example in renamelayers host; do
    quietly cmake -S "$source/examples/$example" -B "$work/$example" -G Ninja \
        -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_BUILD_TYPE="$type"
    quietly cmake --build "$work/$example"
done
export PKG_CONFIG_PATH=$lib/pkgconfig
# Whoever includes a header may have turned off Qt's keywords.
(cd "$prefix/include/quenlith-layers" && find . -name '*.h' -printf '#include "%P"\n' | sort) >"$work/headers.cpp"
quietly g++ -std=c++17 -fPIC -fsyntax-only -DQT_NO_KEYWORDS -I"$prefix/include/quenlith-layers" "$work/headers.cpp" \
    $(pkg-config --cflags quenlith-layers-host quenlith-layers-drawing)
mkdir "$work/by-pkgconfig"
quietly g++ -std=c++17 -fPIC -DQT_NO_KEYWORDS "$source/examples/renamelayers/main.cpp" -o "$work/by-pkgconfig/renamelayers" \
    $(pkg-config --cflags --libs quenlith-layers-drawing)
pkg-config --validate quenlith-layers-host

for program in renamelayers by-pkgconfig; do
    cp "$source/samples/office-floor.dxf" "$work/plan.dxf"
    "$work/$program/renamelayers" "$work/plan.dxf" A-DOOR 门
    "$prefix/bin/layertool" list --format csv "$work/plan.dxf" | grep -c 门 >/dev/null || fail "$program renamed nothing"
done
timeout 300 "$work/host/examplehost" --press-ok | grep -cx WALLS >/dev/null || fail "the example's dialog gave back no layer"
