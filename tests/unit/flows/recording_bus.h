// SPDX-License-Identifier: MIT

// A bus that notes the commands and answers as a test wants it.
#pragma once

#include "sparse_image.h"

#include "gfpe/gfpe_bus.h"

#include <QStringList>

#include <algorithm>
#include <map>

class RECORDING_BUS : public GFPE_BUS
{
public:
    // With a copy of the bytes to the chip.
    struct SENT : GFPE_COMMAND
    {
        BYTES bytes;
    };

    GFPE_ABILITIES get_abilities() const override { return m_abilities; }
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override
    {
        m_commands.push_back({command, BYTES(command.out, command.out + command.out_length)});
        const auto answers = m_answers.find(command.opcode);
        const BYTES answer = answers == m_answers.end() ? BYTES{0x00} : answers->second;
        constexpr std::int64_t CHUNK = 4096;
        for (std::int64_t done = 0; done < command.in_length;) {
            BYTES chunk;
            for (const std::int64_t end = std::min(done + CHUNK, command.in_length); done < end; ++done)
                chunk.push_back(answer[static_cast<std::size_t>(done) % answer.size()]);
            if (!reader->take(chunk.data(), chunk.size()))
                break;
        }
        return true;
    }
    bool wait(std::int64_t microseconds) override
    {
        m_waited_us += microseconds;
        return true;
    }
    std::string get_last_error() const override { return {}; }

    // What the chip says to an opcode, over and over; 00 for all others.
    void answer(int opcode, const BYTES& bytes) { m_answers[opcode] = bytes; }

    // The commands so far, as "06", "D8@10000" (with the address), "05?1" (bytes from the chip), "01=00 02" (to the
    // chip; of more than four the number: "02@100=256").
    QStringList commands() const
    {
        QStringList texts;
        for (const SENT& command : m_commands)
            texts += text_of(command);
        return texts;
    }

    GFPE_ABILITIES m_abilities = {4, 0, 0, 0};
    std::vector<SENT> m_commands;
    std::int64_t m_waited_us = 0;

private:
    static QString hex(std::int64_t value) { return QString::number(value, 16).toUpper(); }

    static QString text_of(const SENT& command)
    {
        QString text = hex(command.opcode).rightJustified(2, '0');
        if (command.address_bytes > 0)
            text += '@' + hex(command.address);
        if (command.in_length > 0)
            text += '?' + QString::number(command.in_length);
        if (command.bytes.size() > 4)
            return text + '=' + QString::number(command.bytes.size());
        for (std::size_t at = 0; at < command.bytes.size(); ++at)
            text += (at == 0 ? '=' : ' ') + hex(command.bytes[at]).rightJustified(2, '0');
        return text;
    }

    std::map<int, BYTES> m_answers;
};
