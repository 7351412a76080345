// SPDX-License-Identifier: MIT
#include "fio/pgm_common.h"

#include <algorithm>

std::string PGM_COMMON::change_folder_slash(const std::string& folder)
{
    std::string result = folder;
    std::replace(result.begin(), result.end(), '\\', '/');
    const auto is_repeated_slash = [](char left, char right) { return left == '/' && right == '/'; };
    result.erase(std::unique(result.begin(), result.end(), is_repeated_slash), result.end());
    return result;
}
