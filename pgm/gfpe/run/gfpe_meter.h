// SPDX-License-Identifier: MIT

// How far a run is, for its listener.
#pragma once

#include "run/gfpe_link.h"

#include "gfpe/gfpe_run.h"

#include <cstdint>

class GFPE_METER
{
public:
    // Both outlive the meter; `listener` may be null.
    GFPE_METER(const GFPE_LINK& link, GFPE_LISTENER* listener, std::int64_t all_total)
        : m_link(link), m_listener(listener)
    {
        m_progress.all_total = all_total;
    }

    // A phase begins, in which actions of the type `counted` make the progress.
    void start(GFPE_PHASE phase, int counted, std::int64_t total);
    // An action of a type has done that many bytes, with a command or without one.
    void skip(int action, std::int64_t bytes)
    {
        m_progress.done += action == m_counted ? bytes : 0;
        m_progress.all_done += action == m_counted ? bytes : 0;
    }
    void add(int action, std::int64_t bytes)
    {
        skip(action, bytes);
        if (action == m_counted && m_listener)
            report();
    }
    void report();

private:
    const GFPE_LINK& m_link;
    GFPE_LISTENER* const m_listener;
    int m_counted = -1;
    std::int64_t m_commands_before = 0;
    GFPE_PROGRESS m_progress;
};
