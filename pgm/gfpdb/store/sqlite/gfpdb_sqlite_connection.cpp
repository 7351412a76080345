// SPDX-License-Identifier: MIT
#include "store/sqlite/gfpdb_sqlite_connection.h"

#include "base/gfpdb_looking.h"
#include "base/gfpdb_settings.h"
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "store/sqlite/gfpdb_sqlite_companions.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <chrono>

namespace {

constexpr int DEFAULT_BUSY_TIMEOUT_MS = 5000;
// A user action makes many calls, and must not wait for a lock at each of them: who has waited for a database in vain
// tries it without waiting until this time has passed.
constexpr std::chrono::seconds PAUSE(2);

// Result codes of SQLite.
constexpr int SQLITE_CODE_MASK = 0xFF;
constexpr int SQLITE_CODE_BUSY = 5;
constexpr int SQLITE_CODE_READONLY = 8;
constexpr int SQLITE_CODE_CORRUPT = 11;
constexpr int SQLITE_CODE_FULL = 13;
constexpr int SQLITE_CODE_NOT_A_DATABASE = 26;

int next_number()
{
    static int last_number = 0;
    return ++last_number;
}

int busy_timeout()
{
    if (gfpdb_only_looks())
        return 0;
    bool is_number = false;
    const int timeout = QByteArray::fromStdString(gfpdb_read_setting(GFPDB_SETTING_BUSY_TIMEOUT)).toInt(&is_number);
    return is_number && timeout >= 0 ? timeout : DEFAULT_BUSY_TIMEOUT_MS;
}

// The file that was last waited for in vain, by whatever store, and until when it is not waited for again.
struct VAIN_WAIT
{
    std::string file;
    std::chrono::steady_clock::time_point until;
};

VAIN_WAIT& vain_wait()
{
    static VAIN_WAIT wait;
    return wait;
}

bool is_in_vain(const std::string& file)
{
    return vain_wait().file == file && std::chrono::steady_clock::now() < vain_wait().until;
}

// SQLite's form of a file name in which every byte of a path can be written.
QString uri_of(const std::string& path, GFPDB_SQLITE_CONNECTION::MODE mode)
{
    const QByteArray encoded = QByteArray::fromStdString(path).toPercentEncoding(QByteArrayLiteral("/"));
    const bool is_writable = mode == GFPDB_SQLITE_CONNECTION::MODE::READ_WRITE;
    return QLatin1String("file:") + QLatin1String(encoded) + QLatin1String(is_writable ? "?mode=rw" : "?mode=ro");
}

int code_of(const QSqlError& error)
{
    return error.nativeErrorCode().toInt() & SQLITE_CODE_MASK;
}

std::string describe(const QSqlError& error, const std::string& path)
{
    const std::string words = gfpdb_to_utf8(error.databaseText());
    switch (code_of(error)) {
    case SQLITE_CODE_BUSY:
        return GFPDB_WORDS::say("The database %1 is locked by another program (%2).", {path, words});
    case SQLITE_CODE_READONLY:
        return GFPDB_WORDS::say("The database %1 cannot be written (%2).", {path, words});
    case SQLITE_CODE_CORRUPT:
        return GFPDB_WORDS::say("The database %1 is damaged (%2). It is left as it is.", {path, words});
    case SQLITE_CODE_FULL:
        return GFPDB_WORDS::say("There is no room for the database %1 (%2).", {path, words});
    case SQLITE_CODE_NOT_A_DATABASE:
        return GFPDB_WORDS::say("The file %1 is not a database (%2). It is left as it is.", {path, words});
    default:
        return GFPDB_WORDS::say("The database %1 cannot be used: %2 (%3).",
                                {path, gfpdb_to_utf8(error.driverText()), words});
    }
}

} // namespace

GFPDB_SQLITE_CONNECTION::GFPDB_SQLITE_CONNECTION(const std::string& path) : m_path(path), m_number(next_number()) {}

GFPDB_SQLITE_CONNECTION::~GFPDB_SQLITE_CONNECTION()
{
    close();
}

QString GFPDB_SQLITE_CONNECTION::name() const
{
    return QStringLiteral("gfpdb %1 %2").arg(m_number).arg(gfpdb_from_utf8(m_path));
}

// Looked up again for every use: Qt closes all connections when the application object goes.
QSqlDatabase GFPDB_SQLITE_CONNECTION::database() const
{
    return QSqlDatabase::database(name(), false);
}

// What a change writes stays in memory until its end: else SQLite would begin to write a large one into the file before
// that, and lock out all readers until it is done.
bool GFPDB_SQLITE_CONNECTION::open(const std::string& file, MODE mode)
{
    m_mode = mode;
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name());
    if (!connection.isValid())
        return fail(GFPDB_WORDS::say("The SQLite driver of Qt is not installed."));
    connection.setDatabaseName(uri_of(file, mode));
    m_busy_timeout_ms = busy_timeout();
    m_wait_ms = is_in_vain(m_path) ? 0 : m_busy_timeout_ms;
    connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1").arg(m_wait_ms));
    return (connection.open() || fail(connection.lastError())) && run("PRAGMA synchronous = FULL") &&
           run("PRAGMA trusted_schema = OFF") && run("PRAGMA cell_size_check = ON") && run("PRAGMA cache_spill = OFF");
}

void GFPDB_SQLITE_CONNECTION::close()
{
    m_is_locked = false;
    m_is_stale = false;
    if (is_open())
        QSqlDatabase::removeDatabase(name());
}

bool GFPDB_SQLITE_CONNECTION::is_open() const
{
    return QSqlDatabase::contains(name());
}

void GFPDB_SQLITE_CONNECTION::limit_wait()
{
    const int wait_ms = is_in_vain(m_path) ? 0 : m_busy_timeout_ms;
    if (wait_ms != m_wait_ms && QSqlQuery(database()).exec(QStringLiteral("PRAGMA busy_timeout = %1").arg(wait_ms)))
        m_wait_ms = wait_ms;
}

bool GFPDB_SQLITE_CONNECTION::prepare(QSqlQuery& query, const std::string& statement, const QVariantList& values)
{
    query = QSqlQuery(database());
    query.setForwardOnly(true);
    if (!query.prepare(QString::fromStdString(statement)))
        return fail(query.lastError());
    for (const QVariant& value : values)
        query.addBindValue(value);
    return true;
}

bool GFPDB_SQLITE_CONNECTION::run(QSqlQuery& query)
{
    return query.exec() || fail(query.lastError());
}

bool GFPDB_SQLITE_CONNECTION::run(const char* statement)
{
    QSqlQuery query(database());
    return query.exec(QLatin1String(statement)) || fail(query.lastError());
}

bool GFPDB_SQLITE_CONNECTION::fail(const std::string& error)
{
    m_last_error = error;
    return false;
}

bool GFPDB_SQLITE_CONNECTION::fail(const QSqlError& error)
{
    m_is_locked = code_of(error) == SQLITE_CODE_BUSY;
    if (m_is_locked && m_wait_ms > 0) {
        vain_wait() = {m_path, std::chrono::steady_clock::now() + PAUSE};
        limit_wait();
    }
    const bool is_refused = code_of(error) == SQLITE_CODE_READONLY;
    if (is_refused && m_mode == MODE::READ_ONLY && !gfpdb_left_file(m_path).empty())
        return fail(
            GFPDB_WORDS::say("The database %1 was left in the middle of a change by a program that ended there. It "
                             "can be read again when someone who can write it has opened it once.",
                             {m_path}));
    m_is_stale = m_is_stale || (is_refused && m_mode == MODE::READ_WRITE);
    return fail(describe(error, m_path));
}
