// SPDX-License-Identifier: MIT
#include "model/gfpdb_operation.h"

#include "gfpdb/gfpdb_enums.h"

GFPDB_EMBEDDED_OPERATION::GFPDB_EMBEDDED_OPERATION(int kind) : GFPDB_OPERATION(kind) {}

GFPDB_EMBEDDED_OPERATION::~GFPDB_EMBEDDED_OPERATION()
{
    for (GFPDB_ACTION* action : m_actions)
        delete action;
}

const std::vector<GFPDB_ACTION*>* GFPDB_EMBEDDED_OPERATION::get_actions() const
{
    return &m_actions;
}

int GFPDB_EMBEDDED_OPERATION::get_action_count() const
{
    return static_cast<int>(m_actions.size());
}

void GFPDB_EMBEDDED_OPERATION::add_action(GFPDB_ACTION* action)
{
    if (action)
        m_actions.push_back(action);
}

GFPDB_OPERATION* gfpdb_make_operation(int kind)
{
    if (kind < 0 || kind >= GFPDB_OPERATION_COUNT)
        return nullptr;
    return new GFPDB_EMBEDDED_OPERATION(kind);
}
