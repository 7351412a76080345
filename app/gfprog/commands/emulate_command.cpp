// SPDX-License-Identifier: MIT

// Offers an emulated chip to serprog clients.
#include "commands/gfprog_commands.h"

#include "gfprog_target.h"
#include "run/interrupt.h"

#include "cli_find.h"

#include "gfpe/gfpe_serprog.h"

namespace {

constexpr const char* OPTION_LISTEN = "listen";
constexpr const char* OPTION_EVERY_ADDRESS = "every-address";
constexpr int LAST_PORT = 65535;

int serve(const CLI_CALL& call, GFPE_CHIP& chip)
{
    GFPE_SERPROG_SERVER server(chip);
    std::string problem;
    const bool on_every_address = call.has(OPTION_EVERY_ADDRESS);
    if (!server.listen(on_every_address, *call.number(OPTION_LISTEN), problem)) {
        call.output.error(problem);
        return GFPROG_EXIT_CONNECTION;
    }
    const INTERRUPT interrupt([] {}, [] {});
    call.output.print("Listening on " + std::string(on_every_address ? "every address, port " : "127.0.0.1:") +
                      std::to_string(server.get_port()) + ". Ctrl+C ends.\n");
    call.output.flush();
    server.run([&interrupt] { return interrupt.count() > 0; });
    if (!chip.save(problem)) {
        call.output.error(problem);
        return CLI_EXIT_BAD_FILE;
    }
    return gfprog_print_notes(call, chip.get_notes()) ? int(GFPROG_EXIT_NOTED) : int(CLI_EXIT_OK);
}

void add_options(CLI_OPTIONS& options)
{
    options.push_back({OPTION_LISTEN, "The TCP port; 0 for any free one.", "port", "", {{0, LAST_PORT}}});
    options.push_back({OPTION_EVERY_ADDRESS, "Serve other machines too, not only this one."});
    options.push_back({GFPROG_OPTION_FILE, "The file that keeps the chip's contents.", "file"});
    cli_add_place_options(options, "The device of this");
}

int run(const CLI_CALL& call)
{
    if (!call.has(OPTION_LISTEN))
        return call.wrong_usage("--listen is missing: the TCP port.");
    int exit_code = CLI_EXIT_OK;
    const std::optional<GFPDB_RECORD> record = cli_find_one(call, call.argument(0), exit_code);
    if (!record)
        return exit_code;
    std::string problem;
    const std::unique_ptr<GFPE_CHIP> chip = GFPE_CHIP::make(*record, problem);
    if (chip == nullptr) {
        call.output.error(problem);
        return GFPROG_EXIT_REFUSED;
    }
    if (call.has(GFPROG_OPTION_FILE) && !chip->use_file(call.value(GFPROG_OPTION_FILE), problem)) {
        call.output.error(problem);
        return CLI_EXIT_BAD_FILE;
    }
    return serve(call, *chip);
}

} // namespace

const CLI_COMMAND GFPROG_EMULATE_COMMAND = {
    "emulate", "Be a programmer with an emulated chip, for serprog clients", "PART", {1, 1}, add_options, run};
