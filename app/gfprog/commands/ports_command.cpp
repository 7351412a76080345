// SPDX-License-Identifier: MIT

// Lists the serial lines of this machine.
#include "commands/gfprog_commands.h"

#include "cli_json.h"

#include "gfpe/gfpe_connection.h"

namespace {

std::string json(const std::vector<GFPE_PORT>& ports)
{
    return CLI_JSON::list_text(ports, [](CLI_JSON& json, const GFPE_PORT& port) {
        json.add("device", port.device);
        json.add("description", port.description);
    });
}

std::string table(const std::vector<GFPE_PORT>& ports)
{
    std::string text;
    for (const GFPE_PORT& port : ports)
        text += cli_printable(port.device + (port.description.empty() ? "" : "  " + port.description)) + '\n';
    return text;
}

int run(const CLI_CALL& call)
{
    const std::vector<GFPE_PORT> ports = gfpe_serial_ports();
    call.output.print(call.has(CLI_OPTION_JSON) ? json(ports) : table(ports));
    return CLI_EXIT_OK;
}

} // namespace

const CLI_COMMAND GFPROG_PORTS_COMMAND = {
    "ports", "List the serial lines of this machine", "", {0, 0}, cli_add_json_option, run};
