// SPDX-License-Identifier: MIT

// What real parts say of themselves: every value of every read-out, the warnings, and what is left of a read-out that
// is cut at any length.
#include "read_outs.h"
#include "sfdp_facts.h"
#include "test_rows.h"

#include <QRegularExpression>
#include <QTest>

namespace {

// True for fewer of the same: "20:4K=25" of "20:4K=25 D8:64K=256"; empty and unknown values are part of all.
bool is_part_of(const QString& left, const QString& whole)
{
    const QStringList parts = whole.split(QRegularExpression("[ ,]"));
    for (const QString& part : left.split(QRegularExpression("[ ,]"))) {
        if (!part.isEmpty() && part != "0Mb" && part != "0" && part != "reserved" && !parts.contains(part))
            return false;
    }
    return true;
}

} // namespace

Q_DECLARE_METATYPE(SFDP_FACTS)

class TEST_SFDP_READ_OUTS : public QObject
{
    Q_OBJECT

private slots:
    void every_value_of_a_part_is_read_data()
    {
        QTest::addColumn<SFDP_FACTS>("expected");
        for (const SFDP_FACTS& facts : expected_values())
            QTest::newRow(qPrintable(facts["file"])) << facts;
        QCOMPARE(expected_values().size(), std::size_t(22));
    }

    void every_value_of_a_part_is_read()
    {
        QFETCH(SFDP_FACTS, expected);
        const SFDP_FACTS found = facts_of(sfdp_of(expected["file"]));
        for (const QString& column : expected.keys()) {
            if (column == "file" || column == "jedec_id")
                continue;
            QVERIFY2(found[column] == expected[column],
                     qPrintable(column + ": " + found[column] + ", not " + expected[column]));
        }
    }

    void only_what_is_odd_is_a_warning()
    {
        const QMap<QString, QStringList> odd = {
            {"MX25R6435F",
             {"The table FFC2 is not in the read-out: it begins at 0x110, and the read-out ends at 0x80.",
              "The table of 4-byte instructions is not in the read-out: it begins at 0xC0, and the read-out ends at "
              "0x80."}},
            {"W25Q01JV-Q", {"The bytes at 0x18 are in no table: they are not read."}},
            {"W25Q512NW-M", {"The bytes at 0x21 are in no table: they are not read."}},
        };
        for (const SFDP_FACTS& facts : expected_values())
            QCOMPARE(warnings_of(sfdp_of(facts["file"])), odd.value(facts["file"]));
    }

    // What is not in expected_values.tsv.
    void an_octal_part_says_how_it_is_spoken_to()
    {
        const GFPDB_SFDP sfdp = sfdp_of(QString("MX25UW6345G"));
        QCOMPARE(sfdp.access_protocol, 0xFD);
        QCOMPARE(sfdp.octal_enable, std::optional<int>(0));
        QVERIFY(!sfdp.read_1_8_8 && !sfdp.read_1_1_8 && sfdp.has_double_rate);
        QVERIFY(!sfdp_of(QString("W25Q128JV-Q")).octal_enable);
        QCOMPARE(sfdp_of(QString("W25Q128JV-Q")).access_protocol, 0xFF);
    }

    void a_sector_map_says_which_command_erases_what()
    {
        const GFPDB_SFDP sfdp = sfdp_of(QString("SST26VF032B"));
        QVERIFY(sfdp.map_commands.empty());
        QCOMPARE(sfdp.sector_maps.size(), std::size_t(1));
        QCOMPARE(sfdp.sector_maps[0].id, 0);
        QStringList regions;
        for (const GFPDB_SFDP_REGION& region : sfdp.sector_maps[0].regions)
            regions += QString("%1/%2").arg(region.size_bytes).arg(region.erase_types, 0, 16);
        QCOMPARE(regions.join(' '), QString("32768/3 32768/5 4063232/9 32768/5 32768/3"));
    }

    // A cut read-out says that it is one, and each value that it still has is right.
    void every_cut_gives_right_values_or_an_error()
    {
        for (const SFDP_FACTS& facts : expected_values()) {
            const SFDP_BYTES whole = read_out(facts["file"]);
            const SFDP_FACTS all = facts_of(sfdp_of(whole));
            for (std::size_t length = 0; length < whole.size(); ++length) {
                std::string problem;
                const std::optional<GFPDB_SFDP> cut = gfpdb_read_sfdp(
                    SFDP_BYTES(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)), problem);
                const QString where = QString("%1 cut at %2: ").arg(facts["file"]).arg(length);
                QVERIFY2(cut.has_value() == problem.empty(), qPrintable(where));
                if (!cut)
                    continue;
                const SFDP_FACTS left = facts_of(*cut);
                for (const QString& column : all.keys()) {
                    const bool is_right = left[column] == all[column] || is_part_of(left[column], all[column]);
                    QVERIFY2(is_right, qPrintable(where + column + ' ' + left[column]));
                }
                QVERIFY2(left == all || !cut->warnings.empty(), qPrintable(where + "no warning"));
            }
        }
    }
};

QTEST_APPLESS_MAIN(TEST_SFDP_READ_OUTS)

#include "test_sfdp_read_outs.moc"
