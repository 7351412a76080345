// SPDX-License-Identifier: MIT

// The rules for the values of a record, for import and check alike: those by which the dialog keeps a record that it
// opens and saves, except that a voltage or density is not right just because a stored record has it. The rules for
// flows are the library's (gfpdb_flow_check.h).
//
// All functions make the record's family and configuration mode the manager's. Texts are UTF-8.
#pragma once

#include "gfpdb/gfpdb_exchange.h"

#include <vector>

// The findings have no line; their field is the key of a field in files.

// What is wrong with the values of `record`.
std::vector<GFPDB_FINDING> gfpdb_record_problems(GFPDB_MGR& manager, const GFPDB_RECORD& record,
                                                 GFPDB_RECORD_RULES rules);

// Gives values that are missing, and that records of its configuration mode have, their default where there is one;
// says which.
std::vector<GFPDB_FINDING> gfpdb_fill_missing(GFPDB_MGR& manager, GFPDB_RECORD& record);

// What can be stored, but is lost when the dialog saves the record, is of no use, or may be a mistake: values and flows
// that records of its configuration mode do not have, flows that are missing, a voltage or density that is none of the
// usual ones.
std::vector<GFPDB_FINDING> gfpdb_record_warnings(GFPDB_MGR& manager, const GFPDB_RECORD& record);
