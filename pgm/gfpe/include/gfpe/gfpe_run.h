// SPDX-License-Identifier: MIT

// Running a plan on a connection: Initialization, what the user asked for, Termination.
#pragma once

#include "gfpe/gfpe_plan.h"
#include "gfpe/gfpe_trace.h"

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// How far a run is.
struct GFPE_PROGRESS
{
    GFPE_PHASE phase = GFPE_PHASE::INITIALIZATION;
    // Bytes of this phase, and of the whole run: those of its Erase, Write Data and Read Data actions in the operations
    // of the same name. Of pages, those that the image has; Initialization and Termination have none.
    std::int64_t done = 0;
    std::int64_t total = 0;
    std::int64_t all_done = 0;
    std::int64_t all_total = 0;
    // Commands sent so far, in this phase and in all.
    std::int64_t commands = 0;
    std::int64_t all_commands = 0;
};

// Hears of a run, on the thread of the run.
class GFPE_EXPORT GFPE_LISTENER
{
public:
    virtual ~GFPE_LISTENER();
    virtual void phase_started(GFPE_PHASE) {}
    // At the start and the end of a phase, after every command that brings the run forward, and while data are read.
    // Often: the listener takes no longer than a command.
    virtual void progressed(const GFPE_PROGRESS&) {}
    // Bytes that an examine read, in chunks. False: they cannot be kept, and the run fails with get_problem().
    virtual bool examined(std::int64_t position, const std::uint8_t* bytes, std::size_t length);
    virtual std::string get_problem() const { return {}; }

protected:
    GFPE_LISTENER() = default;
    GFPE_LISTENER(const GFPE_LISTENER&) = delete;
    GFPE_LISTENER& operator=(const GFPE_LISTENER&) = delete;
};

enum class GFPE_VERDICT
{
    PASSED,
    FAILED,    // an action failed, or the image could not be read, or what was read not be kept
    CANCELLED, // by the user, with Termination unless the chip is unknown
    LOST,      // the connection was lost, or the user stopped at once: the state of the chip is unknown
    REFUSED,   // nothing was sent
};

// What failed first; after a cancellation, what failed in Termination.
struct GFPE_FAILURE
{
    GFPE_PHASE phase = GFPE_PHASE::INITIALIZATION;
    // The number of the action in its operation, from 1, and its name; 0 and empty when it was the image or the
    // listener.
    int action = 0;
    std::string action_name;
    // What was expected and what came, as many bytes each: of a Read Data up to 16 from the first wrong one on. The
    // mask is as long, and empty for FF. Empty when nothing was compared.
    std::vector<std::uint8_t> expected;
    std::vector<std::uint8_t> mask;
    std::vector<std::uint8_t> received;
    // The place in the device of the first byte that is wrong; -1 when it is not about one.
    std::int64_t position = -1;
    // A sentence for the user, UTF-8: "Verify, action 1 "Read Data": expected 12 at 0x00001000, received FF."
    std::string text;
};

struct GFPE_RESULT
{
    GFPE_VERDICT verdict = GFPE_VERDICT::REFUSED;
    // What kept the run from starting, when it was refused.
    std::vector<GFPE_PROBLEM> problems;
    std::optional<GFPE_FAILURE> failure;
    // True when the ID of the chip was not as expected, or was not reached: no Termination was executed.
    bool chip_is_unknown = false;
    // The phases that were started, in their order.
    std::vector<GFPE_PHASE> phases;
    // Commands that were sent.
    std::int64_t commands = 0;
};

// One run. cancel() and stop() may be called from any thread; everything else from the thread of the run.
class GFPE_EXPORT GFPE_RUN
{
public:
    // `bus` and the others below outlive the run.
    GFPE_RUN(std::shared_ptr<const GFPE_PLAN> plan, GFPE_BUS& bus);
    ~GFPE_RUN();

    // What is programmed and compared; needed for program and verify, an order with these and without it is refused.
    void set_image(GFPE_IMAGE* image) { m_image = image; }
    void set_listener(GFPE_LISTENER* listener) { m_listener = listener; }
    void set_trace(GFPE_TRACE* trace) { m_trace = trace; }

    // Runs the order to its end. Throws nothing.
    GFPE_RESULT run(const GFPE_ORDER& order);
    // Ends the run before its next action that is not a Read Register, or within a Read Data, and then with
    // Termination.
    void cancel() { m_cancelled = true; }
    // Ends the run before its next command, within a read or within 50 ms of a wait, without Termination: the state of
    // the chip is unknown.
    void stop() { m_stopped = true; }

private:
    std::shared_ptr<const GFPE_PLAN> m_plan;
    GFPE_BUS& m_bus;
    GFPE_IMAGE* m_image = nullptr;
    GFPE_LISTENER* m_listener = nullptr;
    GFPE_TRACE* m_trace = nullptr;
    std::atomic<bool> m_cancelled{false};
    std::atomic<bool> m_stopped{false};
};
