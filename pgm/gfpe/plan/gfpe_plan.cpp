// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_plan.h"

#include "plan/gfpe_compiler.h"
#include "plan/gfpe_flow.h"
#include "plan/gfpe_order_check.h"
#include "plan/gfpe_text.h"

#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_flow_check.h"
#include "gfpdb/gfpdb_part.h"

#include <algorithm>

namespace {

using OPERATIONS = std::vector<GFPDB_OPERATION*>;

GFPE_PROBLEM device_problem(const std::string& text)
{
    GFPE_PROBLEM problem;
    problem.text = text;
    return problem;
}

std::vector<GFPE_PROBLEM> check_device(const GFPE_DEVICE& device)
{
    if (device.bytes <= 0)
        return {device_problem("The size of the device is not known: its record has no density.")};
    if (device.dies < 1 || device.bytes % device.dies != 0)
        return {device_problem("The " + std::to_string(device.dies) + " dies of the device do not divide its " +
                               std::to_string(device.bytes) + " bytes.")};
    return {};
}

GFPE_PROBLEM flow_problem(const GFPDB_FLOW_PROBLEM& found, const OPERATIONS& operations)
{
    const auto operation = std::find_if(operations.begin(), operations.end(),
                                        [&found](const auto* each) { return each && each->m_kind == found.operation; });
    const std::vector<GFPDB_ACTION*>& actions = *(*operation)->get_actions();
    const auto place = static_cast<std::size_t>(found.action);
    const GFPDB_ACTION* const action = place < actions.size() ? actions[place] : nullptr;
    return gfpe_action_problem(found.operation, found.action + 1, action, found.property, found.text);
}

OPERATIONS pointers(const std::optional<std::vector<std::unique_ptr<GFPDB_OPERATION>>>& operations)
{
    OPERATIONS found;
    for (std::size_t kind = 0; operations && kind < operations->size(); ++kind)
        found.push_back((*operations)[kind].get());
    return found;
}

GFPE_DEVICE device_of(const GFPDB_RECORD& record)
{
    return {record.name(), gfpdb_density_bytes(record.row.density), record.row.total_die.value_or(1),
            gfpdb_device_id_bytes(record.row.device_id)};
}

} // namespace

GFPE_PLAN::GFPE_PLAN(GFPE_DEVICE device, const OPERATIONS& operations)
    : m_device(std::move(device)), m_flow(std::make_unique<GFPE_FLOW>())
{
    compile(operations);
}

GFPE_PLAN::GFPE_PLAN(const GFPDB_RECORD& record, bool flow_variant)
    : m_device(device_of(record)), m_flow(std::make_unique<GFPE_FLOW>())
{
    const auto operations = gfpdb_operations(record, flow_variant);
    if (!operations)
        m_problems.push_back(device_problem("The flow of the device cannot be read."));
    compile(pointers(operations));
}

GFPE_PLAN::~GFPE_PLAN() = default;

void GFPE_PLAN::compile(const OPERATIONS& operations)
{
    const std::vector<GFPE_PROBLEM> of_device = check_device(m_device);
    m_problems.insert(m_problems.end(), of_device.begin(), of_device.end());
    for (const GFPDB_FLOW_PROBLEM& found : gfpdb_check_flow(operations))
        m_problems.push_back(flow_problem(found, operations));
    if (!m_problems.empty())
        return;
    m_flow->device_bytes = m_device.bytes;
    m_flow->dies = m_device.dies;
    for (const GFPDB_OPERATION* operation : operations) {
        if (operation && operation->m_kind >= 0 && operation->m_kind < GFPDB_OPERATION_COUNT)
            m_flow->operations[static_cast<std::size_t>(operation->m_kind)] =
                GFPE_COMPILER(m_device, *m_flow, *operation).compile();
    }
}

std::vector<GFPE_PROBLEM> GFPE_PLAN::check(const GFPE_ORDER& order, const GFPE_ABILITIES& abilities) const
{
    return m_problems.empty() ? gfpe_check_order(*m_flow, order, abilities) : m_problems;
}

std::vector<GFPE_RANGE> GFPE_PLAN::get_erased(const GFPE_ORDER& order) const
{
    // What a connection can do changes nothing of what is erased.
    GFPE_ABILITIES any;
    any.lines = 4;
    return check(order, any).empty() ? gfpe_erased(*m_flow, order) : std::vector<GFPE_RANGE>();
}

bool GFPE_PLAN::has_actions(int operation) const
{
    return !m_flow->operation(operation).steps.empty();
}

std::string GFPE_PROBLEM::to_text() const
{
    if (operation < 0)
        return text;
    std::string place = gfpe_operation_name(operation);
    if (action > 0)
        place = gfpe_action_title(place, action, action_name);
    if (!property.empty())
        place += ", " + property + " \"" + value + '"';
    return place + ": " + text;
}
