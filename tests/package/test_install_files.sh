#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# After `./dev run`, which builds a few targets only, `cmake --install` finds every file of the build tree that it
# installs: each is made by those targets, or is there since the build tree was configured.
#
# usage: test_install_files.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
readonly build=$1 source=$2

targets=$(sed -n 's/^readonly RUN_TARGETS=(\(.*\))$/\1/p' "$source/dev")
[ -n "$targets" ] || { echo "There are no run targets in $source/dev"; exit 1; }

made=$(mktemp)
trap 'rm -f "$made"' EXIT
# The graph has all that a step makes, not only what the next one asks for.
# shellcheck disable=SC2086
ninja -C "$build" -t graph $targets | sed -n 's/.*label="\([^"]*\)".*/\1/p' | sed "s|^$build/||" >"$made"

missing=0
count=0
while IFS= read -r file; do
    count=$((count + 1))
    grep -qxF "${file#"$build"/}" "$made" && continue
    ninja -C "$build" -t query "${file#"$build"/}" >/dev/null 2>&1 || [ ! -e "$file" ] || continue
    echo "./dev run does not make $file"
    missing=1
done < <(find "$build" -name cmake_install.cmake -exec grep -hoE "\"$build/[^\"]+\"" {} + | tr -d '"' |
    grep -vE '/cmake_install\.cmake$|/install_(local_)?manifest|/CMakeFiles/Export/|/$|\$' | sort -u)
[ "$count" -gt 10 ] || { echo "Only $count files were found"; exit 1; }
exit $missing
