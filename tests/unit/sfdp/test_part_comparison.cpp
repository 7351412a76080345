// SPDX-License-Identifier: MIT

// What an ID tells, in what listed parts differ from what a chip says, and devices that are copies of others.
#include "flow_lines.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_text.h"
#include "sfdp/gfpdb_known_part.h"

#include <QTest>

namespace {

std::vector<std::uint8_t> bytes_of(const QString& id)
{
    return gfpdb_device_id_bytes(id.toStdString());
}

QString hex_of(const std::vector<std::uint8_t>& bytes)
{
    const QByteArray text(reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size()));
    return QString::fromLatin1(text.toHex(' ').toUpper());
}

// "PART: difference, difference; PART"
QString text_of(const std::vector<GFPDB_PART_COMPARISON>& parts)
{
    QStringList texts;
    for (const GFPDB_PART_COMPARISON& each : parts) {
        const std::string differences = each.differences.empty() ? "" : ": " + gfpdb_joined(each.differences);
        texts += QString::fromStdString(each.part->name + differences);
    }
    return texts.join("; ");
}

GFPDB_RECORD builtin(const std::string& name)
{
    const GFPDB_EMBEDDED_FLASH& part = *gfpdb_builtin_record(name);
    GFPDB_RECORD record;
    record.row = *part.to_row(0, -1);
    return record;
}

} // namespace

class TEST_PART_COMPARISON : public QObject
{
    Q_OBJECT

private slots:
    void what_a_chip_sends_behind_its_id_is_no_part_of_it_data()
    {
        rows<QString, QString>({
            {"listed", "C2 20 19 C2 20 19 C2 20 19 C2 20 19 C2 20 19 C2", "C2 20 19"},
            {"listed with six bytes", "20 BB 21 10 44 00 01 02 03 04 05 06 07 08 09 0A", "20 BB 21 10 44 00"},
            {"listed, then FF", "EF 40 18 FF FF FF FF FF", "EF 40 18"},
            {"unlisted that repeats", "42 40 18 42 40 18 42", "42 40 18"},
            {"unlisted, then anything", "42 40 18 01 02 03 04", "42 40 18"},
            {"unlisted of a maker with six bytes", "34 2B 1D 0F 03 90 FF FF", "34 2B 1D 0F 03 90"},
            {"six bytes", "42 40 18 01 02 03", "42 40 18 01 02 03"},
            {"three bytes", "42 40 18", "42 40 18"},
            {"one byte", "42", "42"},
        });
    }

    void what_a_chip_sends_behind_its_id_is_no_part_of_it()
    {
        const auto [id, expected] = row<QString, QString>();
        QCOMPARE(hex_of(gfpdb_trimmed_id(bytes_of(id))), expected);
        QCOMPARE(gfpdb_trimmed_id({}).size(), std::size_t(0));
    }

    void an_id_tells_its_maker_data()
    {
        rows<QString>({{"C2 20 55", "Macronix"},
                       {"20 BA 55", "Micron"},
                       {"20 40 55", "XMC"},
                       {"20 20 55", ""},
                       {"01 99 55", "Infineon"},
                       {"42 40 18", ""},
                       {"9D", "ISSI"}});
    }

    void an_id_tells_its_maker()
    {
        QCOMPARE(QString::fromStdString(gfpdb_maker_of_id(bytes_of(QTest::currentDataTag()))), row<QString>());
        QVERIFY(gfpdb_maker_of_id({}).empty());
        QCOMPARE(gfpdb_makers().size(), std::size_t(14));
        QCOMPARE(gfpdb_makers().front(), std::string("Macronix"));
    }

    void the_third_byte_stands_for_a_density_data()
    {
        rows<QString>({{"C2 20 10", "512Kb"},
                       {"C2 20 18", "128Mb"},
                       {"C2 20 1F", "16384Mb"},
                       {"C2 20 0F", "0Mb"},
                       {"C2 20 20", "512Mb"},
                       {"C2 20 23", "4096Mb"},
                       {"C2 20 24", "0Mb"},
                       {"C2 25 2F", "0Mb"},
                       {"C2 25 30", "512Kb"},
                       {"C2 25 39", "256Mb"},
                       {"C2 25 3F", "16384Mb"},
                       {"C2 25 40", "0Mb"},
                       {"C2 25", "0Mb"}});
    }

    void the_third_byte_stands_for_a_density()
    {
        const std::int64_t bytes = gfpdb_usual_bytes_of_id(bytes_of(QTest::currentDataTag()));
        QCOMPARE(QString::fromStdString(gfpdb_density_text(bytes * 8)), row<QString>());
    }

    void the_listed_ids_stand_for_the_listed_densities()
    {
        QStringList others;
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            const std::int64_t usual = gfpdb_usual_bytes_of_id({part.jedec_id.begin(), part.jedec_id.end()});
            if (usual != 0 && usual != gfpdb_density_bytes(part.density))
                others += QString::fromStdString(part.name);
        }
        // Two dies behind one ID.
        QCOMPARE(others, QStringList({"W25M512JV", "GD25S512MD"}));
    }

    void listed_parts_differ_where_the_chip_says_something_else_data()
    {
        rows<QString, QString>({
            {"MX25L12833F", "",
             "MX25L12833F; MX25L12835F; MX25L12845G: erase by 52: not in the list, 32768 bytes by SFDP DW8"},
            {"MX25L25635E", "",
             "MX25L25635F: 4-4-4 read: in read-outs of this part, but not here; MX25L25645G: basic table: 16 double "
             "words in read-outs of this part, 9 here"},
            {"IS25WP256D", "", "IS25WP256D: address bytes: 4 in the list, 3 by SFDP DW1"},
            {"ZD25Q128C", "",
             "W25Q128JV-Q: density: 128Mb in the list, 16Mb by SFDP DW2, erase by 81: not in the list, 256 bytes by "
             "SFDP DW9, basic table: 16 double words in read-outs of this part, 9 here, 4-4-4 read: in read-outs of "
             "this part, but not here"},
            {"W25Q128BV-OLD", "", "W25Q128JV-Q: basic table: 16 double words in read-outs of this part, 9 here"},
            {"W25Q128JV-Q", "", "W25Q128JV-Q"},
            {"MX25UW6345G", "", ""},
            {"W25Q512NW-M", "EF 40 19",
             "W25Q256FV: density: 256Mb in the list, 512Mb by SFDP DW2, erase by 21: not in the list, 4096 bytes by "
             "SFDP 4-byte DW2, erase by DC: not in the list, 65536 bytes by SFDP 4-byte DW2, basic table: 9 double "
             "words in read-outs of this part, 16 here; W25Q256JV-Q: density: 256Mb in the list, 512Mb by SFDP DW2"},
            {"MX66L1G45G", "20 BA 19",
             "MT25QL256ABA: density: 256Mb in the list, 1024Mb by SFDP DW2, quad-I/O dummy clocks: 10 in the list, 6 "
             "by SFDP DW3, quad enable: none in the list, SR1 bit 6 by SFDP DW15; N25Q256A13: density: 256Mb in the "
             "list, 1024Mb by SFDP DW2, erase by 52: not in the list, 32768 bytes by SFDP DW8, erase by 5C: not in the "
             "list, 32768 bytes by SFDP 4-byte DW2, quad-I/O dummy clocks: 10 in the list, 6 by SFDP DW3, quad enable: "
             "none in the list, SR1 bit 6 by SFDP DW15"},
            {"SST26VF032B", "01 02 20 4D 00 80",
             "S25FL512S: density: 512Mb in the list, 32Mb by SFDP DW2, page size: 512 in the list, 256 by SFDP DW11, "
             "address bytes: 4 in the list, 3 by SFDP DW1, erase by 20: not in the list, 4096 bytes by SFDP DW8, erase "
             "by D8: 262144 bytes in the list, 8192 bytes by SFDP DW8, erase by D8: 262144 bytes in the list, 32768 "
             "bytes by SFDP DW9, erase by D8: 262144 bytes in the list, 65536 bytes by SFDP DW9"},
            {"GD25WQ32E", "C8 40 19 C8 40 19 C8",
             "GD25Q256C: density: 256Mb in the list, 32Mb by SFDP DW2, address bytes: 4 in the list, 3 by SFDP DW1, "
             "quad enable: SR1 bit 6 in the list, SR2 bit 1 by SFDP DW15, basic table: 9 double words in read-outs of "
             "this part, 16 here; GD25S512MD: density: 512Mb in the list, 32Mb by SFDP DW2, address bytes: 4 in the "
             "list, 3 by SFDP DW1"},
            {"MT25QU256ABA", "C2 20 19",
             "MX25L25635F: quad-I/O dummy clocks: 6 in the list, 10 by SFDP DW3, quad enable: SR1 bit 6 in the list, "
             "none by SFDP DW15, basic table: 9 double words in read-outs of this part, 16 here; MX25L25645G: quad-I/O "
             "dummy clocks: 6 in the list, 10 by SFDP DW3, quad enable: SR1 bit 6 in the list, none by SFDP DW15"},
            {"N25Q064A11", "C2 20 15", "MX25L1606E: density: 16Mb in the list, 64Mb by SFDP DW2"},
        });
    }

    void listed_parts_differ_where_the_chip_says_something_else()
    {
        const auto [id, expected] = row<QString, QString>();
        const QString part = QTest::currentDataTag();
        const std::vector<std::uint8_t> bytes = id.isEmpty() ? id_of(part) : bytes_of(id);
        QCOMPARE(text_of(gfpdb_compare_with_catalogue(bytes, sfdp_of(part))), expected);
    }

    // What read-outs of these parts have, held against a table of ten double words with the 4-4-4 read and without it.
    void parts_of_one_id_are_told_apart_by_their_tables_data()
    {
        const QString without = "4-4-4 read: in read-outs of this part, but not here";
        const auto words = [](int count) {
            return QString("basic table: %1 double words in read-outs of this part, 10 here").arg(count);
        };
        rows<QStringList, QStringList>({
            {"MX25L12833F", {words(16)}, {words(16), without}},
            {"MX25L12835F", {}, {}},
            {"MX25L25635F", {words(9)}, {words(9), without}},
            {"MX25L25645G", {words(16)}, {words(16)}},
            {"MX25U25645G", {words(16)}, {words(16), without}},
            {"W25Q128JV-Q", {words(16)}, {words(16), without}},
            {"W25Q256FV", {words(9)}, {words(9)}},
            {"W25Q256JV-Q", {words(16)}, {words(16)}},
            {"GD25Q256C", {words(9)}, {words(9)}},
        });
    }

    void parts_of_one_id_are_told_apart_by_their_tables()
    {
        const auto [with_read, without_read] = row<QStringList, QStringList>();
        const GFPDB_PART& part = *gfpdb_builtin_part(QTest::currentDataTag());
        GFPDB_SFDP sfdp;
        sfdp.basic_dwords = 10;
        for (const QStringList& expected : {without_read, with_read}) {
            QStringList found;
            for (const auto& each : gfpdb_compare_with_catalogue({part.jedec_id.begin(), part.jedec_id.end()}, sfdp)) {
                for (const std::string& difference : each.differences) {
                    if (each.part->name == part.name)
                        found += QString::fromStdString(difference);
                }
            }
            QCOMPARE(found, expected);
            sfdp.read_4_4_4 = GFPDB_SFDP_READ{0xEB, 2, 4};
        }
    }

    void each_way_to_enable_quad_is_held_against_the_list_data()
    {
        rows<QString, QString, QString>({
            {"0", "quad enable: SR1 bit 6 in the list, none by SFDP DW15",
             "quad enable: SR2 bit 1 in the list, none by SFDP DW15", ""},
            {"1", "quad enable: SR1 bit 6 in the list, SR2 bit 1 by SFDP DW15", "",
             "quad enable: none in the list, SR2 bit 1 by SFDP DW15"},
            {"2", "", "quad enable: SR2 bit 1 in the list, SR1 bit 6 by SFDP DW15",
             "quad enable: none in the list, SR1 bit 6 by SFDP DW15"},
            {"3", "quad enable: SR1 bit 6 in the list, SR2 bit 7 by SFDP DW15",
             "quad enable: SR2 bit 1 in the list, SR2 bit 7 by SFDP DW15",
             "quad enable: none in the list, SR2 bit 7 by SFDP DW15"},
            {"4", "quad enable: SR1 bit 6 in the list, SR2 bit 1 by SFDP DW15", "",
             "quad enable: none in the list, SR2 bit 1 by SFDP DW15"},
            {"5", "quad enable: SR1 bit 6 in the list, SR2 bit 1 by SFDP DW15", "",
             "quad enable: none in the list, SR2 bit 1 by SFDP DW15"},
            {"6", "quad enable: SR1 bit 6 in the list, SR2 bit 1 by SFDP DW15", "",
             "quad enable: none in the list, SR2 bit 1 by SFDP DW15"},
            {"7", "quad enable: SR1 bit 6 in the list, reserved by SFDP DW15",
             "quad enable: SR2 bit 1 in the list, reserved by SFDP DW15",
             "quad enable: none in the list, reserved by SFDP DW15"},
        });
    }

    void each_way_to_enable_quad_is_held_against_the_list()
    {
        const auto [macronix, winbond, micron] = row<QString, QString, QString>();
        GFPDB_SFDP sfdp;
        sfdp.quad_enable = QByteArray(QTest::currentDataTag()).toInt();
        for (const auto& [id, expected] :
             {std::pair("C2 20 16", macronix), {"EF 40 14", winbond}, {"20 BA 20 10 44 00", micron}})
            QCOMPARE(gfpdb_joined(gfpdb_compare_with_catalogue(bytes_of(id), sfdp).front().differences),
                     expected.toStdString());
    }

    void without_tables_nothing_differs()
    {
        QCOMPARE(text_of(gfpdb_compare_with_catalogue(bytes_of("20 BA 19 10 44 00"), GFPDB_SFDP())),
                 QString("MT25QL256ABA; N25Q256A13"));
        QVERIFY(gfpdb_compare_with_catalogue({}, GFPDB_SFDP()).empty());
        QVERIFY(gfpdb_compare_with_catalogue(bytes_of("C2 20"), GFPDB_SFDP()).empty());
    }

    void a_copy_has_the_values_and_flows_of_its_source()
    {
        for (const char* const name : {"MX25L25645G", "MT25QL256ABA", "W25M512JV"}) {
            const GFPDB_RECORD source = builtin(name);
            std::vector<std::string> warnings;
            std::string problem = "old";
            const std::optional<GFPDB_RECORD> copy = gfpdb_copy_of(source, "Mine", 5, 13, warnings, problem);

            QVERIFY2(copy.has_value() && problem.empty() && warnings.empty(), problem.c_str());
            QVERIFY(copy->name() == "Mine" && copy->row.family == 5 && copy->row.scheme == 13);
            QCOMPARE(differences(*copy, *gfpdb_builtin_part(name)), QStringList());
        }
    }

    void a_copy_is_a_device_of_its_own()
    {
        GFPDB_RECORD source = builtin("MX25L25645G");
        source.row.template_name = "Shared";
        source.row.revision = "r";
        std::vector<std::string> warnings;
        std::string problem;
        const std::optional<GFPDB_RECORD> copy = gfpdb_copy_of(source, "Mine", 5, 7, warnings, problem);
        QVERIFY(copy && copy->row.template_name.empty() && copy->row.revision.empty() && !copy->is_template);
    }

    // Its read has sixteen clocks, which a device cannot have.
    void a_copy_that_cannot_keep_its_clocks_says_so()
    {
        std::vector<std::string> warnings;
        std::string problem;
        const std::optional<GFPDB_RECORD> copy = gfpdb_copy_of(builtin("S25HL512T"), "Mine", 5, 7, warnings, problem);
        QCOMPARE(copy->row.single_io_dummy_clock, std::optional<int>(15));
        QCOMPARE(differences(*copy, *gfpdb_builtin_part("S25HL512T")),
                 QStringList("single_io_dummy_clock: 15, listed 16"));
        QCOMPARE(
            QString::fromStdString(gfpdb_joined(warnings)),
            QString("A device has at most 15 single-I/O dummy clocks: the copy gets these, and its flow has the 16 "
                    "of \"S25HL512T\"."));
    }

    void a_copy_that_cannot_be_is_refused_data()
    {
        rows<QString, int, int, QString, QString>({
            {"no name", "", 5, 7, "", "The device name is empty: 1 to 64 characters are allowed."},
            {"name of a listed part", "W25Q16JV-Q", 5, 7, "",
             "There is a built-in device called \"W25Q16JV-Q\": choose another name."},
            {"no flash", "Mine", 5, 0, "", "The configuration mode 0 has no serial flash devices."},
            {"no family", "Mine", 99, 7, "", "There is no family 99. Allowed: 1 to 72."},
            {"unreadable flows", "Mine", 5, 7, "[", "The flows of \"X\" cannot be read."},
        });
    }

    void a_copy_that_cannot_be_is_refused()
    {
        const auto [name, family, scheme, flows, expected] = row<QString, int, int, QString, QString>();
        for (const bool quad : {false, true}) {
            GFPDB_RECORD source;
            source.row.name = "X";
            (quad ? source.row.quad_flows : source.row.single_flows) = flows.toStdString();
            std::vector<std::string> warnings;
            std::string problem;
            QVERIFY(!gfpdb_copy_of(source, name.toStdString(), family, scheme, warnings, problem));
            QCOMPARE(QString::fromStdString(problem), expected);
        }
    }
};

QTEST_APPLESS_MAIN(TEST_PART_COMPARISON)

#include "test_part_comparison.moc"
