// SPDX-License-Identifier: MIT

// The parts of the programmer that need no chip: numbers, progress, ranges, sentences.
#include "gfprog_options.h"
#include "run/progress_line.h"
#include "run/result_text.h"

#include "test_rows.h"

#include <QTest>

namespace {

GFPROG_OUTCOME outcome_of(GFPE_VERDICT verdict)
{
    GFPROG_OUTCOME outcome;
    outcome.device = "X";
    outcome.range = {0, 0x100};
    outcome.connection_error = "No answer.";
    outcome.result.verdict = verdict;
    return outcome;
}

} // namespace

class TEST_PROG_TEXTS : public QObject
{
    Q_OBJECT

private slots:
    void numbers_of_bytes_are_decimal_or_hexadecimal_data()
    {
        rows<qint64>({{"0", 0},
                      {"65536", 65536},
                      {"0x1fF", 0x1FF},
                      {"1099511627776", 1LL << 40},
                      {"1099511627777", -1},
                      {"0x", -1},
                      {"", -1},
                      {"-1", -1},
                      {"12 ", -1},
                      {"99999999999999999999999", -1}});
    }

    void numbers_of_bytes_are_decimal_or_hexadecimal()
    {
        QCOMPARE(qint64(gfprog_bytes(QTest::currentDataTag()).value_or(-1)), row<qint64>());
    }

    void progress_has_what_is_known_data()
    {
        rows<qint64, double, int, QString>({{"nothing", 0, -1, -1, "Program"},
                                            {"percent", 300, -1, -1, "Program 33 %"},
                                            {"slow", 300, 1536, -1, "Program 33 %, 1.5 KiB/s"},
                                            {"fast", 300, 3.25 * 1024 * 1024, 5, "Program 33 %, 3.2 MiB/s, 0:05 left"},
                                            {"long", 300, 1024 * 1024, 3661, "Program 33 %, 1.0 MiB/s, 61:01 left"}});
    }

    void progress_has_what_is_known()
    {
        const auto [total, rate, left, text] = row<qint64, double, int, QString>();
        GFPE_PROGRESS progress;
        progress.phase = GFPE_PHASE::PROGRAM;
        progress.all_done = total / 3;
        progress.all_total = total;
        const std::optional<double> known_rate = rate < 0 ? std::nullopt : std::optional<double>(rate);
        const std::optional<int> known_left = left < 0 ? std::nullopt : std::optional<int>(left);
        QCOMPARE(QString::fromStdString(progress_text(progress, known_rate, known_left)), text);
    }

    void what_is_beside_a_range_data()
    {
        rows<qint64, qint64, QString>(
            {{"nothing", 0, 0x200, ""},
             {"before", 0x10, 0x1F0, "0x00000000 to 0x0000000F (16 bytes)"},
             {"behind", 0, 0x1FF, "0x000001FF to 0x000001FF (1 byte)"},
             {"both", 0x80, 0x100, "0x00000000 to 0x0000007F (128 bytes), 0x00000180 to 0x000001FF (128 bytes)"},
             {"elsewhere", 0x300, 0x10, "0x00000000 to 0x000001FF (512 bytes)"}});
    }

    void what_is_beside_a_range()
    {
        const auto [start, length, text] = row<qint64, qint64, QString>();
        QStringList texts;
        for (const GFPE_RANGE& range : ranges_beside({{0, 0x200}}, {start, length}))
            texts += QString::fromStdString(range_text(range));
        QCOMPARE(texts.join(", "), text);
    }

    void each_end_of_a_run_is_said_data()
    {
        rows<int, bool, QString>(
            {{"passed", int(GFPE_VERDICT::PASSED), false, ""},
             {"cancelled", int(GFPE_VERDICT::CANCELLED), false, "Cancelled."},
             {"lost", int(GFPE_VERDICT::LOST), false, "No answer.|The state of the chip is unknown."},
             {"stopped", int(GFPE_VERDICT::LOST), true, "Stopped. The state of the chip is unknown."},
             {"refused", int(GFPE_VERDICT::REFUSED), false, "Nothing was sent to the chip."}});
    }

    void each_end_of_a_run_is_said()
    {
        const auto [verdict, was_stopped, text] = row<int, bool, QString>();
        GFPROG_OUTCOME outcome = outcome_of(static_cast<GFPE_VERDICT>(verdict));
        outcome.was_stopped = was_stopped;
        QStringList texts;
        for (const std::string& each : problem_texts(outcome))
            texts += QString::fromStdString(each);
        QCOMPARE(texts.join("|"), text);
    }

    void what_was_lost_in_an_action_is_said_once_data()
    {
        rows<QString, int>({{"without the state", "Erase, action 1: No answer.", 2},
                            {"with it", "Erase, action 1: Cut. The state of the chip is unknown.", 1}});
    }

    void what_was_lost_in_an_action_is_said_once()
    {
        const auto [text, count] = row<QString, int>();
        GFPROG_OUTCOME outcome = outcome_of(GFPE_VERDICT::LOST);
        outcome.result.failure.emplace();
        outcome.result.failure->text = text.toStdString();
        const std::vector<std::string> texts = problem_texts(outcome);
        QCOMPARE(int(texts.size()), count);
        QCOMPARE(texts.front(), text.toStdString());
        QVERIFY(QString::fromStdString(texts.back()).endsWith("The state of the chip is unknown."));
    }
};

QTEST_APPLESS_MAIN(TEST_PROG_TEXTS)

#include "test_prog_texts.moc"
