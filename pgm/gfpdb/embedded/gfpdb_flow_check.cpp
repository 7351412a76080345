#include "gfpdb_flow_check.h"

#include "gfpdb_action_value.h"

#include "gfpdb/gfpdb_enums.h"

#include <algorithm>

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

// A loop that has been opened and not yet closed.
struct OPEN_LOOP
{
    std::string unit;
    int action;
    // An action that tells the loop's step stands in the loop itself, not in a loop within it.
    bool has_step;
};

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
            add(WHOLE_ACTION, "The loop that starts at action " + std::to_string(loop.action + 1) + " has no end.");
    }

    std::vector<GFPDB_FLOW_PROBLEM> m_problems;

private:
    void add(int property, const std::string& text) { m_problems.push_back({m_operation, m_action, property, text}); }

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
            add(GFPDB_CUSTOM_LOOP_UNIT, "A loop over each " + unit + " cannot stand in a loop over each " +
                                            m_loops.back().unit +
                                            ". Allowed: a loop over each page or sector in a "
                                            "loop over each die.");
        m_loops.push_back({unit, m_action, unit == GFPDB_LOOP_DIE});
    }

    void close_loop(const std::string& unit)
    {
        if (m_loops.empty()) {
            add(GFPDB_CUSTOM_LOOP_MARKER, "The end of a loop has no start before it.");
            return;
        }
        const OPEN_LOOP loop = m_loops.back();
        m_loops.pop_back();
        if (loop.unit != unit)
            add(GFPDB_CUSTOM_LOOP_UNIT,
                "The end of a loop over each " + unit + " closes a loop over each " + loop.unit + ".");
        if (!loop.has_step)
            add(WHOLE_ACTION, "The loop over each " + loop.unit + " has no " +
                                  (loop.unit == GFPDB_LOOP_PAGE ? "Write Data" : "Erase") +
                                  " action, which tells its step.");
    }

    // The page loop advances by a page of its Write Data, the sector loop by what its Erase erases.
    void check_step(const GFPDB_ACTION& action)
    {
        if (m_loops.empty())
            return;
        OPEN_LOOP& loop = m_loops.back();
        loop.has_step |= (loop.unit == GFPDB_LOOP_PAGE && action.m_action_type == GFPDB_ACT_WRITE_DATA) ||
                         (loop.unit == GFPDB_LOOP_SECTOR && action.m_action_type == GFPDB_ACT_ERASE);
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
                add(property, "The value \"loop\" stands outside of any loop.");
            if (value == GFPDB_VALUE_DIE && !in_die_loop)
                add(property, "The value \"die\" stands outside of a loop over each die.");
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
            add(property, "The action has " + mode + " address bytes, an earlier one has " + m_addressing_mode +
                              ". Allowed: the same number in all actions of a flow.");
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
