// SPDX-License-Identifier: MIT

// Prints the former states of records that were replaced or deleted.
#pragma once

#include "cli_command.h"

class CLI_HISTORY_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "history"; }
    const char* summary() const override { return "List former states of records"; }
    const char* arguments() const override { return "[NAME]"; }
    std::pair<int, int> argument_range() const override { return {0, 1}; }
    std::vector<CLI_NUMBER> numbers() const override;
    bool takes_builtin() const override { return false; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
