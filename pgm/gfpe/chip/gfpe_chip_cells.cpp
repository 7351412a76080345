// SPDX-License-Identifier: MIT

// Programming and erasing, and what protects from both.
#include "chip/gfpe_chip_core.h"
#include "chip/gfpe_chip_times.h"

#include <algorithm>

using namespace gfpe_chip_times;

namespace {

using JOB = GFPE_CHIP_JOB;
using REG = GFPE_CHIP_REGISTER;
using PROTECTION = GFPE_CHIP_PROTECTION;

constexpr std::int64_t BLOCK_BYTES = 65536;

constexpr std::int64_t UNLOCK_US = 25;

// In the flag register, and in the first status register.
constexpr std::uint8_t PROGRAM_FAILED = 0x10;
constexpr std::uint8_t ERASE_FAILED = 0x20;
constexpr std::uint8_t PROTECTION_ERROR = 0x02;
constexpr std::uint8_t STATUS_PROGRAM_FAILED = 0x40;
constexpr std::uint8_t STATUS_ERASE_FAILED = 0x20;

constexpr int SECTORS = 0x40;              // the level counts 4K sectors
constexpr int COMPLEMENT = 0x40;           // what is protected is not, and the other way round
constexpr int CONFIGURATION_BOTTOM = 0x08; // the level counts from the bottom

} // namespace

bool GFPE_CHIP_CORE::may_change(const REQUEST& request, std::int64_t start, std::int64_t length)
{
    if (!is_write_enabled(request))
        return false;
    const bool is_erase = request.spec.job != JOB::PROGRAM;
    if (!is_protected(start, length) && !die().locks.is_locked(start, length))
        return true;
    note(request, is_erase ? "protected: nothing was erased" : "protected: nothing was programmed");
    fail(is_erase);
    return false;
}

// Chips with a flag register note it there. Others show it in the status register, and stay busy until it is cleared.
void GFPE_CHIP_CORE::fail(bool is_erase)
{
    REGISTERS& registers = die().registers;
    if (m_facts.has_flags)
        registers[static_cast<std::size_t>(REG::FLAGS)] |=
            PROTECTION_ERROR | (is_erase ? ERASE_FAILED : PROGRAM_FAILED);
    if (!m_facts.shows_errors)
        return;
    registers[static_cast<std::size_t>(REG::STATUS_1)] |= is_erase ? STATUS_ERASE_FAILED : STATUS_PROGRAM_FAILED;
    std::fill(m_busy_until.begin(), m_busy_until.end(), NEVER);
}

// From the lowest to behind the highest protected position.
void GFPE_CHIP_CORE::protected_range(std::int64_t& start, std::int64_t& end) const
{
    const int status = die().registers[static_cast<std::size_t>(REG::STATUS_1)];
    const std::int64_t size = die_bytes();
    const PROTECTION kind = m_facts.protection;
    const bool three = kind == PROTECTION::THREE_BITS || kind == PROTECTION::THREE_BITS_TOP;
    const int most = three ? 7 : 15;
    const int level = kind == PROTECTION::MICRON ? (status >> 2 & 7) | (status >> 3 & 8) : status >> 2 & most;
    std::int64_t length = (three ? std::max(size / 64, BLOCK_BYTES) : BLOCK_BYTES) << std::max(level - 1, 0);
    if (kind == PROTECTION::THREE_BITS && status & SECTORS)
        length = std::min(SECTOR_BYTES << std::max(level - 1, 0), BLOCK_BYTES / 2);
    if (level == 0 || kind == PROTECTION::NONE)
        length = 0;
    else if (level == most)
        length = size;
    start = is_protected_from_bottom() ? 0 : size - std::min(length, size);
    end = start + std::min(length, size);
}

bool GFPE_CHIP_CORE::is_protected_from_bottom() const
{
    const REGISTERS& registers = die().registers;
    const int status = registers[static_cast<std::size_t>(REG::STATUS_1)];
    switch (m_facts.protection) {
    case PROTECTION::THREE_BITS:
    case PROTECTION::MICRON:
        return status & 0x20;
    case PROTECTION::FOUR_BITS_TB:
        return status & 0x40;
    case PROTECTION::FOUR_BITS:
        return registers[static_cast<std::size_t>(REG::CONFIGURATION)] & CONFIGURATION_BOTTOM;
    default:
        return false;
    }
}

bool GFPE_CHIP_CORE::is_protected(std::int64_t start, std::int64_t length) const
{
    std::int64_t from = 0;
    std::int64_t to = 0;
    protected_range(from, to);
    if (m_facts.complements && die().registers[static_cast<std::size_t>(REG::STATUS_2)] & COMPLEMENT)
        return start < from || start + length > to;
    return start < to && start + length > from;
}

void GFPE_CHIP_CORE::execute_locks(const REQUEST& request)
{
    const std::vector<std::uint8_t>& locks = die().locks.get_register();
    if (request.spec.job == JOB::READ_LOCKS)
        return answer(request,
                      [&locks](std::int64_t at) { return locks[static_cast<std::size_t>(at) % locks.size()]; });
    if (!is_write_enabled(request) || loses_power())
        return;
    if (!die().locks.set_register(request.data, request.length))
        return note(request, "takes " + std::to_string(locks.size()) + " data bytes: ignored");
    start_busy(UNLOCK_US);
}

void GFPE_CHIP_CORE::execute_program(REQUEST& request)
{
    if (request.command.in_length || !request.length)
        return note(request, "a program command without data: ignored");
    std::int64_t address = request.address;
    if (address_bytes_of(request.spec) == 3)
        address |= static_cast<std::int64_t>(upper_address()) << 24;
    if (address >= die_bytes())
        note(request, "an address past the end, which the chip takes without its highest bits");
    address %= die_bytes();
    const std::int64_t page = m_facts.page;
    const std::int64_t page_start = address / page * page;
    if (!may_change(request, page_start, page))
        return;
    program_cells(request, page_start, address - page_start);
    const bool is_slow = ++m_programs % SLOW_EVERY == 0;
    start_busy_at(page_start, is_slow ? SLOW_PROGRAM_US : PROGRAM_US);
}

// The chip has room for one page: what is sent past its end goes on at its start, and of more than a page the last
// bytes stay.
void GFPE_CHIP_CORE::program_cells(const REQUEST& request, std::int64_t page_start, std::int64_t offset)
{
    const std::int64_t page = m_facts.page;
    const std::uint8_t* data = request.data;
    auto length = static_cast<std::int64_t>(request.length);
    if (offset + length > page)
        note(request, "goes past the end of its page of " + std::to_string(page) + " bytes, and on at its start");
    if (length > page) {
        offset = (offset + length - page) % page;
        data += length - page;
        length = page;
    }
    if (loses_power())
        length /= 2;
    const std::int64_t start = die_start() + page_start;
    const std::int64_t before_end = std::min(length, page - offset);
    bool is_right = program_run(start + offset, data, before_end);
    is_right = program_run(start, data + before_end, length - before_end) && is_right;
    if (!is_right)
        note(request, "programs cells that are not erased: bits that are 0 stay 0");
}

bool GFPE_CHIP_CORE::program_run(std::int64_t position, const std::uint8_t* data, std::int64_t length)
{
    std::uint8_t missed = 0;
    for (std::int64_t done = 0; done < length;) {
        std::int64_t here = 0;
        std::uint8_t* cells = m_memory.change(position + done, here);
        here = std::min(here, length - done);
        for (std::int64_t at = 0; at < here; ++at) {
            const std::uint8_t wanted = data[done + at];
            // FF is what a host sends to leave a byte alone.
            missed |= wanted == 0xFF ? 0 : wanted & ~cells[at];
            cells[at] &= wanted;
        }
        done += here;
    }
    const auto& fault = m_faults.does_not_program;
    if (fault && fault->position >= position && fault->position < position + length) {
        std::int64_t here = 0;
        *m_memory.change(fault->position, here) |= static_cast<std::uint8_t>(1 << (fault->bit & 7));
    }
    return missed == 0;
}

void GFPE_CHIP_CORE::execute_erase(const REQUEST& request)
{
    if (request.length || request.command.in_length)
        return note(request, "data behind an erase command: ignored");
    const std::int64_t part = m_facts.bytes / m_facts.erased_dies;
    std::int64_t address = request.address;
    if (address_bytes_of(request.spec) == 3)
        address |= static_cast<std::int64_t>(upper_address()) << 24;
    if (address >= die_bytes())
        note(request, "an address past the end, which the chip takes without its highest bits");
    address %= die_bytes();
    std::int64_t size = request.spec.erase_bytes;
    if (request.spec.job == JOB::ERASE_CHIP)
        size = die_bytes();
    else if (request.spec.job == JOB::ERASE_DIE)
        size = part;
    else if (m_facts.has_block_locks && size > SECTOR_BYTES)
        size = die().locks.block_bytes(address);
    const std::int64_t start = address / size * size;
    if (!may_change(request, start, size))
        return;
    if (request.spec.job != JOB::ERASE_CHIP && address != start)
        note(request,
             "an address within its sector of " + std::to_string(size) + " bytes, which is erased from its start on");
    // Sectors of 4K are in the place of the first large ones, and only their own command erases them.
    const std::int64_t split = m_facts.split_sectors * SECTOR_BYTES;
    const bool is_sector = request.spec.job == JOB::ERASE && size > SECTOR_BYTES;
    const std::int64_t skipped = is_sector && start < split ? std::min(split - start, size) : 0;
    erase_cells(die_start() + start + skipped, size - skipped);
    const bool is_slow = m_erases++ % SLOW_EVERY == 0;
    const std::int64_t time = is_slow ? slow_erase_us(size - skipped, die_bytes()) : ERASE_US;
    if (size == die_bytes())
        start_busy(time);
    else
        start_busy_at(start, time);
}

void GFPE_CHIP_CORE::erase_cells(std::int64_t start, std::int64_t length)
{
    if (loses_power())
        length /= 2;
    m_memory.erase(start, length);
    const auto& fault = m_faults.does_not_erase;
    if (fault && fault->position >= start && fault->position < start + length) {
        std::int64_t here = 0;
        *m_memory.change(fault->position, here) &= static_cast<std::uint8_t>(~(1 << (fault->bit & 7)));
    }
}
