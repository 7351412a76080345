#include "flow_executor.h"

#include "gfpdb/gfpdb_enums.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace {

using TEXT = std::string;

TEXT value_of(const GFPDB_ACTION& action, int property)
{
    return action.get_property_value(static_cast<GFPDB_ACT_PROPERTY>(property));
}

[[noreturn]] void refuse(const TEXT& value, const char* what)
{
    throw std::runtime_error("\"" + value + "\" is no " + what);
}

std::int64_t number(const TEXT& value)
{
    const bool digits =
        std::all_of(value.begin(), value.end(), [](char digit) { return digit >= '0' && digit <= '9'; });
    if (value.empty() || value.size() > 18 || !digits || (value.size() > 1 && value[0] == '0'))
        refuse(value, "number");
    return std::stoll(value);
}

int nibble(char digit)
{
    const TEXT digits = "0123456789ABCDEF";
    const std::size_t value = digits.find(digit);
    if (value == TEXT::npos)
        refuse(TEXT(1, digit), "hexadecimal digit");
    return static_cast<int>(value);
}

FLOW_BYTES byte_list(const TEXT& value)
{
    constexpr std::size_t BYTE_LENGTH = 5; // "0x9F ", the last one without the blank
    if (value.size() % BYTE_LENGTH != BYTE_LENGTH - 1)
        refuse(value, "list of bytes");
    FLOW_BYTES bytes;
    for (std::size_t at = 0; at < value.size(); at += BYTE_LENGTH) {
        if (value.compare(at, 2, "0x") != 0 || (at > 0 && value[at - 1] != ' '))
            refuse(value, "list of bytes");
        bytes.push_back(static_cast<std::uint8_t>(nibble(value[at + 2]) << 4 | nibble(value[at + 3])));
    }
    return bytes;
}

int byte(const TEXT& value)
{
    const FLOW_BYTES bytes = byte_list(value);
    if (bytes.size() != 1)
        refuse(value, "byte");
    return bytes[0];
}

std::int64_t address_number(const TEXT& value)
{
    if (value.size() != 10 || value.compare(0, 2, "0x") != 0)
        refuse(value, "address");
    std::int64_t address = 0;
    for (std::size_t at = 2; at < value.size(); ++at)
        address = address << 4 | nibble(value[at]);
    return address;
}

// "1-1-4": the lines of the phases.
std::vector<int> lines(const TEXT& value)
{
    std::vector<int> found;
    for (std::size_t at = 0; at < value.size(); at += 2) {
        const bool joined = at + 1 == value.size() || value[at + 1] == '-';
        if (!joined || (value[at] != '1' && value[at] != '2' && value[at] != '4'))
            refuse(value, "bus width");
        found.push_back(value[at] - '0');
    }
    return found;
}

bool is_same(const std::uint8_t* read, const std::uint8_t* wanted, std::int64_t length, int mask)
{
    if (mask == 0xFF)
        return std::memcmp(read, wanted, static_cast<std::size_t>(length)) == 0;
    return std::equal(read, read + length, wanted, [mask](int a, int b) { return (a & mask) == (b & mask); });
}

bool is_marker(const GFPDB_ACTION& action, const char* marker)
{
    return action.m_action_type == GFPDB_ACT_CUSTOM && value_of(action, GFPDB_CUSTOM_LOOP_MARKER) == marker;
}

// The "end" that closes the "start" at `start`.
std::size_t end_of_loop(const std::vector<GFPDB_ACTION*>& actions, std::size_t start, std::size_t last)
{
    int depth = 0;
    for (std::size_t at = start; at < last; ++at) {
        depth += is_marker(*actions[at], "start") ? 1 : 0;
        depth -= is_marker(*actions[at], "end") ? 1 : 0;
        if (depth == 0)
            return at;
    }
    throw std::runtime_error("a loop has no end");
}

} // namespace

FLOW_EXECUTOR::FLOW_EXECUTOR(SPI_BUS& bus, const FLOW_DEVICE& device, const FLOW_IMAGE& image)
    : m_bus(bus), m_device(device), m_image(image)
{}

bool FLOW_EXECUTOR::run(const GFPDB_OPERATION& operation, FLOW_PURPOSE purpose)
{
    m_purpose = purpose;
    m_operation = operation.m_kind;
    m_failed_at.clear();
    const SCOPE whole = {0, m_device.bytes, 0, -1, 0};
    return run_range(*operation.get_actions(), 0, operation.get_actions()->size(), whole);
}

bool FLOW_EXECUTOR::run_range(const ACTIONS& actions, std::size_t first, std::size_t last, const SCOPE& scope)
{
    for (std::size_t at = first; at < last; ++at) {
        if (is_marker(*actions[at], "start")) {
            const std::size_t end = end_of_loop(actions, at, last);
            if (!run_loop(actions, at, end, scope))
                return false;
            at = end;
        } else if (!run_action(*actions[at], scope)) {
            m_failed_at = std::to_string(at) + ": " + value_of(*actions[at], actions[at]->get_property_enum_list()[0]);
            return false;
        }
    }
    return true;
}

bool FLOW_EXECUTOR::run_loop(const ACTIONS& actions, std::size_t start, std::size_t end, const SCOPE& scope)
{
    const TEXT unit = value_of(*actions[start], GFPDB_CUSTOM_LOOP_UNIT);
    if (unit != value_of(*actions[end], GFPDB_CUSTOM_LOOP_UNIT))
        throw std::runtime_error("a loop ends over another unit than it starts");
    if (unit == "die")
        return run_die_loop(actions, start, end, scope);
    const std::int64_t step = step_of(actions, start, end, unit);
    for (std::int64_t position = scope.start; position < scope.start + scope.length; position += step) {
        // Pages without a byte of the image are not programmed.
        if (unit == "page" && !m_image.touches(position, step))
            continue;
        SCOPE inner = scope;
        inner.position = position;
        if (!run_range(actions, start + 1, end, inner))
            return false;
    }
    return true;
}

bool FLOW_EXECUTOR::run_die_loop(const ACTIONS& actions, std::size_t start, std::size_t end, const SCOPE& scope)
{
    const std::int64_t die_bytes = m_device.bytes / m_device.dies;
    for (int die = 0; die < m_device.dies; ++die) {
        SCOPE inner = scope;
        inner.die = die;
        inner.die_start = inner.start = inner.position = die * die_bytes;
        inner.length = die_bytes;
        if (!run_range(actions, start + 1, end, inner))
            return false;
    }
    return true;
}

// A page loop advances by the page of its Write Data, a sector loop by what its Erase erases.
std::int64_t FLOW_EXECUTOR::step_of(const ACTIONS& actions, std::size_t start, std::size_t end, const TEXT& unit) const
{
    for (std::size_t at = start; at < end; ++at) {
        if (unit == "page" && actions[at]->m_action_type == GFPDB_ACT_WRITE_DATA)
            return number(value_of(*actions[at], GFPDB_WD_PAGE_SIZE));
        if (unit == "sector" && actions[at]->m_action_type == GFPDB_ACT_ERASE)
            return size(value_of(*actions[at], GFPDB_ER_ERASE_SIZE));
    }
    throw std::runtime_error("a loop has no step");
}

std::int64_t FLOW_EXECUTOR::size(const TEXT& value) const
{
    if (value == "device")
        return m_device.bytes;
    return value == "die" ? m_device.bytes / m_device.dies : number(value);
}

bool FLOW_EXECUTOR::run_action(const GFPDB_ACTION& action, const SCOPE& scope)
{
    switch (action.m_action_type) {
    case GFPDB_ACT_WRITE_REGISTER:
        return write_register(action, scope);
    case GFPDB_ACT_READ_REGISTER:
        return read_register(action);
    case GFPDB_ACT_WRITE_DATA:
        return write_data(action, scope);
    case GFPDB_ACT_READ_DATA:
        return read_data(action, scope);
    case GFPDB_ACT_ERASE:
        return erase(action, scope);
    default:
        throw std::runtime_error("an action of an unknown type");
    }
}

bool FLOW_EXECUTOR::write_register(const GFPDB_ACTION& action, const SCOPE& scope)
{
    SPI_COMMAND command;
    command.opcode = byte(value_of(action, GFPDB_WR_COMMAND));
    const TEXT data = value_of(action, GFPDB_WR_DATA);
    if (data == "die" && scope.die < 0)
        throw std::runtime_error("a die outside of a loop over each die");
    if (data == "die")
        command.out = {static_cast<std::uint8_t>(scope.die)};
    else if (data != "none")
        command.out = byte_list(data);
    const std::vector<int> phases = lines(value_of(action, GFPDB_WR_BUS_WIDTH));
    command.opcode_lines = phases.at(0);
    command.data_lines = command.out.empty() ? 1 : phases.at(1);
    m_bus.transfer(command, nullptr);
    m_bus.wait_us(number(value_of(action, GFPDB_WR_DELAY)));
    return true;
}

bool FLOW_EXECUTOR::read_register(const GFPDB_ACTION& action)
{
    SPI_COMMAND command;
    command.opcode = byte(value_of(action, GFPDB_RR_COMMAND));
    command.in_length = number(value_of(action, GFPDB_RR_DATA_LENGTH));
    const std::vector<int> phases = lines(value_of(action, GFPDB_RR_BUS_WIDTH));
    command.opcode_lines = phases.at(0);
    command.data_lines = phases.at(1);
    const TEXT expected_text = value_of(action, GFPDB_RR_EXPECTED_DATA);
    const FLOW_BYTES mask = byte_list(value_of(action, GFPDB_RR_EXPECTED_DATA_MASK));
    const FLOW_BYTES expected = expected_text == "id"     ? m_device.id
                                : expected_text == "none" ? FLOW_BYTES()
                                                          : byte_list(expected_text);
    const std::int64_t attempts = number(value_of(action, GFPDB_RR_ATTEMPT_COUNT));
    const std::int64_t delay = number(value_of(action, GFPDB_RR_DELAY));
    for (std::int64_t attempt = 0; attempt < attempts; ++attempt) {
        if (attempt > 0)
            m_bus.wait_us(delay);
        FLOW_BYTES read;
        m_bus.transfer(command, [&read](std::int64_t, const std::uint8_t* bytes, std::int64_t length) {
            read.insert(read.end(), bytes, bytes + length);
            return true;
        });
        bool same = true;
        const std::size_t compared = expected_text == "id" ? std::min(read.size(), expected.size()) : read.size();
        for (std::size_t at = 0; at < compared && expected_text != "none"; ++at)
            same = same && (read[at] & mask.at(at)) == expected.at(at);
        if (same)
            return true;
    }
    return false;
}

bool FLOW_EXECUTOR::write_data(const GFPDB_ACTION& action, const SCOPE& scope)
{
    SPI_COMMAND command;
    command.opcode = byte(value_of(action, GFPDB_WD_COMMAND));
    const TEXT address = value_of(action, GFPDB_WD_ADDRESS);
    const bool fixed = address != "loop" && address != "die";
    const std::int64_t position = fixed ? address_number(address) : scope.position;
    command.address = address == "die" ? position - scope.die_start : position;
    command.address_bytes = static_cast<int>(number(value_of(action, GFPDB_WD_ADDRESSING_MODE)));
    const TEXT data = value_of(action, GFPDB_WD_DATA);
    command.out =
        data == "image" ? m_image.bytes(position, number(value_of(action, GFPDB_WD_PAGE_SIZE))) : byte_list(data);
    const std::vector<int> phases = lines(value_of(action, GFPDB_WD_BUS_WIDTH));
    command.opcode_lines = phases.at(0);
    command.address_lines = phases.at(1);
    command.data_lines = phases.at(2);
    m_bus.transfer(command, nullptr);
    m_bus.wait_us(number(value_of(action, GFPDB_WD_DELAY)));
    return true;
}

bool FLOW_EXECUTOR::read_data(const GFPDB_ACTION& action, const SCOPE& scope)
{
    SPI_COMMAND command;
    command.opcode = byte(value_of(action, GFPDB_RD_COMMAND));
    const TEXT address = value_of(action, GFPDB_RD_ADDRESS);
    const bool fixed = address != "loop" && address != "die";
    const std::int64_t position = fixed ? address_number(address) : scope.position;
    command.address = address == "die" ? position - scope.die_start : position;
    command.address_bytes = static_cast<int>(number(value_of(action, GFPDB_RD_ADDRESSING_MODE)));
    command.dummy_clocks = static_cast<int>(number(value_of(action, GFPDB_RD_DUMMY_CLOCK)));
    command.in_length = size(value_of(action, GFPDB_RD_DATA_LENGTH));
    const std::vector<int> phases = lines(value_of(action, GFPDB_RD_BUS_WIDTH));
    command.opcode_lines = phases.at(0);
    command.address_lines = phases.at(1);
    command.data_lines = phases.at(2);
    // On several lines the chip answers on lines that the host drives, and the last dummy clock is for letting them go.
    const bool turns_around = command.data_lines > 1 && command.dummy_clocks > 0;
    command.driven_dummy_clocks = command.dummy_clocks - (turns_around ? 1 : 0);
    const TEXT expected = value_of(action, GFPDB_RD_EXPECTED_DATA);
    const int mask = byte(value_of(action, GFPDB_RD_EXPECTED_DATA_MASK));
    const bool against_image = expected == "image" && m_purpose == FLOW_PURPOSE::VERIFY;
    const bool compared = expected != "none" && !(expected == "image" && m_purpose == FLOW_PURPOSE::EXAMINE);
    const FLOW_BYTES filler(SPI_CHUNK_BYTES, expected == "image" || !compared ? 0xFF : byte_list(expected).at(0));
    bool same = true;
    m_bus.transfer(command, [&](std::int64_t offset, const std::uint8_t* read, std::int64_t length) {
        const bool in_image = against_image && m_image.touches(position + offset, length);
        const FLOW_BYTES image = in_image ? m_image.bytes(position + offset, length) : FLOW_BYTES();
        same = !compared || is_same(read, in_image ? image.data() : filler.data(), length, mask);
        return same;
    });
    m_bus.wait_us(number(value_of(action, GFPDB_RD_DELAY)));
    return same;
}

bool FLOW_EXECUTOR::erase(const GFPDB_ACTION& action, const SCOPE& scope)
{
    SPI_COMMAND command;
    command.opcode = byte(value_of(action, GFPDB_ER_COMMAND));
    command.address_bytes = static_cast<int>(number(value_of(action, GFPDB_ER_ADDRESSING_MODE)));
    const TEXT address = value_of(action, GFPDB_ER_ADDRESS);
    if (command.address_bytes > 0) {
        const bool fixed = address != "loop" && address != "die";
        command.address = fixed ? address_number(address) : scope.position - (address == "die" ? scope.die_start : 0);
    }
    const std::vector<int> phases = lines(value_of(action, GFPDB_ER_BUS_WIDTH));
    command.opcode_lines = phases.at(0);
    command.address_lines = command.address_bytes > 0 ? phases.at(1) : 1;
    m_bus.transfer(command, nullptr);
    m_bus.wait_us(number(value_of(action, GFPDB_ER_DELAY)));
    return true;
}
