// SPDX-License-Identifier: MIT

// What emulated chips answer and do, command by command.
#include "chip_host.h"
#include "test_rows.h"

#include <QTest>

// A command to address 0.
struct PHASES
{
    int opcode = 0;
    int address_lines = 1;
    int data_lines = 1;
    int address_bytes = 0;
    int dummy_clocks = 0;
    int driven = 0;
    int opcode_lines = 1;

    GFPE_COMMAND command() const
    {
        GFPE_COMMAND made;
        made.opcode = static_cast<std::uint8_t>(opcode);
        made.opcode_lines = opcode_lines;
        made.address_lines = address_lines;
        made.data_lines = data_lines;
        made.address_bytes = address_bytes;
        made.dummy_clocks = dummy_clocks;
        made.driven_dummy_clocks = driven;
        return made;
    }
};
Q_DECLARE_METATYPE(PHASES)

class TEST_CHIP_COMMANDS : public QObject
{
    Q_OBJECT

private slots:
    void every_part_of_the_catalogue_is_a_chip_that_programs_and_erases()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            CHIP_HOST host(part);
            const BYTES id(part.jedec_id.begin(), part.jedec_id.end());

            QCOMPARE(host.raw(0x9F, {}, static_cast<std::int64_t>(id.size())), id);
            if (part.manufacturer == "Microchip (SST)")
                host.change(0x98);
            host.change(0x02, {0, 1, 0, 0x12, 0x34});

            QCOMPARE(host.raw(0x03, {0, 0, 0xFF}, 4), (BYTES{0xFF, 0x12, 0x34, 0xFF}));
            QVERIFY2(host.notes().empty(), (part.name + " " + host.notes()).c_str());
            QVERIFY2(host.chip->is_at_rest(), part.name.c_str());
        }
    }

    // As real chips do, which know no phases.
    void a_command_in_phases_and_as_plain_bytes_is_the_same_command()
    {
        CHIP_HOST host("W25Q128JV-Q");
        const BYTES old = {1, 2, 3, 4, 5, 6, 7, 8};
        host.chip->write_memory(0x123456, old.data(), old.size());
        GFPE_COMMAND command;
        command.opcode = 0x0B;
        command.address_bytes = 3;
        command.address = 0x123456;
        command.dummy_clocks = 8;
        command.in_length = 4;

        QCOMPARE(host.send(command), (BYTES{1, 2, 3, 4}));
        QCOMPARE(host.raw(0x0B, {0x12, 0x34, 0x56, 0x00}, 4), (BYTES{1, 2, 3, 4}));

        QCOMPARE(host.notes(), std::string());
    }

    void a_read_with_a_wrong_number_of_clocks_is_shifted_data()
    {
        rows<int, QByteArray, QString>({
            {"as it takes", 8, "\x01\x02\x03", ""},
            {"one clock too many", 9, "\x02\x04\x06", "0B: 9 dummy clocks instead of 8"},
            {"one clock missing", 7, "\x80\x81\x01", "0B: 7 dummy clocks instead of 8"},
            {"a byte too many", 16, "\x02\x03\x04", "0B: 16 dummy clocks instead of 8"},
            {"a byte missing", 0, "\xFF\x01\x02", "0B: 0 dummy clocks instead of 8"},
        });
    }
    void a_read_with_a_wrong_number_of_clocks_is_shifted()
    {
        const auto [clocks, answer, note] = row<int, QByteArray, QString>();
        CHIP_HOST host("W25Q128JV-Q");
        const BYTES old = {1, 2, 3, 4, 5};
        host.chip->write_memory(0, old.data(), old.size());
        GFPE_COMMAND command;
        command.opcode = 0x0B;
        command.address_bytes = 3;
        command.dummy_clocks = clocks;
        command.in_length = 3;

        QCOMPARE(host.send(command), BYTES(answer.begin(), answer.end()));
        QCOMPARE(QString::fromStdString(host.notes()), note);
    }

    void a_command_on_several_lines_data()
    {
        rows<QString, PHASES, QString, QString>({
            {"quad data", "W25Q128JV-Q", {0x6B, 1, 4, 3, 8, 7}, "1234", ""},
            {"quad address", "W25Q128JV-Q", {0xEB, 4, 4, 3, 6, 5}, "1234", ""},
            {"two lines", "W25Q128JV-Q", {0x3B, 1, 2, 3, 8, 7}, "1234", ""},
            {"address on too few",
             "W25Q128JV-Q",
             {0xEB, 1, 4, 3, 6, 5},
             "FFFF",
             "EB: the address came on one line, but the chip takes it on 4 lines: ignored"},
            {"address on too many",
             "W25Q128JV-Q",
             {0x6B, 4, 4, 3, 8, 7},
             "FFFF",
             "6B: the address came on 4 lines, but the chip takes it on one line: ignored"},
            {"data on too few",
             "W25Q128JV-Q",
             {0x6B, 1, 1, 3, 8, 7},
             "FFFF",
             "6B: the data are on one line, but the chip has them on 4 lines: ignored"},
            {"a clock too many shifts by four bits",
             "W25Q128JV-Q",
             {0x6B, 1, 4, 3, 9, 8},
             "2345",
             "6B: 9 dummy clocks instead of 8"},
            {"a clock missing", "W25Q128JV-Q", {0xEB, 4, 4, 3, 5, 4}, "F123", "EB: 5 dummy clocks instead of 6"},
            {"a fourth address byte",
             "W25Q256JV-Q",
             {0xEB, 4, 4, 4, 6, 5},
             "3456",
             "EB: 4 address bytes instead of 3, as the chip is in 3-byte mode"},
            {"mode clocks that float",
             "W25Q128JV-Q",
             {0xEB, 4, 4, 3, 6, 1},
             "1234",
             "EB: the mode clocks are not driven high, which the chip could take for continuous reading"},
            {"as many mode clocks as Micron has", "MT25QL128ABA", {0xEB, 4, 4, 3, 10, 1}, "1234", ""},
            {"one more than it has",
             "MT25QL128ABA",
             {0xEB, 4, 4, 3, 10, 0},
             "1234",
             "EB: the mode clocks are not driven high, which the chip could take for continuous reading"},
            {"the host does not let go",
             "W25Q128JV-Q",
             {0xEB, 4, 4, 3, 6, 6},
             "1234",
             "EB: host and chip drive a line at the same time"},
            {"of which two lines are the chip's",
             "W25Q128JV-Q",
             {0x3B, 1, 2, 3, 8, 8},
             "1234",
             "3B: host and chip drive a line at the same time"},
            {"on one line it need not", "W25Q128JV-Q", {0x0B, 1, 1, 3, 8, 8}, "1234", ""},
            {"eight mode clocks on one line", "S25HL512T", {0x0C, 1, 1, 4, 16, 16}, "1234", ""},
            {"of which seven are driven",
             "S25HL512T",
             {0x0C, 1, 1, 4, 16, 7},
             "1234",
             "0C: the mode clocks are not driven high, which the chip could take for continuous reading"},
            {"quad data, four address bytes always", "MT25QL256ABA", {0x6C, 1, 4, 4, 8, 7}, "1234", ""},
            {"quad address, four always", "MT25QL256ABA", {0xEC, 4, 4, 4, 10, 9}, "1234", ""},
            {"lines of an address that is not there", "W25Q128JV-Q", {0x9F, 4, 1, 0, 0, 0}, "EF40", ""},
            {"ten clocks", "S25FL128L", {0xEB, 4, 4, 3, 10, 9}, "1234", ""},
            {"an opcode on four lines",
             "W25Q128JV-Q",
             {0xEB, 4, 4, 3, 6, 5, 4},
             "FFFF",
             "EB: sent on 4 lines, but the chip takes commands on one: ignored"},
            {"not a number of lines",
             "W25Q128JV-Q",
             {0xEB, 3, 4, 3, 6, 5},
             "FFFF",
             "EB: not a command: wrong numbers of lines, bytes or clocks"},
            {"not a number of address bytes",
             "W25Q128JV-Q",
             {0xEB, 4, 4, 5, 6, 5},
             "FFFF",
             "EB: not a command: wrong numbers of lines, bytes or clocks"},
        });
    }
    void a_command_on_several_lines()
    {
        const auto [part, phases, answer, note] = row<QString, PHASES, QString, QString>();
        CHIP_HOST host(part.toStdString());
        host.play("06; 01 0002; ready; 06; 31 02; ready");
        host.chip->clear_notes();
        const BYTES old = {0x12, 0x34, 0x56};
        host.chip->write_memory(0, old.data(), old.size());
        GFPE_COMMAND command = phases.command();
        command.in_length = 2;

        QCOMPARE(QString::fromStdString(hex(host.send(command))), answer);
        QCOMPARE(QString::fromStdString(host.notes()), note);
    }

    void a_program_on_several_lines_data()
    {
        rows<QString, QString, PHASES, QString, QString>({
            {"quad data", "W25Q128JV-Q", "06; 31 02", {0x32, 1, 4, 3, 0, 0}, "12", ""},
            {"quad address", "MX25L12833F", "06; 01 40", {0x38, 4, 4, 3, 0, 0}, "12", ""},
            {"of SST26", "SST26VF032B", "06; 98; ready; 06; 01 0002", {0x32, 4, 4, 3, 0, 0}, "12", ""},
            {"without quad enable",
             "W25Q128JV-Q",
             "",
             {0x32, 1, 4, 3, 0, 0},
             "FF",
             "32: four lines, but quad enable is not set: ignored"},
            {"without it on Macronix",
             "MX25L12833F",
             "",
             {0x38, 4, 4, 3, 0, 0},
             "FF",
             "38: four lines, but quad enable is not set: ignored"},
            {"Micron needs none", "MT25QL128ABA", "", {0x32, 1, 4, 3, 0, 0}, "12", ""},
            {"quad address, four always", "MT25QL256ABA", "", {0x3E, 4, 4, 4, 0, 0}, "12", ""},
            {"four address bytes always", "W25Q256JV-Q", "06; 31 02", {0x34, 1, 4, 4, 0, 0}, "12", ""},
            {"a fourth address byte",
             "W25Q256JV-Q",
             "06; 31 02",
             {0x32, 1, 4, 4, 0, 0},
             "FF",
             "32: 4 address bytes instead of 3, as the chip is in 3-byte mode; "
             "32: data on other lines than the address, in the wrong place: ignored"},
            {"a fourth one is data on one line",
             "W25Q256JV-Q",
             "",
             {0x02, 1, 1, 4, 0, 0},
             "00",
             "02: 4 address bytes instead of 3, as the chip is in 3-byte mode"},
            {"a missing one is taken from the data",
             "W25Q256JV-Q",
             "B7",
             {0x02, 1, 1, 3, 0, 0},
             "FF",
             "02: 3 address bytes instead of 4, as the chip is in 4-byte mode; "
             "02: a program command without data: ignored"},
            {"dummy clocks are data",
             "W25Q128JV-Q",
             "",
             {0x02, 1, 1, 3, 8, 8},
             "FF",
             "02: 8 dummy clocks instead of 0"},
        });
    }
    void a_program_on_several_lines()
    {
        const auto [part, before, phases, wanted, note] = row<QString, QString, PHASES, QString, QString>();
        CHIP_HOST host(part.toStdString());
        host.play(before.toStdString() + "; ready; 06");
        GFPE_COMMAND command = phases.command();
        const BYTES data = {0x12};
        command.out = data.data();
        command.out_length = data.size();

        host.send(command);

        QCOMPARE(QString::fromStdString(hex(host.memory(0, 1))), wanted);
        QCOMPARE(QString::fromStdString(host.notes()), note);
    }
};

QTEST_APPLESS_MAIN(TEST_CHIP_COMMANDS)

#include "test_chip_commands.moc"
