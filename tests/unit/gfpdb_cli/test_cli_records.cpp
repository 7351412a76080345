// Records as JSON and CSV: what is written, what is read, and what is said about mistakes.
#include "gfpdb_embedded_mgr.h"
#include "gfpdb_json.h"

#include "record_csv.h"
#include "record_json.h"
#include "record_text.h"

// The constants of the tests have names that enumerators of the library have as well.
#include "cli_test.h"

#include <rapidcheck.h>

#include <limits>

namespace {

// The texts of problems as "line: field: text".
QStringList texts_of(const std::vector<CLI_PROBLEM>& problems)
{
    QStringList texts;
    for (const CLI_PROBLEM& problem : problems)
        texts += QStringLiteral("%1: %2: %3")
                     .arg(problem.line)
                     .arg(QString::fromStdString(problem.field), QString::fromStdString(problem.text));
    return texts;
}

struct READ
{
    std::vector<CLI_RECORD> records;
    QStringList problems;
};

READ read(const std::string& text, RECORD_RULES rules = RECORD_RULES::ALL, std::optional<int> family = std::nullopt,
          std::optional<int> scheme = std::nullopt)
{
    JSON_VALUE value;
    JSON_ERROR error;
    if (!json_parse(text, value, error))
        qFatal("%s", error.text.c_str());
    RECORD_READER reader(*fresh_manager(), rules, family, scheme);
    READ result;
    result.records = reader.read_file(value);
    result.problems = texts_of(reader.problems());
    return result;
}

READ read_csv(const std::string& text, bool checked = true)
{
    std::vector<CLI_PROBLEM> problems;
    READ result;
    result.records = records_from_csv(text, *fresh_manager(), checked, std::nullopt, std::nullopt, problems);
    result.problems = texts_of(problems);
    return result;
}

const char* const SMALL_FLOW = R"([
    {
      "operation": "program",
      "actions": [
        {
          "action": "custom",
          "loop_over": "page",
          "marker": "start"
        },
        {
          "action": "write_data",
          "name": "Program",
          "command": "0x02",
          "address": "loop",
          "data": "image",
          "page_size": "256",
          "addressing_mode": "3",
          "delay_us": "0",
          "bus_width": "1-1-1"
        },
        {
          "action": "custom",
          "loop_over": "page",
          "marker": "end"
        }
      ]
    }
  ])";

// A file of one device; `flows` are its single-I/O flows, from line 19 on.
std::string file_with(const std::string& flows)
{
    return "{\n\"format\": \"gfpdb-records\",\n\"version\": 1,\n\"devices\": [\n{\n"
           "\"name\": \"Mine\",\n\"family\": 3,\n\"scheme\": 7,\n\"device_id\": \"0xC2 0x20 0x19\",\n"
           "\"voltage\": \"3.3V\",\n\"density\": \"256Mb\",\n\"total_die\": 2,\n\"single_io_dummy_clock\": 8,\n"
           "\"quad_io_dummy_clock\": 6,\n\"template_name\": \"\",\n\"flow_template\": \"\",\n\"quad_flows\": [],\n"
           "\"single_flows\":\n" +
           flows + "\n}\n]\n}\n";
}

std::string replaced(std::string text, const std::string& what, const std::string& with)
{
    const std::size_t place = text.find(what);
    if (place == std::string::npos)
        qFatal("there is no %s", what.c_str());
    return text.replace(place, what.size(), with);
}

// The CLI_RECORD of a stored device, as the tool loads it.
CLI_RECORD stored(const std::string& name)
{
    return {false, GFPDB_EMBEDDED_MGR::instance().store().find_device(FAMILY, SERIAL, name).value(), 0};
}

} // namespace

class TEST_CLI_RECORDS : public QObject
{
    Q_OBJECT

private slots:
    void a_record_is_written_in_a_fixed_order();
    void what_is_written_is_read_again();
    void random_records_come_back();
    void every_action_has_its_keys();
    void missing_values_are_empty();
    void a_mistake_is_reported_with_line_and_field_data();
    void a_mistake_is_reported_with_line_and_field();
    void every_mistake_is_reported();
    void a_flow_as_a_whole_is_checked_data();
    void a_flow_as_a_whole_is_checked();
    void names_are_checked_in_any_case();
    void values_are_not_checked_when_the_rules_are_off();
    void properties_that_the_scheme_does_not_use_are_not_checked();
    void records_can_be_given_another_place();
    void a_list_has_a_line_for_each_device();
    void a_list_is_read_again();
    void odd_values_in_a_list_are_read_again();
    void mistakes_in_a_list_are_reported_with_line_and_column_data();
    void mistakes_in_a_list_are_reported_with_line_and_column();
    void a_record_is_shown_as_text();
};

void TEST_CLI_RECORDS::a_record_is_written_in_a_fixed_order()
{
    const GFPDB_PLACE place;
    const READ result = read(file_with(SMALL_FLOW));
    QCOMPARE(result.problems, QStringList());

    const std::string text = json_write(record_to_json(result.records.at(0)).value());

    QCOMPARE(QString::fromStdString(text), QString(R"({
  "name": "Mine",
  "family": 3,
  "scheme": 7,
  "device_id": "0xC2 0x20 0x19",
  "voltage": "3.3V",
  "density": "256Mb",
  "total_die": 2,
  "single_io_dummy_clock": 8,
  "quad_io_dummy_clock": 6,
  "template_name": "",
  "flow_template": "",
  "single_flows": [
    {
      "operation": "program",
      "actions": [
        {
          "action": "custom",
          "loop_over": "page",
          "marker": "start"
        },
        {
          "action": "write_data",
          "name": "Program",
          "command": "0x02",
          "address": "loop",
          "data": "image",
          "page_size": "256",
          "addressing_mode": "3",
          "delay_us": "0",
          "bus_width": "1-1-1"
        },
        {
          "action": "custom",
          "loop_over": "page",
          "marker": "end"
        }
      ]
    }
  ],
  "quad_flows": []
}
)"));
}

void TEST_CLI_RECORDS::what_is_written_is_read_again()
{
    const GFPDB_PLACE place;
    save_part("Mine", FAMILY, SERIAL, "My template");
    CLI_RECORD device = stored("Mine");
    CLI_RECORD copy = {true, GFPDB_EMBEDDED_MGR::instance().store().find_template("My template").value(), 0};

    const std::string text = json_write(records_to_json({copy, device}).value());
    const READ result = read(text);

    QCOMPARE(result.problems, QStringList());
    QCOMPARE(result.records.size(), std::size_t(2));
    QVERIFY(!result.records[0].is_template);
    QVERIFY(result.records[1].is_template);
    QCOMPARE(text_of(result.records[0].row), text_of(device.row));
    QCOMPARE(text_of(result.records[1].row), text_of(copy.row));
    QCOMPARE(result.records[0].line, 5);
    QCOMPARE(json_write(records_to_json(result.records).value()), text);
}

void TEST_CLI_RECORDS::random_records_come_back()
{
    const GFPDB_PLACE place;
    GFPDB_MGR& manager = *fresh_manager();
    QVERIFY(rc::check("texts", [&manager](const std::vector<std::wstring>& wide) {
        const auto text = [&wide](std::size_t at) {
            const std::string utf8 = at < wide.size() ? QString::fromStdWString(wide[at]).toStdString() : "";
            return QString::fromStdString(utf8).toStdString() == utf8 ? utf8 : std::string("x");
        };
        CLI_RECORD record;
        record.row.name = text(0);
        record.row.device_id = text(1);
        record.row.voltage = "\xEF\xBB\xBF" + text(2);
        record.row.template_name = text(3);
        record.row.total_die = *rc::gen::arbitrary<int>();
        record.row.family = *rc::gen::arbitrary<int>();
        record.row.scheme = *rc::gen::arbitrary<int>();
        std::unique_ptr<GFPDB_OPERATION> operation(manager.create_operation(*rc::gen::inRange(0, 5)));
        GFPDB_ACTION* action = manager.create_action(GFPDB_ACT_WRITE_REGISTER);
        action->set_property_value(GFPDB_WR_NAME, "\xEF\xBB\xBF" + text(4));
        action->set_property_value(GFPDB_WR_DATA, text(5));
        operation->add_action(action);
        const std::vector<GFPDB_OPERATION*> operations = {operation.get()};
        record.row.quad_flows = gfpdb_flows_to_json(&operations).value();

        const READ result = read(json_write(records_to_json({record}).value()), RECORD_RULES::NAMES);

        RC_ASSERT(result.records.size() == 1U);
        RC_ASSERT(text_of(result.records[0].row) == text_of(record.row));
    }));
}

// The keys stand for the properties in their order; docs/gfpdb.md lists them.
void TEST_CLI_RECORDS::every_action_has_its_keys()
{
    const GFPDB_PLACE place;
    GFPDB_MGR& manager = *fresh_manager();
    std::unique_ptr<GFPDB_OPERATION> operation(manager.create_operation(0));
    for (int type = 0; type < GFPDB_ACT_TYPE_COUNT; ++type)
        operation->add_action(manager.create_action(static_cast<GFPDB_ACT_TYPE>(type)));
    const std::vector<GFPDB_OPERATION*> operations = {operation.get()};
    CLI_RECORD record;
    record.row.single_flows = gfpdb_flows_to_json(&operations).value();

    const JSON_VALUE json = record_to_json(record).value();

    const JSON_VALUE& flow = json.member("single_flows")->items.at(0);
    QCOMPARE(flow.member("operation")->text, std::string("initialization"));
    QStringList keys;
    for (const JSON_VALUE& action : flow.member("actions")->items) {
        QStringList of_action = {QString::fromStdString(action.members.at(0).second.text)};
        for (const auto& [key, value] : action.members)
            of_action += QString::fromStdString(key);
        keys += of_action.join(' ');
    }
    QCOMPARE(keys, (QStringList{"write_register action name command data delay_us bus_width",
                                "read_register action name command data_length expected_data expected_data_mask "
                                "attempt_count delay_us bus_width",
                                "write_data action name command address data page_size addressing_mode delay_us "
                                "bus_width",
                                "read_data action name command address data_length expected_data expected_data_mask "
                                "addressing_mode dummy_clock_cycle delay_us bus_width",
                                "erase action name command address erase_size addressing_mode delay_us bus_width",
                                "custom action loop_over marker"}));
}

void TEST_CLI_RECORDS::missing_values_are_empty()
{
    const GFPDB_PLACE place;
    const READ result = read(R"({"format": "gfpdb-records", "version": 1,
        "devices": [{"name": "Mine", "family": 3, "scheme": 7, "device_id": "C2"}]})");

    QCOMPARE(result.problems, QStringList());
    GFPDB_ROW expected;
    expected.name = "Mine";
    expected.family = 3;
    expected.scheme = 7;
    expected.device_id = "C2";
    QCOMPARE(text_of(result.records.at(0).row), text_of(expected));
}

void TEST_CLI_RECORDS::a_mistake_is_reported_with_line_and_field_data()
{
    QTest::addColumn<QByteArray>("what");
    QTest::addColumn<QByteArray>("with");
    QTest::addColumn<QString>("problem");
    const auto add = [](const char* what, const char* with, const QString& problem) {
        QTest::addRow("%s", qPrintable(problem.left(60))) << QByteArray(what) << QByteArray(with) << problem;
    };
    add("gfpdb-records", "other", "2: format: This is not a file of records. Allowed: gfpdb-records.");
    add("\"gfpdb-records\"", "7", "2: format: This is not a file of records. Allowed: gfpdb-records.");
    add("\"version\": 1", "\"version\": 2", "3: version: This version of the format is not known. Allowed: 1.");
    add("\"version\": 1", "\"version\": \"1\"", "3: version: This version of the format is not known. Allowed: 1.");
    add("\"version\": 1,\n", "", "1: : \"version\" is missing.");
    add("\"devices\"", "\"device\"",
        "4: : \"device\" is not known here. Allowed: format, version, devices, templates.");
    add("\"devices\": [\n{", "\"templates\": 1, \"devices\": [\n{",
        "4: templates: A list was expected, but this is a number.");
    add("\"name\": \"Mine\",\n", "", "5: devices[0]: \"name\" is missing.");
    add("\"family\": 3,\n", "", "5: devices[0]: \"family\" is missing.");
    add("\"scheme\": 7,\n", "", "5: devices[0]: \"scheme\" is missing.");
    add("\"voltage\"", "\"volt\"",
        "10: devices[0]: \"volt\" is not known here. Allowed: name, family, scheme, device_id, voltage, density, "
        "total_die, single_io_dummy_clock, quad_io_dummy_clock, template_name, flow_template, single_flows, "
        "quad_flows.");
    add("\"3.3V\"", "3.3", "10: devices[0].voltage: A text was expected, but this is a number.");
    add("\"256Mb\"", "null", "11: devices[0].density: A text was expected, but this is null.");
    add("\"total_die\": 2", "\"total_die\": \"2\"",
        "12: devices[0].total_die: A whole number or null was expected, but this is a text.");
    add("\"total_die\": 2", "\"total_die\": 2.5",
        "12: devices[0].total_die: A whole number or null was expected, but this is 2.5.");
    add("\"total_die\": 2", "\"total_die\": 2147483648",
        "12: devices[0].total_die: A whole number or null was expected, but this is 2147483648.");
    add("\"total_die\": 2", "\"total_die\": true",
        "12: devices[0].total_die: A whole number or null was expected, but this is true or false.");
    add("\"family\": 3", "\"family\": 73", "7: devices[0].family: There is no family 73. Allowed: 1 to 72.");
    add("\"scheme\": 7", "\"scheme\": 14", "8: devices[0].scheme: The configuration mode 14 has no flash devices.");
    add("\"Mine\"", "\"mx25l1606e\"",
        "6: devices[0].name: There is a built-in device called \"mx25l1606e\": choose another name.");
    add("\"Mine\"", "\"no QE bit\"",
        "6: devices[0].name: There is a built-in template called \"no QE bit\": choose another name.");
    add("\"template_name\": \"\"", "\"template_name\": \"MX25L1606E\"",
        "15: devices[0].template_name: There is a built-in device called \"MX25L1606E\": choose another name.");
    add("\"quad_flows\": []", "\"quad_flows\": {}",
        "17: devices[0].quad_flows: A list was expected, but this is an object.");
    add("\"quad_flows\": []", "\"quad_flows\": [7]",
        "17: devices[0].quad_flows[0]: An object was expected, but this is a number.");
    add("\"operation\": \"program\",", "", "20: devices[0].single_flows[0]: \"operation\" is missing.");
    add("\"program\"", "\"programm\"",
        "21: devices[0].single_flows[0].operation: There is no such operation. Allowed: initialization, program, "
        "erase, verify, termination.");
    add("\"program\"", "1",
        "21: devices[0].single_flows[0].operation: There is no such operation. Allowed: initialization, program, "
        "erase, verify, termination.");
    add("[\n    {\n      \"operation\"", "[{\"operation\": \"program\", \"actions\": []},\n    {\n      \"operation\"",
        "21: devices[0].single_flows[1].operation: This operation occurs twice.");
    add("\"quad_flows\": []", "\"quad_flows\": [{\"operation\": \"erase\", \"actions\": 1}]",
        "17: devices[0].quad_flows[0].actions: A list was expected, but this is a number.");
    add("\"write_data\"", "\"write\"",
        "29: devices[0].single_flows[0].actions[1].action: There is no such action. Allowed: write_register, "
        "read_register, write_data, read_data, erase, custom.");
    add("          \"action\": \"write_data\",\n", "",
        "28: devices[0].single_flows[0].actions[1].action: There is no such action. Allowed: write_register, "
        "read_register, write_data, read_data, erase, custom.");
    add("\"page_size\": \"256\",", "", "28: devices[0].single_flows[0].actions[1]: \"page_size\" is missing.");
    add("\"page_size\"", "\"pages\": \"1\", \"page_size\"",
        "34: devices[0].single_flows[0].actions[1]: \"pages\" is not known here. Allowed: action, name, command, "
        "address, data, page_size, addressing_mode, delay_us, bus_width.");
    add("\"0x02\"", "2",
        "31: devices[0].single_flows[0].actions[1].command: A text was expected, but this is a number.");
    add("\"0x02\"", "\"2\"",
        "31: devices[0].single_flows[0].actions[1].command: \"2\" is not allowed for \"Command\". Allowed: one byte in "
        "hexadecimal, such as 0x9F.");
    add("\"marker\": \"end\"", "\"marker\": \"stop\"",
        "42: devices[0].single_flows[0].actions[2].marker: \"stop\" is not allowed for \"Loop marker\". Allowed: "
        "start, end.");
    add("\"total_die\": 2", "\"total_die\": 17",
        "12: devices[0].total_die: The total die count 17 is out of range: 1 to 16 are allowed.");
    add("\"single_io_dummy_clock\": 8", "\"single_io_dummy_clock\": -1",
        "13: devices[0].single_io_dummy_clock: The number of single-I/O dummy clocks -1 is out of range: 0 to 15 are "
        "allowed.");
    add("\"quad_io_dummy_clock\": 6", "\"quad_io_dummy_clock\": 32",
        "14: devices[0].quad_io_dummy_clock: The number of quad-I/O dummy clocks 32 is out of range: 0 to 31 are "
        "allowed.");
}

void TEST_CLI_RECORDS::a_mistake_is_reported_with_line_and_field()
{
    const GFPDB_PLACE place;
    QFETCH(QByteArray, what);
    QFETCH(QByteArray, with);
    QFETCH(QString, problem);

    const READ result = read(replaced(file_with(SMALL_FLOW), what.toStdString(), with.toStdString()));

    // A loop that lost its marker is noticed in two ways.
    QVERIFY2(!result.problems.isEmpty(), "no problem was found");
    QCOMPARE(result.problems.first(), problem);
    QVERIFY(result.problems.size() == 1 || with.contains("stop"));
}

void TEST_CLI_RECORDS::every_mistake_is_reported()
{
    const GFPDB_PLACE place;
    std::string text = file_with(SMALL_FLOW);
    text = replaced(text, "\"0xC2 0x20 0x19\"", "\"no ID\"");
    text = replaced(text, "\"3.3V\"", "\"5V\"");
    text = replaced(text, "\"256Mb\"", "\"257Mb\"");
    text = replaced(text, "\"256\"", "\"255\"");

    const QStringList problems = read(text).problems;

    QCOMPARE(problems.size(), 4);
    QVERIFY(problems[0].startsWith("34: devices[0].single_flows[0].actions[1].page_size: "));
    QVERIFY(problems[1].startsWith("9: devices[0].device_id: "));
    QVERIFY(problems[2].startsWith("10: devices[0].voltage: "));
    QVERIFY(problems[3].startsWith("11: devices[0].density: "));
}

void TEST_CLI_RECORDS::a_flow_as_a_whole_is_checked_data()
{
    QTest::addColumn<QByteArray>("what");
    QTest::addColumn<QByteArray>("with");
    QTest::addColumn<QString>("problem");
    QTest::newRow("unit of the end") << QByteArray("\"loop_over\": \"page\",\n          \"marker\": \"end\"")
                                     << QByteArray("\"loop_over\": \"sector\",\n          \"marker\": \"end\"")
                                     << "41: devices[0].single_flows[0].actions[2].loop_over: The end of a loop over "
                                        "each sector closes a loop over each page.";
    QTest::newRow("no end") << QByteArray("\"marker\": \"end\"") << QByteArray("\"marker\": \"start\"")
                            << "41: devices[0].single_flows[0].actions[2].loop_over: A loop over each page cannot "
                               "stand in a loop over each page. Allowed: a loop over each page or sector in a loop "
                               "over each die.";
    QTest::newRow("die") << QByteArray("\"loop\"") << QByteArray("\"die\"")
                         << "32: devices[0].single_flows[0].actions[1].address: The value \"die\" stands outside of a "
                            "loop over each die.";
    QTest::newRow("no step") << QByteArray("\"page\"") << QByteArray("\"sector\"")
                             << "40: devices[0].single_flows[0].actions[2].loop_over: The end of a loop over each page "
                                "closes a loop over each sector.";
}

void TEST_CLI_RECORDS::a_flow_as_a_whole_is_checked()
{
    const GFPDB_PLACE place;
    QFETCH(QByteArray, what);
    QFETCH(QByteArray, with);
    QFETCH(QString, problem);
    const QStringList problems = read(replaced(file_with(SMALL_FLOW), what.toStdString(), with.toStdString())).problems;
    QVERIFY(!problems.isEmpty());
    QCOMPARE(problems.first().section(": ", 1), problem.section(": ", 1));
}

void TEST_CLI_RECORDS::names_are_checked_in_any_case()
{
    const GFPDB_PLACE place;
    for (const RECORD_RULES rules : {RECORD_RULES::ALL, RECORD_RULES::NAMES}) {
        for (const char* name : {"", "<<new device>>", "MX25L1606E", "No QE bit", "two\\nlines"}) {
            const READ result = read(replaced(file_with(SMALL_FLOW), "Mine", name), rules);
            QCOMPARE(result.problems.size(), 1);
            QVERIFY2(result.problems[0].startsWith("6: devices[0].name: "), qPrintable(result.problems[0]));
        }
    }
    std::string as_template = replaced(file_with(SMALL_FLOW), "\"devices\"", "\"templates\"");
    QVERIFY(read(as_template).problems.value(0).startsWith("15: templates[0].template_name: "));
    as_template = replaced(as_template, "\"template_name\": \"\"", "\"template_name\": \"T\"");
    QCOMPARE(read(replaced(as_template, "Mine", "MX25L1606E")).problems, QStringList());
}

void TEST_CLI_RECORDS::values_are_not_checked_when_the_rules_are_off()
{
    const GFPDB_PLACE place;
    std::string text = file_with(SMALL_FLOW);
    for (const auto& [what, with] : std::map<std::string, std::string>{{"\"0xC2 0x20 0x19\"", "\"no ID\""},
                                                                       {"\"3.3V\"", "\"5V\""},
                                                                       {"\"256Mb\"", "\"257Mb\""},
                                                                       {"\"total_die\": 2", "\"total_die\": 99"},
                                                                       {"\"family\": 3", "\"family\": 999"},
                                                                       {"\"scheme\": 7", "\"scheme\": 99"},
                                                                       {"\"256\"", "\"255\""},
                                                                       {"\"marker\": \"end\"", "\"marker\": \"\""}})
        text = replaced(text, what, with);

    const READ result = read(text, RECORD_RULES::NAMES);

    QCOMPARE(result.problems, QStringList());
    QCOMPARE(result.records.at(0).row.device_id, std::string("no ID"));
    QCOMPARE(result.records.at(0).row.family, 999);
}

void TEST_CLI_RECORDS::properties_that_the_scheme_does_not_use_are_not_checked()
{
    const GFPDB_PLACE place;
    const std::string card = replaced(
        replaced(replaced(file_with(SMALL_FLOW), "\"scheme\": 7", "\"scheme\": 23"), "\"0xC2 0x20 0x19\"", "\"no ID\""),
        "\"256Mb\"", "\"1GB\"");
    QCOMPARE(read(card).problems, QStringList());
}

void TEST_CLI_RECORDS::records_can_be_given_another_place()
{
    const GFPDB_PLACE place;
    const std::string builtin = replaced(replaced(file_with(SMALL_FLOW), "\"family\": 3", "\"family\": \"x\""),
                                         "\"scheme\": 7", "\"scheme\": -1");
    const READ result = read(builtin, RECORD_RULES::ALL, 5, 13);
    QCOMPARE(result.problems, QStringList());
    QCOMPARE(result.records.at(0).row.family, 5);
    QCOMPARE(result.records.at(0).row.scheme, 13);
}

void TEST_CLI_RECORDS::a_list_has_a_line_for_each_device()
{
    CLI_RECORD plain;
    plain.row.name = "A";
    plain.row.family = 3;
    plain.row.scheme = 7;
    CLI_RECORD full;
    full.row = make_row("B, \"best\"\r\n");
    full.row.template_name = "T";
    CLI_RECORD other = full;
    other.is_template = true;

    QCOMPARE(records_to_csv({plain, other, full}),
             std::string("name,family,scheme,device_id,voltage,density,total_die,single_io_dummy_clock,"
                         "quad_io_dummy_clock,template_name,flow_template\n"
                         "A,3,7,,,,,,,,\n"
                         "\"B, \"\"best\"\"\r\n\",3,7,0xC2 0x20 0x19,1.8V,256Mb,2,8,10,T,a flow template\n"));
}

void TEST_CLI_RECORDS::a_list_is_read_again()
{
    const GFPDB_PLACE place;
    CLI_RECORD record;
    record.row = make_row("B, \"best\"");
    record.row.single_flows.clear();
    record.row.quad_flows.clear();
    record.row.quad_io_dummy_clock.reset();

    const READ result = read_csv(records_to_csv({record}));

    QCOMPARE(result.problems, QStringList());
    QCOMPARE(result.records.size(), std::size_t(1));
    QCOMPARE(text_of(result.records[0].row), text_of(record.row));
    QCOMPARE(result.records[0].line, 2);
    QCOMPARE(read_csv("scheme,name,family,device_id\r\n7,A,3,C2\r\n").records.at(0).row.name, std::string("A"));
}

// Values that the rules refuse, as a directory can have them.
void TEST_CLI_RECORDS::odd_values_in_a_list_are_read_again()
{
    const GFPDB_PLACE place;
    CLI_RECORD record;
    record.row.name = "A";
    record.row.family = -1;
    record.row.scheme = -1;
    record.row.total_die = std::numeric_limits<int>::min();
    record.row.quad_io_dummy_clock = std::numeric_limits<int>::max();
    record.row.voltage = std::string("\xEF\xBB\xBF\0\r", 5);
    record.row.flow_template = "end\r";

    const READ result = read_csv(records_to_csv({record}), false);

    QCOMPARE(result.problems, QStringList());
    QCOMPARE(text_of(result.records.at(0).row), text_of(record.row));
}

void TEST_CLI_RECORDS::mistakes_in_a_list_are_reported_with_line_and_column_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("problems");
    const auto add = [](const char* text, const QStringList& problems) {
        QTest::newRow(qPrintable(problems.first())) << QByteArray(text) << problems;
    };
    QTest::newRow("nothing") << QByteArray()
                             << QStringList{"1: name: The column is missing.", "1: family: The column is missing.",
                                            "1: scheme: The column is missing."};
    add("name,family\n", {"1: scheme: The column is missing."});
    add("name,family,scheme,price\n",
        {"1: price: The column is not known. Allowed: name, family, scheme, device_id, voltage, density, total_die, "
         "single_io_dummy_clock, quad_io_dummy_clock, template_name, flow_template."});
    add("name,family,scheme,name\n", {"1: name: The column occurs twice.", "1: name: The column occurs twice."});
    add("name,family,scheme,device_id\nA,3,7\n", {"2: : The row has 3 cells, the line of column names has 4."});
    add("name,family,scheme,device_id\nA,3,7,C2\nB,three,7,C2\n",
        {"3: family: A whole number or null was expected, but this is a text.",
         "3: family: There is no family 0. Allowed: 1 to 72."});
    add("name,family,scheme,device_id,total_die\nA,3,7,C2,1.5\nB,3,7,C2,007\n",
        {"2: total_die: A whole number or null was expected, but this is 1.5.",
         "3: total_die: A whole number or null was expected, but this is a text."});
    add("name,family,scheme,device_id,total_die\nA,3,7,C2,null\nB,3,7,C2,true\n",
        {"2: total_die: A whole number or null was expected, but this is a text.",
         "3: total_die: A whole number or null was expected, but this is a text."});
    add("name,family,scheme,device_id,flow_template\nA,3,7,C2,x\nB,3,7,C2,\xFF\xFE\n",
        {"3: flow_template: The text is not UTF-8."});
    add("name,family,scheme,device_id,total_die\nA,3,7,C2,99\n",
        {"2: total_die: The total die count 99 is out of range: 1 to 16 are allowed."});
    add("name,family,scheme,device_id\n,3,7,C2\nMX25L1606E,3,7,C2\n",
        {"2: name: The device name is empty: 1 to 64 characters are allowed.",
         "3: name: There is a built-in device called \"MX25L1606E\": choose another name."});
}

void TEST_CLI_RECORDS::mistakes_in_a_list_are_reported_with_line_and_column()
{
    const GFPDB_PLACE place;
    QFETCH(QByteArray, text);
    QFETCH(QStringList, problems);
    QCOMPARE(read_csv(text.toStdString()).problems, problems);
}

void TEST_CLI_RECORDS::a_record_is_shown_as_text()
{
    const GFPDB_PLACE place;
    CLI_RECORD record = read(file_with(SMALL_FLOW)).records.at(0);
    record.row.device_id = "a\nb\x1b[1m";
    record.row.total_die.reset();

    const QString text = QString::fromStdString(record_to_text(record, true, true));

    QVERIFY2(text.startsWith("Name:                 Mine\n"
                             "Kind:                 device\n"
                             "Family:               3 ("),
             qPrintable(text));
    QVERIFY2(
        text.endsWith(")\n"
                      "Scheme:               7\n"
                      "ID:                   a?b?[1m\n"
                      "I/O voltage:          3.3V\n"
                      "Density:              256Mb\n"
                      "Dies:                 -\n"
                      "Dummy clocks, single: 8\n"
                      "Dummy clocks, quad:   6\n"
                      "Template name:        -\n"
                      "Flow template:        -\n"
                      "\n"
                      "Single-I/O flow\n"
                      "  Program\n"
                      "    Loop            page | start\n"
                      "    Write Data      Program | Command 0x02 | Address loop | Data image | Page size(byte) 256 "
                      "| Addressing mode(byte) 3 | Delay(us) 0 | Command-Address-Data(bus width) 1-1-1\n"
                      "    Loop            page | end\n"
                      "\n"
                      "Quad-I/O flow: none\n"),
        qPrintable(text));
    QVERIFY(!record_to_text(record, false, true).empty());
    QVERIFY(record_to_text(record, false, true).find("Single-I/O") == std::string::npos);
    QVERIFY(record_to_text(record, true, false).find("Quad-I/O") == std::string::npos);
    record.is_template = true;
    record.row.template_name = "T";
    QVERIFY(record_to_text(record, true, true).find("Kind:                 stored template, made from Mine\n") !=
            std::string::npos);
    record.row.single_flows = "no flows";
    QCOMPARE(record_to_text(record, true, true), std::string());
    QVERIFY(!record_to_json(record));
    QVERIFY(!records_to_json({record}));
}

QTEST_GUILESS_MAIN(TEST_CLI_RECORDS)
#include "test_cli_records.moc"
