// SPDX-License-Identifier: MIT

// What was wrong with the commands that a chip got, each once, with how often.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class GFPE_CHIP_NOTES_LIST
{
public:
    // Past GFPE_CHIP_NOTES different notes, others are dropped. `what` is a sentence's end, UTF-8.
    void add(std::uint8_t opcode, const std::string& what);
    // As GFPE_CHIP::get_notes().
    std::vector<std::string> get_texts() const;

private:
    struct NOTE
    {
        std::uint8_t opcode;
        std::string what;
        std::int64_t count;
    };
    std::vector<NOTE> m_notes;
};
