// SPDX-License-Identifier: MIT
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

struct TABLE
{
    TABLE() : rows(read_first_families(file_names(), &problem_of_first)) {}

    QString problem_of_first;
    std::vector<FAMILY_ROW> rows;
};

const TABLE& the_table()
{
    static const TABLE table;
    return table;
}

const std::vector<FAMILY_ROW>& table()
{
    return the_table().rows;
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

std::string dstr_get_problem()
{
    const QString& problem = the_table().problem_of_first;
    if (problem.isEmpty() || !qEnvironmentVariableIsSet(FILE_VARIABLE))
        return std::string();
    return QStringLiteral("%1: %2.").arg(QLatin1String(FILE_VARIABLE), problem).toStdString();
}
