#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Builds the fuzz targets and runs each of them for SECONDS (60 if not given), one after the other:
#
#   tests/fuzz/run.sh [SECONDS [TARGET...]]
#
# Starts from the committed corpus and from what earlier runs found interesting (build/fuzz/corpus). Prints executions
# and findings; an input that broke something is kept in build/fuzz/findings, and the exit code is 1. A finding that was
# mended belongs into the committed corpus, so that every test run replays it.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."

readonly SECONDS_EACH=${1:-60}
shift || true
readonly BUILD=build/fuzz
readonly LONGEST_INPUT=65536

[ -f "$BUILD/build.ninja" ] || cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzz_targets >&2

export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
export LSAN_OPTIONS="suppressions=$PWD/tests/fuzz/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS=print_stacktrace=1

targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    for directory in tests/fuzz/corpus/*/; do
        targets+=("$(basename "$directory")")
    done
fi

statistic() { sed -n "s/^stat::$1: *//p" "$2" | tail -1; }

# Runs one target and prints its line of the table; false when it found something.
fuzz() {
    local target=$1 grown="$BUILD/corpus/$1" findings="$BUILD/findings/$1" log="$BUILD/$1.log" status=0
    mkdir -p "$grown" "$findings"
    "$BUILD/bin/fuzz_$target" -max_total_time="$SECONDS_EACH" -max_len="$LONGEST_INPUT" -timeout=20 \
        -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$findings/" \
        "$grown" "tests/fuzz/corpus/$target" >"$log" 2>&1 || status=$?
    printf '%-12s %10s %10s %10s\n' "$target" "$(statistic number_of_executed_units "$log")" \
        "$(statistic average_exec_per_sec "$log")" "$([ "$status" -eq 0 ] && echo 0 || echo "1, see $log")"
    [ "$status" -eq 0 ]
}

printf '%-12s %10s %10s %10s\n' target executions "a second" findings
result=0
for target in "${targets[@]}"; do
    fuzz "$target" || result=1
done
exit "$result"
