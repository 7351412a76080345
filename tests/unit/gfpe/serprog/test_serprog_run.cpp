// SPDX-License-Identifier: MIT

// Whole runs of a built-in flow on a chip behind a programmer, also when the connection is lost on the way.
#include "gfpe/gfpe_chip.h"
#include "gfpe/gfpe_run.h"
#include "serprog/gfpe_serprog_client.h"
#include "serprog_stand.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_database.h"

#include <QTemporaryDir>
#include <QTest>

#include <random>

namespace {

using FAULTS = FAULTY_LINE::FAULTS;

constexpr std::int64_t START = 0x1F80;
constexpr std::size_t IMAGE_BYTES = 700;
constexpr int LOSSES = 200;

// The chip, for which no time of this machine passes: every run polls as often as the others.
class TIMELESS_BUS : public GFPE_BUS
{
public:
    explicit TIMELESS_BUS(GFPE_BUS& chip) : m_chip(chip) {}
    GFPE_ABILITIES get_abilities() const override { return m_chip.get_abilities(); }
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override
    {
        return m_chip.transfer(command, reader);
    }
    bool wait(std::int64_t microseconds) override { return m_chip.wait(microseconds); }
    std::int64_t get_time() const override { return m_time += std::int64_t(3600) * 1000 * 1000; }
    std::string get_last_error() const override { return m_chip.get_last_error(); }

private:
    GFPE_BUS& m_chip;
    mutable std::int64_t m_time = 0;
};

// A run on a new chip, with a line of its own.
struct PROGRAMMED
{
    PROGRAMMED(const GFPDB_RECORD& record, const std::shared_ptr<const GFPE_PLAN>& plan, const FAULTS& faults)
    {
        std::string problem;
        chip = GFPE_CHIP::make(record, problem);
        TIMELESS_BUS bus(*chip);
        auto own = std::make_unique<FAULTY_LINE>(bus, faults);
        FAULTY_LINE* const line = own.get();
        GFPE_SERPROG_CLIENT client(std::move(own), {});
        has_started = client.start(0);
        started_at = line->position;
        GFPE_RUN run(plan, client);
        const std::unique_ptr<GFPE_IMAGE> image =
            gfpe_memory_image(std::vector<std::uint8_t>(IMAGE_BYTES, 0x5A), START);
        run.set_image(image.get());
        GFPE_ORDER order;
        order.erase = order.blank_check = order.program = order.verify = true;
        order.range = image->get_range();
        result = run.run(order);
        ended_at = line->position;
    }

    std::unique_ptr<GFPE_CHIP> chip;
    GFPE_RESULT result;
    bool has_started = false;
    int started_at = 0;
    int ended_at = 0;
};

} // namespace

class TEST_SERPROG_RUN : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<GFPDB_DATABASE>(m_directory.path().toStdString());
        GFPDB_SELECTION selection;
        selection.name = "W25Q80DV";
        m_record = m_database->find_builtin(selection).front();
        m_plan = std::make_shared<GFPE_PLAN>(m_record, false);
    }

    void a_flow_runs_on_a_programmer()
    {
        const PROGRAMMED programmed(m_record, m_plan, {});

        QVERIFY2(programmed.result.verdict == GFPE_VERDICT::PASSED,
                 programmed.result.failure ? programmed.result.failure->text.c_str() : "");
        std::vector<std::uint8_t> memory(IMAGE_BYTES + 2);
        programmed.chip->read_memory(START - 1, memory.data(), memory.size());
        std::vector<std::uint8_t> expected(IMAGE_BYTES + 2, 0x5A);
        expected.front() = expected.back() = 0xFF;
        QVERIFY(memory == expected);
        QVERIFY(programmed.chip->get_notes().empty() && programmed.chip->is_at_rest());
    }

    void a_flow_for_four_lines_is_refused_before_anything_is_sent()
    {
        const PROGRAMMED programmed(m_record, std::make_shared<GFPE_PLAN>(m_record, true), {});

        QCOMPARE(programmed.result.verdict, GFPE_VERDICT::REFUSED);
        QCOMPARE(programmed.ended_at, programmed.started_at);
    }

    // At one of its bytes, wherever that is.
    void a_run_whose_connection_dies_never_passes_data() { rows<bool>({{"lost", true}, {"silent", false}}); }
    void a_run_whose_connection_dies_never_passes()
    {
        const auto is_lost = row<bool>();
        const PROGRAMMED whole(m_record, m_plan, {});
        QVERIFY(whole.result.verdict == GFPE_VERDICT::PASSED);
        std::mt19937 random(2026);
        std::uniform_int_distribution<int> positions(whole.started_at, whole.ended_at - 1);

        for (int i = 0; i < LOSSES; ++i) {
            FAULTS faults;
            (is_lost ? faults.lost_at : faults.silent_at) = positions(random);
            const PROGRAMMED programmed(m_record, m_plan, faults);

            QVERIFY(programmed.has_started);
            QCOMPARE(programmed.result.verdict, GFPE_VERDICT::LOST);
            QVERIFY(programmed.result.failure);
            const QString text = QString::fromStdString(programmed.result.failure->text);
            QVERIFY2(text.contains(QStringLiteral("The state of the chip is unknown.")), qPrintable(text));
        }
    }

private:
    const QTemporaryDir m_directory;
    std::unique_ptr<GFPDB_DATABASE> m_database;
    GFPDB_RECORD m_record;
    std::shared_ptr<const GFPE_PLAN> m_plan;
};

QTEST_GUILESS_MAIN(TEST_SERPROG_RUN)
#include "test_serprog_run.moc"
