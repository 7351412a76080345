// SPDX-License-Identifier: MIT

// The real program: export and import.
#include "cli_test.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>

#include <sys/stat.h>

class TEST_CLI_TRANSFER : public QObject
{
    Q_OBJECT

private slots:
    void export_and_import_elsewhere_give_the_identical_record();
    void a_whole_directory_moves_without_loss();
    void export_writes_a_file_whole_or_not_at_all();
    void export_of_single_records_keeps_their_order();

    void import_is_all_or_nothing();
    void import_leaves_equal_records_alone();
    void import_replaces_only_when_told();
    void import_refuses_names_that_are_taken();
    void import_refuses_a_record_twice();
    void import_tries_without_a_change();
    void import_reads_standard_input();
    void import_of_a_built_in_device_needs_a_name_and_a_place();
    void a_missing_value_gets_its_default_and_the_report_says_so();
    void import_of_a_list_keeps_or_finds_flows();
    void import_says_what_cannot_be_read();
    void a_database_that_cannot_be_changed_is_said();
};

void TEST_CLI_TRANSFER::export_and_import_elsewhere_give_the_identical_record()
{
    const GFPDB_PLACE place;
    make_dir(place.path("elsewhere/"));
    const QStringList elsewhere = {"-d", q(place.path("elsewhere"))};
    save_part("Mine");
    const std::string original = text_of(*fresh_manager()->find_flash("Mine", true));
    const QString file = exported_file(place, "Mine");

    const TOOL_RUN imported = run_tool(QStringList{"import", file} + elsewhere);

    QCOMPARE(imported.err, QByteArray());
    QCOMPARE(imported.exit_code, 0);
    QCOMPARE(imported.out, QByteArray("Imported 1 new, 0 replaced; 0 unchanged in ") +
                               QByteArray::fromStdString(place.path("elsewhere/")) + "\n");
    QCOMPARE(run_tool(QStringList{"export", "Mine"} + elsewhere).out, text_of_file(file));
    GFPDB_MGR::set_db_custom_dir(place.path("elsewhere/"));
    QCOMPARE(text_of(*fresh_manager()->find_flash("Mine", true)), original);
}

void TEST_CLI_TRANSFER::a_whole_directory_moves_without_loss()
{
    const GFPDB_PLACE place;
    make_dir(place.path("elsewhere/"));
    save_part("A", FAMILY, ACTIVE_SERIAL, "T");
    save_part("A", OTHER_FAMILY, QUAD);
    save_part("Later", FAMILY, ACTIVE_SERIAL, "Gone");
    QVERIFY(fresh_manager()->remove_template("Gone"));
    // A record of another program, with values that the rules would refuse.
    GFPDB_MGR& manager = *fresh_manager();
    QVERIFY(manager.save_flash(make_device(manager, "odd <b>"), place.db_dir()));
    const QByteArray all = exported(place.db_dir());
    QVERIFY(all.contains("\"template_name\": \"Gone\""));

    const TOOL_RUN run = run_tool({"import", "-", "--unchecked", "-d", q(place.path("elsewhere"))}, all);

    QCOMPARE(run.err, QByteArray());
    QVERIFY(run.out.startsWith("Imported 5 new, 0 replaced; 0 unchanged in "));
    QCOMPARE(exported(place.path("elsewhere/")), all);
}

void TEST_CLI_TRANSFER::export_writes_a_file_whole_or_not_at_all()
{
    const GFPDB_PLACE place;
    save_part("Mine");
    const QString file = q(place.path("out.json"));
    QCOMPARE(run_tool({"export", "-d", q(place.db_dir()), "--output", file}).out, QByteArray());
    QCOMPARE(text_of_file(file), exported(place.db_dir()));

    const QString missing = q(place.path("missing/out.json"));
    const TOOL_RUN run = run_tool({"export", "-d", q(place.db_dir()), "-o", missing});
    QCOMPARE(run.exit_code, 4);
    QVERIFY2(run.err.startsWith("gfpdb: " + missing.toUtf8() + ": The file cannot be written: "), run.err.constData());

    // A pipe stays a pipe.
    const QString pipe = q(place.path("pipe"));
    QCOMPARE(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    QProcess reader;
    reader.start("cat", {pipe});
    QVERIFY(reader.waitForStarted());
    QCOMPARE(run_tool({"export", "-d", q(place.db_dir()), "-o", pipe}).exit_code, 0);
    QVERIFY(reader.waitForFinished());
    QCOMPARE(reader.readAllStandardOutput(), exported(place.db_dir()));
    QVERIFY(!QFileInfo(pipe).isFile());
    QCOMPARE(run_tool({"export", "-d", q(place.db_dir()), "--csv"}).out.split('\n').at(1).left(9),
             QByteArray("Mine,3,7,"));
}

void TEST_CLI_TRANSFER::export_of_single_records_keeps_their_order()
{
    const GFPDB_PLACE place;
    save_part("B");
    save_part("A", FAMILY, ACTIVE_SERIAL, "T");
    const TOOL_RUN run = run_tool({"export", "T", "B", "MX25L1606E", "A", "-d", q(place.db_dir())});
    QCOMPARE(run.exit_code, 0);
    const QJsonObject file = json(run).object();
    QCOMPARE(names(QJsonDocument(file.value("devices").toArray())), (QStringList{"B", "MX25L1606E", "A"}));
    QCOMPARE(file.value("templates").toArray().at(0).toObject().value("template_name").toString(), QString("T"));
    QCOMPARE(run_tool({"export", "--scheme", "13", "-d", q(place.db_dir())}).out.count("\"scheme\""), 1);
}

void TEST_CLI_TRANSFER::import_is_all_or_nothing()
{
    const GFPDB_PLACE place;
    save_part("Good");
    const QString good = exported_file(place, "Good");
    const QByteArray before = exported(place.db_dir());
    const QString bad = q(place.path("bad.json"));
    write_file(bad.toStdString(), text_of_file(good).replace("\"Good\"", "\"Bad\"").toStdString());
    replace_in_file(bad, "\"0x38\"", "\"0x3\"");
    replace_in_file(good, "\"Good\"", "\"New\"");

    const TOOL_RUN run = run_tool({"import", good, bad, "-d", q(place.db_dir())});

    QCOMPARE(run.exit_code, 4);
    QCOMPARE(run.out, QByteArray());
    const int line = text_of_file(bad).left(text_of_file(bad).indexOf("\"0x3\"")).count('\n') + 1;
    QCOMPARE(run.err, "gfpdb: " + bad.toUtf8() + ":" + QByteArray::number(line) +
                          ": devices[0].quad_flows[1].actions[2].command: \"0x3\" is not allowed for \"Command\". "
                          "Allowed: one byte in hexadecimal, such as 0x9F.\ngfpdb: Nothing was imported.\n");
    QCOMPARE(exported(place.db_dir()), before);
}

void TEST_CLI_TRANSFER::import_leaves_equal_records_alone()
{
    const GFPDB_PLACE place;
    save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
    const QString directory = q(place.db_dir());
    const std::string revision = fresh_manager()->find_flash("Mine", true)->get_revision();
    write_file(place.path("all.json"), exported(place.db_dir()).toStdString());

    const TOOL_RUN run = run_tool({"import", q(place.path("all.json")), "-d", directory});

    QCOMPARE(run.out, "Imported 0 new, 0 replaced; 2 unchanged in " + directory.toUtf8() + "\n");
    QCOMPARE(run.exit_code, 0);
    QCOMPARE(fresh_manager()->find_flash("Mine", true)->get_revision(), revision);
    QCOMPARE(run_tool({"history", "--json", "-d", directory}).out, QByteArray("[]\n"));
}

void TEST_CLI_TRANSFER::import_replaces_only_when_told()
{
    const GFPDB_PLACE place;
    save_part("Mine");
    const QString directory = q(place.db_dir());
    const QString file = exported_file(place, "Mine");
    replace_in_file(file, "\"total_die\": 1", "\"total_die\": 2");

    const TOOL_RUN refused = run_tool({"import", file, "-d", directory});
    QCOMPARE(refused.exit_code, 4);
    QCOMPARE(refused.err, "gfpdb: " + file.toUtf8() +
                              ":5: The device \"Mine\" exists with another content: --replace replaces it.\n"
                              "gfpdb: Nothing was imported.\n");
    QCOMPARE(fresh_manager()->find_flash("Mine", true)->get_int_property(GFPDB_FLASH_TOTAL_DIE, 0), 1);

    const TOOL_RUN replaced = run_tool({"import", file, "--replace", "-d", directory});
    QCOMPARE(replaced.out, "Imported 0 new, 1 replaced; 0 unchanged in " + directory.toUtf8() + "\n");
    QCOMPARE(fresh_manager()->find_flash("Mine", true)->get_int_property(GFPDB_FLASH_TOTAL_DIE, 0), 2);
    QCOMPARE(json(run_tool({"history", "--json", "-d", directory})).array().at(0).toObject().value("reason").toString(),
             QString("replaced"));
}

void TEST_CLI_TRANSFER::import_refuses_names_that_are_taken()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    save_part("Mine");
    save_part("Other", FAMILY, ACTIVE_SERIAL, "T");
    const QString file = exported_file(place, "Mine");
    replace_in_file(file, "\"name\": \"Mine\"", "\"name\": \"t\"");
    TOOL_RUN run = run_tool({"import", file, "-d", directory});
    QCOMPARE(run.exit_code, 4);
    QVERIFY2(run.err.contains(":5: The name of the device \"t\" is that of a stored template.\n"), run.err.constData());

    run_tool({"export", "T", "-d", directory, "-o", file});
    replace_in_file(file, "\"template_name\": \"T\"", "\"template_name\": \"mine\"");
    run = run_tool({"import", file, "-d", directory});
    QVERIFY2(run.err.contains(":6: The name of the stored template \"mine\" is that of a device.\n"),
             run.err.constData());

    make_dir(place.path("elsewhere/"));
    run_tool({"export", "-d", directory, "-o", file});
    replace_in_file(file, "\"name\": \"Mine\"", "\"name\": \"T\"");
    run = run_tool({"import", file, "-d", q(place.path("elsewhere"))});
    QCOMPARE(run.exit_code, 4);
    QVERIFY2(run.err.contains(": The name of the stored template \"T\" is that of a device.\n"), run.err.constData());
    QVERIFY(!QFile::exists(q(place.path("elsewhere/gfpdb.sqlite"))));
}

void TEST_CLI_TRANSFER::import_refuses_a_record_twice()
{
    const GFPDB_PLACE place;
    make_dir(place.path("elsewhere/"));
    save_part("Mine");
    const QString file = exported_file(place, "Mine");
    const QString copy = q(place.path("copy.json"));
    QVERIFY(QFile::copy(file, copy));
    const TOOL_RUN run = run_tool({"import", file, copy, "-d", q(place.path("elsewhere"))});
    QCOMPARE(run.exit_code, 4);
    QCOMPARE(run.err, "gfpdb: " + copy.toUtf8() + ":5: The device \"Mine\" stands in " + file.toUtf8() +
                          ":5 already.\ngfpdb: Nothing was imported.\n");
}

void TEST_CLI_TRANSFER::import_tries_without_a_change()
{
    const GFPDB_PLACE place;
    make_dir(place.path("elsewhere/"));
    save_part("Mine");
    const QString file = exported_file(place, "Mine");
    const TOOL_RUN run = run_tool({"import", file, "--dry-run", "-d", q(place.path("elsewhere"))});
    QCOMPARE(run.exit_code, 0);
    QVERIFY(run.out.startsWith("Would import 1 new, 0 replaced; 0 unchanged in "));
    QVERIFY(!QFile::exists(q(place.path("elsewhere/gfpdb.sqlite"))));
}

void TEST_CLI_TRANSFER::import_reads_standard_input()
{
    const GFPDB_PLACE place;
    const QByteArray list = "name,family,scheme,device_id,density\nListed,3,7,C2 20 19,256Mb\n";
    QCOMPARE(run_tool({"import", "-", "--csv", "-d", q(place.db_dir())}, list).exit_code, 0);
    QCOMPARE(names(json(run_tool({"list", "--json", "-d", q(place.db_dir())}))), QStringList{"Listed"});
    QVERIFY(run_tool({"import", "-", "-d", q(place.db_dir())}, list).err.startsWith("gfpdb: -:1: This is no JSON: "));
}

void TEST_CLI_TRANSFER::import_of_a_built_in_device_needs_a_name_and_a_place()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    const QString file = exported_file(place, "W25Q64JV-Q");
    TOOL_RUN run = run_tool({"import", file, "--family", "3", "--scheme", "13", "-d", directory});
    QCOMPARE(run.exit_code, 4);
    QVERIFY(run.err.contains(":6: devices[0].name: There is a built-in device called \"W25Q64JV-Q\""));
    replace_in_file(file, "W25Q64JV-Q", "My W25Q64");
    run = run_tool({"import", file, "-d", directory});
    QVERIFY(run.err.contains(":7: devices[0].family: There is no family 0. Allowed: 1 to 72.\n"));
    run = run_tool({"import", file, "--family", "3", "--scheme", "13", "-d", directory});
    QCOMPARE(run.exit_code, 0);
    QVERIFY(fresh_manager(3, 13)->is_custom_flash("My W25Q64"));
}

void TEST_CLI_TRANSFER::a_missing_value_gets_its_default_and_the_report_says_so()
{
    const GFPDB_PLACE place;
    const QStringList to_directory = {"-d", q(place.db_dir())};
    write_file(place.path("list.csv"),
               "name,family,scheme,device_id,density,flow_template\nBare,60,7,C2 20 19,8Mb,No QE bit\n");
    const QByteArray warning = "gfpdb: " + q(place.path("list.csv")).toUtf8() + ":2: device \"Bare\": ";

    const TOOL_RUN run = run_tool(QStringList{"import", q(place.path("list.csv"))} + to_directory);

    QCOMPARE(run.exit_code, 0);
    QCOMPARE(run.err, warning + "voltage: warning: The value is missing: 1.8V is stored.\n" + warning +
                          "total_die: warning: The value is missing: 1 is stored.\n" + warning +
                          "single_io_dummy_clock: warning: The value is missing: 0 is stored.\n" + warning +
                          "quad_io_dummy_clock: warning: The value is missing: 0 is stored.\n");
    const QJsonObject stored = json(run_tool(QStringList{"show", "Bare", "--json"} + to_directory)).object();
    QCOMPARE(stored.value("voltage").toString(), QString("1.8V"));
    QCOMPARE(stored.value("total_die").toInt(), 1);
    QCOMPARE(stored.value("quad_io_dummy_clock"), QJsonValue(0));
    QCOMPARE(run_tool(QStringList{"check"} + to_directory).out, QByteArray("1 record, 0 problems\n"));
    // It is there now, as the file means it.
    const TOOL_RUN again = run_tool(QStringList{"import", q(place.path("list.csv"))} + to_directory);
    QCOMPARE(again.err, QByteArray());
    QVERIFY(again.out.startsWith("Imported 0 new, 0 replaced; 1 unchanged in "));

    make_dir(place.path("elsewhere/"));
    const QStringList elsewhere = {"-d", q(place.path("elsewhere/"))};
    QCOMPARE(run_tool(QStringList{"import", "--unchecked", q(place.path("list.csv"))} + elsewhere).err, QByteArray());
    QVERIFY(run_tool(QStringList{"export"} + elsewhere).out.contains("\"total_die\": null"));
    QCOMPARE(run_tool(QStringList{"check"} + elsewhere).exit_code, 1);
}

void TEST_CLI_TRANSFER::import_of_a_list_keeps_or_finds_flows()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
    const std::string flows = text_of_flows(fresh_manager()->find_flash("Mine", true)->get_operations(QUAD_IO));
    std::string list = "name,family,scheme,device_id,voltage,density,total_die,single_io_dummy_clock,"
                       "quad_io_dummy_clock,flow_template\n";
    for (const char* ends : {"Mine,none such", "builtin,no qe BIT", "stored,t", "bare,none such"}) {
        const QStringList cells = QString(ends).split(',');
        list += (cells[0] + ",3,7,EF,1.8V,8Mb,2,0,0," + cells[1] + '\n').toStdString();
    }
    write_file(place.path("list.CSV"), list);

    const TOOL_RUN run = run_tool({"import", q(place.path("list.CSV")), "--replace", "-d", directory});

    QCOMPARE(run.err, "gfpdb: " + q(place.path("list.CSV")).toUtf8() +
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

void TEST_CLI_TRANSFER::import_says_what_cannot_be_read()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    TOOL_RUN run = run_tool({"import", "/no/such.json", "-d", directory});
    QCOMPARE(run.exit_code, 4);
    QCOMPARE(run.err, QByteArray("gfpdb: /no/such.json: The file cannot be read: No such file or directory.\n"
                                 "gfpdb: Nothing was imported.\n"));
    const QString pipe = q(place.path("pipe"));
    QCOMPARE(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    for (const QString& path : {directory, pipe, QString("/dev/zero")}) {
        const QByteArray error = "gfpdb: " + path.toUtf8() + ": The file cannot be read: it is not a regular file.\n";
        run = run_tool({"import", path, "-d", directory});
        QCOMPARE(run.exit_code, 4);
        QCOMPARE(run.err, error + "gfpdb: Nothing was imported.\n");
        QCOMPARE(run_tool({"diff", path, path, "-d", directory}).exit_code, 4);
    }
    write_file(place.path("broken.json"), "{\n\"format\": nonsense\n}");
    run = run_tool({"import", q(place.path("broken.json")), "-d", directory});
    QVERIFY(run.err.contains("broken.json:2: This is no JSON: a value was expected.\n"));
}

void TEST_CLI_TRANSFER::a_database_that_cannot_be_changed_is_said()
{
    const GFPDB_PLACE place;
    save_part("Mine");
    const QString file = exported_file(place, "Mine");
    write_file(place.db_file(), "this is no database, but long enough to be one" + std::string(1000, '.'));
    for (const QStringList& arguments :
         {QStringList{"import", file}, QStringList{"list"}, QStringList{"export"}, QStringList{"check"},
          QStringList{"history"}, QStringList{"restore", "1"}, QStringList{"show", "Mine"}}) {
        const TOOL_RUN run = run_tool(arguments + QStringList{"-d", q(place.db_dir())});
        QCOMPARE(run.exit_code, 5);
        QVERIFY2(run.err.startsWith("gfpdb: The file ") && run.err.contains("is not a database"), run.err.constData());
        QCOMPARE(run.err.count('\n'), 1);
    }
    QVERIFY(run_tool({"list", "--verbose", "-d", q(place.db_dir())}).err.count('\n') > 1);
}

QTEST_GUILESS_MAIN(TEST_CLI_TRANSFER)
#include "test_cli_transfer.moc"
