// SPDX-License-Identifier: MIT
#include "program/host_arguments.h"

#include "gfpdb/gfpdb_enums.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QLocale>

namespace {

const QString FAMILY = QStringLiteral("family");
const QString SCHEME = QStringLiteral("scheme");
const QString DEVICE = QStringLiteral("device");
const QString RESTRICT = QStringLiteral("restrict");
const QString NO_FAMILY = QStringLiteral("no-family");
const QString NO_MODE = QStringLiteral("no-mode");
const QString NO_EDIT = QStringLiteral("no-edit");
const QString DATABASE = QStringLiteral("database");
const QString BASE_DIR = QStringLiteral("base-dir");
const QString MODULE = QStringLiteral("module");
const QString LANG = QStringLiteral("lang");
const QString DIALOG = QStringLiteral("dialog");
const QString RENDER = QStringLiteral("render");
const QString HELP = QStringLiteral("help");
const QString VERSION = QStringLiteral("version");

void describe_options(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Host of the Configuration Device dialog. Without --dialog or --render it shows a window in "
                       "which the dialog is opened; the choice made there is remembered."));
    parser.addOptions({
        {FAMILY, QStringLiteral("Initial device family, 1 to 72."), QStringLiteral("N")},
        {SCHEME, QStringLiteral("Initial configuration scheme, 0 to 25."), QStringLiteral("N")},
        {DEVICE, QStringLiteral("Initial configuration device."), QStringLiteral("NAME")},
        {RESTRICT,
         QStringLiteral(
             "What the dialog offers: \"3:7,13;5:\" is family 3 with the schemes 7 and 13, and family 5 with "
             "all its schemes."),
         QStringLiteral("MAP")},
        {NO_FAMILY, QStringLiteral("The family cannot be changed.")},
        {NO_MODE, QStringLiteral("The configuration mode cannot be changed.")},
        {NO_EDIT, QStringLiteral("The device page (its list, filter and fields) and the database directory are greyed; "
                                 "the operation pages are not.")},
        {DATABASE, QStringLiteral("Directory of the user's flash database, for this run."), QStringLiteral("DIR")},
        {BASE_DIR,
         QStringLiteral("Directory that relative directories are relative to, and paths are shown relative to."),
         QStringLiteral("DIR")},
        {MODULE, QStringLiteral("Absolute path of the dialog module to load."), QStringLiteral("FILE")},
        {LANG, QStringLiteral("Language of the texts, such as \"de\"; the system's if not given."),
         QStringLiteral("LANG")},
        {DIALOG, QStringLiteral("Open the dialog at once, print what it returns as one line of JSON, and exit.")},
        {RENDER, QStringLiteral("Draw the dialog's pages into picture files in DIR, without a display, and exit."),
         QStringLiteral("DIR")},
        {{QStringLiteral("h"), HELP}, QStringLiteral("Show this help and exit.")},
        {{QStringLiteral("v"), VERSION}, QStringLiteral("Show the version and exit.")},
    });
}

// Reads one option after the other; the first problem stays.
class READER
{
public:
    explicit READER(const QCommandLineParser& parser) : m_parser(parser) {}

    HOST_ARGUMENTS read();
    const QString& problem() const { return m_problem; }

private:
    void fail(const QString& problem);
    // Null when the option is not there.
    std::optional<QString> text(const QString& option);
    std::optional<int> number(const QString& option, int first, int last);
    // A text that says something when the option is there.
    QString filled_text(const QString& option);
    RESTRICTION restriction();
    QString absolute_file(const QString& option);
    QString language();
    HOST_TASK task();

    const QCommandLineParser& m_parser;
    QString m_problem;
};

void READER::fail(const QString& problem)
{
    if (m_problem.isEmpty())
        m_problem = problem;
}

std::optional<QString> READER::text(const QString& option)
{
    const QStringList values = m_parser.values(option);
    if (values.isEmpty())
        return std::nullopt;
    if (values.size() > 1)
        fail(QStringLiteral("--%1 is given twice.").arg(option));
    return values.first();
}

std::optional<int> READER::number(const QString& option, int first, int last)
{
    const std::optional<QString> value = text(option);
    if (!value)
        return std::nullopt;
    bool is_number = false;
    const int result = value->toInt(&is_number);
    if (!is_number || result < first || result > last) {
        fail(QStringLiteral("--%1 takes a number from %2 to %3, not \"%4\".")
                 .arg(option, QString::number(first), QString::number(last), *value));
        return std::nullopt;
    }
    return result;
}

QString READER::filled_text(const QString& option)
{
    const std::optional<QString> value = text(option);
    if (value && value->isEmpty())
        fail(QStringLiteral("--%1 needs a value that is not empty.").arg(option));
    return value.value_or(QString());
}

RESTRICTION READER::restriction()
{
    const std::optional<QString> value = text(RESTRICT);
    if (!value)
        return {};
    QString problem;
    const std::optional<RESTRICTION> result = parse_restriction(*value, problem);
    if (!result)
        fail(QStringLiteral("--%1: %2.").arg(RESTRICT, problem));
    return result.value_or(RESTRICTION());
}

// Where a relative module file would be looked for is the user's current directory: no place to load programs from.
QString READER::absolute_file(const QString& option)
{
    QString file = filled_text(option);
    if (!file.isEmpty() && !QDir::isAbsolutePath(file))
        fail(QStringLiteral("--%1 takes an absolute path, not \"%2\".").arg(option, file));
    return file;
}

QString READER::language()
{
    QString name = filled_text(LANG);
    const bool is_known = QLocale(name).language() != QLocale::C || name == QLatin1String("C");
    if (!name.isEmpty() && !is_known)
        fail(QStringLiteral("--%1: \"%2\" is not a known language.").arg(LANG, name));
    return name;
}

HOST_TASK READER::task()
{
    const bool is_dialog = m_parser.isSet(DIALOG);
    const bool is_render = m_parser.isSet(RENDER);
    if (is_dialog && is_render)
        fail(QStringLiteral("--%1 and --%2 cannot be used together.").arg(DIALOG, RENDER));
    if (is_dialog)
        return HOST_TASK::DIALOG;
    return is_render ? HOST_TASK::RENDER : HOST_TASK::WINDOW;
}

HOST_ARGUMENTS READER::read()
{
    if (!m_parser.positionalArguments().isEmpty())
        fail(QStringLiteral("Unexpected argument \"%1\": only options are accepted.")
                 .arg(m_parser.positionalArguments().constFirst()));

    HOST_ARGUMENTS arguments;
    arguments.task = task();
    arguments.family = number(FAMILY, DEV_FAMILY_FIRST, DEV_FAMILY_LAST);
    arguments.config_scheme = number(SCHEME, 0, PGMIO_CONFIG_SCHEME_COUNT - 1);
    arguments.device_name = text(DEVICE);
    arguments.dialog.enable_family = !m_parser.isSet(NO_FAMILY);
    arguments.dialog.enable_config_mode = !m_parser.isSet(NO_MODE);
    arguments.dialog.enable_edit = !m_parser.isSet(NO_EDIT);
    arguments.dialog.family_schemes = restriction();
    arguments.database_directory = filled_text(DATABASE);
    arguments.base_directory = filled_text(BASE_DIR);
    arguments.module_file = absolute_file(MODULE);
    arguments.render_directory = filled_text(RENDER);
    arguments.language = language();
    return arguments;
}

} // namespace

PARSED_ARGUMENTS parse_arguments(const QStringList& command_line)
{
    QCommandLineParser parser;
    describe_options(parser);
    PARSED_ARGUMENTS result;
    if (!parser.parse(command_line)) {
        result.problem = parser.errorText();
        return result;
    }
    if (parser.isSet(HELP)) {
        result.information = parser.helpText();
        return result;
    }
    if (parser.isSet(VERSION)) {
        result.information = QCoreApplication::applicationName() + QLatin1Char(' ') +
                             QCoreApplication::applicationVersion() + QLatin1Char('\n');
        return result;
    }
    READER reader(parser);
    const HOST_ARGUMENTS arguments = reader.read();
    result.problem = reader.problem();
    if (result.problem.isEmpty())
        result.arguments = arguments;
    return result;
}
