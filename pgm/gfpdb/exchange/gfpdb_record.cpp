// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_record_json.h"
#include "exchange/gfpdb_record_rules.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "model/gfpdb_field.h"
#include "model/gfpdb_flow_text.h"

std::string gfpdb_title(const GFPDB_RECORD& record)
{
    if (record.is_template)
        return "template " + gfpdb_quoted(record.name());
    return "device " + gfpdb_quoted(record.name()) + " (family " + std::to_string(record.row.family) + ", scheme " +
           std::to_string(record.row.scheme) + ')';
}

std::vector<GFPDB_VALUE> gfpdb_values(const GFPDB_RECORD& record)
{
    std::vector<GFPDB_VALUE> values;
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        const bool is_number = !std::holds_alternative<GFPDB_TEXT_MEMBER>(field.member);
        if (field.kind != GFPDB_FIELD_KIND::FLOWS)
            values.push_back({field.key, field.title, field.property, is_number, field.text(record.row)});
    }
    return values;
}

std::optional<std::vector<std::unique_ptr<GFPDB_OPERATION>>> gfpdb_operations(const GFPDB_RECORD& record,
                                                                              bool flow_variant)
{
    return gfpdb_flows_from_text(flow_variant ? record.row.quad_flows : record.row.single_flows);
}

std::vector<GFPDB_DIFFERENCE> gfpdb_differences(const GFPDB_RECORD& left, const GFPDB_RECORD& right)
{
    std::vector<GFPDB_DIFFERENCE> differences;
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        const bool are_flows = field.kind == GFPDB_FIELD_KIND::FLOWS;
        const auto text = [&](const GFPDB_ROW& row) { return are_flows ? std::string() : field.text(row); };
        if (!field.is_same(left.row, right.row))
            differences.push_back({GFPDB_WORDS::say(field.noun), text(left.row), text(right.row), are_flows});
    }
    return differences;
}

std::vector<GFPDB_FINDING> gfpdb_check_record(GFPDB_MGR& manager, const GFPDB_RECORD& record)
{
    const std::optional<JSON_VALUE> json = gfpdb_record_to_json(record);
    if (!json)
        return {{0, "", GFPDB_WORDS::say("The flows cannot be read.")}};
    GFPDB_RECORD_READER reader(manager, {false, GFPDB_RECORD_RULES::STORED, std::nullopt, std::nullopt});
    reader.read_record(*json, record.is_template, "");
    std::vector<GFPDB_FINDING> found = reader.problems();
    for (GFPDB_FINDING& problem : found) {
        problem.line = 0;
        if (!problem.field.empty() && problem.field.front() == '.')
            problem.field.erase(0, 1);
    }
    const std::vector<GFPDB_FINDING> warnings = gfpdb_record_warnings(manager, record);
    found.insert(found.end(), warnings.begin(), warnings.end());
    return found;
}
