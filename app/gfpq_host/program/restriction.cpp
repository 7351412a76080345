// SPDX-License-Identifier: MIT
#include "program/restriction.h"

#include "gfpdb/gfpdb_enums.h"

#include <QStringList>

namespace {

constexpr int LAST_SCHEME = PGMIO_CONFIG_SCHEME_COUNT - 1;

std::optional<int> number_between(const QString& text, int first, int last)
{
    bool is_number = false;
    const int number = text.trimmed().toInt(&is_number);
    if (!is_number || number < first || number > last)
        return std::nullopt;
    return number;
}

// Null when one of the words is not a scheme.
std::optional<std::vector<int>> parse_schemes(const QString& text)
{
    std::vector<int> schemes;
    if (text.trimmed().isEmpty())
        return schemes;
    const QStringList words = text.split(QLatin1Char(','));
    for (const QString& word : words) {
        const std::optional<int> scheme = number_between(word, 0, LAST_SCHEME);
        if (!scheme)
            return std::nullopt;
        schemes.push_back(*scheme);
    }
    return schemes;
}

// Adds what `entry` says to `restriction`; else the text says what is wrong.
QString add_entry(const QString& entry, RESTRICTION& restriction)
{
    const int colon = entry.indexOf(QLatin1Char(':'));
    if (colon < 0)
        return QStringLiteral("\"%1\" is not FAMILY:SCHEMES").arg(entry);
    const std::optional<int> family = number_between(entry.left(colon), DEV_FAMILY_FIRST, DEV_FAMILY_LAST);
    if (!family)
        return QStringLiteral("\"%1\" does not start with a family number from %2 to %3")
            .arg(entry, QString::number(DEV_FAMILY_FIRST), QString::number(DEV_FAMILY_LAST));
    const std::optional<std::vector<int>> schemes = parse_schemes(entry.mid(colon + 1));
    if (!schemes)
        return QStringLiteral("\"%1\" has a scheme that is not a number from 0 to %2")
            .arg(entry, QString::number(LAST_SCHEME));
    if (!restriction.emplace(*family, *schemes).second)
        return QStringLiteral("family %1 occurs twice").arg(*family);
    return QString();
}

} // namespace

std::optional<RESTRICTION> parse_restriction(const QString& text, QString& problem)
{
    RESTRICTION restriction;
    const QStringList entries = text.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& entry : entries) {
        problem = add_entry(entry, restriction);
        if (!problem.isEmpty())
            return std::nullopt;
    }
    if (restriction.empty()) {
        problem = QStringLiteral("\"%1\" names no family").arg(text);
        return std::nullopt;
    }
    return restriction;
}
