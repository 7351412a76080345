// SPDX-License-Identifier: MIT

// Reads records from files into the directory: all of them, or none. Or makes a device of an SFDP read-out.
#pragma once

#include "cli_command.h"

class CLI_IMPORT_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "import"; }
    const char* summary() const override { return "Read records from files, all or none"; }
    const char* arguments() const override { return "FILE..."; }
    std::pair<int, int> argument_range() const override { return {0, -1}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
