#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Brings the catalogues up to date with the sources: new texts come in unfinished, texts that are gone go.
# usage: update.sh [DIRECTORY]      (of the catalogues; this one if not given)
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

directory=${1:-translations}

# update NAME SOURCES...: the catalogues NAME_<language>.ts; a language is two letters, with or without a country.
update() {
    local name=$1
    shift
    QT_SELECT=qt5 lupdate -silent -no-obsolete -locations none -source-language en -tr-function-alias tr+=say "$@" -ts "$directory/${name}"_[a-z][a-z].ts \
        "$directory/${name}"_[a-z][a-z]_[A-Z][A-Z].ts
}

update gfpq pgm/gfpq
update gfpq_host app/gfpq_host
update gfpdb pgm/gfpdb pgm/gfpc
