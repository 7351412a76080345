// SPDX-License-Identifier: MIT

// Reads catalogues of parts: comma-separated values with a line of column names.
//
// Pure functions. Texts are UTF-8. Columns may be in any order; docs/flows.md lists them. Throws nothing.
#pragma once

#include "gfpdb/gfpdb_part.h"

#include <optional>
#include <string>
#include <vector>

// What is wrong with a cell, a row or the whole text.
struct GFPDB_CSV_ERROR
{
    // Counted from 1: the line on which the row starts.
    int line = 0;
    // The column's name; empty when the row as a whole is wrong.
    std::string column;
    std::string text;
};

struct GFPDB_CATALOGUE_CONTENT
{
    std::vector<GFPDB_PART> parts;
    std::vector<GFPDB_CSV_ERROR> errors;
};

// The parts of a catalogue. A row with an error is left out, all others are there; a name that occurs twice (regardless
// of case) is an error of the later row. Without the columns name, jedec_id and density there are no parts.
GFPDB_CATALOGUE_CONTENT gfpdb_parse_catalogue(const std::string& text);

// The erase commands of a cell: "20:4K D8:64K". None, with what is wrong in `error`, when one of them is no such.
std::optional<std::vector<GFPDB_ERASE_COMMAND>> gfpdb_parse_erase_commands(const std::string& cell, std::string& error);

// An error as one line: "line 12, column "density": ...".
std::string gfpdb_csv_error_text(const GFPDB_CSV_ERROR& error);
