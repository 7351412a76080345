// SPDX-License-Identifier: MIT

// The phases of a session in their order: what each executes, and when.
#pragma once

#include "gfpe/gfpe_plan.h"
#include "gfpe/gfpe_trace.h"

#include "gfpdb/gfpdb_enums.h"

#include <array>

struct GFPE_PHASE_RULE
{
    GFPE_PHASE phase;
    // The kind of the operation that it executes.
    int operation;
    // Whether the user asked for it; null for a phase that every session has.
    bool GFPE_ORDER::*asked;

    bool is_in(const GFPE_ORDER& order) const { return asked == nullptr || order.*asked; }
};

constexpr std::array<GFPE_PHASE_RULE, 7> GFPE_PHASE_RULES = {{
    {GFPE_PHASE::INITIALIZATION, GFPDB_OPERATION_INITIALIZATION, nullptr},
    {GFPE_PHASE::ERASE, GFPDB_OPERATION_ERASE, &GFPE_ORDER::erase},
    {GFPE_PHASE::BLANK_CHECK, GFPDB_OPERATION_VERIFY, &GFPE_ORDER::blank_check},
    {GFPE_PHASE::PROGRAM, GFPDB_OPERATION_PROGRAM, &GFPE_ORDER::program},
    {GFPE_PHASE::VERIFY, GFPDB_OPERATION_VERIFY, &GFPE_ORDER::verify},
    {GFPE_PHASE::EXAMINE, GFPDB_OPERATION_VERIFY, &GFPE_ORDER::examine},
    {GFPE_PHASE::TERMINATION, GFPDB_OPERATION_TERMINATION, nullptr},
}};
