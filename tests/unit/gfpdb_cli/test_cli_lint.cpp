// SPDX-License-Identifier: MIT

// The real program: check --lint.
#include "cli_test.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_flow_lint.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

const QByteArray NO_ENABLE = "warning: L01: There is no write enable before it: the chip ignores the command.\n";
const QByteArray MINE = "device \"Mine\" (family 3, scheme 7): ";

} // namespace

class TEST_CLI_LINT : public CLI_TEST
{
    Q_OBJECT

private slots:
    void only_lint_says_what_a_flow_does_wrong()
    {
        save_without_write_enable();

        QCOMPARE(tool({"check"}).out, QByteArray("2 records, 0 problems\n"));
        const TOOL_RUN run = tool({"check", "--lint"});
        QCOMPARE(run.out, MINE + "single-I/O flow, Program, action 3 \"Program Page\": " + NO_ENABLE + MINE +
                              "single-I/O flow, Erase, action 3 \"Erase Sector\": " + NO_ENABLE +
                              "2 records, 0 problems, 2 warnings\n");
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.exit_code, 0);
    }

    // A stored template is no device of a known size, a quad-I/O flow is one of its own, and something may be missing.
    void every_flow_of_every_record_is_looked_at()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        run_sql(m_place->db_file(), "UPDATE template SET quad_flows = replace(quad_flows, '0x9F', '0x90')");

        QCOMPARE(
            tool({"check", "--lint"}).out,
            QByteArray("template \"T\": quad-I/O flow, Initialization: warning: L16: There is no ID check: the flow "
                       "changes whatever chip is connected.\n"
                       "2 records, 0 problems, 1 warning\n"));
    }

    void json_has_a_list_of_the_findings()
    {
        save_without_write_enable();

        QVERIFY(!json(tool({"check", "--json"})).object().contains("lint"));
        const QJsonObject report = json(tool({"check", "--lint", "--json"})).object();
        QCOMPARE(report.value("warnings").toArray().size(), 0);
        QCOMPARE(report.value("lint").toArray().size(), 2);
        QCOMPARE(report.value("lint").toArray().at(1).toObject(),
                 (QJsonObject{{"record", "device \"Mine\" (family 3, scheme 7)"},
                              {"variant", "single"},
                              {"operation", "Erase"},
                              {"action", 3},
                              {"name", "Erase Sector"},
                              {"rule", "L01"},
                              {"text", "There is no write enable before it: the chip ignores the command."}}));
    }

    // A flow of a program may be very long, with a finding in each action: each is looked at once.
    void a_long_flow_takes_no_time()
    {
        constexpr int PAGES = 4000;
        save_part("Mine");
        const QString file = exported_file("Mine");
        const QByteArray text = text_of_file(file);
        const int first = text.lastIndexOf('{', text.indexOf("0x06", text.indexOf("\"program\"")));
        const QByteArray enable = text.mid(first, text.indexOf('}', first) + 1 - first) + ',';
        write_file(file.toStdString(), QByteArray(text).insert(first, enable.repeated(PAGES)).toStdString());
        QCOMPARE(tool({"import", "--replace", file}).exit_code, 0);

        QCOMPARE(tool({"check", "--lint"}).out.count(" \"Write Enable\": warning: L13: "), PAGES);
    }

    void a_rule_can_be_switched_off_data()
    {
        rows<QStringList, int, QByteArray>({
            {"one", {"--lint", "--lint-off", "L01"}, 0, "2 records, 0 problems\n"},
            {"several", {"--lint", "--lint-off", "L03, l01"}, 0, "2 records, 0 problems\n"},
            {"several options", {"--lint", "--lint-off", "L01", "--lint-off", "L02"}, 0, "2 records, 0 problems\n"},
            {"unknown",
             {"--lint", "--lint-off", "L01,L99"},
             2,
             "gfpdb: \"L99\" is not a rule of --lint. Allowed: L01 to L16.\n"},
            {"without the lint", {"--lint-off", "L01"}, 2, "gfpdb: --lint-off needs --lint.\n"},
            {"with read-outs", {"--lint", "--sfdp", "x"}, 2, "gfpdb: --lint and --sfdp cannot be used together.\n"},
        });
    }

    void a_rule_can_be_switched_off()
    {
        const auto [options, exit_code, said] = row<QStringList, int, QByteArray>();
        save_without_write_enable();

        const TOOL_RUN run = tool(QStringList{"check"} + options);

        QCOMPARE(run.exit_code, exit_code);
        QVERIFY2((run.out + run.err).startsWith(said), (run.out + run.err).constData());
    }

    void the_rules_are_listed()
    {
        const TOOL_RUN run = tool({"check", "--lint-rules"});

        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out.count('\n'), int(gfpdb_lint_rules().size()) * 3);
        QVERIFY(run.out.startsWith(
            "L01  no write enable\n     A program, an erase or a write of a status register has no"));
    }

private:
    void save_without_write_enable()
    {
        save_part("Good");
        save_part("Mine");
        run_sql(m_place->db_file(),
                "UPDATE device SET single_flows = replace(single_flows, '0x06', '0x00') WHERE name = 'Mine'");
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_LINT)

#include "test_cli_lint.moc"
