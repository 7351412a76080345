// SPDX-License-Identifier: MIT

// Completing a word: it changes nothing, waits for nobody, and reads no more of a large history than is offered.
#include "cli_test.h"
#include "test_rows.h"

#include <QDirIterator>

namespace {

// Every file and directory in `directory`, with its content and when it was changed.
QStringList everything_in(const QString& directory)
{
    QStringList all;
    const QDir::Filters filters = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    for (QDirIterator each(directory, filters, QDirIterator::Subdirectories); each.hasNext();) {
        const QString path = each.next();
        all += path + each.fileInfo().lastModified().toString(" hh:mm:ss.zzz ") +
               (each.fileInfo().isFile() ? text_of_file(path).toHex() : QByteArray());
    }
    all.sort();
    return all;
}

} // namespace

class TEST_CLI_LOOKS : public CLI_TEST
{
    Q_OBJECT

private slots:
    void nothing_is_made_where_nothing_is()
    {
        const QStringList before = everything_in(at(""));
        QCOMPARE(offered({"show", "-d", at("db"), "My"}), QStringList());
        QCOMPARE(offered({"show", "-d", at("missing"), "history:"}), QStringList());
        QCOMPARE(offered({"show", "My"}), QStringList());
        QCOMPARE(everything_in(at("")), before);
    }

    void a_database_stays_as_it_is()
    {
        save_part("Mine");
        const QStringList before = everything_in(at(""));
        QCOMPARE(offered({"show", "-d", at("db"), "Mi"}), QStringList{"Mine"});
        QCOMPARE(everything_in(at("")), before);
    }

    // SQLite makes two files to read it.
    void a_database_in_wal_mode_is_not_opened()
    {
        save_part("Mine");
        QCOMPARE(run_sql(m_place->db_file(), "PRAGMA journal_mode = WAL").toString(), QString("wal"));
        const QStringList before = everything_in(at(""));
        QCOMPARE(offered({"show", "-d", at("db"), "Mi"}), QStringList());
        QCOMPARE(everything_in(at("")), before);
        QVERIFY(tool({"show", "Mine"}).exit_code == 0);
        QCOMPARE(offered({"show", "-d", at("db"), "Mi"}), QStringList{"Mine"});
    }

    // Who waited as long as the settings say would not come back.
    void a_lock_is_not_waited_for()
    {
        save_part("Mine");
        write_file(m_place->settings(), "[database]\nbusy_timeout=100000000\n");
        const FOREIGN_LOCK lock(m_place->db_file());
        QCOMPARE(offered({"show", "-d", at("db"), "Mi"}), QStringList());
        QCOMPARE(offered({"restore", "-d", at("db"), ""}), QStringList());
        QCOMPARE(offered({"show", "-d", at("db"), "MX25L160"}), QStringList{"MX25L1606E"});
    }

    // The history has the states 1 to 1500.
    void the_newest_states_that_begin_so_are_offered_data()
    {
        rows<QString, int, int, int>({{"all", "", 200, 1500, 1301},
                                      {"more than are offered", "1", 200, 1500, 1301},
                                      {"of three lengths", "12", 111, 1299, 12},
                                      {"of two lengths", "130", 11, 1309, 130},
                                      {"one", "1500", 1, 1500, 1500},
                                      {"none", "16000", 0, 0, 0},
                                      {"zero", "0", 0, 0, 0},
                                      {"another spelling", "012", 0, 0, 0}});
    }

    void the_newest_states_that_begin_so_are_offered()
    {
        const auto [written, count, newest, oldest] = row<QString, int, int, int>();
        save_part("Mine");
        QVERIFY(fresh_manager()->delete_flash("Mine", m_place->db_dir()));
        multiply_state(1500);
        for (const QString& prefix : {QString(), QString("history:")}) {
            const char* const command = prefix.isEmpty() ? "restore" : "show";
            QStringList states = offered({command, "-d", at("db"), prefix + written});
            QCOMPARE(states.size(), count);
            if (count == 0)
                continue;
            QCOMPARE(states.first(), prefix + QString::number(newest));
            QCOMPARE(states.last(), prefix + QString::number(oldest));
        }
    }

private:
    // The words, without their explanations.
    static QStringList offered(const QStringList& words)
    {
        const TOOL_RUN run = run_tool(QStringList{"--complete"} + words);
        QStringList lines = q(run.out.toStdString()).split('\n', Qt::SkipEmptyParts);
        if (run.exit_code != 0 || !run.err.isEmpty() || lines.isEmpty() || lines.takeFirst() != "-")
            return {"no answer", run.out, run.err};
        for (QString& line : lines)
            line = line.section('\t', 0, 0);
        return lines;
    }

    // The one state, up to the number `last`.
    void multiply_state(int last) const
    {
        std::string columns = "is_template, reason, changed_at, changed_by, name_key, family, scheme, name, device_id, "
                              "voltage, density, template_name, flow_template, revision, saved_at, single_flows, "
                              "quad_flows";
        if (tests_are_on_server())
            columns += ", change_id";
        run_sql(m_place->db_file(), "INSERT INTO history (id, " + columns +
                                        ") WITH RECURSIVE numbers (n) AS (SELECT 2 UNION ALL SELECT n + 1 FROM numbers "
                                        "WHERE n < " +
                                        std::to_string(last) + ") SELECT numbers.n, " + columns +
                                        " FROM numbers, history WHERE history.id = 1");
    }
};

EITHER_STORE_TEST_MAIN(TEST_CLI_LOOKS)

#include "test_cli_looks.moc"
