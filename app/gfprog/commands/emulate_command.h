// SPDX-License-Identifier: MIT

// Offers an emulated chip to serprog clients.
#pragma once

#include "gfprog_options.h"

class GFPROG_EMULATE_COMMAND final : public GFPROG_COMMAND
{
public:
    const char* name() const override { return "emulate"; }
    const char* summary() const override { return "Be a programmer with an emulated chip, for serprog clients"; }
    const char* arguments() const override { return "PART"; }
    std::pair<int, int> argument_range() const override { return {1, 1}; }
    void add_options(QCommandLineParser& parser) const override;
    std::vector<CLI_NUMBER> numbers() const override;
    int run(const CLI_CALL& call) const override;
};
