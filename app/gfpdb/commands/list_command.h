// SPDX-License-Identifier: MIT

// Prints the devices and stored templates of a directory, and the built-in devices, one line each.
#pragma once

#include "cli_command.h"

class CLI_LIST_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "list"; }
    const char* summary() const override { return "List devices, templates and built-in devices"; }
    const char* arguments() const override { return ""; }
    std::pair<int, int> argument_range() const override { return {0, 0}; }
    std::vector<std::string> choices(const std::string& value) const override;
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
