// SPDX-License-Identifier: MIT

// What is proposed for each value of a new device, and from where.
#include "sfdp/gfpdb_proposal.h"

#include "catalogue/gfpdb_flow_builder.h"
#include "gfpdb/gfpdb_action_value.h"
#include "gfpdb/gfpdb_catalogue.h"
#include "rules/gfpdb_action_rules.h"
#include "rules/gfpdb_options.h"
#include "sfdp/gfpdb_known_part.h"
#include "sfdp/gfpdb_sfdp_table.h"

#include <algorithm>
#include <iterator>

using namespace gfpdb_proposed;

namespace {

constexpr std::int64_t THREE_BYTE_BITS_MAX = std::int64_t(1) << 27;
constexpr int USUAL_PAGE_SIZE = 256;
constexpr int PAGE_SIZE_MAX = 4096;
constexpr int USUAL_DUMMY = 8;
constexpr int DUMMY_CLOCKS_MAX = 31;
constexpr std::int64_t ERASE_BYTES_MAX = 1 << 30;

const std::string DW1 = "SFDP DW1";
const std::string DW3 = "SFDP DW3";
const std::string DW11 = "SFDP DW11";
const std::string DW14 = "SFDP DW14";
const std::string DW15 = "SFDP DW15";
const std::string DW16 = "SFDP DW16";

// Bits of DW14 and DW16 as GFPDB_SFDP has them, and of the table of 4-byte instructions.
constexpr int POLL_STATUS = 1 << 0;
constexpr int POLL_FLAG_STATUS = 1 << 1;
constexpr int RESET_BY_66_99 = 1 << 4;
constexpr std::uint32_t HAS_0C = 1 << 1;
constexpr std::uint32_t HAS_6C = 1 << 4;
constexpr std::uint32_t HAS_EC = 1 << 5;
constexpr std::uint32_t HAS_12 = 1 << 6;
constexpr std::uint32_t HAS_34 = 1 << 7;
constexpr std::uint32_t HAS_3E = 1 << 8;

// The ways into 4-byte addressing and out of it by their bits, in the order of preference: a mode command before the
// bank register, and before commands of which a part may have few. "Always" is the last resort.
struct WAY
{
    int bit;
    const char* text;
};
constexpr WAY ENTRIES[] = {{0, "B7"}, {1, "06 B7"}, {3, "17 80"}, {5, OWN_COMMANDS}, {6, ALWAYS}};
constexpr WAY EXITS[] = {{0, "E9"}, {1, "06 E9"}, {3, "17 00"}, {6, BY_RESET}};

// By the numbers of GFPDB_FOUR_BYTE_ENTRY, GFPDB_FOUR_BYTE_EXIT and GFPDB_STATUS_WRITE.
constexpr const char* ENTRY_TEXTS[] = {NONE, "B7", "06 B7", "17 80", OWN_COMMANDS, ALWAYS};
constexpr const char* EXIT_TEXTS[] = {NONE, "E9", "06 E9", "17 00", BY_RESET};
constexpr const char* STATUS_TEXTS[] = {NONE, "SR1 bit 6", "SR2 bit 1", "SR2 bit 1 by 31", "SR2 bit 7 by 3E"};
// By the quad-enable requirement; the last one is reserved.
constexpr const char* REQUIREMENT_TEXTS[] = {NONE,        "SR2 bit 1", "SR1 bit 6",       "SR2 bit 7 by 3E",
                                             "SR2 bit 1", "SR2 bit 1", "SR2 bit 1 by 31", ""};

template <typename LIST, typename VALUE>
bool has(const LIST& list, const VALUE& value)
{
    return std::find(std::begin(list), std::end(list), value) != std::end(list);
}

template <std::size_t COUNT>
std::vector<std::string> all_of(const char* const (&texts)[COUNT])
{
    return std::vector<std::string>(std::begin(texts), std::end(texts));
}

// "EB 1-4-4"
std::string command_text(int opcode, const std::string& width)
{
    return gfpdb_sfdp_hex(static_cast<std::uint32_t>(opcode), 2) + ' ' + width;
}

std::string size_text(std::int64_t bytes)
{
    constexpr std::int64_t KILOBYTE = 1 << 10;
    constexpr std::int64_t MEGABYTE = 1 << 20;
    if (bytes % MEGABYTE == 0)
        return std::to_string(bytes / MEGABYTE) + 'M';
    return bytes % KILOBYTE == 0 ? std::to_string(bytes / KILOBYTE) + 'K' : std::to_string(bytes) + 'B';
}

// "D8:64K"
std::string erase_text(int opcode, std::int64_t bytes)
{
    return gfpdb_sfdp_hex(static_cast<std::uint32_t>(opcode), 2) + ':' + size_text(bytes);
}

// A quarter more than the longest time, as the clock of a chip is not that of its tester.
std::int64_t with_reserve(std::int64_t time)
{
    return (time * 5 + 3) / 4;
}

} // namespace

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::from_habit(const std::string& text) const
{
    return {text, m_has_model ? FROM_ID : ASSUMED};
}

// Of a value that follows from another one.
std::string GFPDB_PROPOSAL::derived_source(VALUE_OF value) const
{
    return source(value) == ENTERED ? ASSUMED : source(value);
}

template <typename VALUE>
std::optional<VALUE> GFPDB_PROPOSAL::common_value(VALUE GFPDB_PART::*member) const
{
    std::optional<VALUE> common;
    for (const GFPDB_PART* part : m_listed) {
        if (part->*member == VALUE() || (common && *common != part->*member))
            return std::nullopt;
        common = part->*member;
    }
    return common;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_name() const
{
    return {};
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_id() const
{
    const std::vector<int> bytes(m_id.begin(), m_id.end());
    return bytes.empty() ? PROPOSED() : PROPOSED{gfpdb_bytes_text(bytes), "command 9F"};
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_maker() const
{
    std::vector<std::string> choices = gfpdb_makers();
    choices.emplace_back(OTHER_MAKER);
    const std::string maker = gfpdb_maker_of_id(id_bytes());
    if (maker.empty())
        return {OTHER_MAKER, ASSUMED, choices};
    return {maker, FROM_ID, choices};
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_voltage() const
{
    const std::optional<std::string> voltage = common_value(&GFPDB_PART::voltage);
    return {voltage.value_or(""), voltage ? FROM_ID : "", gfpdb_voltage_options(GFPDB_SCHEME_KIND::SERIAL)};
}

bool GFPDB_PROPOSAL::is_too_large() const
{
    return has_sfdp() && m_sfdp->density_bits / 8 > GFPDB_DEVICE_BYTES_MAX;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_density() const
{
    const std::vector<std::string> choices = gfpdb_density_options(GFPDB_SCHEME_KIND::SERIAL);
    if (has_sfdp() && m_sfdp->density_bits > 0 && !is_too_large())
        return {gfpdb_density_text(m_sfdp->density_bits), "SFDP DW2", choices};
    if (const std::optional<std::string> density = common_value(&GFPDB_PART::density))
        return {*density, FROM_ID, choices};
    const std::int64_t usual = gfpdb_usual_bytes_of_id(id_bytes());
    return usual > 0 ? PROPOSED{gfpdb_density_text(usual * 8), FROM_ID, choices} : PROPOSED{"", "", choices};
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_dies() const
{
    const bool is_same_size = gfpdb_density_bytes(m_model.density) * 8 == density_bits();
    if (m_model.total_die > 0 && is_same_size)
        return {std::to_string(m_model.total_die), FROM_ID};
    return {"1", ASSUMED};
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_die_selection() const
{
    const std::vector<std::string> choices = {NONE, FOR_STATUS, FOR_ALL};
    const GFPDB_FLOW_TRAITS habit = gfpdb_flow_traits(m_model, true);
    const char* const way = habit.selected_dies > 1 ? FOR_ALL : habit.status_dies > 1 ? FOR_STATUS : NONE;
    const bool has_dies = number(VALUE_OF::DIES) > 1;
    return {has_dies ? way : NONE, has_dies && m_has_model ? FROM_ID : derived_source(VALUE_OF::DIES), choices};
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_page_size() const
{
    if (has_sfdp() && m_sfdp->page_size > 0 && m_sfdp->page_size <= PAGE_SIZE_MAX)
        return {std::to_string(m_sfdp->page_size), DW11};
    if (const std::optional<int> page_size = common_value(&GFPDB_PART::page_size))
        return {std::to_string(*page_size), FROM_ID};
    return {std::to_string(USUAL_PAGE_SIZE), ASSUMED};
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_address_bytes() const
{
    const std::vector<std::string> choices = {"3", "4"};
    const bool is_large = density_bits() > THREE_BYTE_BITS_MAX;
    if (!has_sfdp() || m_sfdp->address == GFPDB_SFDP_ADDRESS::RESERVED)
        return {is_large ? "4" : "3", FROM_DENSITY, choices};
    if (is_large && m_sfdp->address == GFPDB_SFDP_ADDRESS::THREE)
        return {"4", FROM_DENSITY, choices};
    return {is_large || m_sfdp->address == GFPDB_SFDP_ADDRESS::FOUR ? "4" : "3", DW1, choices};
}

bool GFPDB_PROPOSAL::says_nothing_of_mode() const
{
    constexpr int ALL_ENTRIES = 0xFF;
    return has_sfdp() && m_sfdp->address == GFPDB_SFDP_ADDRESS::THREE && m_sfdp->enter_4_byte == ALL_ENTRIES;
}

bool GFPDB_PROPOSAL::has_own_commands() const
{
    constexpr std::uint32_t NEEDED = HAS_0C | HAS_12;
    const bool has_erase =
        std::any_of(m_sfdp->erase.begin(), m_sfdp->erase.end(), [](const auto& erase) { return erase.opcode_4_byte; });
    return (m_sfdp->instructions_4_byte.value_or(0) & NEEDED) == NEEDED && has_erase;
}

std::vector<std::string> GFPDB_PROPOSAL::listed_entries() const
{
    std::vector<std::string> entries;
    if (!has_sfdp() || !m_sfdp->enter_4_byte || says_nothing_of_mode())
        return entries;
    for (const WAY& way : ENTRIES) {
        const bool is_listed = (*m_sfdp->enter_4_byte & 1 << way.bit) != 0;
        if (is_listed && (way.text != std::string(OWN_COMMANDS) || has_own_commands()))
            entries.emplace_back(way.text);
    }
    return entries;
}

std::vector<std::string> GFPDB_PROPOSAL::listed_exits() const
{
    std::vector<std::string> exits;
    if (!has_sfdp() || !m_sfdp->leave_4_byte || says_nothing_of_mode())
        return exits;
    for (const WAY& way : EXITS) {
        if ((*m_sfdp->leave_4_byte & 1 << way.bit) != 0)
            exits.emplace_back(way.text);
    }
    return exits;
}

// A way that the maker's other parts have comes before others that are listed.
GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_enter_four_byte() const
{
    const std::vector<std::string> choices = all_of(ENTRY_TEXTS);
    if (text(VALUE_OF::ADDRESS_BYTES) != "4")
        return {NONE, derived_source(VALUE_OF::ADDRESS_BYTES), choices};
    if (has_sfdp() && m_sfdp->address == GFPDB_SFDP_ADDRESS::FOUR)
        return {ALWAYS, DW1, choices};
    const std::string habit = ENTRY_TEXTS[static_cast<int>(gfpdb_flow_traits(m_model, true).enter_four_byte)];
    const std::vector<std::string> listed = listed_entries();
    PROPOSED proposed = listed.empty() ? from_habit(habit) : PROPOSED{listed.front(), DW16};
    if (m_has_model && has(listed, habit))
        proposed.text = habit;
    proposed.choices = choices;
    return proposed;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_leave_four_byte() const
{
    const std::vector<std::string> choices = all_of(EXIT_TEXTS);
    const std::string& entry = text(VALUE_OF::ENTER_FOUR_BYTE);
    if (entry == NONE || entry == OWN_COMMANDS || entry == ALWAYS)
        return {NONE, derived_source(VALUE_OF::ENTER_FOUR_BYTE), choices};
    const GFPDB_FLOW_TRAITS habit = gfpdb_flow_traits(m_model, true);
    const bool is_habit_entry = entry == ENTRY_TEXTS[static_cast<int>(habit.enter_four_byte)];
    const std::string of_entry = entry == "17 80" ? "17 00" : entry == "06 B7" ? "06 E9" : "E9";
    const std::string usual = is_habit_entry ? EXIT_TEXTS[static_cast<int>(habit.leave_four_byte)] : of_entry;
    const std::vector<std::string> listed = listed_exits();
    // The way out belongs to the way in, which tables do not say for one that they do not list.
    const bool is_listed = !listed.empty() && source(VALUE_OF::ENTER_FOUR_BYTE) != ENTERED;
    PROPOSED proposed = is_listed ? PROPOSED{listed.front(), DW16} : from_habit(usual);
    if (has(listed, usual))
        proposed = {usual, DW16};
    proposed.choices = choices;
    return proposed;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_check_four_byte() const
{
    const std::vector<std::string> choices = {NONE, "15 & 01", "15 & 20", "16 & 80", "70 & 01"};
    const std::string& entry = text(VALUE_OF::ENTER_FOUR_BYTE);
    const bool has_mode = entry != NONE && entry != OWN_COMMANDS && entry != ALWAYS;
    const std::optional<GFPDB_MODE_CHECK> check = gfpdb_flow_traits(m_model, true).mode_check;
    if (!has_mode)
        return {NONE, derived_source(VALUE_OF::ENTER_FOUR_BYTE), choices};
    if (entry == "17 80")
        return {"16 & 80", derived_source(VALUE_OF::ENTER_FOUR_BYTE), choices};
    PROPOSED proposed = from_habit(check ? gfpdb_sfdp_hex(static_cast<std::uint32_t>(check->opcode), 2) + " & " +
                                               gfpdb_sfdp_hex(static_cast<std::uint32_t>(check->mask), 2)
                                         : NONE);
    proposed.choices = choices;
    return proposed;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_quad_enable() const
{
    PROPOSED proposed;
    if (has_sfdp() && m_sfdp->quad_enable) {
        proposed.text = REQUIREMENT_TEXTS[*m_sfdp->quad_enable];
        proposed.source = proposed.text.empty() ? "" : DW15;
    } else {
        proposed = from_habit(STATUS_TEXTS[static_cast<int>(gfpdb_flow_traits(m_model, true).status_write)]);
    }
    proposed.choices = all_of(STATUS_TEXTS);
    return proposed;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_unlock() const
{
    PROPOSED proposed = from_habit(gfpdb_flow_traits(m_model, true).locked_at_power_up ? "98" : NONE);
    proposed.choices = {NONE, "98"};
    return proposed;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_reset() const
{
    const std::vector<std::string> choices = {NONE, "66 99"};
    if (has_sfdp() && m_sfdp->soft_reset)
        return {(*m_sfdp->soft_reset & RESET_BY_66_99) != 0 ? "66 99" : NONE, DW16, choices};
    PROPOSED proposed = from_habit(gfpdb_flow_traits(m_model, true).reset_at_start ? "66 99" : NONE);
    proposed.choices = choices;
    return proposed;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_busy_poll() const
{
    const std::vector<std::string> choices = {"05", "70"};
    const bool habit_is_flags = gfpdb_flow_traits(m_model, true).flag_status;
    const int listed = has_sfdp() ? m_sfdp->busy_poll.value_or(0) & (POLL_STATUS | POLL_FLAG_STATUS) : 0;
    if (listed == POLL_STATUS || listed == POLL_FLAG_STATUS)
        return {listed == POLL_STATUS ? "05" : "70", DW14, choices};
    PROPOSED proposed = from_habit(habit_is_flags ? "70" : "05");
    if (listed != 0)
        proposed.source = DW14;
    proposed.choices = choices;
    return proposed;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_single_dummy() const
{
    const std::optional<int> clocks = common_value(&GFPDB_PART::dummy_single);
    return {std::to_string(clocks.value_or(USUAL_DUMMY)), clocks ? FROM_ID : ASSUMED};
}

bool GFPDB_PROPOSAL::tells_quad_reads() const
{
    constexpr int DWORD_OF_READS = 3;
    if (!has_sfdp())
        return false;
    return std::none_of(m_sfdp->tables.begin(), m_sfdp->tables.end(), [this](const GFPDB_SFDP_TABLE& table) {
        return table.id == GFPDB_SFDP_BASIC && table.minor == m_sfdp->basic_minor && table.dwords_read > 0 &&
               table.dwords_read < DWORD_OF_READS;
    });
}

std::vector<GFPDB_PROPOSAL::QUAD_READ> GFPDB_PROPOSAL::listed_reads() const
{
    struct LISTED
    {
        std::optional<GFPDB_SFDP_READ> read;
        const char* width;
        std::uint32_t own_command;
    };
    std::vector<QUAD_READ> reads;
    const LISTED all[] = {{m_sfdp->read_1_4_4, "1-4-4", HAS_EC}, {m_sfdp->read_1_1_4, "1-1-4", HAS_6C}};
    for (const LISTED& listed : all) {
        const bool is_there =
            !uses_own_commands() || (m_sfdp->instructions_4_byte.value_or(0) & listed.own_command) != 0;
        if (listed.read && listed.read->dummy_clocks() <= DUMMY_CLOCKS_MAX && is_there)
            reads.push_back({command_text(listed.read->opcode, listed.width), listed.read->dummy_clocks()});
    }
    return reads;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_quad_read() const
{
    std::vector<std::string> choices;
    const std::vector<QUAD_READ> listed = has_sfdp() ? listed_reads() : std::vector<QUAD_READ>();
    std::transform(listed.begin(), listed.end(), std::back_inserter(choices),
                   [](const QUAD_READ& read) { return read.text; });
    for (const char* const usual : {"EB 1-4-4", "6B 1-1-4", "0B 1-1-1"}) {
        if (!has(choices, usual))
            choices.emplace_back(usual);
    }
    if (tells_quad_reads())
        return {listed.empty() ? "0B 1-1-1" : listed.front().text, listed.empty() ? DW1 : DW3, choices};
    const GFPDB_DATA_COMMAND read = gfpdb_flow_traits(m_model, true).read;
    PROPOSED proposed = from_habit(command_text(read.opcode, read.bus_width));
    proposed.choices = choices;
    if (!has(choices, proposed.text))
        proposed.text = "6B 1-1-4";
    return proposed;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_quad_dummy() const
{
    const std::string& chosen = text(VALUE_OF::QUAD_READ);
    if (chosen == "0B 1-1-1")
        return {text(VALUE_OF::SINGLE_DUMMY), derived_source(VALUE_OF::SINGLE_DUMMY)};
    for (const QUAD_READ& read : has_sfdp() ? listed_reads() : std::vector<QUAD_READ>()) {
        if (read.text == chosen)
            return {std::to_string(read.dummy_clocks), DW3};
    }
    constexpr int USUAL_QUAD_DUMMY = 6;
    const std::optional<int> clocks = common_value(&GFPDB_PART::dummy_quad);
    if (chosen == "EB 1-4-4" && clocks)
        return {std::to_string(*clocks), FROM_ID};
    return {std::to_string(chosen == "EB 1-4-4" ? USUAL_QUAD_DUMMY : USUAL_DUMMY), ASSUMED};
}

// A command that the table of 4-byte instructions leaves out may be there all the same.
GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_quad_program() const
{
    const std::string single = "02 1-1-1";
    const std::vector<std::string> choices = {single, "32 1-1-4", "32 1-4-4", "38 1-4-4"};
    if (tells_quad_reads() && listed_reads().empty())
        return {single, DW1, choices};
    GFPDB_PART model = m_model;
    // Whether there is such a bit counts, not where it is.
    model.quad_enable = text(VALUE_OF::QUAD_ENABLE) == NONE ? GFPDB_QUAD_ENABLE::NONE : GFPDB_QUAD_ENABLE::SR2_BIT1;
    const GFPDB_DATA_COMMAND program = gfpdb_flow_traits(model, true).program;
    const std::string habit = m_has_model ? command_text(program.opcode, program.bus_width) : single;
    const std::uint32_t listed = has_sfdp() ? m_sfdp->instructions_4_byte.value_or(0) & (HAS_34 | HAS_3E) : 0;
    PROPOSED proposed = from_habit(has(choices, habit) ? habit : single);
    proposed.choices = choices;
    const bool is_habit = (listed == (HAS_34 | HAS_3E) && habit != single) || (listed == HAS_34 && habit == "32 1-4-4");
    if (listed != 0) {
        proposed.source = "SFDP 4-byte DW1";
        if (!is_habit)
            proposed.text = (listed & HAS_34) != 0 ? "32 1-1-4" : "38 1-4-4";
    } else if (uses_own_commands()) {
        proposed = {single, "SFDP 4-byte DW1", choices};
    }
    return proposed;
}

// True for tables without a sector map, where the listed part has a command that erases another size elsewhere, or
// sectors that are split.
bool GFPDB_PROPOSAL::is_listed_in_part(int opcode) const
{
    if (m_listed.empty() || !m_sfdp->sector_maps.empty())
        return false;
    const auto has_opcode = [opcode](const GFPDB_ERASE_COMMAND& erase) { return erase.opcode == opcode; };
    const bool has_sizes = std::count_if(m_model.sector_erase.begin(), m_model.sector_erase.end(), has_opcode) > 1;
    const bool is_split = !m_model.sector_erase.empty() && !gfpdb_flow_traits(m_model, true).sector_erase;
    return has_sizes || is_split;
}

std::vector<GFPDB_SFDP_ERASE> GFPDB_PROPOSAL::uniform_types() const
{
    std::vector<GFPDB_SFDP_ERASE> types;
    for (GFPDB_SFDP_ERASE erase : m_sfdp->erase) {
        const int opcode = uses_own_commands() ? erase.opcode_4_byte : erase.opcode;
        const auto is_same = [this, opcode](const GFPDB_SFDP_ERASE& other) {
            return (uses_own_commands() ? other.opcode_4_byte : other.opcode) == opcode;
        };
        const bool is_one_size = std::count_if(m_sfdp->erase.begin(), m_sfdp->erase.end(), is_same) == 1;
        const bool is_everywhere =
            std::all_of(m_sfdp->sector_maps.begin(), m_sfdp->sector_maps.end(), [&erase](const GFPDB_SFDP_MAP& map) {
                return std::all_of(map.regions.begin(), map.regions.end(), [&erase](const GFPDB_SFDP_REGION& region) {
                    return (region.erase_types & 1 << (erase.type - 1)) != 0;
                });
            });
        erase.opcode = opcode;
        if (opcode != 0 && is_one_size && is_everywhere && !is_listed_in_part(opcode) &&
            erase.size_bytes <= ERASE_BYTES_MAX && divides_density(erase.size_bytes))
            types.push_back(erase);
    }
    // The largest first, and of the same size the one with the larger opcode: D8 and DC.
    std::stable_sort(types.begin(), types.end(), [](const auto& one, const auto& other) {
        return one.size_bytes != other.size_bytes ? one.size_bytes > other.size_bytes : one.opcode > other.opcode;
    });
    return types;
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_erase() const
{
    std::vector<std::string> choices;
    const std::vector<GFPDB_SFDP_ERASE> types = has_sfdp() ? uniform_types() : std::vector<GFPDB_SFDP_ERASE>();
    std::transform(types.begin(), types.end(), std::back_inserter(choices),
                   [](const GFPDB_SFDP_ERASE& type) { return erase_text(type.opcode, type.size_bytes); });
    const std::optional<GFPDB_ERASE_COMMAND> habit = gfpdb_flow_traits(m_model, true).sector_erase;
    const bool is_usual = habit && divides_density(habit->size_bytes);
    const std::string usual = is_usual ? erase_text(habit->opcode, habit->size_bytes) : WHOLE_CHIP;
    if (choices.empty() && usual != WHOLE_CHIP)
        choices.push_back(usual);
    choices.emplace_back(WHOLE_CHIP);
    if (!types.empty()) {
        const bool is_mapped = !m_sfdp->sector_maps.empty();
        const std::string dword = types.front().type <= 2 ? "SFDP DW8" : "SFDP DW9";
        return {choices.front(),
                is_mapped             ? "SFDP sector map"
                : uses_own_commands() ? "SFDP 4-byte DW2"
                                      : dword,
                choices};
    }
    const bool is_by_list = !m_listed.empty() && !habit;
    if (has_sfdp() && !m_sfdp->erase.empty() && !m_sfdp->sector_maps.empty())
        return {WHOLE_CHIP, "SFDP sector map", choices};
    if (has_sfdp() && !m_sfdp->erase.empty() && !is_by_list)
        return {WHOLE_CHIP, "SFDP DW8", choices};
    PROPOSED proposed = habit && !is_usual ? PROPOSED{WHOLE_CHIP, ASSUMED} : from_habit(usual);
    proposed.choices = choices;
    return proposed;
}

const GFPDB_SFDP_ERASE* GFPDB_PROPOSAL::chosen_type(const std::vector<GFPDB_SFDP_ERASE>& types) const
{
    const auto type = std::find_if(types.begin(), types.end(), [this](const GFPDB_SFDP_ERASE& each) {
        return erase_text(each.opcode, each.size_bytes) == text(VALUE_OF::ERASE);
    });
    return type == types.end() ? nullptr : &*type;
}

// Never less than the usual time: tables are known whose times are too short, and a chip that is ready is not waited
// for.
GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_program_wait() const
{
    const std::int64_t usual = gfpdb_usual_program_wait_us();
    const std::int64_t stated =
        has_sfdp() ? with_reserve(std::int64_t(m_sfdp->page_program_us) * m_sfdp->program_max_factor) : 0;
    return {std::to_string(std::max(usual, stated)), stated > usual ? DW11 : ASSUMED};
}

GFPDB_PROPOSAL::PROPOSED GFPDB_PROPOSAL::propose_erase_wait() const
{
    constexpr std::int64_t MILLISECOND_US = 1000;
    GFPDB_FLOW_TRAITS chosen;
    chosen.sector_erase = sector_erase();
    chosen.flag_status = text(VALUE_OF::BUSY_POLL) == "70";
    const std::int64_t usual = gfpdb_usual_erase_wait_us(chosen) / MILLISECOND_US;
    const bool is_chip = !chosen.sector_erase;
    std::int64_t typical = has_sfdp() && is_chip ? m_sfdp->chip_erase_ms : 0;
    const std::vector<GFPDB_SFDP_ERASE> types = has_sfdp() ? uniform_types() : std::vector<GFPDB_SFDP_ERASE>();
    if (const GFPDB_SFDP_ERASE* const type = chosen_type(types))
        typical = type->typical_ms;
    const std::int64_t stated = has_sfdp() ? with_reserve(typical * m_sfdp->erase_max_factor) : 0;
    return {std::to_string(std::max(usual, stated)), stated <= usual ? ASSUMED : is_chip ? DW11 : "SFDP DW10"};
}
