// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_trace_file.h"

#include <algorithm>

namespace {

constexpr const char* NAMES[] = {"CS", "CLK", "IO0", "IO1", "IO2", "IO3"};
// What a signal is called in the lines of the dump.
constexpr char FIRST_ID = '!';
constexpr std::int64_t NANOSECONDS = 1'000'000'000;
constexpr std::int64_t MICROSECOND = 1000;
// Before the first command, and the shortest time between two.
constexpr std::int64_t LEAD = 1000;
constexpr std::int64_t PAUSE = 100;
// The units of time that a dump can have, in nanoseconds.
struct UNIT
{
    std::int64_t nanoseconds;
    const char* name;
};
constexpr UNIT UNITS[] = {{1000, "1 us"}, {100, "100 ns"}, {10, "10 ns"}, {1, "1 ns"}};
constexpr char LOW = '0';
constexpr char HIGH = '1';
constexpr char FREE = 'z';
constexpr int BYTE_BITS = 8;
// While IO0 to IO3 carry nothing, IO3 and IO2 are high, IO1 is the chip's, and IO0 is low.
constexpr std::array<char, 4> AT_REST = {LOW, FREE, HIGH, HIGH};

// The largest unit in which all times are whole: programs that open a dump need memory for each.
const UNIT& unit_for(std::int64_t half_clock)
{
    return *std::find_if(std::begin(UNITS), std::end(UNITS),
                         [half_clock](const UNIT& unit) { return half_clock % unit.nanoseconds == 0; });
}

char level_of(std::uint64_t bit)
{
    return (bit & 1) != 0 ? HIGH : LOW;
}

} // namespace

GFPE_VCD_TRACE::GFPE_VCD_TRACE(std::int64_t clock)
    : m_half_clock(std::max<std::int64_t>(1, NANOSECONDS / (2 * (clock > 0 ? clock : GFPE_VCD_CLOCK))))
{}

GFPE_VCD_TRACE::~GFPE_VCD_TRACE() = default;

void GFPE_VCD_TRACE::begin()
{
    const UNIT& unit = unit_for(m_half_clock);
    m_unit = unit.nanoseconds;
    write(std::string("$timescale ") + unit.name + " $end\n$scope module spi $end\n");
    for (int signal = 0; signal < SIGNALS; ++signal)
        write(std::string("$var wire 1 ") + static_cast<char>(FIRST_ID + signal) + ' ' + NAMES[signal] + " $end\n");
    write("$upscope $end\n$enddefinitions $end\n");
    set(SELECT, HIGH);
    set(CLOCK, LOW);
    set_lines(AT_REST);
    m_now = LEAD;
}

void GFPE_VCD_TRACE::end()
{
    m_now += LEAD;
    write('#' + std::to_string(m_now / m_unit) + '\n');
}

void GFPE_VCD_TRACE::set(int signal, char level)
{
    if (m_levels[signal] == level)
        return;
    if (m_written != m_now)
        write('#' + std::to_string(m_now / m_unit) + '\n');
    m_written = m_now;
    m_levels[signal] = level;
    const char change[] = {level, static_cast<char>(FIRST_ID + signal), '\n'};
    write(change, sizeof change);
}

void GFPE_VCD_TRACE::set_lines(const LEVELS& levels)
{
    for (int line = 0; line < LINES; ++line)
        set(IO0 + line, levels[static_cast<std::size_t>(line)]);
}

// The lines change where a clock begins, and are read where it rises.
void GFPE_VCD_TRACE::run_clock(const LEVELS& levels)
{
    set_lines(levels);
    m_now += m_half_clock;
    set(CLOCK, HIGH);
    m_now += m_half_clock;
    set(CLOCK, LOW);
}

void GFPE_VCD_TRACE::send(std::uint64_t value, int bits, int lines)
{
    for (int bit = bits; bit > 0; bit -= lines) {
        LEVELS levels = AT_REST;
        for (int line = 0; line < lines; ++line)
            levels[static_cast<std::size_t>(line)] = level_of(value >> (bit - lines + line));
        run_clock(levels);
    }
}

void GFPE_VCD_TRACE::send_dummies(const GFPE_COMMAND& command)
{
    for (int clock = 0; clock < command.dummy_clocks; ++clock) {
        const bool is_driven = clock < command.driven_dummy_clocks;
        const int free_lines = command.data_lines > 1 ? command.data_lines : 0;
        LEVELS levels = AT_REST;
        std::fill_n(levels.begin(), is_driven ? command.address_lines : free_lines, is_driven ? HIGH : FREE);
        run_clock(levels);
    }
}

void GFPE_VCD_TRACE::command_started(const GFPE_TRACE_PLACE&, const GFPE_COMMAND& command, std::int64_t time)
{
    if (m_first_time < 0)
        m_first_time = time;
    m_now = std::max(m_now, LEAD + MICROSECOND * (time - m_first_time));
    m_data_lines = command.data_lines;
    set(SELECT, LOW);
    send(command.opcode, BYTE_BITS, command.opcode_lines);
    send(command.address, BYTE_BITS * command.address_bytes, command.address_lines);
    send_dummies(command);
    for (std::size_t at = 0; at < command.out_length; ++at)
        send(command.out[at], BYTE_BITS, m_data_lines);
}

// On one line the chip answers on IO1.
void GFPE_VCD_TRACE::received(const std::uint8_t* bytes, std::size_t length)
{
    for (std::size_t at = 0; at < length; ++at) {
        if (m_data_lines > 1) {
            send(bytes[at], BYTE_BITS, m_data_lines);
            continue;
        }
        for (int bit = BYTE_BITS - 1; bit >= 0; --bit) {
            LEVELS levels = AT_REST;
            levels[1] = level_of(bytes[at] >> bit);
            run_clock(levels);
        }
    }
}

void GFPE_VCD_TRACE::command_ended(std::int64_t)
{
    m_now += m_half_clock;
    set(SELECT, HIGH);
    set_lines(AT_REST);
    m_now += std::max(PAUSE, m_half_clock);
}
