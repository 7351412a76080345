// SPDX-License-Identifier: MIT
#include "cli_program.h"

#include "cli_complete.h"
#include "cli_file_names.h"
#include "cli_place.h"
#include "text_catalogue.h"

#include "gfpdb/gfpdb_text.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <optional>

namespace {

constexpr const char* OPTION_HELP = "help";
constexpr const char* OPTION_VERBOSE = "verbose";
constexpr int NAME_WIDTH = 10;
// Between a name that is longer and its text.
constexpr int NAME_GAP = 2;

std::string overview(const CLI_PROGRAM& program)
{
    const QString name = QLatin1String(program.name);
    QString text = QStringLiteral("Usage: %1 COMMAND [options] [arguments]\n\n%2\n\nCommands:\n")
                       .arg(name, QLatin1String(program.purpose));
    int width = NAME_WIDTH;
    for (const CLI_COMMAND& command : program.commands)
        width = std::max(width, static_cast<int>(std::strlen(command.name)) + NAME_GAP);
    for (const CLI_COMMAND& command : program.commands)
        text += QStringLiteral("  %1%2\n").arg(QLatin1String(command.name), -width).arg(QLatin1String(command.summary));
    text +=
        QStringLiteral("\n\"%1 COMMAND --help\" explains a command, \"%1 --version\" prints the version.\n").arg(name);
    return gfpdb_to_utf8(text);
}

// One call of a command: what the user wrote, and for which tool.
struct CALLED
{
    const CLI_PROGRAM& program;
    const CLI_COMMAND& command;
    const CLI_OPTIONS& options;
    const QCommandLineParser& parser;

    // How the command is called, with `middle` between its name and its arguments.
    QString synopsis(const char* middle = "") const
    {
        const QStringList parts = {QLatin1String(program.name), QLatin1String(command.name), QLatin1String(middle),
                                   QLatin1String(command.arguments)};
        return parts.join(QLatin1Char(' ')).simplified();
    }
};

std::string usage_of(const CALLED& called)
{
    QString options = called.parser.helpText();
    options.remove(0, options.indexOf(QLatin1Char('\n')) + 1);
    return "Usage: " + gfpdb_to_utf8(called.synopsis("[options]")) + "\n" + called.command.summary + ".\n" +
           gfpdb_to_utf8(options);
}

QString problem_of_numbers(const CALLED& called)
{
    for (const CLI_OPTION& option : called.options) {
        const QString name = QLatin1String(option.name);
        if (!option.range || !called.parser.isSet(name))
            continue;
        const auto [lowest, highest] = *option.range;
        bool is_number = false;
        const int number = called.parser.value(name).toInt(&is_number);
        if (!is_number || number < lowest || number > highest)
            return QStringLiteral("--%1 needs a whole number from %2 to %3.").arg(name).arg(lowest).arg(highest);
    }
    return QString();
}

QString problem_of_places(const CALLED& called)
{
    const auto is_wrong = [&called](const char* option, std::optional<int> (*find)(const std::string&)) {
        const QString name = QLatin1String(option);
        return called.parser.optionNames().contains(name) && !find(gfpdb_to_utf8(called.parser.value(name)));
    };
    for (const char* const option : {CLI_OPTION_FAMILY, CLI_OPTION_FROM_FAMILY}) {
        if (is_wrong(option, cli_family))
            return gfpdb_from_utf8(cli_family_rule(option));
    }
    for (const char* const option : {CLI_OPTION_SCHEME, CLI_OPTION_FROM_SCHEME}) {
        if (is_wrong(option, cli_scheme))
            return gfpdb_from_utf8(cli_scheme_rule(option));
    }
    return QString();
}

// A script's variable that was never set: it would mean the user's own directory, or every record.
QString problem_of_empty_texts(const CALLED& called)
{
    const QCommandLineParser& parser = called.parser;
    const QString directory = QLatin1String(CLI_OPTION_DIR);
    if (parser.isSet(directory) && parser.value(directory).isEmpty())
        return QStringLiteral("--%1 is empty.").arg(directory);
    if (parser.positionalArguments().contains(QString()))
        return QStringLiteral("An argument is empty: %1").arg(called.synopsis());
    return QString();
}

QString problem_of_count(const CALLED& called)
{
    const auto [fewest, most] = called.command.argument_range;
    const int count = called.parser.positionalArguments().size();
    if (count < fewest)
        return QStringLiteral("An argument is missing: %1").arg(called.synopsis());
    if (most >= 0 && count > most)
        return QStringLiteral("Unexpected argument \"%1\": %2")
            .arg(called.parser.positionalArguments().at(most), called.synopsis());
    return QString();
}

// A sentence about what is wrong with the options and arguments; empty when nothing is.
QString problem_of(const CALLED& called)
{
    for (const QString& problem : {problem_of_numbers(called), problem_of_places(called),
                                   problem_of_empty_texts(called), problem_of_count(called)}) {
        if (!problem.isEmpty())
            return problem;
    }
    return QString();
}

int run_command(const CLI_PROGRAM& program, const CLI_COMMAND& command, const QStringList& arguments,
                CLI_OUTPUT& output)
{
    const CLI_OPTIONS options = cli_options(command);
    QCommandLineParser parser;
    cli_add_options(parser, options);
    if (!parser.parse(arguments)) {
        output.error(gfpdb_to_utf8(parser.errorText()));
        return CLI_EXIT_USAGE;
    }
    if (parser.isSet(QLatin1String(OPTION_HELP))) {
        output.print(usage_of({program, command, options, parser}));
        return CLI_EXIT_OK;
    }
    const QString problem = problem_of({program, command, options, parser});
    if (!problem.isEmpty()) {
        output.error(gfpdb_to_utf8(problem));
        return CLI_EXIT_USAGE;
    }
    // The tool reports what goes wrong; the log would repeat it.
    if (!parser.isSet(QLatin1String(OPTION_VERBOSE)))
        QLoggingCategory::setFilterRules(QStringLiteral("pgm.*.warning=false"));
    const std::string catalogue_problem = GFPDB_DATABASE::get_catalogue_problem();
    if (!catalogue_problem.empty()) {
        output.error(catalogue_problem);
        return CLI_EXIT_BAD_FILE;
    }
    GFPDB_DATABASE::set_upgrade_progress([&output](int done, int total) {
        output.progress("Upgrading the database:", done, total);
        if (done == total)
            output.finish_progress();
    });
    GFPDB_DATABASE database(QFile::encodeName(parser.value(QLatin1String(CLI_OPTION_DIR))).toStdString());
    return command.run({parser, database, output, arguments});
}

int dispatch(const CLI_PROGRAM& program, const QStringList& arguments, CLI_OUTPUT& output)
{
    QString name = arguments.value(1);
    QStringList rest = arguments.mid(1);
    if (name == QLatin1String("help") && arguments.size() > 2) {
        name = arguments[2];
        rest = QStringList{name, QStringLiteral("--help")};
    }
    if (name == QLatin1String("help") || name == QLatin1String("--help") || name == QLatin1String("-h")) {
        output.print(overview(program));
        return CLI_EXIT_OK;
    }
    if (name == QLatin1String(CLI_COMPLETE)) {
        // Who completes a word has no use for the log.
        QLoggingCategory::setFilterRules(QStringLiteral("pgm.*=false"));
        output.print(cli_complete(program, arguments.mid(2)));
        return CLI_EXIT_OK;
    }
    if (name == QLatin1String("--version")) {
        output.print(std::string(program.name) + " " CLI_VERSION "\n");
        return CLI_EXIT_OK;
    }
    if (const CLI_COMMAND* command = cli_find_command(program, name))
        return run_command(program, *command, rest, output);
    output.error(name.isEmpty() ? std::string("A command is missing.")
                                : gfpdb_quoted(gfpdb_to_utf8(name)) + " is not a " + program.name + " command.");
    output.error("\"" + std::string(program.name) + " --help\" lists the commands.");
    return CLI_EXIT_USAGE;
}

// Scripts set the locale "C" for texts that are always the same, whatever LANGUAGE says.
bool has_language()
{
    QByteArray locale;
    for (const char* variable : {"LANG", "LC_MESSAGES", "LC_ALL"})
        locale = qEnvironmentVariableIsEmpty(variable) ? locale : qgetenv(variable);
    return !locale.isEmpty() && locale != "C" && !locale.startsWith("C.") && locale != "POSIX";
}

// What the library logs can have texts of others in it.
void print_log(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const std::string line = cli_printable(gfpdb_to_utf8(qFormatLogMessage(type, context, text))) + '\n';
    std::fputs(line.c_str(), stderr);
}

} // namespace

const CLI_COMMAND* cli_find_command(const CLI_PROGRAM& program, const QString& name)
{
    for (const CLI_COMMAND& command : program.commands) {
        if (name == QLatin1String(command.name))
            return &command;
    }
    return nullptr;
}

CLI_OPTIONS cli_options(const CLI_COMMAND& command)
{
    CLI_OPTIONS options = {
        {CLI_OPTION_DIR, "The database directory; by default the one in the user's settings.", "directory", "d"},
        {OPTION_VERBOSE, "Print what the library logs."},
        {OPTION_HELP, "Print this help.", "", "h"},
    };
    command.add_options(options);
    return options;
}

void cli_add_options(QCommandLineParser& parser, const CLI_OPTIONS& options)
{
    for (const CLI_OPTION& option : options) {
        QStringList names = {QLatin1String(option.letter), QLatin1String(option.name)};
        names.removeAll(QString());
        parser.addOption({names, gfpdb_from_utf8(option.text), QLatin1String(option.value)});
    }
}

int cli_run(const CLI_PROGRAM& program, const QStringList& arguments)
{
    CLI_OUTPUT output(program.name);
    const int exit_code = dispatch(program, arguments, output);
    GFPDB_DATABASE::set_upgrade_progress({});
    if (output.flush())
        return exit_code;
    output.error("The output cannot be written.");
    return exit_code == CLI_EXIT_OK ? CLI_EXIT_BAD_FILE : exit_code;
}

int cli_main(int argc, char** argv, const CLI_PROGRAM& program)
{
    std::setlocale(LC_ALL, "");
    cli_use_file_names();
    qInstallMessageHandler(print_log);
    const std::unique_ptr<QCoreApplication> application = program.make_application
                                                              ? program.make_application(argc, argv)
                                                              : std::make_unique<QCoreApplication>(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    // What programs read is the same in every language.
    std::optional<TEXT_CATALOGUE> database_texts;
    if (has_language() && !arguments.contains(QLatin1String("--") + QLatin1String(CLI_OPTION_JSON)))
        database_texts.emplace(QStringLiteral("gfpdb"),
                               TEXT_CATALOGUE::installed_directories(QCoreApplication::applicationDirPath()));
    return cli_run(program, arguments);
}
