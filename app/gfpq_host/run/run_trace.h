// SPDX-License-Identifier: MIT

// The trace of a run that is shown afterwards.
#pragma once

#include "gfpe/gfpe_trace.h"

#include <array>
#include <deque>
#include <vector>

constexpr std::size_t RUN_PHASES = static_cast<std::size_t>(GFPE_PHASE::TERMINATION) + 1;

// Keeps the first and the last commands of each phase, as many of both as KEPT, whatever the length of the run; so the
// end of a phase, where it failed, is always there. Thread as GFPE_TRACE; read when the run is over.
class RUN_TRACE : public GFPE_TRACE
{
public:
    static constexpr std::size_t KEPT = 2000;

    void command_started(const GFPE_TRACE_PLACE& place, const GFPE_COMMAND& command, std::int64_t time) override;
    void received(const std::uint8_t* bytes, std::size_t length) override;
    void command_ended(std::int64_t time) override;
    void failed(const std::vector<std::uint8_t>& expected, const std::vector<std::uint8_t>& mask) override;

    // What was kept, in the order of the run. Where commands were dropped the numbers have a gap.
    std::vector<const GFPE_TRACE_ENTRY*> get_entries() const;

private:
    struct PHASE
    {
        std::vector<GFPE_TRACE_ENTRY> first;
        std::deque<GFPE_TRACE_ENTRY> last;
    };

    GFPE_TRACE_ENTRY& new_entry(PHASE& phase);

    std::array<PHASE, RUN_PHASES> m_phases;
    GFPE_TRACE_ENTRY* m_current = nullptr;
    std::int64_t m_number = 0;
};
