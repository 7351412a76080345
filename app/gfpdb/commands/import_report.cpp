// SPDX-License-Identifier: MIT
#include "commands/import_report.h"

#include "cli_json.h"
#include "cli_new_device.h"
#include "record_filter.h"

namespace {

void add_findings(CLI_JSON& json, const char* key, const std::vector<CLI_FILE_FINDING>& found)
{
    json.add_objects(key, found, [](CLI_JSON& object, const CLI_FILE_FINDING& each) {
        object.add("file", each.file);
        object.add_number("line", each.finding.line);
        object.add("field", each.finding.field);
        object.add("text", each.finding.text);
    });
}

// `replaced` has the revisions of what the rows replace; empty for a new one.
void add_records(CLI_JSON& json, bool is_template, const std::vector<GFPDB_ROW>& rows,
                 const std::vector<std::string>& replaced)
{
    for (std::size_t at = 0; at < rows.size(); ++at) {
        const GFPDB_RECORD record = {is_template, rows[at], 0};
        json.begin_object();
        json.add("name", record.name());
        json.add("kind", record_kind_name(record_kind(record, false)));
        json.add_number("family", record.row.family);
        json.add_number("scheme", record.row.scheme);
        json.add("action", replaced[at].empty() ? "new" : "replaced");
        json.end_object();
    }
}

} // namespace

std::string cli_import_summary(const CLI_CALL& call, const GFPDB_IMPORT_PLAN& plan)
{
    return std::string(call.has(CLI_OPTION_DRY_RUN) ? "Would import " : "Imported ") +
           std::to_string(plan.new_count()) + " new, " + std::to_string(plan.replaced_count()) + " replaced; " +
           std::to_string(plan.unchanged_count()) + " unchanged in " + call.database.get_directory() + '\n';
}

std::string cli_import_json(const CLI_CALL& call, const GFPDB_IMPORT_PLAN& plan, const CLI_IMPORT_REPORT& report)
{
    CLI_JSON json;
    json.add("directory", call.database.get_directory());
    json.add_flag("dry_run", call.has(CLI_OPTION_DRY_RUN));
    json.add_flag("imported", report.is_imported);
    json.add("refusal", report.refusal);
    json.add_number("new", plan.new_count());
    json.add_number("replaced", plan.replaced_count());
    json.add_number("unchanged", plan.unchanged_count());
    json.begin_list("records");
    add_records(json, false, plan.devices(), plan.replaced_devices());
    add_records(json, true, plan.templates(), plan.replaced_templates());
    json.end_list();
    add_findings(json, "problems", report.problems);
    add_findings(json, "warnings", report.warnings);
    return json.text();
}
