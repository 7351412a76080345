// SPDX-License-Identifier: MIT

// Looks for what a flow does that no chip needs or that will not work, although every value is allowed.
//
// docs/flows.md has a section for each rule. What is found is a warning: such a flow can be stored and executed. The
// rules know commands that serial flash of all makers has in common, and say nothing about others. GUI thread only.
#pragma once

#include "gfpdb/gfpdb_export.h"
#include "gfpdb/gfpdb_operation.h"
#include "gfpdb/gfpdb_record.h"

#include <cstdint>
#include <string>
#include <vector>

// A rule. Its number is fixed: it never means another rule. English, UTF-8.
struct GFPDB_LINT_RULE
{
    const char* number; // "L01"
    const char* name;
    // What it finds and why that is wrong, a sentence each.
    const char* finds;
    const char* reason;
};

// What is known of the device of a flow. A rule that needs what is not known finds nothing.
struct GFPDB_LINT_DEVICE
{
    // The size; 0 when it is not known, as in templates.
    std::int64_t bytes = 0;
    // The number of dies; 0 when it is not known.
    int dies = 0;
    // Empty when it is not known.
    std::vector<std::uint8_t> id;
    // That of the listed parts with the ID; 0 when there are none, or none is known, or they differ.
    int page_size = 0;
    // False when listed parts with the ID, or else listed parts of its maker, have no quad-enable bit.
    bool has_quad_enable = true;
    // True when the listed parts with the ID have the bit in the second status register, which a write of the first one
    // that leaves it out clears.
    bool clears_second_status = false;
};

struct GFPDB_LINT_FINDING
{
    // True for the quad-I/O flow.
    bool flow_variant = false;
    // The kind of the operation, and the place of the action in it, from 0; the number of actions when something is
    // missing.
    int operation = 0;
    int action = 0;
    // The number of the rule.
    std::string rule;
    // A sentence for the user.
    std::string text;
};

// The rules in the order of their numbers.
GFPDB_EXPORT const std::vector<GFPDB_LINT_RULE>& gfpdb_lint_rules();

// What the rules find in one flow variant, in the order of operations and actions. Values that cannot be read are
// passed over: they are problems of gfpdb_check_flow().
GFPDB_EXPORT std::vector<GFPDB_LINT_FINDING> gfpdb_lint_flow(const std::vector<GFPDB_OPERATION*>& operations,
                                                             bool flow_variant, const GFPDB_LINT_DEVICE& device);

// What is known of the device of a record: nothing for a stored template, which serves others than the one that it was
// made from.
GFPDB_EXPORT GFPDB_LINT_DEVICE gfpdb_lint_device(const GFPDB_RECORD& record);
// What the rules find in both flow variants of a record; nothing in flows that cannot be read.
GFPDB_EXPORT std::vector<GFPDB_LINT_FINDING> gfpdb_lint_record(const GFPDB_RECORD& record);
