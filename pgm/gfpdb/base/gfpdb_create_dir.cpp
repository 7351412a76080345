// SPDX-License-Identifier: MIT
#include "base/gfpdb_create_dir.h"

#include <filesystem>
#include <system_error>

#include <sys/stat.h>

namespace {

// Before the user's mask: everything for the user and the group, reading for everyone.
constexpr mode_t DIRECTORY_MODE = 0775;

} // namespace

bool gfpdb_is_dir(const std::string& path)
{
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

// Not std::filesystem::create_directories(): that would let everyone write where the user's mask does.
bool gfpdb_create_dir(const std::string& directory)
{
    for (std::size_t end = directory.find('/', 1); end != std::string::npos; end = directory.find('/', end + 1))
        ::mkdir(directory.substr(0, end).c_str(), DIRECTORY_MODE);
    ::mkdir(directory.c_str(), DIRECTORY_MODE);
    return gfpdb_is_dir(directory);
}
