// SPDX-License-Identifier: MIT

// The states that a record had, seen from one of them. Knows no widget.
#pragma once

#include "database/record_comparison.h"

#include "gfpdb/gfpdb_database.h"

#include <QCoreApplication>

#include <optional>

class RECORD_STATES
{
    Q_DECLARE_TR_FUNCTIONS(RECORD_STATES)

public:
    // `database` must outlive the object. `state` is one of its history; its flows are not needed.
    RECORD_STATES(GFPDB_DATABASE& database, const GFPDB_HISTORY_ENTRY& state);

    // With flows; each none when there is none, or when it cannot be read: the database's last error says why.
    std::optional<COMPARED> itself() const;
    // The state that became history before this one.
    std::optional<COMPARED> before() const;
    // What the change made of it: the next state in the history, else the record as it is now.
    std::optional<COMPARED> after() const;
    // The record as it is now.
    std::optional<COMPARED> current() const;

private:
    bool is_of_record(const GFPDB_HISTORY_ENTRY& entry) const;
    std::optional<COMPARED> load(std::int64_t id) const;

    GFPDB_DATABASE& m_database;
    const GFPDB_HISTORY_ENTRY m_state;
};
