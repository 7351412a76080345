// SPDX-License-Identifier: MIT

// The JSON that the database keeps flows in.
//
// Input: the text.
#include "fuzz_target.h"

#include "model/gfpdb_flow_text.h"

namespace {

using OPERATIONS = std::vector<std::unique_ptr<GFPDB_OPERATION>>;

std::vector<GFPDB_OPERATION*> pointers(const OPERATIONS& operations)
{
    std::vector<GFPDB_OPERATION*> list;
    for (const std::unique_ptr<GFPDB_OPERATION>& operation : operations)
        list.push_back(operation.get());
    return list;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    fuzz_set_up();
    return 0;
}

// What was read can be written, and comes back as what was read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::optional<OPERATIONS> operations = gfpdb_flows_from_text(FUZZ_INPUT(data, size).take_rest());
    if (!operations)
        return 0;
    for (const std::unique_ptr<GFPDB_OPERATION>& operation : *operations)
        FUZZ_CHECK(operation->m_kind >= 0 && operation->m_kind < GFPDB_OPERATION_COUNT);
    const std::vector<GFPDB_OPERATION*> list = pointers(*operations);
    const std::optional<std::string> json = gfpdb_flows_to_text(&list);
    FUZZ_CHECK(json.has_value());
    const std::optional<OPERATIONS> again = gfpdb_flows_from_text(*json);
    FUZZ_CHECK(again && again->size() == operations->size());
    const std::vector<GFPDB_OPERATION*> again_list = pointers(*again);
    FUZZ_CHECK(gfpdb_flows_to_text(&again_list) == json);
    return 0;
}
