// SPDX-License-Identifier: MIT

// The real program: which records a list has, in which order and in which columns; families and schemes.
#include "cli_columns.h"
#include "cli_records.h"
#include "test_rows.h"

#include "cli_test.h"

#include <QJsonArray>
#include <QJsonObject>

class TEST_CLI_FIND : public CLI_TEST
{
    Q_OBJECT

private slots:
    void a_list_has_what_the_rules_accept_data()
    {
        rows<QStringList, QStringList>(
            {{"nothing", {}, {"Mine", "small", "low", "T"}},
             {"id", {"--id", "C22018h"}, {"small"}},
             {"beginning of ids", {"--id", "c2"}, {"Mine", "small", "T"}},
             {"maker", {"--maker", "winbond"}, {"low"}},
             {"density", {"--density", "32MB"}, {"Mine", "T"}},
             {"voltage", {"--voltage", "1.8"}, {"low"}},
             {"template", {"--kind", "template"}, {"T"}},
             {"device", {"--kind", "device", "--filter", "M*"}, {"Mine"}},
             {"built-in", {"--kind", "builtin", "--id", "C2 20 15"}, {"MX25L1606E"}},
             {"also built-in", {"--all", "--id", "C22015", "--maker", "macronix"}, {"MX25L1606E"}},
             {"two rules", {"--maker", "macro", "--density", "128Mb"}, {"small"}},
             {"place", {"--family", "5", "--density", "64Mb"}, {"low"}}});
    }

    void a_list_has_what_the_rules_accept()
    {
        const auto [options, found] = row<QStringList, QStringList>();
        save_four();
        QCOMPARE(names(json(tool(QStringList{"list", "--json"} + options))), found);
    }

    void a_list_is_sorted_data()
    {
        rows<QStringList>({{"name", {"low", "Mine", "small", "T"}},
                           {"kind", {"Mine", "small", "low", "T"}},
                           {"id", {"small", "Mine", "T", "low"}},
                           {"maker", {"Mine", "small", "T", "low"}},
                           {"density", {"low", "small", "Mine", "T"}},
                           {"voltage", {"low", "Mine", "small", "T"}},
                           {"family", {"Mine", "small", "T", "low"}},
                           {"scheme", {"Mine", "low", "T", "small"}},
                           {"saved", {"small", "low", "Mine", "T"}}});
    }

    // In the order of its data: what is equal stays as it was.
    void a_list_is_sorted()
    {
        save_four();
        QCOMPARE(names(json(tool({"list", "--json", "--sort", QTest::currentDataTag()}))), row<QStringList>());
    }

    void what_has_no_value_comes_last()
    {
        save_four();
        run_sql(m_place->db_file(), "UPDATE device SET density = '' WHERE name = 'low'");
        QCOMPARE(names(json(tool({"list", "--json", "--sort", "density"}))),
                 (QStringList{"small", "Mine", "T", "low"}));
    }

    void names_alone_are_printed_for_scripts()
    {
        save_four();
        const TOOL_RUN run = tool({"list", "--names", "--sort", "name"});
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out, QByteArray("low\nMine\nsmall\nT\n"));
    }

    void wrong_rules_are_refused_data()
    {
        rows<QStringList, QByteArray>(
            {{"id",
              {"--id", "MX25"},
              "\"MX25\" is not a device ID or the beginning of one: bytes in hexadecimal, e.g. "
              "\"C2 20 18\" or C22018."},
             {"kind", {"--kind", "chip"}, "\"chip\" is not a kind. Allowed: device, template, builtin."},
             {"order",
              {"--sort", "size"},
              "\"size\" is not an order. Allowed: name, kind, id, maker, density, voltage, family, scheme, saved."},
             {"empty", {"--maker", ""}, "--maker is empty."},
             {"names", {"--names", "--json"}, "--names cannot be used with --csv or --json."}});
    }

    void wrong_rules_are_refused()
    {
        const auto [options, error] = row<QStringList, QByteArray>();
        const TOOL_RUN run = tool(QStringList{"list"} + options);
        QCOMPARE(run.err, "gfpdb: " + error + '\n');
        QCOMPARE(run.exit_code, 2);
    }

    void an_empty_list_says_how_to_see_the_rest_data()
    {
        const QByteArray rest = " --all also lists the built-in devices, --builtin only these.";
        rows<QStringList, QByteArray>({{"nothing stored", {}, "There is no device in %1." + rest},
                                       {"rule", {"--id", "FF"}, "Nothing in %1 matches." + rest},
                                       {"place", {"--family", "5"}, "Nothing in %1 matches." + rest},
                                       {"all", {"--all", "--id", "FFFF"}, "Nothing in %1 matches."},
                                       {"built-in", {"--builtin", "--id", "FFFF"}, "No built-in device matches."}});
    }

    void an_empty_list_says_how_to_see_the_rest()
    {
        const auto [options, hint] = row<QStringList, QByteArray>();
        const TOOL_RUN run = tool(QStringList{"list"} + options);
        QCOMPARE(run.err, "gfpdb: " + QByteArray(hint).replace("%1", q(m_place->db_dir()).toUtf8()) + '\n');
        QCOMPARE(run.out.count('\n'), 1);
        QCOMPARE(run.exit_code, 0);
        for (const char* form : {"--json", "--csv", "--names"})
            QCOMPARE(tool(QStringList{"list", form} + options).err, QByteArray());
    }

    void a_character_has_columns_data()
    {
        rows<QString, int>({{"ascii", "ab", 2},
                            {"latin", "Ää", 2},
                            {"chinese", "中文", 4},
                            {"full-width", "Ａ：", 4},
                            {"korean", "한국", 4},
                            {"letters of a syllable", "\u1112\u1161\u11AB", 2},
                            {"kana", "フラッシュ", 10},
                            {"half-width kana", "ｱ", 1},
                            {"accent", "e\u0301", 1},
                            {"joiner", "a\u200D", 1},
                            {"picture", "\xF0\x9F\x98\x80", 2},
                            {"rare", "\xF0\xA0\x80\x80", 2},
                            {"nothing", "", 0}});
    }

    void a_character_has_columns()
    {
        const auto [text, width] = row<QString, int>();
        QCOMPARE(cli_width(text), width);
        QCOMPARE(cli_padded(text, 12), text + QString(12 - width, ' '));
        QCOMPARE(cli_padded(text, 0), text);
    }

    void columns_hold_with_wide_characters()
    {
        std::vector<CLI_LISTED> listed(3);
        listed[0].record.row.name = "中文";
        listed[1].record.row.name = "e\xCC\x81"
                                    "e\xCC\x81";
        listed[2].record.row.name = "abcdef";

        const QStringList lines = q(cli_records_table(listed)).split('\n');

        for (int at = 0; at < 4; ++at)
            QCOMPARE(cli_width(lines[at].section(QRegularExpression("KIND|device"), 0, 0)), 8);
    }

    void families_and_schemes_are_listed()
    {
        const TOOL_RUN schemes = run_tool({"schemes"});
        QVERIFY2(schemes.out.startsWith("NUMBER  NAME\n0       1-bit Passive Serial"), schemes.out.constData());
        QCOMPARE(schemes.out.count('\n'), 26);
        QVERIFY(schemes.out.contains("\n7       Active Serial\n"));
        QVERIFY(!schemes.out.contains("Illegal"));
        const TOOL_RUN families = run_tool({"families"});
        QVERIFY2(families.out.startsWith("NUMBER  NAME\n"), families.out.constData());

        for (const char* what : {"families", "schemes"}) {
            const QJsonArray list = json(run_tool({what, "--json"})).array();
            QCOMPARE(list.size(), run_tool({what}).out.count('\n') - 1);
            const QString option = QString("--") + (what[0] == 'f' ? "family" : "scheme");
            for (const QJsonValue each : list)
                QVERIFY(!each.toObject().value("name").toString().isEmpty());
            const QJsonObject last = list.last().toObject();
            QCOMPARE(run_tool({"list", option, last.value("name").toString().toUpper()}).exit_code, 0);
        }
    }

    void a_family_has_its_schemes()
    {
        GFPDB_MGR& manager = *fresh_manager();
        std::vector<int> families;
        manager.get_family_list(families);
        for (const int family : families) {
            manager.set_device_family(family);
            std::vector<int> schemes;
            std::vector<int> listed;
            for (const QJsonValue each :
                 json(run_tool({"schemes", "--json", "--family", QString::number(family)})).array())
                listed.push_back(each.toObject().value("number").toInt());
            manager.get_config_scheme_list(schemes);
            schemes.erase(std::remove(schemes.begin(), schemes.end(), 25), schemes.end());
            std::sort(schemes.begin(), schemes.end());
            QCOMPARE(listed, schemes);
            if (family > 10)
                break;
        }
    }

private:
    // Two of one maker, one of another family and maker, and a template.
    void save_four() const
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        save_part("small", FAMILY, QUAD);
        save_part("low", OTHER_FAMILY, ACTIVE_SERIAL);
        const std::string file = m_place->db_file();
        run_sql(file, "UPDATE device SET device_id = 'C2 20 18', density = '128Mb', saved_at = '2031-01-01T00:00:00Z' "
                      "WHERE name = 'small'");
        run_sql(file, "UPDATE device SET device_id = '0xEF 0x60 0x17', density = '64Mb', voltage = '1.65-1.95V', "
                      "saved_at = '2030-01-01T00:00:00Z' WHERE name = 'low'");
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_FIND)

#include "test_cli_find.moc"
