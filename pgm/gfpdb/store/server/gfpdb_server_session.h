// SPDX-License-Identifier: MIT

// The database on a server that a directory names: whether it can be used, questions, transactions.
//
// The server is connected by the first use. Before each use it is looked whether it is still the database that the user
// has seen, and what the login may do there: both come with the answers. A server that is not there is told at once for
// two seconds after an attempt in vain, because one action of the user makes many calls.
//
// While an event loop runs, answers are remembered until it goes on, or something is changed here: what belongs to one
// action of the user shows one state, and costs few round trips. Elsewhere every question goes to the server.
//
// What returns false has put the reason into last_error(). GUI thread only.
#pragma once

#include "store/server/gfpdb_server_connection.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

class GFPDB_SERVER_SESSION
{
public:
    using ROWS = GFPDB_SERVER_ROWS;
    using RESULTS = GFPDB_SERVER_CONNECTION::RESULTS;

    // What a change is made of.
    struct CHANGE
    {
        // Asks what it must know, by look_up(), and puts the statements that change something into its argument, each
        // with a semicolon; false, with the reason, when nothing is to be changed. It is called again when the server
        // wants the transaction again.
        std::function<bool(std::string& statements)> work;
        // A SELECT that has rows when the change is stored already: asked when the answer to a commit was lost. Empty
        // when to do it again does no harm.
        std::string proof;
        // What will be asked next.
        std::vector<std::string> next;
        // False for changes that may take long, which no window waits for.
        bool is_quick = true;
    };

    // `directory` ends in "/".
    explicit GFPDB_SERVER_SESSION(const std::string& directory);
    ~GFPDB_SERVER_SESSION();

    const std::string& directory() const { return m_directory; }
    // The schema with a dot behind it.
    const std::string& in_schema() const { return m_in_schema; }
    // See GFPDB_STORE.
    void reload();
    bool is_readable();
    bool is_writable();
    bool is_read_only();
    std::string problem();

    // The rows of one SELECT.
    bool ask(const std::string& question, ROWS& rows);
    // Those of several in one round trip. With `is_long` nobody waits in front of a window.
    bool ask_all(const std::vector<std::string>& questions, RESULTS& results, bool is_long = false);
    // While answers are remembered: questions that go along with the next one, because they will follow.
    void expect(const std::vector<std::string>& questions);

    // All rows of several SELECTs, as they were at one time; `hear` is told how many-eth SELECT it was, and ends it all
    // with false. Nobody waits in front of a window.
    bool read_in_parts(const std::vector<std::string>& questions,
                       const std::function<bool(std::size_t question, const ROWS& rows)>& hear);
    // The answer to `question` where it is remembered; null else.
    const ROWS* remembered(const std::string& question);

    // False when nothing can be changed.
    bool prepare_write();
    // After prepare_write(): the change in one transaction. `results` has the results of its statements, or the rows of
    // the proof.
    bool change(const CHANGE& change, RESULTS& results);
    // As change(), of what holds only when `condition` does: in one round trip. None, and nothing was changed, when the
    // condition does not hold: then the reason has to be found with change().
    std::optional<bool> change_if(const std::string& condition, const CHANGE& change, RESULTS& results);
    // Within CHANGE::work: a question that belongs to the transaction, and rows that are copied into a table.
    bool look_up(const std::string& questions, RESULTS& results);
    bool copy_begin(const std::string& statement);
    bool copy_put(const std::string& lines) { return m_connection->copy_put(lines); }
    bool copy_end() { return m_connection->copy_end(); }
    // Ends the connection, with the transaction, in the middle of a copy; the reason stays.
    void abandon();

    bool fail(const std::string& error) { return m_connection->fail(error); }
    const std::string& last_error() const { return m_connection->last_error(); }
    // Of the database that was seen.
    const std::string& database_id() const { return m_database_id; }

private:
    enum class STATE
    {
        CLOSED,   // not looked at yet
        UNUSABLE, // m_problem says why
        READ_ONLY,
        READ_WRITE,
    };
    enum class OUTCOME
    {
        DONE,
        REFUSED,     // last_error() says why
        NOT_AS_SEEN, // the database is another one, or the condition does not hold
        AGAIN,       // the server wants it again
        LOST,        // the connection ended before the end of the transaction was sent
        UNKNOWN,     // or after it
    };

    // gfpdb_server_session.cpp: the state, questions.
    void begin_call(bool is_quick);
    void note_schema();
    void set_deadline();
    bool load_file();
    bool connect();
    void refresh();
    bool take_state(const ROWS& rows);
    bool take_version(const ROWS& rows);
    bool upgrade(int version);
    void set_problem(STATE state, const std::string& problem);
    bool set_unusable(const std::string& problem);
    bool is_remembering() const;
    void forget();
    bool has_answer(const std::string& question);
    void remember(const std::string& question, const ROWS& rows);
    bool run_questions(const std::vector<std::string>& questions, RESULTS& results);
    bool is_worth_repeating(const std::vector<std::string>& questions);
    int lock_limit() const;
    bool explain();
    bool is_ended_by_server() const;

    // gfpdb_server_change.cpp: transactions.
    std::optional<bool> run_change(const CHANGE& change, const std::string& condition, RESULTS& results);
    OUTCOME attempt(const CHANGE& change, const std::string& condition, bool is_again, RESULTS& results);
    OUTCOME finish(const CHANGE& change, const std::string& statements, RESULTS& results);
    OUTCOME outcome_of_failure(bool was_sent);
    std::string beginning() const;
    bool refuse_replaced();
    bool fail_unknown();
    bool pause();
    void roll_back();

    std::string m_directory;
    GFPDB_SERVER m_server;
    std::string m_in_schema;
    // Never null.
    std::unique_ptr<GFPDB_SERVER_CONNECTION> m_connection;
    STATE m_state = STATE::CLOSED;
    // What is wrong with the database, and what was when it was last read.
    std::string m_problem;
    std::string m_read_problem;
    std::string m_database_id;
    // Another database is in its place, and no change was refused for that yet.
    bool m_was_replaced = false;
    bool m_is_in_transaction = false;
    // How often tables were brought up to date here.
    int m_upgrades = 0;
    bool m_is_quick = true;
    // Of the present call.
    GFPDB_SERVER_CONNECTION::CLOCK::time_point m_deadline;
    // How often the server wanted the present transaction again.
    int m_repetitions = 0;

    std::unordered_map<std::string, ROWS> m_answers;
    // How many changes this process had made when they were given.
    int m_answers_at = 0;
    std::vector<std::string> m_expected;
    // What forgets the answers when the event loop goes on.
    QObject m_turn;
};
