// SPDX-License-Identifier: MIT

// What "gfpdb sfdp" shows of read-outs.
#include "cli_command.h"
#include "output/sfdp_values.h"
#include "test_rows.h"

// The constants of the tests have names that enumerators of the library have as well.
#include "cli_test.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

const QString PARTS = SFDP_PARTS;
const QString OTHERS = SFDP_OTHERS;

constexpr const char* WHOLE = R"(SFDP revision      1.6                                               header
Table FF00         basic, 1.6, 16 DWORDs at 0x000030                 header
Table FFC2         not looked at, 1.0, 4 DWORDs at 0x000110          header
Table FF84         4-byte instructions, 1.0, 2 DWORDs at 0x0000C0    header
Basic table        1.6, 16 DWORDs                                    header
Density            1024Mb                                            DW2
Address bytes      3 or 4                                            DW1
Page size          256                                               DW11
Read 1-1-2         3B, 0 mode and 8 wait clocks                      DW1, DW4
Read 1-2-2         BB, 0 mode and 4 wait clocks                      DW1, DW4
Read 1-1-4         6B, 0 mode and 8 wait clocks                      DW1, DW3
Read 1-4-4         EB, 2 mode and 4 wait clocks                      DW1, DW3
Read 4-4-4         EB, 2 mode and 4 wait clocks                      DW5, DW7
Double rate        yes                                               DW1
Erase type 1       20, 4 KiB, typically 30 ms, at most 420 ms, with 4-byte address 21  DW8, DW10, 4-byte DW2
Erase type 2       52, 32 KiB, typically 160 ms, at most 2240 ms, with 4-byte address 5C  DW8, DW10, 4-byte DW2
Erase type 3       D8, 64 KiB, typically 288 ms, at most 4032 ms, with 4-byte address DC  DW9, DW10, 4-byte DW2
Page program       typically 256 us, at most 3072 us                 DW11
Chip erase         typically 256 s, at most 3584 s                   DW10, DW11
Busy               05 bit 0 is 1 while busy                          DW14
Quad enable        2: status register 1 bit 6                        DW15
Software reset     66 then 99                                        DW16
Enter 4-byte mode  B7, extended address register (C5)                DW16
Leave 4-byte mode  E9, extended address register (C5), hardware reset, software reset, power cycle  DW16
4-byte commands    13, 0C, 3C, BC, 6C, EC, 12, 3E                    4-byte DW1
)";

constexpr const char* SHORT = R"(SFDP revision  1.0                                       header
Table FF00     basic, 1.0, 9 DWORDs at 0x000030          header
Table FFB3     not looked at, 1.0, 3 DWORDs at 0x000060  header
Basic table    1.0, 9 DWORDs                             header
Density        16Mb                                      DW2
Address bytes  3                                         DW1
Read 1-1-2     3B, 0 mode and 8 wait clocks              DW1, DW4
Read 1-2-2     BB, 4 mode and 0 wait clocks              DW1, DW4
Read 1-1-4     6B, 0 mode and 8 wait clocks              DW1, DW3
Read 1-4-4     EB, 2 mode and 4 wait clocks              DW1, DW3
Double rate    yes                                       DW1
Erase type 1   20, 4 KiB                                 DW8
Erase type 2   52, 32 KiB                                DW8
Erase type 3   D8, 64 KiB                                DW9
Erase type 4   81, 256 bytes                             DW9
)";

// Values that no read-out of the tests has.
GFPDB_SFDP rare()
{
    GFPDB_SFDP sfdp;
    sfdp.major = 1;
    sfdp.minor = 8;
    sfdp.tables = {{0xFF81, 1, 0, 0x100, 6, 2}};
    sfdp.read_2_2_2 = GFPDB_SFDP_READ{0xBB, 1, 3};
    sfdp.erase = {{2, 0x52, 0, 1536, 7}};
    sfdp.page_program_us = 2000;
    sfdp.chip_erase_ms = 999;
    sfdp.busy_poll = 0x2;
    sfdp.soft_reset = 0x3F;
    sfdp.enter_4_byte = 0x7F;
    sfdp.leave_4_byte = 0x3FF;
    sfdp.instructions_4_byte = 0x1E00;
    sfdp.sector_maps = {{3, {{4096, 0x1}, {61440, 0xE}}}};
    return sfdp;
}

QString text_of(const GFPDB_SFDP& sfdp, const char* key)
{
    QStringList found;
    for (const GFPDB_PROPOSED_VALUE& value : sfdp_values(sfdp)) {
        if (value.key == key)
            found += q(value.title + ": " + value.text + " (" + value.source + ")");
    }
    return found.join('|');
}

} // namespace

class TEST_CLI_SFDP : public CLI_TEST
{
    Q_OBJECT

private slots:
    void a_read_out_is_shown_data()
    {
        rows<QString, QString, QString>({{"whole", PARTS + "/MX66L1G45G.bin", WHOLE, ""},
                                         {"short table", OTHERS + "/ZD25Q128C.bin", SHORT, ""},
                                         {"cut", PARTS + "/MX25R6435F.bin", "",
                                          "gfpdb: %1: warning: The table FFC2 is not in the read-out: it begins at "
                                          "0x110, and the read-out ends at 0x80.\ngfpdb: %1: warning: The table of "
                                          "4-byte instructions is not in the read-out: it begins at 0xC0, and the "
                                          "read-out ends at 0x80.\n"}});
    }
    void a_read_out_is_shown()
    {
        const auto [file, text, warnings] = row<QString, QString, QString>();
        const TOOL_RUN run = tool({"sfdp", file});
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(QString(run.err), warnings.contains('%') ? warnings.arg(file) : warnings);
        if (!text.isEmpty())
            QCOMPARE(QString(run.out), text);
        QCOMPARE(tool({"sfdp", "-"}, text_of_file(file)).out, run.out);
    }

    void its_values_are_printed_as_json()
    {
        const QString file = PARTS + "/MX25R6435F.bin";
        const QJsonObject object = json(tool({"sfdp", "--json", file})).object();
        QCOMPARE(object.keys(), (QStringList{"values", "warnings"}));
        QCOMPARE(object["values"].toArray()[5].toObject(),
                 (QJsonObject{{"key", "density"}, {"title", "Density"}, {"text", "64Mb"}, {"source", "DW2"}}));
        QCOMPARE(object["values"].toArray().size(), tool({"sfdp", file}).out.count('\n'));
        QVERIFY(object["warnings"].toArray()[0].toString().startsWith("The table FFC2 is not in the read-out: "));
        QCOMPARE(object["warnings"].toArray().size(), 2);
    }

    void what_cannot_be_read_is_an_error_data()
    {
        rows<QByteArray, QStringList, int, QString>(
            {{"no signature", "sfdp", {"sfdp", "FILE"}, 4, "FILE: The bytes do not begin with the signature \"SFDP\"."},
             {"no file", "", {"sfdp", "/none/x"}, 4, "/none/x: The file cannot be read: No such file or directory."},
             {"no regular file", "", {"sfdp", "/dev/null"}, 4, "/dev/null: The file cannot be read: "},
             {"too many bytes", QByteArray(65537, 'S'), {"sfdp", "FILE"}, 4, "FILE: The file cannot be read: "},
             {"as many as there can be", QByteArray(65536, 'x'), {"sfdp", "FILE"}, 4, "FILE: The bytes do not begin "},
             {"no ID",
              "",
              {"sfdp", "FILE", "--id", "C2 20 XY"},
              2,
              "\"C2 20 XY\" is not a device ID: at most 16 bytes, e.g. C2 20 19."},
             {"an empty ID",
              "",
              {"sfdp", "FILE", "--id", ""},
              2,
              "\"\" is not a device ID: at most 16 bytes, e.g. C2 20 19."}});
    }
    void what_cannot_be_read_is_an_error()
    {
        auto [bytes, arguments, exit_code, error] = row<QByteArray, QStringList, int, QString>();
        write_file(m_place->path("file"), bytes.toStdString());
        arguments.replaceInStrings("FILE", at("file"));
        error.replace("FILE", at("file"));
        const TOOL_RUN run = tool(arguments);
        QCOMPARE(run.exit_code, exit_code);
        QVERIFY2(QString(run.err).startsWith("gfpdb: " + error), run.err.constData());
        QCOMPARE(run.out, QByteArray());
    }

    void rare_values_are_shown_data()
    {
        rows<QString>(
            {{"revision", "SFDP revision: 1.8 (header)"},
             {"table", "Table FF81: sector map, 1.0, 6 DWORDs at 0x000100, of which 2 were read (header)"},
             {"density", ""},
             {"page-size", ""},
             {"address-bytes", "Address bytes: reserved (DW1)"},
             {"read-2-2-2", "Read 2-2-2: BB, 1 mode and 3 wait clocks (DW5, DW6)"},
             {"double-rate", "Double rate: no (DW1)"},
             {"erase-2", "Erase type 2: 52, 1536 bytes, typically 7 ms (DW8, DW10)"},
             {"page-program", "Page program: typically 2000 us (DW11)"},
             {"chip-erase", "Chip erase: typically 999 ms (DW10, DW11)"},
             {"busy-poll", "Busy: 70 bit 7 is 0 while busy (DW14)"},
             {"quad-enable", ""},
             {"soft-reset",
              "Software reset: F on four lines, 8 clocks, F on four lines, 10 clocks, F on four lines, 16 "
              "clocks, F0, 66 then 99, leave continuous read first (DW16)"},
             {"enter-4-byte", "Enter 4-byte mode: says nothing: all bits are 1 (DW16)"},
             {"leave-4-byte", "Leave 4-byte mode: says nothing: all bits are 1 (DW16)"},
             {"commands-4-byte", "4-byte commands: none (4-byte DW1)"},
             {"sector-map", "Sector map 3: 4 KiB (erase types 1), 60 KiB (erase types 2, 3, 4) (sector map)"}});
    }
    void rare_values_are_shown() { QCOMPARE(text_of(rare(), QTest::currentDataTag()), row<QString>()); }

    void every_bit_has_its_words_data()
    {
        rows<QString, int, QString>(
            {{"quad 0", "quad-enable", 0, "0: no bit"},
             {"quad 1", "quad-enable", 1, "1: status register 2 bit 1; a write of one byte clears register 2"},
             {"quad 3", "quad-enable", 3, "3: status register 2 bit 7, read by 3F and written by 3E"},
             {"quad 4", "quad-enable", 4, "4: status register 2 bit 1; a write of one byte leaves register 2"},
             {"quad 5", "quad-enable", 5, "5: status register 2 bit 1, read by 35 and written by 01"},
             {"quad 6", "quad-enable", 6, "6: status register 2 bit 1, read by 35 and written by 31"},
             {"quad 7", "quad-enable", 7, "7: reserved"},
             {"enter 0", "enter-4-byte", 0, "none"},
             {"enter 1", "enter-4-byte", 0x02, "06 then B7"},
             {"enter 3", "enter-4-byte", 0x18, "bank register (17), nonvolatile register (B1)"},
             {"enter 5", "enter-4-byte", 0xE0, "commands of their own, always 4-byte"},
             {"leave 0", "leave-4-byte", 0x300, "none"},
             {"leave 1", "leave-4-byte", 0x02, "06 then E9"},
             {"leave 3", "leave-4-byte", 0x18, "bank register (17), nonvolatile register (B1)"},
             {"leave 5", "leave-4-byte", 0x2E0, "hardware reset, software reset, power cycle"}});
    }
    void every_bit_has_its_words()
    {
        const auto [key, bits, words] = row<QString, int, QString>();
        GFPDB_SFDP sfdp;
        sfdp.quad_enable = sfdp.enter_4_byte = sfdp.leave_4_byte = bits;
        QVERIFY2(text_of(sfdp, qPrintable(key)).contains(": " + words + " (DW"),
                 qPrintable(text_of(sfdp, qPrintable(key))));
    }

    void a_density_is_shown_in_its_unit_data()
    {
        rows<qlonglong, QString>(
            {{"Mb", 1LL << 40, "1048576Mb"}, {"Kb", 3 << 19, "1536Kb"}, {"bits", 1000, "1000 bits"}});
    }
    void a_density_is_shown_in_its_unit()
    {
        const auto [bits, text] = row<qlonglong, QString>();
        GFPDB_SFDP sfdp;
        sfdp.density_bits = bits;
        QCOMPARE(text_of(sfdp, "density"), "Density: " + text + " (DW2)");
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_SFDP)
#include "test_cli_sfdp.moc"
