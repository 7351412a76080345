// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_run.h"

GFPE_LISTENER::~GFPE_LISTENER() = default;

bool GFPE_LISTENER::examined(std::int64_t, const std::uint8_t*, std::size_t)
{
    return true;
}

GFPE_RUN::GFPE_RUN(std::shared_ptr<const GFPE_PLAN> plan, GFPE_BUS& bus) : m_plan(std::move(plan)), m_bus(bus) {}

GFPE_RUN::~GFPE_RUN() = default;

GFPE_RESULT GFPE_RUN::run(const GFPE_ORDER& order)
{
    GFPE_RESULT result;
    result.problems = m_plan->check(order, m_bus.get_abilities());
    return result;
}
