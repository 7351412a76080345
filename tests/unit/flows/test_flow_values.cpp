// SPDX-License-Identifier: MIT

// How the values of actions are written.
#include "gfpdb/gfpdb_action_value.h"

#include <rapidcheck.h>

#include <QTest>

#include <string>

namespace {

constexpr int NO_VALUE = -1;

void add(const char* text, qint64 value)
{
    QTest::newRow(*text ? text : "(empty)") << QByteArray(text) << value;
}

void value_columns()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("value");
}

std::string fetched_text()
{
    QFETCH(QByteArray, text);
    return text.toStdString();
}

qint64 fetched_value()
{
    QFETCH(qint64, value);
    return value;
}

} // namespace

class TEST_FLOW_VALUES : public QObject
{
    Q_OBJECT

private slots:
    void a_byte_is_0x_and_two_hexadecimal_digits_data()
    {
        value_columns();
        add("0x00", 0);
        add("0x9F", 0x9F);
        add("0xaf", 0xAF);
        add("0xFF", 0xFF);
        for (const char* wrong :
             {"", "9F", "0x9", "0x09F", "0X9F", "0xG0", "0x0G", " 0x9F", "0x9F ", "0x", "159", "0x-1"})
            add(wrong, NO_VALUE);
    }

    void a_byte_is_0x_and_two_hexadecimal_digits()
    {
        QCOMPARE(qint64(gfpdb_parse_byte(fetched_text()).value_or(NO_VALUE)), fetched_value());
    }

    void bytes_are_separated_by_one_blank_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QVector<int>>("bytes");
        QTest::newRow("one") << QByteArray("0x40") << QVector<int>{0x40};
        QTest::newRow("three") << QByteArray("0xC2 0x20 0x19") << QVector<int>{0xC2, 0x20, 0x19};
        for (const char* wrong :
             {"", " ", "0x40 ", " 0x40", "0x40  0x02", "0x40,0x02", "0x4002", "0x40\t0x02", "40 02"})
            QTest::newRow(wrong) << QByteArray(wrong) << QVector<int>();
    }

    void bytes_are_separated_by_one_blank()
    {
        QFETCH(QVector<int>, bytes);

        const std::optional<std::vector<int>> parsed = gfpdb_parse_bytes(fetched_text());

        QCOMPARE(parsed.has_value(), !bytes.isEmpty());
        QCOMPARE(parsed.value_or(std::vector<int>()), std::vector<int>(bytes.begin(), bytes.end()));
    }

    void an_address_is_0x_and_eight_hexadecimal_digits_data()
    {
        value_columns();
        add("0x00000000", 0);
        add("0x00FF00a0", 0xFF00A0);
        add("0xFFFFFFFF", 0xFFFFFFFF);
        for (const char* wrong : {"", "0x0", "0x000000000", "00000000", "0x0000000g", "loop"})
            add(wrong, NO_VALUE);
    }

    void an_address_is_0x_and_eight_hexadecimal_digits()
    {
        const std::optional<std::uint32_t> address = gfpdb_parse_address(fetched_text());
        QCOMPARE(address ? qint64(*address) : qint64(NO_VALUE), fetched_value());
    }

    void a_decimal_number_has_no_sign_and_no_leading_zero_data()
    {
        value_columns();
        add("0", 0);
        add("9", 9);
        add("4294967296", 4294967296);
        add("999999999999999999", 999999999999999999);
        for (const char* wrong :
             {"", "-1", "+1", "01", "00", "1.0", "1 ", " 1", "0x10", "1000000000000000000", "1a", "/", ":"})
            add(wrong, NO_VALUE);
    }

    void a_decimal_number_has_no_sign_and_no_leading_zero()
    {
        QCOMPARE(qint64(gfpdb_parse_decimal(fetched_text()).value_or(NO_VALUE)), fetched_value());
    }

    void a_bus_width_has_one_number_for_each_phase_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QVector<int>>("widths");
        QTest::newRow("one") << QByteArray("1") << QVector<int>{1};
        QTest::newRow("two") << QByteArray("1-2") << QVector<int>{1, 2};
        QTest::newRow("three") << QByteArray("1-4-8") << QVector<int>{1, 4, 8};
        for (const char* wrong : {"", "1-", "-1", "1--4", "1-3", "1 4", "1-44", "0-1"})
            QTest::newRow(wrong) << QByteArray(wrong) << QVector<int>();
    }

    void a_bus_width_has_one_number_for_each_phase()
    {
        QFETCH(QVector<int>, widths);
        QCOMPARE(gfpdb_parse_bus_width(fetched_text()).value_or(GFPDB_BUS_WIDTH()),
                 GFPDB_BUS_WIDTH(widths.begin(), widths.end()));
    }

    void numbers_are_written_with_capital_digits()
    {
        QCOMPARE(gfpdb_byte_text(0x9F), std::string("0x9F"));
        QCOMPARE(gfpdb_byte_text(5), std::string("0x05"));
        QCOMPARE(gfpdb_bytes_text({0, 0xAB}), std::string("0x00 0xAB"));
        QCOMPARE(gfpdb_bytes_text({}), std::string());
        QCOMPARE(gfpdb_address_text(0xABCDEF), std::string("0x00ABCDEF"));
        QCOMPARE(gfpdb_decimal_text(4294967296), std::string("4294967296"));
    }

    void what_is_written_is_read_again()
    {
        const auto byte = rc::gen::inRange(0, 256);
        QVERIFY(rc::check("bytes", [&byte] {
            const auto bytes = *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(byte));
            RC_ASSERT(gfpdb_parse_bytes(gfpdb_bytes_text(bytes)) == bytes);
        }));
        QVERIFY(rc::check("addresses", [](std::uint32_t address) {
            RC_ASSERT(gfpdb_parse_address(gfpdb_address_text(address)) == address);
        }));
        QVERIFY(rc::check("numbers", [] {
            const std::int64_t number = *rc::gen::inRange<std::int64_t>(0, 1000000000000000000);
            RC_ASSERT(gfpdb_parse_decimal(gfpdb_decimal_text(number)) == number);
        }));
    }

    // Flows that are stored and exchanged hold these words.
    void keywords_and_markers_are_these()
    {
        QCOMPARE(GFPDB_VALUE_NONE, "none");
        QCOMPARE(GFPDB_VALUE_IMAGE, "image");
        QCOMPARE(GFPDB_VALUE_LOOP, "loop");
        QCOMPARE(GFPDB_VALUE_DIE, "die");
        QCOMPARE(GFPDB_VALUE_ID, "id");
        QCOMPARE(GFPDB_VALUE_DEVICE, "device");
        QCOMPARE(GFPDB_LOOP_PAGE, "page");
        QCOMPARE(GFPDB_LOOP_SECTOR, "sector");
        QCOMPARE(GFPDB_LOOP_DIE, "die");
        QCOMPARE(GFPDB_LOOP_START, "start");
        QCOMPARE(GFPDB_LOOP_END, "end");
    }
};

QTEST_APPLESS_MAIN(TEST_FLOW_VALUES)

#include "test_flow_values.moc"
