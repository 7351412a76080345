// SPDX-License-Identifier: MIT

// Short ways to write actions and operations in tests.
#pragma once

#include "model/gfpdb_action_model.h"
#include "model/gfpdb_operation.h"

#include "gfpdb/gfpdb_enums.h"

#include <QByteArray>

#include <initializer_list>
#include <memory>

using VALUES = std::initializer_list<std::pair<int, const char*>>;
using OPERATION = std::unique_ptr<GFPDB_OPERATION>;

// An action of a type with these values and the defaults of all others.
inline GFPDB_ACTION* make(int type, VALUES values = {})
{
    GFPDB_ACTION* action = gfpdb_make_action(static_cast<GFPDB_ACT_TYPE>(type));
    for (const auto& [property, value] : values)
        action->set_property_value(static_cast<GFPDB_ACT_PROPERTY>(property), value);
    return action;
}

inline GFPDB_ACTION* write_register(VALUES values = {})
{
    return make(GFPDB_ACT_WRITE_REGISTER, values);
}

inline GFPDB_ACTION* write_data(VALUES values = {})
{
    return make(GFPDB_ACT_WRITE_DATA, values);
}

inline GFPDB_ACTION* read_data(VALUES values = {})
{
    return make(GFPDB_ACT_READ_DATA, values);
}

inline GFPDB_ACTION* erase(VALUES values = {})
{
    return make(GFPDB_ACT_ERASE, values);
}

inline GFPDB_ACTION* custom(VALUES values = {})
{
    return make(GFPDB_ACT_CUSTOM, values);
}

inline GFPDB_ACTION* start(const QByteArray& unit)
{
    return make(GFPDB_ACT_CUSTOM, {{GFPDB_CUSTOM_LOOP_UNIT, unit.constData()}, {GFPDB_CUSTOM_LOOP_MARKER, "start"}});
}

inline GFPDB_ACTION* end(const QByteArray& unit)
{
    return make(GFPDB_ACT_CUSTOM, {{GFPDB_CUSTOM_LOOP_UNIT, unit.constData()}, {GFPDB_CUSTOM_LOOP_MARKER, "end"}});
}

// Takes the actions.
inline OPERATION operation_of(int kind, std::initializer_list<GFPDB_ACTION*> actions)
{
    OPERATION operation(gfpdb_make_operation(kind));
    for (GFPDB_ACTION* action : actions)
        operation->add_action(action);
    return operation;
}
