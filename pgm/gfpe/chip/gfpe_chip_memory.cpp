// SPDX-License-Identifier: MIT
#include "chip/gfpe_chip_memory.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::uint8_t BLANK = 0xFF;

} // namespace

GFPE_CHIP_MEMORY::GFPE_CHIP_MEMORY(std::int64_t size)
    : m_size(size), m_blocks(static_cast<std::size_t>(size / BLOCK_BYTES)), m_blank(new_block(BLANK)),
      m_changed(m_blocks.size())
{}

GFPE_CHIP_MEMORY::BYTES GFPE_CHIP_MEMORY::new_block(std::uint8_t value) const
{
    BYTES block(new std::uint8_t[BLOCK_BYTES]);
    std::memset(block.get(), value, BLOCK_BYTES);
    return block;
}

const std::uint8_t* GFPE_CHIP_MEMORY::bytes_of(std::int64_t block) const
{
    const BYTES& bytes = m_blocks[static_cast<std::size_t>(block)];
    return bytes ? bytes.get() : m_blank.get();
}

void GFPE_CHIP_MEMORY::mark_changed(std::int64_t block)
{
    m_changed[static_cast<std::size_t>(block)] = true;
}

const std::uint8_t* GFPE_CHIP_MEMORY::view(std::int64_t position, std::int64_t& length) const
{
    const std::int64_t offset = position % BLOCK_BYTES;
    length = BLOCK_BYTES - offset;
    return bytes_of(block_of(position)) + offset;
}

std::uint8_t* GFPE_CHIP_MEMORY::change(std::int64_t position, std::int64_t& length)
{
    const std::int64_t block = block_of(position);
    BYTES& bytes = m_blocks[static_cast<std::size_t>(block)];
    if (!bytes)
        bytes = new_block(BLANK);
    mark_changed(block);
    const std::int64_t offset = position % BLOCK_BYTES;
    length = BLOCK_BYTES - offset;
    return bytes.get() + offset;
}

void GFPE_CHIP_MEMORY::erase(std::int64_t position, std::int64_t length)
{
    while (length > 0) {
        const std::int64_t block = block_of(position);
        const std::int64_t offset = position % BLOCK_BYTES;
        const std::int64_t here = std::min(BLOCK_BYTES - offset, length);
        BYTES& bytes = m_blocks[static_cast<std::size_t>(block)];
        if (bytes) {
            mark_changed(block);
            if (here == BLOCK_BYTES)
                bytes.reset();
            else
                std::memset(bytes.get() + offset, BLANK, static_cast<std::size_t>(here));
        }
        position += here;
        length -= here;
    }
}

void GFPE_CHIP_MEMORY::fill(std::uint8_t value)
{
    erase(0, m_size);
    if (value == BLANK)
        return;
    for (std::size_t block = 0; block < m_blocks.size(); ++block) {
        m_blocks[block] = new_block(value);
        m_changed[block] = true;
    }
}

bool GFPE_CHIP_MEMORY::use_file(const std::string& path, std::string& problem)
{
    std::unique_ptr<GFPE_CHIP_FILE> file = GFPE_CHIP_FILE::open(path, m_size, problem);
    if (!file)
        return false;
    std::vector<BYTES> blocks(m_blocks.size());
    BYTES read = new_block(BLANK);
    for (std::size_t block = 0; block < blocks.size(); ++block) {
        if (!file->read(static_cast<std::int64_t>(block) * BLOCK_BYTES, read.get(), BLOCK_BYTES, problem))
            return false;
        if (std::memcmp(read.get(), m_blank.get(), BLOCK_BYTES) == 0)
            continue;
        blocks[block] = std::move(read);
        read = new_block(BLANK);
    }
    m_blocks = std::move(blocks);
    m_changed.assign(m_blocks.size(), false);
    m_file = std::move(file);
    return true;
}

bool GFPE_CHIP_MEMORY::save(std::string& problem)
{
    if (!m_file)
        return true;
    for (std::size_t block = 0; block < m_blocks.size(); ++block) {
        if (!m_changed[block])
            continue;
        const auto number = static_cast<std::int64_t>(block);
        if (!m_file->write(number * BLOCK_BYTES, bytes_of(number), BLOCK_BYTES, problem))
            return false;
        m_changed[block] = false;
    }
    return m_file->sync(problem);
}
