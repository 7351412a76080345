// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_detect.h"

#include "gfpdb/gfpdb_part.h"

#include <algorithm>

namespace {

constexpr std::uint8_t READ_ID = 0x9F;
constexpr std::int64_t ID_BYTES = GFPDB_ID_BYTES_MAX;

// Keeps the bytes that are read.
class ID_READER : public GFPE_READER
{
public:
    explicit ID_READER(std::vector<std::uint8_t>& id) : m_id(id) {}
    bool take(const std::uint8_t* bytes, std::size_t length) override
    {
        m_id.insert(m_id.end(), bytes, bytes + length);
        return true;
    }

private:
    std::vector<std::uint8_t>& m_id;
};

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
    ID_READER reader(id);
    GFPE_COMMAND command;
    command.opcode = READ_ID;
    const std::int64_t longest = bus.get_abilities().longest_read;
    command.in_length = longest > 0 ? std::min(longest, ID_BYTES) : ID_BYTES;
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
