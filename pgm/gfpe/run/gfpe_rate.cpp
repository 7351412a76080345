// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_rate.h"

#include <cmath>

namespace {

constexpr std::int64_t WINDOW_MS = 5000;
constexpr std::int64_t SHORTEST_MS = 250;

} // namespace

void GFPE_RATE::add(std::int64_t milliseconds, std::int64_t done)
{
    m_samples.push_back({milliseconds, done});
    while (m_samples.size() > 2 && m_samples[1].milliseconds <= milliseconds - WINDOW_MS)
        m_samples.pop_front();
}

std::optional<double> GFPE_RATE::get_rate() const
{
    if (m_samples.empty())
        return std::nullopt;
    const std::int64_t time = m_samples.back().milliseconds - m_samples.front().milliseconds;
    if (time < SHORTEST_MS)
        return std::nullopt;
    return 1000.0 * static_cast<double>(m_samples.back().done - m_samples.front().done) / static_cast<double>(time);
}

std::optional<int> GFPE_RATE::get_seconds_left(std::int64_t total) const
{
    const std::optional<double> rate = get_rate();
    if (!rate || *rate <= 0)
        return std::nullopt;
    return static_cast<int>(std::ceil(static_cast<double>(total - m_samples.back().done) / *rate));
}
