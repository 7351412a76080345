// SPDX-License-Identifier: MIT

// Lists of devices as CSV: what is written, what is read, and what is said about mistakes.
#include "manager/gfpdb_embedded_mgr.h"

#include "exchange/gfpdb_record_csv.h"
#include "record_reading.h"
#include "test_rows.h"

#include <limits>

class TEST_CLI_LISTS : public QObject
{
    Q_OBJECT

private slots:
    void a_list_has_a_line_for_each_device()
    {
        GFPDB_RECORD plain;
        plain.row.name = "A";
        plain.row.family = 3;
        plain.row.scheme = 7;
        GFPDB_RECORD full;
        full.row = make_row("B, \"best\"\r\n");
        full.row.template_name = "T";
        GFPDB_RECORD other = full;
        other.is_template = true;

        QCOMPARE(gfpdb_write_list({plain, other, full}),
                 std::string("name,family,scheme,device_id,voltage,density,total_die,single_io_dummy_clock,"
                             "quad_io_dummy_clock,template_name,flow_template\n"
                             "A,3,7,,,,,,,,\n"
                             "\"B, \"\"best\"\"\r\n\",3,7,0xC2 0x20 0x19,1.8V,256Mb,2,8,10,T,a flow template\n"));
    }

    // For a spreadsheet formulas become texts; for an import every text stays as it is.
    void a_list_for_a_spreadsheet_has_no_formula_data()
    {
        rows<QString, QString>({{"sum", "=1+1", "'=1+1"},
                                {"plus", "+1", "'+1"},
                                {"minus", "-1", "'-1"},
                                {"at", "@SUM(A1)", "'@SUM(A1)"},
                                {"sign", "=", "'="},
                                {"blank", " =1", " '=1"},
                                {"tab", "\t=1", "\t'=1"},
                                {"line break", "A\r\n@x", "A\r\n'@x"},
                                {"cell of other lists", "A;=1;\" +1|@x\t-1", "A;'=1;\" '+1|'@x\t'-1"},
                                {"none", "", ""},
                                {"blanks", " ;\t", " ;\t"},
                                {"number", "1", "1"},
                                {"equation", "A=1; B =2", "A=1; B =2"},
                                {"quoted", "'=1", "'=1"},
                                {"voltage", "3.3V", "3.3V"},
                                {"bytes", "0xC2 -1", "0xC2 -1"},
                                {"letter", "\xC3\xA4", "\xC3\xA4"}});
    }

    void a_list_for_a_spreadsheet_has_no_formula()
    {
        const auto [text, shown] = row<QString, QString>();
        GFPDB_RECORD record;
        GFPDB_ROW& stored = record.row;
        for (std::string* value : {&stored.name, &stored.device_id, &stored.voltage, &stored.density,
                                   &stored.template_name, &stored.flow_template})
            *value = text.toStdString();
        GFPDB_RECORD quoted = record;
        GFPDB_ROW& quoted_row = quoted.row;
        for (std::string* value : {&quoted_row.name, &quoted_row.device_id, &quoted_row.voltage, &quoted_row.density,
                                   &quoted_row.template_name, &quoted_row.flow_template})
            *value = shown.toStdString();

        QCOMPARE(gfpdb_write_list({record}, GFPDB_LIST_FOR::SPREADSHEET), gfpdb_write_list({quoted}));
    }

    void a_list_is_read_again()
    {
        const GFPDB_PLACE place;
        GFPDB_RECORD record;
        record.row = make_row("B, \"best\"");
        record.row.single_flows.clear();
        record.row.quad_flows.clear();
        record.row.quad_io_dummy_clock.reset();

        const READ result = read_csv(gfpdb_write_list({record}));

        QCOMPARE(result.problems, QStringList());
        QCOMPARE(result.records.size(), std::size_t(1));
        QCOMPARE(text_of(result.records[0].row), text_of(record.row));
        QCOMPARE(result.records[0].line, 2);
        QCOMPARE(read_csv("scheme,name,density,family,device_id\r\n7,A,1Mb,3,C2\r\n").records.at(0).row.name,
                 std::string("A"));
    }

    // What a spreadsheet writes where numbers have a comma.
    void cells_stand_between_semicolons_or_tabs_data()
    {
        rows<QByteArray, QStringList>(
            {{"semicolons", "name;family;scheme;density;device_id\nA, b;3;7;1Mb;C2\n", {}},
             {"tabs", "name\tfamily\tscheme\tdensity\tdevice_id\r\nA, b\t3\t7\t1Mb\tC2\r\n", {}},
             {"quotes", "\"name\";\"family\";\"scheme\";\"density\";\"device_id\"\n\"A, b\";3;7;1Mb;\"C2\"\n", {}},
             {"mark", "\xEF\xBB\xBFname;family;scheme;density;device_id\nA, b;3;7;1Mb;C2\n", {}},
             {"commas", "name,family,scheme,density,device_id,voltage\n\"A, b\",3,7,1Mb,C2,2;3\n", {}},
             {"too few", "name;family;scheme\nA;3\n", {"2: : The row has 2 cells, the line of column names has 3."}},
             {"named", "sep=;\r\nname;family;scheme;density;device_id\r\nA, b;3;7;1Mb;C2\r\n", {}},
             {"named with a mark", "\xEF\xBB\xBFsep=|\nname|family|scheme|density|device_id\nA, b|3|7|1Mb|C2\n", {}},
             {"named, too few",
              "sep=;\nname;family;scheme\nA;3\n",
              {"3: : The row has 2 cells, the line of column names has 3."}},
             {"named, and no more",
              "sep=;",
              {"1: name: The column is missing.", "1: family: The column is missing.",
               "1: scheme: The column is missing."}},
             {"named too late",
              "name;family;scheme\nsep=;\nA;3;7\n",
              {"2: : The row has 2 cells, the line of column names has 3."}}});
    }

    void cells_stand_between_semicolons_or_tabs()
    {
        const auto [text, problems] = row<QByteArray, QStringList>();
        const GFPDB_PLACE place;
        const READ result = read_csv(text.toStdString(), false);
        QCOMPARE(result.problems, problems);
        if (problems.isEmpty())
            QCOMPARE(result.records.at(0).row.name, std::string("A, b"));
    }

    void a_first_line_may_name_what_stands_between_cells_data()
    {
        rows<QByteArray, int>({{"alone", "sep=;", ';'},
                               {"and a line", "sep=;\na", ';'},
                               {"tab", "sep=\t\r\na", '\t'},
                               {"mark", "\xEF\xBB\xBFsep=|\n", '|'},
                               {"two", "sep=;;\n", 0},
                               {"none", "sep=", 0},
                               {"line break", "sep=\na", 0},
                               {"both line breaks", "sep=\r\na", 0},
                               {"quote", "sep=\"\n", 0},
                               {"return in the line", "sep=;\ra", 0},
                               {"name", "sep;a\n", 0},
                               {"later", "\nsep=;\n", 0}});
    }

    void a_first_line_may_name_what_stands_between_cells()
    {
        const auto [text, separator] = row<QByteArray, int>();
        QCOMPARE(int(csv_named_separator(text.toStdString())), separator);
    }

    // Values that the rules refuse, as a directory can have them.
    void odd_values_in_a_list_are_read_again()
    {
        const GFPDB_PLACE place;
        GFPDB_RECORD record;
        record.row.name = "A";
        record.row.family = -1;
        record.row.scheme = -1;
        record.row.total_die = std::numeric_limits<int>::min();
        record.row.quad_io_dummy_clock = std::numeric_limits<int>::max();
        record.row.voltage = std::string("\xEF\xBB\xBF\0\r", 5);
        record.row.flow_template = "end\r";

        const READ result = read_csv(gfpdb_write_list({record}), false);

        QCOMPARE(result.problems, QStringList());
        QCOMPARE(text_of(result.records.at(0).row), text_of(record.row));
    }

    void mistakes_in_a_list_are_reported_with_line_and_column_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("problems");
        const auto add = [](const char* text, const QStringList& problems) {
            QTest::newRow(qPrintable(problems.first())) << QByteArray(text) << problems;
        };
        QTest::newRow("nothing") << QByteArray()
                                 << QStringList{"1: name: The column is missing.", "1: family: The column is missing.",
                                                "1: scheme: The column is missing."};
        add("name,family\n", {"1: scheme: The column is missing."});
        add("name,family,scheme,price\n",
            {"1: price: The column is not known. Allowed: name, family, scheme, device_id, voltage, density, "
             "total_die, "
             "single_io_dummy_clock, quad_io_dummy_clock, template_name, flow_template."});
        add("name,family,scheme,name\n", {"1: name: The column occurs twice."});
        add("name,family,scheme,device_id\nA\n", {"2: : The row has 1 cell, the line of column names has 4."});
        // Even where the cells are as many as the columns: the rows behind the quote would be lost without a word.
        add("name,family,scheme,device_id\nA,3,7,\"C2\nB,3,7,C2\n",
            {"2: : A quote that opens in this row is never closed."});
        add("name,family,scheme,device_id\nA,3,7\n", {"2: : The row has 3 cells, the line of column names has 4."});
        add("name,family,scheme,density,device_id\nA,3,7,1Mb,C2\nB,three,7,1Mb,C2\n",
            {"3: family: A whole number or null was expected, but this is a string."});
        add("name,family,scheme,density,device_id,total_die\nA,3,7,1Mb,C2,1.5\nB,3,7,1Mb,C2,007\n",
            {"2: total_die: A whole number or null was expected, but this is 1.5.",
             "3: total_die: A whole number or null was expected, but this is a string."});
        add("name,family,scheme,density,device_id,total_die\nA,3,7,1Mb,C2,null\nB,3,7,1Mb,C2,true\n",
            {"2: total_die: A whole number or null was expected, but this is a string.",
             "3: total_die: A whole number or null was expected, but this is a string."});
        add("name,family,scheme,density,device_id,flow_template\nA,3,7,1Mb,C2,x\nB,3,7,1Mb,C2,\xFF\xFE\n",
            {"3: flow_template: The text is not UTF-8."});
        add("name,family,scheme,density,device_id,total_die\nA,3,7,1Mb,C2,99\n",
            {"2: total_die: The total die count 99 is out of range: 1 to 16 are allowed."});
        add("name,family,scheme,density,device_id\n,3,7,1Mb,C2\nMX25L1606E,3,7,1Mb,C2\n",
            {"2: name: The device name is empty: 1 to 64 characters are allowed.",
             "3: name: There is a built-in device called \"MX25L1606E\": choose another name."});
    }

    void mistakes_in_a_list_are_reported_with_line_and_column()
    {
        const GFPDB_PLACE place;
        QFETCH(QByteArray, text);
        QFETCH(QStringList, problems);
        QCOMPARE(read_csv(text.toStdString()).problems, problems);
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_LISTS)

#include "test_cli_lists.moc"
