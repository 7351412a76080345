// SPDX-License-Identifier: MIT

// The client of serprog: a connection to the chip behind a programmer.
#pragma once

#include "serprog/gfpe_line.h"

#include "gfpe/gfpe_bus.h"

#include <chrono>
#include <vector>

// How long a client waits. docs/programming.md names these limits.
struct GFPE_SERPROG_LIMITS
{
    int connect_ms = 10000;
    // For the answer to one attempt to synchronise, and the number of attempts.
    int synchronise_ms = 1000;
    int attempts = 8;
    // For the next byte of an answer, or for room to send.
    int silence_ms = 10000;
    // How slow sending and answering may be.
    int bytes_per_second = 1000;
    // The most bytes that one command reads. A programmer cannot be interrupted in a command.
    std::int64_t longest_read = 65536;
};

// Those of a serial line.
GFPE_SERPROG_LIMITS gfpe_line_limits(int baud);

// Commands without an answer and short delays are kept until a command with one comes, and sent with it: a page that is
// programmed takes one round trip. What is kept fits into the programmer's buffer.
class GFPE_SERPROG_CLIENT final : public GFPE_BUS
{
public:
    GFPE_SERPROG_CLIENT(std::unique_ptr<GFPE_LINE> line, const GFPE_SERPROG_LIMITS& limits);
    // Lets the programmer go of the chip's pins.
    ~GFPE_SERPROG_CLIENT() override;

    // Synchronises, asks what the programmer can do, and takes the chip's pins; `clock` in hertz, 0 for the
    // programmer's own. False: get_last_error() says why.
    bool start(std::int64_t clock);

    GFPE_ABILITIES get_abilities() const override { return m_abilities; }
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override;
    bool wait(std::int64_t microseconds) override;
    bool settle() override;
    std::string get_last_error() const override { return m_error; }

private:
    using BYTES = std::vector<std::uint8_t>;

    bool synchronise();
    bool find_mark();
    bool confirm_mark();
    bool read_capabilities();
    bool read_lengths();
    bool take_pins(std::int64_t clock);
    bool has(std::uint8_t command) const;
    bool ask(std::uint8_t command, const BYTES& parameters, std::size_t length, BYTES& answer);
    bool ask_number(std::uint8_t command, std::size_t length, std::int64_t missing, std::int64_t& number);
    bool make_room(std::size_t bytes, std::size_t commands);
    GFPE_LINE_STATE send(int milliseconds);
    bool exchange(std::int64_t length, GFPE_READER* reader);
    bool is_line_quiet();
    bool receive(std::int64_t length, GFPE_READER* reader);
    bool check_answers(const std::uint8_t* bytes, std::size_t first, std::size_t count);
    int limit_of(std::int64_t bytes) const;
    bool fail(const std::string& text);
    bool fail(GFPE_LINE_STATE state);

    const std::unique_ptr<GFPE_LINE> m_line;
    const GFPE_SERPROG_LIMITS m_limits;
    GFPE_ABILITIES m_abilities;
    // The bit map of the programmer's commands; empty before it is known.
    BYTES m_commands;
    // What is to be sent, and the commands in it, each of which has an answer.
    BYTES m_out;
    BYTES m_sent;
    // What has come.
    BYTES m_in;
    std::size_t m_room;
    bool m_has_delays = false;
    std::int64_t m_delay_us = 0;
    bool m_has_pins = false;
    bool m_is_started = false;
    bool m_is_lost = false;
    std::string m_error;
};
