// SPDX-License-Identifier: MIT

// The text of flows, and the one of former databases that is converted to it.
//
// Input: the text.
#include "fuzz_target.h"

#include "gfpdb/gfpdb_flow_lint.h"
#include "model/gfpdb_flow_text.h"
#include "store/sqlite/gfpdb_old_flows.h"

namespace {

void check_round_trip(const std::string& text)
{
    const std::optional<GFPDB_OPERATION_LIST> operations = gfpdb_flows_from_text(text);
    FUZZ_CHECK(gfpdb_flows_to_json(text).has_value() == operations.has_value());
    if (!operations)
        return;
    for (const std::unique_ptr<GFPDB_OPERATION>& operation : *operations)
        FUZZ_CHECK(operation->m_kind >= 0 && operation->m_kind < GFPDB_OPERATION_COUNT);
    const std::vector<GFPDB_OPERATION*> list = gfpdb_pointers(*operations);
    const std::optional<std::string> written = gfpdb_flows_to_text(&list);
    FUZZ_CHECK(written.has_value());
    const std::optional<GFPDB_OPERATION_LIST> again = gfpdb_flows_from_text(*written);
    FUZZ_CHECK(again && again->size() == operations->size());
    const std::vector<GFPDB_OPERATION*> again_list = gfpdb_pointers(*again);
    FUZZ_CHECK(gfpdb_flows_to_text(&again_list) == written);
    FUZZ_CHECK(gfpdb_lint_flow(list, true, {}).size() == gfpdb_lint_flow(again_list, true, {}).size());
}

} // namespace

// What was read can be written, and comes back as what was read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text = FUZZ_INPUT(data, size).take_rest();
    check_round_trip(text);
    const std::string converted = gfpdb_flows_of_schema_2(text);
    if (converted != text)
        FUZZ_CHECK(converted.empty() || gfpdb_flows_from_text(converted));
    return 0;
}
