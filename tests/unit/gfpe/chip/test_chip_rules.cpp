// SPDX-License-Identifier: MIT

// The rules of real chips, one a row: commands, what the chip answers, and what it notes.
#include "chip_host.h"
#include "test_rows.h"

#include <QTest>

namespace {

// A row: the part, what is sent to its chip, what that answers, its notes.
using TEXT = QString;

void play_row()
{
    const auto [part, script, answers, notes] = row<TEXT, TEXT, TEXT, TEXT>();
    CHIP_HOST host(part.toStdString());

    QCOMPARE(QString::fromStdString(host.play(script.toStdString())), answers);
    QCOMPARE(QString::fromStdString(host.notes()), notes);
}

// The opcodes that a chip knows.
QString commands_of(const std::string& part)
{
    CHIP_HOST host(part);
    QStringList known;
    for (int opcode = 0; opcode < 256; ++opcode) {
        host.chip->clear_notes();
        host.raw(opcode);
        if (host.notes().find("unknown to this chip") == std::string::npos)
            known.append(QStringLiteral("%1").arg(opcode, 2, 16, QLatin1Char('0')).toUpper());
        host.chip->cycle_power();
    }
    return known.join(QLatin1Char(' '));
}

} // namespace

class TEST_CHIP_RULES : public QObject
{
    Q_OBJECT

private slots:
    void write_enable_data()
    {
        rows<TEXT, TEXT, TEXT, TEXT>({
            {"06 sets it, 04 clears it", "W25Q80DV", "06; 05 ?1; 04; 05 ?1", "02 00", ""},
            {"a program clears it when it is done", "W25Q80DV", "06; 02 000000 12; 05 ?1; ready; 05 ?1", "03 00", ""},
            {"an erase does", "W25Q80DV", "06; 20 000000; 05 ?1; ready; 05 ?1", "03 00", ""},
            {"a register write does", "W25Q80DV", "06; 01 00; 05 ?1; ready; 05 ?1", "03 00", ""},
            {"the power does", "W25Q80DV", "06; off; 05 ?1", "00", ""},
            {"a reset does", "W25Q128JV-Q", "06; 66; 99; ready; 05 ?1", "00", ""},
            {"without it nothing is programmed", "W25Q80DV", "02 000000 12; 05 ?1; 03 000000 ?1", "00 FF",
             "02: not write enabled: ignored"},
            {"without it nothing is erased", "W25Q80DV", "06; 02 000000 12; ready; 20 000000; 03 000000 ?1", "12",
             "20: not write enabled: ignored"},
            {"without it the chip is not erased", "W25Q80DV", "06; 02 000000 12; ready; C7; 60; 03 000000 ?1", "12",
             "C7: not write enabled: ignored; 60: not write enabled: ignored"},
            {"without it no register is written", "W25Q80DV", "01 1C; 05 ?1", "00", "01: not write enabled: ignored"},
            {"06 with data does nothing", "W25Q80DV", "06 00; 05 ?1", "00",
             "06: has no address and no data, but more than the opcode came: ignored"},
            {"06 with clocks behind it neither", "W25Q80DV", "06 ?1; 05 ?1", "FF 00",
             "06: has no address and no data, but more than the opcode came: ignored"},
            {"50 enables one register write, until the power goes", "W25Q80DV",
             "50; 01 1C; ready; 05 ?1; 01 00; 05 ?1; off; 05 ?1", "1C 1C 00", "01: not write enabled: ignored"},
            {"50 enables no program", "W25Q80DV", "50; 02 000000 12; 03 000000 ?1", "FF",
             "02: not write enabled: ignored"},
        });
    }
    void write_enable() { play_row(); }

    void busy_data()
    {
        rows<TEXT, TEXT, TEXT, TEXT>({
            {"a busy chip shows its status alone", "W25Q80DV", "06; 02 000000 12; 05 ?2; 03 000000 ?1; 9F ?3",
             "0303 FF FFFFFF", "03: while the chip is busy: ignored; 9F: while the chip is busy: ignored"},
            {"it does not hear 06", "W25Q80DV", "06; 20 000000; 06; ready; 05 ?1", "00",
             "06: while the chip is busy: ignored"},
            {"a reset ends what it does", "W25Q128JV-Q", "06; C7; 66; 99; 05 ?1; ready; 05 ?1", "01 00",
             "99: reset while busy: what was programmed or erased is in an undefined state"},
            {"its flags show it", "MT25QL128ABA", "70 ?1; 06; 20 000000; 70 ?1; ready; 70 ?1", "80 00 80", ""},
            {"bit 7 shows it, too", "SST26VF032B", "05 ?1; 06; 98; 05 ?1; ready; 05 ?1", "00 83 00", ""},
            {"99 alone is not a reset", "W25Q128JV-Q", "06; 99; 05 ?1", "02", "99: not directly after 66: ignored"},
            {"a command between 66 and 99 keeps it from being one", "W25Q128JV-Q", "66; 06; 99; 05 ?1", "02",
             "99: not directly after 66: ignored"},
        });
    }
    void busy() { play_row(); }

    void registers_data()
    {
        rows<TEXT, TEXT, TEXT, TEXT>({
            {"a write keeps without power", "W25Q80DV", "06; 01 1C02; ready; off; 05 ?1; 35 ?1", "1C 02", ""},
            {"busy and write enable cannot be written", "W25Q80DV", "06; 01 7F; ready; 05 ?1", "7C", ""},
            {"one byte clears the second register", "W25Q80DV", "06; 01 0002; ready; 06; 01 00; ready; 35 ?1", "00",
             ""},
            {"but not where 31 writes it", "GD25Q64E", "06; 31 02; ready; 06; 01 1C; ready; 35 ?1", "02", ""},
            {"where 31 writes it, 01 takes one byte", "GD25Q64E", "06; 01 0002; 35 ?1", "00",
             "01: 2 data bytes, but the chip takes 1: ignored"},
            {"three bytes are too many", "W25Q80DV", "06; 01 000200; 35 ?1", "00",
             "01: 3 data bytes, but the chip takes 1 or 2: ignored"},
            {"none are too few", "W25Q80DV", "06; 01", "", "01: 0 data bytes, but the chip takes 1 or 2: ignored"},
            {"the third register", "W25Q128JV-Q", "06; 11 60; ready; 15 ?1", "60", ""},
            {"the configuration of Macronix", "MX25L12833F", "06; 01 4007; ready; 05 ?1; 15 ?1", "40 07", ""},
            {"bits that are only ever set", "W25Q128JV-Q", "06; 31 08; ready; 06; 31 00; ready; 35 ?1", "08",
             "31: sets bits of the second status register that can never be cleared"},
            {"the lock of the register is said", "W25Q80DV", "06; 01 80; ready; 05 ?1", "80",
             "01: sets bit 7, which locks the status register as long as the write protection pin is low"},
            {"a read without clocks", "W25Q80DV", "05", "", "05: a register is read, but nothing is asked for"},
            {"a value is repeated", "W25Q80DV", "06; 05 ?4", "02020202", ""},
            {"the extended address", "W25Q256JV-Q", "C8 ?1; 06; C5 01; C8 ?1; 05 ?1; off; C8 ?1", "00 01 00 00", ""},
            {"it needs a write enable", "W25Q256JV-Q", "C5 01; C8 ?1", "00", "C5: not write enabled: ignored"},
            {"the bank of ISSI needs none", "IS25LP256D", "17 81; 16 ?1; 17 00; 16 ?1", "81 00", ""},
            {"the bank has one byte", "IS25LP256D", "17; 16 ?1", "00", "17: takes one data byte: ignored"},
        });
    }
    void registers() { play_row(); }

    void programs_data()
    {
        rows<TEXT, TEXT, TEXT, TEXT>({
            {"bits only go to 0", "W25Q80DV", "06; 02 000000 F0; ready; 06; 02 000000 3C; ready; 03 000000 ?1", "30",
             "02: programs cells that are not erased: bits that are 0 stay 0"},
            {"FF leaves a byte alone", "W25Q80DV", "06; 02 000000 1234; ready; 06; 02 000000 FF34; ready; 03 000000 ?2",
             "1234", ""},
            {"a page goes on at its start", "W25Q80DV", "06; 02 0001FE 12345678; ready; 03 0001FD ?4; 03 000100 ?3",
             "FF1234FF 5678FF", "02: goes past the end of its page of 256 bytes, and on at its start"},
            {"of more than a page the last bytes stay", "W25Q80DV",
             "06; 02 000102 11*2 22*255 33; ready; 03 000102 ?3; 03 000101 ?1; 03 000100 ?1; 03 000200 ?1",
             "223322 22 22 FF", "02: goes past the end of its page of 256 bytes, and on at its start"},
            {"a page of 512 bytes", "S25FL512S", "06; 02 0001FF 12; ready; 03 0001FF ?2", "12FF", ""},
            {"its end is later", "S25FL512S", "06; 02 0000FF 1234; ready; 03 0000FF ?2", "1234", ""},
            {"without data", "W25Q80DV", "06; 02 000000; 05 ?1", "02", "02: a program command without data: ignored"},
            {"without its whole address", "W25Q80DV", "06; 02 0000; 05 ?1", "02",
             "02: ended before its address was complete: ignored"},
            {"with a read behind it", "W25Q80DV", "06; 02 000000 ?1; 05 ?1", "FF 02",
             "02: a program command without data: ignored"},
            {"past the end", "W25Q80DV", "06; 02 100010 12; ready; 03 000010 ?1", "12",
             "02: an address past the end, which the chip takes without its highest bits"},
        });
    }
    void programs() { play_row(); }

    // A block of zeros around the place, so that more and less than wanted would be seen.
    void erases_data()
    {
        rows<TEXT, qint64, qint64, TEXT>({
            {"4K", "MX25L12833F", 0x12000, 0x1000, "20 012345"},
            {"32K", "MX25L12833F", 0x10000, 0x8000, "52 012345"},
            {"64K", "MX25L12833F", 0x10000, 0x10000, "D8 012345"},
            {"64K by 52", "MX25L1606E", 0x10000, 0x10000, "52 012345"},
            {"256K", "S25FL512S", 0x40000, 0x40000, "D8 047FFF"},
            {"4K with four address bytes", "MX25L25645G", 0x12000, 0x1000, "21 00012345"},
            {"32K with four", "MX25L25645G", 0x10000, 0x8000, "5C 00012345"},
            {"64K with four", "MX25L25645G", 0x10000, 0x10000, "DC 00012345"},
            {"256 bytes", "P25Q32SH", 0x12300, 0x100, "81 012345"},
            {"a sector that begins with small ones", "S25FS128S", 0x08000, 0x8000, "D8 000000"},
            {"their own command", "S25FS128S", 0x01000, 0x1000, "20 001FFF"},
            {"a sector of which the first half are small ones", "S25HL512T", 0x20000, 0x20000, "DC 00000000"},
            {"the next one", "S25HL512T", 0x40000, 0x40000, "DC 00040000"},
            {"8K at the bottom", "SST26VF032B", 0x02000, 0x2000, "D8 003000"},
            {"32K behind them", "SST26VF032B", 0x08000, 0x8000, "D8 009000"},
            {"64K in between", "SST26VF032B", 0x10000, 0x10000, "D8 012345"},
            {"8K at the top", "SST26VF032B", 0x3FE000, 0x2000, "D8 3FFFFF"},
            {"32K before them", "SST26VF032B", 0x3F0000, 0x8000, "D8 3F0000"},
        });
    }
    void erases()
    {
        const auto [part, start, length, command] = row<TEXT, qint64, qint64, TEXT>();
        CHIP_HOST host(part.toStdString());
        if (part.startsWith(QLatin1String("SST26")))
            host.change(0x98);
        const std::int64_t end = std::min<std::int64_t>(host.chip->get_size(), 0x400000);
        host.chip->fill_memory(0x00);

        host.play("06; " + command.toStdString() + "; ready");

        BYTES wanted(static_cast<std::size_t>(end), 0x00);
        std::fill_n(wanted.begin() + start, length, std::uint8_t(0xFF));
        QVERIFY(host.memory(0, wanted.size()) == wanted);
        // Who gives such an address means another size, or another place.
        const bool is_inside = command.mid(3).toLongLong(nullptr, 16) > start;
        const std::string note = command.left(2).toStdString() + ": an address within its sector of " +
                                 std::to_string(length) + " bytes, which is erased from its start on";
        QCOMPARE(host.notes(), is_inside ? note : std::string());
    }

    void whole_erases_data()
    {
        rows<TEXT, TEXT, TEXT, TEXT>({
            {"C7", "W25Q80DV", "06; C7; ready; 03 000000 ?1; 03 0FFFFF ?1", "FF FF", ""},
            {"60", "W25Q80DV", "06; 60; ready; 03 000000 ?1; 03 0FFFFF ?1", "FF FF", ""},
            {"with an address", "W25Q80DV", "06; C7 000000; ready; 03 000000 ?1", "00",
             "C7: data behind an erase command: ignored"},
            {"with data", "W25Q80DV", "06; 20 000000 00; ready; 03 000000 ?1", "00",
             "20: data behind an erase command: ignored"},
            {"die by die", "MT25QL01GBBB",
             "B7; 06; B7; 06; C4 04000000; ready; 03 03FFFFFF ?1; 03 04000000 ?1; "
             "03 07FFFFFF ?1; 03 00000000 ?1",
             "00 FF FF 00", "B7: not write enabled: ignored"},
            {"the selected die", "W25M512JV", "C2 01; 06; C7; ready; 03 000000 ?1; C2 00; 03 000000 ?1", "FF 00", ""},
        });
    }
    void whole_erases()
    {
        const auto [part, script, answers, notes] = row<TEXT, TEXT, TEXT, TEXT>();
        CHIP_HOST host(part.toStdString());
        host.chip->fill_memory(0x00);

        QCOMPARE(QString::fromStdString(host.play(script.toStdString())), answers);
        QCOMPARE(QString::fromStdString(host.notes()), notes);
    }

    void protection_data()
    {
        rows<TEXT, TEXT, qint64, qint64>({
            {"a 64th, from the top", "W25Q128JV-Q", "06; 01 04", 0xFC0000, 0x1000000},
            {"a 32nd", "W25Q128JV-Q", "06; 01 08", 0xF80000, 0x1000000},
            {"half", "W25Q128JV-Q", "06; 01 18", 0x800000, 0x1000000},
            {"all", "W25Q128JV-Q", "06; 01 1C", 0, 0x1000000},
            {"from the bottom", "W25Q128JV-Q", "06; 01 24", 0, 0x40000},
            {"a sector at the top", "W25Q128JV-Q", "06; 01 44", 0xFFF000, 0x1000000},
            {"eight at most", "W25Q128JV-Q", "06; 01 78", 0, 0x8000},
            {"at least 64K", "W25Q80DV", "06; 01 04", 0xF0000, 0x100000},
            {"turned round", "W25Q128JV-Q", "06; 01 0440", 0, 0xFC0000},
            {"all but none", "W25Q128JV-Q", "06; 01 0040", 0, 0x1000000},
            {"four bits", "MX25L12833F", "06; 01 04", 0xFF0000, 0x1000000},
            {"four bits, four blocks", "MX25L12833F", "06; 01 0C", 0xFC0000, 0x1000000},
            {"four bits, all", "MX25L12833F", "06; 01 3C", 0, 0x1000000},
            {"four bits, more than the chip", "MX25L12833F", "06; 01 38", 0, 0x1000000},
            {"four bits, from the bottom", "MX25L12833F", "06; 01 0408", 0, 0x10000},
            {"four bits with their own from the bottom", "W25Q256JV-Q", "06; 01 44", 0, 0x10000},
            {"Micron's fourth bit", "MT25QL128ABA", "06; 01 40", 0x800000, 0x1000000},
            {"Micron's, from the bottom", "MT25QL128ABA", "06; 01 28", 0, 0x20000},
            {"Infineon", "S25FS128S", "06; 01 04", 0xFC0000, 0x1000000},
            {"quad enable protects nothing", "MX25L12833F", "06; 01 40", 0, 0},
            {"until the power is back", "W25Q128JV-Q", "06; 01 04; ready; off", 0xFC0000, 0x1000000},
            {"not when it was volatile", "W25Q128JV-Q", "50; 01 04; off", 0, 0},
        });
    }
    // `start` to `end` cannot be programmed or erased; the bytes on both sides can.
    void protection()
    {
        const auto [part, script, start, end] = row<TEXT, TEXT, qint64, qint64>();
        CHIP_HOST host(part.toStdString());
        const std::int64_t size = host.chip->get_size();
        host.play(script.toStdString());
        host.wait_until_ready();
        for (const std::int64_t position : {start - 1, start, end - 1, end}) {
            if (position < 0 || position >= size)
                continue;
            const bool is_protected = position >= start && position < end;
            const auto address = QStringLiteral("%1").arg(position, 6, 16, QLatin1Char('0')).toStdString();
            host.chip->clear_notes();
            host.play("06; 02 " + address + " 00; ready; 30; 04");
            QVERIFY2((host.memory(position, 1)[0] == 0xFF) == is_protected, address.c_str());
            QCOMPARE(host.notes().find("02: protected: nothing was programmed") != std::string::npos, is_protected);
            const std::uint8_t zero = 0;
            host.chip->write_memory(position, &zero, 1);
            host.play((end - start < 0x10000 ? "06; 20 " : "06; D8 ") + address + "; ready; 30; 04");
            QVERIFY2((host.memory(position, 1)[0] == 0x00) == is_protected, address.c_str());
        }
        host.chip->clear_notes();
        host.play("06; C7");
        QCOMPARE(host.notes() == "C7: protected: nothing was erased", end > start);
    }

    void refusals_of_protected_chips_data()
    {
        rows<TEXT, TEXT, TEXT, TEXT>({
            {"flags", "MT25QL128ABA", "06; 01 5C; ready; 06; 02 000000 00; 70 ?1; D8 000000; 70 ?1; 50; 70 ?1",
             "92 B2 80", "02: protected: nothing was programmed; D8: protected: nothing was erased"},
            {"status, busy until it is cleared", "S25FS128S",
             "06; 01 1C; ready; 06; 02 000000 00; 05 ?1; ready; 05 ?1; 30; 05 ?1", "5F 5F 1C",
             "02: protected: nothing was programmed"},
            {"status of an erase", "S25FS128S", "06; 01 1C; ready; 06; D8 000000; 05 ?1; 30; 05 ?1", "3F 1C",
             "D8: protected: nothing was erased"},
            {"others keep the write enable", "W25Q80DV", "06; 01 1C; ready; 06; 02 000000 00; 05 ?1", "1E",
             "02: protected: nothing was programmed"},
            {"quad enable is not the bottom", "GD25Q256C", "06; 01 44; ready; 06; 02 000000 00; ready; 03 000000 ?1",
             "00", ""},
            {"locked at power-up", "SST26VF032B", "06; 02 000000 00; 03 000000 ?1", "FF",
             "02: protected: nothing was programmed"},
            {"unlocked", "SST26VF032B", "06; 98; ready; 06; 02 000000 00; ready; 03 000000 ?1", "00", ""},
            {"locked again", "SST26VF032B", "06; 98; ready; off; 06; 02 000000 00; 03 000000 ?1", "FF",
             "02: protected: nothing was programmed"},
            {"98 without write enable", "SST26VF032B", "98; 72 ?1", "55", "98: not write enabled: ignored"},
            {"the locks", "SST26VF032B", "72 ?10; 06; 98; ready; 72 ?10; 06; 42 5555 FF*8; ready; 72 ?10",
             "5555FFFFFFFFFFFFFFFF 00000000000000000000 5555FFFFFFFFFFFFFFFF", ""},
            {"as many as the chip has", "SST26VF016B", "06; 42 5555 FF*8; 72 ?6", "5555FFFFFFFF",
             "42: takes 6 data bytes: ignored"},
            {"42 without write enable", "SST26VF016B", "42 00*6; 72 ?1", "55", "42: not write enabled: ignored"},
            {"the lock of one block", "SST26VF032B",
             "06; 42 0000 00*7 01; ready; 06; 02 010000 00; 02 020000 00; ready; 03 010000 ?1; 03 020000 ?1", "FF 00",
             "02: protected: nothing was programmed"},
            {"of the lowest", "SST26VF032B",
             "06; 42 0001 00*8; ready; 06; 02 001FFF 00; 02 002000 00; ready; 03 001FFF ?2", "FF00",
             "02: protected: nothing was programmed"},
            {"of the highest", "SST26VF032B",
             "06; 42 4000 00*8; ready; 06; 02 3FE000 00; 02 3FDFFF 00; ready; 03 3FDFFF ?2", "00FF",
             "02: protected: nothing was programmed"},
            {"of the upper 32K", "SST26VF032B",
             "06; 42 0000 80 00*7; ready; 06; 02 3F0000 00; 02 3EFFFF 00; ready; 03 3EFFFF ?2", "00FF",
             "02: protected: nothing was programmed"},
            {"of the lower 32K", "SST26VF032B",
             "06; 42 0000 40 00*7; ready; 06; 02 008000 00; 02 007FFF 00; ready; 03 007FFF ?2", "00FF",
             "02: protected: nothing was programmed"},
        });
    }
    void refusals_of_protected_chips() { play_row(); }

    void addresses_data()
    {
        rows<TEXT, TEXT, TEXT, TEXT>({
            {"four bytes behind B7", "MX25L25645G",
             "B7; 15 ?1; 06; 02 01000000 12; ready; E9; 15 ?1; 03 000000 ?1; "
             "B7; 03 01000000 ?1",
             "20 00 FF 12", ""},
            {"the mode of Winbond", "W25Q256JV-Q", "B7; 15 ?1; E9; 15 ?1", "01 00", ""},
            {"the mode of Micron needs a write enable", "MT25QL256ABA",
             "B7; 70 ?1; 06; B7; 70 ?1; 05 ?1; 06; E9; 70 ?1", "80 81 00 80", "B7: not write enabled: ignored"},
            {"the bank of Infineon", "S25FL256S-64K",
             "17 80; 16 ?1; 06; 02 01000000 12; ready; 17 00; 16 ?1; "
             "03 000000 ?1; 13 01000000 ?1",
             "80 00 FF 12", ""},
            {"the bank in place of the fourth byte", "S25FL256S-64K",
             "17 01; 06; 02 000000 12; ready; 17 00; "
             "03 000000 ?1; 13 01000000 ?1",
             "FF 12", ""},
            {"the extended address in place of the fourth byte", "W25Q256JV-Q",
             "06; C5 01; 06; 02 000000 12; ready; 03 000000 ?1; 06; C5 00; 03 000000 ?1; 13 01000000 ?1", "12 FF 12",
             ""},
            {"which leaving sets", "W25Q256FV", "B7; E9; C8 ?1", "01", ""},
            {"not on its successor", "W25Q256JV-Q", "B7; E9; C8 ?1", "00", ""},
            {"a reset leaves it", "W25Q256JV-Q", "B7; 66; 99; ready; 15 ?1", "00", ""},
            {"the power leaves it", "W25Q256JV-Q", "B7; off; 15 ?1", "00", ""},
            {"a small chip has no mode", "W25Q128JV-Q", "B7", "", "B7: unknown to this chip: ignored"},
            {"commands that always take four", "MX25L25645G",
             "06; 12 01000000 12; ready; 13 01000000 ?1; 0C 01000000 00 ?1; 06; 21 01000000; ready; 13 01000000 ?1",
             "12 12 FF", ""},
            {"a read past the end goes on at the start", "W25Q80DV",
             "06; 02 0FFFFF 12; ready; 06; 02 000000 34; ready; 03 0FFFFF ?2", "1234",
             "03: reads past the end, and goes on at the start"},
            {"a read that is too early", "W25Q80DV", "06; 02 000000 12; ready; 0B 000000 ?2", "FF12", ""},
            {"a read that is too late", "W25Q80DV", "06; 02 000000 1234; ready; 03 000000 00 ?1", "34",
             "03: 32 clocks between opcode and answer instead of 24"},
        });
    }
    void addresses() { play_row(); }

    void dies_data()
    {
        rows<TEXT, TEXT, TEXT, TEXT>({
            {"each has its own cells", "W25M512JV", "C2 01; 06; 02 000000 12; ready; 03 000000 ?1; C2 00; 03 000000 ?1",
             "12 FF", ""},
            {"its own registers", "W25M512JV", "C2 01; 06; 05 ?1; C2 00; 05 ?1", "02 00", ""},
            {"its own mode", "W25M512JV", "C2 01; B7; 15 ?1; C2 00; 15 ?1", "01 00", ""},
            {"there are two", "W25M512JV", "C2 02; 06; C2 01; 05 ?1", "00", "C2: no such die: ignored"},
            {"no number", "W25M512JV", "C2", "", "C2: takes one data byte: ignored"},
            {"the first one after power-up", "W25M512JV", "C2 01; 06; 02 000000 12; ready; off; 03 000000 ?1", "FF",
             ""},
            {"one memory, of which one die shows that it is busy", "W25Q01JV-Q",
             "06; DC 04000000; 05 ?1; C2 01; 05 ?1; 03 000000 ?1; ready; 05 ?1", "02 03 FF 00",
             "03: while the chip is busy: ignored"},
            {"four of them", "W25Q02JV-M", "C2 03; C2 04", "", "C2: no such die: ignored"},
            {"one for others", "W25Q512JV-Q", "C2 00", "", "C2: unknown to this chip: ignored"},
        });
    }
    void dies() { play_row(); }

    void identification_data()
    {
        rows<TEXT, TEXT, TEXT, TEXT>({
            {"an ID begins again", "W25Q128JV-Q", "9F ?8", "EF4018EF4018EF40", ""},
            {"Micron's is 20 bytes long", "MT25QL128ABA", "9F ?22", "20BA181044000000000000000000000000000000FFFF", ""},
            {"without options", "N25Q128A13", "9F ?6; 9E ?3", "20BA18100000 20BA18", ""},
            {"Infineon's ends", "S25FL256S-64K", "9F ?8", "0102194D0180FFFF", ""},
            {"maker and signature", "W25Q128JV-Q", "90 000000 ?3; 90 000001 ?2", "EF17EF 17EF", ""},
            {"the signature", "MX25L12833F", "AB 000000 ?2", "1717", ""},
            {"deep power-down", "W25Q128JV-Q", "B9; 9F ?1; 06; AB; 9F ?1; 05 ?1", "FF EF 00",
             "9F: while the chip is in deep power-down, which only AB ends: ignored; "
             "06: while the chip is in deep power-down, which only AB ends: ignored"},
            {"AB with an answer ends it, too", "W25Q128JV-Q", "B9; AB 000000 ?1; 9F ?1", "17 EF", ""},
            {"the power ends it", "W25Q128JV-Q", "B9; off; 9F ?1", "EF", ""},
            {"nothing asked for", "W25Q128JV-Q", "9F", "", "9F: an ID is read, but nothing is asked for"},
            {"SFDP from anywhere", "W25Q128JV-Q", "5A 000001 00 ?3; 5A 000000 ?2; 5A 00F000 00 ?1", "464450 FF53 FF",
             ""},
            {"QPI is not emulated", "SST26VF032B", "38; 9F ?1", "BF",
             "38: starts commands on four lines (QPI), which this emulation does not have: ignored"},
        });
    }
    void identification() { play_row(); }

    void each_maker_has_its_commands_data()
    {
        rows<TEXT>({
            {"MX25L1606E", "01 02 03 04 05 06 0B 20 52 5A 60 90 9F AB B9 C7 D8"},
            {"MX25L12833F", "01 02 03 04 05 06 0B 15 20 35 38 3B 52 5A 60 66 6B 90 99 9F AB B9 C7 D8 EB"},
            {"MX25L25645G", "01 02 03 04 05 06 0B 0C 12 13 15 20 21 35 38 3B 3E 52 5A 5C 60 66 6B 6C 90 99 9F AB B7 B9 "
                            "C5 C7 C8 D8 DC E9 EB EC"},
            {"W25Q80DV", "01 02 03 04 05 06 0B 20 32 35 3B 50 52 5A 60 6B 90 9F AB B9 C7 D8 EB"},
            {"W25Q128JV-Q", "01 02 03 04 05 06 0B 11 15 20 31 32 35 3B 50 52 5A 60 66 6B 90 99 9F AB B9 C7 D8 EB"},
            {"W25Q256FV",
             "01 02 03 04 05 06 0B 11 15 20 31 32 35 3B 50 52 5A 60 66 6B 90 99 9F AB B7 B9 C5 C7 C8 D8 E9 EB"},
            {"W25Q256JV-Q", "01 02 03 04 05 06 0B 0C 11 12 13 15 20 21 31 32 34 35 3B 50 52 5A 60 66 6B 6C 90 99 9F AB "
                            "B7 B9 C5 C7 C8 D8 DC E9 EB EC"},
            {"W25M512JV",
             "01 02 03 04 05 06 0B 11 15 20 31 32 35 3B 50 5A 60 66 6B 90 99 9F AB B7 B9 C2 C5 C7 C8 D8 E9"},
            {"W25Q01JV-Q", "01 02 03 04 05 06 0B 0C 11 12 13 15 20 21 31 32 34 35 3B 50 52 5A 60 66 6B 6C 90 99 9F AB "
                           "B7 B9 C2 C5 C7 C8 D8 DC E9 EB EC"},
            {"N25Q128A13", "01 02 03 04 05 06 0B 20 32 35 38 3B 50 5A 66 6B 70 99 9E 9F C7 D8 EB"},
            {"N25Q512A13",
             "01 02 03 04 05 06 0B 0C 13 20 21 32 35 38 3B 50 5A 66 6B 6C 70 99 9E 9F B7 C4 C5 C8 D8 DC E9 EB EC"},
            {"MT25QL128ABA", "01 02 03 04 05 06 0B 20 32 35 38 3B 50 52 5A 60 66 6B 70 99 9E 9F AB B9 C7 D8 EB"},
            {"MT25QL256ABA", "01 02 03 04 05 06 0B 0C 12 13 20 21 32 34 35 38 3B 3E 50 52 5A 5C 60 66 6B 6C 70 99 9E "
                             "9F AB B7 B9 C5 C7 C8 D8 DC E9 EB EC"},
            {"MT25QL01GBBB", "01 02 03 04 05 06 0B 0C 12 13 20 21 32 34 35 38 3B 3E 50 52 5A 5C 66 6B 6C 70 99 9E 9F "
                             "AB B7 B9 C4 C5 C8 D8 DC E9 EB EC"},
            {"GD25Q64E", "01 02 03 04 05 06 0B 11 15 20 31 32 35 3B 50 52 5A 60 66 6B 90 99 9F AB B9 C7 D8 EB"},
            {"GD25LQ64C", "01 02 03 04 05 06 0B 11 15 20 32 35 3B 50 52 5A 60 66 6B 90 99 9F AB B9 C7 D8 EB"},
            {"GD25Q256C", "01 02 03 04 05 06 0B 0C 11 12 13 15 20 21 31 32 34 35 3B 50 52 5A 5C 60 66 6B 6C 90 99 9F "
                          "AB B7 B9 C5 C7 C8 D8 DC E9 EB EC"},
            {"IS25LP128F", "01 02 03 04 05 06 0B 20 32 35 38 3B 52 5A 60 66 6B 90 99 9F AB B9 C7 D7 D8 EB"},
            {"IS25LP256D", "01 02 03 04 05 06 0B 0C 12 13 16 17 20 21 32 34 35 38 3B 52 5A 5C 60 66 6B 6C 90 99 9F AB "
                           "B7 B9 C7 D8 DC EB EC"},
            {"S25FL128L", "01 02 03 04 05 06 0B 0C 12 13 20 32 34 35 3B 52 5A 60 66 6B 6C 90 99 9F AB B9 C7 D8 EB EC"},
            {"S25FL256L",
             "01 02 03 04 05 06 0B 0C 12 13 20 21 32 34 35 3B 52 5A 60 66 6B 6C 90 99 9F AB B7 B9 C7 D8 DC E9 EB EC"},
            {"S25FL128S-64K", "01 02 03 04 05 06 0B 0C 12 13 16 17 30 32 34 35 3B 5A 60 6B 6C 90 9F AB C7 D8 EB EC"},
            {"S25FS128S", "01 02 03 04 05 06 0B 0C 12 13 20 30 35 5A 60 66 99 9F C7 D8 EB EC"},
            {"S25FS512S", "01 02 03 04 05 06 0B 0C 12 13 30 35 5A 60 66 99 9F B7 C7 D8 EB EC"},
            {"S25FS256T", "01 02 03 04 05 06 0B 0C 12 13 30 35 5A 60 66 99 9F C7 EC"},
            {"S25HL512T", "01 02 03 04 05 06 0B 0C 12 13 30 35 5A 60 66 99 9F C7 DC EC"},
            {"S25HL02GT", "01 02 03 04 05 06 0B 0C 12 13 30 35 5A 66 99 9F DC EC"},
            {"XM25QH64A", "01 02 03 04 05 06 0B 20 3B 52 5A 60 66 90 99 9F AB B9 C7 D8 EB"},
            {"XM25QH128C", "01 02 03 04 05 06 0B 11 15 20 31 32 35 3B 50 52 5A 60 66 6B 90 99 9F AB B9 C7 D8 EB"},
            {"XM25QH512C", "01 02 03 04 05 06 0B 0C 11 12 13 15 20 21 31 32 34 35 3B 50 52 5A 60 66 6B 6C 90 99 9F AB "
                           "B7 B9 C7 D8 DC E9 EB EC"},
            {"P25Q32SH", "01 02 03 04 05 06 0B 20 31 32 35 3B 50 52 5A 60 6B 81 90 9F AB B9 C7 D8"},
            {"EN25QH128A", "01 02 03 04 05 06 0B 20 3B 5A 60 66 90 99 9F AB B9 C7 D8 EB"},
            {"AT25SF081", "01 02 03 04 05 06 0B 20 31 35 3B 50 52 60 6B 90 9F AB B9 C7 D8 EB"},
            {"AT25SF128A", "01 02 03 04 05 06 0B 20 31 32 35 3B 50 52 5A 60 6B 90 9F AB B9 C7 D8"},
            {"SST26VF032B", "01 02 03 04 05 06 0B 20 32 35 38 3B 42 5A 66 6B 72 98 99 9F C7 D8 EB"},
            {"XT25F256B",
             "01 02 03 04 05 06 0B 0C 12 13 20 21 31 32 34 35 3B 50 5A 60 6B 6C 90 9F AB B7 B9 C7 D8 DC E9"},
            {"FM25Q128", "01 02 03 04 05 06 0B 20 31 32 35 3B 50 52 5A 60 6B 90 9F AB B9 C7 D8 EB"},
        });
    }
    void each_maker_has_its_commands() { QCOMPARE(commands_of(QTest::currentDataTag()), row<TEXT>()); }
};

QTEST_APPLESS_MAIN(TEST_CHIP_RULES)

#include "test_chip_rules.moc"
