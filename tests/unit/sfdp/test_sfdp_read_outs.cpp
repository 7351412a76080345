// SPDX-License-Identifier: MIT

// What real parts say of themselves: every value of every read-out, the warnings, and what is left of a read-out that
// is cut at any length.
#include "read_outs.h"
#include "test_rows.h"

#include <QRegularExpression>
#include <QTest>

namespace {

QString hex(int value)
{
    return QString::number(value, 16).toUpper().rightJustified(2, '0');
}

QString size_text(std::int64_t bytes)
{
    return bytes < 1024 ? QString("%1B").arg(bytes) : QString("%1K").arg(bytes / 1024);
}

QString read_text(const std::optional<GFPDB_SFDP_READ>& read)
{
    return read ? QString("%1:%2+%3").arg(hex(read->opcode)).arg(read->mode_clocks).arg(read->wait_clocks) : QString();
}

QString number_text(int number)
{
    return number ? QString::number(number) : QString();
}

QString bits_text(int bits, const QStringList& names, const QString& separator)
{
    QStringList set;
    for (int bit = 0; bit < names.size(); ++bit) {
        if (bits & 1 << bit)
            set += names[bit];
    }
    return set.join(separator);
}

QString erase_text(const GFPDB_SFDP& sfdp, QString (*text)(const GFPDB_SFDP_ERASE&))
{
    QStringList texts;
    for (const GFPDB_SFDP_ERASE& erase : sfdp.erase)
        texts += text(erase);
    texts.removeAll(QString());
    return texts.join(' ');
}

QString tables_text(const GFPDB_SFDP& sfdp)
{
    QStringList ids;
    for (const GFPDB_SFDP_TABLE& table : sfdp.tables)
        ids += hex(table.id).rightJustified(4, '0');
    return ids.join(' ');
}

// What was read, in the columns of expected_values.tsv.
SFDP_FACTS facts_of(const GFPDB_SFDP& sfdp)
{
    static const QStringList ENTER = {"B7",         "06+B7",          "EAR C5/C8",     "BANK 17/16",
                                      "NVCR B1/B5", "4-byte opcodes", "always 4-byte", "rsvd"};
    static const QStringList LEAVE = {"E9",       "06+E9",    "EAR C5/C8",   "BANK 17/16", "NVCR B1/B5",
                                      "hw reset", "sw reset", "power cycle", "rsvd",       "rsvd"};
    static const QStringList FOUR_BYTE = {"13", "0C", "3C", "BC", "6C", "EC", "12", "34", "3E"};
    static const QStringList ADDRESS = {"3", "3 or 4", "4", "reserved"};
    SFDP_FACTS facts;
    facts["sfdp_rev"] = QString("%1.%2").arg(sfdp.major).arg(sfdp.minor);
    facts["bfpt_rev"] = QString("%1.%2").arg(sfdp.basic_major).arg(sfdp.basic_minor);
    facts["bfpt_dwords"] = QString::number(sfdp.basic_dwords);
    facts["tables"] = tables_text(sfdp);
    facts["density"] = QString("%1Mb").arg(sfdp.density_bits >> 20);
    facts["address_bytes"] = ADDRESS[static_cast<int>(sfdp.address)];
    facts["page_size"] = number_text(sfdp.page_size);
    facts["erase_types"] = erase_text(sfdp, [](const GFPDB_SFDP_ERASE& erase) {
        return QString("%1=%2:%3").arg(erase.type).arg(hex(erase.opcode), size_text(erase.size_bytes));
    });
    facts["erase_typ_ms"] = erase_text(sfdp, [](const GFPDB_SFDP_ERASE& erase) {
        return erase.typical_ms == 0
                   ? QString()
                   : QString("%1:%2=%3").arg(hex(erase.opcode), size_text(erase.size_bytes)).arg(erase.typical_ms);
    });
    facts["erase_max_factor"] = number_text(sfdp.erase_max_factor);
    facts["chip_erase_typ_ms"] = number_text(sfdp.chip_erase_ms);
    facts["page_prog_typ_us"] = number_text(sfdp.page_program_us);
    facts["prog_max_factor"] = number_text(sfdp.program_max_factor);
    facts["read_1_1_4"] = read_text(sfdp.read_1_1_4);
    facts["read_1_4_4"] = read_text(sfdp.read_1_4_4);
    facts["read_4_4_4"] = read_text(sfdp.read_4_4_4);
    facts["qer"] = sfdp.quad_enable ? QString::number(*sfdp.quad_enable) : QString();
    facts["enter_4b"] = bits_text(sfdp.enter_4_byte.value_or(0), ENTER, ",");
    facts["exit_4b"] = bits_text(sfdp.leave_4_byte.value_or(0), LEAVE, ",");
    facts["soft_reset_66_99"] = sfdp.soft_reset.value_or(0) & 1 << 4 ? "1" : "";
    facts["busy_poll_bits"] = number_text(sfdp.busy_poll.value_or(0));
    facts["4bait"] = bits_text(static_cast<int>(sfdp.instructions_4_byte.value_or(0)), FOUR_BYTE, " ");
    facts["4bait_erase"] = erase_text(sfdp, [](const GFPDB_SFDP_ERASE& erase) {
        return erase.opcode_4_byte ? QString("%1=%2").arg(erase.type).arg(hex(erase.opcode_4_byte)) : QString();
    });
    return facts;
}

// True for fewer of the same: "20:4K=25" of "20:4K=25 D8:64K=256"; empty and unknown values are part of all.
bool is_part_of(const QString& left, const QString& whole)
{
    const QStringList parts = whole.split(QRegularExpression("[ ,]"));
    for (const QString& part : left.split(QRegularExpression("[ ,]"))) {
        if (!part.isEmpty() && part != "0Mb" && part != "reserved" && !parts.contains(part))
            return false;
    }
    return true;
}

QStringList warnings_of(const GFPDB_SFDP& sfdp)
{
    QStringList warnings;
    for (const std::string& warning : sfdp.warnings)
        warnings += QString::fromStdString(warning);
    return warnings;
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
