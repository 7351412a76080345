// SPDX-License-Identifier: MIT

// The database file: its schema, its rows byte for byte, its history, and files that change under an open program.
#include "gfpdb_test.h"
#include "message_recorder.h"
#include "store/gfpdb_store.h"
#include "test_rows.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

const std::string COLUMNS = "family, scheme, name, device_id, voltage, density, total_die, single_io_dummy_clock, "
                            "quad_io_dummy_clock, template_name, flow_template, revision, saved_at, single_flows, "
                            "quad_flows";
const std::string COLUMN_TYPES =
    "family INTEGER NOT NULL, scheme INTEGER NOT NULL, name TEXT NOT NULL, device_id TEXT NOT NULL, "
    "voltage TEXT NOT NULL, density TEXT NOT NULL, total_die INTEGER, single_io_dummy_clock INTEGER, "
    "quad_io_dummy_clock INTEGER, template_name TEXT NOT NULL, flow_template TEXT NOT NULL, revision TEXT NOT NULL, "
    "saved_at TEXT NOT NULL, single_flows TEXT NOT NULL, quad_flows TEXT NOT NULL";

// What a program of schema 1 made.
const std::vector<std::string> SCHEMA_1 = {
    "CREATE TABLE meta (name TEXT NOT NULL PRIMARY KEY, value TEXT NOT NULL)",
    "INSERT INTO meta (name, value) VALUES ('schema_version', '1')",
    "INSERT INTO meta (name, value) VALUES ('database_id', 'an old database')",
    "CREATE TABLE device (name_key TEXT NOT NULL, " + COLUMN_TYPES + ", PRIMARY KEY (family, scheme, name_key))",
    "CREATE TABLE template (template_key TEXT NOT NULL PRIMARY KEY, " + COLUMN_TYPES + ")",
    "CREATE TABLE history (id INTEGER NOT NULL PRIMARY KEY, is_template INTEGER NOT NULL, reason TEXT NOT NULL, "
    "changed_at TEXT NOT NULL, " +
        COLUMN_TYPES + ")",
};

const std::string VALUES = "3, 7, 'Old', 'C2', '1.8V', '8Mb', 2, NULL, 6, 'Old template', 'a flow template', 'r', "
                           "'2024-05-17T09:30:00Z', 'single', 'quad'";

std::string schema_of(const std::string& path)
{
    return run_sql(path, "SELECT group_concat(sql, ';') FROM (SELECT sql FROM sqlite_master ORDER BY name)")
        .toString()
        .toStdString();
}

} // namespace

class TEST_STORE : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void the_file_is_made_by_the_first_change()
    {
        QVERIFY(m_store->is_readable());
        QVERIFY(m_store->is_writable());
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES());
        QVERIFY(m_store->remove_device(FAMILY, ACTIVE_SERIAL, "A"));
        QVERIFY(m_store->get_history().empty());
        QVERIFY(!QFile::exists(QString::fromStdString(file())));

        const MESSAGE_RECORDER messages;
        QVERIFY(m_store->save_device(make_row("A")));
        QCOMPARE(messages.texts(), QStringList());
        const QStringList entries =
            QDir(QString::fromStdString(m_place->db_dir())).entryList(QDir::Files | QDir::Hidden);
        QCOMPARE(entries, (QStringList{QStringLiteral("gfpdb.sqlite"), QStringLiteral("gfpdb.sqlite-journal")}));
        QCOMPARE(read_file(file() + "-journal"), std::string());
        QVERIFY(m_store->check_integrity());
        QCOMPARE(m_store->get_last_error(), std::string());
    }

    void the_schema_is_as_documented()
    {
        QVERIFY(m_store->save_device(make_row("A")));

        const std::string saved_by = ", saved_by TEXT NOT NULL DEFAULT ''";
        std::string device = SCHEMA_1[3];
        device.insert(device.find(", PRIMARY KEY"), saved_by);
        const auto with_saved_by = [&](const std::string& table) {
            return table.substr(0, table.size() - 1) + saved_by + ')';
        };
        const std::string expected = device + ";CREATE INDEX device_keys ON device (name_key)" +
                                     ";CREATE INDEX device_names ON device (family, scheme, name_key, name)" + ';' +
                                     SCHEMA_1[5].substr(0, SCHEMA_1[5].size() - 1) +
                                     ", changed_by TEXT NOT NULL DEFAULT '', name_key TEXT NOT NULL DEFAULT ''" +
                                     saved_by + ");" + "CREATE INDEX history_names ON history (name_key);" +
                                     SCHEMA_1[0] + ';' + with_saved_by(SCHEMA_1[4]) +
                                     ";CREATE INDEX template_names ON template (template_key, template_name)";
        QCOMPARE(schema_of(file()), expected);
        QCOMPARE(run_sql(file(), "SELECT value FROM meta WHERE name = 'schema_version'").toString(),
                 QStringLiteral("4"));
        QCOMPARE(run_sql(file(), "SELECT length(value) FROM meta WHERE name = 'database_id'").toInt(), 36);
        QCOMPARE(run_sql(file(), "SELECT count(*) FROM meta").toInt(), 2);
    }

    void an_older_schema_is_upgraded_and_loses_nothing()
    {
        for (const std::string& statement : SCHEMA_1)
            QVERIFY(run_sql(file(), statement).isValid());
        QVERIFY(
            run_sql(file(), "INSERT INTO device (name_key, " + COLUMNS + ") VALUES ('old', " + VALUES + ")").isValid());
        QVERIFY(run_sql(file(),
                        "INSERT INTO template (template_key, " + COLUMNS + ") VALUES ('old template', " + VALUES + ")")
                    .isValid());
        QVERIFY(run_sql(file(), "INSERT INTO history (id, is_template, reason, changed_at, " + COLUMNS +
                                    ") VALUES (5, 0, 'deleted', 'then', " + VALUES + ")")
                    .isValid());

        const std::optional<GFPDB_ROW> row = m_store->find_device(3, 7, "OLD");
        QVERIFY(row.has_value());
        const std::string expected =
            "3 7\nOld\nC2\n1.8V\n8Mb\nOld template\na flow template\nsingle\nquad\n2\nnone\n6\n";
        QCOMPARE(text_of(*row), expected);
        QCOMPARE(row->revision, std::string("r"));
        QCOMPARE(text_of(*m_store->find_template("old template")), expected);
        QCOMPARE(m_store->get_history().size(), std::size_t(1));
        QCOMPARE(text_of(m_store->find_history(5)->row), expected);
        QCOMPARE(m_store->find_history(5)->changed_by, std::string());
        QCOMPARE(row->saved_by, std::string());

        QCOMPARE(run_sql(file(), "SELECT value FROM meta WHERE name = 'schema_version'").toString(),
                 QStringLiteral("4"));
        const std::string upgraded = schema_of(file());
        make_file(m_place->path("new.sqlite"), "A");
        QCOMPARE(upgraded, schema_of(m_place->path("new.sqlite")));

        QVERIFY(gfpdb_make_store(m_place->db_dir())->remove_device(3, 7, "Old", nullptr));
        QVERIFY(!m_store->get_history().back().changed_by.empty());
        QVERIFY(m_store->save_device(make_row("New")));
    }

    void a_newer_schema_is_left_alone()
    {
        make_file(file(), "A");
        QVERIFY(run_sql(file(), "UPDATE meta SET value = '5' WHERE name = 'schema_version'").isValid());
        const std::string before = read_file(file());
        const std::string problem =
            "The database " + file() +
            " was written by a newer program (its schema is 5, this program knows up to 4). It is "
            "left as it is.";

        expect_warning("was written by a newer program");
        QCOMPARE(m_store->get_problem(), problem);
        QVERIFY(!m_store->is_readable());
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES());
        QVERIFY(!m_store->save_device(make_row("B")));
        QCOMPARE(m_store->get_last_error(), problem);
        QVERIFY(!m_store->remove_device(FAMILY, ACTIVE_SERIAL, "A"));
        QCOMPARE(read_file(file()), before);

        QVERIFY(run_sql(file(), "UPDATE meta SET value = '4' WHERE name = 'schema_version'").isValid());
        QCOMPARE(m_store->get_problem(), std::string());
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES{"A"});
    }

    // Texts that are compared as bytes would be cut at the first zero byte of a character.
    void another_text_encoding_is_left_alone()
    {
        const QString connection = QStringLiteral("another encoding");
        {
            QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
            database.setDatabaseName(QString::fromStdString(file()));
            QVERIFY(database.open());
            QSqlQuery query(database);
            QVERIFY(query.exec(QStringLiteral("PRAGMA encoding = 'UTF-16le'")));
            for (const std::string& statement : SCHEMA_1)
                QVERIFY(query.exec(QString::fromStdString(statement)));
        }
        QSqlDatabase::removeDatabase(connection);
        const std::string before = read_file(file());
        const std::string problem =
            "The database " + file() +
            " was altered by another program: its texts are UTF-16le, not UTF-8. It is left as " + "it is.";

        expect_warning("its texts are UTF-16le, not UTF-8");
        QVERIFY(!m_store->is_readable());
        QCOMPARE(m_store->get_problem(), problem);
        QVERIFY(!m_store->save_device(make_row("A")));
        QCOMPARE(m_store->get_last_error(), problem);
        QCOMPARE(read_file(file()), before);
    }

    void two_programs_make_one_file()
    {
        const std::unique_ptr<GFPDB_STORE> other = gfpdb_make_store(m_place->db_dir());
        QVERIFY(m_store->is_writable());
        QVERIFY(other->is_writable());

        QVERIFY(m_store->save_device(make_row("A")));
        QVERIFY(other->save_device(make_row("B")));
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), (NAMES{"A", "B"}));
        QCOMPARE(other->get_device_names(FAMILY, ACTIVE_SERIAL), (NAMES{"A", "B"}));
    }

    // More than SQLite keeps in memory of its own accord; only the end of a change is for one program alone.
    void a_large_import_lets_others_read()
    {
        constexpr int COUNT = 100;
        std::vector<GFPDB_ROW> rows(COUNT, make_row(std::string()));
        for (int i = 0; i < COUNT; ++i) {
            rows[i].name = "Device " + std::to_string(i);
            rows[i].single_flows = std::string(100000, 'x');
        }
        QVERIFY(m_store->save_device(make_row("A")));
        int seen = 0;
        const auto look = [&](int done) {
            if (done == COUNT)
                seen = run_sql(file(), "SELECT count(*) FROM device").toInt();
            return true;
        };

        QVERIFY(m_store->save_all(rows, {}, look));

        QCOMPARE(seen, 1);
    }

    void commits_reach_the_disk()
    {
        QVERIFY(m_store->save_device(make_row("A")));
        const QStringList connections =
            QSqlDatabase::connectionNames().filter(QString::fromStdString(m_place->db_dir()));
        QCOMPARE(connections.size(), 1);
        const auto pragma = [&](const char* statement) {
            QSqlQuery query(QSqlDatabase::database(connections.first(), false));
            return query.exec(QLatin1String(statement)) && query.next() ? query.value(0).toString() : QString();
        };

        QCOMPARE(pragma("PRAGMA synchronous"), QStringLiteral("2"));
        QCOMPARE(pragma("PRAGMA journal_mode"), QStringLiteral("truncate"));
    }

    void nothing_stays_open_but_the_database_and_that_until_it_is_removed()
    {
        QVERIFY(m_store->save_device(make_row("A")));
        QVERIFY(m_store->save_device(make_row("B")));
        QCOMPARE(open_files(m_place->db_dir()), QStringList{QString::fromStdString(m_place->db_file())});

        QVERIFY(QFile::remove(QString::fromStdString(m_place->db_file())));
        expect_warning("was replaced or removed by another program");
        QCOMPARE(m_store->get_problem(), std::string());
        QCOMPARE(open_files(m_place->db_dir()), QStringList());
    }

    void a_row_comes_back_whole()
    {
        GFPDB_ROW row = make_row("A");
        row.template_name = "T";
        QVERIFY(m_store->save_device(row));

        for (const std::optional<GFPDB_ROW>& found :
             {m_store->find_device(FAMILY, ACTIVE_SERIAL, "A"), m_store->find_template("T")}) {
            QVERIFY(found.has_value());
            QCOMPARE(text_of(*found), text_of(row));
            QCOMPARE(found->revision, row.revision);
        }
        QCOMPARE(m_store->get_device_revision(FAMILY, ACTIVE_SERIAL, "a"), row.revision);
        QCOMPARE(m_store->get_template_revision("t"), row.revision);
        QCOMPARE(m_store->get_device_revision(FAMILY, QUAD, "a"), std::string());
        QVERIFY(m_store->has_device("a"));
        QVERIFY(!m_store->has_device("T"));
        QVERIFY(!m_store->find_device(OTHER_FAMILY, ACTIVE_SERIAL, "A").has_value());
        QVERIFY(!m_store->find_device(FAMILY, QUAD, "A").has_value());
        QVERIFY(!m_store->find_template("A").has_value());
        const QDateTime saved_at =
            QDateTime::fromString(run_sql(file(), "SELECT saved_at FROM device").toString(), Qt::ISODate);
        QVERIFY(qAbs(saved_at.secsTo(QDateTime::currentDateTimeUtc())) < 60);
        QCOMPARE(saved_at.timeSpec(), Qt::UTC);
    }

    void texts_come_back_byte_for_byte_data()
    {
        rows<QByteArray>({{"empty", ""},
                          {"byte order mark", QByteArrayLiteral("\xEF\xBB\xBF")},
                          {"no characters", QByteArrayLiteral("\xEF\xBF\xBE\xEF\xBF\xBF")},
                          {"emoji", QByteArrayLiteral("\xF0\x9F\x92\xBE")},
                          {"sql", QByteArrayLiteral("'; DROP TABLE device; --")},
                          {"markup and lines", QByteArrayLiteral("<b>%s</b>\r\n\t")},
                          {"a number", QByteArrayLiteral("007")},
                          {"long", QByteArray(10000, 'x')}});
        // No server has that character in a text.
        if (!tests_are_on_server())
            QTest::newRow("zero") << QByteArray("a\0b", 3);
    }

    void texts_come_back_byte_for_byte()
    {
        const QByteArray text = row<QByteArray>();
        const std::string value = text.toStdString();
        GFPDB_ROW row = make_row("N" + value);
        row.template_name = "T" + value;
        for (std::string* column :
             {&row.device_id, &row.voltage, &row.density, &row.flow_template, &row.single_flows, &row.quad_flows})
            *column = value;
        QVERIFY(m_store->save_device(row));

        QCOMPARE(text_of(*m_store->find_device(FAMILY, ACTIVE_SERIAL, row.name)), text_of(row));
        QCOMPARE(text_of(*m_store->find_template(row.template_name)), text_of(row));
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES{row.name});
        QCOMPARE(m_store->get_template_names(), NAMES{row.template_name});
        QVERIFY(m_store->remove_device(FAMILY, ACTIVE_SERIAL, row.name));
        QCOMPARE(text_of(m_store->find_history(1)->row), text_of(row));
        QVERIFY(m_store->remove_template(row.template_name));
        QVERIFY(m_store->restore(1, GFPDB_RESTORE_KEEP, std::string()));
        QCOMPARE(text_of(*m_store->find_device(FAMILY, ACTIVE_SERIAL, row.name)), text_of(row));
    }

    void texts_can_be_read_by_other_programs()
    {
        const std::string name = "B\xC3\xA4ume";
        QVERIFY(m_store->save_device(make_row(name)));

        QCOMPARE(run_sql(file(), "SELECT name FROM device").toString(), QString::fromUtf8(name.c_str()));
        QCOMPARE(run_sql(file(), "SELECT DISTINCT typeof(name) || typeof(name_key) || typeof(single_flows) FROM device")
                     .toString(),
                 QStringLiteral("texttexttext"));
    }

    void unset_numbers_stay_unset()
    {
        GFPDB_ROW row = make_row("A");
        row.total_die = std::nullopt;
        row.single_io_dummy_clock = 0;
        row.quad_io_dummy_clock = std::nullopt;
        QVERIFY(m_store->save_device(row));

        QCOMPARE(text_of(*m_store->find_device(FAMILY, ACTIVE_SERIAL, "A")), text_of(row));
        QCOMPARE(run_sql(file(), "SELECT total_die IS NULL AND single_io_dummy_clock = 0 FROM device").toInt(), 1);
    }

    // The two lists need not look at the records, which are large.
    void names_come_from_an_index()
    {
        QVERIFY(m_store->save_device(make_row("A")));
        const auto plan = [this](const char* statement) {
            const QStringList connections =
                QSqlDatabase::connectionNames().filter(QString::fromStdString(m_place->db_dir()));
            QSqlQuery query(QSqlDatabase::database(connections.first(), false));
            const QString detail = QStringLiteral("detail");
            return query.exec(QStringLiteral("EXPLAIN QUERY PLAN ") + QLatin1String(statement)) && query.next()
                       ? query.value(detail).toString()
                       : QString();
        };

        QCOMPARE(plan("SELECT CAST(name AS BLOB) FROM device WHERE family = 1 AND scheme = 2 ORDER BY name_key"),
                 QStringLiteral("SEARCH device USING COVERING INDEX device_names (family=? AND scheme=?)"));
        QCOMPARE(plan("SELECT CAST(template_name AS BLOB) FROM template ORDER BY template_key"),
                 QStringLiteral("SCAN template USING COVERING INDEX template_names"));
        QCOMPARE(plan("SELECT 1 FROM device WHERE name_key = CAST(1 AS TEXT)"),
                 QStringLiteral("SEARCH device USING COVERING INDEX device_keys (name_key=?)"));
    }

    void the_history_tells_what_when_and_by_whom()
    {
        GFPDB_ROW row = make_row("A");
        row.template_name = "T";
        qputenv("USER", "tester");
        QVERIFY(m_store->save_device(row));
        row.total_die = 3;
        QVERIFY(m_store->save_device(row));
        QVERIFY(m_store->remove_device(FAMILY, ACTIVE_SERIAL, "A"));
        QVERIFY(m_store->remove_template("T"));

        const std::vector<GFPDB_HISTORY_ENTRY> entries = m_store->get_history();
        QCOMPARE(entries.size(), std::size_t(4));
        const char* reasons[] = {"replaced", "replaced", "deleted", "deleted"};
        const bool templates[] = {false, true, false, true};
        for (std::size_t i = 0; i < entries.size(); ++i) {
            QCOMPARE(entries[i].id, int(i) + 1);
            QCOMPARE(entries[i].reason, std::string(reasons[i]));
            QCOMPARE(entries[i].is_template, templates[i]);
            QCOMPARE(entries[i].row.name, std::string("A"));
            QCOMPARE(entries[i].row.template_name, std::string("T"));
            QCOMPARE(entries[i].row.family, FAMILY);
            QCOMPARE(entries[i].row.scheme, ACTIVE_SERIAL);
            QCOMPARE(entries[i].row.revision, row.revision);
            QCOMPARE(entries[i].row.single_flows, std::string());
            QCOMPARE(entries[i].row.quad_flows, std::string());
            QCOMPARE(entries[i].changed_by, "tester@" + QSysInfo::machineHostName().toStdString());
            const QDateTime changed = QDateTime::fromString(QString::fromStdString(entries[i].changed_at), Qt::ISODate);
            QVERIFY(qAbs(changed.secsTo(QDateTime::currentDateTimeUtc())) < 60);
        }
    }

    void the_history_has_the_name_of_the_user_database_without_a_variable()
    {
        const QString name = QFileInfo(QString::fromStdString(m_place->path("."))).owner();
        QVERIFY(!name.isEmpty());
        for (const bool is_set : {false, true}) {
            if (is_set)
                qputenv("USER", "");
            else
                qunsetenv("USER");
            QVERIFY(m_store->save_device(make_row("A")));
            QVERIFY(m_store->remove_device(FAMILY, ACTIVE_SERIAL, "A"));
            QCOMPARE(m_store->get_history().back().changed_by,
                     (name + QLatin1Char('@') + QSysInfo::machineHostName()).toStdString());
        }
    }

    void history_has_whole_rows()
    {
        GFPDB_ROW row = make_row("A");
        QVERIFY(m_store->save_device(row));
        QVERIFY(m_store->remove_device(FAMILY, ACTIVE_SERIAL, "A"));

        QCOMPARE(text_of(m_store->find_history(1)->row), text_of(row));
        QVERIFY(!m_store->find_history(2).has_value());
        QVERIFY(m_store->restore(1, GFPDB_RESTORE_KEEP, std::string()));
        QVERIFY(m_store->get_device_revision(FAMILY, ACTIVE_SERIAL, "A") != row.revision);
        QVERIFY(m_store->find_history(1).has_value());
    }

    void reads_follow_a_replaced_file()
    {
        QVERIFY(m_store->save_device(make_row("A")));
        make_file(file(), "B");

        expect_warning("was replaced or removed by another program");
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES{"B"});
        QVERIFY(m_store->find_device(FAMILY, ACTIVE_SERIAL, "B").has_value());
        QCOMPARE(m_store->get_problem(), std::string());
    }

    void the_first_change_of_a_replaced_file_is_refused_data()
    {
        rows<bool>({{"at once", false}, {"after a read", true}});
    }

    void the_first_change_of_a_replaced_file_is_refused()
    {
        const bool is_read_before = row<bool>();
        const std::string error =
            "The database " + file() +
            " was replaced or removed by another program while it was in use. Nothing was changed: "
            "look at the devices that are there now, then try again.";
        const std::vector<std::function<bool()>> changes = {
            [this] { return m_store->save_device(make_row("C")).has_value(); },
            [this] { return m_store->remove_device(FAMILY, ACTIVE_SERIAL, "B"); },
            [this] { return m_store->remove_template("B"); },
            [this] { return m_store->restore(1, GFPDB_RESTORE_KEEP, std::string()); },
        };
        QVERIFY(m_store->save_device(make_row("A")));
        for (const auto& change : changes) {
            make_file(file(), "B");
            run_sql(file(), "INSERT INTO history (is_template, reason, changed_at, " + COLUMNS +
                                ") VALUES (0, 'deleted', 'then', " + VALUES + ")");
            const std::string before = read_file(file());
            expect_warning("was replaced or removed by another program");
            if (is_read_before)
                QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES{"B"});

            QVERIFY(!change());
            QCOMPARE(m_store->get_last_error(), error);
            QCOMPARE(read_file(file()), before);
            QVERIFY(change());
        }
    }

    void a_reload_accepts_a_replaced_file()
    {
        QVERIFY(m_store->save_device(make_row("A")));
        make_file(file(), "B");

        m_store->reload();
        QVERIFY(m_store->save_device(make_row("C")));
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), (NAMES{"B", "C"}));
    }

    // The same file, but with the content of another one.
    void a_file_overwritten_by_another_database_is_noticed()
    {
        QVERIFY(m_store->save_device(make_row("A")));
        QVERIFY(m_store->save_device(make_row("A2")));
        make_file(m_place->path("other.sqlite"), "B");
        const std::string other = read_file(m_place->path("other.sqlite"));
        QFile in_place(QString::fromStdString(file()));
        QVERIFY(in_place.open(QIODevice::WriteOnly));
        QCOMPARE(in_place.write(QByteArray::fromStdString(other)), qint64(other.size()));
        in_place.close();

        QVERIFY(!m_store->save_device(make_row("C")));
        QVERIFY(m_store->get_last_error().find("was replaced or removed by another program") != std::string::npos);
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES{"B"});
        QVERIFY(m_store->save_device(make_row("C")));
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), (NAMES{"B", "C"}));
    }

    void a_removed_file_is_noticed_and_made_again()
    {
        QVERIFY(m_store->save_device(make_row("A")));
        QVERIFY(QFile::remove(QString::fromStdString(file())));

        expect_warning("was replaced or removed by another program");
        QVERIFY(!m_store->save_device(make_row("B")));
        QVERIFY(m_store->get_last_error().find("was replaced or removed by another program") != std::string::npos);
        QVERIFY(!QFile::exists(QString::fromStdString(file())));
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES());
        QVERIFY(m_store->save_device(make_row("B")));
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES{"B"});
    }

    void a_removed_directory_is_noticed()
    {
        QVERIFY(m_store->save_device(make_row("A")));
        QVERIFY(QDir(QString::fromStdString(m_place->db_dir())).removeRecursively());

        expect_warning("was replaced or removed by another program");
        expect_warning("does not exist");
        QVERIFY(!m_store->save_device(make_row("B")));
        QVERIFY(!m_store->save_device(make_row("B")));
        QCOMPARE(m_store->get_last_error(), "The database directory " + m_place->db_dir() + " does not exist.");
        QVERIFY(!m_store->remove_device(FAMILY, ACTIVE_SERIAL, "A"));
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES());
        QVERIFY(!QFile::exists(QString::fromStdString(m_place->db_dir())));
    }

    void a_file_that_someone_else_made_is_used()
    {
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES());
        make_file(file(), "B");

        QVERIFY(m_store->save_device(make_row("C")));
        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), (NAMES{"B", "C"}));
    }

    void a_closed_connection_is_opened_again()
    {
        QVERIFY(m_store->save_device(make_row("A")));
        const QStringList connections =
            QSqlDatabase::connectionNames().filter(QString::fromStdString(m_place->db_dir()));
        QSqlDatabase::removeDatabase(connections.first());

        QCOMPARE(m_store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES{"A"});
        QVERIFY(m_store->save_device(make_row("B")));
    }

private:
    void set_up() override { m_store = gfpdb_make_store(m_place->db_dir()); }
    void take_down() override { m_store.reset(); }

    std::string file() const { return m_place->db_file(); }
    // A database with the one device `name`, at `path`.
    void make_file(const std::string& path, const std::string& name)
    {
        make_dir(m_place->path("making/"));
        {
            const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(m_place->path("making/"));
            if (!store->save_device(make_row(name)))
                qFatal("%s", store->get_last_error().c_str());
        }
        if (std::rename(m_place->path("making/gfpdb.sqlite").c_str(), path.c_str()) != 0)
            qFatal("cannot rename to %s", path.c_str());
    }

    std::unique_ptr<GFPDB_STORE> m_store;
};

EITHER_STORE_TEST_MAIN(TEST_STORE)

#include "test_store.moc"
