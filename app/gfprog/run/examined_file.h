// SPDX-License-Identifier: MIT

// The file that gets what is read from a chip: whole, or not at all.
#pragma once

#include <QSaveFile>

#include <cstdint>
#include <string>

// Paths are local 8-bit, errors sentences in UTF-8.
class EXAMINED_FILE
{
public:
    // The byte at `start` of the device is its first one.
    EXAMINED_FILE(const std::string& path, std::int64_t start);

    // False: get_problem() says why. A file that exists is an error, unless `may_replace`.
    bool open(bool may_replace);
    bool write(std::int64_t position, const std::uint8_t* bytes, std::size_t length);
    // Puts the file in its place; without it, nothing is changed.
    bool commit();
    const std::string& get_problem() const { return m_problem; }

private:
    bool fail(const QString& text);

    QSaveFile m_file;
    const std::string m_path;
    const std::int64_t m_start;
    std::string m_problem;
};
