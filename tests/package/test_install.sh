#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Installs into a clean prefix, moves that, and runs what is there.
# usage: test_install.sh BUILD_DIRECTORY WORK_DIRECTORY PLUGIN_PATH
source "$(dirname "$0")/package_test.sh"
readonly HERE=$(readlink -f "$(dirname "$0")") BUILD=$1 WORK=$2 PLUGINS=$3

rm -rf "$WORK"
mkdir -p "$WORK"
cd "$WORK"

step "install, and move what was installed"
cmake --install "$BUILD" --prefix "$WORK/first place" >install.log
mkdir elsewhere
mv "first place" "elsewhere/second place"
readonly PREFIX="$WORK/elsewhere/second place"

step "the files that are there"
(cd "$PREFIX" && find . -type f -o -type l | grep -v '^./share/doc/' |
    sed 's/gfpqTargets-[a-z]*\.cmake/gfpqTargets-CONFIG.cmake/' | LC_ALL=C sort) >files.txt
diff -u "$HERE/installed_files.txt" files.txt || fail "other files were installed than installed_files.txt says"

step "libraries are found by the way from where they are asked for"
runpath() { readelf -d "$1" | sed -n 's/.*\(RUNPATH\|RPATH\).*\[\(.*\)\]/\2/p'; }
for program in bin/gfpq_host bin/gfpdb bin/gfprog libexec/gfpdb_chart; do
    # The first entry is for the build tree; none is empty, which would stand for the current directory.
    [ "$(runpath "$PREFIX/$program")" = '$ORIGIN/../lib:$ORIGIN/../lib/gfpq' ] || fail "the run path of $program"
done
for library in "$PREFIX"/lib/gfpq/*.so; do
    found=$(runpath "$library")
    [ -z "$found" ] || [ "$found" = '$ORIGIN' ] || fail "the run path of $library is $found"
done
for file in "$PREFIX"/bin/* "$PREFIX/libexec/gfpdb_chart" "$PREFIX"/lib/gfpq/*.so; do
    ldd "$file" >ldd.txt
    ! grep -q 'not found' ldd.txt || { cat ldd.txt >&2; fail "a library of $file is not found"; }
    ! grep -qF "=> $BUILD/lib/" ldd.txt || { cat ldd.txt >&2; fail "$file takes a library of the build tree"; }
done

step "nothing that a build reads names a place of this machine"
! grep -rlF -e "$BUILD" -e "$(dirname "$(dirname "$HERE")")" "$PREFIX/lib/cmake" "$PREFIX/include" ||
    fail "an absolute path"

step "the pages are drawn"
run render "$PREFIX/bin/gfpq_host" --render pages
[ "$(find pages -name '*.png' -size +2k | wc -l)" -eq 7 ] || fail "the number of pages"

step "the dialog stores a device and hands it back"
use_driver "$PLUGINS" "Stored part"
run dialog "$PREFIX/bin/gfpq_host" --dialog --family 1 --scheme 7
expect_line '{"family":1,"config_scheme":7,"device_name":"Stored part"}' dialog.out
expect_line 'dialog: Configuration Device' dialog.err
expect_line 'device: <<new device>>' dialog.err
expect_line 'device: MX25L25645G' dialog.err

step "gfpdb finds it, and the database in order"
RUN_ENVIRONMENT=()
run list "$PREFIX/bin/gfpdb" list
grep -q 'Stored part' list.out || fail "gfpdb list"
run check "$PREFIX/bin/gfpdb" check
run chart "$PREFIX/bin/gfpdb" chart 'Stored part' --format svg
grep -q '>Stored part</text>' chart.out || fail "gfpdb chart"

step "gfprog programs an emulated chip of it"
run program "$PREFIX/bin/gfprog" program list.out --on emulated --device 'Stored part'

step "another language"
use_driver "$PLUGINS"
run german "$PREFIX/bin/gfpq_host" --dialog --lang de
expect_line 'dialog: Konfigurationsbaustein' german.err
run german_window "$PREFIX/bin/gfpq_host" --lang de
expect_line 'label: Datenbank&verzeichnis:' german_window.err

echo "PASSED"
