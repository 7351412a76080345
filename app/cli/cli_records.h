// SPDX-License-Identifier: MIT

// Lists of devices and templates, for people and for programs.
#pragma once

#include "cli_json.h"
#include "record_filter.h"

#include "gfpdb/gfpdb_record.h"

#include <string>
#include <vector>

struct CLI_LISTED
{
    GFPDB_RECORD record;
    bool is_builtin;

    const char* kind() const { return record_kind_name(record_kind(record, is_builtin)); }
};

// A line of titles, then one line each.
std::string cli_records_table(const std::vector<CLI_LISTED>& records);
// The names, one per line.
std::string cli_record_names(const std::vector<CLI_LISTED>& records);
// A list of objects; and the members of such an object.
std::string cli_records_json(const std::vector<CLI_LISTED>& records);
void cli_add_record(CLI_JSON& json, const CLI_LISTED& listed);
