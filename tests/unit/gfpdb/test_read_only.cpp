// SPDX-License-Identifier: MIT

// Databases on a medium that cannot be written.
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb_test.h"
#include "manager/gfpdb_embedded_mgr.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <cerrno>
#include <cstring>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uid_t NOBODY = 65534;

// A directory that can be filled, then sealed: nothing in it can be written until it is opened again. Root, whom no
// permission stops, gets a read-only mount of it; where that is not allowed, the process becomes another user.
class READ_ONLY_DIR
{
public:
    READ_ONLY_DIR() : m_dir(QDir::tempPath() + QLatin1String("/gfpdb-XXXXXX")) { ::chmod(path("").c_str(), 0755); }
    ~READ_ONLY_DIR() { unseal(); }
    std::string path(const std::string& name) const { return m_dir.path().toStdString() + '/' + name; }
    void seal();
    // Only the database in it; the directory is everyone's.
    void seal_file();
    void unseal();
    // What the system says about writing there.
    std::string why() const { return m_why; }

private:
    void forbid(mode_t directory_rights);

    QTemporaryDir m_dir;
    bool m_is_mounted = false;
    bool m_is_nobody = false;
    std::string m_why;
};

void READ_ONLY_DIR::seal()
{
    const std::string dir = path("");
    m_is_mounted = ::geteuid() == 0 && ::mount(dir.c_str(), dir.c_str(), nullptr, MS_BIND, nullptr) == 0;
    if (!m_is_mounted)
        forbid(0555);
    else if (::mount(nullptr, dir.c_str(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) != 0)
        qFatal("cannot make %s read-only: %s", dir.c_str(), std::strerror(errno));
    if (::access(dir.c_str(), W_OK) == 0)
        qFatal("%s can still be written", dir.c_str());
    m_why = std::strerror(errno);
}

void READ_ONLY_DIR::seal_file()
{
    forbid(0777);
    if (::access(path("gfpdb.sqlite").c_str(), W_OK) == 0)
        qFatal("%s can still be written", path("gfpdb.sqlite").c_str());
    m_why = std::strerror(errno);
}

void READ_ONLY_DIR::forbid(mode_t directory_rights)
{
    for (const char* name : {"gfpdb.sqlite", "gfpdb.sqlite-journal"})
        ::chmod(path(name).c_str(), 0444);
    ::chmod(path("").c_str(), directory_rights);
    m_is_nobody = ::geteuid() == 0 && ::setresuid(NOBODY, NOBODY, 0) == 0;
}

void READ_ONLY_DIR::unseal()
{
    if (m_is_nobody && ::setresuid(0, 0, 0) != 0)
        qFatal("cannot become root again");
    if (m_is_mounted)
        ::umount2(path("").c_str(), MNT_DETACH);
    ::chmod(path("").c_str(), 0755);
    for (const char* name : {"gfpdb.sqlite", "gfpdb.sqlite-journal"})
        ::chmod(path(name).c_str(), 0644);
    m_is_nobody = false;
    m_is_mounted = false;
}

} // namespace

class TEST_READ_ONLY : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void the_devices_of_a_read_only_database_can_be_used_but_not_changed()
    {
        make_database();
        const std::string before = read_file(m_dir->path("gfpdb.sqlite"));
        m_dir->seal();
        const std::string problem =
            "The database " + m_dir->path("gfpdb.sqlite") + " can be read, but not changed: " + m_dir->why() + ".";

        m_mgr = fresh_manager();
        expect_warning(problem);
        QCOMPARE(GFPDB_HELPER::get_database_problem(), problem);
        QVERIFY(!m_mgr->is_writable());
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
        QCOMPARE(user_templates(*m_mgr), NAMES{"T"});
        QVERIFY(m_mgr->find_flash("A", true) != nullptr);
        QVERIFY(m_mgr->can_add_flash());
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "B"), problem);

        const auto is_refused = [&](bool done) { return !done && m_mgr->get_last_error() == problem; };
        for (int i = 0; i < 4; ++i)
            expect_warning(problem);
        QVERIFY(is_refused(m_mgr->save_flash(make_device(*m_mgr, "B"), m_dir->path(""))));
        QVERIFY(is_refused(m_mgr->delete_flash("A", m_dir->path(""))));
        QVERIFY(is_refused(m_mgr->remove_template("T")));
        QCOMPARE(read_file(m_dir->path("gfpdb.sqlite")), before);
        QVERIFY(is_refused(m_mgr->delete_flash("A", std::string())));
        expect_warning(problem);
        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(m_dir->path(""), false));
    }

    void a_read_only_file_can_be_used_but_not_changed()
    {
        make_database();
        m_dir->seal_file();
        const std::string problem =
            "The database " + m_dir->path("gfpdb.sqlite") + " can be read, but not changed: " + m_dir->why() + ".";

        m_mgr = fresh_manager();
        expect_warning(problem);
        QCOMPARE(GFPDB_HELPER::get_database_problem(), problem);
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
    }

    void a_device_in_a_read_only_directory_is_not_the_users_to_change()
    {
        make_database();
        m_mgr = fresh_manager();
        const GFPDB_FLASH* const own = m_mgr->find_flash("A", true);
        QVERIFY(own->is_user_defined());
        m_dir->seal();

        m_mgr = fresh_manager();
        expect_warning("can be read, but not changed");
        const GFPDB_FLASH* const shared = m_mgr->find_flash("A", true);
        QVERIFY(!shared->is_user_defined());
        QVERIFY(!m_mgr->is_flow_editable(shared));
        QCOMPARE(shared->get_density(), own->get_density());
        QCOMPARE(m_mgr->find_flash("A", true), shared);

        m_dir->unseal();
        m_mgr = fresh_manager();
        QVERIFY(m_mgr->find_flash("A", true)->is_user_defined());
    }

    void a_database_that_can_be_written_again_is_changed()
    {
        make_database();
        m_dir->seal();
        m_mgr = fresh_manager();
        expect_warning("can be read, but not changed");
        expect_warning("can be read, but not changed");
        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "B"), m_dir->path("")));

        m_dir->unseal();

        QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "B"), m_dir->path("")));
        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B"}));
    }

    void a_database_that_becomes_read_only_while_it_is_open_is_reported_as_such()
    {
        make_database();
        m_mgr = fresh_manager();
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
        m_dir->seal();

        expect_warning("The database " + m_dir->path("gfpdb.sqlite") + " cannot be ");
        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "B"), m_dir->path("")));

        m_dir->unseal();
        m_mgr = fresh_manager();
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
        QVERIFY(GFPDB_EMBEDDED_MGR::instance().store().check_integrity());
    }

    // What a program that died in the middle of a change leaves: SQLite takes the half of it back when the file is next
    // opened, which needs the right to write.
    void a_half_written_database_in_a_read_only_directory_is_left_alone()
    {
        make_database();
        const std::string file = m_dir->path("gfpdb.sqlite");
        {
            QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("half"));
            connection.setDatabaseName(QString::fromStdString(file));
            QVERIFY(connection.open());
            for (const char* statement :
                 {"PRAGMA cache_size = 1", "BEGIN", "UPDATE device SET name = zeroblob(1000000)"})
                QVERIFY(QSqlQuery(connection).exec(QLatin1String(statement)));
            for (const char* name : {"gfpdb.sqlite", "gfpdb.sqlite-journal"})
                QVERIFY(QFile::copy(QString::fromStdString(m_dir->path(name)),
                                    QString::fromStdString(m_dir->path(std::string(name) + ".half"))));
        }
        QSqlDatabase::removeDatabase(QStringLiteral("half"));
        for (const char* name : {"gfpdb.sqlite", "gfpdb.sqlite-journal"})
            QCOMPARE(::rename(m_dir->path(std::string(name) + ".half").c_str(), m_dir->path(name).c_str()), 0);
        const std::string before = read_file(file);
        m_dir->seal();
        const std::string problem =
            "The database " + file +
            " was left in the middle of a change by a program that ended there. It can be read " +
            "again when someone who can write it has opened it once.";

        m_mgr = fresh_manager();
        expect_warning(problem);
        QCOMPARE(GFPDB_HELPER::get_database_problem(), problem);
        QCOMPARE(custom_names(*m_mgr), NAMES());
        QCOMPARE(read_file(file), before);

        m_dir->unseal();
        m_mgr = fresh_manager();
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
    }

    void a_read_only_database_of_an_older_schema_can_be_read()
    {
        write_file(m_dir->path("gfpdb.sqlite"), read_file(GFPDB_TEST_DATA "schema_2.sqlite"));
        for (const char* statement : {"DROP INDEX device_names", "DROP INDEX device_keys", "DROP INDEX template_names",
                                      "ALTER TABLE history DROP COLUMN changed_by",
                                      "UPDATE meta SET value = '1' WHERE name = 'schema_version'"})
            QVERIFY(run_sql(m_dir->path("gfpdb.sqlite"), statement).isValid());
        const std::string before = read_file(m_dir->path("gfpdb.sqlite"));
        m_dir->seal();

        m_mgr = fresh_manager();
        expect_warning("can be read, but not changed");
        QCOMPARE(user_templates(*m_mgr), (NAMES{"A Template", "Unreadable Template", "Vorlage \xC3\xA4"}));
        QVERIFY(m_mgr->find_flash("Single Only", true)->find_operation(GFPDB_OPERATION_PROGRAM, SINGLE_IO) != nullptr);
        GFPDB_STORE& store = GFPDB_EMBEDDED_MGR::instance().store();
        QCOMPARE(store.get_history("BOTH VARIANTS").size(), std::size_t(1));
        GFPDB_HISTORY_FILTER filter;
        filter.name = "BOTH VARIANTS";
        QCOMPARE(store.get_history_page(filter, std::nullopt, 9).entries.size(), std::size_t(1));
        QVERIFY(GFPDB_EMBEDDED_FLASH::from_row(store.find_history(1)->row, "/a/", false) != nullptr);
        QCOMPARE(read_file(m_dir->path("gfpdb.sqlite")), before);
    }

    void a_read_only_directory_without_a_database_is_refused()
    {
        m_dir->seal();
        const std::string problem = "The database directory " + m_dir->path("") +
                                    " holds no database, and none can be created: " + m_dir->why() + ".";

        m_mgr = fresh_manager();
        expect_warning(problem);
        QCOMPARE(GFPDB_HELPER::get_database_problem(), problem);
        QVERIFY(!m_mgr->is_writable());
        QCOMPARE(custom_names(*m_mgr), NAMES());
        QVERIFY(m_mgr->find_flash("MX25L25645G", true) != nullptr);
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "A"), problem);
        expect_warning(problem);
        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "A"), m_dir->path("")));
        QCOMPARE(m_mgr->get_last_error(), problem);
        expect_warning(problem);
        expect_warning("was not made the database directory");
        QVERIFY(!GFPDB_MGR::save_custom_dir_to_ini(m_dir->path(""), false));
        QVERIFY(!QFile::exists(QString::fromStdString(m_dir->path("gfpdb.sqlite"))));
    }

private:
    // The other user can go on working there.
    GFPDB_PLACE::ON medium() const override { return GFPDB_PLACE::ON::MEMORY; }

    void set_up() override
    {
        ::chmod(m_place->path("").c_str(), 0777);
        m_dir = std::make_unique<READ_ONLY_DIR>();
        GFPDB_MGR::set_db_custom_dir(m_dir->path(""));
    }

    void take_down() override
    {
        GFPDB_MGR::set_db_custom_dir(m_place->db_dir());
        fresh_manager();
        m_dir.reset();
    }

    // With the device A and the template T, and closed.
    void make_database()
    {
        m_mgr = fresh_manager();
        GFPDB_FLASH* record = make_device(*m_mgr, "A");
        record->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, "T");
        QVERIFY(m_mgr->save_flash(record, m_dir->path("")));
        GFPDB_MGR::set_db_custom_dir(m_place->db_dir());
        fresh_manager();
        GFPDB_MGR::set_db_custom_dir(m_dir->path(""));
    }

    std::unique_ptr<READ_ONLY_DIR> m_dir;
};

QTEST_GUILESS_MAIN(TEST_READ_ONLY)

#include "test_read_only.moc"
