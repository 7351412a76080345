// SPDX-License-Identifier: MIT

// Copies a whole database to another directory.
#pragma once

#include "cli_command.h"

class CLI_COPY_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "copy"; }
    const char* summary() const override { return "Copy the whole database to another directory or server"; }
    const char* arguments() const override { return "--from DIRECTORY --to DIRECTORY"; }
    std::pair<int, int> argument_range() const override { return {0, 0}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
