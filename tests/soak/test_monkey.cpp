// SPDX-License-Identifier: MIT

// A monkey uses the dialog: nothing breaks, nothing that was stored is lost, and what is shown is what is there.
#include "database_watch.h"
#include "invariants.h"
#include "monkey.h"
#include "soak_stand.h"

#include "kovq/zui_app.h"

#include <QElapsedTimer>
#include <QTest>

#include <deque>

namespace {

constexpr int DEFAULT_EVENTS = 2000;
constexpr int DEFAULT_SEED = 20;
// The file as a whole is checked less often than the rest.
constexpr int EVENTS_BETWEEN_INTEGRITY_CHECKS = 200;
constexpr std::size_t TOLD_ACTS = 25;
// The fewest records that a run of the suite's length stores: a monkey that stores nothing proves nothing.
constexpr int FEWEST_STORED = 20;

} // namespace

class TEST_MONKEY : public QObject
{
    Q_OBJECT

private slots:
    void nothing_breaks_and_nothing_is_lost()
    {
        const int events = number_from_environment("GFPQ_SOAK_EVENTS", DEFAULT_EVENTS);
        const int seed = number_from_environment("GFPQ_SOAK_SEED", DEFAULT_SEED);
        std::printf("seed %d, %d events\n", seed, events);
        std::fflush(stdout);
        m_stand = std::make_unique<SOAK_STAND>();
        for (const QString& directory : m_stand->database_directories())
            m_watches.push_back(std::make_unique<DATABASE_WATCH>(directory));

        int stored = 0;
        {
            MONKEY monkey(*m_stand, std::uint32_t(seed));
            for (int event = 1; event <= events; ++event) {
                monkey.act();
                tell(monkey, event);
                const QString problem = problem_after_act(monkey, event);
                if (!problem.isEmpty()) {
                    for (const QString& act : m_last_acts)
                        std::printf("%s\n", qPrintable(act));
                    QFAIL(qPrintable(QStringLiteral("seed %1, event %2: %3").arg(seed).arg(event).arg(problem)));
                }
            }
            for (const std::unique_ptr<DATABASE_WATCH>& watch : m_watches)
                stored += watch->stored_states();
            std::printf("%d states of records stored, %d modal windows met\n", stored, monkey.modals().met());
        }
        QVERIFY2(stored >= FEWEST_STORED * qMin(events, DEFAULT_EVENTS) / DEFAULT_EVENTS, "hardly anything was stored");
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
        m_watches.clear();
        m_stand.reset();
    }

private:
    // The first thing that does not hold; empty when all does.
    QString problem_after_act(MONKEY& monkey, int event)
    {
        QString problem;
        const QStringList told = m_stand->take_warnings() + monkey.modals().take_problems();
        if (!told.isEmpty())
            problem = told.join(QLatin1Char('\n'));
        if (problem.isEmpty() && monkey.dialog() != nullptr)
            problem = dialog_problem(*monkey.dialog());
        for (const std::unique_ptr<DATABASE_WATCH>& watch : m_watches) {
            if (problem.isEmpty())
                problem = watch->problem();
            if (problem.isEmpty() && event % EVENTS_BETWEEN_INTEGRITY_CHECKS == 0)
                problem = watch->integrity_problem();
        }
        return problem;
    }

    // With GFPQ_SOAK_TELL set every act is printed, and what our own code logs: after a crash that says what led there.
    void tell(const MONKEY& monkey, int event)
    {
        m_last_acts.push_back(QStringLiteral("%1 %2").arg(event).arg(monkey.last_act()));
        if (m_last_acts.size() > TOLD_ACTS)
            m_last_acts.pop_front();
        if (qEnvironmentVariableIsSet("GFPQ_SOAK_TELL"))
            std::fprintf(stderr, "%s\n", qPrintable(m_last_acts.back()));
    }

    std::unique_ptr<SOAK_STAND> m_stand;
    std::vector<std::unique_ptr<DATABASE_WATCH>> m_watches;
    std::deque<QString> m_last_acts;
};

int main(int argc, char** argv)
{
    allow_a_long_run();
    ZUI_APP app(argc, argv);
    TEST_MONKEY test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_monkey.moc"
