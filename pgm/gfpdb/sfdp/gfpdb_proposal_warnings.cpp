// SPDX-License-Identifier: MIT

// What a user should know of the values of a new device: where sources disagree, and what nobody says.
#include "sfdp/gfpdb_proposal.h"

#include "base/gfpdb_words.h"
#include "gfpdb/gfpdb_text.h"
#include "sfdp/gfpdb_device_place.h"
#include "sfdp/gfpdb_known_part.h"
#include "sfdp/gfpdb_sfdp_table.h"

#include <algorithm>
#include <bitset>

using namespace gfpdb_proposed;

namespace {

constexpr std::int64_t THREE_BYTE_BITS_MAX = std::int64_t(1) << 27;

// Tables of makers have the maker's byte in the lower half of their number: its ones are odd in number, those of the
// standard's tables even. 0 for a table of the standard.
int maker_of_table(int id)
{
    constexpr unsigned long BYTE = 0xFF;
    const unsigned long low = static_cast<unsigned long>(id) & BYTE;
    return std::bitset<8>(low).count() % 2 == 1 ? static_cast<int>(low) : 0;
}

std::string hex(int byte)
{
    return gfpdb_sfdp_hex(static_cast<std::uint32_t>(byte), 2);
}

std::string density_warning(std::int64_t bits, const std::string& text, const std::string& source,
                            const std::vector<std::uint8_t>& id)
{
    const std::vector<const GFPDB_PART*> listed = gfpdb_parts_with_id(id);
    const bool is_listed = std::any_of(listed.begin(), listed.end(), [bits](const GFPDB_PART* part) {
        return gfpdb_density_bytes(part->density) * 8 == bits;
    });
    const std::int64_t usual = gfpdb_usual_bytes_of_id(id) * 8;
    if (bits == 0 || usual == 0 || bits == usual || is_listed)
        return {};
    return GFPDB_WORDS::say("The density %1 (%2) is not what the ID usually stands for, which is %3.",
                            {text, source, gfpdb_density_text(usual)});
}

} // namespace

std::string GFPDB_PROPOSAL::said_source(VALUE_OF value) const
{
    return GFPDB_WORDS::say(source(value).c_str());
}

std::vector<std::string> GFPDB_PROPOSAL::get_warnings() const
{
    std::vector<std::string> warnings;
    const auto warn = [&warnings](const std::string& text) {
        if (!text.empty())
            warnings.push_back(text);
    };
    if (has_sfdp())
        warnings = m_sfdp->warnings;
    warn(density_warning(density_bits(), text(VALUE_OF::DENSITY), said_source(VALUE_OF::DENSITY), id_bytes()));
    if (is_too_large())
        warn(GFPDB_WORDS::say("SFDP DW2 says a density that no device can have: %1.",
                              {gfpdb_density_text(m_sfdp->density_bits)}));
    warn_of_id(warnings);
    warn_of_mode(warnings);
    if (has_sfdp()) {
        warn_of_addresses(warnings);
        warn_of_registers(warnings);
        warn_of_commands(warnings);
    }
    if (number(VALUE_OF::SINGLE_DUMMY) > gfpdb_single_dummy_max())
        warn(GFPDB_WORDS::say("A device has at most %1 single-I/O dummy clocks: it gets these, and its flow has %2.",
                              {std::to_string(gfpdb_single_dummy_max()), text(VALUE_OF::SINGLE_DUMMY)}));
    return warnings;
}

void GFPDB_PROPOSAL::warn_of_id(std::vector<std::string>& warnings) const
{
    const std::vector<std::uint8_t> id = id_bytes();
    if (id.empty())
        return;
    for (const GFPDB_SFDP_TABLE& table : has_sfdp() ? m_sfdp->tables : std::vector<GFPDB_SFDP_TABLE>()) {
        const int maker = maker_of_table(table.id);
        if (maker != 0 && maker != id.front())
            warnings.push_back(GFPDB_WORDS::say("The chip has a table of the maker %1, and its ID is of the maker %2.",
                                                {hex(maker), hex(id.front())}));
    }
    if (text(VALUE_OF::MAKER) == OTHER_MAKER)
        warnings.push_back(GFPDB_WORDS::say(
            "No listed part tells what the maker's parts have in common: usual commands are assumed."));
    if (m_listed.size() < 2)
        return;
    std::vector<std::string> names;
    for (const GFPDB_PART* part : m_listed)
        names.push_back(part->name);
    warnings.push_back(GFPDB_WORDS::say("Several listed parts have this ID: %1.", {gfpdb_joined(names)}));
}

void GFPDB_PROPOSAL::warn_of_mode(std::vector<std::string>& warnings) const
{
    const bool has_four = text(VALUE_OF::ADDRESS_BYTES) == "4";
    const bool has_entry = text(VALUE_OF::ENTER_FOUR_BYTE) != NONE;
    if (has_four && !has_entry)
        warnings.push_back(
            GFPDB_WORDS::say("The commands have four address bytes, and nothing enters 4-byte addressing."));
    if (!has_four && has_entry)
        warnings.push_back(
            GFPDB_WORDS::say("The commands have three address bytes, and the device is in 4-byte addressing."));
}

void GFPDB_PROPOSAL::warn_of_addresses(std::vector<std::string>& warnings) const
{
    const bool needs_four = text(VALUE_OF::ADDRESS_BYTES) == "4";
    if (!needs_four && density_bits() > THREE_BYTE_BITS_MAX)
        warnings.push_back(GFPDB_WORDS::say("Three address bytes do not reach all of %1.", {text(VALUE_OF::DENSITY)}));
    if (needs_four && m_sfdp->address == GFPDB_SFDP_ADDRESS::THREE)
        warnings.push_back(
            GFPDB_WORDS::say("SFDP DW1 lists three address bytes alone, which do not reach all of %1: four are taken.",
                             {text(VALUE_OF::DENSITY)}));
    if (says_nothing_of_mode())
        warnings.push_back(GFPDB_WORDS::say(
            "SFDP DW16 lists every way into 4-byte addressing, and SFDP DW1 three address bytes: DW16 is ignored."));
    const bool has_way = needs_four && m_sfdp->address != GFPDB_SFDP_ADDRESS::FOUR && !says_nothing_of_mode();
    if (has_way && m_sfdp->enter_4_byte && listed_entries().empty())
        warnings.push_back(
            GFPDB_WORDS::say("SFDP DW16 lists no way into 4-byte addressing that a flow can take: %1 is taken.",
                             {gfpdb_quoted(text(VALUE_OF::ENTER_FOUR_BYTE))}));
}

void GFPDB_PROPOSAL::warn_of_registers(std::vector<std::string>& warnings) const
{
    const auto is_entered = [this](VALUE_OF value) { return m_is_entered[static_cast<std::size_t>(value)]; };
    if (!is_entered(VALUE_OF::PAGE_SIZE) && source(VALUE_OF::PAGE_SIZE) != "SFDP DW11")
        warnings.push_back(GFPDB_WORDS::say(
            m_sfdp->page_size == 0
                ? QT_TRANSLATE_NOOP("gfpdb", "SFDP has no page size: %1 is taken (%2).")
                : QT_TRANSLATE_NOOP("gfpdb", "SFDP DW11 has a page size that no flow can have: %1 is taken (%2)."),
            {text(VALUE_OF::PAGE_SIZE), said_source(VALUE_OF::PAGE_SIZE)}));
    if (is_entered(VALUE_OF::QUAD_ENABLE))
        return;
    if (text(VALUE_OF::QUAD_ENABLE).empty())
        warnings.push_back(
            GFPDB_WORDS::say("SFDP DW15 says with a reserved value how quad is enabled: look it up and enter it."));
    else if (!m_sfdp->quad_enable)
        warnings.push_back(
            GFPDB_WORDS::say("SFDP does not say how quad is enabled: %1 is taken (%2).",
                             {gfpdb_quoted(text(VALUE_OF::QUAD_ENABLE)), said_source(VALUE_OF::QUAD_ENABLE)}));
}

void GFPDB_PROPOSAL::warn_of_commands(std::vector<std::string>& warnings) const
{
    if (tells_quad_reads() && listed_reads().empty())
        warnings.push_back(GFPDB_WORDS::say("SFDP lists no read on four lines: the quad-I/O flow uses one."));
    if (text(VALUE_OF::ERASE) == WHOLE_CHIP && source(VALUE_OF::ERASE) != ENTERED)
        warnings.push_back(GFPDB_WORDS::say("No erase command serves the whole part: the chip is erased at once."));
}
