// SPDX-License-Identifier: MIT

// Writes records to a file: JSON with both flow variants, or a list of devices as CSV.
#pragma once

#include "cli_command.h"

class CLI_EXPORT_COMMAND final : public CLI_COMMAND
{
public:
    const char* name() const override { return "export"; }
    const char* summary() const override { return "Write records to a file"; }
    const char* arguments() const override { return "[NAME...]"; }
    std::pair<int, int> argument_range() const override { return {0, -1}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};
