// SPDX-License-Identifier: MIT

// What the tool's commands pass to each other: records, and what is wrong with them.
#pragma once

#include "model/gfpdb_row.h"

#include <string>
#include <vector>

// A device or a stored template.
struct CLI_RECORD
{
    bool is_template = false;
    GFPDB_ROW row;
    // The line of a file on which the record starts; 0 for one of the database.
    int line = 0;

    // The name under which the record is found.
    const std::string& name() const { return is_template ? row.template_name : row.name; }
};

// "device "X" (family 3, scheme 7)", "template "T"": as messages call the record.
std::string cli_title(const CLI_RECORD& record);

// How serious a finding is.
enum class CLI_SERIOUSNESS
{
    PROBLEM,      // the record is wrong
    BUILTIN_NAME, // the record is right, but cannot be stored: a built-in device or template has its name
    WARNING,      // the record is right, but a user should know this
};

// One thing that was found in a record or a file.
struct CLI_PROBLEM
{
    // The line of the file; 0 when there is no file.
    int line = 0;
    // The record and the place in it: "devices[0].single_flows[1].actions[2].command"; empty for the whole.
    std::string field;
    std::string text;
    CLI_SERIOUSNESS seriousness = CLI_SERIOUSNESS::PROBLEM;
};
