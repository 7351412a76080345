// SPDX-License-Identifier: MIT

// What emulated chips answer and do, command by command.
#include "chip_host.h"
#include "test_rows.h"

#include <QTest>

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
};

QTEST_APPLESS_MAIN(TEST_CHIP_COMMANDS)

#include "test_chip_commands.moc"
