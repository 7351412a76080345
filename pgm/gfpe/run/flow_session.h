// SPDX-License-Identifier: MIT

// What a programmer does with a flow when its user presses Start: the operations in their order, and what happens when
// one of them fails.
#pragma once

#include "flow_executor.h"

#include <vector>

// What the user asked for.
struct FLOW_ORDER
{
    bool erase = false;
    bool blank_check = false;
    bool program = false;
    bool verify = false;
    bool examine = false;
};

struct FLOW_OUTCOME
{
    bool passed = false;
    // The executed operations, a letter each: I, E, B (blank check), P, V, X (examine), T.
    std::string executed;
    // The action that failed first, as "Erase 2: Poll Ready"; empty when none did.
    std::string failed_at;
};

// Runs a session. Throws std::runtime_error, before anything is sent, when an operation that is asked for is empty or
// cannot be executed.
FLOW_OUTCOME run_flow_session(FLOW_EXECUTOR& executor, const std::vector<GFPDB_OPERATION*>& flow,
                              const FLOW_ORDER& order);
