// SPDX-License-Identifier: MIT

// The real program: charts.
#include "cli_command.h"
#include "cli_test.h"
#include "test_rows.h"

#include <QFile>
#include <QProcess>

#include <csignal>

class TEST_CLI_CHART : public CLI_TEST
{
    Q_OBJECT

private:
    static bool is_pdf(const QByteArray& content) { return content.startsWith("%PDF-") && content.contains("%%EOF"); }
    static bool is_svg(const QByteArray& content)
    {
        return content.startsWith("<?xml") && content.contains(">Name: Write Enable</text>");
    }

    // Which flow a picture says that it shows.
    static QByteArray variant_of(const TOOL_RUN& run)
    {
        return run.out.contains(">Quad-I/O flow</text>")     ? "quad"
               : run.out.contains(">Single-I/O flow</text>") ? "single"
                                                             : run.err;
    }

private slots:
    void the_file_is_what_its_name_says()
    {
        save_part("Mine");
        for (const auto& [name, is_kind] : {std::pair("chart.pdf", is_pdf), std::pair("chart.SVG", is_svg)}) {
            const TOOL_RUN run = tool({"chart", "mine", "--operation", "Program", "-o", at(name)});

            QCOMPARE(run.err, QByteArray());
            QCOMPARE(run.out, QByteArray());
            QCOMPARE(run.exit_code, 0);
            QVERIFY(is_kind(text_of_file(at(name))));
        }
        QCOMPARE(tool({"chart", "Mine", "--format", "svg", "-o", at("chart.pdf")}).exit_code, 0);
        QVERIFY(is_svg(text_of_file(at("chart.pdf"))));
        QVERIFY(is_pdf(tool({"chart", "Mine", "--format", "pdf"}).out));
        QVERIFY(is_pdf(run_tool({"chart", "MX25L1606E", "--format", "pdf", "--paper", "letter"}).out));
    }

    void a_reader_who_has_gone_hears_nothing_data()
    {
        rows<QString>({{"chart", "chart MX25L25645G --format svg"}, {"list", "list --builtin"}});
    }

    // The pipe has no reader from the beginning.
    void a_reader_who_has_gone_hears_nothing()
    {
        const QString script =
            "mkfifo pipe; exec 4<>pipe 5>pipe 4<&-; \"$0\" " + row<QString>() + " >&5; echo $?; rm pipe";
        const TOOL_RUN run = run_program("/bin/bash", {"-c", "cd \"$1\"; " + script, GFPDB_PROGRAM, at("")});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.out, QByteArray::number(128 + SIGPIPE) + '\n');
    }

    void operations_have_their_names_data()
    {
        rows<QString>({{"initialization", "Initialization"},
                       {"PROGRAM", "Program"},
                       {"Erase", "Erase"},
                       {"verify", "Verify/Blank-Check/Examine"},
                       {"blank-check", "Verify/Blank-Check/Examine"},
                       {"verify/blank-check/examine", "Verify/Blank-Check/Examine"},
                       {"termination", "Termination"}});
    }

    void operations_have_their_names()
    {
        const QString title = row<QString>();
        const QByteArray svg =
            run_tool({"chart", "MX25L25645G", "--format", "svg", "--operation", QTest::currentDataTag()}).out;

        for (const char* other : {"Initialization", "Program", "Erase", "Verify/Blank-Check/Examine", "Termination"})
            QCOMPARE(svg.contains(QByteArray(">") + other + "</text>"), title == other);
    }

    void the_flow_is_that_of_the_scheme()
    {
        save_part("Single", FAMILY, ACTIVE_SERIAL, "Template");
        save_part("Quad", FAMILY, QUAD);
        const auto variant = [this](const QStringList& arguments) {
            return variant_of(tool(QStringList{"chart", "--format", "svg"} + arguments));
        };
        QCOMPARE(variant({"Single"}), QByteArray("single"));
        QCOMPARE(variant({"Quad"}), QByteArray("quad"));
        QCOMPARE(variant({"Template"}), QByteArray("single"));
        QCOMPARE(variant({"MX25L25645G"}), QByteArray("single"));
        QCOMPARE(variant({"MX25L25645G", "--scheme", "13"}), QByteArray("quad"));
        QCOMPARE(variant({"Single", "--variant", "quad"}), QByteArray("quad"));
        QCOMPARE(variant({"Quad", "--variant", "single"}), QByteArray("single"));
    }

    void former_states_are_drawn()
    {
        save_part("Mine", FAMILY, QUAD);
        save_part("Other", FAMILY, QUAD);
        QVERIFY(fresh_manager(FAMILY, QUAD)->delete_flash("Mine", m_place->db_dir()));
        const QByteArray svg = tool({"chart", "history:1", "--format", "svg"}).out;

        QVERIFY(svg.contains(">Mine</text>") && svg.contains(">Quad-I/O flow, history:1</text>"));
        QCOMPARE(tool({"chart", "history:7", "--format", "svg"}).exit_code, 3);
    }

    void wrong_arguments_are_refused_data()
    {
        rows<QStringList, int, QByteArray>(
            {{"no format",
              {"MX25L1606E"},
              2,
              "The format is missing: --format pdf, --format svg, or a file name with that ending."},
             {"another ending",
              {"MX25L1606E", "-o", "a.png"},
              2,
              "The format is missing: --format pdf, --format svg, or a file name with that ending."},
             {"another format",
              {"MX25L1606E", "--format", "png"},
              2,
              "\"png\" is not a format of charts. Allowed: pdf, svg."},
             {"another variant",
              {"MX25L1606E", "--format", "pdf", "--variant", "both"},
              2,
              "\"both\" is not a flow variant. Allowed: single, quad."},
             {"another paper",
              {"MX25L1606E", "--format", "pdf", "--paper", "a5"},
              2,
              "\"a5\" is not a size of paper. Allowed: a4, letter."},
             {"another operation",
              {"MX25L1606E", "--format", "pdf", "--operation", "read"},
              2,
              "\"read\" is not an operation. Allowed: initialization, program, erase, verify, termination."},
             {"an empty file name", {"MX25L1606E", "--format", "pdf", "-o", ""}, 2, "--output is empty."},
             {"no such directory",
              {"MX25L1606E", "-o", "/no/such/a.pdf"},
              4,
              "/no/such/a.pdf: The file cannot be written: No such file or directory."}});
    }

    void wrong_arguments_are_refused()
    {
        const auto [arguments, exit_code, said] = row<QStringList, int, QByteArray>();
        const TOOL_RUN run = tool(QStringList{"chart"} + arguments);

        QCOMPARE(run.err, "gfpdb: " + said + "\n");
        QCOMPARE(run.exit_code, exit_code);
        QCOMPARE(run.out, QByteArray());
    }

    void an_unknown_name_is_not_found()
    {
        const TOOL_RUN run = tool({"chart", "nobody", "--format", "svg"});

        QCOMPARE(run.exit_code, 3);
        QVERIFY2(run.err.startsWith("gfpdb: There is no record called \"nobody\" in "), run.err.constData());
    }

    void a_chart_that_cannot_be_drawn_leaves_the_file_alone()
    {
        save_part("Mine");
        run_sql(m_place->db_file(), "UPDATE device SET single_flows = ''");
        write_file(m_place->path("chart.svg"), "former");

        const TOOL_RUN run = tool({"chart", "Mine", "-o", at("chart.svg")});

        QCOMPARE(run.err, QByteArray("gfpdb: \"Mine\" has no single-I/O flow.\n"));
        QCOMPARE(run.exit_code, 5);
        QCOMPARE(text_of_file(at("chart.svg")), QByteArray("former"));
    }

    void charts_speak_the_language_of_the_user()
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("LC_ALL");
        environment.insert("LC_MESSAGES", "de_DE.UTF-8");
        environment.insert("LANGUAGE", "de");
        process.setProcessEnvironment(environment);
        process.start(GFPDB_PROGRAM, {"chart", "MX25L1606E", "--format", "svg"});
        QVERIFY(process.waitForFinished());

        QVERIFY(process.readAllStandardOutput().contains(">Single-I/O-Ablauf</text>"));
    }

    void no_display_is_needed()
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("DISPLAY");
        environment.insert("QT_QPA_PLATFORM", "xcb");
        process.setProcessEnvironment(environment);
        process.start(GFPDB_PROGRAM, {"chart", "MX25L1606E", "--format", "svg"});
        QVERIFY(process.waitForFinished());

        QCOMPARE(process.readAllStandardError(), QByteArray());
        QVERIFY(is_svg(process.readAllStandardOutput()));
    }

    // A computer without fonts would draw empty blocks.
    void fonts_are_needed()
    {
        write_file(m_place->path("fonts.conf"), "<?xml version=\"1.0\"?><fontconfig></fontconfig>");
        qputenv("FONTCONFIG_FILE", at("fonts.conf").toUtf8());
        const TOOL_RUN run = tool({"chart", "MX25L1606E", "--format", "svg"});
        qunsetenv("FONTCONFIG_FILE");

        QVERIFY2(run.err.endsWith("gfpdb: There are no fonts on this computer.\n"), run.err.constData());
        QCOMPARE(run.exit_code, 5);
    }

    // What makes programs slow to start.
    void the_tool_itself_loads_no_windows()
    {
        const TOOL_RUN run = run_program("/usr/bin/ldd", {GFPDB_PROGRAM});

        QVERIFY2(run.out.contains("libQt5Core"), run.err.constData());
        for (const char* library : {"libQt5Gui", "libQt5Widgets", "libQt5Svg"})
            QVERIFY2(!run.out.contains(library), library);
    }

    void the_program_that_draws_may_be_missing()
    {
        QVERIFY(QDir(at("")).mkpath("bin"));
        QVERIFY(QFile::copy(GFPDB_PROGRAM, at("bin/gfpdb")));
        const QByteArray program = at("bin/gfpdb").toUtf8();
        const TOOL_RUN run = run_program(program.constData(), {"chart", "MX25L1606E", "--format", "svg"});

        QCOMPARE(run.err, "gfpdb: " + at("libexec/gfpdb_chart").toUtf8() +
                              ": The program that draws charts cannot be started.\n");
        QCOMPARE(run.exit_code, 4);
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_CHART)

#include "test_cli_chart.moc"
