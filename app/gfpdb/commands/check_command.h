// SPDX-License-Identifier: MIT

// Checks every record by the library's rules, and the database by SQLite's.
#pragma once

#include "cli_command.h"

class CLI_CHECK_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "check"; }
    const char* summary() const override { return "Check every record and the database"; }
    const char* arguments() const override { return ""; }
    std::pair<int, int> argument_range() const override { return {0, 0}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
