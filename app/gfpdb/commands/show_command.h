// SPDX-License-Identifier: MIT

// Prints one record with its flows.
#pragma once

#include "cli_command.h"

class CLI_SHOW_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "show"; }
    const char* summary() const override { return "Show a record with its flows"; }
    const char* arguments() const override { return "NAME"; }
    std::pair<int, int> argument_range() const override { return {1, 1}; }
    std::vector<std::string> choices(const std::string& value) const override;
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
