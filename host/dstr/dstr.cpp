#include "dstr/dstr.h"

#include "family_file.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

namespace {

constexpr const char* FILE_VARIABLE = "GFPQ_FAMILIES";

std::vector<QString> file_names()
{
    std::vector<QString> names;
    if (qEnvironmentVariableIsSet(FILE_VARIABLE))
        names.push_back(QFile::decodeName(qgetenv(FILE_VARIABLE)));
    if (QCoreApplication::instance()) {
        const QString installed = QCoreApplication::applicationDirPath() + QLatin1String("/../share/gfpq/families.csv");
        if (QFile::exists(installed))
            names.push_back(installed);
    }
    names.push_back(QStringLiteral(":/dstr/families.csv"));
    return names;
}

const std::vector<FAMILY_ROW>& table()
{
    static const std::vector<FAMILY_ROW> rows = read_first_families(file_names());
    return rows;
}

// Null when the table does not have `family`.
const FAMILY_ROW* find(int family)
{
    const auto has_value = [family](const FAMILY_ROW& row) { return row.value == family; };
    const auto row = std::find_if(table().begin(), table().end(), has_value);
    return row == table().end() ? nullptr : &*row;
}

} // namespace

std::string dstr_get_user_string(int family)
{
    const FAMILY_ROW* row = find(family);
    return row ? row->name : "Unknown family (" + std::to_string(family) + ")";
}

std::vector<int> dstr_get_families()
{
    std::vector<int> families;
    for (const FAMILY_ROW& row : table())
        families.push_back(row.value);
    return families;
}

std::vector<int> dstr_get_config_schemes(int family)
{
    const FAMILY_ROW* row = find(family);
    return row ? row->schemes : std::vector<int>();
}
