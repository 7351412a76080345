// The real program: history, restore and diff.
#include "cli_test.h"

#include <QJsonArray>
#include <QJsonObject>

class TEST_CLI_HISTORY : public QObject
{
    Q_OBJECT

private slots:
    void a_rename_that_died_half_way_is_restored();
    void history_lists_and_filters();
    void restore_refuses_what_it_cannot_do();

    void diff_compares_records_files_and_states();
    void diff_of_two_files();
    void diff_says_what_it_cannot_find();
};

// The dialog renames by deleting the old name and saving the new one.
void TEST_CLI_HISTORY::a_rename_that_died_half_way_is_restored()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    save_part("Old name");
    const QByteArray before = exported(place.db_dir());
    QVERIFY(fresh_manager()->delete_flash("Old name", place.db_dir()));

    const QJsonArray history = json(run_tool({"history", "old NAME", "--json", "-d", directory})).array();
    QCOMPARE(history.size(), 1);
    QCOMPARE(history[0].toObject().value("reason").toString(), QString("deleted"));
    const QString id = QString::number(history[0].toObject().value("id").toInt());
    const TOOL_RUN run = run_tool({"restore", id, "-d", directory});

    QCOMPARE(run.exit_code, 0);
    QCOMPARE(run.out, QByteArray("Restored the device \"Old name\"\n"));
    QCOMPARE(exported(place.db_dir()), before);
}

void TEST_CLI_HISTORY::history_lists_and_filters()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    qputenv("USER", "someone");
    save_part("A", FAMILY, SERIAL, "T");
    save_part("A", FAMILY, SERIAL, "T");
    save_part("B", OTHER_FAMILY, QUAD);
    QVERIFY(fresh_manager(OTHER_FAMILY, QUAD)->delete_flash("B", place.db_dir()));
    QVERIFY(fresh_manager()->remove_template("T"));

    const TOOL_RUN run = run_tool({"history", "-d", directory});
    QCOMPARE(run.exit_code, 0);
    const QStringList lines = QString(run.out).split('\n');
    QCOMPARE(lines.size(), 6);
    QVERIFY2(QRegularExpression("^ID +WHEN +WHO +REASON +KIND +FAMILY +SCHEME +NAME$").match(lines[0]).hasMatch(),
             qPrintable(lines[0]));
    const QString when = "\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ";
    const QStringList expected = {"1  +" + when + " +someone@\\S+ +replaced +device +3 +7 +A",
                                  "2  +" + when + " +someone@\\S+ +replaced +template +3 +7 +T",
                                  "3  +" + when + " +someone@\\S+ +deleted +device +5 +13 +B",
                                  "4  +" + when + " +someone@\\S+ +deleted +template +3 +7 +T"};
    for (int at = 0; at < expected.size(); ++at)
        QVERIFY2(QRegularExpression("^" + expected[at] + "$").match(lines[at + 1]).hasMatch(),
                 qPrintable(lines[at + 1]));

    const auto ids = [&directory](const QStringList& options) {
        QStringList found;
        const TOOL_RUN filtered = run_tool(QStringList{"history", "--json", "-d", directory} + options);
        for (const QJsonValue entry : json(filtered).array())
            found += QString::number(entry.toObject().value("id").toInt());
        return found.join(' ');
    };
    QCOMPARE(ids({}), QString("1 2 3 4"));
    QCOMPARE(ids({"t"}), QString("2 4"));
    QCOMPARE(ids({"--family", "5"}), QString("3"));
    QCOMPARE(ids({"--scheme", "7"}), QString("1 2 4"));
    const QJsonObject entry = json(run_tool({"history", "b", "--json", "-d", directory})).array().at(0).toObject();
    QCOMPARE(entry.keys(),
             (QStringList{"changed_at", "changed_by", "family", "id", "kind", "name", "reason", "scheme"}));
    QVERIFY(entry.value("changed_by").toString().startsWith("someone@"));
    QCOMPARE(entry.value("kind").toString(), QString("device"));
}

void TEST_CLI_HISTORY::restore_refuses_what_it_cannot_do()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    save_part("Mine");
    save_part("Mine");
    TOOL_RUN run = run_tool({"restore", "7", "-d", directory});
    QCOMPARE(run.exit_code, 3);
    QCOMPARE(run.err, "gfpdb: There is no state 7 in the history of " + directory.toUtf8() + ".\n");
    run = run_tool({"restore", "1", "-d", directory});
    QCOMPARE(run.exit_code, 5);
    QCOMPARE(run.err, QByteArray("gfpdb: There is a device called \"Mine\" already.\n"));
    save_part("With", FAMILY, SERIAL, "T");
    QVERIFY(fresh_manager()->remove_template("T"));
    QCOMPARE(run_tool({"restore", "2", "-d", directory}).out, QByteArray("Restored the template \"T\"\n"));
}

void TEST_CLI_HISTORY::diff_compares_records_files_and_states()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    save_part("Mine");
    const QString file = exported_file(place, "Mine");
    QCOMPARE(run_tool({"diff", "Mine", file, "-d", directory}).exit_code, 0);
    QCOMPARE(run_tool({"diff", "Mine", "mine", "-d", directory}).out, QByteArray());
    replace_in_file(file, "\"total_die\": 1", "\"total_die\": 2");

    TOOL_RUN run = run_tool({"diff", "Mine", file, "-d", directory});
    QCOMPARE(run.exit_code, 1);
    QCOMPARE(run.out, "--- Mine\n+++ " + file.toUtf8() +
                          "\n@@ -5,7 +5,7 @@\n   \"device_id\": \"0xC2 0x20 0x19\",\n   \"voltage\": \"3.3V\",\n"
                          "   \"density\": \"256Mb\",\n-  \"total_die\": 1,\n+  \"total_die\": 2,\n"
                          "   \"single_io_dummy_clock\": 8,\n   \"quad_io_dummy_clock\": null,\n"
                          "   \"template_name\": \"\",\n");
    run = run_tool({"diff", file, "Mine", "-d", directory});
    QVERIFY(run.out.contains("\n-  \"total_die\": 2,\n+  \"total_die\": 1,\n"));

    QCOMPARE(run_tool({"import", "--replace", file, "-d", directory}).exit_code, 0);
    run = run_tool({"diff", "history:1", "Mine", "--json", "-d", directory});
    QCOMPARE(run.exit_code, 1);
    QCOMPARE(run.out, QByteArray("{\n  \"same\": false,\n  \"changes\": [\n    {\n      \"left_line\": 8,\n"
                                 "      \"right_line\": 8,\n      \"removed\": [\n        \"  \\\"total_die\\\": 1,\"\n"
                                 "      ],\n      \"added\": [\n        \"  \\\"total_die\\\": 2,\"\n      ]\n    }\n"
                                 "  ]\n}\n"));
    run = run_tool({"diff", "Mine", file, "--json", "-d", directory});
    QCOMPARE(run.out, QByteArray("{\n  \"same\": true,\n  \"changes\": []\n}\n"));
    QCOMPARE(run.exit_code, 0);
    QCOMPARE(run_tool({"diff", "MX25L25645G", "MX25L25635F"}).exit_code, 1);
}

void TEST_CLI_HISTORY::diff_of_two_files()
{
    const GFPDB_PLACE place;
    save_part("A");
    save_part("B", FAMILY, SERIAL, "T");
    save_part("B", OTHER_FAMILY, QUAD);
    const QString directory = q(place.db_dir());
    const QString all = q(place.path("all.json"));
    run_tool({"export", "-d", directory, "-o", all});
    const QString one = q(place.path("one.json"));
    run_tool({"export", "T", "-d", directory, "-o", one});
    QCOMPARE(run_tool({"diff", one, all, "-d", directory}).exit_code, 0);
    run_tool({"export", "B", "--family", "5", "-d", directory, "-o", one});
    QCOMPARE(run_tool({"diff", one, all, "-d", directory}).exit_code, 0);
    QCOMPARE(run_tool({"diff", "B", all, "--family", "5", "-d", directory}).exit_code, 0);

    const TOOL_RUN run = run_tool({"diff", all, one, "-d", directory});
    QCOMPARE(run.exit_code, 3);
    QCOMPARE(run.err,
             "gfpdb: " + all.toUtf8() + ": The file has several records, and none that goes with the other side.\n");
    // A built-in device can be compared with its exported state.
    run_tool({"export", "MX25L1606E", "-o", one});
    QCOMPARE(run_tool({"diff", "MX25L1606E", one}).exit_code, 0);
}

void TEST_CLI_HISTORY::diff_says_what_it_cannot_find()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    save_part("Mine");
    QCOMPARE(run_tool({"diff", "Mine", "nobody", "-d", directory}).exit_code, 3);
    QCOMPARE(run_tool({"diff", "nobody", "Mine", "-d", directory}).exit_code, 3);
    const TOOL_RUN run = run_tool({"diff", "Mine", "history:9", "-d", directory});
    QCOMPARE(run.exit_code, 3);
    QCOMPARE(run.err, "gfpdb: There is no state \"9\" in the history of " + directory.toUtf8() + ".\n");
    QCOMPARE(run_tool({"diff", "Mine", "history:x", "-d", directory}).exit_code, 3);
    QCOMPARE(run_tool({"diff", "Mine", "/no/such", "-d", directory}).exit_code, 4);
    QCOMPARE(run_tool({"diff", "Mine", "nosuch.json", "-d", directory}).exit_code, 4);
    write_file(place.path("none.json"), R"({"format": "gfpdb-records", "version": 1})");
    const TOOL_RUN empty = run_tool({"diff", "Mine", q(place.path("none.json")), "-d", directory});
    QCOMPARE(empty.exit_code, 4);
    QVERIFY(empty.err.contains("none.json: The file has no record.\n"));
}

QTEST_GUILESS_MAIN(TEST_CLI_HISTORY)
#include "test_cli_history.moc"
