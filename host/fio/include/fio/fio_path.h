// SPDX-License-Identifier: MIT

// One path of the file system.
//
// Texts are in the local 8-bit encoding. A path is held as it was given, with slashes normalised as
// PGM_COMMON::change_folder_slash does; nothing here asks whether the file exists or follows a link. Not tied to a
// thread, but become_absolute() and get_relative_to() read the process's current directory for what is relative; the
// root is used instead of a current directory that no longer exists.
#pragma once

#include "fio/fio_export.h"

#include <string>

class FIO_EXPORT FIO_PATH
{
public:
    FIO_PATH() = default;
    explicit FIO_PATH(const std::string& path);

    // Replaces the path.
    FIO_PATH& operator=(const std::string& path);

    // The path as it was given; empty for an empty path.
    std::string fullpath() const;

    // Makes `directory` the path: a directory, so the path ends in "/". An empty `directory` empties the path.
    void directory(const std::string& directory);

    // Resolves a relative path, "." and ".." against `base`, or against the process's current directory when `base` is
    // empty. ".." of the root is the root. A path that ended in "/" still does. An empty path becomes the base itself.
    void become_absolute(const std::string& base);

    // This path as seen from the directory `base`: "./" for the same directory ("." when this path does not end in
    // "/"), "../" steps where needed. Both are made absolute against the current directory first. A path that ended in
    // "/" still does.
    std::string get_relative_to(const std::string& base) const;

private:
    std::string m_path;
};
