// SPDX-License-Identifier: MIT

// The image as the run sees it: a byte for every position, FF where there is none. Holds one piece at a time, so that
// an image of any size takes the same memory.
#pragma once

#include "gfpe/gfpe_image.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

class GFPE_IMAGE_WINDOW
{
public:
    // More than any page, and small enough to stay in the processor's cache.
    static constexpr std::int64_t LARGEST = 16384;

    // The bytes of `image`, which may be null, that are in `range`.
    GFPE_IMAGE_WINDOW(GFPE_IMAGE* image, const GFPE_RANGE& range);

    // Where there are bytes.
    const GFPE_RANGE& get_range() const { return m_range; }
    // The bytes of at most LARGEST positions, valid until the next call. Null: get_problem() says why.
    const std::uint8_t* bytes(const GFPE_RANGE& range)
    {
        const bool is_held = range.start >= m_held.start && range.end() <= m_held.end();
        return is_held || hold(range) ? m_bytes.data() + (range.start - m_held.start) : nullptr;
    }
    // What is asked for next is read again.
    void forget() { m_held.length = 0; }
    // A sentence for the user.
    const std::string& get_problem() const { return m_problem; }

private:
    // Reads no more than that: what follows is read when it is needed.
    bool hold(const GFPE_RANGE& range);

    GFPE_IMAGE* const m_image;
    const GFPE_RANGE m_range;
    std::vector<std::uint8_t> m_bytes;
    GFPE_RANGE m_held;
    std::string m_problem;
};
