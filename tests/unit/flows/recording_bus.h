// SPDX-License-Identifier: MIT

// A bus that notes the commands and answers as a test wants it.
#pragma once

#include "spi_bus.h"

#include <QStringList>

#include <algorithm>

class RECORDING_BUS : public SPI_BUS
{
public:
    void transfer(const SPI_COMMAND& command, const SPI_SINK& sink) override
    {
        m_commands.push_back(command);
        const auto answers = m_answers.find(command.opcode);
        const FLOW_BYTES answer = answers == m_answers.end() ? FLOW_BYTES{0x00} : answers->second;
        for (std::int64_t done = 0; done < command.in_length;) {
            const std::int64_t length = std::min(SPI_CHUNK_BYTES, command.in_length - done);
            FLOW_BYTES chunk;
            for (std::int64_t at = done; at < done + length; ++at)
                chunk.push_back(answer[static_cast<std::size_t>(at) % answer.size()]);
            if (!sink(done, chunk.data(), length))
                return;
            done += length;
        }
    }
    void wait_us(std::int64_t microseconds) override { m_waited_us += microseconds; }

    // What the chip says to an opcode, over and over; 00 for all others.
    void answer(int opcode, const FLOW_BYTES& bytes) { m_answers[opcode] = bytes; }

    // The commands so far, as "06", "D8@10000" (with the address), "05?1" (bytes from the chip), "01=00 02" (to the
    // chip; of more than four the number: "02@100=256").
    QStringList commands() const
    {
        QStringList texts;
        for (const SPI_COMMAND& command : m_commands)
            texts += text_of(command);
        return texts;
    }

    std::vector<SPI_COMMAND> m_commands;
    std::int64_t m_waited_us = 0;

private:
    static QString hex(std::int64_t value) { return QString::number(value, 16).toUpper(); }

    static QString text_of(const SPI_COMMAND& command)
    {
        QString text = hex(command.opcode).rightJustified(2, '0');
        if (command.address_bytes > 0)
            text += '@' + hex(command.address);
        if (command.in_length > 0)
            text += '?' + QString::number(command.in_length);
        if (command.out.size() > 4)
            return text + '=' + QString::number(command.out.size());
        for (std::size_t at = 0; at < command.out.size(); ++at)
            text += (at == 0 ? '=' : ' ') + hex(command.out[at]).rightJustified(2, '0');
        return text;
    }

    std::map<int, FLOW_BYTES> m_answers;
};
