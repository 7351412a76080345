// SPDX-License-Identifier: MIT

// What keeps an order from being run on a connection, as docs/flows.md lists it.
#pragma once

#include "plan/gfpe_flow.h"

#include "gfpe/gfpe_bus.h"
#include "gfpe/gfpe_plan.h"

#include <vector>

// Empty when the order can be run. Takes a moment for a flow that reads in a loop over each page, else none.
std::vector<GFPE_PROBLEM> gfpe_check_order(const GFPE_FLOW& flow, const GFPE_ORDER& order,
                                           const GFPE_ABILITIES& abilities);

// What the operations of an order erase: sorted, joined where they touch.
std::vector<GFPE_RANGE> gfpe_erased(const GFPE_FLOW& flow, const GFPE_ORDER& order);

// The range of an order: the device, unless the user says otherwise.
GFPE_RANGE gfpe_range_of(const GFPE_ORDER& order, const GFPE_FLOW& flow);
