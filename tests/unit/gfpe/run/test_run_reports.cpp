// SPDX-License-Identifier: MIT

// What a run says while it goes on, and at its end.
#include "flow_run.h"
#include "recording_bus.h"
#include "run/gfpe_comparison.h"
#include "test_rows.h"

#include <QTest>

namespace {

GFPE_DEVICE device(std::int64_t bytes = 8192)
{
    return {"chip", bytes, 1, {0xC2}};
}

FLOW empty_flow()
{
    FLOW flow;
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
        flow.push_back(operation_of(kind, {}));
    return flow;
}

// Erases sectors of 4 KiB, programs pages and reads everything; each with something before it.
FLOW usual_flow()
{
    FLOW flow = empty_flow();
    flow[0]->add_action(write_register());
    flow[1] = operation_of(1, {start("page"), write_register(), write_data(), end("page")});
    flow[2] =
        operation_of(2, {start("sector"), write_register(), erase({{GFPDB_ER_ERASE_SIZE, "4096"}}), end("sector")});
    flow[3] = operation_of(3, {read_data({{GFPDB_RD_DELAY, "7"}})});
    flow[4]->add_action(write_register({{GFPDB_WR_COMMAND, "0x04"}}));
    return flow;
}

class LISTENER : public GFPE_LISTENER
{
public:
    void phase_started(GFPE_PHASE phase) override { m_phases.push_back(phase); }
    void progressed(const GFPE_PROGRESS& progress) override { m_progress.push_back(progress); }
    bool examined(std::int64_t, const std::uint8_t*, std::size_t) override { return !m_is_full; }
    std::string get_problem() const override { return "The disk is full."; }

    std::vector<GFPE_PHASE> m_phases;
    std::vector<GFPE_PROGRESS> m_progress;
    bool m_is_full = false;
};

class COUNTING_IMAGE : public SPARSE_IMAGE
{
public:
    bool read(std::int64_t position, std::uint8_t* bytes, std::size_t length, std::string& problem) override
    {
        m_read += static_cast<std::int64_t>(length);
        return SPARSE_IMAGE::read(position, bytes, length, problem);
    }

    std::int64_t m_read = 0;
};

class BAD_IMAGE : public SPARSE_IMAGE
{
public:
    bool read(std::int64_t, std::uint8_t*, std::size_t, std::string& problem) override
    {
        problem = "The image is gone.";
        return false;
    }
};

} // namespace

class TEST_RUN_REPORTS : public QObject
{
    Q_OBJECT

private slots:
    void a_register_that_is_wrong_is_reported_data()
    {
        rows<QByteArray, QByteArray, QByteArray, QByteArray>(
            {{"all bits", "0x12 0x34", "0xFF 0xFF", "1", "expected 12 34, received A0 5F."},
             {"some bits", "0x02 0x04", "0x0F 0xFF", "1", "expected 02 04 with mask 0F FF, received A0 5F."},
             {"after a while", "0x12 0x34", "0xFF 0xFF", "3",
              "expected 12 34, received A0 5F in the last of 3 attempts."},
             {"the ID", "id", "0xFF 0xFF", "1", "expected C2, received A0."}});
    }

    void a_register_that_is_wrong_is_reported()
    {
        const auto [expected, mask, attempts, text] = row<QByteArray, QByteArray, QByteArray, QByteArray>();
        RECORDING_BUS bus;
        bus.answer(0x05, {0xA0, 0x5F});
        const FLOW flow = empty_flow();
        flow[2]->add_action(write_register());
        flow[2]->add_action(make(GFPDB_ACT_READ_REGISTER, {{GFPDB_RR_NAME, "Check It"},
                                                           {GFPDB_RR_DATA_LENGTH, "2"},
                                                           {GFPDB_RR_EXPECTED_DATA, expected.constData()},
                                                           {GFPDB_RR_EXPECTED_DATA_MASK, mask.constData()},
                                                           {GFPDB_RR_ATTEMPT_COUNT, attempts.constData()}}));
        GFPE_TRACE_LOG log(100);

        const GFPE_RESULT result = run_flow(device(), flow, bus, order_of("E"), nullptr, nullptr, &log);

        QCOMPARE(result.failure->text, "Erase, action 2 \"Check It\": " + text.toStdString());
        QCOMPARE(result.failure->expected.size(), result.failure->received.size());
        QCOMPARE(result.failure->position, std::int64_t(-1));
        QCOMPARE(result.failure->mask.empty(), mask == "0xFF 0xFF");
        const GFPE_TRACE_ENTRY& last = log.get_entries().back();
        QVERIFY(last.has_failed && last.number == attempts.toInt());
        QCOMPARE(last.expected, result.failure->expected);
        QCOMPARE(last.mask, result.failure->mask);
    }

    void a_byte_that_is_wrong_is_reported_data()
    {
        rows<QByteArray, int, int, QByteArray>(
            {{"of the image", "V", 0xFF, 16, "Verify, action 1 \"Read Data\": expected 11 at 0x00001234, received 22."},
             {"not blank", "B", 0xFF, 16,
              "Blank-Check, action 1 \"Read Data\": expected FF at 0x00000000, received 22."},
             {"of a constant", "P", 0x0F, 16,
              "Program, action 1 \"Read Data\": expected 01 at 0x00000000, received 22 with mask 0F."},
             {"the last ones", "V", 0xFF, 3,
              "Verify, action 1 \"Read Data\": expected 11 at 0x00001234, received 22."}});
    }

    void a_byte_that_is_wrong_is_reported()
    {
        const auto [order, mask, count, text] = row<QByteArray, int, int, QByteArray>();
        RECORDING_BUS bus;
        bus.answer(0x0B, {0x22});
        SPARSE_IMAGE image;
        image.add(0, BYTES(8192, 0x22));
        image.add(0x1234, {0x11, 0x11});
        const FLOW flow = empty_flow();
        flow[1]->add_action(read_data({{GFPDB_RD_EXPECTED_DATA, "0x01"}, {GFPDB_RD_EXPECTED_DATA_MASK, "0x0F"}}));
        flow[3]->add_action(read_data());
        GFPE_ORDER what = order_of(order.toStdString());
        if (count < 16)
            what.range = GFPE_RANGE{0, 0x1234 + count};
        GFPE_TRACE_LOG log(100);

        const GFPE_RESULT result = run_flow(device(), flow, bus, what, &image, nullptr, &log);

        QCOMPARE(result.failure->text, text.toStdString());
        QCOMPARE(result.failure->received, BYTES(static_cast<std::size_t>(count), 0x22));
        QCOMPARE(result.failure->expected.size(), std::size_t(count));
        QCOMPARE(result.failure->mask, mask == 0xFF ? BYTES() : BYTES(16, 0x0F));
        QVERIFY(log.get_entries().back().has_failed);
        QCOMPARE(log.get_entries().back().expected, result.failure->expected);
    }

    void a_trace_has_every_command_with_its_place()
    {
        RECORDING_BUS bus;
        bus.answer(0x0B, {0xFF});
        SPARSE_IMAGE image;
        image.add(4096, {0x12});
        GFPE_TRACE_LOG log(1000);

        QVERIFY(has_passed(run_flow(device(), usual_flow(), bus, order_of("EPX"), &image, nullptr, &log)));

        QStringList texts;
        for (const GFPE_TRACE_ENTRY& entry : log.get_entries())
            texts += QString("%1%2 %3 %4>%5")
                         .arg(QString::fromStdString(letters_of({entry.phase})))
                         .arg(entry.action)
                         .arg(entry.command.opcode, 2, 16, QChar('0'))
                         .arg(entry.command.out_length)
                         .arg(entry.received);
        QCOMPARE(texts.join(", "), QString("I1 06 0>0, E2 06 0>0, E3 d8 0>0, E2 06 0>0, E3 d8 0>0, P2 06 0>0, "
                                           "P3 02 256>0, X1 0b 0>8192, T1 04 0>0"));
        QCOMPARE(log.get_entries()[6].action_name, std::string("Write Data"));
        QCOMPARE(log.get_entries().size(), bus.m_commands.size());
    }

    void progress_ends_where_it_should_data()
    {
        rows<QByteArray, qint64, qint64, QByteArray>(
            {{"everything", "EBPVX", qint64(0), qint64(8192), "0 8192 8192 1000 8192 8192 0"},
             {"a part", "EP", qint64(4000), qint64(200), "0 8192 150 0"},
             {"without the image", "P", qint64(0), qint64(100), "0 0 0"}});
    }

    // The image is from 4050 to 5050; one of its pages is blank and is done without a command.
    void progress_ends_where_it_should()
    {
        const auto [order, first, length, totals] = row<QByteArray, qint64, qint64, QByteArray>();
        RECORDING_BUS bus;
        bus.answer(0x0B, {0xFF});
        SPARSE_IMAGE image;
        image.add(4050, BYTES(100, 0xFF));
        image.add(4150, BYTES(50, first == 0 ? 0xFF : 0x00));
        image.add(5049, {0xFF});
        LISTENER listener;

        const GFPE_RESULT result = run_flow(
            device(), usual_flow(), bus, order_of(order.toStdString(), GFPE_RANGE{first, length}), &image, &listener);

        QVERIFY2(has_passed(result), report_of(result).c_str());
        QCOMPARE(listener.m_phases, result.phases);
        QStringList ends;
        std::int64_t all = 0;
        GFPE_PROGRESS before;
        for (const GFPE_PROGRESS& now : listener.m_progress) {
            QVERIFY(now.all_done >= before.all_done && now.done <= now.total && now.commands <= now.all_commands);
            if (now.phase != before.phase)
                ends += QString::number(before.total == before.done ? before.total : -1);
            before = now;
        }
        ends += QString::number(before.done);
        for (const QString& end : ends)
            all += end.toLongLong();
        QCOMPARE(ends.join(' '), QString(totals));
        QCOMPARE(before.all_done, all);
        QCOMPARE(before.all_total, all);
        QCOMPARE(before.all_commands, result.commands);
        QCOMPARE(before.commands, std::int64_t(1));
    }

    // Two or three of each and one that does not count, with an image of 100 bytes from 200 on, of which a range of
    // 1000 bytes is asked for.
    void actions_outside_of_loops_count_as_well()
    {
        RECORDING_BUS bus;
        bus.answer(0x0B, {0x00});
        SPARSE_IMAGE image;
        image.add(200, BYTES(100, 0x00));
        FLOW flow = empty_flow();
        flow[1] = operation_of(1, {write_data({{GFPDB_WD_ADDRESS, "0x00000000"}}),
                                   write_data({{GFPDB_WD_ADDRESS, "0x00000000"}, {GFPDB_WD_DATA, "0x01 0x02"}}),
                                   read_data({{GFPDB_RD_EXPECTED_DATA, "0x00"}, {GFPDB_RD_DATA_LENGTH, "50"}}),
                                   write_data({{GFPDB_WD_ADDRESS, "0x00000100"}})});
        flow[2] = operation_of(2, {write_data({{GFPDB_WD_ADDRESS, "0x00000000"}, {GFPDB_WD_DATA, "0x01 0x02"}}),
                                   erase({{GFPDB_ER_ADDRESS, "0x00000000"}, {GFPDB_ER_ERASE_SIZE, "4096"}}),
                                   erase({{GFPDB_ER_ADDRESS, "0x00001000"}, {GFPDB_ER_ERASE_SIZE, "4096"}}),
                                   erase({{GFPDB_ER_ADDRESS, "0x00000000"}, {GFPDB_ER_ERASE_SIZE, "512"}})});
        flow[3] =
            operation_of(3, {read_data({{GFPDB_RD_EXPECTED_DATA, "0x00"}, {GFPDB_RD_DATA_LENGTH, "50"}}), read_data()});
        LISTENER listener;

        const GFPE_RESULT result =
            run_flow(device(), flow, bus, order_of("EPX", GFPE_RANGE{0, 1000}), &image, &listener);

        QVERIFY2(has_passed(result), report_of(result).c_str());
        for (const GFPE_PROGRESS& now : listener.m_progress)
            QVERIFY(now.done <= now.total);
        const GFPE_PROGRESS& last = listener.m_progress.back();
        QCOMPARE(last.all_total, std::int64_t(4096 + 512 + 56 + 2 + 44 + 50 + 1000));
        QCOMPARE(last.all_done, last.all_total);
    }

    void the_pages_of_every_loop_count()
    {
        RECORDING_BUS bus;
        SPARSE_IMAGE image;
        image.add(0, BYTES(8192, 0x12));
        FLOW flow = usual_flow();
        flow[1] = operation_of(1, {start("page"), write_data(), end("page"), start("page"), write_data(), end("page")});
        LISTENER listener;

        const GFPE_RESULT result = run_flow(device(), flow, bus, order_of("P"), &image, &listener);

        QVERIFY2(has_passed(result), report_of(result).c_str());
        QCOMPARE(listener.m_progress.back().all_total, std::int64_t(2 * 8192));
        QCOMPARE(listener.m_progress.back().all_done, std::int64_t(2 * 8192));
    }

    void a_long_read_says_how_far_it_is()
    {
        RECORDING_BUS bus;
        bus.answer(0x0B, {0xFF});
        LISTENER listener;

        run_flow(device(65536), usual_flow(), bus, order_of("B"), nullptr, &listener);

        // Chunks of 4 KiB, the starts and the ends of the phases.
        QCOMPARE(listener.m_progress.size(), std::size_t(16 + 2 * 3));
        QCOMPARE(listener.m_progress[3].done, std::int64_t(4096));
    }

    void an_image_is_read_once_in_each_phase_data() { rows<qint64>({{"all of it", 8192}, {"one byte", 1}}); }

    // What was looked at to see whether a page is blank is what is sent.
    void an_image_is_read_once_in_each_phase()
    {
        const auto length = row<qint64>();
        RECORDING_BUS bus;
        bus.answer(0x0B, {0x12});
        COUNTING_IMAGE image;
        image.add(0, BYTES(8192, 0x12));

        QVERIFY(has_passed(run_flow(device(), usual_flow(), bus, order_of("PV", GFPE_RANGE{0, length}), &image)));

        QCOMPARE(image.m_read, std::int64_t(2 * length));
    }

    void the_shortest_delay_is_waited_for()
    {
        RECORDING_BUS bus;
        const FLOW flow = empty_flow();
        flow[0]->add_action(write_register({{GFPDB_WR_DELAY, "1"}}));

        QVERIFY(has_passed(run_flow(device(), flow, bus, {}, nullptr)));

        QCOMPARE(bus.m_waited_us, std::int64_t(1));
    }

    void what_is_cancelled_with_its_last_byte_has_passed_data()
    {
        rows<qint64, int>(
            {{"before", 4096, int(GFPE_VERDICT::CANCELLED)}, {"with it", 8192, int(GFPE_VERDICT::PASSED)}});
    }

    void what_is_cancelled_with_its_last_byte_has_passed()
    {
        const auto [at, verdict] = row<qint64, int>();
        struct CANCELLING : GFPE_LISTENER
        {
            void progressed(const GFPE_PROGRESS& progress) override
            {
                if (progress.phase == GFPE_PHASE::VERIFY && progress.done == at)
                    run->cancel();
            }
            GFPE_RUN* run = nullptr;
            qint64 at = 0;
        } listener;
        RECORDING_BUS bus;
        bus.answer(0x0B, {0xFF});
        SPARSE_IMAGE image;
        GFPE_RUN run(plan_of(device(), usual_flow()), bus);
        run.set_image(&image);
        run.set_listener(&listener);
        listener.run = &run;
        listener.at = at;

        QCOMPARE(int(run.run(order_of("V")).verdict), verdict);
    }

    // As the connection can carry no more in one command; the delay is after each of them.
    void a_long_read_is_sent_in_pieces_data()
    {
        rows<qint64, qint64, qint64, QString>(
            {{"of 3000 bytes", qint64(3000), qint64(100), qint64(7000), "0B@64?3000, 0B@C1C?3000, 0B@17D4?1000"},
             {"of one byte", qint64(1), qint64(16), qint64(3), "0B@10?1, 0B@11?1, 0B@12?1"}});
    }
    void a_long_read_is_sent_in_pieces()
    {
        const auto [longest, start, length, commands] = row<qint64, qint64, qint64, QString>();
        RECORDING_BUS bus;
        bus.m_abilities.longest_read = longest;
        bus.answer(0x0B, {0xFF});
        FLOW flow = empty_flow();
        flow[3]->add_action(read_data({{GFPDB_RD_DELAY, "7"}}));

        const GFPE_RESULT result = run_flow(device(), flow, bus, order_of("B", GFPE_RANGE{start, length}), nullptr);

        QVERIFY2(has_passed(result), report_of(result).c_str());
        QCOMPARE(bus.commands().join(", "), commands);
        QCOMPARE(bus.m_waited_us, std::int64_t(21));
    }

    void what_an_examine_reads_must_be_kept()
    {
        RECORDING_BUS bus;
        LISTENER listener;
        listener.m_is_full = true;

        const GFPE_RESULT result = run_flow(device(), usual_flow(), bus, order_of("X"), nullptr, &listener);

        QCOMPARE(int(result.verdict), int(GFPE_VERDICT::FAILED));
        QCOMPARE(report_of(result), std::string("Examine: The disk is full."));
        QCOMPARE(failed_at(result), std::string("X 0: "));
        QCOMPARE(letters_of(result.phases), std::string("IXT"));
    }

    void who_does_not_keep_what_an_examine_reads_ends_nothing()
    {
        class WATCHER : public GFPE_LISTENER
        {};
        RECORDING_BUS bus;
        WATCHER watcher;

        const GFPE_RESULT result = run_flow(device(), usual_flow(), bus, order_of("X"), nullptr, &watcher);

        QVERIFY2(has_passed(result), report_of(result).c_str());
    }

    void one_byte_is_compared_alone()
    {
        const BYTES bytes = {0x00, 0xFF, 0x00};
        QVERIFY(!gfpe_is_all(bytes.data(), 1, 0xFF));
        QVERIFY(gfpe_is_all(bytes.data() + 1, 1, 0xFF));
        QVERIFY(!gfpe_is_all(bytes.data() + 1, 2, 0xFF));
    }

    void an_image_that_cannot_be_read_fails_the_run_data()
    {
        rows<QByteArray, QByteArray>({{"in a loop over pages", "P", "Program: The image is gone."},
                                      {"while it is compared", "V", "Verify: The image is gone."},
                                      {"in a single page", "E", "Erase: The image is gone."}});
    }

    void an_image_that_cannot_be_read_fails_the_run()
    {
        const auto [order, text] = row<QByteArray, QByteArray>();
        RECORDING_BUS bus;
        BAD_IMAGE image;
        image.add(0, BYTES(8192, 0x12));
        const FLOW flow = usual_flow();
        flow[2]->add_action(write_data({{GFPDB_WD_ADDRESS, "0x00000000"}}));

        const GFPE_RESULT result = run_flow(device(), flow, bus, order_of(order.toStdString()), &image);

        QCOMPARE(int(result.verdict), int(GFPE_VERDICT::FAILED));
        QCOMPARE(report_of(result), text.toStdString());
        QCOMPARE(letters_of(result.phases), "I" + order.toStdString() + "T");
        QVERIFY(!bus.commands().contains("06, 02"));
    }

    // The chip is not at rest: that the user has cancelled is one thing, that the Termination failed is another.
    void a_failure_after_a_cancellation_is_reported()
    {
        RECORDING_BUS bus;
        bus.answer(0x05, {0x01});
        const FLOW flow = usual_flow();
        flow[4]->add_action(make(GFPDB_ACT_READ_REGISTER));
        GFPE_RUN run(plan_of(device(), flow), bus);
        run.cancel();

        const GFPE_RESULT result = run.run(order_of("E"));

        QCOMPARE(int(result.verdict), int(GFPE_VERDICT::CANCELLED));
        QCOMPARE(bus.commands().join(' '), QString("04 05?1"));
        QCOMPARE(failed_at(result), std::string("T 2: Read Register"));
    }
};

QTEST_APPLESS_MAIN(TEST_RUN_REPORTS)

#include "test_run_reports.moc"
