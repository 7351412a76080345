// SPDX-License-Identifier: MIT

// Prints the device families and the configuration schemes: the numbers and names that --family and --scheme take.
#pragma once

#include "cli_command.h"

class CLI_FAMILIES_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "families"; }
    const char* summary() const override { return "List the device families"; }
    const char* arguments() const override { return ""; }
    std::pair<int, int> argument_range() const override { return {0, 0}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};

class CLI_SCHEMES_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "schemes"; }
    const char* summary() const override { return "List the configuration schemes"; }
    const char* arguments() const override { return ""; }
    std::pair<int, int> argument_range() const override { return {0, 0}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
