// SPDX-License-Identifier: MIT

// Reads files of records: JSON, or lists of devices as CSV.
#pragma once

#include "exchange/gfpdb_record.h"

#include <optional>

class GFPDB_MGR;

// How a file is read.
struct RECORD_FILE_OPTIONS
{
    // As CSV whatever the file is called; else files that end in ".csv" are.
    bool csv = false;
    // Without the library's rules for values.
    bool unchecked = false;
    std::optional<int> family;
    std::optional<int> scheme;
};

// What a file holds, and what is wrong with it.
struct RECORD_FILE
{
    // "-" is standard input.
    std::string path;
    bool is_csv = false;
    std::vector<CLI_RECORD> records;
    std::vector<CLI_PROBLEM> problems;
    // What the user is to know about records that are imported all the same.
    std::vector<CLI_PROBLEM> warnings;
};

// The largest file that is read, in bytes. An export of 80,000 devices with their flows has as many.
constexpr std::size_t RECORD_FILE_LARGEST = std::size_t(1) << 30;

// Reads a regular file, or standard input to its end.
RECORD_FILE read_record_file(const std::string& path, GFPDB_MGR& manager, const RECORD_FILE_OPTIONS& options);
