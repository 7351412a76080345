// SPDX-License-Identifier: MIT

// What the two kinds of lint rules share: those that look at single actions, and those that follow the chip's state.
#pragma once

#include "rules/gfpdb_flow_lint_commands.h"

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_flow_lint.h"

#include <array>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace gfpdb_lint {

using ACTIONS = std::vector<const GFPDB_ACTION*>;
// The actions of each operation.
using FLOW = std::array<ACTIONS, GFPDB_OPERATION_COUNT>;

// An action in its operation.
struct STEP
{
    const GFPDB_ACTION* action;
    int operation;
    int place;
};

// For each action that opens a loop, the place behind the end of the loop, or else behind the last action.
std::vector<std::size_t> ends_of_loops(const ACTIONS& actions);

// The order in which the actions of a flow are executed: Initialization, one of the operations, Termination. The body
// of a loop is there twice, as its second step finds what the first one has left. Several sessions for a loop with
// several erases: each takes another one.
std::vector<std::vector<STEP>> sessions_of(const FLOW& flow);

// What was found, each once: a rule finds one thing in an action.
class REPORT
{
public:
    void add(const char* rule, int operation, int place, const std::string& text)
    {
        m_texts.emplace(std::make_tuple(operation, place, std::string(rule)), text);
    }
    void add(const char* rule, const STEP& step, const std::string& text)
    {
        add(rule, step.operation, step.place, text);
    }
    std::vector<GFPDB_LINT_FINDING> findings(bool flow_variant) const;

private:
    std::map<std::tuple<int, int, std::string>, std::string> m_texts;
};

void apply_action_rules(const FLOW& flow, bool flow_variant, const GFPDB_LINT_DEVICE& device, REPORT& report);
void apply_state_rules(const FLOW& flow, bool flow_variant, const GFPDB_LINT_DEVICE& device, REPORT& report);

} // namespace gfpdb_lint
