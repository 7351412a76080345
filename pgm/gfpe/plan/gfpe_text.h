// SPDX-License-Identifier: MIT

// How messages write what a run is about. Pure functions.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// "Verify/Blank-Check/Examine", by its kind.
std::string gfpe_operation_name(int kind);
// "Erase, action 2 "Sector Erase""; without the name when there is none.
std::string gfpe_action_title(const std::string& operation, int action, const std::string& name);
// "0x00012000"; more digits when it takes them.
std::string gfpe_position_text(std::int64_t position);
// "C2 20 19"
std::string gfpe_bytes_text(const std::vector<std::uint8_t>& bytes);
