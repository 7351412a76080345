// SPDX-License-Identifier: MIT

// Prints what an SFDP read-out says, and with an ID the listed parts that differ from it.
#pragma once

#include "cli_command.h"

class CLI_SFDP_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "sfdp"; }
    const char* summary() const override { return "Show what a chip says of itself (SFDP)"; }
    const char* arguments() const override { return "FILE"; }
    std::pair<int, int> argument_range() const override { return {1, 1}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
