// SPDX-License-Identifier: MIT

// Where the user's database lies.
//
// Directories are in the local 8-bit encoding, byte for byte as the file system has them. GUI thread only.
#pragma once

#include <string>

// The directory for a user who never chose one: gfpdb/ in the user's data directory.
std::string gfpdb_default_dir();

// `directory` in the one form in which the library keeps directories: absolute against the base directory
// (GFPDB_HELPER::set_base_dir()), without "." and "..", separated by single slashes, with one at its end. Empty gives
// the default directory.
std::string gfpdb_normalised_dir(std::string directory);
