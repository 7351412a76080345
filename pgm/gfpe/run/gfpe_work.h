// SPDX-License-Identifier: MIT

// How much there is to do.
#pragma once

#include "plan/gfpe_flow.h"

#include "gfpe/gfpe_image.h"

#include <cstdint>

// The type of the actions (GFPDB_ACT_TYPE) whose bytes are the progress of an operation; -1 when it has none.
int gfpe_counted_action(int operation);

// The bytes that an operation erases, programs or reads in a session that is asked for `range`. `image` is where the
// image has bytes within it: pages elsewhere are not counted, as they are left out.
std::int64_t gfpe_work(const GFPE_FLOW& flow, int operation, const GFPE_RANGE& range, const GFPE_RANGE& image);
