// SPDX-License-Identifier: MIT

// The real program: its help, its arguments, its directory, its terminal, its man page and completion.
#include "cli_command.h"
#include "test_rows.h"

#include "dstr/dstr.h"

// The constants of the tests have names that enumerators of the library have as well.
#include "cli_test.h"

#include <QJsonObject>
#include <QProcess>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const QStringList COMMANDS = {"list",    "show", "chart",       "export",   "import",  "delete", "check", "history",
                              "restore", "diff", "copy-device", "families", "schemes", "sfdp",   "copy",  "server"};

QByteArray run_on_terminal(const QStringList& arguments)
{
    return run_on_terminal(GFPDB_PROGRAM, arguments);
}

} // namespace

class TEST_CLI_PROGRAM : public CLI_TEST
{
    Q_OBJECT

private slots:
    void the_exit_codes_are_as_documented()
    {
        QCOMPARE(int(CLI_EXIT_OK), 0);
        QCOMPARE(int(CLI_EXIT_DIFFERENT), 1);
        QCOMPARE(int(CLI_EXIT_USAGE), 2);
        QCOMPARE(int(CLI_EXIT_NOT_FOUND), 3);
        QCOMPARE(int(CLI_EXIT_BAD_FILE), 4);
        QCOMPARE(int(CLI_EXIT_DATABASE), 5);
    }

    void help_lists_every_command()
    {
        for (const QStringList& arguments : {QStringList{"--help"}, QStringList{"-h"}, QStringList{"help"}}) {
            const TOOL_RUN run = run_tool(arguments);
            QCOMPARE(run.exit_code, 0);
            QCOMPARE(run.err, QByteArray());
            QCOMPARE(run.out,
                     QByteArray("Usage: gfpdb COMMAND [options] [arguments]\n\n"
                                "Manages the flash database of the programmer: its devices and flow templates.\n\n"
                                "Commands:\n"
                                "  list         List devices, templates and built-in devices\n"
                                "  show         Show a record with its flows\n"
                                "  chart        Draw the flow charts of a record (PDF, SVG)\n"
                                "  export       Write records to a file\n"
                                "  import       Read records from files, all or none\n"
                                "  delete       Delete records; the history keeps them\n"
                                "  check        Check every record and the database\n"
                                "  history      List former states of records\n"
                                "  restore      Restore a former state\n"
                                "  diff         Compare two records\n"
                                "  copy-device  Make a new device of another one\n"
                                "  families     List the device families\n"
                                "  schemes      List the configuration schemes\n"
                                "  sfdp         Show what a chip says of itself (SFDP)\n"
                                "  copy         Copy the whole database to another directory or server\n"
                                "  server       Set up a directory whose database is on a PostgreSQL server\n\n"
                                "\"gfpdb COMMAND --help\" explains a command, \"gfpdb --version\" prints the "
                                "version.\n"));
        }
        QVERIFY(QString(run_tool({"--version"}).out).contains(QRegularExpression("^gfpdb \\d+\\.\\d+\\.\\d+\n$")));
    }

    void every_command_explains_itself_data()
    {
        rows<QString, QStringList>(
            {{"list", "[options]\nList devices, templates and built-in devices.\n",
              QStringList{"--builtin", "--all", "--filter", "--id", "--maker", "--density", "--voltage", "--kind",
                          "--sort", "--names", "--csv", "--spreadsheet", "--json", "--family", "--scheme"}},
             {"show", "[options] NAME\nShow a record with its flows.\n",
              QStringList{"--variant", "--json", "--family", "--scheme"}},
             {"chart", "[options] NAME\nDraw the flow charts of a record (PDF, SVG).\n",
              QStringList{"-o, --output", "--format", "--operation", "--variant", "--paper", "--family", "--scheme"}},
             {"export", "[options] [NAME...]\nWrite records to a file.\n",
              QStringList{"-o, --output", "--directory", "--replace", "--builtin", "--csv", "--spreadsheet", "--family",
                          "--scheme"}},
             {"import", "[options] FILE...\nRead records from files, all or none.\n",
              QStringList{"--replace", "--dry-run", "--unchecked", "--csv", "--family", "--scheme", "--sfdp", "--id",
                          "--name", "--voltage", "--set", "--json"}},
             {"delete", "[options] NAME...\nDelete records; the history keeps them.\n",
              QStringList{"--dry-run", "--family", "--scheme"}},
             {"check", "[options]\nCheck every record and the database.\n",
              QStringList{"--rebuild-keys", "--lint", "--lint-off", "--lint-rules", "--sfdp", "--json"}},
             {"history", "[options] [NAME]\nList former states of records.\n",
              QStringList{"--prune", "--older-than", "--keep", "--force", "--json", "--family", "--scheme"}},
             {"restore", "[options] ID\nRestore a former state.\n", QStringList{"--replace", "--as"}},
             {"diff", "[options] LEFT RIGHT\nCompare two records.\n", QStringList{"--json", "--family", "--scheme"}},
             {"copy-device", "[options] SOURCE NAME\nMake a new device of another one.\n",
              QStringList{"--family", "--scheme", "--from-family", "--from-scheme", "--dry-run"}},
             {"families", "[options]\nList the device families.\n", QStringList{"--json"}},
             {"schemes", "[options]\nList the configuration schemes.\n", QStringList{"--family", "--json"}},
             {"sfdp", "[options] FILE\nShow what a chip says of itself (SFDP).\n", QStringList{"--id", "--json"}},
             {"copy",
              "[options] --from DIRECTORY --to DIRECTORY\nCopy the whole database to another directory or server.\n",
              QStringList{"--from", "--to"}},
             {"server",
              "[options] sql|init|status [DIRECTORY]\nSet up a directory whose database is on a PostgreSQL server.\n",
              QStringList{"--host", "--port", "--database", "--schema", "--user", "--sslmode", "--sslrootcert",
                          "--json"}}});
    }

    void every_command_explains_itself()
    {
        const auto [usage, options] = row<QString, QStringList>();
        const QString command = QTest::currentDataTag();
        for (const QStringList& arguments : {QStringList{command, "--help"}, QStringList{"help", command}}) {
            const TOOL_RUN run = run_tool(arguments);
            QCOMPARE(run.exit_code, 0);
            QVERIFY2(run.out.startsWith("Usage: gfpdb " + command.toUtf8() + " " + usage.toUtf8()),
                     run.out.constData());
            for (const QString& option : options + QStringList{"-d, --dir", "--verbose", "-h, --help"})
                QVERIFY2(run.out.contains("\n  " + option.toUtf8() + " "), qPrintable(option));
            QCOMPARE(run.out.count("\n  -"), options.size() + 3);
        }
    }

    void wrong_arguments_are_refused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("error");
        const auto add = [](const QStringList& arguments, const char* error) {
            QTest::newRow(qPrintable("gfpdb " + arguments.join(' '))) << arguments << QByteArray(error);
        };
        add({}, "gfpdb: A command is missing.\ngfpdb: \"gfpdb --help\" lists the commands.\n");
        add({"frob"}, "gfpdb: \"frob\" is not a gfpdb command.\ngfpdb: \"gfpdb --help\" lists the commands.\n");
        add({"help", "frob"}, "gfpdb: \"frob\" is not a gfpdb command.\ngfpdb: \"gfpdb --help\" lists the commands.\n");
        add({"list", "--frob"}, "gfpdb: Unknown option 'frob'.\n");
        add({"list", "x"}, "gfpdb: Unexpected argument \"x\": gfpdb list\n");
        add({"show"}, "gfpdb: An argument is missing: gfpdb show NAME\n");
        add({"show", "a", "b"}, "gfpdb: Unexpected argument \"b\": gfpdb show NAME\n");
        add({"show", "a", "--variant", "triple"},
            "gfpdb: \"triple\" is not a flow variant. Allowed: single, quad, both.\n");
        add({"import"}, "gfpdb: An argument is missing: gfpdb import FILE...\n");
        add({"diff", "a"}, "gfpdb: An argument is missing: gfpdb diff LEFT RIGHT\n");
        add({"history", "a", "b"}, "gfpdb: Unexpected argument \"b\": gfpdb history [NAME]\n");
        add({"restore", "x"}, "gfpdb: \"x\" is not a number of the history.\n");
        add({"list", "--dir", ""}, "gfpdb: --dir is empty.\n");
        add({"list", "-d", ""}, "gfpdb: --dir is empty.\n");
        add({"export", "-o", ""}, "gfpdb: --output is empty.\n");
        add({"export", "--directory", ""}, "gfpdb: --directory is empty.\n");
        add({"export", "--replace"}, "gfpdb: --replace needs --directory.\n");
        for (const char* option : {"output", "csv", "spreadsheet"})
            add(QStringList{"export", "--directory", "x", QString("--") + option} +
                    (QString(option) == "output" ? QStringList("y") : QStringList()),
                qPrintable(QString("gfpdb: --directory and --%1 cannot be used together.\n").arg(option)));
        add({"schemes", "--family", "x"}, "gfpdb: --family needs a whole number from 1 to 72, or the name of a device "
                                          "family: \"gfpdb families\" lists them.\n");
        add({"show", ""}, "gfpdb: An argument is empty: gfpdb show NAME\n");
        add({"export", "a", ""}, "gfpdb: An argument is empty: gfpdb export [NAME...]\n");
        add({"diff", "", "b"}, "gfpdb: An argument is empty: gfpdb diff LEFT RIGHT\n");
        add({"list", "--csv", "--json"}, "gfpdb: --csv and --json cannot be used together.\n");
        for (const char* number : {"0", "73", "x", ""})
            add({"list", "--family", number},
                "gfpdb: --family needs a whole number from 1 to 72, or the name of a device family: "
                "\"gfpdb families\" lists them.\n");
        add({"history", "--prune"}, "gfpdb: --prune needs --older-than or --keep.\n");
        for (const QStringList& options :
             {QStringList{"--keep", "1"}, QStringList{"--older-than", "1"}, QStringList{"--force"}})
            add(QStringList{"history"} + options, "gfpdb: --older-than, --keep and --force need --prune.\n");
        add({"history", "--prune", "--keep", "-1"}, "gfpdb: --keep needs a whole number from 0 to 2147483647.\n");
        add({"history", "--prune", "--older-than", "36501"},
            "gfpdb: --older-than needs a whole number from 0 to 36500.\n");
        for (const char* number : {"-1", "25", "seven", "Illegal Configuration Scheme"})
            add({"list", "--scheme", number},
                "gfpdb: --scheme needs a whole number from 0 to 24, or the name of a configuration scheme: "
                "\"gfpdb schemes\" lists them.\n");
    }

    void wrong_arguments_are_refused()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, error);
        const TOOL_RUN run = run_tool(arguments);
        QCOMPARE(run.err, error);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.exit_code, 2);
    }

    void families_and_schemes_have_numbers_and_names_data()
    {
        const std::string family = dstr_get_user_string(FAMILY);
        rows<QStringList, QStringList>({{"number", QStringList{"--scheme", "7"}, QStringList{"single"}},
                                        {"name", QStringList{"--scheme", "Active Serial"}, QStringList{"single"}},
                                        {"case", QStringList{"--scheme", "active serial X4"}, QStringList{"quad"}},
                                        {"family", QStringList{"--family", q(family)}, QStringList{"single", "quad"}},
                                        {"other", QStringList{"--family", "4"}, QStringList{}}});
    }

    void families_and_schemes_have_numbers_and_names()
    {
        const auto [options, found] = row<QStringList, QStringList>();
        save_part("single", FAMILY, ACTIVE_SERIAL);
        save_part("quad", FAMILY, QUAD);

        QCOMPARE(names(json(tool(QStringList{"list", "--json"} + options))), found);
    }

    void the_directory_comes_from_the_settings_or_the_option()
    {
        make_dir(m_place->path("other/"));
        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(m_place->db_dir(), false));
        save_part("Mine");

        QCOMPARE(names(json(run_tool({"list", "--json"}))), QStringList{"Mine"});
        QCOMPARE(names(json(run_tool({"list", "--json", "--dir", at("other")}))), QStringList());
        QCOMPARE(names(json(tool({"list", "--json"}))), QStringList{"Mine"});

        const TOOL_RUN run = run_tool({"list", "--dir", at("missing")});
        QCOMPARE(run.exit_code, 5);
        QCOMPARE(run.err, QByteArray("gfpdb: The database directory ") +
                              QByteArray::fromStdString(m_place->path("missing/")) + " does not exist.\n");
    }

    void names_that_are_not_ascii_work_in_any_locale()
    {
        const std::string directory = m_place->path("\xC3\xBC'; \xE2\x82\xAC/");
        make_dir(directory);
        save_part("\xC3\x84 \xF0\x9F\x98\x80");
        const TOOL_RUN copy = tool({"export"});
        const QByteArray former = qgetenv("LC_ALL");
        for (const char* locale : {"C", "C.UTF-8"}) {
            qputenv("LC_ALL", locale);
            QCOMPARE(run_tool({"import", "-d", q(directory), "-"}, copy.out).exit_code, 0);
            const TOOL_RUN run = run_tool({"show", "-d", q(directory), q("\xC3\xA4 \xF0\x9F\x98\x80"), "--json"});
            QCOMPARE(run.exit_code, 0);
            QCOMPARE(json(run).object().value("name").toString(), q("\xC3\x84 \xF0\x9F\x98\x80"));
        }
        qputenv("LC_ALL", former);
        QVERIFY(QFile::exists(q(directory) + "gfpdb.sqlite"));
    }

    void the_library_speaks_the_users_language_data()
    {
        const QByteArray english = "\"5V\" is not a usual one. Usual: ";
        rows<QString, QString, QStringList, QByteArray>(
            {{"LANGUAGE", "en_US.UTF-8", "fi:de:fr", QStringList(), "\"5V\" ist nicht üblich. Üblich: "},
             {"locale", "pt_BR.UTF-8", "", QStringList(), "\"5V\" não é um valor usual. Usual: "},
             {"without texts", "fi_FI.UTF-8", "", QStringList(), english},
             {"C", "C.UTF-8", "", QStringList(), english},
             {"LANGUAGE in C", "C.UTF-8", "de", QStringList(), english},
             {"for programs", "de_DE.UTF-8", "de", QStringList{"--json"}, "\\\"5V\\\" is not a usual one. Usual: "}});
    }

    void the_library_speaks_the_users_language()
    {
        const auto [locale, languages, options, said] = row<QString, QString, QStringList, QByteArray>();
        save_part("Mine");
        run_sql(m_place->db_file(), "UPDATE device SET voltage = '5V'");
        const QByteArray former = qgetenv("LC_ALL");
        qunsetenv("LC_ALL");
        qputenv("LC_MESSAGES", locale.toLatin1());
        qputenv("LANGUAGE", languages.toLatin1());

        const TOOL_RUN run = tool(QStringList("check") + options);

        qunsetenv("LANGUAGE");
        qunsetenv("LC_MESSAGES");
        if (!former.isEmpty())
            qputenv("LC_ALL", former);
        QVERIFY2((run.out + run.err).contains(said), (run.out + run.err).constData());
    }

    // What a name could do to a terminal, it must not do; a file gets every byte.
    void no_control_character_reaches_a_terminal_data()
    {
        rows<QStringList>({{"list", QStringList{"list"}},
                           {"list --json", QStringList{"list", "--json"}},
                           {"list --csv", QStringList{"list", "--csv"}},
                           {"show", QStringList{"show", "A"}},
                           {"export", QStringList{"export"}},
                           {"check", QStringList{"check"}},
                           {"history", QStringList{"history"}},
                           {"diff", QStringList{"diff", "A", "B\x1B]0;\x07"}},
                           {"import", QStringList{"import", "all.json"}}});
    }

    void no_control_character_reaches_a_terminal()
    {
        QStringList arguments = row<QStringList>();
        const std::string directory = m_place->path("a\x1B[31mb\xC2\x9B/");
        make_dir(directory);
        GFPDB_MGR::set_db_custom_dir(directory);
        save_part("A");
        save_part("B");
        save_part("B");
        const std::string odd = "x\x1B[2J\xC2\x9B' || char(13)";
        run_sql(directory + "gfpdb.sqlite", "UPDATE history SET flow_template = '" + odd);
        run_sql(directory + "gfpdb.sqlite", "UPDATE device SET flow_template = '" + odd);
        run_sql(directory + "gfpdb.sqlite",
                "UPDATE device SET name = 'B\x1B]0;\x07', name_key = 'b\x1B]0;\x07' WHERE name = 'B'");
        const QString file = at("all.json");
        QCOMPARE(run_tool({"export", "-d", q(directory), "-o", file}).exit_code, 0);
        arguments.replaceInStrings(QRegularExpression("^all.json$"), file);

        QByteArray shown = run_on_terminal(arguments + QStringList{"-d", q(directory)});

        QVERIFY(!shown.isEmpty());
        shown.replace("\r\n", "\n");
        for (const char* progress : {"\rExporting ", "\rChecking "})
            shown.replace(progress, "");
        for (const char* control : {"\x1B", "\x07", "\r", "\xC2\x9B"})
            QVERIFY2(!shown.contains(control), shown.toPercentEncoding(" \n\"{}[]:,").constData());
        const QByteArray list = run_tool({"list", "--csv", "-d", q(directory)}).out;
        QVERIFY(list.contains("x\x1B[2J\xC2\x9B\r"));
    }

    void no_control_character_of_the_log_reaches_a_terminal()
    {
        const QByteArray shown = run_on_terminal({"list", "--verbose", "-d", at("missing \x1B[31m")});

        QVERIFY2(shown.contains("pgm.gfpdb: The database directory "), shown.constData());
        QVERIFY(!shown.contains('\x1B'));
    }

    // A file name is bytes.
    void names_of_files_need_not_be_utf8()
    {
        save_part("Mine");
        QProcess shell;
        shell.setWorkingDirectory(at(""));
        shell.start("sh", {"-ec",
                           R"(odd=$(printf 'odd\377\303\274\355\240\200'); mkdir "$odd"
                              "$0" export -d db -o "$odd.json"
                              "$0" import -d "$odd" "$odd.json" --dry-run
                              "$0" import --dir="$odd" "./$odd.json"
                              "$0" diff "$odd.json" "$odd.json"
                              "$0" check --json -d "$odd"
                              rm "$odd.json" "$odd/gfpdb.sqlite" "$odd/gfpdb.sqlite-journal"; rmdir "$odd")",
                           GFPDB_PROGRAM});
        QVERIFY(shell.waitForFinished(120000));

        const QByteArray out = shell.readAllStandardOutput();
        QCOMPARE(shell.readAllStandardError(), QByteArray());
        QCOMPARE(shell.exitCode(), 0);
        QVERIFY2(out.contains("1 new") && out.contains("odd\xFF\xC3\xBC\xED\xA0\x80/"), out.constData());
        const QJsonDocument report = QJsonDocument::fromJson(out.mid(out.indexOf('{')));
        QVERIFY(report.object().value("directory").toString().contains("odd\uFFFDü"));
    }

    void an_upgrade_shows_how_far_it_is()
    {
        write_file(m_place->db_file(), read_file(GFPDB_TEST_DATA "schema_2.sqlite"));
        const int records = run_sql(m_place->db_file(), "SELECT (SELECT count(*) FROM device) + (SELECT count(*) FROM "
                                                        "template) + (SELECT count(*) FROM history)")
                                .toInt();
        const QByteArray last =
            "\rUpgrading the database: " + QByteArray::number(records) + " of " + QByteArray::number(records) + "\r\n";

        QVERIFY(run_on_terminal({"list", "-d", at("db")}).contains(last + "NAME "));
        QVERIFY(!run_on_terminal({"list", "-d", at("db")}).contains("Upgrading"));
    }

    void a_name_of_a_user_need_not_be_utf8()
    {
        save_part("Mine");
        const QString file = exported_file("Mine");
        replace_in_file(file, "\"total_die\": 1", "\"total_die\": 2");
        const QByteArray user = qgetenv("USER");
        qputenv("USER", "m\xFFx");
        const TOOL_RUN run = tool({"import", "--replace", file});
        qputenv("USER", user);

        QCOMPARE(run.exit_code, 0);
        const QString who = run_sql(m_place->db_file(), "SELECT changed_by FROM history").toString();
        QVERIFY2(who.startsWith("m\uFFFDx@"), qPrintable(who));
    }

    void a_catalogue_that_cannot_be_read_is_an_error()
    {
        const QString pipe = at("pipe");
        QCOMPARE(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
        for (const QString& path : {QString("/no/such.csv"), QString("/dev/zero"), pipe}) {
            qputenv("GFPDB_CATALOGUE", path.toLocal8Bit());
            for (const QStringList& arguments :
                 {QStringList{"list"}, QStringList{"show", "x"}, QStringList{"export"}, QStringList{"import", "x"},
                  QStringList{"check"}, QStringList{"history"}, QStringList{"restore", "1"},
                  QStringList{"diff", "x", "y"}}) {
                const TOOL_RUN run = run_tool(arguments);
                QCOMPARE(run.exit_code, 4);
                QVERIFY2(
                    run.err.startsWith("gfpdb: GFPDB_CATALOGUE: The catalogue " + path.toUtf8() + " cannot be read: "),
                    run.err.constData());
                QCOMPARE(run.err.count('\n'), 1);
                QCOMPARE(run.out, QByteArray());
            }
            QCOMPARE(run_tool({"list", "--help"}).exit_code, 0);
        }
        qunsetenv("GFPDB_CATALOGUE");
    }

    void progress_is_shown_on_a_terminal()
    {
        QByteArray list = "name,family,scheme,device_id,voltage,density,total_die,single_io_dummy_clock,"
                          "quad_io_dummy_clock,flow_template\n";
        for (int number = 1; number <= 400; ++number)
            list += "part " + QByteArray::number(number) + ",3,7,C2 20 19,3.3V,8Mb,1,8,6,No QE bit\n";
        write_file(m_place->path("list.csv"), list.toStdString());
        const QString directory = q(m_place->db_dir());

        const QByteArray imported = run_on_terminal({"import", at("list.csv"), "-d", directory});
        QVERIFY2(imported.contains("\rImporting 4 of 400\rImporting 8 of 400"), imported.constData());
        QVERIFY2(imported.contains("\rImporting 400 of 400\r\nImported 400 new, "), imported.constData());
        QCOMPARE(imported.count("Importing "), 101);
        QVERIFY(run_on_terminal({"check", "-d", directory}).contains("\rChecking 400 of 400\r\n"));
        QVERIFY(
            run_on_terminal({"export", "-d", directory, "-o", at("all.json")}).contains("\rExporting 400 of 400\r\n"));
        QCOMPARE(tool({"import", at("all.json")}).err, QByteArray());
        QCOMPARE(tool({"check"}).err, QByteArray());
    }

    void output_that_cannot_be_written_is_an_error()
    {
        QProcess process;
        process.setStandardOutputFile("/dev/full");
        process.start(GFPDB_PROGRAM, {"list", "--builtin"});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 4);
        QCOMPARE(process.readAllStandardError(), QByteArray("gfpdb: The output cannot be written.\n"));
    }

    void the_man_page_has_every_command_and_option()
    {
        const QByteArray page = text_of_file(QString(GFPDB_CLI_SOURCE) + "/gfpdb.1");

        QCOMPARE(lacking_in_man_page(GFPDB_PROGRAM, page, COMMANDS, CLI_EXIT_DATABASE), QStringList());
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_PROGRAM)

#include "test_cli_program.moc"
