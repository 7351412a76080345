// SPDX-License-Identifier: MIT

// Values with where they come from, for people and for programs.
#pragma once

#include "cli_json.h"

#include "gfpdb/gfpdb_new_device.h"

#include <string>
#include <vector>

// One line each: the heading, the value, the source.
std::string cli_values_table(const std::vector<GFPDB_PROPOSED_VALUE>& values);
// A list of objects under `key`.
void cli_add_values(CLI_JSON& json, const char* key, const std::vector<GFPDB_PROPOSED_VALUE>& values);

// The listed parts that have an ID, each with where it differs from what a chip says.
std::string cli_parts_text(const std::vector<GFPDB_PART_COMPARISON>& parts);
void cli_add_parts(CLI_JSON& json, const char* key, const std::vector<GFPDB_PART_COMPARISON>& parts);

// "C2 20 19".
std::string cli_bytes(const std::vector<std::uint8_t>& bytes);
