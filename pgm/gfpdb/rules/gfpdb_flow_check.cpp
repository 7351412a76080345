// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_flow_check.h"

#include "base/gfpdb_words.h"
#include "gfpdb/gfpdb_action_value.h"

#include "gfpdb/gfpdb_enums.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr int WHOLE_ACTION = -1;
constexpr const char* NO_ADDRESSING = "0";

// The property of a type that holds the addressing mode; WHOLE_ACTION for a type without one.
int addressing_property(int action_type)
{
    switch (action_type) {
    case GFPDB_ACT_WRITE_DATA:
        return GFPDB_WD_ADDRESSING_MODE;
    case GFPDB_ACT_READ_DATA:
        return GFPDB_RD_ADDRESSING_MODE;
    case GFPDB_ACT_ERASE:
        return GFPDB_ER_ADDRESSING_MODE;
    default:
        return WHOLE_ACTION;
    }
}

// An action that tells the step of its loop: a Write Data of pages, an Erase of sectors.
struct LOOP_STEP
{
    int action;
    std::int64_t size;
    bool has_fixed_address;
};

// A loop that has been opened and not yet closed.
struct OPEN_LOOP
{
    std::string unit;
    int action;
    // Those in the loop itself, not in a loop within it.
    std::vector<LOOP_STEP> steps;
};

// The number that a property holds; 0 for a word, and for an Erase that erases everything, whatever its size says.
std::int64_t step_size(const GFPDB_ACTION& action)
{
    const bool is_page = action.m_action_type == GFPDB_ACT_WRITE_DATA;
    if (!is_page && action.get_property_value(GFPDB_ER_ADDRESSING_MODE) == NO_ADDRESSING)
        return 0;
    return gfpdb_parse_decimal(action.get_property_value(is_page ? GFPDB_WD_PAGE_SIZE : GFPDB_ER_ERASE_SIZE))
        .value_or(0);
}

// Whether both sizes can serve one loop: one of them divides the other. Everything is divided by every size.
bool go_together(std::int64_t one, std::int64_t other)
{
    return one == 0 || other == 0 || std::max(one, other) % std::min(one, other) == 0;
}

// Walks over the actions of one operation after the other and notes what is wrong.
class FLOW_CHECKER
{
public:
    void check(const GFPDB_OPERATION& operation)
    {
        m_operation = operation.m_kind;
        m_loops.clear();
        const std::vector<GFPDB_ACTION*>* actions = operation.get_actions();
        const int count = actions ? static_cast<int>(actions->size()) : 0;
        for (m_action = 0; m_action < count; ++m_action)
            check(*(*actions)[static_cast<std::size_t>(m_action)]);
        m_action = count;
        for (const OPEN_LOOP& loop : m_loops)
            add(WHOLE_ACTION,
                GFPDB_WORDS::say("The loop that starts at action %1 has no end.", {std::to_string(loop.action + 1)}));
    }

    std::vector<GFPDB_FLOW_PROBLEM> m_problems;

private:
    void add(int property, const std::string& text) { add_at(m_action, property, text); }
    void add_at(int action, int property, const std::string& text)
    {
        m_problems.push_back({m_operation, action, property, text});
    }

    void check(const GFPDB_ACTION& action)
    {
        for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
            std::string error;
            if (!action.check_property_value(property, action.get_property_value(property), error))
                add(property, error);
        }
        if (action.m_action_type == GFPDB_ACT_CUSTOM)
            check_marker(action);
        else
            check_step(action);
        check_loop_values(action);
        check_addressing(action);
    }

    void check_marker(const GFPDB_ACTION& action)
    {
        const std::string unit = action.get_property_value(GFPDB_CUSTOM_LOOP_UNIT);
        const std::string marker = action.get_property_value(GFPDB_CUSTOM_LOOP_MARKER);
        if (marker == GFPDB_LOOP_START)
            open_loop(unit);
        else if (marker == GFPDB_LOOP_END)
            close_loop(unit);
    }

    void open_loop(const std::string& unit)
    {
        if (!m_loops.empty() && (m_loops.back().unit != GFPDB_LOOP_DIE || unit == GFPDB_LOOP_DIE))
            add(GFPDB_CUSTOM_LOOP_UNIT,
                GFPDB_WORDS::say("A loop over each %1 cannot be in a loop over each %2. Allowed: a loop over each page "
                                 "or sector in a loop over each die.",
                                 {unit, m_loops.back().unit}));
        m_loops.push_back({unit, m_action, {}});
    }

    void close_loop(const std::string& unit)
    {
        if (m_loops.empty()) {
            add(GFPDB_CUSTOM_LOOP_MARKER, GFPDB_WORDS::say("The end of a loop has no start before it."));
            return;
        }
        const OPEN_LOOP loop = m_loops.back();
        m_loops.pop_back();
        if (loop.unit != unit)
            add(GFPDB_CUSTOM_LOOP_UNIT,
                GFPDB_WORDS::say("The end of a loop over each %1 closes a loop over each %2.", {unit, loop.unit}));
        if (loop.unit != GFPDB_LOOP_DIE && loop.steps.empty())
            add(WHOLE_ACTION, GFPDB_WORDS::say("The loop over each %1 has no %2 action to determine its step size.",
                                               {loop.unit, loop.unit == GFPDB_LOOP_PAGE ? "Write Data" : "Erase"}));
        for (std::size_t at = 0; at < loop.steps.size() && loop.steps.size() > 1; ++at)
            check_steps_together(loop, at);
    }

    // The page loop advances by a page of its Write Data, the sector loop by what its Erase erases.
    void check_step(const GFPDB_ACTION& action)
    {
        if (m_loops.empty())
            return;
        OPEN_LOOP& loop = m_loops.back();
        const bool is_sector = loop.unit == GFPDB_LOOP_SECTOR && action.m_action_type == GFPDB_ACT_ERASE;
        const bool is_page = loop.unit == GFPDB_LOOP_PAGE && action.m_action_type == GFPDB_ACT_WRITE_DATA;
        if (is_sector || is_page)
            loop.steps.push_back({m_action, step_size(action), is_sector && has_fixed_address(action)});
    }

    static bool has_fixed_address(const GFPDB_ACTION& action)
    {
        return action.is_property_enabled(GFPDB_ER_ADDRESS) &&
               gfpdb_parse_address(action.get_property_value(GFPDB_ER_ADDRESS));
    }

    // Checks a step of a loop with several of them against those before it.
    void check_steps_together(const OPEN_LOOP& loop, std::size_t at)
    {
        const LOOP_STEP& step = loop.steps[at];
        if (step.has_fixed_address)
            add_at(step.action, GFPDB_ER_ADDRESS,
                   GFPDB_WORDS::say("One of several erases in a loop has a fixed address. Allowed: loop or die."));
        if (loop.unit == GFPDB_LOOP_PAGE)
            check_page_sizes(loop.steps.front(), step);
        else
            check_erase_sizes(loop, at);
    }

    void check_page_sizes(const LOOP_STEP& first, const LOOP_STEP& step)
    {
        if (first.size == step.size || first.size == 0 || step.size == 0)
            return;
        add_at(step.action, GFPDB_WD_PAGE_SIZE,
               GFPDB_WORDS::say("The loop has page sizes of %1 and of %2. Allowed: one page size in a loop.",
                                {std::to_string(first.size), std::to_string(step.size)}));
    }

    void check_erase_sizes(const OPEN_LOOP& loop, std::size_t at)
    {
        const LOOP_STEP& step = loop.steps[at];
        const auto before = loop.steps.begin() + static_cast<std::ptrdiff_t>(at);
        const auto unfit = std::find_if(loop.steps.begin(), before, [&step](const LOOP_STEP& other) {
            return !go_together(step.size, other.size);
        });
        if (unfit == before)
            return;
        add_at(
            step.action, GFPDB_ER_ERASE_SIZE,
            GFPDB_WORDS::say(
                "The erase sizes %1 and %2 do not go together in one loop. Allowed: sizes of which each "
                "divides every larger one.",
                {std::to_string(std::max(step.size, unfit->size)), std::to_string(std::min(step.size, unfit->size))}));
    }

    void check_loop_values(const GFPDB_ACTION& action)
    {
        const bool in_die_loop = std::any_of(m_loops.begin(), m_loops.end(),
                                             [](const OPEN_LOOP& loop) { return loop.unit == GFPDB_LOOP_DIE; });
        for (const int property : {GFPDB_WR_DATA, GFPDB_WD_ADDRESS, GFPDB_RD_ADDRESS, GFPDB_RD_DATA_LENGTH,
                                   GFPDB_ER_ADDRESS, GFPDB_ER_ERASE_SIZE}) {
            const auto id = static_cast<GFPDB_ACT_PROPERTY>(property);
            const std::string value = action.is_property_enabled(id) ? action.get_property_value(id) : std::string();
            if (value == GFPDB_VALUE_LOOP && m_loops.empty())
                add(property, GFPDB_WORDS::say("The value \"loop\" is outside any loop."));
            if (value == GFPDB_VALUE_DIE && !in_die_loop)
                add(property, GFPDB_WORDS::say("The value \"die\" is outside a loop over each die."));
        }
    }

    void check_addressing(const GFPDB_ACTION& action)
    {
        const int property = addressing_property(action.m_action_type);
        if (property == WHOLE_ACTION)
            return;
        const std::string mode = action.get_property_value(static_cast<GFPDB_ACT_PROPERTY>(property));
        if (mode == NO_ADDRESSING)
            return;
        if (m_addressing_mode.empty())
            m_addressing_mode = mode;
        if (mode != m_addressing_mode)
            add(property, GFPDB_WORDS::say("The action has %1 address bytes, an earlier one has %2. Allowed: the same "
                                           "number in all actions of a flow.",
                                           {mode, m_addressing_mode}));
    }

    int m_operation = 0;
    int m_action = 0;
    std::vector<OPEN_LOOP> m_loops;
    std::string m_addressing_mode;
};

} // namespace

std::vector<GFPDB_FLOW_PROBLEM> gfpdb_check_flow(const std::vector<GFPDB_OPERATION*>& operations)
{
    FLOW_CHECKER checker;
    for (const GFPDB_OPERATION* operation : operations) {
        if (operation)
            checker.check(*operation);
    }
    return checker.m_problems;
}
