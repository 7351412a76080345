// SPDX-License-Identifier: MIT

// A session with a flow: the order of the operations, what follows a failure, and sessions with emulated chips of the
// built-in parts.
#include "chip_of_part.h"
#include "recording_bus.h"
#include "test_rows.h"

#include <QTest>

namespace {

GFPDB_ACTION* write(const char* opcode)
{
    return make(GFPDB_ACT_WRITE_REGISTER, {{GFPDB_WR_COMMAND, opcode}});
}

// Passes when the answer is 00.
GFPDB_ACTION* check(const char* opcode)
{
    return make(GFPDB_ACT_READ_REGISTER, {{GFPDB_RR_COMMAND, opcode}, {GFPDB_RR_EXPECTED_DATA_MASK, "0xFF"}});
}

GFPDB_ACTION* check_id(const char* opcode, const char* expected)
{
    return make(
        GFPDB_ACT_READ_REGISTER,
        {{GFPDB_RR_COMMAND, opcode}, {GFPDB_RR_EXPECTED_DATA, expected}, {GFPDB_RR_EXPECTED_DATA_MASK, "0xFF"}});
}

// One command for each operation: C0, C1, C2, C3, C4; the first one after `initialization`.
FLOW marked_flow(std::initializer_list<GFPDB_ACTION*> initialization)
{
    FLOW flow;
    flow.push_back(operation_of(GFPDB_OPERATION_INITIALIZATION, initialization));
    flow.front()->add_action(check("0xC0"));
    flow.push_back(operation_of(GFPDB_OPERATION_PROGRAM, {check("0xC1")}));
    flow.push_back(operation_of(GFPDB_OPERATION_ERASE, {check("0xC2")}));
    flow.push_back(operation_of(GFPDB_OPERATION_VERIFY, {check("0xC3")}));
    flow.push_back(operation_of(GFPDB_OPERATION_TERMINATION, {check("0xC4"), write("0x04")}));
    return flow;
}

// A session that is asked for no position: nothing but the marks of the operations is sent.
GFPE_RESULT run_marks(GFPE_BUS& bus, const FLOW& flow, const char* order = "EBPVX", GFPE_RANGE range = {})
{
    SPARSE_IMAGE image;
    return run_flow({"chip", 1024, 1, {0x5A}}, flow, bus, order_of(order, range), &image);
}

std::string executed(const GFPE_RESULT& result)
{
    return letters_of(result.phases);
}

bool is_refused(const GFPE_RESULT& result, const char* text)
{
    return result.verdict == GFPE_VERDICT::REFUSED && report_of(result).find(text) != std::string::npos;
}

} // namespace

class TEST_FLOW_SESSION : public QObject
{
    Q_OBJECT

private slots:
    void operations_have_an_order_of_their_own_data()
    {
        rows<QByteArray, QByteArray>({{"everything", "XVPBE", "IEBPVXT"},
                                      {"erase", "E", "IET"},
                                      {"blank check", "B", "IBT"},
                                      {"program", "P", "IPT"},
                                      {"verify", "V", "IVT"},
                                      {"examine", "X", "IXT"},
                                      {"nothing", "", "IT"}});
    }

    void operations_have_an_order_of_their_own()
    {
        const auto [order, phases] = row<QByteArray, QByteArray>();
        RECORDING_BUS bus;

        const GFPE_RESULT result = run_marks(bus, marked_flow({}), order.constData());

        QVERIFY(has_passed(result));
        QCOMPARE(executed(result), phases.toStdString());
        QCOMPARE(failed_at(result), std::string());
        QCOMPARE(std::size_t(result.commands), bus.m_commands.size());
    }

    void what_fails_is_followed_by_the_termination_only_data()
    {
        rows<int, QByteArray, QByteArray>({{"initialization", 0xC0, "IT", "I 2: Read Register"},
                                           {"erase", 0xC2, "IET", "E 1: Read Register"},
                                           {"blank check", 0xC3, "IEBT", "B 1: Read Register"},
                                           {"program", 0xC1, "IEBPT", "P 1: Read Register"},
                                           {"termination", 0xC4, "IEBPVXT", "T 1: Read Register"}});
    }

    void what_fails_is_followed_by_the_termination_only()
    {
        const auto [opcode, phases, action] = row<int, QByteArray, QByteArray>();
        RECORDING_BUS bus;
        bus.answer(opcode, {0x01});
        bus.answer(0x9F, {0x5A});

        const GFPE_RESULT result = run_marks(bus, marked_flow({check_id("0x9F", "id")}));

        QCOMPARE(int(result.verdict), int(GFPE_VERDICT::FAILED));
        QCOMPARE(executed(result), phases.toStdString());
        QCOMPARE(failed_at(result), action.toStdString());
        // The termination, too, ends at its first failure.
        QCOMPARE(bus.commands().contains("04"), opcode != 0xC4);
    }

    void the_first_failure_counts()
    {
        RECORDING_BUS bus;
        bus.answer(0xC2, {0x01});
        bus.answer(0xC4, {0x01});

        QCOMPARE(failed_at(run_marks(bus, marked_flow({}))), std::string("E 1: Read Register"));
    }

    void an_unknown_chip_hears_nothing_more_data()
    {
        QTest::addColumn<QByteArray>("opcode");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<bool>("is_id_check");
        const auto add = [](const char* opcode, const char* expected, bool is_id_check) {
            QTest::addRow("%s %s", opcode, expected) << QByteArray(opcode) << QByteArray(expected) << is_id_check;
        };
        add("0x9F", "id", true);
        add("0x9F", "0x5A", true);
        add("0x9E", "0x5A", true);
        add("0xAF", "0x5A", true);
        add("0xAB", "id", true);
        add("0x05", "0x5A", false);
    }

    void an_unknown_chip_hears_nothing_more()
    {
        QFETCH(QByteArray, opcode);
        QFETCH(QByteArray, expected);
        QFETCH(bool, is_id_check);
        const auto phases = [&](std::initializer_list<int> failing, bool second_check = false) {
            RECORDING_BUS bus;
            bus.answer(opcode.toInt(nullptr, 16), {0x5A});
            for (const int each : failing)
                bus.answer(each, {0x01});
            const FLOW flow = marked_flow(
                {check("0x14"), check("0x15"), check_id(opcode.constData(), expected.constData()), check("0x16")});
            if (second_check)
                flow.front()->add_action(check_id("0x9E", "id"));
            const GFPE_RESULT result = run_marks(bus, flow);
            return executed(result) + (result.chip_is_unknown ? "?" : "");
        };

        // The ID, and what comes before it is known.
        QCOMPARE(phases({opcode.toInt(nullptr, 16)}), std::string(is_id_check ? "I?" : "IT"));
        QCOMPARE(phases({0x15}), std::string(is_id_check ? "I?" : "IT"));
        // The chip is known.
        QCOMPARE(phases({0x16}), std::string("IT"));
        QCOMPARE(phases({0xC2}), std::string("IET"));
        // A second ID check is one, too.
        QCOMPARE(phases({0x9E}, true), std::string("I?"));
    }

    // Nothing is programmed, so that the loop has no step.
    void an_id_check_that_is_left_out_does_not_keep_the_termination_away()
    {
        RECORDING_BUS bus;
        FLOW flow = marked_flow({start("page"), check_id("0x9F", "id"), make(GFPDB_ACT_WRITE_DATA), end("page")});
        bus.answer(0xC2, {0x01});

        QCOMPARE(executed(run_marks(bus, flow, "E")), std::string("IET"));
        QVERIFY(!run_marks(bus, flow, "").chip_is_unknown);
    }

    void an_operation_without_actions_is_refused_before_anything_is_sent()
    {
        for (const int empty : {GFPDB_OPERATION_PROGRAM, GFPDB_OPERATION_ERASE, GFPDB_OPERATION_VERIFY}) {
            RECORDING_BUS bus;
            FLOW flow = marked_flow({});
            flow[static_cast<std::size_t>(empty)] = operation_of(empty, {});

            QVERIFY(is_refused(run_marks(bus, flow), "The operation has no actions."));
            QVERIFY(bus.m_commands.empty());
        }
        RECORDING_BUS bus;
        FLOW flow = marked_flow({});
        flow[GFPDB_OPERATION_TERMINATION] = operation_of(GFPDB_OPERATION_TERMINATION, {});
        flow[GFPDB_OPERATION_INITIALIZATION] = operation_of(GFPDB_OPERATION_INITIALIZATION, {});
        QVERIFY(has_passed(run_marks(bus, flow)));
    }

    void a_flow_that_cannot_be_executed_is_refused_before_anything_is_sent_data()
    {
        rows<int, QByteArray, bool>({{"the first operation", int(GFPDB_OPERATION_INITIALIZATION), "", true},
                                     {"the last one", int(GFPDB_OPERATION_TERMINATION), "", true},
                                     {"one that is asked for", int(GFPDB_OPERATION_PROGRAM), "P", true},
                                     {"one that is not", int(GFPDB_OPERATION_PROGRAM), "V", false}});
    }

    // A loop whose pages do not divide the device, in the operation of that kind.
    void a_flow_that_cannot_be_executed_is_refused_before_anything_is_sent()
    {
        const auto [kind, order, refused] = row<int, QByteArray, bool>();
        RECORDING_BUS bus;
        FLOW flow = marked_flow({});
        flow[static_cast<std::size_t>(kind)] = operation_of(
            kind, {start("page"), make(GFPDB_ACT_WRITE_DATA, {{GFPDB_WD_PAGE_SIZE, "2048"}}), end("page")});

        QCOMPARE(is_refused(run_marks(bus, flow, order.constData()), "does not divide"), refused);
        QCOMPARE(bus.m_commands.empty(), refused);
    }

    // A bus with a chip whose ID is another one, which is asked for it and for nothing else.
    void another_chip_hears_nothing_but_its_id_read()
    {
        for_each_flow([](const GFPDB_PART& part, bool quad) {
            RECORDING_BUS bus;
            bus.answer(0x9F, {0x12, 0x34, 0x56});
            SPARSE_IMAGE image;

            QVERIFY(!has_passed(run_flow(device_of(part), flow_of(part, quad), bus, order_of("EBPVX"), &image)));

            QStringList heard = bus.commands();
            QVERIFY(heard.takeLast().startsWith("9F?"));
            QCOMPARE(heard, part.manufacturer == "Micron" ? (QStringList{"66", "99"}) : QStringList());
        });
    }

    void a_chip_is_left_at_rest_after_a_failure()
    {
        for (const char* name : {"MX25L25645G", "W25Q256FV", "IS25LP256D", "MT25QL256ABA", "S25FL256S-64K", "S25FS512S",
                                 "W25M512JV", "W25Q01JV-Q", "XM25QH256C", "SST26VF032B"}) {
            for (const bool quad : {false, true}) {
                OLD_CHIP chip(part_called(name));
                SPARSE_IMAGE image;

                const GFPE_RESULT result = chip.run(flow_of(part_called(name), quad), order_of("B"), image);

                QVERIFY2(failed_at(result).rfind("B ", 0) == 0, (name + (": " + report_of(result))).c_str());
                QCOMPARE(executed(result), std::string("IBT"));
                QVERIFY2(chip.chip().is_at_rest(), name);
                QCOMPARE(chip.notes(), std::string());
            }
        }
    }

    // Only the last steps of the loops go too far.
    void a_device_that_its_addresses_do_not_reach_is_refused_before_anything_is_sent()
    {
        for (const char* order : {"E", "P", "V"}) {
            RECORDING_BUS bus;
            SPARSE_IMAGE image;
            FLOW flow = flow_of(part_called("MX25L12833F"), false);
            flow[GFPDB_OPERATION_VERIFY] = operation_of(GFPDB_OPERATION_VERIFY, {make(GFPDB_ACT_READ_DATA)});

            QVERIFY(is_refused(run_flow({"chip", 32 * 1024 * 1024, 1, {0xC2}}, flow, bus, order_of(order), &image),
                               "does not fit 3 address bytes"));
            QVERIFY(bus.m_commands.empty());
        }
    }

    void a_range_that_is_not_read_whole_is_refused_before_anything_is_sent_data()
    {
        rows<QByteArray, QByteArray, QByteArray, bool>({{"in one read", "device", "0x00000000", "image", true},
                                                        {"more than the range", "384", "0x00000000", "image", true},
                                                        {"in two reads", "200", "0x000000C8", "image", true},
                                                        {"a gap between them", "200", "0x000000C9", "image", false},
                                                        {"too short", "383", "0x00000000", "image", false},
                                                        {"not compared", "device", "0x00000000", "none", false},
                                                        {"a constant", "device", "0x00000000", "0xFF", false}});
    }

    // Nobody is told that a device is verified or blank of which a part was not looked at. The range ends at 384.
    void a_range_that_is_not_read_whole_is_refused_before_anything_is_sent()
    {
        const auto [length, second, expected, allowed] = row<QByteArray, QByteArray, QByteArray, bool>();
        for (const char* order : {"B", "V", "X"}) {
            RECORDING_BUS bus;
            bus.answer(0x0B, {0xFF});
            const FLOW flow = marked_flow({});
            for (const char* address : {second.constData(), "0x00000000"})
                flow[GFPDB_OPERATION_VERIFY]->add_action(
                    make(GFPDB_ACT_READ_DATA, {{GFPDB_RD_ADDRESS, address},
                                               {GFPDB_RD_DATA_LENGTH, length.constData()},
                                               {GFPDB_RD_EXPECTED_DATA, expected.constData()}}));

            const GFPE_RESULT result = run_marks(bus, flow, order, {16, 368});

            QCOMPARE(has_passed(result), allowed);
            QCOMPARE(is_refused(result, "is not read"), !allowed);
            QCOMPARE(bus.m_commands.empty(), !allowed);
        }
    }

    void several_erases_clear_what_is_asked_for_data()
    {
        rows<qint64, qint64, int>({{"the chip", qint64(0), qint64(16 * 1024 * 1024), 1},
                                   {"a large sector", qint64(0x20000), qint64(0x10000), 1},
                                   {"a large sector between small ones", qint64(0x1F000), qint64(0x12000), 3},
                                   {"bytes", qint64(0x12345), qint64(3), 1}});
    }

    // All erases of a chip share the write enable and the poll.
    void several_erases_clear_what_is_asked_for()
    {
        const auto [first, length, commands] = row<qint64, qint64, int>();
        const GFPDB_PART& part = part_called("MX25L12833F");
        OLD_CHIP chip(part);
        chip.chip().fill_memory(OLD_CHIP::OLD);
        SPARSE_IMAGE image;
        FLOW flow = flow_of(part, false);
        flow[GFPDB_OPERATION_ERASE] = operation_of(
            GFPDB_OPERATION_ERASE,
            {start("sector"), make(GFPDB_ACT_WRITE_REGISTER),
             make(GFPDB_ACT_ERASE, {{GFPDB_ER_COMMAND, "0xC7"}, {GFPDB_ER_ADDRESSING_MODE, "0"}}),
             make(GFPDB_ACT_ERASE), make(GFPDB_ACT_ERASE, {{GFPDB_ER_COMMAND, "0x20"}, {GFPDB_ER_ERASE_SIZE, "4096"}}),
             make(GFPDB_ACT_READ_REGISTER, {{GFPDB_RR_ATTEMPT_COUNT, "4500"}, {GFPDB_RR_DELAY, "1000000"}}),
             end("sector")});

        const GFPE_RESULT result = chip.run(flow, order_of("EB", GFPE_RANGE{first, length}), image);

        QVERIFY2(has_passed(result) && chip.notes().empty(), report_of(result).c_str());
        QCOMPARE(chip.count_of(0xC7) + chip.count_of(0xD8) + chip.count_of(0x20), commands);
        constexpr std::int64_t SMALL = 4096;
        const std::int64_t last = (first + length - 1) / SMALL * SMALL + SMALL;
        for (const std::int64_t position : {std::int64_t(first / SMALL * SMALL - 1), last}) {
            if (position >= 0 && position < chip.chip().get_size())
                QCOMPARE(chip.byte_at(position), int(OLD_CHIP::OLD));
        }
    }

    void a_part_of_the_device_is_programmed_data()
    {
        rows<QByteArray, qint64>({{"MX25L12833F", "MX25L12833F", qint64(65536)},
                                  {"W25Q256FV", "W25Q256FV", qint64(65536)},
                                  {"S25FL512S", "S25FL512S", qint64(262144)},
                                  {"SST26VF032B", "SST26VF032B", qint64(4096)},
                                  {"W25M512JV", "W25M512JV", qint64(65536)}});
    }

    // A range across the middle, which is the border of two dies: only the sectors that it touches change, and of these
    // only the range gets the image.
    void a_part_of_the_device_is_programmed()
    {
        const auto [name, sector] = row<QByteArray, qint64>();
        const std::int64_t sector_bytes = sector;
        const GFPDB_PART& part = part_called(name.toStdString());
        const std::int64_t middle = device_of(part).bytes / 2;
        for (const bool quad : {false, true}) {
            OLD_CHIP chip(part);
            chip.chip().fill_memory(OLD_CHIP::OLD);
            SPARSE_IMAGE image;
            image.add(0, BYTES(5000, 0x21));
            image.add(middle - 5000, BYTES(10000, 0x42));

            const GFPE_RESULT result =
                chip.run(flow_of(part, quad), order_of("EBPVX", GFPE_RANGE{middle - 1000, 1300}), image);

            QVERIFY2(has_passed(result) && chip.notes().empty(), report_of(result).c_str());
            for (const std::int64_t position : {std::int64_t(0), middle - sector_bytes - 1, middle + sector_bytes})
                QCOMPARE(chip.byte_at(position), int(OLD_CHIP::OLD));
            for (const std::int64_t position :
                 {middle - sector_bytes, middle - 1001, middle + 300, middle + sector_bytes - 1})
                QCOMPARE(chip.byte_at(position), 0xFF);
            for (const std::int64_t position : {middle - 1000, middle - 1, middle, middle + 299})
                QCOMPARE(chip.byte_at(position), 0x42);
        }
    }
};

QTEST_APPLESS_MAIN(TEST_FLOW_SESSION)

#include "test_flow_session.moc"
