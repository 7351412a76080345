// SPDX-License-Identifier: MIT

// From the values of a new device to the traits of its flows, and to its record.
#include "sfdp/gfpdb_proposal.h"

#include "base/gfpdb_words.h"
#include "catalogue/gfpdb_catalogue_csv.h"
#include "catalogue/gfpdb_flow_builder.h"
#include "catalogue/gfpdb_flow_templates.h"
#include "gfpdb/gfpdb_action_value.h"
#include "gfpdb/gfpdb_text.h"
#include "model/gfpdb_field.h"
#include "model/gfpdb_flow_text.h"
#include "sfdp/gfpdb_device_place.h"

#include <algorithm>

using namespace gfpdb_proposed;

namespace {

template <typename WHAT>
struct MEANING
{
    const char* text;
    WHAT what;
};

constexpr MEANING<GFPDB_STATUS_WRITE> STATUS_WRITES[] = {{NONE, GFPDB_STATUS_WRITE::CLEAR},
                                                         {"SR1 bit 6", GFPDB_STATUS_WRITE::SR1},
                                                         {"SR2 bit 1", GFPDB_STATUS_WRITE::SR2_WITH_SR1},
                                                         {"SR2 bit 1 by 31", GFPDB_STATUS_WRITE::SR2_OWN_COMMAND},
                                                         {"SR2 bit 7 by 3E", GFPDB_STATUS_WRITE::SR2_BIT7}};
constexpr MEANING<GFPDB_FOUR_BYTE_ENTRY> ENTRIES[] = {{NONE, GFPDB_FOUR_BYTE_ENTRY::NONE},
                                                      {"B7", GFPDB_FOUR_BYTE_ENTRY::MODE},
                                                      {"06 B7", GFPDB_FOUR_BYTE_ENTRY::MODE_WITH_WRITE_ENABLE},
                                                      {"17 80", GFPDB_FOUR_BYTE_ENTRY::BANK_REGISTER},
                                                      {OWN_COMMANDS, GFPDB_FOUR_BYTE_ENTRY::OWN_COMMANDS},
                                                      {ALWAYS, GFPDB_FOUR_BYTE_ENTRY::ALWAYS}};
constexpr MEANING<GFPDB_FOUR_BYTE_EXIT> EXITS[] = {{NONE, GFPDB_FOUR_BYTE_EXIT::NONE},
                                                   {"E9", GFPDB_FOUR_BYTE_EXIT::MODE},
                                                   {"06 E9", GFPDB_FOUR_BYTE_EXIT::MODE_WITH_WRITE_ENABLE},
                                                   {"17 00", GFPDB_FOUR_BYTE_EXIT::BANK_REGISTER},
                                                   {BY_RESET, GFPDB_FOUR_BYTE_EXIT::RESET}};
constexpr MEANING<std::optional<GFPDB_MODE_CHECK>> CHECKS[] = {{NONE, std::nullopt},
                                                               {"15 & 01", GFPDB_MODE_CHECK{0x15, 0x01}},
                                                               {"15 & 20", GFPDB_MODE_CHECK{0x15, 0x20}},
                                                               {"16 & 80", GFPDB_MODE_CHECK{0x16, 0x80}},
                                                               {"70 & 01", GFPDB_MODE_CHECK{0x70, 0x01}}};

// What a text stands for; the texts are those that can be chosen.
template <typename WHAT, std::size_t COUNT>
WHAT meaning(const MEANING<WHAT> (&meanings)[COUNT], const std::string& text)
{
    const auto place =
        std::find_if(std::begin(meanings), std::end(meanings), [&text](const auto& each) { return text == each.text; });
    return place == std::end(meanings) ? meanings[0].what : place->what;
}

// "EB 1-4-4"
GFPDB_DATA_COMMAND data_command(const std::string& text, std::int64_t dummy_clocks)
{
    constexpr const char* WIDTHS[] = {"1-1-1", "1-1-4", "1-4-4"};
    const std::size_t blank = text.find(' ');
    const auto width = std::find(std::begin(WIDTHS), std::end(WIDTHS), text.substr(blank + 1));
    return {gfpdb_parse_byte("0x" + text.substr(0, blank)).value_or(0), width == std::end(WIDTHS) ? "1-1-1" : *width,
            static_cast<int>(dummy_clocks)};
}

std::string flows_text(const GFPDB_FLOW_TRAITS& traits, bool quad)
{
    GFPDB_OPERATION_LIST operations;
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
        operations.emplace_back(gfpdb_build_operation(kind, traits, quad));
    const std::vector<GFPDB_OPERATION*> pointers = gfpdb_pointers(operations);
    return gfpdb_flows_to_text(&pointers).value_or("");
}

} // namespace

std::optional<GFPDB_ERASE_COMMAND> GFPDB_PROPOSAL::sector_erase() const
{
    std::string error;
    const auto commands = gfpdb_parse_erase_commands(text(VALUE_OF::ERASE), error);
    return commands && !commands->empty() ? std::optional(commands->front()) : std::nullopt;
}

GFPDB_FLOW_TRAITS GFPDB_PROPOSAL::traits(bool quad) const
{
    constexpr std::int64_t MILLISECOND_US = 1000;
    GFPDB_PART model = m_model;
    const std::vector<std::uint8_t> id = id_bytes();
    model.jedec_id.assign(id.begin(), id.end());
    GFPDB_FLOW_TRAITS traits = gfpdb_flow_traits(model, quad);
    const int dies = static_cast<int>(number(VALUE_OF::DIES));
    traits.verified =
        source(VALUE_OF::QUAD_ENABLE) != ASSUMED && (source(VALUE_OF::QUAD_ENABLE) != FROM_ID || traits.verified);
    traits.device_bytes = density_bits() / 8;
    traits.address_bytes = static_cast<int>(number(VALUE_OF::ADDRESS_BYTES));
    traits.page_size = static_cast<int>(number(VALUE_OF::PAGE_SIZE));
    traits.status_write = meaning(STATUS_WRITES, text(VALUE_OF::QUAD_ENABLE));
    traits.flow_template = gfpdb_template_of(traits.status_write, traits.address_bytes);
    traits.locked_at_power_up = text(VALUE_OF::UNLOCK) != NONE;
    traits.flag_status = text(VALUE_OF::BUSY_POLL) == "70";
    traits.enter_four_byte = meaning(ENTRIES, text(VALUE_OF::ENTER_FOUR_BYTE));
    traits.leave_four_byte = meaning(EXITS, text(VALUE_OF::LEAVE_FOUR_BYTE));
    traits.mode_check = meaning(CHECKS, text(VALUE_OF::CHECK_FOUR_BYTE));
    traits.reset_at_start = text(VALUE_OF::RESET) != NONE;
    traits.reset_at_end = traits.reset_at_start || traits.leave_four_byte == GFPDB_FOUR_BYTE_EXIT::RESET;
    traits.selected_dies = text(VALUE_OF::DIE_SELECTION) == FOR_ALL ? dies : 1;
    traits.status_dies = text(VALUE_OF::DIE_SELECTION) == FOR_STATUS ? dies : 1;
    traits.program = data_command(quad ? text(VALUE_OF::QUAD_PROGRAM) : "02 1-1-1", 0);
    traits.read = quad ? data_command(text(VALUE_OF::QUAD_READ), number(VALUE_OF::QUAD_DUMMY))
                       : data_command("0B 1-1-1", number(VALUE_OF::SINGLE_DUMMY));
    traits.sector_erase = sector_erase();
    traits.program_wait_us = number(VALUE_OF::PROGRAM_WAIT);
    traits.erase_wait_us = number(VALUE_OF::ERASE_WAIT) * MILLISECOND_US;
    if (uses_own_commands())
        gfpdb_use_own_four_byte_commands(traits);
    return traits;
}

std::optional<GFPDB_RECORD> GFPDB_PROPOSAL::make_record(int family, int scheme, std::string& problem) const
{
    problem = gfpdb_problem_of_place(family, scheme);
    for (const GFPDB_PROPOSED_VALUE& value : m_values) {
        if (problem.empty() && value.text.empty())
            problem = GFPDB_WORDS::say("The value %1 is missing: enter it.", {gfpdb_quoted(value.key)});
    }
    if (problem.empty() && density_bits() % (8 * number(VALUE_OF::DIES)) != 0)
        problem = GFPDB_WORDS::say("The number of dies, %1, does not divide the density.", {text(VALUE_OF::DIES)});
    const std::optional<GFPDB_ERASE_COMMAND> sector = sector_erase();
    if (problem.empty() && sector && !divides_density(sector->size_bytes))
        problem = GFPDB_WORDS::say("The erase command %1 does not divide the density.",
                                   {gfpdb_quoted(text(VALUE_OF::ERASE))});
    if (!problem.empty())
        return std::nullopt;
    const GFPDB_FLOW_TRAITS single = traits(false);
    const GFPDB_FLOW_TRAITS quad = traits(true);
    GFPDB_RECORD record;
    GFPDB_ROW& row = record.row;
    row.family = family;
    row.scheme = scheme;
    row.name = text(VALUE_OF::NAME);
    row.device_id = text(VALUE_OF::ID);
    row.voltage = text(VALUE_OF::VOLTAGE);
    row.density = text(VALUE_OF::DENSITY);
    row.total_die = static_cast<int>(number(VALUE_OF::DIES));
    row.single_io_dummy_clock = std::min(single.read.dummy_clocks, gfpdb_single_dummy_max());
    row.quad_io_dummy_clock = static_cast<int>(number(VALUE_OF::QUAD_DUMMY));
    row.flow_template = gfpdb_builtin_template_names()[static_cast<std::size_t>(quad.flow_template)];
    row.single_flows = flows_text(single, false);
    row.quad_flows = flows_text(quad, true);
    return record;
}
