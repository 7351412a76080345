// SPDX-License-Identifier: MIT
#include "catalogue/gfpdb_flow_templates.h"

#include "catalogue/gfpdb_flow_builder.h"
#include "catalogue/gfpdb_flow_traits.h"

#include "gfpdb/gfpdb_enums.h"

#include <array>

namespace {

using OPERATIONS = std::vector<GFPDB_OPERATION*>;

OPERATIONS build_operations(const GFPDB_FLOW_TRAITS& traits, bool quad)
{
    OPERATIONS operations;
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
        operations.push_back(gfpdb_build_operation(kind, traits, quad));
    return operations;
}

} // namespace

const std::vector<std::string>& gfpdb_builtin_template_names()
{
    static const std::vector<std::string> NAMES = {
        "QE in SR1 bit 6, 3-byte address",
        "QE in SR2 bit 1, 3-byte address",
        "QE in SR1 bit 6, 4-byte address",
        "QE in SR2 bit 1, 4-byte address",
        "No QE bit",
    };
    return NAMES;
}

// The operations are never destroyed: a program may look at them until its very end.
const std::vector<GFPDB_OPERATION*>* gfpdb_builtin_template_operations(int index, bool flow_variant)
{
    static auto& built = *new std::array<std::array<OPERATIONS, 2>, GFPDB_FLOW_TEMPLATE_COUNT>();
    if (index < 0 || index >= GFPDB_FLOW_TEMPLATE_COUNT)
        return nullptr;
    OPERATIONS& operations = built[static_cast<std::size_t>(index)][flow_variant ? 1 : 0];
    if (operations.empty())
        operations = build_operations(gfpdb_template_traits(index, flow_variant), flow_variant);
    return &operations;
}

std::string gfpdb_part_template_name(const GFPDB_PART& part)
{
    return gfpdb_builtin_template_names()[static_cast<std::size_t>(gfpdb_flow_traits(part, true).flow_template)];
}

void gfpdb_fill_part_flows(const GFPDB_PART& part, GFPDB_FLASH& record)
{
    for (const bool flow_variant : {false, true}) {
        for (GFPDB_OPERATION* operation : build_operations(gfpdb_flow_traits(part, flow_variant), flow_variant))
            record.set_operation(operation, flow_variant);
    }
}
