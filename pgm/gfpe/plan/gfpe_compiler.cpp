// SPDX-License-Identifier: MIT
#include "plan/gfpe_compiler.h"

#include "gfpdb/gfpdb_action_value.h"

#include <algorithm>

// Every value is as gfpdb_check_flow() wants it: what is parsed here can be parsed.
namespace {

std::string text_of(const GFPDB_ACTION& action, int property)
{
    return action.get_property_value(static_cast<GFPDB_ACT_PROPERTY>(property));
}

std::int64_t number_of(const GFPDB_ACTION& action, int property)
{
    return *gfpdb_parse_decimal(text_of(action, property));
}

std::uint8_t byte_of(const GFPDB_ACTION& action, int property)
{
    return static_cast<std::uint8_t>(*gfpdb_parse_byte(text_of(action, property)));
}

std::vector<std::uint8_t> bytes_of(const GFPDB_ACTION& action, int property)
{
    const std::vector<int> values = *gfpdb_parse_bytes(text_of(action, property));
    return {values.begin(), values.end()};
}

bool is_word(const GFPDB_ACTION& action, int property, const char* word)
{
    return text_of(action, property) == word;
}

// "Address:" as it is called in a sentence.
std::string label_of(const GFPDB_ACTION& action, int property)
{
    std::string label = action.get_property_label(static_cast<GFPDB_ACT_PROPERTY>(property));
    if (label.empty())
        return "Loop marker"; // which has no row of its own
    if (label.back() == ':')
        label.pop_back();
    return label;
}

GFPE_ADDRESS address_of(const GFPDB_ACTION& action, int property)
{
    GFPE_ADDRESS address;
    address.label = label_of(action, property);
    address.text = text_of(action, property);
    if (address.text == GFPDB_VALUE_LOOP)
        address.kind = GFPE_ADDRESS::LOOP;
    else if (address.text == GFPDB_VALUE_DIE)
        address.kind = GFPE_ADDRESS::DIE;
    else
        address.number = *gfpdb_parse_address(address.text);
    return address;
}

// The lines of a command with an address.
void set_lines(GFPE_COMMAND& command, const GFPDB_ACTION& action, int property)
{
    const GFPDB_BUS_WIDTH lines = *gfpdb_parse_bus_width(text_of(action, property));
    command.opcode_lines = lines[0];
    command.address_lines = lines[1];
    command.data_lines = lines[2];
}

bool is_loop_end(const GFPDB_ACTION& action)
{
    return action.m_action_type == GFPDB_ACT_CUSTOM && is_word(action, GFPDB_CUSTOM_LOOP_MARKER, GFPDB_LOOP_END);
}

GFPE_LOOP::UNIT unit_of(const std::string& text)
{
    if (text == GFPDB_LOOP_DIE)
        return GFPE_LOOP::DIES;
    return text == GFPDB_LOOP_SECTOR ? GFPE_LOOP::SECTORS : GFPE_LOOP::PAGES;
}

bool reads_id(int opcode)
{
    return opcode == 0x9F || opcode == 0x9E || opcode == 0xAF;
}

} // namespace

GFPE_PROBLEM gfpe_action_problem(int operation, int number, const GFPDB_ACTION* action, int property,
                                 const std::string& text)
{
    GFPE_PROBLEM problem;
    problem.operation = operation;
    problem.text = text;
    if (action == nullptr)
        return problem;
    problem.action = number;
    if (action->m_action_type != GFPDB_ACT_CUSTOM)
        problem.action_name = text_of(*action, action->get_property_enum_list().front());
    if (property >= 0) {
        problem.property = label_of(*action, property);
        problem.value = text_of(*action, property);
    }
    return problem;
}

GFPE_COMPILER::GFPE_COMPILER(const GFPE_DEVICE& device, const GFPE_FLOW& flow, const GFPDB_OPERATION& operation)
    : m_device(device), m_flow(flow), m_kind(operation.m_kind),
      m_actions(operation.get_actions() ? *operation.get_actions() : ACTIONS()), m_walked_bytes(flow.device_bytes)
{}

GFPE_OPERATION GFPE_COMPILER::compile()
{
    GFPE_STEPS steps = compile_steps();
    return {std::move(steps), std::move(m_problems), m_has_id_check};
}

GFPE_STEPS GFPE_COMPILER::compile_steps()
{
    GFPE_STEPS steps;
    for (; m_at < m_actions.size() && !is_loop_end(*m_actions[m_at]); ++m_at)
        steps.push_back(compile_action(*m_actions[m_at]));
    return steps;
}

GFPE_STEP GFPE_COMPILER::compile_action(const GFPDB_ACTION& action)
{
    switch (action.m_action_type) {
    case GFPDB_ACT_WRITE_REGISTER:
        return {write_register(action)};
    case GFPDB_ACT_READ_REGISTER:
        return {read_register(action)};
    case GFPDB_ACT_WRITE_DATA:
        return {write_data(action)};
    case GFPDB_ACT_READ_DATA:
        return {read_data(action)};
    case GFPDB_ACT_ERASE:
        return {erase(action)};
    default:
        return {compile_loop(action)};
    }
}

// Ends at the end of the loop.
GFPE_LOOP GFPE_COMPILER::compile_loop(const GFPDB_ACTION& action)
{
    GFPE_LOOP loop;
    loop.unit = unit_of(text_of(action, GFPDB_CUSTOM_LOOP_UNIT));
    const std::int64_t outer_bytes = m_walked_bytes;
    if (loop.unit == GFPE_LOOP::DIES)
        m_walked_bytes = m_flow.die_bytes();
    const std::size_t first = ++m_at;
    loop.body = compile_steps();
    if (loop.unit == GFPE_LOOP::PAGES)
        compile_pages(loop, first);
    if (loop.unit == GFPE_LOOP::SECTORS)
        compile_sectors(loop, first);
    m_walked_bytes = outer_bytes;
    return loop;
}

void GFPE_COMPILER::compile_pages(GFPE_LOOP& loop, std::size_t first)
{
    loop.is_only_of_image = true;
    for (std::size_t place = 0; place < loop.body.size(); ++place) {
        const auto* page = std::get_if<GFPE_WRITE_DATA>(&loop.body[place].is);
        if (std::holds_alternative<GFPE_ERASE>(loop.body[place].is) ||
            std::holds_alternative<GFPE_READ_DATA>(loop.body[place].is) || (page && !page->is_of_image()))
            loop.is_only_of_image = false;
        if (page && m_walked_bytes % page->page_bytes != 0)
            add_problem(static_cast<int>(first + place) + 1, GFPDB_WD_PAGE_SIZE,
                        "The page size does not divide the " + std::to_string(m_walked_bytes) +
                            " bytes that the loop walks over.");
        if (page)
            loop.page_bytes = page->page_bytes;
        if (page && page->is_of_image() && page->address.kind != GFPE_ADDRESS::FIXED)
            ++loop.image_writes;
    }
}

void GFPE_COMPILER::compile_sectors(GFPE_LOOP& loop, std::size_t first)
{
    for (std::size_t place = 0; place < loop.body.size(); ++place) {
        const auto* sector = std::get_if<GFPE_ERASE>(&loop.body[place].is);
        if (!sector)
            continue;
        loop.erases.push_back(place);
        if (m_walked_bytes % sector->bytes != 0)
            add_problem(static_cast<int>(first + place) + 1, GFPDB_ER_ERASE_SIZE,
                        "The erase size does not divide the " + std::to_string(m_walked_bytes) +
                            " bytes that the loop walks over.");
    }
    // Of erases with the same size, the first one stays before the others.
    std::stable_sort(loop.erases.begin(), loop.erases.end(), [&loop](std::size_t one, std::size_t other) {
        return loop.erase(one).bytes > loop.erase(other).bytes;
    });
}

GFPE_WRITE_REGISTER GFPE_COMPILER::write_register(const GFPDB_ACTION& action)
{
    GFPE_WRITE_REGISTER step;
    fill(step, action, GFPDB_WR_NAME, GFPDB_WR_COMMAND);
    step.delay = number_of(action, GFPDB_WR_DELAY);
    step.is_of_die = is_word(action, GFPDB_WR_DATA, GFPDB_VALUE_DIE);
    const bool has_data = !is_word(action, GFPDB_WR_DATA, GFPDB_VALUE_NONE);
    if (has_data && !step.is_of_die)
        step.data = bytes_of(action, GFPDB_WR_DATA);
    const GFPDB_BUS_WIDTH lines = *gfpdb_parse_bus_width(text_of(action, GFPDB_WR_BUS_WIDTH));
    step.command.opcode_lines = lines[0];
    step.command.data_lines = has_data ? lines[1] : 1;
    step.command.out_length = step.is_of_die ? 1 : step.data.size();
    return step;
}

GFPE_READ_REGISTER GFPE_COMPILER::read_register(const GFPDB_ACTION& action)
{
    GFPE_READ_REGISTER step;
    fill(step, action, GFPDB_RR_NAME, GFPDB_RR_COMMAND);
    step.command.in_length = number_of(action, GFPDB_RR_DATA_LENGTH);
    const GFPDB_BUS_WIDTH lines = *gfpdb_parse_bus_width(text_of(action, GFPDB_RR_BUS_WIDTH));
    step.command.opcode_lines = lines[0];
    step.command.data_lines = lines[1];
    if (is_word(action, GFPDB_RR_EXPECTED_DATA, GFPDB_VALUE_NONE))
        return step;
    const bool is_id = is_word(action, GFPDB_RR_EXPECTED_DATA, GFPDB_VALUE_ID);
    step.expected = is_id ? m_device.id : bytes_of(action, GFPDB_RR_EXPECTED_DATA);
    step.mask = bytes_of(action, GFPDB_RR_EXPECTED_DATA_MASK);
    // Only as many bytes are compared as the ID and the answer both have.
    const std::size_t compared = std::min(step.expected.size(), step.mask.size());
    step.expected.resize(compared);
    step.mask.resize(compared);
    if (compared == 0)
        add_problem(step.number, GFPDB_RR_EXPECTED_DATA, "The device has no ID to compare with.");
    step.attempts = number_of(action, GFPDB_RR_ATTEMPT_COUNT);
    step.delay = number_of(action, GFPDB_RR_DELAY);
    step.is_id_check = m_kind == GFPDB_OPERATION_INITIALIZATION && (is_id || reads_id(step.command.opcode));
    m_has_id_check = m_has_id_check || step.is_id_check;
    return step;
}

GFPE_WRITE_DATA GFPE_COMPILER::write_data(const GFPDB_ACTION& action)
{
    GFPE_WRITE_DATA step;
    fill(step, action, GFPDB_WD_NAME, GFPDB_WD_COMMAND);
    step.address = address_of(action, GFPDB_WD_ADDRESS);
    step.page_bytes = number_of(action, GFPDB_WD_PAGE_SIZE);
    if (!is_word(action, GFPDB_WD_DATA, GFPDB_VALUE_IMAGE))
        step.data = bytes_of(action, GFPDB_WD_DATA);
    step.command.address_bytes = static_cast<int>(number_of(action, GFPDB_WD_ADDRESSING_MODE));
    step.command.out_length = step.is_of_image() ? static_cast<std::size_t>(step.page_bytes) : step.data.size();
    step.delay = number_of(action, GFPDB_WD_DELAY);
    set_lines(step.command, action, GFPDB_WD_BUS_WIDTH);
    return step;
}

GFPE_READ_DATA GFPE_COMPILER::read_data(const GFPDB_ACTION& action)
{
    GFPE_READ_DATA step;
    fill(step, action, GFPDB_RD_NAME, GFPDB_RD_COMMAND);
    step.address = address_of(action, GFPDB_RD_ADDRESS);
    step.length = size(action, GFPDB_RD_DATA_LENGTH);
    if (is_word(action, GFPDB_RD_EXPECTED_DATA, GFPDB_VALUE_NONE)) {
        step.expected = GFPE_READ_DATA::NOTHING;
    } else {
        step.mask = byte_of(action, GFPDB_RD_EXPECTED_DATA_MASK);
        if (!is_word(action, GFPDB_RD_EXPECTED_DATA, GFPDB_VALUE_IMAGE)) {
            step.expected = GFPE_READ_DATA::BYTE;
            step.byte = byte_of(action, GFPDB_RD_EXPECTED_DATA);
        }
    }
    step.command.address_bytes = static_cast<int>(number_of(action, GFPDB_RD_ADDRESSING_MODE));
    step.delay = number_of(action, GFPDB_RD_DELAY);
    set_lines(step.command, action, GFPDB_RD_BUS_WIDTH);
    step.command.dummy_clocks = static_cast<int>(number_of(action, GFPDB_RD_DUMMY_CLOCK));
    // On several lines the chip answers on lines that the host drives, and the last dummy clock is for letting them go.
    const bool turns_around = step.command.data_lines > 1 && step.command.dummy_clocks > 0;
    step.command.driven_dummy_clocks = step.command.dummy_clocks - (turns_around ? 1 : 0);
    return step;
}

GFPE_ERASE GFPE_COMPILER::erase(const GFPDB_ACTION& action)
{
    GFPE_ERASE step;
    fill(step, action, GFPDB_ER_NAME, GFPDB_ER_COMMAND);
    step.delay = number_of(action, GFPDB_ER_DELAY);
    step.command.address_bytes = static_cast<int>(number_of(action, GFPDB_ER_ADDRESSING_MODE));
    const GFPDB_BUS_WIDTH lines = *gfpdb_parse_bus_width(text_of(action, GFPDB_ER_BUS_WIDTH));
    step.command.opcode_lines = lines[0];
    if (step.command.address_bytes == 0) {
        step.address.kind = GFPE_ADDRESS::EVERYTHING;
        step.bytes = m_walked_bytes;
        return step;
    }
    step.command.address_lines = lines[1];
    step.address = address_of(action, GFPDB_ER_ADDRESS);
    step.bytes = size(action, GFPDB_ER_ERASE_SIZE);
    return step;
}

void GFPE_COMPILER::fill(GFPE_ACTION& step, const GFPDB_ACTION& action, int name, int command) const
{
    step.number = static_cast<int>(m_at) + 1;
    step.name = text_of(action, name);
    step.command.opcode = byte_of(action, command);
}

std::int64_t GFPE_COMPILER::size(const GFPDB_ACTION& action, int property) const
{
    if (is_word(action, property, GFPDB_VALUE_DEVICE))
        return m_flow.device_bytes;
    return is_word(action, property, GFPDB_VALUE_DIE) ? m_flow.die_bytes() : number_of(action, property);
}

void GFPE_COMPILER::add_problem(int number, int property, const std::string& text)
{
    const GFPDB_ACTION* const action = m_actions[static_cast<std::size_t>(number) - 1];
    m_problems.push_back(gfpe_action_problem(m_kind, number, action, property, text));
}
