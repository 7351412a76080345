// SPDX-License-Identifier: MIT
#include "fio/fio_path.h"

#include "fio/pgm_common.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

namespace {

constexpr char SLASH = '/';
using PARTS = std::vector<std::string>;

bool is_absolute(const std::string& path)
{
    return !path.empty() && path.front() == SLASH;
}

bool ends_in_slash(const std::string& path)
{
    return !path.empty() && path.back() == SLASH;
}

std::string with_slash(const std::string& path)
{
    return ends_in_slash(path) ? path : path + SLASH;
}

// The root when the current directory is gone.
std::string current_directory()
{
    std::error_code error;
    const std::filesystem::path directory = std::filesystem::current_path(error);
    return error ? std::string(1, SLASH) : directory.string();
}

// Adds the parts of `path` to `parts`: "." adds nothing, ".." takes the last part away and stops at the root.
void walk(const std::string& path, PARTS& parts)
{
    std::size_t begin = 0;
    while (begin < path.size()) {
        const std::size_t end = std::min(path.find(SLASH, begin), path.size());
        const std::string part = path.substr(begin, end - begin);
        begin = end + 1;
        if (part == "..") {
            if (!parts.empty())
                parts.pop_back();
        } else if (!part.empty() && part != ".") {
            parts.push_back(part);
        }
    }
}

// The parts of `path` from the root, taken relative to the current directory.
PARTS absolute_parts(const std::string& path)
{
    PARTS parts;
    if (!is_absolute(path))
        walk(current_directory(), parts);
    walk(path, parts);
    return parts;
}

std::string join(const PARTS& parts)
{
    std::string result;
    for (const std::string& part : parts)
        result += (result.empty() ? "" : "/") + part;
    return result;
}

} // namespace

FIO_PATH::FIO_PATH(const std::string& path) : m_path(PGM_COMMON::change_folder_slash(path)) {}

FIO_PATH& FIO_PATH::operator=(const std::string& path)
{
    m_path = PGM_COMMON::change_folder_slash(path);
    return *this;
}

std::string FIO_PATH::fullpath() const
{
    return m_path;
}

void FIO_PATH::directory(const std::string& directory)
{
    m_path = PGM_COMMON::change_folder_slash(directory.empty() ? directory : with_slash(directory));
}

void FIO_PATH::become_absolute(const std::string& base)
{
    const std::string clean_base = PGM_COMMON::change_folder_slash(base.empty() ? current_directory() : base);
    if (m_path.empty())
        m_path = clean_base;
    else if (!is_absolute(m_path))
        m_path = with_slash(clean_base) + m_path;

    const bool was_directory = ends_in_slash(m_path);
    m_path = SLASH + join(absolute_parts(m_path));
    if (was_directory)
        m_path = with_slash(m_path);
}

std::string FIO_PATH::get_relative_to(const std::string& base) const
{
    const PARTS target = absolute_parts(m_path);
    const PARTS start = absolute_parts(PGM_COMMON::change_folder_slash(base));
    const auto [target_rest, start_rest] = std::mismatch(target.begin(), target.end(), start.begin(), start.end());

    PARTS steps(static_cast<std::size_t>(start.end() - start_rest), "..");
    steps.insert(steps.end(), target_rest, target.end());
    const std::string result = steps.empty() ? std::string(".") : join(steps);
    return ends_in_slash(m_path) ? with_slash(result) : result;
}
