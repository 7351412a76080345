// SPDX-License-Identifier: MIT

// The real program: list and show, and which record a name means.
#include "cli_test.h"
#include "test_rows.h"

#include <QJsonArray>
#include <QJsonObject>

// What a colleague has saved.
constexpr char STAMP[] = " SET saved_at = '2026-11-22T09:14:33Z', saved_by = 'anna@lab'";

class TEST_CLI_SHOW : public CLI_TEST
{
    Q_OBJECT

private slots:
    void list_shows_what_is_stored()
    {
        const QStringList arguments = {"list", "-d", q(m_place->db_dir())};
        const QByteArray head = "NAME  KIND  FAMILY  SCHEME  DENSITY  VOLTAGE  ID\n";
        QCOMPARE(run_tool(arguments).out, head);
        save_part("B", OTHER_FAMILY, QUAD);
        save_part("A long name", FAMILY, ACTIVE_SERIAL, "T");

        const TOOL_RUN run = run_tool(arguments);

        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.out, QByteArray("NAME         KIND      FAMILY  SCHEME  DENSITY  VOLTAGE  ID\n"
                                     "A long name  device    3       7       256Mb    3.3V     0xC2 0x20 0x19\n"
                                     "B            device    5       13      256Mb    3.3V     0xC2 0x20 0x19\n"
                                     "T            template  3       7       256Mb    3.3V     0xC2 0x20 0x19\n"));
    }

    void list_shows_the_built_in_devices()
    {
        save_part("Mine");
        const QStringList builtin = names(json(tool({"list", "--builtin", "--json"})));
        const QStringList all = names(json(tool({"list", "--all", "--json"})));

        QCOMPARE(builtin.size(), 146);
        QCOMPARE(builtin.first(), QString("MX25L1606E"));
        QCOMPARE(all, QStringList{"Mine"} + builtin);
        const QByteArray line = run_tool({"list", "--builtin", "--filter", "MX77L51250F"}).out.split('\n').at(1);
        QCOMPARE(line, QByteArray("MX77L51250F  builtin  -       -       512Mb    -        0xC2 0x75 0x1A"));
        // They need no directory.
        QCOMPARE(run_tool({"list", "-d", "/no/such", "--builtin"}).exit_code, 0);
        const TOOL_RUN without = run_tool({"list", "-d", "/no/such", "--all"});
        QCOMPARE(without.exit_code, 5);
        QCOMPARE(without.out.count('\n'), 147);
    }

    // One line must not make all the others as long.
    void list_prints_a_very_long_name()
    {
        const std::string name(2000000, 'x');
        save_part("A");
        save_part("Long");
        run_sql(m_place->db_file(),
                "UPDATE device SET name = '" + name + "', name_key = '" + name + "' WHERE name = 'Long'");

        const TOOL_RUN run = tool({"list"});

        QCOMPARE(run.exit_code, 0);
        const QList<QByteArray> lines = run.out.split('\n');
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines[1].startsWith("A ") && lines[1].size() < 200);
        QVERIFY(lines[2].startsWith(QByteArray::fromStdString(name) + "  device "));
    }

    void list_filters_by_name_and_place()
    {
        save_part("Alpha", FAMILY, ACTIVE_SERIAL, "Template");
        save_part("Alpha two", FAMILY, QUAD);
        save_part("Beta", OTHER_FAMILY, ACTIVE_SERIAL);
        save_part("[G]/2.5\\", OTHER_FAMILY, QUAD);
        const auto listed = [this](const QStringList& options) {
            return names(json(run_tool(QStringList{"list", "-d", q(m_place->db_dir()), "--json"} + options)));
        };
        QCOMPARE(listed({"--filter", "alpha*"}), (QStringList{"Alpha", "Alpha two"}));
        QCOMPARE(listed({"--filter", "B?ta"}), QStringList{"Beta"});
        QCOMPARE(listed({"--filter", "Alph"}), QStringList());
        QCOMPARE(listed({"--filter", "["}), QStringList());
        QCOMPARE(run_tool({"list", "--json", "--filter", "["}).err, QByteArray());
        // A name is no path and no expression.
        const QString odd = "[G]/2.5\\";
        for (const QString& pattern : {odd, QString("[g*"), QString("*5?"), QString("*/*"), QString("[G]?2.5?")})
            QCOMPARE(listed({"--filter", pattern}), QStringList{odd});
        for (const QString& pattern : {QString("[G]/2?5"), QString("[Gg]*"), QString("?"), QString("*lpha|*eta")})
            QCOMPARE(listed({"--filter", pattern}), QStringList());
        QCOMPARE(listed({"--family", "3"}), (QStringList{"Alpha", "Alpha two", "Template"}));
        QCOMPARE(listed({"--scheme", "7"}), (QStringList{"Alpha", "Beta", "Template"}));
        QCOMPARE(listed({"--family", "5", "--scheme", "13"}), (QStringList{odd, "Template"}));
    }

    void list_prints_json_and_csv()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        for (const char* table : {"device", "template"})
            run_sql(m_place->db_file(), "UPDATE " + std::string(table) + STAMP);
        const TOOL_RUN run = tool({"list", "--json"});
        QCOMPARE(run.exit_code, 0);
        const QByteArray rest = "    \"family\": 3,\n    \"scheme\": 7,\n    \"device_id\": \"0xC2 0x20 0x19\",\n"
                                "    \"voltage\": \"3.3V\",\n    \"density\": \"256Mb\",\n    \"total_die\": 1,\n"
                                "    \"single_io_dummy_clock\": 8,\n    \"quad_io_dummy_clock\": 6,\n"
                                "    \"flow_template\": \"QE in SR1 bit 6, 4-byte address\",\n"
                                "    \"maker\": \"Macronix\",\n"
                                "    \"saved_at\": \"2026-11-22T09:14:33Z\",\n    \"saved_by\": \"anna@lab\"\n";
        QCOMPARE(run.out, "[\n  {\n    \"name\": \"Mine\",\n    \"kind\": \"device\",\n" + rest +
                              "  },\n  {\n    \"name\": \"T\",\n    \"kind\": \"template\",\n" + rest + "  }\n]\n");
        const QJsonObject builtin = json(run_tool({"list", "--builtin", "--json"})).array().at(0).toObject();
        QCOMPARE(builtin.value("kind").toString(), QString("builtin"));
        QVERIFY(!builtin.contains("saved_at") && !builtin.contains("saved_by"));
        QVERIFY(builtin.value("family").isNull() && builtin.value("scheme").isNull());

        save_part("=A1", FAMILY, QUAD);
        for (const char* command : {"list", "export"}) {
            QVERIFY(tool({command, "--spreadsheet"}).out.contains("\n'=A1,3,13,"));
            QVERIFY(tool({command, "--csv"}).out.contains("\n=A1,3,13,"));
        }
        QCOMPARE(run_tool({"list", "--spreadsheet", "--json"}).exit_code, 2);
        QVERIFY(fresh_manager(FAMILY, QUAD)->delete_flash("=A1", m_place->db_dir()));
        QCOMPARE(tool({"list", "--csv"}).out,
                 QByteArray("name,family,scheme,device_id,voltage,density,total_die,single_io_dummy_clock,"
                            "quad_io_dummy_clock,template_name,flow_template\n"
                            "Mine,3,7,0xC2 0x20 0x19,3.3V,256Mb,1,8,6,T,\"QE in SR1 bit 6, 4-byte address\"\n"));
    }

    void show_prints_a_record()
    {
        save_part("Mine");
        const TOOL_RUN run = tool({"show", "mINE"});
        QCOMPARE(run.exit_code, 0);
        QVERIFY(run.out.startsWith("Name:                 Mine\nKind:                 device\n"));
        QVERIFY(run.out.contains("\nSingle-I/O flow\n  Initialization\n"));
        QVERIFY(run.out.contains("\nQuad-I/O flow\n  Initialization\n"));

        run_sql(m_place->db_file(), std::string("UPDATE device") + STAMP);
        QVERIFY(tool({"show", "mine"}).out.contains("\nSaved:                2026-11-22T09:14:33Z by anna@lab\n"));
        run_sql(m_place->db_file(), "UPDATE device SET saved_by = ''");
        QVERIFY(tool({"show", "mine"}).out.contains("\nSaved:                2026-11-22T09:14:33Z\n"));
        const TOOL_RUN as_json = tool({"show", "Mine", "--json"});
        const QJsonObject whole = json(tool({"export", "Mine"})).object();
        QCOMPARE(json(as_json).object(), whole.value("devices").toArray().at(0).toObject());
        QVERIFY(run_tool({"show", "MX25L1606E"}).out.contains("Kind:                 built-in device\nID:"));
    }

    void show_prints_the_chosen_variant()
    {
        const QByteArray single = run_tool({"show", "MX25L1606E", "--variant", "single"}).out;
        const QByteArray quad = run_tool({"show", "MX25L1606E", "--variant", "quad"}).out;
        const QByteArray both = run_tool({"show", "MX25L1606E", "--variant", "both"}).out;
        QVERIFY(single.contains("Single-I/O flow") && !single.contains("Quad-I/O flow"));
        QVERIFY(!quad.contains("Single-I/O flow") && quad.contains("Quad-I/O flow"));
        QVERIFY(both.contains("Single-I/O flow") && both.contains("Quad-I/O flow"));
        QCOMPARE(run_tool({"show", "MX25L1606E"}).out, both);
    }

    void a_name_that_several_devices_have_needs_its_place()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL);
        save_part("Mine", OTHER_FAMILY, QUAD);
        const TOOL_RUN run = tool({"show", "Mine"});
        QCOMPARE(run.exit_code, 3);
        QCOMPARE(run.err,
                 QByteArray("gfpdb: There are several devices called \"Mine\". Select one: --family 3 --scheme "
                            "7, --family 5 --scheme 13.\n"));
        const TOOL_RUN one = tool({"show", "Mine", "--scheme", "13", "--json"});
        QCOMPARE(json(one).object().value("family").toInt(), OTHER_FAMILY);
    }

    void a_name_means_a_device_then_a_template_then_a_built_in_device()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        const auto kind = [this](const char* name) { return tool({"show", name}).out.split('\n').at(1); };
        QCOMPARE(kind("Mine"), QByteArray("Kind:                 device"));
        QCOMPARE(kind("T"), QByteArray("Kind:                 stored template, made from Mine"));
        QCOMPARE(kind("mx25l1606e"), QByteArray("Kind:                 built-in device"));
    }

    void hidden_devices_keep_what_is_hidden()
    {
        write_file(m_place->path("parts.csv"),
                   "name,jedec_id,density,visibility\nopen,C2,1Mb,open\nprops,C2,1Mb,no-properties\n"
                   "flows,C2,1Mb,no-flows\nall,C2,1Mb,hidden\n");
        qputenv("GFPDB_CATALOGUE", QByteArray::fromStdString(m_place->path("parts.csv")));
        QStringList shown;
        for (const char* name : {"open", "props", "flows", "all"}) {
            const QJsonObject record = json(run_tool({"show", name, "--json"})).object();
            shown += QString("%1 %2 %3")
                         .arg(name)
                         .arg(!record.value("device_id").toString().isEmpty())
                         .arg(!record.value("quad_flows").toArray().isEmpty());
        }
        qunsetenv("GFPDB_CATALOGUE");
        QCOMPARE(shown, (QStringList{"open 1 1", "props 0 1", "flows 1 0", "all 0 0"}));
    }

    void an_unknown_name_is_not_found()
    {
        const TOOL_RUN run = tool({"show", "nobody"});
        QCOMPARE(run.exit_code, 3);
        QCOMPARE(run.err, QByteArray("gfpdb: There is no record called \"nobody\" in ") +
                              QByteArray::fromStdString(m_place->db_dir()) + ".\n");
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(tool({"export", "nobody"}).exit_code, 3);
        QCOMPARE(run_tool({"show", "nobody", "-d", "/no/such"}).exit_code, 5);
        QCOMPARE(run_tool({"export", "-d", "/no/such"}).exit_code, 5);
    }

    void names_with_the_unknown_one_in_them_are_suggested_data()
    {
        rows<QString, QByteArray>(
            {{"two", "w25q64jv", "Similar names: \"W25Q64JV-Q\", \"W25Q64JV-M\".\n"},
             {"the first five", "MX25L",
              "Similar names: \"MX25L1606E\", \"MX25L3233F\", \"MX25L6433F\", \"MX25L12833F\", \"MX25L12835F\".\n"}});
    }

    void names_with_the_unknown_one_in_them_are_suggested()
    {
        const auto [name, suggestion] = row<QString, QByteArray>();
        const TOOL_RUN run = tool({"show", name});
        QCOMPARE(run.exit_code, 3);
        QVERIFY2(run.err.endsWith(suggestion), run.err.constData());
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_SHOW)

#include "test_cli_show.moc"
