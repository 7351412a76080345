// SPDX-License-Identifier: MIT

// An image for a device of any size: a few runs of bytes, and FF everywhere else.
#pragma once

#include "gfpe/gfpe_image.h"

#include <algorithm>
#include <map>
#include <vector>

using BYTES = std::vector<std::uint8_t>;

class SPARSE_IMAGE : public GFPE_IMAGE
{
public:
    // Adds bytes at `position`; runs do not overlap.
    void add(std::int64_t position, const BYTES& bytes) { m_runs[position] = bytes; }

    GFPE_RANGE get_range() const override
    {
        if (m_runs.empty())
            return {};
        const std::int64_t first = m_runs.begin()->first;
        const std::int64_t end = m_runs.rbegin()->first + static_cast<std::int64_t>(m_runs.rbegin()->second.size());
        return {first, end - first};
    }

    bool read(std::int64_t position, std::uint8_t* bytes, std::size_t length, std::string&) override
    {
        const GFPE_RANGE asked = {position, static_cast<std::int64_t>(length)};
        std::fill_n(bytes, length, std::uint8_t(0xFF));
        for (const auto& [start, run] : m_runs) {
            const GFPE_RANGE part = asked.common_with({start, static_cast<std::int64_t>(run.size())});
            std::copy_n(run.begin() + (part.length > 0 ? part.start - start : 0), part.length,
                        bytes + (part.length > 0 ? part.start - position : 0));
        }
        return true;
    }

private:
    std::map<std::int64_t, BYTES> m_runs;
};
