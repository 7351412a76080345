// SPDX-License-Identifier: MIT
#include "cli_new_device.h"

#include "cli_sfdp.h"
#include "cli_values.h"

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_text.h"

namespace {

// The listed parts that a chip can be; all that have its ID when it says nothing of itself.
std::vector<GFPDB_PART_COMPARISON> parts_of(const CLI_CHIP& chip)
{
    return gfpdb_compare_with_catalogue(chip.id, chip.sfdp.value_or(GFPDB_SFDP()));
}

// Sets `key` to `text`; false: a message was printed.
bool set(const CLI_CALL& call, GFPDB_NEW_DEVICE& device, const std::string& key, const std::string& text)
{
    std::string problem;
    if (device.set_value(key, text, problem))
        return true;
    std::vector<std::string> keys;
    bool is_key = false;
    for (const GFPDB_PROPOSED_VALUE& value : device.get_values()) {
        is_key = is_key || value.key == key;
        keys.push_back(value.key);
    }
    call.wrong_usage(is_key ? problem : problem + " Keys: " + gfpdb_joined(keys) + '.');
    return false;
}

// The options that enter the values that are missing, as in "--voltage, --set quad-enable=...".
std::string missing_values(const GFPDB_NEW_DEVICE& device)
{
    std::vector<std::string> missing;
    for (const GFPDB_PROPOSED_VALUE& value : device.get_values()) {
        const bool has_option =
            value.key == CLI_OPTION_NAME || value.key == CLI_OPTION_VOLTAGE || value.key == CLI_OPTION_ID;
        if (value.text.empty())
            missing.push_back(has_option ? "--" + value.key : "--set " + value.key + "=...");
    }
    return gfpdb_joined(missing);
}

bool set_values_of_options(const CLI_CALL& call, GFPDB_NEW_DEVICE& device)
{
    for (const char* const option : {CLI_OPTION_NAME, CLI_OPTION_VOLTAGE}) {
        if (call.has(option) && !set(call, device, option, call.value(option)))
            return false;
    }
    for (const std::string& entry : call.values(CLI_OPTION_SET)) {
        const std::size_t equals = entry.find('=');
        if (equals == std::string::npos) {
            call.wrong_usage(gfpdb_quoted(entry) + " is not allowed for --set: KEY=VALUE, e.g. page-size=256.");
            return false;
        }
        if (!set(call, device, entry.substr(0, equals), entry.substr(equals + 1)))
            return false;
    }
    return true;
}

// Makes the device of the values and stores it: what came of it, null for nothing.
const char* make_and_store(const CLI_CALL& call, const GFPDB_NEW_DEVICE& device, const std::string& origin,
                           GFPDB_RECORD& record, int& exit_code)
{
    std::string problem;
    const std::optional<GFPDB_RECORD> made = device.make_record(cli_new_family(call), cli_new_scheme(call), problem);
    if (!made) {
        const std::string missing = missing_values(device);
        exit_code =
            call.wrong_usage(missing.empty() ? problem : "Values are missing. Enter them with " + missing + '.');
        return nullptr;
    }
    record = *made;
    return cli_store_device(call, record, origin, call.has(CLI_OPTION_REPLACE), exit_code);
}

} // namespace

void cli_add_value_options(CLI_OPTIONS& options)
{
    options.push_back({CLI_OPTION_NAME, "The name of the device.", "name"});
    options.push_back({CLI_OPTION_VOLTAGE, "Its voltage, e.g. 3.3V.", "voltage"});
    options.push_back({CLI_OPTION_SET,
                       "Another value in place of the one that is proposed, by its key, e.g. page-size=256. Can be "
                       "given several times.",
                       "key=value"});
}

void cli_add_store_options(CLI_OPTIONS& options)
{
    options.push_back({CLI_OPTION_REPLACE,
                       "Replace a device that exists with different content; its former state goes into the history."});
    options.push_back({CLI_OPTION_DRY_RUN, "Show what would happen, without changing anything."});
}

int cli_propose_device(const CLI_CALL& call, const CLI_CHIP& chip, bool shows_parts, bool is_stored)
{
    GFPDB_NEW_DEVICE device(chip.id, chip.sfdp ? &*chip.sfdp : nullptr);
    if (!set_values_of_options(call, device))
        return CLI_EXIT_USAGE;
    const bool is_json = call.has(CLI_OPTION_JSON);
    if (!is_json)
        call.output.print(cli_values_table(device.get_values()) + (shows_parts ? cli_parts_text(parts_of(chip)) : ""));
    cli_print_warnings(call, chip.origin, device.get_warnings());
    int exit_code = CLI_EXIT_OK;
    GFPDB_RECORD record;
    const char* const action = is_stored ? make_and_store(call, device, chip.origin, record, exit_code) : nullptr;
    if (!is_json && action != nullptr)
        call.output.print(cli_stored_text(call, record, action));
    if (!is_json)
        return exit_code;
    CLI_JSON json;
    json.add("origin", chip.origin);
    json.add("id", cli_bytes(chip.id));
    cli_add_values(json, "values", device.get_values());
    json.add("warnings", device.get_warnings());
    if (shows_parts)
        cli_add_parts(json, "parts", parts_of(chip));
    if (action != nullptr)
        cli_add_stored(json, call, record, action);
    call.output.print(json.text());
    return exit_code;
}

int cli_new_family(const CLI_CALL& call, const GFPDB_RECORD* record)
{
    const bool has_place = record != nullptr && record->row.family != 0;
    return call.family().value_or(has_place ? record->row.family : DEV_FAMILY_FIRST);
}

int cli_new_scheme(const CLI_CALL& call, const GFPDB_RECORD* record)
{
    const bool has_place = record != nullptr && record->row.scheme >= 0;
    return call.scheme().value_or(has_place ? record->row.scheme : PGMIO_ACTIVE_SERIAL);
}

const char* cli_store_device(const CLI_CALL& call, const GFPDB_RECORD& record, const std::string& origin,
                             bool may_replace, int& exit_code)
{
    const std::string problem = call.database.get_write_problem();
    if (!problem.empty()) {
        exit_code = call.database_failed(problem);
        return nullptr;
    }
    GFPDB_RECORD_FILE file;
    file.path = origin;
    file.records = {record};
    for (const GFPDB_FINDING& finding : gfpdb_check_record(call.database.get_manager(), record)) {
        if (finding.seriousness != GFPDB_SERIOUSNESS::WARNING)
            file.problems.push_back(finding);
    }
    GFPDB_IMPORT_PLAN plan(call.database, may_replace ? GFPDB_EXISTING::REPLACED : GFPDB_EXISTING::REFUSED,
                           GFPDB_RECORD_RULES::STORED);
    if (file.problems.empty())
        plan.add(file);
    for (const GFPDB_FINDING& each : file.problems)
        call.output.finding(origin, each);
    if (!file.problems.empty()) {
        call.output.error("Nothing was stored.");
        exit_code = CLI_EXIT_DATABASE;
        return nullptr;
    }
    for (const GFPDB_FINDING& each : file.warnings)
        call.output.finding(origin, each);
    const bool changes = !plan.devices().empty();
    if (changes && !call.has(CLI_OPTION_DRY_RUN) && !call.database.import(plan, [](int) { return true; })) {
        exit_code = call.database_failed(call.database.get_last_error());
        return nullptr;
    }
    return !changes ? "unchanged" : plan.replaced_count() > 0 ? "replaced" : "new";
}

std::string cli_stored_text(const CLI_CALL& call, const GFPDB_RECORD& record, const std::string& action)
{
    const std::string what = gfpdb_title(record);
    const std::string where = " in " + call.database.get_directory() + ".\n";
    const bool is_dry = call.has(CLI_OPTION_DRY_RUN);
    if (action == "unchanged")
        return "Unchanged: " + what + where;
    if (action == "replaced")
        return (is_dry ? "Would replace the " : "Replaced the ") + what + where;
    return (is_dry ? "Would store the new " : "Stored the new ") + what + where;
}

void cli_add_stored(CLI_JSON& json, const CLI_CALL& call, const GFPDB_RECORD& record, const std::string& action)
{
    json.begin_object("device");
    json.add("name", record.name());
    json.add_number("family", record.row.family);
    json.add_number("scheme", record.row.scheme);
    json.add("action", action);
    json.add_flag("dry_run", call.has(CLI_OPTION_DRY_RUN));
    json.end_object();
}
