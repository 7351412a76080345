// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_plan.h"

#include "plan/gfpe_flow.h"

#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_part.h"

GFPE_PLAN::GFPE_PLAN(GFPE_DEVICE device, const std::vector<GFPDB_OPERATION*>&)
    : m_device(std::move(device)), m_flow(std::make_unique<GFPE_FLOW>())
{}

GFPE_PLAN::GFPE_PLAN(const GFPDB_RECORD& record, bool)
    : m_device{record.name(), gfpdb_density_bytes(record.row.density), record.row.total_die.value_or(1), {}},
      m_flow(std::make_unique<GFPE_FLOW>())
{}

GFPE_PLAN::~GFPE_PLAN() = default;

std::string GFPE_PROBLEM::to_text() const
{
    return text;
}

std::vector<GFPE_PROBLEM> GFPE_PLAN::check(const GFPE_ORDER&, const GFPE_ABILITIES&) const
{
    return m_problems;
}

std::vector<GFPE_RANGE> GFPE_PLAN::get_erased(const GFPE_ORDER&) const
{
    return {};
}

bool GFPE_PLAN::has_actions(int) const
{
    return true;
}
