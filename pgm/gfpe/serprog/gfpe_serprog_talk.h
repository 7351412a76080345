// SPDX-License-Identifier: MIT

// What a server answers to one client.
#pragma once

#include "gfpe/gfpe_bus.h"

#include <chrono>
#include <vector>

// Takes a client's bytes as they come, cut anywhere, and gives the answers. Keeps at most one command, of as many bytes
// as it offers; a longer one is skipped and refused.
class GFPE_SERPROG_TALK
{
public:
    // `bus` outlives it.
    explicit GFPE_SERPROG_TALK(GFPE_BUS& bus);

    // Takes some of the bytes, not past the end of a command; returns how many, at least one. What is to be sent to the
    // client then is in get_answer() until the next call, most often nothing.
    std::size_t take(const std::uint8_t* bytes, std::size_t length);
    const std::vector<std::uint8_t>& get_answer() const { return m_answer; }

private:
    std::size_t find_length() const;
    bool is_too_long() const;
    std::int64_t get_parameter(std::size_t at, std::size_t length) const;
    void execute();
    void accept(std::int64_t number = 0, int length = 0);
    void refuse();
    void answer_commands();
    void answer_name();
    void set_clock();
    void add_delay();
    void run_delays();
    void transfer();
    void catch_up();

    GFPE_BUS& m_bus;
    const std::int64_t m_longest_write;
    const std::int64_t m_longest_read;
    // The command that is coming; and how many of its bytes are still to be skipped.
    std::vector<std::uint8_t> m_command;
    std::size_t m_to_skip = 0;
    std::vector<std::uint8_t> m_answer;
    // The operation buffer: it has nothing but delays.
    std::int64_t m_delay_us = 0;
    std::int64_t m_operation_bytes = 0;
    // The time of the bus when it last had caught up, and that of this machine.
    std::int64_t m_bus_now;
    std::chrono::steady_clock::time_point m_now;
};
