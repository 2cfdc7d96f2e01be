#!/usr/bin/env bash
# make-packages.sh [--twice] [FOLDER]: makes the Debian packages of the last commit in FOLDER (build/packages). With
# --twice they are made a second time, in a folder of another name and depth, to see that the bytes are the same. Needs
# what packaging/debian/control names, lintian, desktop-file-utils and appstream.
set -euo pipefail
cd "$(dirname "$0")/.."
twice=
[ "${1:-}" != --twice ] || { twice=yes; shift; }
mkdir -p "${1:-build/packages}"
folder=$(cd "${1:-build/packages}" && pwd)
version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
[ "$(dpkg-parsechangelog -l packaging/debian/changelog -S Version)" = "$version" ] ||
    { echo "packaging/debian/changelog is not about version $version" >&2; exit 1; }
# Files get the commit's time, whenever they are made.
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH DEB_BUILD_OPTIONS=${DEB_BUILD_OPTIONS:-nocheck parallel=$(nproc)}

# make_in FOLDER: the packages come to lie beside the sources.
make_in() {
    rm -rf "$1"
    mkdir -p "$1"
    git archive HEAD | tar -x -C "$1"
    mv "$1/packaging/debian" "$1/debian"
    (cd "$1" && dpkg-buildpackage -b -us -uc) >"$folder/log" 2>&1 || { tail -40 "$folder/log" >&2; exit 1; }
}

rm -f "$folder"/*.deb
make_in "$folder/sources/quenlith-layers"
mv "$folder"/sources/*.deb "$folder"
if [ -n "$twice" ]; then
    make_in "$folder/again/in-another-folder/quenlith-layers-$version"
    for package in "$folder"/*.deb; do
        cmp "$package" "$folder/again/in-another-folder/${package##*/}"
    done
    echo "Made twice, the packages are the same byte for byte."
fi
rm -rf "$folder/sources" "$folder/again"

content=$(mktemp -d)
trap 'rm -rf "$content"' EXIT
dpkg-deb -x "$folder"/quenlith-layers_*.deb "$content"
desktop-file-validate "$content"/usr/share/applications/*.desktop
appstreamcli validate --no-net "$content"/usr/share/metainfo/*.xml
lintian --tag-display-limit 0 --fail-on error "$folder"/*.deb
(cd "$folder" && sha256sum -- *.deb)
