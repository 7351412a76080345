// SPDX-License-Identifier: MIT

// Reads the ID of the connected chip, and lists the devices that have it.
#pragma once

#include "gfprog_options.h"

class GFPROG_DETECT_COMMAND final : public GFPROG_COMMAND
{
public:
    const char* name() const override { return "detect"; }
    const char* summary() const override { return "List the devices that the connected chip can be"; }
    const char* arguments() const override { return ""; }
    std::pair<int, int> argument_range() const override { return {0, 0}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
