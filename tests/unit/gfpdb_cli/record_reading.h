// SPDX-License-Identifier: MIT

// Reading records in the tests: what comes of a text, and the mistakes that were found in it.
#pragma once

#include "exchange/gfpdb_record_json.h"

// The constants of the tests have names that enumerators of the library have as well.
#include "cli_test.h"

#include <optional>

struct READ
{
    std::vector<GFPDB_RECORD> records;
    // As "line: field: text".
    QStringList problems;
};

// Records of a text that is JSON, read for a manager that has just opened the directory.
READ read_json(const std::string& text, GFPDB_RECORD_RULES rules = GFPDB_RECORD_RULES::IMPORTED,
               std::optional<int> family = std::nullopt, std::optional<int> scheme = std::nullopt);
// Devices of a CSV text.
READ read_csv(const std::string& text, bool checked = true);

// The flows of a device: one program operation with a loop.
extern const char* const SMALL_FLOW;

// A file of one device; `flows` are its single-I/O flows, from line 19 on.
std::string file_with(const std::string& flows);

// `text` with `with` in the place of the first `what`, which must be there.
std::string replaced(std::string text, const std::string& what, const std::string& with);
