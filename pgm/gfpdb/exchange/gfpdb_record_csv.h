// SPDX-License-Identifier: MIT

// Lists of devices as comma-separated values: all of a record but its flows. docs/gfpdb.md describes the columns.
#pragma once

#include "exchange/gfpdb_record_json.h"

#include "csv/csv.h"

#include <optional>
#include <string>
#include <vector>

// The devices of a list, without flows.
class GFPDB_LIST_READER
{
public:
    GFPDB_LIST_READER(const std::string& text, GFPDB_MGR& manager, const GFPDB_READ_OPTIONS& options);

    // How many rows there are behind the line of column names; none when that is wrong.
    int count() const;
    // The device of a row; none when it has no cells for one.
    std::optional<GFPDB_RECORD> read(int at);
    // What is wrong with what was read, with the line and the column.
    std::vector<GFPDB_FINDING> problems() const;

private:
    GFPDB_RECORD_READER m_reader;
    // The first one has the column names.
    std::vector<CSV_ROW> m_rows;
    std::vector<GFPDB_FINDING> m_problems;
    bool m_is_list = false;
};
