// SPDX-License-Identifier: MIT

// Makes directories.
#pragma once

#include <string>

// True when `path` (local 8-bit) is a directory.
bool gfpdb_is_dir(const std::string& path);

// Creates `directory` (local 8-bit) with everything above it; nothing that is made can be written by everyone, whatever
// the user's mask. False when it is not there afterwards.
bool gfpdb_create_dir(const std::string& directory);
