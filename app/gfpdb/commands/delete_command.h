// SPDX-License-Identifier: MIT

// Removes devices and stored templates; the history keeps them.
#pragma once

#include "cli_command.h"

class CLI_DELETE_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "delete"; }
    const char* summary() const override { return "Delete records; the history keeps them"; }
    const char* arguments() const override { return "NAME..."; }
    std::pair<int, int> argument_range() const override { return {1, -1}; }
    bool takes_builtin() const override { return false; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
