// SPDX-License-Identifier: MIT

// How values get into the statements for a server, and what of the schema's statements others rely on.
#include "gfpdb/gfpdb_server.h"
#include "gfpdb_test.h"
#include "store/server/gfpdb_server_schema.h"
#include "store/server/gfpdb_server_sql.h"
#include "test_rows.h"

class TEST_SERVER_SQL : public QObject
{
    Q_OBJECT

private slots:
    void a_text_is_a_literal_whatever_it_has_data()
    {
        rows<QString, QString>({{"plain", "MX25L", "E'MX25L'"},
                                {"empty", "", "E''"},
                                {"quotes", "a'b''c", "E'a''b''''c'"},
                                {"backslashes", "\\'\\", "E'\\\\''\\\\'"},
                                {"lines", "a\nb\t", "E'a\nb\t'"},
                                {"letters", "Größe 電", "E'Größe 電'"}});
    }

    void a_text_is_a_literal_whatever_it_has()
    {
        const auto [text, literal] = row<QString, QString>();

        QCOMPARE(QString::fromStdString(GFPDB_SERVER_SQL::literal(text.toStdString())), literal);
    }

    // Nothing is equal to NULL, so nothing is found.
    void what_no_server_can_keep_is_no_literal()
    {
        QCOMPARE(GFPDB_SERVER_SQL::literal(std::string("a\0b", 3)), std::string("NULL"));
        QCOMPARE(GFPDB_SERVER_SQL::literal("a\xFF"), std::string("NULL"));
    }

    void the_field_that_cannot_be_kept_is_named()
    {
        GFPDB_ROW row = make_row("A");
        QVERIFY(GFPDB_SERVER_SQL::unstorable_field(row) == nullptr);

        row.density = std::string("1\0Mb", 4);

        QCOMPARE(std::string(GFPDB_SERVER_SQL::unstorable_field(row)), std::string("density"));
    }

    void a_copied_line_has_its_values_apart()
    {
        GFPDB_ROW row;
        row.name = "A\tB\\";
        row.family = 3;
        row.scheme = 7;
        row.voltage = "1\n2\r";
        row.total_die = 4;
        row.revision = "r";
        std::string lines;

        GFPDB_SERVER_SQL::add_copy_line(lines, "a", row, "me@here");

        QCOMPARE(lines, std::string("a\tA\\tB\\\\\t3\t7\t\t1\\n2\\r\t\t4\t\\N\t\\N\t\t\t\t\tr\tme@here\n"));
    }

    void the_schema_is_made_with_its_roles()
    {
        const std::string sql = gfpdb_server_sql("lab_2");

        for (const char* part : {"CREATE SCHEMA IF NOT EXISTS lab_2 AUTHORIZATION lab_2_owner;",
                                 "GRANT SELECT ON lab_2.meta, lab_2.device, lab_2.template, lab_2.history TO "
                                 "lab_2_reader;",
                                 "GRANT INSERT, UPDATE, DELETE ON lab_2.device, lab_2.template, lab_2.history TO "
                                 "lab_2_editor;"})
            QVERIFY2(sql.find(part) != std::string::npos, part);
        QVERIFY(sql.find('@') == std::string::npos);
    }

    void an_upgrade_runs_only_the_steps_that_are_missing()
    {
        const std::string sql = GFPDB_SERVER_SCHEMA_SQL::steps("s", 1, 2);

        QVERIFY(sql.find("CREATE TABLE") == std::string::npos);
        QVERIFY(sql.find("ALTER TABLE s.device ADD COLUMN IF NOT EXISTS saved_by") != std::string::npos);
    }
};

QTEST_GUILESS_MAIN(TEST_SERVER_SQL)

#include "test_server_sql.moc"
