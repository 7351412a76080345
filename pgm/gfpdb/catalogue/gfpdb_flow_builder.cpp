// SPDX-License-Identifier: MIT
#include "catalogue/gfpdb_flow_builder.h"

#include "gfpdb/gfpdb_action_value.h"
#include "model/gfpdb_action_model.h"
#include "model/gfpdb_operation.h"
#include "rules/gfpdb_action_rules.h"

#include "gfpdb/gfpdb_enums.h"

#include <algorithm>

namespace {

constexpr int WRITE_STATUS = 0x01;
constexpr int WRITE_DISABLE = 0x04;
constexpr int READ_STATUS = 0x05;
constexpr int WRITE_ENABLE = 0x06;
constexpr int WRITE_BANK = 0x17;
constexpr int WRITE_STATUS_2 = 0x31;
constexpr int READ_STATUS_2 = 0x35;
constexpr int WRITE_STATUS_2_BIT7 = 0x3E;
constexpr int READ_STATUS_2_BIT7 = 0x3F;
constexpr int CLEAR_FLAG_STATUS = 0x50;
constexpr int RESET_ENABLE = 0x66;
constexpr int READ_FLAG_STATUS = 0x70;
constexpr int UNLOCK_BLOCKS = 0x98;
constexpr int RESET = 0x99;
constexpr int READ_ID = 0x9F;
constexpr int ENTER_FOUR_BYTE = 0xB7;
constexpr int SELECT_DIE = 0xC2;
constexpr int WRITE_EXTENDED_ADDRESS = 0xC5;
constexpr int CHIP_ERASE = 0xC7;
constexpr int LEAVE_FOUR_BYTE = 0xE9;

constexpr int SR1_QUAD_ENABLE = 0x40;
constexpr int SR2_QUAD_ENABLE = 0x02;
constexpr int SR2_QUAD_ENABLE_BIT7 = 0x80;
constexpr int BANK_FOUR_BYTE = 0x80;

constexpr int SR1_BUSY = 0x01;
constexpr int SR1_BUSY_AND_WRITE_ENABLED = 0x03;
// The protection bits, and with bit 6 also what is the quad-enable bit or one more protection bit.
constexpr int SR1_PROTECTION = 0x3C;
constexpr int SR1_PROTECTION_AND_BIT6 = 0x7C;
constexpr int FLAG_READY = 0x80;
constexpr int FLAG_ERRORS = 0x32;

constexpr int MILLISECOND_US = 1000;
constexpr int SMALL_SECTOR_MAX = 4096;

// How often and at what interval a busy source is asked.
struct POLL
{
    std::int64_t attempts;
    int delay_us;

    std::int64_t wait_us() const { return attempts * delay_us; }
    // At the same interval for `wait_us`, or as long as a poll can last; as it is for 0.
    POLL for_wait(std::int64_t wait_us) const
    {
        constexpr std::int64_t ATTEMPTS_MAX = GFPDB_ATTEMPT_COUNT_MAX;
        return wait_us > 0 ? POLL{std::min((wait_us + delay_us - 1) / delay_us, ATTEMPTS_MAX), delay_us} : *this;
    }
};

constexpr POLL REGISTER_POLL = {1000, MILLISECOND_US};
constexpr POLL PROGRAM_POLL = {200, 100};
constexpr POLL SMALL_SECTOR_POLL = {2000, MILLISECOND_US};
constexpr POLL SECTOR_POLL = {1000, 10 * MILLISECOND_US};
constexpr POLL CHIP_POLL = {4500, 1000 * MILLISECOND_US};
constexpr POLL FLAG_STATUS_CHIP_POLL = {1600, 1000 * MILLISECOND_US};
constexpr POLL IDLE_POLL = {10, MILLISECOND_US};
constexpr POLL ONCE = {1, 0};

POLL usual_erase_poll(const GFPDB_FLOW_TRAITS& traits)
{
    if (traits.sector_erase)
        return traits.sector_erase->size_bytes <= SMALL_SECTOR_MAX ? SMALL_SECTOR_POLL : SECTOR_POLL;
    return traits.flag_status ? FLAG_STATUS_CHIP_POLL : CHIP_POLL;
}

class FLOW_BUILDER
{
public:
    FLOW_BUILDER(GFPDB_OPERATION& operation, const GFPDB_FLOW_TRAITS& traits, bool quad)
        : m_operation(operation), m_traits(traits), m_quad(quad)
    {}

    void initialization()
    {
        if (m_traits.reset_at_start)
            reset();
        check_id();
        if (m_traits.flag_status)
            write_register("Clear Flag Status", CLEAR_FLAG_STATUS);
        open_die_loop();
        write_status();
        check_status();
        enter_four_byte_mode();
        close_die_loop();
    }

    void program()
    {
        open_die_loop();
        custom(GFPDB_LOOP_PAGE, GFPDB_LOOP_START);
        write_enable();
        write_page();
        poll_busy(PROGRAM_POLL.for_wait(m_traits.program_wait_us));
        custom(GFPDB_LOOP_PAGE, GFPDB_LOOP_END);
        close_die_loop();
    }

    void erase()
    {
        open_die_loop();
        if (m_traits.sector_erase)
            erase_sectors(*m_traits.sector_erase);
        else
            erase_all();
        close_die_loop();
    }

    void verify()
    {
        open_die_loop();
        read_all();
        close_die_loop();
    }

    void termination()
    {
        open_die_loop();
        leave_four_byte_mode();
        write_register("Write Disable", WRITE_DISABLE);
        read_each_status("Check Idle", SR1_BUSY_AND_WRITE_ENABLED, IDLE_POLL);
        close_die_loop();
        if (has_dies())
            write_register("Select First Die", SELECT_DIE, gfpdb_bytes_text({0x00}));
        if (m_traits.reset_at_end)
            reset();
    }

private:
    bool has_dies() const { return m_traits.selected_dies > 1; }

    GFPDB_ACTION& add(GFPDB_ACT_TYPE type)
    {
        GFPDB_ACTION* action = gfpdb_make_action(type);
        m_operation.add_action(action);
        return *action;
    }

    void custom(const char* unit, const char* marker)
    {
        GFPDB_ACTION& action = add(GFPDB_ACT_CUSTOM);
        action.set_property_value(GFPDB_CUSTOM_LOOP_UNIT, unit);
        action.set_property_value(GFPDB_CUSTOM_LOOP_MARKER, marker);
    }

    void write_register(const char* name, int opcode, const std::string& data = GFPDB_VALUE_NONE, int delay_us = 0)
    {
        GFPDB_ACTION& action = add(GFPDB_ACT_WRITE_REGISTER);
        action.set_property_value(GFPDB_WR_NAME, name);
        action.set_property_value(GFPDB_WR_COMMAND, gfpdb_byte_text(opcode));
        action.set_property_value(GFPDB_WR_DATA, data);
        action.set_property_value(GFPDB_WR_DELAY, gfpdb_decimal_text(delay_us));
    }

    GFPDB_ACTION& read_register(const char* name, int opcode, const std::vector<int>& expected,
                                const std::vector<int>& mask, const POLL& poll)
    {
        GFPDB_ACTION& action = add(GFPDB_ACT_READ_REGISTER);
        action.set_property_value(GFPDB_RR_NAME, name);
        action.set_property_value(GFPDB_RR_COMMAND, gfpdb_byte_text(opcode));
        action.set_property_value(GFPDB_RR_DATA_LENGTH, gfpdb_decimal_text(static_cast<std::int64_t>(mask.size())));
        action.set_property_value(GFPDB_RR_EXPECTED_DATA, gfpdb_bytes_text(expected));
        action.set_property_value(GFPDB_RR_EXPECTED_DATA_MASK, gfpdb_bytes_text(mask));
        action.set_property_value(GFPDB_RR_ATTEMPT_COUNT, gfpdb_decimal_text(poll.attempts));
        action.set_property_value(GFPDB_RR_DELAY, gfpdb_decimal_text(poll.delay_us));
        return action;
    }

    void write_enable() { write_register("Write Enable", WRITE_ENABLE); }

    void reset()
    {
        write_register("Reset Enable", RESET_ENABLE);
        write_register("Reset", RESET, GFPDB_VALUE_NONE, MILLISECOND_US);
    }

    void check_id()
    {
        std::vector<int> expected = m_traits.id;
        for (std::size_t at = 0; at < expected.size(); ++at)
            expected[at] &= m_traits.id_mask[at];
        GFPDB_ACTION& action = read_register("Check Device ID", READ_ID, expected, m_traits.id_mask, ONCE);
        if (m_traits.id.empty())
            action.set_property_value(GFPDB_RR_EXPECTED_DATA, GFPDB_VALUE_ID);
    }

    // Register writes are always watched through the status register, which every part has.
    void poll_register_write() { read_each_status("Poll Write In Progress", SR1_BUSY, REGISTER_POLL); }

    // Waits until the bits of `mask` are clear in the status register of each die. The first die comes last, and stays
    // selected.
    void read_each_status(const char* name, int mask, const POLL& poll)
    {
        for (int die = m_traits.status_dies - 1; die >= 0; --die) {
            if (m_traits.status_dies > 1)
                write_register("Select Die", SELECT_DIE, gfpdb_bytes_text({die}));
            read_register(name, READ_STATUS, {0x00}, {mask}, poll);
        }
    }

    void poll_busy(const POLL& poll)
    {
        if (!m_traits.flag_status) {
            read_each_status("Poll Write In Progress", SR1_BUSY, poll);
            return;
        }
        read_register("Poll Ready", READ_FLAG_STATUS, {FLAG_READY}, {FLAG_READY}, poll);
        read_register("Check Errors", READ_FLAG_STATUS, {0x00}, {FLAG_ERRORS}, ONCE);
    }

    void poll_erase() { poll_busy(usual_erase_poll(m_traits).for_wait(m_traits.erase_wait_us)); }

    void write_enabled_register(const char* name, int opcode, const std::vector<int>& data)
    {
        write_enable();
        write_register(name, opcode, gfpdb_bytes_text(data));
        poll_register_write();
    }

    const char* quad_enable_name() const { return m_traits.verified ? "Quad Enable" : "Quad Enable (unverified)"; }

    // The single-I/O variant writes no register that keeps its value without power: it could not put back what it
    // clears.
    void write_status()
    {
        if (m_quad)
            write_quad_status();
        if (m_traits.locked_at_power_up)
            unlock_blocks();
    }

    void write_quad_status()
    {
        switch (m_traits.status_write) {
        case GFPDB_STATUS_WRITE::CLEAR:
            write_enabled_register("Clear Protection", WRITE_STATUS, {0x00});
            break;
        case GFPDB_STATUS_WRITE::SR1:
            write_enabled_register(quad_enable_name(), WRITE_STATUS, {SR1_QUAD_ENABLE});
            break;
        case GFPDB_STATUS_WRITE::SR2_WITH_SR1:
            write_enabled_register(quad_enable_name(), WRITE_STATUS, {0x00, SR2_QUAD_ENABLE});
            break;
        case GFPDB_STATUS_WRITE::SR2_OWN_COMMAND:
            write_enabled_register("Clear Protection", WRITE_STATUS, {0x00});
            write_enabled_register(quad_enable_name(), WRITE_STATUS_2, {SR2_QUAD_ENABLE});
            break;
        case GFPDB_STATUS_WRITE::SR2_BIT7:
            write_enabled_register("Clear Protection", WRITE_STATUS, {0x00});
            write_enabled_register(quad_enable_name(), WRITE_STATUS_2_BIT7, {SR2_QUAD_ENABLE_BIT7});
            break;
        }
    }

    void unlock_blocks()
    {
        write_enable();
        write_register("Unlock All Blocks", UNLOCK_BLOCKS);
        poll_register_write();
    }

    // Turns a status write that the part silently refused into an error.
    void check_status()
    {
        const bool bit_in_first = m_traits.status_write == GFPDB_STATUS_WRITE::SR1;
        const bool bit_in_second = m_traits.status_write == GFPDB_STATUS_WRITE::SR2_WITH_SR1 ||
                                   m_traits.status_write == GFPDB_STATUS_WRITE::SR2_OWN_COMMAND;
        if (bit_in_first && m_quad)
            read_register("Check Quad Enable And Protection", READ_STATUS, {SR1_QUAD_ENABLE}, {SR1_PROTECTION_AND_BIT6},
                          ONCE);
        else if (!m_traits.locked_at_power_up)
            read_register("Check Protection", READ_STATUS, {0x00},
                          {bit_in_first ? SR1_PROTECTION : SR1_PROTECTION_AND_BIT6}, ONCE);
        if (bit_in_second && m_quad)
            read_register("Check Quad Enable", READ_STATUS_2, {SR2_QUAD_ENABLE}, {SR2_QUAD_ENABLE}, ONCE);
        if (m_traits.status_write == GFPDB_STATUS_WRITE::SR2_BIT7 && m_quad)
            read_register("Check Quad Enable", READ_STATUS_2_BIT7, {SR2_QUAD_ENABLE_BIT7}, {SR2_QUAD_ENABLE_BIT7},
                          ONCE);
    }

    void check_mode(bool four_byte)
    {
        if (!m_traits.mode_check)
            return;
        const GFPDB_MODE_CHECK& check = *m_traits.mode_check;
        read_register("Check Addressing Mode", check.opcode, {four_byte ? check.mask : 0x00}, {check.mask}, ONCE);
    }

    void enter_four_byte_mode()
    {
        switch (m_traits.enter_four_byte) {
        case GFPDB_FOUR_BYTE_ENTRY::MODE:
            break;
        case GFPDB_FOUR_BYTE_ENTRY::MODE_WITH_WRITE_ENABLE:
            write_enable();
            break;
        case GFPDB_FOUR_BYTE_ENTRY::BANK_REGISTER:
            write_register("Enter 4-Byte Addressing", WRITE_BANK, gfpdb_bytes_text({BANK_FOUR_BYTE}));
            check_mode(true);
            return;
        default:
            return;
        }
        write_register("Enter 4-Byte Addressing", ENTER_FOUR_BYTE);
        check_mode(true);
    }

    void leave_four_byte_mode()
    {
        switch (m_traits.leave_four_byte) {
        case GFPDB_FOUR_BYTE_EXIT::MODE:
            break;
        case GFPDB_FOUR_BYTE_EXIT::MODE_WITH_WRITE_ENABLE:
            write_enable();
            break;
        case GFPDB_FOUR_BYTE_EXIT::BANK_REGISTER:
            write_register("Leave 4-Byte Addressing", WRITE_BANK, gfpdb_bytes_text({0x00}));
            check_mode(false);
            return;
        default:
            return;
        }
        write_register("Leave 4-Byte Addressing", LEAVE_FOUR_BYTE);
        if (m_traits.clears_extended_address) {
            write_enable();
            write_register("Clear Extended Address", WRITE_EXTENDED_ADDRESS, gfpdb_bytes_text({0x00}));
        }
        check_mode(false);
    }

    void open_die_loop()
    {
        if (!has_dies())
            return;
        custom(GFPDB_LOOP_DIE, GFPDB_LOOP_START);
        write_register("Select Die", SELECT_DIE, GFPDB_VALUE_DIE);
    }

    void close_die_loop()
    {
        if (has_dies())
            custom(GFPDB_LOOP_DIE, GFPDB_LOOP_END);
    }

    // A selected die counts its addresses from 0.
    const char* loop_address() const { return has_dies() ? GFPDB_VALUE_DIE : GFPDB_VALUE_LOOP; }
    std::int64_t erasable_bytes() const { return m_traits.device_bytes / m_traits.selected_dies; }
    std::string addressing_mode() const { return gfpdb_decimal_text(m_traits.address_bytes); }

    void write_page()
    {
        GFPDB_ACTION& action = add(GFPDB_ACT_WRITE_DATA);
        action.set_property_value(GFPDB_WD_NAME, "Program Page");
        action.set_property_value(GFPDB_WD_COMMAND, gfpdb_byte_text(m_traits.program.opcode));
        action.set_property_value(GFPDB_WD_ADDRESS, loop_address());
        action.set_property_value(GFPDB_WD_DATA, GFPDB_VALUE_IMAGE);
        action.set_property_value(GFPDB_WD_PAGE_SIZE, gfpdb_decimal_text(m_traits.page_size));
        action.set_property_value(GFPDB_WD_ADDRESSING_MODE, addressing_mode());
        action.set_property_value(GFPDB_WD_BUS_WIDTH, m_traits.program.bus_width);
    }

    void erase_sectors(const GFPDB_ERASE_COMMAND& sector)
    {
        custom(GFPDB_LOOP_SECTOR, GFPDB_LOOP_START);
        write_enable();
        GFPDB_ACTION& action = add(GFPDB_ACT_ERASE);
        action.set_property_value(GFPDB_ER_NAME, "Erase Sector");
        action.set_property_value(GFPDB_ER_COMMAND, gfpdb_byte_text(sector.opcode));
        action.set_property_value(GFPDB_ER_ADDRESS, loop_address());
        action.set_property_value(GFPDB_ER_ERASE_SIZE, gfpdb_decimal_text(sector.size_bytes));
        action.set_property_value(GFPDB_ER_ADDRESSING_MODE, addressing_mode());
        poll_erase();
        custom(GFPDB_LOOP_SECTOR, GFPDB_LOOP_END);
    }

    // The device, or one selected die.
    void erase_all()
    {
        write_enable();
        GFPDB_ACTION& action = add(GFPDB_ACT_ERASE);
        action.set_property_value(GFPDB_ER_NAME, has_dies() ? "Erase Die" : "Erase Chip");
        action.set_property_value(GFPDB_ER_COMMAND, gfpdb_byte_text(CHIP_ERASE));
        action.set_property_value(GFPDB_ER_ADDRESS, GFPDB_VALUE_NONE);
        action.set_property_value(GFPDB_ER_ERASE_SIZE, gfpdb_decimal_text(erasable_bytes()));
        action.set_property_value(GFPDB_ER_ADDRESSING_MODE, "0");
        poll_erase();
    }

    void read_all()
    {
        GFPDB_ACTION& action = add(GFPDB_ACT_READ_DATA);
        const bool sized = m_traits.device_bytes > 0;
        action.set_property_value(GFPDB_RD_NAME, "Read Data");
        action.set_property_value(GFPDB_RD_COMMAND, gfpdb_byte_text(m_traits.read.opcode));
        action.set_property_value(GFPDB_RD_ADDRESS, has_dies() ? GFPDB_VALUE_DIE : gfpdb_address_text(0));
        action.set_property_value(GFPDB_RD_DATA_LENGTH,
                                  sized ? gfpdb_decimal_text(erasable_bytes()) : GFPDB_VALUE_DEVICE);
        action.set_property_value(GFPDB_RD_EXPECTED_DATA, GFPDB_VALUE_IMAGE);
        action.set_property_value(GFPDB_RD_EXPECTED_DATA_MASK, gfpdb_byte_text(0xFF));
        action.set_property_value(GFPDB_RD_ADDRESSING_MODE, addressing_mode());
        action.set_property_value(GFPDB_RD_DUMMY_CLOCK, gfpdb_decimal_text(m_traits.read.dummy_clocks));
        action.set_property_value(GFPDB_RD_BUS_WIDTH, m_traits.read.bus_width);
    }

    GFPDB_OPERATION& m_operation;
    const GFPDB_FLOW_TRAITS& m_traits;
    const bool m_quad;
};

} // namespace

GFPDB_OPERATION* gfpdb_build_operation(int kind, const GFPDB_FLOW_TRAITS& traits, bool quad)
{
    GFPDB_OPERATION* operation = gfpdb_make_operation(kind);
    if (!operation)
        return nullptr;
    FLOW_BUILDER builder(*operation, traits, quad);
    switch (kind) {
    case GFPDB_OPERATION_INITIALIZATION:
        builder.initialization();
        break;
    case GFPDB_OPERATION_PROGRAM:
        builder.program();
        break;
    case GFPDB_OPERATION_ERASE:
        builder.erase();
        break;
    case GFPDB_OPERATION_VERIFY:
        builder.verify();
        break;
    default:
        builder.termination();
        break;
    }
    return operation;
}

std::int64_t gfpdb_usual_program_wait_us()
{
    return PROGRAM_POLL.wait_us();
}

std::int64_t gfpdb_usual_erase_wait_us(const GFPDB_FLOW_TRAITS& traits)
{
    return usual_erase_poll(traits).wait_us();
}
