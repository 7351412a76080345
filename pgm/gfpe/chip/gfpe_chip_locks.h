// SPDX-License-Identifier: MIT

// The block locks of SST26: 8K blocks at both ends, a 32K block behind each of them, and 64K blocks in between.
#pragma once

#include <cstdint>
#include <vector>

// As the chip's lock register has them: a bit for each 64K block from the second on, the lower and the upper 32K block,
// then two bits for each 8K block, of which the lower one locks it against changes. All are locked at first.
class GFPE_CHIP_LOCKS
{
public:
    // Of a chip of `bytes`, at least 128 KiB; 0 for a chip without locks.
    explicit GFPE_CHIP_LOCKS(std::int64_t bytes = 0);

    // The size of the block at `address`.
    std::int64_t block_bytes(std::int64_t address) const;
    bool is_locked(std::int64_t start, std::int64_t length) const;
    void reset();
    void unlock();
    // As the register is read and written, its highest bit first.
    const std::vector<std::uint8_t>& get_register() const { return m_register; }
    // False when these are not as many bytes as the register has.
    bool set_register(const std::uint8_t* bytes, std::size_t length);

private:
    int bit_of(std::int64_t address) const;
    int large_blocks() const { return static_cast<int>(m_bytes / 65536) - 2; }

    std::int64_t m_bytes;
    std::vector<std::uint8_t> m_register;
};
