// SPDX-License-Identifier: MIT

// The catalogue of built-in parts, and the flows that are made from whatever a row says.
//
// Input: the content of the file.
#include "fuzz_target.h"

#include "base/gfpdb_text.h"
#include "catalogue/gfpdb_catalogue_csv.h"
#include "catalogue/gfpdb_flow_templates.h"
#include "model/gfpdb_embedded_flash.h"
#include "model/gfpdb_field.h"
#include "rules/gfpdb_checks.h"

#include <algorithm>

namespace {

void check_part(const GFPDB_PART& part)
{
    std::string error;
    FUZZ_CHECK(gfpdb_check_name(part.name, "part name", error));
    FUZZ_CHECK(!part.jedec_id.empty() && gfpdb_density_bytes(part.density) > 0);
    FUZZ_CHECK(gfpdb_is_utf8(part.manufacturer) && gfpdb_is_utf8(part.voltage) && gfpdb_is_utf8(part.source));
    FUZZ_CHECK(part.total_die >= 0 && part.total_die <= gfpdb_field(GFPDB_FLASH_TOTAL_DIE)->highest);
}

void check_action(const GFPDB_ACTION& action)
{
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
        std::string error;
        FUZZ_CHECK(action.check_property_value(property, action.get_property_value(property), error));
    }
}

// Whatever is in the row: each part has five operations in both variants, and every action passes its own check.
void check_flows(const GFPDB_PART& part)
{
    GFPDB_EMBEDDED_FLASH record(part.name);
    gfpdb_fill_part_flows(part, record);
    for (const bool variant : {false, true}) {
        const std::vector<GFPDB_OPERATION*>* operations = record.get_operations(variant);
        FUZZ_CHECK(operations != nullptr && operations->size() == GFPDB_OPERATION_COUNT);
        for (const GFPDB_OPERATION* operation : *operations) {
            for (const GFPDB_ACTION* action : *operation->get_actions())
                check_action(*action);
        }
    }
    const std::vector<std::string>& templates = gfpdb_builtin_template_names();
    FUZZ_CHECK(std::count(templates.begin(), templates.end(), gfpdb_part_template_name(part)) == 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const GFPDB_CATALOGUE_CONTENT content = gfpdb_parse_catalogue(FUZZ_INPUT(data, size).take_rest());
    for (const GFPDB_CSV_ERROR& error : content.errors)
        FUZZ_CHECK(error.line >= 1 && !gfpdb_csv_error_text(error).empty());
    for (const GFPDB_PART& part : content.parts) {
        check_part(part);
        check_flows(part);
    }
    return 0;
}
