#!/usr/bin/env bash
# try-packages.sh [FOLDER]: installs the packages of FOLDER (build/packages) in a bare Debian 12, uses them as a
# drafter, a manager, an integrator and a writer of scripts do, removes them, and shows that nothing is left. Needs
# root and debootstrap; takes Debian from where this machine's apt takes it.
set -euo pipefail
cd "$(dirname "$0")/.."
packages=$(cd "${1:-build/packages}" && pwd)
mirror=$(apt-get indextargets --format '$(RELEASE) $(REPO_URI)' 'Created-By: Packages' |
    sed -n '/^bookworm /{s///p;q}')
work=$(mktemp -d)
root=$work/root
trap 'umount -q "$root/proc" || true; rm -rf "$work"' EXIT

step() { printf '\n== %s\n' "$*"; }
inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/tmp/home LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=/tmp/run "$@"
}
install() { inside apt-get install -y -qq -o Dpkg::Use-Pty=0 --no-install-recommends "$@" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }; }
# All that packages and programs may leave behind; apt's and dpkg's own books and logs apart.
everything() {
    (cd "$root" && find . -xdev \( -path ./proc -o -path ./tmp -o -path ./packages -o -path ./var/log -o -path ./var/cache \
        -o -path ./var/lib/apt -o -path ./var/lib/dpkg \) -prune -o -print | sort)
}

step "a bare Debian 12"
debootstrap --variant=minbase bookworm "$root" "${mirror:?no package source is set up}" >"$work/log" 2>&1 || { tail "$work/log"; exit 1; }
mount -t proc proc "$root/proc"
mkdir "$root/packages"
mkdir -m 700 "$root/tmp/home" "$root/tmp/run"
cp "$packages"/*.deb "$root/packages"
inside apt-get update -qq
names=$(for package in "$packages"/*.deb; do dpkg-deb -f "$package" Package; done)
files=$(cd "$packages" && printf '/packages/%s ' *.deb)
echo "packages: $(inside dpkg-query -W | wc -l)"

step "installed and removed once, so that what they depend on is there"
install $files g++ cmake make pkg-config fonts-wqy-zenhei
inside apt-get purge -y -qq -o Dpkg::Use-Pty=0 $names >/dev/null
everything >"$work/before"

step "installed"
install $files
inside dpkg-query -W -f '${Package} ${Version} ${Architecture} ${Installed-Size} kB\n' $names
samples=/usr/share/quenlith-layers/samples

step "a manager: layertool check"
inside layertool --version
inside layertool check --language en --standard $samples/office-standard.dxf $samples/office-floor.dxf >"$work/found" || [ $? = 1 ]
head -5 "$work/found"
inside sh -c 'zcat /usr/share/man/man1/layertool.1.gz | head -1'
inside bash -c '. /usr/share/bash-completion/completions/layertool && complete -p layertool'

step "a drafter: layerbench --gallery"
inside layerbench --gallery /tmp/gallery >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
echo "$(ls "$root/tmp/gallery" | wc -l) pictures, the layer manager's of $(stat -c %s "$root/tmp/gallery/layer-properties.png") bytes"

step "an integrator: the examples against the -dev package"
for example in renamelayers host; do
    inside sh -c "cmake -S /usr/share/doc/quenlith-layers/examples/$example -B /tmp/$example && cmake --build /tmp/$example" \
        >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
done
inside sh -c "cp $samples/office-floor.dxf /tmp/plan.dxf && /tmp/renamelayers/renamelayers /tmp/plan.dxf A-DOOR DOORS"
inside layertool list --language en /tmp/plan.dxf | grep DOORS
echo "the example host's layers:" $(inside timeout 120 /tmp/host/examplehost --press-ok 2>/dev/null)
inside pkg-config --modversion quenlith-layers-drawing quenlith-layers-host

step "a script"
inside python3 -c 'import dxflayers
drawing = dxflayers.open("/tmp/plan.dxf")
print(len(drawing.layers), "layers, renamed", drawing.rename({"DOORS": "A-DOOR"}))'

step "removed"
inside apt-get purge -y -qq -o Dpkg::Use-Pty=0 $names >/dev/null
everything >"$work/after"
diff "$work/before" "$work/after"
echo "Nothing is left."
