// SPDX-License-Identifier: MIT

// What a command looks like on the wires: the order of the bits, the lines of each phase, and who drives them when.
#include "gfpe/gfpe_run.h"
#include "gfpe/gfpe_trace_file.h"

#include "flow_making.h"
#include "test_rows.h"
#include "vcd_reading.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Answers every command with the same byte, over and over.
class ANSWERING_BUS final : public GFPE_BUS
{
public:
    explicit ANSWERING_BUS(std::uint8_t answer) : m_answer(answer) {}

    GFPE_ABILITIES get_abilities() const override { return {4, 0, 0, 0}; }
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override
    {
        for (std::int64_t done = 0; done < command.in_length && reader->take(&m_answer, 1); ++done) {
        }
        return true;
    }
    bool wait(std::int64_t) override { return true; }
    std::string get_last_error() const override { return {}; }

private:
    const std::uint8_t m_answer;
};

// The clocks of the command that a single action comes to, with a blank between two of them; each is IO3, IO2, IO1,
// IO0. The chip answers `answer`.
QString clocks(GFPDB_ACTION* action, int answer = 0)
{
    const OPERATION operation = operation_of(GFPDB_OPERATION_PROGRAM, {action});
    const OPERATION nothing = operation_of(GFPDB_OPERATION_INITIALIZATION, {});
    constexpr std::int64_t DEVICE_BYTES = 1 << 24;
    const auto plan = std::make_shared<GFPE_PLAN>(GFPE_DEVICE{"X", DEVICE_BYTES, 1, {}},
                                                  std::vector<GFPDB_OPERATION*>{nothing.get(), operation.get()});
    const std::unique_ptr<GFPE_IMAGE> image = gfpe_memory_image({0xC3, 0x18}, 0x123456);
    ANSWERING_BUS bus(static_cast<std::uint8_t>(answer));
    const QTemporaryDir directory;
    GFPE_VCD_TRACE trace(0);
    trace.open(directory.filePath("t.vcd").toStdString());
    GFPE_RUN run(plan, bus);
    run.set_image(image.get());
    run.set_trace(&trace);
    GFPE_ORDER order;
    order.program = true;
    const GFPE_RESULT result = run.run(order);
    if (result.verdict != GFPE_VERDICT::PASSED)
        qFatal("%s", result.problems.empty() ? result.failure->text.c_str() : result.problems[0].to_text().c_str());
    trace.finish();
    QFile file(directory.filePath("t.vcd"));
    const QList<VCD_COMMAND> commands =
        file.open(QIODevice::ReadOnly) ? vcd_commands(file.readAll()) : QList<VCD_COMMAND>();
    return commands.size() == 1 ? commands[0].clocks.join(' ') : QString("not one command");
}

GFPDB_ACTION* read_command(const char* opcode, const char* width, const char* dummy_clocks)
{
    return read_data({{GFPDB_RD_COMMAND, opcode},
                      {GFPDB_RD_ADDRESS, "0x00A53C01"},
                      {GFPDB_RD_DATA_LENGTH, "1"},
                      {GFPDB_RD_EXPECTED_DATA, "none"},
                      {GFPDB_RD_DUMMY_CLOCK, dummy_clocks},
                      {GFPDB_RD_BUS_WIDTH, width}});
}

} // namespace

class TEST_TRACE_WIRES : public QObject
{
    Q_OBJECT

private slots:
    void the_highest_bit_comes_first_on_one_line()
    {
        QCOMPARE(clocks(write_register({{GFPDB_WR_COMMAND, "0x31"}, {GFPDB_WR_DATA, "0x82"}})),
                 QString("11z0 11z0 11z1 11z1 11z0 11z0 11z0 11z1 11z1 11z0 11z0 11z0 11z0 11z0 11z1 11z0"));
    }

    void the_highest_line_has_the_highest_bit_data()
    {
        rows<QByteArray, QByteArray>({{"1-2", "1-2", "1110 1101 1111 1100"}, {"1-4", "1-4", "1001 1100"}});
    }

    void the_highest_line_has_the_highest_bit()
    {
        const auto [width, data] = row<QByteArray, QByteArray>();

        const QString shown = clocks(write_register(
            {{GFPDB_WR_COMMAND, "0x00"}, {GFPDB_WR_DATA, "0x9C"}, {GFPDB_WR_BUS_WIDTH, width.constData()}}));
        QCOMPARE(shown, QString("11z0 11z0 11z0 11z0 11z0 11z0 11z0 11z0 ") + data);
    }

    void an_opcode_can_be_on_more_lines_data()
    {
        rows<QByteArray, QByteArray>(
            {{"2-2", "2-2", "1110 1101 1101 1100 1100 1101 1110 1111"}, {"4-4", "4-4", "1001 0100 0001 1011"}});
    }

    void an_opcode_can_be_on_more_lines()
    {
        const auto [width, all] = row<QByteArray, QByteArray>();

        QCOMPARE(clocks(write_register(
                     {{GFPDB_WR_COMMAND, "0x94"}, {GFPDB_WR_DATA, "0x1B"}, {GFPDB_WR_BUS_WIDTH, width.constData()}})),
                 QString(all));
    }

    void an_address_comes_with_its_highest_byte_first()
    {
        QCOMPARE(clocks(read_command("0x00", "1-4-4", "0")).mid(40, 29), QString("1010 0101 0011 1100 0000 0001"));
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
        constexpr int CLOCK_CHARACTERS = 5;
        const int before = 8 + 24 / (width.at(2) - '0');

        const QString shown =
            clocks(read_command("0x0B", width.constData(), QByteArray::number(dummy_clocks).constData()));
        QCOMPARE(shown.mid(before * CLOCK_CHARACTERS, dummy_clocks * CLOCK_CHARACTERS), QString(phase));
    }

    void a_quad_read_looks_like_this()
    {
        QCOMPARE(clocks(read_command("0xEB", "1-4-4", "6"), 0x5C),
                 QString("11z1 11z1 11z1 11z0 11z1 11z0 11z1 11z1 1010 0101 0011 1100 0000 0001 "
                         "1111 1111 1111 1111 1111 zzzz 0101 1100"));
    }

    void the_chip_answers_on_the_second_line_or_on_all_data()
    {
        rows<QByteArray, int, QString>({{"one", "1-1", 0xA2, "1110 1100 1110 1100 1100 1100 1110 1100"},
                                        {"two", "1-2", 0x9C, "1110 1101 1111 1100"},
                                        {"four", "1-4", 0x9C, "1001 1100"}});
    }

    void the_chip_answers_on_the_second_line_or_on_all()
    {
        const auto [width, answer, data] = row<QByteArray, int, QString>();

        QCOMPARE(clocks(make(GFPDB_ACT_READ_REGISTER,
                             {{GFPDB_RR_EXPECTED_DATA, "none"}, {GFPDB_RR_BUS_WIDTH, width.constData()}}),
                        answer),
                 "11z0 11z0 11z0 11z0 11z0 11z1 11z0 11z1 " + data);
    }

    void a_page_on_four_lines_looks_like_this()
    {
        QCOMPARE(clocks(write_data({{GFPDB_WD_COMMAND, "0x38"},
                                    {GFPDB_WD_ADDRESS, "0x00123456"},
                                    {GFPDB_WD_PAGE_SIZE, "2"},
                                    {GFPDB_WD_BUS_WIDTH, "1-4-4"}})),
                 QString("11z0 11z0 11z1 11z1 11z1 11z0 11z0 11z0 0001 0010 0011 0100 0101 0110 "
                         "1100 0011 0001 1000"));
    }
};

QTEST_APPLESS_MAIN(TEST_TRACE_WIRES)

#include "test_trace_wires.moc"
