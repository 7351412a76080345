// SPDX-License-Identifier: MIT

// The real program: check.
#include "cli_test.h"

#include <QJsonArray>
#include <QJsonObject>

class TEST_CLI_CHECK : public CLI_TEST
{
    Q_OBJECT

private slots:
    void check_finds_what_breaks_the_rules()
    {
        const QStringList check = {"check", "-d", q(m_place->db_dir())};
        save_part("Good", FAMILY, ACTIVE_SERIAL, "T");
        TOOL_RUN run = run_tool(check);
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out, QByteArray("2 records, 0 problems\n"));

        GFPDB_MGR& manager = *fresh_manager();
        GFPDB_FLASH* odd = manager.create_flash("Odd");
        odd->set_string_property(GFPDB_FLASH_DEVICE_ID, "none");
        odd->set_density("8Mb");
        GFPDB_OPERATION* operation = manager.create_operation(0);
        GFPDB_ACTION* action = manager.create_action(GFPDB_ACT_WRITE_REGISTER);
        action->set_property_value(GFPDB_WR_COMMAND, "6");
        operation->add_action(action);
        odd->set_operation(operation, QUAD_IO);
        QVERIFY(manager.save_flash(odd, m_place->db_dir()));

        run = run_tool(check);
        QCOMPARE(run.exit_code, 1);
        QCOMPARE(run.err, QByteArray());
        const QList<QByteArray> lines = run.out.split('\n');
        QCOMPARE(lines.size(), 7);
        QCOMPARE(lines[0],
                 QByteArray("device \"Odd\" (family 3, scheme 7): quad_flows[0].actions[0].command: \"6\" is not "
                            "allowed for \"Command\". Allowed: one byte in hexadecimal, such as 0x9F."));
        QVERIFY(lines[1].startsWith("device \"Odd\" (family 3, scheme 7): device_id: \"none\" is not a byte"));
        QVERIFY(lines[2].startsWith("device \"Odd\" (family 3, scheme 7): voltage: The I/O voltage \"\" is not known"));
        QVERIFY(lines[3].startsWith("device \"Odd\" (family 3, scheme 7): total_die: The total die count 0 is out of"));
        QCOMPARE(lines[4],
                 QByteArray("device \"Odd\" (family 3, scheme 7): single_flows: warning: There are no flows for "
                            "this configuration mode."));
        QCOMPARE(lines[5], QByteArray("3 records, 4 problems, 1 warning"));

        run = run_tool(check + QStringList{"--json"});
        QCOMPARE(run.exit_code, 1);
        const QJsonObject report = json(run).object();
        QCOMPARE(report.keys(), (QStringList{"directory", "integrity", "problems", "records", "warnings"}));
        QCOMPARE(report.value("directory").toString(), q(m_place->db_dir()));
        QCOMPARE(report.value("integrity").toString(), QString("ok"));
        QCOMPARE(report.value("records").toInt(), 3);
        const QJsonObject problem = report.value("problems").toArray().at(0).toObject();
        QCOMPARE(problem.value("record").toString(), QString("device \"Odd\" (family 3, scheme 7)"));
        QCOMPARE(problem.value("field").toString(), QString("quad_flows[0].actions[0].command"));
        QVERIFY(problem.value("text").toString().startsWith("\"6\" is not allowed"));
        const QJsonArray warnings = report.value("warnings").toArray();
        QCOMPARE(warnings.size(), 1);
        QCOMPARE(warnings.at(0).toObject().value("field").toString(), QString("single_flows"));
    }

    void a_warning_alone_is_not_a_problem()
    {
        save_part("Mine");
        run_sql(m_place->db_file(), "UPDATE device SET single_flows = '', quad_flows = ''");

        const TOOL_RUN run = tool({"check"});

        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out,
                 QByteArray("device \"Mine\" (family 3, scheme 7): single_flows: warning: There are no flows.\n"
                            "1 record, 0 problems, 1 warning\n"));
    }

    // The dialog offers what stored devices have; that makes it no right value.
    void a_wrong_voltage_or_density_is_found_in_what_is_stored()
    {
        const QStringList check = {"check", "-d", q(m_place->db_dir())};
        save_part("Mine");
        save_part("Other");
        const QByteArray mine = "device \"Mine\" (family 3, scheme 7): ";
        const auto lines = [&check](int exit_code) {
            const TOOL_RUN run = run_tool(check);
            return run.exit_code == exit_code ? run.out.split('\n') : QList<QByteArray>{run.out};
        };

        run_sql(m_place->db_file(), "UPDATE device SET voltage = 'foo', density = 'large' WHERE name = 'Mine'");
        const QList<QByteArray> wrong = lines(1);
        QCOMPARE(wrong.size(), 4);
        QVERIFY(wrong[0].startsWith(mine + "voltage: The I/O voltage \"foo\" is not known: choose one of "));
        QVERIFY(wrong[1].startsWith(mine + "density: The density \"large\" is not known: choose one of "));
        QCOMPARE(wrong[2], QByteArray("2 records, 2 problems"));

        run_sql(m_place->db_file(), "UPDATE device SET voltage = '5V', density = '3Mb' WHERE name = 'Mine'");
        const QList<QByteArray> unusual = lines(0);
        QCOMPARE(unusual.size(), 4);
        QVERIFY(unusual[0].startsWith(mine + "voltage: warning: The I/O voltage \"5V\" is not a usual one. Usual: "));
        QVERIFY(unusual[1].startsWith(mine + "density: warning: The density \"3Mb\" is not a usual one. Usual: "));
        QCOMPARE(unusual[2], QByteArray("2 records, 0 problems, 2 warnings"));
    }

    // The catalogue has got a device of that name since.
    void a_stored_record_keeps_a_built_in_name()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        run_sql(m_place->db_file(), "UPDATE device SET name = 'MX25L1606E', name_key = 'mx25l1606e'");
        run_sql(m_place->db_file(), "UPDATE template SET template_name = 'MX25L3233F', template_key = 'mx25l3233f'");
        const QString file = at("all.json");

        QCOMPARE(tool({"check"}).out, QByteArray("2 records, 0 problems\n"));
        QCOMPARE(tool({"export", "-o", file}).exit_code, 0);
        replace_in_file(file, "\"total_die\": 1", "\"total_die\": 2");
        QCOMPARE(tool({"import", "--replace", file}).err, QByteArray());
        make_dir(m_place->path("elsewhere/"));
        QCOMPARE(run_tool({"import", file, "-d", at("elsewhere/")}).exit_code, 4);
    }

    void check_finds_flows_that_cannot_be_read()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        run_sql(m_place->db_file(), "UPDATE device SET single_flows = 'nonsense'");
        const TOOL_RUN run = tool({"check"});
        QCOMPARE(run.exit_code, 1);
        QCOMPARE(run.out, QByteArray("device \"Mine\" (family 3, scheme 7): The flows cannot be read.\n"
                                     "2 records, 1 problem\n"));
        for (const QStringList& arguments : {QStringList{"show", "Mine"}, QStringList{"diff", "Mine", "T"}})
            QCOMPARE(tool(arguments).exit_code, 5);
    }

    void export_leaves_out_only_what_cannot_be_read()
    {
        save_part("A");
        save_part("Broken", FAMILY, ACTIVE_SERIAL, "T");
        run_sql(m_place->db_file(), "UPDATE device SET quad_flows = 'nonsense' WHERE name = 'Broken'");
        const QByteArray error =
            "gfpdb: The flows of the device \"Broken\" (family 3, scheme 7) cannot be read: it is not "
            "exported.\n";

        const TOOL_RUN run = tool({"export"});
        QCOMPARE(run.exit_code, 5);
        QCOMPARE(run.err, error);
        const QJsonObject file = json(run).object();
        QCOMPARE(names(QJsonDocument(file.value("devices").toArray())), QStringList{"A"});
        QCOMPARE(file.value("templates").toArray().size(), 1);

        const QString path = at("out.json");
        const TOOL_RUN to_file = tool({"export", "Broken", "A", "-o", path});
        QCOMPARE(to_file.exit_code, 5);
        QCOMPARE(to_file.err, error);
        QCOMPARE(tool({"diff", "A", path}).exit_code, 0);
        // A list has no flows.
        const TOOL_RUN list = tool({"export", "--csv"});
        QCOMPARE(list.exit_code, 0);
        QVERIFY(list.out.contains("\nBroken,3,7,"));
    }

    // Nobody is told that the other records were written.
    void an_export_that_cannot_be_written_says_only_that()
    {
        save_part("A");
        save_part("Broken");
        run_sql(m_place->db_file(), "UPDATE device SET quad_flows = 'nonsense' WHERE name = 'Broken'");
        const QString path = at("no such directory/out.json");

        const TOOL_RUN run = tool({"export", "-o", path});

        QCOMPARE(run.exit_code, 4);
        QCOMPARE(run.err, "gfpdb: " + path.toUtf8() + ": The file cannot be written: No such file or directory.\n");
    }

    // The tables by which names are compared have changed, or another program has written the file.
    void a_record_that_no_search_finds_is_named()
    {
        save_part("A", FAMILY, ACTIVE_SERIAL, "T");
        save_part("Lost");
        const QByteArray before = exported();
        run_sql(m_place->db_file(), "UPDATE device SET name_key = 'lo\xC5\xBFt' WHERE name = 'Lost'");
        run_sql(m_place->db_file(), "UPDATE template SET template_key = 'T'");
        const QByteArray how =
            "The stored key does not match the name, so that no search finds the record: \"gfpdb check "
            "--rebuild-keys\" repairs that, unless another record has the name.\n";
        const QByteArray device = "device \"Lost\" (family 3, scheme 7): ";

        const TOOL_RUN check = tool({"check"});
        QCOMPARE(check.exit_code, 1);
        QCOMPARE(check.out, device + how + "template \"T\": " + how + "3 records, 2 problems\n");
        const QString file = at("out.json");
        const TOOL_RUN all = tool({"export", "-o", file});
        QCOMPARE(all.exit_code, 5);
        QCOMPARE(all.err, "gfpdb: " + device + how + "gfpdb: template \"T\": " + how);
        QVERIFY(!QFile::exists(file));
        for (const char* command : {"export", "show"}) {
            const TOOL_RUN one = tool({command, "Lost"});
            QCOMPARE(one.exit_code, 5);
            QCOMPARE(one.err, "gfpdb: " + device + how);
        }
        QCOMPARE(tool({"export", "A"}).exit_code, 0);

        const TOOL_RUN rebuilt = tool({"check", "--rebuild-keys"});
        QCOMPARE(rebuilt.exit_code, 0);
        QCOMPARE(rebuilt.out, QByteArray("3 records, 0 problems\n"));
        QCOMPARE(exported(), before);
    }

    // What has the name of another record keeps waiting; what has another's key gets its own.
    void keys_are_rebuilt_as_far_as_names_are_free()
    {
        for (const char* name : {"A", "B", "C", "D", "E"})
            save_part(name);
        save_part("F", FAMILY, ACTIVE_SERIAL, "T");
        run_sql(m_place->db_file(),
                "UPDATE device SET name_key = CASE name WHEN 'A' THEN 'x' WHEN 'B' THEN 'a' ELSE name_key "
                "END WHERE name IN ('A', 'B')");
        run_sql(m_place->db_file(), "UPDATE device SET name_key = 'b' WHERE name = 'A'");
        run_sql(m_place->db_file(), "UPDATE device SET name = 'c' WHERE name = 'D'");
        run_sql(m_place->db_file(), "UPDATE device SET name = 't' WHERE name = 'E'");

        const TOOL_RUN run = tool({"check", "--rebuild-keys"});

        QCOMPARE(run.exit_code, 1);
        QVERIFY(run.out.startsWith("device \"c\" (family 3, scheme 7): The stored key"));
        QVERIFY(run.out.contains("\ndevice \"t\" (family 3, scheme 7): The stored key"));
        QVERIFY2(run.out.endsWith("\n7 records, 2 problems\n"), run.out.constData());
        for (const char* name : {"A", "B"})
            QCOMPARE(json(tool({"show", name, "--json"})).object().value("name").toString(), QString(name));
    }

    void check_finds_damage()
    {
        save_part("Mine");
        QFile file(q(m_place->db_file()));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QByteArray bytes = file.readAll();
        // The name stands in the table and in its indexes; when one place differs, they no longer go together.
        const int place_of_name = bytes.lastIndexOf("Mine");
        QVERIFY(place_of_name > 0);
        file.seek(place_of_name);
        file.write("Yours", 4);
        file.close();

        const TOOL_RUN run = tool({"check"});

        QCOMPARE(run.exit_code, 5);
        QVERIFY2(run.err.contains("is damaged"), run.err.constData());
        const TOOL_RUN as_json = tool({"check", "--json"});
        QVERIFY(json(as_json).object().value("integrity").toString().contains("is damaged"));
    }

    void what_sqlite_says_in_several_lines_is_printed_in_one()
    {
        save_part("Mine");
        QFile file(q(m_place->db_file()));
        QVERIFY(file.open(QIODevice::ReadWrite));
        constexpr int PAGE_SIZE = 4096;
        file.seek(file.size() - PAGE_SIZE);
        file.write(QByteArray(PAGE_SIZE, '\xFF'));
        file.close();

        const TOOL_RUN run = tool({"check"});

        QCOMPARE(run.exit_code, 5);
        QVERIFY2(run.err.startsWith("gfpdb: The database in " + QByteArray::fromStdString(m_place->db_dir()) +
                                    " is damaged: *** in database main *** On tree page "),
                 run.err.constData());
        QCOMPARE(run.err.count('\n'), 1);
    }
};

EITHER_STORE_TEST_MAIN(TEST_CLI_CHECK)

#include "test_cli_check.moc"
