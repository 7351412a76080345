// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_flow_lint.h"

#include "rules/gfpdb_flow_lint_parts.h"

#include "gfpdb/gfpdb_action_value.h"

#include <algorithm>

namespace gfpdb_lint {

namespace {

// How often the body of a loop is there. Deeper loops are wrong, and as if they were none.
constexpr int STEPS_OF_LOOP = 2;
constexpr int DEPTH_MAX = 2;
// The most erases of one loop that are told apart.
constexpr std::size_t ERASES_MAX = 64;

bool opens_sector_loop(const GFPDB_ACTION& action)
{
    return opens_loop(action) && action.get_property_value(GFPDB_CUSTOM_LOOP_UNIT) == GFPDB_LOOP_SECTOR;
}

bool is_erase(const GFPDB_ACTION* action)
{
    return action->m_action_type == GFPDB_ACT_ERASE;
}

std::size_t count_of_erases(const ACTIONS& actions, std::size_t first, std::size_t end)
{
    return static_cast<std::size_t>(std::count_if(actions.begin() + static_cast<std::ptrdiff_t>(first),
                                                  actions.begin() + static_cast<std::ptrdiff_t>(end), &is_erase));
}

// Writes out the steps of an operation, with the erase at `choice`, or else the last one, in each loop over sectors.
class UNROLLER
{
public:
    UNROLLER(const ACTIONS& actions, int operation, std::size_t choice, std::vector<STEP>& steps)
        : m_actions(actions), m_ends(ends_of_loops(actions)), m_operation(operation), m_choice(choice), m_steps(steps)
    {}

    void unroll() { unroll(0, m_actions.size(), 0, false); }

private:
    void unroll(std::size_t first, std::size_t end, int depth, bool in_sector_loop)
    {
        const std::size_t erases = in_sector_loop ? count_of_erases(m_actions, first, end) : 0;
        std::size_t erase = 0;
        for (std::size_t at = first; at < end; ++at) {
            const GFPDB_ACTION& action = *m_actions[at];
            if (opens_loop(action) && depth < DEPTH_MAX) {
                const std::size_t behind = std::min(end, m_ends[at]);
                for (int step = 0; step < STEPS_OF_LOOP; ++step)
                    unroll(at + 1, behind, depth + 1, opens_sector_loop(action));
                at = behind - 1;
            } else if (action.m_action_type != GFPDB_ACT_CUSTOM) {
                const bool is_left_out =
                    in_sector_loop && is_erase(&action) && erase++ != std::min(m_choice, erases - 1);
                if (!is_left_out)
                    m_steps.push_back({&action, m_operation, static_cast<int>(at)});
            }
        }
    }

    const ACTIONS& m_actions;
    const std::vector<std::size_t> m_ends;
    const int m_operation;
    const std::size_t m_choice;
    std::vector<STEP>& m_steps;
};

// How many sessions it takes until each erase of each loop has been executed.
std::size_t count_of_choices(const ACTIONS& actions)
{
    return std::clamp(count_of_erases(actions, 0, actions.size()), std::size_t(1), ERASES_MAX);
}

FLOW flow_of(const std::vector<GFPDB_OPERATION*>& operations)
{
    FLOW flow;
    for (const GFPDB_OPERATION* operation : operations) {
        const bool is_known = operation && operation->m_kind >= 0 && operation->m_kind < GFPDB_OPERATION_COUNT;
        const std::vector<GFPDB_ACTION*>* const actions = is_known ? operation->get_actions() : nullptr;
        if (actions)
            flow[static_cast<std::size_t>(operation->m_kind)].assign(actions->begin(), actions->end());
    }
    return flow;
}

} // namespace

std::vector<std::size_t> ends_of_loops(const ACTIONS& actions)
{
    std::vector<std::size_t> ends(actions.size(), actions.size());
    std::vector<std::size_t> open;
    for (std::size_t at = 0; at < actions.size(); ++at) {
        if (opens_loop(*actions[at])) {
            open.push_back(at);
        } else if (closes_loop(*actions[at]) && !open.empty()) {
            ends[open.back()] = at + 1;
            open.pop_back();
        }
    }
    return ends;
}

std::vector<std::vector<STEP>> sessions_of(const FLOW& flow)
{
    std::vector<std::vector<STEP>> sessions;
    for (const int kind : {GFPDB_OPERATION_PROGRAM, GFPDB_OPERATION_ERASE, GFPDB_OPERATION_VERIFY}) {
        const std::size_t choices = count_of_choices(flow[static_cast<std::size_t>(kind)]);
        for (std::size_t choice = 0; choice < choices; ++choice) {
            std::vector<STEP> steps;
            for (const int operation : {int(GFPDB_OPERATION_INITIALIZATION), kind, int(GFPDB_OPERATION_TERMINATION)})
                UNROLLER(flow[static_cast<std::size_t>(operation)], operation, choice, steps).unroll();
            sessions.push_back(std::move(steps));
        }
    }
    return sessions;
}

std::vector<GFPDB_LINT_FINDING> REPORT::findings(bool flow_variant) const
{
    std::vector<GFPDB_LINT_FINDING> findings;
    for (const auto& [place, text] : m_texts)
        findings.push_back({flow_variant, std::get<0>(place), std::get<1>(place), std::get<2>(place), text});
    return findings;
}

} // namespace gfpdb_lint

const std::vector<GFPDB_LINT_RULE>& gfpdb_lint_rules()
{
    static const std::vector<GFPDB_LINT_RULE> RULES = {
        {"L01", "no write enable", "A program, an erase or a write of a status register has no write enable before it.",
         "Every chip ignores such a command then, and says nothing."},
        {"L02", "no poll", "Nothing waits until a program, an erase or a write of a status register is done.",
         "A busy chip ignores every command but those that ask for its state."},
        {"L03", "delay instead of a poll", "A fixed time is waited for instead of asking whether the chip is ready.",
         "It is too short for an old or cold chip, and too long for all others."},
        {"L04", "no quad enable", "A command is on four lines, and no quad-enable bit was set or checked before.",
         "Without the bit, two of the lines are the inputs for write protection and hold."},
        {"L05", "four lines in the single-I/O flow", "A command of the single-I/O flow is on four lines.",
         "That flow goes with configuration modes that have one line for data."},
        {"L06", "address too short", "Three address bytes do not reach the end of what the action works on.",
         "They reach 16 MiB; the chip takes what is above for a place below."},
        {"L07", "wrong number of address bytes", "A command has more or fewer address bytes than the chip expects.",
         "The chip takes data for the address, or the address for data."},
        {"L08", "4-byte addressing is not left", "4-byte addressing is entered, and Termination does not leave it.",
         "A board that boots with three address bytes does not boot until the power was off."},
        {"L09", "page size of another part", "The page size is not that of the listed parts with the same ID.",
         "What is beyond the end of a page overwrites its start; a smaller page takes longer."},
        {"L10", "mask without sense", "Expected data can never match, or always match, because of their mask.",
         "The mask applies to what is read, and not to what is expected."},
        {"L11", "loop without effect", "Every step of a loop does the same, or there is only one step.",
         "A loop in which no address depends on the step is a mistake, or superfluous."},
        {"L12", "command after the end", "A command follows the reset of Termination, or a deep power-down.",
         "The reset has left the chip at rest; a chip in deep power-down hears only its wake-up."},
        {"L13", "unused write enable", "No command uses a write enable.",
         "It is superfluous, or leaves the chip open to the next stray command."},
        {"L14", "data changed in the wrong operation",
         "Initialization, Verify/Blank-Check/Examine or Termination programs or erases.",
         "They are also executed when the user asked for neither."},
        {"L15", "wrong form of a command", "A command is one of another type, or has other lines or dummy clocks.",
         "The chip takes it for what it is, whatever the action calls it."},
        {"L16", "no ID check", "The flow changes data, but does not check the ID before it changes anything.",
         "It would erase any chip that is connected."},
    };
    return RULES;
}

std::vector<GFPDB_LINT_FINDING> gfpdb_lint_flow(const std::vector<GFPDB_OPERATION*>& operations, bool flow_variant,
                                                const GFPDB_LINT_DEVICE& device)
{
    const gfpdb_lint::FLOW flow = gfpdb_lint::flow_of(operations);
    gfpdb_lint::REPORT report;
    gfpdb_lint::apply_action_rules(flow, flow_variant, device, report);
    gfpdb_lint::apply_state_rules(flow, flow_variant, device, report);
    return report.findings(flow_variant);
}
