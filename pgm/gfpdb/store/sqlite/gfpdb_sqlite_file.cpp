// SPDX-License-Identifier: MIT

// The part of GFPDB_SQLITE_STORE that deals with the database file: opening, making, locking. The schema is in
// gfpdb_sqlite_schema.cpp, the records are in gfpdb_sqlite_store.cpp.
#include "store/sqlite/gfpdb_sqlite_store.h"

#include "base/gfpdb_log.h"
#include "base/gfpdb_settings.h"
#include "base/gfpdb_text.h"
#include "store/sqlite/gfpdb_journal.h"

#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QUuid>
#include <QVariant>

#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

const char GFPDB_SQLITE_STORE::FILE_NAME[] = "gfpdb.sqlite";

namespace {

constexpr int DEFAULT_BUSY_TIMEOUT_MS = 5000;
// A user action makes many calls, and must not wait for a lock at each of them: who has waited for a database in vain
// tries it without waiting until this time has passed.
constexpr std::chrono::seconds PAUSE(2);

constexpr char JOURNAL_SUFFIX[] = "-journal";
constexpr char WAL_SUFFIX[] = "-wal";

// SQLite's smallest page. It would take a file of less than a header for one that was not written yet.
constexpr off_t SMALLEST_FILE = 512;

// Result codes of SQLite.
constexpr int SQLITE_CODE_MASK = 0xFF;
constexpr int SQLITE_CODE_BUSY = 5;
constexpr int SQLITE_CODE_READONLY = 8;
constexpr int SQLITE_CODE_CORRUPT = 11;
constexpr int SQLITE_CODE_FULL = 13;
constexpr int SQLITE_CODE_NOT_A_DATABASE = 26;

int next_connection()
{
    static int last_connection = 0;
    return ++last_connection;
}

int busy_timeout()
{
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
QString uri_of(const std::string& path, const char* mode)
{
    const QByteArray encoded = QByteArray::fromStdString(path).toPercentEncoding(QByteArrayLiteral("/"));
    return QLatin1String("file:") + QLatin1String(encoded) + QLatin1String("?mode=") + QLatin1String(mode);
}

int code_of(const QSqlError& error)
{
    return error.nativeErrorCode().toInt() & SQLITE_CODE_MASK;
}

std::string describe(const QSqlError& error, const std::string& path)
{
    const std::string words = " (" + gfpdb_to_utf8(error.databaseText()) + ").";
    switch (code_of(error)) {
    case SQLITE_CODE_BUSY:
        return "The database " + path + " is locked by another program" + words;
    case SQLITE_CODE_READONLY:
        return "The database " + path + " cannot be written" + words;
    case SQLITE_CODE_CORRUPT:
        return "The database " + path + " is damaged" + words + " It is left as it is.";
    case SQLITE_CODE_FULL:
        return "There is no room for the database " + path + words;
    case SQLITE_CODE_NOT_A_DATABASE:
        return "The file " + path + " is not a database" + words + " It is left as it is.";
    default:
        return "The database " + path + " cannot be used: " + gfpdb_to_utf8(error.driverText()) + words;
    }
}

// Gives the finished file at `from` the name `to`, unless that exists: then someone else was faster, which is as good.
bool publish(const std::string& from, const std::string& to)
{
    if (::link(from.c_str(), to.c_str()) == 0 || errno == EEXIST)
        return true;
    return ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0 || errno == EEXIST;
}

// SQLite's own rights for a new file, less what the user's mask takes away: its owner may write it.
constexpr mode_t NEW_FILE_MODE = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;

// Where a group may write into the directory, and the file is that group's, the group may write the file as well.
// SQLite gives its journals the rights of the file.
void share_with_group(int file, const struct stat& status, const std::string& directory)
{
    struct stat shared = {};
    if (::stat(directory.c_str(), &shared) == 0 && (shared.st_mode & S_IWGRP) != 0 && shared.st_gid == status.st_gid)
        ::fchmod(file, (status.st_mode & (S_IRWXU | S_IRWXO)) | S_IRGRP | S_IWGRP);
}

// Makes an empty file at `path`, where nothing is. Its rights are set while it is open: who may write into the
// directory can give its name to another file at any time.
bool make_empty_file(const std::string& path, const std::string& directory, struct stat& status)
{
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, NEW_FILE_MODE);
    if (file < 0)
        return false;
    const bool is_made = ::fstat(file, &status) == 0;
    share_with_group(file, status, directory);
    ::close(file);
    return is_made;
}

std::string real_path_of(const std::string& path)
{
    const std::unique_ptr<char, decltype(&std::free)> real_path(::realpath(path.c_str(), nullptr), &std::free);
    return real_path ? real_path.get() : path;
}

// The first file beside the database in `path` that SQLite would take for a part of it; empty when there is none.
std::string left_file(const std::string& path)
{
    for (const char* suffix : {JOURNAL_SUFFIX, WAL_SUFFIX}) {
        struct stat status = {};
        if (::lstat((path + suffix).c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0)
            return path + suffix;
    }
    return std::string();
}

// True when a program that ended may have left a journal that must be rolled back into the database in `path`.
bool has_left_journal(const std::string& path)
{
    return !left_file(real_path_of(path)).empty();
}

// What the link in `path` points at, as it says.
std::string target_of(const std::string& path)
{
    std::string target(PATH_MAX, '\0');
    const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
    target.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return target;
}

int new_mark()
{
    return QRandomGenerator::system()->bounded(1, std::numeric_limits<int>::max());
}

// True while `path` is the name of the file with that status, and not of a link to it.
bool is_file(const std::string& path, const struct stat& status)
{
    struct stat now = {};
    return ::lstat(path.c_str(), &now) == 0 && now.st_dev == status.st_dev && now.st_ino == status.st_ino;
}

void sync_directory(const std::string& directory)
{
    const int descriptor = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

} // namespace

GFPDB_SQLITE_STORE::GFPDB_SQLITE_STORE(const std::string& directory)
    : m_directory(directory), m_connection(next_connection())
{}

GFPDB_SQLITE_STORE::~GFPDB_SQLITE_STORE()
{
    close();
}

std::string GFPDB_SQLITE_STORE::file_path() const
{
    return m_directory + FILE_NAME;
}

QString GFPDB_SQLITE_STORE::connection_name() const
{
    return QStringLiteral("gfpdb %1 %2").arg(m_connection).arg(gfpdb_from_utf8(m_directory));
}

// Looked up anew for every use: Qt closes all connections when the application object goes.
QSqlDatabase GFPDB_SQLITE_STORE::database() const
{
    return QSqlDatabase::database(connection_name(), false);
}

void GFPDB_SQLITE_STORE::reload()
{
    m_state = STATE::CLOSED;
    m_was_replaced = false;
    m_problem.clear();
}

bool GFPDB_SQLITE_STORE::is_readable()
{
    refresh();
    return m_state != STATE::UNUSABLE;
}

bool GFPDB_SQLITE_STORE::is_writable()
{
    refresh();
    return m_state == STATE::NO_FILE || m_state == STATE::READ_WRITE;
}

bool GFPDB_SQLITE_STORE::is_read_only()
{
    refresh();
    return m_state == STATE::READ_ONLY;
}

std::string GFPDB_SQLITE_STORE::get_problem()
{
    refresh();
    return m_problem.empty() ? m_read_problem : m_problem;
}

void GFPDB_SQLITE_STORE::close()
{
    m_database_id.clear();
    if (QSqlDatabase::contains(connection_name()))
        QSqlDatabase::removeDatabase(connection_name());
}

void GFPDB_SQLITE_STORE::set_problem(STATE state, const std::string& problem)
{
    m_state = state;
    if (problem != m_problem && !problem.empty())
        qCWarning(GFPDB_LOG, "%s", problem.c_str());
    m_problem = problem;
}

bool GFPDB_SQLITE_STORE::fail(const std::string& error)
{
    m_last_error = error;
    return false;
}

bool GFPDB_SQLITE_STORE::fail(const QSqlError& error)
{
    m_is_locked = code_of(error) == SQLITE_CODE_BUSY;
    if (m_is_locked && m_wait_ms > 0) {
        vain_wait() = {file_path(), std::chrono::steady_clock::now() + PAUSE};
        limit_wait();
    }
    // SQLite opens a file for reading when it could not be opened for writing, and stays with that.
    if (code_of(error) == SQLITE_CODE_READONLY && m_state == STATE::READ_WRITE)
        m_state = STATE::CLOSED;
    if (code_of(error) == SQLITE_CODE_READONLY && m_state != STATE::READ_WRITE && has_left_journal(file_path()))
        return fail("The database " + file_path() + " was left in the middle of a change by a program that ended " +
                    "there. It can be read again when someone who can write it has opened it once.");
    return fail(describe(error, file_path()));
}

// Sets how long the connection waits for a lock now.
void GFPDB_SQLITE_STORE::limit_wait()
{
    const int wait_ms = is_in_vain(file_path()) ? 0 : m_busy_timeout_ms;
    if (wait_ms != m_wait_ms && QSqlQuery(database()).exec(QStringLiteral("PRAGMA busy_timeout = %1").arg(wait_ms)))
        m_wait_ms = wait_ms;
}

bool GFPDB_SQLITE_STORE::prepare(QSqlQuery& query, const std::string& statement, const QVariantList& values)
{
    query = QSqlQuery(database());
    query.setForwardOnly(true);
    if (!query.prepare(QString::fromStdString(statement)))
        return fail(query.lastError());
    for (const QVariant& value : values)
        query.addBindValue(value);
    return true;
}

bool GFPDB_SQLITE_STORE::run(QSqlQuery& query)
{
    return query.exec() || fail(query.lastError());
}

bool GFPDB_SQLITE_STORE::run(const char* statement)
{
    QSqlQuery query(database());
    return query.exec(QLatin1String(statement)) || fail(query.lastError());
}

void GFPDB_SQLITE_STORE::open()
{
    close();
    m_state = STATE::CLOSED;
    forget_used_values();
    m_read_problem.clear();
    m_is_locked = false;
    if (!examine_directory() || !examine_file() || !has_own_companions())
        return;
    const bool writable = ::access(m_directory.c_str(), W_OK) == 0 && ::access(file_path().c_str(), W_OK) == 0;
    const std::string why = std::strerror(errno);
    const bool is_open = connect(file_path(), writable ? "rw" : "ro") && read_schema() && (!writable || upgrade());
    if (!is_open) {
        close();
        set_problem(STATE::UNUSABLE, m_last_error);
    } else if (writable) {
        set_problem(STATE::READ_WRITE, std::string());
    } else {
        set_problem(STATE::READ_ONLY, "The database " + file_path() + " can be read, but not changed: " + why + ".");
    }
}

bool GFPDB_SQLITE_STORE::examine_directory()
{
    struct stat status = {};
    const std::string name = "The database directory " + m_directory;
    if (::stat(m_directory.c_str(), &status) == 0) {
        if (::access(m_directory.c_str(), R_OK | X_OK) == 0)
            return true;
        set_problem(STATE::UNUSABLE, name + " cannot be read: " + std::strerror(errno) + ".");
    } else if (errno == ENOENT) {
        set_problem(STATE::UNUSABLE, name + " does not exist.");
    } else if (errno == ENOTDIR) {
        set_problem(STATE::UNUSABLE, name + " is not a directory: a part of it is a file.");
    } else {
        set_problem(STATE::UNUSABLE, name + " cannot be reached: " + std::strerror(errno) + ".");
    }
    return false;
}

// Looks at the file without opening it: closing it again would drop the locks that SQLite holds on it.
bool GFPDB_SQLITE_STORE::examine_file()
{
    struct stat status = {};
    const std::string left = left_file(file_path());
    if (::stat(file_path().c_str(), &status) != 0) {
        examine_missing_file(errno, left);
        return false;
    }
    m_identity = FILE_IDENTITY{status.st_dev, status.st_ino};
    if (!S_ISREG(status.st_mode))
        set_problem(STATE::UNUSABLE, file_path() + " is not a file.");
    else if (status.st_size == 0)
        set_problem(STATE::UNUSABLE, "The database " + file_path() +
                                         " is empty: its content was lost. It is left as it is; put a copy in its " +
                                         "place, or remove it to begin again.");
    else if (status.st_size < SMALLEST_FILE)
        set_problem(STATE::UNUSABLE,
                    "The file " + file_path() + " is not a database (too short). It is left as it is.");
    else
        return true;
    return false;
}

// `left` was there before the file was found missing: another program may just have made it, and be writing.
void GFPDB_SQLITE_STORE::examine_missing_file(int error, const std::string& left)
{
    struct stat status = {};
    const bool is_link = ::lstat(file_path().c_str(), &status) == 0;
    if (is_link || error != ENOENT)
        set_problem(STATE::UNUSABLE, "The database " + file_path() + " cannot be reached" +
                                         (is_link ? ": it is a link to " + target_of(file_path()) : std::string()) +
                                         " (" + std::strerror(error) +
                                         "). Is the drive or the share that it is on connected?");
    else if (!left.empty())
        set_problem(STATE::UNUSABLE, "There is no database " + file_path() + ", but " + left +
                                         ", which a program left that was writing it. Put the database back, or move " +
                                         "that file to another directory to begin with an empty database.");
    else if (::access(m_directory.c_str(), W_OK) == 0)
        set_problem(STATE::NO_FILE, std::string());
    else
        set_problem(STATE::UNUSABLE, "The database directory " + m_directory +
                                         " holds no database, and none can be made: " + std::strerror(errno) + ".");
}

// SQLite follows a hard link in the place of its journal, old versions a symbolic one as well, and writes into or cuts
// off whatever is at its end.
bool GFPDB_SQLITE_STORE::has_own_companions()
{
    const std::string path = real_path_of(file_path());
    for (const char* suffix : {JOURNAL_SUFFIX, WAL_SUFFIX, "-shm"}) {
        struct stat status = {};
        if (::lstat((path + suffix).c_str(), &status) != 0 || (S_ISREG(status.st_mode) && status.st_nlink == 1))
            continue;
        set_problem(STATE::UNUSABLE, "The database " + file_path() + " is not used: " + path + suffix +
                                         " is a link or no file. Remove it if you did not put it there.");
        return false;
    }
    return has_own_journal(path);
}

// This program writes no WAL: one that has something in it is another program's.
bool GFPDB_SQLITE_STORE::has_own_journal(const std::string& path)
{
    const std::string left = left_file(path);
    const std::string problem = "The database " + file_path() + " is not used: " + left;
    if (left.empty())
        return true;
    if (left == path + WAL_SUFFIX)
        set_problem(STATE::UNUSABLE,
                    problem + " was written by another program, and would change it. Close the database in that " +
                        "program. If the file is still there then, move it to another directory.");
    else if (!gfpdb_journal_fits(path, left))
        set_problem(STATE::UNUSABLE,
                    problem + " is the journal of another database, or of another state of this one, and would " +
                        "damage it. Move that file to another directory, then try again.");
    else
        return true;
    return false;
}

// What a change writes stays in memory until its end: else SQLite would begin to write a large one into the file before
// that, and lock out all readers until it is done.
bool GFPDB_SQLITE_STORE::connect(const std::string& path, const char* mode)
{
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_name());
    if (!connection.isValid())
        return fail("The SQLite driver of Qt is not installed.");
    connection.setDatabaseName(uri_of(path, mode));
    m_busy_timeout_ms = busy_timeout();
    m_wait_ms = is_in_vain(file_path()) ? 0 : m_busy_timeout_ms;
    connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1").arg(m_wait_ms));
    return (connection.open() || fail(connection.lastError())) && run("PRAGMA synchronous = FULL") &&
           run("PRAGMA trusted_schema = OFF") && run("PRAGMA cell_size_check = ON") && run("PRAGMA cache_spill = OFF");
}

bool GFPDB_SQLITE_STORE::is_whole_file()
{
    QSqlQuery query(database());
    struct stat status = {};
    if (!query.exec(QStringLiteral("PRAGMA page_size")) || !query.next())
        return fail(query.lastError());
    if (::stat(file_path().c_str(), &status) != 0 || status.st_size % query.value(0).toInt() != 0)
        return fail("The database " + file_path() + " is damaged (its end is missing). It is left as it is.");
    return true;
}

// The file gets its name only when it is complete, so no one ever sees half a database.
bool GFPDB_SQLITE_STORE::create_file()
{
    const std::string unfinished =
        file_path() + ".new-" + gfpdb_to_utf8(QUuid::createUuid().toString(QUuid::WithoutBraces));
    const bool is_built = build_new_file(unfinished);
    close();
    const bool is_published = is_built && (publish(unfinished, file_path()) || fail_to_make(std::strerror(errno)));
    ::unlink(unfinished.c_str());
    ::unlink((unfinished + "-journal").c_str());
    sync_directory(m_directory);
    return is_published;
}

bool GFPDB_SQLITE_STORE::fail_to_make(const std::string& why)
{
    return fail("The database " + file_path() + " cannot be made: " + why + ".");
}

bool GFPDB_SQLITE_STORE::build_new_file(const std::string& path)
{
    struct stat status = {};
    if (!make_empty_file(path, m_directory, status))
        return fail_to_make(std::strerror(errno));
    QSqlQuery query;
    return connect(path, "rw") && run("BEGIN") && set_mark(new_mark()) && set_mark(new_mark()) && run_steps(0) &&
           prepare(query, "INSERT INTO meta (name, value) VALUES ('database_id', ?)",
                   {QUuid::createUuid().toString(QUuid::WithoutBraces)}) &&
           run(query) && run("COMMIT") &&
           (is_file(path, status) || fail_to_make("its name was given to another file meanwhile"));
}

// True while the name of the file that is open stands for that file.
bool GFPDB_SQLITE_STORE::is_same_file() const
{
    struct stat status = {};
    return ::stat(file_path().c_str(), &status) == 0 && m_identity == FILE_IDENTITY{status.st_dev, status.st_ino};
}

void GFPDB_SQLITE_STORE::refresh()
{
    const bool is_open = m_state == STATE::READ_ONLY || m_state == STATE::READ_WRITE;
    if (is_open && is_same_file() && has_own_companions() && QSqlDatabase::contains(connection_name()))
        return limit_wait();
    if (is_open && !is_same_file()) {
        qCWarning(GFPDB_LOG, "The database %s was replaced or removed by another program", file_path().c_str());
        m_was_replaced = true;
    }
    open();
}

bool GFPDB_SQLITE_STORE::prepare_read()
{
    m_last_error.clear();
    refresh();
    if (m_state == STATE::UNUSABLE)
        m_last_error = m_problem;
    return m_state == STATE::READ_ONLY || m_state == STATE::READ_WRITE;
}

bool GFPDB_SQLITE_STORE::prepare_write()
{
    m_last_error.clear();
    refresh();
    if (m_was_replaced)
        return refuse_replaced_file();
    if (m_state != STATE::READ_WRITE && m_state != STATE::NO_FILE)
        open();
    if (m_state != STATE::READ_WRITE && m_state != STATE::NO_FILE)
        return fail(m_problem);
    return true;
}

// Once: then the user knows.
bool GFPDB_SQLITE_STORE::refuse_replaced_file()
{
    m_was_replaced = false;
    return fail("The database " + file_path() + " was replaced or removed by another program while it was in use. " +
                "Nothing was changed: look at the devices that are there now, then try again.");
}

bool GFPDB_SQLITE_STORE::change(const WORK& work)
{
    if (m_state == STATE::NO_FILE) {
        if (!create_file())
            return false;
        open();
    }
    if (m_state != STATE::READ_WRITE)
        return fail(m_problem);
    return run_transaction(work);
}

// Each transaction leaves a number of its own in the file, in a place that is written in any case. A commit whose last
// calls fail (to sync an empty journal, to go on reading) is reported as failed although all of it is there. The number
// of the transaction before stays beside it (gfpdb_journal.h).
bool GFPDB_SQLITE_STORE::set_mark(int mark)
{
    const std::optional<int> former = read_mark();
    return former && run(("PRAGMA application_id = " + std::to_string(*former)).c_str()) &&
           run(("PRAGMA user_version = " + std::to_string(mark)).c_str());
}

std::optional<int> GFPDB_SQLITE_STORE::read_mark()
{
    QSqlQuery query;
    if (!prepare(query, "PRAGMA user_version") || !run(query) || !query.next())
        return std::nullopt;
    return query.value(0).toInt();
}

// After a commit that failed with `error`.
bool GFPDB_SQLITE_STORE::is_stored(int mark, const std::string& error)
{
    const std::optional<int> stored = read_mark();
    if (!stored)
        return fail(error + " Whether the change was stored cannot be read: look at the devices before you try again.");
    return *stored == mark || fail(error);
}

// Once, after a commit: what was stored is not where the user looks.
bool GFPDB_SQLITE_STORE::is_stored_in_place()
{
    if (is_same_file())
        return true;
    open();
    return fail("The database " + file_path() + " was replaced or removed by another program while a change was " +
                "stored, which is lost: look at the devices that are there now, then try again.");
}

bool GFPDB_SQLITE_STORE::run_transaction(const WORK& work)
{
    if (!run("BEGIN IMMEDIATE"))
        return false;
    const int mark = new_mark();
    bool is_same = is_same_file() && is_same_database();
    const bool is_done = is_same && set_mark(mark) && work();
    is_same = is_same && is_same_file();
    if (is_done && is_same && run("COMMIT"))
        return is_stored_in_place();

    const std::string error = m_last_error;
    run("ROLLBACK");
    if (!is_same) {
        open();
        return m_state == STATE::UNUSABLE ? fail(m_problem) : refuse_replaced_file();
    }
    return is_done ? is_stored(mark, error) && is_stored_in_place() : fail(error);
}
