// SPDX-License-Identifier: MIT
#include "commands/list_command.h"

#include "cli_find.h"
#include "cli_records.h"

#include "gfpdb/gfpdb_text.h"

#include <QRegularExpression>
#include <QString>

#include <algorithm>

namespace {

constexpr const char* OPTION_BUILTIN = "builtin";
constexpr const char* OPTION_ALL = "all";
constexpr const char* OPTION_FILTER = "filter";

// Qt's own wildcards are for paths: their star ends at a slash, which a name may have.
QRegularExpression wildcard(const QString& pattern)
{
    QString expression = QRegularExpression::escape(pattern);
    expression.replace(QLatin1String("\\*"), QLatin1String(".*")).replace(QLatin1String("\\?"), QLatin1String("."));
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::CaseInsensitiveOption);
}

std::vector<CLI_LISTED> find(const CLI_CALL& call)
{
    std::vector<CLI_LISTED> found;
    const GFPDB_SELECTION selection = cli_selection(call, std::string());
    if (!call.has(OPTION_BUILTIN)) {
        for (const GFPDB_RECORD& record : call.database.find_stored(selection))
            found.push_back({record, false});
    }
    if (call.has(OPTION_BUILTIN) || call.has(OPTION_ALL)) {
        for (const GFPDB_RECORD& record : call.database.find_builtin(selection))
            found.push_back({record, true});
    }
    const QRegularExpression filter = wildcard(gfpdb_from_utf8(call.value(OPTION_FILTER)));
    const auto is_out = [&filter](const CLI_LISTED& listed) {
        return !filter.match(gfpdb_from_utf8(listed.record.name())).hasMatch();
    };
    if (call.has(OPTION_FILTER))
        found.erase(std::remove_if(found.begin(), found.end(), is_out), found.end());
    return found;
}

std::string csv(const std::vector<CLI_LISTED>& listed, GFPDB_LIST_FOR reader)
{
    std::vector<GFPDB_RECORD> records;
    records.reserve(listed.size());
    for (const CLI_LISTED& each : listed)
        records.push_back(each.record);
    return gfpdb_write_list(records, reader);
}

} // namespace

void CLI_LIST_COMMAND::add_options(QCommandLineParser& parser) const
{
    parser.addOption({QLatin1String(OPTION_BUILTIN), QStringLiteral("Only the built-in devices.")});
    parser.addOption({QLatin1String(OPTION_ALL), QStringLiteral("Also the built-in devices.")});
    parser.addOption({QLatin1String(OPTION_FILTER), QStringLiteral("Only names that match, e.g. \"MX25*\"."),
                      QStringLiteral("wildcard")});
    cli_add_csv_options(parser, "Print the devices as comma-separated values.");
    cli_add_place_options(parser, "Only devices of this");
    cli_add_json_option(parser);
}

int CLI_LIST_COMMAND::run(const CLI_CALL& call) const
{
    const std::optional<GFPDB_LIST_FOR> reader = call.list_reader();
    if (reader && call.has(CLI_OPTION_JSON))
        return call.wrong_usage("--csv and --json cannot be used together.");
    const std::vector<CLI_LISTED> records = find(call);
    call.output.print(call.has(CLI_OPTION_JSON) ? cli_records_json(records)
                      : reader                  ? csv(records, *reader)
                                                : cli_records_table(records));
    const std::string problem = call.has(OPTION_BUILTIN) ? std::string() : call.database.get_read_problem();
    return problem.empty() ? CLI_EXIT_OK : call.database_failed(problem);
}
