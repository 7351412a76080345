// SPDX-License-Identifier: MIT

// Lists of devices as comma-separated values: all of a record but its flows. docs/gfpdb.md describes the columns.
#pragma once

#include "gfpdb/gfpdb_exchange.h"

#include <string>
#include <vector>

// The devices of a list, without flows; what is wrong is added to `problems`, with the line and the column.
std::vector<GFPDB_RECORD> gfpdb_read_list(const std::string& text, GFPDB_MGR& manager,
                                          const GFPDB_READ_OPTIONS& options, std::vector<GFPDB_FINDING>& problems);
