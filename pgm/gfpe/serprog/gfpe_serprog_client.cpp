// SPDX-License-Identifier: MIT
#include "serprog/gfpe_serprog_client.h"

#include "serprog/gfpe_serprog_protocol.h"

#include <algorithm>
#include <thread>

namespace {

using CLOCK = std::chrono::steady_clock;

constexpr const char* UNKNOWN_STATE = " The state of the chip is unknown.";

// What is sent before an attempt to synchronise: at first for a programmer that waits for the rest of a short command;
// then, as long as nothing comes back, for one that waits for the rest of a page.
constexpr std::size_t FIRST_FILL = 16;
constexpr std::size_t NEXT_FILL = 1024;
// The serial buffer of a programmer that does not tell.
constexpr std::int64_t SMALL_BUFFER = 16;
// The most that is kept back, and its most commands.
constexpr std::size_t MOST_KEPT = 16384;
constexpr std::size_t MOST_COMMANDS = 1024;
// The longest delay that is sent to the programmer at once; it hears nothing meanwhile.
constexpr std::int64_t LONGEST_DELAY_US = 1000000;
// Opcode and address, and with them the whole bytes of 31 dummy clocks.
constexpr std::int64_t ADDRESS_BYTES = 5;
constexpr std::int64_t DUMMY_BYTES = 3;
constexpr int BITS = 8;
constexpr std::uint8_t HIGH = 0xFF;
constexpr std::size_t IN_BYTES = 65536;

// Dummy clocks that are no whole byte: the programmer receives whole bytes, so that the chip's begin within the first
// one. Takes one byte more than it hands on.
class SHIFTING_READER : public GFPE_READER
{
public:
    SHIFTING_READER(GFPE_READER* reader, int clocks) : m_reader(reader), m_clocks(clocks) {}

    bool take(const std::uint8_t* bytes, std::size_t length) override
    {
        m_shifted.clear();
        for (std::size_t i = 0; i < length; ++i) {
            if (m_has_first)
                m_shifted.push_back(static_cast<std::uint8_t>(m_last << m_clocks | bytes[i] >> (BITS - m_clocks)));
            m_last = bytes[i];
            m_has_first = true;
        }
        return !m_reader || m_shifted.empty() || m_reader->take(m_shifted.data(), m_shifted.size());
    }

private:
    GFPE_READER* const m_reader;
    const int m_clocks;
    bool m_has_first = false;
    int m_last = 0;
    std::vector<std::uint8_t> m_shifted;
};

std::string hex(std::uint8_t byte)
{
    constexpr char DIGITS[] = "0123456789ABCDEF";
    return {DIGITS[byte >> 4], DIGITS[byte & 0xF]};
}

int milliseconds_until(CLOCK::time_point end)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - CLOCK::now()).count();
    return static_cast<int>(std::clamp<std::int64_t>(left, 0, INT32_MAX));
}

} // namespace

GFPE_SERPROG_CLIENT::GFPE_SERPROG_CLIENT(std::unique_ptr<GFPE_LINE> line, const GFPE_SERPROG_LIMITS& limits)
    : m_line(std::move(line)), m_limits(limits), m_in(IN_BYTES), m_room(MOST_KEPT)
{}

GFPE_SERPROG_CLIENT::~GFPE_SERPROG_CLIENT()
{
    BYTES none;
    if (!m_has_pins || (settle() && ask(serprog::SET_PINS, {0}, 0, none)))
        return;
    m_out = {serprog::SET_PINS, 0};
    send(0);
}

bool GFPE_SERPROG_CLIENT::start(std::int64_t clock)
{
    m_is_started = synchronise() && read_capabilities() && read_lengths() && take_pins(clock);
    return m_is_started;
}

// Nothing that stood in a buffer of the line is taken for an answer: after the mark the line is emptied, and a second
// one must come alone.
bool GFPE_SERPROG_CLIENT::synchronise()
{
    for (int attempt = 0; attempt < m_limits.attempts; ++attempt) {
        m_out.assign(attempt == 0 ? FIRST_FILL : NEXT_FILL, serprog::NO_OPERATION);
        if (find_mark() && confirm_mark()) {
            m_out.clear();
            return true;
        }
        if (m_is_lost)
            return false;
    }
    return fail("The programmer does not answer as the protocol serprog has it.");
}

// True when the last bytes that came are the answer to SYNCHRONISE.
bool GFPE_SERPROG_CLIENT::find_mark()
{
    m_out.push_back(serprog::SYNCHRONISE);
    const CLOCK::time_point end = CLOCK::now() + std::chrono::milliseconds(m_limits.synchronise_ms);
    GFPE_LINE_STATE state = send(m_limits.synchronise_ms);
    std::uint8_t last[2] = {};
    while (state == GFPE_LINE_STATE::DONE && CLOCK::now() < end) {
        std::size_t length = 0;
        state = m_line->read(m_in.data(), m_in.size(), length, milliseconds_until(end));
        for (std::size_t i = 0; i < length; ++i) {
            last[0] = last[1];
            last[1] = m_in[i];
        }
        if (last[0] == serprog::NAK && last[1] == serprog::ACK)
            return true;
    }
    return state == GFPE_LINE_STATE::LOST && fail(state);
}

bool GFPE_SERPROG_CLIENT::confirm_mark()
{
    const CLOCK::time_point end = CLOCK::now() + std::chrono::milliseconds(m_limits.synchronise_ms);
    std::size_t length = 0;
    GFPE_LINE_STATE state = GFPE_LINE_STATE::DONE;
    while (state == GFPE_LINE_STATE::DONE && CLOCK::now() < end)
        state = m_line->read(m_in.data(), m_in.size(), length, 0);
    m_out = {serprog::SYNCHRONISE};
    if (state == GFPE_LINE_STATE::TIMED_OUT)
        state = send(m_limits.synchronise_ms);
    std::size_t received = 0;
    while (state == GFPE_LINE_STATE::DONE && received < 2) {
        state = m_line->read(m_in.data() + received, m_in.size() - received, length, milliseconds_until(end));
        received += length;
    }
    if (state == GFPE_LINE_STATE::LOST)
        return fail(state);
    return received == 2 && m_in[0] == serprog::NAK && m_in[1] == serprog::ACK;
}

bool GFPE_SERPROG_CLIENT::read_capabilities()
{
    std::int64_t version = 0;
    if (!ask_number(serprog::GET_VERSION, 2, 0, version))
        return false;
    if (version != serprog::VERSION)
        return fail("The programmer speaks version " + std::to_string(version) +
                    " of the protocol serprog; only version " + std::to_string(serprog::VERSION) + " is known.");
    BYTES commands;
    if (!ask(serprog::GET_COMMANDS, {}, serprog::COMMANDS_BYTES, commands))
        return false;
    m_commands = commands;
    std::int64_t buses = 0;
    if (!ask_number(serprog::GET_BUSES, 1, serprog::SPI_BUS, buses))
        return false;
    if (!has(serprog::SPI) || (buses & serprog::SPI_BUS) == 0)
        return fail("The programmer has no SPI bus.");
    return true;
}

bool GFPE_SERPROG_CLIENT::read_lengths()
{
    std::int64_t buffer = 0;
    std::int64_t operations = 0;
    std::int64_t write = 0;
    std::int64_t read = 0;
    if (!ask_number(serprog::GET_SERIAL_BUFFER, 2, SMALL_BUFFER, buffer) ||
        !ask_number(serprog::GET_OPERATION_BUFFER, 2, 0, operations) ||
        !ask_number(serprog::GET_LONGEST_WRITE, 3, 0, write) || !ask_number(serprog::GET_LONGEST_READ, 3, 0, read))
        return false;
    // The lengths of a command have 24 bits themselves.
    write = std::min(write == 0 ? serprog::LENGTH_MAX : write, serprog::LENGTH_MAX - 1);
    read = std::min(read == 0 ? serprog::LENGTH_MAX : read, serprog::LENGTH_MAX - 1);
    if (write <= ADDRESS_BYTES + DUMMY_BYTES || read <= 1)
        return fail("The programmer sends at most " + std::to_string(write) + " bytes and receives at most " +
                    std::to_string(read) + " bytes in one command. This is too little.");
    m_abilities.longest_write = write - ADDRESS_BYTES;
    // One byte more is received for dummy clocks that are no whole byte.
    m_abilities.longest_read = std::min(read - 1, m_limits.longest_read);
    if (buffer < serprog::FLOW_CONTROL)
        m_room = std::min(m_room, static_cast<std::size_t>(buffer));
    m_has_delays = has(serprog::DELAY) && has(serprog::EXECUTE) && operations >= serprog::DELAY_BYTES;
    return true;
}

bool GFPE_SERPROG_CLIENT::take_pins(std::int64_t clock)
{
    BYTES answer;
    if (has(serprog::CLEAR_OPERATIONS) && !ask(serprog::CLEAR_OPERATIONS, {}, 0, answer))
        return false;
    if (has(serprog::SET_BUS) && !ask(serprog::SET_BUS, {serprog::SPI_BUS}, 0, answer))
        return false;
    if (clock > 0) {
        if (!has(serprog::SET_CLOCK))
            return fail("The clock of this programmer cannot be set.");
        BYTES hertz;
        serprog::put_number(hertz, static_cast<std::uint64_t>(clock), 4);
        if (!ask(serprog::SET_CLOCK, hertz, 4, answer))
            return false;
        m_abilities.clock = serprog::get_number(answer.data(), 4);
    }
    if (!has(serprog::SET_PINS))
        return true;
    m_has_pins = ask(serprog::SET_PINS, {1}, 0, answer);
    return m_has_pins;
}

bool GFPE_SERPROG_CLIENT::has(std::uint8_t command) const
{
    return (m_commands[command / BITS] >> (command % BITS) & 1) != 0;
}

// Sends a command, and takes `length` bytes behind its ACK.
bool GFPE_SERPROG_CLIENT::ask(std::uint8_t command, const BYTES& parameters, std::size_t length, BYTES& answer)
{
    answer.clear();
    m_sent.push_back(command);
    m_out.push_back(command);
    m_out.insert(m_out.end(), parameters.begin(), parameters.end());
    GFPE_APPENDER keeper(answer);
    return exchange(static_cast<std::int64_t>(length), &keeper);
}

// `missing` for a programmer that does not have the command.
bool GFPE_SERPROG_CLIENT::ask_number(std::uint8_t command, std::size_t length, std::int64_t missing,
                                     std::int64_t& number)
{
    number = missing;
    if (!m_commands.empty() && !has(command))
        return true;
    BYTES answer;
    if (!ask(command, {}, length, answer))
        return false;
    number = serprog::get_number(answer.data(), answer.size());
    return true;
}

bool GFPE_SERPROG_CLIENT::transfer(const GFPE_COMMAND& command, GFPE_READER* reader)
{
    if (m_is_lost)
        return false;
    const auto dummy_bytes = static_cast<std::size_t>(command.dummy_clocks / BITS);
    const int dummy_bits = command.in_length > 0 ? command.dummy_clocks % BITS : 0;
    const auto address_bytes = static_cast<std::size_t>(command.address_bytes);
    const std::size_t sent = 1 + address_bytes + dummy_bytes + command.out_length;
    const std::int64_t received = command.in_length + (dummy_bits > 0 ? 1 : 0);
    if (std::max({command.opcode_lines, command.address_lines, command.data_lines}) > 1 ||
        static_cast<std::int64_t>(sent) >= serprog::LENGTH_MAX || received >= serprog::LENGTH_MAX)
        return fail("This programmer cannot carry the command " + hex(command.opcode) + ".");
    if (!make_room(serprog::SPI_HEADER_BYTES + sent, 1))
        return false;

    m_sent.push_back(serprog::SPI);
    m_out.push_back(serprog::SPI);
    serprog::put_number(m_out, sent, 3);
    serprog::put_number(m_out, static_cast<std::uint64_t>(received), 3);
    m_out.push_back(command.opcode);
    for (int i = command.address_bytes - 1; i >= 0; --i)
        m_out.push_back(static_cast<std::uint8_t>(command.address >> (BITS * i)));
    m_out.insert(m_out.end(), dummy_bytes, HIGH);
    if (command.out)
        m_out.insert(m_out.end(), command.out, command.out + command.out_length);
    if (received == 0)
        return true;
    SHIFTING_READER shifting(reader, dummy_bits);
    return exchange(received, dummy_bits > 0 ? &shifting : reader);
}

// A short delay is the programmer's: it begins at the end of the command before it, and takes no round trip. Without
// that the commands are sent and answered before the time is waited here.
bool GFPE_SERPROG_CLIENT::wait(std::int64_t microseconds)
{
    if (m_is_lost)
        return false;
    if (!m_has_delays) {
        if (microseconds > 0 && !settle())
            return false;
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
        return true;
    }
    while (microseconds > 0) {
        const std::int64_t slice = std::min(microseconds, LONGEST_DELAY_US);
        if (m_delay_us + slice > LONGEST_DELAY_US && !settle())
            return false;
        if (!make_room(serprog::DELAY_BYTES + 1, 2))
            return false;
        m_sent.insert(m_sent.end(), {serprog::DELAY, serprog::EXECUTE});
        m_out.push_back(serprog::DELAY);
        serprog::put_number(m_out, static_cast<std::uint64_t>(slice), 4);
        m_out.push_back(serprog::EXECUTE);
        m_delay_us += slice;
        microseconds -= slice;
    }
    return true;
}

bool GFPE_SERPROG_CLIENT::settle()
{
    if (m_is_lost)
        return false;
    return m_sent.empty() || exchange(0, nullptr);
}

// Sends what is kept back when it and the next command do not fit into the programmer's buffer together.
bool GFPE_SERPROG_CLIENT::make_room(std::size_t bytes, std::size_t commands)
{
    if (m_out.size() + bytes <= m_room && m_sent.size() + commands <= MOST_COMMANDS)
        return true;
    return settle();
}

// Sends m_out.
GFPE_LINE_STATE GFPE_SERPROG_CLIENT::send(int milliseconds)
{
    const CLOCK::time_point end = CLOCK::now() + std::chrono::milliseconds(milliseconds);
    GFPE_LINE_STATE state = GFPE_LINE_STATE::DONE;
    for (std::size_t at = 0; at < m_out.size() && state == GFPE_LINE_STATE::DONE;) {
        std::size_t sent = 0;
        state = m_line->write(m_out.data() + at, m_out.size() - at, sent, milliseconds_until(end));
        at += sent;
    }
    return state;
}

// Sends what is kept back; takes its answers, and `length` bytes behind the last one.
bool GFPE_SERPROG_CLIENT::exchange(std::int64_t length, GFPE_READER* reader)
{
    if (!is_line_quiet())
        return false;
    const GFPE_LINE_STATE state = send(limit_of(static_cast<std::int64_t>(m_out.size())));
    if (state != GFPE_LINE_STATE::DONE)
        return fail(state);
    return receive(length, reader);
}

// The milliseconds in which that many bytes come or go.
int GFPE_SERPROG_CLIENT::limit_of(std::int64_t bytes) const
{
    return m_limits.silence_ms + static_cast<int>(bytes * 1000 / m_limits.bytes_per_second);
}

// A byte that nobody asked for would be taken for an answer, and every answer after it for another one's.
bool GFPE_SERPROG_CLIENT::is_line_quiet()
{
    std::size_t length = 0;
    const GFPE_LINE_STATE state = m_line->read(m_in.data(), 1, length, 0);
    if (state == GFPE_LINE_STATE::LOST)
        return fail(state);
    return state == GFPE_LINE_STATE::TIMED_OUT || fail("The programmer sends more than it was asked for.");
}

bool GFPE_SERPROG_CLIENT::receive(std::int64_t length, GFPE_READER* reader)
{
    const int delay_ms = static_cast<int>(m_delay_us / 1000);
    const int silence_ms = m_limits.silence_ms + delay_ms;
    const CLOCK::time_point end = CLOCK::now() + std::chrono::milliseconds(limit_of(length) + delay_ms);
    std::size_t answered = 0;
    while (answered < m_sent.size() || length > 0) {
        std::size_t received = 0;
        const GFPE_LINE_STATE state =
            m_line->read(m_in.data(), m_in.size(), received, std::min(silence_ms, milliseconds_until(end)));
        if (state != GFPE_LINE_STATE::DONE)
            return fail(state);
        const std::size_t answers = std::min(received, m_sent.size() - answered);
        if (!check_answers(m_in.data(), answered, answers))
            return false;
        answered += answers;
        const auto data = static_cast<std::size_t>(std::min<std::int64_t>(length, received - answers));
        length -= data;
        if (answers + data < received)
            return fail("The programmer sends more than it was asked for.");
        // The command cannot be ended in its middle: what nobody wants is read as well.
        if (data > 0 && reader && !reader->take(m_in.data() + answers, data))
            reader = nullptr;
    }
    m_out.clear();
    m_sent.clear();
    m_delay_us = 0;
    return true;
}

// The answers to the commands from the number `first` on.
bool GFPE_SERPROG_CLIENT::check_answers(const std::uint8_t* bytes, std::size_t first, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (bytes[i] == serprog::NAK)
            return fail("The programmer refuses its command " + hex(m_sent[first + i]) + ".");
        if (bytes[i] != serprog::ACK)
            return fail("The programmer answers " + hex(bytes[i]) + " to its command " + hex(m_sent[first + i]) +
                        ", which is not an answer of the protocol serprog.");
    }
    return true;
}

bool GFPE_SERPROG_CLIENT::fail(const std::string& text)
{
    m_is_lost = true;
    m_error = m_is_started ? text + UNKNOWN_STATE : text;
    return false;
}

bool GFPE_SERPROG_CLIENT::fail(GFPE_LINE_STATE state)
{
    return fail(state == GFPE_LINE_STATE::LOST
                    ? "The connection to the programmer is lost: " + m_line->get_problem() + "."
                    : "The programmer does not answer in time.");
}
