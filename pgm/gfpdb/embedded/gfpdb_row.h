// What the flash database stores of one record.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

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
    // Another text with every save (gfpdb_new_revision()).
    std::string revision;
};

// A text that no record has as its revision yet.
std::string gfpdb_new_revision();

// A former state of a record.
struct GFPDB_HISTORY_ENTRY
{
    std::int64_t id = 0;
    // True for a stored template, which goes by its template name.
    bool is_template = false;
    // "replaced" or "deleted".
    std::string reason;
    // When it became history, UTC, as "2024-05-17T09:30:00Z"; and the user and machine that changed it.
    std::string changed_at;
    std::string changed_by;
    GFPDB_ROW row;

    // The name that the record went by.
    const std::string& name() const { return is_template ? row.template_name : row.name; }
};
