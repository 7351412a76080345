// SPDX-License-Identifier: MIT

// Lists the serial lines of this machine.
#pragma once

#include "gfprog_options.h"

class GFPROG_PORTS_COMMAND final : public GFPROG_COMMAND
{
public:
    const char* name() const override { return "ports"; }
    const char* summary() const override { return "List the serial lines of this machine"; }
    const char* arguments() const override { return ""; }
    std::pair<int, int> argument_range() const override { return {0, 0}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
