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

} // namespace

std::vector<std::string> CLI_CHART_COMMAND::choices(const std::string& value) const
{
    if (value == CHART_OPTION_FORMAT)
        return {"pdf", "svg"};
    if (value == CHART_OPTION_OPERATION)
        return {"initialization", "program", "erase", "verify", "termination"};
    if (value == CHART_OPTION_VARIANT)
        return {"single", "quad"};
    return value == CHART_OPTION_PAPER ? std::vector<std::string>{"a4", "letter"} : std::vector<std::string>();
}

void CLI_CHART_COMMAND::add_options(QCommandLineParser& parser) const
{
    parser.addOption({{QStringLiteral("o"), QLatin1String(CLI_OPTION_OUTPUT)},
                      QStringLiteral("Write to this file instead of standard output."),
                      QStringLiteral("file")});
    parser.addOption({QLatin1String(CHART_OPTION_FORMAT),
                      QStringLiteral("pdf or svg; by default what the file's name ends in."),
                      QStringLiteral("format")});
    parser.addOption({QLatin1String(CHART_OPTION_OPERATION),
                      QStringLiteral("Only this operation: initialization, program, erase, verify or termination."),
                      QStringLiteral("operation")});
    parser.addOption({QLatin1String(CHART_OPTION_VARIANT),
                      QStringLiteral("The flow to draw: single or quad; by default that of the device's configuration "
                                     "scheme, or single where there is none."),
                      QStringLiteral("variant")});
    parser.addOption({QLatin1String(CHART_OPTION_PAPER),
                      QStringLiteral("a4 or letter; by default what the locale's country uses."),
                      QStringLiteral("paper")});
    cli_add_place_options(parser, "Only devices of this");
}

int CLI_CHART_COMMAND::run(const CLI_CALL& call) const
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
