// SPDX-License-Identifier: MIT

// Which values of a record are wrong, missing or of no use, for each kind of configuration mode.
#include "base/gfpdb_text.h"
#include "exchange/gfpdb_record_rules.h"
#include "model/gfpdb_field.h"
#include "model/gfpdb_flow_text.h"
#include "test_rows.h"

#include "record_reading.h"

namespace {

constexpr int PARALLEL = 8;
constexpr int CARD = 23;
// Its pins work at 1.8 V.
constexpr int LOW_VOLTAGE_FAMILY = 60;

// Flows with one action, and flows with an operation that has none.
std::string flows(bool with_action)
{
    GFPDB_MGR& manager = *fresh_manager();
    GFPDB_FLASH& record = *manager.create_flash("flows");
    GFPDB_OPERATION* const operation = manager.create_operation(0);
    if (with_action)
        operation->add_action(manager.create_action(GFPDB_ACT_WRITE_REGISTER));
    record.set_operation(operation, SINGLE_IO);
    return gfpdb_flows_to_text(record.get_operations(SINGLE_IO)).value();
}

// A device with all values that devices of `scheme` have, and no other.
GFPDB_RECORD complete(int scheme, int family = FAMILY)
{
    GFPDB_RECORD record;
    GFPDB_ROW& row = record.row;
    row.name = "Mine";
    row.family = family;
    row.scheme = scheme;
    row.voltage = "1.8V";
    row.density = scheme == CARD ? "1GB" : "256Mb";
    if (scheme == CARD)
        return record;
    row.device_id = "C2";
    row.total_die = 2;
    if (scheme == PARALLEL)
        return record;
    row.single_io_dummy_clock = 8;
    row.quad_io_dummy_clock = 6;
    row.flow_template = "No QE bit";
    row.single_flows = flows(true);
    row.quad_flows = row.single_flows;
    return record;
}

void clear(GFPDB_ROW& row, const std::string& member)
{
    gfpdb_field(member)->in(row, [](auto& value) { value = {}; });
}

QStringList whole_texts_of(const std::vector<GFPDB_FINDING>& remarks)
{
    QStringList texts;
    for (const GFPDB_FINDING& remark : remarks)
        texts += QString::fromStdString(remark.field) + ": " + QString::fromStdString(remark.text);
    return texts;
}

QStringList texts_of(const std::vector<GFPDB_FINDING>& remarks)
{
    QStringList texts = whole_texts_of(remarks);
    for (QString& text : texts)
        text = text.section('.', 0, 0);
    return texts;
}

// A device of the same configuration mode with the voltage and density of `record`.
void save_values_of(const GFPDB_RECORD& record)
{
    GFPDB_MGR& manager = *fresh_manager();
    manager.set_config_scheme(record.row.scheme);
    GFPDB_FLASH* const stored = manager.create_flash("Stored");
    stored->set_string_property(GFPDB_FLASH_VOLTAGE, record.row.voltage);
    stored->set_density(record.row.density);
    QVERIFY(manager.save_flash(stored, std::string()));
    std::vector<std::string> offered;
    QVERIFY(gfpdb_joined(manager.get_voltage_list(offered)).find(record.row.voltage) != std::string::npos);
    QVERIFY(gfpdb_joined(manager.get_density_list(offered)).find(record.row.density) != std::string::npos);
}

} // namespace

class TEST_CLI_RECORD_VALUES : public QObject
{
    Q_OBJECT

private slots:
    void a_complete_record_is_kept_by_the_dialog_data()
    {
        rows<int>({{"single", ACTIVE_SERIAL}, {"quad", QUAD}, {"parallel", PARALLEL}, {"card", CARD}});
    }

    void a_complete_record_is_kept_by_the_dialog()
    {
        const GFPDB_PLACE place;
        const int scheme = row<int>();
        GFPDB_RECORD record = complete(scheme);
        GFPDB_MGR& manager = *fresh_manager();

        QCOMPARE(texts_of(gfpdb_record_problems(manager, record, GFPDB_RECORD_RULES::STORED)), QStringList());
        QCOMPARE(texts_of(gfpdb_fill_missing(manager, record)), QStringList());
        QCOMPARE(texts_of(gfpdb_record_warnings(manager, record)), QStringList());
    }

    // A problem that is only one of stored records is the reason for a default.
    void a_missing_value_is_wrong_or_gets_its_default_data()
    {
        QTest::addColumn<int>("scheme");
        QTest::addColumn<int>("family");
        QTest::addColumn<QString>("member");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("imported");
        QTest::addColumn<QString>("value");
        const auto add = [](int scheme, const char* member, const char* stored, const char* imported, const char* value,
                            int family = FAMILY) {
            QTest::addRow("%d %d %s", scheme, family, member)
                << scheme << family << QString(member) << QString(stored) << QString(imported) << QString(value);
        };
        const char* const no_id = "The device ID is empty";
        const char* const no_voltage = "The I/O voltage \"\" is not known: choose one of 3";
        const char* const no_density = "The density \"\" is not known: choose one of ";
        const char* const no_die = "The total die count 0 is out of range: 1 to 16 are allowed";
        for (const int scheme : {int(ACTIVE_SERIAL), int(QUAD), PARALLEL}) {
            add(scheme, "device_id", no_id, no_id, "");
            add(scheme, "total_die", no_die, "", "1");
        }
        for (const int scheme : {int(ACTIVE_SERIAL), int(QUAD), PARALLEL, CARD}) {
            add(scheme, "voltage", no_voltage, "", "3.3V");
            add(scheme, "density", no_density, no_density, "");
        }
        add(ACTIVE_SERIAL, "voltage", no_voltage, "", "1.8V", LOW_VOLTAGE_FAMILY);
        add(PARALLEL, "voltage", no_voltage, "", "3.3V", LOW_VOLTAGE_FAMILY);
        for (const int scheme : {int(ACTIVE_SERIAL), int(QUAD)}) {
            add(scheme, "single_io_dummy_clock", "", "", "0");
            add(scheme, "quad_io_dummy_clock", "", "", "0");
            add(scheme, "flow_template", "", "", "");
        }
    }

    void a_missing_value_is_wrong_or_gets_its_default()
    {
        const GFPDB_PLACE place;
        QFETCH(int, scheme);
        QFETCH(int, family);
        QFETCH(QString, member);
        QFETCH(QString, stored);
        QFETCH(QString, imported);
        QFETCH(QString, value);
        GFPDB_RECORD record = complete(scheme, family);
        clear(record.row, member.toStdString());
        GFPDB_MGR& manager = *fresh_manager();
        const auto is_found = [&member](const std::vector<GFPDB_FINDING>& remarks, const QString& text) {
            return text.isEmpty()
                       ? remarks.empty()
                       : texts_of(remarks).size() == 1 && texts_of(remarks)[0].startsWith(member + ": " + text);
        };

        QVERIFY(is_found(gfpdb_record_problems(manager, record, GFPDB_RECORD_RULES::STORED), stored));
        QVERIFY(is_found(gfpdb_record_problems(manager, record, GFPDB_RECORD_RULES::IMPORTED), imported));
        QVERIFY(gfpdb_record_problems(manager, record, GFPDB_RECORD_RULES::NAMES).empty());
        const std::vector<GFPDB_FINDING> filled = gfpdb_fill_missing(manager, record);
        QCOMPARE(filled.size(), std::size_t(value.isEmpty() ? 0 : 1));
        if (!filled.empty()) {
            QCOMPARE(filled[0].field, member.toUtf8().constData());
            QCOMPARE(filled[0].text, "The value is missing: " + value.toStdString() + " is stored.");
            QVERIFY(gfpdb_record_problems(manager, record, GFPDB_RECORD_RULES::STORED).empty());
            QVERIFY(gfpdb_fill_missing(manager, record).empty());
        }
    }

    void a_die_count_of_nothing_is_refused()
    {
        const GFPDB_PLACE place;
        GFPDB_RECORD record = complete(ACTIVE_SERIAL);
        record.row.total_die = 0;
        GFPDB_MGR& manager = *fresh_manager();
        for (const GFPDB_RECORD_RULES rules : {GFPDB_RECORD_RULES::STORED, GFPDB_RECORD_RULES::IMPORTED})
            QCOMPARE(texts_of(gfpdb_record_problems(manager, record, rules)),
                     QStringList{"total_die: The total die count 0 is out of range: 1 to 16 are allowed"});
        QVERIFY(gfpdb_fill_missing(manager, record).empty());
    }

    void a_text_that_is_not_a_voltage_or_size_is_refused_data()
    {
        QTest::addColumn<int>("scheme");
        QTest::addColumn<QString>("member");
        QTest::addColumn<QString>("value");
        const auto add = [](int scheme, const char* member, const char* value) {
            QTest::addRow("%d %s %s", scheme, member, value) << scheme << QString(member) << QString(value);
        };
        for (const char* voltage : {"foo", "5", "V", "-5V", "5v", " 5V", "2.7-V", "2.7-3.6-5V", "2.7V-3.6V", "2,7V"})
            add(ACTIVE_SERIAL, "voltage", voltage);
        for (const char* density : {"foo", "256", "Mb", "256 Mb", "256mb", "0Mb", "-1Mb", "2.5Mb", "256Tb"})
            add(ACTIVE_SERIAL, "density", density);
        for (const int scheme : {int(QUAD), PARALLEL, CARD}) {
            add(scheme, "voltage", "foo");
            add(scheme, "density", "foo");
        }
    }

    // Also when a stored device has it, which puts it into the dialog's list.
    void a_text_that_is_not_a_voltage_or_size_is_refused()
    {
        const GFPDB_PLACE place;
        QFETCH(int, scheme);
        QFETCH(QString, member);
        QFETCH(QString, value);
        GFPDB_RECORD record = complete(scheme);
        const bool is_voltage = member == "voltage";
        (is_voltage ? record.row.voltage : record.row.density) = value.toStdString();
        const QString problem =
            member +
            QString(": The %1 \"%2\" is not known: choose one of ").arg(is_voltage ? "I/O voltage" : "density", value);

        for (const bool is_stored : {false, true}) {
            if (is_stored)
                save_values_of(record);
            GFPDB_MGR& manager = *fresh_manager();
            for (const GFPDB_RECORD_RULES rules : {GFPDB_RECORD_RULES::STORED, GFPDB_RECORD_RULES::IMPORTED}) {
                const QStringList problems = whole_texts_of(gfpdb_record_problems(manager, record, rules));
                QCOMPARE(problems.size(), 1);
                QVERIFY2(problems[0].startsWith(problem), qPrintable(problems[0]));
            }
            QVERIFY(gfpdb_record_problems(manager, record, GFPDB_RECORD_RULES::NAMES).empty());
            QCOMPARE(texts_of(gfpdb_record_warnings(manager, record)), QStringList());
        }
    }

    void an_unusual_voltage_or_size_is_warned_of_data()
    {
        const auto voltage = [](const char* value) {
            return QString("voltage: The I/O voltage \"%1\" is not a usual one. Usual: 3.3V, ").arg(value);
        };
        const auto density = [](const char* value, const char* first) {
            return QString("density: The density \"%1\" is not a usual one. Usual: %2, ").arg(value, first);
        };
        rows<int, bool, QString, QString, QStringList>(
            {{"usual", int(ACTIVE_SERIAL), false, "2.7-3.6V", "64Mb", QStringList()},
             {"voltage", int(ACTIVE_SERIAL), false, "5V", "64Mb", QStringList{voltage("5V")}},
             {"range", int(QUAD), false, "1.5-5.5V", "64Mb", QStringList{voltage("1.5-5.5V")}},
             {"both of a template", int(ACTIVE_SERIAL), true, "5V", "3Kb",
              QStringList{voltage("5V"), density("3Kb", "1Mb")}},
             {"a serial one's of a parallel one", PARALLEL, false, "1.2V", "4Mb",
              QStringList{voltage("1.2V"), density("4Mb", "8Mb")}},
             {"a serial one's of a card", CARD, false, "2.5V", "8Mb",
              QStringList{voltage("2.5V"), density("8Mb", "1GB")}}});
    }

    // Also when a stored device has it, which puts it into the dialog's list.
    void an_unusual_voltage_or_size_is_warned_of()
    {
        const GFPDB_PLACE place;
        const auto [scheme, is_template, voltage, density, warnings] = row<int, bool, QString, QString, QStringList>();
        GFPDB_RECORD record = complete(scheme);
        record.is_template = is_template;
        record.row.template_name = is_template ? "T" : "";
        record.row.voltage = voltage.toStdString();
        record.row.density = density.toStdString();

        for (const bool is_stored : {false, true}) {
            if (is_stored)
                save_values_of(record);
            GFPDB_MGR& manager = *fresh_manager();
            QCOMPARE(texts_of(gfpdb_record_problems(manager, record, GFPDB_RECORD_RULES::STORED)), QStringList());
            const QStringList found = whole_texts_of(gfpdb_record_warnings(manager, record));
            QCOMPARE(found.size(), warnings.size());
            for (int i = 0; i < found.size(); ++i)
                QVERIFY2(found[i].startsWith(warnings[i]), qPrintable(found[i]));
        }
    }

    void a_template_needs_another_name_than_its_device()
    {
        const GFPDB_PLACE place;
        GFPDB_RECORD record = complete(ACTIVE_SERIAL);
        record.row.template_name = "mINE";
        for (const bool is_template : {false, true}) {
            record.is_template = is_template;
            QCOMPARE(texts_of(gfpdb_record_problems(*fresh_manager(), record, GFPDB_RECORD_RULES::NAMES)),
                     QStringList{"template_name: The device and its template need different names: both are called "
                                 "\"mINE\""});
        }
    }

    void what_the_dialog_drops_is_warned_of_data()
    {
        rows<int, QStringList>(
            {{"parallel", PARALLEL,
              QStringList{"single_io_dummy_clock", "quad_io_dummy_clock", "flow_template", "single_flows"}},
             {"card", CARD,
              QStringList{"device_id", "total_die", "single_io_dummy_clock", "quad_io_dummy_clock", "flow_template",
                          "single_flows"}}});
    }

    void what_the_dialog_drops_is_warned_of()
    {
        const GFPDB_PLACE place;
        const auto [scheme, members] = row<int, QStringList>();
        GFPDB_RECORD record = complete(ACTIVE_SERIAL);
        record.row.scheme = scheme;
        record.row.density = scheme == CARD ? "1GB" : "256Mb";
        GFPDB_MGR& manager = *fresh_manager();

        QStringList expected;
        for (const QString& member : members)
            expected += member + (member == "single_flows"
                                      ? ": Devices of this configuration mode have no flows: the dialog drops them"
                                      : ": Devices of this configuration mode have no such value: the dialog drops it");
        QCOMPARE(texts_of(gfpdb_record_warnings(manager, record)), expected);
        QVERIFY(gfpdb_record_problems(manager, record, GFPDB_RECORD_RULES::STORED).empty());
        record.row.single_flows.clear();
        QVERIFY(texts_of(gfpdb_record_warnings(manager, record)).last().startsWith("quad_flows: "));
        // A template serves every configuration mode.
        record.is_template = true;
        QVERIFY(gfpdb_record_warnings(manager, record).empty());
    }

    void flows_that_are_missing_are_warned_of_data()
    {
        const GFPDB_PLACE place;
        const QString some = QString::fromStdString(flows(true));
        const QString empty = QString::fromStdString(flows(false));
        const QString none;
        const char* const nothing = "There are no flows";
        const char* const not_here = "There are no flows for this configuration mode";
        rows<int, bool, QString, QString, QStringList>(
            {{"single", int(ACTIVE_SERIAL), false, some, none, QStringList()},
             {"quad", int(QUAD), false, none, some, QStringList()},
             {"only quad", int(ACTIVE_SERIAL), false, none, some, QStringList{QString("single_flows: ") + not_here}},
             {"only single", int(QUAD), false, some, empty, QStringList{QString("quad_flows: ") + not_here}},
             {"none", int(ACTIVE_SERIAL), false, none, none, QStringList{QString("single_flows: ") + nothing}},
             {"no action", int(QUAD), false, empty, empty, QStringList{QString("quad_flows: ") + nothing}},
             {"template", int(ACTIVE_SERIAL), true, none, some, QStringList()},
             {"empty template", int(ACTIVE_SERIAL), true, none, empty,
              QStringList{QString("single_flows: ") + nothing}},
             {"parallel", PARALLEL, false, empty, none, QStringList()}});
    }

    void flows_that_are_missing_are_warned_of()
    {
        const GFPDB_PLACE place;
        const auto [scheme, is_template, single, quad, warnings] = row<int, bool, QString, QString, QStringList>();
        GFPDB_RECORD record = complete(scheme);
        record.is_template = is_template;
        record.row.template_name = is_template ? "T" : "";
        record.row.single_flows = single.toStdString();
        record.row.quad_flows = quad.toStdString();

        QCOMPARE(texts_of(gfpdb_record_warnings(*fresh_manager(), record)), warnings);
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_RECORD_VALUES)

#include "test_cli_record_values.moc"
