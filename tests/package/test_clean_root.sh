#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Installs the Debian package into a system that has nothing else, and runs it there.
# usage: test_clean_root.sh BUILD_DIRECTORY WORK_DIRECTORY VERSION CACHE_DIRECTORY
#
# The bare system is made once and kept in CACHE_DIRECTORY, and so are the packages that come from the network.
source "$(dirname "$0")/package_test.sh"
readonly BUILD=$1 WORK=$2 VERSION=$3 CACHE=$4
readonly SUITE=bookworm ROOT=$WORK/root

[ "$(id -u)" -eq 0 ] || skip "only root can make a system of its own (debootstrap, chroot)"
command -v debootstrap >/dev/null || skip "debootstrap is not installed"

# The archive that this machine takes its packages from.
mirror() {
    apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 2>/dev/null | grep -m 1 -i debian ||
        printf 'http://deb.debian.org/debian\n'
}

umount_all() {
    local place
    for place in proc dev; do
        ! mountpoint -q "$ROOT/$place" || umount "$ROOT/$place"
    done
}
trap umount_all EXIT
umount_all
rm -rf "$WORK"
mkdir -p "$WORK" "$CACHE/archives/partial"
cd "$WORK"

in_root() { env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
    chroot "$ROOT" "$@"; }

step "a bare system"
if [ ! -f "$CACHE/$SUITE.tar" ]; then
    MIRROR=$(mirror)
    if ! debootstrap --variant=minbase "$SUITE" "$ROOT" "$MIRROR" >debootstrap.log 2>&1; then
        tail -n 3 debootstrap.log
        skip "no bare system could be made: $MIRROR cannot be reached, or debootstrap may not work here"
    fi
    tar -C "$ROOT" -cf "$CACHE/$SUITE.tar.part" --one-file-system .
    mv "$CACHE/$SUITE.tar.part" "$CACHE/$SUITE.tar"
else
    mkdir -p "$ROOT"
    tar -C "$ROOT" -xf "$CACHE/$SUITE.tar"
fi
for file in /etc/apt/apt.conf.d/*proxy* /etc/resolv.conf /etc/hosts; do
    [ ! -f "$file" ] || cp --parents "$file" "$ROOT" 2>/dev/null || true
done

step "install the package and what it needs"
cpack --config "$BUILD/CPackConfig.cmake" -G DEB -B "$WORK/packages" >cpack.log 2>&1 || { cat cpack.log >&2; fail cpack; }
cp "packages/gfpq_${VERSION}_$(dpkg --print-architecture).deb" "$ROOT/root/gfpq.deb"
cp "$CACHE"/archives/*.deb "$ROOT/var/cache/apt/archives/" 2>/dev/null || true
mount -t proc proc "$ROOT/proc" || skip "nothing can be mounted here"
mount --bind /dev "$ROOT/dev" || skip "nothing can be mounted here"
if ! in_root apt-get update -qq >apt.log 2>&1; then
    tail -n 3 apt.log
    skip "the package archive cannot be reached"
fi
in_root apt-get install -y -qq --no-install-recommends -o APT::Keep-Downloaded-Packages=true \
    -o Binary::apt-get::APT::Keep-Downloaded-Packages=true /root/gfpq.deb >>apt.log 2>&1 ||
    { tail -n 30 apt.log >&2; fail "the package cannot be installed"; }
cp -u "$ROOT"/var/cache/apt/archives/*.deb "$CACHE/archives/" 2>/dev/null || true

step "the dialog's pages are drawn, in two languages"
in_root env QT_QPA_PLATFORM=offscreen gfpq_host --render /root/pages >render.out 2>render.err ||
    { cat render.err >&2; fail "gfpq_host"; }
[ "$(find "$ROOT/root/pages" -name '*.png' -size +2k | wc -l)" -eq 7 ] || fail "the number of pages"
in_root env QT_QPA_PLATFORM=offscreen gfpq_host --render /root/german --lang de >/dev/null 2>&1
[ -f "$ROOT/root/german/1-konfigurationsbaustein.png" ] || fail "the German dialog"

step "the command line tools work"
in_root gfpdb list --builtin >list.out
grep -q MX25L25645G list.out || fail "gfpdb list"
in_root gfpdb check >check.out || { cat check.out >&2; fail "gfpdb check"; }
in_root gfpdb chart MX25L25645G -o /root/chart.pdf 2>chart.err || { cat chart.err >&2; fail "gfpdb chart"; }
grep -q '^%PDF' "$ROOT/root/chart.pdf" || fail "the chart"
in_root gfprog program /usr/share/gfpq/families.csv --on emulated --device MX25L25645G >program.out ||
    { cat program.out >&2; fail "gfprog program"; }

step "and the package goes again"
in_root apt-get purge -y -qq gfpq >>apt.log 2>&1 || { tail -n 5 apt.log >&2; fail "the package cannot be removed"; }
[ ! -e "$ROOT/usr/lib/gfpq" ] && [ ! -e "$ROOT/usr/share/gfpq" ] || fail "something of the package is left"

umount_all
rm -rf "$ROOT"
echo "PASSED"
