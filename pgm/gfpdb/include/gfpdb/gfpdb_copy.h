// SPDX-License-Identifier: MIT

// A whole database in another directory: records, templates and history, from a file to a server or back, or between
// two of a kind.
#pragma once

#include "gfpdb/gfpdb_export.h"

#include <functional>
#include <string>

// What was copied.
struct GFPDB_COPY
{
    int devices = 0;
    int templates = 0;
    int states = 0;
    // Why nothing was copied, or what is wrong with the copy, as a sentence; empty when it is complete and the same.
    std::string problem;
};

// Copies what the directory `from` has to `to`, which exists and whose database is empty or missing: all in one
// transaction, or nothing. Revisions, times, names and the numbers of the history stay as they are. Then reads both
// again and compares them. `progress` hears how many are copied. Directories are local 8-bit, the problem UTF-8. GUI
// thread only.
GFPDB_EXPORT GFPDB_COPY gfpdb_copy_database(const std::string& from, const std::string& to,
                                            const std::function<void(int done)>& progress);
