// SPDX-License-Identifier: MIT
#include "chip/gfpe_chip_locks.h"

#include <algorithm>

namespace {

constexpr std::int64_t SMALL_BYTES = 8192;
constexpr std::int64_t MIDDLE_BYTES = 32768;
constexpr std::int64_t LARGE_BYTES = 65536;
constexpr int SMALL_BLOCKS = 4; // at each end
constexpr int BITS = 8;

} // namespace

GFPE_CHIP_LOCKS::GFPE_CHIP_LOCKS(std::int64_t bytes) : m_bytes(bytes)
{
    if (bytes)
        m_register.resize(static_cast<std::size_t>(large_blocks() + 2 + 4 * SMALL_BLOCKS) / BITS);
    reset();
}

std::int64_t GFPE_CHIP_LOCKS::block_bytes(std::int64_t address) const
{
    const std::int64_t distance = std::min(address, m_bytes - 1 - address);
    if (distance < MIDDLE_BYTES)
        return SMALL_BYTES;
    return distance < LARGE_BYTES ? MIDDLE_BYTES : LARGE_BYTES;
}

int GFPE_CHIP_LOCKS::bit_of(std::int64_t address) const
{
    const bool is_upper = address >= m_bytes / 2;
    const int first_small = large_blocks() + 2;
    switch (block_bytes(address)) {
    case LARGE_BYTES:
        return static_cast<int>(address / LARGE_BYTES) - 1;
    case MIDDLE_BYTES:
        return large_blocks() + (is_upper ? 1 : 0);
    default:
        return first_small + (is_upper ? 2 * SMALL_BLOCKS : 0) +
               2 * static_cast<int>(address % MIDDLE_BYTES / SMALL_BYTES);
    }
}

bool GFPE_CHIP_LOCKS::is_locked(std::int64_t start, std::int64_t length) const
{
    for (std::int64_t at = start; !m_register.empty() && at < start + length;) {
        const auto bit = static_cast<std::size_t>(bit_of(at));
        if (m_register[m_register.size() - 1 - bit / BITS] >> bit % BITS & 1)
            return true;
        const std::int64_t size = block_bytes(at);
        at = at / size * size + size;
    }
    return false;
}

void GFPE_CHIP_LOCKS::reset()
{
    std::fill(m_register.begin(), m_register.end(), std::uint8_t(0xFF));
    // Of the 8K blocks, only the lower one of the two bits.
    std::fill_n(m_register.begin(), m_register.empty() ? 0 : 2, std::uint8_t(0x55));
}

void GFPE_CHIP_LOCKS::unlock()
{
    std::fill(m_register.begin(), m_register.end(), std::uint8_t(0));
}

bool GFPE_CHIP_LOCKS::set_register(const std::uint8_t* bytes, std::size_t length)
{
    if (length != m_register.size())
        return false;
    m_register.assign(bytes, bytes + length);
    return true;
}
