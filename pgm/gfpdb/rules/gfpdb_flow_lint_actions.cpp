// SPDX-License-Identifier: MIT

// The lint rules that look at one action, or at one loop.
#include "rules/gfpdb_flow_lint_parts.h"

#include "base/gfpdb_words.h"

#include "gfpdb/gfpdb_action_value.h"
#include "gfpdb/gfpdb_text.h"

#include <algorithm>

namespace gfpdb_lint {

namespace {

constexpr const char* FOUR_LINES = "L05";
constexpr const char* SHORT_ADDRESS = "L06";
constexpr const char* PAGE_SIZE = "L09";
constexpr const char* MASK = "L10";
constexpr const char* LOOP = "L11";
constexpr const char* WRONG_OPERATION = "L14";
constexpr const char* FORM = "L15";
constexpr const char* ID_CHECK = "L16";

constexpr std::int64_t THREE_BYTE_END = 1 << 24;
constexpr int WHOLE_MASK = 0xFF;

bool changes_data(const GFPDB_ACTION& action)
{
    return action.m_action_type == GFPDB_ACT_WRITE_DATA || action.m_action_type == GFPDB_ACT_ERASE;
}

// Also what stays in the chip without its data being changed.
bool changes_chip(const GFPDB_ACTION& action)
{
    if (action.m_action_type != GFPDB_ACT_WRITE_REGISTER)
        return changes_data(action);
    const int opcode = opcode_of(action);
    const bool sends_data = action.get_property_value(GFPDB_WR_DATA) != GFPDB_VALUE_NONE;
    return opcode == ENTER_FOUR_BYTE || opcode == UNLOCK_BLOCKS || (sends_data && opcode != SELECT_DIE);
}

// True when a bit of `expected` is cleared by the mask at its place.
bool never_matches(const std::vector<int>& expected, const std::vector<int>& mask)
{
    for (std::size_t at = 0; at < std::min(expected.size(), mask.size()); ++at) {
        if ((expected[at] & ~mask[at]) != 0)
            return true;
    }
    return false;
}

class ACTION_RULES
{
public:
    ACTION_RULES(const FLOW& flow, bool flow_variant, const GFPDB_LINT_DEVICE& device, REPORT& report)
        : m_flow(flow), m_flow_variant(flow_variant), m_device(device), m_report(report)
    {}

    void apply()
    {
        for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
            const ACTIONS& actions = m_flow[static_cast<std::size_t>(kind)];
            m_ends = ends_of_loops(actions);
            for (std::size_t at = 0; at < actions.size(); ++at)
                check({actions[at], kind, static_cast<int>(at)});
        }
        check_id();
    }

private:
    void check(const STEP& step)
    {
        switch (step.action->m_action_type) {
        case GFPDB_ACT_READ_REGISTER:
            check_register_mask(step);
            break;
        case GFPDB_ACT_WRITE_DATA:
            check_page_size(step);
            break;
        case GFPDB_ACT_READ_DATA:
            check_data_mask(step);
            break;
        case GFPDB_ACT_CUSTOM:
            check_loop(step);
            return;
        default:
            break;
        }
        if (!m_flow_variant && uses_four_lines(*step.action))
            m_report.add(FOUR_LINES, step,
                         GFPDB_WORDS::say("The command is on four lines, but the single-I/O flow has one."));
        if (is_data_action(*step.action)) {
            check_operation(step);
            check_reach(step);
            check_form(step);
        }
    }

    void check_register_mask(const STEP& step)
    {
        const GFPDB_ACTION& action = *step.action;
        const std::string text = action.get_property_value(GFPDB_RR_EXPECTED_DATA);
        if (text == GFPDB_VALUE_NONE)
            return;
        const bool is_id = text == GFPDB_VALUE_ID;
        const std::vector<int> expected =
            is_id ? std::vector<int>(m_device.id.begin(), m_device.id.end()) : bytes_of(action, GFPDB_RR_EXPECTED_DATA);
        check_mask(step, expected, bytes_of(action, GFPDB_RR_EXPECTED_DATA_MASK));
    }

    void check_data_mask(const STEP& step)
    {
        const GFPDB_ACTION& action = *step.action;
        const std::string text = action.get_property_value(GFPDB_RD_EXPECTED_DATA);
        const std::vector<int> mask = bytes_of(action, GFPDB_RD_EXPECTED_DATA_MASK);
        const bool is_image = text == GFPDB_VALUE_IMAGE;
        if (is_image && !mask.empty() && mask.front() != WHOLE_MASK)
            m_report.add(MASK, step,
                         GFPDB_WORDS::say("The image is compared with a mask: its bytes with bits that the mask clears "
                                          "never match."));
        else if (!is_image && text != GFPDB_VALUE_NONE)
            check_mask(step, bytes_of(action, GFPDB_RD_EXPECTED_DATA), mask);
    }

    void check_mask(const STEP& step, const std::vector<int>& expected, const std::vector<int>& mask)
    {
        const bool is_zero = std::all_of(mask.begin(), mask.end(), [](int byte) { return byte == 0; });
        if (never_matches(expected, mask))
            m_report.add(MASK, step,
                         GFPDB_WORDS::say("The expected data have bits that the mask clears: they never match."));
        else if (is_zero && !mask.empty())
            m_report.add(MASK, step, GFPDB_WORDS::say("The mask has no bit: whatever is read matches."));
    }

    void check_page_size(const STEP& step)
    {
        const GFPDB_ACTION& action = *step.action;
        const std::int64_t size = number_of(action, GFPDB_WD_PAGE_SIZE, 0);
        const std::int64_t page = m_device.page_size;
        if (page == 0 || size == 0 || size == page || action.get_property_value(GFPDB_WD_DATA) != GFPDB_VALUE_IMAGE)
            return;
        const std::initializer_list<std::string> sizes = {std::to_string(size), std::to_string(page)};
        m_report.add(PAGE_SIZE, step,
                     size > page ? GFPDB_WORDS::say("The page size is %1, but the part has pages of %2 bytes: what is "
                                                    "beyond the end of a page overwrites its start.",
                                                    sizes)
                                 : GFPDB_WORDS::say("The page size is %1, but the part has pages of %2 bytes: "
                                                    "programming takes longer than necessary.",
                                                    sizes));
    }

    void check_operation(const STEP& step)
    {
        const bool may_change = step.operation == GFPDB_OPERATION_PROGRAM || step.operation == GFPDB_OPERATION_ERASE;
        if (!may_change && changes_data(*step.action))
            m_report.add(WRONG_OPERATION, step,
                         GFPDB_WORDS::say("Data are changed in an operation that is also executed when the user asked "
                                          "for neither Program nor Erase."));
    }

    // One beyond the highest address that the action sends or reads; 0 when it is not known.
    std::int64_t end_of(const GFPDB_ACTION& action) const
    {
        const std::string address = action.get_property_value(address_property(action));
        const std::int64_t die_bytes = m_device.bytes / std::max(m_device.dies, 1);
        if (address == GFPDB_VALUE_LOOP || address == GFPDB_VALUE_DIE)
            return address == GFPDB_VALUE_LOOP ? m_device.bytes : die_bytes;
        const std::optional<std::uint32_t> fixed = gfpdb_parse_address(address);
        if (!fixed || action.m_action_type != GFPDB_ACT_READ_DATA)
            return 0;
        const std::string length = action.get_property_value(GFPDB_RD_DATA_LENGTH);
        const std::int64_t bytes = length == GFPDB_VALUE_DEVICE ? m_device.bytes
                                   : length == GFPDB_VALUE_DIE  ? die_bytes
                                                                : gfpdb_parse_decimal(length).value_or(0);
        return *fixed + bytes;
    }

    void check_reach(const STEP& step)
    {
        const GFPDB_ACTION& action = *step.action;
        const std::int64_t end = end_of(action);
        if (number_of(action, addressing_property(action), 0) == 3 && end > THREE_BYTE_END)
            m_report.add(SHORT_ADDRESS, step,
                         GFPDB_WORDS::say("Three address bytes reach %1 bytes, but the action works on %2.",
                                          {std::to_string(THREE_BYTE_END), std::to_string(end)}));
    }

    void check_form(const STEP& step)
    {
        const GFPDB_ACTION& action = *step.action;
        const std::vector<COMMAND> rows = commands_of(opcode_of(action));
        std::vector<std::string> widths;
        for (const COMMAND& row : rows) {
            if (row.type == action.m_action_type)
                widths.emplace_back(row.bus_width);
        }
        const std::string width = bus_width_of(action);
        if (rows.empty() || is_of_other_mode(width))
            return;
        if (widths.empty())
            m_report.add(FORM, step, other_type(rows.front()));
        else if (std::find(widths.begin(), widths.end(), width) == widths.end())
            m_report.add(FORM, step,
                         GFPDB_WORDS::say("The command does not have the bus width %1. Allowed: %2.",
                                          {width, gfpdb_joined(widths)}));
        else if (action.m_action_type == GFPDB_ACT_READ_DATA)
            check_dummies(step);
    }

    static std::string other_type(const COMMAND& command)
    {
        switch (command.type) {
        case GFPDB_ACT_WRITE_DATA:
            return GFPDB_WORDS::say("This is a command that programs.");
        case GFPDB_ACT_READ_DATA:
            return GFPDB_WORDS::say("This is a command that reads data.");
        default:
            return GFPDB_WORDS::say("This is a command that erases.");
        }
    }

    void check_dummies(const STEP& step)
    {
        constexpr int MODE_CLOCKS = 2;
        const int opcode = opcode_of(*step.action);
        const std::int64_t clocks = number_of(*step.action, GFPDB_RD_DUMMY_CLOCK, MODE_CLOCKS);
        if ((opcode == 0x03 || opcode == 0x13) && clocks != 0)
            m_report.add(FORM, step, GFPDB_WORDS::say("The command has no dummy clocks."));
        else if ((opcode == 0xEB || opcode == 0xEC) && clocks < MODE_CLOCKS)
            m_report.add(FORM, step, GFPDB_WORDS::say("The command has two dummy clocks at least, its mode clocks."));
    }

    // True when something in the loop depends on where it is.
    static bool depends_on_step(const GFPDB_ACTION& action, const std::string& unit)
    {
        if (opens_loop(action))
            return true; // it walks over the current die
        if (action.m_action_type == GFPDB_ACT_WRITE_REGISTER)
            return unit == GFPDB_LOOP_DIE && action.get_property_value(GFPDB_WR_DATA) == GFPDB_VALUE_DIE;
        if (!is_data_action(action))
            return false;
        const GFPDB_ACT_PROPERTY property = address_property(action);
        const std::string address = action.get_property_value(property);
        return action.is_property_enabled(property) && (address == GFPDB_VALUE_LOOP || address == GFPDB_VALUE_DIE);
    }

    void check_loop(const STEP& step)
    {
        if (!opens_loop(*step.action))
            return;
        const ACTIONS& actions = m_flow[static_cast<std::size_t>(step.operation)];
        const auto body = actions.begin() + step.place + 1;
        const auto end = actions.begin() + static_cast<std::ptrdiff_t>(m_ends[static_cast<std::size_t>(step.place)]);
        const std::string unit = step.action->get_property_value(GFPDB_CUSTOM_LOOP_UNIT);
        if (std::none_of(body, end, [&unit](const GFPDB_ACTION* action) { return depends_on_step(*action, unit); }))
            m_report.add(LOOP, step,
                         GFPDB_WORDS::say("Nothing in the loop depends on its step: every step does the "
                                          "same."));
        else if (unit == GFPDB_LOOP_DIE && m_device.dies == 1)
            m_report.add(LOOP, step, GFPDB_WORDS::say("The device has one die: the loop has one step."));
    }

    void check_id()
    {
        const ACTIONS& actions = m_flow[GFPDB_OPERATION_INITIALIZATION];
        const auto check = std::find_if(actions.begin(), actions.end(),
                                        [](const GFPDB_ACTION* action) { return is_id_check(*action); });
        const bool changes = std::any_of(m_flow.begin(), m_flow.end(), [](const ACTIONS& operation) {
            return std::any_of(operation.begin(), operation.end(),
                               [](const GFPDB_ACTION* action) { return changes_data(*action); });
        });
        const auto first =
            std::find_if(actions.begin(), check, [](const GFPDB_ACTION* action) { return changes_chip(*action); });
        if (changes && check == actions.end())
            m_report.add(ID_CHECK, GFPDB_OPERATION_INITIALIZATION, static_cast<int>(actions.size()),
                         GFPDB_WORDS::say("There is no ID check: the flow changes whatever chip is connected."));
        else if (check != actions.end() && first != check)
            m_report.add(ID_CHECK, GFPDB_OPERATION_INITIALIZATION, static_cast<int>(first - actions.begin()),
                         GFPDB_WORDS::say("The chip is changed before its ID is checked."));
    }

    const FLOW& m_flow;
    const bool m_flow_variant;
    const GFPDB_LINT_DEVICE& m_device;
    REPORT& m_report;
    // Of the loops of the operation that is looked at.
    std::vector<std::size_t> m_ends;
};

} // namespace

void apply_action_rules(const FLOW& flow, bool flow_variant, const GFPDB_LINT_DEVICE& device, REPORT& report)
{
    ACTION_RULES(flow, flow_variant, device, report).apply();
}

} // namespace gfpdb_lint
