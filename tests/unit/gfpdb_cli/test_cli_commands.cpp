// The real program, command by command: what it prints, what it changes, which exit code it gives.
#include "gfpdb_builtin_records.h"
#include "gfpdb_embedded_mgr.h"

#include "cli_command.h"
#include "record_json.h"

// The constants of the tests have names that enumerators of the library have as well.
#include "cli_test.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <pty.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QString q(const std::string& path)
{
    return QString::fromStdString(path);
}

QByteArray text_of_file(const QString& path)
{
    return QByteArray::fromStdString(read_file(path.toStdString()));
}

QJsonDocument json(const TOOL_RUN& run)
{
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(run.out, &error);
    if (error.error != QJsonParseError::NoError)
        qWarning("no JSON: %s", run.out.constData());
    return document;
}

// What the tool exports of the directory.
QByteArray exported(const std::string& directory)
{
    return run_tool({"export", "--dir", q(directory)}).out;
}

// The names of an array of objects.
QStringList names(const QJsonDocument& list)
{
    QStringList found;
    for (const QJsonValue value : list.array())
        found += value.toObject().value("name").toString();
    return found;
}

// A stored part as a file of its own.
QString exported_file(const GFPDB_PLACE& place, const char* device)
{
    const QString path = q(place.path("exported.json"));
    const TOOL_RUN run = run_tool({"export", device, "-d", q(place.db_dir()), "-o", path});
    if (run.exit_code != CLI_EXIT_OK)
        qFatal("%s", run.err.constData());
    return path;
}

void replace_in_file(const QString& path, const char* what, const char* with)
{
    QByteArray text = text_of_file(path);
    if (!text.contains(what))
        qFatal("there is no %s", what);
    write_file(path.toStdString(), text.replace(what, with).toStdString());
}

// Runs the tool with a terminal as its standard error; what appears there.
QByteArray run_on_terminal(const QStringList& arguments)
{
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        std::vector<QByteArray> texts = {GFPDB_PROGRAM};
        for (const QString& argument : arguments)
            texts.push_back(argument.toUtf8());
        std::vector<char*> pointers;
        for (QByteArray& text : texts)
            pointers.push_back(text.data());
        pointers.push_back(nullptr);
        ::execv(GFPDB_PROGRAM, pointers.data());
        ::_exit(127);
    }
    QByteArray shown;
    char buffer[4096];
    for (ssize_t length = 0; (length = ::read(terminal, buffer, sizeof buffer)) > 0;)
        shown.append(buffer, static_cast<int>(length));
    ::close(terminal);
    ::waitpid(child, nullptr, 0);
    return shown;
}

} // namespace

class TEST_CLI_COMMANDS : public QObject
{
    Q_OBJECT

private slots:
    void the_exit_codes_are_as_documented();
    void help_lists_every_command();
    void every_command_explains_itself_data();
    void every_command_explains_itself();
    void wrong_arguments_are_refused_data();
    void wrong_arguments_are_refused();
    void the_directory_comes_from_the_settings_or_the_option();
    void names_that_are_not_ascii_work_in_any_locale();

    void list_shows_what_is_stored();
    void list_shows_the_built_in_devices();
    void list_filters_by_name_and_place();
    void list_prints_json_and_csv();

    void show_prints_a_record();
    void show_prints_the_chosen_variant();
    void a_name_that_several_devices_have_needs_its_place();
    void a_name_means_a_device_then_a_template_then_a_built_in_device();
    void hidden_devices_keep_what_is_hidden();
    void an_unknown_name_is_not_found();

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
    void import_of_a_list_keeps_or_finds_flows();
    void import_says_what_cannot_be_read();
    void a_database_that_cannot_be_changed_is_said();

    void check_finds_what_breaks_the_rules();
    void check_finds_flows_that_cannot_be_read();
    void check_finds_damage();

    void a_rename_that_died_half_way_is_restored();
    void history_lists_and_filters();
    void restore_refuses_what_it_cannot_do();

    void diff_compares_records_files_and_states();
    void diff_of_two_files();
    void diff_says_what_it_cannot_find();

    void progress_is_shown_on_a_terminal();
    void output_that_cannot_be_written_is_an_error();
    void the_man_page_has_every_command_and_option();
    void completion_knows_commands_options_and_names();
};

void TEST_CLI_COMMANDS::the_exit_codes_are_as_documented()
{
    QCOMPARE(int(CLI_EXIT_OK), 0);
    QCOMPARE(int(CLI_EXIT_DIFFERENT), 1);
    QCOMPARE(int(CLI_EXIT_USAGE), 2);
    QCOMPARE(int(CLI_EXIT_NOT_FOUND), 3);
    QCOMPARE(int(CLI_EXIT_BAD_FILE), 4);
    QCOMPARE(int(CLI_EXIT_DATABASE), 5);
}

void TEST_CLI_COMMANDS::help_lists_every_command()
{
    const GFPDB_PLACE place;
    for (const QStringList& arguments : {QStringList{"--help"}, QStringList{"-h"}, QStringList{"help"}}) {
        const TOOL_RUN run = run_tool(arguments);
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.out,
                 QByteArray("Usage: gfpdb COMMAND [options] [arguments]\n\n"
                            "Works on the flash database of the programmer: its devices and flow templates.\n\n"
                            "Commands:\n"
                            "  list      List devices, templates and built-in devices\n"
                            "  show      Show a record with its flows\n"
                            "  export    Write records to a file\n"
                            "  import    Read records from files, all or none\n"
                            "  check     Check every record and the database\n"
                            "  history   List former states of records\n"
                            "  restore   Bring a former state back\n"
                            "  diff      Compare two records\n\n"
                            "\"gfpdb COMMAND --help\" explains a command, \"gfpdb --version\" prints the "
                            "version.\n"));
    }
    QVERIFY(QString(run_tool({"--version"}).out).contains(QRegularExpression("^gfpdb \\d+\\.\\d+\\.\\d+\n$")));
}

void TEST_CLI_COMMANDS::every_command_explains_itself_data()
{
    QTest::addColumn<QString>("usage");
    QTest::addColumn<QStringList>("options");
    QTest::newRow("list") << "[options] \nList devices, templates and built-in devices.\n"
                          << QStringList{"--builtin", "--all", "--filter", "--csv", "--json", "--family", "--scheme"};
    QTest::newRow("show") << "[options] NAME\nShow a record with its flows.\n"
                          << QStringList{"--variant", "--json", "--family", "--scheme"};
    QTest::newRow("export") << "[options] [NAME...]\nWrite records to a file.\n"
                            << QStringList{"-o, --output", "--csv", "--family", "--scheme"};
    QTest::newRow("import") << "[options] FILE...\nRead records from files, all or none.\n"
                            << QStringList{"--replace", "--dry-run", "--unchecked", "--csv", "--family", "--scheme"};
    QTest::newRow("check") << "[options] \nCheck every record and the database.\n" << QStringList{"--json"};
    QTest::newRow("history") << "[options] [NAME]\nList former states of records.\n"
                             << QStringList{"--json", "--family", "--scheme"};
    QTest::newRow("restore") << "[options] ID\nBring a former state back.\n" << QStringList();
    QTest::newRow("diff") << "[options] LEFT RIGHT\nCompare two records.\n"
                          << QStringList{"--json", "--family", "--scheme"};
}

void TEST_CLI_COMMANDS::every_command_explains_itself()
{
    const GFPDB_PLACE place;
    QFETCH(QString, usage);
    QFETCH(QStringList, options);
    const QString command = QTest::currentDataTag();
    for (const QStringList& arguments : {QStringList{command, "--help"}, QStringList{"help", command}}) {
        const TOOL_RUN run = run_tool(arguments);
        QCOMPARE(run.exit_code, 0);
        QVERIFY2(run.out.startsWith("Usage: gfpdb " + command.toUtf8() + " " + usage.toUtf8()), run.out.constData());
        for (const QString& option : options + QStringList{"-d, --dir", "--verbose", "-h, --help"})
            QVERIFY2(run.out.contains("\n  " + option.toUtf8() + " "), qPrintable(option));
        QCOMPARE(run.out.count("\n  -"), options.size() + 3);
    }
}

void TEST_CLI_COMMANDS::wrong_arguments_are_refused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("error");
    const auto add = [](const QStringList& arguments, const char* error) {
        QTest::newRow(qPrintable("gfpdb " + arguments.join(' '))) << arguments << QByteArray(error);
    };
    add({}, "gfpdb: A command is missing.\ngfpdb: \"gfpdb --help\" lists the commands.\n");
    add({"frob"}, "gfpdb: \"frob\" is no command.\ngfpdb: \"gfpdb --help\" lists the commands.\n");
    add({"help", "frob"}, "gfpdb: \"frob\" is no command.\ngfpdb: \"gfpdb --help\" lists the commands.\n");
    add({"list", "--frob"}, "gfpdb: Unknown option 'frob'.\n");
    add({"list", "x"}, "gfpdb: There are too many arguments: gfpdb list \n");
    add({"show"}, "gfpdb: An argument is missing: gfpdb show NAME\n");
    add({"show", "a", "b"}, "gfpdb: There are too many arguments: gfpdb show NAME\n");
    add({"show", "a", "--variant", "triple"}, "gfpdb: \"triple\" is no flow variant. Allowed: single, quad, both.\n");
    add({"import"}, "gfpdb: An argument is missing: gfpdb import FILE...\n");
    add({"diff", "a"}, "gfpdb: An argument is missing: gfpdb diff LEFT RIGHT\n");
    add({"history", "a", "b"}, "gfpdb: There are too many arguments: gfpdb history [NAME]\n");
    add({"restore", "x"}, "gfpdb: \"x\" is no number of the history.\n");
    add({"restore", "99999999999"}, "gfpdb: \"99999999999\" is no number of the history.\n");
    add({"list", "--csv", "--json"}, "gfpdb: --csv and --json do not go together.\n");
    for (const char* number : {"0", "73", "x", ""})
        add({"list", "--family", number}, "gfpdb: --family takes a whole number from 1 to 72.\n");
    for (const char* number : {"-1", "25", "seven"})
        add({"list", "--scheme", number}, "gfpdb: --scheme takes a whole number from 0 to 24.\n");
}

void TEST_CLI_COMMANDS::wrong_arguments_are_refused()
{
    const GFPDB_PLACE place;
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, error);
    const TOOL_RUN run = run_tool(arguments);
    QCOMPARE(run.err, error);
    QCOMPARE(run.out, QByteArray());
    QCOMPARE(run.exit_code, 2);
}

void TEST_CLI_COMMANDS::the_directory_comes_from_the_settings_or_the_option()
{
    const GFPDB_PLACE place;
    make_dir(place.path("other/"));
    QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(place.db_dir(), false));
    save_part("Mine");

    QCOMPARE(names(json(run_tool({"list", "--json"}))), QStringList{"Mine"});
    QCOMPARE(names(json(run_tool({"list", "--json", "--dir", q(place.path("other"))}))), QStringList());
    QCOMPARE(names(json(run_tool({"list", "--json", "-d", q(place.db_dir())}))), QStringList{"Mine"});

    const TOOL_RUN run = run_tool({"list", "--dir", q(place.path("missing"))});
    QCOMPARE(run.exit_code, 5);
    QCOMPARE(run.err, QByteArray("gfpdb: The database directory ") + QByteArray::fromStdString(place.path("missing/")) +
                          " does not exist.\n");
}

void TEST_CLI_COMMANDS::names_that_are_not_ascii_work_in_any_locale()
{
    const GFPDB_PLACE place;
    const std::string directory = place.path("\xC3\xBC'; \xE2\x82\xAC/");
    make_dir(directory);
    save_part("\xC3\x84 \xF0\x9F\x98\x80");
    const TOOL_RUN copy = run_tool({"export", "-d", q(place.db_dir())});
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

void TEST_CLI_COMMANDS::list_shows_what_is_stored()
{
    const GFPDB_PLACE place;
    const QStringList arguments = {"list", "-d", q(place.db_dir())};
    const QByteArray head = "NAME  KIND  FAMILY  SCHEME  DENSITY  VOLTAGE  ID\n";
    QCOMPARE(run_tool(arguments).out, head);
    save_part("B", OTHER_FAMILY, QUAD);
    save_part("A long name", FAMILY, SERIAL, "T");

    const TOOL_RUN run = run_tool(arguments);

    QCOMPARE(run.exit_code, 0);
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.out, QByteArray("NAME         KIND      FAMILY  SCHEME  DENSITY  VOLTAGE  ID\n"
                                 "A long name  device    3       7       256Mb    3.3V     0xC2 0x20 0x19\n"
                                 "B            device    5       13      256Mb    3.3V     0xC2 0x20 0x19\n"
                                 "T            template  3       7       256Mb    3.3V     0xC2 0x20 0x19\n"));
}

void TEST_CLI_COMMANDS::list_shows_the_built_in_devices()
{
    const GFPDB_PLACE place;
    save_part("Mine");
    const QStringList builtin = names(json(run_tool({"list", "-d", q(place.db_dir()), "--builtin", "--json"})));
    const QStringList all = names(json(run_tool({"list", "-d", q(place.db_dir()), "--all", "--json"})));

    QCOMPARE(builtin.size(), 146);
    QCOMPARE(builtin.first(), QString("MX25L1606E"));
    QCOMPARE(all, QStringList{"Mine"} + builtin);
    const QByteArray line = run_tool({"list", "--builtin", "--filter", "MX77L51250F"}).out.split('\n').at(1);
    QCOMPARE(line, QByteArray("MX77L51250F  builtin  -       -       512Mb    -        0xC2 0x75 0x1A"));
    // They need no directory.
    QCOMPARE(run_tool({"list", "-d", "/no/such", "--builtin"}).exit_code, 0);
    const TOOL_RUN without = run_tool({"list", "-d", "/no/such", "--all"});
    QCOMPARE(without.exit_code, 5);
    QCOMPARE(without.out.count('\n'), 147);
}

void TEST_CLI_COMMANDS::list_filters_by_name_and_place()
{
    const GFPDB_PLACE place;
    save_part("Alpha", FAMILY, SERIAL, "Template");
    save_part("Alpha two", FAMILY, QUAD);
    save_part("Beta", OTHER_FAMILY, SERIAL);
    const auto listed = [&place](const QStringList& options) {
        return names(json(run_tool(QStringList{"list", "-d", q(place.db_dir()), "--json"} + options)));
    };
    QCOMPARE(listed({"--filter", "alpha*"}), (QStringList{"Alpha", "Alpha two"}));
    QCOMPARE(listed({"--filter", "B?ta"}), QStringList{"Beta"});
    QCOMPARE(listed({"--filter", "Alph"}), QStringList());
    QCOMPARE(listed({"--filter", "["}), QStringList());
    QCOMPARE(listed({"--family", "3"}), (QStringList{"Alpha", "Alpha two", "Template"}));
    QCOMPARE(listed({"--scheme", "7"}), (QStringList{"Alpha", "Beta", "Template"}));
    QCOMPARE(listed({"--family", "5", "--scheme", "13"}), QStringList{"Template"});
}

void TEST_CLI_COMMANDS::list_prints_json_and_csv()
{
    const GFPDB_PLACE place;
    save_part("Mine", FAMILY, SERIAL, "T");
    const TOOL_RUN run = run_tool({"list", "-d", q(place.db_dir()), "--json"});
    QCOMPARE(run.exit_code, 0);
    const QByteArray rest = "    \"family\": 3,\n    \"scheme\": 7,\n    \"device_id\": \"0xC2 0x20 0x19\",\n"
                            "    \"voltage\": \"3.3V\",\n    \"density\": \"256Mb\",\n    \"total_die\": 1,\n"
                            "    \"single_io_dummy_clock\": 8,\n    \"quad_io_dummy_clock\": null,\n"
                            "    \"flow_template\": \"QE in SR1 bit 6, 4-byte address\"\n";
    QCOMPARE(run.out, "[\n  {\n    \"name\": \"Mine\",\n    \"kind\": \"device\",\n" + rest +
                          "  },\n  {\n    \"name\": \"T\",\n    \"kind\": \"template\",\n" + rest + "  }\n]\n");
    const QJsonObject builtin = json(run_tool({"list", "--builtin", "--json"})).array().at(0).toObject();
    QCOMPARE(builtin.value("kind").toString(), QString("builtin"));
    QVERIFY(builtin.value("family").isNull() && builtin.value("scheme").isNull());

    QCOMPARE(run_tool({"list", "-d", q(place.db_dir()), "--csv"}).out,
             QByteArray("name,family,scheme,device_id,voltage,density,total_die,single_io_dummy_clock,"
                        "quad_io_dummy_clock,template_name,flow_template\n"
                        "Mine,3,7,0xC2 0x20 0x19,3.3V,256Mb,1,8,,T,\"QE in SR1 bit 6, 4-byte address\"\n"));
}

void TEST_CLI_COMMANDS::show_prints_a_record()
{
    const GFPDB_PLACE place;
    save_part("Mine");
    const TOOL_RUN run = run_tool({"show", "mINE", "-d", q(place.db_dir())});
    QCOMPARE(run.exit_code, 0);
    QVERIFY(run.out.startsWith("Name:                 Mine\nKind:                 device\n"));
    QVERIFY(run.out.contains("\nSingle-I/O flow\n  Initialization\n"));
    QVERIFY(run.out.contains("\nQuad-I/O flow\n  Initialization\n"));

    const TOOL_RUN as_json = run_tool({"show", "Mine", "--json", "-d", q(place.db_dir())});
    const QJsonObject whole = json(run_tool({"export", "Mine", "-d", q(place.db_dir())})).object();
    QCOMPARE(json(as_json).object(), whole.value("devices").toArray().at(0).toObject());
    QVERIFY(run_tool({"show", "MX25L1606E"}).out.contains("Kind:                 built-in device\nID:"));
}

void TEST_CLI_COMMANDS::show_prints_the_chosen_variant()
{
    const GFPDB_PLACE place;
    const QByteArray single = run_tool({"show", "MX25L1606E", "--variant", "single"}).out;
    const QByteArray quad = run_tool({"show", "MX25L1606E", "--variant", "quad"}).out;
    const QByteArray both = run_tool({"show", "MX25L1606E", "--variant", "both"}).out;
    QVERIFY(single.contains("Single-I/O flow") && !single.contains("Quad-I/O flow"));
    QVERIFY(!quad.contains("Single-I/O flow") && quad.contains("Quad-I/O flow"));
    QVERIFY(both.contains("Single-I/O flow") && both.contains("Quad-I/O flow"));
    QCOMPARE(run_tool({"show", "MX25L1606E"}).out, both);
}

void TEST_CLI_COMMANDS::a_name_that_several_devices_have_needs_its_place()
{
    const GFPDB_PLACE place;
    save_part("Mine", FAMILY, SERIAL);
    save_part("Mine", OTHER_FAMILY, QUAD);
    const TOOL_RUN run = run_tool({"show", "Mine", "-d", q(place.db_dir())});
    QCOMPARE(run.exit_code, 3);
    QCOMPARE(run.err, QByteArray("gfpdb: There are several devices called \"Mine\". Say which one: --family 3 --scheme "
                                 "7, --family 5 --scheme 13.\n"));
    const TOOL_RUN one = run_tool({"show", "Mine", "--scheme", "13", "--json", "-d", q(place.db_dir())});
    QCOMPARE(json(one).object().value("family").toInt(), OTHER_FAMILY);
}

void TEST_CLI_COMMANDS::a_name_means_a_device_then_a_template_then_a_built_in_device()
{
    const GFPDB_PLACE place;
    save_part("Mine", FAMILY, SERIAL, "T");
    const auto kind = [&place](const char* name) {
        return run_tool({"show", name, "-d", q(place.db_dir())}).out.split('\n').at(1);
    };
    QCOMPARE(kind("Mine"), QByteArray("Kind:                 device"));
    QCOMPARE(kind("T"), QByteArray("Kind:                 stored template, made from Mine"));
    QCOMPARE(kind("mx25l1606e"), QByteArray("Kind:                 built-in device"));
}

void TEST_CLI_COMMANDS::hidden_devices_keep_what_is_hidden()
{
    const GFPDB_PLACE place;
    write_file(place.path("parts.csv"),
               "name,jedec_id,density,visibility\nopen,C2,1Mb,open\nprops,C2,1Mb,no-properties\n"
               "flows,C2,1Mb,no-flows\nall,C2,1Mb,hidden\n");
    qputenv("GFPDB_CATALOGUE", QByteArray::fromStdString(place.path("parts.csv")));
    QStringList shown;
    for (const char* name : {"open", "props", "flows", "all"}) {
        const QJsonObject record = json(run_tool({"show", name, "--json"})).object();
        shown += QString("%1 %2 %3")
                     .arg(name)
                     .arg(!record.value("device_id").toString().isEmpty())
                     .arg(!record.value("quad_flows").toArray().isEmpty());
    }
    qunsetenv("GFPDB_CATALOGUE");
    QCOMPARE(shown, (QStringList{"open 1 1", "props 0 1", "flows 1 0", "all 0 0"}));
}

void TEST_CLI_COMMANDS::an_unknown_name_is_not_found()
{
    const GFPDB_PLACE place;
    const TOOL_RUN run = run_tool({"show", "nobody", "-d", q(place.db_dir())});
    QCOMPARE(run.exit_code, 3);
    QCOMPARE(run.err, QByteArray("gfpdb: There is no record called \"nobody\" in ") +
                          QByteArray::fromStdString(place.db_dir()) + ".\n");
    QCOMPARE(run.out, QByteArray());
    QCOMPARE(run_tool({"export", "nobody", "-d", q(place.db_dir())}).exit_code, 3);
    QCOMPARE(run_tool({"show", "nobody", "-d", "/no/such"}).exit_code, 5);
    QCOMPARE(run_tool({"export", "-d", "/no/such"}).exit_code, 5);
}

void TEST_CLI_COMMANDS::export_and_import_elsewhere_give_the_identical_record()
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

void TEST_CLI_COMMANDS::a_whole_directory_moves_without_loss()
{
    const GFPDB_PLACE place;
    make_dir(place.path("elsewhere/"));
    save_part("A", FAMILY, SERIAL, "T");
    save_part("A", OTHER_FAMILY, QUAD);
    save_part("Later", FAMILY, SERIAL, "Gone");
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

void TEST_CLI_COMMANDS::export_writes_a_file_whole_or_not_at_all()
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

void TEST_CLI_COMMANDS::export_of_single_records_keeps_their_order()
{
    const GFPDB_PLACE place;
    save_part("B");
    save_part("A", FAMILY, SERIAL, "T");
    const QJsonObject file = json(run_tool({"export", "T", "B", "MX25L1606E", "A", "-d", q(place.db_dir())})).object();
    QCOMPARE(names(QJsonDocument(file.value("devices").toArray())), (QStringList{"B", "MX25L1606E", "A"}));
    QCOMPARE(file.value("templates").toArray().at(0).toObject().value("template_name").toString(), QString("T"));
    QCOMPARE(run_tool({"export", "--scheme", "13", "-d", q(place.db_dir())}).out.count("\"scheme\""), 1);
}

void TEST_CLI_COMMANDS::import_is_all_or_nothing()
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

void TEST_CLI_COMMANDS::import_leaves_equal_records_alone()
{
    const GFPDB_PLACE place;
    save_part("Mine", FAMILY, SERIAL, "T");
    const QString directory = q(place.db_dir());
    const std::string revision = fresh_manager()->find_flash("Mine", true)->get_revision();
    write_file(place.path("all.json"), exported(place.db_dir()).toStdString());

    const TOOL_RUN run = run_tool({"import", q(place.path("all.json")), "-d", directory});

    QCOMPARE(run.out, "Imported 0 new, 0 replaced; 2 unchanged in " + directory.toUtf8() + "\n");
    QCOMPARE(run.exit_code, 0);
    QCOMPARE(fresh_manager()->find_flash("Mine", true)->get_revision(), revision);
    QCOMPARE(run_tool({"history", "--json", "-d", directory}).out, QByteArray("[]\n"));
}

void TEST_CLI_COMMANDS::import_replaces_only_when_told()
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

void TEST_CLI_COMMANDS::import_refuses_names_that_are_taken()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    save_part("Mine", FAMILY, SERIAL, "T");
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

void TEST_CLI_COMMANDS::import_refuses_a_record_twice()
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

void TEST_CLI_COMMANDS::import_tries_without_a_change()
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

void TEST_CLI_COMMANDS::import_reads_standard_input()
{
    const GFPDB_PLACE place;
    const QByteArray list = "name,family,scheme,device_id\nListed,3,7,C2 20 19\n";
    QCOMPARE(run_tool({"import", "-", "--csv", "-d", q(place.db_dir())}, list).exit_code, 0);
    QCOMPARE(names(json(run_tool({"list", "--json", "-d", q(place.db_dir())}))), QStringList{"Listed"});
    QVERIFY(run_tool({"import", "-", "-d", q(place.db_dir())}, list).err.startsWith("gfpdb: -:1: This is no JSON: "));
}

void TEST_CLI_COMMANDS::import_of_a_built_in_device_needs_a_name_and_a_place()
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
    QCOMPARE(run.err, QByteArray());
    QVERIFY(fresh_manager(3, 13)->is_custom_flash("My W25Q64"));
}

void TEST_CLI_COMMANDS::import_of_a_list_keeps_or_finds_flows()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    save_part("Mine", FAMILY, SERIAL, "T");
    const std::string flows = text_of_flows(fresh_manager()->find_flash("Mine", true)->get_operations(QUAD_IO));
    write_file(place.path("list.CSV"), "name,family,scheme,device_id,flow_template\n"
                                       "Mine,3,7,EF,none such\nbuiltin,3,7,EF,no qe BIT\nstored,3,7,EF,t\n"
                                       "bare,3,7,EF,none such\n");

    const TOOL_RUN run = run_tool({"import", q(place.path("list.CSV")), "--replace", "-d", directory});

    QCOMPARE(run.err, QByteArray());
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

void TEST_CLI_COMMANDS::import_says_what_cannot_be_read()
{
    const GFPDB_PLACE place;
    const QString directory = q(place.db_dir());
    TOOL_RUN run = run_tool({"import", "/no/such.json", "-d", directory});
    QCOMPARE(run.exit_code, 4);
    QCOMPARE(run.err, QByteArray("gfpdb: /no/such.json: The file cannot be read: No such file or directory.\n"
                                 "gfpdb: Nothing was imported.\n"));
    QCOMPARE(run_tool({"import", directory, "-d", directory}).exit_code, 4);
    write_file(place.path("broken.json"), "{\n\"format\": nonsense\n}");
    run = run_tool({"import", q(place.path("broken.json")), "-d", directory});
    QVERIFY(run.err.contains("broken.json:2: This is no JSON: a value was expected.\n"));
}

void TEST_CLI_COMMANDS::a_database_that_cannot_be_changed_is_said()
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

void TEST_CLI_COMMANDS::check_finds_what_breaks_the_rules()
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

void TEST_CLI_COMMANDS::check_finds_flows_that_cannot_be_read()
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

void TEST_CLI_COMMANDS::check_finds_damage()
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

// The dialog renames by deleting the old name and saving the new one.
void TEST_CLI_COMMANDS::a_rename_that_died_half_way_is_restored()
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

void TEST_CLI_COMMANDS::history_lists_and_filters()
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

void TEST_CLI_COMMANDS::restore_refuses_what_it_cannot_do()
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

void TEST_CLI_COMMANDS::diff_compares_records_files_and_states()
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

void TEST_CLI_COMMANDS::diff_of_two_files()
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

void TEST_CLI_COMMANDS::diff_says_what_it_cannot_find()
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

void TEST_CLI_COMMANDS::progress_is_shown_on_a_terminal()
{
    const GFPDB_PLACE place;
    QByteArray list = "name,family,scheme,device_id\n";
    for (int number = 1; number <= 400; ++number)
        list += "part " + QByteArray::number(number) + ",3,7,C2 20 19\n";
    write_file(place.path("list.csv"), list.toStdString());
    const QString directory = q(place.db_dir());

    const QByteArray imported = run_on_terminal({"import", q(place.path("list.csv")), "-d", directory});
    QVERIFY2(imported.contains("\rImporting 4 of 400\rImporting 8 of 400"), imported.constData());
    QVERIFY2(imported.contains("\rImporting 400 of 400\r\nImported 400 new, "), imported.constData());
    QCOMPARE(imported.count("Importing "), 101);
    QVERIFY(run_on_terminal({"check", "-d", directory}).contains("\rChecking 400 of 400\r\n"));
    QVERIFY(run_on_terminal({"export", "-d", directory, "-o", q(place.path("all.json"))})
                .contains("\rExporting 400 of 400\r\n"));
    QCOMPARE(run_tool({"import", q(place.path("all.json")), "-d", directory}).err, QByteArray());
    QCOMPARE(run_tool({"check", "-d", directory}).err, QByteArray());
}

void TEST_CLI_COMMANDS::output_that_cannot_be_written_is_an_error()
{
    const GFPDB_PLACE place;
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    process.start(GFPDB_PROGRAM, {"list", "--builtin"});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 4);
    QCOMPARE(process.readAllStandardError(), QByteArray("gfpdb: The output cannot be written.\n"));
}

void TEST_CLI_COMMANDS::the_man_page_has_every_command_and_option()
{
    const GFPDB_PLACE place;
    const QByteArray page = text_of_file(QString(GFPDB_CLI_SOURCE) + "/gfpdb.1");
    QByteArray plain = page;
    plain.replace("\\-", "-");
    for (const char* command : {"list", "show", "export", "import", "check", "history", "restore", "diff"}) {
        QVERIFY2(plain.contains(QByteArray("\n.BR ") + command + " ") || plain.contains(QByteArray("\n.BI ") + command),
                 command);
        const QString help = run_tool({command, "--help"}).out;
        QRegularExpressionMatchIterator options = QRegularExpression("--[a-z-]+").globalMatch(help);
        while (options.hasNext()) {
            const QByteArray option = options.next().captured().toUtf8();
            QVERIFY2(plain.contains(option) || option == "--output", option.constData());
        }
    }
    for (int code = 0; code <= 5; ++code)
        QVERIFY(plain.contains(QByteArray(".TP\n.B ") + QByteArray::number(code) + "\n"));
    QVERIFY(plain.contains(run_tool({"--version"}).out.trimmed()));
}

void TEST_CLI_COMMANDS::completion_knows_commands_options_and_names()
{
    const GFPDB_PLACE place;
    save_part("My part");
    save_part("My other");
    const auto completed = [&place](const QStringList& words) {
        QStringList quoted;
        for (const QString& word : words)
            quoted += "'" + word + "'";
        const QString script =
            QString("source '%1/gfpdb.bash'; COMP_WORDS=('%2' %3); COMP_CWORD=%4; _gfpdb; printf '%s\\n' "
                    "\"${COMPREPLY[@]}\"")
                .arg(GFPDB_CLI_SOURCE, GFPDB_PROGRAM, quoted.join(' '))
                .arg(words.size());
        QProcess bash;
        bash.setWorkingDirectory(q(place.path("")));
        bash.start("bash", {"--norc", "-c", script});
        bash.waitForFinished();
        QStringList lines = QString(bash.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
        lines.sort();
        return lines + QString(bash.readAllStandardError()).split('\n', Qt::SkipEmptyParts);
    };
    const QString directory = q(place.db_dir());

    QCOMPARE(completed({"re"}), QStringList{"restore"});
    QCOMPARE(completed({""}).size(), 11);
    QCOMPARE(completed({"list", "--f"}), (QStringList{"--family", "--filter"}));
    QCOMPARE(completed({"import", "--dr"}), QStringList{"--dry-run"});
    QCOMPARE(completed({"show", "--variant", "q"}), QStringList{"quad"});
    QCOMPARE(completed({"show", "-d", directory, "My"}), (QStringList{"My\\ other", "My\\ part"}));
    QVERIFY(completed({"export", "-d", directory, "MX25L256"}).contains("MX25L25645G"));
    QCOMPARE(completed({"help", "he"}), QStringList{"help"});
    write_file(place.path("a file.json"), "");
    QCOMPARE(completed({"import", "a"}), QStringList{"a file.json"});
    QVERIFY(completed({"diff", "-d", directory, "a"}).contains("a file.json"));
    // Every option that the program has is offered.
    for (const char* command : {"list", "show", "export", "import", "check", "history", "diff"}) {
        const QStringList offered = completed({command, "--"});
        const QString help = run_tool({command, "--help"}).out;
        QRegularExpressionMatchIterator options = QRegularExpression("\n  (?:-., )?(--[a-z-]+)").globalMatch(help);
        while (options.hasNext()) {
            const QString option = options.next().captured(1);
            QVERIFY2(offered.contains(option), qPrintable(command + option));
        }
    }
}

QTEST_GUILESS_MAIN(TEST_CLI_COMMANDS)
#include "test_cli_commands.moc"
