// SPDX-License-Identifier: MIT
#include "serprog/gfpe_serprog_talk.h"

#include "serprog/gfpe_serprog_protocol.h"

#include <algorithm>

namespace {

constexpr char NAME[] = "gfprog";
static_assert(sizeof NAME <= serprog::NAME_BYTES);
// The most bytes that a command sends to the chip, or receives from it.
constexpr std::int64_t LONGEST = 131072;
constexpr std::int64_t OPERATION_BYTES_MAX = 4096;
// What a line shows that no chip drives.
constexpr std::uint8_t NOTHING = 0xFF;

// What a client can ask for, and the bytes of its parameters.
struct COMMAND
{
    std::uint8_t number;
    std::size_t parameters;
};
constexpr COMMAND COMMANDS[] = {
    {serprog::NO_OPERATION, 0},
    {serprog::GET_VERSION, 0},
    {serprog::GET_COMMANDS, 0},
    {serprog::GET_NAME, 0},
    {serprog::GET_SERIAL_BUFFER, 0},
    {serprog::GET_BUSES, 0},
    {serprog::GET_OPERATION_BUFFER, 0},
    {serprog::GET_LONGEST_WRITE, 0},
    {serprog::CLEAR_OPERATIONS, 0},
    {serprog::DELAY, 4},
    {serprog::EXECUTE, 0},
    {serprog::SYNCHRONISE, 0},
    {serprog::GET_LONGEST_READ, 0},
    {serprog::SET_BUS, 1},
    {serprog::SPI, serprog::SPI_HEADER_BYTES - 1},
    {serprog::SET_CLOCK, 4},
    {serprog::SET_PINS, 1},
};

// The shorter of both; 0 stands for no limit of the bus.
std::int64_t limited(std::int64_t longest_of_bus)
{
    return longest_of_bus > 0 ? std::min(longest_of_bus, LONGEST) : LONGEST;
}

} // namespace

GFPE_SERPROG_TALK::GFPE_SERPROG_TALK(GFPE_BUS& bus)
    : m_bus(bus), m_longest_write(limited(bus.get_abilities().longest_write)),
      m_longest_read(limited(bus.get_abilities().longest_read)), m_bus_now(bus.get_time()),
      m_now(std::chrono::steady_clock::now())
{}

std::size_t GFPE_SERPROG_TALK::take(const std::uint8_t* bytes, std::size_t length)
{
    m_answer.clear();
    if (m_to_skip > 0) {
        const std::size_t skipped = std::min(m_to_skip, length);
        m_to_skip -= skipped;
        if (m_to_skip == 0)
            refuse();
        return skipped;
    }
    const std::size_t taken = std::min(find_length() - m_command.size(), length);
    m_command.insert(m_command.end(), bytes, bytes + taken);
    if (is_too_long()) {
        m_to_skip = static_cast<std::size_t>(get_parameter(1, 3));
        m_command.clear();
        if (m_to_skip == 0)
            refuse();
    } else if (m_command.size() == find_length()) {
        execute();
        m_command.clear();
    }
    return taken;
}

// As far as it can be told from what is there of the command.
std::size_t GFPE_SERPROG_TALK::find_length() const
{
    if (m_command.empty())
        return 1;
    const auto* const command = std::find_if(std::begin(COMMANDS), std::end(COMMANDS), [this](const COMMAND& known) {
        return known.number == m_command.front();
    });
    const std::size_t length = command == std::end(COMMANDS) ? 1 : 1 + command->parameters;
    if (m_command.front() != serprog::SPI || m_command.size() < serprog::SPI_HEADER_BYTES)
        return length;
    return length + static_cast<std::size_t>(get_parameter(1, 3));
}

// True as soon as the lengths of an SPI operation are there and more than what is offered.
bool GFPE_SERPROG_TALK::is_too_long() const
{
    return m_command.size() == serprog::SPI_HEADER_BYTES && m_command.front() == serprog::SPI &&
           (get_parameter(1, 3) > m_longest_write || get_parameter(4, 3) > m_longest_read);
}

std::int64_t GFPE_SERPROG_TALK::get_parameter(std::size_t at, std::size_t length) const
{
    return serprog::get_number(m_command.data() + at, length);
}

void GFPE_SERPROG_TALK::execute()
{
    switch (m_command.front()) {
    case serprog::NO_OPERATION:
    case serprog::SET_PINS:
        return accept();
    case serprog::GET_VERSION:
        return accept(serprog::VERSION, 2);
    case serprog::GET_COMMANDS:
        return answer_commands();
    case serprog::GET_NAME:
        return answer_name();
    case serprog::GET_SERIAL_BUFFER:
        return accept(serprog::FLOW_CONTROL, 2);
    case serprog::GET_BUSES:
        return accept(serprog::SPI_BUS, 1);
    case serprog::GET_OPERATION_BUFFER:
        return accept(OPERATION_BYTES_MAX, 2);
    case serprog::GET_LONGEST_WRITE:
        return accept(m_longest_write, 3);
    case serprog::GET_LONGEST_READ:
        return accept(m_longest_read, 3);
    case serprog::CLEAR_OPERATIONS:
        m_delay_us = 0;
        m_operation_bytes = 0;
        return accept();
    case serprog::DELAY:
        return add_delay();
    case serprog::EXECUTE:
        return run_delays();
    case serprog::SYNCHRONISE:
        m_answer = {serprog::NAK, serprog::ACK};
        return;
    case serprog::SET_BUS:
        return (m_command[1] & serprog::SPI_BUS) != 0 ? accept() : refuse();
    case serprog::SPI:
        return transfer();
    case serprog::SET_CLOCK:
        return set_clock();
    default:
        return refuse();
    }
}

void GFPE_SERPROG_TALK::accept(std::int64_t number, int length)
{
    m_answer.push_back(serprog::ACK);
    serprog::put_number(m_answer, static_cast<std::uint64_t>(number), length);
}

void GFPE_SERPROG_TALK::refuse()
{
    m_answer = {serprog::NAK};
}

void GFPE_SERPROG_TALK::answer_commands()
{
    m_answer.assign(1 + serprog::COMMANDS_BYTES, 0);
    m_answer.front() = serprog::ACK;
    for (const COMMAND& command : COMMANDS)
        m_answer[1 + command.number / 8] |= static_cast<std::uint8_t>(1 << (command.number % 8));
}

void GFPE_SERPROG_TALK::answer_name()
{
    accept();
    m_answer.insert(m_answer.end(), std::begin(NAME), std::end(NAME));
    m_answer.resize(1 + serprog::NAME_BYTES, 0);
}

// The clock of the bus is not changed: what a client hears is at most that.
void GFPE_SERPROG_TALK::set_clock()
{
    const std::int64_t asked = get_parameter(1, 4);
    const std::int64_t clock = m_bus.get_abilities().clock;
    if (asked == 0)
        return refuse();
    accept(clock > 0 ? std::min(asked, clock) : asked, 4);
}

void GFPE_SERPROG_TALK::add_delay()
{
    if (m_operation_bytes + serprog::DELAY_BYTES > OPERATION_BYTES_MAX)
        return refuse();
    m_operation_bytes += serprog::DELAY_BYTES;
    m_delay_us += get_parameter(1, 4);
    accept();
}

void GFPE_SERPROG_TALK::run_delays()
{
    catch_up();
    const bool has_waited = m_bus.wait(m_delay_us) && m_bus.settle();
    m_delay_us = 0;
    m_operation_bytes = 0;
    return has_waited ? accept() : refuse();
}

void GFPE_SERPROG_TALK::transfer()
{
    catch_up();
    const auto sent = static_cast<std::size_t>(get_parameter(1, 3));
    const auto received = static_cast<std::size_t>(get_parameter(4, 3));
    GFPE_COMMAND command;
    accept();
    if (sent > 0) {
        command.opcode = m_command[serprog::SPI_HEADER_BYTES];
        command.out_length = sent - 1;
        command.out = sent > 1 ? m_command.data() + serprog::SPI_HEADER_BYTES + 1 : nullptr;
        command.in_length = static_cast<std::int64_t>(received);
        GFPE_APPENDER appender(m_answer);
        if (!m_bus.transfer(command, &appender) || !m_bus.settle())
            return refuse();
    }
    m_answer.resize(1 + received, NOTHING);
}

// An emulated chip has a clock of its own, on which only commands and waits pass. For a client that waits by itself the
// time of this machine must pass as well.
void GFPE_SERPROG_TALK::catch_up()
{
    const auto real = std::chrono::steady_clock::now() - m_now;
    const std::int64_t passed = std::chrono::duration_cast<std::chrono::microseconds>(real).count();
    const std::int64_t missing = passed - (m_bus.get_time() - m_bus_now);
    if (missing > 0)
        m_bus.wait(missing);
    m_bus_now = m_bus.get_time();
    m_now = std::chrono::steady_clock::now();
}
