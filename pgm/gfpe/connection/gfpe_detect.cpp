// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_detect.h"

#include "gfpdb/gfpdb_part.h"
#include "gfpdb/gfpdb_sfdp.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::uint8_t READ_ID = 0x9F;
constexpr std::int64_t ID_BYTES = GFPDB_ID_BYTES_MAX;
constexpr std::uint8_t READ_SFDP = 0x5A;
constexpr std::uint8_t SFDP_SIGNATURE[] = {'S', 'F', 'D', 'P'};
// The header, and each header of a table behind it: where its fields are.
constexpr std::size_t SFDP_HEADER_BYTES = 8;
constexpr std::size_t SFDP_LAST_TABLE_AT = 6;
constexpr std::size_t SFDP_DWORDS_AT = 3;
constexpr std::size_t SFDP_PLACE_AT = 4;

// As many bytes of `wanted` as one command of the connection can read.
std::int64_t at_once(const GFPE_BUS& bus, std::int64_t wanted)
{
    const std::int64_t longest = bus.get_abilities().longest_read;
    return longest > 0 ? std::min(longest, wanted) : wanted;
}

// Reads on from where `bytes` end, until there are `end` of them. False: the connection is lost.
bool read_sfdp_up_to(GFPE_BUS& bus, std::size_t end, std::vector<std::uint8_t>& bytes)
{
    constexpr int DUMMY_CLOCKS = 8;
    GFPE_APPENDER reader(bytes);
    while (bytes.size() < end) {
        GFPE_COMMAND command;
        command.opcode = READ_SFDP;
        command.address_bytes = 3;
        command.address = static_cast<std::uint32_t>(bytes.size());
        command.dummy_clocks = DUMMY_CLOCKS;
        command.driven_dummy_clocks = DUMMY_CLOCKS;
        command.in_length = at_once(bus, static_cast<std::int64_t>(end - bytes.size()));
        if (!bus.transfer(command, &reader))
            return false;
    }
    return true;
}

// The end of the last table that the headers name: of those that begin and end in the room for tables, as FF in the
// place of a header does not.
std::size_t end_of_tables(const std::vector<std::uint8_t>& headers)
{
    std::size_t end = headers.size();
    for (std::size_t at = SFDP_HEADER_BYTES; at + SFDP_HEADER_BYTES <= headers.size(); at += SFDP_HEADER_BYTES) {
        const std::uint8_t* const place = headers.data() + at + SFDP_PLACE_AT;
        const std::size_t table_end = (place[0] | std::size_t(place[1]) << 8 | std::size_t(place[2]) << 16) +
                                      sizeof(std::uint32_t) * headers[at + SFDP_DWORDS_AT];
        if (table_end <= GFPDB_SFDP_BYTES_MAX)
            end = std::max(end, table_end);
    }
    return end;
}

// What lines show on which no chip drives.
bool is_silence(const std::vector<std::uint8_t>& id)
{
    const bool is_low_or_high = id.empty() || id.front() == 0x00 || id.front() == 0xFF;
    return is_low_or_high && std::all_of(id.begin(), id.end(), [&](std::uint8_t byte) { return byte == id.front(); });
}

bool is_id_of(const GFPDB_RECORD& record, const std::vector<std::uint8_t>& id)
{
    const std::vector<std::uint8_t> own = gfpdb_device_id_bytes(record.row.device_id);
    return !own.empty() && own.size() <= id.size() && std::equal(own.begin(), own.end(), id.begin());
}

} // namespace

bool gfpe_read_id(GFPE_BUS& bus, std::vector<std::uint8_t>& id, std::string& problem)
{
    id.clear();
    GFPE_APPENDER reader(id);
    GFPE_COMMAND command;
    command.opcode = READ_ID;
    command.in_length = at_once(bus, ID_BYTES);
    if (!bus.transfer(command, &reader)) {
        problem = bus.get_last_error();
        return false;
    }
    if (is_silence(id)) {
        problem = "No chip answers. Check its power, its wires and which chip the programmer selects.";
        return false;
    }
    return true;
}

bool gfpe_read_sfdp(GFPE_BUS& bus, std::vector<std::uint8_t>& bytes, std::string& problem)
{
    bytes.clear();
    bool works = read_sfdp_up_to(bus, SFDP_HEADER_BYTES, bytes);
    if (works && !std::equal(std::begin(SFDP_SIGNATURE), std::end(SFDP_SIGNATURE), bytes.begin()))
        bytes.clear();
    if (works && !bytes.empty()) {
        const std::size_t headers = std::size_t(1) + bytes[SFDP_LAST_TABLE_AT] + 1;
        works = read_sfdp_up_to(bus, headers * SFDP_HEADER_BYTES, bytes) &&
                read_sfdp_up_to(bus, end_of_tables(bytes), bytes);
    }
    if (works)
        return true;
    bytes.clear();
    problem = bus.get_last_error();
    return false;
}

std::vector<GFPDB_RECORD> gfpe_find_devices(GFPDB_DATABASE& database, const std::vector<std::uint8_t>& id)
{
    std::vector<GFPDB_RECORD> found;
    const auto add = [&](std::vector<GFPDB_RECORD> records) {
        for (GFPDB_RECORD& record : records) {
            if (record.is_template || !is_id_of(record, id))
                continue;
            record.row.single_flows.clear();
            record.row.quad_flows.clear();
            found.push_back(std::move(record));
        }
    };
    add(database.find_builtin({}));
    add(database.find_stored({}));
    std::stable_sort(found.begin(), found.end(), [](const GFPDB_RECORD& a, const GFPDB_RECORD& b) {
        return gfpdb_device_id_bytes(a.row.device_id).size() > gfpdb_device_id_bytes(b.row.device_id).size();
    });
    return found;
}
