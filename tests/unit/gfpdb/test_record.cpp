// SPDX-License-Identifier: MIT

// The record in memory: its properties, its operations and who owns them.
#include "gfpdb_test.h"
#include "model/gfpdb_action_model.h"
#include "model/gfpdb_embedded_flash.h"
#include "model/gfpdb_operation.h"
#include "test_rows.h"

#include <malloc.h>

namespace {

// An operation that counts those that are alive.
class COUNTED_OPERATION : public GFPDB_OPERATION
{
public:
    explicit COUNTED_OPERATION(int kind) : GFPDB_OPERATION(kind) { ++alive; }
    ~COUNTED_OPERATION() override { --alive; }
    const std::vector<GFPDB_ACTION*>* get_actions() const override { return nullptr; }
    int get_action_count() const override { return 0; }
    void add_action(GFPDB_ACTION*) override {}

    static int alive;
};

int COUNTED_OPERATION::alive = 0;

} // namespace

class TEST_RECORD : public QObject
{
    Q_OBJECT

private slots:
    void a_new_record_has_its_name_and_nothing_else()
    {
        const GFPDB_EMBEDDED_FLASH record("A");

        QCOMPARE(text_of(record), std::string("0=A\n1=\n2=\n3=\n4=\n5=\n6=\n7=\n8=\nsingle none\nquad none\n"));
        QCOMPARE(record.get_int_property(GFPDB_FLASH_TOTAL_DIE, 7), 7);
        QCOMPARE(record.get_device_family(), 0);
        QCOMPARE(record.get_config_scheme(), -1);
        QCOMPARE(record.get_db_dir(), std::string());
        QCOMPARE(record.get_revision(), std::string());
        QVERIFY(!record.is_user_defined());
        QVERIFY(!record.is_template());
        QVERIFY(record.is_unchanged());
    }

    void texts_are_kept_as_they_are_data()
    {
        QTest::addColumn<int>("property");
        for (const int property : {GFPDB_FLASH_NAME, GFPDB_FLASH_DEVICE_ID, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY,
                                   GFPDB_FLASH_TEMPLATE_NAME, GFPDB_FLASH_FLOW_TEMPLATE})
            QTest::addRow("property %d", property) << property;
    }

    void texts_are_kept_as_they_are()
    {
        QFETCH(int, property);
        const auto id = static_cast<GFPDB_FLASH_PROPERTY>(property);
        const std::string value = std::string(" '\n\0\xFF<b>", 8);
        GFPDB_EMBEDDED_FLASH record("A");
        const std::string before = text_of(record);

        record.set_string_property(id, value);
        QCOMPARE(record.get_string_property(id), value);
        QCOMPARE(record.get_int_property(id, 7), 7);
        QVERIFY(!record.is_unchanged());
        record.set_string_property(id, id == GFPDB_FLASH_NAME ? "A" : "");
        QCOMPARE(text_of(record), before);
    }

    void numbers_are_kept_and_shown_in_decimal_data()
    {
        QTest::addColumn<int>("property");
        for (const int property :
             {GFPDB_FLASH_TOTAL_DIE, GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK})
            QTest::addRow("property %d", property) << property;
    }

    void numbers_are_kept_and_shown_in_decimal()
    {
        QFETCH(int, property);
        const auto id = static_cast<GFPDB_FLASH_PROPERTY>(property);
        GFPDB_EMBEDDED_FLASH record("A");

        record.set_int_property(id, -12);
        QCOMPARE(record.get_int_property(id, 7), -12);
        QCOMPARE(record.get_string_property(id), std::string("-12"));
        QVERIFY(!record.is_unchanged());
        for (int other = 0; other <= 8; ++other) {
            if (other != property)
                QCOMPARE(record.get_int_property(static_cast<GFPDB_FLASH_PROPERTY>(other), 7), 7);
        }
    }

    void a_property_of_the_other_kind_is_ignored()
    {
        GFPDB_EMBEDDED_FLASH record("A");
        const std::string before = text_of(record);

        for (const int property : {-1, 0, 1, 2, 3, 7, 8, 9})
            record.set_int_property(static_cast<GFPDB_FLASH_PROPERTY>(property), 5);
        for (const int property : {-1, 4, 5, 6, 9})
            record.set_string_property(static_cast<GFPDB_FLASH_PROPERTY>(property), "5");
        QCOMPARE(text_of(record), before);
        QCOMPARE(record.get_string_property(static_cast<GFPDB_FLASH_PROPERTY>(9)), std::string());
        QVERIFY(record.is_unchanged());
    }

    void name_and_density_have_setters_of_their_own()
    {
        GFPDB_EMBEDDED_FLASH record("A");

        record.set_name("B");
        record.set_density("8Mb");
        QCOMPARE(record.get_name(), std::string("B"));
        QCOMPARE(record.get_string_property(GFPDB_FLASH_NAME), std::string("B"));
        QCOMPARE(record.get_density(), std::string("8Mb"));
        QCOMPARE(record.get_string_property(GFPDB_FLASH_DENSITY), std::string("8Mb"));
    }

    void flags_and_directory_are_kept()
    {
        GFPDB_EMBEDDED_FLASH record("A");

        record.set_user_defined(true);
        QVERIFY(record.is_user_defined());
        record.set_user_defined(false);
        QVERIFY(!record.is_user_defined());
        record.set_db_dir("/a/");
        QCOMPARE(record.get_db_dir(), std::string("/a/"));
    }

    void operations_come_in_the_order_in_which_they_were_set()
    {
        GFPDB_EMBEDDED_FLASH record("A");
        std::vector<GFPDB_OPERATION*> expected;
        for (const int kind : {3, 0, 4, 1, 2}) {
            expected.push_back(gfpdb_make_operation(kind));
            record.set_operation(expected.back(), QUAD_IO);
        }

        QVERIFY(record.get_operations(QUAD_IO) != nullptr);
        QCOMPARE(*record.get_operations(QUAD_IO), expected);
        QCOMPARE(record.find_operation(4, QUAD_IO), expected[2]);
        QVERIFY(record.find_operation(5, QUAD_IO) == nullptr);
    }

    void the_variants_are_two_sets()
    {
        GFPDB_EMBEDDED_FLASH record("A");
        GFPDB_OPERATION* single = gfpdb_make_operation(1);
        GFPDB_OPERATION* quad = gfpdb_make_operation(1);
        record.set_operation(single, SINGLE_IO);
        QVERIFY(record.get_operations(QUAD_IO) == nullptr);
        QVERIFY(record.find_operation(1, QUAD_IO) == nullptr);

        record.set_operation(quad, QUAD_IO);
        QCOMPARE(record.find_operation(1, SINGLE_IO), single);
        QCOMPARE(record.find_operation(1, QUAD_IO), quad);
    }

    void an_operation_of_the_same_kind_is_replaced_and_deleted()
    {
        GFPDB_EMBEDDED_FLASH record("A");
        auto* first = new COUNTED_OPERATION(1);
        auto* other = new COUNTED_OPERATION(2);
        auto* second = new COUNTED_OPERATION(1);
        record.set_operation(first, SINGLE_IO);
        record.set_operation(other, SINGLE_IO);
        QVERIFY(!record.is_unchanged());

        record.set_operation(second, SINGLE_IO);
        QCOMPARE(COUNTED_OPERATION::alive, 2);
        QCOMPARE(*record.get_operations(SINGLE_IO), (std::vector<GFPDB_OPERATION*>{second, other}));
        record.set_operation(second, SINGLE_IO);
        QCOMPARE(COUNTED_OPERATION::alive, 2);
        record.set_operation(nullptr, SINGLE_IO);
        QCOMPARE(record.get_operations(SINGLE_IO)->size(), std::size_t(2));
    }

    void clearing_deletes_both_variants()
    {
        GFPDB_EMBEDDED_FLASH record("A");
        record.set_operation(new COUNTED_OPERATION(1), SINGLE_IO);
        record.set_operation(new COUNTED_OPERATION(1), QUAD_IO);

        record.clear_operations();
        QCOMPARE(COUNTED_OPERATION::alive, 0);
        QVERIFY(record.get_operations(SINGLE_IO) == nullptr);
        QVERIFY(record.get_operations(QUAD_IO) == nullptr);
    }

    void a_record_deletes_its_operations()
    {
        auto record = std::make_unique<GFPDB_EMBEDDED_FLASH>("A");
        record->set_operation(new COUNTED_OPERATION(1), SINGLE_IO);
        record->set_operation(new COUNTED_OPERATION(1), QUAD_IO);

        record.reset();
        QCOMPARE(COUNTED_OPERATION::alive, 0);
    }

    // Each save keeps a record. AddressSanitizer counts nothing here.
    void a_record_keeps_no_text_of_its_flows()
    {
        constexpr std::size_t LENGTH = 1000000;
        const auto in_use = [] { return ::mallinfo2().uordblks + ::mallinfo2().hblkhd; };
        GFPDB_ROW row = make_row("A");
        row.single_flows = row.quad_flows = std::string(LENGTH, 'x');
        GFPDB_EMBEDDED_FLASH record("A");
        const std::size_t before = in_use();

        record.set_stored(row);

        QVERIFY(in_use() < before + LENGTH);
    }

    void an_operation_without_actions_is_stored()
    {
        GFPDB_EMBEDDED_FLASH record("A");
        record.set_operation(new COUNTED_OPERATION(3), QUAD_IO);

        const std::optional<GFPDB_ROW> row = record.to_row(FAMILY, QUAD);
        QVERIFY(row.has_value());
        QCOMPARE(row->quad_flows, std::string(R"([{"operation":"verify","actions":[]}])"));
        QCOMPARE(row->single_flows, std::string());
        QCOMPARE(row->family, FAMILY);
        QCOMPARE(row->scheme, QUAD);
        const auto read = GFPDB_EMBEDDED_FLASH::from_row(*row, "/a/", true);
        QVERIFY(read != nullptr);
        QCOMPARE(read->find_operation(3, QUAD_IO)->get_action_count(), 0);
        QVERIFY(read->get_operations(SINGLE_IO) == nullptr);
        QVERIFY(read->is_unchanged());
        QVERIFY(read->is_template());
        QVERIFY(read->is_user_defined());
        QCOMPARE(read->get_db_dir(), std::string("/a/"));
    }

    void flows_are_stored_as_documented()
    {
        GFPDB_EMBEDDED_FLASH record("A");
        GFPDB_OPERATION* operation = gfpdb_make_operation(1);
        operation->add_action(gfpdb_make_action(GFPDB_ACT_WRITE_REGISTER));
        for (int property = GFPDB_WR_NAME; property <= GFPDB_WR_BUS_WIDTH; ++property)
            operation->get_actions()->front()->set_property_value(static_cast<GFPDB_ACT_PROPERTY>(property),
                                                                  "value " + std::to_string(property));
        record.set_operation(operation, SINGLE_IO);
        record.set_operation(gfpdb_make_operation(4), SINGLE_IO);

        QCOMPARE(record.to_row(FAMILY, ACTIVE_SERIAL)->single_flows,
                 std::string(R"([{"operation":"program","actions":[{"action":"write_register","name":"value 0",)"
                             R"("command":"value 1","data":"value 2","delay_us":"value 3","bus_width":"value 4"}]},)"
                             R"({"operation":"termination","actions":[]}])"));
    }

    void values_of_actions_are_stored_byte_for_byte_data()
    {
        rows<QByteArray>({{"empty", ""},
                          {"byte order mark", QByteArrayLiteral("\xEF\xBB\xBF")},
                          {"byte order mark first", QByteArrayLiteral("\xEF\xBB\xBF"
                                                                      "a")},
                          {"byte order mark behind a back slash", QByteArrayLiteral("\\\xEF\xBB\xBF\xC3\xA4")},
                          {"escape", QByteArrayLiteral("\\ufeff\\n\"")},
                          {"zero", QByteArray("a\0b", 3)},
                          {"no characters", QByteArrayLiteral("\xEF\xBF\xBE\xEF\xBF\xBF")},
                          {"emoji and umlaut", QByteArrayLiteral("\xF0\x9F\x92\xBE\xC3\xA4")},
                          {"lines", QByteArrayLiteral("\r\n\t\x7F")},
                          {"a number", QByteArrayLiteral("007")}});
    }

    void values_of_actions_are_stored_byte_for_byte()
    {
        const QByteArray value = row<QByteArray>();
        GFPDB_EMBEDDED_FLASH record("A");
        GFPDB_OPERATION* operation = gfpdb_make_operation(1);
        operation->add_action(gfpdb_make_action(GFPDB_ACT_CUSTOM));
        operation->add_action(gfpdb_make_action(GFPDB_ACT_WRITE_REGISTER));
        operation->get_actions()->back()->set_property_value(GFPDB_WR_DATA, value.toStdString());
        record.set_operation(operation, SINGLE_IO);

        const auto read = GFPDB_EMBEDDED_FLASH::from_row(record.to_row(FAMILY, ACTIVE_SERIAL).value(), "/a/", false);
        QVERIFY(read != nullptr);
        QCOMPARE(text_of(*read), text_of(record));
        QCOMPARE(read->find_operation(1, SINGLE_IO)->get_actions()->back()->get_property_value(GFPDB_WR_DATA),
                 value.toStdString());
    }
};

QTEST_GUILESS_MAIN(TEST_RECORD)

#include "test_record.moc"
