// SPDX-License-Identifier: MIT

// From the actions of the flash database to typed steps.
#pragma once

#include "plan/gfpe_flow.h"

#include "gfpe/gfpe_plan.h"

#include "gfpdb/gfpdb_operation.h"

#include <cstddef>
#include <vector>

// Compiles one operation that gfpdb_check_flow() finds nothing wrong with, for a device whose dies have the same size.
// GUI thread only.
class GFPE_COMPILER
{
public:
    // All outlive the compiler; sizes are those of `flow`.
    GFPE_COMPILER(const GFPE_DEVICE& device, const GFPE_FLOW& flow, const GFPDB_OPERATION& operation);

    GFPE_OPERATION compile();

private:
    using ACTIONS = std::vector<GFPDB_ACTION*>;

    // The steps from m_at on, up to the end of the loop that they are in.
    GFPE_STEPS compile_steps();
    GFPE_LOOP compile_loop(const GFPDB_ACTION& action);
    void compile_pages(GFPE_LOOP& loop, std::size_t first);
    void compile_sectors(GFPE_LOOP& loop, std::size_t first);
    GFPE_STEP compile_action(const GFPDB_ACTION& action);
    GFPE_WRITE_REGISTER write_register(const GFPDB_ACTION& action);
    GFPE_READ_REGISTER read_register(const GFPDB_ACTION& action);
    GFPE_WRITE_DATA write_data(const GFPDB_ACTION& action);
    GFPE_READ_DATA read_data(const GFPDB_ACTION& action);
    GFPE_ERASE erase(const GFPDB_ACTION& action);
    // What the action at m_at has in common with those of all types; `name` is the first property of its type.
    void fill(GFPE_ACTION& step, const GFPDB_ACTION& action, int name, int command) const;
    std::int64_t size(const GFPDB_ACTION& action, int property) const;
    // A value keeps the operation from being executed; `number` is that of the action.
    void add_problem(int number, int property, const std::string& text);

    const GFPE_DEVICE& m_device;
    const GFPE_FLOW& m_flow;
    const int m_kind;
    const ACTIONS m_actions;
    std::size_t m_at = 0;
    // What a loop walks over here.
    std::int64_t m_walked_bytes;
    std::vector<GFPE_PROBLEM> m_problems;
    bool m_has_id_check = false;
};

// What is wrong with a value of an action, or with the action as a whole when `property` is -1. `action` is null when
// there is none at that place. GUI thread only.
GFPE_PROBLEM gfpe_action_problem(int operation, int number, const GFPDB_ACTION* action, int property,
                                 const std::string& text);
