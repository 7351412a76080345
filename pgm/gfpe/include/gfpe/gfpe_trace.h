// SPDX-License-Identifier: MIT

// What goes over the connection in a run, command by command.
#pragma once

#include "gfpe/gfpe_bus.h"
#include "gfpe/gfpe_export.h"

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

// The parts of a run, in their order. Blank check, verify and examine execute the same operation.
enum class GFPE_PHASE
{
    INITIALIZATION,
    ERASE,
    BLANK_CHECK,
    PROGRAM,
    VERIFY,
    EXAMINE,
    TERMINATION,
};
// "Initialization", "Erase", "Blank-Check", "Program", "Verify", "Examine", "Termination".
GFPE_EXPORT const char* gfpe_phase_name(GFPE_PHASE phase);

// Where in the flow a command comes from.
struct GFPE_TRACE_PLACE
{
    GFPE_PHASE phase = GFPE_PHASE::INITIALIZATION;
    // The number of the action in its operation, from 1, and its name; UTF-8, valid during the call.
    int action = 0;
    const std::string* action_name = nullptr;
};

// Hears of every command of a run, on the thread of the run. Times are those of GFPE_BUS::get_time().
class GFPE_EXPORT GFPE_TRACE
{
public:
    virtual ~GFPE_TRACE();
    // Before a command is sent; `command` and its data are valid until it ended.
    virtual void command_started(const GFPE_TRACE_PLACE& place, const GFPE_COMMAND& command, std::int64_t time) = 0;
    // What the chip answers, in chunks.
    virtual void received(const std::uint8_t* bytes, std::size_t length) = 0;
    virtual void command_ended(std::int64_t time) = 0;
    // The command that ended last is the one at which its action failed; `expected` and `mask` as in GFPE_FAILURE.
    virtual void failed(const std::vector<std::uint8_t>& expected, const std::vector<std::uint8_t>& mask) = 0;

protected:
    GFPE_TRACE() = default;
    GFPE_TRACE(const GFPE_TRACE&) = delete;
    GFPE_TRACE& operator=(const GFPE_TRACE&) = delete;
};

// One command of a trace that is kept.
struct GFPE_TRACE_ENTRY
{
    // From 0, over the whole run.
    std::int64_t number = 0;
    GFPE_PHASE phase = GFPE_PHASE::INITIALIZATION;
    int action = 0;
    std::string action_name;
    std::int64_t start = 0;
    std::int64_t end = 0;
    // Its `out` is null; its lengths are those of the command.
    GFPE_COMMAND command;
    // The first bytes of each, at most GFPE_TRACE_DATA of them; and how many bytes came in all.
    std::vector<std::uint8_t> out;
    std::vector<std::uint8_t> in;
    std::int64_t received = 0;
    bool has_failed = false;
    std::vector<std::uint8_t> expected;
    std::vector<std::uint8_t> mask;
};
constexpr std::size_t GFPE_TRACE_DATA = 256;

// Keeps the last commands of a run; older ones are dropped.
class GFPE_EXPORT GFPE_TRACE_LOG : public GFPE_TRACE
{
public:
    explicit GFPE_TRACE_LOG(std::size_t most_entries) : m_most(most_entries) {}

    void command_started(const GFPE_TRACE_PLACE& place, const GFPE_COMMAND& command, std::int64_t time) override;
    void received(const std::uint8_t* bytes, std::size_t length) override;
    void command_ended(std::int64_t time) override;
    void failed(const std::vector<std::uint8_t>& expected, const std::vector<std::uint8_t>& mask) override;

    const std::deque<GFPE_TRACE_ENTRY>& get_entries() const { return m_entries; }

private:
    std::size_t m_most;
    std::int64_t m_number = 0;
    std::deque<GFPE_TRACE_ENTRY> m_entries;
};
