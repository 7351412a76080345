// SPDX-License-Identifier: MIT
#include "flow_session.h"

#include "gfpdb/gfpdb_enums.h"

#include <stdexcept>

namespace {

struct STEP
{
    char letter;
    int kind;
    FLOW_PURPOSE purpose;
    bool asked;
};

const GFPDB_OPERATION& operation_of(const std::vector<GFPDB_OPERATION*>& flow, int kind)
{
    for (const GFPDB_OPERATION* operation : flow) {
        if (operation->m_kind == kind)
            return *operation;
    }
    throw std::runtime_error("a flow without all of its operations");
}

} // namespace

FLOW_OUTCOME run_flow_session(FLOW_EXECUTOR& executor, const std::vector<GFPDB_OPERATION*>& flow,
                              const FLOW_ORDER& order)
{
    const STEP steps[] = {
        {'I', GFPDB_OPERATION_INITIALIZATION, FLOW_PURPOSE::VERIFY, true},
        {'E', GFPDB_OPERATION_ERASE, FLOW_PURPOSE::VERIFY, order.erase},
        {'B', GFPDB_OPERATION_VERIFY, FLOW_PURPOSE::BLANK_CHECK, order.blank_check},
        {'P', GFPDB_OPERATION_PROGRAM, FLOW_PURPOSE::VERIFY, order.program},
        {'V', GFPDB_OPERATION_VERIFY, FLOW_PURPOSE::VERIFY, order.verify},
        {'X', GFPDB_OPERATION_VERIFY, FLOW_PURPOSE::EXAMINE, order.examine},
    };
    for (const STEP& step : steps) {
        if (step.letter != 'I' && step.asked && operation_of(flow, step.kind).get_actions()->empty())
            throw std::runtime_error("an operation without actions");
        if (step.asked)
            executor.rehearse(operation_of(flow, step.kind));
    }
    executor.rehearse(operation_of(flow, GFPDB_OPERATION_TERMINATION));
    FLOW_OUTCOME outcome;
    const auto run = [&executor, &flow, &outcome](const STEP& step) {
        outcome.executed += step.letter;
        const bool passed = executor.run(operation_of(flow, step.kind), step.purpose);
        if (!passed && outcome.failed_at.empty())
            outcome.failed_at = std::string(1, step.letter) + ' ' + executor.failed_at();
        return passed;
    };
    outcome.passed = true;
    for (const STEP& step : steps)
        outcome.passed = outcome.passed && (!step.asked || run(step));
    // Nothing more goes to a chip that is not the one of the record.
    if (!outcome.passed && executor.stopped_at_unknown_chip())
        return outcome;
    const bool terminated = run({'T', GFPDB_OPERATION_TERMINATION, FLOW_PURPOSE::VERIFY, true});
    outcome.passed = outcome.passed && terminated;
    return outcome;
}
