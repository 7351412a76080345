// SPDX-License-Identifier: MIT

// The cells of an emulated chip: as large as the chip, but only what was written takes memory.
#pragma once

#include "chip/gfpe_chip_file.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// Positions count from 0 to the size, which is a multiple of BLOCK_BYTES; callers stay within. Not for several threads.
class GFPE_CHIP_MEMORY
{
public:
    static constexpr std::int64_t BLOCK_BYTES = 65536;

    // Blank: every byte is FF.
    explicit GFPE_CHIP_MEMORY(std::int64_t size);

    std::int64_t get_size() const { return m_size; }
    // The bytes from `position` on, up to the end of their block at most; `length` is set to how many. They are valid
    // until the next change.
    const std::uint8_t* view(std::int64_t position, std::int64_t& length) const;
    // The same, to be changed.
    std::uint8_t* change(std::int64_t position, std::int64_t& length);
    // Makes a range blank.
    void erase(std::int64_t position, std::int64_t length);
    // Makes every byte `value`.
    void fill(std::uint8_t value);

    // As GFPE_CHIP has them.
    bool use_file(const std::string& path, std::string& problem);
    bool save(std::string& problem);

private:
    using BYTES = std::unique_ptr<std::uint8_t[]>;

    BYTES new_block(std::uint8_t value) const;
    std::int64_t block_of(std::int64_t position) const { return position / BLOCK_BYTES; }
    void mark_changed(std::int64_t block);
    const std::uint8_t* bytes_of(std::int64_t block) const;

    std::int64_t m_size;
    // One for each block; null for a block of which every byte is FF.
    std::vector<BYTES> m_blocks;
    BYTES m_blank;
    // Blocks that the file does not have yet as they are.
    std::vector<bool> m_changed;
    std::unique_ptr<GFPE_CHIP_FILE> m_file;
};
