// SPDX-License-Identifier: MIT
#include "run/gfpe_link.h"

#include <algorithm>

namespace {

// So long a wait ends at the latest after the user has stopped the run.
constexpr std::int64_t LONGEST_WAIT_US = 50000;
constexpr const char* STOPPED = "The run was stopped; the state of the chip is not known.";

// What comes from the bus on its way to whoever waits for it, and to the trace.
class ANSWER : public GFPE_READER
{
public:
    ANSWER(std::int64_t wanted, GFPE_READER& reader, GFPE_TRACE* trace, const std::atomic<bool>& stopped)
        : m_wanted(wanted), m_reader(reader), m_trace(trace), m_stopped(stopped)
    {}

    bool take(const std::uint8_t* bytes, std::size_t length) override
    {
        const std::int64_t missing = m_wanted - m_taken;
        const std::size_t used = std::min(length, static_cast<std::size_t>(missing));
        m_taken += static_cast<std::int64_t>(used);
        if (m_trace && used > 0)
            m_trace->received(bytes, used);
        m_is_enough = m_stopped || m_is_enough || (used > 0 && !m_reader.take(bytes, used));
        return !m_is_enough;
    }

    bool is_complete() const { return m_is_enough || m_taken == m_wanted; }
    std::int64_t taken() const { return m_taken; }

private:
    const std::int64_t m_wanted;
    GFPE_READER& m_reader;
    GFPE_TRACE* const m_trace;
    const std::atomic<bool>& m_stopped;
    std::int64_t m_taken = 0;
    bool m_is_enough = false;
};

} // namespace

bool GFPE_LINK::send(const GFPE_ACTION& step, const GFPE_COMMAND& command, GFPE_READER* reader)
{
    if (!may_go_on())
        return false;
    ++m_commands;
    if (m_trace)
        m_trace->command_started({m_phase, step.number, &step.name}, command, m_bus.get_time());
    const bool is_done = reader ? ask(command, *reader) : tell(command);
    if (m_trace)
        m_trace->command_ended(m_bus.get_time());
    return is_done;
}

bool GFPE_LINK::may_go_on()
{
    return !m_stopped || lose(STOPPED);
}

bool GFPE_LINK::tell(const GFPE_COMMAND& command)
{
    return m_bus.transfer(command, nullptr) || lose(m_bus.get_last_error());
}

bool GFPE_LINK::ask(const GFPE_COMMAND& command, GFPE_READER& reader)
{
    ANSWER answer(command.in_length, reader, m_trace, m_stopped);
    if (!m_bus.transfer(command, &answer))
        return lose(m_bus.get_last_error());
    if (!may_go_on())
        return false;
    if (!answer.is_complete())
        return lose("The connection gave " + std::to_string(answer.taken()) + " bytes instead of " +
                    std::to_string(command.in_length) + '.');
    return true;
}

bool GFPE_LINK::wait(std::int64_t microseconds)
{
    for (std::int64_t left = microseconds; left > 0; left -= LONGEST_WAIT_US) {
        if (!may_go_on())
            return false;
        if (!m_bus.wait(std::min(left, LONGEST_WAIT_US)))
            return lose(m_bus.get_last_error());
    }
    return true;
}

bool GFPE_LINK::settle()
{
    return m_bus.settle() || lose(m_bus.get_last_error());
}

void GFPE_LINK::mark_failed(const std::vector<std::uint8_t>& expected, const std::vector<std::uint8_t>& mask)
{
    if (m_trace && m_commands > 0)
        m_trace->failed(expected, mask);
}

bool GFPE_LINK::lose(const std::string& problem)
{
    m_problem = problem.empty() ? "The connection was lost." : problem;
    return false;
}
