// SPDX-License-Identifier: MIT

// The real program: export and import.
#include "cli_test.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>

#include <sys/stat.h>

class TEST_CLI_TRANSFER : public CLI_TEST
{
    Q_OBJECT

private slots:
    void export_and_import_elsewhere_give_the_identical_record()
    {
        make_dir(m_place->path("elsewhere/"));
        const QStringList elsewhere = {"-d", at("elsewhere")};
        save_part("Mine");
        const std::string original = text_of(*fresh_manager()->find_flash("Mine", true));
        const QString file = exported_file("Mine");

        const TOOL_RUN imported = run_tool(QStringList{"import", file} + elsewhere);

        QCOMPARE(imported.err, QByteArray());
        QCOMPARE(imported.exit_code, 0);
        QCOMPARE(imported.out, QByteArray("Imported 1 new, 0 replaced; 0 unchanged in ") +
                                   QByteArray::fromStdString(m_place->path("elsewhere/")) + "\n");
        QCOMPARE(run_tool(QStringList{"export", "Mine"} + elsewhere).out, text_of_file(file));
        GFPDB_MGR::set_db_custom_dir(m_place->path("elsewhere/"));
        QCOMPARE(text_of(*fresh_manager()->find_flash("Mine", true)), original);
    }

    void a_whole_directory_moves_without_loss()
    {
        make_dir(m_place->path("elsewhere/"));
        save_part("A", FAMILY, ACTIVE_SERIAL, "T");
        save_part("A", OTHER_FAMILY, QUAD);
        save_part("Later", FAMILY, ACTIVE_SERIAL, "Gone");
        QVERIFY(fresh_manager()->remove_template("Gone"));
        // A record of another program, with values that the rules would refuse.
        GFPDB_MGR& manager = *fresh_manager();
        QVERIFY(manager.save_flash(make_device(manager, "odd <b>"), m_place->db_dir()));
        const QByteArray all = exported();
        QVERIFY(all.contains("\"template_name\": \"Gone\""));

        const TOOL_RUN run = run_tool({"import", "-", "--unchecked", "-d", at("elsewhere")}, all);

        QCOMPARE(run.err, QByteArray());
        QVERIFY(run.out.startsWith("Imported 5 new, 0 replaced; 0 unchanged in "));
        QCOMPARE(exported("elsewhere/"), all);
    }

    // Also of one that nothing came of.
    void import_reports_as_json()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T", 2);
        const QString all = at("all.json");
        QCOMPARE(tool({"export", "-o", all}).exit_code, 0);
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        QVERIFY(fresh_manager()->remove_template("T"));

        const TOOL_RUN refused = tool({"import", "--json", all});
        QCOMPARE(refused.exit_code, 4);
        QJsonObject report = json(refused).object();
        QCOMPARE(report.value("imported").toBool(true), false);
        const QJsonObject problem = report.value("problems").toArray().at(0).toObject();
        QCOMPARE(problem.value("file").toString(), all);
        QCOMPARE(problem.value("line").toInt(), 5);
        QVERIFY(problem.value("text").toString().endsWith("--replace replaces it."));

        for (const bool is_dry : {true, false}) {
            const TOOL_RUN run = tool(QStringList{"import", "--json", "--replace", all} +
                                      (is_dry ? QStringList("--dry-run") : QStringList()));
            QCOMPARE(run.exit_code, 0);
            report = json(run).object();
            QCOMPARE(report.keys(), (QStringList{"directory", "dry_run", "imported", "new", "problems", "records",
                                                 "refusal", "replaced", "unchanged", "warnings"}));
            QCOMPARE(report.value("dry_run").toBool(), is_dry);
            QCOMPARE(report.value("imported").toBool(), !is_dry);
            QCOMPARE(report.value("new").toInt(), 1);
            QCOMPARE(report.value("replaced").toInt(), 1);
            QStringList records;
            for (const QJsonValue each : report.value("records").toArray()) {
                const QJsonObject record = each.toObject();
                records += record.value("name").toString() + ' ' + record.value("kind").toString() + ' ' +
                           record.value("action").toString();
            }
            QCOMPARE(records, (QStringList{"Mine device replaced", "T template new"}));
        }
        report = json(tool({"import", "--json", all})).object();
        QCOMPARE(report.value("unchanged").toInt(), 2);
        QCOMPARE(report.value("records").toArray().size(), 0);
    }

    void export_writes_a_file_whole_or_not_at_all()
    {
        save_part("Mine");
        const QString file = at("out.json");
        QCOMPARE(tool({"export", "--output", file}).out, QByteArray());
        QCOMPARE(text_of_file(file), exported());

        const QString missing = at("missing/out.json");
        const TOOL_RUN run = tool({"export", "-o", missing});
        QCOMPARE(run.exit_code, 4);
        QVERIFY2(run.err.startsWith("gfpdb: " + missing.toUtf8() + ": The file cannot be written: "),
                 run.err.constData());

        // A pipe stays a pipe.
        const QString pipe = at("pipe");
        QCOMPARE(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
        QProcess reader;
        reader.start("cat", {pipe});
        QVERIFY(reader.waitForStarted());
        QCOMPARE(tool({"export", "-o", pipe}).exit_code, 0);
        QVERIFY(reader.waitForFinished());
        QCOMPARE(reader.readAllStandardOutput(), exported());
        QVERIFY(!QFileInfo(pipe).isFile());
        QCOMPARE(tool({"export", "--csv"}).out.split('\n').at(1).left(9), QByteArray("Mine,3,7,"));
    }

    void export_of_single_records_keeps_their_order()
    {
        save_part("B");
        save_part("A", FAMILY, ACTIVE_SERIAL, "T");
        const TOOL_RUN run = tool({"export", "T", "B", "MX25L1606E", "A"});
        QCOMPARE(run.exit_code, 0);
        const QJsonObject file = json(run).object();
        QCOMPARE(names(QJsonDocument(file.value("devices").toArray())), (QStringList{"B", "MX25L1606E", "A"}));
        QCOMPARE(file.value("templates").toArray().at(0).toObject().value("template_name").toString(), QString("T"));
        QCOMPARE(tool({"export", "--scheme", "13"}).out.count("\"scheme\""), 1);
    }

    void import_is_all_or_nothing()
    {
        save_part("Good");
        const QString good = exported_file("Good");
        const QByteArray before = exported();
        const QString bad = at("bad.json");
        write_file(bad.toStdString(), text_of_file(good).replace("\"Good\"", "\"Bad\"").toStdString());
        replace_in_file(bad, "\"0x38\"", "\"0x3\"");
        replace_in_file(good, "\"Good\"", "\"New\"");

        const TOOL_RUN run = tool({"import", good, bad});

        QCOMPARE(run.exit_code, 4);
        QCOMPARE(run.out, QByteArray());
        const int line = text_of_file(bad).left(text_of_file(bad).indexOf("\"0x3\"")).count('\n') + 1;
        QCOMPARE(run.err, "gfpdb: " + bad.toUtf8() + ":" + QByteArray::number(line) +
                              ": devices[0].quad_flows[1].actions[2].command: \"0x3\" is not allowed for \"Command\". "
                              "Allowed: one byte in hexadecimal, such as 0x9F.\ngfpdb: Nothing was imported.\n");
        QCOMPARE(exported(), before);
    }

    void import_leaves_equal_records_alone()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        const QString directory = q(m_place->db_dir());
        const std::string revision = fresh_manager()->find_flash("Mine", true)->get_revision();
        write_file(m_place->path("all.json"), exported().toStdString());

        const TOOL_RUN run = tool({"import", at("all.json")});

        QCOMPARE(run.out, "Imported 0 new, 0 replaced; 2 unchanged in " + directory.toUtf8() + "\n");
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(fresh_manager()->find_flash("Mine", true)->get_revision(), revision);
        QCOMPARE(tool({"history", "--json"}).out, QByteArray("[]\n"));
    }

    void import_replaces_only_when_asked()
    {
        save_part("Mine");
        const QString directory = q(m_place->db_dir());
        const QString file = exported_file("Mine");
        replace_in_file(file, "\"total_die\": 1", "\"total_die\": 2");

        const TOOL_RUN refused = tool({"import", file});
        QCOMPARE(refused.exit_code, 4);
        QCOMPARE(refused.err, "gfpdb: " + file.toUtf8() +
                                  ":5: The device \"Mine\" exists with different content: --replace replaces it.\n"
                                  "gfpdb: Nothing was imported.\n");
        QCOMPARE(fresh_manager()->find_flash("Mine", true)->get_int_property(GFPDB_FLASH_TOTAL_DIE, 0), 1);

        const TOOL_RUN replaced = tool({"import", file, "--replace"});
        QCOMPARE(replaced.out, "Imported 0 new, 1 replaced; 0 unchanged in " + directory.toUtf8() + "\n");
        QCOMPARE(fresh_manager()->find_flash("Mine", true)->get_int_property(GFPDB_FLASH_TOTAL_DIE, 0), 2);
        QCOMPARE(json(tool({"history", "--json"})).array().at(0).toObject().value("reason").toString(),
                 QString("replaced"));
    }

    void import_refuses_names_that_are_taken()
    {
        save_part("Mine");
        save_part("Other", FAMILY, ACTIVE_SERIAL, "T");
        const QString file = exported_file("Mine");
        replace_in_file(file, "\"name\": \"Mine\"", "\"name\": \"t\"");
        TOOL_RUN run = tool({"import", file});
        QCOMPARE(run.exit_code, 4);
        QVERIFY2(run.err.contains(":5: The name of the device \"t\" is that of a stored template.\n"),
                 run.err.constData());

        tool({"export", "T", "-o", file});
        replace_in_file(file, "\"template_name\": \"T\"", "\"template_name\": \"mine\"");
        run = tool({"import", file});
        QVERIFY2(run.err.contains(":6: The name of the stored template \"mine\" is that of a device.\n"),
                 run.err.constData());

        make_dir(m_place->path("elsewhere/"));
        tool({"export", "-o", file});
        replace_in_file(file, "\"name\": \"Mine\"", "\"name\": \"T\"");
        run = run_tool({"import", file, "-d", at("elsewhere")});
        QCOMPARE(run.exit_code, 4);
        QVERIFY2(run.err.contains(": The name of the stored template \"T\" is that of a device.\n"),
                 run.err.constData());
        QVERIFY(!QFile::exists(at("elsewhere/gfpdb.sqlite")));
    }

    void import_refuses_a_record_twice()
    {
        make_dir(m_place->path("elsewhere/"));
        save_part("Mine");
        const QString file = exported_file("Mine");
        const QString copy = at("copy.json");
        QVERIFY(QFile::copy(file, copy));
        const TOOL_RUN run = run_tool({"import", file, copy, "-d", at("elsewhere")});
        QCOMPARE(run.exit_code, 4);
        QCOMPARE(run.err, "gfpdb: " + copy.toUtf8() + ":5: The device \"Mine\" is already in " + file.toUtf8() +
                              ":5.\ngfpdb: Nothing was imported.\n");
    }

    void import_calls_a_stored_template_so()
    {
        save_part("Other", FAMILY, ACTIVE_SERIAL, "T");
        const QString file = at("template.json");
        tool({"export", "T", "-o", file});
        replace_in_file(file, "\"total_die\": 1", "\"total_die\": 2");
        const QString copy = at("copy.json");
        QVERIFY(QFile::copy(file, copy));

        QCOMPARE(tool({"import", file, copy}).err,
                 "gfpdb: " + file.toUtf8() +
                     ":6: The stored template \"T\" exists with different content: --replace replaces it.\n"
                     "gfpdb: " +
                     copy.toUtf8() + ":6: The stored template \"T\" is already in " + file.toUtf8() +
                     ":6.\ngfpdb: Nothing was imported.\n");
    }

    void import_tries_without_a_change()
    {
        make_dir(m_place->path("elsewhere/"));
        save_part("Mine");
        const QString file = exported_file("Mine");
        const TOOL_RUN run = run_tool({"import", file, "--dry-run", "-d", at("elsewhere")});
        QCOMPARE(run.exit_code, 0);
        QVERIFY(run.out.startsWith("Would import 1 new, 0 replaced; 0 unchanged in "));
        QVERIFY(!QFile::exists(at("elsewhere/gfpdb.sqlite")));
    }

    void import_reads_standard_input()
    {
        const QByteArray list = "name,family,scheme,device_id,density\nListed,3,7,C2 20 19,256Mb\n";
        QCOMPARE(tool({"import", "-", "--csv"}, list).exit_code, 0);
        QCOMPARE(names(json(tool({"list", "--json"}))), QStringList{"Listed"});
        QVERIFY(tool({"import", "-"}, list).err.startsWith("gfpdb: -:1: This is not valid JSON: "));
    }

    void import_of_a_built_in_device_needs_a_name_and_a_place()
    {
        const QString file = exported_file("W25Q64JV-Q");
        TOOL_RUN run = tool({"import", file, "--family", "3", "--scheme", "13"});
        QCOMPARE(run.exit_code, 4);
        QVERIFY(run.err.contains(":6: devices[0].name: There is a built-in device called \"W25Q64JV-Q\""));
        replace_in_file(file, "W25Q64JV-Q", "My W25Q64");
        run = tool({"import", file});
        QVERIFY(run.err.contains(":7: devices[0].family: There is no family 0. Allowed: 1 to 72.\n"));
        run = tool({"import", file, "--family", "3", "--scheme", "13"});
        QCOMPARE(run.exit_code, 0);
        QVERIFY(fresh_manager(3, 13)->is_custom_flash("My W25Q64"));
    }

    void a_missing_value_gets_its_default_and_the_report_says_so()
    {
        write_file(m_place->path("list.csv"),
                   "name,family,scheme,device_id,density,flow_template\nBare,60,7,C2 20 19,8Mb,No QE bit\n");
        const QByteArray warning = "gfpdb: " + at("list.csv").toUtf8() + ":2: device \"Bare\": ";

        const TOOL_RUN run = tool({"import", at("list.csv")});

        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.err, warning + "voltage: warning: The value is missing: 1.8V is stored.\n" + warning +
                              "total_die: warning: The value is missing: 1 is stored.\n" + warning +
                              "single_io_dummy_clock: warning: The value is missing: 0 is stored.\n" + warning +
                              "quad_io_dummy_clock: warning: The value is missing: 0 is stored.\n");
        const QJsonObject stored = json(tool({"show", "Bare", "--json"})).object();
        QCOMPARE(stored.value("voltage").toString(), QString("1.8V"));
        QCOMPARE(stored.value("total_die").toInt(), 1);
        QCOMPARE(stored.value("quad_io_dummy_clock"), QJsonValue(0));
        QCOMPARE(tool({"check"}).out, QByteArray("1 record, 0 problems\n"));
        // It is there now, as the file means it.
        const TOOL_RUN again = tool({"import", at("list.csv")});
        QCOMPARE(again.err, QByteArray());
        QVERIFY(again.out.startsWith("Imported 0 new, 0 replaced; 1 unchanged in "));

        make_dir(m_place->path("elsewhere/"));
        const QStringList elsewhere = {"-d", at("elsewhere/")};
        QCOMPARE(run_tool(QStringList{"import", "--unchecked", at("list.csv")} + elsewhere).err, QByteArray());
        QVERIFY(run_tool(QStringList{"export"} + elsewhere).out.contains("\"total_die\": null"));
        QCOMPARE(run_tool(QStringList{"check"} + elsewhere).exit_code, 1);
    }

    void import_of_a_list_keeps_or_finds_flows()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        const std::string flows = text_of_flows(fresh_manager()->find_flash("Mine", true)->get_operations(QUAD_IO));
        std::string list = "name,family,scheme,device_id,voltage,density,total_die,single_io_dummy_clock,"
                           "quad_io_dummy_clock,flow_template\n";
        for (const char* ends : {"Mine,none such", "builtin,no qe BIT", "stored,t", "bare,none such"}) {
            const QStringList cells = QString(ends).split(',');
            list += (cells[0] + ",3,7,EF,1.8V,8Mb,2,0,0," + cells[1] + '\n').toStdString();
        }
        write_file(m_place->path("list.CSV"), list);

        const TOOL_RUN run = tool({"import", at("list.CSV"), "--replace"});

        QCOMPARE(run.err, "gfpdb: " + at("list.CSV").toUtf8() +
                              ":5: device \"bare\": single_flows: warning: There are no flows.\n");
        GFPDB_MGR& manager = *fresh_manager();
        const auto quad_flows = [&manager](const char* name) {
            return text_of_flows(manager.find_flash(name, true)->get_operations(QUAD_IO));
        };
        QCOMPARE(manager.find_flash("Mine", true)->get_string_property(GFPDB_FLASH_DEVICE_ID), std::string("EF"));
        QCOMPARE(quad_flows("Mine"), flows);
        QCOMPARE(quad_flows("stored"), flows);
        QCOMPARE(quad_flows("builtin"), text_of_flows(manager.get_builtin_template_operations(4, QUAD_IO)));
        QCOMPARE(text_of_flows(manager.find_flash("builtin", true)->get_operations(SINGLE_IO)),
                 text_of_flows(manager.get_builtin_template_operations(4, SINGLE_IO)));
        QCOMPARE(quad_flows("bare"), std::string("none"));
    }

    void import_says_what_cannot_be_read()
    {
        const QString directory = q(m_place->db_dir());
        TOOL_RUN run = tool({"import", "/no/such.json"});
        QCOMPARE(run.exit_code, 4);
        QCOMPARE(run.err, QByteArray("gfpdb: /no/such.json: The file cannot be read: No such file or directory.\n"
                                     "gfpdb: Nothing was imported.\n"));
        const QString pipe = at("pipe");
        QCOMPARE(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
        for (const QString& path : {directory, pipe, QString("/dev/zero")}) {
            const QByteArray error =
                "gfpdb: " + path.toUtf8() + ": The file cannot be read: it is not a regular file.\n";
            run = tool({"import", path});
            QCOMPARE(run.exit_code, 4);
            QCOMPARE(run.err, error + "gfpdb: Nothing was imported.\n");
            QCOMPARE(tool({"diff", path, path}).exit_code, 4);
        }
        write_file(m_place->path("broken.json"), "{\n\"format\": nonsense\n}");
        run = tool({"import", at("broken.json")});
        QVERIFY(run.err.contains("broken.json:2: This is not valid JSON: a value was expected.\n"));
    }

    void a_database_that_cannot_be_changed_is_said()
    {
        save_part("Mine");
        const QString file = exported_file("Mine");
        write_file(m_place->db_file(), "this is no database, but long enough to be one" + std::string(1000, '.'));
        for (const QStringList& arguments :
             {QStringList{"import", file}, QStringList{"list"}, QStringList{"export"}, QStringList{"check"},
              QStringList{"history"}, QStringList{"restore", "1"}, QStringList{"show", "Mine"}}) {
            const TOOL_RUN run = tool(arguments);
            QCOMPARE(run.exit_code, 5);
            QVERIFY2(run.err.startsWith("gfpdb: The file ") && run.err.contains("is not a database"),
                     run.err.constData());
            QCOMPARE(run.err.count('\n'), 1);
        }
        QVERIFY(tool({"list", "--verbose"}).err.count('\n') > 1);
    }
};

EITHER_STORE_TEST_MAIN(TEST_CLI_TRANSFER)

#include "test_cli_transfer.moc"
