// SPDX-License-Identifier: MIT

// Compares two records, files or former states line by line.
#pragma once

#include "cli_command.h"

class CLI_DIFF_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "diff"; }
    const char* summary() const override { return "Compare two records"; }
    const char* arguments() const override { return "LEFT RIGHT"; }
    std::pair<int, int> argument_range() const override { return {2, 2}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
