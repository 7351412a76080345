// SPDX-License-Identifier: MIT
#include "fio/fio_path.h"

#include "fio/pgm_common.h"

#include <filesystem>
#include <system_error>

namespace {

constexpr char SLASH = '/';

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

// `path` from the root, taken relative to the current directory, without ".", ".." and a slash at its end.
std::filesystem::path whole(const std::string& path)
{
    const std::filesystem::path from_root = is_absolute(path) ? path : with_slash(current_directory()) + path;
    const std::filesystem::path clean = from_root.lexically_normal();
    return clean.has_filename() ? clean : clean.parent_path();
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
    m_path = whole(m_path).string();
    if (was_directory)
        m_path = with_slash(m_path);
}

std::string FIO_PATH::get_relative_to(const std::string& base) const
{
    const std::string result = whole(m_path).lexically_relative(whole(PGM_COMMON::change_folder_slash(base))).string();
    return ends_in_slash(m_path) ? with_slash(result) : result;
}
