#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Makes the pseudo catalogues of the module, the host and the flash database as those of the English language in DIRECTORY: they are shown
# where GFPQ_TRANSLATIONS names it and the language is English. They are not shipped.
# usage: pseudo.sh DIRECTORY
set -euo pipefail

readonly DIRECTORY=$1
readonly CATALOGUES=$(dirname "$(readlink -f "$0")")

mkdir -p "$DIRECTORY"
for name in gfpq gfpq_host gfpdb; do
    python3 "$CATALOGUES/pseudo.py" "$CATALOGUES/${name}_de.ts" "$DIRECTORY/${name}_en.ts"
    QT_SELECT=qt5 lrelease -silent "$DIRECTORY/${name}_en.ts" -qm "$DIRECTORY/${name}_en.qm"
done
