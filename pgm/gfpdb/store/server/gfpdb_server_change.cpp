// SPDX-License-Identifier: MIT

// The part of GFPDB_SERVER_SESSION that changes something: one transaction a change, sent in as few pieces as it can
// be. The last piece has the end of the transaction with it, so what is not known after a lost connection is only what
// became of that one: it is looked up.
#include "store/server/gfpdb_server_session.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "store/server/gfpdb_server_changes.h"
#include "store/server/gfpdb_server_schema.h"
#include "store/server/gfpdb_server_sql.h"

#include <QRandomGenerator>

#include <algorithm>
#include <thread>

using namespace GFPDB_SERVER_SCHEMA_SQL;
using GFPDB_SERVER_SQL::literal;

namespace {

using FAILURE = GFPDB_SERVER_CONNECTION::FAILURE;
using CLOCK = GFPDB_SERVER_CONNECTION::CLOCK;

// How many results the statements of beginning() have.
constexpr std::size_t RESULTS_OF_BEGINNING = 4;
// A statement of a quick change may take so long on the server, which is less than a window waits.
constexpr int STATEMENT_LIMIT_MS = 8000;
// Time to look up what became of a change whose answer did not come in time.
constexpr std::chrono::seconds TIME_TO_LOOK_UP(3);
// The server wants a transaction again when it met another one: the longer, the more often they meet.
constexpr int SHORTEST_PAUSE_MS = 4;
constexpr int LONGEST_PAUSE_MS = 250;
constexpr int MOST_REPETITIONS_OF_LONG = 20;

} // namespace

// What the login may do is not asked again: each transaction begins with a look at the database, and the server refuses
// what is not allowed.
bool GFPDB_SERVER_SESSION::prepare_write()
{
    if (m_state != STATE::READ_WRITE || !m_connection->is_open())
        refresh();
    m_connection->clear_error();
    if (m_was_replaced)
        return refuse_replaced();
    return m_state == STATE::READ_WRITE || fail(m_problem);
}

// Once: then the user knows.
bool GFPDB_SERVER_SESSION::refuse_replaced()
{
    m_was_replaced = false;
    forget();
    return fail(GFPDB_WORDS::say("The database %1 on the server %2 was replaced by another one while it was in use. "
                                 "Nothing was changed: look at the devices that are there now, then try again.",
                                 {gfpdb_quoted(m_server.database), m_connection->host()}));
}

bool GFPDB_SERVER_SESSION::fail_unknown()
{
    return fail(GFPDB_WORDS::say(
        "%1 Whether the change was stored cannot be read: look at the devices before you try again.", {last_error()}));
}

// The limits hold for the transaction alone.
std::string GFPDB_SERVER_SESSION::beginning() const
{
    const std::string meta = "(SELECT count(*) FROM " + m_in_schema +
                             "meta WHERE (name = 'schema_version' AND value = '" + std::to_string(VERSION) +
                             "') OR (name = 'database_id' AND value = " + literal(m_database_id) + ")) = 2";
    return "BEGIN ISOLATION LEVEL SERIALIZABLE;\nSET LOCAL statement_timeout = " +
           std::to_string(m_is_quick ? STATEMENT_LIMIT_MS : 0) +
           ";\nSET LOCAL lock_timeout = " + std::to_string(lock_limit()) + ";\n" + assertion(meta);
}

bool GFPDB_SERVER_SESSION::look_up(const std::string& questions, RESULTS& results)
{
    const bool is_first = !m_is_in_transaction;
    m_is_in_transaction = true;
    if (!m_connection->run((is_first ? beginning() : std::string()) + questions, results))
        return false;
    if (is_first)
        results.erase(results.begin(), results.begin() + RESULTS_OF_BEGINNING);
    return true;
}

bool GFPDB_SERVER_SESSION::copy_begin(const std::string& statement)
{
    RESULTS none;
    return (m_is_in_transaction || look_up(std::string(), none)) && m_connection->copy_begin(statement);
}

void GFPDB_SERVER_SESSION::abandon()
{
    // The server, or what has become of the connection, has ended the copy.
    if (m_connection->failure() != FAILURE::NONE)
        return;
    const std::string error = last_error();
    m_connection->close();
    m_connection->clear_error();
    fail(error);
}

// A server that pools connections gives it to others only after that.
void GFPDB_SERVER_SESSION::roll_back()
{
    RESULTS results;
    if (m_connection->is_in_transaction()) {
        const std::string error = last_error();
        m_connection->run("ROLLBACK", results);
        m_connection->clear_error();
        fail(error);
    }
    m_is_in_transaction = false;
}

GFPDB_SERVER_SESSION::OUTCOME GFPDB_SERVER_SESSION::outcome_of_failure(bool was_sent)
{
    const std::string& state = m_connection->sqlstate();
    if (m_connection->failure() != FAILURE::REFUSED)
        return was_sent ? OUTCOME::UNKNOWN : OUTCOME::LOST;
    if (is_ended_by_server()) {
        m_connection->close();
        return was_sent ? OUTCOME::UNKNOWN : OUTCOME::LOST;
    }
    if (state == DIVISION_BY_ZERO)
        return OUTCOME::NOT_AS_SEEN;
    // A key that another transaction has just stored is found when the work is done again.
    const bool is_met = state == "40001" || state == "40P01" || state == "23505";
    explain();
    return is_met ? OUTCOME::AGAIN : OUTCOME::REFUSED;
}

GFPDB_SERVER_SESSION::OUTCOME GFPDB_SERVER_SESSION::attempt(const CHANGE& change, const std::string& condition,
                                                            bool is_again, RESULTS& results)
{
    m_is_in_transaction = false;
    if (is_again && !change.proof.empty()) {
        if (!look_up(change.proof, results))
            return outcome_of_failure(false);
        if (results.front().count() > 0) {
            roll_back();
            m_connection->clear_error();
            return OUTCOME::DONE;
        }
    }
    std::string statements = condition.empty() ? std::string() : assertion(condition);
    m_connection->clear_error();
    if (!change.work(statements))
        return m_connection->failure() == FAILURE::NONE ? OUTCOME::REFUSED : outcome_of_failure(false);
    const OUTCOME outcome = finish(change, statements, results);
    if (outcome == OUTCOME::DONE && !condition.empty())
        results.erase(results.begin());
    return outcome;
}

// What will be asked next goes along: that it fails does not matter.
GFPDB_SERVER_SESSION::OUTCOME GFPDB_SERVER_SESSION::finish(const CHANGE& change, const std::string& statements,
                                                           RESULTS& results)
{
    const bool is_first = !m_is_in_transaction;
    std::vector<std::string> next;
    if (is_remembering() && !change.next.empty()) {
        next = change.next;
        next.push_back(state(m_server.schema));
    }
    const std::string mark = gfpdb_new_revision();
    std::string text = (is_first ? beginning() : std::string()) + statements + "SELECT '" + mark + "';\nCOMMIT";
    for (const std::string& question : next)
        text += ";\n" + question;
    m_connection->run(text, results);
    const auto is_end = [&mark](const ROWS& rows) { return rows.count() == 1 && rows.text(0, 0) == mark; };
    const auto end = std::find_if(results.rbegin(), results.rend(), is_end);
    if (end == results.rend() || end == results.rbegin())
        return outcome_of_failure(true);

    ++gfpdb_server_changes();
    forget();
    const auto commit = end.base();
    if (results.end() - commit == static_cast<std::ptrdiff_t>(next.size()) + 1) {
        for (std::size_t i = 0; i < next.size(); ++i)
            remember(next[i], *(commit + 1 + static_cast<std::ptrdiff_t>(i)));
    }
    results.erase(commit - 1, results.end());
    if (is_first)
        results.erase(results.begin(), results.begin() + RESULTS_OF_BEGINNING);
    m_is_in_transaction = false;
    m_connection->clear_error();
    return OUTCOME::DONE;
}

// Random, so that those that met do not meet again.
bool GFPDB_SERVER_SESSION::pause()
{
    const int longest = std::min(LONGEST_PAUSE_MS, SHORTEST_PAUSE_MS << std::min(m_repetitions, 10));
    ++m_repetitions;
    if (CLOCK::now() >= m_deadline || (!m_is_quick && m_repetitions > MOST_REPETITIONS_OF_LONG))
        return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(QRandomGenerator::global()->bounded(1, longest + 1)));
    return true;
}

bool GFPDB_SERVER_SESSION::change(const CHANGE& change, RESULTS& results)
{
    return run_change(change, std::string(), results).value_or(false);
}

std::optional<bool> GFPDB_SERVER_SESSION::change_if(const std::string& condition, const CHANGE& change,
                                                    RESULTS& results)
{
    return run_change(change, condition, results);
}

std::optional<bool> GFPDB_SERVER_SESSION::run_change(const CHANGE& change, const std::string& condition,
                                                     RESULTS& results)
{
    bool is_again = false;
    int losses = 0;
    begin_call(change.is_quick);
    for (;;) {
        if (!m_connection->is_open() && !connect())
            return is_again ? fail_unknown() : false;
        switch (attempt(change, condition, is_again, results)) {
        case OUTCOME::DONE:
            return true;
        case OUTCOME::REFUSED:
            roll_back();
            return false;
        case OUTCOME::NOT_AS_SEEN:
            roll_back();
            forget();
            refresh();
            if (m_was_replaced)
                return refuse_replaced();
            if (m_state != STATE::READ_WRITE)
                return fail(m_problem);
            if (!condition.empty())
                return std::nullopt;
            return fail(GFPDB_WORDS::say("The database %1 on the server %2 is another one now.",
                                         {gfpdb_quoted(m_server.database), m_connection->host()}));
        case OUTCOME::AGAIN:
            roll_back();
            if (!pause())
                return false;
            break;
        case OUTCOME::UNKNOWN:
            is_again = true;
            m_deadline = std::max(m_deadline, CLOCK::now() + TIME_TO_LOOK_UP);
            [[fallthrough]];
        case OUTCOME::LOST:
            if (++losses > 1 || CLOCK::now() >= m_deadline)
                return is_again ? fail_unknown() : false;
            break;
        }
    }
}
