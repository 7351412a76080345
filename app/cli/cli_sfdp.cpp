// SPDX-License-Identifier: MIT
#include "cli_sfdp.h"

#include "gfpdb/gfpdb_text.h"
#include "whole_file/whole_file.h"

#include <unistd.h>

void cli_add_id_option(CLI_OPTIONS& options)
{
    options.push_back({CLI_OPTION_ID, "The device ID that command 9F reads, e.g. \"C2 20 19\".", "bytes"});
}

bool cli_read_id(const CLI_CALL& call, std::vector<std::uint8_t>& id)
{
    if (!call.has(CLI_OPTION_ID))
        return true;
    id = gfpdb_device_id_bytes(call.value(CLI_OPTION_ID));
    if (!id.empty())
        return true;
    call.wrong_usage(gfpdb_quoted(call.value(CLI_OPTION_ID)) + " is not a device ID: at most " +
                     std::to_string(GFPDB_ID_BYTES_MAX) + " bytes, e.g. C2 20 19.");
    return false;
}

std::optional<GFPDB_SFDP> cli_read_sfdp(const CLI_CALL& call, const std::string& path)
{
    std::string problem;
    const std::optional<std::string> bytes = path == "-" ? read_descriptor(STDIN_FILENO, GFPDB_SFDP_BYTES_MAX, problem)
                                                         : read_whole_file(path, GFPDB_SFDP_BYTES_MAX, problem);
    std::optional<GFPDB_SFDP> sfdp;
    if (!bytes)
        problem = "The file cannot be read: " + problem + '.';
    else
        sfdp = gfpdb_read_sfdp({bytes->begin(), bytes->end()}, problem);
    if (!sfdp)
        call.output.error(path + ": " + problem);
    return sfdp;
}

void cli_print_warnings(const CLI_CALL& call, const std::string& origin, const std::vector<std::string>& warnings)
{
    for (const std::string& warning : warnings)
        call.output.finding(origin, {0, std::string(), warning, GFPDB_SERIOUSNESS::WARNING});
}
