// SPDX-License-Identifier: MIT

// The settings file, and the custom database directory that it keeps.
#include "base/gfpdb_settings.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb_test.h"
#include "manager/gfpdb_custom_dir.h"
#include "test_rows.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <cstdio>

#include <sys/stat.h>
#include <unistd.h>

namespace {

QStringList entries(const std::string& directory)
{
    return QDir(QString::fromStdString(directory)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

constexpr char ASK[] = "--ask-for-the-custom-directory";

// The custom directory of a process that asks for it at its start and after each change of its base directory.
std::string asked_in_another_process(const QStringList& base_directories)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), QStringList(QLatin1String(ASK)) + base_directories);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        qFatal("the other process ended with an error");
    return process.readAllStandardOutput().toStdString();
}

int ask_for_the_custom_directory(const QStringList& base_directories)
{
    std::string answer = GFPDB_MGR::get_db_custom_dir();
    for (const QString& directory : base_directories) {
        GFPDB_HELPER::set_base_dir(directory.toStdString());
        answer = GFPDB_MGR::get_db_custom_dir();
    }
    std::fputs(answer.c_str(), stdout);
    return 0;
}

} // namespace

class TEST_SETTINGS : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void a_value_is_read_from_its_section()
    {
        write_file(settings(),
                   "[other]\ncustom_dir=/other/\n[database]\nbusy_timeout=7\n custom_dir = /a b/c/ \r\n[more]\n"
                   "custom_dir=/more/\n");

        QCOMPARE(gfpdb_read_setting("custom_dir"), std::string("/a b/c/"));
        QCOMPARE(gfpdb_read_setting("busy_timeout"), std::string("7"));
    }

    void what_is_not_a_value_of_the_section_is_empty()
    {
        QCOMPARE(gfpdb_read_setting("custom_dir"), std::string());
        for (const char* content : {"[other]\ncustom_dir=/other/\n", "",
                                    "custom_dir=/above/\n[database]\ncustom_directory=/x/\n;custom_dir=/comment/\n"
                                    "custom_dir\n"}) {
            write_file(settings(), content);
            QCOMPARE(gfpdb_read_setting("custom_dir"), std::string());
        }
    }

    void the_last_line_of_a_key_counts()
    {
        write_file(settings(), "[database]\ncustom_dir=/a/\ncustom_dir=/b/\n[x]\n[database]\ncustom_dir=/c/\n");

        QCOMPARE(gfpdb_read_setting("custom_dir"), std::string("/c/"));
        QVERIFY(gfpdb_write_setting("custom_dir", "/d/"));
        QCOMPARE(gfpdb_read_setting("custom_dir"), std::string("/d/"));
    }

    void a_byte_order_mark_hides_no_setting_data()
    {
        rows<QByteArray>({{"the section is first", QByteArrayLiteral("[database]\ncustom_dir=/a/\n")},
                          {"the section comes later", QByteArrayLiteral("; mine\n[database]\ncustom_dir=/a/\n")}});
    }

    void a_byte_order_mark_hides_no_setting()
    {
        const QByteArray rest = row<QByteArray>();
        const std::string mark = "\xEF\xBB\xBF";
        for (const std::string& marks : {mark, mark + mark}) {
            write_file(settings(), marks + rest.toStdString());

            QCOMPARE(gfpdb_read_setting("custom_dir"), std::string("/a/"));
            QVERIFY(gfpdb_write_setting("custom_dir", "/b/"));
            QCOMPARE(read_file(settings()), QByteArray(rest).replace("/a/", "/b/").toStdString());
        }
    }

    void writing_makes_the_file_and_its_directory_and_nothing_else()
    {
        qputenv("GFPDB_SETTINGS", QByteArray::fromStdString(m_place->path("new/deep/settings.ini")));

        for (const char* directory : {"/b/", "/a/"})
            QVERIFY(gfpdb_write_setting("custom_dir", directory));
        QCOMPARE(read_file(m_place->path("new/deep/settings.ini")), std::string("[database]\ncustom_dir=/a/\n"));
        QCOMPARE(entries(m_place->path("new/deep")), QStringList(QStringLiteral("settings.ini")));
    }

    void writing_leaves_every_other_line_alone()
    {
        write_file(settings(), "; mine\n[x]\na = 1\n\n[database]\n; here\ncustom_dir=/a/\nbusy_timeout=7\n[y]\nb=2");

        QVERIFY(gfpdb_write_setting("custom_dir", "/b/"));
        QCOMPARE(read_file(settings()), std::string("; mine\n[x]\na = 1\n\n[database]\n; here\ncustom_dir=/b/\n"
                                                    "busy_timeout=7\n[y]\nb=2\n"));
        QVERIFY(gfpdb_write_setting("new", "3"));
        QCOMPARE(read_file(settings()), std::string("; mine\n[x]\na = 1\n\n[database]\n; here\ncustom_dir=/b/\n"
                                                    "busy_timeout=7\nnew=3\n[y]\nb=2\n"));
    }

    void writing_adds_the_section_where_it_is_missing()
    {
        write_file(settings(), "[x]\ncustom_dir=/x/\n");

        QVERIFY(gfpdb_write_setting("custom_dir", "/a/"));
        QCOMPARE(read_file(settings()), std::string("[x]\ncustom_dir=/x/\n[database]\ncustom_dir=/a/\n"));
    }

    void any_byte_but_a_line_break_can_be_a_value()
    {
        for (const char* value : {"/with blank/", "/\xC3\xA4/", "/\xFC\x01\x7F/", "/a=b;c#d[e]/", "/%20\\n\"'/"}) {
            QVERIFY(gfpdb_write_setting("custom_dir", value));
            QCOMPARE(gfpdb_read_setting("custom_dir"), std::string(value));
        }
        const std::string before = read_file(settings());
        for (const std::string& value : {std::string("/a\n/"), std::string("/a\r/"), std::string("/a\0/", 4)}) {
            expect_settings_warning("cannot hold a value with a line break");
            QVERIFY(!gfpdb_write_setting("custom_dir", value));
        }
        QCOMPARE(read_file(settings()), before);
    }

    void unreadable_settings_are_logged_and_left_alone_data()
    {
        const QByteArray setting = QByteArrayLiteral("[database]\ncustom_dir=/a/\n");
        rows<QByteArray, QByteArray>(
            {{"not a text", setting + '\0', QByteArrayLiteral("is not a settings file: it is not text")},
             {"too large", setting + QByteArray(1 << 20, ';'),
              QByteArrayLiteral("is not a settings file: it is too large")}});
    }

    void unreadable_settings_are_logged_and_left_alone()
    {
        const auto [content, warning] = row<QByteArray, QByteArray>();
        write_file(settings(), content.toStdString());

        expect_settings_warning(warning.toStdString());
        QCOMPARE(gfpdb_read_setting("custom_dir"), std::string());
        expect_settings_warning(warning.toStdString());
        QVERIFY(!gfpdb_write_setting("custom_dir", "/b/"));
        QCOMPARE(read_file(settings()), content.toStdString());
    }

    void settings_that_cannot_be_written_are_logged()
    {
        make_dir(settings());
        expect_settings_warning("cannot be read: it is not a file");
        QCOMPARE(gfpdb_read_setting("custom_dir"), std::string());
        expect_settings_warning("cannot be read: it is not a file");
        QVERIFY(!gfpdb_write_setting("custom_dir", "/b/"));

        write_file(m_place->path("file"), "content");
        qputenv("GFPDB_SETTINGS", QByteArray::fromStdString(m_place->path("file/settings.ini")));
        expect_message("The settings file " + m_place->path("file/settings.ini") +
                           " cannot be written: its directory cannot be created",
                       QtCriticalMsg);
        QVERIFY(!gfpdb_write_setting("custom_dir", "/b/"));
        QCOMPARE(read_file(m_place->path("file")), std::string("content"));
    }

    void without_the_variable_the_file_is_in_the_configuration_directory()
    {
        qunsetenv("GFPDB_SETTINGS");
        const QByteArray configuration = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(m_place->path("config")));

        const bool is_written = gfpdb_write_setting("custom_dir", "/a/");
        qputenv("XDG_CONFIG_HOME", configuration);

        QVERIFY(is_written);
        QCOMPARE(read_file(m_place->path("config/gfpdb/gfpdb.ini")), std::string("[database]\ncustom_dir=/a/\n"));
    }

    // The dialog makes the directory that the user looks at the current one, which others may write.
    void relative_names_stay_where_the_program_was_started()
    {
        const QString start = QDir::currentPath();
        qputenv("GFPDB_SETTINGS", QDir(start).relativeFilePath(QString::fromStdString(settings())).toLocal8Bit());
        const QByteArray data = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", QDir(start).relativeFilePath(QString::fromLocal8Bit(data)).toLocal8Bit());
        write_file(settings(), "[database]\nbusy_timeout=7\n");
        QVERIFY(QDir::setCurrent(QString::fromStdString(m_place->db_dir())));

        const std::string read = gfpdb_read_setting("busy_timeout");
        const bool is_written = gfpdb_write_setting("busy_timeout", "8");
        const std::string directory = gfpdb_default_dir();
        QVERIFY(QDir::setCurrent(start));

        QCOMPARE(read, std::string("7"));
        QVERIFY(is_written);
        QCOMPARE(read_file(settings()), std::string("[database]\nbusy_timeout=8\n"));
        QCOMPARE(directory, m_place->path("data/gfpdb/"));
    }

    void an_empty_directory_is_the_default_in_the_data_directory()
    {
        QCOMPARE(gfpdb_default_dir(), m_place->path("data/gfpdb/"));
        GFPDB_MGR::set_db_custom_dir("");
        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), m_place->path("data/gfpdb/"));
    }

    void directories_have_one_form_data()
    {
        const QString here = QDir::currentPath() + QLatin1Char('/');
        rows<QString, QString, QString>({{"as it is", "", "/a/b/", "/a/b/"},
                                         {"no slash at the end", "", "/a/b", "/a/b/"},
                                         {"slashes", "", "//a///b//", "/a/b/"},
                                         {"back slashes", "", "\\a\\b", "/a/b/"},
                                         {"points", "", "/a/./b/../c", "/a/c/"},
                                         {"root", "", "/", "/"},
                                         {"relative", "", "a b", here + QLatin1String("a b/")},
                                         {"here", "", ".", here},
                                         {"below the base", "/base/", "a/b", "/base/a/b/"},
                                         {"no slash at the base's end", "/base", "a", "/base/a/"},
                                         {"the base", "/base/", ".", "/base/"},
                                         {"above the base", "/base/x/", "../a", "/base/a/"},
                                         {"absolute in spite of the base", "/base/", "/a", "/a/"},
                                         {"relative base", "base", "a", here + QLatin1String("base/a/")}});
    }

    void directories_have_one_form()
    {
        const auto [base, directory, form] = row<QString, QString, QString>();
        GFPDB_HELPER::set_base_dir("/before/");
        GFPDB_HELPER::set_base_dir(base.toStdString());

        GFPDB_MGR::set_db_custom_dir(directory.toStdString());
        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), form.toStdString());

        // It stays when the base changes.
        GFPDB_HELPER::set_base_dir("/other/");
        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), form.toStdString());
    }

    void a_relative_directory_is_saved_below_the_base_directory()
    {
        GFPDB_HELPER::set_base_dir(m_place->path("base"));

        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini("mine", true));

        QCOMPARE(gfpdb_read_setting(GFPDB_SETTING_CUSTOM_DIR), m_place->path("base/mine/"));
        QVERIFY(QFileInfo(QString::fromStdString(m_place->path("base/mine"))).isDir());
    }

    // A directory that is set stays for the rest of a process: what the settings say is asked for by another one.
    void a_relative_directory_of_the_settings_follows_the_base_directory()
    {
        write_file(settings(), "[database]\ncustom_dir=mine\n");

        QCOMPARE(asked_in_another_process({}), QDir::currentPath().toStdString() + "/mine/");
        QCOMPARE(asked_in_another_process({QStringLiteral("/base/")}), std::string("/base/mine/"));
        QCOMPARE(asked_in_another_process({QStringLiteral("/base/"), QStringLiteral("/other/")}),
                 std::string("/other/mine/"));
    }

    void devices_are_saved_and_deleted_below_the_base_directory()
    {
        make_dir(m_place->path("base/mine"));
        GFPDB_HELPER::set_base_dir(m_place->path("base"));
        GFPDB_MGR* manager = fresh_manager();
        const std::string file = m_place->path("base/mine/gfpdb.sqlite");

        GFPDB_FLASH* const record = make_device(*manager, "A");
        QVERIFY(manager->save_flash(record, "mine"));
        QCOMPARE(record->get_db_dir(), m_place->path("base/mine/"));
        QCOMPARE(run_sql(file, "SELECT count(*) FROM device").toInt(), 1);

        QVERIFY(manager->delete_flash("A", "./mine"));
        QCOMPARE(run_sql(file, "SELECT count(*) FROM device").toInt(), 0);
    }

    void a_saved_directory_is_found_by_the_next_program()
    {
        make_dir(m_place->path("mine"));

        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(m_place->path("mine//"), false));
        QCOMPARE(gfpdb_read_setting(GFPDB_SETTING_CUSTOM_DIR), m_place->path("mine/"));
        QCOMPARE(read_file(settings()), "[database]\ncustom_dir=" + m_place->path("mine/") + "\n");
        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), m_place->db_dir());
        QCOMPARE(entries(m_place->path("mine")), QStringList());
    }

    void a_directory_in_which_no_database_can_be_used_is_refused_data()
    {
        const QString no_directory =
            QStringLiteral("The database directory %1 is not a directory: a part of it is a file.");
        rows<QString, QString>(
            {{"missing", "missing/", "The database directory %1 does not exist."},
             {"a file", "file/", no_directory},
             {"below a file", "file/below/", no_directory},
             {"with an empty database", "empty/",
              QStringLiteral(
                  "The database %1gfpdb.sqlite is empty: its content was lost. It is left as it is; restore a "
                  "backup copy, or delete it to start over.")},
             {"with a foreign database", "foreign/",
              "The file %1gfpdb.sqlite is a database of another program. It is left as it is."},
             {"with a name that is too long", QString(300, QLatin1Char('a')) + QLatin1Char('/'),
              "The database directory %1 cannot be reached: File name too long."}});
    }

    void a_directory_in_which_no_database_can_be_used_is_refused()
    {
        const auto [directory, problem] = row<QString, QString>();
        write_file(m_place->path("file"), "content");
        make_dir(m_place->path("empty"));
        write_file(m_place->path("empty/gfpdb.sqlite"), "");
        make_dir(m_place->path("foreign"));
        run_sql(m_place->path("foreign/gfpdb.sqlite"), "CREATE TABLE recipes (name TEXT)");

        const std::string path = m_place->path(directory.toStdString());
        expect_refusal(directory.toStdString(), problem.arg(QString::fromStdString(path)).toStdString());
        QVERIFY(!GFPDB_MGR::save_custom_dir_to_ini(path, false));
        QVERIFY(!QFile::exists(QString::fromStdString(settings())));
        QVERIFY(!QFile::exists(QString::fromStdString(m_place->path("missing"))));
        QCOMPARE(read_file(m_place->path("empty/gfpdb.sqlite")), std::string());
    }

    void a_missing_directory_is_created_when_asked()
    {
        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(m_place->path("new/deep"), true));
        QCOMPARE(gfpdb_read_setting(GFPDB_SETTING_CUSTOM_DIR), m_place->path("new/deep/"));
        QVERIFY(QFileInfo(QString::fromStdString(m_place->path("new/deep"))).isDir());
    }

    void a_refused_directory_leaves_the_settings_alone()
    {
        write_file(settings(), "[database]\ncustom_dir=/a/");

        expect_refusal("missing/", "The database directory " + m_place->path("missing/") + " does not exist.");
        QVERIFY(!GFPDB_MGR::save_custom_dir_to_ini(m_place->path("missing"), false));
        QCOMPARE(read_file(settings()), std::string("[database]\ncustom_dir=/a/"));
    }

    void settings_that_cannot_be_written_refuse_the_directory()
    {
        make_dir(settings());

        expect_settings_warning("cannot be read: it is not a file");
        QVERIFY(!GFPDB_MGR::save_custom_dir_to_ini(m_place->db_dir(), false));
    }

    void a_directory_of_any_bytes_can_be_used_data()
    {
        rows<QByteArray>({{"blanks", QByteArrayLiteral("with  blanks")},
                          {"quotes", QByteArrayLiteral("it's a \"quote\"")},
                          {"what means something in an address", QByteArrayLiteral("a%20b?mode=ro#c&d;e")},
                          {"umlaut", QByteArrayLiteral("B\xC3\xA4ume")},
                          {"not UTF-8", QByteArrayLiteral("B\xE4ume")},
                          {"control character", QByteArrayLiteral("a\x01")}});
    }

    void a_directory_of_any_bytes_can_be_used()
    {
        const QByteArray name = row<QByteArray>();
        const std::string directory = m_place->path(name.toStdString()) + '/';
        QCOMPARE(::mkdir(directory.c_str(), 0755), 0);

        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(directory, false));
        GFPDB_MGR::set_db_custom_dir(gfpdb_read_setting(GFPDB_SETTING_CUSTOM_DIR));
        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), directory);
        GFPDB_MGR* manager = fresh_manager();
        QVERIFY(manager->save_flash(make_device(*manager, "A"), directory));
        QCOMPARE(::access((directory + "gfpdb.sqlite").c_str(), F_OK), 0);
        manager = fresh_manager();
        QVERIFY(manager->find_flash("A", true) != nullptr);
        QCOMPARE(manager->find_flash("A", true)->get_db_dir(), directory);

        // What Qt cannot name it cannot clean up.
        for (const char* file : {"gfpdb.sqlite", "gfpdb.sqlite-journal"})
            QCOMPARE(::unlink((directory + file).c_str()), 0);
        QCOMPARE(::rmdir(directory.c_str()), 0);
    }

    void only_the_default_directory_is_created_on_demand()
    {
        GFPDB_MGR::set_db_custom_dir("");
        GFPDB_MGR* manager = fresh_manager();
        QCOMPARE(GFPDB_HELPER::get_database_problem(), std::string());
        QVERIFY(manager->save_flash(make_device(*manager, "A"), m_place->path("data/gfpdb/")));

        GFPDB_MGR::set_db_custom_dir(m_place->path("missing"));
        fresh_manager();
        const std::string problem = "The database directory " + m_place->path("missing/") + " does not exist.";
        expect_message(problem);
        QCOMPARE(GFPDB_HELPER::get_database_problem(), problem);
        QVERIFY(!QFile::exists(QString::fromStdString(m_place->path("missing"))));
    }

private:
    void take_down() override { GFPDB_HELPER::set_base_dir(std::string()); }

    std::string settings() const { return m_place->settings(); }
    void expect_settings_warning(const std::string& text)
    {
        expect_message("The settings file " + settings() + ' ' + text, QtCriticalMsg);
    }
    // What is logged when `directory` of the place is not accepted because of `problem`.
    void expect_refusal(const std::string& directory, const std::string& problem)
    {
        expect_message(problem);
        expect_message(m_place->path(directory) + " was not made the database directory: " + problem);
    }
};

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String(ASK))
        return ask_for_the_custom_directory(arguments.mid(2));
    TEST_SETTINGS test;
    return QTest::qExec(&test, arguments);
}

#include "test_settings.moc"
