# SPDX-License-Identifier: MIT
#
# What the package tests share: source it. Each test works in a directory of its own and stops at the first thing that
# is not as it should be.
set -euo pipefail

fail() {
    printf 'FAILED: %s\n' "$*" >&2
    exit 1
}

# For a test that cannot be run here: ctest shows the reason and counts the test as skipped.
skip() {
    printf 'SKIPPED: %s\n' "$*"
    exit 0
}

step() { printf '== %s\n' "$*"; }

expect_line() {
    local text=$1 file=$2
    grep -qxF -- "$text" "$file" || { cat "$file" >&2; fail "no line \"$text\" in $file"; }
}

# run OUT COMMAND...: the command in a bare environment without a display, home and settings in the current directory;
# its output goes to OUT.out and OUT.err. RUN_ENVIRONMENT adds to the environment.
RUN_ENVIRONMENT=()
run() {
    local out=$1
    shift
    mkdir -p home config
    local code=0
    env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 HOME="$PWD/home" XDG_CONFIG_HOME="$PWD/config" \
        GFPDB_SETTINGS="$PWD/config/gfpdb.ini" QT_QPA_PLATFORM=offscreen "${RUN_ENVIRONMENT[@]}" \
        timeout 120 "$@" >"$out.out" 2>"$out.err" || code=$?
    [ "$code" -eq 0 ] || { cat "$out.out" "$out.err" >&2; fail "$* ended with $code"; }
}

# use_driver PLUGIN_PATH [DEVICE]: from now on the dialog is worked by the plugin.
use_driver() {
    RUN_ENVIRONMENT=(QT_PLUGIN_PATH="$1" QT_QPA_GENERIC_PLUGINS=gfpq_dialog_driver GFPQ_DRIVER_DEVICE="${2:-}")
}
