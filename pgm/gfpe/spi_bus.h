// SPDX-License-Identifier: MIT

// What travels between a host and a serial flash: one command from the fall of the select line to its rise.
#pragma once

#include "flow_image.h"

#include <functional>

struct SPI_COMMAND
{
    int opcode = 0;
    // Lines of the opcode, of the address and of the data. A phase that does not occur counts as one line.
    int opcode_lines = 1;
    int address_lines = 1;
    int data_lines = 1;
    int address_bytes = 0;
    std::int64_t address = 0;
    int dummy_clocks = 0;
    // The first of the dummy clocks, during which the host drives the lines of the address with the bits of
    // `dummy_byte`.
    int driven_dummy_clocks = 0;
    int dummy_byte = 0xFF;
    FLOW_BYTES out;
    std::int64_t in_length = 0;
};

// Takes a chunk of what the chip drives: `offset` within the data phase. False: enough.
using SPI_SINK = std::function<bool(std::int64_t offset, const std::uint8_t* bytes, std::int64_t length)>;

// The chunks of the chip's data; none is longer.
constexpr std::int64_t SPI_CHUNK_BYTES = 4096;

class SPI_BUS
{
public:
    virtual ~SPI_BUS() = default;
    // Runs a command; the chip's data goes to `sink` in chunks.
    virtual void transfer(const SPI_COMMAND& command, const SPI_SINK& sink) = 0;
    // Lets time pass.
    virtual void wait_us(std::int64_t microseconds) = 0;
};
