// SPDX-License-Identifier: MIT
#include "store/sqlite/gfpdb_sqlite_file.h"

#include "base/gfpdb_log.h"
#include "base/gfpdb_looking.h"
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "gfpdb/gfpdb_server.h"
#include "store/sqlite/gfpdb_sqlite_companions.h"

#include <QRandomGenerator>
#include <QScopedValueRollback>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

#include <cerrno>
#include <climits>
#include <cstring>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

const char GFPDB_SQLITE_FILE::NAME[] = "gfpdb.sqlite";

namespace {

// SQLite's smallest page. It would take a file of less than a header for one that was not written yet.
constexpr off_t SMALLEST_FILE = 512;

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

GFPDB_SQLITE_FILE::GFPDB_SQLITE_FILE(const std::string& directory)
    : m_directory(directory), m_path(directory + NAME), m_connection(m_path), m_schema(m_connection)
{}

void GFPDB_SQLITE_FILE::reload()
{
    if (m_is_in_change)
        return;
    m_state = STATE::CLOSED;
    m_was_replaced = false;
    m_problem.clear();
}

void GFPDB_SQLITE_FILE::set_problem(STATE state, const std::string& problem)
{
    m_state = state;
    if (problem != m_problem && !problem.empty())
        qCWarning(GFPDB_LOG, "%s", GFPDB_WORDS::english(problem).c_str());
    m_problem = problem;
}

void GFPDB_SQLITE_FILE::open()
{
    m_connection.close();
    m_state = STATE::CLOSED;
    m_read_problem.clear();
    ++m_openings;
    if (!examine_directory() || !examine_file() || !has_own_companions())
        return;
    // Nobody is told.
    if (gfpdb_only_looks() && gfpdb_has_wal_mode(m_path))
        return set_problem(STATE::UNUSABLE, "Files would be made beside the database.");
    const bool writable =
        !gfpdb_only_looks() && ::access(m_directory.c_str(), W_OK) == 0 && ::access(m_path.c_str(), W_OK) == 0;
    const std::string why = std::strerror(errno);
    if (!open_connection(writable)) {
        m_connection.close();
        set_problem(STATE::UNUSABLE, m_connection.last_error());
    } else if (writable) {
        set_problem(STATE::READ_WRITE, std::string());
    } else {
        set_problem(STATE::READ_ONLY,
                    GFPDB_WORDS::say("The database %1 can be read, but not changed: %2.", {m_path, why}));
    }
}

// The schema is read in one transaction, so that the size and the schema belong to the content.
bool GFPDB_SQLITE_FILE::open_connection(bool is_writable)
{
    using MODE = GFPDB_SQLITE_CONNECTION::MODE;
    return m_connection.open(m_path, is_writable ? MODE::READ_WRITE : MODE::READ_ONLY) && m_connection.run("BEGIN") &&
           m_schema.read() && is_whole_file() && m_connection.run("COMMIT") && (!is_writable || upgrade());
}

bool GFPDB_SQLITE_FILE::examine_directory()
{
    struct stat status = {};
    if (gfpdb_names_server(m_directory)) {
        set_problem(STATE::UNUSABLE, GFPDB_WORDS::say("The file %1 names a server since the directory was opened: open "
                                                      "it again.",
                                                      {m_directory + GFPDB_SERVER_FILE}));
    } else if (::stat(m_directory.c_str(), &status) == 0) {
        if (::access(m_directory.c_str(), R_OK | X_OK) == 0)
            return true;
        set_problem(STATE::UNUSABLE, GFPDB_WORDS::say("The database directory %1 cannot be read: %2.",
                                                      {m_directory, std::strerror(errno)}));
    } else if (errno == ENOENT) {
        set_problem(STATE::UNUSABLE, GFPDB_WORDS::say("The database directory %1 does not exist.", {m_directory}));
    } else if (errno == ENOTDIR) {
        set_problem(
            STATE::UNUSABLE,
            GFPDB_WORDS::say("The database directory %1 is not a directory: a part of it is a file.", {m_directory}));
    } else {
        set_problem(STATE::UNUSABLE, GFPDB_WORDS::say("The database directory %1 cannot be reached: %2.",
                                                      {m_directory, std::strerror(errno)}));
    }
    return false;
}

// Looks at the file without opening it: closing it again would drop the locks that SQLite holds on it.
bool GFPDB_SQLITE_FILE::examine_file()
{
    struct stat status = {};
    const std::string left = gfpdb_left_file(m_path);
    if (::stat(m_path.c_str(), &status) != 0) {
        examine_missing_file(errno, left);
        return false;
    }
    m_identity = FILE_IDENTITY{status.st_dev, status.st_ino};
    if (!S_ISREG(status.st_mode))
        set_problem(STATE::UNUSABLE, GFPDB_WORDS::say("%1 is not a file.", {m_path}));
    else if (status.st_size == 0)
        set_problem(STATE::UNUSABLE,
                    GFPDB_WORDS::say("The database %1 is empty: its content was lost. It is left as it is; restore "
                                     "a backup copy, or delete it to start over.",
                                     {m_path}));
    else if (status.st_size < SMALLEST_FILE)
        set_problem(STATE::UNUSABLE,
                    GFPDB_WORDS::say("The file %1 is not a database (too short). It is left as it is.", {m_path}));
    else
        return true;
    return false;
}

// `left` was there before the file was found missing: another program may just have made it, and be writing.
void GFPDB_SQLITE_FILE::examine_missing_file(int error, const std::string& left)
{
    struct stat status = {};
    const bool is_link = ::lstat(m_path.c_str(), &status) == 0;
    if (is_link)
        set_problem(STATE::UNUSABLE,
                    GFPDB_WORDS::say("The database %1 cannot be reached: it is a link to %2 (%3). Is the "
                                     "drive or the share that it is on connected?",
                                     {m_path, target_of(m_path), std::strerror(error)}));
    else if (error != ENOENT)
        set_problem(STATE::UNUSABLE,
                    GFPDB_WORDS::say("The database %1 cannot be reached (%2). Is the drive or the share "
                                     "that it is on connected?",
                                     {m_path, std::strerror(error)}));
    else if (!left.empty())
        set_problem(STATE::UNUSABLE,
                    GFPDB_WORDS::say("There is no database %1, but %2, which a program left that was writing it. Put "
                                     "the database back, or move that file to another directory to begin with an empty "
                                     "database.",
                                     {m_path, left}));
    else if (::access(m_directory.c_str(), W_OK) == 0)
        set_problem(STATE::NO_FILE, std::string());
    else
        set_problem(STATE::UNUSABLE,
                    GFPDB_WORDS::say("The database directory %1 holds no database, and none can be created: %2.",
                                     {m_directory, std::strerror(errno)}));
}

bool GFPDB_SQLITE_FILE::has_own_companions()
{
    const std::string problem = gfpdb_companion_problem(m_path);
    if (!problem.empty())
        set_problem(STATE::UNUSABLE, problem);
    return problem.empty();
}

bool GFPDB_SQLITE_FILE::is_whole_file()
{
    QSqlQuery query;
    struct stat status = {};
    if (!m_connection.prepare(query, "PRAGMA page_size") || !m_connection.run(query) || !query.next())
        return m_connection.fail(query.lastError());
    if (::stat(m_path.c_str(), &status) != 0 || status.st_size % query.value(0).toInt() != 0)
        return m_connection.fail(
            GFPDB_WORDS::say("The database %1 is damaged (its end is missing). It is left as it is.", {m_path}));
    return true;
}

// The journal is kept, emptied and synced. SQLite does not sync the directory of a journal that it deletes, so that a
// machine that loses power could find it again and roll back what was reported as saved.
bool GFPDB_SQLITE_FILE::upgrade()
{
    return m_connection.run("PRAGMA journal_mode = TRUNCATE") &&
           (m_schema.version() == GFPDB_SQLITE_SCHEMA::VERSION ||
            run_transaction([this] { return m_schema.migrate(); }));
}

// The file gets its name only when it is complete, so no one ever sees half a database.
bool GFPDB_SQLITE_FILE::create_file()
{
    const std::string unfinished = m_path + ".new-" + gfpdb_to_utf8(QUuid::createUuid().toString(QUuid::WithoutBraces));
    const bool is_built = build_new_file(unfinished);
    m_connection.close();
    const bool is_published = is_built && (publish(unfinished, m_path) || fail_to_make(std::strerror(errno)));
    ::unlink(unfinished.c_str());
    ::unlink((unfinished + "-journal").c_str());
    sync_directory(m_directory);
    return is_published;
}

bool GFPDB_SQLITE_FILE::fail_to_make(const std::string& why)
{
    return m_connection.fail(GFPDB_WORDS::say("The database %1 cannot be created: %2.", {m_path, why}));
}

bool GFPDB_SQLITE_FILE::build_new_file(const std::string& path)
{
    struct stat status = {};
    if (!make_empty_file(path, m_directory, status))
        return fail_to_make(std::strerror(errno));
    return m_connection.open(path, GFPDB_SQLITE_CONNECTION::MODE::READ_WRITE) && m_connection.run("BEGIN") &&
           set_mark(new_mark()) && set_mark(new_mark()) && m_schema.make() && m_connection.run("COMMIT") &&
           (is_file(path, status) || fail_to_make("its name was given to another file meanwhile"));
}

// True while the name of the file that is open stands for that file.
bool GFPDB_SQLITE_FILE::is_same_file() const
{
    struct stat status = {};
    return ::stat(m_path.c_str(), &status) == 0 && m_identity == FILE_IDENTITY{status.st_dev, status.st_ino};
}

void GFPDB_SQLITE_FILE::refresh()
{
    if (m_is_in_change)
        return;
    const bool is_same = is_open() && is_same_file();
    if (is_same && !gfpdb_names_server(m_directory) && has_own_companions() && m_connection.is_open() &&
        !m_connection.is_stale())
        return m_connection.limit_wait();
    if (is_open() && !is_same) {
        qCWarning(GFPDB_LOG, "The database %s was replaced or removed by another program", m_path.c_str());
        m_was_replaced = true;
    }
    open();
}

bool GFPDB_SQLITE_FILE::is_readable()
{
    refresh();
    return m_state != STATE::UNUSABLE;
}

bool GFPDB_SQLITE_FILE::is_writable()
{
    refresh();
    return m_state == STATE::NO_FILE || m_state == STATE::READ_WRITE;
}

bool GFPDB_SQLITE_FILE::is_read_only()
{
    refresh();
    return m_state == STATE::READ_ONLY;
}

std::string GFPDB_SQLITE_FILE::problem()
{
    refresh();
    return m_problem.empty() ? m_read_problem : m_problem;
}

// A lock is forgotten when a read succeeds again; damage stays known until the file is opened again.
bool GFPDB_SQLITE_FILE::note_read_problem()
{
    if (m_read_problem != m_connection.last_error())
        qCWarning(GFPDB_LOG, "%s", GFPDB_WORDS::english(m_connection.last_error()).c_str());
    m_read_problem = m_connection.last_error();
    return false;
}

void GFPDB_SQLITE_FILE::note_read()
{
    if (m_connection.is_locked())
        m_read_problem.clear();
}

bool GFPDB_SQLITE_FILE::prepare_read()
{
    m_connection.clear_error();
    refresh();
    // A view in the place of a table could run for ever.
    if (!m_is_in_change && is_open() && m_schema.is_changed())
        open();
    if (m_state == STATE::UNUSABLE)
        m_connection.fail(m_problem);
    return is_open();
}

bool GFPDB_SQLITE_FILE::prepare_write()
{
    m_connection.clear_error();
    refresh();
    if (m_was_replaced)
        return refuse_replaced_file();
    if (m_state != STATE::READ_WRITE && m_state != STATE::NO_FILE)
        open();
    if (m_state != STATE::READ_WRITE && m_state != STATE::NO_FILE)
        return m_connection.fail(m_problem);
    return true;
}

// Once: then the user knows.
bool GFPDB_SQLITE_FILE::refuse_replaced_file()
{
    m_was_replaced = false;
    return m_connection.fail(
        GFPDB_WORDS::say("The database %1 was replaced or removed by another program while it was in use. "
                         "Nothing was changed: look at the devices that are there now, then try again.",
                         {m_path}));
}

bool GFPDB_SQLITE_FILE::change(const WORK& work)
{
    if (m_state == STATE::NO_FILE) {
        if (!create_file())
            return false;
        open();
    }
    if (m_state != STATE::READ_WRITE)
        return m_connection.fail(m_problem);
    return run_transaction(work);
}

// Each transaction leaves a number of its own in the file, in a place that is written in any case. A commit whose last
// calls fail (to sync an empty journal, to go on reading) is reported as failed although all of it is there. The number
// of the transaction before stays beside it (gfpdb_sqlite_companions.h).
bool GFPDB_SQLITE_FILE::set_mark(int mark)
{
    const std::optional<int> former = read_mark();
    return former && m_connection.run(("PRAGMA application_id = " + std::to_string(*former)).c_str()) &&
           m_connection.run(("PRAGMA user_version = " + std::to_string(mark)).c_str());
}

std::optional<int> GFPDB_SQLITE_FILE::read_mark()
{
    QSqlQuery query;
    if (!m_connection.prepare(query, "PRAGMA user_version") || !m_connection.run(query) || !query.next())
        return std::nullopt;
    return query.value(0).toInt();
}

// After a commit that failed with `error`.
bool GFPDB_SQLITE_FILE::is_stored(int mark, const std::string& error)
{
    const std::optional<int> stored = read_mark();
    if (!stored)
        return m_connection.fail(GFPDB_WORDS::say(
            "%1 Whether the change was stored cannot be read: look at the devices before you try again.", {error}));
    return *stored == mark || m_connection.fail(error);
}

// Once, after a commit: what was stored is not where the user looks.
bool GFPDB_SQLITE_FILE::is_stored_in_place()
{
    if (is_same_file())
        return true;
    open();
    return m_connection.fail(
        GFPDB_WORDS::say("The database %1 was replaced or removed by another program while a change was stored, "
                         "which is lost: look at the devices that are there now, then try again.",
                         {m_path}));
}

// The schema is read again: nothing runs but what is in the file, and is ours, at that time.
GFPDB_SQLITE_FILE::FOUND GFPDB_SQLITE_FILE::look_again()
{
    const std::string database_id = m_schema.database_id();
    const int version = m_schema.version();
    if (!is_same_file())
        return FOUND::ANOTHER;
    if (!m_schema.read())
        return FOUND::UNREADABLE;
    const bool is_usable = m_schema.version() == GFPDB_SQLITE_SCHEMA::VERSION || m_schema.version() == version;
    return is_usable && m_schema.database_id() == database_id ? FOUND::THE_SAME : FOUND::ANOTHER;
}

// Whoever is told of the progress may ask the store something: that must not open the file again, which would end the
// transaction and store the rest of the work record by record.
bool GFPDB_SQLITE_FILE::do_work(const WORK& work)
{
    const QScopedValueRollback<bool> in_change(m_is_in_change, true);
    return work();
}

bool GFPDB_SQLITE_FILE::run_transaction(const WORK& work)
{
    if (!m_connection.run("BEGIN IMMEDIATE"))
        return false;
    const int mark = new_mark();
    FOUND found = look_again();
    const bool is_done = found == FOUND::THE_SAME && set_mark(mark) && do_work(work);
    if (found == FOUND::THE_SAME && !is_same_file())
        found = FOUND::ANOTHER;
    if (is_done && found == FOUND::THE_SAME && m_connection.run("COMMIT"))
        return is_stored_in_place();

    const std::string error = m_connection.last_error();
    m_connection.run("ROLLBACK");
    if (found == FOUND::THE_SAME)
        return is_done ? is_stored(mark, error) && is_stored_in_place() : m_connection.fail(error);
    open();
    if (m_state == STATE::UNUSABLE)
        return m_connection.fail(m_problem);
    return found == FOUND::UNREADABLE ? m_connection.fail(error) : refuse_replaced_file();
}
