// SPDX-License-Identifier: MIT

// Names of the device families and the configuration schemes that each supports.
//
// The table comes from a data file, families.csv: the file named by the environment variable GFPQ_FAMILIES if that is
// set, else the copy beside the installed programs (../share/gfpq/ as seen from them), else the copy built into this
// library, so a host brings its own families without a rebuild. A file is read when it is a regular one of at most 1
// MiB. One that cannot be read or names no family is logged and the next one counts. The table is read once, at the
// first call; lines that cannot be read are logged with their number and left out. Texts are UTF-8. Not thread-safe:
// GUI thread only.
#pragma once

#include "dstr/dstr_export.h"

#include "dstr/dev_family.h"

#include <string>
#include <vector>

// The user-visible name of `family`; "Unknown family (N)" for a value that the table does not have.
DSTR_EXPORT std::string dstr_get_user_string(int family);

// The families of the table, in the order of the file.
DSTR_EXPORT std::vector<int> dstr_get_families();

// The configuration schemes (values 0 to 25) that `family` supports, in the order of the file; empty when unknown.
DSTR_EXPORT std::vector<int> dstr_get_config_schemes(int family);

// Why the file that GFPQ_FAMILIES names is not the one that counts, as a sentence for the user; empty when it is, or
// when the variable is not set.
DSTR_EXPORT std::string dstr_get_problem();
