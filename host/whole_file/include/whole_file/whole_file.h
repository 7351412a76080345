// SPDX-License-Identifier: MIT

// Reads whole files that others may have put in their places: nothing is waited for and nothing is read for ever.
//
// Throws nothing. Safe from every thread.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

// What `problem` says below, where it is not the system that says it: English, for who translates it.
constexpr const char* WHOLE_FILE_NOT_REGULAR = "it is not a regular file";
// "it is larger than 16 MiB"; and the "16 MiB" of it: the largest unit in which the number is whole.
std::string whole_file_too_large(std::size_t largest);
std::string whole_file_size(std::size_t bytes);

// The bytes of the file `path` (local 8-bit), which must be a regular one of at most `largest` bytes. None: `problem`
// says why, as what follows "the file cannot be read: ".
std::optional<std::string> read_whole_file(const std::string& path, std::size_t largest, std::string& problem);

// What comes out of the open `descriptor`, which may be a pipe, up to its end; then as above. The descriptor stays
// open.
std::optional<std::string> read_descriptor(int descriptor, std::size_t largest, std::string& problem);
