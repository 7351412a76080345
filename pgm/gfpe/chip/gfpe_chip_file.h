// SPDX-License-Identifier: MIT

// The file behind an emulated chip: its bytes, nothing else.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

// Locked as long as the object lives, so that no second emulated chip uses it. Problems are sentences in UTF-8.
class GFPE_CHIP_FILE
{
public:
    // A file of exactly `size` bytes; it is made, full of FF, when there is none of that name. Null: `problem` says
    // why. `path` in the local 8-bit encoding.
    static std::unique_ptr<GFPE_CHIP_FILE> open(const std::string& path, std::int64_t size, std::string& problem);
    ~GFPE_CHIP_FILE();

    bool read(std::int64_t position, std::uint8_t* bytes, std::size_t length, std::string& problem) const;
    bool write(std::int64_t position, const std::uint8_t* bytes, std::size_t length, std::string& problem);
    // Returns when what was written would survive a loss of power.
    bool sync(std::string& problem);

private:
    GFPE_CHIP_FILE(int descriptor, std::string path) : m_descriptor(descriptor), m_path(std::move(path)) {}

    int m_descriptor;
    std::string m_path;
};
