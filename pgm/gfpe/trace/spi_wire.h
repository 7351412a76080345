// SPDX-License-Identifier: MIT

// A command on the wires: what the host does with the four data lines in each clock, as docs/flows.md says.
#pragma once

#include "spi_bus.h"

#include <string>
#include <vector>

// One text for each clock of the command, with a character for each of IO3, IO2, IO1 and IO0: '0' or '1' when the host
// drives the line, 'z' when it has let the line go. `answer_clocks` clocks of the chip's answer are at the end.
std::vector<std::string> spi_clocks(const SPI_COMMAND& command, int answer_clocks);
