// SPDX-License-Identifier: MIT

// What the flash database stores of one record (gfpdb/gfpdb_record.h), and what it says about it; gfpdb_field.h lists
// the fields.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <cstdint>
#include <set>
#include <string>

// True when all fields are the same; the revisions may differ.
bool gfpdb_is_same_content(const GFPDB_ROW& left, const GFPDB_ROW& right);

// True when saving `next` over `former` would change nothing: all but the revision is the same, and `next` has the same
// template name or none.
bool gfpdb_is_same_state(const GFPDB_ROW& former, const GFPDB_ROW& next);

// A text that no record has as its revision yet.
std::string gfpdb_new_revision();

// A device that was removed, and where it is kept: what is needed to put it back, or to tell that it was replaced.
struct GFPDB_TAKEN
{
    // The database, and the entry in its history.
    std::string database_id;
    std::int64_t history_id = 0;
    int family = 0;
    int scheme = -1;
    std::string name;
    std::string revision;
};

// The voltages and densities that records have, in the order of their bytes.
struct GFPDB_USED_VALUES
{
    std::set<std::string> voltages;
    std::set<std::string> densities;
};

// A record whose key in the database is not that of its name.
struct GFPDB_MISPLACED
{
    bool is_template = false;
    GFPDB_ROW row;
    // Its number in its table.
    std::int64_t row_id = 0;

    const std::string& name() const { return is_template ? row.template_name : row.name; }
};
