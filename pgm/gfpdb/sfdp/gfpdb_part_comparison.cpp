// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_new_device.h"

#include "base/gfpdb_words.h"
#include "sfdp/gfpdb_known_part.h"
#include "sfdp/gfpdb_sfdp_table.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

// What read-outs of parts have that share their ID with others: the double words of the basic table, and whether all of
// them list the 4-4-4 read.
struct KNOWN_TABLE
{
    const char* name;
    int dwords;
    bool has_4_4_4;
};
constexpr KNOWN_TABLE KNOWN_TABLES[] = {
    {"MX25L12833F", 16, true}, {"MX25L25635F", 9, true}, {"MX25L25645G", 16, false}, {"MX25U25645G", 16, true},
    {"W25Q128JV-Q", 16, true}, {"W25Q256FV", 9, false},  {"W25Q256JV-Q", 16, false}, {"GD25Q256C", 9, false},
};

class COMPARISON
{
public:
    COMPARISON(const GFPDB_PART& part, const GFPDB_SFDP& sfdp) : m_part(part), m_sfdp(sfdp) {}

    std::vector<std::string> take()
    {
        const std::int64_t listed_bits = gfpdb_density_bytes(m_part.density) * 8;
        if (m_sfdp.density_bits > 0 && m_sfdp.density_bits != listed_bits)
            differ(GFPDB_WORDS::say("density"), m_part.density, gfpdb_density_text(m_sfdp.density_bits), "SFDP DW2");
        compare_numbers(GFPDB_WORDS::say("page size"), m_part.page_size, m_sfdp.page_size, "SFDP DW11");
        compare_address();
        compare_erase();
        if (m_sfdp.read_1_4_4)
            compare_numbers(GFPDB_WORDS::say("quad-I/O dummy clocks"), m_part.dummy_quad,
                            m_sfdp.read_1_4_4->dummy_clocks(), "SFDP DW3");
        compare_quad_enable();
        compare_table();
        return std::move(m_differences);
    }

private:
    void differ(const std::string& what, const std::string& listed, const std::string& said, const std::string& source)
    {
        m_differences.push_back(GFPDB_WORDS::say("%1: %2 in the list, %3 by %4", {what, listed, said, source}));
    }

    // 0 stands for what is not known.
    void compare_numbers(const std::string& what, int listed, int said, const char* source)
    {
        if (listed != 0 && said != 0 && listed != said)
            differ(what, std::to_string(listed), std::to_string(said), source);
    }

    void compare_address()
    {
        const int said = m_sfdp.address == GFPDB_SFDP_ADDRESS::THREE  ? 3
                         : m_sfdp.address == GFPDB_SFDP_ADDRESS::FOUR ? 4
                                                                      : 0;
        compare_numbers(GFPDB_WORDS::say("address bytes"), m_part.addressing_bytes, said, "SFDP DW1");
    }

    // Tables have room for four erase commands: one that the part has and they do not is no difference.
    void compare_erase()
    {
        if (m_part.sector_erase.empty())
            return;
        for (const GFPDB_SFDP_ERASE& erase : m_sfdp.erase) {
            compare_erase(erase.opcode, erase.size_bytes, erase.type <= 2 ? "SFDP DW8" : "SFDP DW9");
            if (erase.opcode_4_byte != 0)
                compare_erase(erase.opcode_4_byte, erase.size_bytes, "SFDP 4-byte DW2");
        }
    }

    void compare_erase(int opcode, std::int64_t size, const char* source)
    {
        std::string listed;
        for (const GFPDB_ERASE_COMMAND& command : m_part.sector_erase) {
            if (command.opcode != opcode)
                continue;
            if (command.size_bytes == size)
                return;
            const std::string bytes = std::to_string(command.size_bytes);
            listed = listed.empty() ? bytes : GFPDB_WORDS::say("%1 or %2", {listed, bytes});
        }
        differ(GFPDB_WORDS::say("erase by %1", {gfpdb_sfdp_hex(static_cast<std::uint32_t>(opcode), 2)}),
               listed.empty() ? GFPDB_WORDS::say("not") : GFPDB_WORDS::say("%1 bytes", {listed}),
               GFPDB_WORDS::say("%1 bytes", {std::to_string(size)}), source);
    }

    void compare_quad_enable()
    {
        constexpr const char* TEXTS[] = {"unknown", QT_TRANSLATE_NOOP("gfpdb", "none"), "SR1 bit 6", "SR2 bit 1"};
        // By the requirement; the last one is reserved.
        constexpr std::array<const char*, 8> SAID = {
            "none",      "SR2 bit 1", "SR1 bit 6", "SR2 bit 7",
            "SR2 bit 1", "SR2 bit 1", "SR2 bit 1", QT_TRANSLATE_NOOP("gfpdb", "reserved")};
        if (!m_sfdp.quad_enable || m_part.quad_enable == GFPDB_QUAD_ENABLE::UNKNOWN)
            return;
        const std::string listed = TEXTS[static_cast<int>(m_part.quad_enable)];
        const std::string said = SAID[static_cast<std::size_t>(*m_sfdp.quad_enable)];
        if (listed != said)
            differ(GFPDB_WORDS::say("quad enable"), GFPDB_WORDS::say(listed.c_str()), GFPDB_WORDS::say(said.c_str()),
                   "SFDP DW15");
    }

    void compare_table()
    {
        const auto known = std::find_if(std::begin(KNOWN_TABLES), std::end(KNOWN_TABLES),
                                        [this](const KNOWN_TABLE& each) { return m_part.name == each.name; });
        if (known == std::end(KNOWN_TABLES) || m_sfdp.basic_dwords == 0)
            return;
        if (known->dwords != m_sfdp.basic_dwords)
            m_differences.push_back(
                GFPDB_WORDS::say("basic table: %1 double words in read-outs of this part, %2 here",
                                 {std::to_string(known->dwords), std::to_string(m_sfdp.basic_dwords)}));
        if (known->has_4_4_4 && !m_sfdp.read_4_4_4)
            m_differences.push_back(GFPDB_WORDS::say("4-4-4 read: in read-outs of this part, but not here"));
    }

    const GFPDB_PART& m_part;
    const GFPDB_SFDP& m_sfdp;
    std::vector<std::string> m_differences;
};

} // namespace

std::vector<GFPDB_PART_COMPARISON> gfpdb_compare_with_catalogue(const std::vector<std::uint8_t>& id,
                                                                const GFPDB_SFDP& sfdp)
{
    std::vector<GFPDB_PART_COMPARISON> found;
    for (const GFPDB_PART* part : gfpdb_parts_with_id(gfpdb_trimmed_id(id)))
        found.push_back({part, COMPARISON(*part, sfdp).take()});
    return found;
}
