// SPDX-License-Identifier: MIT

// Reads what the connected chip says of itself, and makes a device of it.
#include "commands/gfprog_commands.h"

#include "gfprog_target.h"
#include "run/examined_file.h"

#include "cli_new_device.h"
#include "cli_sfdp.h"

#include "gfpe/gfpe_detect.h"

#include "gfpdb/gfpdb_text.h"

namespace {

constexpr const char* OPTION_SAVE_SFDP = "save-sfdp";

// What is wrong with options that do not go together; empty when nothing is.
std::string problem_of_options(const CLI_CALL& call)
{
    for (const char* const option : {CLI_OPTION_REPLACE, CLI_OPTION_DRY_RUN}) {
        if (call.has(option) && !call.has(CLI_OPTION_NAME))
            return std::string("--") + option + " needs --name: without it, nothing is stored.";
    }
    std::string problem;
    const auto connection = gfpe_parse_connection(call.value(GFPROG_OPTION_ON), problem);
    if (connection && gfprog_is_one_file(connection->file, call.value(OPTION_SAVE_SFDP)))
        return gfpdb_quoted(connection->file) + " cannot be read and written, or written twice.";
    return std::string();
}

// The file of --save-sfdp; null when there is none. False: a message was printed.
bool open_file(const CLI_CALL& call, std::unique_ptr<EXAMINED_FILE>& file)
{
    if (!call.has(OPTION_SAVE_SFDP))
        return true;
    file = std::make_unique<EXAMINED_FILE>(call.value(OPTION_SAVE_SFDP), 0);
    if (file->open(call.has(GFPROG_OPTION_FORCE)))
        return true;
    call.output.error(file->get_problem());
    return false;
}

// Reads the ID and the tables of the chip. False: a message was printed.
bool read_chip(const CLI_CALL& call, GFPE_BUS& bus, CLI_CHIP& chip, std::vector<std::uint8_t>& tables)
{
    std::string problem;
    if (gfpe_read_id(bus, chip.id, problem) && gfpe_read_sfdp(bus, tables, problem))
        return true;
    call.output.error(problem);
    return false;
}

// A chip without tables, or with such that cannot be understood, is known by its ID alone.
void understand(const CLI_CALL& call, const std::vector<std::uint8_t>& tables, CLI_CHIP& chip)
{
    std::string problem = "The chip has no SFDP tables: only its ID is known.";
    if (!tables.empty())
        chip.sfdp = gfpdb_read_sfdp(tables, problem);
    if (!chip.sfdp)
        cli_print_warnings(call, chip.origin, {problem});
}

// Nothing is written for a chip without tables. False: a message was printed.
bool save(const CLI_CALL& call, const std::vector<std::uint8_t>& tables, EXAMINED_FILE& file)
{
    if (tables.empty()) {
        call.output.error(call.value(OPTION_SAVE_SFDP) + ": The file was not written: the chip has no SFDP tables.");
        return false;
    }
    if (file.write(0, tables.data(), tables.size()) && file.commit())
        return true;
    call.output.error(file.get_problem());
    return false;
}

void add_options(CLI_OPTIONS& options)
{
    gfprog_add_chip_options(options);
    cli_add_place_options(options, "The emulated device of this", CLI_OPTION_FROM_FAMILY, CLI_OPTION_FROM_SCHEME);
    cli_add_place_options(options, "Give the new device this");
    cli_add_value_options(options);
    cli_add_store_options(options);
    options.push_back({OPTION_SAVE_SFDP, "Save the SFDP tables as they were read.", "file"});
    gfprog_add_force_option(options);
    cli_add_json_option(options);
}

int run(const CLI_CALL& call)
{
    const std::string wrong = problem_of_options(call);
    if (!wrong.empty())
        return call.wrong_usage(wrong);
    std::unique_ptr<EXAMINED_FILE> file;
    if (!open_file(call, file))
        return CLI_EXIT_BAD_FILE;
    int exit_code = CLI_EXIT_OK;
    const std::optional<GFPROG_TARGET> target =
        gfprog_open_connection(call, exit_code, {CLI_OPTION_FROM_FAMILY, CLI_OPTION_FROM_SCHEME});
    if (!target)
        return exit_code;
    CLI_CHIP chip;
    chip.origin = target->connection;
    std::vector<std::uint8_t> tables;
    if (!read_chip(call, *target->bus, chip, tables))
        return GFPROG_EXIT_CONNECTION;
    understand(call, tables, chip);
    const bool is_saved = file == nullptr || save(call, tables, *file);
    exit_code = cli_propose_device(call, chip, true, call.has(CLI_OPTION_NAME));
    return is_saved || exit_code != CLI_EXIT_OK ? exit_code : int(CLI_EXIT_BAD_FILE);
}

} // namespace

const CLI_COMMAND GFPROG_LEARN_COMMAND = {
    "learn", "Make a device of what the connected chip says of itself", "", {0, 0}, add_options, run, gfprog_choices};
