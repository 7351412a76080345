// SPDX-License-Identifier: MIT

// "gfpdb chart" in the program that can draw.
#pragma once

#include "cli_command.h"

CLI_COMMAND draw_command();
