// SPDX-License-Identifier: MIT

// Makes a former state the current record again.
#pragma once

#include "cli_command.h"

class CLI_RESTORE_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "restore"; }
    const char* summary() const override { return "Restore a former state"; }
    const char* arguments() const override { return "ID"; }
    std::pair<int, int> argument_range() const override { return {1, 1}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
