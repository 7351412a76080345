// SPDX-License-Identifier: MIT

// Reads whole files, and says why not in the user's language. Paths are in the local 8-bit encoding.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

// As read_whole_file() and read_descriptor().
std::optional<std::string> gfpdb_read_file(const std::string& path, std::size_t largest, std::string& problem);
std::optional<std::string> gfpdb_read_descriptor(int descriptor, std::size_t largest, std::string& problem);
