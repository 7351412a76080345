// SPDX-License-Identifier: MIT
#include "cli_program.h"

#include "commands/check_command.h"
#include "commands/diff_command.h"
#include "commands/export_command.h"
#include "commands/history_command.h"
#include "commands/import_command.h"
#include "commands/list_command.h"
#include "commands/restore_command.h"
#include "commands/show_command.h"

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_text.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>

#include <limits>
#include <memory>

namespace {

constexpr const char* OPTION_HELP = "help";
constexpr const char* OPTION_VERBOSE = "verbose";
// A hundred years.
constexpr int DAYS_MAX = 36500;
constexpr int NAME_WIDTH = 10;

using COMMANDS = std::vector<std::unique_ptr<CLI_COMMAND>>;

COMMANDS make_commands()
{
    COMMANDS commands;
    commands.push_back(std::make_unique<CLI_LIST_COMMAND>());
    commands.push_back(std::make_unique<CLI_SHOW_COMMAND>());
    commands.push_back(std::make_unique<CLI_EXPORT_COMMAND>());
    commands.push_back(std::make_unique<CLI_IMPORT_COMMAND>());
    commands.push_back(std::make_unique<CLI_CHECK_COMMAND>());
    commands.push_back(std::make_unique<CLI_HISTORY_COMMAND>());
    commands.push_back(std::make_unique<CLI_RESTORE_COMMAND>());
    commands.push_back(std::make_unique<CLI_DIFF_COMMAND>());
    return commands;
}

const CLI_COMMAND* find_command(const COMMANDS& commands, const QString& name)
{
    for (const std::unique_ptr<CLI_COMMAND>& command : commands) {
        if (name == QLatin1String(command->name()))
            return command.get();
    }
    return nullptr;
}

std::string overview(const COMMANDS& commands)
{
    QString text = QStringLiteral("Usage: gfpdb COMMAND [options] [arguments]\n\n"
                                  "Manages the flash database of the programmer: its devices and flow templates.\n\n"
                                  "Commands:\n");
    for (const std::unique_ptr<CLI_COMMAND>& command : commands)
        text += QStringLiteral("  %1%2\n")
                    .arg(QLatin1String(command->name()), -NAME_WIDTH)
                    .arg(QLatin1String(command->summary()));
    text += QStringLiteral("\n\"gfpdb COMMAND --help\" explains a command, \"gfpdb --version\" prints the version.\n");
    return gfpdb_to_utf8(text);
}

void add_common_options(QCommandLineParser& parser)
{
    parser.addOption({{QStringLiteral("d"), QLatin1String(CLI_OPTION_DIR)},
                      QStringLiteral("The database directory; by default the one in the user's settings."),
                      QStringLiteral("directory")});
    parser.addOption({QLatin1String(OPTION_VERBOSE), QStringLiteral("Print what the library logs.")});
    parser.addOption({{QStringLiteral("h"), QLatin1String(OPTION_HELP)}, QStringLiteral("Print this help.")});
}

// How the command is called, with `options` between its name and its arguments.
QString synopsis(const CLI_COMMAND& command, const char* options = "")
{
    const QStringList parts = {QStringLiteral("gfpdb"), QLatin1String(command.name()), QLatin1String(options),
                               QLatin1String(command.arguments())};
    return parts.join(QLatin1Char(' ')).simplified();
}

std::string usage_of(const CLI_COMMAND& command, const QCommandLineParser& parser)
{
    QString options = parser.helpText();
    options.remove(0, options.indexOf(QLatin1Char('\n')) + 1);
    return "Usage: " + gfpdb_to_utf8(synopsis(command, "[options]")) + "\n" + command.summary() + ".\n" +
           gfpdb_to_utf8(options);
}

QString problem_of_numbers(const QCommandLineParser& parser)
{
    const struct
    {
        const char* name;
        int lowest;
        int highest;
    } ranges[] = {{CLI_OPTION_FAMILY, DEV_FAMILY_FIRST, DEV_FAMILY_LAST},
                  {CLI_OPTION_SCHEME, 0, PGMIO_ILLEGAL_SCHEME - 1},
                  {CLI_OPTION_OLDER_THAN, 0, DAYS_MAX},
                  {CLI_OPTION_KEEP, 0, std::numeric_limits<int>::max()}};
    for (const auto& range : ranges) {
        const QString name = QLatin1String(range.name);
        if (!parser.optionNames().contains(name))
            continue;
        bool is_number = false;
        const int number = parser.value(name).toInt(&is_number);
        if (!is_number || number < range.lowest || number > range.highest)
            return QStringLiteral("--%1 needs a whole number from %2 to %3.")
                .arg(name)
                .arg(range.lowest)
                .arg(range.highest);
    }
    return QString();
}

// A script's variable that was never set: it would mean the user's own directory, or every record.
QString problem_of_empty_texts(const CLI_COMMAND& command, const QCommandLineParser& parser)
{
    const QString directory = QLatin1String(CLI_OPTION_DIR);
    if (parser.isSet(directory) && parser.value(directory).isEmpty())
        return QStringLiteral("--%1 is empty.").arg(directory);
    if (parser.positionalArguments().contains(QString()))
        return QStringLiteral("An argument is empty: %1").arg(synopsis(command));
    return QString();
}

QString problem_of_count(const CLI_COMMAND& command, const QCommandLineParser& parser)
{
    const auto [fewest, most] = command.argument_range();
    const int count = parser.positionalArguments().size();
    if (count < fewest)
        return QStringLiteral("An argument is missing: %1").arg(synopsis(command));
    if (most >= 0 && count > most)
        return QStringLiteral("Unexpected argument \"%1\": %2")
            .arg(parser.positionalArguments().at(most), synopsis(command));
    return QString();
}

// A sentence about what is wrong with the options and arguments; empty when nothing is.
QString problem_of(const CLI_COMMAND& command, const QCommandLineParser& parser)
{
    for (const QString& problem :
         {problem_of_numbers(parser), problem_of_empty_texts(command, parser), problem_of_count(command, parser)}) {
        if (!problem.isEmpty())
            return problem;
    }
    return QString();
}

int run_command(const CLI_COMMAND& command, const QStringList& arguments, CLI_OUTPUT& output)
{
    QCommandLineParser parser;
    add_common_options(parser);
    command.add_options(parser);
    if (!parser.parse(arguments)) {
        output.error(gfpdb_to_utf8(parser.errorText()));
        return CLI_EXIT_USAGE;
    }
    if (parser.isSet(QLatin1String(OPTION_HELP))) {
        output.print(usage_of(command, parser));
        return CLI_EXIT_OK;
    }
    const QString problem = problem_of(command, parser);
    if (!problem.isEmpty()) {
        output.error(gfpdb_to_utf8(problem));
        return CLI_EXIT_USAGE;
    }
    // The tool reports what goes wrong; the log would repeat it.
    if (!parser.isSet(QLatin1String(OPTION_VERBOSE)))
        QLoggingCategory::setFilterRules(QStringLiteral("pgm.gfpdb.warning=false"));
    const std::string catalogue_problem = GFPDB_DATABASE::get_catalogue_problem();
    if (!catalogue_problem.empty()) {
        output.error(catalogue_problem);
        return CLI_EXIT_BAD_FILE;
    }
    GFPDB_DATABASE database(QFile::encodeName(parser.value(QLatin1String(CLI_OPTION_DIR))).toStdString());
    return command.run({parser, database, output});
}

int dispatch(const QStringList& arguments, CLI_OUTPUT& output)
{
    const COMMANDS commands = make_commands();
    QString name = arguments.value(1);
    QStringList rest = arguments.mid(1);
    if (name == QLatin1String("help") && arguments.size() > 2) {
        name = arguments[2];
        rest = QStringList{name, QStringLiteral("--help")};
    }
    if (name == QLatin1String("help") || name == QLatin1String("--help") || name == QLatin1String("-h")) {
        output.print(overview(commands));
        return CLI_EXIT_OK;
    }
    if (name == QLatin1String("--version")) {
        output.print("gfpdb " GFPDB_CLI_VERSION "\n");
        return CLI_EXIT_OK;
    }
    if (const CLI_COMMAND* command = find_command(commands, name))
        return run_command(*command, rest, output);
    output.error(name.isEmpty() ? std::string("A command is missing.")
                                : gfpdb_quoted(gfpdb_to_utf8(name)) + " is not a gfpdb command.");
    output.error("\"gfpdb --help\" lists the commands.");
    return CLI_EXIT_USAGE;
}

} // namespace

int cli_run(const QStringList& arguments)
{
    CLI_OUTPUT output;
    const int exit_code = dispatch(arguments, output);
    if (output.flush())
        return exit_code;
    output.error("The output cannot be written.");
    return exit_code == CLI_EXIT_OK ? CLI_EXIT_BAD_FILE : exit_code;
}
