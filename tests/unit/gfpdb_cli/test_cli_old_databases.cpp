// SPDX-License-Identifier: MIT

// Databases and files of former versions: nothing is lost on their way to the present schema.
//
// data/schema_2.sqlite was made by the program of schema 2: devices of every kind of scheme, both flow variants, odd
// texts, templates, a history, and flows that cannot be read. The files beside it are what that program exported of it,
// and its history as records (null where flows cannot be read). data/schema_3.sqlite is the same database after the
// program of schema 3 has upgraded it.
#include "exchange/gfpdb_record_json.h"
#include "test_rows.h"

#include "cli_test.h"

#include "manager/gfpdb_embedded_mgr.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

// What leads back to schema 1, and to an old program's view of a file.
const std::vector<std::string> TO_SCHEMA_1 = {"DROP INDEX device_names", "DROP INDEX device_keys",
                                              "DROP INDEX template_names", "ALTER TABLE history DROP COLUMN changed_by",
                                              "UPDATE meta SET value = '1' WHERE name = 'schema_version'"};
constexpr int EXIT_UNREADABLE_FLOWS = 5;

QString data_file(const char* name)
{
    return QStringLiteral(GFPDB_TEST_DATA) + QLatin1String(name);
}

// As one text: the flows of every record, unreadable ones too, byte for byte.
std::string raw_flows(const GFPDB_PLACE& place, const char* where)
{
    std::string statement;
    for (const char* table : {"device", "template", "history"})
        statement += std::string(statement.empty() ? "" : " UNION ALL ") +
                     "SELECT hex(CAST(name AS BLOB)) || ' ' || hex(CAST(single_flows AS BLOB)) || ' ' || "
                     "hex(CAST(quad_flows AS BLOB)) AS flows FROM " +
                     table + ' ' + where;
    return run_sql(place.db_file(), "SELECT group_concat(flows) FROM (" + statement + ")").toString().toStdString();
}

// The history as data/schema_2_history.json has it.
std::string history_of_store()
{
    GFPDB_STORE& store = GFPDB_EMBEDDED_MGR::instance().store();
    JSON_VALUE states = json_object();
    for (const GFPDB_HISTORY_ENTRY& entry : store.get_history()) {
        const std::optional<JSON_VALUE> record =
            gfpdb_record_to_json({entry.is_template, store.find_history(entry.id)->row, 0});
        states.add(std::to_string(entry.id), record.value_or(json_null()));
    }
    return json_write(states);
}

} // namespace

class TEST_CLI_OLD_DATABASES : public QObject
{
    Q_OBJECT

private slots:
    void nothing_of_an_old_database_is_lost_data() { rows<int>({{"schema 1", 1}, {"schema 2", 2}, {"schema 3", 3}}); }

    void nothing_of_an_old_database_is_lost()
    {
        const GFPDB_PLACE place;
        const int schema = row<int>();
        make_database(place, schema);

        const TOOL_RUN run = run_tool({"export", "-d", q(place.db_dir())});

        QCOMPARE(run.out, text_of_file(data_file("schema_2_records.json")));
        QCOMPARE(run.exit_code, EXIT_UNREADABLE_FLOWS);
        QCOMPARE(run.err.count("cannot be read: it is not exported."), 6);
        fresh_manager();
        QCOMPARE(history_of_store(), text_of_file(data_file("schema_2_history.json")).toStdString());
        const QString version =
            run_sql(place.db_file(), "SELECT value FROM meta WHERE name = 'schema_version'").toString();
        QCOMPARE(version, QStringLiteral("4"));
    }

    void completing_a_word_upgrades_nothing_data() { nothing_of_an_old_database_is_lost_data(); }

    void completing_a_word_upgrades_nothing()
    {
        const GFPDB_PLACE place;
        make_database(place, row<int>());
        const QByteArray before = text_of_file(q(place.db_file()));
        const TOOL_RUN run = run_tool({"--complete", "show", "-d", q(place.db_dir()), ""});
        const TOOL_RUN states = run_tool({"--complete", "restore", "-d", q(place.db_dir()), ""});
        QVERIFY(text_of_file(q(place.db_file())) == before);
        QVERIFY2(run.out.contains("Unreadable") && states.out.contains(", deleted "),
                 (run.out + states.out).constData());
    }

    void flows_that_cannot_be_read_stay_as_they_are()
    {
        const GFPDB_PLACE place;
        make_database(place, 2);
        const char* const unreadable = "WHERE name LIKE '%Unreadable%'";
        run_sql(place.db_file(),
                "UPDATE device SET single_flows = 'no JSON', quad_flows = '' " + std::string(unreadable));
        run_sql(place.db_file(), "UPDATE template SET single_flows = '' " + std::string(unreadable));
        run_sql(place.db_file(), "UPDATE history SET quad_flows = x'00FF' " + std::string(unreadable));
        const std::string before = raw_flows(place, unreadable);

        const TOOL_RUN run = run_tool({"check", "-d", q(place.db_dir())});

        QCOMPARE(run.out.count("The flows cannot be read."), 6);
        QCOMPARE(raw_flows(place, unreadable), before);
    }

    void a_state_without_a_name_hurts_no_other()
    {
        const GFPDB_PLACE place;
        make_database(place, 2);
        run_sql(place.db_file(), "UPDATE history SET name = '', is_template = 0 WHERE id = 3");

        run_tool({"check", "-d", q(place.db_dir())});

        const std::string keys = "SELECT group_concat(name_key, '|') FROM history WHERE id < 5";
        QCOMPARE(run_sql(place.db_file(), keys).toString(),
                 QStringLiteral("both variants|to be deleted||deleted unreadable"));
        const std::string unconverted = "SELECT count(*) FROM history WHERE single_flows LIKE '{\"operations\"%'";
        QCOMPARE(run_sql(place.db_file(), unconverted).toInt(), 0);
    }

    void former_states_are_found_by_name()
    {
        const GFPDB_PLACE place;
        make_database(place, 2);

        QCOMPARE(json(run_tool({"history", "both variants", "--json", "-d", q(place.db_dir())})).array().size(), 1);
        QCOMPARE(json(run_tool({"history", "TO BE REMOVED", "--json", "-d", q(place.db_dir())})).array().size(), 1);
        QCOMPARE(json(run_tool({"history", "No Flows", "--json", "-d", q(place.db_dir())})).array().size(), 0);

        // As if the tables of Unicode had changed.
        run_sql(place.db_file(), "UPDATE history SET name_key = 'x'");
        QCOMPARE(json(run_tool({"history", "both variants", "--json", "-d", q(place.db_dir())})).array().size(), 0);
        run_tool({"check", "--rebuild-keys", "-d", q(place.db_dir())});
        QCOMPARE(json(run_tool({"history", "both variants", "--json", "-d", q(place.db_dir())})).array().size(), 1);
    }

    void files_of_the_former_version_are_imported_without_a_difference()
    {
        const GFPDB_PLACE place;
        const QString records = data_file("schema_2_records.json");

        const TOOL_RUN run = run_tool({"import", records, "--unchecked", "-d", q(place.db_dir())});

        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run_tool({"export", "-d", q(place.db_dir())}).out, text_of_file(records));
    }

private:
    void make_database(const GFPDB_PLACE& place, int schema)
    {
        QVERIFY(QFile::copy(data_file(schema < 3 ? "schema_2.sqlite" : "schema_3.sqlite"), q(place.db_file())));
        QVERIFY(QFile::setPermissions(q(place.db_file()), QFile::ReadOwner | QFile::WriteOwner));
        if (schema == 1) {
            for (const std::string& statement : TO_SCHEMA_1)
                QVERIFY(run_sql(place.db_file(), statement).isValid());
        }
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_OLD_DATABASES)

#include "test_cli_old_databases.moc"
