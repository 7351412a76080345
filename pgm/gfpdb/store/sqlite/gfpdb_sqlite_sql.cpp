// SPDX-License-Identifier: MIT
#include "store/sqlite/gfpdb_sqlite_sql.h"

#include "base/gfpdb_text.h"
#include "model/gfpdb_field.h"

#include <QDateTime>
#include <QSqlQuery>
#include <QSysInfo>

#include <pwd.h>
#include <unistd.h>

namespace {

// What is stored beside the fields.
constexpr char STAMP[] = "revision, saved_at, saved_by";
constexpr char STAMP_BEFORE_SAVED_BY[] = "revision, saved_at, ''";
constexpr int STAMP_COLUMNS = 3;

template <typename VALUE>
void read(const QSqlQuery& query, int column, VALUE& value)
{
    if constexpr (std::is_same_v<VALUE, std::string>)
        value = GFPDB_SQL::text_at(query, column);
    else if (!query.isNull(column))
        value = query.value(column).toInt();
}

std::string selection(int schema, bool with_flows)
{
    std::string selected = schema < GFPDB_SAVED_BY_SCHEMA ? STAMP_BEFORE_SAVED_BY : STAMP;
    for (const std::string& key : gfpdb_field_keys(with_flows))
        selected += gfpdb_field(key)->is_text() ? ", CAST(" + key + " AS BLOB)" : ", " + key;
    return selected;
}

GFPDB_ROW record_at(const QSqlQuery& query, int first, bool with_flows)
{
    GFPDB_ROW row;
    row.revision = GFPDB_SQL::text_at(query, first);
    row.saved_at = GFPDB_SQL::text_at(query, first + 1);
    row.saved_by = GFPDB_SQL::text_at(query, first + 2);
    int column = first + STAMP_COLUMNS;
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        if (with_flows || field.kind != GFPDB_FIELD_KIND::FLOWS)
            field.in(row, [&query, at = column++](auto& value) { read(query, at, value); });
    }
    return row;
}

// What insertion() asks for behind the key.
std::string placeholders()
{
    std::string marks;
    for (const GFPDB_FIELD& field : gfpdb_fields())
        marks += field.is_text() ? ", CAST(? AS TEXT)" : ", ?";
    return marks + ", ?, ?, ?)";
}

QVariantList field_values(const GFPDB_ROW& row)
{
    QVariantList values;
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        const QByteArray bytes = GFPDB_SQL::bytes_of(field.text(row));
        values << (field.is_text() ? QVariant(bytes) : bytes.isEmpty() ? QVariant(QVariant::Int) : bytes.toInt());
    }
    return values;
}

} // namespace

namespace GFPDB_SQL {

const std::string& columns()
{
    static const std::string COLUMNS = gfpdb_joined(gfpdb_field_keys(true)) + ", " + STAMP;
    return COLUMNS;
}

std::string from(const GFPDB_RECORD_PLACE& place)
{
    return place.is_template ? " FROM template WHERE template_key = CAST(? AS TEXT)"
                             : " FROM device WHERE family = ? AND scheme = ? AND name_key = CAST(? AS TEXT)";
}

QVariantList values_of(const GFPDB_RECORD_PLACE& place)
{
    const QVariantList key = {key_of(place.name)};
    return place.is_template ? key : QVariantList{place.family, place.scheme} + key;
}

std::string insertion(bool is_template)
{
    return std::string("INSERT INTO ") + (is_template ? "template (template_key, " : "device (name_key, ") + columns() +
           ") VALUES (CAST(? AS TEXT)" + placeholders();
}

std::string history_insertion()
{
    return "INSERT INTO history (id, is_template, reason, changed_at, changed_by, name_key, " + columns() +
           ") VALUES (?, ?, ?, ?, ?, CAST(? AS TEXT)" + placeholders();
}

QVariantList values_of(const GFPDB_ROW& row)
{
    return field_values(row) << gfpdb_from_utf8(row.revision) << now() << here();
}

QVariantList values_as_they_are(const GFPDB_ROW& row)
{
    return field_values(row) << gfpdb_from_utf8(row.revision) << gfpdb_from_utf8(row.saved_at)
                             << gfpdb_from_utf8(row.saved_by);
}

std::string scalars_read(int schema)
{
    return selection(schema, false);
}

std::string all_read(int schema)
{
    return selection(schema, true);
}

GFPDB_ROW scalars_at(const QSqlQuery& query, int first)
{
    return record_at(query, first, false);
}

GFPDB_ROW row_at(const QSqlQuery& query, int first)
{
    return record_at(query, first, true);
}

QByteArray bytes_of(const std::string& text)
{
    return QByteArray(text.data(), static_cast<int>(text.size()));
}

QByteArray key_of(const std::string& name)
{
    return bytes_of(gfpdb_name_key(name));
}

QString now()
{
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
}

// Services and containers often start programs without USER.
static QByteArray user_name()
{
    QByteArray user = qgetenv("USER");
    if (!user.isEmpty())
        return user;
    const passwd* const entry = ::getpwuid(::geteuid());
    return entry != nullptr ? QByteArray(entry->pw_name) : QByteArray::number(::geteuid());
}

QString here()
{
    return gfpdb_from_utf8(user_name().toStdString()) + QLatin1Char('@') + QSysInfo::machineHostName();
}

std::string text_at(const QSqlQuery& query, int column)
{
    const QByteArray bytes = query.value(column).toByteArray();
    return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

} // namespace GFPDB_SQL
