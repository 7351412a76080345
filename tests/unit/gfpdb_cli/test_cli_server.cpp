// SPDX-License-Identifier: MIT

// gfpdb server: what an administrator runs, the file that names the server, how the server is.
#include "cli_test.h"
#include "server_database.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_server.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

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

    // With the history, odd texts and flows that cannot be read; and back again, as it was.
    void a_directory_moves_to_a_server_and_back()
    {
        QVERIFY(QFile::copy(QStringLiteral(GFPDB_TEST_DATA "schema_3.sqlite"), at("db/gfpdb.sqlite")));
        QVERIFY(QFile::setPermissions(at("db/gfpdb.sqlite"), QFile::ReadOwner | QFile::WriteOwner));
        // What is not UTF-8 stays where it is: a server cannot keep it.
        make_dir(m_place->path("back/"));
        const SERVER_DATABASE server = made_server();
        QVERIFY(copy("db/", "server/").err.contains("\"Unreadable 4\": it is not a text in UTF-8"));
        QCOMPARE(json(run_tool({"list", "--json", "-d", at("server/")})).array().size(), 0);
        for (const char* table : {"device", "template", "history"})
            run_sql(m_place->db_file(), "UPDATE " + std::string(table) +
                                            " SET single_flows = 'none', quad_flows = 'none' "
                                            "WHERE name LIKE '%Unreadable%'");
        QCOMPARE(tool({"history", "--prune", "--keep", "0", "--force", "Renamed"}).exit_code, 0);

        for (const QStringList& way : {QStringList{"db/", "server/"}, QStringList{"server/", "back/"}}) {
            const TOOL_RUN run = copy(way[0], way[1]);
            QCOMPARE(run.err, QByteArray());
            QVERIFY2(run.out.startsWith("Copied 15 devices, 3 templates and 4 states of the history from "),
                     run.out.constData());
            for (const char* what : {"export", "list", "history"})
                QCOMPARE(of(what, way[1]), of(what, "db/"));
        }
        const TOOL_RUN again = copy("db/", "server/");
        QCOMPARE(again.exit_code, EXIT_DATABASE);
        QCOMPARE(again.err, "gfpdb: The database in " + at("server/").toUtf8() + " is not empty.\n");
        // No number is given twice: 5 was pruned.
        QVERIFY(fresh_manager_of("server/")->delete_flash("No Flows", m_place->path("server/")));
        const QJsonArray history = json(run_tool({"history", "--json", "No Flows", "-d", at("server/")})).array();
        QCOMPARE(history[0].toObject().value("id").toInt(), 6);
    }

    void a_server_that_answers_is_named()
    {
        const SERVER_DATABASE server = made_server();
        make_dir(m_place->path("named/"));
        const POSTGRES_SERVER& host = POSTGRES_SERVER::of_program();

        const TOOL_RUN run = run_tool(init("named/", server, SERVER_DATABASE::USER));

        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.out, "The database of " + at("named/").toUtf8() + " is on " + host.socket_directory().toUtf8() +
                              ":" + QByteArray::number(host.port()) + ", as tester (editor).\n");
        std::string error;
        const std::optional<GFPDB_SERVER> named = gfpdb_read_server(m_place->path("named/"), error);
        QCOMPARE(named->hosts, NAMES{host.socket_directory().toStdString()});
        QCOMPARE(named->ports, std::vector<int>{host.port()});
        QCOMPARE(named->database, std::string(POSTGRES_SERVER::DATABASE));
        QCOMPARE(named->schema, server.schema().toStdString());
        QCOMPARE(named->user, std::string(SERVER_DATABASE::USER));
    }

    void the_status_says_what_the_login_may_do()
    {
        const SERVER_DATABASE server = made_server();
        save_part_on_server();
        grant_reader(server);

        const QJsonObject editor = json(run_tool({"server", "status", "--json", at("server/")})).object();
        QCOMPARE(editor.value("role").toString(), QString("editor"));
        QCOMPARE(editor.value("login").toString(), QString("tester"));
        QCOMPARE(editor.value("devices").toInt(), 1);
        QCOMPARE(editor.value("templates").toInt(), 1);
        QCOMPARE(editor.value("history").toInt(), 0);
        QCOMPARE(editor.value("problem").toString(), QString());
        QVERIFY(editor.value("schema_version").toInt() > 0);
        QCOMPARE(editor.value("schema_version"), editor.value("newest_schema_version"));

        make_dir(m_place->path("reader/"));
        QCOMPARE(run_tool(init("reader/", server, "looker")).err, QByteArray());
        const TOOL_RUN reader = run_tool({"server", "status", "-d", at("reader/")});
        QCOMPARE(reader.exit_code, 0);
        QVERIFY2(reader.out.contains("\nLogin:                looker\nRole:                 reader\n"
                                     "Devices:              1\nTemplates:            1\n"
                                     "Former states:        0\n"),
                 reader.out.constData());
    }

    void a_schema_that_cannot_be_used_is_told_data()
    {
        rows<QString, QByteArray>({{"newer", "9", "was written by a newer program (schema 9)"},
                                   {"older", "1", "was written by an older program (schema 1)"},
                                   {"another program's", "0", "is a database of another program"}});
    }

    void a_schema_that_cannot_be_used_is_told()
    {
        const auto [version, problem] = row<QString, QByteArray>();
        const SERVER_DATABASE server = made_server();
        server.run("UPDATE meta SET value = '" + version + "' WHERE name = 'schema_version'");
        make_dir(m_place->path("none/"));

        for (const TOOL_RUN& run :
             {run_tool({"server", "status", at("server/")}), run_tool(init("none/", server, SERVER_DATABASE::USER))}) {
            QCOMPARE(run.exit_code, EXIT_DATABASE);
            QVERIFY2(run.err.contains(problem), run.err.constData());
        }
        QVERIFY(!QFile::exists(at("none/gfpdb-server.ini")));
    }

    // Such a schema could be named, but neither made nor read.
    void no_schema_is_called_as_a_word_of_the_servers_language()
    {
        const SERVER_DATABASE server = made_server();
        const QStringList words =
            server.list("SELECT word FROM pg_get_keywords() WHERE catcode IN ('R', 'T') ORDER BY word");
        QVERIFY2(words.size() > 90 && words.contains("user"), qPrintable(words.join(' ')));

        GFPDB_SERVER named;
        named.database = "flash";
        std::string error;
        for (const QString& word : words) {
            named.schema = word.toStdString();
            QVERIFY2(!gfpdb_check_server(named, error), qPrintable(word));
        }
    }

    // Neither of the two databases is used, however well the server is.
    void a_directory_with_two_databases_is_told()
    {
        const SERVER_DATABASE server = made_server();
        write_file(m_place->path("server/gfpdb.sqlite"), "");

        const TOOL_RUN run = run_tool({"server", "status", at("server/"), "--json"});

        QCOMPARE(run.exit_code, EXIT_DATABASE);
        QVERIFY2(run.err.contains("/server/gfpdb.sqlite and names a server in gfpdb-server.ini. Move the database to "
                                  "another directory"),
                 run.err.constData());
        QCOMPARE("gfpdb: " + json(run).object().value("problem").toString().toUtf8() + '\n', run.err);
    }

    // As a directory that cannot be written.
    void who_may_only_look_is_told()
    {
        const SERVER_DATABASE server = made_server();
        save_part_on_server();
        grant_reader(server);
        make_dir(m_place->path("reader/"));
        QCOMPARE(run_tool(init("reader/", server, "looker")).exit_code, 0);
        GFPDB_MGR& manager = *fresh_manager_of("reader/");

        expect_warning("can be read, but not changed");
        QVERIFY(!manager.find_flash("Part", true)->is_user_defined());
        QVERIFY(!manager.is_writable());
        const QString problem = QString::fromStdString(GFPDB_HELPER::get_database_problem());
        QVERIFY2(problem.contains("can be read, but not changed") && problem.contains("looker"), qPrintable(problem));
        expect_warning("can be read, but not changed");
        QVERIFY(!manager.delete_flash("Part", m_place->path("reader/")));
        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(m_place->path("reader/"), false));
        QCOMPARE(run_tool({"import", "-d", at("reader/"), "none.json"}).exit_code, EXIT_DATABASE);
    }

    void who_may_not_even_look_gets_no_directory()
    {
        const SERVER_DATABASE server = made_server();
        POSTGRES_SERVER::of_program().run("DROP ROLE IF EXISTS stranger; CREATE ROLE stranger LOGIN");
        make_dir(m_place->path("none/"));

        const TOOL_RUN run = run_tool(init("none/", server, "stranger"));

        QCOMPARE(run.exit_code, EXIT_DATABASE);
        QVERIFY2(run.err.contains("can grant the role " + server.schema().toUtf8() + "_reader"), run.err.constData());
        QVERIFY(!QFile::exists(at("none/gfpdb-server.ini")));
    }

private:
    // A database on a server, which the directory server/ names.
    SERVER_DATABASE made_server() const
    {
        make_dir(m_place->path("server/"));
        return SERVER_DATABASE(m_place->path("server/"), &gfpdb_server_sql);
    }

    void grant_reader(const SERVER_DATABASE& server) const
    {
        const POSTGRES_SERVER& host = POSTGRES_SERVER::of_program();
        if (host.run("SELECT count(*) FROM pg_roles WHERE rolname = 'looker'").toInt() == 0)
            host.run("CREATE ROLE looker LOGIN");
        host.run("GRANT " + server.schema() + "_reader TO looker");
    }

    GFPDB_MGR* fresh_manager_of(const char* directory) const
    {
        GFPDB_MGR::set_db_custom_dir(m_place->path(directory));
        return fresh_manager();
    }

    void save_part_on_server() const
    {
        save_part("Part", FAMILY, ACTIVE_SERIAL, "Template");
        QCOMPARE(copy("db/", "server/").err, QByteArray());
    }

    TOOL_RUN copy(const QString& from, const QString& to) const
    {
        return run_tool({"copy", "--from", at(qUtf8Printable(from)), "--to", at(qUtf8Printable(to))});
    }

    // What a command prints of a directory.
    QByteArray of(const char* command, const QString& directory) const
    {
        QStringList arguments = {command, "-d", at(qUtf8Printable(directory))};
        if (qstrcmp(command, "export") != 0)
            arguments.append("--json");
        return run_tool(arguments).out;
    }

    QStringList init(const char* directory, const SERVER_DATABASE& server, const char* user) const
    {
        const POSTGRES_SERVER& host = POSTGRES_SERVER::of_program();
        return {"server",
                "init",
                at(directory),
                "--host",
                host.socket_directory(),
                "--port",
                QString::number(host.port()),
                "--database",
                POSTGRES_SERVER::DATABASE,
                "--schema",
                server.schema(),
                "--user",
                user};
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_SERVER)

#include "test_cli_server.moc"
