// SPDX-License-Identifier: MIT

// Databases that cannot be used: what the user is told, what works all the same, and that nothing is overwritten.
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb_test.h"
#include "manager/gfpdb_embedded_mgr.h"
#include "message_recorder.h"
#include "test_rows.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const char BUSY_TIMEOUT_MS[] = "50";

// Another program that holds the database of `path` locked as long as this object lives.
class OTHER_PROGRAM
{
public:
    OTHER_PROGRAM(const std::string& path, const char* statement)
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), NAME);
        database.setDatabaseName(QString::fromStdString(path));
        if (!database.open() || !QSqlQuery(database).exec(QLatin1String(statement)))
            qFatal("cannot lock %s", path.c_str());
    }
    ~OTHER_PROGRAM() { QSqlDatabase::removeDatabase(NAME); }

private:
    const QString NAME = QStringLiteral("the other program");
};

QStringList entries(const std::string& directory)
{
    return QDir(QString::fromStdString(directory))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

constexpr useconds_t LOCK_US = 100000;

// Locks the database in `path`, says so, and lets go after LOCK_US.
int hold_lock(const QString& path)
{
    const OTHER_PROGRAM other(path.toStdString(), "BEGIN IMMEDIATE");
    std::fputs("locked\n", stdout);
    std::fflush(stdout);
    ::usleep(LOCK_US);
    return 0;
}

} // namespace

class TEST_BAD_FILES : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void a_file_that_is_not_a_usable_database_is_left_alone_data()
    {
        const QByteArray nothing;
        const QByteArray foreign =
            QByteArrayLiteral("The file %1 is a database of another program. It is left as it is.");
        const QByteArray no_database =
            QByteArrayLiteral("The file %1 is not a database (file is not a database). It is left as it is.");
        const QByteArray too_short =
            QByteArrayLiteral("The file %1 is not a database (too short). It is left as it is.");
        rows<QByteArray, QByteArray, QByteArray>(
            {{"empty", nothing, nothing,
              QByteArrayLiteral("The database %1 is empty: its content was lost. It is left as it is; "
                                "restore a backup copy, or delete it to start over.")},
             {"a text", QByteArray(2000, 'x'), nothing, no_database},
             {"one byte", QByteArrayLiteral("x"), nothing, too_short},
             {"511 bytes", QByteArray(511, 'x'), nothing, too_short},
             {"512 bytes", QByteArray(512, 'x'), nothing, no_database},
             {"zeros", QByteArray(8192, '\0'), nothing, no_database},
             {"another program's database", nothing, QByteArrayLiteral("CREATE TABLE recipes (name TEXT)"), foreign},
             {"another program's meta table", nothing, QByteArrayLiteral("CREATE TABLE meta (name TEXT, value TEXT)"),
              foreign}});
    }

    void a_file_that_is_not_a_usable_database_is_left_alone()
    {
        auto [content, statement, problem] = row<QByteArray, QByteArray, QByteArray>();
        write_file(m_place->db_file(), content.toStdString());
        if (!statement.isEmpty())
            QVERIFY(run_sql(m_place->db_file(), statement.toStdString()).isValid());
        const std::string before = read_file(m_place->db_file());

        verify_unusable(problem.replace("%1", m_place->db_file().c_str()).toStdString());
        QCOMPARE(read_file(m_place->db_file()), before);
        QCOMPARE(entries(m_place->db_dir()), QStringList(QStringLiteral("gfpdb.sqlite")));
    }

    void a_link_that_leads_nowhere_is_not_an_empty_database_data()
    {
        rows<QByteArray, QByteArray>({{"missing", "../share/flash.sqlite", "No such file or directory"},
                                      {"itself", "gfpdb.sqlite", "Too many levels of symbolic links"},
                                      {"below a file", "../settings.ini/flash.sqlite", "Not a directory"}});
    }

    // As when the share that it is on is not mounted.
    void a_link_that_leads_nowhere_is_not_an_empty_database()
    {
        const auto [target, why] = row<QByteArray, QByteArray>();
        QCOMPARE(::symlink(target.constData(), m_place->db_file().c_str()), 0);

        verify_unusable("The database " + m_place->db_file() + " cannot be reached: it is a link to " +
                        target.toStdString() + " (" + why.toStdString() +
                        "). Is the drive or the share that it is on connected?");
        QCOMPARE(entries(m_place->db_dir()), QStringList(QStringLiteral("gfpdb.sqlite")));
    }

    void a_truncated_database_is_left_alone_data()
    {
        QTest::addColumn<int>("missing");
        QTest::addColumn<QByteArray>("problem");
        const QByteArray no_end =
            QByteArrayLiteral("The database %1 is damaged (its end is missing). It is left as it is.");
        const QByteArray malformed =
            QByteArrayLiteral("The database %1 is damaged (database disk image is malformed). It is left as it is.");
        const QByteArray too_short =
            QByteArrayLiteral("The file %1 is not a database (too short). It is left as it is.");
        for (const int missing : {1, 100, 4095})
            QTest::addRow("%d bytes missing", missing) << missing << no_end;
        for (const int missing : {4096, 4097, 20000})
            QTest::addRow("%d bytes missing", missing) << missing << malformed;
        QTest::newRow("600 bytes left") << -600 << malformed;
        QTest::newRow("100 bytes left") << -100 << too_short;
        QTest::newRow("10 bytes left") << -10 << too_short;
    }

    void a_truncated_database_is_left_alone()
    {
        QFETCH(int, missing);
        QFETCH(QByteArray, problem);
        make_closed_database();
        const std::string whole = read_file(m_place->db_file());
        const std::string kept =
            whole.substr(0, missing > 0 ? whole.size() - std::size_t(missing) : std::size_t(-missing));
        write_file(m_place->db_file(), kept);

        verify_unusable(problem.replace("%1", m_place->db_file().c_str()).toStdString());
        QCOMPARE(read_file(m_place->db_file()), kept);
    }

    // Whole pages of the device's record are overwritten; the list of names does not need them.
    void a_damaged_page_is_reported_when_it_is_read()
    {
        make_closed_database();
        const std::string sound = read_file(m_place->db_file());
        std::string content = sound;
        const int root =
            run_sql(m_place->db_file(), "SELECT rootpage FROM sqlite_master WHERE name = 'device'").toInt();
        const std::size_t page = 4096;
        content.replace(page * std::size_t(root - 1), page, std::string(page, 'x'));
        write_file(m_place->db_file(), content);

        const std::string told = "The database " + m_place->db_file() +
                                 " is damaged (database disk image is malformed). It is left as it is.";
        m_mgr = fresh_manager();
        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B"}));
        expect_message(told);
        QVERIFY(m_mgr->find_flash("A", true) == nullptr);
        QCOMPARE(m_mgr->get_last_error(), told);
        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B"}));
        QCOMPARE(GFPDB_HELPER::get_database_problem(), told);
        GFPDB_STORE& store = GFPDB_EMBEDDED_MGR::instance().store();
        QVERIFY(!store.check_integrity());
        QVERIFY(store.get_last_error().find("The database in " + m_place->db_dir() + " is damaged: ") == 0);
        expect_message(told);
        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir()));
        QCOMPARE(read_file(m_place->db_file()), content);

        // A copy is put back.
        QVERIFY(QFile::remove(QString::fromStdString(m_place->db_file())));
        write_file(m_place->db_file(), sound);
        expect_warning("was replaced or removed by another program");
        QCOMPARE(GFPDB_HELPER::get_database_problem(), std::string());
        QVERIFY(m_mgr->find_flash("A", true) != nullptr);
    }

    void a_directory_that_is_none_is_reported_data()
    {
        rows<QString, QByteArray>(
            {{"missing", "missing/", QByteArrayLiteral("The database directory %1 does not exist.")},
             {"a file", "file/",
              QByteArrayLiteral("The database directory %1 is not a directory: a part of it is a file.")},
             {"a circle", "circle/",
              QByteArrayLiteral("The database directory %1 cannot be reached: Too many levels of "
                                "symbolic links.")},
             {"a directory in the file's place", "place/", QByteArrayLiteral("%1gfpdb.sqlite is not a file.")}});
    }

    void a_directory_that_is_none_is_reported()
    {
        auto [directory, problem] = row<QString, QByteArray>();
        write_file(m_place->path("file"), "content");
        QCOMPARE(::symlink("circle", m_place->path("circle").c_str()), 0);
        make_dir(m_place->path("place/gfpdb.sqlite"));
        const std::string path = m_place->path(directory.toStdString());
        GFPDB_MGR::set_db_custom_dir(path);

        m_mgr = fresh_manager();
        const std::string told = problem.replace("%1", path.c_str()).toStdString();
        for (int i = 0; i < 3; ++i)
            expect_message(told);
        QCOMPARE(GFPDB_HELPER::get_database_problem(), told);
        QCOMPARE(custom_names(*m_mgr), NAMES());
        QVERIFY(m_mgr->find_flash("MX25L25645G", true) != nullptr);
        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "C"), path));
        QCOMPARE(m_mgr->get_last_error(), told);
        QVERIFY(!m_mgr->delete_flash("C", path));
        QVERIFY(!QFile::exists(QString::fromStdString(m_place->path("missing"))));
        QCOMPARE(read_file(m_place->path("file")), std::string("content"));
    }

    void a_problem_is_logged_once()
    {
        write_file(m_place->db_file(), "x");
        m_mgr = fresh_manager();
        const MESSAGE_RECORDER messages;

        for (int i = 0; i < 3; ++i) {
            GFPDB_HELPER::get_database_problem();
            custom_names(*m_mgr);
        }
        const int before_reload = messages.texts().size();
        fresh_manager();
        GFPDB_HELPER::get_database_problem();

        QCOMPARE(before_reload, 1);
        QCOMPARE(messages.texts().size(), 2);
    }

    void a_problem_that_went_away_is_gone()
    {
        write_file(m_place->db_file(), "x");
        m_mgr = fresh_manager();
        expect_warning("is not a database");
        QVERIFY(!GFPDB_HELPER::get_database_problem().empty());
        QVERIFY(QFile::remove(QString::fromStdString(m_place->db_file())));

        QCOMPARE(GFPDB_HELPER::get_database_problem(), std::string());
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "A"), std::string());
        QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "A"), m_place->db_dir()));
    }

    void a_database_locked_for_reading_is_reported()
    {
        make_closed_database();
        const OTHER_PROGRAM other(m_place->db_file(), "BEGIN EXCLUSIVE");
        const std::string before = read_file(m_place->db_file());

        verify_unusable("The database " + m_place->db_file() + " is locked by another program (database is locked).");
        QCOMPARE(read_file(m_place->db_file()), before);
    }

    void a_locked_database_is_read_again_when_the_lock_is_gone()
    {
        make_closed_database();
        {
            const OTHER_PROGRAM other(m_place->db_file(), "BEGIN EXCLUSIVE");
            m_mgr = fresh_manager();
            expect_warning("is locked by another program");
            QCOMPARE(custom_names(*m_mgr), NAMES());
        }

        QTRY_COMPARE(custom_names(*m_mgr), (NAMES{"A", "B"}));
        QCOMPARE(GFPDB_HELPER::get_database_problem(), std::string());
        {
            const OTHER_PROGRAM other(m_place->db_file(), "BEGIN EXCLUSIVE");
            expect_warning("is locked by another program");
            QCOMPARE(custom_names(*m_mgr), NAMES());
            QVERIFY(GFPDB_HELPER::get_database_problem().find("is locked by another program") != std::string::npos);
        }
        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B"}));
        QCOMPARE(GFPDB_HELPER::get_database_problem(), std::string());
    }

    void a_database_locked_for_writing_can_be_read()
    {
        make_closed_database();
        m_mgr = fresh_manager();
        {
            const OTHER_PROGRAM other(m_place->db_file(), "BEGIN IMMEDIATE");

            QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B"}));
            expect_warning("is locked by another program");
            QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir()));
            QVERIFY(m_mgr->get_last_error().find("is locked by another program") != std::string::npos);
            expect_warning("is locked by another program");
            QVERIFY(!m_mgr->delete_flash("A", m_place->db_dir()));
            QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B"}));
        }
        QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir()));
        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B", "C"}));
    }

    // The lock is held by a process of its own, which lets go while this one waits.
    void a_change_waits_for_a_lock_that_goes_away()
    {
        make_closed_database();
        write_file(m_place->settings(), "[database]\nbusy_timeout=60000\n");
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("hold-lock"), QString::fromStdString(m_place->db_file())});
        QVERIFY(other.waitForReadyRead());
        QCOMPARE(other.readAll(), QByteArrayLiteral("locked\n"));

        m_mgr = fresh_manager();
        QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir()));
        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "B", "C"}));
        QVERIFY(other.waitForFinished());
        QCOMPARE(other.exitCode(), 0);
    }

    void the_busy_timeout_comes_from_the_settings()
    {
        make_closed_database();
        const auto timeout = [this] {
            fresh_manager();
            custom_names(*GFPDB_HELPER::get_active_flash_manager(false));
            QSqlQuery query(QSqlDatabase::database(QSqlDatabase::connectionNames().value(0), false));
            return query.exec(QStringLiteral("PRAGMA busy_timeout")) && query.next() ? query.value(0).toInt() : -1;
        };

        QCOMPARE(timeout(), 50);
        write_file(m_place->settings(), "[database]\nbusy_timeout=0\n");
        QCOMPARE(timeout(), 0);
        for (const char* value : {"", "x", "-1", "1.5"}) {
            write_file(m_place->settings(), "[database]\nbusy_timeout=" + std::string(value) + "\n");
            QCOMPARE(timeout(), 5000);
        }
    }

    void a_directory_without_a_database_has_no_problem()
    {
        m_mgr = fresh_manager();

        QCOMPARE(GFPDB_HELPER::get_database_problem(), std::string());
        QVERIFY(m_mgr->is_writable());
        QCOMPARE(custom_names(*m_mgr), NAMES());
        QVERIFY(m_mgr->find_flash("A", true) == nullptr);
        QCOMPARE(m_mgr->get_last_error(), std::string());
        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(m_place->db_dir(), false));
        QVERIFY(GFPDB_EMBEDDED_MGR::instance().store().check_integrity());
        QCOMPARE(entries(m_place->db_dir()), QStringList());
    }

private:
    void set_up() override
    {
        write_file(m_place->settings(), "[database]\nbusy_timeout=" + std::string(BUSY_TIMEOUT_MS) + "\n");
    }

    // With the devices A and B and the template T.
    void make_closed_database()
    {
        make_database();
        // The connection of this process is not to hold the file.
        GFPDB_MGR::set_db_custom_dir(m_place->path(""));
        fresh_manager();
        GFPDB_MGR::set_db_custom_dir(m_place->db_dir());
    }

    // A newly fetched manager says `told` wherever a user looks, changes nothing and still has what is built in.
    void verify_unusable(const std::string& told)
    {
        NAMES names;
        m_mgr = fresh_manager();
        expect_message(told);
        QCOMPARE(GFPDB_HELPER::get_database_problem(), told);
        QCOMPARE(QSqlDatabase::connectionNames().filter(QStringLiteral("gfpdb ")), QStringList());
        QVERIFY(!m_mgr->is_writable());

        QCOMPARE(custom_names(*m_mgr), NAMES());
        QCOMPARE(user_templates(*m_mgr), NAMES());
        QVERIFY(m_mgr->find_flash("A", true) == nullptr);
        QCOMPARE(m_mgr->get_last_error(), told);
        QVERIFY(m_mgr->can_add_flash());
        QCOMPARE(m_mgr->get_builtin_flash_names(names, FAMILY, ACTIVE_SERIAL, 0).size(), std::size_t(146));
        QVERIFY(m_mgr->find_flash("MX25L25645G", true) != nullptr);
        QCOMPARE(m_mgr->get_template_list(names).size(), std::size_t(5));

        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "C"), told);
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_TEMPLATE_NAME, "C"), told);
        const auto is_refused = [&](bool done) { return !done && m_mgr->get_last_error() == told; };
        for (int i = 0; i < 5; ++i)
            expect_message(told);
        QVERIFY(is_refused(m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir())));
        QVERIFY(is_refused(m_mgr->delete_flash("A", m_place->db_dir())));
        QVERIFY(is_refused(m_mgr->remove_template("T")));
        QVERIFY(is_refused(m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string())));
        expect_message(m_place->db_dir() + " was not made the database directory: " + told);
        QVERIFY(!GFPDB_MGR::save_custom_dir_to_ini(m_place->db_dir(), false));
        QVERIFY(!GFPDB_EMBEDDED_MGR::instance().store().check_integrity());
    }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "hold-lock")
        return hold_lock(QFile::decodeName(argv[2]));
    TEST_BAD_FILES test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_bad_files.moc"
