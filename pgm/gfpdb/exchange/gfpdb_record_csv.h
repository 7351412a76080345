// SPDX-License-Identifier: MIT

// Lists of devices as comma-separated values: all of a record but its flows. docs/gfpdb.md describes the columns.
#pragma once

#include "exchange/gfpdb_record.h"

#include <optional>

class GFPDB_MGR;

// Whom a list is for.
enum class CSV_FOR
{
    IMPORT,      // texts as they are
    SPREADSHEET, // with "'" before texts that a spreadsheet would run as formulas
};

// The devices among `records`, one line each, after a line of column names.
std::string records_to_csv(const std::vector<CLI_RECORD>& records, CSV_FOR reader = CSV_FOR::IMPORT);

// The devices of a list, without flows; what is wrong is added to `problems`, with the line and the column. With a
// `family` or `scheme` all of them become devices of that one. Values are held against the library's rules when
// `checked`.
std::vector<CLI_RECORD> records_from_csv(const std::string& text, GFPDB_MGR& manager, bool checked,
                                         std::optional<int> family, std::optional<int> scheme,
                                         std::vector<CLI_PROBLEM>& problems);
