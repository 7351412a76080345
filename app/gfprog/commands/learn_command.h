// SPDX-License-Identifier: MIT

// Reads what the connected chip says of itself, and makes a device of it.
#pragma once

#include "gfprog_options.h"

class GFPROG_LEARN_COMMAND final : public GFPROG_COMMAND
{
public:
    const char* name() const override { return "learn"; }
    const char* summary() const override { return "Make a device of what the connected chip says of itself"; }
    const char* arguments() const override { return ""; }
    std::pair<int, int> argument_range() const override { return {0, 0}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
