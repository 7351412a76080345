// SPDX-License-Identifier: MIT

// The way to a chip: one command at a time, from the fall of the select line to its rise, as docs/flows.md says.
#pragma once

#include "gfpe/gfpe_export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// A command in its phases: opcode, address, dummy clocks, data. Bytes are in the order in which they are sent.
struct GFPE_COMMAND
{
    std::uint8_t opcode = 0;
    // The lines of the phases: 1, 2 or 4. A phase that the command does not have counts as one line.
    int opcode_lines = 1;
    int address_lines = 1;
    int data_lines = 1;
    // 3, 4, or 0 for none.
    int address_bytes = 0;
    std::uint32_t address = 0;
    // Mode and wait clocks together, on the lines of the address. In the first `driven_dummy_clocks` of them the host
    // drives these lines high; in the others it has let go of the lines on which the chip answers.
    int dummy_clocks = 0;
    int driven_dummy_clocks = 0;
    // The bytes to the chip, owned by the caller and valid during the call; null when there are none. A command sends
    // data or receives them, never both.
    const std::uint8_t* out = nullptr;
    std::size_t out_length = 0;
    // The number of bytes from the chip.
    std::int64_t in_length = 0;
};

// Takes what the chip answers, in chunks, in their order.
class GFPE_EXPORT GFPE_READER
{
public:
    virtual ~GFPE_READER();
    // `bytes` are valid during the call. False: enough, the command is ended.
    virtual bool take(const std::uint8_t* bytes, std::size_t length) = 0;

protected:
    GFPE_READER() = default;
    GFPE_READER(const GFPE_READER&) = delete;
    GFPE_READER& operator=(const GFPE_READER&) = delete;
};

// Puts all that is read behind what is in `bytes`, which must outlive it.
class GFPE_APPENDER final : public GFPE_READER
{
public:
    explicit GFPE_APPENDER(std::vector<std::uint8_t>& bytes) : m_bytes(bytes) {}
    bool take(const std::uint8_t* bytes, std::size_t length) override
    {
        m_bytes.insert(m_bytes.end(), bytes, bytes + length);
        return true;
    }

private:
    std::vector<std::uint8_t>& m_bytes;
};

// What a connection can do. A run that needs more is refused before anything is sent.
struct GFPE_ABILITIES
{
    // The most data lines: 1, 2 or 4.
    int lines = 1;
    // The most bytes to the chip and from it in one command, opcode and address not counted; 0 for any number.
    std::int64_t longest_write = 0;
    std::int64_t longest_read = 0;
    // Of the clock, in hertz; 0 when unknown.
    std::int64_t clock = 0;
};

// A connection to one chip. Used from one thread at a time, but not bound to a thread. Throws nothing.
class GFPE_EXPORT GFPE_BUS
{
public:
    virtual ~GFPE_BUS();

    virtual GFPE_ABILITIES get_abilities() const = 0;
    // Sends a command; what the chip answers goes to `reader`, which may be null for a command without an answer. The
    // driven data lines and times are as docs/flows.md says. False: the connection is lost, get_last_error() says why,
    // nothing more can be sent, and the state of the chip is unknown.
    virtual bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) = 0;
    // Lets at least that time pass for the chip. False as above.
    virtual bool wait(std::int64_t microseconds) = 0;
    // Ends when all commands and waits so far are over. Commands without an answer and waits may be sent later than
    // they were asked for, and their failure is reported by a later call: what counts as done was settled. False as
    // above.
    virtual bool settle();
    // The time on this connection in microseconds, from any start: the clock of traces. An emulated chip has a clock of
    // its own, on which waiting takes no time of the user.
    virtual std::int64_t get_time() const;
    // A sentence for the user, UTF-8; empty when nothing went wrong.
    virtual std::string get_last_error() const = 0;

protected:
    GFPE_BUS() = default;
    GFPE_BUS(const GFPE_BUS&) = delete;
    GFPE_BUS& operator=(const GFPE_BUS&) = delete;
};
