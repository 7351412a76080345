// SPDX-License-Identifier: MIT

// Files that are not what they were: a journal beside a database that it does not belong to, a database that is
// exchanged while it is written.
#include "base/gfpdb_text.h"
#include "fault_injector.h"
#include "gfpdb_test.h"
#include "store/gfpdb_store.h"
#include "test_rows.h"

#include <algorithm>
#include <map>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr FAULT_CALL CALLS[] = {FAULT_CALL::READ,   FAULT_CALL::WRITE, FAULT_CALL::TRUNCATE, FAULT_CALL::SYNC,
                                FAULT_CALL::RENAME, FAULT_CALL::OPEN,  FAULT_CALL::LOCK};
// More than SQLite keeps in memory until a change is complete.
constexpr std::size_t LARGE = 1500000;

// A database file and its journal, as they lie in a directory.
struct FILES
{
    std::string database;
    std::string journal;
};

// SQLite rolls back no journal that was not synced, and begins it with a zero until then.
bool is_hot(const FILES& files)
{
    return !files.journal.empty() && files.journal[0] != '\0';
}

std::string content_of(const std::string& path)
{
    return ::access(path.c_str(), F_OK) == 0 ? read_file(path) : std::string();
}

std::string journal_of(const GFPDB_PLACE& place)
{
    return place.db_file() + "-journal";
}

FILES files_in(const GFPDB_PLACE& place)
{
    return {content_of(place.db_file()), content_of(journal_of(place))};
}

// As new files, as a user would copy them there.
void put(const GFPDB_PLACE& place, const FILES& files)
{
    ::unlink(place.db_file().c_str());
    write_file(place.db_file(), files.database);
    write_file(journal_of(place), files.journal);
}

std::optional<std::string> save(GFPDB_STORE& store, const std::string& name, std::size_t size = 10)
{
    GFPDB_ROW row = make_row(name);
    row.single_flows = std::string(size, 'f');
    return store.save_device(row);
}

NAMES names_in(const GFPDB_PLACE& place)
{
    return gfpdb_make_store(place.db_dir())->get_device_names(FAMILY, ACTIVE_SERIAL);
}

// What a program that is killed after the n-th call of saving `name` leaves; nothing when there is no such call.
std::optional<FILES> left_after(const GFPDB_PLACE& place, FAULT_CALL call, int at, std::size_t size)
{
    FILES left;
    const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
    store->get_device_names(FAMILY, ACTIVE_SERIAL);
    FAULT_INJECTOR::run_after(place.db_dir(), call, at, [&] { left = files_in(place); });
    save(*store, "B", size);
    FAULT_INJECTOR::stop();
    return FAULT_INJECTOR::count(call) < at ? std::nullopt : std::optional<FILES>(left);
}

std::string number(std::size_t value)
{
    return {char(value >> 24), char(value >> 16), char(value >> 8), char(value)};
}

// What SQLite writes at the end of the journals of a change of several databases: the file that lists them. It removes
// that file after such a journal was rolled back.
std::string with_list(const std::string& journal, const std::string& list)
{
    std::size_t sum = 0;
    for (const char byte : list)
        sum += static_cast<unsigned char>(byte);
    return journal + number(0) + list + number(list.size()) + number(sum) + "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";
}

void ignore_message(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

Q_DECLARE_METATYPE(FAULT_CALL)

class TEST_FOREIGN_FILE_FAULTS : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInstallMessageHandler(&ignore_message); }

    void what_a_killed_program_leaves_is_taken_back_data()
    {
        QTest::addColumn<FAULT_CALL>("call");
        QTest::addColumn<int>("size");
        for (const FAULT_CALL call : {FAULT_CALL::WRITE, FAULT_CALL::SYNC, FAULT_CALL::TRUNCATE}) {
            QTest::addRow("small, %s", name_of(call)) << call << 10;
            QTest::addRow("large, %s", name_of(call)) << call << int(LARGE);
        }
    }

    void what_a_killed_program_leaves_is_taken_back()
    {
        QFETCH(FAULT_CALL, call);
        QFETCH(int, size);
        int journals = 0;
        std::optional<FILES> left;
        for (int at = 1;; at += 1 + at / 10) {
            const GFPDB_PLACE place(GFPDB_PLACE::ON::MEMORY);
            const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
            save(*store, "A");
            left = left_after(place, call, at, std::size_t(size));
            if (!left)
                break;
            journals += is_hot(*left) ? 1 : 0;
            put(place, *left);

            const std::unique_ptr<GFPDB_STORE> after = gfpdb_make_store(place.db_dir());
            const NAMES names = after->get_device_names(FAMILY, ACTIVE_SERIAL);
            QCOMPARE(after->get_problem(), std::string());
            QVERIFY(names == NAMES{"A"} || names == (NAMES{"A", "B"}));
            QVERIFY(after->check_integrity());
            QVERIFY(save(*after, "C"));
        }
        QVERIFY(journals > 0 || call == FAULT_CALL::TRUNCATE);
    }

    // Its transactions leave no marks, make the file larger, and write the first page last.
    void what_another_killed_program_leaves_is_taken_back()
    {
        int journals = 0;
        for (int at = 1;; ++at) {
            const GFPDB_PLACE place(GFPDB_PLACE::ON::MEMORY);
            save(*gfpdb_make_store(place.db_dir()), "A");
            FILES left;
            FAULT_INJECTOR::run_after(place.db_dir(), FAULT_CALL::WRITE, at, [&] { left = files_in(place); });
            run_sql(place.db_file(), "INSERT INTO meta (name, value) VALUES ('x', hex(zeroblob(20000)))");
            FAULT_INJECTOR::stop();
            if (FAULT_INJECTOR::count(FAULT_CALL::WRITE) < at)
                break;
            journals += is_hot(left) ? 1 : 0;
            put(place, left);

            const std::unique_ptr<GFPDB_STORE> after = gfpdb_make_store(place.db_dir());
            QCOMPARE(after->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES{"A"});
            QCOMPARE(after->get_problem(), std::string());
            QVERIFY(after->check_integrity());
        }
        QVERIFY(journals > 0);
    }

    void a_journal_is_not_rolled_back_into_another_file_data()
    {
        rows_named<QString>({"an older state", "a later state", "another database", "a text"});
    }

    void a_journal_is_not_rolled_back_into_another_file()
    {
        const QString put_in = row<QString>();
        int journals = 0;
        std::optional<FILES> left;
        for (int at = 1;; ++at) {
            const GFPDB_PLACE place(GFPDB_PLACE::ON::MEMORY);
            const auto make = [&](const NAMES& names) {
                const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
                for (const std::string& name : names)
                    save(*store, name);
                return files_in(place);
            };
            std::map<QString, FILES> files;
            files["a text"] = {std::string(10000, 'x'), std::string()};
            files["another database"] = make({"X", "Y"});
            ::unlink(place.db_file().c_str());
            files["an older state"] = make({"A"});
            make({"Z"});
            left = left_after(place, FAULT_CALL::WRITE, at, 10);
            if (!left)
                break;
            files["a later state"] = make({"C"});
            const FILES other = {files[put_in].database, left->journal};
            put(place, other);
            const std::string problem = gfpdb_make_store(place.db_dir())->get_problem();
            if (is_hot(*left)) {
                ++journals;
                QCOMPARE(problem,
                         "The database " + place.db_file() + " is not used: " + journal_of(place) +
                             " is the journal of another database, or of another state of this one, and would " +
                             "damage it. Move that file to another directory, then try again.");
                const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
                QVERIFY(!save(*store, "D"));
                QCOMPARE(store->get_last_error(), problem);
                QCOMPARE(read_file(journal_of(place)), other.journal);
            }
            QCOMPARE(read_file(place.db_file()), other.database);

            ::unlink(journal_of(place).c_str());
            QCOMPARE(read_file(place.db_file()), other.database);
            QCOMPARE(gfpdb_make_store(place.db_dir())->get_problem().empty(), put_in != QLatin1String("a text"));
        }
        QVERIFY(journals > 0);
    }

    // The file stays the same one for the system, and is open.
    void a_journal_is_not_rolled_back_into_a_file_that_was_written_over()
    {
        const GFPDB_PLACE place(GFPDB_PLACE::ON::MEMORY);
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        save(*store, "A");
        const FILES older = files_in(place);
        save(*store, "Z");
        const std::optional<FILES> left = left_after(place, FAULT_CALL::SYNC, 3, 10);
        QCOMPARE(store->get_device_names(FAMILY, ACTIVE_SERIAL), (NAMES{"A", "B", "Z"}));
        QVERIFY(left && is_hot(*left));

        write_file(place.db_file(), older.database);
        write_file(journal_of(place), left->journal);

        QCOMPARE(store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES());
        QVERIFY(!save(*store, "C"));
        QCOMPARE(read_file(place.db_file()), older.database);
        ::unlink(journal_of(place).c_str());
        QCOMPARE(store->get_device_names(FAMILY, ACTIVE_SERIAL), NAMES{"A"});
    }

    void a_journal_that_names_another_file_has_nothing_removed()
    {
        const GFPDB_PLACE place(GFPDB_PLACE::ON::MEMORY);
        save(*gfpdb_make_store(place.db_dir()), "A");
        FILES files = *left_after(place, FAULT_CALL::SYNC, 3, 10);
        QVERIFY(is_hot(files));
        const std::string letter = place.path("letter");
        write_file(letter, "of the user");
        files.journal = with_list(files.journal, letter);
        put(place, files);

        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        const bool is_saved = save(*store, "C").has_value();

        QCOMPARE(content_of(letter), std::string("of the user"));
        QVERIFY(!is_saved);
        QCOMPARE(store->get_problem(),
                 "The database " + place.db_file() + " is not used: " + journal_of(place) +
                     " was written by another program for several databases at once, and names a file that would be " +
                     "removed. Open the database in that program, or move the file to another directory.");
        QCOMPARE(read_file(journal_of(place)), files.journal);
        QCOMPARE(read_file(place.db_file()), files.database);
        ::unlink(journal_of(place).c_str());
        QVERIFY(save(*store, "C"));
    }

    void no_database_is_made_or_used_beside_a_left_file_data()
    {
        QTest::addColumn<QByteArray>("suffix");
        QTest::addColumn<bool>("has_database");
        QTest::addColumn<QByteArray>("problem");
        for (const char* suffix : {"-journal", "-wal"})
            QTest::addRow("%s alone", suffix)
                << QByteArray(suffix) << false
                << QByteArray("There is no database %1, but %2, which a program left that was writing it. Put the "
                              "database back, or move that file to another directory to begin with an empty database.");
        QTest::newRow("-journal") << QByteArray("-journal") << true
                                  << QByteArray(
                                         "The database %1 is not used: %2 is the journal of another database, or of "
                                         "another state of this one, and would damage it. Move that file to another "
                                         "directory, then try again.");
        QTest::newRow("-wal") << QByteArray("-wal") << true
                              << QByteArray("The database %1 is not used: %2 was written by another program, and would "
                                            "change it. Close the database in that program. If the file is still there "
                                            "then, move it to another directory.");
    }

    void no_database_is_made_or_used_beside_a_left_file()
    {
        QFETCH(QByteArray, suffix);
        QFETCH(bool, has_database);
        QFETCH(QByteArray, problem);
        const GFPDB_PLACE place(GFPDB_PLACE::ON::MEMORY);
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        if (has_database)
            save(*store, "A");
        const std::string before = content_of(place.db_file());
        const std::string left = place.db_file() + suffix.toStdString();
        write_file(left, "of another program");
        problem.replace("%1", place.db_file().c_str()).replace("%2", left.c_str());

        QCOMPARE(store->get_problem(), problem.toStdString());
        QVERIFY(!store->is_readable());
        QVERIFY(!save(*store, "B"));
        QCOMPARE(store->get_last_error(), problem.toStdString());
        QCOMPARE(content_of(place.db_file()), before);
        QCOMPARE(read_file(left), std::string("of another program"));
        ::unlink(left.c_str());
        QVERIFY(save(*store, "B"));
        QCOMPARE(names_in(place), has_database ? (NAMES{"A", "B"}) : NAMES{"B"});
    }

    // SQLite would write such a WAL into the database, whatever lies beside it.
    void a_wal_is_not_used_beside_a_journal_data() { rows_named<QString>({"not synced", "of this database"}); }

    void a_wal_is_not_used_beside_a_journal()
    {
        const GFPDB_PLACE place(GFPDB_PLACE::ON::MEMORY);
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        save(*store, "A");
        FILES files = files_in(place);
        files.journal = std::string(4096, '\0');
        if (row<QString>() == QLatin1String("of this database")) {
            const std::optional<FILES> left = left_after(place, FAULT_CALL::SYNC, 3, 10);
            QVERIFY(left && is_hot(*left));
            files = *left;
        }
        put(place, files);
        const std::string wal = place.db_file() + "-wal";
        write_file(wal, "of another program");

        QVERIFY(!gfpdb_make_store(place.db_dir())->is_readable());
        QCOMPARE(gfpdb_make_store(place.db_dir())->get_problem(),
                 "The database " + place.db_file() + " is not used: " + wal +
                     " was written by another program, and would change it. Close the database in that program. If " +
                     "the file is still there then, move it to another directory.");
        QCOMPARE(read_file(place.db_file()), files.database);
        QCOMPARE(read_file(journal_of(place)), files.journal);
        QCOMPARE(read_file(wal), std::string("of another program"));
        ::unlink(wal.c_str());
        const NAMES names = names_in(place);
        QVERIFY(names == NAMES{"A"} || names == (NAMES{"A", "B"}));
    }

    void a_file_that_cannot_be_read_is_not_another_file()
    {
        bool is_over = false;
        int refused = 0;
        for (int at = 1; !is_over; ++at) {
            const GFPDB_PLACE place(GFPDB_PLACE::ON::MEMORY);
            const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
            save(*store, "A");
            // What is in memory is read again then.
            save(*gfpdb_make_store(place.db_dir()), "B");
            FAULT_INJECTOR::inject(place.db_dir(), {FAULT_CALL::READ, at, EIO});
            const bool is_saved = save(*store, "C").has_value();
            FAULT_INJECTOR::stop();
            is_over = FAULT_INJECTOR::count(FAULT_CALL::READ) < at;

            refused += is_saved ? 0 : 1;
            QVERIFY2(is_saved || store->get_last_error().find("replaced") == std::string::npos,
                     store->get_last_error().c_str());
            QVERIFY(is_saved || save(*store, "C"));
            QCOMPARE(names_in(place), (NAMES{"A", "B", "C"}));
        }
        QVERIFY(refused > 0);
    }

    void what_is_reported_as_stored_is_in_the_file_of_that_name_data()
    {
        QTest::addColumn<FAULT_CALL>("call");
        QTest::addColumn<bool>("is_replaced");
        for (const FAULT_CALL call : CALLS) {
            QTest::addRow("removed after a %s", name_of(call)) << call << false;
            QTest::addRow("replaced after a %s", name_of(call)) << call << true;
        }
    }

    void what_is_reported_as_stored_is_in_the_file_of_that_name()
    {
        QFETCH(FAULT_CALL, call);
        QFETCH(bool, is_replaced);
        bool is_over = false;
        for (int at = 1; !is_over; ++at) {
            const GFPDB_PLACE place(GFPDB_PLACE::ON::MEMORY);
            const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
            save(*store, "A");
            write_file(place.path("copy"), read_file(place.db_file()));
            FAULT_INJECTOR::run_after(place.db_dir(), call, at, [&] {
                if (is_replaced)
                    std::rename(place.path("copy").c_str(), place.db_file().c_str());
                else
                    ::unlink(place.db_file().c_str());
            });
            const bool is_saved = save(*store, "B").has_value();
            FAULT_INJECTOR::stop();
            is_over = FAULT_INJECTOR::count(call) < at;

            const NAMES names = names_in(place);
            QCOMPARE(is_saved, std::count(names.begin(), names.end(), "B") == 1);
            QVERIFY(is_saved || store->get_last_error().find("was replaced or removed") != std::string::npos);
            QVERIFY(is_saved || save(*store, "B"));
            QCOMPARE(names_in(place).back(), std::string("B"));
        }
    }
};

QTEST_GUILESS_MAIN(TEST_FOREIGN_FILE_FAULTS)

#include "test_foreign_file_faults.moc"
