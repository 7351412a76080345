// SPDX-License-Identifier: MIT

// What a chip says of itself, and the device that is made of it.
//
// Input: the number of ID bytes, the ID, then the read-out.
#include "fuzz_target.h"

#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_flow_check.h"
#include "gfpdb/gfpdb_new_device.h"

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = 7;

// Nothing is larger than the tables can say.
void check_values(const GFPDB_SFDP& sfdp)
{
    constexpr std::int64_t BITS_MAX = std::int64_t(1) << 40;
    FUZZ_CHECK(sfdp.density_bits >= 0 && sfdp.density_bits <= BITS_MAX);
    FUZZ_CHECK(sfdp.page_size >= 0 && sfdp.page_size <= 32768);
    FUZZ_CHECK(sfdp.erase.size() <= 4 && sfdp.tables.size() <= 256);
    for (const GFPDB_SFDP_TABLE& table : sfdp.tables)
        FUZZ_CHECK(table.dwords_read >= 0 && table.dwords_read <= table.dwords && table.dwords <= 255);
    for (const GFPDB_SFDP_ERASE& erase : sfdp.erase)
        FUZZ_CHECK(erase.size_bytes > 0 && erase.opcode > 0 && erase.opcode < 0xFF && erase.typical_ms >= 0);
    for (const std::string& warning : sfdp.warnings)
        FUZZ_CHECK(!warning.empty());
}

// A device that can be made has flows that can be executed.
void check_flows(const GFPDB_RECORD& record)
{
    for (const bool quad : {false, true}) {
        const auto operations = gfpdb_operations(record, quad);
        FUZZ_CHECK(operations && operations->size() == GFPDB_OPERATION_COUNT);
        std::vector<GFPDB_OPERATION*> flow;
        for (const auto& operation : *operations)
            flow.push_back(operation.get());
        FUZZ_CHECK(gfpdb_check_flow(flow).empty());
    }
}

// What is proposed for a value could be entered.
void check_proposal(GFPDB_NEW_DEVICE& device)
{
    std::string problem;
    for (const GFPDB_PROPOSED_VALUE& value : device.get_values()) {
        FUZZ_CHECK(value.text.empty() || !value.source.empty());
        FUZZ_CHECK(value.text.empty() || device.set_value(value.key, value.text, problem));
        FUZZ_CHECK(device.set_value(value.key, "", problem));
    }
    device.get_warnings();
    FUZZ_CHECK(device.set_value("name", "Made", problem) && device.set_value("voltage", "3.3V", problem));
    if (const auto record = device.make_record(FAMILY, SCHEME, problem))
        check_flows(*record);
    else
        FUZZ_CHECK(!problem.empty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FUZZ_INPUT input(data, size);
    std::vector<std::uint8_t> id(static_cast<std::size_t>(input.take_byte()) % (GFPDB_ID_BYTES_MAX + 1));
    for (std::uint8_t& byte : id)
        byte = static_cast<std::uint8_t>(input.take_byte());
    const std::string rest = input.take_rest();
    std::string problem;
    const auto sfdp = gfpdb_read_sfdp(std::vector<std::uint8_t>(rest.begin(), rest.end()), problem);
    FUZZ_CHECK(sfdp.has_value() == problem.empty());
    if (sfdp) {
        check_values(*sfdp);
        gfpdb_compare_with_catalogue(id, *sfdp);
    }
    GFPDB_NEW_DEVICE device(id, sfdp ? &*sfdp : nullptr);
    check_proposal(device);
    return 0;
}
