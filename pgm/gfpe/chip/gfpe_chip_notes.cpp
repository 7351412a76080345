// SPDX-License-Identifier: MIT
#include "chip/gfpe_chip_notes.h"

#include "gfpe/gfpe_chip.h"

#include <cstdio>

void GFPE_CHIP_NOTES_LIST::add(std::uint8_t opcode, const std::string& what)
{
    for (NOTE& note : m_notes) {
        if (note.opcode == opcode && note.what == what) {
            ++note.count;
            return;
        }
    }
    if (m_notes.size() < GFPE_CHIP_NOTES)
        m_notes.push_back({opcode, what, 1});
}

std::vector<std::string> GFPE_CHIP_NOTES_LIST::get_texts() const
{
    std::vector<std::string> texts;
    for (const NOTE& note : m_notes) {
        char opcode[8];
        std::snprintf(opcode, sizeof opcode, "%02X", static_cast<unsigned>(note.opcode));
        texts.push_back(std::string(opcode) + ": " + note.what +
                        (note.count > 1 ? " (" + std::to_string(note.count) + " times)" : ""));
    }
    return texts;
}
