// SPDX-License-Identifier: MIT

// A host that sends commands to an emulated chip as a test writes them.
#pragma once

#include "gfpe/gfpe_chip.h"

#include "gfpdb/gfpdb_catalogue.h"

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

class KEEPING_READER : public GFPE_READER
{
public:
    bool take(const std::uint8_t* bytes, std::size_t length) override
    {
        received.insert(received.end(), bytes, bytes + length);
        return true;
    }
    BYTES received;
};

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
        KEEPING_READER reader;
        chip->transfer(command, &reader);
        return reader.received;
    }
    void wait_until_ready() { chip->wait(std::int64_t(4000) * 1000 * 1000); }
    // Write enable, a command, and the time that it takes.
    void change(int opcode, const BYTES& out = {})
    {
        raw(0x06);
        raw(opcode, out);
        wait_until_ready();
    }
    int status() { return raw(0x05, {}, 1).front(); }
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
};
