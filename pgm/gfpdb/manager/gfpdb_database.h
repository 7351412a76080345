// SPDX-License-Identifier: MIT

// The database directory that a run of the tool works on, and what is built in.
#pragma once

#include "exchange/gfpdb_record.h"

#include "gfpdb/gfpdb_mgr.h"
#include "store/gfpdb_store.h"

#include <optional>
#include <string>
#include <vector>

// Which records a command means.
struct CLI_SELECTION
{
    // Empty for all; compared as the library compares names.
    std::string name;
    std::optional<int> family;
    std::optional<int> scheme;
};

// What is said of a record that find_misplaced() finds.
constexpr const char* CLI_MISPLACED =
    "The stored key does not fit the name, so that no search finds the record: \"gfpdb "
    "check --rebuild-keys\" repairs that, unless another record has the name.";

class CLI_DATABASE
{
public:
    // Opens `directory` (local 8-bit); empty for the user's own.
    explicit CLI_DATABASE(const std::string& directory);

    const std::string& directory() const;
    GFPDB_MGR& manager() { return m_manager; }
    GFPDB_STORE& store() { return m_store; }
    // What keeps the directory from being read, as a sentence; empty when nothing does.
    std::string read_problem();

    // The devices of the directory, then its stored templates, without their flows. Templates have no family and scheme
    // to be selected by: they serve all.
    std::vector<CLI_RECORD> find_stored(const CLI_SELECTION& selection);
    // The built-in device of that name, or all of them; with flows.
    std::vector<CLI_RECORD> find_builtin(const CLI_SELECTION& selection);
    // The record with its flows; none when it is gone, or cannot be read.
    std::optional<CLI_RECORD> load(const CLI_RECORD& record);
    // Records that load() does not find, because their key in the database is not that of their name.
    std::vector<CLI_RECORD> find_misplaced(const CLI_SELECTION& selection);

private:
    GFPDB_MGR& m_manager;
    GFPDB_STORE& m_store;
};
