// SPDX-License-Identifier: MIT

// Runs on emulated chips: what each command does, what is refused, what it says and ends with.
#include "prog_test.h"
#include "test_rows.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QRegularExpression>

#include <csignal>
#include <sys/stat.h>

namespace {

QStringList between(const QStringList& asked)
{
    return QStringList{"Initialization"} + asked + QStringList{"Termination"};
}

} // namespace

class TEST_PROG_RUNS : public PROG_TEST
{
    Q_OBJECT

    QByteArray chip() const { return text_of_file(at("chip")); }

private slots:
    void a_command_runs_its_operations_data()
    {
        rows<QStringList, QStringList>(
            {{"program", QStringList{"program", "FILE"}, QStringList{"Erase", "Program", "Verify"}},
             {"no erase", QStringList{"program", "FILE", "--no-erase"}, QStringList{"Program", "Verify"}},
             {"no verify", QStringList{"program", "FILE", "--no-verify"}, QStringList{"Erase", "Program"}},
             {"blank check", QStringList{"program", "FILE", "--blank-check"},
              QStringList{"Erase", "Blank-Check", "Program", "Verify"}},
             {"erase", QStringList{"erase"}, QStringList{"Erase"}},
             {"blank-check", QStringList{"blank-check"}, QStringList{"Blank-Check"}},
             {"verify", QStringList{"verify", "BLANK"}, QStringList{"Verify"}},
             {"read", QStringList{"read", "OUT"}, QStringList{"Examine"}},
             {"initialization", QStringList{"run", "initialization"}, QStringList()},
             {"run one", QStringList{"run", "erase"}, QStringList{"Erase"}},
             {"run all", QStringList{"run", "examine", "verify", "program", "blank-check", "erase", "--file", "FILE"},
              QStringList{"Erase", "Blank-Check", "Program", "Verify", "Examine"}}});
    }

    void a_command_runs_its_operations()
    {
        auto [arguments, asked] = row<QStringList, QStringList>();
        arguments.replaceInStrings(QRegularExpression("^FILE$"), image("file", 300));
        write_file(m_place->path("blank"), std::string(300, '\xFF'));
        arguments.replaceInStrings(QRegularExpression("^BLANK$"), at("blank"));
        arguments.replaceInStrings(QRegularExpression("^OUT$"), at("out"));

        const TOOL_RUN run = prog(arguments + QStringList{"--json"});
        QVERIFY2(run.exit_code == 0, run.err.constData());
        QCOMPARE(operations(run), between(asked));
    }

    void a_file_goes_to_its_offset_and_back()
    {
        const QString file = image("file", 1000);

        const TOOL_RUN run = prog_on_file({"program", file, "--offset", "0x1FF00"});
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out,
                 QByteArray("MX25L1606E: Erase, Program, Verify passed: 0x0001FF00 to 0x000202E7 (1000 bytes).\n"));
        QCOMPARE(
            run.err,
            QByteArray("gfprog: Also erased, as only whole sectors can be: 0x00010000 to 0x0001FEFF (65280 bytes).\n"
                       "gfprog: Also erased, as only whole sectors can be: 0x000202E8 to 0x0002FFFF (64792 bytes).\n"));
        QCOMPARE(chip(), QByteArray(0x1FF00, '\xFF') + text_of_file(file) +
                             QByteArray(int(PART_BYTES) - 0x1FF00 - 1000, '\xFF'));

        QCOMPARE(prog_on_file({"verify", file, "--offset", "130816"}).exit_code, 0);
        QCOMPARE(prog_on_file({"read", at("out"), "--offset", "0x1FF00", "--length", "1000"}).exit_code, 0);
        QCOMPARE(text_of_file(at("out")), text_of_file(file));
        QCOMPARE(prog_on_file({"read", at("all")}).exit_code, 0);
        QCOMPARE(text_of_file(at("all")), chip());
    }

    void a_length_takes_a_part_of_the_file_or_more_than_it()
    {
        const QString file = image("file", 1000);
        QCOMPARE(prog_on_file({"program", file, "--length", "10"}).exit_code, 0);
        QCOMPARE(chip().left(11), text_of_file(file).left(10) + '\xFF');
        QCOMPARE(prog_on_file({"verify", file}).exit_code, 1);
        QCOMPARE(prog_on_file({"program", file, "--length", "2000"}).exit_code, 0);
        QCOMPARE(chip().left(2000), text_of_file(file) + QByteArray(1000, '\xFF'));
    }

    void only_the_range_is_erased_and_checked()
    {
        write_file(m_place->path("chip"), std::string(PART_BYTES, '\0'));
        QCOMPARE(prog_on_file({"erase", "--offset", "65536", "--length", "131072"}).exit_code, 0);
        QCOMPARE(chip().indexOf('\xFF'), PART_SECTOR);
        QCOMPARE(chip().count('\xFF'), 2 * PART_SECTOR);
        QCOMPARE(prog_on_file({"blank-check", "--offset", "65536", "--length", "131072"}).exit_code, 0);
        QCOMPARE(prog_on_file({"blank-check", "--offset", "65535", "--length", "2"}).exit_code, 1);
    }

    void a_failed_verify_says_where()
    {
        const TOOL_RUN run = prog({"verify", image("file", 10), "--offset", "0x100", "--json"});
        QCOMPARE(run.exit_code, 1);
        QVERIFY(run.err.startsWith("gfprog: Verify, action 1 \"Read Data\": expected 00 at 0x00000100, received FF."));
        const QJsonObject failure = object(run).value("failure").toObject();
        QCOMPARE(failure.value("operation").toString(), QString("Verify"));
        QCOMPARE(failure.value("action").toInt(), 1);
        QCOMPARE(failure.value("action_name").toString(), QString("Read Data"));
        QCOMPARE(failure.value("position").toInt(), 0x100);
        QCOMPARE(failure.value("expected").toString().left(9), QString("0x00 0x07"));
        QCOMPARE(failure.value("received").toString().left(9), QString("0xFF 0xFF"));
        QCOMPARE(object(run).value("verdict").toString(), QString("failed"));
    }

    void json_says_what_was_done()
    {
        const TOOL_RUN run = prog({"erase", "--offset", "1", "--length", "2", "--json"});
        QJsonObject expected =
            QJsonDocument::fromJson(
                R"({"verdict": "passed", "device": "MX25L1606E", "flow": "single", "connection": "emulated",
                "range": {"start": 1, "length": 2}, "erased": [{"start": 0, "length": 65536}],
                "operations": ["Initialization", "Erase", "Termination"], "chip_is_unknown": false,
                "problems": [], "notes": []})")
                .object();
        QJsonObject actual = object(run);
        QVERIFY(actual.take("commands").toInt() > 6);
        QCOMPARE(actual, expected);
    }

    void files_that_do_not_do_are_refused_data()
    {
        rows<QStringList, QString>(
            {{"missing", QStringList{"program", "none"}, "No such file or directory"},
             {"empty", QStringList{"program", "empty"}, "empty"},
             {"a directory", QStringList{"verify", "db"}, "regular file"},
             {"too large", QStringList{"program", "large", "--offset", "2097144"}, "9 bytes"},
             {"exists", QStringList{"read", "large"},
              "The file cannot be written: It already exists; --force replaces it."},
             {"no file", QStringList{"read", "pipe", "--force"},
              "The file cannot be written: It is not a regular file."},
             {"no place", QStringList{"read", "none/x"}, "The file cannot be written: No such file or directory."},
             {"no trace", QStringList{"erase", "--trace", "none/x.csv"}, "No such file or directory."},
             {"no chip", QStringList{"erase", "--on", "emulated:none/x", "--device", PART},
              "No such file or directory"}});
    }

    void files_that_do_not_do_are_refused()
    {
        const auto [arguments, error] = row<QStringList, QString>();
        image("empty", 0);
        image("large", 9);
        QCOMPARE(::mkfifo(m_place->path("pipe").c_str(), 0600), 0);
        QProcess process;
        process.setWorkingDirectory(at(""));
        QStringList all = arguments;
        if (!all.contains("--on"))
            all += {"--on", "emulated", "--device", PART};
        process.start(GFPROG_PROGRAM, all);
        QVERIFY(process.waitForFinished());
        const QByteArray said = process.readAllStandardError();
        QVERIFY2(said.contains(error.toUtf8()), said.constData());
        QCOMPARE(process.exitCode(), 4);
        QCOMPARE(text_of_file(at("large")).size(), 9);
    }

    void a_read_replaces_a_file_when_asked_and_only_as_a_whole()
    {
        const QString file = image("out", 5);
        const mode_t former_mask = ::umask(0);
        const TOOL_RUN careless = prog({"read", file, "--force", "--length", "7"});
        ::umask(former_mask);
        QCOMPARE(careless.exit_code, 0);
        QCOMPARE(text_of_file(file), QByteArray(7, '\xFF'));
        QCOMPARE(QFile::permissions(file) & QFile::WriteOther, QFile::Permissions());

        store_changed_part("A", {{"\"0x0B\"", "\"0x0C\""}});
        const TOOL_RUN run = prog({"run", "examine", "verify", "--file", image("file", 9), "-o", file, "--force",
                                   "--offset", "3", "--on", "emulated:" + image("chip", int(PART_BYTES))});
        QCOMPARE(run.exit_code, 1);
        QCOMPARE(text_of_file(file), QByteArray(7, '\xFF'));
    }

    void the_scheme_chooses_the_flow_data()
    {
        rows<QStringList, QString>(
            {{"built-in", QStringList{"--device", "MX25L25645G"}, "single"},
             {"by name", QStringList{"--device", "MX25L25645G", "--scheme", "active serial x4"}, "quad"},
             {"by number", QStringList{"--device", "MX25L25645G", "--scheme", "13"}, "quad"},
             {"other", QStringList{"--device", "MX25L25645G", "--scheme", "7"}, "single"},
             {"stored", QStringList{"--device", "mine4"}, "quad"},
             {"of two", QStringList{"--device", "both", "--scheme", "13"}, "quad"},
             {"of the other", QStringList{"--device", "both", "--scheme", "7"}, "single"}});
    }

    void the_scheme_chooses_the_flow()
    {
        const auto [options, flow] = row<QStringList, QString>();
        save_part("mine4", FAMILY, QUAD);
        save_part("both", FAMILY, QUAD);
        save_part("both", FAMILY, ACTIVE_SERIAL);
        const TOOL_RUN run = prog(QStringList{"program", image("file", 600), "--json"} + options);
        QVERIFY2(run.exit_code == 0, run.err.constData());
        QCOMPARE(object(run).value("flow").toString(), flow);
        QCOMPARE(object(run).value("notes").toArray().size(), 0);
    }

    void a_device_that_is_not_there_is_an_error_data()
    {
        rows<QStringList, QString>(
            {{"none", QStringList{"--device", "nobody"}, "There is no record called \"nobody\" in "},
             {"several", QStringList{"--device", "both"}, "There are several devices called \"both\". "},
             {"elsewhere", QStringList{"--device", "both", "--family", "9"},
              "There is no record called \"both\" in DIRECTORY. It is there for --family 3 --scheme 7, --family 3 "
              "--scheme 13.\n"}});
    }

    void a_device_that_is_not_there_is_an_error()
    {
        auto [options, error] = row<QStringList, QString>();
        error.replace("DIRECTORY", q(m_place->db_dir()));
        save_part("both", FAMILY, QUAD);
        save_part("both", FAMILY, ACTIVE_SERIAL);
        const TOOL_RUN run = prog(QStringList{"erase"} + options);
        QCOMPARE(run.exit_code, 3);
        QVERIFY2(QString(run.err).startsWith("gfprog: " + error), run.err.constData());
    }

    void a_directory_that_cannot_be_used_is_an_error()
    {
        const TOOL_RUN run =
            run_program(GFPROG_PROGRAM, {"erase", "--on", "emulated", "--device", "x", "-d", at("none")});
        QCOMPARE(run.exit_code, 5);
        QVERIFY(run.err.contains("does not exist"));
    }

    void notes_of_the_chip_are_shown_and_change_the_exit_code_data()
    {
        rows<QByteArray, QByteArray, QByteArray>(
            {{"a command that it does not have", "\"0x04\"", "\"0x77\"", "77: "},
             {"not at rest", "\"0xE9\"", "\"0x04\"",
              "Termination leaves it busy, write enabled or in another mode than after power-up\n"}});
    }

    void notes_of_the_chip_are_shown_and_change_the_exit_code()
    {
        const auto [command, other, note] = row<QByteArray, QByteArray, QByteArray>();
        store_changed_part("A", {{command.constData(), other.constData()}}, "XM25QH256C");
        const TOOL_RUN run = prog({"erase", "--device", "a", "--json"});
        QCOMPARE(run.exit_code, 9);
        QVERIFY2(run.err.startsWith("gfprog: The emulated chip notes: " + note), run.err.constData());
        QCOMPARE(object(run).value("notes").toArray().size(), 1);
        QCOMPARE(object(run).value("verdict").toString(), QString("passed"));
    }

    void a_file_that_cannot_be_written_is_worse_than_a_note()
    {
        store_changed_part("A", {{"\"0x04\"", "\"0x77\""}}, "XM25QH256C");
        QVERIFY(QFile::link("/dev/full", at("t.csv")));
        const TOOL_RUN run = prog({"erase", "--device", "a", "--trace", at("t.csv")});
        QCOMPARE(run.exit_code, 4);
        QVERIFY2(run.err.contains("The emulated chip notes: 77: "), run.err.constData());
    }

    void a_file_is_not_read_and_written_data()
    {
        rows<QStringList>(
            {{"image and trace", QStringList{"program", "f.csv", "--trace", "f.csv"}},
             {"other name", QStringList{"verify", "f.csv", "--trace", "./db/../f.csv"}},
             {"image and output", QStringList{"run", "examine", "verify", "--file", "f.csv", "-o", "f.csv"}},
             {"image and chip", QStringList{"program", "f.csv", "--on", "emulated:f.csv"}},
             {"output and chip", QStringList{"read", "f.csv", "--force", "--on", "emulated:f.csv"}},
             {"written twice", QStringList{"read", "new.csv", "--trace", "new.csv"}}});
    }

    void a_file_is_not_read_and_written()
    {
        QStringList arguments = row<QStringList>();
        const QByteArray before = text_of_file(image("f.csv", 10));
        arguments.replaceInStrings(QRegularExpression("^(emulated:)?(.*\\.csv)$"), "\\1" + at("\\2"));
        const TOOL_RUN run = prog(arguments);
        QCOMPARE(run.exit_code, 2);
        QVERIFY2(run.err.endsWith(" cannot be read and written, or written twice.\n"), run.err.constData());
        QCOMPARE(text_of_file(at("f.csv")), before);
        QCOMPARE(prog({"read", at("new"), "--trace", at("new.csv")}).exit_code, 0);
    }

    void a_flow_with_an_error_is_refused()
    {
        store_changed_part("A", {{"\"page_size\": \"256\"", "\"page_size\": \"100\""}});
        const TOOL_RUN run = prog({"program", image("file", 10), "--device", "A", "--json"});
        QCOMPARE(run.exit_code, 6);
        QVERIFY2(run.err.contains("Program, action ") && run.err.contains("\"100\""), run.err.constData());
        QVERIFY(run.err.endsWith("gfprog: Nothing was sent to the chip.\n"));
        QCOMPARE(object(run).value("verdict").toString(), QString("refused"));
        QCOMPARE(object(run).value("commands").toInt(), 0);
    }

    // A sector is half as large as this flow has it: what it leaves out would be FF on a chip that was never used.
    void an_erase_that_leaves_bytes_out_is_noticed_on_an_emulated_chip_data()
    {
        rows<QStringList, QByteArray>({{"erase", QStringList{"run", "erase", "blank-check"}, "Blank-Check"},
                                       {"program", QStringList{"program", "FILE"}, "Verify"}});
    }

    void an_erase_that_leaves_bytes_out_is_noticed_on_an_emulated_chip()
    {
        auto [arguments, phase] = row<QStringList, QByteArray>();
        arguments.replaceInStrings(QRegularExpression("^FILE$"), image("file", 100000));
        store_changed_part("A", {{"\"erase_size\": \"65536\"", "\"erase_size\": \"131072\""}});

        const TOOL_RUN run = prog(arguments + QStringList{"--device", "A"});

        QCOMPARE(run.exit_code, 1);
        QVERIFY2(run.err.contains("gfprog: " + phase + ", ") && run.err.contains(" at 0x00010000, received 00"),
                 run.err.constData());
    }

    void a_device_that_cannot_be_emulated_is_refused()
    {
        store_changed_part("A", {{"\"16Mb\"", "\"\""}});
        const TOOL_RUN run = prog({"erase", "--device", "A"});
        QCOMPARE(run.exit_code, 6);
        QCOMPARE(run.out, QByteArray());
    }

    void a_poll_that_never_passes_fails()
    {
        store_changed_part("A", {{"\"0x00\",\n              \"expected_data_mask\": \"0x01\"",
                                  "\"0x80\",\n              \"expected_data_mask\": \"0x81\""}});
        const TOOL_RUN run = prog({"erase", "--device", "A", "--json"});
        QCOMPARE(run.exit_code, 1);
        const QJsonObject failure = object(run).value("failure").toObject();
        QCOMPARE(failure.value("mask").toString(), QString("0x81"));
        QCOMPARE(failure.value("position"), QJsonValue());
    }

    void a_trace_has_what_was_sent_data()
    {
        rows<QStringList>({{"trace", QStringList{"trace", "erase"}},
                           {"option", QStringList{"erase", "--trace", "FILE"}},
                           {"both", QStringList{"trace", "erase", "--trace", "FILE"}}});
    }

    void a_trace_has_what_was_sent()
    {
        QStringList arguments = row<QStringList>();
        const bool is_in_file = arguments.contains("FILE");
        arguments.replaceInStrings(QRegularExpression("^FILE$"), at("t.csv"));
        const TOOL_RUN run = prog(arguments + QStringList{"--length", "1"});
        QCOMPARE(run.exit_code, 0);
        const QByteArray passed("MX25L1606E: Erase passed: 0x00000000 to 0x00000000 (1 byte).\n");
        QCOMPARE(is_in_file ? run.out : run.err.mid(run.err.indexOf('\n') + 1),
                 is_in_file ? passed : "gfprog: " + passed);
        QStringList sent = commands(is_in_file ? text_of_file(at("t.csv")) : run.out);
        sent.removeDuplicates();
        QCOMPARE(sent, (QStringList{"9F", "05", "06", "D8@000000", "04"}));
    }

    void a_dump_is_of_the_chip_s_clock()
    {
        QCOMPARE(prog({"run", "initialization", "--trace", at("t.VCD")}).exit_code, 0);
        QVERIFY(text_of_file(at("t.VCD")).contains("$timescale 10 ns"));
        // 50 MHz: half a clock is 10 ns.
        QVERIFY(text_of_file(at("t.VCD")).contains("#100\n0!\n1#\n#101\n1\"\n"));
    }

    void ctrl_c_ends_a_run_in_order_or_at_once_data()
    {
        rows<int, QString, QString>({{"once", 1, "Cancelled.", "Termination"},
                                     {"twice", 2, "Stopped. The state of the chip is unknown.", "Program"}});
    }

    void ctrl_c_ends_a_run_in_order_or_at_once()
    {
        const auto [signal_count, said, last_operation] = row<int, QString, QString>();
        HELD_RUN run(at("t.csv"),
                     {"program", image("file", 1000000), "--no-erase", "--on", "emulated", "--device", PART});
        QProcess& process = run.process();
        QByteArray error;
        for (int number = 0; number < signal_count; ++number) {
            ::kill(pid_t(process.processId()), SIGINT);
            QVERIFY(number > 0 || QTest::qWaitFor([&] {
                        error += process.readAllStandardError();
                        return error.contains("Cancelling. Press Ctrl+C again");
                    }));
        }
        const QByteArray trace = run.finish();
        error += process.readAllStandardError();

        QCOMPARE(process.exitCode(), 8);
        QVERIFY2(error.contains(said.toUtf8()), error.constData());
        QCOMPARE(QString(trace.trimmed().split('\n').last().split(',').value(2)), last_operation);
    }
};

QTEST_GUILESS_MAIN(TEST_PROG_RUNS)

#include "test_prog_runs.moc"
