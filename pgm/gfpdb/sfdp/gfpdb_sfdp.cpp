// SPDX-License-Identifier: MIT

// The header, the parameter headers, and which tables are read.
#include "gfpdb/gfpdb_sfdp.h"

#include "base/gfpdb_words.h"
#include "sfdp/gfpdb_sfdp_tables.h"

#include <algorithm>
#include <array>

namespace {

using BYTES = std::vector<std::uint8_t>;

constexpr std::array<std::uint8_t, 4> SIGNATURE = {'S', 'F', 'D', 'P'};
constexpr std::size_t HEADER_BYTES = 8;
// What is compatible with what is read here; other major revisions are another format.
constexpr int MAJOR = 1;
constexpr int BLANK_ID = 0xFFFF;
constexpr std::uint32_t BLANK_DWORD = 0xFFFFFFFF;

std::string address(std::size_t place)
{
    return "0x" + gfpdb_sfdp_hex(static_cast<std::uint32_t>(place), 2);
}

std::string revision(const GFPDB_SFDP_TABLE& table)
{
    return std::to_string(table.major) + '.' + std::to_string(table.minor);
}

std::size_t end_of(const GFPDB_SFDP_TABLE& table)
{
    return table.offset + static_cast<std::size_t>(table.dwords) * GFPDB_SFDP_DWORD_BYTES;
}

// Why `bytes` are no SFDP; empty when they may be.
std::string problem_of(const BYTES& bytes)
{
    const auto place = std::search(bytes.begin(), bytes.end(), SIGNATURE.begin(), SIGNATURE.end());
    if (place == bytes.end()) {
        const bool is_reversed =
            bytes.size() >= SIGNATURE.size() && std::equal(SIGNATURE.rbegin(), SIGNATURE.rend(), bytes.begin());
        return is_reversed ? GFPDB_WORDS::say("The four bytes of each double word are in reverse order.")
                           : GFPDB_WORDS::say("The bytes do not begin with the signature \"SFDP\".");
    }
    if (place != bytes.begin())
        return GFPDB_WORDS::say("The signature \"SFDP\" is at %1 and not at the start: bytes were added before it.",
                                {address(static_cast<std::size_t>(place - bytes.begin()))});
    if (bytes.size() < HEADER_BYTES)
        return GFPDB_WORDS::say("The read-out ends within the SFDP header.");
    if (bytes[5] != MAJOR)
        return GFPDB_WORDS::say("SFDP revision %1 is unknown: revisions 1.x can be read.",
                                {std::to_string(bytes[5]) + '.' + std::to_string(bytes[4])});
    return {};
}

class READER
{
public:
    READER(const BYTES& bytes, GFPDB_SFDP& sfdp) : m_bytes(bytes), m_sfdp(sfdp) {}

    void read_header()
    {
        m_sfdp.minor = m_bytes[4];
        m_sfdp.major = m_bytes[5];
        m_sfdp.access_protocol = m_bytes[7];
        read_parameter_headers(m_bytes[6] + 1);
        for (const GFPDB_SFDP_TABLE& table : m_sfdp.tables)
            check_table(table);
        check_overlaps();
        check_gaps();
    }

    // The table of the latest revision that can be read; null when there is none.
    const GFPDB_SFDP_TABLE* latest(int id)
    {
        const GFPDB_SFDP_TABLE* best = nullptr;
        int count = 0;
        for (const GFPDB_SFDP_TABLE& table : m_sfdp.tables) {
            if (table.id != id)
                continue;
            ++count;
            if (table.major != MAJOR)
                warn(GFPDB_WORDS::say("%1 has the unknown revision %2: it is not read.",
                                      {name(table), revision(table)}));
            else if (table.dwords_read > 0 && (best == nullptr || table.minor > best->minor))
                best = &table;
        }
        if (best != nullptr && count > 1)
            warn(GFPDB_WORDS::say("There are %1 headers of %2: the one of revision %3 is taken.",
                                  {std::to_string(count), name(*best), revision(*best)}));
        return best;
    }

    GFPDB_SFDP_VIEW view(const GFPDB_SFDP_TABLE& table) const { return {m_bytes, table}; }

private:
    static std::string name(const GFPDB_SFDP_TABLE& table) { return gfpdb_sfdp_table_name(table.id); }

    void warn(const std::string& text) { m_sfdp.warnings.push_back(gfpdb_sfdp_sentence(text)); }

    // The number of headers is not trusted: they end where a table begins.
    void read_parameter_headers(int count)
    {
        for (int at = 0; at < count; ++at) {
            const std::size_t place = HEADER_BYTES * (static_cast<std::size_t>(at) + 1);
            if (place + HEADER_BYTES > m_bytes.size()) {
                warn(GFPDB_WORDS::say("The read-out ends within the parameter headers: %1 of %2 are there.",
                                      {std::to_string(at), std::to_string(count)}));
                break;
            }
            if (is_within_table(place)) {
                warn(GFPDB_WORDS::say("A table begins at %1: there is room for %2 parameter headers, not for %3.",
                                      {address(m_first_table), std::to_string(at), std::to_string(count)}));
                break;
            }
            m_headers_end = place + HEADER_BYTES;
            read_parameter_header(place);
        }
    }

    bool is_within_table(std::size_t header) const
    {
        return m_first_table > 0 && header + HEADER_BYTES > m_first_table;
    }

    void read_parameter_header(std::size_t place)
    {
        const auto byte = [this, place](std::size_t at) { return std::uint32_t(m_bytes[place + at]); };
        GFPDB_SFDP_TABLE table;
        table.id = static_cast<int>(byte(7) << 8 | byte(0));
        if (table.id == BLANK_ID) {
            warn(GFPDB_WORDS::say("The parameter header at %1 is blank.", {address(place)}));
            return;
        }
        table.minor = static_cast<int>(byte(1));
        table.major = static_cast<int>(byte(2));
        table.dwords = static_cast<int>(byte(3));
        table.offset = byte(4) | byte(5) << 8 | byte(6) << 16;
        const std::size_t left = table.offset < m_bytes.size() ? m_bytes.size() - table.offset : 0;
        table.dwords_read = std::min(table.dwords, static_cast<int>(left / GFPDB_SFDP_DWORD_BYTES));
        if (table.dwords > 0 && table.offset < m_headers_end) {
            warn(GFPDB_WORDS::say("%1 begins at %2, within the headers: it is not read.",
                                  {name(table), address(table.offset)}));
            table.dwords_read = 0;
        } else if (table.dwords > 0) {
            m_first_table = m_first_table == 0 ? table.offset : std::min<std::size_t>(m_first_table, table.offset);
        }
        m_sfdp.tables.push_back(table);
    }

    void check_table(const GFPDB_SFDP_TABLE& table)
    {
        const bool is_refused = table.offset < m_headers_end;
        if (table.dwords == 0)
            warn(GFPDB_WORDS::say("%1 is empty.", {name(table)}));
        else if (table.dwords_read == 0 && !is_refused)
            warn(GFPDB_WORDS::say("%1 is not in the read-out: it begins at %2, and the read-out ends at %3.",
                                  {name(table), address(table.offset), address(m_bytes.size())}));
        else if (table.dwords_read < table.dwords && !is_refused)
            warn(GFPDB_WORDS::say("The read-out ends within %1: %2 of %3 double words are there.",
                                  {name(table), std::to_string(table.dwords_read), std::to_string(table.dwords)}));
        if (table.offset % GFPDB_SFDP_DWORD_BYTES != 0)
            warn(GFPDB_WORDS::say("%1 begins at %2, which is not a multiple of 4.",
                                  {name(table), address(table.offset)}));
    }

    // Headers may share one table, of which each describes another revision.
    void check_overlaps()
    {
        const std::vector<GFPDB_SFDP_TABLE>& tables = m_sfdp.tables;
        for (std::size_t at = 0; at < tables.size(); ++at) {
            for (std::size_t other = at + 1; other < tables.size(); ++other) {
                const bool is_empty = tables[at].dwords == 0 || tables[other].dwords == 0;
                const bool overlap = !is_empty && tables[at].offset < end_of(tables[other]) &&
                                     tables[other].offset < end_of(tables[at]) && tables[at].id != tables[other].id;
                if (overlap)
                    warn(GFPDB_WORDS::say("%1 and %2 overlap.", {name(tables[at]), name(tables[other])}));
            }
        }
    }

    // Bytes between the tables belong to nobody: some makers let users write there.
    void check_gaps()
    {
        std::size_t end = m_headers_end;
        std::vector<GFPDB_SFDP_TABLE> tables = m_sfdp.tables;
        std::sort(tables.begin(), tables.end(),
                  [](const auto& one, const auto& other) { return one.offset < other.offset; });
        for (const GFPDB_SFDP_TABLE& table : tables) {
            for (std::size_t at = end; at < std::min<std::size_t>(table.offset, m_bytes.size()); ++at) {
                if (m_bytes[at] == 0xFF || m_bytes[at] == 0x00)
                    continue;
                warn(GFPDB_WORDS::say("The bytes at %1 are in no table: they are not read.", {address(at)}));
                break;
            }
            end = std::max(end, end_of(table));
        }
    }

    const BYTES& m_bytes;
    GFPDB_SFDP& m_sfdp;
    // Where the first table begins; 0 before one is known.
    std::size_t m_first_table = 0;
    // Behind the last parameter header.
    std::size_t m_headers_end = HEADER_BYTES;
};

} // namespace

std::optional<GFPDB_SFDP> gfpdb_read_sfdp(const std::vector<std::uint8_t>& bytes, std::string& problem)
{
    const BYTES read(bytes.begin(),
                     bytes.begin() + static_cast<std::ptrdiff_t>(std::min(bytes.size(), GFPDB_SFDP_BYTES_MAX)));
    problem = problem_of(read);
    if (!problem.empty())
        return std::nullopt;
    GFPDB_SFDP sfdp;
    READER reader(read, sfdp);
    reader.read_header();
    const GFPDB_SFDP_TABLE* const basic = reader.latest(GFPDB_SFDP_BASIC);
    if (basic == nullptr) {
        problem = GFPDB_WORDS::say("There is no basic table.");
        if (!sfdp.warnings.empty())
            problem += ' ' + sfdp.warnings.front();
        return std::nullopt;
    }
    const std::uint32_t first = reader.view(*basic).dword(1);
    if (first == BLANK_DWORD || first == 0) {
        problem = GFPDB_WORDS::say("The basic table is blank.");
        return std::nullopt;
    }
    sfdp.basic_major = basic->major;
    sfdp.basic_minor = basic->minor;
    sfdp.basic_dwords = basic->dwords;
    gfpdb_read_sfdp_basic(reader.view(*basic), sfdp);
    if (const GFPDB_SFDP_TABLE* const table = reader.latest(GFPDB_SFDP_FOUR_BYTE))
        gfpdb_read_sfdp_four_byte(reader.view(*table), sfdp);
    if (const GFPDB_SFDP_TABLE* const table = reader.latest(GFPDB_SFDP_SECTOR_MAP))
        gfpdb_read_sfdp_sector_map(reader.view(*table), sfdp);
    return sfdp;
}
