// SPDX-License-Identifier: MIT

// The text helpers of the host.
#include "gen/gen_text.h"
#include "test_rows.h"

#include <QTest>

#include <climits>

namespace {

int sign(int value)
{
    return (value > 0) - (value < 0);
}

} // namespace

class TEST_GEN : public QObject
{
    Q_OBJECT

private slots:
    void atoi_reads_the_number_at_the_start_data()
    {
        rows<QByteArray, int>({{"empty", QByteArray(), 0},
                               {"digits", "128", 128},
                               {"zero", "0", 0},
                               {"leading zeros are decimal", "010", 10},
                               {"every digit", "1234567890", 1234567890},
                               {"minus", "-7", -7},
                               {"plus", "+7", 7},
                               {"one sign only", "+-7", 0},
                               {"sign alone", "-", 0},
                               {"blank behind the sign", "- 7", 0},
                               {"blanks before", " \t\n\v\f\r7", 7},
                               {"other control byte before", "\0107", 0},
                               {"control byte behind the blanks", "\0167", 0},
                               {"text behind", "8 clocks", 8},
                               {"byte before the digits", "8/", 8},
                               {"byte behind the digits", "8:", 8},
                               {"text only", "many", 0},
                               {"hexadecimal stops at x", "0x10", 0},
                               {"largest", "2147483647", INT_MAX},
                               {"one more", "2147483648", INT_MAX},
                               {"smallest", "-2147483648", INT_MIN},
                               {"one less", "-2147483649", INT_MIN},
                               {"endless", QByteArray(10000, '9'), INT_MAX},
                               {"endless, negative", QByteArray("-" + QByteArray(10000, '9')), INT_MIN},
                               {"digits outside ASCII", "\xD9\xA3", 0},
                               {"zero byte", QByteArray("1\0002", 3), 1}});
    }

    void atoi_reads_the_number_at_the_start()
    {
        const auto [text, value] = row<QByteArray, int>();

        QCOMPARE(gen_atoi(text.toStdString()), value);
    }

    void itoa_writes_decimal_data()
    {
        rows<int, QByteArray>({{"zero", 0, "0"},
                               {"positive", 42, "42"},
                               {"negative", -42, "-42"},
                               {"largest", INT_MAX, "2147483647"},
                               {"smallest", INT_MIN, "-2147483648"}});
    }

    void itoa_writes_decimal()
    {
        const auto [value, text] = row<int, QByteArray>();

        QCOMPARE(QByteArray::fromStdString(gen_itoa(value)), text);
        QCOMPARE(gen_atoi(gen_itoa(value)), value);
    }

    void comparison_data()
    {
        rows<QByteArray, QByteArray, int, int>(
            {{"both empty", "", "", 0, 0},
             {"equal", "MX25", "MX25", 0, 0},
             {"empty first", "", "a", -1, -1},
             {"prefix first", "MX25", "MX25L", -1, -1},
             {"prefix without case", "mx25", "MX25L", 1, -1},
             {"letters", "abc", "abd", -1, -1},
             {"case only", "mx25", "MX25", 1, 0},
             {"first and last letter", "azAZ", "AZaz", 1, 0},
             {"bytes around the capitals", "@[", "`{", -1, -1},
             {"capital before underscore", "Z", "_", -1, 1},
             {"byte outside ASCII comes last", "z", "\xC3", -1, -1},
             {"letters outside ASCII keep their case", "\xC3\x84", "\xC3\xA4", -1, -1},
             {"behind a zero byte", QByteArray("a\0b", 3), QByteArray("a\0c", 3), -1, -1}});
    }

    void comparison()
    {
        const auto [left, right, exact, without_case] = row<QByteArray, QByteArray, int, int>();

        QCOMPARE(sign(gen_strcmp(left.toStdString(), right.toStdString())), exact);
        QCOMPARE(sign(gen_strcmp(right.toStdString(), left.toStdString())), -exact);
        QCOMPARE(sign(gen_stricmp(left.toStdString(), right.toStdString())), without_case);
        QCOMPARE(sign(gen_stricmp(right.toStdString(), left.toStdString())), -without_case);
    }
};

QTEST_APPLESS_MAIN(TEST_GEN)

#include "test_gen.moc"
