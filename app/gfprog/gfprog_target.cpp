// SPDX-License-Identifier: MIT
#include "gfprog_target.h"

#include "cli_records.h"

#include "gfpe/gfpe_detect.h"

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_text.h"

namespace {

// The connection of the options; none when it is not one.
std::optional<GFPE_CONNECTION> connection_of(const CLI_CALL& call, int& exit_code)
{
    std::string problem = "--on is missing: where the chip is, e.g. --on emulated or --on tcp:localhost:4000.";
    if (call.has(GFPROG_OPTION_ON)) {
        std::optional<GFPE_CONNECTION> connection = gfpe_parse_connection(call.value(GFPROG_OPTION_ON), problem);
        if (connection && (connection->kind != GFPE_CONNECTION::EMULATED || call.has(GFPROG_OPTION_DEVICE)))
            return connection;
        if (connection)
            problem = "An emulated chip needs --device: the device that it is.";
    }
    exit_code = call.wrong_usage(problem);
    return std::nullopt;
}

// Opens `connection` for a target whose record is known, or not needed.
bool open(const CLI_CALL& call, const GFPE_CONNECTION& connection, GFPROG_TARGET& target, int& exit_code)
{
    std::string problem;
    const bool has_device = !target.record.name().empty();
    target.connection = call.value(GFPROG_OPTION_ON);
    target.is_new_chip = connection.kind == GFPE_CONNECTION::EMULATED && connection.file.empty();
    target.bus = gfpe_open_connection(connection, has_device ? &target.record : nullptr, problem, &target.chip);
    if (target.bus != nullptr)
        return true;
    call.output.error(problem);
    exit_code = connection.kind != GFPE_CONNECTION::EMULATED ? int(GFPROG_EXIT_CONNECTION)
                : connection.file.empty()                    ? int(GFPROG_EXIT_REFUSED)
                                                             : int(CLI_EXIT_BAD_FILE);
    return false;
}

bool is_of(const GFPDB_RECORD& record, const CLI_CALL& call)
{
    const std::optional<int> family = call.family();
    const std::optional<int> scheme = call.scheme();
    return gfprog_is_builtin(record) || (family.value_or(record.row.family) == record.row.family &&
                                         scheme.value_or(record.row.scheme) == record.row.scheme);
}

// The one device that the connected chip can be.
bool choose(const CLI_CALL& call, GFPROG_TARGET& target, int& exit_code)
{
    const std::optional<GFPROG_DETECTED> detected = gfprog_detect(call, target, exit_code);
    if (!detected)
        return false;
    exit_code = CLI_EXIT_NOT_FOUND;
    if (detected->devices.empty())
        call.output.error("No device has the ID " + gfprog_hex(detected->id) + ".");
    if (detected->devices.size() > 1) {
        std::vector<std::string> names;
        for (const GFPDB_RECORD& device : detected->devices)
            names.push_back(gfprog_is_builtin(device) ? "built-in " + gfpdb_quoted(device.name())
                                                      : gfpdb_title(device));
        call.output.error("Several devices have the ID " + gfprog_hex(detected->id) + ": " + gfpdb_joined(names) +
                          ". Choose one with --device.");
    }
    if (detected->devices.size() != 1)
        return false;
    const GFPDB_RECORD& only = detected->devices.front();
    const std::vector<GFPDB_RECORD> builtin = call.database.find_builtin({only.name(), std::nullopt, std::nullopt});
    const std::optional<GFPDB_RECORD> loaded =
        gfprog_is_builtin(only) && !builtin.empty() ? builtin.front() : call.database.load(only);
    if (!loaded) {
        exit_code = call.database_failed(call.database.get_last_error());
        return false;
    }
    target.record = *loaded;
    return true;
}

} // namespace

bool gfprog_is_builtin(const GFPDB_RECORD& record)
{
    return record.row.scheme < 0;
}

bool GFPROG_TARGET::is_quad(const CLI_CALL& call) const
{
    return call.scheme().value_or(record.row.scheme) == PGMIO_ACTIVE_SERIAL_X4;
}

std::optional<GFPROG_TARGET> gfprog_open_connection(const CLI_CALL& call, int& exit_code,
                                                    const CLI_PLACE_OPTIONS& options)
{
    const std::optional<GFPE_CONNECTION> connection = connection_of(call, exit_code);
    if (!connection)
        return std::nullopt;
    GFPROG_TARGET target;
    if (call.has(GFPROG_OPTION_DEVICE)) {
        const std::optional<GFPDB_RECORD> record =
            cli_find_one(call, call.value(GFPROG_OPTION_DEVICE), exit_code, options);
        if (!record)
            return std::nullopt;
        target.record = *record;
    }
    if (!open(call, *connection, target, exit_code))
        return std::nullopt;
    return target;
}

std::optional<GFPROG_TARGET> gfprog_open_target(const CLI_CALL& call, int& exit_code)
{
    std::optional<GFPROG_TARGET> target = gfprog_open_connection(call, exit_code);
    if (target && target->record.name().empty() && !choose(call, *target, exit_code))
        return std::nullopt;
    return target;
}

std::optional<GFPROG_DETECTED> gfprog_detect(const CLI_CALL& call, GFPROG_TARGET& target, int& exit_code)
{
    GFPROG_DETECTED detected;
    std::string problem;
    if (!gfpe_read_id(*target.bus, detected.id, problem)) {
        call.output.error(problem);
        exit_code = GFPROG_EXIT_CONNECTION;
        return std::nullopt;
    }
    for (const GFPDB_RECORD& record : gfpe_find_devices(call.database, detected.id)) {
        if (is_of(record, call))
            detected.devices.push_back(record);
    }
    // The stored devices were read last.
    const std::string& read_problem = call.database.get_last_error();
    if (read_problem.empty())
        return detected;
    exit_code = call.database_failed(read_problem);
    return std::nullopt;
}

bool gfprog_print_notes(const CLI_CALL& call, const std::vector<std::string>& notes)
{
    for (const std::string& note : notes)
        call.output.error("The emulated chip notes: " + note);
    return !notes.empty();
}
