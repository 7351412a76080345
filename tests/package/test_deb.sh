#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Builds the Debian packages and looks into them.
# usage: test_deb.sh BUILD_DIRECTORY WORK_DIRECTORY VERSION
source "$(dirname "$0")/package_test.sh"
readonly BUILD=$1 WORK=$2 VERSION=$3

command -v dpkg-shlibdeps >/dev/null || skip "dpkg-shlibdeps (package dpkg-dev) is not installed"
rm -rf "$WORK"
mkdir -p "$WORK"
cd "$WORK"

step "build the packages"
cpack --config "$BUILD/CPackConfig.cmake" -G DEB -B "$WORK/packages" >cpack.log 2>&1 || { cat cpack.log >&2; fail cpack; }
readonly ARCHITECTURE=$(dpkg --print-architecture)
readonly RUNTIME=packages/gfpq_${VERSION}_$ARCHITECTURE.deb DEVELOPMENT=packages/gfpq-dev_${VERSION}_$ARCHITECTURE.deb
for package in "$RUNTIME" "$DEVELOPMENT"; do
    [ -f "$package" ] || { ls packages >&2; fail "$package was not made"; }
done

field() { dpkg-deb --field "$1" "$2"; }
depends_on() { field "$1" Depends | tr ',' '\n' | sed 's/^ *//' | grep -q "^$2\( \|$\)"; }
step "what the packages need"
for need in libqt5sql5-sqlite libpq5 libqt5widgets5 libqt5svg5 libqt5gui5 libqt5core5a libqt5sql5 libstdc++6 libc6; do
    depends_on "$RUNTIME" "$need" || fail "gfpq does not depend on $need, but on $(field "$RUNTIME" Depends)"
done
for need in gfpq qtbase5-dev; do
    depends_on "$DEVELOPMENT" "$need" || fail "gfpq-dev does not depend on $need"
done
[ "$(field "$RUNTIME" Recommends)" = qttranslations5-l10n ] || fail "what gfpq recommends"
[ "$(field "$RUNTIME" Version)" = "$VERSION" ] || fail "the version"

step "what is in them"
dpkg-deb --contents "$RUNTIME" >runtime.txt
dpkg-deb --contents "$DEVELOPMENT" >development.txt
for file in usr/bin/gfpq_host usr/bin/gfpdb usr/bin/gfprog usr/libexec/gfpdb_chart usr/lib/gfpq/libpgm_gfpq.so usr/lib/gfpq/libgfpdb.so \
    usr/share/gfpq/families.csv usr/share/gfpq/translations/gfpq_host_ja.qm usr/share/man/man1/gfpdb.1.gz usr/share/man/man1/gfprog.1.gz \
    usr/share/applications/gfpq_host.desktop usr/share/icons/hicolor/scalable/apps/gfpq_host.svg \
    usr/share/doc/gfpq/copyright usr/share/doc/gfpq/changelog.gz; do
    grep -q " ./$file$" runtime.txt || fail "gfpq has no $file"
done
for file in usr/include/gfpq/gfpq_dyn_dlg.h usr/include/gfpq/gfpdb/gfpdb_mgr.h usr/lib/cmake/gfpq/gfpqConfig.cmake \
    usr/share/doc/gfpq-dev/changelog.gz; do
    grep -q " ./$file$" development.txt || fail "gfpq-dev has no $file"
done
! grep -q '/usr/include\|/cmake/' runtime.txt || fail "gfpq has development files"
# Only its owner may change what is installed.
! awk '{print $1, $2}' runtime.txt development.txt | grep -qv '^.rw[x-]r-[x-]r-[x-] root/root$' || fail "owners or permissions"

echo "PASSED"
