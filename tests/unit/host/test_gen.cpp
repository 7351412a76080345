// SPDX-License-Identifier: MIT

// The text helpers of the host.
#include "gen/gen_text.h"

#include <QTest>

#include <climits>

class TEST_GEN : public QObject
{
    Q_OBJECT

private slots:
    void atoi_reads_the_number_at_the_start_data();
    void atoi_reads_the_number_at_the_start();
    void atoi_stops_at_a_zero_byte();
    void itoa_writes_decimal_data();
    void itoa_writes_decimal();
    void comparison_data();
    void comparison();
    void comparison_looks_behind_a_zero_byte();
};

namespace {

int sign(int value)
{
    return (value > 0) - (value < 0);
}

} // namespace

void TEST_GEN::atoi_reads_the_number_at_the_start_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("value");

    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("digits") << QByteArray("128") << 128;
    QTest::newRow("zero") << QByteArray("0") << 0;
    QTest::newRow("leading zeros are decimal") << QByteArray("010") << 10;
    QTest::newRow("every digit") << QByteArray("1234567890") << 1234567890;
    QTest::newRow("minus") << QByteArray("-7") << -7;
    QTest::newRow("plus") << QByteArray("+7") << 7;
    QTest::newRow("one sign only") << QByteArray("+-7") << 0;
    QTest::newRow("sign alone") << QByteArray("-") << 0;
    QTest::newRow("blank behind the sign") << QByteArray("- 7") << 0;
    QTest::newRow("blanks before") << QByteArray(" \t\n\v\f\r7") << 7;
    QTest::newRow("other control byte before") << QByteArray("\x08"
                                                             "7")
                                               << 0;
    QTest::newRow("control byte behind the blanks") << QByteArray("\x0E"
                                                                  "7")
                                                    << 0;
    QTest::newRow("text behind") << QByteArray("8 clocks") << 8;
    QTest::newRow("byte before the digits") << QByteArray("8/") << 8;
    QTest::newRow("byte behind the digits") << QByteArray("8:") << 8;
    QTest::newRow("text only") << QByteArray("many") << 0;
    QTest::newRow("hexadecimal stops at x") << QByteArray("0x10") << 0;
    QTest::newRow("largest") << QByteArray("2147483647") << INT_MAX;
    QTest::newRow("one more") << QByteArray("2147483648") << INT_MAX;
    QTest::newRow("smallest") << QByteArray("-2147483648") << INT_MIN;
    QTest::newRow("one less") << QByteArray("-2147483649") << INT_MIN;
    QTest::newRow("endless") << QByteArray(10000, '9') << INT_MAX;
    QTest::newRow("endless, negative") << QByteArray("-" + QByteArray(10000, '9')) << INT_MIN;
    QTest::newRow("digits outside ASCII") << QByteArray("\xD9\xA3") << 0;
}

void TEST_GEN::atoi_reads_the_number_at_the_start()
{
    QFETCH(QByteArray, text);
    QFETCH(int, value);

    QCOMPARE(gen_atoi(text.toStdString()), value);
}

void TEST_GEN::atoi_stops_at_a_zero_byte()
{
    QCOMPARE(gen_atoi(std::string("1\0"
                                  "2",
                                  3)),
             1);
}

void TEST_GEN::itoa_writes_decimal_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("zero") << 0 << QByteArray("0");
    QTest::newRow("positive") << 42 << QByteArray("42");
    QTest::newRow("negative") << -42 << QByteArray("-42");
    QTest::newRow("largest") << INT_MAX << QByteArray("2147483647");
    QTest::newRow("smallest") << INT_MIN << QByteArray("-2147483648");
}

void TEST_GEN::itoa_writes_decimal()
{
    QFETCH(int, value);
    QFETCH(QByteArray, text);

    QCOMPARE(QByteArray::fromStdString(gen_itoa(value)), text);
    QCOMPARE(gen_atoi(gen_itoa(value)), value);
}

void TEST_GEN::comparison_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    QTest::addColumn<int>("exact");
    QTest::addColumn<int>("without_case");

    QTest::newRow("both empty") << QByteArray("") << QByteArray("") << 0 << 0;
    QTest::newRow("equal") << QByteArray("MX25") << QByteArray("MX25") << 0 << 0;
    QTest::newRow("empty first") << QByteArray("") << QByteArray("a") << -1 << -1;
    QTest::newRow("prefix first") << QByteArray("MX25") << QByteArray("MX25L") << -1 << -1;
    QTest::newRow("prefix without case") << QByteArray("mx25") << QByteArray("MX25L") << 1 << -1;
    QTest::newRow("letters") << QByteArray("abc") << QByteArray("abd") << -1 << -1;
    QTest::newRow("case only") << QByteArray("mx25") << QByteArray("MX25") << 1 << 0;
    QTest::newRow("first and last letter") << QByteArray("azAZ") << QByteArray("AZaz") << 1 << 0;
    QTest::newRow("bytes around the capitals") << QByteArray("@[") << QByteArray("`{") << -1 << -1;
    QTest::newRow("capital before underscore") << QByteArray("Z") << QByteArray("_") << -1 << 1;
    QTest::newRow("byte outside ASCII comes last") << QByteArray("z") << QByteArray("\xC3") << -1 << -1;
    QTest::newRow("letters outside ASCII keep their case")
        << QByteArray("\xC3\x84") << QByteArray("\xC3\xA4") << -1 << -1;
}

void TEST_GEN::comparison()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    QFETCH(int, exact);
    QFETCH(int, without_case);

    QCOMPARE(sign(gen_strcmp(left.toStdString(), right.toStdString())), exact);
    QCOMPARE(sign(gen_strcmp(right.toStdString(), left.toStdString())), -exact);
    QCOMPARE(sign(gen_stricmp(left.toStdString(), right.toStdString())), without_case);
    QCOMPARE(sign(gen_stricmp(right.toStdString(), left.toStdString())), -without_case);
}

void TEST_GEN::comparison_looks_behind_a_zero_byte()
{
    const std::string left("a\0b", 3);
    const std::string right("a\0c", 3);

    QVERIFY(gen_strcmp(left, right) < 0);
    QVERIFY(gen_stricmp(left, right) < 0);
}

QTEST_APPLESS_MAIN(TEST_GEN)
#include "test_gen.moc"
