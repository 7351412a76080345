// SPDX-License-Identifier: MIT

// Draws the flow charts of a record into a file. A program of its own does it, so that this tool needs no fonts and
// windows: it starts as quickly as a tool without pictures.
#pragma once

#include "cli_command.h"

constexpr const char* CHART_OPTION_OPERATION = "operation";
constexpr const char* CHART_OPTION_VARIANT = "variant";
constexpr const char* CHART_OPTION_FORMAT = "format";
constexpr const char* CHART_OPTION_PAPER = "paper";

class CLI_CHART_COMMAND : public CLI_COMMAND
{
public:
    const char* name() const final { return "chart"; }
    const char* summary() const final { return "Draw the flow charts of a record (PDF, SVG)"; }
    const char* arguments() const final { return "NAME"; }
    std::pair<int, int> argument_range() const final { return {1, 1}; }
    std::vector<std::string> choices(const std::string& value) const final;
    void add_options(QCommandLineParser& parser) const final;
    // Hands the call over to the program that draws, and its exit code back.
    int run(const CLI_CALL& call) const override;
};
