#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Static checks over the tree: formatting, clang-tidy, clazy, cppcheck, shell syntax, catalogues, documentation, spelling.
set -euo pipefail
cd "$(dirname "$0")/.."

failed=0
section() { printf '== %s\n' "$1"; }
check() {
    section "$1"
    shift
    "$@" || { failed=1; printf '   FAILED\n'; }
}

sources() { git ls-files --cached --others --exclude-standard "$@"; }
product_sources() { sources 'host/*.cpp' 'pgm/*.cpp' 'app/*.cpp'; }

formatting() { sources '*.cpp' '*.h' | xargs clang-format --dry-run --Werror; }

# clang-tidy and clazy read what moc and uic generate, so that is generated first.
generated_code() {
    ninja -C build/dev -t targets all | sed -n 's/^\([^:]*_autogen\): .*/\1/p' | grep -v / |
        xargs cmake --build build/dev --target >/dev/null
}

tidy() {
    product_sources | xargs -P "$(nproc)" -n 1 clang-tidy --quiet -p build/dev 2>&1 |
        { grep -vE '^[0-9]+ warnings? (generated|treated)|^Suppressed|^Use -header-filter|^$' || true; } |
        tee build/dev/clang-tidy.log
    ! grep -qE '(warning|error):' build/dev/clang-tidy.log
}

# All of level 1 but these:
#   connect-by-name: the dialogs' slots are named on_something by agreement with the host; none is connected by name
#   non-pod-global-static: the constant tables of texts are read after main() has begun, never by another static
#   range-loop-reference: loops that alter their copy, and QJsonValue, which is as cheap to copy
#   child-event-qobject-cast: the event looked at is ChildPolished, which comes when the child is complete
CLAZY_CHECKS=level1,no-connect-by-name,no-non-pod-global-static,no-range-loop-reference,no-child-event-qobject-cast
clazy_level1() {
    # A file with an error could not be read, and was not checked.
    local found='\[-Wclazy|: (fatal )?error: '
    product_sources | xargs -P "$(nproc)" -n 1 clazy-standalone -p build/dev --checks="$CLAZY_CHECKS" --extra-arg=-Wno-unknown-warning-option \
        --ignore-dirs='.*(/usr/|autogen).*' 2>&1 | tee build/dev/clazy.log | { grep -E "$found" || true; }
    ! grep -qE "$found" build/dev/clazy.log
}

cppcheck_product() {
    product_sources | xargs cppcheck --quiet --std=c++17 --language=c++ --enable=warning,performance,portability \
        --inline-suppr --error-exitcode=1 --library=qt --suppress=missingIncludeSystem -j "$(nproc)" \
        -I pgm/gfpdb/include -I pgm/gfpc/include -I pgm/gfpc -I pgm/gfpq -I host/gen/include -I host/csv/include -I host/whole_file/include -I host/fio/include \
        -I host/dstr/include -I host/msg/include -I host/kovq/include
}

shell_syntax() {
    local file
    for file in dev .ci/run $(sources '*.sh'); do bash -n "$file"; done
}

# The words that are spelt so on purpose are in .codespellrc.
spelling() { sources '*.cpp' '*.h' '*.ui' '*.md' '*.cmake' '*CMakeLists.txt' '*.sh' '*.py' '*.1' | xargs codespell dev; }

# Tabs, trailing blanks and absolute home directories have no place in a source file.
white_space() {
    ! sources '*.cpp' '*.h' '*.cmake' '*CMakeLists.txt' '*.sh' '*.py' | xargs grep -nP '\t|[ \t]+$'
}

# Every source names its licence.
licences() {
    ! sources '*.cpp' '*.h' '*.cmake' '*CMakeLists.txt' '*.sh' '*.py' dev .ci/run |
        xargs grep -L '^\(//\|#\) SPDX-License-Identifier: MIT$' | grep .
}

# What the pages of the documentation point at is there, and every picture is shown on one of them.
documentation() {
    local page target picture failed=0
    while IFS=: read -r page target; do
        [ -e "$(dirname "$page")/$target" ] || { printf '%s: %s does not exist\n' "$page" "$target"; failed=1; }
    done < <(sources '*.md' | xargs grep -oHP '\]\(\K(?!https?:|#)[^)#\s]+')
    for picture in $(sources 'docs/images/*'); do
        sources '*.md' | xargs grep -qF "images/${picture##*/})" || { printf '%s is not shown\n' "$picture"; failed=1; }
    done
    return "$failed"
}

# The catalogues hold the texts of the sources, no more and no fewer; translations/update.sh brings them up to date.
catalogues() {
    local copies
    copies=$(mktemp -d)
    cp translations/*.ts "$copies"
    translations/update.sh "$copies"
    local failed=0
    local catalogue
    for catalogue in translations/*.ts; do
        diff -u "$catalogue" "$copies/$(basename "$catalogue")" || failed=1
    done
    rm -r "$copies"
    return "$failed"
}

check "clang-format" formatting
check "generated code" generated_code
check "clang-tidy" tidy
check "clazy" clazy_level1
check "cppcheck" cppcheck_product
check "shell syntax" shell_syntax
check "catalogues" catalogues
check "documentation" documentation
check "spelling" spelling
check "white space" white_space
check "licences" licences
exit "$failed"
