// SPDX-License-Identifier: MIT

// Records as JSON and as text: what is written, and that it is read again.
#include "manager/gfpdb_embedded_mgr.h"
#include "model/gfpdb_flow_text.h"

#include "record_reading.h"
#include "record_text.h"

#include <rapidcheck.h>

namespace {

// The GFPDB_RECORD of a stored device, as the tool loads it.
GFPDB_RECORD stored(const std::string& name)
{
    return {false, GFPDB_EMBEDDED_MGR::instance().store().find_device(FAMILY, ACTIVE_SERIAL, name).value(), 0};
}

// file_with(SMALL_FLOW), as it is written.
const std::string WRITTEN_BEFORE_FLOWS = R"({
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
  "single_flows": )";
const std::string WRITTEN_AFTER_FLOWS = ",\n  \"quad_flows\": []\n}\n";

std::string all_to_json(const std::vector<GFPDB_RECORD>& records)
{
    std::vector<GFPDB_RECORD> unreadable;
    const std::string json = gfpdb_write_records(records, unreadable);
    if (!unreadable.empty())
        qFatal("flows that cannot be read");
    return json;
}

} // namespace

class TEST_CLI_RECORDS : public QObject
{
    Q_OBJECT

private slots:
    void a_record_is_written_in_a_fixed_order()
    {
        const GFPDB_PLACE place;
        const READ result = read_json(file_with(SMALL_FLOW));
        QCOMPARE(result.problems, QStringList());

        const std::string text = json_write(gfpdb_record_to_json(result.records.at(0)).value());

        QCOMPARE(QString::fromStdString(text),
                 QString::fromStdString(WRITTEN_BEFORE_FLOWS + SMALL_FLOW + WRITTEN_AFTER_FLOWS));
    }

    void what_is_written_is_read_again()
    {
        const GFPDB_PLACE place;
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "My template");
        GFPDB_RECORD device = stored("Mine");
        GFPDB_RECORD copy = {true, GFPDB_EMBEDDED_MGR::instance().store().find_template("My template").value(), 0};

        const std::string text = all_to_json({copy, device});
        const READ result = read_json(text);

        QCOMPARE(result.problems, QStringList());
        QCOMPARE(result.records.size(), std::size_t(2));
        QVERIFY(!result.records[0].is_template);
        QVERIFY(result.records[1].is_template);
        QCOMPARE(text_of(result.records[0].row), text_of(device.row));
        QCOMPARE(text_of(result.records[1].row), text_of(copy.row));
        QCOMPARE(result.records[0].line, 5);
        QCOMPARE(all_to_json(result.records), text);
    }

    void random_records_come_back()
    {
        const GFPDB_PLACE place;
        GFPDB_MGR& manager = *fresh_manager();
        QVERIFY(rc::check("texts", [&manager](const std::vector<std::wstring>& wide) {
            const auto text = [&wide](std::size_t at) {
                const std::string utf8 = at < wide.size() ? QString::fromStdWString(wide[at]).toStdString() : "";
                return QString::fromStdString(utf8).toStdString() == utf8 ? utf8 : std::string("x");
            };
            GFPDB_RECORD record;
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
            record.row.quad_flows = gfpdb_flows_to_text(&operations).value();

            const READ result = read_json(all_to_json({record}), GFPDB_RECORD_RULES::NAMES);

            RC_ASSERT(result.records.size() == 1U);
            RC_ASSERT(text_of(result.records[0].row) == text_of(record.row));
        }));
    }

    // The keys stand for the properties in their order; docs/gfpdb.md lists them.
    void every_action_has_its_keys()
    {
        const GFPDB_PLACE place;
        GFPDB_MGR& manager = *fresh_manager();
        std::unique_ptr<GFPDB_OPERATION> operation(manager.create_operation(0));
        for (int type = 0; type < GFPDB_ACT_TYPE_COUNT; ++type)
            operation->add_action(manager.create_action(static_cast<GFPDB_ACT_TYPE>(type)));
        const std::vector<GFPDB_OPERATION*> operations = {operation.get()};
        GFPDB_RECORD record;
        record.row.single_flows = gfpdb_flows_to_text(&operations).value();

        const JSON_VALUE json = gfpdb_record_to_json(record).value();

        const JSON_VALUE& flow = json.member("single_flows")->items.at(0);
        QCOMPARE(flow.member("operation")->text, std::string("initialization"));
        QStringList keys;
        for (const JSON_VALUE& action : flow.member("actions")->items) {
            QStringList of_action = {QString::fromStdString(action.members.at(0).second.text)};
            for (const auto& [key, value] : action.members)
                of_action += QString::fromStdString(key);
            keys += of_action.join(' ');
        }
        QCOMPARE(keys,
                 (QStringList{"write_register action name command data delay_us bus_width",
                              "read_register action name command data_length expected_data expected_data_mask "
                              "attempt_count delay_us bus_width",
                              "write_data action name command address data page_size addressing_mode delay_us "
                              "bus_width",
                              "read_data action name command address data_length expected_data expected_data_mask "
                              "addressing_mode dummy_clock_cycle delay_us bus_width",
                              "erase action name command address erase_size addressing_mode delay_us bus_width",
                              "custom action loop_over marker"}));
    }

    void missing_values_are_empty()
    {
        const GFPDB_PLACE place;
        const READ result = read_json(R"({"format": "gfpdb-records", "version": 1,
            "devices": [{"name": "Mine", "family": 3, "scheme": 7, "device_id": "C2",
                         "density": "8Mb"}]})");

        QCOMPARE(result.problems, QStringList());
        GFPDB_ROW expected;
        expected.name = "Mine";
        expected.family = 3;
        expected.scheme = 7;
        expected.device_id = "C2";
        expected.density = "8Mb";
        QCOMPARE(text_of(result.records.at(0).row), text_of(expected));
    }

    void records_can_be_given_another_place()
    {
        const GFPDB_PLACE place;
        const std::string builtin = replaced(replaced(file_with(SMALL_FLOW), "\"family\": 3", "\"family\": \"x\""),
                                             "\"scheme\": 7", "\"scheme\": -1");
        const READ result = read_json(builtin, GFPDB_RECORD_RULES::IMPORTED, 5, 13);
        QCOMPARE(result.problems, QStringList());
        QCOMPARE(result.records.at(0).row.family, 5);
        QCOMPARE(result.records.at(0).row.scheme, 13);
    }

    void a_record_is_shown_as_text()
    {
        const GFPDB_PLACE place;
        GFPDB_RECORD record = read_json(file_with(SMALL_FLOW)).records.at(0);
        record.row.device_id = "a\nb\x1b[1m";
        record.row.total_die.reset();

        const QString text = QString::fromStdString(record_to_text(record, true, true));

        QVERIFY2(text.startsWith("Name:                 Mine\n"
                                 "Kind:                 device\n"
                                 "Family:               3 ("),
                 qPrintable(text));
        QVERIFY2(text.endsWith(
                     ")\n"
                     "Scheme:               7 (Active Serial)\n"
                     "ID:                   a?b?[1m\n"
                     "I/O voltage:          3.3V\n"
                     "Density:              256Mb\n"
                     "Dies:                 -\n"
                     "Dummy clocks, single: 8\n"
                     "Dummy clocks, quad:   6\n"
                     "Template name:        -\n"
                     "Flow template:        -\n"
                     "Maker:                -\n"
                     "Page size:            256\n"
                     "Address bytes:        3\n"
                     "Erase commands:       -\n"
                     "\n"
                     "Single-I/O flow\n"
                     "  Program\n"
                     "    Custom          page | start\n"
                     "    Write Data      Program | Command 0x02 | Address loop | Data image | Page size(byte) 256 "
                     "| Addressing mode(byte) 3 | Delay(us) 0 | Command-Address-Data(bus width) 1-1-1\n"
                     "    Custom          page | end\n"
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
        QVERIFY(!gfpdb_record_to_json(record));
        std::vector<GFPDB_RECORD> unreadable;
        QVERIFY(gfpdb_write_records({record}, unreadable).find("\"templates\": []") != std::string::npos);
        QCOMPARE(unreadable.size(), std::size_t(1));
        QCOMPARE(gfpdb_title(unreadable[0]), std::string("template \"T\""));
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_RECORDS)

#include "test_cli_records.moc"
