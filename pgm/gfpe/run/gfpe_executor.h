// SPDX-License-Identifier: MIT

// Executes the steps of one operation after the other on a bus.
#pragma once

#include "plan/gfpe_walker.h"
#include "run/gfpe_image_window.h"
#include "run/gfpe_link.h"
#include "run/gfpe_meter.h"

#include "gfpe/gfpe_run.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// How an operation ended.
enum class GFPE_OUTCOME
{
    PASSED,
    FAILED,
    CANCELLED,
    LOST,
};

class GFPE_EXECUTOR : public GFPE_WALKER
{
public:
    // All outlive the executor; `listener` may be null. `cancelled` may become true at any time, from any thread.
    GFPE_EXECUTOR(const GFPE_FLOW& flow, const GFPE_RANGE& range, GFPE_LINK& link, GFPE_IMAGE_WINDOW& image,
                  GFPE_METER& meter, GFPE_LISTENER* listener, const std::atomic<bool>& cancelled)
        : GFPE_WALKER(flow, range), m_link(link), m_image(image), m_meter(meter), m_listener(listener),
          m_cancelled(cancelled)
    {}

    GFPE_OUTCOME run(int operation, GFPE_PHASE phase);
    // The action that failed in the last run, or at which the connection was lost.
    const std::optional<GFPE_FAILURE>& get_failure() const { return m_failure; }
    // True when an ID check failed, or when the Initialization ended before its first ID check had passed.
    bool is_chip_unknown() const { return m_is_chip_unknown; }

protected:
    bool visit(const GFPE_WRITE_REGISTER& step, const GFPE_SCOPE& scope) override;
    bool visit(const GFPE_READ_REGISTER& step, const GFPE_SCOPE& scope) override;
    bool visit(const GFPE_WRITE_DATA& step, const GFPE_SCOPE& scope, const GFPE_RANGE& where) override;
    bool visit(const GFPE_READ_DATA& step, const GFPE_SCOPE& scope, const GFPE_RANGE& where) override;
    bool visit(const GFPE_ERASE& step, const GFPE_SCOPE& scope, const GFPE_RANGE& where) override;
    std::optional<bool> is_blank_page(const GFPE_LOOP& loop, const GFPE_RANGE& page) override;

private:
    class REGISTER_ANSWER;
    class DATA_ANSWER;

    // Nothing but Termination and polls follows a cancellation.
    bool is_cancelled();
    bool send(const GFPE_ACTION& step, const GFPE_COMMAND& command, GFPE_READER* reader = nullptr);
    bool wait(const GFPE_ACTION& step);
    // Reads one command's worth of a Read Data.
    bool read_piece(const GFPE_READ_DATA& step, const GFPE_SCOPE& scope, const GFPE_RANGE& part);
    // All of these return false.
    bool fail(GFPE_FAILURE failure, const std::string& what);
    bool fail_at(const GFPE_ACTION& step, GFPE_FAILURE failure, const std::string& what);
    bool fail_register(const GFPE_READ_REGISTER& step, const std::uint8_t* received);
    bool lose(const GFPE_ACTION& step);
    bool lose_between_actions();

    GFPE_LINK& m_link;
    GFPE_IMAGE_WINDOW& m_image;
    GFPE_METER& m_meter;
    GFPE_LISTENER* const m_listener;
    const std::atomic<bool>& m_cancelled;
    GFPE_PHASE m_phase = GFPE_PHASE::INITIALIZATION;
    GFPE_OUTCOME m_outcome = GFPE_OUTCOME::PASSED;
    std::optional<GFPE_FAILURE> m_failure;
    bool m_is_chip_unknown = false;
};
