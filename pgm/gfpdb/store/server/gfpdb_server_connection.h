// SPDX-License-Identifier: MIT

// A connection to a PostgreSQL server: opening it, statements and their results, copying rows in.
//
// libpq is used itself, and not through Qt SQL: only so can every wait be limited, several statements go in one round
// trip, and bytes stay as they are. Nothing waits longer than until the deadline that set_deadline() gave, or, with
// none, than PATIENCE for a sign of life from the server; but a name that has to be resolved may take longer.
//
// There are no prepared statements and no settings of a session: a pool may give each transaction another session.
//
// A function that returns false has put the reason, as a sentence for the user, into last_error(), which stays until
// the next failure or clear_error(). GUI thread only.
#pragma once

#include "gfpdb/gfpdb_server.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct pg_conn;
struct pg_result;

// The rows of one statement. Copies share them.
class GFPDB_SERVER_ROWS
{
public:
    GFPDB_SERVER_ROWS() = default;
    // Owns `result` from then on.
    explicit GFPDB_SERVER_ROWS(pg_result* result);

    int count() const;
    // The bytes of a value; empty for null.
    std::string text(int row, int column) const;
    bool is_null(int row, int column) const;
    std::int64_t number(int row, int column) const;
    // How many rows the statement changed.
    int changed() const;

private:
    std::shared_ptr<pg_result> m_result;
};

class GFPDB_SERVER_CONNECTION
{
public:
    using CLOCK = std::chrono::steady_clock;
    using RESULTS = std::vector<GFPDB_SERVER_ROWS>;

    // How a statement failed.
    enum class FAILURE
    {
        NONE,
        REFUSED, // by the server: sqlstate() says why
        LOST,    // the connection ended: nobody knows what became of the statement
        LATE,    // no answer in time: as LOST
    };

    // How long a server may take that is asked for a connection, on all hosts together.
    static constexpr std::chrono::milliseconds CONNECT_LIMIT{2500};
    static constexpr std::chrono::seconds PATIENCE{120};

    // Not open yet. `directory` is what sslrootcert is relative to.
    GFPDB_SERVER_CONNECTION(const GFPDB_SERVER& server, const std::string& directory);
    ~GFPDB_SERVER_CONNECTION();
    GFPDB_SERVER_CONNECTION(const GFPDB_SERVER_CONNECTION&) = delete;
    GFPDB_SERVER_CONNECTION& operator=(const GFPDB_SERVER_CONNECTION&) = delete;

    // The deadline of all waits from now on; none for PATIENCE.
    void set_deadline(std::optional<CLOCK::time_point> deadline) { m_deadline = deadline; }
    bool is_late() const { return m_deadline && CLOCK::now() >= *m_deadline; }

    // Tries the hosts one after the other, beginning with the one that was connected last.
    bool open();
    void close();
    bool is_open() const { return m_connection != nullptr; }
    // True from the first statement of a transaction to its end, which a failure does not bring.
    bool is_in_transaction() const;
    // The server as messages name it, with its port when it is known.
    std::string host() const;
    std::string server_version() const;
    std::string login() const;

    // Runs `statements`, separated by semicolons, in one round trip. `results` gets the rows of each, in their order;
    // on failure, those of the ones before it. Unless a BEGIN is among them, they are one transaction.
    bool run(const std::string& statements, RESULTS& results);
    // "COPY ... FROM STDIN": lines of its text format, each whole or in parts, between a beginning and an end. After a
    // failure of copy_put() the end must not be called.
    bool copy_begin(const std::string& statement);
    bool copy_put(const std::string& lines);
    bool copy_end();

    bool fail(const std::string& error);
    // After a statement was REFUSED: says in our words why, where that is known. Returns false.
    bool explain();
    FAILURE failure() const { return m_failure; }
    // Of a statement that was REFUSED: five characters.
    const std::string& sqlstate() const { return m_sqlstate; }
    const std::string& last_error() const { return m_last_error; }
    void clear_error();

private:
    bool open_host(std::size_t host, CLOCK::time_point deadline, std::string& why);
    bool check_root_certificate(std::string& why) const;
    bool wait(bool for_writing);
    bool flush();
    bool send(const std::string& statements);
    bool collect(RESULTS& results);
    bool next_result(pg_result*& result);
    bool take(pg_result* result, RESULTS& results);
    bool lose(FAILURE failure, const std::string& words);
    bool refuse(const pg_result* result);

    GFPDB_SERVER m_server;
    std::string m_directory;
    pg_conn* m_connection = nullptr;
    // The host that is connected, or was last.
    std::size_t m_host = 0;
    std::optional<CLOCK::time_point> m_deadline;
    FAILURE m_failure = FAILURE::NONE;
    std::string m_sqlstate;
    std::string m_last_error;
};
