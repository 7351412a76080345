// SPDX-License-Identifier: MIT

// The servers of the tests are what the tests take them for.
#include "pg_bouncer.h"
#include "postgres_server.h"
#include "tcp_proxy.h"
#include "test_rows.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTest>
#include <QUuid>

#include <csignal>
#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

namespace {

// A client's connection over TCP, open as long as the object lives.
class CLIENT
{
public:
    explicit CLIENT(int port, const QString& options = QString(), const QString& user = QStringLiteral("client"))
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), m_name);
        connection.setHostName(QStringLiteral("localhost"));
        connection.setPort(port);
        connection.setUserName(user);
        connection.setDatabaseName(QLatin1String(POSTGRES_SERVER::DATABASE));
        connection.setConnectOptions(options);
        connection.open();
        m_error = connection.lastError().text();
    }
    ~CLIENT() { QSqlDatabase::removeDatabase(m_name); }
    CLIENT(const CLIENT&) = delete;
    CLIENT& operator=(const CLIENT&) = delete;

    bool is_open() const { return QSqlDatabase::database(m_name, false).isOpen(); }
    QString error() const { return m_error; }
    QVariant run(const QString& statement)
    {
        QSqlQuery query(QSqlDatabase::database(m_name, false));
        if (!query.exec(statement))
            return QVariant();
        return query.next() ? query.value(0) : QVariant(true);
    }

private:
    QString m_name = QUuid::createUuid().toString();
    QString m_error;
};

POSTGRES_SERVER& server()
{
    return POSTGRES_SERVER::of_program();
}

bool is_there(pid_t process)
{
    return QFile::exists(QStringLiteral("/proc/%1").arg(process));
}

} // namespace

class TEST_SERVER_STAND_SELF : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { server().run("CREATE ROLE client LOGIN"); }

    void what_the_server_shows_is_checked_data()
    {
        rows<QString, QString, bool>({{"its own certificate", "server", "ca", true},
                                      {"another host's", "wrong", "ca", false},
                                      {"another authority's", "foreign", "ca", false},
                                      {"another authority's that is trusted", "foreign", "foreign-ca", true}});
    }

    void what_the_server_shows_is_checked()
    {
        const auto [shown, trusted, is_open] = row<QString, QString, bool>();
        const QString file = server().certificate(shown.toLatin1().constData());
        server().stop();
        server().start({"ssl_cert_file=" + file + ".crt", "ssl_key_file=" + file + ".key"});
        const QString authority = server().certificate(trusted.toLatin1().constData()) + ".crt";

        CLIENT client(server().port(), "sslmode=verify-full;sslrootcert=" + authority);

        QVERIFY2(client.is_open() == is_open, qPrintable(client.error()));
        if (is_open)
            QCOMPARE(client.run("SELECT ssl FROM pg_stat_ssl WHERE pid = pg_backend_pid()").toBool(), true);
        else
            QVERIFY2(client.error().contains("certificate"), qPrintable(client.error()));
        server().stop();
        server().start();
    }

    void a_secret_role_needs_its_password()
    {
        server().run("CREATE ROLE secretive LOGIN PASSWORD 'known' IN ROLE secret");

        QVERIFY(!CLIENT(server().port(), QString(), "secretive").is_open());
        qputenv("PGPASSWORD", "known");
        QVERIFY(CLIENT(server().port(), QString(), "secretive").is_open());
        qunsetenv("PGPASSWORD");
    }

    void what_was_committed_is_there_after_a_crash()
    {
        POSTGRES_SERVER own({"fsync=on"});
        own.run("CREATE TABLE kept AS SELECT 7 AS number");

        own.stop("immediate");
        QVERIFY(!own.is_running());
        own.start();

        QCOMPARE(own.run("SELECT number FROM kept").toInt(), 7);
        QVERIFY(own.log().contains("was not properly shut down"));
    }

    // Not even where nobody is left who could stop it.
    void a_server_ends_with_a_program_that_is_killed()
    {
        // Nobody else removes its files.
        const SERVER_DIRECTORY left_behind;
        int line[2];
        QCOMPARE(::pipe(line), 0);
        const pid_t program = ::fork();
        if (program == 0) {
            qputenv("TMPDIR", left_behind.path().toUtf8());
            const POSTGRES_SERVER orphan;
            const pid_t server_pid = orphan.pid();
            if (::write(line[1], &server_pid, sizeof server_pid) < 0)
                std::abort();
            ::raise(SIGKILL);
        }
        pid_t orphan = 0;
        QCOMPARE(::read(line[0], &orphan, sizeof orphan), ssize_t(sizeof orphan));
        ::waitpid(program, nullptr, 0);

        QTRY_VERIFY(!is_there(orphan));
    }

    void round_trips_are_counted()
    {
        TCP_PROXY proxy(server().port());
        CLIENT client(proxy.port(), "sslmode=disable");
        const int at_open = proxy.round_trips();
        QVERIFY(at_open > 0);
        QCOMPARE(proxy.connections(), 1);

        client.run("SELECT 1");
        client.run("SELECT repeat('x', 10000000)");

        QCOMPARE(proxy.round_trips(), at_open + 2);
        proxy.reset();
        QCOMPARE(proxy.round_trips(), 0);
        QCOMPARE(proxy.connections(), 0);
    }

    void a_delay_counts_both_ways()
    {
        TCP_PROXY proxy(server().port());
        CLIENT client(proxy.port(), "sslmode=disable");
        proxy.set_delay(20);
        QElapsedTimer timer;
        timer.start();

        client.run("SELECT 1");

        QVERIFY(timer.elapsed() >= 40);
    }

    void a_connection_is_cut_before_or_after_the_answer_data()
    {
        rows<int, int>({{"what the client says is lost", int(TCP_PROXY::CUT::REQUEST), 0},
                        {"what the server says is lost", int(TCP_PROXY::CUT::ANSWER), 1}});
    }

    void a_connection_is_cut_before_or_after_the_answer()
    {
        const auto [what, stored] = row<int, int>();
        server().run("CREATE TABLE cut (number int); GRANT ALL ON cut TO client");
        TCP_PROXY proxy(server().port());
        CLIENT client(proxy.port(), "sslmode=disable");
        proxy.reset();
        proxy.cut_at(2, TCP_PROXY::CUT(what));

        QVERIFY(client.run("SELECT 1").isValid());
        QVERIFY(!proxy.has_cut());
        QVERIFY(!client.run("INSERT INTO cut VALUES (1)").isValid());

        QVERIFY(proxy.has_cut());
        QCOMPARE(server().run("SELECT count(*) FROM cut").toInt(), stored);
        server().run("DROP TABLE cut");
    }

    void a_server_that_is_away_refuses()
    {
        TCP_PROXY proxy(server().port());
        proxy.refuse();
        QVERIFY(!CLIENT(proxy.port()).is_open());

        proxy.refuse(false);

        QVERIFY(CLIENT(proxy.port()).is_open());
    }

    void a_server_that_is_silent_is_not_heard()
    {
        TCP_PROXY proxy(server().port());
        proxy.fall_silent();

        const CLIENT client(proxy.port(), "connect_timeout=2");

        QVERIFY2(client.error().contains("timeout expired"), qPrintable(client.error()));
    }

    void clients_of_a_pooler_share_a_connection()
    {
        const PG_BOUNCER bouncer(server(), 1);
        CLIENT one(bouncer.port());
        CLIENT other(bouncer.port());
        QVERIFY2(one.is_open() && other.is_open(), qPrintable(other.error() + bouncer.log()));

        const QVariant of_one = one.run("SELECT pg_backend_pid()");

        QVERIFY(of_one.isValid());
        QCOMPARE(other.run("SELECT pg_backend_pid()"), of_one);
    }
};

QTEST_GUILESS_MAIN(TEST_SERVER_STAND_SELF)

#include "test_server_stand_self.moc"
