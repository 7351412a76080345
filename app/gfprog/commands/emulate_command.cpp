// SPDX-License-Identifier: MIT
#include "commands/emulate_command.h"

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

} // namespace

void GFPROG_EMULATE_COMMAND::add_options(QCommandLineParser& parser) const
{
    parser.addOption(
        {QLatin1String(OPTION_LISTEN), QStringLiteral("The TCP port; 0 for any free one."), QStringLiteral("port")});
    parser.addOption(
        {QLatin1String(OPTION_EVERY_ADDRESS), QStringLiteral("Serve other machines too, not only this one.")});
    parser.addOption({QLatin1String(GFPROG_OPTION_FILE), QStringLiteral("The file that keeps the chip's contents."),
                      QStringLiteral("file")});
    cli_add_place_options(parser, "The device of this");
}

std::vector<CLI_NUMBER> GFPROG_EMULATE_COMMAND::numbers() const
{
    return {{OPTION_LISTEN, 0, LAST_PORT}};
}

int GFPROG_EMULATE_COMMAND::run(const CLI_CALL& call) const
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
