// SPDX-License-Identifier: MIT
#include "store/sqlite/gfpdb_sqlite_sql.h"

#include "base/gfpdb_text.h"

#include <QDateTime>
#include <QSqlQuery>
#include <QSysInfo>
#include <QVariant>

#include <pwd.h>
#include <unistd.h>

namespace GFPDB_SQL {

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
static QString user_name()
{
    const QByteArray user = qgetenv("USER");
    if (!user.isEmpty())
        return QString::fromLocal8Bit(user);
    const passwd* const entry = ::getpwuid(::geteuid());
    return entry != nullptr ? QString::fromLocal8Bit(entry->pw_name) : QString::number(::geteuid());
}

QString here()
{
    return user_name() + QLatin1Char('@') + QSysInfo::machineHostName();
}

std::string text_at(const QSqlQuery& query, int column)
{
    const QByteArray bytes = query.value(column).toByteArray();
    return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

} // namespace GFPDB_SQL
