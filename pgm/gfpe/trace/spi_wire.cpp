// SPDX-License-Identifier: MIT
#include "spi_wire.h"

#include <cstdint>

namespace {

constexpr int HIGHEST_LINE = 3;
// While they carry nothing, IO3 and IO2 are high, IO1 is the chip's, and IO0 is low.
constexpr const char* AT_REST = "11z0";

class WIRE
{
public:
    void add_bits(std::uint64_t value, int bits, int lines)
    {
        for (int bit = bits; bit > 0; bit -= lines) {
            std::string clock = AT_REST;
            for (int line = 0; line < lines; ++line)
                clock[static_cast<std::size_t>(HIGHEST_LINE - line)] = value >> (bit - lines + line) & 1 ? '1' : '0';
            m_clocks.push_back(clock);
        }
    }

    // Lets the lines go on which the chip answers.
    void add_free(int clocks, int lines)
    {
        std::string clock = AT_REST;
        for (int line = 0; line < lines && lines > 1; ++line)
            clock[static_cast<std::size_t>(HIGHEST_LINE - line)] = 'z';
        m_clocks.insert(m_clocks.end(), static_cast<std::size_t>(clocks), clock);
    }

    std::vector<std::string> m_clocks;
};

} // namespace

std::vector<std::string> spi_clocks(const SPI_COMMAND& command, int answer_clocks)
{
    WIRE wire;
    wire.add_bits(static_cast<std::uint64_t>(command.opcode), 8, command.opcode_lines);
    wire.add_bits(static_cast<std::uint64_t>(command.address), 8 * command.address_bytes, command.address_lines);
    for (int clock = 0; clock < command.driven_dummy_clocks; ++clock) {
        const int bit = 8 - command.address_lines - clock * command.address_lines % 8;
        wire.add_bits(static_cast<std::uint64_t>(command.dummy_byte) >> bit, command.address_lines,
                      command.address_lines);
    }
    wire.add_free(command.dummy_clocks - command.driven_dummy_clocks, command.data_lines);
    for (const std::uint8_t each : command.out)
        wire.add_bits(each, 8, command.data_lines);
    wire.add_free(answer_clocks, command.data_lines);
    return wire.m_clocks;
}
