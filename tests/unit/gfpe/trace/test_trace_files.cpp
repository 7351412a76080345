// SPDX-License-Identifier: MIT

// Traces as files: what is in them, and what is said when they cannot be written.
#include "gfpe/gfpe_trace_file.h"

#include "open_files.h"
#include "test_rows.h"
#include "vcd_reading.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <malloc.h>

namespace {

using BYTES = std::vector<std::uint8_t>;

// One command of a run: what is sent, what comes, when.
struct SENT
{
    GFPE_COMMAND command;
    BYTES out;
    BYTES in;
    std::int64_t start;
    std::int64_t end;
};

const std::string NAME = "Read Register";

void trace(GFPE_TRACE& trace, SENT sent, GFPE_PHASE phase = GFPE_PHASE::PROGRAM, const std::string& name = NAME)
{
    sent.command.out = sent.out.data();
    sent.command.out_length = sent.out.size();
    sent.command.in_length = static_cast<std::int64_t>(sent.in.size());
    trace.command_started({phase, 2, &name}, sent.command, sent.start);
    for (const std::uint8_t byte : sent.in)
        trace.received(&byte, 1);
    trace.command_ended(sent.end);
}

GFPE_COMMAND command(int opcode, int address_bytes = 0, std::uint32_t address = 0)
{
    GFPE_COMMAND command;
    command.opcode = static_cast<std::uint8_t>(opcode);
    command.address_bytes = address_bytes;
    command.address = address;
    return command;
}

} // namespace

class TEST_TRACE_FILES : public QObject
{
    Q_OBJECT

    QTemporaryDir m_directory;

    std::string path(const char* name) const { return m_directory.filePath(name).toStdString(); }

    // What is in the file of a trace that has ended.
    QByteArray text(GFPE_TRACE_FILE& trace, const char* name) const
    {
        if (!trace.finish())
            qFatal("%s", trace.get_problem().c_str());
        QFile file(m_directory.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void a_csv_trace_has_a_line_for_each_command()
    {
        GFPE_CSV_TRACE csv;
        QVERIFY(csv.open(path("t.csv")));
        trace(csv, {command(0x06), {}, {}, 1000, 1002}, GFPE_PHASE::INITIALIZATION, "Write \"Enable\", again");
        trace(csv, {command(0x9F), {}, {0xC2, 0x20}, 1010, 1020});
        csv.failed({0xEF, 0x40}, {0xFF, 0xF0});
        GFPE_COMMAND quad = command(0x38, 4, 0x01A2B3C4);
        quad.address_lines = 4;
        quad.data_lines = 4;
        quad.dummy_clocks = 6;
        trace(csv, {quad, {0x00, 0x0A, 0xFF}, {}, 2000, 3000}, GFPE_PHASE::BLANK_CHECK, "=cmd()");
        trace(csv, {command(0x20, 3, 0x012345), {}, {}, 3001, 3002}, GFPE_PHASE::ERASE);

        QCOMPARE(text(csv, "t.csv"),
                 QByteArray("number,start_us,operation,action,action_name,command,command_lines,address_lines,data_"
                            "lines,address,dummy_clocks,"
                            "bytes_out,data_out,data_in,bytes_in,end_us,failed,expected,mask\n"
                            "0,0,Initialization,2,\"Write \"\"Enable\"\", again\",0x06,1,,,,0,0,,,0,2,,,\n"
                            "1,10,Program,2,Read Register,0x9F,1,,1,,0,0,,0xC2 0x20,2,20,failed,0xEF 0x40,0xFF 0xF0\n"
                            "2,1000,Blank-Check,2,'=cmd(),0x38,1,4,4,0x01A2B3C4,6,3,0x00 0x0A 0xFF,,0,2000,,,\n"
                            "3,2001,Erase,2,Read Register,0x20,1,1,,0x012345,0,0,,,0,2002,,,\n"));
    }

    void each_phase_has_the_name_of_its_page()
    {
        QStringList names;
        for (int phase = int(GFPE_PHASE::INITIALIZATION); phase <= int(GFPE_PHASE::TERMINATION); ++phase)
            names += gfpe_phase_name(static_cast<GFPE_PHASE>(phase));
        QCOMPARE(names.join(' '), QString("Initialization Erase Blank-Check Program Verify Examine Termination"));
    }

    void bytes_that_come_in_pieces_are_one_list()
    {
        GFPE_CSV_TRACE csv;
        QVERIFY(csv.open(path("t.csv")));
        const BYTES piece(1500, 0x5A);
        csv.command_started({GFPE_PHASE::EXAMINE, 1, &NAME}, command(0x03, 3, 0), 0);
        csv.received(piece.data(), piece.size());
        csv.received(piece.data(), 0);
        csv.received(piece.data(), 2);
        csv.command_ended(9);

        const QByteArray line = text(csv, "t.csv").split('\n').at(1);
        QCOMPARE(line.count("0x5A 0x5A"), 1501);
        QCOMPARE(line.count("0x5A"), 1502);
        QVERIFY(line.endsWith("0x5A,1502,9,,,"));
    }

    // 50 MHz are 10 ns for half a clock.
    void a_dump_has_the_levels_of_the_wires()
    {
        GFPE_VCD_TRACE vcd(50'000'000);
        QVERIFY(vcd.open(path("t.vcd")));
        GFPE_COMMAND twice = command(0xC0);
        twice.opcode_lines = 4;
        trace(vcd, {twice, {}, {}, 7, 8});
        trace(vcd, {twice, {}, {}, 9, 10});

        QCOMPARE(text(vcd, "t.vcd"),
                 QByteArray("$timescale 10 ns $end\n$scope module spi $end\n"
                            "$var wire 1 ! CS $end\n$var wire 1 \" CLK $end\n$var wire 1 # IO0 $end\n"
                            "$var wire 1 $ IO1 $end\n$var wire 1 % IO2 $end\n$var wire 1 & IO3 $end\n"
                            "$upscope $end\n$enddefinitions $end\n"
                            "#0\n1!\n0\"\n0#\nz$\n1%\n1&\n"
                            "#100\n0!\n0$\n#101\n1\"\n#102\n0\"\n0%\n0&\n#103\n1\"\n#104\n0\"\n"
                            "#105\n1!\nz$\n1%\n1&\n"
                            "#300\n0!\n0$\n#301\n1\"\n#302\n0\"\n0%\n0&\n#303\n1\"\n#304\n0\"\n"
                            "#305\n1!\nz$\n1%\n1&\n#415\n"));
    }

    void commands_of_a_fast_run_are_apart()
    {
        GFPE_VCD_TRACE vcd(50'000'000);
        QVERIFY(vcd.open(path("t.vcd")));
        for (int number = 0; number < 3; ++number)
            trace(vcd, {command(0x9F), {}, {1, 2, 3}, 0, 0});

        const QList<VCD_COMMAND> commands = vcd_commands(text(vcd, "t.vcd"));
        QCOMPARE(commands.size(), 3);
        QCOMPARE(commands[1].start - commands[0].end, qint64(100));
        QCOMPARE(commands[2].start - commands[1].end, qint64(100));
    }

    void commands_of_a_dump_are_as_far_apart_as_they_were()
    {
        GFPE_VCD_TRACE vcd(50'000'000);
        QVERIFY(vcd.open(path("t.vcd")));
        for (const std::int64_t start : {0, 500, 2000})
            trace(vcd, {command(0x06), {}, {}, start, start + 1});

        const QList<VCD_COMMAND> commands = vcd_commands(text(vcd, "t.vcd"));
        QCOMPARE(commands[1].start - commands[0].start, qint64(500'000));
        QCOMPARE(commands[2].start - commands[0].start, qint64(2'000'000));
    }

    void a_connection_without_a_known_clock_has_a_usual_one()
    {
        GFPE_VCD_TRACE vcd(0);
        QVERIFY(vcd.open(path("t.vcd")));
        trace(vcd, {command(0x06), {}, {}, 0, 1});

        const QList<VCD_COMMAND> commands = vcd_commands(text(vcd, "t.vcd"));
        QCOMPARE(commands[0].end - commands[0].start, qint64(8 * 100 + 50));
    }

    void a_slow_clock_leaves_as_much_between_commands()
    {
        GFPE_VCD_TRACE vcd(1'000'000);
        QVERIFY(vcd.open(path("t.vcd")));
        trace(vcd, {command(0x06), {}, {}, 0, 1});
        trace(vcd, {command(0x06), {}, {}, 1, 2});

        const QList<VCD_COMMAND> commands = vcd_commands(text(vcd, "t.vcd"));
        QCOMPARE(commands[1].start - commands[0].end, qint64(500));
    }

    void a_single_line_is_low_where_nobody_drives_it()
    {
        GFPE_VCD_TRACE vcd(0);
        QVERIFY(vcd.open(path("t.vcd")));
        GFPE_COMMAND waiting = command(0x0B);
        waiting.dummy_clocks = 1;
        trace(vcd, {waiting, {}, {}, 0, 1});

        QCOMPARE(vcd_commands(text(vcd, "t.vcd"))[0].clocks.last(), QString("11z0"));
    }

    // In a coarse unit a dump needs less memory where it is opened.
    void a_dump_has_the_largest_unit_that_does_data()
    {
        rows<qint64, QByteArray>({{"0.5 MHz", 500'000, "1 us"},
                                  {"1 MHz", 1'000'000, "100 ns"},
                                  {"unknown", 0, "10 ns"},
                                  {"33 MHz", 33'000'000, "1 ns"},
                                  {"1 GHz", 1'000'000'000, "1 ns"}});
    }

    void a_dump_has_the_largest_unit_that_does()
    {
        const auto [clock, unit] = row<qint64, QByteArray>();
        GFPE_VCD_TRACE vcd(clock);
        QVERIFY(vcd.open(path("t.vcd")));
        trace(vcd, {command(0x06), {}, {}, 0, 1});
        QVERIFY(text(vcd, "t.vcd").startsWith("$timescale " + unit + " $end\n"));
    }

    void the_name_of_the_file_says_what_it_is_data()
    {
        rows<QString>({{"a.csv", "csv"},
                       {"a.b.CSV", "csv"},
                       {"d/a.vcd", "vcd"},
                       {"a.Vcd", "vcd"},
                       {".csv", ""},
                       {"a.txt", ""},
                       {"csv", ""},
                       {"a.csv.gz", ""},
                       {"", ""}});
    }

    void the_name_of_the_file_says_what_it_is()
    {
        const std::unique_ptr<GFPE_TRACE_FILE> made = gfpe_make_trace_file(QTest::currentDataTag(), 0);
        const bool is_csv = dynamic_cast<GFPE_CSV_TRACE*>(made.get()) != nullptr;
        const bool is_vcd = dynamic_cast<GFPE_VCD_TRACE*>(made.get()) != nullptr;
        QCOMPARE(QString(is_csv ? "csv" : is_vcd ? "vcd" : ""), row<QString>());
    }

    void a_file_that_cannot_be_made_is_an_error()
    {
        GFPE_CSV_TRACE csv;
        QVERIFY(!csv.open(path("none/t.csv")));
        QCOMPARE(csv.get_problem(),
                 "The trace " + path("none/t.csv") + " cannot be written: No such file or directory.");
        QVERIFY(!csv.finish());
    }

    void a_full_disk_is_an_error_at_the_end_data() { rows<int>({{"short", 1}, {"long", 100000}}); }

    void a_full_disk_is_an_error_at_the_end()
    {
        GFPE_VCD_TRACE vcd(0);
        QVERIFY(vcd.open("/dev/full"));
        trace(vcd, {command(0x03, 3, 0), {}, BYTES(static_cast<std::size_t>(row<int>()), 0x55), 0, 1});
        QVERIFY(!vcd.finish());
        QCOMPARE(vcd.get_problem(), std::string("The trace /dev/full cannot be written: No space left on device."));
    }

    void a_trace_leaves_no_file_open()
    {
        const int before = open_files();
        GFPE_CSV_TRACE csv;
        QVERIFY(csv.open(path("closed.csv")));
        QVERIFY(csv.finish());
        QCOMPARE(open_files(), before);
    }

    void a_long_trace_needs_no_memory_data() { rows<bool, int>({{"csv", true, 64}, {"vcd", false, 4}}); }

    void a_long_trace_needs_no_memory()
    {
        // AddressSanitizer counts nothing here.
        const auto used = [] { return ::mallinfo2().uordblks + ::mallinfo2().hblkhd; };
        const auto [is_csv, chunks] = row<bool, int>();
        GFPE_CSV_TRACE csv;
        GFPE_VCD_TRACE vcd(0);
        GFPE_TRACE_FILE& file = is_csv ? static_cast<GFPE_TRACE_FILE&>(csv) : vcd;
        QVERIFY(file.open("/dev/null"));
        const BYTES chunk(1 << 16, 0x5A);
        const auto before = used();
        file.command_started({GFPE_PHASE::EXAMINE, 1, &NAME}, command(0x03, 3, 0), 0);
        for (int number = 0; number < chunks; ++number)
            file.received(chunk.data(), chunk.size());
        file.command_ended(1);
        constexpr std::size_t BYTES_MOST = 1 << 20;
        const auto after = used();
        QVERIFY2(after < before + BYTES_MOST, qPrintable(QString::number(after - before)));
        QVERIFY(file.finish());
    }
};

QTEST_APPLESS_MAIN(TEST_TRACE_FILES)

#include "test_trace_files.moc"
