// SPDX-License-Identifier: MIT

// One operation of a flash device: an ordered list of actions.
#pragma once

#include "gfpdb/gfpdb_action.h"
#include "gfpdb/gfpdb_export.h"

#include <vector>

// Made by GFPDB_MGR::create_operation; GFPDB_FLASH::set_operation takes it over. Owns its actions. GUI thread only.
//
// The declaration order of the virtual operations is the slot order of the interface.
class GFPDB_EXPORT GFPDB_OPERATION
{
public:
    virtual ~GFPDB_OPERATION() = default;

    // The actions in execution order; may be null when there is no list. Valid as long as the operation.
    virtual const std::vector<GFPDB_ACTION*>* get_actions() const = 0;
    // The number of actions.
    virtual int get_action_count() const = 0;
    // Appends `action` and takes it over; null is ignored.
    virtual void add_action(GFPDB_ACTION* action) = 0;

    // The kind of the operation (GFPDB_OPERATION_KIND).
    int m_kind;

protected:
    explicit GFPDB_OPERATION(int kind) : m_kind(kind) {}
    GFPDB_OPERATION(const GFPDB_OPERATION&) = delete;
    GFPDB_OPERATION& operator=(const GFPDB_OPERATION&) = delete;
};
