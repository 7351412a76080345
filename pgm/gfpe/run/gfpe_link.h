// SPDX-License-Identifier: MIT

// The one way from a run to its bus: every command is counted and traced here, and a lost connection stays lost.
#pragma once

#include "plan/gfpe_flow.h"

#include "gfpe/gfpe_bus.h"
#include "gfpe/gfpe_trace.h"

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

class GFPE_LINK
{
public:
    // All outlive the link; `trace` may be null. `stopped` may become true at any time, from any thread.
    GFPE_LINK(GFPE_BUS& bus, GFPE_TRACE* trace, const std::atomic<bool>& stopped)
        : m_bus(bus), m_trace(trace), m_stopped(stopped), m_abilities(bus.get_abilities())
    {}

    // The phase of what is sent from now on.
    void set_phase(GFPE_PHASE phase) { m_phase = phase; }
    // Sends the command of an action; `reader` gets exactly as many bytes as it asks for, unless it has enough before.
    // False: the connection is lost, or the run was stopped; get_problem() says why.
    bool send(const GFPE_ACTION& step, const GFPE_COMMAND& command, GFPE_READER* reader = nullptr);
    // What send() and wait() ask first. False: the run was stopped.
    bool may_go_on();
    // Lets at least that time pass. False as above.
    bool wait(std::int64_t microseconds);
    // Waits until everything has reached the chip. False as above.
    bool settle();
    // The command that was sent last is the one at which its action failed.
    void mark_failed(const std::vector<std::uint8_t>& expected, const std::vector<std::uint8_t>& mask);

    const GFPE_ABILITIES& get_abilities() const { return m_abilities; }
    std::int64_t get_commands() const { return m_commands; }
    // A sentence; empty as long as the connection is there.
    const std::string& get_problem() const { return m_problem; }

private:
    bool tell(const GFPE_COMMAND& command);
    bool ask(const GFPE_COMMAND& command, GFPE_READER& reader);
    bool lose(const std::string& problem);

    GFPE_BUS& m_bus;
    GFPE_TRACE* const m_trace;
    const std::atomic<bool>& m_stopped;
    const GFPE_ABILITIES m_abilities;
    GFPE_PHASE m_phase = GFPE_PHASE::INITIALIZATION;
    std::int64_t m_commands = 0;
    std::string m_problem;
};
