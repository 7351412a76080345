// SPDX-License-Identifier: MIT

// What is said about mistakes in records, and when the rules do not count.
#include "record_reading.h"
#include "test_rows.h"

class TEST_CLI_RECORD_RULES : public CLI_TEST
{
    Q_OBJECT

private slots:
    void a_mistake_is_reported_with_line_and_field_data()
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
        add("\"3.3V\"", "3.3", "10: devices[0].voltage: A string was expected, but this is a number.");
        add("\"256Mb\"", "null", "11: devices[0].density: A string was expected, but this is null.");
        add("\"total_die\": 2", "\"total_die\": \"2\"",
            "12: devices[0].total_die: A whole number or null was expected, but this is a string.");
        add("\"total_die\": 2", "\"total_die\": 2.5",
            "12: devices[0].total_die: A whole number or null was expected, but this is 2.5.");
        add("\"total_die\": 2", "\"total_die\": 2147483648",
            "12: devices[0].total_die: A whole number or null was expected, but this is 2147483648.");
        add("\"total_die\": 2", "\"total_die\": true",
            "12: devices[0].total_die: A whole number or null was expected, but this is true or false.");
        add("\"family\": 3", "\"family\": 73", "7: devices[0].family: There is no family 73. Allowed: 1 to 72.");
        add("\"scheme\": 7", "\"scheme\": 14", "8: devices[0].scheme: The configuration mode 14 has no flash devices.");
        add("\"Mine\"", "\"mx25l1606e\"",
            "6: devices[0].name: There is a built-in device called \"MX25L1606E\": choose another name. Upper and "
            "lower "
            "case count as the same.");
        add("\"Mine\"", "\"no QE bit\"",
            "6: devices[0].name: There is a built-in template called \"No QE bit\": choose another name. Upper and "
            "lower "
            "case count as the same.");
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
        add("[\n    {\n      \"operation\"",
            "[{\"operation\": \"program\", \"actions\": []},\n    {\n      \"operation\"",
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
            "31: devices[0].single_flows[0].actions[1].command: A string was expected, but this is a number.");
        add("\"0x02\"", "\"2\"",
            "31: devices[0].single_flows[0].actions[1].command: \"2\" is not allowed for \"Command\". Allowed: one "
            "byte in "
            "hexadecimal, such as 0x9F.");
        add("\"marker\": \"end\"", "\"marker\": \"stop\"",
            "42: devices[0].single_flows[0].actions[2].marker: \"stop\" is not allowed for \"Loop marker\". Allowed: "
            "start, end.");
        add("\"total_die\": 2", "\"total_die\": 17",
            "12: devices[0].total_die: The total die count 17 is out of range: 1 to 16 are allowed.");
        add("\"single_io_dummy_clock\": 8", "\"single_io_dummy_clock\": -1",
            "13: devices[0].single_io_dummy_clock: The number of single-I/O dummy clocks -1 is out of range: 0 to 15 "
            "are "
            "allowed.");
        add("\"quad_io_dummy_clock\": 6", "\"quad_io_dummy_clock\": 32",
            "14: devices[0].quad_io_dummy_clock: The number of quad-I/O dummy clocks 32 is out of range: 0 to 31 are "
            "allowed.");
    }

    void a_mistake_is_reported_with_line_and_field()
    {
        QFETCH(QByteArray, what);
        QFETCH(QByteArray, with);
        QFETCH(QString, problem);

        const READ result = read_json(replaced(file_with(SMALL_FLOW), what.toStdString(), with.toStdString()));

        // A loop that lost its marker is noticed in two ways.
        QVERIFY2(!result.problems.isEmpty(), "no problem was found");
        QCOMPARE(result.problems.first(), problem);
        QVERIFY(result.problems.size() == 1 || with.contains("stop"));
    }

    void every_mistake_is_reported()
    {
        std::string text = file_with(SMALL_FLOW);
        text = replaced(text, "\"0xC2 0x20 0x19\"", "\"no ID\"");
        text = replaced(text, "\"3.3V\"", "\"5\"");
        text = replaced(text, "\"256Mb\"", "\"257\"");
        text = replaced(text, "\"256\"", "\"255\"");

        const QStringList problems = read_json(text).problems;

        QCOMPARE(problems.size(), 4);
        QVERIFY(problems[0].startsWith("34: devices[0].single_flows[0].actions[1].page_size: "));
        QVERIFY(problems[1].startsWith("9: devices[0].device_id: "));
        QVERIFY(problems[2].startsWith("10: devices[0].voltage: "));
        QVERIFY(problems[3].startsWith("11: devices[0].density: "));
    }

    void a_flow_as_a_whole_is_checked_data()
    {
        rows<QByteArray, QByteArray, QString>(
            {{"unit of the end", "\"loop_over\": \"page\",\n          \"marker\": \"end\"",
              "\"loop_over\": \"sector\",\n          \"marker\": \"end\"",
              "41: devices[0].single_flows[0].actions[2].loop_over: The end of a loop over "
              "each sector closes a loop over each page."},
             {"no end", "\"marker\": \"end\"", "\"marker\": \"start\"",
              "41: devices[0].single_flows[0].actions[2].loop_over: A loop over each page cannot "
              "be in a loop over each page. Allowed: a loop over each page or sector in a loop "
              "over each die."},
             {"die", "\"loop\"", "\"die\"",
              "32: devices[0].single_flows[0].actions[1].address: The value \"die\" is outside a "
              "loop over each die."},
             {"no step", "\"page\"", "\"sector\"",
              "40: devices[0].single_flows[0].actions[2].loop_over: The end of a loop over each page "
              "closes a loop over each sector."}});
    }

    void a_flow_as_a_whole_is_checked()
    {
        const auto [what, with, problem] = row<QByteArray, QByteArray, QString>();
        const QStringList problems =
            read_json(replaced(file_with(SMALL_FLOW), what.toStdString(), with.toStdString())).problems;
        QVERIFY(!problems.isEmpty());
        QCOMPARE(problems.first().section(": ", 1), problem.section(": ", 1));
    }

    void names_are_checked_in_any_case()
    {
        for (const GFPDB_RECORD_RULES rules : {GFPDB_RECORD_RULES::IMPORTED, GFPDB_RECORD_RULES::NAMES}) {
            for (const char* name : {"", "<<new device>>", "MX25L1606E", "No QE bit", "two\\nlines"}) {
                const READ result = read_json(replaced(file_with(SMALL_FLOW), "Mine", name), rules);
                QCOMPARE(result.problems.size(), 1);
                QVERIFY2(result.problems[0].startsWith("6: devices[0].name: "), qPrintable(result.problems[0]));
            }
        }
        std::string as_template = replaced(file_with(SMALL_FLOW), "\"devices\"", "\"templates\"");
        QVERIFY(read_json(as_template).problems.value(0).startsWith("15: templates[0].template_name: "));
        as_template = replaced(as_template, "\"template_name\": \"\"", "\"template_name\": \"T\"");
        QCOMPARE(read_json(replaced(as_template, "Mine", "MX25L1606E")).problems, QStringList());
    }

    void values_are_not_checked_when_the_rules_are_off()
    {
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

        const READ result = read_json(text, GFPDB_RECORD_RULES::NAMES);

        QCOMPARE(result.problems, QStringList());
        QCOMPARE(result.records.at(0).row.device_id, std::string("no ID"));
        QCOMPARE(result.records.at(0).row.family, 999);
    }

    void properties_that_the_scheme_does_not_use_are_not_checked()
    {
        const std::string card = replaced(replaced(replaced(file_with(SMALL_FLOW), "\"scheme\": 7", "\"scheme\": 23"),
                                                   "\"0xC2 0x20 0x19\"", "\"no ID\""),
                                          "\"256Mb\"", "\"1GB\"");
        QCOMPARE(read_json(card).problems, QStringList());
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_RECORD_RULES)

#include "test_cli_record_rules.moc"
