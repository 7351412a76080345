// SPDX-License-Identifier: MIT

// A database that someone else wrote, and texts that mean something to SQL or to the file system.
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb_test.h"
#include "manager/gfpdb_embedded_mgr.h"
#include "store/sqlite/gfpdb_sqlite_file.h"
#include "test_rows.h"

#include <QDirIterator>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Every file and directory under `directory`.
QStringList tree(const std::string& directory)
{
    QStringList names;
    for (QDirIterator entries(QString::fromStdString(directory),
                              QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                              QDirIterator::Subdirectories);
         entries.hasNext();)
        names << entries.next();
    names.sort();
    return names;
}

// Has what is asked for when the devices are listed.
const char ENDLESS_VIEW[] = "CREATE VIEW device AS WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n) "
                            "SELECT x AS name, x AS name_key, 3 AS family, 7 AS scheme, '' AS revision FROM n";

} // namespace

class TEST_HOSTILE_DATABASE : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void a_name_never_becomes_sql_data()
    {
        rows_named<QString>({"'; DROP TABLE device; --",
                             "\"; DELETE FROM device; --",
                             "' OR '1'='1",
                             "%",
                             "_",
                             "*",
                             "?",
                             "?1",
                             ":name",
                             "A' UNION SELECT * FROM template --",
                             "\\",
                             "`A`",
                             "[A]",
                             "A;",
                             "--",
                             "/* A */",
                             "NULL",
                             "0",
                             "x'41'",
                             "x', 'y'); DROP TABLE history; --"});
    }

    // Nor does any other text of a record.
    void a_name_never_becomes_sql()
    {
        const std::string hostile = row<QString>().toStdString();
        make_database();
        const char* const schema = "SELECT group_concat(sql) FROM sqlite_master ORDER BY name";
        const QString before = run_sql(m_place->db_file(), schema).toString();

        QVERIFY(m_mgr->find_flash(hostile, true) == nullptr);
        QVERIFY(!m_mgr->is_custom_flash(hostile));
        QVERIFY(m_mgr->delete_flash(hostile, m_place->db_dir()));
        QVERIFY(m_mgr->remove_template(hostile));
        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B"}));
        QCOMPARE(user_templates(*m_mgr), NAMES{"T"});

        GFPDB_FLASH* record = m_mgr->create_flash(hostile);
        for (const GFPDB_FLASH_PROPERTY property :
             {GFPDB_FLASH_DEVICE_ID, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY, GFPDB_FLASH_FLOW_TEMPLATE})
            record->set_string_property(property, hostile);
        record->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, hostile + ".");
        fill_flows(*m_mgr, *record, hostile);
        QVERIFY(m_mgr->save_flash(record, m_place->db_dir()));
        QCOMPARE(custom_names(*m_mgr).size(), std::size_t(3));
        QCOMPARE(user_templates(*m_mgr).size(), std::size_t(2));
        QCOMPARE(text_of(*fresh_manager()->find_flash(hostile, true)), text_of(*record));
        QVERIFY(m_mgr->remove_template(hostile + "."));
        QVERIFY(m_mgr->delete_flash(hostile, m_place->db_dir()));
        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B"}));
        QCOMPARE(run_sql(m_place->db_file(), schema).toString(), before);
    }

    void a_name_never_becomes_a_path_data()
    {
        rows_named<QString>({"..", ".", "../escaped", "../../escaped", "/tmp/escaped", "sub/name", "C:\\name", "~",
                             "gfpdb.sqlite", "gfpdb.sqlite-journal", "file:escaped?mode=rwc", "$HOME", "`id`", "|id"});
    }

    void a_name_never_becomes_a_path()
    {
        const QString name = row<QString>();
        make_database();
        const QStringList before = tree(m_place->path(""));

        GFPDB_FLASH* record = make_device(*m_mgr, name.toStdString());
        record->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, name.toStdString() + " as a template");
        QVERIFY(m_mgr->save_flash(record, m_place->db_dir()));
        QVERIFY(fresh_manager()->find_flash(name.toStdString(), true) != nullptr);
        QVERIFY(m_mgr->delete_flash(name.toStdString(), m_place->db_dir()));
        QVERIFY(m_mgr->remove_template(name.toStdString() + " as a template"));
        QCOMPARE(tree(m_place->path("")), before);
    }

    void a_file_with_more_or_other_tables_is_left_alone_data()
    {
        rows<QString>(
            {{"a trigger that removes what is saved",
              "CREATE TRIGGER t AFTER INSERT ON device BEGIN DELETE FROM device; DELETE FROM history; END"},
             {"a trigger on a table of other letters", "CREATE TRIGGER t AFTER DELETE ON DEVICE BEGIN SELECT 1; END"},
             {"a view", "CREATE VIEW extra AS SELECT * FROM device"},
             {"a table", "CREATE TABLE extra (name TEXT)"},
             {"an index", "CREATE INDEX extra ON device (voltage)"},
             {"an index over an expression", "CREATE INDEX extra ON device (abs(scheme))"},
             {"a column", "ALTER TABLE device ADD COLUMN extra TEXT DEFAULT ''"},
             {"a column that is computed", "ALTER TABLE device ADD COLUMN extra TEXT AS (hex(name))"},
             {"no index", "DROP INDEX device_keys"},
             {"a table of another name", "ALTER TABLE history RENAME TO past"}});
    }

    void a_file_with_more_or_other_tables_is_left_alone()
    {
        make_database();
        GFPDB_EMBEDDED_MGR::instance().store().reload();
        run_sql(m_place->db_file(), row<QString>().toStdString());

        verify_refused("was altered by another program: its tables are not those of schema 4. It is left as it is.");
    }

    void a_view_that_never_ends_is_not_asked()
    {
        make_database();
        GFPDB_EMBEDDED_MGR::instance().store().reload();
        run_sql(m_place->db_file(), "DROP TABLE device");
        run_sql(m_place->db_file(), ENDLESS_VIEW);
        QCOMPARE(run_sql(m_place->db_file(), "SELECT name FROM device LIMIT 1").toInt(), 1);

        verify_refused("was altered by another program");
    }

    void a_view_made_while_the_file_is_open_is_not_asked()
    {
        make_database();
        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B"}));
        run_sql(m_place->db_file(), "ALTER TABLE device RENAME TO former");
        run_sql(m_place->db_file(), ENDLESS_VIEW);

        expect_warning("was altered by another program");
        QCOMPARE(custom_names(*m_mgr), NAMES());
        run_sql(m_place->db_file(), "DROP VIEW device");
        run_sql(m_place->db_file(), "ALTER TABLE former RENAME TO device");
        QCOMPARE(custom_names(*m_mgr), NAMES());
    }

    void a_trigger_made_while_the_file_is_open_does_not_run()
    {
        make_database();
        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B"}));
        run_sql(m_place->db_file(), "CREATE TRIGGER t AFTER INSERT ON device BEGIN DELETE FROM template; END");
        const std::string before = read_file(m_place->db_file());

        expect_warning("was altered by another program");
        expect_warning("was altered by another program");
        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir()));
        QVERIFY(m_mgr->get_last_error().find("was altered by another program") != std::string::npos);
        QCOMPARE(read_file(m_place->db_file()), before);
        QCOMPARE(run_sql(m_place->db_file(), "SELECT count(*) FROM template").toInt(), 1);
    }

    // SQLite keeps the tables and triggers that it has read as long as the count of changes stays.
    void a_trigger_that_was_read_and_hidden_does_not_run()
    {
        make_database();
        GFPDB_SQLITE_FILE file(m_place->db_dir());
        QVERIFY(file.prepare_write());
        run_sql(m_place->db_file(), "CREATE TRIGGER t AFTER UPDATE ON device BEGIN DELETE FROM template; END");
        const int count = run_sql(m_place->db_file(), "PRAGMA schema_version").toInt();
        QVERIFY(file.connection().run("SELECT 1 FROM device"));
        run_sql(m_place->db_file(), "DROP TRIGGER t");
        run_sql(m_place->db_file(), "PRAGMA schema_version = " + std::to_string(count));

        QVERIFY(file.change([&file] { return file.connection().run("UPDATE device SET family = family"); }));

        QCOMPARE(run_sql(m_place->db_file(), "SELECT count(*) FROM template").toInt(), 1);
    }

    // SQLite counts that as a change of the schema, which it is not.
    void a_file_that_was_only_tidied_up_is_used()
    {
        make_database();
        const int count = run_sql(m_place->db_file(), "PRAGMA schema_version").toInt();
        run_sql(m_place->db_file(), "VACUUM");
        QVERIFY(run_sql(m_place->db_file(), "PRAGMA schema_version").toInt() != count);

        QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir()));
        QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "D"), m_place->db_dir()));
        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B", "C", "D"}));
    }

    void a_companion_that_is_a_link_or_no_file_is_not_opened_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("kind");
        for (const char* suffix : {"-journal", "-wal", "-shm"}) {
            for (const char* kind : {"symbolic link", "hard link", "pipe", "directory"})
                QTest::addRow("%s%s", kind, suffix) << QString::fromLatin1(suffix) << QString::fromLatin1(kind);
        }
    }

    // Whoever may write into the directory can point the journal at a file of the user's, which SQLite would cut off. A
    // pipe would keep SQLite waiting, a directory be in its way.
    void a_companion_that_is_a_link_or_no_file_is_not_opened()
    {
        QFETCH(QString, suffix);
        QFETCH(QString, kind);
        make_database();
        GFPDB_EMBEDDED_MGR::instance().store().reload();
        const std::string victim = m_place->path("victim");
        const std::string companion = m_place->db_file() + suffix.toStdString();
        const char* const path = companion.c_str();
        write_file(victim, "the user's own");
        ::unlink(path);
        const bool is_pipe = kind == QLatin1String("pipe");
        const int made = is_pipe                              ? ::mkfifo(path, 0600)
                         : kind == QLatin1String("directory") ? ::mkdir(path, 0700)
                         : kind == QLatin1String("hard link") ? ::link(victim.c_str(), path)
                                                              : ::symlink(victim.c_str(), path);
        QCOMPARE(made, 0);
        // With another end, the pipe of this test keeps no one waiting who opens it all the same.
        const int other_end = is_pipe ? ::open(path, O_RDWR | O_CLOEXEC) : -1;

        verify_refused("The database " + m_place->db_file() + " is not used: " + companion +
                       " is a link or not a regular file. Remove it if you did not put it there.");
        ::close(other_end);
        QCOMPARE(read_file(victim), std::string("the user's own"));
        QCOMPARE(std::remove(path), 0);
        QCOMPARE(custom_names(*fresh_manager()), (NAMES{"A", "B"}));
    }

    void a_link_made_while_the_file_is_open_is_not_followed()
    {
        make_database();
        const std::string victim = m_place->path("victim");
        const std::string journal = m_place->db_file() + "-journal";
        write_file(victim, "the user's own");
        ::unlink(journal.c_str());
        QCOMPARE(::symlink(victim.c_str(), journal.c_str()), 0);

        expect_warning("is a link or not a regular file");
        expect_warning("is a link or not a regular file");
        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir()));
        QCOMPARE(custom_names(*m_mgr), NAMES());
        QCOMPARE(read_file(victim), std::string("the user's own"));
    }

    // There is no database yet, so nothing is wrong until the first change has made it.
    void a_link_made_before_the_database_is_not_followed()
    {
        const std::string victim = m_place->path("victim");
        write_file(victim, "the user's own");
        QCOMPARE(::symlink(victim.c_str(), (m_place->db_file() + "-journal").c_str()), 0);
        m_mgr = fresh_manager();
        QCOMPARE(GFPDB_HELPER::get_database_problem(), std::string());

        expect_warning("is a link or not a regular file");
        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "A"), m_place->db_dir()));
        QCOMPARE(read_file(victim), std::string("the user's own"));
    }

    // The companions lie where the file really is.
    void the_companion_files_of_a_linked_database_are_looked_at_too()
    {
        make_database();
        GFPDB_EMBEDDED_MGR::instance().store().reload();
        make_dir(m_place->path("real/"));
        const std::string real_file = m_place->path("real/other.sqlite");
        QCOMPARE(std::rename(m_place->db_file().c_str(), real_file.c_str()), 0);
        QCOMPARE(::symlink(real_file.c_str(), m_place->db_file().c_str()), 0);
        QCOMPARE(custom_names(*fresh_manager()), (NAMES{"A", "B"}));
        GFPDB_EMBEDDED_MGR::instance().store().reload();

        write_file(m_place->path("victim"), "the user's own");
        ::unlink((real_file + "-journal").c_str());
        QCOMPARE(::symlink(m_place->path("victim").c_str(), (real_file + "-journal").c_str()), 0);
        verify_refused("other.sqlite-journal is a link or not a regular file.");
        QCOMPARE(read_file(m_place->path("victim")), std::string("the user's own"));
    }

    void records_of_the_wrong_type_hurt_no_other()
    {
        make_database();
        GFPDB_EMBEDDED_MGR::instance().store().reload();
        run_sql(m_place->db_file(),
                "INSERT INTO device SELECT 'x1', family, scheme, x'FFFE00', 4, 5.5, x'', 'many', 1e300, -9e18, 9, 9, "
                "'r', 's', '[{}]', x'00', 'u' FROM device WHERE name = 'A'");
        run_sql(m_place->db_file(), "UPDATE device SET single_flows = 'no flow at all' WHERE name = 'B'");

        m_mgr = fresh_manager();
        QCOMPARE(custom_names(*m_mgr).size(), std::size_t(3));
        QVERIFY(m_mgr->find_flash("A", true) != nullptr);
        expect_warning("The flows of \"B\"");
        QVERIFY(m_mgr->find_flash("B", true) == nullptr);
        expect_warning("cannot be read");
        QVERIFY(m_mgr->find_flash("x1", true) == nullptr);
        QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir()));
    }

private:
    // A program that is started now does not use the file, says why, and leaves it as it is.
    void verify_refused(const std::string& problem)
    {
        const std::string before = read_file(m_place->db_file());
        m_mgr = fresh_manager();
        expect_warning(problem);
        const std::string told = GFPDB_HELPER::get_database_problem();
        QVERIFY2(told.find(problem) != std::string::npos, told.c_str());
        QVERIFY(!GFPDB_EMBEDDED_MGR::instance().store().is_readable());
        QCOMPARE(custom_names(*m_mgr), NAMES());
        expect_warning(problem);
        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir()));
        expect_warning(problem);
        QVERIFY(!m_mgr->delete_flash("A", m_place->db_dir()));
        QCOMPARE(read_file(m_place->db_file()), before);
    }
};

QTEST_GUILESS_MAIN(TEST_HOSTILE_DATABASE)

#include "test_hostile_database.moc"
