// SPDX-License-Identifier: MIT

// The file that names a server in a database directory. Others may have written it.
#include "gfpdb/gfpdb_server.h"
#include "gfpdb_test.h"
#include "store/gfpdb_store.h"
#include "test_rows.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

class TEST_SERVER_FILE : public DATABASE_TEST
{
    Q_OBJECT

    std::string directory() const { return m_place->db_dir(); }
    std::string file() const { return directory() + GFPDB_SERVER_FILE; }
    void set_up() override { make_dir(directory()); }

private slots:
    void what_was_written_is_read_again()
    {
        GFPDB_SERVER server;
        server.hosts = {"db1.example", "2001:db8::1", "/run/postgresql"};
        server.ports = {5432, 5433, 65535};
        server.database = "flash parts";
        server.schema = "lab_2";
        server.user = "j\xC3\xB6rg";
        server.sslmode = "verify-full";
        server.sslrootcert = "certs/root.crt";
        std::string error;
        QVERIFY2(gfpdb_write_server(directory(), server, error), error.c_str());

        const std::optional<GFPDB_SERVER> read = gfpdb_read_server(directory(), error);

        QVERIFY2(read.has_value(), error.c_str());
        QVERIFY(read->hosts == server.hosts);
        QVERIFY(read->ports == server.ports);
        QCOMPARE(read->database, server.database);
        QCOMPARE(read->schema, server.schema);
        QCOMPARE(read->user, server.user);
        QCOMPARE(read->sslmode, server.sslmode);
        QCOMPARE(read->sslrootcert, server.sslrootcert);
    }

    void what_is_not_said_is_up_to_libpq()
    {
        write_file(file(), "\xEF\xBB\xBF# a comment\n; another\n\n [server] \r\n database = flash \r\n");
        std::string error;

        const std::optional<GFPDB_SERVER> read = gfpdb_read_server(directory(), error);

        QVERIFY2(read.has_value(), error.c_str());
        QCOMPARE(read->database, std::string("flash"));
        QCOMPARE(read->schema, std::string("gfpdb"));
        QVERIFY(read->hosts.empty() && read->ports.empty() && read->user.empty() && read->sslmode.empty());
    }

    // As users type it.
    void a_directory_needs_no_slash_at_its_end()
    {
        const std::string without = directory().substr(0, directory().size() - 1);
        GFPDB_SERVER server;
        server.database = "flash";
        server.sslrootcert = "root.crt";
        std::string error;

        QVERIFY2(gfpdb_write_server(without, server, error), error.c_str());

        QVERIFY(gfpdb_names_server(without));
        QVERIFY(gfpdb_names_server(directory()));
        QVERIFY(gfpdb_read_server(without, error).has_value());
        QVERIFY(!gfpdb_server_status(server, without, error).has_value());
        QVERIFY2(error.find(directory() + "root.crt") != std::string::npos, error.c_str());
    }

    void a_directory_that_names_a_server_since_is_not_written_data()
    {
        rows<bool>({{"its database is still there", true}, {"its database was moved away", false}});
    }

    // Nobody would see what goes into the old file, and a new one would be in everybody's way.
    void a_directory_that_names_a_server_since_is_not_written()
    {
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(directory());
        QVERIFY(store->save_device(make_row("Before")));
        if (!row<bool>())
            QVERIFY(QFile::remove(QString::fromStdString(m_place->db_file())));
        const std::string before = row<bool>() ? read_file(m_place->db_file()) : std::string();
        write_file(file(), "[server]\ndatabase=flash\n");

        for (int attempt = 0; attempt < 2; ++attempt) {
            QVERIFY(!store->save_device(make_row("After")));
            QVERIFY2(store->get_problem().find(GFPDB_SERVER_FILE) != std::string::npos, store->get_problem().c_str());
        }
        QCOMPARE(row<bool>() ? read_file(m_place->db_file()) : std::string(), before);
        QCOMPARE(QFile::exists(QString::fromStdString(m_place->db_file())), row<bool>());
    }

    void a_strange_file_is_refused_with_its_reason_data()
    {
        const QString many = QStringLiteral("hosts=") + QStringLiteral("a,").repeated(16) + QLatin1Char('a');
        const auto a = [](int length) { return QString(length, QLatin1Char('a')); };
        const auto is_not = [](const char* key, const char* value) {
            return QStringLiteral("\"%1\" cannot be \"%2\"").arg(QLatin1String(key), QLatin1String(value));
        };
        rows<QString, QString>(
            {{"empty", "", "it has no settings"},
             {"no section", "database=x\n", "it does not begin with [server]"},
             {"another section", "[server]\n[other]\n", "\"[other]\" is not a setting"},
             {"password", "[server]\ndatabase=x\npassword=y\n",
              "passwords do not belong into it: put them into the file .pgpass in your home directory"},
             {"password file", "[server]\npassfile=/etc/shadow\n",
              "passwords do not belong into it: put them into "
              "the file .pgpass in your home directory"},
             {"unknown", "[server]\nservicefile=/tmp/x\n",
              "\"servicefile\" is not a setting. There are: hosts, port, database, schema, user, sslmode, sslrootcert"},
             {"twice", "[server]\ndatabase=x\ndatabase=y\n", "\"database\" is there twice"},
             {"no database", "[server]\nhosts=x\n", "it does not say which \"database\" is meant"},
             {"host", "[server]\ndatabase=x\nhosts=a b\n", is_not("hosts", "a b")},
             {"empty host", "[server]\ndatabase=x\nhosts=a,,b\n", is_not("hosts", "")},
             {"abstract socket", "[server]\ndatabase=x\nhosts=@a\n", is_not("hosts", "@a")},
             {"too many hosts", QStringLiteral("[server]\ndatabase=x\n") + many + QLatin1Char('\n'),
              "it names too many hosts"},
             {"port 0", "[server]\ndatabase=x\nport=0\n", is_not("port", "0")},
             {"port too high", "[server]\ndatabase=x\nport=65536\n", is_not("port", "65536")},
             {"port of six digits", "[server]\ndatabase=x\nport=005432\n", is_not("port", "005432")},
             {"port as a word", "[server]\ndatabase=x\nport=http\n", is_not("port", "http")},
             {"ports of other hosts", "[server]\ndatabase=x\nhosts=a\nport=1,2\n",
              "\"port\" must be one for all hosts, or one for each"},
             {"schema with a quote", "[server]\ndatabase=x\nschema=a\"b\n", is_not("schema", "a\"b")},
             {"schema with a capital", "[server]\ndatabase=x\nschema=Lab\n", is_not("schema", "Lab")},
             {"schema with a digit first", "[server]\ndatabase=x\nschema=1a\n", is_not("schema", "1a")},
             {"schema of the system", "[server]\ndatabase=x\nschema=pg_catalog\n", is_not("schema", "pg_catalog")},
             {"schema that is a word of SQL", "[server]\ndatabase=x\nschema=user\n", is_not("schema", "user")},
             {"long schema", QStringLiteral("[server]\ndatabase=x\nschema=") + a(51) + QLatin1Char('\n'),
              is_not("schema", qPrintable(a(51)))},
             {"long database", QStringLiteral("[server]\ndatabase=") + a(64) + QLatin1Char('\n'),
              is_not("database", qPrintable(a(64)))},
             {"long user", QStringLiteral("[server]\ndatabase=x\nuser=") + a(64) + QLatin1Char('\n'),
              is_not("user", qPrintable(a(64)))},
             {"TLS mode", "[server]\ndatabase=x\nsslmode=maybe\n", is_not("sslmode", "maybe")},
             {"control character", "[server]\ndatabase=x\ty\n", is_not("database", "x?y")}});
    }

    void a_strange_file_is_refused_with_its_reason()
    {
        const auto [content, reason] = row<QString, QString>();
        write_file(file(), content.toStdString());
        std::string error;

        QVERIFY(!gfpdb_read_server(directory(), error));

        QCOMPARE(error, "The file " + file() + " cannot be used: " + reason.toStdString() + '.');
    }

    // Another file than a regular one of a moderate size could be read for ever.
    void a_file_that_is_none_is_not_waited_for_data()
    {
        rows<QString>({{"pipe", "pipe"}, {"device", "/dev/zero"}, {"large", "large"}});
    }

    void a_file_that_is_none_is_not_waited_for()
    {
        const QString kind = row<QString>();
        if (kind == QLatin1String("pipe"))
            QVERIFY(::mkfifo(file().c_str(), 0600) == 0);
        else if (kind == QLatin1String("large"))
            write_file(file(), "[server]\ndatabase=x\n" + std::string(64 * 1024, '\n'));
        else
            QVERIFY(::symlink(qPrintable(kind), file().c_str()) == 0);
        std::string error;

        QVERIFY(!gfpdb_read_server(directory(), error));

        QVERIFY2(error.find(" cannot be used: ") != std::string::npos, error.c_str());
    }

    void a_server_that_cannot_be_named_is_not_written()
    {
        GFPDB_SERVER server;
        server.database = "x\nhosts=y";
        std::string error;

        QVERIFY(!gfpdb_write_server(directory(), server, error));

        QCOMPARE(error,
                 std::string("The settings of the server cannot be used: \"database\" cannot be \"x?hosts=y\"."));
        QVERIFY(!gfpdb_names_server(directory()));
    }

    void no_server_is_named_beside_a_database()
    {
        GFPDB_SERVER server;
        server.database = "x";
        write_file(directory() + "gfpdb.sqlite", "x");
        std::string error;

        QVERIFY(!gfpdb_write_server(directory(), server, error));

        QVERIFY2(error.find("gfpdb copy") != std::string::npos, error.c_str());
        QVERIFY(!gfpdb_names_server(directory()));
    }
};

QTEST_GUILESS_MAIN(TEST_SERVER_FILE)

#include "test_server_file.moc"
