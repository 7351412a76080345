// SPDX-License-Identifier: MIT

// A set of positions.
#pragma once

#include "gfpe/gfpe_image.h"

#include <cstdint>
#include <map>
#include <vector>

class GFPE_RANGES
{
public:
    void add(const GFPE_RANGE& range)
    {
        if (range.length <= 0)
            return;
        std::int64_t start = range.start;
        std::int64_t end = range.end();
        // Those that overlap the new one, or touch it, become a part of it.
        auto next = m_ends.upper_bound(end);
        while (next != m_ends.begin() && std::prev(next)->second >= start) {
            --next;
            start = std::min(start, next->first);
            end = std::max(end, next->second);
            next = m_ends.erase(next);
        }
        m_ends[start] = end;
    }

    // Sorted, without overlaps, and joined where they touch.
    std::vector<GFPE_RANGE> get() const
    {
        std::vector<GFPE_RANGE> ranges;
        for (const auto& [start, end] : m_ends)
            ranges.push_back({start, end - start});
        return ranges;
    }

    // The first position of `range` that is not in the set; its end when all are.
    std::int64_t first_missing(const GFPE_RANGE& range) const
    {
        const auto next = m_ends.upper_bound(range.start);
        if (range.length == 0 || next == m_ends.begin())
            return range.start;
        return std::clamp(std::prev(next)->second, range.start, range.end());
    }

private:
    // The end of each range by its start.
    std::map<std::int64_t, std::int64_t> m_ends;
};
