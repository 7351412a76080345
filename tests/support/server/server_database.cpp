// SPDX-License-Identifier: MIT
#include "server_database.h"

#include "pg_bouncer.h"

#include <QFile>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <map>

namespace {

const QString LOCKER = "the lock on the server";

std::map<std::string, SERVER_DATABASE*>& databases()
{
    static std::map<std::string, SERVER_DATABASE*> all;
    return all;
}

const PG_BOUNCER& pooler()
{
    static const PG_BOUNCER bouncer(POSTGRES_SERVER::of_program());
    return bouncer;
}

// What the tests' statements call by SQLite's name.
constexpr char SQLITE_FUNCTIONS[] = R"(
CREATE FUNCTION public.typeof(text) RETURNS text LANGUAGE sql AS 'SELECT pg_typeof($1)::text';
CREATE FUNCTION public.quote(anyelement) RETURNS text LANGUAGE sql AS 'SELECT quote_nullable($1)';
CREATE FUNCTION public.strftime(text, text, text) RETURNS text LANGUAGE sql AS
    'SELECT to_char(now() AT TIME ZONE ''UTC'' + $3::interval, ''YYYY-MM-DD"T"HH24:MI:SS"Z"'')';
CREATE FUNCTION public.concat_next(text, text, text) RETURNS text LANGUAGE sql AS
    'SELECT CASE WHEN $1 IS NULL THEN $2 WHEN $2 IS NULL THEN $1 ELSE $1 || $3 || $2 END';
CREATE AGGREGATE public.group_concat(text, text) (sfunc = public.concat_next, stype = text);
CREATE FUNCTION public.concat_next(text, text) RETURNS text LANGUAGE sql AS
    'SELECT public.concat_next($1, $2, '','')';
CREATE AGGREGATE public.group_concat(text) (sfunc = public.concat_next, stype = text);
)";

// Once for the server.
void prepare_server(const POSTGRES_SERVER& server)
{
    static bool is_prepared = false;
    if (is_prepared)
        return;
    is_prepared = true;
    server.run("CREATE ROLE " + QLatin1String(SERVER_DATABASE::USER) + " LOGIN");
    server.run(QLatin1String(SQLITE_FUNCTIONS));
}

// The functions of the test class that need a file.
QStringList embedded_only(const QString& test_class)
{
    QFile file(EMBEDDED_ONLY_LIST);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no list of the tests of files");
    const QRegularExpression line("^(\\w+) (\\w+): ", QRegularExpression::MultilineOption);
    QStringList functions;
    QRegularExpressionMatchIterator matches = line.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (match.captured(1) == test_class)
            functions.append(match.captured(2));
    }
    return functions;
}

QStringList functions_of(const QObject& test)
{
    static const QStringList own = {"initTestCase", "cleanupTestCase", "init", "cleanup"};
    QStringList functions;
    const QMetaObject& type = *test.metaObject();
    for (int index = QObject::staticMetaObject.methodCount(); index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        const QString name = QString::fromLatin1(method.name());
        if (method.access() == QMetaMethod::Private && method.methodType() == QMetaMethod::Slot &&
            !name.endsWith("_data") && !own.contains(name))
            functions.append(name);
    }
    return functions;
}

} // namespace

bool tests_are_on_server()
{
    return qEnvironmentVariableIsSet("GFPDB_TEST_STORE");
}

SERVER_DATABASE::SERVER_DATABASE(const std::string& directory, std::string (*make_sql)(const std::string& schema))
    : m_directory(directory)
{
    static int number = 0;
    m_schema = "s" + QString::number(++number);
    const POSTGRES_SERVER& server = POSTGRES_SERVER::of_program();
    prepare_server(server);
    server.run(QString::fromStdString(make_sql(m_schema.toStdString())));
    server.run("GRANT " + m_schema + "_editor TO " + QLatin1String(USER));
    databases()[directory] = this;
    if (qgetenv("GFPDB_TEST_STORE") == "pooled")
        go_through(pooler().port());
    else
        name(server.socket_directory(), QString::number(server.port()));
}

SERVER_DATABASE::~SERVER_DATABASE()
{
    unlock();
    databases().erase(m_directory);
}

SERVER_DATABASE* SERVER_DATABASE::find(const std::string& directory)
{
    const auto found = databases().find(directory);
    return found == databases().end() ? nullptr : found->second;
}

void SERVER_DATABASE::name(const QString& hosts, const QString& ports, const QString& more) const
{
    QFile file(QFile::decodeName(m_directory.c_str()) + "gfpdb-server.ini");
    const QString user = more.contains("user=") ? QString() : "user=" + QLatin1String(USER) + '\n';
    const QString content = QString("[server]\nhosts=%1\nport=%2\ndatabase=%3\nschema=%4\n")
                                .arg(hosts, ports, QLatin1String(POSTGRES_SERVER::DATABASE), m_schema);
    if (!file.open(QIODevice::WriteOnly) || file.write((content + user + more).toUtf8()) < 0)
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

void SERVER_DATABASE::go_through(int port) const
{
    name("127.0.0.1", QString::number(port), "sslmode=disable\n");
}

QVariant SERVER_DATABASE::run(const QString& statement) const
{
    return POSTGRES_SERVER::of_program().run(statement, m_schema);
}

QStringList SERVER_DATABASE::list(const QString& query) const
{
    return POSTGRES_SERVER::of_program().list(query, m_schema);
}

void SERVER_DATABASE::lock(const QString& how)
{
    const QString mode = how == "EXCLUSIVE" ? "ACCESS EXCLUSIVE" : "EXCLUSIVE";
    QSqlQuery query(POSTGRES_SERVER::of_program().connect(LOCKER, m_schema));
    if (!query.exec("BEGIN; LOCK TABLE meta, device, template, history IN " + mode + " MODE"))
        qFatal("no lock: %s", qPrintable(query.lastError().text()));
}

// Waits for the server: one that only learns of the closed connection holds the lock a moment longer.
void SERVER_DATABASE::unlock()
{
    QSqlQuery(QSqlDatabase::database(LOCKER, false)).exec("ROLLBACK");
    QSqlDatabase::removeDatabase(LOCKER);
}

QStringList arguments_for_store(const QObject& test, const QStringList& arguments)
{
    const QString test_class = QLatin1String(test.metaObject()->className());
    QStringList functions = functions_of(test);
    for (const QString& function : embedded_only(test_class)) {
        if (functions.removeAll(function) != 1)
            qFatal("%s has no function %s", qPrintable(test_class), qPrintable(function));
    }
    const bool are_chosen = arguments.size() > 1;
    return !tests_are_on_server() || are_chosen ? arguments : arguments + functions;
}
