// SPDX-License-Identifier: MIT

// The five tables of words that the dialog shows for the flash database's numbers.
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"

#include <QTest>

#include <iterator>

namespace {

const char* const OPERATION_NAMES[] = {"Initialization", "Program", "Erase", "Verify/Blank-Check/Examine",
                                       "Termination"};

// clang-format off
const char* const OPERATION_DESCRIPTIONS[] = {
    "The Programmer engine performs the Initialization operation at the beginning of the Program, Erase, Verify, Blank-Check, or Examine operation during .jic file programming.",
    "The Programmer engine performs the Program operation when the Program option is enabled in the Programmer tool for .jic file programming.",
    "The Programmer engine performs the Erase operation when the Erase option is enabled in the Programmer tool for .jic file programming. The Programmer engine uses all erase actions specified between \xE2\x80\x9C" "Erase data\xE2\x80\x9D and \xE2\x80\x9C" "End of data?\xE2\x80\x9D to decide the optimal way of erasing the data.",
    "The Programmer engine performs the Verify/Blank-Check/Examine operation when the Verify/Blank-Check/Examine option is enabled in the Programmer tool for .jic file programming.",
    "The Programmer engine performs the Termination operation at the end of the Program, Erase, Verify, Blank-Check, or Examine operation during .jic file programming.",
};
// clang-format on

const char* const ACTION_TYPE_NAMES[] = {"Write Register", "Read Register", "Write Data",
                                         "Read Data",      "Erase",         "Custom"};

// A line for each action type, and the two of Custom.
const char* const PROPERTY_LABELS =
    "Name:|Command:|Data:|Delay(us):|Command-Data(bus width):|"
    "Name:|Command:|Data length(byte):|Expected data:|Expected data mask:|Attempt count:|Delay(us):|Command-Data(bus "
    "width):|"
    "Name:|Command:|Address:|Data:|Page size(byte):|Addressing mode(byte):|Delay(us):|Command-Address-Data(bus width):|"
    "Name:|Command:|Address:|Data length(byte):|Expected data:|Expected data mask:|Addressing mode(byte):|Dummy clock "
    "cycle:|Delay(us):|Command-Address-Data(bus width):|"
    "Name:|Command:|Address:|Erase size(byte):|Addressing mode(byte):|Delay(us):|Command-Address(bus width):|"
    "|";

const char* const SCHEME_NAMES =
    "1-bit Passive Serial|2-bit Passive Serial|4-bit Passive Serial|8-bit Passive Serial|"
    "Passive Parallel Asynchronous|Passive Parallel Synchronous|Fast Passive Parallel|Active Serial|"
    "Active Parallel|Active Parallel Cascade|Passive Parallel x8|Passive Parallel x16|Passive Parallel x32|"
    "Active Serial x4|Internal Configuration|Single Internal Image|Single Internal Image With ERAM|"
    "Single Internal Compressed Image|Single Internal Compressed Image with ERAM|"
    "Dual Compressed Internal Images|AVST x8|AVST x16|AVST x32|SDMMC x4|SDMMC x8|"
    "Illegal Configuration Scheme";

template <std::size_t SIZE>
void compare(const char* const (&table)[SIZE], const char* const expected)
{
    QStringList texts;
    for (const char* text : table)
        texts.append(QString::fromUtf8(text));
    QCOMPARE(texts, QString::fromUtf8(expected).split(QLatin1Char('|')));
}

template <std::size_t EXPECTED_SIZE, std::size_t SIZE>
void compare(const char* const (&table)[SIZE], const char* const (&expected)[EXPECTED_SIZE])
{
    static_assert(SIZE == EXPECTED_SIZE, "a table has another number of entries");
    for (std::size_t index = 0; index < SIZE; ++index)
        QCOMPARE(table[index], expected[index]);
}

} // namespace

class TEST_VOCABULARY : public QObject
{
    Q_OBJECT

private slots:
    void operation_names() { compare(GFPQ_OPERATION_NAMES, OPERATION_NAMES); }
    void operation_descriptions() { compare(GFPQ_OPERATION_DESCRIPTIONS, OPERATION_DESCRIPTIONS); }
    void action_type_names() { compare(GFPQ_ACTION_TYPE_NAMES, ACTION_TYPE_NAMES); }
    void property_labels() { compare(GFPQ_PROPERTY_LABELS, PROPERTY_LABELS); }
    void configuration_scheme_names() { compare(PGMIO_CONFIG_SCHEME_NAMES, SCHEME_NAMES); }

    void each_run_of_properties_opens_with_the_name_of_its_type()
    {
        const int first_of_run[] = {GFPDB_WR_NAME, GFPDB_RR_NAME, GFPDB_WD_NAME, GFPDB_RD_NAME, GFPDB_ER_NAME};
        const int expected[] = {0, 5, 13, 21, 31};

        for (std::size_t run = 0; run < std::size(expected); ++run) {
            QCOMPARE(first_of_run[run], expected[run]);
            QCOMPARE(GFPQ_PROPERTY_LABELS[expected[run]], "Name:");
        }
        QCOMPARE(static_cast<int>(GFPDB_CUSTOM_LOOP_UNIT), 38);
        QCOMPARE(static_cast<int>(GFPDB_CUSTOM_LOOP_MARKER), 39);
    }

    void table_texts_are_read_as_utf_8()
    {
        const QString text = gfpq_from_utf8(GFPQ_OPERATION_DESCRIPTIONS[GFPDB_OPERATION_ERASE]);

        QVERIFY(text.contains(QChar(0x201C) + QStringLiteral("Erase data") + QChar(0x201D)));
        QVERIFY(text.contains(QChar(0x201C) + QStringLiteral("End of data?") + QChar(0x201D)));
    }
};

QTEST_APPLESS_MAIN(TEST_VOCABULARY)

#include "test_vocabulary.moc"
