// SPDX-License-Identifier: MIT
#include "commands/list_command.h"

#include "cli_find.h"
#include "cli_json.h"

#include "gfpdb/gfpdb_text.h"

#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <array>

namespace {

constexpr const char* OPTION_BUILTIN = "builtin";
constexpr const char* OPTION_ALL = "all";
constexpr const char* OPTION_FILTER = "filter";

constexpr std::size_t COLUMN_COUNT = 7;
// A name that is longer than the rules allow shifts its own line, not all others.
constexpr int COLUMN_WIDTH_MAX = 64;
using LINE = std::array<std::string, COLUMN_COUNT>;

struct LISTED
{
    GFPDB_RECORD record;
    bool is_builtin;

    const char* kind() const { return is_builtin ? "builtin" : record.is_template ? "template" : "device"; }
};

// A built-in device serves every family and scheme.
LINE line_of(const LISTED& listed)
{
    const GFPDB_ROW& row = listed.record.row;
    const bool placed = !listed.is_builtin;
    return {listed.record.name(),
            listed.kind(),
            placed ? std::to_string(row.family) : "-",
            placed ? std::to_string(row.scheme) : "-",
            row.density.empty() ? "-" : row.density,
            row.voltage.empty() ? "-" : row.voltage,
            row.device_id.empty() ? "-" : row.device_id};
}

// Two blanks at least stand behind a cell, also behind one that is too long for its column.
QString padded(const QString& cell, int width)
{
    return cell.leftJustified(std::max(width, cell.size()) + 2);
}

std::string table(const std::vector<LISTED>& records)
{
    std::vector<LINE> lines = {{"NAME", "KIND", "FAMILY", "SCHEME", "DENSITY", "VOLTAGE", "ID"}};
    for (const LISTED& record : records)
        lines.push_back(line_of(record));
    std::array<int, COLUMN_COUNT> widths = {};
    for (const LINE& line : lines) {
        for (std::size_t at = 0; at < COLUMN_COUNT; ++at)
            widths[at] = std::min(std::max(widths[at], gfpdb_from_utf8(line[at]).size()), COLUMN_WIDTH_MAX);
    }
    QString text;
    for (const LINE& line : lines) {
        for (std::size_t at = 0; at + 1 < COLUMN_COUNT; ++at)
            text += padded(gfpdb_from_utf8(cli_printable(line[at])), widths[at]);
        text += gfpdb_from_utf8(cli_printable(line.back())) + QLatin1Char('\n');
    }
    return gfpdb_to_utf8(text);
}

void add_value(CLI_JSON& json, const GFPDB_VALUE& value)
{
    if (!value.is_number)
        json.add(value.key, value.text);
    else if (value.text.empty())
        json.add_null(value.key);
    else
        json.add_number(value.key, std::stoll(value.text));
}

std::string json(const std::vector<LISTED>& records)
{
    CLI_JSON json;
    json.begin_list();
    for (const LISTED& listed : records) {
        json.begin_object();
        json.add("name", listed.record.name());
        json.add("kind", listed.kind());
        for (GFPDB_VALUE& value : gfpdb_values(listed.record)) {
            if (listed.is_builtin && value.property == GFPDB_NO_PROPERTY)
                value.text.clear();
            if (value.property != GFPDB_FLASH_NAME && value.property != GFPDB_FLASH_TEMPLATE_NAME)
                add_value(json, value);
        }
        json.end_object();
    }
    json.end_list();
    return json.text();
}

// Qt's own wildcards are for paths: their star ends at a slash, which a name may have.
QRegularExpression wildcard(const QString& pattern)
{
    QString expression = QRegularExpression::escape(pattern);
    expression.replace(QLatin1String("\\*"), QLatin1String(".*")).replace(QLatin1String("\\?"), QLatin1String("."));
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::CaseInsensitiveOption);
}

std::vector<LISTED> find(const CLI_CALL& call)
{
    std::vector<LISTED> found;
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
    const auto is_out = [&filter](const LISTED& listed) {
        return !filter.match(gfpdb_from_utf8(listed.record.name())).hasMatch();
    };
    if (call.has(OPTION_FILTER))
        found.erase(std::remove_if(found.begin(), found.end(), is_out), found.end());
    return found;
}

std::string csv(const std::vector<LISTED>& listed, GFPDB_LIST_FOR reader)
{
    std::vector<GFPDB_RECORD> records;
    records.reserve(listed.size());
    for (const LISTED& each : listed)
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
    const std::vector<LISTED> records = find(call);
    call.output.print(call.has(CLI_OPTION_JSON) ? json(records) : reader ? csv(records, *reader) : table(records));
    const std::string problem = call.has(OPTION_BUILTIN) ? std::string() : call.database.get_read_problem();
    return problem.empty() ? CLI_EXIT_OK : call.database_failed(problem);
}
