// SPDX-License-Identifier: MIT

// The real program: a table that cannot be read in a database that can be opened. What is in it is not taken for
// something that is not there.
#include "cli_test.h"
#include "test_rows.h"

#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

const QString LOCKER = "the lock on a table";

} // namespace

class TEST_CLI_UNREADABLE : public CLI_TEST
{
    Q_OBJECT

private slots:
    void a_table_that_cannot_be_read_is_not_taken_for_empty_data()
    {
        const QStringList both = {"device", "template"};
        rows<QStringList, QStringList>({{"list", {"list"}, both},
                                        {"list as JSON", {"list", "--json"}, both},
                                        {"list with built-in devices", {"list", "--all"}, both},
                                        {"list with a rule", {"list", "--filter", "none"}, both},
                                        {"names", {"list", "--names"}, both},
                                        {"list for a spreadsheet", {"list", "--csv"}, both},
                                        {"export", {"export"}, both},
                                        {"export of a wildcard", {"export", "M*"}, both},
                                        {"export of one", {"export", "Mine"}, both},
                                        {"show", {"show", "Mine"}, both},
                                        {"show of a name that is not there", {"show", "None"}, both},
                                        {"show of a built-in device", {"show", "MX25L1606E"}, both},
                                        {"state of the history", {"show", "history:1"}, {"history"}},
                                        {"diff", {"diff", "Mine", "MX25L1606E"}, both},
                                        {"delete", {"delete", "Mine", "--dry-run"}, both},
                                        {"copy", {"copy-device", "MX25L1606E", "Copy", "--dry-run"}, both},
                                        {"check", {"check"}, both},
                                        {"history", {"history"}, {"history"}},
                                        {"history as JSON", {"history", "--json"}, {"history"}},
                                        {"restore", {"restore", "1"}, {"history"}}});
    }

    void a_table_that_cannot_be_read_is_not_taken_for_empty()
    {
        const auto [arguments, tables] = row<QStringList, QStringList>();
        for (const QString& table : tables) {
            free_table();
            m_place = std::make_unique<GFPDB_PLACE>();
            save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
            save_part("Gone");
            QVERIFY(fresh_manager()->delete_flash("Gone", m_place->db_dir()));
            spoil(table);

            const TOOL_RUN run = tool(arguments);

            const QByteArray all = run.out + run.err;
            QVERIFY2(run.exit_code == 5 && run.err.startsWith("gfpdb: The database "), all.constData());
            QVERIFY2(!run.out.contains("Mine"), all.constData());
        }
    }

    void an_import_does_not_take_it_for_new_data()
    {
        rows<QString, QString>({{"device", "device", "Mine"}, {"template", "template", "T"}});
    }

    void an_import_does_not_take_it_for_new()
    {
        const auto [table, name] = row<QString, QString>();
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        const QString file = exported_file(qPrintable(name));
        spoil(table);
        const TOOL_RUN run = tool({"import", "--dry-run", file});
        QCOMPARE(run.out, QByteArray());
        QVERIFY2(run.err.contains(": The database "), run.err.constData());
        QCOMPARE(run.exit_code, 5);
    }

    void what_is_not_asked_for_may_be_unreadable()
    {
        save_part("Mine");
        spoil("device");
        QCOMPARE(tool({"list", "--builtin"}).exit_code, 0);
        QCOMPARE(tool({"export", "--builtin", "MX25L1606E"}).exit_code, 0);
        QCOMPARE(tool({"history"}).exit_code, 0);
    }

    // Nobody has stored anything there.
    void a_built_in_device_needs_no_directory()
    {
        QCOMPARE(run_tool({"show", "MX25L1606E", "-d", at("missing")}).exit_code, 0);
    }

private:
    // The schema cannot be dropped before.
    void take_down() override { free_table(); }

    static void free_table()
    {
        if (!QSqlDatabase::contains(LOCKER))
            return;
        QSqlQuery(QSqlDatabase::database(LOCKER, false)).exec("ROLLBACK");
        QSqlDatabase::removeDatabase(LOCKER);
    }

    // On a server, another program has it locked; a page of a file is overwritten.
    void spoil(const QString& table) const
    {
        if (tests_are_on_server()) {
            write_file(m_place->settings(), "[database]\nbusy_timeout=0\n");
            const QString schema = SERVER_DATABASE::find(m_place->db_dir())->schema();
            QSqlQuery query(POSTGRES_SERVER::of_program().connect(LOCKER, schema));
            QVERIFY(query.exec("BEGIN") && query.exec("LOCK TABLE " + table + " IN ACCESS EXCLUSIVE MODE"));
            return;
        }
        damage_table(*m_place, table);
    }
};

EITHER_STORE_TEST_MAIN(TEST_CLI_UNREADABLE)

#include "test_cli_unreadable.moc"
