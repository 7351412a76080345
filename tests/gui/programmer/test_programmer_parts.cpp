// SPDX-License-Identifier: MIT

// What the programmer's window stands on, without a widget.
#include "programmer/run_words.h"
#include "run/crc32.h"
#include "run/number_text.h"
#include "run/read_out.h"
#include "run/recent_files.h"
#include "run/run_trace.h"
#include "run/run_worker.h"
#include "run/test_pattern.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_database.h"

#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <new>
#include <set>

namespace {

// From this size on there is no memory.
std::atomic<std::size_t> memory_ends_at{SIZE_MAX};

} // namespace

void* operator new(std::size_t size)
{
    void* const memory = size < memory_ends_at ? std::malloc(std::max<std::size_t>(size, 1)) : nullptr;
    return memory != nullptr ? memory : throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return size < memory_ends_at ? std::malloc(std::max<std::size_t>(size, 1)) : nullptr;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

class TEST_PROGRAMMER_PARTS : public QObject
{
    Q_OBJECT

private:
    static std::vector<std::uint8_t> bytes_of(const QByteArray& text) { return {text.begin(), text.end()}; }

private slots:
    void check_sums_are_those_of_other_tools_data()
    {
        rows<QByteArray, uint>({{"nothing", "", 0u},
                                {"short", "a", 0xE8B7BE43u},
                                {"usual", "123456789", 0xCBF43926u},
                                {"long", QByteArray(32, '\0'), 0x190A55ADu}});
    }

    void check_sums_are_those_of_other_tools()
    {
        const auto [text, expected] = row<QByteArray, uint>();
        const std::vector<std::uint8_t> bytes = bytes_of(text);
        for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
            CRC32 sum;
            sum.add(bytes.data(), cut);
            sum.add(bytes.data() + cut, bytes.size() - cut);
            QCOMPARE(sum.value(), expected);
        }
    }

    void a_run_without_memory_says_so_data()
    {
        rows<bool, int>(
            {{"for its file", false, int(GFPE_VERDICT::REFUSED)}, {"in its middle", true, int(GFPE_VERDICT::LOST)}});
    }

    // An exception that leaves the thread of the run would end the program.
    void a_run_without_memory_says_so()
    {
        const auto [has_pattern, verdict] = row<bool, int>();
        QTemporaryDir directory;
        QFile file(directory.filePath(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("x") == 1 && file.flush());
        const GFPDB_RECORD record = GFPDB_DATABASE(directory.path().toStdString())
                                        .find_builtin({"MX25L1606E", std::nullopt, std::nullopt})
                                        .at(0);
        std::string problem;
        RUN_REQUEST request;
        request.target.chip = GFPE_CHIP::make(record, problem);
        QVERIFY2(request.target.chip, problem.c_str());
        request.plan = std::make_shared<GFPE_PLAN>(record, false);
        request.order.program = true;
        request.file = file.fileName();
        request.has_pattern = has_pattern;
        memory_ends_at = 16384;

        const RUN_OUTCOME outcome = RUN_WORKER().work(request);

        memory_ends_at = SIZE_MAX;
        QCOMPARE(outcome.problem, qt_error_string(ENOMEM));
        QCOMPARE(int(outcome.result.verdict), verdict);
    }

    void numbers_are_read_data()
    {
        rows<QString, int>({{"decimal", "100", 100},
                            {"hexadecimal", " 0x1F ", 31},
                            {"capital", "0XfF", 255},
                            {"negative", "-1", -1},
                            {"negative hexadecimal", "0x-1", -1},
                            {"empty", "", -1},
                            {"text", "1K", -1}});
    }

    void numbers_are_read()
    {
        const auto [text, expected] = row<QString, int>();
        QCOMPARE(int(parse_number(text).value_or(-1)), expected);
    }

    void places_and_times_are_written()
    {
        QCOMPARE(position_text(0x1ABCD), QStringLiteral("0x0001ABCD"));
        QCOMPARE(range_text({0x10, 0x10}), QStringLiteral("0x00000010 - 0x0000001F"));
        QCOMPARE(time_text(65), QStringLiteral("1:05"));
        QCOMPARE(time_text(3725), QStringLiteral("1:02:05"));
    }

    void recent_files_are_the_last_ones()
    {
        RECENT_FILES recent(QStringLiteral("recent"));
        for (int i = 0; i < 12; ++i)
            recent.add(QString::number(i));
        recent.add(QStringLiteral("5"));
        QCOMPARE(recent.files().size(), RECENT_FILES::MOST);
        QCOMPARE(recent.files().mid(0, 2), (QStringList{QStringLiteral("5"), QStringLiteral("11")}));
        QCOMPARE(recent.files().count(QStringLiteral("5")), 1);
    }

    void the_test_pattern_repeats_nowhere()
    {
        const std::unique_ptr<GFPE_IMAGE> pattern = make_test_pattern({0, 1 << 20});
        std::set<std::vector<std::uint8_t>> pages;
        std::string problem;
        std::vector<std::uint8_t> page(256);
        for (std::int64_t position = 0; position < (1 << 20); position += 256) {
            QVERIFY(pattern->read(position, page.data(), page.size(), problem));
            QVERIFY(pages.insert(page).second);
        }
        // The same bytes, however they are read.
        std::vector<std::uint8_t> part(10);
        QVERIFY(pattern->read(256 * 4095 + 3, part.data(), part.size(), problem));
        QVERIFY(std::equal(part.begin(), part.end(), page.begin() + 3));
    }

    void differences_are_kept_as_places()
    {
        const std::unique_ptr<GFPE_IMAGE> image = gfpe_memory_image(bytes_of("abcdef"), 2);
        READ_OUT read_out;
        read_out.compare_with(image.get());
        QVERIFY(read_out.add(0,
                             bytes_of("\xFF\xFF"
                                      "aXY")
                                 .data(),
                             5));
        QVERIFY(read_out.add(5, bytes_of("Zef\xFF.").data(), 5));
        read_out.finish();

        QCOMPARE(read_out.range().length, std::int64_t{10});
        QCOMPARE(read_out.different_bytes(), std::int64_t{4});
        QCOMPARE(read_out.differences().size(), std::size_t{2});
        QCOMPARE(read_out.differences()[0].start, std::int64_t{3});
        QCOMPARE(read_out.differences()[0].length, std::int64_t{3});
        QCOMPARE(read_out.differences()[1].start, std::int64_t{9});
        QVERIFY(read_out.read(2, 4) == bytes_of("aXYZ"));
        QVERIFY(read_out.read(8, 100) == bytes_of("\xFF."));
        QVERIFY(read_out.read_expected(2, 100) == bytes_of("abcdef\xFF\xFF"));
    }

    void a_long_phase_keeps_its_first_and_last_commands()
    {
        constexpr std::int64_t COUNT = 3 * RUN_TRACE::KEPT;
        RUN_TRACE trace;
        const std::string name = "Write";
        for (const GFPE_PHASE phase : {GFPE_PHASE::INITIALIZATION, GFPE_PHASE::PROGRAM}) {
            for (std::int64_t i = 0; i < COUNT; ++i) {
                trace.command_started({phase, 1, &name}, GFPE_COMMAND(), i);
                const auto byte = static_cast<std::uint8_t>(i);
                trace.received(&byte, 1);
                trace.command_ended(i);
            }
        }
        trace.failed({1}, {2});
        const std::vector<const GFPE_TRACE_ENTRY*> entries = trace.get_entries();

        QCOMPARE(entries.size(), 4 * RUN_TRACE::KEPT);
        QCOMPARE(entries.front()->number, std::int64_t{0});
        QCOMPARE(entries[RUN_TRACE::KEPT]->number, COUNT - std::int64_t{RUN_TRACE::KEPT});
        QCOMPARE(entries.back()->number, 2 * COUNT - 1);
        QCOMPARE(entries.back()->in.size(), std::size_t{1});
        QVERIFY(entries.back()->has_failed);
        QVERIFY(!entries.front()->has_failed);
    }

    void verdicts_are_plain_data()
    {
        const QString lost = QStringLiteral("The connection is lost. The state of the chip is unknown.");
        rows<int, bool, bool, bool, QString, int>(
            {{"passed", 0, false, false, false, "Passed", RUN_BAR::GOOD},
             {"noted", 0, true, false, false,
              "Passed, but a real chip would have refused or misread commands: see the log", RUN_BAR::DOUBTFUL},
             {"not stored", 0, false, true, false, "Passed, but not everything could be stored", RUN_BAR::DOUBTFUL},
             {"failed", 1, true, false, false, "Failed", RUN_BAR::BAD},
             {"cancelled", 2, false, false, false, "Cancelled", RUN_BAR::DOUBTFUL},
             {"lost", 3, false, false, false, lost, RUN_BAR::BAD},
             {"stopped", 3, false, false, true, "Stopped. The state of the chip is unknown.", RUN_BAR::BAD},
             {"refused", 4, false, true, false, "Not started: see the log", RUN_BAR::BAD}});
    }

    void verdicts_are_plain()
    {
        const auto [verdict, has_notes, has_problem, was_stopped, text, mood] =
            row<int, bool, bool, bool, QString, int>();
        RUN_OUTCOME outcome;
        outcome.result.verdict = static_cast<GFPE_VERDICT>(verdict);
        if (has_notes)
            outcome.notes.append(QStringLiteral("02: not write enabled"));
        if (has_problem)
            outcome.problem = QStringLiteral("The disk is full.");
        outcome.was_stopped = was_stopped;

        QCOMPARE(RUN_WORDS::verdict(outcome).text, text);
        QCOMPARE(int(RUN_WORDS::verdict(outcome).mood), mood);
        const QString lines = RUN_WORDS::end_lines(outcome).join(QLatin1Char('\n'));
        QCOMPARE(lines.contains(QStringLiteral("Note of the chip: 02: not write enabled")), has_notes);
        QCOMPARE(lines.contains(QStringLiteral("The disk is full.")), has_problem);
    }

    void the_failed_action_is_named()
    {
        RUN_OUTCOME outcome;
        outcome.result.verdict = GFPE_VERDICT::FAILED;
        outcome.result.failure.emplace();
        outcome.result.failure->phase = GFPE_PHASE::ERASE;
        QCOMPARE(RUN_WORDS::verdict(outcome).text, QStringLiteral("Failed at Erase"));
        outcome.result.failure->action = 2;
        outcome.result.failure->action_name = "Poll";
        QCOMPARE(RUN_WORDS::verdict(outcome).text, QStringLiteral("Failed at Erase, action 2 \"Poll\""));
    }
};

QTEST_GUILESS_MAIN(TEST_PROGRAMMER_PARTS)

#include "test_programmer_parts.moc"
