// SPDX-License-Identifier: MIT
#include "chip/gfpe_chip_core.h"

#include <algorithm>

namespace {

using JOB = GFPE_CHIP_JOB;
using REG = GFPE_CHIP_REGISTER;

constexpr std::uint8_t STATUS_ERRORS = 0x60;
constexpr std::int64_t RESET_US = 500;
constexpr std::int64_t UNLOCK_US = 25;
constexpr int MOST_DUMMY_CLOCKS = 1024;
constexpr std::int64_t LONGEST_WAIT_US = std::int64_t(1) << 50;
// Waits bring the clock no further: a hundred years and more, and as long again before the number overflows.
constexpr std::int64_t LATEST_NS = std::int64_t(1) << 62;

std::int64_t clocks_before_answer(const GFPE_COMMAND& command)
{
    return 8 / command.opcode_lines + command.address_bytes * 8 / command.address_lines + command.dummy_clocks +
           static_cast<std::int64_t>(command.out_length) * 8 / command.data_lines;
}

} // namespace

GFPE_CHIP_CORE::GFPE_CHIP_CORE(GFPE_CHIP_FACTS facts)
    : m_facts(std::move(facts)), m_memory(m_facts.bytes), m_dies(static_cast<std::size_t>(m_facts.selected_dies)),
      m_busy_until(static_cast<std::size_t>(m_facts.status_dies))
{
    for (DIE& each : m_dies)
        each.locks = GFPE_CHIP_LOCKS(m_facts.has_block_locks ? m_facts.bytes : 0);
    power_up();
}

void GFPE_CHIP_CORE::power_up()
{
    m_selected = 0;
    m_status_die = 0;
    m_has_power = true;
    m_is_down = m_reset_enabled = false;
    m_finishing_die = -1;
    std::fill(m_busy_until.begin(), m_busy_until.end(), m_now);
    for (DIE& each : m_dies) {
        each.registers = each.stored;
        each.write_enabled = each.volatile_write = each.four_byte = false;
        each.locks.reset();
    }
}

void GFPE_CHIP_CORE::set_faults(const GFPE_CHIP_FAULTS& faults)
{
    m_faults = faults;
    m_number = -1;
}

bool GFPE_CHIP_CORE::is_at_rest() const
{
    return m_has_power && !m_is_down && !is_busy() && m_selected == 0 && m_status_die == 0 &&
           std::none_of(m_dies.begin(), m_dies.end(), [](const DIE& each) {
               return each.write_enabled || each.volatile_write || each.four_byte ||
                      each.registers[static_cast<std::size_t>(REG::EXTENDED_ADDRESS)] != 0 ||
                      each.registers[static_cast<std::size_t>(REG::BANK)] != 0;
           });
}

void GFPE_CHIP_CORE::wait(std::int64_t microseconds)
{
    const std::int64_t waited = std::clamp<std::int64_t>(microseconds, 0, LONGEST_WAIT_US) * 1000;
    m_now = std::max(m_now, std::min(m_now + waited, LATEST_NS));
    settle();
}

// A chip takes back the write enable when it has finished, not before.
void GFPE_CHIP_CORE::settle()
{
    if (m_finishing_die < 0 || is_busy())
        return;
    m_dies[static_cast<std::size_t>(m_finishing_die)].write_enabled = false;
    m_finishing_die = -1;
}

bool GFPE_CHIP_CORE::is_busy() const
{
    return std::any_of(m_busy_until.begin(), m_busy_until.end(), [this](std::int64_t until) { return m_now < until; });
}

void GFPE_CHIP_CORE::start_busy(std::int64_t microseconds)
{
    const std::int64_t until = m_faults.stays_busy ? NEVER : m_now + microseconds * 1000;
    std::fill(m_busy_until.begin(), m_busy_until.end(), until);
    m_finishing_die = static_cast<int>(m_selected);
}

void GFPE_CHIP_CORE::start_busy_at(std::int64_t address, std::int64_t microseconds)
{
    const auto dies = static_cast<std::int64_t>(m_busy_until.size());
    const auto number = static_cast<std::size_t>(address / (die_bytes() / dies));
    m_busy_until[number] = m_faults.stays_busy ? NEVER : m_now + microseconds * 1000;
    m_finishing_die = static_cast<int>(m_selected);
}

void GFPE_CHIP_CORE::transfer(const GFPE_COMMAND& command, GFPE_READER* reader)
{
    settle();
    ++m_number;
    if (m_faults.is_missing || !m_has_power || !is_possible(command)) {
        answer_nothing(command, reader);
        return;
    }
    const bool was_busy = is_busy();
    m_now += clocks_before_answer(command) * CLOCK_NS;
    const GFPE_CHIP_COMMAND& spec = m_facts.command(command.opcode);
    m_has_answered = false;
    if (is_heard(command, spec, was_busy)) {
        REQUEST request{command, spec, reader};
        if (decode(request))
            dispatch(request);
    }
    // What the chip does not drive reads high.
    if (!m_has_answered)
        answer_nothing(command, reader);
    m_reset_enabled = spec.job == JOB::RESET_ENABLE;
    if (loses_power())
        m_has_power = false;
}

// What no chip could take for a command.
bool GFPE_CHIP_CORE::is_possible(const GFPE_COMMAND& command)
{
    const auto are_lines = [](int lines) { return lines == 1 || lines == 2 || lines == 4; };
    const bool possible = are_lines(command.opcode_lines) && are_lines(command.address_lines) &&
                          are_lines(command.data_lines) && command.address_bytes >= 0 && command.address_bytes <= 4 &&
                          command.dummy_clocks >= 0 && command.dummy_clocks <= MOST_DUMMY_CLOCKS &&
                          command.in_length >= 0 && (command.out || !command.out_length);
    if (!possible)
        m_notes.add(command.opcode, "not a command: wrong numbers of lines, bytes or clocks");
    return possible;
}

bool GFPE_CHIP_CORE::is_heard(const GFPE_COMMAND& command, const GFPE_CHIP_COMMAND& spec, bool was_busy)
{
    const bool is_poll = command.opcode == 0x05 || command.opcode == 0x70;
    const bool may_interrupt = is_poll || spec.job == JOB::RESET_ENABLE || spec.job == JOB::RESET ||
                               spec.job == JOB::CLEAR_FLAGS || (spec.job == JOB::SELECT_DIE && m_facts.status_dies > 1);
    std::string problem;
    if (command.opcode_lines != 1)
        problem = "sent on " + std::to_string(command.opcode_lines) + " lines, but the chip takes commands on one";
    else if (spec.job == JOB::NONE)
        problem = "unknown to this chip";
    else if (m_is_down && spec.job != JOB::WAKE)
        problem = "while the chip is in deep power-down, which only AB ends";
    else if (was_busy && !may_interrupt)
        problem = "while the chip is busy";
    if (!problem.empty())
        m_notes.add(command.opcode, problem + ": ignored");
    return problem.empty();
}

void GFPE_CHIP_CORE::dispatch(REQUEST& request)
{
    switch (request.spec.job) {
    case JOB::READ:
        return answer_memory(request);
    case JOB::PROGRAM:
        return execute_program(request);
    case JOB::ERASE:
    case JOB::ERASE_DIE:
    case JOB::ERASE_CHIP:
        return execute_erase(request);
    case JOB::READ_REGISTER:
        return execute_register_read(request);
    case JOB::WRITE_REGISTERS:
        return execute_register_write(request);
    case JOB::WRITE_BANK:
        return execute_bank_write(request);
    case JOB::SELECT_DIE:
        return execute_die_selection(request);
    case JOB::READ_ID:
    case JOB::READ_MAKER:
    case JOB::WAKE:
    case JOB::READ_SFDP:
        return execute_id(request);
    case JOB::READ_LOCKS:
    case JOB::WRITE_LOCKS:
        return execute_locks(request);
    default:
        return execute_simple(request);
    }
}

void GFPE_CHIP_CORE::execute_simple(REQUEST& request)
{
    if (request.spec.job == JOB::ENTER_QPI)
        return note(request, "starts commands on four lines (QPI), which this emulation does not have: ignored");
    if (request.length || request.command.in_length || request.command.address_bytes)
        return note(request, "has no address and no data, but more than the opcode came: ignored");
    switch (request.spec.job) {
    case JOB::WRITE_ENABLE:
    case JOB::WRITE_DISABLE:
        die().write_enabled = request.spec.job == JOB::WRITE_ENABLE;
        break;
    case JOB::VOLATILE_WRITE_ENABLE:
        die().volatile_write = true;
        break;
    case JOB::CLEAR_FLAGS:
        clear_errors();
        break;
    case JOB::POWER_DOWN:
        m_is_down = true;
        break;
    case JOB::RESET:
        execute_reset(request);
        break;
    case JOB::UNLOCK_BLOCKS:
        if (!is_write_enabled(request))
            break;
        die().locks.unlock();
        start_busy(UNLOCK_US);
        break;
    case JOB::ENTER_4_BYTE:
    case JOB::LEAVE_4_BYTE:
        execute_mode(request);
        break;
    default:
        break;
    }
}

void GFPE_CHIP_CORE::clear_errors()
{
    die().registers[static_cast<std::size_t>(REG::FLAGS)] = 0;
    std::uint8_t& status = die().registers[static_cast<std::size_t>(REG::STATUS_1)];
    if (!m_facts.shows_errors || !(status & STATUS_ERRORS))
        return;
    status &= static_cast<std::uint8_t>(~STATUS_ERRORS);
    die().write_enabled = false;
    std::fill(m_busy_until.begin(), m_busy_until.end(), m_now);
}

void GFPE_CHIP_CORE::execute_reset(const REQUEST& request)
{
    if (!m_reset_enabled)
        return note(request, "not directly after 66: ignored");
    if (is_busy())
        note(request, "reset while busy: what was programmed or erased is in an undefined state");
    power_up();
    start_busy(RESET_US);
}

bool GFPE_CHIP_CORE::is_write_enabled(const REQUEST& request)
{
    if (!die().write_enabled)
        note(request, "not write enabled: ignored");
    return die().write_enabled;
}
