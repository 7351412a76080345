// SPDX-License-Identifier: MIT
#include "run/run_trace.h"

#include <algorithm>
#include <utility>

// An entry that is dropped gives its memory to the next one.
GFPE_TRACE_ENTRY& RUN_TRACE::new_entry(PHASE& phase)
{
    if (phase.first.size() < KEPT) {
        phase.first.reserve(KEPT);
        return phase.first.emplace_back();
    }
    if (phase.last.size() < KEPT)
        return phase.last.emplace_back();
    GFPE_TRACE_ENTRY reused = std::move(phase.last.front());
    phase.last.pop_front();
    reused.in.clear();
    reused.received = 0;
    return phase.last.emplace_back(std::move(reused));
}

void RUN_TRACE::command_started(const GFPE_TRACE_PLACE& place, const GFPE_COMMAND& command, std::int64_t time)
{
    m_current = &new_entry(m_phases[static_cast<std::size_t>(place.phase)]);
    m_current->number = m_number++;
    m_current->phase = place.phase;
    m_current->action = place.action;
    m_current->action_name = *place.action_name;
    m_current->start = time;
    m_current->end = time;
    m_current->command = command;
    m_current->command.out = nullptr;
    m_current->out.assign(command.out, command.out + std::min(command.out_length, GFPE_TRACE_DATA));
}

void RUN_TRACE::received(const std::uint8_t* bytes, std::size_t length)
{
    const std::size_t room = GFPE_TRACE_DATA - m_current->in.size();
    m_current->in.insert(m_current->in.end(), bytes, bytes + std::min(length, room));
    m_current->received += static_cast<std::int64_t>(length);
}

void RUN_TRACE::command_ended(std::int64_t time)
{
    m_current->end = time;
}

void RUN_TRACE::failed(const std::vector<std::uint8_t>& expected, const std::vector<std::uint8_t>& mask)
{
    m_current->has_failed = true;
    m_current->expected = expected;
    m_current->mask = mask;
}

std::vector<const GFPE_TRACE_ENTRY*> RUN_TRACE::get_entries() const
{
    std::vector<const GFPE_TRACE_ENTRY*> entries;
    for (const PHASE& phase : m_phases) {
        for (const GFPE_TRACE_ENTRY& entry : phase.first)
            entries.push_back(&entry);
        for (const GFPE_TRACE_ENTRY& entry : phase.last)
            entries.push_back(&entry);
    }
    return entries;
}
