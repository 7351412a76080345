// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_trace.h"

#include <algorithm>

GFPE_TRACE::~GFPE_TRACE() = default;

const char* gfpe_phase_name(GFPE_PHASE phase)
{
    constexpr const char* NAMES[] = {"Initialization", "Erase",   "Blank-Check", "Program",
                                     "Verify",         "Examine", "Termination"};
    return NAMES[static_cast<std::size_t>(phase)];
}

void GFPE_TRACE_LOG::command_started(const GFPE_TRACE_PLACE& place, const GFPE_COMMAND& command, std::int64_t time)
{
    if (m_entries.size() == m_most)
        m_entries.pop_front();
    GFPE_TRACE_ENTRY& entry = m_entries.emplace_back();
    entry.number = m_number++;
    entry.phase = place.phase;
    entry.action = place.action;
    entry.action_name = *place.action_name;
    entry.start = time;
    entry.command = command;
    entry.command.out = nullptr;
    entry.out.assign(command.out, command.out + std::min(command.out_length, GFPE_TRACE_DATA));
}

void GFPE_TRACE_LOG::received(const std::uint8_t* bytes, std::size_t length)
{
    GFPE_TRACE_ENTRY& entry = m_entries.back();
    const std::size_t room = GFPE_TRACE_DATA - entry.in.size();
    entry.in.insert(entry.in.end(), bytes, bytes + std::min(length, room));
    entry.received += static_cast<std::int64_t>(length);
}

void GFPE_TRACE_LOG::command_ended(std::int64_t time)
{
    m_entries.back().end = time;
}

void GFPE_TRACE_LOG::failed(const std::vector<std::uint8_t>& expected, const std::vector<std::uint8_t>& mask)
{
    m_entries.back().has_failed = true;
    m_entries.back().expected = expected;
    m_entries.back().mask = mask;
}
