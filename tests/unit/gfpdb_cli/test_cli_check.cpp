// The real program: check.
#include "cli_test.h"

#include <QJsonArray>
#include <QJsonObject>

class TEST_CLI_CHECK : public QObject
{
    Q_OBJECT

private slots:
    void check_finds_what_breaks_the_rules();
    void check_finds_flows_that_cannot_be_read();
    void check_finds_damage();
    void what_sqlite_says_in_several_lines_is_printed_in_one();
};

void TEST_CLI_CHECK::check_finds_what_breaks_the_rules()
{
    const GFPDB_PLACE place;
    const QStringList check = {"check", "-d", q(place.db_dir())};
    save_part("Good", FAMILY, SERIAL, "T");
    TOOL_RUN run = run_tool(check);
    QCOMPARE(run.exit_code, 0);
    QCOMPARE(run.out, QByteArray("2 records, 0 problems\n"));

    GFPDB_MGR& manager = *fresh_manager();
    GFPDB_FLASH* odd = manager.create_flash("Odd");
    odd->set_string_property(GFPDB_FLASH_DEVICE_ID, "none");
    GFPDB_OPERATION* operation = manager.create_operation(0);
    GFPDB_ACTION* action = manager.create_action(GFPDB_ACT_WRITE_REGISTER);
    action->set_property_value(GFPDB_WR_COMMAND, "6");
    operation->add_action(action);
    odd->set_operation(operation, QUAD_IO);
    QVERIFY(manager.save_flash(odd, place.db_dir()));

    run = run_tool(check);
    QCOMPARE(run.exit_code, 1);
    QCOMPARE(run.err, QByteArray());
    const QList<QByteArray> lines = run.out.split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[0], QByteArray("device \"Odd\" (family 3, scheme 7): quad_flows[0].actions[0].command: \"6\" is not "
                                  "allowed for \"Command\". Allowed: one byte in hexadecimal, such as 0x9F."));
    QVERIFY(lines[1].startsWith("device \"Odd\" (family 3, scheme 7): device_id: \"none\" is no byte"));
    QCOMPARE(lines[2], QByteArray("3 records, 2 problems"));

    run = run_tool(check + QStringList{"--json"});
    QCOMPARE(run.exit_code, 1);
    const QJsonObject report = json(run).object();
    QCOMPARE(report.keys(), (QStringList{"directory", "integrity", "problems", "records"}));
    QCOMPARE(report.value("directory").toString(), q(place.db_dir()));
    QCOMPARE(report.value("integrity").toString(), QString("ok"));
    QCOMPARE(report.value("records").toInt(), 3);
    const QJsonObject problem = report.value("problems").toArray().at(0).toObject();
    QCOMPARE(problem.value("record").toString(), QString("device \"Odd\" (family 3, scheme 7)"));
    QCOMPARE(problem.value("field").toString(), QString("quad_flows[0].actions[0].command"));
    QVERIFY(problem.value("text").toString().startsWith("\"6\" is not allowed"));
}

void TEST_CLI_CHECK::check_finds_flows_that_cannot_be_read()
{
    const GFPDB_PLACE place;
    save_part("Mine", FAMILY, SERIAL, "T");
    run_sql(place.db_file(), "UPDATE device SET single_flows = 'nonsense'");
    const TOOL_RUN run = run_tool({"check", "-d", q(place.db_dir())});
    QCOMPARE(run.exit_code, 1);
    QCOMPARE(run.out, QByteArray("device \"Mine\" (family 3, scheme 7): The flows cannot be read.\n"
                                 "2 records, 1 problem\n"));
    for (const QStringList& arguments :
         {QStringList{"show", "Mine"}, QStringList{"export"}, QStringList{"diff", "Mine", "T"}})
        QCOMPARE(run_tool(arguments + QStringList{"-d", q(place.db_dir())}).exit_code, 5);
}

void TEST_CLI_CHECK::check_finds_damage()
{
    const GFPDB_PLACE place;
    save_part("Mine");
    QFile file(q(place.db_file()));
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QByteArray bytes = file.readAll();
    // The name stands in the table and in its indexes; when one place differs, they no longer go together.
    const int place_of_name = bytes.lastIndexOf("Mine");
    QVERIFY(place_of_name > 0);
    file.seek(place_of_name);
    file.write("Yours", 4);
    file.close();

    const TOOL_RUN run = run_tool({"check", "-d", q(place.db_dir())});

    QCOMPARE(run.exit_code, 5);
    QVERIFY2(run.err.contains("is damaged"), run.err.constData());
    const TOOL_RUN as_json = run_tool({"check", "--json", "-d", q(place.db_dir())});
    QVERIFY(json(as_json).object().value("integrity").toString().contains("is damaged"));
}

void TEST_CLI_CHECK::what_sqlite_says_in_several_lines_is_printed_in_one()
{
    const GFPDB_PLACE place;
    save_part("Mine");
    QFile file(q(place.db_file()));
    QVERIFY(file.open(QIODevice::ReadWrite));
    constexpr int PAGE_SIZE = 4096;
    file.seek(file.size() - PAGE_SIZE);
    file.write(QByteArray(PAGE_SIZE, '\xFF'));
    file.close();

    const TOOL_RUN run = run_tool({"check", "-d", q(place.db_dir())});

    QCOMPARE(run.exit_code, 5);
    QVERIFY2(run.err.startsWith("gfpdb: The database in " + QByteArray::fromStdString(place.db_dir()) +
                                " is damaged: *** in database main *** On tree page "),
             run.err.constData());
    QCOMPARE(run.err.count('\n'), 1);
}

QTEST_GUILESS_MAIN(TEST_CLI_CHECK)
#include "test_cli_check.moc"
