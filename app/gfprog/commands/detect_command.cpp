// SPDX-License-Identifier: MIT

// Reads the ID of the connected chip, and lists the devices that have it.
#include "commands/gfprog_commands.h"

#include "gfprog_target.h"

#include "cli_records.h"

namespace {

std::vector<CLI_LISTED> listed(const std::vector<GFPDB_RECORD>& devices)
{
    std::vector<CLI_LISTED> all;
    all.reserve(devices.size());
    for (const GFPDB_RECORD& device : devices)
        all.push_back({device, gfprog_is_builtin(device)});
    return all;
}

std::string json(const std::string& connection, const GFPROG_DETECTED& detected)
{
    CLI_JSON json;
    json.add("connection", connection);
    json.add("id", gfprog_hex(detected.id));
    json.add_objects("devices", listed(detected.devices), cli_add_record);
    return json.text();
}

int run(const CLI_CALL& call)
{
    int exit_code = CLI_EXIT_OK;
    std::optional<GFPROG_TARGET> target = gfprog_open_connection(call, exit_code);
    if (!target)
        return exit_code;
    const std::optional<GFPROG_DETECTED> detected = gfprog_detect(call, *target, exit_code);
    if (!detected)
        return exit_code;
    const bool is_known = !detected->devices.empty();
    if (call.has(CLI_OPTION_JSON))
        call.output.print(json(target->connection, *detected));
    else
        call.output.print("ID: " + gfprog_hex(detected->id) + '\n' +
                          (is_known ? cli_records_table(listed(detected->devices)) : "No device has this ID.\n"));
    return is_known ? CLI_EXIT_OK : CLI_EXIT_NOT_FOUND;
}

} // namespace

const CLI_COMMAND GFPROG_DETECT_COMMAND = {
    "detect",      "List the devices that the connected chip can be", "", {0, 0}, gfprog_add_target_options, run,
    gfprog_choices};
