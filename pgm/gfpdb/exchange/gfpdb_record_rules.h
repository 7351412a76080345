// SPDX-License-Identifier: MIT

// The rules for the values of a record, for import and check alike: those by which the dialog keeps a record that it
// opens and saves, except that a voltage or density is not right just because a stored record has it. The rules for
// flows are the library's (gfpdb_flow_check.h).
//
// All functions make the record's family and configuration mode the manager's. Texts are UTF-8.
#pragma once

#include "exchange/gfpdb_record.h"

#include <string>
#include <vector>

class GFPDB_MGR;

// Which rules a record is held against.
enum class RECORD_RULES
{
    STORED,   // all
    IMPORTED, // all, but a value that is missing and has a default (record_fill_missing()) is no problem
    NAMES,    // only those without which a record cannot be stored
};

// What there is to say about one member of a record.
struct RECORD_REMARK
{
    // Its name in files (gfpdb_field.h).
    const char* member;
    std::string text;
    CLI_SERIOUSNESS seriousness = CLI_SERIOUSNESS::PROBLEM;
};

// What is wrong with the values of `record`.
std::vector<RECORD_REMARK> record_problems(GFPDB_MGR& manager, const CLI_RECORD& record, RECORD_RULES rules);

// Gives values that are missing, and that records of its configuration mode have, their default where there is one;
// says which.
std::vector<RECORD_REMARK> record_fill_missing(GFPDB_MGR& manager, CLI_RECORD& record);

// What can be stored, but is lost when the dialog saves the record, is of no use, or may be a mistake: values and flows
// that records of its configuration mode do not have, flows that are missing, a voltage or density that is none of the
// usual ones.
std::vector<RECORD_REMARK> record_warnings(GFPDB_MGR& manager, const CLI_RECORD& record);
