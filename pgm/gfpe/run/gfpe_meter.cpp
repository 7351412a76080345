// SPDX-License-Identifier: MIT
#include "run/gfpe_meter.h"

void GFPE_METER::start(GFPE_PHASE phase, int counted, std::int64_t total)
{
    m_counted = counted;
    m_commands_before = m_link.get_commands();
    m_progress.phase = phase;
    m_progress.done = 0;
    m_progress.total = total;
    if (m_listener)
        m_listener->phase_started(phase);
    report();
}

void GFPE_METER::report()
{
    if (!m_listener)
        return;
    m_progress.all_commands = m_link.get_commands();
    m_progress.commands = m_progress.all_commands - m_commands_before;
    m_listener->progressed(m_progress);
}
