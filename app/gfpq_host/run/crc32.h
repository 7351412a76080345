// SPDX-License-Identifier: MIT

// The CRC-32 of Ethernet, ZIP and PNG, by which people know a file again.
#pragma once

#include <cstddef>
#include <cstdint>

class CRC32
{
public:
    void add(const std::uint8_t* bytes, std::size_t length);
    std::uint32_t value() const { return ~m_state; }

private:
    std::uint32_t m_state = 0xFFFFFFFF;
};
