// SPDX-License-Identifier: MIT

// Watches a database from outside: nothing that was ever stored is lost.
#pragma once

#include <QSet>
#include <QString>

// Reads the database of one directory through a connection of its own. Every state of a record has a revision; one that
// was seen once must be a current record, a stored template or in the history ever after.
class DATABASE_WATCH
{
public:
    // `directory` ends in "/".
    explicit DATABASE_WATCH(const QString& directory);
    ~DATABASE_WATCH();
    DATABASE_WATCH(const DATABASE_WATCH&) = delete;
    DATABASE_WATCH& operator=(const DATABASE_WATCH&) = delete;

    // What is wrong; empty when nothing is. Costs little when nothing was stored since the last call.
    QString problem();
    // What SQLite's own check of the whole file says is wrong.
    QString integrity_problem();
    // States of records that were stored so far, and how often something was stored.
    int stored_states() const { return m_seen.size(); }

private:
    bool open();
    QSet<QString> read_revisions() const;
    QString value_of(const QString& statement) const;

    QString m_directory;
    QString m_connection;
    QString m_data_version;
    QSet<QString> m_seen;
};
