// SPDX-License-Identifier: MIT

// The options of "gfpdb chart".
#pragma once

#include "cli_command.h"

constexpr const char* CHART_OPTION_OPERATION = "operation";
constexpr const char* CHART_OPTION_VARIANT = "variant";
constexpr const char* CHART_OPTION_FORMAT = "format";
constexpr const char* CHART_OPTION_PAPER = "paper";

// Draws the flow charts of a record into a file. A program of its own does it, so that this tool needs no fonts and
// windows: it starts as quickly as a tool without pictures.
extern const CLI_COMMAND CLI_CHART_COMMAND;
