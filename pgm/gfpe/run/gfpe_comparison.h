// SPDX-License-Identifier: MIT

// Comparing what is read with what is expected. Pure functions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

// Whether every byte is `byte`.
inline bool gfpe_is_all(const std::uint8_t* bytes, std::size_t length, std::uint8_t byte)
{
    return length == 0 || (bytes[0] == byte && std::memcmp(bytes, bytes + 1, length - 1) == 0);
}

// The place of the first byte of which `read AND mask` is not what is expected; `length` when there is none.
inline std::size_t gfpe_first_wrong(const std::uint8_t* read, const std::uint8_t* expected, std::size_t length,
                                    std::uint8_t mask)
{
    if (mask == 0xFF && std::memcmp(read, expected, length) == 0)
        return length;
    std::size_t place = 0;
    while (place < length && (read[place] & mask) == expected[place])
        ++place;
    return place;
}
