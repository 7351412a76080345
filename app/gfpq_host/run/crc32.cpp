// SPDX-License-Identifier: MIT
#include "run/crc32.h"

#include <array>

namespace {

constexpr std::uint32_t REVERSED_POLYNOMIAL = 0xEDB88320;
constexpr std::size_t BYTE_VALUES = 256;
// As many bytes are taken in one step.
constexpr std::size_t SLICES = 8;

using TABLES = std::array<std::array<std::uint32_t, BYTE_VALUES>, SLICES>;

constexpr TABLES make_tables()
{
    TABLES tables = {};
    for (std::uint32_t value = 0; value < BYTE_VALUES; ++value) {
        std::uint32_t state = value;
        for (int bit = 0; bit < 8; ++bit)
            state = (state >> 1) ^ ((state & 1) != 0 ? REVERSED_POLYNOMIAL : 0);
        tables[0][value] = state;
    }
    for (std::size_t slice = 1; slice < SLICES; ++slice) {
        for (std::size_t value = 0; value < BYTE_VALUES; ++value) {
            const std::uint32_t before = tables[slice - 1][value];
            tables[slice][value] = (before >> 8) ^ tables[0][before & 0xFF];
        }
    }
    return tables;
}

constexpr TABLES TABLE = make_tables();

} // namespace

void CRC32::add(const std::uint8_t* bytes, std::size_t length)
{
    std::uint32_t state = m_state;
    for (; length >= SLICES; length -= SLICES, bytes += SLICES) {
        std::uint32_t next = 0;
        for (std::size_t place = 0; place < SLICES; ++place) {
            const std::uint32_t mixed = place < 4 ? (state >> (8 * place)) & 0xFF : 0;
            next ^= TABLE[SLICES - 1 - place][bytes[place] ^ mixed];
        }
        state = next;
    }
    for (; length > 0; --length, ++bytes)
        state = (state >> 8) ^ TABLE[0][(state ^ *bytes) & 0xFF];
    m_state = state;
}
