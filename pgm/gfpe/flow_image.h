// SPDX-License-Identifier: MIT

// An image for a device of any size: a few runs of bytes, and 0xFF everywhere else.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

using FLOW_BYTES = std::vector<std::uint8_t>;

class FLOW_IMAGE
{
public:
    // Adds bytes at `position`; runs do not overlap.
    void add(std::int64_t position, const FLOW_BYTES& bytes) { m_runs[position] = bytes; }

    // The bytes from `position` on.
    FLOW_BYTES bytes(std::int64_t position, std::int64_t length) const
    {
        FLOW_BYTES found(static_cast<std::size_t>(length), 0xFF);
        for (const auto& [start, run] : m_runs) {
            for (std::size_t at = 0; at < run.size(); ++at) {
                const std::int64_t place = start + static_cast<std::int64_t>(at) - position;
                if (place >= 0 && place < length)
                    found[static_cast<std::size_t>(place)] = run[at];
            }
        }
        return found;
    }

    // True when a byte of a run lies in the range.
    bool touches(std::int64_t position, std::int64_t length) const
    {
        for (const auto& [start, run] : m_runs) {
            if (start < position + length && position < start + static_cast<std::int64_t>(run.size()))
                return true;
        }
        return false;
    }

    const std::map<std::int64_t, FLOW_BYTES>& runs() const { return m_runs; }

private:
    std::map<std::int64_t, FLOW_BYTES> m_runs;
};
