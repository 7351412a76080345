// SPDX-License-Identifier: MIT

// How fast a run goes, and how long it takes yet.
#pragma once

#include "gfpe/gfpe_export.h"

#include <cstdint>
#include <deque>
#include <optional>

// Fed with what is done at times of the user's clock; the rate is that of the last few seconds. Pure.
class GFPE_EXPORT GFPE_RATE
{
public:
    // `milliseconds` and `done` never go back.
    void add(std::int64_t milliseconds, std::int64_t done);
    // Bytes a second; none while it is unknown.
    std::optional<double> get_rate() const;
    // Seconds until `total` is done; none while that is unknown.
    std::optional<int> get_seconds_left(std::int64_t total) const;

private:
    struct SAMPLE
    {
        std::int64_t milliseconds;
        std::int64_t done;
    };
    std::deque<SAMPLE> m_samples;
};
