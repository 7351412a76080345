// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_flow_lint.h"

#include "catalogue/gfpdb_flow_traits.h"
#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_part.h"
#include "sfdp/gfpdb_known_part.h"

#include <algorithm>

namespace {

using PARTS = std::vector<const GFPDB_PART*>;

PARTS parts_of_maker(const std::string& maker)
{
    PARTS parts;
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        if (!maker.empty() && part.manufacturer == maker)
            parts.push_back(&part);
    }
    return parts;
}

// A part that is not listed may be like any other one of its maker.
bool has_quad_enable(const std::vector<std::uint8_t>& id, const PARTS& listed)
{
    const PARTS parts = listed.empty() ? parts_of_maker(gfpdb_maker_of_id(id)) : listed;
    return std::none_of(parts.begin(), parts.end(),
                        [](const GFPDB_PART* part) { return part->quad_enable == GFPDB_QUAD_ENABLE::NONE; });
}

// False when it is not known of one of them.
bool clears_second_status(const PARTS& listed)
{
    return !listed.empty() && std::all_of(listed.begin(), listed.end(), [](const GFPDB_PART* part) {
        const GFPDB_FLOW_TRAITS traits = gfpdb_flow_traits(*part, true);
        return traits.verified && traits.status_write == GFPDB_STATUS_WRITE::SR2_WITH_SR1;
    });
}

// 0 when it is not known, or not the same in all of them.
int page_size_of(const PARTS& listed)
{
    const int page_size = listed.empty() ? 0 : listed.front()->page_size;
    const bool is_one = std::all_of(listed.begin(), listed.end(),
                                    [page_size](const GFPDB_PART* part) { return part->page_size == page_size; });
    return is_one ? page_size : 0;
}

} // namespace

GFPDB_LINT_DEVICE gfpdb_lint_device(const GFPDB_RECORD& record)
{
    GFPDB_LINT_DEVICE device;
    if (record.is_template)
        return device;
    device.bytes = gfpdb_density_bytes(record.row.density);
    device.dies = record.row.total_die.value_or(0);
    device.id = gfpdb_device_id_bytes(record.row.device_id);
    const PARTS listed = gfpdb_parts_with_id(device.id);
    device.page_size = page_size_of(listed);
    device.has_quad_enable = has_quad_enable(device.id, listed);
    device.clears_second_status = clears_second_status(listed);
    return device;
}

std::vector<GFPDB_LINT_FINDING> gfpdb_lint_record(const GFPDB_RECORD& record)
{
    const GFPDB_LINT_DEVICE device = gfpdb_lint_device(record);
    std::vector<GFPDB_LINT_FINDING> found;
    for (const bool flow_variant : {false, true}) {
        const auto owned = gfpdb_operations(record, flow_variant);
        std::vector<GFPDB_OPERATION*> operations;
        for (std::size_t at = 0; owned && at < owned->size(); ++at)
            operations.push_back((*owned)[at].get());
        for (GFPDB_LINT_FINDING& finding : gfpdb_lint_flow(operations, flow_variant, device))
            found.push_back(std::move(finding));
    }
    return found;
}
