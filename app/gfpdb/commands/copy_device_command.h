// SPDX-License-Identifier: MIT

// Makes a new device of a built-in or stored one, with both variants of its flows.
#pragma once

#include "cli_command.h"

class CLI_COPY_DEVICE_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "copy-device"; }
    const char* summary() const override { return "Make a new device of another one"; }
    const char* arguments() const override { return "SOURCE NAME"; }
    std::pair<int, int> argument_range() const override { return {2, 2}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
