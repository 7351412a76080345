// SPDX-License-Identifier: MIT

// The bytes of the protocol serprog, version 1. Numbers are sent with their lowest byte first.
#pragma once

#include <cstddef>
#include <cstdint>

namespace serprog {

constexpr std::uint8_t ACK = 0x06;
constexpr std::uint8_t NAK = 0x15;

constexpr std::uint8_t NO_OPERATION = 0x00;
constexpr std::uint8_t GET_VERSION = 0x01;
constexpr std::uint8_t GET_COMMANDS = 0x02;
constexpr std::uint8_t GET_NAME = 0x03;
constexpr std::uint8_t GET_SERIAL_BUFFER = 0x04;
constexpr std::uint8_t GET_BUSES = 0x05;
constexpr std::uint8_t GET_OPERATION_BUFFER = 0x07;
constexpr std::uint8_t GET_LONGEST_WRITE = 0x08;
constexpr std::uint8_t CLEAR_OPERATIONS = 0x0B;
constexpr std::uint8_t DELAY = 0x0E;
constexpr std::uint8_t EXECUTE = 0x0F;
constexpr std::uint8_t SYNCHRONISE = 0x10;
constexpr std::uint8_t GET_LONGEST_READ = 0x11;
constexpr std::uint8_t SET_BUS = 0x12;
constexpr std::uint8_t SPI = 0x13;
constexpr std::uint8_t SET_CLOCK = 0x14;
constexpr std::uint8_t SET_PINS = 0x15;

constexpr int VERSION = 1;
constexpr std::uint8_t SPI_BUS = 0x08;
constexpr std::size_t COMMANDS_BYTES = 32;
constexpr std::size_t NAME_BYTES = 16;
// What the length 0 of the longest write and read stands for.
constexpr std::int64_t LENGTH_MAX = 1 << 24;
// A serial buffer of this size never overflows.
constexpr std::int64_t FLOW_CONTROL = 0xFFFF;
// What a delay takes in the operation buffer.
constexpr std::int64_t DELAY_BYTES = 5;
// The command and the two lengths in front of the bytes of an SPI operation.
constexpr std::size_t SPI_HEADER_BYTES = 7;

template <typename BYTES>
void put_number(BYTES& bytes, std::uint64_t number, int length)
{
    for (int i = 0; i < length; ++i)
        bytes.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
}

inline std::int64_t get_number(const std::uint8_t* bytes, std::size_t length)
{
    std::int64_t number = 0;
    for (std::size_t i = 0; i < length; ++i)
        number |= static_cast<std::int64_t>(bytes[i]) << (8 * i);
    return number;
}

} // namespace serprog
