#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Builds the example host of the documentation against an installed tree, as a stranger would, and runs it.
# usage: test_example_host.sh BUILD_DIRECTORY SOURCE_DIRECTORY WORK_DIRECTORY PLUGIN_PATH
source "$(dirname "$0")/package_test.sh"
readonly BUILD=$1 SOURCES=$2 WORK=$3 PLUGINS=$4

rm -rf "$WORK"
mkdir -p "$WORK"
cd "$WORK"

step "install and build"
cmake --install "$BUILD" --prefix "$WORK/prefix" >install.log
cmake -G Ninja -S "$SOURCES/docs/example-host" -B build -DCMAKE_PREFIX_PATH="$WORK/prefix" \
    -DCMAKE_CXX_FLAGS="-Wall -Wextra -Wpedantic -Werror" >configure.log
cmake --build build >build.log || { cat build.log >&2; fail "the example host cannot be built"; }

step "the dialog shows the program's own devices"
use_driver "$PLUGINS"
run shown build/example_host EXAMPLE-64
grep '^device: ' shown.err >devices.txt
printf 'device: %s\n' '<<new device>>' EXAMPLE-64 >expected.txt
diff -u expected.txt devices.txt || fail "the devices"
expect_line 'family 1, scheme 7, device "EXAMPLE-64"' shown.out
! grep -q 'in the drawer' shown.out || fail "a device that no one made"

step "and stores into the program's own database"
use_driver "$PLUGINS" "Mine"
run stored build/example_host
expect_line 'family 1, scheme 7, device "Mine"' stored.out
expect_line 'in the drawer: Mine' stored.out

step "a check of the program's own is heard"
use_driver "$PLUGINS" "EXAMPLE-64"
run refused build/example_host
grep -qF 'A device called "EXAMPLE-64" already exists.' refused.err || fail "the refusal"

echo "PASSED"
