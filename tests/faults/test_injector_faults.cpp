// SPDX-License-Identifier: MIT

// The injector itself: what it lets fail, and what it leaves alone.
#include "cli_test.h"
#include "fault_injector.h"
#include "test_rows.h"

#include <QProcess>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A file that is open for writing as long as this lives.
class OPEN_FILE
{
public:
    explicit OPEN_FILE(const std::string& path) : m_file(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {}
    ~OPEN_FILE() { ::close(m_file); }
    // What the write gives: 0, or the error.
    int write() const { return ::write(m_file, "x", 1) == 1 ? 0 : errno; }

private:
    int m_file;
};

TOOL_RUN run_import(const GFPDB_PLACE& place, const char* fault)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", FAULT_PRELOAD);
    environment.insert("FAULT_DIRECTORY", q(place.db_dir()));
    environment.insert("FAULT", fault);
    process.setProcessEnvironment(environment);
    process.start(GFPDB_PROGRAM, {"import", "--dir", q(place.db_dir()), q(place.path("exported.json"))});
    process.waitForFinished(-1);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

class TEST_INJECTOR_FAULTS : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { FAULT_INJECTOR::stop(); }

    void one_call_fails_or_all_from_then_on_data()
    {
        rows<bool, QList<int>>(
            {{"one", false, QList<int>{0, ENOSPC, 0, 0}}, {"all", true, QList<int>{0, ENOSPC, ENOSPC, ENOSPC}}});
    }

    void one_call_fails_or_all_from_then_on()
    {
        const auto [is_lasting, results] = row<bool, QList<int>>();
        const GFPDB_PLACE place;
        FAULT_INJECTOR::inject(place.db_dir(), FAULT{FAULT_CALL::WRITE, 2, ENOSPC, is_lasting});

        const OPEN_FILE file(place.path("db/a"));
        for (const int result : results)
            QCOMPARE(file.write(), result);

        QCOMPARE(FAULT_INJECTOR::count(FAULT_CALL::WRITE), results.size());
        FAULT_INJECTOR::stop();
        QCOMPARE(file.write(), 0);
        QCOMPARE(FAULT_INJECTOR::count(FAULT_CALL::WRITE), results.size());
    }

    void files_elsewhere_are_left_alone()
    {
        const GFPDB_PLACE place;
        FAULT_INJECTOR::inject(place.db_dir(), FAULT{FAULT_CALL::WRITE, 1, EIO, true});

        QCOMPARE(OPEN_FILE(place.path("a")).write(), 0);

        QCOMPARE(FAULT_INJECTOR::count(FAULT_CALL::WRITE), 0);
        QCOMPARE(FAULT_INJECTOR::count(FAULT_CALL::OPEN), 0);
    }

    // A save into a new database of a group uses all of them.
    void every_call_is_counted_under_its_name()
    {
        const GFPDB_PLACE place;
        QCOMPARE(::chmod(place.db_dir().c_str(), 02775), 0);
        GFPDB_MGR* manager = fresh_manager();
        GFPDB_FLASH* record = make_device(*manager, "A");
        FAULT_INJECTOR::watch(place.db_dir());
        QVERIFY(manager->save_flash(record, std::string()));
        QVERIFY(manager->delete_flash("A", std::string()));
        FAULT_INJECTOR::stop();

        for (int call = 0; call < int(FAULT_CALL::COUNT); ++call)
            QVERIFY2(FAULT_INJECTOR::count(FAULT_CALL(call)) > 0, name_of(FAULT_CALL(call)));
    }

    void another_program_is_directed_by_its_environment()
    {
        const GFPDB_PLACE place;
        save_part("A");
        exported_file(place, "A");
        QVERIFY(fresh_manager()->delete_flash("A", std::string()));

        const TOOL_RUN failed = run_import(place, "write:1:ENOSPC:lasting");
        QVERIFY2(failed.exit_code != 0 && failed.err.contains("There is no room for the database"),
                 failed.err.constData());
        QCOMPARE(custom_names(*fresh_manager()), NAMES());

        const TOOL_RUN passed = run_import(place, "write:100000:EIO");
        QVERIFY2(passed.exit_code == 0, passed.err.constData());
        QCOMPARE(custom_names(*fresh_manager()), NAMES{"A"});
    }
};

QTEST_GUILESS_MAIN(TEST_INJECTOR_FAULTS)

#include "test_injector_faults.moc"
