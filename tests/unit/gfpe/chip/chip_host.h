// SPDX-License-Identifier: MIT

// A host that sends commands to an emulated chip as a test writes them.
#pragma once

#include "gfpe/gfpe_chip.h"

#include "gfpdb/gfpdb_catalogue.h"

#include <QStringList>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using BYTES = std::vector<std::uint8_t>;

inline GFPDB_PART part_called(const std::string& name)
{
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        if (part.name == name)
            return part;
    }
    throw std::runtime_error("no part is called " + name);
}

inline std::string hex(const BYTES& bytes)
{
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size()))
        .toHex()
        .toUpper()
        .toStdString();
}

// The chip of a part, and what a host does with it. All on one line unless a test says otherwise.
struct CHIP_HOST
{
    explicit CHIP_HOST(const GFPDB_PART& part)
    {
        std::string problem;
        chip = GFPE_CHIP::make(part, problem);
        if (!chip)
            throw std::runtime_error(problem);
    }
    explicit CHIP_HOST(std::unique_ptr<GFPE_CHIP> made) : chip(std::move(made))
    {
        if (!chip)
            throw std::runtime_error("no chip");
    }
    explicit CHIP_HOST(const std::string& name) : CHIP_HOST(part_called(name)) {}

    // Everything behind the opcode in `out`, as a programmer that knows no phases sends it.
    BYTES raw(int opcode, const BYTES& out = {}, std::int64_t in_length = 0)
    {
        GFPE_COMMAND command;
        command.opcode = static_cast<std::uint8_t>(opcode);
        command.out = out.data();
        command.out_length = out.size();
        command.in_length = in_length;
        return send(command);
    }
    BYTES send(const GFPE_COMMAND& command)
    {
        BYTES answer;
        GFPE_APPENDER reader(answer);
        chip->transfer(command, &reader);
        return answer;
    }
    void wait_until_ready() { chip->wait(std::int64_t(4000) * 1000 * 1000); }
    // Write enable, a command, and the time that it takes.
    void change(int opcode, const BYTES& out = {})
    {
        raw(0x06);
        raw(opcode, out);
        wait_until_ready();
    }
    // Commands as a logic analyser shows them, with ";" between two: the opcode and the bytes behind it in hexadecimal
    // ("02 000100 12*256": 256 times 12), "?" and the number of bytes to read, "ready" for a wait until the chip is
    // ready, "off" for the power off and on. Gives the bytes that were read, blanks between those of two commands.
    std::string play(const std::string& script)
    {
        std::string answers;
        for (const QString& step : QString::fromStdString(script).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            if (step.trimmed() == QLatin1String("ready"))
                wait_until_ready();
            else if (step.trimmed() == QLatin1String("off"))
                chip->cycle_power();
            else
                play_command(step.simplified(), answers);
        }
        return answers;
    }
    BYTES memory(std::int64_t position, std::size_t length) const
    {
        BYTES bytes(length);
        chip->read_memory(position, bytes.data(), length);
        return bytes;
    }
    // The notes in one line.
    std::string notes() const
    {
        std::string text;
        for (const std::string& note : chip->get_notes())
            text += (text.empty() ? "" : "; ") + note;
        return text;
    }

    std::unique_ptr<GFPE_CHIP> chip;

private:
    void play_command(const QString& step, std::string& answers)
    {
        BYTES bytes;
        std::int64_t asked = 0;
        for (const QString& word : step.split(QLatin1Char(' '))) {
            const QStringList times = word.split(QLatin1Char('*'));
            if (word.startsWith(QLatin1Char('?')))
                asked = word.mid(1).toInt();
            for (int count = times.size() > 1 ? times[1].toInt() : 1; count > 0 && asked == 0; --count) {
                const QByteArray more = QByteArray::fromHex(times[0].toLatin1());
                bytes.insert(bytes.end(), more.begin(), more.end());
            }
        }
        const BYTES answer = raw(bytes.at(0), BYTES(bytes.begin() + 1, bytes.end()), asked);
        if (asked)
            answers += (answers.empty() ? "" : " ") + hex(answer);
    }
};
