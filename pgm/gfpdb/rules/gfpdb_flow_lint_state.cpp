// SPDX-License-Identifier: MIT

// The lint rules that follow the state of the chip from action to action.
#include "rules/gfpdb_flow_lint_parts.h"

#include "base/gfpdb_words.h"

#include "gfpdb/gfpdb_action_value.h"

#include <algorithm>

namespace gfpdb_lint {

namespace {

constexpr const char* NO_WRITE_ENABLE = "L01";
constexpr const char* NO_POLL = "L02";
constexpr const char* DELAY = "L03";
constexpr const char* NO_QUAD_ENABLE = "L04";
constexpr const char* ADDRESS_BYTES = "L07";
constexpr const char* FOUR_BYTE_LEFT = "L08";
constexpr const char* BEHIND_END = "L12";
constexpr const char* UNUSED_ENABLE = "L13";

constexpr std::int64_t UNKNOWN_NUMBER = -1;

constexpr int SR1_BUSY = 0x01;
constexpr int SR1_WRITE_ENABLED = 0x02;
constexpr int SR1_QUAD_ENABLE = 0x40;
constexpr int SR2_QUAD_ENABLE = 0x02;
constexpr int SR2_QUAD_ENABLE_BIT7 = 0x80;
constexpr int BANK_FOUR_BYTE = 0x80;

bool is_write_of(const GFPDB_ACTION& action, int opcode)
{
    return action.m_action_type == GFPDB_ACT_WRITE_REGISTER && opcode_of(action) == opcode;
}

bool writes_status(const GFPDB_ACTION& action)
{
    const bool has_data = action.get_property_value(GFPDB_WR_DATA) != GFPDB_VALUE_NONE;
    return has_data && (is_write_of(action, WRITE_STATUS) || is_write_of(action, WRITE_STATUS_2) ||
                        is_write_of(action, WRITE_STATUS_3) || is_write_of(action, WRITE_STATUS_2_BIT7));
}

// Whether the byte at `at` has the bit.
bool has_bit(const std::vector<int>& bytes, std::size_t at, int bit)
{
    return at < bytes.size() && (bytes[at] & bit) != 0;
}

// A status write that sets the quad-enable bit, in one of the places where chips have it.
bool sets_quad_enable(const GFPDB_ACTION& action)
{
    const std::vector<int> data = bytes_of(action, GFPDB_WR_DATA);
    switch (opcode_of(action)) {
    case WRITE_STATUS:
        return has_bit(data, 0, SR1_QUAD_ENABLE) || has_bit(data, 1, SR2_QUAD_ENABLE);
    case WRITE_STATUS_2:
        return has_bit(data, 0, SR2_QUAD_ENABLE);
    case WRITE_STATUS_2_BIT7:
        return has_bit(data, 0, SR2_QUAD_ENABLE_BIT7);
    default:
        return false;
    }
}

// A status write that leaves the quad-enable bit out, where that is in the second register and goes along.
bool clears_quad_enable(const GFPDB_ACTION& action)
{
    const std::vector<int> data = bytes_of(action, GFPDB_WR_DATA);
    const int opcode = opcode_of(action);
    return (opcode == WRITE_STATUS && !has_bit(data, 1, SR2_QUAD_ENABLE)) ||
           (opcode == WRITE_STATUS_2 && !has_bit(data, 0, SR2_QUAD_ENABLE));
}

// A register, and a bit of it that says something when it is expected to be set.
struct STATE_BIT
{
    int opcode;
    int bit;
};
constexpr STATE_BIT QUAD_ENABLE_BITS[] = {
    {READ_STATUS, SR1_QUAD_ENABLE}, {READ_STATUS_2, SR2_QUAD_ENABLE}, {READ_STATUS_2_BIT7, SR2_QUAD_ENABLE_BIT7}};
constexpr STATE_BIT FOUR_BYTE_BITS[] = {
    {READ_REGISTER_3, 0x20}, {READ_REGISTER_3, 0x01}, {READ_BANK, BANK_FOUR_BYTE}, {READ_FLAG_STATUS, 0x01}};

template <std::size_t COUNT>
bool expects(const GFPDB_ACTION& action, const STATE_BIT (&bits)[COUNT])
{
    const int opcode = opcode_of(action);
    const std::vector<int> expected = bytes_of(action, GFPDB_RR_EXPECTED_DATA);
    return std::any_of(std::begin(bits), std::end(bits), [&](const STATE_BIT& state) {
        return state.opcode == opcode && has_bit(expected, 0, state.bit);
    });
}

// The write enable ends with the command: a chip that is ready has neither bit. False when the read looks at neither,
// or waits for one of them.
bool looks_for_ready(const GFPDB_ACTION& action)
{
    constexpr int BITS = SR1_BUSY | SR1_WRITE_ENABLED;
    const std::vector<int> mask = bytes_of(action, GFPDB_RR_EXPECTED_DATA_MASK);
    const bool looks = mask.empty() || has_bit(mask, 0, BITS);
    return opcode_of(action) != READ_STATUS || (looks && !has_bit(bytes_of(action, GFPDB_RR_EXPECTED_DATA), 0, BITS));
}

// Reads again and again until the chip is ready. The ID is not there while it is busy, and says nothing about that.
bool is_poll(const GFPDB_ACTION& action)
{
    return looks_for_ready(action) && action.get_property_value(GFPDB_RR_EXPECTED_DATA) != GFPDB_VALUE_NONE &&
           !is_id_check(action) && number_of(action, GFPDB_RR_ATTEMPT_COUNT, 1) > 1;
}

// The command may be sent to a busy chip, and does no harm. (A reset is heard, and breaks off what the chip does.)
bool may_come_while_busy(const GFPDB_ACTION& action)
{
    return action.m_action_type == GFPDB_ACT_READ_REGISTER || is_write_of(action, SELECT_DIE);
}

std::int64_t delay_of(const GFPDB_ACTION& action)
{
    return number_of(action,
                     action.m_action_type == GFPDB_ACT_WRITE_REGISTER ? GFPDB_WR_DELAY
                     : action.m_action_type == GFPDB_ACT_WRITE_DATA   ? GFPDB_WD_DELAY
                                                                      : GFPDB_ER_DELAY,
                     0);
}

// MAYBE: a command came that ends the write enable of some chips, or goes to another die.
enum class ENABLED
{
    NO,
    MAYBE,
    YES,
};

// What is known of the chip.
struct CHIP
{
    ENABLED write_enabled = ENABLED::NO;
    bool volatile_enabled = false;
    bool four_byte = false;
    bool quad_enabled = false;
    bool quad_cleared = false;
    bool asleep = false;
    bool has_ended = false;
    // The action that has enabled writing, that has made the chip busy, that has entered 4-byte addressing.
    std::optional<STEP> enable;
    std::optional<STEP> busy;
    std::optional<STEP> entry;
};

class STATE_RULES
{
public:
    STATE_RULES(const FLOW& flow, bool flow_variant, const GFPDB_LINT_DEVICE& device, REPORT& report)
        : m_flow_variant(flow_variant), m_device(device), m_report(report)
    {
        for (const ACTIONS& actions : flow) {
            m_has_flag_status =
                m_has_flag_status || std::any_of(actions.begin(), actions.end(), [](const GFPDB_ACTION* action) {
                    return action->m_action_type == GFPDB_ACT_READ_REGISTER && opcode_of(*action) == READ_FLAG_STATUS;
                });
        }
    }

    void play(const std::vector<STEP>& session)
    {
        m_chip = CHIP();
        int operation = GFPDB_OPERATION_INITIALIZATION;
        for (const STEP& step : session) {
            if (step.operation != operation)
                stop_waiting();
            operation = step.operation;
            play(step);
        }
        stop_waiting();
        if (m_chip.four_byte && m_chip.entry)
            m_report.add(FOUR_BYTE_LEFT, *m_chip.entry,
                         GFPDB_WORDS::say("4-byte addressing is entered here, and Termination does not leave it."));
    }

    void report_unused_enables()
    {
        for (const auto& [place, enable] : m_enables) {
            if (!enable.is_used)
                m_report.add(UNUSED_ENABLE, enable.step, GFPDB_WORDS::say("No command uses this write enable."));
        }
    }

private:
    void play(const STEP& step)
    {
        const GFPDB_ACTION& action = *step.action;
        check_end(step);
        check_lines(step);
        if (!may_come_while_busy(action))
            stop_waiting();
        switch (action.m_action_type) {
        case GFPDB_ACT_WRITE_REGISTER:
            write_register(step);
            break;
        case GFPDB_ACT_READ_REGISTER:
            read_register(action);
            break;
        case GFPDB_ACT_READ_DATA:
            check_address_bytes(step);
            break;
        default:
            check_address_bytes(step);
            change_data(step);
            break;
        }
    }

    // A power-down that is followed by a status write is the way to a bank register on some chips.
    void check_end(const STEP& step)
    {
        const GFPDB_ACTION& action = *step.action;
        const int opcode = opcode_of(action);
        const bool is_reset = is_write_of(action, RESET_ENABLE) || is_write_of(action, RESET) ||
                              is_write_of(action, OLD_RESET) || is_write_of(action, POWER_DOWN);
        if (m_chip.asleep && opcode != WAKE_UP && !is_write_of(action, WRITE_STATUS))
            m_report.add(BEHIND_END, step, GFPDB_WORDS::say("The chip is in deep power-down and ignores the command."));
        else if (m_chip.has_ended && !is_reset && action.m_action_type != GFPDB_ACT_READ_REGISTER)
            m_report.add(BEHIND_END, step,
                         GFPDB_WORDS::say("The command follows the reset that brings the chip to its end."));
        else if (!m_chip.asleep)
            return;
        m_chip.asleep = false;
    }

    void check_lines(const STEP& step)
    {
        // Chips with a flag status register have no such bit.
        const bool may_use = m_chip.quad_enabled || !m_device.has_quad_enable || m_has_flag_status;
        if (m_flow_variant && uses_four_lines(*step.action) && !may_use)
            m_report.add(
                NO_QUAD_ENABLE, step,
                m_chip.quad_cleared
                    ? GFPDB_WORDS::say("The command is on four lines, and a write of the status registers "
                                       "before it clears the quad-enable bit.")
                    : GFPDB_WORDS::say("The command is on four lines, and nothing before it sets or checks the "
                                       "quad-enable bit."));
    }

    // The chip has to be ready now.
    void stop_waiting()
    {
        if (!m_chip.busy)
            return;
        const std::int64_t delay = delay_of(*m_chip.busy->action);
        if (delay > 0)
            m_report.add(DELAY, *m_chip.busy,
                         GFPDB_WORDS::say("%1 us are waited for instead of asking whether the chip is ready.",
                                          {std::to_string(delay)}));
        else
            m_report.add(NO_POLL, *m_chip.busy,
                         GFPDB_WORDS::say("Nothing waits until the chip is ready: it ignores the commands that "
                                          "follow."));
        m_chip.busy.reset();
    }

    void write_register(const STEP& step)
    {
        switch (opcode_of(*step.action)) {
        case WRITE_ENABLE:
            m_chip.write_enabled = ENABLED::YES;
            m_chip.enable = step;
            m_enables.emplace(std::make_pair(step.operation, step.place), ENABLE{step, false});
            break;
        case WRITE_DISABLE:
            m_chip.write_enabled = ENABLED::NO;
            break;
        case VOLATILE_WRITE_ENABLE:
            m_chip.volatile_enabled = !m_has_flag_status;
            break;
        case SELECT_DIE:
            doubt_enable();
            break;
        case RESET:
        case OLD_RESET:
            reset(step.operation);
            break;
        case RESET_ENABLE:
        case WAKE_UP:
            break;
        case POWER_DOWN:
            m_chip.asleep = true;
            break;
        default:
            set_register(step);
            break;
        }
    }

    void reset(int operation)
    {
        const bool quad_enabled = m_chip.quad_enabled;
        const bool quad_cleared = m_chip.quad_cleared;
        m_chip = CHIP();
        m_chip.quad_enabled = quad_enabled;
        m_chip.quad_cleared = quad_cleared;
        m_chip.has_ended = operation == GFPDB_OPERATION_TERMINATION;
    }

    void set_register(const STEP& step)
    {
        const GFPDB_ACTION& action = *step.action;
        if (writes_status(action)) {
            write_status(step);
            return;
        }
        use_enable();
        doubt_enable();
        const int opcode = opcode_of(action);
        const bool selects_bank = opcode == WRITE_BANK;
        if (opcode == ENTER_FOUR_BYTE ||
            (selects_bank && has_bit(bytes_of(action, GFPDB_WR_DATA), 0, BANK_FOUR_BYTE))) {
            m_chip.four_byte = true;
            m_chip.entry = m_chip.entry.value_or(step);
        } else if (opcode == LEAVE_FOUR_BYTE || opcode == LEAVE_FOUR_BYTE_2 || selects_bank) {
            m_chip.four_byte = false;
            m_chip.entry.reset();
        }
    }

    // One for the volatile register is done at once.
    void write_status(const STEP& step)
    {
        use_enable();
        if (m_chip.write_enabled == ENABLED::NO && !m_chip.volatile_enabled)
            report_no_enable(step);
        if (!m_chip.volatile_enabled || m_chip.write_enabled == ENABLED::YES)
            m_chip.busy = step;
        m_chip.write_enabled = ENABLED::NO;
        m_chip.volatile_enabled = false;
        m_chip.quad_cleared = m_device.clears_second_status && clears_quad_enable(*step.action);
        m_chip.quad_enabled = !m_chip.quad_cleared && (m_chip.quad_enabled || sets_quad_enable(*step.action));
    }

    void read_register(const GFPDB_ACTION& action)
    {
        if (is_poll(action))
            m_chip.busy.reset();
        m_chip.quad_enabled = m_chip.quad_enabled || expects(action, QUAD_ENABLE_BITS);
        m_chip.four_byte = m_chip.four_byte || expects(action, FOUR_BYTE_BITS);
    }

    void change_data(const STEP& step)
    {
        use_enable();
        if (!command_of(*step.action)) {
            doubt_enable();
            return;
        }
        if (m_chip.write_enabled == ENABLED::NO)
            report_no_enable(step);
        m_chip.write_enabled = ENABLED::NO;
        m_chip.busy = step;
    }

    void doubt_enable() { m_chip.write_enabled = m_chip.write_enabled == ENABLED::NO ? ENABLED::NO : ENABLED::MAYBE; }

    void report_no_enable(const STEP& step)
    {
        m_report.add(NO_WRITE_ENABLE, step,
                     GFPDB_WORDS::say("There is no write enable before it: the chip ignores the command."));
    }

    void use_enable()
    {
        if (m_chip.write_enabled != ENABLED::NO && m_chip.enable)
            m_enables.at({m_chip.enable->operation, m_chip.enable->place}).is_used = true;
    }

    void check_address_bytes(const STEP& step)
    {
        const std::optional<COMMAND> command = command_of(*step.action);
        const std::int64_t bytes = number_of(*step.action, addressing_property(*step.action), UNKNOWN_NUMBER);
        const std::string text = command && bytes != UNKNOWN_NUMBER ? wrong_bytes(command->address, bytes) : "";
        if (!text.empty())
            m_report.add(ADDRESS_BYTES, step, text);
    }

    // Empty when they are right.
    std::string wrong_bytes(ADDRESS address, std::int64_t bytes) const
    {
        if (address == ADDRESS::NONE)
            return bytes == 0 ? "" : GFPDB_WORDS::say("The command has no address, but the action sends one.");
        if (bytes == 0)
            return GFPDB_WORDS::say("The command has an address, but the action sends none.");
        if (address == ADDRESS::ALWAYS_FOUR)
            return bytes == 4 ? ""
                              : GFPDB_WORDS::say("The command always has four address bytes, but the action sends "
                                                 "three.");
        if (bytes == 4 && !m_chip.four_byte)
            return GFPDB_WORDS::say("The action sends four address bytes, but nothing before it enters 4-byte "
                                    "addressing.");
        if (bytes == 3 && m_chip.four_byte)
            return GFPDB_WORDS::say("The action sends three address bytes, but 4-byte addressing was entered before.");
        return "";
    }

    struct ENABLE
    {
        STEP step;
        bool is_used;
    };

    const bool m_flow_variant;
    const GFPDB_LINT_DEVICE& m_device;
    REPORT& m_report;
    bool m_has_flag_status = false;
    CHIP m_chip;
    // The write enables of all sessions, by operation and place.
    std::map<std::pair<int, int>, ENABLE> m_enables;
};

} // namespace

void apply_state_rules(const FLOW& flow, bool flow_variant, const GFPDB_LINT_DEVICE& device, REPORT& report)
{
    STATE_RULES rules(flow, flow_variant, device, report);
    for (const std::vector<STEP>& session : sessions_of(flow))
        rules.play(session);
    rules.report_unused_enables();
}

} // namespace gfpdb_lint
