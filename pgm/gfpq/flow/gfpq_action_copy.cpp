// SPDX-License-Identifier: MIT
#include "flow/gfpq_action_copy.h"

#include "gfpdb/gfpdb_mgr.h"

GFPDB_ACTION* gfpq_copy_action(GFPDB_MGR& manager, const GFPDB_ACTION& source)
{
    GFPDB_ACTION* const copy = manager.create_action(static_cast<GFPDB_ACT_TYPE>(source.m_action_type));
    if (copy == nullptr)
        return nullptr;
    for (const GFPDB_ACT_PROPERTY property : source.get_property_enum_list())
        copy->set_property_value(property, source.get_property_value(property));
    return copy;
}
