// SPDX-License-Identifier: MIT

// The action model: labels, defaults, choices, checks, and what depends on what.
#include "model/gfpdb_action_model.h"
#include "model/gfpdb_operation.h"
#include "rules/gfpdb_action_rules.h"
#include "test_rows.h"

#include "words/gfpq_vocabulary.h"

#include <QTest>

#include <memory>
#include <string>

namespace {

using ACTION = std::unique_ptr<GFPDB_ACTION>;

ACTION make(int type)
{
    return ACTION(gfpdb_make_action(static_cast<GFPDB_ACT_TYPE>(type)));
}

GFPDB_ACT_PROPERTY property_id(int property)
{
    return static_cast<GFPDB_ACT_PROPERTY>(property);
}

// The action type that a property belongs to.
int type_of(int property)
{
    const int first_properties[] = {GFPDB_WR_NAME, GFPDB_RR_NAME, GFPDB_WD_NAME,
                                    GFPDB_RD_NAME, GFPDB_ER_NAME, GFPDB_CUSTOM_LOOP_UNIT};
    int type = 0;
    for (int candidate = 0; candidate < GFPDB_ACT_TYPE_COUNT; ++candidate) {
        if (property >= first_properties[candidate])
            type = candidate;
    }
    return type;
}

ACTION make_with(int property)
{
    return make(type_of(property));
}

std::string error_of(const GFPDB_ACTION& action, int property, const std::string& value)
{
    std::string error;
    const bool valid = action.check_property_value(property_id(property), value, error);
    if (!valid && error.empty())
        return "(refused without a text)";
    return valid && !error.empty() ? "(allowed with a text)" : error;
}

std::string bytes_of(int count)
{
    std::string text;
    for (int byte = 0; byte < count; ++byte)
        text += byte ? " 0x00" : "0x00";
    return text;
}

const std::initializer_list<int> NAMES = {GFPDB_WR_NAME, GFPDB_RR_NAME, GFPDB_WD_NAME, GFPDB_RD_NAME, GFPDB_ER_NAME};
const std::initializer_list<int> BYTES = {GFPDB_WR_COMMAND, GFPDB_RR_COMMAND, GFPDB_WD_COMMAND,
                                          GFPDB_RD_COMMAND, GFPDB_ER_COMMAND, GFPDB_RD_EXPECTED_DATA_MASK};
const QByteArray BYTES_ALLOWED = "1 to 256 bytes in hexadecimal separated by single spaces, such as 0x00 0x02.";
const QByteArray BYTE_ALLOWED = "one byte in hexadecimal, such as 0x9F.";
const QByteArray ADDRESS_ALLOWED = "an address of eight hexadecimal digits, such as 0x00010000.";

} // namespace

class TEST_FLOW_ACTIONS : public QObject
{
    Q_OBJECT

private slots:
    void each_type_has_its_run_of_properties_in_order_data()
    {
        rows<int, int, int>({{"Write Register", GFPDB_ACT_WRITE_REGISTER, GFPDB_WR_NAME, GFPDB_WR_BUS_WIDTH},
                             {"Read Register", GFPDB_ACT_READ_REGISTER, GFPDB_RR_NAME, GFPDB_RR_BUS_WIDTH},
                             {"Write Data", GFPDB_ACT_WRITE_DATA, GFPDB_WD_NAME, GFPDB_WD_BUS_WIDTH},
                             {"Read Data", GFPDB_ACT_READ_DATA, GFPDB_RD_NAME, GFPDB_RD_BUS_WIDTH},
                             {"Erase", GFPDB_ACT_ERASE, GFPDB_ER_NAME, GFPDB_ER_BUS_WIDTH},
                             {"Custom", GFPDB_ACT_CUSTOM, GFPDB_CUSTOM_LOOP_UNIT, GFPDB_CUSTOM_LOOP_MARKER}});
    }

    void each_type_has_its_run_of_properties_in_order()
    {
        const auto [type, first, last] = row<int, int, int>();

        const ACTION action = make(type);

        std::vector<GFPDB_ACT_PROPERTY> expected;
        for (int property = first; property <= last; ++property)
            expected.push_back(property_id(property));
        QCOMPARE(action->get_property_enum_list(), expected);
        QCOMPARE(action->m_action_type, type);
        QCOMPARE(int(action->get_action_type()), type);
        for (int property = -1; property <= 40; ++property)
            QCOMPARE(action->has_property(property_id(property)), property >= first && property <= last);
    }

    void there_is_no_action_of_an_unknown_type()
    {
        QVERIFY(!make(-1));
        QVERIFY(!make(6));
        QVERIFY(!gfpdb_properties_of_type(-1));
        QVERIFY(!gfpdb_properties_of_type(6));
    }

    void labels_are_the_words_of_the_property_table()
    {
        for (int property = 0; property < GFPDB_CUSTOM_LOOP_UNIT; ++property)
            QCOMPARE(make_with(property)->get_property_label(property_id(property)),
                     std::string(GFPQ_PROPERTY_LABELS[property]));
        QCOMPARE(make(GFPDB_ACT_CUSTOM)->get_property_label(GFPDB_CUSTOM_LOOP_MARKER), std::string());
        QCOMPARE(make(GFPDB_ACT_CUSTOM)->get_property_label(property_id(40)), std::string());
        QCOMPARE(make(GFPDB_ACT_CUSTOM)->get_property_label(property_id(-1)), std::string());
    }

    void a_loop_is_labelled_by_its_marker()
    {
        const ACTION loop = make(GFPDB_ACT_CUSTOM);
        QCOMPARE(loop->get_property_label(GFPDB_CUSTOM_LOOP_UNIT), std::string("Loop over each:"));

        loop->set_property_value(GFPDB_CUSTOM_LOOP_MARKER, "end");
        QCOMPARE(loop->get_property_label(GFPDB_CUSTOM_LOOP_UNIT), std::string("End of data? Next:"));
    }

    void a_new_action_has_the_default_values_data()
    {
        rows<int, QStringList>(
            {{"Write Register", GFPDB_ACT_WRITE_REGISTER, QStringList{"Write Register", "0x06", "none", "0", "1-1"}},
             {"Read Register", GFPDB_ACT_READ_REGISTER,
              QStringList{"Read Register", "0x05", "1", "0x00", "0x01", "1", "0", "1-1"}},
             {"Write Data", GFPDB_ACT_WRITE_DATA,
              QStringList{"Write Data", "0x02", "loop", "image", "256", "3", "0", "1-1-1"}},
             {"Read Data", GFPDB_ACT_READ_DATA,
              QStringList{"Read Data", "0x0B", "0x00000000", "device", "image", "0xFF", "3", "8", "0", "1-1-1"}},
             {"Erase", GFPDB_ACT_ERASE, QStringList{"Erase", "0xD8", "loop", "65536", "3", "0", "1-1"}},
             {"Custom", GFPDB_ACT_CUSTOM, QStringList{"page", "start"}}});
    }

    void a_new_action_has_the_default_values()
    {
        const auto [type, values] = row<int, QStringList>();
        const ACTION action = make(type);

        QStringList found;
        for (const GFPDB_ACT_PROPERTY property : action->get_property_enum_list()) {
            found += QString::fromStdString(action->get_property_value(property));
            QCOMPARE(action->get_property_default(property), action->get_property_value(property));
        }

        QCOMPARE(found, values);
        QCOMPARE(action->get_property_default(property_id(40)), std::string());
    }

    void default_values_pass_their_own_check()
    {
        for (int type = 0; type < GFPDB_ACT_TYPE_COUNT; ++type) {
            const ACTION action = make(type);
            for (const GFPDB_ACT_PROPERTY property : action->get_property_enum_list())
                QCOMPARE(error_of(*action, property, action->get_property_value(property)), std::string());
        }
    }

    void choices_are_offered_for_closed_lists_data()
    {
        const QStringList two_phases = {"1-1", "1-2", "1-4", "2-2", "4-4"};
        const QStringList three_phases = {"1-1-1", "1-1-2", "1-2-2", "1-1-4", "1-4-4", "2-2-2", "4-4-4"};
        const QMap<int, QStringList> choices = {{GFPDB_WR_BUS_WIDTH, two_phases},
                                                {GFPDB_RR_BUS_WIDTH, two_phases},
                                                {GFPDB_WD_ADDRESSING_MODE, {"3", "4"}},
                                                {GFPDB_WD_BUS_WIDTH, three_phases},
                                                {GFPDB_RD_ADDRESSING_MODE, {"3", "4"}},
                                                {GFPDB_RD_BUS_WIDTH, three_phases},
                                                {GFPDB_ER_ADDRESSING_MODE, {"0", "3", "4"}},
                                                {GFPDB_ER_BUS_WIDTH, two_phases},
                                                {GFPDB_CUSTOM_LOOP_UNIT, {"page", "sector", "die"}},
                                                {GFPDB_CUSTOM_LOOP_MARKER, {"start", "end"}}};
        QTest::addColumn<QStringList>("choices");
        for (int property = -1; property <= 40; ++property)
            QTest::newRow(QByteArray::number(property).constData()) << choices.value(property);
    }

    void choices_are_offered_for_closed_lists()
    {
        QFETCH(QStringList, choices);
        const int property = QByteArray(QTest::currentDataTag()).toInt();
        std::vector<std::string> expected;
        for (const QString& choice : choices)
            expected.push_back(choice.toStdString());

        QCOMPARE(make(GFPDB_ACT_CUSTOM)->get_property_choices(property_id(property)), expected);
        QCOMPARE(make_with(property)->get_property_choices(property_id(property)), expected);
    }

    void only_a_custom_action_answers_for_foreign_properties()
    {
        const ACTION read = make(GFPDB_ACT_READ_REGISTER);

        QVERIFY(read->get_property_choices(GFPDB_WR_BUS_WIDTH).empty());
        QCOMPARE(error_of(*read, GFPDB_WR_COMMAND, "0x06"),
                 std::string("This action has no property with the number 1."));
        QCOMPARE(read->get_property_value(GFPDB_WR_COMMAND), std::string());
        QCOMPARE(read->get_property_default(GFPDB_WR_COMMAND), std::string());
        QVERIFY(!read->is_property_enabled(GFPDB_WR_COMMAND));
        QCOMPARE(error_of(*make(GFPDB_ACT_CUSTOM), GFPDB_WR_COMMAND, "0x06"), std::string());
    }

    void a_value_is_stored_as_it_is()
    {
        const ACTION action = make(GFPDB_ACT_WRITE_REGISTER);
        const std::string odd = std::string("no\0 byte\n<b>", 12) + std::string(100000, 'x');

        action->set_property_value(GFPDB_WR_COMMAND, odd);
        action->set_property_value(GFPDB_RR_COMMAND, "0x9F");

        QCOMPARE(action->get_property_value(GFPDB_WR_COMMAND), odd);
        QCOMPARE(action->get_property_value(GFPDB_RR_COMMAND), std::string());
        QCOMPARE(action->get_property_value(GFPDB_WR_NAME), std::string("Write Register"));
        QCOMPARE(action->get_property_value(GFPDB_WR_DATA), std::string("none"));
    }

    void allowed_values_pass_data()
    {
        QTest::addColumn<int>("property");
        QTest::addColumn<QByteArray>("value");
        const auto add = [](std::initializer_list<int> properties, std::initializer_list<const char*> values) {
            for (const int property : properties) {
                for (const char* value : values)
                    QTest::addRow("%d %s", property, value) << property << QByteArray(value);
            }
        };
        add(NAMES, {"x", "Write Enable", "Quad-Enable (unverified)", "\xC3\xBC\xF0\x9F\x98\x80", "<b>",
                    "0123456789012345678901234567890123456789012345678901234567890123"});
        add(BYTES, {"0x00", "0x9f", "0xFF"});
        add({GFPDB_WR_DATA}, {"none", "die", "0x40", "0x00 0x02"});
        add({GFPDB_RR_EXPECTED_DATA}, {"none", "id", "0xC2 0x20 0x19"});
        add({GFPDB_RR_EXPECTED_DATA_MASK}, {"0xFF 0xFF 0xFF"});
        add({GFPDB_WD_DATA}, {"image", "0x12 0x34"});
        add({GFPDB_WD_ADDRESS, GFPDB_RD_ADDRESS, GFPDB_ER_ADDRESS}, {"loop", "die", "0x00FF0000"});
        add({GFPDB_ER_ADDRESS}, {"none"});
        add({GFPDB_RD_EXPECTED_DATA}, {"image", "none", "0xFF"});
        add({GFPDB_RD_DATA_LENGTH, GFPDB_ER_ERASE_SIZE}, {"device", "die", "1", "65536", "4294967296"});
        add({GFPDB_WD_PAGE_SIZE}, {"1", "2", "256", "512", "4096"});
    }

    void allowed_values_pass()
    {
        QFETCH(int, property);
        QFETCH(QByteArray, value);
        QCOMPARE(error_of(*make(GFPDB_ACT_CUSTOM), property, value.toStdString()), std::string());
    }

    void other_values_are_refused_with_a_text_data()
    {
        QTest::addColumn<int>("property");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QByteArray>("allowed");
        const auto add = [](std::initializer_list<int> properties, std::initializer_list<QByteArray> values,
                            const QByteArray& allowed) {
            for (const int property : properties) {
                for (const QByteArray& value : values)
                    QTest::addRow("%d %s", property, value.left(30).constData()) << property << value << allowed;
            }
        };
        add(NAMES, {"", " ", "two\nlines", "\x7F", "\xFF", QByteArray(65, 'x')},
            "text of 1 to 64 characters on one line.");
        add(BYTES, {"", "9F", "0x9", "0x9FF", "none", "0x9F 0x9F"}, BYTE_ALLOWED);
        add({GFPDB_WR_DATA}, {"", "image", "id", "0x4", "0x40,0x02", "NONE", QByteArray::fromStdString(bytes_of(257))},
            "none, die, or " + BYTES_ALLOWED);
        add({GFPDB_RR_EXPECTED_DATA}, {"", "die", "image", "40", QByteArray::fromStdString(bytes_of(257))},
            "none, id, or " + BYTES_ALLOWED);
        add({GFPDB_RR_EXPECTED_DATA_MASK}, {"", "none", "id", "FF"}, BYTES_ALLOWED);
        add({GFPDB_WD_DATA}, {"", "none", "die", QByteArray::fromStdString(bytes_of(4097))},
            "image, or 1 to 4096 bytes in hexadecimal separated by single spaces, such as 0x00 0x02.");
        add({GFPDB_WD_ADDRESS, GFPDB_RD_ADDRESS}, {"", "none", "0x0", "0", "image", "Loop"},
            "loop, die, or " + ADDRESS_ALLOWED);
        add({GFPDB_ER_ADDRESS}, {"", "0x0", "0", "image"}, "loop, die, none, or " + ADDRESS_ALLOWED);
        add({GFPDB_RD_EXPECTED_DATA}, {"", "loop", "id", "0xFF 0xFF"}, "image, none, or " + BYTE_ALLOWED);
        add({GFPDB_RD_DATA_LENGTH, GFPDB_ER_ERASE_SIZE}, {"", "0", "4294967297", "0x100", "64K", "image"},
            "device, die, or a whole number from 1 to 4294967296.");
        add({GFPDB_WD_PAGE_SIZE}, {"", "0", "3", "255", "8192", "0x100"}, "a power of two from 1 to 4096.");
        add({GFPDB_WR_BUS_WIDTH, GFPDB_RR_BUS_WIDTH, GFPDB_ER_BUS_WIDTH}, {"", "1", "1-1-1", "1-8", "4-1"},
            "1-1, 1-2, 1-4, 2-2, 4-4.");
        add({GFPDB_WD_BUS_WIDTH, GFPDB_RD_BUS_WIDTH}, {"", "1-1", "1-4-1", "4-1-1"},
            "1-1-1, 1-1-2, 1-2-2, 1-1-4, 1-4-4, 2-2-2, 4-4-4.");
        add({GFPDB_WD_ADDRESSING_MODE, GFPDB_RD_ADDRESSING_MODE}, {"", "0", "2", "5"}, "3, 4.");
        add({GFPDB_ER_ADDRESSING_MODE}, {"", "1", "5"}, "0, 3, 4.");
        add({GFPDB_CUSTOM_LOOP_UNIT}, {"", "Page", "chip"}, "page, sector, die.");
        add({GFPDB_CUSTOM_LOOP_MARKER}, {"", "Start", "begin"}, "start, end.");
    }

    void other_values_are_refused_with_a_text()
    {
        QFETCH(int, property);
        QFETCH(QByteArray, value);
        QFETCH(QByteArray, allowed);

        const std::string error = error_of(*make(GFPDB_ACT_CUSTOM), property, value.toStdString());

        QVERIFY2(QByteArray::fromStdString(error).endsWith(". Allowed: " + allowed), error.c_str());
        QCOMPARE(error_of(*make_with(property), property, value.toStdString()), error);
    }

    void numbers_keep_to_their_range_data()
    {
        constexpr int LONGEST_DELAY = 600000000;
        rows<int, int, int>({{"Write Register: delay", GFPDB_WR_DELAY, 0, LONGEST_DELAY},
                             {"Read Register: delay", GFPDB_RR_DELAY, 0, LONGEST_DELAY},
                             {"Write Data: delay", GFPDB_WD_DELAY, 0, LONGEST_DELAY},
                             {"Read Data: delay", GFPDB_RD_DELAY, 0, LONGEST_DELAY},
                             {"Erase: delay", GFPDB_ER_DELAY, 0, LONGEST_DELAY},
                             {"data length", GFPDB_RR_DATA_LENGTH, 1, 256},
                             {"attempt count", GFPDB_RR_ATTEMPT_COUNT, 1, 1000000},
                             {"dummy clocks", GFPDB_RD_DUMMY_CLOCK, 0, 31}});
    }

    void numbers_keep_to_their_range()
    {
        const auto [property, lowest, highest] = row<int, int, int>();
        const ACTION checker = make(GFPDB_ACT_CUSTOM);

        QCOMPARE(error_of(*checker, property, std::to_string(lowest)), std::string());
        QCOMPARE(error_of(*checker, property, std::to_string(highest)), std::string());

        const std::string allowed =
            "Allowed: a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest) + ".";
        for (const std::string& wrong : {std::to_string(lowest - 1), std::to_string(highest + 1), std::string("0x10"),
                                         std::string(), std::string("1.5"), std::string("007")}) {
            const std::string error = error_of(*checker, property, wrong);
            QVERIFY2(QByteArray::fromStdString(error).endsWith(allowed.c_str()), error.c_str());
        }
    }

    void hostile_values_are_refused_data()
    {
        rows<QByteArray>({{"long", QByteArray(100000, 'x')},
                          {"long digits", QByteArray(100000, '1')},
                          {"no UTF-8", "\xFF\xFE\x80"},
                          {"zero byte", QByteArray("0x9F\0", 5)},
                          {"right to left", QByteArray("\xE2\x80\xAE"
                                                       "F9x0")},
                          {"line break", "0x9F\n"}});
    }

    void hostile_values_are_refused()
    {
        const QByteArray value = row<QByteArray>();
        for (int property = 0; property < GFPDB_ACT_PROPERTY_COUNT; ++property) {
            const std::string error = error_of(*make(GFPDB_ACT_CUSTOM), property, value.toStdString());
            QVERIFY2(!error.empty(), QByteArray::number(property).constData());
            QVERIFY2(error.size() < 500, error.c_str());
            QVERIFY2(error.find('\n') == std::string::npos, error.c_str());
        }
    }

    void the_error_says_which_value_of_which_property_is_wrong()
    {
        const ACTION checker = make(GFPDB_ACT_CUSTOM);

        QCOMPARE(
            error_of(*checker, GFPDB_RD_DUMMY_CLOCK, "many"),
            std::string("\"many\" is not allowed for \"Dummy clock cycle\". Allowed: a whole number from 0 to 31."));
        QCOMPARE(error_of(*checker, GFPDB_WR_COMMAND, ""),
                 std::string("An empty value is not allowed for \"Command\". Allowed: ") + BYTE_ALLOWED.toStdString());
        QCOMPARE(error_of(*checker, GFPDB_CUSTOM_LOOP_UNIT, "bit"),
                 std::string("\"bit\" is not allowed for \"Loop over each\". Allowed: page, sector, die."));
        QCOMPARE(error_of(*checker, GFPDB_CUSTOM_LOOP_MARKER, "stop"),
                 std::string("\"stop\" is not allowed for \"Loop marker\". Allowed: start, end."));
    }

    void a_number_that_is_not_a_property_is_refused()
    {
        for (const int property : {-1, 40}) {
            QCOMPARE(error_of(*make(GFPDB_ACT_CUSTOM), property, "x"),
                     "There is no action property with the number " + std::to_string(property) + ". Allowed: 0 to 39.");
            QCOMPARE(gfpdb_property_default(property), std::string());
        }
    }

    void register_data_has_as_many_bytes_as_are_read()
    {
        const ACTION read = make(GFPDB_ACT_READ_REGISTER);
        read->set_property_value(GFPDB_RR_DATA_LENGTH, "3");
        for (const int property : {GFPDB_RR_EXPECTED_DATA, GFPDB_RR_EXPECTED_DATA_MASK}) {
            QCOMPARE(error_of(*read, property, "0xC2 0x20 0x19"), std::string());
            for (const char* wrong : {"0xC2 0x20", "0xC2 0x20 0x19 0x00"})
                QVERIFY(QByteArray::fromStdString(error_of(*read, property, wrong))
                            .endsWith("Allowed: 3 bytes, as many as the data length says."));
        }
        QCOMPARE(error_of(*read, GFPDB_RR_EXPECTED_DATA, "id"), std::string());
        QCOMPARE(error_of(*read, GFPDB_RR_EXPECTED_DATA, "none"), std::string());

        read->set_property_value(GFPDB_RR_DATA_LENGTH, "1");
        QVERIFY(QByteArray::fromStdString(error_of(*read, GFPDB_RR_EXPECTED_DATA, "0x00 0x00"))
                    .endsWith("Allowed: 1 byte, as many as the data length says."));

        read->set_property_value(GFPDB_RR_EXPECTED_DATA, "none");
        QCOMPARE(error_of(*read, GFPDB_RR_EXPECTED_DATA_MASK, "0xFF 0xFF"), std::string());

        read->set_property_value(GFPDB_RR_EXPECTED_DATA, "0x00");
        read->set_property_value(GFPDB_RR_DATA_LENGTH, "nonsense");
        QCOMPARE(error_of(*read, GFPDB_RR_EXPECTED_DATA_MASK, "0xFF 0xFF"), std::string());
    }

    void page_data_fits_a_page()
    {
        const ACTION write = make(GFPDB_ACT_WRITE_DATA);
        QCOMPARE(error_of(*write, GFPDB_WD_DATA, bytes_of(256)), std::string());
        QVERIFY(QByteArray::fromStdString(error_of(*write, GFPDB_WD_DATA, bytes_of(257)))
                    .endsWith("Allowed: image, or at most 256 bytes, which is one page."));

        write->set_property_value(GFPDB_WD_PAGE_SIZE, "512");
        QCOMPARE(error_of(*write, GFPDB_WD_DATA, bytes_of(512)), std::string());
        QCOMPARE(error_of(*write, GFPDB_WD_DATA, "image"), std::string());
    }

    void a_three_byte_address_has_three_bytes()
    {
        const int pairs[][2] = {{GFPDB_WD_ADDRESS, GFPDB_WD_ADDRESSING_MODE},
                                {GFPDB_RD_ADDRESS, GFPDB_RD_ADDRESSING_MODE},
                                {GFPDB_ER_ADDRESS, GFPDB_ER_ADDRESSING_MODE}};
        for (const auto& pair : pairs) {
            const ACTION action = make_with(pair[0]);
            QCOMPARE(error_of(*action, pair[0], "0x00FFFFFF"), std::string());
            QVERIFY(QByteArray::fromStdString(error_of(*action, pair[0], "0x01000000"))
                        .endsWith("Allowed: at most 0x00FFFFFF, because the addressing mode is 3."));

            action->set_property_value(property_id(pair[1]), "4");
            QCOMPARE(error_of(*action, pair[0], "0x01000000"), std::string());
        }
    }

    void an_erase_without_address_bytes_ignores_its_address()
    {
        const ACTION erase = make(GFPDB_ACT_ERASE);
        QVERIFY(QByteArray::fromStdString(error_of(*erase, GFPDB_ER_ADDRESS, "none"))
                    .endsWith(
                        "Allowed: loop, die, or an address such as 0x00010000, because the addressing mode is not 0."));

        erase->set_property_value(GFPDB_ER_ADDRESSING_MODE, "0");
        QCOMPARE(error_of(*erase, GFPDB_ER_ADDRESS, "none"), std::string());
        QCOMPARE(error_of(*erase, GFPDB_ER_ADDRESS, "loop"), std::string());
        QVERIFY(!erase->is_property_enabled(GFPDB_ER_ADDRESS));
    }

    void values_without_effect_are_disabled()
    {
        const ACTION read = make(GFPDB_ACT_READ_REGISTER);
        QVERIFY(!read->is_property_enabled(GFPDB_RR_DELAY));
        QVERIFY(read->is_property_enabled(GFPDB_RR_ATTEMPT_COUNT));
        QVERIFY(read->is_property_enabled(GFPDB_RR_EXPECTED_DATA_MASK));

        read->set_property_value(GFPDB_RR_ATTEMPT_COUNT, "2");
        QVERIFY(read->is_property_enabled(GFPDB_RR_DELAY));

        read->set_property_value(GFPDB_RR_EXPECTED_DATA, "none");
        QVERIFY(!read->is_property_enabled(GFPDB_RR_DELAY));
        QVERIFY(!read->is_property_enabled(GFPDB_RR_ATTEMPT_COUNT));
        QVERIFY(!read->is_property_enabled(GFPDB_RR_EXPECTED_DATA_MASK));

        const ACTION data = make(GFPDB_ACT_READ_DATA);
        QVERIFY(data->is_property_enabled(GFPDB_RD_EXPECTED_DATA_MASK));
        data->set_property_value(GFPDB_RD_EXPECTED_DATA, "none");
        QVERIFY(!data->is_property_enabled(GFPDB_RD_EXPECTED_DATA_MASK));
    }

    void everything_else_is_enabled()
    {
        for (int property = 0; property < GFPDB_ACT_PROPERTY_COUNT; ++property) {
            if (property != GFPDB_RR_DELAY)
                QVERIFY2(make_with(property)->is_property_enabled(property_id(property)),
                         QByteArray::number(property).constData());
        }
        const ACTION write = make(GFPDB_ACT_WRITE_REGISTER);
        QVERIFY(!write->is_property_enabled(GFPDB_RR_EXPECTED_DATA_MASK));
        QVERIFY(!write->is_property_enabled(GFPDB_RR_ATTEMPT_COUNT));
        QVERIFY(!write->is_property_enabled(GFPDB_RR_DELAY));
        QVERIFY(!write->is_property_enabled(GFPDB_RD_EXPECTED_DATA_MASK));
        QVERIFY(!write->is_property_enabled(GFPDB_ER_ADDRESS));
        QVERIFY(!write->is_property_enabled(property_id(40)));
    }

    void an_operation_owns_its_actions_in_order()
    {
        for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
            const std::unique_ptr<GFPDB_OPERATION> operation(gfpdb_make_operation(kind));
            QCOMPARE(operation->m_kind, kind);
            QCOMPARE(operation->get_action_count(), 0);

            GFPDB_ACTION* first = make(GFPDB_ACT_ERASE).release();
            GFPDB_ACTION* second = make(GFPDB_ACT_CUSTOM).release();
            operation->add_action(first);
            operation->add_action(nullptr);
            operation->add_action(second);

            QCOMPARE(*operation->get_actions(), (std::vector<GFPDB_ACTION*>{first, second}));
            QCOMPARE(operation->get_action_count(), 2);
        }
        QVERIFY(!gfpdb_make_operation(-1));
        QVERIFY(!gfpdb_make_operation(5));
    }
};

QTEST_APPLESS_MAIN(TEST_FLOW_ACTIONS)

#include "test_flow_actions.moc"
