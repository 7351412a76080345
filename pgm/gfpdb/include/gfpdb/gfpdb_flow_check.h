// SPDX-License-Identifier: MIT

// Checks a whole flow: the values of its actions, and how the actions go together.
#pragma once

#include "gfpdb/gfpdb_export.h"
#include "gfpdb/gfpdb_operation.h"

#include <string>
#include <vector>

// Where a flow is wrong, and what is wrong there.
struct GFPDB_FLOW_PROBLEM
{
    // The kind of the operation.
    int operation = 0;
    // The place of the action in its operation, from 0; the number of actions when something is missing at the end.
    int action = 0;
    // The property with the wrong value; -1 when the action as a whole is wrong.
    int property = -1;
    // A sentence for the user, UTF-8.
    std::string text;
};

// What is wrong with a flow: values that their own action refuses; loops that do not pair up, are nested in the wrong
// order or have nothing that tells their step; steps of one loop that do not go together; values that need a loop
// outside of one; different numbers of address bytes. Empty for a flow that can be executed. Pure.
GFPDB_EXPORT std::vector<GFPDB_FLOW_PROBLEM> gfpdb_check_flow(const std::vector<GFPDB_OPERATION*>& operations);
