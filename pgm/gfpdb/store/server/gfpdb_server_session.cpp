// SPDX-License-Identifier: MIT
#include "store/server/gfpdb_server_session.h"

#include "base/gfpdb_log.h"
#include "base/gfpdb_looking.h"
#include "base/gfpdb_settings.h"
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "store/server/gfpdb_server_changes.h"
#include "store/server/gfpdb_server_file.h"
#include "store/server/gfpdb_server_schema.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>

using namespace GFPDB_SERVER_SCHEMA_SQL;

namespace {

using CLOCK = GFPDB_SERVER_CONNECTION::CLOCK;

// A window waits no longer for one call.
constexpr std::chrono::seconds CALL_LIMIT(10);
// Nor does who only looks.
constexpr std::chrono::seconds LOOK_LIMIT(2);
// After an attempt in vain the server is not tried again until this time has passed.
constexpr std::chrono::seconds PAUSE(2);
// What is read of a large table at once.
constexpr int ROWS_AT_ONCE = 500;
constexpr int DEFAULT_LOCK_LIMIT_MS = 5000;
// Less than a window waits.
constexpr int LONGEST_LOCK_LIMIT_MS = 8000;
// A server whose transactions are serializable by default may want a question again.
constexpr int MOST_ATTEMPTS = 10;

struct VAIN_ATTEMPT
{
    std::string directory;
    std::string error;
    CLOCK::time_point until;
};

VAIN_ATTEMPT& vain_attempt()
{
    static VAIN_ATTEMPT attempt;
    return attempt;
}

// As for attempts: the database whose locks were waited for.
VAIN_ATTEMPT& vain_lock()
{
    static VAIN_ATTEMPT attempt;
    return attempt;
}

} // namespace

int& gfpdb_server_changes()
{
    static int changes = 0;
    return changes;
}

GFPDB_SERVER_SESSION::GFPDB_SERVER_SESSION(const std::string& directory)
    : m_directory(directory), m_connection(std::make_unique<GFPDB_SERVER_CONNECTION>(m_server, directory))
{
    note_schema();
}

GFPDB_SERVER_SESSION::~GFPDB_SERVER_SESSION() = default;

// Questions are made before the server is connected.
void GFPDB_SERVER_SESSION::note_schema()
{
    std::string error;
    m_in_schema = gfpdb_read_server(m_directory, error).value_or(GFPDB_SERVER()).schema + '.';
}

// The connection stays as long as the file says the same.
void GFPDB_SERVER_SESSION::reload()
{
    forget();
    note_schema();
    m_state = STATE::CLOSED;
    m_was_replaced = false;
    m_database_id.clear();
    m_problem.clear();
    m_read_problem.clear();
    if (vain_attempt().directory == m_directory)
        vain_attempt() = VAIN_ATTEMPT();
}

bool GFPDB_SERVER_SESSION::load_file()
{
    std::string error;
    const std::optional<GFPDB_SERVER> server = gfpdb_read_server(m_directory, error);
    if (!server)
        return set_unusable(error);
    const std::string two_databases = gfpdb_two_databases(m_directory);
    if (!two_databases.empty())
        return set_unusable(two_databases);
    if (!gfpdb_is_same_server(m_server, *server)) {
        m_server = *server;
        m_connection = std::make_unique<GFPDB_SERVER_CONNECTION>(m_server, m_directory);
    }
    m_in_schema = m_server.schema + '.';
    return true;
}

void GFPDB_SERVER_SESSION::begin_call(bool is_quick)
{
    m_is_quick = is_quick || gfpdb_only_looks();
    m_repetitions = 0;
    m_connection->clear_error();
    m_deadline = m_is_quick ? CLOCK::now() + (gfpdb_only_looks() ? LOOK_LIMIT : CALL_LIMIT) : CLOCK::time_point::max();
    set_deadline();
}

void GFPDB_SERVER_SESSION::set_deadline()
{
    m_connection->set_deadline(m_is_quick ? std::optional<CLOCK::time_point>(m_deadline) : std::nullopt);
}

// The file is read again with every connection.
bool GFPDB_SERVER_SESSION::connect()
{
    const VAIN_ATTEMPT& vain = vain_attempt();
    if (vain.directory == m_directory && CLOCK::now() < vain.until) {
        fail(vain.error);
        return set_unusable(vain.error);
    }
    if (!load_file())
        return false;
    set_deadline();
    if (m_connection->open())
        return true;
    vain_attempt() = {m_directory, last_error(), CLOCK::now() + PAUSE};
    return set_unusable(last_error());
}

void GFPDB_SERVER_SESSION::set_problem(STATE state, const std::string& problem)
{
    m_state = state;
    if (problem != m_problem && !problem.empty())
        qCWarning(GFPDB_LOG, "%s", GFPDB_WORDS::english(problem).c_str());
    m_problem = problem;
}

bool GFPDB_SERVER_SESSION::set_unusable(const std::string& problem)
{
    set_problem(STATE::UNUSABLE, problem);
    return fail(problem);
}

// True when the server ends its connections, or takes no changes any more: another host may. Or when it does not know
// itself what became of a statement, which is looked up as after a lost answer.
bool GFPDB_SERVER_SESSION::is_ended_by_server() const
{
    const std::string& state = m_connection->sqlstate();
    return state.compare(0, 2, "08") == 0 || state == "57P01" || state == "57P02" || state == "57P03" ||
           state == "25006" || state == "40003";
}

// A lock that was waited for in vain is not waited for again at once.
bool GFPDB_SERVER_SESSION::explain()
{
    if (m_connection->sqlstate() == "55P03")
        vain_lock() = {m_directory, std::string(), CLOCK::now() + PAUSE};
    return m_connection->explain();
}

bool GFPDB_SERVER_SESSION::is_remembering() const
{
    return QCoreApplication::instance() != nullptr && QThread::currentThread()->loopLevel() > 0;
}

void GFPDB_SERVER_SESSION::forget()
{
    m_answers.clear();
}

bool GFPDB_SERVER_SESSION::has_answer(const std::string& question)
{
    if (m_answers_at != gfpdb_server_changes() || !is_remembering())
        forget();
    m_answers_at = gfpdb_server_changes();
    return m_answers.find(question) != m_answers.end();
}

void GFPDB_SERVER_SESSION::remember(const std::string& question, const ROWS& rows)
{
    if (!is_remembering())
        return;
    if (m_answers.empty())
        QMetaObject::invokeMethod(
            &m_turn, [this] { forget(); }, Qt::QueuedConnection);
    m_answers_at = gfpdb_server_changes();
    m_answers[question] = rows;
}

void GFPDB_SERVER_SESSION::expect(const std::vector<std::string>& questions)
{
    if (is_remembering())
        m_expected.insert(m_expected.end(), questions.begin(), questions.end());
}

// The first result is that of the state.
bool GFPDB_SERVER_SESSION::run_questions(const std::vector<std::string>& questions, RESULTS& results)
{
    int losses = 0;
    for (int attempts = 0; attempts < MOST_ATTEMPTS; ++attempts) {
        if ((m_state == STATE::CLOSED || !m_connection->is_open()) && !connect())
            return false;
        std::string statements =
            "SET LOCAL lock_timeout = " + std::to_string(lock_limit()) + ";\n" + state(m_server.schema);
        for (const std::string& question : questions)
            statements += ";\n" + question;
        if (m_connection->run(statements, results)) {
            results.erase(results.begin());
            m_read_problem.clear();
            return take_state(results.front());
        }
        const bool is_late = m_connection->failure() == GFPDB_SERVER_CONNECTION::FAILURE::LATE;
        const bool is_lost = m_connection->failure() == GFPDB_SERVER_CONNECTION::FAILURE::LOST || is_ended_by_server();
        if (is_late || (is_lost && ++losses > 1)) {
            vain_attempt() = {m_directory, last_error(), CLOCK::now() + PAUSE};
            return set_unusable(last_error());
        }
        if (is_lost)
            m_connection->close();
        else if (m_connection->sqlstate() != "40001" && !is_worth_repeating(questions))
            return false;
    }
    return set_unusable(last_error());
}

// A question that fails takes the one of the state with it: that is asked alone then, and may say why. It may also have
// brought the tables up to date that the question needs.
bool GFPDB_SERVER_SESSION::is_worth_repeating(const std::vector<std::string>& questions)
{
    RESULTS results;
    explain();
    const std::string error = last_error();
    const int upgrades = m_upgrades;
    if (questions.empty())
        return set_unusable(error);
    if (!run_questions({}, results))
        return false;
    if (m_upgrades > upgrades)
        return true;
    m_read_problem = error;
    return fail(error);
}

// How long a statement waits for the lock of another program: not at all for two seconds after a wait in vain.
int GFPDB_SERVER_SESSION::lock_limit() const
{
    bool is_number = false;
    const int limit = QByteArray::fromStdString(gfpdb_read_setting(GFPDB_SETTING_BUSY_TIMEOUT)).toInt(&is_number);
    const bool is_in_vain = vain_lock().directory == m_directory && CLOCK::now() < vain_lock().until;
    return is_in_vain || gfpdb_only_looks()
               ? 1
               : std::clamp(is_number ? limit : DEFAULT_LOCK_LIMIT_MS, 1, LONGEST_LOCK_LIMIT_MS);
}

bool GFPDB_SERVER_SESSION::take_state(const ROWS& rows)
{
    const auto is_true = [&rows](STATE_COLUMN column) { return rows.text(0, column) == "t"; };
    if (!is_true(STATE_MAY_READ))
        return set_unusable(GFPDB_WORDS::say("The database %1 on the server %2 cannot be read by the login %3: its "
                                             "administrator can grant the role %4.",
                                             {gfpdb_quoted(m_server.database), m_connection->host(),
                                              gfpdb_quoted(m_connection->login()), m_server.schema + "_reader"}));
    if (!take_version(rows))
        return false;
    const std::string database_id = rows.text(0, STATE_DATABASE_ID);
    m_was_replaced = m_was_replaced || (!m_database_id.empty() && m_database_id != database_id);
    m_database_id = database_id;
    if (is_true(STATE_IS_READ_ONLY))
        set_problem(STATE::READ_ONLY,
                    GFPDB_WORDS::say("The database %1 on the server %2 can be read, but not changed: the server takes "
                                     "no changes now.",
                                     {gfpdb_quoted(m_server.database), m_connection->host()}));
    else if (!is_true(STATE_MAY_CHANGE))
        set_problem(STATE::READ_ONLY,
                    GFPDB_WORDS::say("The database %1 on the server %2 can be read, but not changed: the login %3 has "
                                     "not the role %4.",
                                     {gfpdb_quoted(m_server.database), m_connection->host(),
                                      gfpdb_quoted(m_connection->login()), m_server.schema + "_editor"}));
    else
        set_problem(STATE::READ_WRITE, std::string());
    return true;
}

bool GFPDB_SERVER_SESSION::take_version(const ROWS& rows)
{
    const auto version = static_cast<int>(rows.number(0, STATE_VERSION));
    if (version == VERSION)
        return true;
    const std::string problem =
        version_problem(rows, gfpdb_quoted(m_server.database), m_connection->host(), m_server.schema);
    return problem.empty() ? upgrade(version) : set_unusable(problem);
}

// In one transaction, which the server runs whole or not at all.
bool GFPDB_SERVER_SESSION::upgrade(int version)
{
    RESULTS results;
    m_connection->set_deadline(std::nullopt);
    if (m_connection->run("BEGIN;" + steps(m_server.schema, version, VERSION) + "COMMIT", results)) {
        ++m_upgrades;
        return true;
    }
    roll_back();
    return set_unusable(last_error());
}

void GFPDB_SERVER_SESSION::refresh()
{
    RESULTS results;
    begin_call(true);
    if (m_state != STATE::CLOSED && m_state != STATE::UNUSABLE && has_answer(state(m_server.schema)))
        return;
    ask_all({}, results);
}

bool GFPDB_SERVER_SESSION::is_readable()
{
    refresh();
    return m_state != STATE::UNUSABLE;
}

bool GFPDB_SERVER_SESSION::is_writable()
{
    refresh();
    return m_state == STATE::READ_WRITE;
}

bool GFPDB_SERVER_SESSION::is_read_only()
{
    refresh();
    return m_state == STATE::READ_ONLY;
}

std::string GFPDB_SERVER_SESSION::problem()
{
    refresh();
    return m_problem.empty() ? m_read_problem : m_problem;
}

bool GFPDB_SERVER_SESSION::ask(const std::string& question, ROWS& rows)
{
    RESULTS results;
    if (!ask_all({question}, results))
        return false;
    rows = results.front();
    return true;
}

bool GFPDB_SERVER_SESSION::ask_all(const std::vector<std::string>& questions, RESULTS& results, bool is_long)
{
    results.clear();
    begin_call(!is_long);
    // What is remembered or expected no longer holds is forgotten first.
    const bool is_state_known = has_answer(state(m_server.schema));
    std::vector<std::string> missing;
    const auto add = [this, &missing](const std::string& question) {
        if (!has_answer(question) && std::find(missing.begin(), missing.end(), question) == missing.end())
            missing.push_back(question);
    };
    std::for_each(questions.begin(), questions.end(), add);
    if (!missing.empty() || questions.empty() || !is_state_known) {
        std::for_each(m_expected.begin(), m_expected.end(), add);
        m_expected.clear();
        RESULTS answers;
        if (!run_questions(missing, answers))
            return false;
        remember(state(m_server.schema), answers.front());
        for (std::size_t i = 0; i < missing.size(); ++i)
            remember(missing[i], answers[i + 1]);
        if (!is_remembering()) {
            for (const std::string& question : questions) {
                const auto place = std::find(missing.begin(), missing.end(), question) - missing.begin();
                results.push_back(answers[static_cast<std::size_t>(place) + 1]);
            }
            return true;
        }
    }
    for (const std::string& question : questions)
        results.push_back(m_answers.at(question));
    return true;
}

const GFPDB_SERVER_ROWS* GFPDB_SERVER_SESSION::remembered(const std::string& question)
{
    return has_answer(question) ? &m_answers.at(question) : nullptr;
}

// With a cursor, which lives as long as the transaction: a database may be larger than the memory.
bool GFPDB_SERVER_SESSION::read_in_parts(const std::vector<std::string>& questions,
                                         const std::function<bool(std::size_t, const ROWS&)>& hear)
{
    RESULTS results;
    if (!ask_all({}, results, true))
        return false;
    bool is_read = m_connection->run("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY", results);
    bool is_heard = true;
    for (std::size_t i = 0; is_read && is_heard && i < questions.size(); ++i) {
        is_read = m_connection->run("DECLARE part CURSOR FOR " + questions[i], results);
        while (is_read && is_heard) {
            is_read = m_connection->run("FETCH " + std::to_string(ROWS_AT_ONCE) + " FROM part", results);
            if (!is_read || results.front().count() == 0)
                break;
            is_heard = hear(i, results.front());
        }
        is_read = is_read && m_connection->run("CLOSE part", results);
    }
    if (!is_read)
        explain();
    roll_back();
    return is_read && is_heard;
}
