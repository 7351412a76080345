// SPDX-License-Identifier: MIT
#include "run/progress_line.h"

#include <cstdio>

namespace {

// Often enough to look alive.
constexpr qint64 MILLISECONDS_BETWEEN = 100;
constexpr int MINUTE = 60;

template <typename... VALUES>
std::string formatted(const char* format, VALUES... values)
{
    char text[64];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

std::string rate_text(double rate)
{
    constexpr double KIB = 1024;
    constexpr double MIB = KIB * KIB;
    return rate < MIB ? formatted("%.1f KiB/s", rate / KIB) : formatted("%.1f MiB/s", rate / MIB);
}

} // namespace

std::string progress_text(const GFPE_PROGRESS& progress, std::optional<double> rate, std::optional<int> seconds_left)
{
    constexpr int ALL = 100;
    std::string text = gfpe_phase_name(progress.phase);
    if (progress.all_total > 0)
        text += ' ' + std::to_string(ALL * progress.all_done / progress.all_total) + " %";
    if (rate)
        text += ", " + rate_text(*rate);
    if (seconds_left)
        text += formatted(", %d:%02d left", *seconds_left / MINUTE, *seconds_left % MINUTE);
    return text;
}

PROGRESS_LINE::PROGRESS_LINE(CLI_OUTPUT& output) : m_output(output), m_is_shown(CLI_OUTPUT::shows_progress())
{
    m_clock.start();
}

// Each phase at least once: a fast one is over before its time for a line has come.
void PROGRESS_LINE::show(const GFPE_PROGRESS& progress)
{
    if (!m_is_shown)
        return;
    const qint64 now = m_clock.elapsed();
    const bool is_first = m_shown_at < 0 || progress.phase != m_phase;
    if (!is_first && now - m_shown_at < MILLISECONDS_BETWEEN)
        return;
    m_shown_at = now;
    m_phase = progress.phase;
    m_rate.add(now, progress.all_done);
    m_output.progress_line(progress_text(progress, m_rate.get_rate(), m_rate.get_seconds_left(progress.all_total)));
}
