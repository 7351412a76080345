// SPDX-License-Identifier: MIT
#include "new_device/new_device_draft.h"

#include "new_device/device_storage.h"
#include "run/chosen_device.h"

#include <utility>

namespace {

const QString NAME_KEY = QStringLiteral("name");
const QString ID_KEY = QStringLiteral("id");

QString text_of(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

QStringList texts_of(const std::vector<std::string>& utf8)
{
    QStringList texts;
    for (const std::string& each : utf8)
        texts.append(text_of(each));
    return texts;
}

// Titles and sources of values, in the catalogue of the library.
QString shown(const std::string& english)
{
    return english.empty() ? QString() : QCoreApplication::translate("gfpdb", english.c_str());
}

std::optional<GFPDB_SFDP> tables_of(const std::vector<std::uint8_t>& bytes, QString& problem)
{
    if (bytes.empty())
        return std::nullopt;
    std::string text;
    std::optional<GFPDB_SFDP> tables = gfpdb_read_sfdp(bytes, text);
    if (!tables)
        problem = text_of(text);
    return tables;
}

} // namespace

NEW_DEVICE_DRAFT::NEW_DEVICE_DRAFT(const std::vector<std::uint8_t>& id, std::vector<std::uint8_t> sfdp, int family,
                                   int scheme)
    : m_id(id), m_sfdp_bytes(std::move(sfdp)), m_sfdp(tables_of(m_sfdp_bytes, m_sfdp_problem)),
      m_device(id, m_sfdp ? &*m_sfdp : nullptr), m_family(family), m_scheme(scheme)
{
    read_again();
    compare();
}

QString NEW_DEVICE_DRAFT::origin() const
{
    QStringList parts;
    if (!m_id.empty())
        parts.append(tr("ID %1").arg(id_text(m_id)));
    if (m_sfdp)
        parts.append(QStringLiteral("SFDP %1.%2").arg(m_sfdp->major).arg(m_sfdp->minor));
    return parts.join(QLatin1String(", "));
}

void NEW_DEVICE_DRAFT::set_place(int family, int scheme)
{
    m_family = family;
    m_scheme = scheme;
    check_name();
    read_again();
}

void NEW_DEVICE_DRAFT::set_value(const QString& key, const QString& text)
{
    std::string problem;
    m_refused.remove(key);
    if (!m_device.set_value(key.toStdString(), text.toStdString(), problem))
        m_refused.insert(key, {text, text_of(problem)});
    if (key == NAME_KEY)
        check_name();
    read_again();
    if (key == ID_KEY)
        compare();
}

// The database has a say in names, by family and mode.
void NEW_DEVICE_DRAFT::check_name()
{
    m_name_problem.clear();
    for (const GFPDB_PROPOSED_VALUE& value : m_device.get_values()) {
        if (text_of(value.key) == NAME_KEY && !value.text.empty())
            is_free_name(value.text, m_family, m_scheme, m_name_problem);
    }
}

void NEW_DEVICE_DRAFT::read_again()
{
    m_rows.clear();
    for (const GFPDB_PROPOSED_VALUE& value : m_device.get_values()) {
        DRAFT_ROW row = {text_of(value.key),  shown(value.title),      text_of(value.text),
                         shown(value.source), texts_of(value.choices), QString()};
        if (row.key == NAME_KEY)
            row.problem = m_name_problem;
        const auto refused = m_refused.constFind(row.key);
        if (refused != m_refused.constEnd()) {
            std::tie(row.text, row.problem) = std::pair(refused->first, refused->second);
            row.source.clear();
        }
        m_rows.push_back(row);
    }
    m_warnings = texts_of(m_device.get_warnings());
    if (!m_sfdp_problem.isEmpty())
        m_warnings.prepend(m_sfdp_problem);
}

void NEW_DEVICE_DRAFT::compare()
{
    std::vector<std::uint8_t> id = m_id;
    for (const DRAFT_ROW& row : m_rows) {
        if (row.key == ID_KEY && row.problem.isEmpty())
            id = gfpdb_device_id_bytes(row.text.toStdString());
    }
    m_listed_parts.clear();
    for (const GFPDB_PART_COMPARISON& compared : gfpdb_compare_with_catalogue(id, m_sfdp.value_or(GFPDB_SFDP())))
        m_listed_parts.push_back({text_of(compared.part->name), texts_of(compared.differences)});
}

int NEW_DEVICE_DRAFT::first_wrong_row() const
{
    int missing = -1;
    for (int row = 0; row < static_cast<int>(m_rows.size()); ++row) {
        const DRAFT_ROW& each = m_rows[static_cast<std::size_t>(row)];
        if (!each.problem.isEmpty())
            return row;
        if (missing < 0 && each.text.isEmpty())
            missing = row;
    }
    return missing;
}

std::optional<GFPDB_RECORD> NEW_DEVICE_DRAFT::make(QString& problem) const
{
    for (const DRAFT_ROW& row : m_rows) {
        if (!row.problem.isEmpty()) {
            problem = QStringLiteral("%1: %2").arg(row.title, row.problem);
            return std::nullopt;
        }
    }
    std::string text;
    std::optional<GFPDB_RECORD> record = m_device.make_record(m_family, m_scheme, text);
    problem = text_of(text);
    return record;
}
