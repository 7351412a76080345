// SPDX-License-Identifier: MIT

// The flows of the built-in parts, for tests.
#pragma once

#include "flow_making.h"

#include "catalogue/gfpdb_flow_builder.h"
#include "catalogue/gfpdb_flow_traits.h"
#include "gfpdb/gfpdb_catalogue.h"

#include <stdexcept>
#include <string>
#include <vector>

using FLOW = std::vector<OPERATION>;

inline FLOW flow_of(const GFPDB_FLOW_TRAITS& traits, bool quad)
{
    FLOW flow;
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
        flow.emplace_back(gfpdb_build_operation(kind, traits, quad));
    return flow;
}

inline FLOW flow_of(const GFPDB_PART& part, bool quad)
{
    return flow_of(gfpdb_flow_traits(part, quad), quad);
}

// Not owned.
inline std::vector<GFPDB_OPERATION*> pointers(const FLOW& flow)
{
    std::vector<GFPDB_OPERATION*> operations;
    for (const OPERATION& operation : flow)
        operations.push_back(operation.get());
    return operations;
}

// The built-in part of that name; throws when there is none.
inline const GFPDB_PART& part_called(const std::string& name)
{
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        if (part.name == name)
            return part;
    }
    throw std::runtime_error("no part is called " + name);
}

// Calls `use(part, quad)` for both variants of every built-in part.
template <typename USE>
void for_each_flow(const USE& use)
{
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        for (const bool quad : {false, true})
            use(part, quad);
    }
}

inline std::string value_of(const GFPDB_ACTION& action, int property)
{
    return action.get_property_value(static_cast<GFPDB_ACT_PROPERTY>(property));
}
