// SPDX-License-Identifier: MIT

// What is programmed and compared: bytes with a position in the device each.
#pragma once

#include "gfpe/gfpe_export.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// Positions of a device: `length` bytes from `start` on.
struct GFPE_RANGE
{
    std::int64_t start = 0;
    std::int64_t length = 0;

    std::int64_t end() const { return start + length; }
    // Whatever the numbers are: true when no position is before 0, or behind a device of `bytes`.
    bool is_within(std::int64_t bytes) const
    {
        return start >= 0 && length >= 0 && length <= bytes && start <= bytes - length;
    }
    // The part of both; of length 0 when there is none.
    GFPE_RANGE common_with(const GFPE_RANGE& other) const
    {
        const std::int64_t first = std::max(start, other.start);
        return {first, std::max<std::int64_t>(0, std::min(end(), other.end()) - first)};
    }
};

// Used from one thread at a time, but not bound to a thread. Throws nothing.
class GFPE_EXPORT GFPE_IMAGE
{
public:
    virtual ~GFPE_IMAGE();

    // Where the image has bytes; everywhere else it has none.
    virtual GFPE_RANGE get_range() const = 0;
    // Copies the bytes of a range that lies in get_range(). False: they cannot be read, or are not what they were;
    // `problem` says why, a sentence in UTF-8.
    virtual bool read(std::int64_t position, std::uint8_t* bytes, std::size_t length, std::string& problem) = 0;

protected:
    GFPE_IMAGE() = default;
    GFPE_IMAGE(const GFPE_IMAGE&) = delete;
    GFPE_IMAGE& operator=(const GFPE_IMAGE&) = delete;
};

// An image in memory, from `position` on.
GFPE_EXPORT std::unique_ptr<GFPE_IMAGE> gfpe_memory_image(std::vector<std::uint8_t> bytes, std::int64_t position);

// A regular file of raw bytes, the first of them at `position` of a device of `device_bytes`. Read piece by piece while
// it is used; a file that changes meanwhile fails the read. Null when it cannot be read, is empty or reaches beyond the
// end of the device; `problem` says which. `path` in the local 8-bit encoding.
GFPE_EXPORT std::unique_ptr<GFPE_IMAGE> gfpe_file_image(const std::string& path, std::int64_t position,
                                                        std::int64_t device_bytes, std::string& problem);
