// SPDX-License-Identifier: MIT
#include "database_watch.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

DATABASE_WATCH::DATABASE_WATCH(const QString& directory)
    : m_directory(directory), m_connection(QLatin1String("watch ") + directory)
{}

DATABASE_WATCH::~DATABASE_WATCH()
{
    QSqlDatabase::removeDatabase(m_connection);
}

bool DATABASE_WATCH::open()
{
    if (QSqlDatabase::contains(m_connection))
        return true;
    const QString file = m_directory + QLatin1String("gfpdb.sqlite");
    if (!QFile::exists(file))
        return false;
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    database.setDatabaseName(file);
    database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    return database.open();
}

QString DATABASE_WATCH::value_of(const QString& statement) const
{
    QSqlQuery query(QSqlDatabase::database(m_connection));
    return query.exec(statement) && query.next() ? query.value(0).toString() : query.lastError().text();
}

QSet<QString> DATABASE_WATCH::read_revisions() const
{
    QSet<QString> revisions;
    QSqlQuery query(QSqlDatabase::database(m_connection));
    query.setForwardOnly(true);
    query.exec(QStringLiteral(
        "SELECT revision FROM device UNION SELECT revision FROM template UNION SELECT revision FROM history"));
    while (query.next())
        revisions.insert(query.value(0).toString());
    return revisions;
}

QString DATABASE_WATCH::problem()
{
    if (!open())
        return m_seen.isEmpty() ? QString() : QStringLiteral("the database is gone");
    const QString data_version = value_of(QStringLiteral("PRAGMA data_version"));
    if (data_version == m_data_version)
        return QString();
    m_data_version = data_version;

    const QSet<QString> revisions = read_revisions();
    const QSet<QString> lost = m_seen - revisions;
    m_seen = revisions;
    if (!lost.isEmpty())
        return QStringLiteral("%1 stored states are lost").arg(lost.size());
    const QString shared =
        value_of(QStringLiteral("SELECT count(*) FROM device JOIN template ON name_key = template_key"));
    return shared == QLatin1String("0") ? QString() : QStringLiteral("a device and a template share a name: ") + shared;
}

QString DATABASE_WATCH::integrity_problem()
{
    if (!open())
        return QString();
    const QString result = value_of(QStringLiteral("PRAGMA integrity_check"));
    return result == QLatin1String("ok") ? QString() : result;
}
