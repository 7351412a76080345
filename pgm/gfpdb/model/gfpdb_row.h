// SPDX-License-Identifier: MIT

// What the flash database stores of one record.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>

// One device or stored template as a row of the database; gfpdb_field.h lists its fields. Texts are UTF-8.
struct GFPDB_ROW
{
    int family = 0;
    int scheme = -1;
    std::string name;
    std::string device_id;
    std::string voltage;
    std::string density;
    std::optional<int> total_die;
    std::optional<int> single_io_dummy_clock;
    std::optional<int> quad_io_dummy_clock;
    std::string template_name;
    std::string flow_template;
    // The operations of a flow variant as JSON; empty when the record has none.
    std::string single_flows;
    std::string quad_flows;
    // Another text with every save (gfpdb_new_revision()).
    std::string revision;
};

// True when all fields are the same; the revisions may differ.
bool gfpdb_is_same_content(const GFPDB_ROW& left, const GFPDB_ROW& right);

// True when saving `next` over `former` would change nothing: all but the revision is the same, and `next` has the same
// template name or none.
bool gfpdb_is_same_state(const GFPDB_ROW& former, const GFPDB_ROW& next);

// A text that no record has as its revision yet.
std::string gfpdb_new_revision();

// A former state of a record.
struct GFPDB_HISTORY_ENTRY
{
    std::int64_t id = 0;
    // True for a stored template, which goes by its template name.
    bool is_template = false;
    // "replaced", "deleted", or "put back": deleted first, and the current state again when the save that followed
    // failed.
    std::string reason;
    // When it became history, UTC, as "2024-05-17T09:30:00Z"; and the user and machine that changed it.
    std::string changed_at;
    std::string changed_by;
    GFPDB_ROW row;

    // The name that the record went by.
    const std::string& name() const { return is_template ? row.template_name : row.name; }
};

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

// Which states are removed from the history: of those of records called `name` (of all, when it is empty) that
// `is_selected` picks, the ones that became history before `before` (UTC, as changed_at; empty for any time) and are
// not among the `keep` newest of their record.
struct GFPDB_PRUNING
{
    std::string name;
    std::function<bool(const GFPDB_HISTORY_ENTRY&)> is_selected;
    std::string before;
    int keep = 0;
    // Also the newest state of a record that is not there any more, with which nothing is left of it.
    bool last_of_deleted = false;
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
