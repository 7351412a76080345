// SPDX-License-Identifier: MIT
#include "base/gfpdb_read_file.h"

#include "base/gfpdb_words.h"

#include "whole_file/whole_file.h"

namespace {

// What the system says has its language already.
std::string translated(const std::string& problem, std::size_t largest)
{
    if (problem == WHOLE_FILE_NOT_REGULAR)
        return GFPDB_WORDS::say("it is not a regular file");
    if (problem == whole_file_too_large(largest))
        return GFPDB_WORDS::say("it is larger than %1", {whole_file_size(largest)});
    return problem;
}

} // namespace

std::optional<std::string> gfpdb_read_file(const std::string& path, std::size_t largest, std::string& problem)
{
    std::optional<std::string> bytes = read_whole_file(path, largest, problem);
    if (!bytes)
        problem = translated(problem, largest);
    return bytes;
}

std::optional<std::string> gfpdb_read_descriptor(int descriptor, std::size_t largest, std::string& problem)
{
    std::optional<std::string> bytes = read_descriptor(descriptor, largest, problem);
    if (!bytes)
        problem = translated(problem, largest);
    return bytes;
}
