// SPDX-License-Identifier: MIT

// What goes wrong while a run goes on: connections that are lost, users who cancel, chips that do not do as they
// should. Each at two hundred places that a seed picks: a run ends, and never says that it has passed.
#include "chip_of_part.h"
#include "recording_bus.h"
#include "test_rows.h"

#include <QTest>

#include <functional>
#include <random>

namespace {

constexpr int SEEDS = 200;
constexpr const char* CABLE_IS_OUT = "The cable is out.";
constexpr const char* PARTS[] = {"MX25L1606E", "W25M512JV", "MT25QL256ABA", "SST26VF032B", "S25FS512S"};

// A connection on which something happens before a certain command. After a failure it must be left alone.
class EVENT_BUS : public GFPE_BUS
{
public:
    // `event` is false when the connection is lost.
    EVENT_BUS(GFPE_BUS& chip, std::int64_t at, std::function<bool()> event)
        : m_chip(chip), m_at(at), m_event(std::move(event))
    {}

    GFPE_ABILITIES get_abilities() const override { return {4, 0, 4096, 0}; }
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override
    {
        m_was_used_after_loss = m_was_used_after_loss || m_is_lost;
        m_is_lost = m_is_lost || (m_commands++ == m_at && !m_event());
        return !m_is_lost && m_chip.transfer(command, reader);
    }
    bool wait(std::int64_t microseconds) override
    {
        m_was_used_after_loss = m_was_used_after_loss || m_is_lost;
        return !m_is_lost && m_chip.wait(microseconds);
    }
    std::string get_last_error() const override { return m_is_lost ? CABLE_IS_OUT : ""; }

    bool m_was_used_after_loss = false;

private:
    GFPE_BUS& m_chip;
    const std::int64_t m_at;
    const std::function<bool()> m_event;
    std::int64_t m_commands = 0;
    bool m_is_lost = false;
};

// One run on a new chip, with a part, a variant, a phase and a command of it that a seed picks.
struct SEEDED
{
    explicit SEEDED(int seed)
        : random(static_cast<unsigned>(seed)), part_index(random() % std::size(PARTS)), variant(" quad"[random() % 2]),
          chip(part())
    {
        image.add(0x10000 - 300, BYTES(700, 0x42));
        plan = plan_of(device_of(part()), flow_of(part(), variant == 'q'));
    }

    const GFPDB_PART& part() const { return part_called(PARTS[part_index]); }

    std::mt19937 random;
    const std::size_t part_index;
    const char variant;
    OLD_CHIP chip;
    SPARSE_IMAGE image;
    std::shared_ptr<const GFPE_PLAN> plan;
    const GFPE_ORDER order = order_of("EBPVX", GFPE_RANGE{0x8000, 0x10000});

    // The commands of a run on which nothing happens.
    const std::deque<GFPE_TRACE_ENTRY>& run_undisturbed()
    {
        static std::map<std::string, std::deque<GFPE_TRACE_ENTRY>> known;
        std::deque<GFPE_TRACE_ENTRY>& entries = known[part().name + variant];
        if (!entries.empty())
            return entries;
        GFPE_TRACE_LOG log(1000000);
        OLD_CHIP other(part());
        EVENT_BUS bus(other.chip(), -1, {});
        GFPE_RUN run(plan, bus);
        run.set_image(&image);
        run.set_trace(&log);
        const GFPE_RESULT result = run.run(order);
        if (!has_passed(result))
            throw std::runtime_error(report_of(result));
        return entries = log.get_entries();
    }

    // The number of a command of the phase.
    std::int64_t pick(const std::deque<GFPE_TRACE_ENTRY>& entries, GFPE_PHASE phase)
    {
        std::vector<std::int64_t> numbers;
        for (const GFPE_TRACE_ENTRY& entry : entries) {
            if (entry.phase == phase)
                numbers.push_back(entry.number);
        }
        return numbers.at(random() % numbers.size());
    }
};

bool is_poll(const GFPE_TRACE_ENTRY& entry)
{
    return entry.command.in_length > 0 && entry.command.address_bytes == 0;
}

} // namespace

class TEST_RUN_FAULTS : public QObject
{
    Q_OBJECT

private slots:
    void a_lost_connection_is_never_a_success()
    {
        for (int seed = 0; seed < SEEDS; ++seed) {
            SEEDED it(seed);
            const auto phase = static_cast<GFPE_PHASE>(seed % 7);
            const std::int64_t at = it.pick(it.run_undisturbed(), phase);
            EVENT_BUS bus(it.chip.chip(), at, [] { return false; });
            GFPE_RUN run(it.plan, bus);
            run.set_image(&it.image);

            const GFPE_RESULT result = run.run(it.order);

            QCOMPARE(int(result.verdict), int(GFPE_VERDICT::LOST));
            QCOMPARE(int(result.failure->phase), int(phase));
            QVERIFY2(QByteArray::fromStdString(report_of(result)).endsWith(CABLE_IS_OUT), report_of(result).c_str());
            QCOMPARE(result.commands, at + 1);
            QVERIFY(!bus.m_was_used_after_loss);
        }
    }

    // Polls go on, reads end, and the chip is at rest afterwards.
    void a_cancelled_run_sends_nothing_but_polls_and_the_termination()
    {
        for (int seed = 0; seed < SEEDS; ++seed) {
            SEEDED it(seed);
            const auto phase = static_cast<GFPE_PHASE>(seed % 6);
            const std::deque<GFPE_TRACE_ENTRY>& undisturbed = it.run_undisturbed();
            const std::int64_t at = it.pick(undisturbed, phase);
            GFPE_TRACE_LOG log(1000000);
            GFPE_RUN* cancelled = nullptr;
            EVENT_BUS bus(it.chip.chip(), at, [&cancelled] {
                cancelled->cancel();
                return true;
            });
            GFPE_RUN run(it.plan, bus);
            cancelled = &run;
            run.set_image(&it.image);
            run.set_trace(&log);

            const GFPE_RESULT result = run.run(it.order);

            const bool is_over = std::none_of(undisturbed.begin() + at + 1, undisturbed.end(), [](const auto& entry) {
                return entry.phase != GFPE_PHASE::TERMINATION && !is_poll(entry);
            });
            QVERIFY(result.verdict == GFPE_VERDICT::CANCELLED || (is_over && has_passed(result)));
            QVERIFY2(!result.failure, report_of(result).c_str());
            for (const GFPE_TRACE_ENTRY& entry : log.get_entries())
                QVERIFY(entry.number <= at || is_poll(entry) || entry.phase == GFPE_PHASE::TERMINATION);
            QCOMPARE(result.phases.back() == GFPE_PHASE::TERMINATION, !result.chip_is_unknown);
            QVERIFY(phase == GFPE_PHASE::INITIALIZATION || !result.chip_is_unknown);
            QVERIFY2(it.chip.chip().is_at_rest() && it.chip.notes().empty(), it.chip.notes().c_str());
        }
    }

    void a_stopped_run_sends_nothing_more()
    {
        for (int seed = 0; seed < SEEDS; ++seed) {
            SEEDED it(seed);
            const std::int64_t at = it.pick(it.run_undisturbed(), static_cast<GFPE_PHASE>(seed % 7));
            GFPE_RUN* stopped = nullptr;
            EVENT_BUS bus(it.chip.chip(), at, [&stopped] {
                stopped->stop();
                return true;
            });
            GFPE_RUN run(it.plan, bus);
            stopped = &run;
            run.set_image(&it.image);

            const GFPE_RESULT result = run.run(it.order);

            // After the very last command there is nothing left to stop.
            QCOMPARE(result.commands, at + 1);
            QVERIFY(int(result.verdict) == int(GFPE_VERDICT::LOST) || has_passed(result));
            QVERIFY(!has_passed(result) || result.phases.back() == GFPE_PHASE::TERMINATION);
        }
    }

    void a_chip_without_power_is_never_a_success()
    {
        for (int seed = 0; seed < SEEDS; ++seed) {
            SEEDED it(seed);
            const auto phase = seed % 2 == 0 ? GFPE_PHASE::ERASE : GFPE_PHASE::PROGRAM;
            GFPE_CHIP_FAULTS faults;
            faults.power_lost_at = it.pick(it.run_undisturbed(), phase);
            it.chip.chip().set_faults(faults);
            EVENT_BUS bus(it.chip.chip(), -1, {});
            GFPE_RUN run(it.plan, bus);
            run.set_image(&it.image);

            const GFPE_RESULT result = run.run(it.order);

            QCOMPARE(int(result.verdict), int(GFPE_VERDICT::FAILED));
            QVERIFY2(result.failure->phase >= phase, report_of(result).c_str());
            QCOMPARE(int(result.phases.back()), int(GFPE_PHASE::TERMINATION));
        }
    }

    void a_chip_that_stays_busy_fails_at_its_poll()
    {
        OLD_CHIP chip(part_called("MX25L1606E"));
        GFPE_CHIP_FAULTS faults;
        faults.stays_busy = true;
        chip.chip().set_faults(faults);
        SPARSE_IMAGE image;

        const GFPE_RESULT result = chip.run(flow_of(part_called("MX25L1606E"), false), order_of("E"), image);

        QCOMPARE(report_of(result), std::string("Erase, action 4 \"Poll Write In Progress\": expected 00 with mask 01, "
                                                "received 03 in the last of 1000 attempts."));
        QCOMPARE(letters_of(result.phases), std::string("IET"));
    }

    void a_bad_bit_is_found_data()
    {
        rows<bool, QByteArray>({{"does not program", true, "V"}, {"does not erase", false, "B"}});
    }

    void a_bad_bit_is_found()
    {
        const auto [programs, phase] = row<bool, QByteArray>();
        OLD_CHIP chip(part_called("MX25L1606E"));
        chip.chip().fill_memory(0x00);
        GFPE_CHIP_FAULTS faults;
        (programs ? faults.does_not_program : faults.does_not_erase) = GFPE_CHIP_FAULTS::BIT{0x12345, 3};
        chip.chip().set_faults(faults);
        SPARSE_IMAGE image;
        image.add(0x12300, BYTES(256, 0x00));

        const GFPE_RESULT result = chip.run(flow_of(part_called("MX25L1606E"), false), order_of("EBPV"), image);

        QCOMPARE(letters_of({result.failure->phase}), phase.toStdString());
        QCOMPARE(result.failure->position, std::int64_t(0x12345));
        QCOMPARE(int(result.failure->received.at(0)), programs ? 0x08 : 0xF7);
    }

    // A pause of ten minutes, of which the user sees no more than a moment.
    void a_wait_ends_soon_after_the_user_has_stopped_the_run()
    {
        struct STOPPING_BUS : RECORDING_BUS
        {
            bool wait(std::int64_t microseconds) override
            {
                run->stop();
                return RECORDING_BUS::wait(microseconds);
            }
            GFPE_RUN* run = nullptr;
        } bus;
        FLOW flow;
        for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
            flow.push_back(operation_of(kind, {}));
        flow[0]->add_action(write_register({{GFPDB_WR_DELAY, "600000000"}}));
        GFPE_RUN run(plan_of({"chip", 1024, 1, {}}, flow), bus);
        bus.run = &run;

        QCOMPARE(int(run.run({}).verdict), int(GFPE_VERDICT::LOST));
        QVERIFY(bus.m_waited_us <= 50000);
    }

    void blank_pages_are_no_longer_read_after_a_cancellation_data()
    {
        rows<bool, int, QByteArray>({{"cancelled", false, int(GFPE_VERDICT::CANCELLED), ""},
                                     {"stopped", true, int(GFPE_VERDICT::LOST),
                                      "Program: The run was stopped; the state of the chip is not known."}});
    }

    // Of an image of FF nothing is sent, but all of it is read.
    void blank_pages_are_no_longer_read_after_a_cancellation()
    {
        const auto [is_stopped, verdict, text] = row<bool, int, QByteArray>();
        struct BLANK_IMAGE : GFPE_IMAGE
        {
            GFPE_RANGE get_range() const override { return {0, 1 << 20}; }
            bool read(std::int64_t, std::uint8_t* bytes, std::size_t length, std::string&) override
            {
                ++reads;
                std::fill(bytes, bytes + length, 0xFF);
                end_run();
                return true;
            }
            std::function<void()> end_run;
            int reads = 0;
        } image;
        FLOW flow;
        for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
            flow.push_back(operation_of(kind, {}));
        flow[1] = operation_of(1, {start("page"), write_data(), end("page")});
        RECORDING_BUS bus;
        GFPE_RUN run(plan_of({"chip", 1 << 20, 1, {}}, flow), bus);
        run.set_image(&image);
        image.end_run = [&run, is_stopped = is_stopped] { is_stopped ? run.stop() : run.cancel(); };

        const GFPE_RESULT result = run.run(order_of("P"));

        QCOMPARE(int(result.verdict), verdict);
        QCOMPARE(image.reads, 1);
        QCOMPARE(result.failure ? result.failure->text : std::string(), text.toStdString());
    }

    // What failed first is what the user has to look at.
    void a_connection_that_is_lost_after_a_failure_is_reported_behind_it()
    {
        struct LOSING_BUS : RECORDING_BUS
        {
            bool settle() override { return false; }
            std::string get_last_error() const override { return CABLE_IS_OUT; }
        } bus;
        bus.answer(0x05, {0x01});
        FLOW flow;
        flow.push_back(operation_of(0, {make(GFPDB_ACT_READ_REGISTER, {{GFPDB_RR_NAME, "Poll"}})}));
        GFPE_TRACE_LOG log(10);

        const GFPE_RESULT result = run_flow({"chip", 1024, 1, {}}, flow, bus, {}, nullptr, nullptr, &log);

        QCOMPARE(int(result.verdict), int(GFPE_VERDICT::LOST));
        QCOMPARE(report_of(result), "Initialization, action 1 \"Poll\": expected 00 with mask 01, received 01. " +
                                        std::string(CABLE_IS_OUT));
        QCOMPARE(failed_at(result), std::string("I 1: Poll"));
        QCOMPARE(result.failure->received, BYTES{0x01});
    }

    void a_connection_that_is_lost_between_two_reads_of_a_poll_is_lost()
    {
        struct LOSING_BUS : RECORDING_BUS
        {
            bool wait(std::int64_t) override { return false; }
            std::string get_last_error() const override { return CABLE_IS_OUT; }
        } bus;
        bus.answer(0x05, {0x01});
        FLOW flow;
        flow.push_back(
            operation_of(0, {make(GFPDB_ACT_READ_REGISTER, {{GFPDB_RR_ATTEMPT_COUNT, "3"}, {GFPDB_RR_DELAY, "10"}}),
                             write_register()}));

        const GFPE_RESULT result = run_flow({"chip", 1024, 1, {}}, flow, bus, {}, nullptr);

        QCOMPARE(int(result.verdict), int(GFPE_VERDICT::LOST));
        QCOMPARE(bus.commands().join(", "), QString("05?1"));
    }

    void a_connection_that_does_not_do_its_work_is_lost_data()
    {
        rows<int, QByteArray>({{"too few bytes", 0, "The connection gave 2 bytes instead of 3."},
                               {"a wait that fails", 1, CABLE_IS_OUT},
                               {"a last command that did not arrive", 2, CABLE_IS_OUT},
                               {"without a word", 3, "The connection was lost."}});
    }

    void a_connection_that_does_not_do_its_work_is_lost()
    {
        const auto [what, text] = row<int, QByteArray>();
        struct LAZY_BUS : RECORDING_BUS
        {
            bool transfer(const GFPE_COMMAND&, GFPE_READER* reader) override
            {
                const std::uint8_t bytes[] = {1, 2, 3, 4, 5};
                if (reader)
                    reader->take(bytes, fault == 0 ? 2 : 5);
                return fault != 3;
            }
            bool wait(std::int64_t) override { return fault != 1; }
            bool settle() override { return fault != 2; }
            std::string get_last_error() const override { return fault == 3 ? "" : CABLE_IS_OUT; }
            int fault = 0;
        } bus;
        bus.fault = what;
        FLOW flow;
        for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
            flow.push_back(operation_of(kind, {}));
        // More bytes than were asked for are no harm.
        flow[0]->add_action(make(GFPDB_ACT_READ_REGISTER, {{GFPDB_RR_DATA_LENGTH, "3"},
                                                           {GFPDB_RR_EXPECTED_DATA, "0x01 0x02 0x03"},
                                                           {GFPDB_RR_EXPECTED_DATA_MASK, "0xFF 0xFF 0xFF"}}));
        flow[0]->add_action(write_register({{GFPDB_WR_DELAY, "10"}}));
        SPARSE_IMAGE image;

        const GFPE_RESULT result = run_flow({"chip", 1024, 1, {}}, flow, bus, {}, &image);

        QCOMPARE(int(result.verdict), int(GFPE_VERDICT::LOST));
        QCOMPARE(letters_of(result.phases), std::string("I"));
        QVERIFY2(QByteArray::fromStdString(report_of(result)).endsWith(text), report_of(result).c_str());
    }
};

QTEST_APPLESS_MAIN(TEST_RUN_FAULTS)

#include "test_run_faults.moc"
