// SPDX-License-Identifier: MIT

// The real programmer: its help, its arguments, its terminal, its man page and completion.
#include "prog_test.h"
#include "test_rows.h"

namespace {

const QStringList COMMANDS = {"detect", "learn", "program", "erase",   "blank-check", "verify",
                              "read",   "run",   "trace",   "emulate", "ports"};

} // namespace

class TEST_PROG_PROGRAM : public PROG_TEST
{
    Q_OBJECT

private slots:
    void the_exit_codes_are_as_documented()
    {
        QCOMPARE(int(GFPROG_EXIT_FAILED), 1);
        QCOMPARE(int(GFPROG_EXIT_REFUSED), 6);
        QCOMPARE(int(GFPROG_EXIT_CONNECTION), 7);
        QCOMPARE(int(GFPROG_EXIT_CANCELLED), 8);
        QCOMPARE(int(GFPROG_EXIT_NOTED), 9);
    }

    void help_lists_every_command()
    {
        const TOOL_RUN run = run_program(GFPROG_PROGRAM, {"--help"});
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(
            run.out,
            QByteArray("Usage: gfprog COMMAND [options] [arguments]\n\n"
                       "Programs serial flash devices with the flows of the flash database.\n\n"
                       "Commands:\n"
                       "  detect       List the devices that the connected chip can be\n"
                       "  learn        Make a device of what the connected chip says of itself\n"
                       "  program      Erase, program and verify what a file covers\n"
                       "  erase        Erase the device, or a range of it\n"
                       "  blank-check  Check that the device, or a range of it, is blank\n"
                       "  verify       Compare the device with a file\n"
                       "  read         Read the device, or a range of it, into a file\n"
                       "  run          Run operations of the flow by their names\n"
                       "  trace        Run operations and print every command that is sent\n"
                       "  emulate      Be a programmer with an emulated chip, for serprog clients\n"
                       "  ports        List the serial lines of this machine\n\n"
                       "\"gfprog COMMAND --help\" explains a command, \"gfprog --version\" prints the version.\n"));
    }

    void every_command_has_its_options_data()
    {
        const QStringList target = {"--on", "--device", "--family", "--scheme", "--json"};
        const QStringList range = target + QStringList{"--offset", "--length", "--trace"};
        const QStringList any = range + QStringList{"--file", "-o, --output", "--force"};
        rows<QString, QStringList>(
            {{"detect", "", target},
             {"learn", "",
              target + QStringList{"--from-family", "--from-scheme", "--name", "--voltage", "--set", "--replace",
                                   "--dry-run", "--save-sfdp", "--force"}},
             {"program", " FILE", range + QStringList{"--no-erase", "--blank-check", "--no-verify"}},
             {"erase", "", range},
             {"blank-check", "", range},
             {"verify", " FILE", range},
             {"read", " FILE", range + QStringList{"--force"}},
             {"run", " OPERATION...", any},
             {"trace", " OPERATION...", any},
             {"emulate", " PART", QStringList{"--listen", "--every-address", "--file", "--family", "--scheme"}},
             {"ports", "", QStringList{"--json"}}});
    }

    void every_command_has_its_options()
    {
        const auto [arguments, options] = row<QString, QStringList>();
        const QString command = QTest::currentDataTag();
        const TOOL_RUN run = run_program(GFPROG_PROGRAM, {command, "--help"});
        const QString start = "Usage: gfprog " + command + " [options]" + arguments + "\n";
        QVERIFY2(QString(run.out).startsWith(start), run.out.constData());
        for (const QString& option : options)
            QVERIFY2(run.out.contains("\n  " + option.toUtf8() + " "), qPrintable(option));
        QCOMPARE(run.out.count("\n  -"), options.size() + 3);
    }

    void wrong_arguments_are_refused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("error");
        const auto add = [](const QStringList& arguments, const char* error) {
            QTest::newRow(qPrintable(arguments.join(' '))) << arguments << QByteArray(error);
        };
        const QStringList emulated = {"--on", "emulated", "--device", PART};
        add({"frob"}, "\"frob\" is not a gfprog command.\ngfprog: \"gfprog --help\" lists the commands.");
        add({"program"}, "An argument is missing: gfprog program FILE");
        add({"read", "a", "b"}, "Unexpected argument \"b\": gfprog read FILE");
        add({"run"}, "An argument is missing: gfprog run OPERATION...");
        add({"detect"}, "--on is missing: where the chip is, e.g. --on emulated or --on tcp:localhost:4000.");
        add({"erase", "--on", "emulated"}, "An emulated chip needs --device: the device that it is.");
        add({"erase", "--on", "usb"},
            "\"usb\" is not a connection. Write emulated, emulated:FILE, tcp:HOST:PORT, serial:DEVICE or "
            "serial:DEVICE@BAUD.");
        for (const char* bytes : {"x", "", "-1", "0x", "1K", "1099511627777", "0x10000000001"})
            add(QStringList{"erase", "--offset", bytes} + emulated,
                qPrintable(QString("\"%1\" is not allowed for --offset: a number of bytes, e.g. 65536 or 0x10000.")
                               .arg(bytes)));
        add(QStringList{"erase", "--length", "0"} + emulated,
            "\"0\" is not allowed for --length: a number of bytes, e.g. 65536 or 0x10000.");
        add(QStringList{"erase", "--offset", "0x200000"} + emulated,
            "MX25L1606E has 2097152 bytes: --offset is beyond its end.");
        add(QStringList{"erase", "--offset", "1", "--length", "2097152"} + emulated,
            "MX25L1606E has 2097152 bytes: --length reaches beyond its end.");
        add(QStringList{"erase", "--trace", "t.txt"} + emulated,
            "--trace needs a file name that ends in .csv or .vcd.");
        add(QStringList{"run", "frob"} + emulated,
            "\"frob\" is not an operation. Allowed: initialization, erase, blank-check, program, verify, examine.");
        for (const char* operation : {"program", "verify"})
            add(QStringList{"run", operation} + emulated, "program and verify need --file.");
        add(QStringList{"run", "erase", "-o", "f"} + emulated, "--output is for what examine reads.");
        add(QStringList{"trace", "erase", "--json"} + emulated,
            "--json needs --trace with a file: standard output has the trace.");
        add({"emulate", PART}, "--listen is missing: the TCP port.");
        for (const char* port : {"-1", "65536", "x"})
            add({"emulate", PART, "--listen", port}, "--listen needs a whole number from 0 to 65535.");
        add({"erase", "--family", "0"}, "--family needs a whole number from 1 to 72, or the name of a device family: "
                                        "\"gfpdb families\" lists them.");
    }

    void wrong_arguments_are_refused()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, error);
        const TOOL_RUN run = run_program(GFPROG_PROGRAM, arguments);
        QCOMPARE(run.err, "gfprog: " + error + "\n");
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.exit_code, 2);
    }

    void a_terminal_shows_the_progress()
    {
        const QByteArray shown =
            run_on_terminal(GFPROG_PROGRAM, {"program", image("i", 70000), "--on", "emulated", "--device", PART});

        for (const char* phase : {"\rInitialization", "\rErase", "\rProgram ", "\rVerify ", "\rTermination 100 %"})
            QVERIFY2(shown.contains(phase), shown.constData());
        QVERIFY2(shown.contains(" passed: 0x00000000 to 0x0001116F (70000 bytes).\r\n"), shown.constData());
        QVERIFY(!prog({"erase"}).err.contains("Erase"));
    }

    void no_control_character_of_a_record_reaches_a_terminal()
    {
        store_changed_part("A", {});
        run_sql(m_place->db_file(),
                "UPDATE device SET single_flows = replace(single_flows, 'Write Enable', 'x\\u001b[31m\\u009b')");
        const QStringList arguments = {"erase", "--on", "emulated", "--device", "A", "-d", q(m_place->db_dir())};

        for (const QStringList& more : {QStringList(), QStringList{"--json"}}) {
            const QByteArray shown = run_on_terminal(GFPROG_PROGRAM, arguments + more);
            QVERIFY2(shown.contains("[31m"), shown.constData());
            QVERIFY(!shown.contains('\x1B'));
            QVERIFY(!shown.contains("\xC2\x9B"));
        }
    }

    void output_that_cannot_be_written_is_an_error_data()
    {
        rows<QStringList, QByteArray>({{"result", QStringList{"erase"}, "gfprog: The output cannot be written.\n"},
                                       {"trace", QStringList{"trace", "erase"},
                                        "gfprog: The trace - cannot be written: No space left on device.\n"}});
    }

    void output_that_cannot_be_written_is_an_error()
    {
        const auto [arguments, error] = row<QStringList, QByteArray>();
        QProcess process;
        process.setStandardOutputFile("/dev/full");
        process.start(GFPROG_PROGRAM, arguments + QStringList{"--on", "emulated", "--device", PART});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 4);
        QVERIFY(process.readAllStandardError().startsWith(error));
    }

    void the_man_page_has_every_command_and_option()
    {
        const QByteArray page = text_of_file(QString(GFPROG_SOURCE) + "/gfprog.1");
        QCOMPARE(lacking_in_man_page(GFPROG_PROGRAM, page, COMMANDS, GFPROG_EXIT_NOTED), QStringList());
    }

    void completion_knows_commands_options_and_names_data()
    {
        rows<QStringList, QStringList>(
            {{"command", QStringList{"pr"}, QStringList{"program"}},
             {"option", QStringList{"program", "--no"}, QStringList{"--no-erase", "--no-verify"}},
             {"operation", QStringList{"run", "e"}, QStringList{"erase", "examine"}},
             {"device", QStringList{"erase", "--device", "MX25L1606"}, QStringList{"MX25L1606E"}},
             {"part", QStringList{"emulate", "MX25L1606"}, QStringList{"MX25L1606E"}},
             {"connection", QStringList{"erase", "--on", "emu"}, QStringList{"emulated"}},
             {"file", QStringList{"verify", "a"}, QStringList{"a.bin"}},
             {"trace", QStringList{"erase", "--trace", "a"}, QStringList{"a.bin"}},
             {"help", QStringList{"help", "re"}, QStringList{"read"}}});
    }

    void completion_knows_commands_options_and_names()
    {
        const auto [words, offered] = row<QStringList, QStringList>();
        image("a.bin", 1);
        QCOMPARE(completed("bash", GFPROG_PROGRAM, words, at("")), offered);
    }

    void other_shells_complete_it_data() { rows_named<QString>({"zsh", "fish"}); }

    void other_shells_complete_it()
    {
        QCOMPARE(completed(row<QString>(), GFPROG_PROGRAM, {"run", "e"}, at("")), (QStringList{"erase", "examine"}));
    }

    void completion_offers_every_option()
    {
        QCOMPARE(lacking_in_completion(GFPROG_PROGRAM, COMMANDS, at("")), QStringList());
    }
};

QTEST_GUILESS_MAIN(TEST_PROG_PROGRAM)

#include "test_prog_program.moc"
