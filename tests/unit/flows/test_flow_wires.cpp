// SPDX-License-Identifier: MIT

// What a command looks like on the wires: the order of the bits, the lines of each phase, and who drives them when.
#include "flow_executor.h"
#include "flow_making.h"
#include "recording_bus.h"
#include "spi_wire.h"
#include "test_rows.h"

#include <QTest>

namespace {

// The command that a single action comes to.
SPI_COMMAND command_of(int operation, GFPDB_ACTION* action, const FLOW_IMAGE& image = FLOW_IMAGE())
{
    RECORDING_BUS bus;
    FLOW_DEVICE device;
    device.bytes = 1 << 24;
    FLOW_EXECUTOR executor(bus, device, image);
    executor.run(*operation_of(operation, {action}), FLOW_PURPOSE::EXAMINE);
    return bus.m_commands.at(0);
}

SPI_COMMAND read_command(const char* opcode, const char* width, const char* dummy_clocks)
{
    return command_of(GFPDB_OPERATION_VERIFY, make(GFPDB_ACT_READ_DATA, {{GFPDB_RD_COMMAND, opcode},
                                                                         {GFPDB_RD_ADDRESS, "0x00A53C01"},
                                                                         {GFPDB_RD_DATA_LENGTH, "1"},
                                                                         {GFPDB_RD_DUMMY_CLOCK, dummy_clocks},
                                                                         {GFPDB_RD_BUS_WIDTH, width}}));
}

// The clocks with a blank between two of them; each is IO3, IO2, IO1, IO0.
QString clocks(const SPI_COMMAND& command, int answer_clocks = 0)
{
    QStringList texts;
    for (const std::string& clock : spi_clocks(command, answer_clocks))
        texts += QString::fromStdString(clock);
    return texts.join(' ');
}

} // namespace

class TEST_FLOW_WIRES : public QObject
{
    Q_OBJECT

private slots:
    void the_highest_bit_comes_first_on_one_line()
    {
        const SPI_COMMAND command =
            command_of(GFPDB_OPERATION_PROGRAM,
                       make(GFPDB_ACT_WRITE_REGISTER, {{GFPDB_WR_COMMAND, "0x31"}, {GFPDB_WR_DATA, "0x82"}}));

        QCOMPARE(clocks(command), QString("11z0 11z0 11z1 11z1 11z0 11z0 11z0 11z1 "
                                          "11z1 11z0 11z0 11z0 11z0 11z0 11z1 11z0"));
    }

    void the_highest_line_has_the_highest_bit_data()
    {
        rows<QByteArray, QByteArray>({{"1-2", "1-2", "1110 1101 1111 1100"}, {"1-4", "1-4", "1001 1100"}});
    }

    void the_highest_line_has_the_highest_bit()
    {
        const auto [width, data] = row<QByteArray, QByteArray>();
        const SPI_COMMAND command = command_of(
            GFPDB_OPERATION_PROGRAM,
            make(GFPDB_ACT_WRITE_REGISTER,
                 {{GFPDB_WR_COMMAND, "0x00"}, {GFPDB_WR_DATA, "0x9C"}, {GFPDB_WR_BUS_WIDTH, width.constData()}}));

        QCOMPARE(clocks(command), QString("11z0 11z0 11z0 11z0 11z0 11z0 11z0 11z0 ") + data);
    }

    void an_address_comes_with_its_highest_byte_first()
    {
        const SPI_COMMAND command = read_command("0x00", "1-4-4", "0");

        QCOMPARE(clocks(command).mid(40), QString("1010 0101 0011 1100 0000 0001"));
    }

    void dummy_clocks_are_ff_until_the_chip_may_answer_data()
    {
        QTest::addColumn<QByteArray>("width");
        QTest::addColumn<int>("dummy_clocks");
        QTest::addColumn<QByteArray>("phase");
        const auto add = [](const char* width, int dummy_clocks, const QByteArray& phase) {
            QTest::addRow("%s %d", width, dummy_clocks) << QByteArray(width) << dummy_clocks << phase;
        };
        const QByteArray one_line("11z1 11z1 11z1 11z1 11z1 11z1 11z1 11z1 ");
        add("1-1-1", 8, one_line);
        add("1-1-1", 16, one_line + one_line);
        add("1-1-1", 0, "");
        add("1-1-2", 4, "11z1 11z1 11z1 11zz ");
        add("1-1-4", 8, "11z1 11z1 11z1 11z1 11z1 11z1 11z1 zzzz ");
        add("1-2-2", 4, "1111 1111 1111 11zz ");
        add("1-4-4", 6, "1111 1111 1111 1111 1111 zzzz ");
        add("1-4-4", 10, "1111 1111 1111 1111 1111 1111 1111 1111 1111 zzzz ");
        add("1-4-4", 1, "zzzz ");
        add("1-4-4", 0, "");
    }

    // The clocks between the address and the answer: however many of them are mode clocks, the chip reads FF in all of
    // these.
    void dummy_clocks_are_ff_until_the_chip_may_answer()
    {
        QFETCH(QByteArray, width);
        QFETCH(int, dummy_clocks);
        QFETCH(QByteArray, phase);
        const SPI_COMMAND command =
            read_command("0x0B", width.constData(), QByteArray::number(dummy_clocks).constData());
        constexpr int CLOCK_CHARACTERS = 5;

        const int before = 8 + 24 / command.address_lines;
        QCOMPARE(clocks(command, 1).mid(before * CLOCK_CHARACTERS, dummy_clocks * CLOCK_CHARACTERS), QString(phase));
    }

    void a_quad_read_looks_like_this()
    {
        QCOMPARE(clocks(read_command("0xEB", "1-4-4", "6"), 2),
                 QString("11z1 11z1 11z1 11z0 11z1 11z0 11z1 11z1 1010 0101 0011 1100 0000 0001 "
                         "1111 1111 1111 1111 1111 zzzz zzzz zzzz"));
    }

    void a_register_read_leaves_the_answer_to_the_chip()
    {
        const SPI_COMMAND command = command_of(GFPDB_OPERATION_PROGRAM, make(GFPDB_ACT_READ_REGISTER));

        QCOMPARE(clocks(command, 8), QString("11z0 11z0 11z0 11z0 11z0 11z1 11z0 11z1 "
                                             "11z0 11z0 11z0 11z0 11z0 11z0 11z0 11z0"));
    }

    void a_page_on_four_lines_looks_like_this()
    {
        FLOW_IMAGE image;
        image.add(0x123456, {0xC3, 0x18});
        const SPI_COMMAND command = command_of(GFPDB_OPERATION_PROGRAM,
                                               make(GFPDB_ACT_WRITE_DATA, {{GFPDB_WD_COMMAND, "0x38"},
                                                                           {GFPDB_WD_ADDRESS, "0x00123456"},
                                                                           {GFPDB_WD_PAGE_SIZE, "2"},
                                                                           {GFPDB_WD_BUS_WIDTH, "1-4-4"}}),
                                               image);

        QCOMPARE(clocks(command), QString("11z0 11z0 11z1 11z1 11z1 11z0 11z0 11z0 0001 0010 0011 0100 0101 0110 "
                                          "1100 0011 0001 1000"));
    }
};

QTEST_APPLESS_MAIN(TEST_FLOW_WIRES)

#include "test_flow_wires.moc"
