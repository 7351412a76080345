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

constexpr int PROGRAM_FAILED = 0x10;
constexpr int ERASE_FAILED = 0x20;
constexpr int PROTECTION_ERROR = 0x02;

} // namespace

bool GFPE_CHIP_CORE::may_change(const REQUEST& request, std::int64_t start, std::int64_t length)
{
    if (!is_write_enabled(request))
        return false;
    const bool is_erase = request.spec.job != JOB::PROGRAM;
    if (!is_protected(start, length) && !is_locked(start, length))
        return true;
    note(request, is_erase ? "protected: nothing was erased" : "protected: nothing was programmed");
    fail_flags(PROTECTION_ERROR | (is_erase ? ERASE_FAILED : PROGRAM_FAILED));
    return false;
}

void GFPE_CHIP_CORE::fail_flags(int bits)
{
    if (m_facts.has_flags)
        die().registers[static_cast<std::size_t>(REG::FLAGS)] |= static_cast<std::uint8_t>(bits);
}

void GFPE_CHIP_CORE::protected_range(std::int64_t& start, std::int64_t& end) const
{
    start = end = 0;
    const int status = die().registers[static_cast<std::size_t>(REG::STATUS_1)];
    const std::int64_t size = die_bytes();
    const bool three = m_facts.protection == PROTECTION::THREE_BITS;
    int level = status >> 2 & (three ? 7 : 15);
    bool from_bottom = three ? status & 0x20 : m_facts.protection == PROTECTION::FOUR_BITS_TB && (status & 0x40);
    if (m_facts.protection == PROTECTION::MICRON) {
        level = (status >> 2 & 7) | (status & 0x40 ? 8 : 0);
        from_bottom = status & 0x20;
    }
    if (m_facts.protection == PROTECTION::NONE || level == 0)
        return;
    const std::int64_t unit = three ? std::max(size / 64, BLOCK_BYTES) : BLOCK_BYTES;
    const std::int64_t length = level == (three ? 7 : 15) ? size : std::min(unit << (level - 1), size);
    start = from_bottom ? 0 : size - length;
    end = start + length;
}

bool GFPE_CHIP_CORE::is_protected(std::int64_t start, std::int64_t length) const
{
    std::int64_t from = 0;
    std::int64_t to = 0;
    protected_range(from, to);
    return start < to && start + length > from;
}

// The lock of each block: 8K ones at both ends, then a 32K one each, and 64K between them.
bool GFPE_CHIP_CORE::is_locked(std::int64_t start, std::int64_t length) const
{
    for (std::int64_t at = start; !die().locks.empty() && at < start + length;) {
        const std::int64_t size = graded_size(at);
        if (die().locks[static_cast<std::size_t>(at / SECTOR_BYTES)])
            return true;
        at = at / size * size + size;
    }
    return false;
}

void GFPE_CHIP_CORE::reset_locks(DIE& which) const
{
    if (m_facts.has_block_locks)
        which.locks.assign(static_cast<std::size_t>(m_facts.bytes / SECTOR_BYTES), 1);
}

void GFPE_CHIP_CORE::execute_locks(const REQUEST&) {}

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

std::int64_t GFPE_CHIP_CORE::graded_size(std::int64_t address) const
{
    constexpr std::int64_t SMALL = 4 * 8192;
    const std::int64_t distance = std::min(address, m_facts.bytes - 1 - address);
    if (distance < SMALL)
        return 8192;
    return distance < BLOCK_BYTES ? 32768 : 65536;
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
        size = graded_size(address);
    const std::int64_t start = address / size * size;
    if (!may_change(request, start, size))
        return;
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
