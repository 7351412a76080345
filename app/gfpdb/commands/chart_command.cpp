// SPDX-License-Identifier: MIT
#include "commands/chart_command.h"

#include "gfpdb/gfpdb_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

#include <csignal>

namespace {

const QString DRAWING_PROGRAM = QStringLiteral("../libexec/gfpdb_chart");

// As every program whose reader has gone: without a word. Starting another program has ignored the signal.
void end_by_closed_pipe()
{
    std::signal(SIGPIPE, SIG_DFL);
    std::raise(SIGPIPE);
}

std::vector<std::string> choices(const std::string& value)
{
    if (value == CHART_OPTION_FORMAT)
        return {"pdf", "svg"};
    if (value == CHART_OPTION_OPERATION)
        return {"initialization", "program", "erase", "verify", "termination"};
    if (value == CHART_OPTION_VARIANT)
        return {"single", "quad"};
    return value == CHART_OPTION_PAPER ? std::vector<std::string>{"a4", "letter"} : std::vector<std::string>();
}

void add_options(CLI_OPTIONS& options)
{
    options.push_back({CLI_OPTION_OUTPUT, "Write to this file instead of standard output.", "file", "o"});
    options.push_back({CHART_OPTION_FORMAT, "pdf or svg; by default what the file's name ends in.", "format"});
    options.push_back({CHART_OPTION_OPERATION,
                       "Only this operation: initialization, program, erase, verify or termination.", "operation"});
    options.push_back({CHART_OPTION_VARIANT,
                       "The flow to draw: single or quad; by default that of the device's configuration scheme, or "
                       "single where there is none.",
                       "variant"});
    options.push_back({CHART_OPTION_PAPER, "a4 or letter; by default what the locale's country uses.", "paper"});
    cli_add_place_options(options, "Only devices of this");
}

// Hands the call over to the program that draws, and its exit code back.
int run(const CLI_CALL& call)
{
    const QString program =
        QDir::cleanPath(QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(DRAWING_PROGRAM));
    QProcess drawing;
    drawing.setProcessChannelMode(QProcess::ForwardedChannels);
    drawing.start(program, call.words);
    const bool was_started = drawing.waitForFinished(-1);
    if (was_started && drawing.exitStatus() == QProcess::NormalExit)
        return drawing.exitCode();
    if (was_started && drawing.exitCode() == SIGPIPE)
        end_by_closed_pipe();
    call.output.error(gfpdb_to_utf8(program) + (was_started ? ": The program that draws charts crashed."
                                                            : ": The program that draws charts cannot be started."));
    return CLI_EXIT_BAD_FILE;
}

} // namespace

const CLI_COMMAND CLI_CHART_COMMAND = {
    "chart", "Draw the flow charts of a record (PDF, SVG)", "NAME", {1, 1}, add_options, run, choices};
