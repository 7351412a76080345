// SPDX-License-Identifier: MIT

// The real program: which records are exported, and one file for each.
#include "cli_test.h"
#include "test_rows.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>

#include <sys/stat.h>

class TEST_CLI_EXPORT : public CLI_TEST
{
    Q_OBJECT

private slots:
    void names_and_wildcards_choose_records_data()
    {
        rows<QStringList, QStringList>({{"all", {}, {"Alpha", "Alpha two", "A*", "T"}},
                                        {"wildcard", {"alpha*"}, {"Alpha", "Alpha two"}},
                                        {"one character", {"Alph?"}, {"Alpha"}},
                                        {"name with a star", {"A*"}, {"A*"}},
                                        {"each once", {"Alpha", "Alpha*", "T", "Alpha"}, {"Alpha", "Alpha two", "T"}},
                                        {"place", {"*", "--scheme", "Active Serial x4"}, {"Alpha two", "T"}},
                                        {"built in by name", {"mx25l1606e"}, {"MX25L1606E"}},
                                        {"built in by wildcard", {"--builtin", "*1606?"}, {"MX25L1606E"}},
                                        {"built in for sure", {"--builtin", "mx25L1606e"}, {"MX25L1606E"}},
                                        {"state", {"history:1"}, {"Alpha"}},
                                        {"state and present", {"Alpha", "history:1"}, {"Alpha", "Alpha"}},
                                        {"state in two spellings", {"history:1", "history:01"}, {"Alpha"}}});
    }

    void names_and_wildcards_choose_records()
    {
        const auto [arguments, chosen] = row<QStringList, QStringList>();
        save_four();

        const TOOL_RUN run = tool(QStringList{"export"} + arguments);

        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.exit_code, 0);
        const QJsonObject file = json(run).object();
        QStringList found = names(QJsonDocument(file.value("devices").toArray()));
        for (const QJsonValue each : file.value("templates").toArray())
            found += each.toObject().value("template_name").toString();
        QCOMPARE(found, chosen);
    }

    void all_built_in_devices_are_exported()
    {
        const TOOL_RUN run = tool({"export", "--builtin"});
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(names(QJsonDocument(json(run).object().value("devices").toArray())),
                 names(json(tool({"list", "--builtin", "--json"}))));
    }

    void what_matches_nothing_is_not_found_data()
    {
        rows<QStringList, QByteArray>(
            {{"wildcard", {"x*"}, "No device or template in %1 matches \"x*\". --builtin exports built-in devices."},
             {"built in", {"--builtin", "none*"}, "No built-in device matches \"none*\"."},
             {"not built in", {"--builtin", "Alpha"}, "There is no built-in device called \"Alpha\"."},
             {"state", {"history:7"}, "There is no state \"7\" in the history of %1."},
             {"no state", {"history:x"}, "There is no state \"x\" in the history of %1."}});
    }

    void what_matches_nothing_is_not_found()
    {
        const auto [arguments, error] = row<QStringList, QByteArray>();
        save_four();
        const TOOL_RUN run = tool(QStringList{"export", "MX25L1606E"} + arguments);
        QCOMPARE(run.err, "gfpdb: " + QByteArray(error).replace("%1", q(m_place->db_dir()).toUtf8()) + '\n');
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.exit_code, 3);
    }

    // As it was then.
    void a_state_is_shown_exported_and_copied()
    {
        save_four();
        QVERIFY(tool({"show", "history:1"}).out.contains("\nDies:                 2\n"));
        QCOMPARE(json(tool({"show", "history:1", "--json"})).object().value("total_die").toInt(), 2);
        QCOMPARE(json(tool({"show", "Alpha", "--json"})).object().value("total_die").toInt(), 1);
        QCOMPARE(tool({"copy-device", "history:1", "Former"}).exit_code, 0);
        QCOMPARE(json(tool({"show", "Former", "--json"})).object().value("total_die").toInt(), 2);
        const TOOL_RUN run = run_tool({"show", "history:1", "-d", "/no/such"});
        QCOMPARE(run.exit_code, 5);
        QCOMPARE(run.err, QByteArray("gfpdb: The database directory /no/such/ does not exist.\n"));
    }

    // The state has a zero before its number then.
    void a_record_that_is_called_like_a_state_comes_first_data()
    {
        rows<QString, QString>({{"record", "history:1", "history:1"}, {"state", "history:01", "Alpha"}});
    }

    void a_record_that_is_called_like_a_state_comes_first()
    {
        const auto [operand, name] = row<QString, QString>();
        save_four();
        save_part("history:1");

        QCOMPARE(json(tool({"show", operand, "--json"})).object().value("name").toString(), name);
        QCOMPARE(tool({"diff", operand, name}).exit_code, name == "Alpha" ? 1 : 0);
        QCOMPARE(tool({"copy-device", operand, "Copy"}).exit_code, 0);
        QCOMPARE(json(tool({"show", "Copy", "--json"})).object().value("total_die").toInt(), name == "Alpha" ? 2 : 1);
        QCOMPARE(tool({"export", operand, "--directory", at("parts")}).exit_code, 0);
        QCOMPARE(QDir(at("parts")).entryList(QDir::Files),
                 QStringList{name == "Alpha" ? "Alpha-3-7.history-1.json" : "history%3A1-3-7.json"});
        // The chart says of which state it is.
        const QByteArray chart = tool({"chart", operand, "--format", "svg"}).out;
        QVERIFY(chart.contains('>' + name.toUtf8() + '<'));
        QCOMPARE(chart.contains(" flow, " + operand.toUtf8()), name == "Alpha");
    }

    void each_record_gets_a_file_of_its_own()
    {
        save_four();
        const QByteArray before = exported();

        const TOOL_RUN run = tool({"export", "--directory", at("parts")});

        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.out, "Exported 4 new, 0 replaced; 0 unchanged in " + at("parts/").toUtf8() + '\n');
        QCOMPARE(QDir(at("parts")).entryList(QDir::Files, QDir::Name),
                 (QStringList{"A%2A-5-7.json", "Alpha two-3-13.json", "Alpha-3-7.json", "T-template.json"}));
        QCOMPARE(text_of_file(at("parts/Alpha two-3-13.json")), tool({"export", "Alpha two"}).out);
        make_dir(m_place->path("back/"));
        QStringList files = {"import", "-d", at("back/")};
        for (const QFileInfo& file : QDir(at("parts")).entryInfoList(QDir::Files))
            files += file.filePath();
        QCOMPARE(run_tool(files).exit_code, 0);
        QCOMPARE(exported("back/"), before);
    }

    void states_and_built_in_devices_have_files_of_their_own()
    {
        save_four();
        QCOMPARE(tool({"export", "--directory", at("parts/"), "Alpha", "history:1", "MX25L1606E"}).exit_code, 0);
        QCOMPARE(QDir(at("parts")).entryList(QDir::Files, QDir::Name),
                 (QStringList{"Alpha-3-7.history-1.json", "Alpha-3-7.json", "MX25L1606E-builtin.json"}));
    }

    void a_file_with_other_content_is_replaced_only_when_asked()
    {
        save_four();
        const QString directory = at("parts");
        const QString file = at("parts/Alpha-3-7.json");
        QCOMPARE(tool({"export", "--directory", directory}).exit_code, 0);
        const QByteArray written = text_of_file(file);
        QVERIFY(
            tool({"export", "--directory", directory}).out.startsWith("Exported 0 new, 0 replaced; 4 unchanged in "));
        write_file(file.toStdString(), "mine");
        QFile::remove(at("parts/T-template.json"));

        TOOL_RUN run = tool({"export", "--directory", directory});
        QCOMPARE(run.exit_code, 4);
        QCOMPARE(run.err, "gfpdb: " + file.toUtf8() +
                              ": The file already exists with different content: --replace replaces it.\n"
                              "gfpdb: Nothing was exported.\n");
        QCOMPARE(text_of_file(file), QByteArray("mine"));
        QVERIFY(!QFile::exists(at("parts/T-template.json")));

        run = tool({"export", "--directory", directory, "--replace"});
        QCOMPARE(run.exit_code, 0);
        QVERIFY2(run.out.startsWith("Exported 1 new, 1 replaced; 2 unchanged in "), run.out.constData());
        QCOMPARE(text_of_file(file), written);
    }

    void a_directory_that_cannot_be_written_is_an_error()
    {
        save_four();
        TOOL_RUN run = tool({"export", "--directory", at("no/such")});
        QCOMPARE(run.exit_code, 4);
        QCOMPARE(run.err,
                 "gfpdb: " + at("no/such").toUtf8() + ": The directory cannot be made: No such file or directory.\n");
        write_file(m_place->path("file"), "");
        run = tool({"export", "--directory", at("file")});
        QVERIFY2(run.err.endsWith(": The directory cannot be made: File exists.\n"), run.err.constData());
        QVERIFY(QDir(at("")).mkpath("parts/Alpha-3-7.json"));
        run = tool({"export", "--directory", at("parts"), "--replace", "Alpha"});
        QCOMPARE(run.exit_code, 4);
        QVERIFY2(run.err.contains("Alpha-3-7.json: The file cannot be written: "), run.err.constData());
        QVERIFY2(run.err.endsWith("\ngfpdb: 0 of 1 files were written.\n"), run.err.constData());
    }

    void an_export_that_fails_in_the_middle_says_how_far_it_came()
    {
        save_four();
        QVERIFY(QDir(at("")).mkpath("parts/A%2A-5-7.json"));
        const TOOL_RUN run = tool({"export", "--directory", at("parts"), "--replace"});
        QCOMPARE(run.exit_code, 4);
        QCOMPARE(run.out, QByteArray());
        QVERIFY2(run.err.endsWith("\ngfpdb: 2 of 4 files were written.\n"), run.err.constData());
        QCOMPARE(QDir(at("parts")).entryList(QDir::Files).size(), 2);
    }

    void flows_that_cannot_be_read_are_reported()
    {
        save_four();
        run_sql(m_place->db_file(), "UPDATE device SET single_flows = 'none' WHERE name = 'Alpha'");
        const TOOL_RUN run = tool({"export", "--directory", at("parts")});
        QCOMPARE(run.exit_code, 5);
        QCOMPARE(run.err, QByteArray("gfpdb: The flows of the device \"Alpha\" (family 3, scheme 7) cannot be read: it "
                                     "is not exported.\n"));
        QVERIFY(run.out.startsWith("Exported 3 new, 0 replaced; 0 unchanged in "));
    }

private:
    // 1 is a former state of the first one.
    void save_four() const
    {
        save_part("Alpha", FAMILY, ACTIVE_SERIAL, std::string(), 2);
        save_part("Alpha", FAMILY, ACTIVE_SERIAL, "T");
        save_part("Alpha two", FAMILY, QUAD);
        save_part("A*", OTHER_FAMILY, ACTIVE_SERIAL);
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_EXPORT)

#include "test_cli_export.moc"
