// SPDX-License-Identifier: MIT
#include "spi_nor_chip.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr std::int64_t BLOCK_BYTES = SPI_CHUNK_BYTES;
constexpr int BUSY = 0x01;
constexpr int WRITE_ENABLED = 0x02;
constexpr int SR1_QUAD = 0x40;
constexpr int SR2_QUAD = 0x02;
constexpr int PROTECTION = 0x3C;
constexpr int REGISTER_LOCK = 0x80;
constexpr int FLAG_READY = 0x80;

// Times near the worst that data sheets promise.
constexpr std::int64_t PROGRAM_US = 9000;
constexpr std::int64_t RESET_US = 500;
constexpr std::int64_t UNLOCK_US = 25;

constexpr std::int64_t EASY_ERASE_US = 15000;
constexpr int HARD_ERASE = 64;

std::int64_t worst_erase_us(std::int64_t size, std::int64_t chip)
{
    if (size <= BLOCK_BYTES)
        return 900000;
    return size < chip ? 6000000 : std::max<std::int64_t>(chip / (1 << 15), 1) * 800000;
}

const FLOW_BYTES BLANK_BLOCK(BLOCK_BYTES, 0xFF);

std::uint8_t old_byte(std::int64_t position)
{
    return static_cast<std::uint8_t>((position * 7 + position / BLOCK_BYTES + 13) & 0x7F);
}

bool is_any_of(int opcode, std::initializer_list<int> opcodes)
{
    return std::find(opcodes.begin(), opcodes.end(), opcode) != opcodes.end();
}

} // namespace

SPI_NOR_CHIP::SPI_NOR_CHIP(const CHIP_FACTS& facts, int protection)
    : m_facts(facts), m_protection(protection), m_dies(static_cast<std::size_t>(facts.selected_dies)),
      m_busy_until_us(static_cast<std::size_t>(facts.status_dies)),
      m_blocks(static_cast<std::size_t>(facts.bytes / BLOCK_BYTES), BLOCK::OLD), m_counts(256)
{
    for (DIE& each : m_dies) {
        each.sr1 = protection;
        each.flag_errors = facts.flag_status ? 0x10 : 0;
    }
    power_up();
}

void SPI_NOR_CHIP::power_up()
{
    m_selected = 0;
    m_status_die = 0;
    for (DIE& each : m_dies) {
        each.write_enabled = each.four_byte = false;
        each.extended_address = 0;
        each.locked = m_facts.locked_at_power_up;
    }
}

bool SPI_NOR_CHIP::complain(const SPI_COMMAND& command, const std::string& what)
{
    char opcode[8];
    std::snprintf(opcode, sizeof opcode, "%02X", static_cast<unsigned>(command.opcode));
    if (m_complaints.size() < 20)
        m_complaints.push_back(std::string(opcode) + ": " + what);
    return false;
}

void SPI_NOR_CHIP::transfer(const SPI_COMMAND& command, const SPI_SINK& sink)
{
    ++m_now_us;
    if (command.opcode_lines != 1)
        complain(command, "opcode on several lines");
    else if (is_busy() && !is_any_of(command.opcode, {0x05, 0x70}) &&
             !(command.opcode == 0xC2 && m_facts.status_dies > 1))
        complain(command, "while the chip is busy");
    else if (!m_facts.commands.count(command.opcode))
        complain(command, "unknown to this chip");
    else if (execute(command, sink))
        ++m_counts[static_cast<std::size_t>(command.opcode)];
    m_reset_enabled = command.opcode == 0x66;
}

bool SPI_NOR_CHIP::execute(const SPI_COMMAND& command, const SPI_SINK& sink)
{
    switch (command.opcode) {
    case 0x05:
    case 0x15:
    case 0x16:
    case 0x35:
    case 0x70:
    case 0x9F:
        return execute_register_read(command, sink);
    case 0x01:
    case 0x17:
    case 0x31:
    case 0xC2:
    case 0xC5:
        return execute_register_write(command);
    case 0x03:
    case 0x0B:
    case 0x0C:
    case 0x6B:
    case 0x6C:
    case 0xEB:
    case 0xEC:
        return execute_read(command, sink);
    case 0x02:
    case 0x12:
    case 0x32:
    case 0x34:
    case 0x38:
        return execute_program(command);
    case 0xB7:
    case 0xE9:
        return execute_mode(command);
    case 0x04:
    case 0x06:
    case 0x50:
    case 0x66:
    case 0x98:
    case 0x99:
        return execute_simple(command);
    default:
        return execute_erase(command);
    }
}

bool SPI_NOR_CHIP::execute_simple(const SPI_COMMAND& command)
{
    if (!command.out.empty() || command.address_bytes || command.in_length)
        return complain(command, "takes no address and no data");
    if (command.opcode == 0x99 && !m_reset_enabled)
        return complain(command, "reset without reset enable");
    if (command.opcode == 0x98 && !die().write_enabled)
        return complain(command, "not write enabled");
    if (command.opcode == 0x06 || command.opcode == 0x04)
        die().write_enabled = command.opcode == 0x06;
    if (command.opcode == 0x50)
        die().flag_errors = 0;
    if (command.opcode == 0x98) {
        die().locked = die().write_enabled = false;
        start_busy(UNLOCK_US);
    }
    if (command.opcode == 0x99) {
        power_up();
        start_busy(RESET_US);
    }
    return true;
}

std::optional<int> SPI_NOR_CHIP::register_value(int opcode)
{
    const DIE& chip = die();
    if (opcode == 0x05)
        return chip.sr1 | (shows_busy() ? BUSY : 0) | (chip.write_enabled ? WRITE_ENABLED : 0);
    const int mode = opcode == m_facts.mode_register && chip.four_byte ? m_facts.mode_bit : 0;
    if (opcode == 0x70)
        return (shows_busy() ? 0 : FLAG_READY) | chip.flag_errors | mode;
    if (opcode == 0x35)
        return chip.sr2;
    if (opcode == m_facts.mode_register)
        return mode;
    return std::nullopt;
}

bool SPI_NOR_CHIP::execute_register_read(const SPI_COMMAND& command, const SPI_SINK& sink)
{
    if (command.address_bytes || !command.out.empty() || command.data_lines != 1 || command.in_length < 1)
        return complain(command, "register read with an address, data to the chip or on several lines");
    if (command.opcode == 0x9F) {
        FLOW_BYTES id = m_facts.id;
        id.resize(static_cast<std::size_t>(command.in_length), 0);
        sink(0, id.data(), command.in_length);
        return true;
    }
    const std::optional<int> value = register_value(command.opcode);
    if (!value)
        return complain(command, "no such register");
    const FLOW_BYTES bytes(static_cast<std::size_t>(command.in_length), static_cast<std::uint8_t>(*value));
    sink(0, bytes.data(), command.in_length);
    return true;
}

bool SPI_NOR_CHIP::execute_register_write(const SPI_COMMAND& command)
{
    const std::size_t longest =
        command.opcode == 0x01 && m_facts.quad_enable == CHIP_FACTS::IN_SR2 && !m_facts.sr2_by_31 ? 2 : 1;
    if (command.address_bytes || command.in_length || command.data_lines != 1 || command.out.empty() ||
        command.out.size() > longest)
        return complain(command, "register write with a wrong number of bytes");
    if (command.opcode == 0xC2) {
        if (command.out[0] >= std::max(m_facts.selected_dies, m_facts.status_dies))
            return complain(command, "no such die");
        if (m_facts.status_dies > 1)
            m_status_die = command.out[0];
        else
            m_selected = command.out[0];
        return true;
    }
    if (command.opcode == 0x17) {
        die().four_byte = command.out[0] == 0x80;
        return true;
    }
    if (!die().write_enabled)
        return complain(command, "not write enabled");
    die().write_enabled = false;
    if (command.opcode == 0xC5) {
        die().extended_address = command.out[0];
        return true;
    }
    if (command.out[0] & REGISTER_LOCK)
        return complain(command, "locks the status register");
    if (command.opcode == 0x31) {
        die().sr2 = command.out[0];
    } else {
        die().sr1 = command.out[0];
        if (m_facts.quad_enable == CHIP_FACTS::IN_SR2 && !m_facts.sr2_by_31)
            die().sr2 = command.out.size() == 2 ? command.out[1] : 0;
    }
    start_busy(m_facts.register_write_us);
    return true;
}

bool SPI_NOR_CHIP::execute_mode(const SPI_COMMAND& command)
{
    if (m_facts.address_bytes != 4)
        return complain(command, "a chip with 3-byte addresses");
    if (m_facts.write_enable_before_mode && !die().write_enabled)
        return complain(command, "not write enabled");
    die().write_enabled = false;
    die().four_byte = command.opcode == 0xB7;
    if (command.opcode == 0xE9 && m_facts.leaving_sets_extended_address)
        die().extended_address = 1;
    return true;
}

bool SPI_NOR_CHIP::has_good_address(const SPI_COMMAND& command, bool own_four_byte)
{
    const int wanted = own_four_byte || die().four_byte ? 4 : 3;
    if (command.address_bytes != wanted)
        return complain(command, "takes " + std::to_string(wanted) + " address bytes");
    if (command.address < 0 || command.address >= die_bytes())
        return complain(command, "address behind the end");
    return true;
}

bool SPI_NOR_CHIP::has_lines(const SPI_COMMAND& command, int address_lines, int data_lines)
{
    if (command.address_lines != address_lines || command.data_lines != data_lines)
        return complain(command, "wrong number of lines");
    if (data_lines == 4 && !is_quad_enabled())
        return complain(command, "quad command without quad enable");
    return true;
}

bool SPI_NOR_CHIP::execute_read(const SPI_COMMAND& command, const SPI_SINK& sink)
{
    const bool quad_address = is_any_of(command.opcode, {0xEB, 0xEC});
    const bool quad_data = quad_address || is_any_of(command.opcode, {0x6B, 0x6C});
    const int dummy = command.opcode == 0x03 ? 0
                      : quad_address         ? m_facts.quad_read_dummy
                      : quad_data            ? 8
                                             : m_facts.fast_read_dummy;
    if (!has_good_address(command, is_any_of(command.opcode, {0x0C, 0x6C, 0xEC})) ||
        !has_lines(command, quad_address ? 4 : 1, quad_data ? 4 : 1))
        return false;
    if (command.dummy_clocks != dummy)
        return complain(command, "needs " + std::to_string(dummy) + " dummy clocks");
    const int mode_clocks = quad_address ? m_facts.quad_read_mode_clocks
                            : quad_data  ? 0
                                         : m_facts.fast_read_mode_clocks;
    if (command.driven_dummy_clocks < mode_clocks || (mode_clocks > 0 && command.dummy_byte != 0xFF))
        return complain(command, "mode clocks other than FF");
    // On one line, the chip answers on another one than it is spoken to.
    if (command.driven_dummy_clocks > dummy || (quad_data && command.driven_dummy_clocks == dummy))
        return complain(command, "host and chip drive a line at the same time");
    if (command.in_length < 1 || command.address + command.in_length > die_bytes())
        return complain(command, "reads behind the end");
    const std::int64_t start = m_selected * die_bytes() + command.address;
    for (std::int64_t done = 0; done < command.in_length;) {
        const std::int64_t offset = (start + done) % BLOCK_BYTES;
        const std::int64_t length = std::min(BLOCK_BYTES - offset, command.in_length - done);
        const std::int64_t block = (start + done) / BLOCK_BYTES;
        const bool blank = m_blocks[static_cast<std::size_t>(block)] == BLOCK::ERASED;
        const FLOW_BYTES bytes = blank ? FLOW_BYTES() : block_bytes(block);
        if (!sink(done, (blank ? BLANK_BLOCK : bytes).data() + offset, length))
            return true;
        done += length;
    }
    return true;
}

bool SPI_NOR_CHIP::may_change_data(const SPI_COMMAND& command)
{
    if (!die().write_enabled)
        return complain(command, "not write enabled");
    if (!is_unprotected())
        return complain(command, "protected");
    die().write_enabled = false;
    return true;
}

bool SPI_NOR_CHIP::execute_program(const SPI_COMMAND& command)
{
    const bool four_lines = is_any_of(command.opcode, {0x32, 0x34, 0x38});
    const int address_lines = command.opcode == 0x38   ? 4
                              : command.opcode == 0x32 ? m_facts.quad_program_address_lines
                                                       : 1;
    if (!has_good_address(command, is_any_of(command.opcode, {0x12, 0x34})) ||
        !has_lines(command, address_lines, four_lines ? 4 : 1) || !may_change_data(command))
        return false;
    if (command.dummy_clocks || command.out.empty())
        return complain(command, "program without data or with dummy clocks");
    const std::int64_t page_start = command.address / m_facts.page * m_facts.page;
    if (command.address - page_start + static_cast<std::int64_t>(command.out.size()) > m_facts.page)
        return complain(command, "wraps around within the page");
    const std::int64_t start = m_selected * die_bytes() + command.address;
    const std::int64_t block = start / BLOCK_BYTES;
    FLOW_BYTES bytes = block_bytes(block);
    for (std::size_t at = 0; at < command.out.size(); ++at)
        bytes[static_cast<std::size_t>(start % BLOCK_BYTES) + at] &= command.out[at];
    m_written[block] = bytes;
    m_blocks[static_cast<std::size_t>(block)] = BLOCK::WRITTEN;
    start_busy_at(command.address, PROGRAM_US);
    return true;
}

// 8K blocks at both ends, then a 32K one each, and 64K between them.
std::int64_t SPI_NOR_CHIP::graded_size(std::int64_t address) const
{
    constexpr std::int64_t SMALL = 4 * 8192;
    constexpr std::int64_t BORDER = 65536;
    const std::int64_t distance = std::min(address, m_facts.bytes - 1 - address);
    if (distance < SMALL)
        return 8192;
    return distance < BORDER ? 32768 : 65536;
}

bool SPI_NOR_CHIP::execute_erase(const SPI_COMMAND& command)
{
    if (command.opcode == 0xC7) {
        if (command.address_bytes || !may_change_data(command))
            return complain(command, "chip erase with an address or without write enable");
        erase_range(0, die_bytes());
        return true;
    }
    const auto row = std::find_if(m_facts.erase.begin(), m_facts.erase.end(),
                                  [&command](const auto& erase) { return erase.opcode == command.opcode; });
    if (row == m_facts.erase.end() || !command.out.empty())
        return complain(command, "not understood");
    if (!has_good_address(command, is_any_of(command.opcode, {0x21, 0x5C, 0xDC})) || !has_lines(command, 1, 1) ||
        !may_change_data(command))
        return false;
    const bool graded = m_facts.graded_blocks && command.opcode == 0xD8;
    const std::int64_t size = graded ? graded_size(command.address) : row->size_bytes;
    const std::int64_t start = command.address / size * size;
    const std::int64_t split_bytes = m_facts.split_sectors * BLOCK_BYTES;
    const std::int64_t skipped = size > BLOCK_BYTES && start < split_bytes ? split_bytes - start : 0;
    erase_range(start + skipped, size - skipped);
    return true;
}

void SPI_NOR_CHIP::erase_range(std::int64_t start, std::int64_t length)
{
    const std::int64_t first = (m_selected * die_bytes() + start) / BLOCK_BYTES;
    for (std::int64_t block = first; block < first + length / BLOCK_BYTES; ++block) {
        m_blocks[static_cast<std::size_t>(block)] = BLOCK::ERASED;
        m_written.erase(block);
    }
    // Few sectors are as slow as a data sheet allows.
    const bool easy = m_erases++ % HARD_ERASE != 0;
    const std::int64_t time = easy ? EASY_ERASE_US : worst_erase_us(length, die_bytes());
    if (length == die_bytes())
        start_busy(time);
    else
        start_busy_at(start, time);
}

void SPI_NOR_CHIP::start_busy(std::int64_t microseconds)
{
    std::fill(m_busy_until_us.begin(), m_busy_until_us.end(), m_now_us + microseconds);
}

void SPI_NOR_CHIP::start_busy_at(std::int64_t address, std::int64_t microseconds)
{
    const auto dies = static_cast<std::int64_t>(m_busy_until_us.size());
    m_busy_until_us[static_cast<std::size_t>(address / (die_bytes() / dies))] = m_now_us + microseconds;
}

bool SPI_NOR_CHIP::is_busy() const
{
    return std::any_of(m_busy_until_us.begin(), m_busy_until_us.end(),
                       [this](std::int64_t until) { return m_now_us < until; });
}

FLOW_BYTES SPI_NOR_CHIP::block_bytes(std::int64_t block) const
{
    const auto written = m_written.find(block);
    if (written != m_written.end())
        return written->second;
    FLOW_BYTES bytes(BLOCK_BYTES, 0xFF);
    if (m_blocks[static_cast<std::size_t>(block)] == BLOCK::OLD) {
        for (std::int64_t at = 0; at < BLOCK_BYTES; ++at)
            bytes[static_cast<std::size_t>(at)] = old_byte(block * BLOCK_BYTES + at);
    }
    return bytes;
}

std::uint8_t SPI_NOR_CHIP::byte_at(std::int64_t position) const
{
    return block_bytes(position / BLOCK_BYTES)[static_cast<std::size_t>(position % BLOCK_BYTES)];
}

bool SPI_NOR_CHIP::holds(const FLOW_IMAGE& image) const
{
    for (std::size_t block = 0; block < m_blocks.size(); ++block) {
        const std::int64_t start = static_cast<std::int64_t>(block) * BLOCK_BYTES;
        const bool untouched = m_blocks[block] == BLOCK::ERASED && !image.touches(start, BLOCK_BYTES);
        if (!untouched && block_bytes(static_cast<std::int64_t>(block)) != image.bytes(start, BLOCK_BYTES))
            return false;
    }
    return true;
}

bool SPI_NOR_CHIP::is_at_rest() const
{
    return m_selected == 0 && m_status_die == 0 && std::none_of(m_dies.begin(), m_dies.end(), [](const DIE& each) {
               return each.write_enabled || each.four_byte || each.extended_address != 0;
           });
}

bool SPI_NOR_CHIP::is_quad_enabled() const
{
    const DIE& chip = m_dies[static_cast<std::size_t>(m_selected)];
    switch (m_facts.quad_enable) {
    case CHIP_FACTS::IN_SR1:
        return chip.sr1 & SR1_QUAD;
    case CHIP_FACTS::IN_SR2:
        return chip.sr2 & SR2_QUAD;
    default:
        return true;
    }
}

void SPI_NOR_CHIP::enable_quad()
{
    for (DIE& each : m_dies) {
        each.sr1 |= m_facts.quad_enable == CHIP_FACTS::IN_SR1 ? SR1_QUAD : 0;
        each.sr2 |= m_facts.quad_enable == CHIP_FACTS::IN_SR2 ? SR2_QUAD : 0;
    }
}

bool SPI_NOR_CHIP::is_unprotected() const
{
    const DIE& chip = m_dies[static_cast<std::size_t>(m_selected)];
    return !chip.locked && (chip.sr1 & PROTECTION) == 0;
}
