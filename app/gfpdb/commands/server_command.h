// SPDX-License-Identifier: MIT

// A database on a server: what it needs, the file that names it, how it is.
#pragma once

#include "cli_command.h"

class CLI_SERVER_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "server"; }
    const char* summary() const override { return "Set up a directory whose database is on a PostgreSQL server"; }
    const char* arguments() const override { return "sql|init|status [DIRECTORY]"; }
    std::pair<int, int> argument_range() const override { return {1, 2}; }
    std::vector<std::string> choices(const std::string& value) const override;
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
