// SPDX-License-Identifier: MIT
#include "sfdp/gfpdb_proposal.h"

#include "base/gfpdb_words.h"
#include "catalogue/gfpdb_builtin_records.h"
#include "catalogue/gfpdb_catalogue_csv.h"
#include "gfpdb/gfpdb_action_value.h"
#include "gfpdb/gfpdb_text.h"
#include "model/gfpdb_field.h"
#include "rules/gfpdb_action_rules.h"
#include "rules/gfpdb_checks.h"
#include "rules/gfpdb_options.h"
#include "sfdp/gfpdb_known_part.h"

#include <QtGlobal>

#include <algorithm>
#include <utility>

using namespace gfpdb_proposed;

namespace {

using VALUE = GFPDB_VALUE_OF;

struct ENTRY
{
    const char* key;
    const char* title;
};
// By the numbers of GFPDB_VALUE_OF. The titles are in the catalogues for programs that show them; Erase
// is the same in all languages.
constexpr std::array<ENTRY, GFPDB_VALUES_OF_DEVICE> ENTRIES = {{
    {"name", QT_TRANSLATE_NOOP("gfpdb", "Name")},
    {"id", QT_TRANSLATE_NOOP("gfpdb", "ID")},
    {"maker", QT_TRANSLATE_NOOP("gfpdb", "Maker")},
    {"voltage", QT_TRANSLATE_NOOP("gfpdb", "I/O voltage")},
    {"density", QT_TRANSLATE_NOOP("gfpdb", "Density")},
    {"dies", QT_TRANSLATE_NOOP("gfpdb", "Dies")},
    {"die-selection", QT_TRANSLATE_NOOP("gfpdb", "Dies are selected by C2")},
    {"page-size", QT_TRANSLATE_NOOP("gfpdb", "Page size (bytes)")},
    {"address-bytes", QT_TRANSLATE_NOOP("gfpdb", "Address bytes")},
    {"four-byte-entry", QT_TRANSLATE_NOOP("gfpdb", "4-byte addressing, enter")},
    {"four-byte-exit", QT_TRANSLATE_NOOP("gfpdb", "4-byte addressing, leave")},
    {"four-byte-check", QT_TRANSLATE_NOOP("gfpdb", "4-byte addressing, register and bit")},
    {"quad-enable", QT_TRANSLATE_NOOP("gfpdb", "Quad enable")},
    {"unlock", QT_TRANSLATE_NOOP("gfpdb", "Unlock blocks")},
    {"reset", QT_TRANSLATE_NOOP("gfpdb", "Reset")},
    {"busy-poll", QT_TRANSLATE_NOOP("gfpdb", "Busy is read by")},
    {"single-dummy", QT_TRANSLATE_NOOP("gfpdb", "Dummy clocks, single")},
    {"quad-read", QT_TRANSLATE_NOOP("gfpdb", "Quad read")},
    {"quad-dummy", QT_TRANSLATE_NOOP("gfpdb", "Dummy clocks, quad")},
    {"quad-program", QT_TRANSLATE_NOOP("gfpdb", "Quad program")},
    {"erase", "Erase"},
    {"program-wait", QT_TRANSLATE_NOOP("gfpdb", "Page program, longest wait (us)")},
    {"erase-wait", QT_TRANSLATE_NOOP("gfpdb", "Erase, longest wait (ms)")},
}};

// In the units of the two values: more than a minute for a page, more than a day for a chip.
constexpr std::int64_t WAIT_MAX = 100000000;
constexpr int DUMMY_CLOCKS_MAX = 31;
constexpr int PAGE_SIZE_MAX = 4096;

std::size_t index_of(VALUE value)
{
    return static_cast<std::size_t>(value);
}

// Texts in which every choice that is allowed is listed.
bool is_closed_choice(VALUE value)
{
    switch (value) {
    case VALUE::MAKER:
    case VALUE::DIE_SELECTION:
    case VALUE::ADDRESS_BYTES:
    case VALUE::ENTER_FOUR_BYTE:
    case VALUE::LEAVE_FOUR_BYTE:
    case VALUE::CHECK_FOUR_BYTE:
    case VALUE::QUAD_ENABLE:
    case VALUE::UNLOCK:
    case VALUE::RESET:
    case VALUE::BUSY_POLL:
    case VALUE::QUAD_READ:
    case VALUE::QUAD_PROGRAM:
        return true;
    default:
        return false;
    }
}

// The lowest and highest of a number.
struct RANGE
{
    std::int64_t lowest;
    std::int64_t highest;
};

std::optional<RANGE> range_of(VALUE value)
{
    const GFPDB_FIELD& dies = *gfpdb_field(GFPDB_FLASH_TOTAL_DIE);
    switch (value) {
    case VALUE::DIES:
        return RANGE{dies.lowest, dies.highest};
    case VALUE::PAGE_SIZE:
        return RANGE{1, PAGE_SIZE_MAX};
    case VALUE::SINGLE_DUMMY:
    case VALUE::QUAD_DUMMY:
        return RANGE{0, DUMMY_CLOCKS_MAX};
    case VALUE::PROGRAM_WAIT:
    case VALUE::ERASE_WAIT:
        return RANGE{1, WAIT_MAX};
    default:
        return std::nullopt;
    }
}

std::string problem_of_number(const std::string& text, const RANGE& range)
{
    const std::optional<std::int64_t> number = gfpdb_parse_decimal(text);
    if (!number)
        return GFPDB_WORDS::say("%1 is not a number.", {gfpdb_quoted(text)});
    if (*number >= range.lowest && *number <= range.highest)
        return {};
    return GFPDB_WORDS::say("%1 is out of range: %2 to %3 are allowed.",
                            {gfpdb_quoted(text), std::to_string(range.lowest), std::to_string(range.highest)});
}

std::string problem_of_density(const std::string& text)
{
    const std::int64_t bytes = gfpdb_density_bytes(text);
    if (bytes > GFPDB_DEVICE_BYTES_MAX)
        return GFPDB_WORDS::say("%1 is more than 32Gb.", {gfpdb_quoted(text)});
    return bytes > 0 ? std::string() : GFPDB_WORDS::say("%1 is not a density such as 128Mb.", {gfpdb_quoted(text)});
}

std::string problem_of_erase(const std::string& text)
{
    std::string error;
    const std::optional<std::vector<GFPDB_ERASE_COMMAND>> commands = gfpdb_parse_erase_commands(text, error);
    if (text == WHOLE_CHIP || (commands && commands->size() == 1))
        return {};
    return GFPDB_WORDS::say("%1 is neither an erase command such as %2 nor %3.",
                            {gfpdb_quoted(text), "D8:64K", gfpdb_quoted(WHOLE_CHIP)});
}

} // namespace

GFPDB_PROPOSAL::GFPDB_PROPOSAL(const std::vector<std::uint8_t>& id, const GFPDB_SFDP* sfdp) : m_id(gfpdb_trimmed_id(id))
{
    if (sfdp != nullptr)
        m_sfdp = *sfdp;
    for (std::size_t at = 0; at < m_values.size(); ++at) {
        m_values[at].key = ENTRIES[at].key;
        m_values[at].title = ENTRIES[at].title;
    }
    propose();
}

std::vector<GFPDB_PROPOSED_VALUE> GFPDB_PROPOSAL::get_values() const
{
    return {m_values.begin(), m_values.end()};
}

std::int64_t GFPDB_PROPOSAL::number(VALUE_OF value) const
{
    return gfpdb_parse_decimal(text(value)).value_or(0);
}

std::int64_t GFPDB_PROPOSAL::density_bits() const
{
    return gfpdb_density_bytes(text(VALUE_OF::DENSITY)) * 8;
}

std::vector<std::uint8_t> GFPDB_PROPOSAL::id_bytes() const
{
    return gfpdb_device_id_bytes(text(VALUE_OF::ID));
}

void GFPDB_PROPOSAL::propose()
{
    // By the numbers of GFPDB_VALUE_OF.
    static constexpr std::array<PROPOSE, GFPDB_VALUES_OF_DEVICE> PROPOSE_VALUE = {
        &GFPDB_PROPOSAL::propose_name,
        &GFPDB_PROPOSAL::propose_id,
        &GFPDB_PROPOSAL::propose_maker,
        &GFPDB_PROPOSAL::propose_voltage,
        &GFPDB_PROPOSAL::propose_density,
        &GFPDB_PROPOSAL::propose_dies,
        &GFPDB_PROPOSAL::propose_die_selection,
        &GFPDB_PROPOSAL::propose_page_size,
        &GFPDB_PROPOSAL::propose_address_bytes,
        &GFPDB_PROPOSAL::propose_enter_four_byte,
        &GFPDB_PROPOSAL::propose_leave_four_byte,
        &GFPDB_PROPOSAL::propose_check_four_byte,
        &GFPDB_PROPOSAL::propose_quad_enable,
        &GFPDB_PROPOSAL::propose_unlock,
        &GFPDB_PROPOSAL::propose_reset,
        &GFPDB_PROPOSAL::propose_busy_poll,
        &GFPDB_PROPOSAL::propose_single_dummy,
        &GFPDB_PROPOSAL::propose_quad_read,
        &GFPDB_PROPOSAL::propose_quad_dummy,
        &GFPDB_PROPOSAL::propose_quad_program,
        &GFPDB_PROPOSAL::propose_erase,
        &GFPDB_PROPOSAL::propose_program_wait,
        &GFPDB_PROPOSAL::propose_erase_wait};
    for (std::size_t at = 0; at < m_values.size(); ++at) {
        PROPOSED proposed = (this->*PROPOSE_VALUE[at])();
        m_values[at].choices = std::move(proposed.choices);
        if (!m_is_entered[at]) {
            m_values[at].text = std::move(proposed.text);
            m_values[at].source = std::move(proposed.source);
        }
        if (at == index_of(VALUE_OF::MAKER))
            find_habit();
        if (at == index_of(VALUE_OF::ADDRESS_BYTES)) {
            m_model.density = text(VALUE_OF::DENSITY);
            m_model.addressing_bytes = static_cast<int>(number(VALUE_OF::ADDRESS_BYTES));
        }
    }
}

void GFPDB_PROPOSAL::find_habit()
{
    const std::string& maker = text(VALUE_OF::MAKER);
    m_listed = gfpdb_parts_with_id(id_bytes());
    m_listed.erase(std::remove_if(m_listed.begin(), m_listed.end(),
                                  [&maker](const GFPDB_PART* part) { return part->manufacturer != maker; }),
                   m_listed.end());
    m_model = GFPDB_PART();
    m_has_model = maker != OTHER_MAKER;
    m_model.manufacturer = m_has_model ? maker : std::string();
    const GFPDB_PART* best = nullptr;
    // A part with this very ID comes before one whose longer ID begins with it.
    std::pair<std::size_t, bool> least;
    for (const GFPDB_PART_COMPARISON& each : gfpdb_compare_with_catalogue(id_bytes(), m_sfdp.value_or(GFPDB_SFDP()))) {
        const bool is_of_maker = std::find(m_listed.begin(), m_listed.end(), each.part) != m_listed.end();
        const std::pair<std::size_t, bool> distance = {each.differences.size(),
                                                       each.part->jedec_id.size() != id_bytes().size()};
        if (is_of_maker && (best == nullptr || distance < least)) {
            best = each.part;
            least = distance;
        }
    }
    if (best != nullptr)
        m_model = *best;
}

std::string GFPDB_PROPOSAL::problem_of(VALUE_OF value, const std::string& text) const
{
    std::string error;
    if (const std::optional<RANGE> range = range_of(value)) {
        error = problem_of_number(text, *range);
        const std::int64_t number = error.empty() ? *gfpdb_parse_decimal(text) : 0;
        if (value == VALUE_OF::PAGE_SIZE && (number & (number - 1)) != 0)
            return GFPDB_WORDS::say("%1 is not a power of two.", {gfpdb_quoted(text)});
        return error;
    }
    const std::vector<std::string>& choices = m_values[index_of(value)].choices;
    if (is_closed_choice(value)) {
        gfpdb_check_choice(text, choices, ENTRIES[index_of(value)].key, error);
        return error;
    }
    switch (value) {
    case VALUE_OF::NAME:
        gfpdb_check_record_name(text, "device name", error);
        return error;
    case VALUE_OF::ID:
        gfpdb_check_device_id(text, error);
        return error;
    case VALUE_OF::VOLTAGE:
        if (!gfpdb_is_voltage(text))
            gfpdb_check_choice(text, choices, "I/O voltage", error);
        return error;
    case VALUE_OF::DENSITY:
        return problem_of_density(text);
    default:
        return problem_of_erase(text);
    }
}

bool GFPDB_PROPOSAL::set_value(const std::string& key, const std::string& text, std::string& problem)
{
    const auto entry =
        std::find_if(ENTRIES.begin(), ENTRIES.end(), [&key](const ENTRY& each) { return key == each.key; });
    if (entry == ENTRIES.end()) {
        problem = GFPDB_WORDS::say("There is no value %1.", {gfpdb_quoted(key)});
        return false;
    }
    const auto at = static_cast<std::size_t>(entry - ENTRIES.begin());
    const auto value = static_cast<VALUE_OF>(at);
    problem = text.empty() ? std::string() : problem_of(value, text);
    if (!problem.empty())
        return false;
    m_is_entered[at] = !text.empty();
    m_values[at].text = text;
    m_values[at].source = ENTERED;
    if (value == VALUE_OF::ID && !text.empty()) {
        const std::vector<std::uint8_t> bytes = gfpdb_device_id_bytes(text);
        m_values[at].text = gfpdb_bytes_text({bytes.begin(), bytes.end()});
    }
    propose();
    return true;
}
