// SPDX-License-Identifier: MIT

// "gfpdb chart" in the program that can draw.
#pragma once

#include "commands/chart_command.h"

class DRAW_COMMAND final : public CLI_CHART_COMMAND
{
public:
    int run(const CLI_CALL& call) const override;
};
