// SPDX-License-Identifier: MIT

// From the clocks that came to what the chip takes them for, and the way back: a chip sees no phases, it counts clocks.
#include "chip/gfpe_chip_core.h"

#include <algorithm>

namespace {

using JOB = GFPE_CHIP_JOB;

constexpr int BITS = 8;
constexpr std::size_t CHUNK = 4096;
constexpr std::uint8_t NOTHING = 0xFF;

std::string count_of(std::int64_t number, const char* what)
{
    return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

std::string lines_of(int lines)
{
    return lines == 1 ? "one line" : std::to_string(lines) + " lines";
}

} // namespace

int GFPE_CHIP_CORE::address_bytes_of(const GFPE_CHIP_COMMAND& spec) const
{
    switch (spec.address) {
    case GFPE_CHIP_ADDRESS::BY_MODE:
        return die().four_byte ? 4 : 3;
    case GFPE_CHIP_ADDRESS::ALWAYS_THREE:
        return 3;
    case GFPE_CHIP_ADDRESS::ALWAYS_FOUR:
        return 4;
    case GFPE_CHIP_ADDRESS::NONE:
        break;
    }
    return 0;
}

// Why a command has so many address bytes.
std::string GFPE_CHIP_CORE::mode_of(const GFPE_CHIP_COMMAND& spec) const
{
    if (spec.address != GFPE_CHIP_ADDRESS::BY_MODE || m_facts.address_bytes != 4)
        return {};
    return die().four_byte ? ", as the chip is in 4-byte mode" : ", as the chip is in 3-byte mode";
}

bool GFPE_CHIP_CORE::has_lines(const REQUEST& request)
{
    const GFPE_COMMAND& command = request.command;
    const bool has_address = command.address_bytes > 0 || request.spec.address != GFPE_CHIP_ADDRESS::NONE;
    if (has_address && command.address_lines != request.spec.address_lines) {
        note(request, "the address came on " + lines_of(command.address_lines) + ", but the chip takes it on " +
                          lines_of(request.spec.address_lines) + ": ignored");
        return false;
    }
    if ((command.out_length || command.in_length) && command.data_lines != request.spec.data_lines) {
        note(request, "the data are on " + lines_of(command.data_lines) + ", but the chip has them on " +
                          lines_of(request.spec.data_lines) + ": ignored");
        return false;
    }
    if (request.spec.data_lines == 4 && !is_quad_enabled()) {
        note(request, "four lines, but quad enable is not set: ignored");
        return false;
    }
    return true;
}

bool GFPE_CHIP_CORE::decode(REQUEST& request)
{
    if (!has_lines(request))
        return false;
    const GFPE_COMMAND& command = request.command;
    const int address_bytes = address_bytes_of(request.spec);
    const bool fits = command.address_bytes == address_bytes && command.dummy_clocks == request.spec.dummy_clocks &&
                      !(command.out_length && command.in_length);
    if (!fits)
        return decode_misfit(request, address_bytes);
    request.address = command.address;
    request.data = command.out;
    request.length = command.out_length;
    check_dummies(request);
    return true;
}

// The chip takes the clocks that came one after the other, whatever the host meant by them. Where the phases are on
// different numbers of lines, only a read makes sense of them.
bool GFPE_CHIP_CORE::decode_misfit(REQUEST& request, int address_bytes)
{
    const GFPE_COMMAND& command = request.command;
    const GFPE_CHIP_COMMAND& spec = request.spec;
    const bool answers = command.in_length > 0;
    const int needed = answers ? spec.dummy_clocks : 0;
    m_stream.clear();
    for (int byte = command.address_bytes - 1; byte >= 0; --byte)
        m_stream.push_back(static_cast<std::uint8_t>(command.address >> (BITS * byte)));
    m_stream.insert(m_stream.end(), static_cast<std::size_t>(command.dummy_clocks * spec.address_lines / BITS),
                    NOTHING);
    m_stream.insert(m_stream.end(), command.out, command.out + command.out_length);

    const bool is_raw = command.address_bytes == 0 && command.dummy_clocks == 0;
    if (!is_raw && command.address_bytes != address_bytes)
        note(request, count_of(command.address_bytes, "address byte") + " instead of " + std::to_string(address_bytes) +
                          mode_of(spec));
    if (!is_raw && command.dummy_clocks != needed)
        note(request, count_of(command.dummy_clocks, "dummy clock") + " instead of " + std::to_string(needed));

    const auto wanted = static_cast<std::size_t>(address_bytes);
    if (!answers && m_stream.size() < wanted) {
        note(request, "ended before its address was complete: ignored");
        return false;
    }
    if (!answers && command.out_length && spec.data_lines != spec.address_lines) {
        note(request, "data on other lines than the address, in the wrong place: ignored");
        return false;
    }
    const std::int64_t came = command.address_bytes * BITS / spec.address_lines + command.dummy_clocks +
                              static_cast<std::int64_t>(command.out_length) * BITS / spec.data_lines;
    const std::int64_t clocks = address_bytes * BITS / spec.address_lines + needed;
    request.skipped_bits = answers ? (came - clocks) * spec.data_lines : 0;
    // A host that sends plain bytes may read while the dummy clocks go by.
    if (is_raw && (request.skipped_bits > 0 || m_stream.size() < wanted))
        note(request, count_of(came, "clock") + " between opcode and answer instead of " + std::to_string(clocks));
    if (m_stream.size() < wanted)
        m_stream.resize(wanted, NOTHING);
    for (std::size_t at = 0; at < wanted; ++at)
        request.address = request.address << BITS | m_stream[at];
    request.data = m_stream.data() + wanted;
    request.length = answers ? 0 : m_stream.size() - wanted;
    return true;
}

void GFPE_CHIP_CORE::check_dummies(const REQUEST& request)
{
    const GFPE_COMMAND& command = request.command;
    if (command.driven_dummy_clocks < request.spec.mode_clocks)
        note(request, "the mode clocks are not driven high, which the chip could take for continuous reading");
    // On one line, the chip answers on another one than it is spoken to.
    const bool answers_there = request.spec.data_lines > 1 && command.dummy_clocks > 0;
    if (command.driven_dummy_clocks > command.dummy_clocks ||
        (answers_there && command.driven_dummy_clocks == command.dummy_clocks))
        note(request, "host and chip drive a line at the same time");
}

bool GFPE_CHIP_CORE::hand_over(GFPE_READER* reader, const std::uint8_t* bytes, std::int64_t length, int lines)
{
    m_has_answered = true;
    m_now += length * BITS / lines * CLOCK_NS;
    return reader && reader->take(bytes, static_cast<std::size_t>(length));
}

void GFPE_CHIP_CORE::answer_nothing(const GFPE_COMMAND& command, GFPE_READER* reader)
{
    static const std::vector<std::uint8_t> bytes(CHUNK, NOTHING);
    for (std::int64_t left = command.in_length; left > 0;) {
        const std::int64_t length = std::min<std::int64_t>(left, CHUNK);
        if (!hand_over(reader, bytes.data(), length, 1))
            return;
        left -= length;
    }
}

// The host reads from a place that may lie between two bytes of the source, or before the first.
void GFPE_CHIP_CORE::answer(const REQUEST& request, const SOURCE& source)
{
    const std::int64_t shift = ((request.skipped_bits % BITS) + BITS) % BITS;
    const std::int64_t first = (request.skipped_bits - shift) / BITS;
    const auto byte = [&source](std::int64_t at) { return at < 0 ? NOTHING : source(at); };
    std::array<std::uint8_t, CHUNK> chunk;
    for (std::int64_t done = 0; done < request.command.in_length;) {
        const std::int64_t length = std::min<std::int64_t>(request.command.in_length - done, CHUNK);
        for (std::int64_t at = 0; at < length; ++at) {
            const std::int64_t place = first + done + at;
            const int pair = byte(place) << BITS | (shift ? byte(place + 1) : 0);
            chunk[static_cast<std::size_t>(at)] = static_cast<std::uint8_t>(pair >> (BITS - shift));
        }
        if (!hand_over(request.reader, chunk.data(), length, request.spec.data_lines))
            return;
        done += length;
    }
}

void GFPE_CHIP_CORE::answer_memory(const REQUEST& request)
{
    const std::int64_t size = die_bytes();
    std::int64_t address = request.address;
    if (request.command.in_length < 1 || request.length)
        return note(request, "a read without an answer: ignored");
    if (address_bytes_of(request.spec) == 3)
        address |= static_cast<std::int64_t>(upper_address()) << 24;
    if (address + request.command.in_length > size)
        note(request, "reads past the end, and goes on at the start");
    address %= size;
    if (request.skipped_bits) {
        answer(request, [this, address, size](std::int64_t at) {
            std::int64_t length = 0;
            return *m_memory.view(die_start() + (address + at) % size, length);
        });
        return;
    }
    for (std::int64_t left = request.command.in_length; left > 0;) {
        std::int64_t length = 0;
        const std::uint8_t* bytes = m_memory.view(die_start() + address, length);
        length = std::min({length, left, size - address});
        if (!hand_over(request.reader, bytes, length, request.spec.data_lines))
            return;
        left -= length;
        address = (address + length) % size;
    }
}
