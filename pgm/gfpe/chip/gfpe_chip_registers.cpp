// SPDX-License-Identifier: MIT

// The registers of an emulated chip, its modes and its IDs.
#include "chip/gfpe_chip_core.h"

#include <algorithm>

namespace {

using JOB = GFPE_CHIP_JOB;
using REG = GFPE_CHIP_REGISTER;

constexpr std::uint8_t BUSY = 0x01;
constexpr std::uint8_t WRITE_ENABLED = 0x02;
constexpr std::uint8_t BUSY_AGAIN = 0x80;
constexpr std::uint8_t READY = 0x80;
constexpr std::uint8_t REGISTER_LOCK = 0x80;
constexpr std::uint8_t SR1_QUAD = 0x40;
constexpr std::uint8_t SR2_QUAD = 0x02;
constexpr std::uint8_t BANK_FOUR_BYTE = 0x80;

std::size_t number_of(REG target)
{
    return static_cast<std::size_t>(target);
}

int log2_of(std::int64_t bytes)
{
    int result = 0;
    while ((std::int64_t(1) << result) < bytes)
        ++result;
    return result;
}

} // namespace

bool GFPE_CHIP_CORE::is_quad_enabled() const
{
    switch (m_facts.quad_enable) {
    case GFPDB_QUAD_ENABLE::SR1_BIT6:
        return die().registers[number_of(REG::STATUS_1)] & SR1_QUAD;
    case GFPDB_QUAD_ENABLE::SR2_BIT1:
        return die().registers[number_of(REG::STATUS_2)] & SR2_QUAD;
    default:
        return true;
    }
}

std::uint8_t GFPE_CHIP_CORE::register_value(REG target) const
{
    std::uint8_t value = die().registers[number_of(target)];
    if (target == REG::STATUS_1)
        value |= (shows_busy() ? BUSY : 0) | (die().write_enabled ? WRITE_ENABLED : 0) |
                 (shows_busy() && m_facts.mirrors_busy ? BUSY_AGAIN : 0);
    if (target == REG::FLAGS)
        value |= shows_busy() ? 0 : READY;
    if (target == m_facts.mode_register && die().four_byte)
        value |= static_cast<std::uint8_t>(m_facts.mode_bit);
    return value;
}

std::uint8_t GFPE_CHIP_CORE::upper_address() const
{
    if (m_facts.address_bytes != 4)
        return 0;
    return die().registers[number_of(REG::EXTENDED_ADDRESS)] | (die().registers[number_of(REG::BANK)] & 0x7F);
}

void GFPE_CHIP_CORE::execute_register_read(const REQUEST& request)
{
    if (request.command.in_length < 1)
        return note(request, "a register is read, but nothing is asked for");
    const std::uint8_t value = register_value(request.spec.target);
    if (request.command.in_length == 1 && !request.skipped_bits)
        hand_over(request.reader, &value, 1, 1);
    else
        answer(request, [value](std::int64_t) { return value; });
}

void GFPE_CHIP_CORE::execute_register_write(REQUEST& request)
{
    const std::size_t longest = request.spec.second == REG::NONE ? 1 : 2;
    if (request.command.in_length || request.length < 1 || request.length > longest)
        return note(request, std::to_string(request.length) + " data bytes, but the chip takes " +
                                 (longest == 1 ? "1" : "1 or 2") + ": ignored");
    if (!die().write_enabled && !die().volatile_write)
        return note(request, "not write enabled: ignored");
    const bool is_stored = die().write_enabled;
    die().volatile_write = false;
    if (loses_power())
        return;
    write_register(request, request.spec.target, request.data[0], is_stored);
    if (request.length == 2)
        write_register(request, request.spec.second, request.data[1], is_stored);
    else if (request.spec.clears_second)
        write_register(request, request.spec.second, 0, is_stored);
    if (request.spec.target == REG::EXTENDED_ADDRESS)
        die().write_enabled = false;
    else
        start_busy(is_stored ? m_facts.register_write_us : 0);
}

void GFPE_CHIP_CORE::write_register(const REQUEST& request, REG target, std::uint8_t value, bool is_stored)
{
    std::uint8_t& present = die().registers[number_of(target)];
    if (target == REG::STATUS_1 && (value & REGISTER_LOCK) && !m_facts.mirrors_busy)
        note(request, "sets bit 7, which locks the status register as long as the write protection pin is low");
    std::uint8_t written = value;
    if (target == REG::STATUS_1)
        written &= m_facts.shows_errors ? 0x9C : 0xFC;
    if (target == REG::STATUS_2 && (value & ~present & m_facts.one_time_bits))
        note(request, "sets bits of the second status register that can never be cleared");
    if (target == REG::STATUS_2)
        written |= present & m_facts.one_time_bits;
    present = written;
    if (is_stored && target != REG::EXTENDED_ADDRESS)
        die().stored[number_of(target)] = written;
}

void GFPE_CHIP_CORE::execute_bank_write(const REQUEST& request)
{
    if (request.command.in_length || request.length != 1)
        return note(request, "takes one data byte: ignored");
    die().registers[number_of(REG::BANK)] = request.data[0] & ~BANK_FOUR_BYTE;
    die().four_byte = request.data[0] & BANK_FOUR_BYTE;
}

void GFPE_CHIP_CORE::execute_die_selection(const REQUEST& request)
{
    const auto dies = static_cast<std::size_t>(std::max(m_facts.selected_dies, m_facts.status_dies));
    if (request.command.in_length || request.length != 1)
        return note(request, "takes one data byte: ignored");
    if (request.data[0] >= dies)
        return note(request, "no such die: ignored");
    if (m_facts.status_dies > 1)
        m_status_die = request.data[0];
    else
        m_selected = request.data[0];
}

void GFPE_CHIP_CORE::execute_mode(const REQUEST& request)
{
    if (m_facts.write_enable_before_mode && !is_write_enabled(request))
        return;
    if (m_facts.write_enable_before_mode)
        die().write_enabled = false;
    die().four_byte = request.spec.job == JOB::ENTER_4_BYTE;
    if (!die().four_byte && m_facts.leaving_sets_extended_address)
        die().registers[number_of(REG::EXTENDED_ADDRESS)] = 1;
}

void GFPE_CHIP_CORE::execute_id(const REQUEST& request)
{
    if (request.spec.job == JOB::WAKE)
        m_is_down = false;
    if (request.command.in_length < 1) {
        if (request.spec.job != JOB::WAKE)
            note(request, "an ID is read, but nothing is asked for");
        return;
    }
    const std::vector<std::uint8_t>& id = m_facts.id;
    const auto signature = static_cast<std::uint8_t>(log2_of(m_facts.bytes) - 1);
    if (request.spec.job == JOB::READ_ID) {
        const bool repeats = m_facts.repeats_id;
        answer(request, [&id, repeats](std::int64_t at) {
            const auto place = static_cast<std::size_t>(at);
            return repeats || place < id.size() ? id[place % id.size()] : std::uint8_t(0xFF);
        });
    } else if (request.spec.job == JOB::READ_MAKER) {
        const std::int64_t start = request.address & 1;
        answer(request, [&id, start, signature](std::int64_t at) { return (start + at) & 1 ? signature : id[0]; });
    } else if (request.spec.job == JOB::WAKE) {
        answer(request, [signature](std::int64_t) { return signature; });
    } else {
        const std::vector<std::uint8_t>& table = m_facts.sfdp;
        answer(request, [&table, &request](std::int64_t at) {
            const auto place = static_cast<std::size_t>(request.address) + static_cast<std::size_t>(at);
            return place < table.size() ? table[place] : std::uint8_t(0xFF);
        });
    }
}
