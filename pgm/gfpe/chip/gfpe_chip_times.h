// SPDX-License-Identifier: MIT

// How long emulated chips are busy. Most pages and sectors are as quick as good ones are, few as slow as a data sheet
// allows.
#pragma once

#include <algorithm>
#include <cstdint>

namespace gfpe_chip_times {

// One in so many is slow.
constexpr std::int64_t SLOW_EVERY = 64;

constexpr std::int64_t PROGRAM_US = 250;
constexpr std::int64_t SLOW_PROGRAM_US = 9000;
constexpr std::int64_t ERASE_US = 15000;
constexpr std::int64_t SECTOR_BYTES = 4096;

// Of `size` bytes of a chip, or of a die that is erased as one, of `whole` bytes.
inline std::int64_t slow_erase_us(std::int64_t size, std::int64_t whole)
{
    if (size <= SECTOR_BYTES)
        return 900000;
    return size < whole ? 6000000 : std::max<std::int64_t>(whole / (1 << 15), 1) * 800000;
}

} // namespace gfpe_chip_times
