// SPDX-License-Identifier: MIT
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

// The mask applies to what is read.
bool is_same(const std::uint8_t* read, const std::uint8_t* wanted, std::int64_t length, int mask)
{
    if (mask == 0xFF)
        return std::memcmp(read, wanted, static_cast<std::size_t>(length)) == 0;
    return std::equal(read, read + length, wanted, [mask](int a, int b) { return (a & mask) == b; });
}

bool is_marker(const GFPDB_ACTION& action, const char* marker)
{
    return action.m_action_type == GFPDB_ACT_CUSTOM && value_of(action, GFPDB_CUSTOM_LOOP_MARKER) == marker;
}

bool has_blank_bytes(const FLOW_BYTES& bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](int each) { return each == 0xFF; });
}

bool is_id_check(const GFPDB_ACTION& action)
{
    const TEXT expected = value_of(action, GFPDB_RR_EXPECTED_DATA);
    const TEXT command = value_of(action, GFPDB_RR_COMMAND);
    const bool reads_id = command == "0x9F" || command == "0x9E" || command == "0xAF";
    return action.m_action_type == GFPDB_ACT_READ_REGISTER && (expected == "id" || (reads_id && expected != "none"));
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
    : m_bus(bus), m_device(device), m_image(image), m_range{0, device.bytes}
{}

FLOW_RANGE FLOW_RANGE::common_with(const FLOW_RANGE& other) const
{
    const std::int64_t first = std::max(start, other.start);
    return {first, std::max<std::int64_t>(0, std::min(end(), other.end()) - first)};
}

bool FLOW_EXECUTOR::run(const GFPDB_OPERATION& operation, FLOW_PURPOSE purpose)
{
    m_purpose = purpose;
    m_operation = operation.m_kind;
    m_failed_at.clear();
    if (m_device.bytes % m_device.dies != 0)
        throw std::runtime_error("dies of different sizes");
    const SCOPE whole = {0, m_device.bytes, 0, -1, 0, nullptr};
    const ACTIONS& all = *operation.get_actions();
    if (m_operation == GFPDB_OPERATION_INITIALIZATION)
        m_chip_is_unknown =
            std::any_of(all.begin(), all.end(), [](const auto* action) { return is_id_check(*action); });
    return run_range(*operation.get_actions(), 0, operation.get_actions()->size(), whole);
}

void FLOW_EXECUTOR::rehearse(const GFPDB_OPERATION& operation)
{
    m_is_rehearsing = true;
    m_rehearsed_reads.clear();
    try {
        run(operation);
        if (m_operation == GFPDB_OPERATION_VERIFY)
            require_whole_range(m_rehearsed_reads);
    } catch (const std::runtime_error&) {
        m_is_rehearsing = false;
        throw;
    }
    m_is_rehearsing = false;
}

bool FLOW_EXECUTOR::takes_one_step() const
{
    return m_is_rehearsing && m_operation != GFPDB_OPERATION_VERIFY;
}

void FLOW_EXECUTOR::require_whole_range(std::vector<FLOW_RANGE> reads) const
{
    std::sort(reads.begin(), reads.end(),
              [](const FLOW_RANGE& one, const FLOW_RANGE& other) { return one.start < other.start; });
    std::int64_t reached = m_range.start;
    for (const FLOW_RANGE& read : reads) {
        if (read.start <= reached)
            reached = std::max(reached, read.end());
    }
    if (reached < m_range.end())
        throw std::runtime_error("a part of the range is not read");
}

void FLOW_EXECUTOR::transfer(const SPI_COMMAND& command, const SPI_SINK& sink)
{
    const std::int64_t last = command.address + std::max<std::int64_t>(command.in_length, 1) - 1;
    if (command.address_bytes > 0 && last >> (8 * command.address_bytes) != 0)
        throw std::runtime_error("an address that does not fit its bytes");
    if (!m_is_rehearsing)
        m_bus.transfer(command, sink);
}

void FLOW_EXECUTOR::wait_us(std::int64_t microseconds)
{
    if (!m_is_rehearsing)
        m_bus.wait_us(microseconds);
}

bool FLOW_EXECUTOR::run_range(const ACTIONS& actions, std::size_t first, std::size_t last, const SCOPE& scope)
{
    for (std::size_t at = first; at < last; ++at) {
        if (is_marker(*actions[at], "start")) {
            const std::size_t end = end_of_loop(actions, at, last);
            if (!run_loop(actions, at, end, scope))
                return false;
            at = end;
        } else if (scope.chosen_erase && actions[at]->m_action_type == GFPDB_ACT_ERASE &&
                   actions[at] != scope.chosen_erase) {
            continue;
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
    return unit == "page" ? run_page_loop(actions, start, end, scope) : run_sector_loop(actions, start, end, scope);
}

bool FLOW_EXECUTOR::run_page_loop(const ACTIONS& actions, std::size_t start, std::size_t end, const SCOPE& scope)
{
    std::int64_t step = 0;
    bool only_image = true;
    for (std::size_t at = start; at < end; ++at) {
        const GFPDB_ACTION& action = *actions[at];
        if (action.m_action_type == GFPDB_ACT_WRITE_DATA) {
            const std::int64_t page_size = number(value_of(action, GFPDB_WD_PAGE_SIZE));
            if (step != 0 && step != page_size)
                throw std::runtime_error("a loop has two page sizes");
            step = page_size;
            only_image = only_image && value_of(action, GFPDB_WD_DATA) == "image";
        }
        only_image = only_image && action.m_action_type != GFPDB_ACT_ERASE;
    }
    if (step == 0 || scope.length % step != 0)
        throw std::runtime_error("a loop has no step, or one that does not divide what it walks over");
    const FLOW_RANGE range = m_range.common_with({scope.start, scope.length});
    const std::int64_t last_asked = range.length > 0 ? range.end() - 1 : scope.start;
    // What can go wrong without a chip goes wrong in the last step.
    const std::int64_t first = takes_one_step() ? last_asked - (last_asked - scope.start) % step : scope.start;
    for (std::int64_t position = first; position <= last_asked; position += step) {
        const bool asked = m_range.common_with({position, step}).length > 0;
        const bool left_out = !asked || (only_image && has_blank_bytes(page_bytes(position, step)));
        if (left_out && (!asked || !m_is_rehearsing))
            continue;
        SCOPE inner = scope;
        inner.position = position;
        if (!run_range(actions, start + 1, end, inner))
            return false;
    }
    return true;
}

// Whole sectors of the smallest size that cover what was asked for, erased by the largest commands that fit.
bool FLOW_EXECUTOR::run_sector_loop(const ACTIONS& actions, std::size_t start, std::size_t end, const SCOPE& scope)
{
    const std::vector<SECTOR_ERASE> erases = erases_of(actions, start, end, scope);
    const FLOW_RANGE asked = m_range.common_with({scope.start, scope.length});
    if (asked.length == 0)
        return true;
    const std::int64_t smallest = erases.back().size;
    const std::int64_t last = (asked.end() - scope.start + smallest - 1) / smallest * smallest;
    const std::int64_t first = takes_one_step() ? last - smallest : (asked.start - scope.start) / smallest * smallest;
    for (std::int64_t offset = first; offset < last;) {
        const auto fits = [offset, last](const SECTOR_ERASE& erase) {
            return offset % erase.size == 0 && offset + erase.size <= last;
        };
        const auto chosen = std::find_if(erases.begin(), erases.end(), fits);
        SCOPE inner = scope;
        inner.position = scope.start + offset;
        inner.chosen_erase = chosen->action;
        if (!run_range(actions, start + 1, end, inner))
            return false;
        offset += chosen->size;
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

// The erases of a loop, the largest one first, and the first of the same size before the others.
std::vector<FLOW_EXECUTOR::SECTOR_ERASE> FLOW_EXECUTOR::erases_of(const ACTIONS& actions, std::size_t start,
                                                                  std::size_t end, const SCOPE& scope) const
{
    std::vector<SECTOR_ERASE> erases;
    for (std::size_t at = start; at < end; ++at) {
        if (actions[at]->m_action_type != GFPDB_ACT_ERASE)
            continue;
        const bool everything = value_of(*actions[at], GFPDB_ER_ADDRESSING_MODE) == "0";
        erases.push_back({actions[at], everything ? scope.length : size(value_of(*actions[at], GFPDB_ER_ERASE_SIZE))});
    }
    if (erases.empty())
        throw std::runtime_error("a loop has no step");
    std::stable_sort(erases.begin(), erases.end(),
                     [](const SECTOR_ERASE& one, const SECTOR_ERASE& other) { return one.size > other.size; });
    std::int64_t whole = scope.length;
    for (const SECTOR_ERASE& erase : erases) {
        if (whole % erase.size != 0)
            throw std::runtime_error("an erase size does not divide a larger one");
        whole = erase.size;
    }
    return erases;
}

std::int64_t FLOW_EXECUTOR::position_of(const TEXT& address, const SCOPE& scope) const
{
    return address == "loop" || address == "die" ? scope.position : address_number(address);
}

void FLOW_EXECUTOR::require_image_range(const FLOW_RANGE& range, const TEXT& address, const SCOPE& scope) const
{
    const std::int64_t end = address == "die" ? scope.die_start + m_device.bytes / m_device.dies : m_device.bytes;
    if (range.end() > end)
        throw std::runtime_error("a range of the image behind the end");
}

FLOW_BYTES FLOW_EXECUTOR::page_bytes(std::int64_t position, std::int64_t length) const
{
    FLOW_BYTES bytes(static_cast<std::size_t>(length), 0xFF);
    const FLOW_RANGE asked = m_range.common_with({position, length});
    if (asked.length == 0 || !m_image.touches(asked.start, asked.length))
        return bytes;
    const FLOW_BYTES wanted = m_image.bytes(asked.start, asked.length);
    std::copy(wanted.begin(), wanted.end(), bytes.begin() + (asked.start - position));
    return bytes;
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
    transfer(command, nullptr);
    wait_us(number(value_of(action, GFPDB_WR_DELAY)));
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
    if (expected_text == "id" && expected.empty())
        throw std::runtime_error("an ID that the record does not have");
    const std::int64_t attempts = number(value_of(action, GFPDB_RR_ATTEMPT_COUNT));
    const std::int64_t delay = number(value_of(action, GFPDB_RR_DELAY));
    for (std::int64_t attempt = 0; attempt < attempts; ++attempt) {
        if (attempt > 0)
            wait_us(delay);
        FLOW_BYTES read;
        transfer(command, [&read](std::int64_t, const std::uint8_t* bytes, std::int64_t length) {
            read.insert(read.end(), bytes, bytes + length);
            return true;
        });
        bool same = true;
        const std::size_t compared = expected_text == "id" ? std::min(read.size(), expected.size()) : read.size();
        for (std::size_t at = 0; at < compared && expected_text != "none"; ++at)
            same = same && (read[at] & mask.at(at)) == expected.at(at);
        if (same) {
            m_chip_is_unknown = m_chip_is_unknown && !is_id_check(action);
            return true;
        }
    }
    m_chip_is_unknown = m_chip_is_unknown || (m_operation == GFPDB_OPERATION_INITIALIZATION && is_id_check(action));
    return false;
}

bool FLOW_EXECUTOR::write_data(const GFPDB_ACTION& action, const SCOPE& scope)
{
    SPI_COMMAND command;
    command.opcode = byte(value_of(action, GFPDB_WD_COMMAND));
    const TEXT address = value_of(action, GFPDB_WD_ADDRESS);
    const std::int64_t position = position_of(address, scope);
    command.address = address == "die" ? position - scope.die_start : position;
    command.address_bytes = static_cast<int>(number(value_of(action, GFPDB_WD_ADDRESSING_MODE)));
    const TEXT data = value_of(action, GFPDB_WD_DATA);
    const std::int64_t page_size = number(value_of(action, GFPDB_WD_PAGE_SIZE));
    if (data == "image")
        require_image_range({position, page_size}, address, scope);
    command.out = data == "image" ? page_bytes(position, page_size) : byte_list(data);
    if (data == "image" && has_blank_bytes(command.out))
        return true;
    const std::vector<int> phases = lines(value_of(action, GFPDB_WD_BUS_WIDTH));
    command.opcode_lines = phases.at(0);
    command.address_lines = phases.at(1);
    command.data_lines = phases.at(2);
    transfer(command, nullptr);
    wait_us(number(value_of(action, GFPDB_WD_DELAY)));
    return true;
}

bool FLOW_EXECUTOR::read_data(const GFPDB_ACTION& action, const SCOPE& scope)
{
    SPI_COMMAND command;
    command.opcode = byte(value_of(action, GFPDB_RD_COMMAND));
    const TEXT address = value_of(action, GFPDB_RD_ADDRESS);
    FLOW_RANGE read = {position_of(address, scope), size(value_of(action, GFPDB_RD_DATA_LENGTH))};
    if (value_of(action, GFPDB_RD_EXPECTED_DATA) == "image") {
        require_image_range(read, address, scope);
        read = read.common_with(m_range);
        if (m_is_rehearsing)
            m_rehearsed_reads.push_back(read);
    }
    if (read.length == 0)
        return true;
    command.address = read.start - (address == "die" ? scope.die_start : 0);
    command.address_bytes = static_cast<int>(number(value_of(action, GFPDB_RD_ADDRESSING_MODE)));
    command.dummy_clocks = static_cast<int>(number(value_of(action, GFPDB_RD_DUMMY_CLOCK)));
    command.in_length = read.length;
    const std::vector<int> phases = lines(value_of(action, GFPDB_RD_BUS_WIDTH));
    command.opcode_lines = phases.at(0);
    command.address_lines = phases.at(1);
    command.data_lines = phases.at(2);
    // On several lines the chip answers on lines that the host drives, and the last dummy clock is for letting them go.
    const bool turns_around = command.data_lines > 1 && command.dummy_clocks > 0;
    command.driven_dummy_clocks = command.dummy_clocks - (turns_around ? 1 : 0);
    const bool same = compare_data(action, command, read.start);
    wait_us(number(value_of(action, GFPDB_RD_DELAY)));
    return same;
}

bool FLOW_EXECUTOR::compare_data(const GFPDB_ACTION& action, const SPI_COMMAND& command, std::int64_t position)
{
    const TEXT expected = value_of(action, GFPDB_RD_EXPECTED_DATA);
    const int mask = byte(value_of(action, GFPDB_RD_EXPECTED_DATA_MASK));
    const bool examines = expected == "image" && m_purpose == FLOW_PURPOSE::EXAMINE;
    const bool against_image = expected == "image" && m_purpose == FLOW_PURPOSE::VERIFY;
    const bool compared = expected != "none" && !examines;
    const FLOW_BYTES filler(SPI_CHUNK_BYTES, expected == "image" || !compared ? 0xFF : byte_list(expected).at(0));
    bool same = true;
    transfer(command, [&](std::int64_t offset, const std::uint8_t* read, std::int64_t length) {
        const bool in_image = against_image && m_image.touches(position + offset, length);
        const FLOW_BYTES image = in_image ? m_image.bytes(position + offset, length) : FLOW_BYTES();
        same = !compared || is_same(read, in_image ? image.data() : filler.data(), length, mask);
        if (examines)
            m_examined.add(position + offset, FLOW_BYTES(read, read + length));
        return same;
    });
    return same;
}

bool FLOW_EXECUTOR::erase(const GFPDB_ACTION& action, const SCOPE& scope)
{
    SPI_COMMAND command;
    command.opcode = byte(value_of(action, GFPDB_ER_COMMAND));
    command.address_bytes = static_cast<int>(number(value_of(action, GFPDB_ER_ADDRESSING_MODE)));
    const TEXT address = value_of(action, GFPDB_ER_ADDRESS);
    FLOW_RANGE erased = {scope.start, scope.length};
    if (command.address_bytes > 0) {
        erased = {position_of(address, scope), size(value_of(action, GFPDB_ER_ERASE_SIZE))};
        command.address = erased.start - (address == "die" ? scope.die_start : 0);
    }
    if (m_range.common_with(erased).length == 0)
        return true;
    const std::vector<int> phases = lines(value_of(action, GFPDB_ER_BUS_WIDTH));
    command.opcode_lines = phases.at(0);
    command.address_lines = command.address_bytes > 0 ? phases.at(1) : 1;
    transfer(command, nullptr);
    wait_us(number(value_of(action, GFPDB_ER_DELAY)));
    return true;
}
