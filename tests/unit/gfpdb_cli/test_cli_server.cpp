// SPDX-License-Identifier: MIT

// gfpdb server: what an administrator runs, the file that names the server, how the server is.
#include "cli_test.h"
#include "test_rows.h"

#include <QFile>

namespace {

constexpr int EXIT_USAGE = 2;
constexpr int EXIT_DATABASE = 5;

} // namespace

class TEST_CLI_SERVER : public CLI_TEST
{
    Q_OBJECT

private slots:
    void wrong_arguments_are_refused_data()
    {
        const QString needs = QStringLiteral("init needs --host and --database.");
        const QString port = QStringLiteral("--port needs a number, or several separated by commas.");
        rows<QStringList, QString>(
            {{"no command", {}, "An argument is missing: gfpdb server sql|init|status [DIRECTORY]"},
             {"another command", {"start"}, "\"start\" is not a server command. Allowed: sql, init, status."},
             {"sql of a directory", {"sql", "db/"}, "Unexpected argument \"db/\": gfpdb server sql"},
             {"sql of a name that is none",
              {"sql", "--schema", "My Schema"},
              "The settings of the server cannot be used: \"schema\" cannot be \"My Schema\"."},
             {"init of nothing", {"init"}, "An argument is missing: gfpdb server init DIRECTORY"},
             {"init without a host", {"init", "db/", "--database", "flash"}, needs},
             {"init without a database", {"init", "db/", "--host", "db1"}, needs},
             {"a port that is no number", {"init", "db/", "--host", "db1", "--database", "flash", "--port", "x"}, port},
             {"an empty port", {"init", "db/", "--host", "db1", "--database", "flash", "--port", "1,,2"}, port},
             {"ports that do not fit",
              {"init", "db/", "--host", "db1,db2,db3", "--database", "flash", "--port", "1,2"},
              "The settings of the server cannot be used: \"port\" must be one for all hosts, or one for each."}});
    }

    void wrong_arguments_are_refused()
    {
        const auto [arguments, problem] = row<QStringList, QString>();

        const TOOL_RUN run = run_tool(QStringList{"server"} + arguments);

        QCOMPARE(run.exit_code, EXIT_USAGE);
        QCOMPARE(QString::fromUtf8(run.err), "gfpdb: " + problem + "\n");
        QCOMPARE(run.out, QByteArray());
    }

    void a_server_that_does_not_answer_is_not_named()
    {
        const TOOL_RUN run = run_tool(
            {"server", "init", q(m_place->db_dir()), "--host", q(m_place->path("no/")), "--database", "flash"});

        QCOMPARE(run.exit_code, EXIT_DATABASE);
        QVERIFY2(run.err.startsWith("gfpdb: "), run.err.constData());
        QVERIFY(!QFile::exists(at("db/gfpdb-server.ini")));
    }

    void a_directory_that_names_no_server_has_no_status()
    {
        for (const TOOL_RUN& run : {tool({"server", "status"}), run_tool({"server", "status", q(m_place->db_dir())})}) {
            QCOMPARE(run.exit_code, EXIT_DATABASE);
            QCOMPARE(run.err, "gfpdb: The database of " + QByteArray::fromStdString(m_place->db_dir()) +
                                  " is not on a server: the directory has no gfpdb-server.ini.\n");
        }
    }

    void a_file_that_cannot_be_used_is_reported()
    {
        write_file(m_place->path("db/gfpdb-server.ini"), "[server]\nhosts=db1\n");

        const TOOL_RUN run = tool({"server", "status"});

        QCOMPARE(run.exit_code, EXIT_DATABASE);
        QVERIFY2(run.err.contains("cannot be used: it does not say which \"database\" is meant."), run.err.constData());
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_SERVER)

#include "test_cli_server.moc"
