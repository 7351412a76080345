// SPDX-License-Identifier: MIT

// The real program: history, restore and diff.
#include "cli_test.h"
#include "test_rows.h"

#include <QJsonArray>
#include <QJsonObject>

class TEST_CLI_HISTORY : public CLI_TEST
{
    Q_OBJECT

private slots:
    // The dialog renames by deleting the old name and saving the new one.
    void a_rename_that_died_half_way_is_restored()
    {
        save_part("Old name");
        const QByteArray before = exported();
        QVERIFY(fresh_manager()->delete_flash("Old name", m_place->db_dir()));

        const QJsonArray history = json(tool({"history", "old NAME", "--json"})).array();
        QCOMPARE(history.size(), 1);
        QCOMPARE(history[0].toObject().value("reason").toString(), QString("deleted"));
        const QString id = QString::number(history[0].toObject().value("id").toInt());
        const TOOL_RUN run = tool({"restore", id});

        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out, QByteArray("Restored the device \"Old name\"\n"));
        QCOMPARE(exported(), before);
    }

    void history_lists_and_filters()
    {
        const QString directory = q(m_place->db_dir());
        qputenv("USER", "someone");
        save_part("A", FAMILY, ACTIVE_SERIAL, "T", 2);
        save_part("A", FAMILY, ACTIVE_SERIAL, "T");
        save_part("B", OTHER_FAMILY, QUAD);
        QVERIFY(fresh_manager(OTHER_FAMILY, QUAD)->delete_flash("B", m_place->db_dir()));
        QVERIFY(fresh_manager()->remove_template("T"));

        const TOOL_RUN run = tool({"history"});
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
        const QJsonObject entry = json(tool({"history", "b", "--json"})).array().at(0).toObject();
        QCOMPARE(entry.keys(),
                 (QStringList{"changed_at", "changed_by", "family", "id", "kind", "name", "reason", "scheme"}));
        QVERIFY(entry.value("changed_by").toString().startsWith("someone@"));
        QCOMPARE(entry.value("kind").toString(), QString("device"));
    }

    void restore_refuses_what_it_cannot_do()
    {
        const QString directory = q(m_place->db_dir());
        save_part("Mine", FAMILY, ACTIVE_SERIAL, std::string(), 2);
        save_part("Mine");
        TOOL_RUN run = tool({"restore", "7"});
        QCOMPARE(run.exit_code, 3);
        QCOMPARE(run.err, "gfpdb: There is no state 7 in the history of " + directory.toUtf8() + ".\n");
        run = tool({"restore", "1"});
        QCOMPARE(run.exit_code, 5);
        QCOMPARE(run.err,
                 QByteArray(
                     "gfpdb: A device called \"Mine\" already exists.\n"
                     "gfpdb: Use --replace to replace the current record, or --as to give the state another name.\n"));
        run = tool({"restore", "1", "--as", ""});
        QCOMPARE(run.exit_code, 2);
        QCOMPARE(run.err, QByteArray("gfpdb: --as is empty.\n"));
        save_part("With", FAMILY, ACTIVE_SERIAL, "T");
        QVERIFY(fresh_manager()->remove_template("T"));
        QCOMPARE(tool({"restore", "2"}).out, QByteArray("Restored the template \"T\"\n"));
    }

    void restore_replaces_what_is_in_the_way()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        const QByteArray before = exported();
        const QString file = exported_file("Mine");
        replace_in_file(file, "\"total_die\": 1", "\"total_die\": 2");
        QCOMPARE(tool({"import", "--replace", file}).exit_code, 0);
        QVERIFY(exported() != before);

        const TOOL_RUN run = tool({"restore", "1", "--replace"});

        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out, QByteArray("Restored the device \"Mine\"\n"));
        QCOMPARE(exported(), before);
        const QJsonArray history = json(tool({"history", "Mine", "--json"})).array();
        QCOMPARE(history.size(), 2);
        QCOMPARE(history[1].toObject().value("reason").toString(), QString("replaced"));
        QVERIFY(tool({"diff", "history:2", "Mine"}).out.contains("\n-  \"total_die\": 2,\n"));
    }

    void restore_gives_another_name()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T", 2);
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        const QStringList listed = {"Mine", "T"};
        QCOMPARE(names(json(tool({"list", "--json"}))), listed);

        TOOL_RUN run = tool({"restore", "1", "--as", "Mine before"});
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out, QByteArray("Restored the device \"Mine before\"\n"));
        run = tool({"restore", "2", "--as", "T before"});
        QCOMPARE(run.out, QByteArray("Restored the template \"T before\"\n"));

        QCOMPARE(names(json(tool({"list", "--json"}))), (QStringList{"Mine", "Mine before", "T", "T before"}));
        QCOMPARE(json(tool({"show", "Mine before", "--json"})).object().value("name").toString(),
                 QString("Mine before"));
        const QJsonObject shown = json(tool({"show", "T before", "--json"})).object();
        QCOMPARE(shown.value("name").toString(), QString("Mine"));
        QCOMPARE(shown.value("template_name").toString(), QString("T before"));
        // The states keep their names, and a name in use is replaced here, too.
        QCOMPARE(tool({"restore", "1", "--as", "mine BEFORE"}).exit_code, 5);
        QCOMPARE(tool({"restore", "1", "--as", "mine BEFORE", "--replace"}).exit_code, 0);
        QCOMPARE(json(tool({"history", "--json"})).array().size(), 3);
        QCOMPARE(tool({"restore", "2", "--replace"}).out, QByteArray("Restored the template \"T\"\n"));
        QCOMPARE(json(tool({"history", "--json"})).array().size(), 4);
    }

    void restore_replaces_no_record_of_the_other_kind()
    {
        const QString directory = q(m_place->db_dir());
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T", 2);
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        save_part("Other", FAMILY, ACTIVE_SERIAL, "U");
        const QByteArray before = exported();

        for (const QStringList& arguments :
             {QStringList{"1", "--as", "u"}, QStringList{"2", "--as", "other"}, QStringList{"1", "--as", "T"}}) {
            const TOOL_RUN run = run_tool(QStringList{"restore", "-d", directory} + arguments);
            QCOMPARE(run.exit_code, 5);
            QVERIFY2(run.err.endsWith("\ngfpdb: Use --as to give the state another name.\n"), run.err.constData());
            QCOMPARE(run_tool(QStringList{"restore", "--replace", "-d", directory} + arguments).exit_code, 5);
        }
        QCOMPARE(exported(), before);
    }

    void restore_checks_the_other_name_data()
    {
        const QByteArray alike("The device and its template need different names: both are called ");
        rows<QString, QString, QByteArray>(
            {{"built-in device", "1", "mx25l1606e",
              "There is a built-in device called \"MX25L1606E\": choose another name. Upper and lower case count as "
              "the same."},
             {"built-in template", "2", "No QE bit",
              "There is a built-in template called \"No QE bit\": choose another name."},
             {"blank at its end", "1", "x ", "The device name \"x \" begins or ends with a space: remove it."},
             {"too long", "2", QString(65, 'x'),
              "The template name has 65 characters: 1 to 64 characters are allowed."},
             {"device and its template", "1", "t", alike + "\"t\"."},
             {"template and its device", "2", "MINE", alike + "\"Mine\"."}});
    }

    void restore_checks_the_other_name()
    {
        const auto [id, name, error] = row<QString, QString, QByteArray>();
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        QVERIFY(fresh_manager()->delete_flash("Mine", m_place->db_dir()));
        QVERIFY(fresh_manager()->remove_template("T"));

        const TOOL_RUN run = tool({"restore", id, "--as", name});

        QCOMPARE(run.exit_code, 5);
        QCOMPARE(run.err, "gfpdb: " + error + "\n");
        QCOMPARE(names(json(tool({"list", "--json"}))), QStringList());
    }

    // The catalogue has grown, or another version of the program has a smaller one; what an older program stored has
    // names that would not be accepted today.
    void a_device_with_a_built_in_or_a_bad_name_is_restored()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        QVERIFY(fresh_manager()->delete_flash("Mine", m_place->db_dir()));
        QVERIFY(fresh_manager()->remove_template("T"));
        run_sql(m_place->db_file(), "UPDATE history SET name = 'Mine '");
        QCOMPARE(tool({"restore", "1"}).err,
                 QByteArray("gfpdb: The device name \"Mine \" begins or ends with a space: remove it.\n"));
        QCOMPARE(tool({"restore", "1", "--as", "Mine"}).exit_code, 0);

        run_sql(m_place->db_file(), "UPDATE history SET name = 'MX25L1606E', template_name = 'MX25L3233F'");
        QCOMPARE(tool({"restore", "1"}).out, QByteArray("Restored the device \"MX25L1606E\"\n"));
        QCOMPARE(tool({"restore", "2"}).out, QByteArray("Restored the template \"MX25L3233F\"\n"));
        QCOMPARE(tool({"restore", "1", "--replace"}).exit_code, 0);
        QCOMPARE(tool({"restore", "1", "--replace", "--as", "mx25L1606e"}).exit_code, 0);
        // Another built-in name than the one that it had is refused.
        QCOMPARE(tool({"restore", "1", "--as", "MX25L25645G"}).exit_code, 5);
    }

    void every_number_of_the_history_is_known_data()
    {
        rows_named<QString>({"2147483648", "4294967297", "999999999999999999", "9223372036854775807"});
    }

    void every_number_of_the_history_is_known()
    {
        const QString id = row<QString>();
        save_part("Mine");
        const QByteArray before = exported();
        save_part("Other");
        QVERIFY(fresh_manager()->delete_flash("Other", m_place->db_dir()));
        QVERIFY(fresh_manager()->delete_flash("Mine", m_place->db_dir()));
        run_sql(m_place->db_file(), "UPDATE history SET id = " + id.toStdString() + " WHERE name = 'Mine'");

        const QByteArray listed = tool({"history", "Mine"}).out;
        QVERIFY2(listed.contains('\n' + id.toUtf8() + "  "), listed.constData());
        QVERIFY(tool({"history", "--json"}).out.contains("\"id\": " + id.toUtf8() + ",\n"));
        QCOMPARE(tool({"diff", "history:" + id, "history:" + id}).exit_code, 0);
        QCOMPARE(tool({"restore", id}).exit_code, 0);
        QCOMPARE(exported(), before);
    }

    void what_is_not_a_number_of_the_history_is_refused_data()
    {
        rows_named<QString>({"x", "1x", " 1", "1 ", "+1", "1.0", "0x1", "9223372036854775808"});
    }

    void what_is_not_a_number_of_the_history_is_refused()
    {
        const QString id = row<QString>();
        save_part("Mine", FAMILY, ACTIVE_SERIAL, std::string(), 2);
        save_part("Mine");

        const TOOL_RUN run = tool({"restore", id});

        QCOMPARE(run.exit_code, 2);
        QCOMPARE(run.err, "gfpdb: \"" + id.toUtf8() + "\" is not a number of the history.\n");
        QCOMPARE(tool({"diff", "history:" + id, "Mine"}).exit_code, 3);
    }

    void prune_keeps_what_it_is_asked_to_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("left");
        const auto add = [](const QStringList& options, const char* left) {
            QTest::newRow(qPrintable(options.join(' '))) << options << QString(left);
        };
        add({"--keep", "0"}, "5 6");
        add({"--keep", "0", "--force"}, "");
        add({"--keep", "1"}, "3 4 5 6");
        add({"--keep", "2"}, "2 3 4 5 6");
        add({"--keep", "2", "--force"}, "2 3 4 5 6");
        add({"--older-than", "40"}, "2 3 4 5 6");
        add({"--older-than", "20"}, "3 4 5 6");
        add({"--older-than", "5"}, "4 5 6");
        add({"--older-than", "5", "--force"}, "4 6");
        add({"--older-than", "5", "--keep", "1"}, "3 4 5 6");
        add({"--keep", "0", "mine"}, "5 6");
        add({"--keep", "0", "mine", "--family", "3", "--scheme", "7"}, "4 5 6");
        add({"--keep", "0", "--force", "GONE"}, "1 2 3 4 6");
        add({"--keep", "0", "--scheme", "13"}, "1 2 3 5 6");
    }

    // 1 to 3 are states of a device that is there, 4 is one of the same name elsewhere, 5 and 6 are all that is left of
    // a device and of a template.
    void prune_keeps_what_it_is_asked_to()
    {
        const QString directory = q(m_place->db_dir());
        QFETCH(QStringList, options);
        QFETCH(QString, left);
        save_part("Mine");
        save_part("Mine", FAMILY, QUAD);
        save_part("Gone", FAMILY, ACTIVE_SERIAL, "Gone template");
        const std::string record =
            ", family, scheme, name, device_id, voltage, density, total_die, single_io_dummy_clock, "
            "quad_io_dummy_clock, template_name, flow_template, revision, saved_at, single_flows, quad_flows, ";
        const std::string copy = "INSERT INTO history (id, is_template, reason, changed_at" + record +
                                 "changed_by, name_key, saved_by" + (tests_are_on_server() ? ", change_id" : "") +
                                 ") SELECT ";
        const std::string last = tests_are_on_server() ? "saved_by, '' FROM " : "saved_by FROM ";
        const std::string columns = record + "'me', ";
        const auto add = [&](int id, int days, const std::string& from) {
            run_sql(m_place->db_file(),
                    copy + std::to_string(id) + ", " + (from[0] == 't' ? "1" : "0") +
                        ", 'replaced', strftime('%Y-%m-%dT%H:%M:%SZ', 'now', '-" + std::to_string(days) + " days')" +
                        columns + (from[0] == 't' ? "lower(template_name), " : "lower(name), ") + last + from);
        };
        add(1, 50, "device WHERE name = 'Mine' AND scheme = 7");
        add(2, 30, "device WHERE name = 'Mine' AND scheme = 7");
        add(3, 10, "device WHERE name = 'Mine' AND scheme = 7");
        add(4, 1, "device WHERE name = 'Mine' AND scheme = 13");
        add(5, 10, "device WHERE name = 'Gone'");
        add(6, 1, "template WHERE template_name = 'Gone template'");
        run_sql(m_place->db_file(), "DELETE FROM device WHERE name = 'Gone'");
        run_sql(m_place->db_file(), "DELETE FROM template");

        const TOOL_RUN run = run_tool(QStringList{"history", "--prune", "-d", directory} + options);

        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.exit_code, 0);
        QStringList ids;
        for (const QJsonValue entry : json(tool({"history", "--json"})).array())
            ids += QString::number(entry.toObject().value("id").toInt());
        QCOMPARE(ids.join(' '), left);
        const int removed = 6 - ids.size();
        QCOMPARE(run.out, "Removed " + QByteArray::number(removed) + (removed == 1 ? " state" : " states") +
                              " from the history of " + directory.toUtf8() + "\n");
    }

    void a_history_that_cannot_be_changed_is_not_pruned()
    {
        save_part("Mine");
        save_part("Mine");
        write_file(m_place->db_file(), "this is no database, but long enough to be one" + std::string(1000, '.'));
        QCOMPARE(tool({"history", "--prune", "--keep", "0"}).exit_code, 5);
        // Nothing is made to remove something from it.
        make_dir(m_place->path("empty/"));
        QCOMPARE(run_tool({"history", "--prune", "--keep", "0", "-d", at("empty/")}).exit_code, 0);
        QCOMPARE(run_tool({"check", "--rebuild-keys", "-d", at("empty/")}).exit_code, 0);
        QVERIFY(!QFile::exists(at("empty/gfpdb.sqlite")));
    }

    void diff_compares_records_files_and_states()
    {
        save_part("Mine");
        const QString file = exported_file("Mine");
        QCOMPARE(tool({"diff", "Mine", file}).exit_code, 0);
        QCOMPARE(tool({"diff", "Mine", "mine"}).out, QByteArray());
        replace_in_file(file, "\"total_die\": 1", "\"total_die\": 2");

        TOOL_RUN run = tool({"diff", "Mine", file});
        QCOMPARE(run.exit_code, 1);
        QCOMPARE(run.out, "--- Mine\n+++ " + file.toUtf8() +
                              "\n@@ -5,7 +5,7 @@\n   \"device_id\": \"0xC2 0x20 0x19\",\n   \"voltage\": \"3.3V\",\n"
                              "   \"density\": \"256Mb\",\n-  \"total_die\": 1,\n+  \"total_die\": 2,\n"
                              "   \"single_io_dummy_clock\": 8,\n   \"quad_io_dummy_clock\": 6,\n"
                              "   \"template_name\": \"\",\n");
        run = tool({"diff", file, "Mine"});
        QVERIFY(run.out.contains("\n-  \"total_die\": 2,\n+  \"total_die\": 1,\n"));

        QCOMPARE(tool({"import", "--replace", file}).exit_code, 0);
        run = tool({"diff", "history:1", "Mine", "--json"});
        QCOMPARE(run.exit_code, 1);
        QCOMPARE(run.out,
                 QByteArray("{\n  \"same\": false,\n  \"changes\": [\n    {\n      \"left_line\": 8,\n"
                            "      \"right_line\": 8,\n      \"removed\": [\n        \"  \\\"total_die\\\": 1,\"\n"
                            "      ],\n      \"added\": [\n        \"  \\\"total_die\\\": 2,\"\n      ]\n    }\n"
                            "  ]\n}\n"));
        run = tool({"diff", "Mine", file, "--json"});
        QCOMPARE(run.out, QByteArray("{\n  \"same\": true,\n  \"changes\": []\n}\n"));
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run_tool({"diff", "MX25L25645G", "MX25L25635F"}).exit_code, 1);
    }

    void diff_of_two_files()
    {
        save_part("A");
        save_part("B", FAMILY, ACTIVE_SERIAL, "T");
        save_part("B", OTHER_FAMILY, QUAD);
        const QString all = at("all.json");
        tool({"export", "-o", all});
        const QString one = at("one.json");
        tool({"export", "T", "-o", one});
        QCOMPARE(tool({"diff", one, all}).exit_code, 0);
        tool({"export", "B", "--family", "5", "-o", one});
        QCOMPARE(tool({"diff", one, all}).exit_code, 0);
        QCOMPARE(tool({"diff", "B", all, "--family", "5"}).exit_code, 0);

        const TOOL_RUN run = tool({"diff", all, one});
        QCOMPARE(run.exit_code, 3);
        QCOMPARE(run.err,
                 "gfpdb: " + all.toUtf8() + ": The file has several records, but none matches the other side.\n");
        // A built-in device can be compared with its exported state.
        run_tool({"export", "MX25L1606E", "-o", one});
        QCOMPARE(run_tool({"diff", "MX25L1606E", one}).exit_code, 0);
    }

    void diff_says_what_it_cannot_find()
    {
        const QString directory = q(m_place->db_dir());
        save_part("Mine");
        QCOMPARE(tool({"diff", "Mine", "nobody"}).exit_code, 3);
        QCOMPARE(tool({"diff", "nobody", "Mine"}).exit_code, 3);
        const TOOL_RUN run = tool({"diff", "Mine", "history:9"});
        QCOMPARE(run.exit_code, 3);
        QCOMPARE(run.err, "gfpdb: There is no state \"9\" in the history of " + directory.toUtf8() + ".\n");
        QCOMPARE(tool({"diff", "Mine", "history:x"}).exit_code, 3);
        QCOMPARE(tool({"diff", "Mine", "/no/such"}).exit_code, 4);
        QCOMPARE(tool({"diff", "Mine", "nosuch.json"}).exit_code, 4);
        write_file(m_place->path("none.json"), R"({"format": "gfpdb-records", "version": 1})");
        const TOOL_RUN empty = tool({"diff", "Mine", at("none.json")});
        QCOMPARE(empty.exit_code, 4);
        QVERIFY(empty.err.contains("none.json: The file has no records.\n"));
    }
};

EITHER_STORE_TEST_MAIN(TEST_CLI_HISTORY)

#include "test_cli_history.moc"
