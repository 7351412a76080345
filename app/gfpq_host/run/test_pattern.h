// SPDX-License-Identifier: MIT

// What is programmed when a flow is tried without a file.
#pragma once

#include "gfpe/gfpe_image.h"

#include <memory>

// An image of `range` whose bytes look random, have every value, and differ from page to page: a page or a sector at
// the wrong place is noticed. It takes no memory.
std::unique_ptr<GFPE_IMAGE> make_test_pattern(const GFPE_RANGE& range);
