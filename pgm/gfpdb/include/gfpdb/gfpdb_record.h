// SPDX-License-Identifier: MIT

// What the flash database stores of a record and of its former states, for tools.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// One device or stored template as a row of the database. Texts are UTF-8.
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
    // Another text with every save.
    std::string revision;
    // When it was saved, UTC, as "2024-05-17T09:30:00Z"; and the user and machine that saved it, empty where a former
    // version did. The store's own: not a part of record files, and what a save is given of them does not count.
    std::string saved_at;
    std::string saved_by;
};

// A device or a stored template.
struct GFPDB_RECORD
{
    bool is_template = false;
    GFPDB_ROW row;
    // The line of a file on which the record starts; 0 for one of the database.
    int line = 0;

    // The name under which the record is found.
    const std::string& name() const { return is_template ? row.template_name : row.name; }
};

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

// Which states of the history are looked for. Names are compared as the library compares them, users without regard to
// the case of A to Z at least.
struct GFPDB_HISTORY_FILTER
{
    // Of records that are called so; empty for all.
    std::string name;
    // Of records whose names have this in them, and changed by users and machines that have that; empty for all.
    std::string name_part;
    std::string user_part;
    // Of templates, or of devices; none for both.
    std::optional<bool> is_template;
};

// Some of these states.
struct GFPDB_HISTORY_PAGE
{
    // Newest first, without their flows.
    std::vector<GFPDB_HISTORY_ENTRY> entries;
    // The states that follow are older than this number; none when no more follow.
    std::optional<std::int64_t> next;
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
    // Also the newest state of a deleted record, which cannot be restored then.
    bool last_of_deleted = false;
};
