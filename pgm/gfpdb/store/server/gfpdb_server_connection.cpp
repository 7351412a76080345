// SPDX-License-Identifier: MIT
#include "store/server/gfpdb_server_connection.h"

#include "base/gfpdb_log.h"
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include <libpq-fe.h>
#include <poll.h>
#include <sys/stat.h>

namespace {

// One line, and one sentence without its end.
std::string words_of(const char* message)
{
    std::string words = gfpdb_is_utf8(message) ? message : "unreadable message";
    std::replace(words.begin(), words.end(), '\n', ' ');
    while (!words.empty() && (words.back() == ' ' || words.back() == '.'))
        words.pop_back();
    return words;
}

void log_notice(void*, const PGresult* notice)
{
    qCDebug(GFPDB_LOG, "%s", words_of(PQresultErrorMessage(notice)).c_str());
}

// Waits until the socket is ready, or until `deadline`; false then.
bool wait_for(int socket, short events, GFPDB_SERVER_CONNECTION::CLOCK::time_point deadline)
{
    using namespace std::chrono;
    for (;;) {
        const auto left = duration_cast<milliseconds>(deadline - GFPDB_SERVER_CONNECTION::CLOCK::now()).count();
        pollfd descriptor = {socket, events, 0};
        const int ready = ::poll(&descriptor, 1, static_cast<int>(std::max<long>(left, 0)));
        if (ready > 0)
            return true;
        if ((ready == 0 && left <= 0) || (ready < 0 && errno != EINTR))
            return false;
    }
}

// What PQconnectStartParams() takes: keywords and values, ended by a null.
class PARAMETERS
{
public:
    // Without a value it is up to libpq.
    void add(const char* keyword, const std::string& value)
    {
        if (!value.empty())
            m_pairs.emplace_back(keyword, value);
    }
    PGconn* start() const
    {
        std::vector<const char*> keywords;
        std::vector<const char*> values;
        for (const auto& [keyword, value] : m_pairs) {
            keywords.push_back(keyword);
            values.push_back(value.c_str());
        }
        keywords.push_back(nullptr);
        values.push_back(nullptr);
        // The name of a database must not be taken for more parameters.
        constexpr int NO_EXPANSION = 0;
        return PQconnectStartParams(keywords.data(), values.data(), NO_EXPANSION);
    }

private:
    std::vector<std::pair<const char*, std::string>> m_pairs;
};

} // namespace

GFPDB_SERVER_ROWS::GFPDB_SERVER_ROWS(pg_result* result) : m_result(result, PQclear) {}

int GFPDB_SERVER_ROWS::count() const
{
    return PQntuples(m_result.get());
}

std::string GFPDB_SERVER_ROWS::text(int row, int column) const
{
    return std::string(PQgetvalue(m_result.get(), row, column),
                       static_cast<std::size_t>(PQgetlength(m_result.get(), row, column)));
}

bool GFPDB_SERVER_ROWS::is_null(int row, int column) const
{
    return PQgetisnull(m_result.get(), row, column) != 0;
}

std::int64_t GFPDB_SERVER_ROWS::number(int row, int column) const
{
    return std::strtoll(PQgetvalue(m_result.get(), row, column), nullptr, 10);
}

int GFPDB_SERVER_ROWS::changed() const
{
    return std::atoi(PQcmdTuples(m_result.get()));
}

GFPDB_SERVER_CONNECTION::GFPDB_SERVER_CONNECTION(const GFPDB_SERVER& server, const std::string& directory)
    : m_server(server), m_directory(directory)
{
    if (!m_directory.empty() && m_directory.back() != '/')
        m_directory += '/';
}

GFPDB_SERVER_CONNECTION::~GFPDB_SERVER_CONNECTION()
{
    close();
}

void GFPDB_SERVER_CONNECTION::close()
{
    PQfinish(m_connection);
    m_connection = nullptr;
}

bool GFPDB_SERVER_CONNECTION::open()
{
    close();
    const std::size_t hosts = std::max<std::size_t>(m_server.hosts.size(), 1);
    const CLOCK::time_point limit = CLOCK::now() + CONNECT_LIMIT;
    const CLOCK::time_point end = m_deadline ? std::min(limit, *m_deadline) : limit;
    const std::size_t first = m_host;
    std::string why;
    std::string whys;
    if (!check_root_certificate(why))
        return lose(FAILURE::LOST, why);
    for (std::size_t i = 0; i < hosts; ++i) {
        m_host = (first + i) % hosts;
        // Each of those that are left gets the same share of the time.
        const CLOCK::time_point now = CLOCK::now();
        if (open_host(m_host, now + (end - now) / static_cast<int>(hosts - i), why))
            return true;
        whys += (whys.empty() ? "" : "; ") + why;
    }
    m_host = first;
    return lose(FAILURE::LOST, whys);
}

// A pipe in its place would be waited for.
bool GFPDB_SERVER_CONNECTION::check_root_certificate(std::string& why) const
{
    struct stat status = {};
    const std::string& file = m_server.sslrootcert;
    if (file.empty())
        return true;
    const std::string path = file.front() == '/' ? file : m_directory + file;
    if (::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode))
        return true;
    why = GFPDB_WORDS::say("the certificates %1 are not a file", {path});
    return false;
}

bool GFPDB_SERVER_CONNECTION::open_host(std::size_t host, CLOCK::time_point deadline, std::string& why)
{
    PARAMETERS parameters;
    const bool is_one_port = m_server.ports.size() == 1;
    const std::string& root = m_server.sslrootcert;
    if (!m_server.hosts.empty())
        parameters.add("host", m_server.hosts[host]);
    if (!m_server.ports.empty())
        parameters.add("port", std::to_string(m_server.ports[is_one_port ? 0 : host]));
    parameters.add("dbname", m_server.database);
    parameters.add("user", m_server.user);
    parameters.add("sslmode", m_server.sslmode);
    parameters.add("sslrootcert", root.empty() || root.front() == '/' ? root : m_directory + root);
    parameters.add("target_session_attrs", m_server.hosts.size() > 1 ? "read-write" : "");
    parameters.add("client_encoding", "UTF8");
    parameters.add("fallback_application_name", "gfpdb");
    m_connection = parameters.start();
    PostgresPollingStatusType status = PGRES_POLLING_WRITING;
    while (m_connection != nullptr && PQstatus(m_connection) != CONNECTION_BAD && status != PGRES_POLLING_FAILED) {
        const short events = status == PGRES_POLLING_WRITING ? POLLOUT : POLLIN;
        if (!wait_for(PQsocket(m_connection), events, deadline))
            break;
        status = PQconnectPoll(m_connection);
        if (status == PGRES_POLLING_OK) {
            PQsetnonblocking(m_connection, 1);
            PQsetNoticeReceiver(m_connection, log_notice, nullptr);
            return true;
        }
    }
    const bool is_refused = m_connection != nullptr && PQstatus(m_connection) == CONNECTION_BAD;
    why = is_refused ? words_of(PQerrorMessage(m_connection)) : "there was no answer in time";
    if (!is_refused && !m_server.hosts.empty())
        why = m_server.hosts[host] + ": " + why;
    close();
    return false;
}

bool GFPDB_SERVER_CONNECTION::is_in_transaction() const
{
    return m_connection != nullptr && PQtransactionStatus(m_connection) != PQTRANS_IDLE;
}

std::string GFPDB_SERVER_CONNECTION::host() const
{
    if (m_connection == nullptr)
        return m_server.hosts.empty() ? std::string("of libpq's settings") : gfpdb_joined(m_server.hosts);
    const std::string host = PQhost(m_connection);
    return (host.empty() ? "localhost" : host) + ':' + PQport(m_connection);
}

std::string GFPDB_SERVER_CONNECTION::server_version() const
{
    const char* const version = m_connection != nullptr ? PQparameterStatus(m_connection, "server_version") : nullptr;
    return version != nullptr ? version : "";
}

std::string GFPDB_SERVER_CONNECTION::login() const
{
    return m_connection != nullptr ? PQuser(m_connection) : m_server.user;
}

void GFPDB_SERVER_CONNECTION::clear_error()
{
    m_failure = FAILURE::NONE;
    m_sqlstate.clear();
    m_last_error.clear();
}

bool GFPDB_SERVER_CONNECTION::fail(const std::string& error)
{
    m_last_error = error;
    return false;
}

bool GFPDB_SERVER_CONNECTION::lose(FAILURE failure, const std::string& words)
{
    const std::string server = host();
    close();
    m_failure = failure;
    m_sqlstate.clear();
    return fail(failure == FAILURE::LATE
                    ? GFPDB_WORDS::say("The database server %1 did not answer in time.", {server})
                    : GFPDB_WORDS::say("The database server %1 cannot be reached: %2.", {server, words}));
}

bool GFPDB_SERVER_CONNECTION::refuse(const pg_result* result)
{
    const char* const state = PQresultErrorField(result, PG_DIAG_SQLSTATE);
    const char* const message = PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY);
    m_failure = FAILURE::REFUSED;
    m_sqlstate = state != nullptr ? state : "";
    return fail(
        GFPDB_WORDS::say("The database server %1 refused: %2.",
                         {host(), words_of(message != nullptr ? message : GFPDB_WORDS::say("no reason").c_str())}));
}

// Says in our words what the server refused, where it is known.
bool GFPDB_SERVER_CONNECTION::explain()
{
    const std::string& state = m_sqlstate;
    const std::string database = gfpdb_quoted(m_server.database);
    if (state == "42501")
        return fail(GFPDB_WORDS::say(
            "The database %1 on the server %2 does not allow that to the login %3: its administrator "
            "can grant the role %4 or %5.",
            {database, host(), gfpdb_quoted(login()), m_server.schema + "_reader", m_server.schema + "_editor"}));
    if (state == "3F000" || state == "42P01" || state == "42703")
        return fail(
            GFPDB_WORDS::say("The database %1 on the server %2 has no schema %3 for devices: its administrator can "
                             "make it with \"gfpdb server sql\".",
                             {database, host(), gfpdb_quoted(m_server.schema)}));
    if (state == "53100" || state == "53200")
        return fail(GFPDB_WORDS::say("There is no room for the change on the server %1.", {host()}));
    if (state == "55P03" || state == "57014")
        return fail(
            GFPDB_WORDS::say("The database %1 on the server %2 is locked by another program.", {database, host()}));
    if (state == "40001" || state == "40P01" || state == "23505")
        return fail(GFPDB_WORDS::say("The database %1 on the server %2 is changed by too many programs now: try again.",
                                     {database, host()}));
    return false;
}

bool GFPDB_SERVER_CONNECTION::wait(bool for_writing)
{
    const int socket = PQsocket(m_connection);
    if (socket < 0) // closed by libpq itself: poll() would wait for nothing
        return lose(FAILURE::LOST, words_of(PQerrorMessage(m_connection)));
    const short events = for_writing ? POLLIN | POLLOUT : POLLIN;
    return wait_for(socket, events, m_deadline ? *m_deadline : CLOCK::now() + PATIENCE) ||
           lose(FAILURE::LATE, std::string());
}

// What the server says meanwhile is read: it may wait until it is.
bool GFPDB_SERVER_CONNECTION::flush()
{
    for (;;) {
        const int left = PQflush(m_connection);
        if (left == 0)
            return true;
        if (left < 0)
            return lose(FAILURE::LOST, words_of(PQerrorMessage(m_connection)));
        if (!wait(true))
            return false;
        if (PQconsumeInput(m_connection) == 0)
            return lose(FAILURE::LOST, words_of(PQerrorMessage(m_connection)));
    }
}

bool GFPDB_SERVER_CONNECTION::send(const std::string& statements)
{
    if (m_connection == nullptr)
        return lose(FAILURE::LOST, GFPDB_WORDS::say("the connection is closed"));
    return (PQsendQuery(m_connection, statements.c_str()) != 0 ||
            lose(FAILURE::LOST, words_of(PQerrorMessage(m_connection)))) &&
           flush();
}

bool GFPDB_SERVER_CONNECTION::run(const std::string& statements, RESULTS& results)
{
    results.clear();
    clear_error();
    return send(statements) && collect(results);
}

// Up to the end of all results, also after one that failed: only then can the connection be used again.
bool GFPDB_SERVER_CONNECTION::collect(RESULTS& results)
{
    bool is_good = true;
    for (;;) {
        pg_result* result = nullptr;
        if (!next_result(result))
            return false;
        if (result == nullptr)
            break;
        is_good = take(result, results) && is_good;
        if (m_connection == nullptr)
            return false;
    }
    if (PQstatus(m_connection) != CONNECTION_OK)
        return lose(FAILURE::LOST, words_of(PQerrorMessage(m_connection)));
    return is_good;
}

// Null at the end of all results.
bool GFPDB_SERVER_CONNECTION::next_result(pg_result*& result)
{
    while (PQisBusy(m_connection) != 0) {
        if (!wait(false))
            return false;
        if (PQconsumeInput(m_connection) == 0)
            return lose(FAILURE::LOST, words_of(PQerrorMessage(m_connection)));
    }
    result = PQgetResult(m_connection);
    return true;
}

// A copy that was not begun by copy() has no end but that of the connection.
bool GFPDB_SERVER_CONNECTION::take(pg_result* result, RESULTS& results)
{
    const GFPDB_SERVER_ROWS rows(result);
    switch (PQresultStatus(result)) {
    case PGRES_COMMAND_OK:
    case PGRES_TUPLES_OK:
        results.push_back(rows);
        return true;
    case PGRES_COPY_IN:
    case PGRES_COPY_OUT:
    case PGRES_COPY_BOTH:
        return lose(FAILURE::LOST, "a copy was begun");
    default:
        return refuse(result);
    }
}

bool GFPDB_SERVER_CONNECTION::copy_begin(const std::string& statement)
{
    RESULTS results;
    pg_result* begun = nullptr;
    clear_error();
    if (!send(statement) || !next_result(begun))
        return false;
    if (PQresultStatus(begun) == PGRES_COPY_IN) {
        PQclear(begun);
        return true;
    }
    const bool is_taken = take(begun, results);
    return m_connection != nullptr && collect(results) && is_taken &&
           fail(GFPDB_WORDS::say("The server does not copy."));
}

// What is wrong with the lines comes with the results.
bool GFPDB_SERVER_CONNECTION::copy_put(const std::string& lines)
{
    int is_put = 0;
    while ((is_put = PQputCopyData(m_connection, lines.data(), static_cast<int>(lines.size()))) == 0) {
        if (!wait(true))
            return false;
    }
    return (is_put > 0 || lose(FAILURE::LOST, words_of(PQerrorMessage(m_connection)))) && flush();
}

bool GFPDB_SERVER_CONNECTION::copy_end()
{
    RESULTS results;
    PQputCopyEnd(m_connection, nullptr);
    return flush() && collect(results);
}
