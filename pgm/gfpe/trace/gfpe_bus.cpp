// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_bus.h"

#include <chrono>

GFPE_READER::~GFPE_READER() = default;

GFPE_BUS::~GFPE_BUS() = default;

bool GFPE_BUS::settle()
{
    return true;
}

std::int64_t GFPE_BUS::get_time() const
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
}
