// SPDX-License-Identifier: MIT

// Emulated chips do what they say of themselves, whether a real part has said it or the table was made from its row.
#include "chip_host.h"
#include "test_rows.h"

#include <QTest>

namespace {

// The basic table of a chip, read as a host reads it.
struct TABLE
{
    explicit TABLE(CHIP_HOST& host) : bytes(host.raw(0x5A, {0, 0, 0, 0}, 256))
    {
        const std::size_t start = bytes[12] | bytes[13] << 8;
        for (std::size_t at = start; at < start + bytes[11] * std::size_t(4); at += 4)
            dwords.push_back(bytes[at] | bytes[at + 1] << 8 | bytes[at + 2] << 16 |
                             static_cast<std::uint32_t>(bytes[at + 3]) << 24);
    }

    // From the lowest bit of a double word, as the standard counts them from 1.
    std::uint32_t bits(std::size_t dword, int highest, int lowest) const
    {
        return dword > dwords.size() ? 0 : dwords[dword - 1] >> lowest & ((2u << (highest - lowest)) - 1);
    }
    std::int64_t density() const
    {
        const std::int64_t value = bits(2, 30, 0);
        return (bits(2, 31, 31) ? std::int64_t(1) << value : value + 1) / 8;
    }

    BYTES bytes;
    std::vector<std::uint32_t> dwords;
};

// Writes the quad-enable bit as the table says it is written.
void enable_quad(CHIP_HOST& host, std::uint32_t rule)
{
    switch (rule) {
    case 0:
        break;
    case 2:
        host.change(0x01, {0x40});
        break;
    case 6:
        host.change(0x31, {0x02});
        break;
    default:
        host.change(0x01, {0x00, 0x02});
        break;
    }
}

void unlock(CHIP_HOST& host, const GFPDB_PART& part)
{
    if (part.manufacturer == "Microchip (SST)")
        host.change(0x98);
    if (part.name == "W25M512JV" || part.name == "GD25S512MD")
        host.raw(0xC2, {0});
}

bool has_table(const GFPDB_PART& part)
{
    return part.name.rfind("AT25SF", 0) != 0 || part.name == "AT25SF128A";
}

} // namespace

class TEST_CHIP_SFDP : public QObject
{
    Q_OBJECT

private slots:
    void a_chip_says_its_size_and_page()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            if (!has_table(part))
                continue;
            CHIP_HOST host(part);
            const TABLE table(host);

            QCOMPARE(QByteArray(reinterpret_cast<const char*>(table.bytes.data()), 4), QByteArray("SFDP"));
            QVERIFY2(table.density() == host.chip->get_size(), part.name.c_str());
            if (table.dwords.size() > 9)
                QVERIFY2(1 << table.bits(11, 7, 4) == (part.page_size ? part.page_size : 256), part.name.c_str());
            QVERIFY2((table.bits(1, 18, 17) == 0) == (host.chip->get_size() <= 1 << 24) || part.name == "IS25WP256D",
                     part.name.c_str());
            QCOMPARE(host.notes(), std::string());
        }
    }

    void a_chip_that_lists_the_reset_has_it()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            if (!has_table(part))
                continue;
            CHIP_HOST host(part);
            if (TABLE(host).bits(16, 12, 12)) {
                host.raw(0x66);
                host.raw(0x99);
            }
            QVERIFY2(host.notes().empty(), (part.name + " " + host.notes()).c_str());
        }
    }

    void every_erase_that_a_chip_lists_erases_that_much()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            if (!has_table(part) || part.manufacturer == "Microchip (SST)" || part.name.rfind("S25F", 0) == 0 ||
                part.name.rfind("S25H", 0) == 0)
                continue; // where not every sector is as large
            CHIP_HOST host(part);
            const TABLE table(host);
            unlock(host, part);
            for (int type = 0; type < 4; ++type) {
                const std::size_t dword = 8 + static_cast<std::size_t>(type) / 2;
                const int shift = type % 2 * 16;
                const std::uint32_t exponent = table.bits(dword, shift + 7, shift);
                if (exponent == 0)
                    continue;
                const std::size_t size = std::size_t(1) << exponent;
                const BYTES old(3 * size, 0x00);
                host.chip->write_memory(0, old.data(), old.size());

                const auto place = static_cast<std::uint32_t>(size);
                host.change(static_cast<int>(table.bits(dword, shift + 15, shift + 8)),
                            {std::uint8_t(place >> 16), std::uint8_t(place >> 8), std::uint8_t(place)});

                BYTES wanted(old);
                std::fill_n(wanted.begin() + static_cast<std::ptrdiff_t>(size), size, std::uint8_t(0xFF));
                QVERIFY2(host.memory(0, old.size()) == wanted, (part.name + " " + host.notes()).c_str());
            }
            QVERIFY2(host.notes().empty(), (part.name + " " + host.notes()).c_str());
        }
    }

    void every_quad_read_that_a_chip_lists_reads()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            if (!has_table(part))
                continue;
            CHIP_HOST host(part);
            const TABLE table(host);
            enable_quad(host, table.bits(15, 22, 20));
            if (table.dwords.size() < 16)
                host.change(0x01, part.quad_enable == GFPDB_QUAD_ENABLE::SR1_BIT6 ? BYTES{0x40}
                                  : part.quad_enable == GFPDB_QUAD_ENABLE::NONE   ? BYTES{0x00}
                                                                                  : BYTES{0x00, 0x02});
            host.chip->clear_notes();
            host.chip->write_memory(0x010203, BYTES{0x12, 0x34, 0x56}.data(), 3);
            for (const int shift : {0, 16}) {
                if (!table.bits(1, shift ? 22 : 21, shift ? 22 : 21))
                    continue;
                GFPE_COMMAND command;
                command.opcode = static_cast<std::uint8_t>(table.bits(3, shift + 15, shift + 8));
                command.address_bytes = 3;
                command.address = 0x010203;
                command.address_lines = shift ? 1 : 4;
                command.data_lines = 4;
                command.dummy_clocks =
                    static_cast<int>(table.bits(3, shift + 4, shift) + table.bits(3, shift + 7, shift + 5));
                command.driven_dummy_clocks = command.dummy_clocks - 1;
                command.in_length = 3;
                QVERIFY2((host.send(command) == BYTES{0x12, 0x34, 0x56}), (part.name + " " + host.notes()).c_str());
            }
            QVERIFY2(host.notes().empty(), (part.name + " " + host.notes()).c_str());
        }
    }

    void the_four_byte_commands_that_a_chip_lists_are_there()
    {
        constexpr int OPCODES[] = {0x13, 0x0C, 0x3C, 0xBC, 0x6C, 0xEC, 0x12, 0x34, 0x3E};
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            CHIP_HOST host(part);
            const BYTES bytes = host.raw(0x5A, {0, 0, 0, 0}, 600);
            host.chip->clear_notes();
            for (std::size_t header = 16; has_table(part) && header <= 8u * (bytes[6] + 1u); header += 8) {
                if (bytes[header] != 0x84 || bytes[header + 7] != 0xFF)
                    continue;
                const std::size_t place = bytes[header + 4] | bytes[header + 5] << 8;
                const std::uint32_t present = bytes.at(place) | bytes.at(place + 1) << 8;
                for (std::size_t bit = 0; bit < 9; ++bit) {
                    const bool is_listed = present >> bit & 1 && bytes[place] != 0xFF;
                    if (!is_listed || OPCODES[bit] == 0x3C || OPCODES[bit] == 0xBC)
                        continue; // two lines
                    host.raw(OPCODES[bit]);
                    const std::string note = host.notes();
                    QVERIFY2(note.find("unknown") == std::string::npos, (part.name + " " + note).c_str());
                }
            }
        }
    }

    // Word by word: erases, clocks, times, the ways into modes and out.
    void a_made_table_is_as_the_standard_has_it_data()
    {
        rows<int, QByteArray>({
            {"W25Q128JV-M", 80,
             "50444653 FF000106 10010600 FF000010 FFC120E5 07FFFFFF 6B080000 00003B08 FFFFFFEE 0000FFFF "
             "0000FFFF 520F200C FF00D810 00AD59CF C304E48F FFFFFFFF FFFFFFFF 5CD5FFF7 FF100000 FFFFD088"},
            {"MX25L25645G", 96,
             "50444653 FF010106 10010600 FF000018 02010684 FF000058 FFE320E5 0FFFFFFF 6B08EB44 00003B08 "
             "FFFFFFEE 0000FFFF 0000FFFF 520F200C FF00D810 00AD59CF C604E48F FFFFFFFF FFFFFFFF 5CD5FFF7 "
             "FF200000 25215081 FFF00F73 FFDC5C21"},
            {"N25Q512A13", 96,
             "50444653 FF010106 10010600 FF000018 02010684 FF000058 FFE320E5 1FFFFFFF 6B08EB29 00003B08 "
             "FFFFFFEE 0000FFFF 0000FFFF D810200C FF00FF00 000159CF CC04E48F FFFFFFFF FFFFFFFF FFFFFFFF "
             "FF000000 26219081 FFF00633 FFFFDC21"},
            {"IS25LP512M", 96,
             "50444653 FF010106 10010600 FF000018 02010684 FF000058 FFE320E5 1FFFFFFF 6B08EB44 00003B08 "
             "FFFFFFEE 0000FFFF 0000FFFF D810200C FF00FF00 000159CF CC04E48F FFFFFFFF FFFFFFFF 5CD5FFF7 "
             "FF200000 29221081 FFF000F3 FFFFFFFF"},
            {"GD25Q64E", 80,
             "50444653 FF000106 10010600 FF000010 FFE120E5 03FFFFFF 6B08EB44 00003B08 FFFFFFEE 0000FFFF "
             "0000FFFF 520F200C FF00D810 00AD59CF B804E48F FFFFFFFF FFFFFFFF 5CD5FFF7 FF600000 FFFFD088"},
            {"S25FL512S", 96,
             "50444653 FF010106 10010600 FF000018 02010684 FF000058 FFE3FFE7 1FFFFFFF 6B08EB44 00003B08 "
             "FFFFFFEE 0000FFFF 0000FFFF FF00D812 FF00FF00 000002BF CC04E49F FFFFFFFF FFFFFFFF FFFFFFF7 "
             "FF100000 28220081 FFF002F3 FFFFFFDC"},
            {"SST26VF064B", 80,
             "50444653 FF000106 10010600 FF000010 FFE120E5 03FFFFFF 6B08EB44 00003B08 FFFFFFEE 0000FFFF "
             "0000FFFF D80D200C FF00FF00 000159CF B804E48F FFFFFFFF FFFFFFFF FFFFFFF7 FF100000 FFFFD081"},
        });
    }
    void a_made_table_is_as_the_standard_has_it()
    {
        const auto [length, words] = row<int, QByteArray>();
        CHIP_HOST host(QTest::currentDataTag());
        const BYTES bytes = host.raw(0x5A, {0, 0, 0, 0}, 256);
        QByteArray text;
        for (std::size_t at = 0; at < static_cast<std::size_t>(length); at += 4)
            text += " " + QByteArray::fromStdString(hex({bytes[at + 3], bytes[at + 2], bytes[at + 1], bytes[at]}));

        QCOMPARE(text.trimmed(), words);
    }

    // What parts of a maker have besides, and what no table says.
    void the_tables_of_real_parts_are_theirs_data()
    {
        rows<int, QByteArray>({
            {"W25Q128JV-Q", 8, QByteArray::fromHex("00050110800000ff")},
            {"MX25L12833F", 48, QByteArray::fromHex("e520f1ffffffff07")},
            {"MT25QU256ABA", 16, QByteArray::fromHex("84000102800000ff")},
        });
    }
    void the_tables_of_real_parts_are_theirs()
    {
        const auto [place, wanted] = row<int, QByteArray>();
        CHIP_HOST host(QTest::currentDataTag());

        QCOMPARE(host.raw(0x5A, {0, 0, static_cast<std::uint8_t>(place), 0}, wanted.size()),
                 BYTES(wanted.begin(), wanted.end()));
    }
};

QTEST_APPLESS_MAIN(TEST_CHIP_SFDP)

#include "test_chip_sfdp.moc"
