// SPDX-License-Identifier: MIT
#include "commands/check_read_outs.h"

#include "cli_sfdp.h"
#include "cli_values.h"

#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_text.h"
#include "whole_file/whole_file.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <map>

namespace {

constexpr std::size_t LARGEST_LIST = std::size_t(1) << 20;

using ID = std::vector<std::uint8_t>;
using PARTS = std::vector<GFPDB_PART_COMPARISON>;

// A read-out, and the parts that it was compared with.
struct COMPARED
{
    std::string file;
    ID id;
    std::vector<std::string> warnings;
    PARTS parts;
};

struct CHECKED
{
    std::vector<COMPARED> read_outs;
    // The number of differences, and of parts that no read-out was compared with.
    std::size_t differences = 0;
    std::size_t others = 0;
    bool could_all_be_read = true;
};

// The ID in "20 BB 21 (a remark)".
ID id_of(const QString& cell)
{
    return gfpdb_device_id_bytes(gfpdb_to_utf8(cell.section(QLatin1Char('('), 0, 0).trimmed()));
}

// Adds the IDs that a table has for files. One without the two columns has none.
void add_ids(const std::string& table, std::map<QString, ID>& ids)
{
    const QStringList lines = gfpdb_from_utf8(table).split(QLatin1Char('\n'));
    const QStringList titles = lines.front().trimmed().split(QLatin1Char('\t'));
    const int file = titles.indexOf(QLatin1String("file"));
    const int id = titles.indexOf(QLatin1String("jedec_id"));
    if (file < 0 || id < 0)
        return;
    for (auto line = lines.begin() + 1; line != lines.end(); ++line) {
        const QStringList cells = line->split(QLatin1Char('\t'));
        if (cells.size() > std::max(file, id))
            ids[cells[file].trimmed()] = id_of(cells[id]);
    }
}

bool fail(const CLI_CALL& call, const QString& path, const std::string& problem)
{
    call.output.error(QFile::encodeName(path).toStdString() + ": " + problem);
    return false;
}

// False: a message was printed.
bool read_ids(const CLI_CALL& call, const QDir& folder, std::map<QString, ID>& ids)
{
    const QStringList tables = folder.entryList({QStringLiteral("*.tsv")}, QDir::Files, QDir::Name);
    for (const QString& name : tables) {
        std::string problem;
        const QString path = folder.filePath(name);
        const std::optional<std::string> table =
            read_whole_file(QFile::encodeName(path).toStdString(), LARGEST_LIST, problem);
        if (!table)
            return fail(call, path, "The file cannot be read: " + problem + '.');
        add_ids(*table, ids);
    }
    return true;
}

const GFPDB_PART* part_called(const QString& name)
{
    const std::string key = gfpdb_name_key(gfpdb_to_utf8(name));
    const std::vector<GFPDB_PART>& parts = gfpdb_catalogue_parts();
    const auto found = std::find_if(parts.begin(), parts.end(),
                                    [&key](const GFPDB_PART& part) { return gfpdb_name_key(part.name) == key; });
    return found == parts.end() ? nullptr : &*found;
}

// False: a message was printed.
bool compare(const CLI_CALL& call, const QString& path, const std::map<QString, ID>& ids, COMPARED& compared)
{
    const QFileInfo file(path);
    const std::optional<GFPDB_SFDP> sfdp = cli_read_sfdp(call, QFile::encodeName(path).toStdString());
    if (!sfdp)
        return false;
    const GFPDB_PART* const part = part_called(file.completeBaseName());
    const auto listed = ids.find(file.fileName());
    if (part != nullptr)
        compared.id.assign(part->jedec_id.begin(), part->jedec_id.end());
    else if (listed != ids.end())
        compared.id = listed->second;
    if (compared.id.empty())
        return fail(call, path, "No listed part has this name, and no table has its ID.");
    compared.file = QFile::encodeName(file.fileName()).toStdString();
    compared.warnings = sfdp->warnings;
    compared.parts = gfpdb_compare_with_catalogue(compared.id, *sfdp);
    const auto is_other = [part](const GFPDB_PART_COMPARISON& each) { return part != nullptr && each.part != part; };
    compared.parts.erase(std::remove_if(compared.parts.begin(), compared.parts.end(), is_other), compared.parts.end());
    cli_print_warnings(call, QFile::encodeName(path).toStdString(), compared.warnings);
    return true;
}

void count(CHECKED& checked)
{
    std::vector<const GFPDB_PART*> seen;
    for (const COMPARED& compared : checked.read_outs) {
        for (const GFPDB_PART_COMPARISON& each : compared.parts) {
            checked.differences += each.differences.size();
            if (std::find(seen.begin(), seen.end(), each.part) == seen.end())
                seen.push_back(each.part);
        }
    }
    checked.others = gfpdb_catalogue_parts().size() - seen.size();
}

std::string text(const CHECKED& checked)
{
    std::string text;
    for (const COMPARED& compared : checked.read_outs) {
        const std::string file = cli_printable(compared.file) + ": ";
        if (compared.parts.empty())
            text += file + "no listed part has the ID " + cli_bytes(compared.id) + '\n';
        for (const GFPDB_PART_COMPARISON& each : compared.parts) {
            text += file + cli_printable(each.part->name) + (each.differences.empty() ? ": no difference\n" : ":\n");
            for (const std::string& difference : each.differences)
                text += "  " + cli_printable(difference) + '\n';
        }
    }
    return text + cli_counted(checked.read_outs.size(), "read-out") + ", " +
           cli_counted(checked.differences, "difference") + "; no read-out of " + cli_counted(checked.others, "part") +
           '\n';
}

std::string json(const CHECKED& checked)
{
    CLI_JSON json;
    json.add_objects("read_outs", checked.read_outs, [](CLI_JSON& object, const COMPARED& compared) {
        object.add("file", compared.file);
        object.add("id", cli_bytes(compared.id));
        object.add("warnings", compared.warnings);
        cli_add_parts(object, "parts", compared.parts);
    });
    json.add_number("differences", static_cast<long long>(checked.differences));
    json.add_number("parts_without_read_out", static_cast<long long>(checked.others));
    return json.text();
}

} // namespace

int cli_check_read_outs(const CLI_CALL& call)
{
    const QString path = QFile::decodeName(QByteArray::fromStdString(call.value(CLI_OPTION_SFDP)));
    const QDir folder(path);
    const QStringList files = folder.entryList({QStringLiteral("*.bin")}, QDir::Files, QDir::Name);
    std::map<QString, ID> ids;
    if (path.isEmpty() || files.isEmpty()) {
        fail(call, path, "There are no read-outs: files *.bin.");
        return CLI_EXIT_BAD_FILE;
    }
    if (!read_ids(call, folder, ids))
        return CLI_EXIT_BAD_FILE;
    CHECKED checked;
    for (const QString& file : files) {
        COMPARED compared;
        if (compare(call, folder.filePath(file), ids, compared))
            checked.read_outs.push_back(compared);
        else
            checked.could_all_be_read = false;
    }
    count(checked);
    call.output.print(call.has(CLI_OPTION_JSON) ? json(checked) : text(checked));
    if (!checked.could_all_be_read)
        return CLI_EXIT_BAD_FILE;
    return checked.differences == 0 ? CLI_EXIT_OK : CLI_EXIT_DIFFERENT;
}
