// SPDX-License-Identifier: MIT

// A new database file in a directory that others may write, who exchange its name while it is made.
#include "fault_injector.h"
#include "gfpdb_test.h"

#include <QDir>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const std::string SECRET(1000, 's');
constexpr int PRIVATE_MODE = 0600;

std::string private_file(const GFPDB_PLACE& place)
{
    return place.path("private");
}

int mode_of(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? int(status.st_mode & 07777) : -1;
}

// The file that becomes the database when it is complete; empty when there is none.
std::string unfinished_file(const GFPDB_PLACE& place)
{
    const QDir directory(QString::fromStdString(place.db_dir()), QStringLiteral("*.new-*"));
    for (const QString& name : directory.entryList(QDir::Files | QDir::Hidden)) {
        if (!name.endsWith(QLatin1String("-journal")))
            return place.db_dir() + name.toStdString();
    }
    return std::string();
}

using EXCHANGE = int (*)(const char* private_file, const char* name);

// Makes a database, and exchanges the name of the unfinished file after the n-th call. True when that was there.
bool make_database(const GFPDB_PLACE& place, FAULT_CALL call, int at, EXCHANGE exchange)
{
    bool was_there = false;
    FAULT_INJECTOR::run_after(place.db_dir(), call, at, [&] {
        const std::string name = unfinished_file(place);
        was_there =
            !name.empty() && ::unlink(name.c_str()) == 0 && exchange(private_file(place).c_str(), name.c_str()) == 0;
    });
    GFPDB_MGR* manager = fresh_manager();
    manager->save_flash(make_device(*manager, "A"), std::string());
    FAULT_INJECTOR::stop();
    return was_there;
}

void ignore_message(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

Q_DECLARE_METATYPE(EXCHANGE)
Q_DECLARE_METATYPE(FAULT_CALL)

class TEST_NEW_FILE_FAULTS : public QObject
{
    Q_OBJECT

private slots:
    void an_exchanged_name_opens_no_other_file_to_the_group_data()
    {
        QTest::addColumn<EXCHANGE>("exchange");
        QTest::addColumn<FAULT_CALL>("call");
        for (const FAULT_CALL call : {FAULT_CALL::READ, FAULT_CALL::WRITE, FAULT_CALL::SYNC, FAULT_CALL::OPEN,
                                      FAULT_CALL::LOCK, FAULT_CALL::STATUS, FAULT_CALL::MODE}) {
            QTest::addRow("a symbolic link, after a %s", name_of(call)) << EXCHANGE(&::symlink) << call;
            QTest::addRow("a hard link, after a %s", name_of(call)) << EXCHANGE(&::link) << call;
        }
    }

    void an_exchanged_name_opens_no_other_file_to_the_group()
    {
        QFETCH(EXCHANGE, exchange);
        QFETCH(FAULT_CALL, call);
        const QtMessageHandler handler = qInstallMessageHandler(&ignore_message);
        int exchanges = 0;
        int at = 0;
        do {
            const GFPDB_PLACE place(GFPDB_PLACE::ON::MEMORY);
            QCOMPARE(::chmod(place.db_dir().c_str(), 02775), 0);
            write_file(private_file(place), SECRET);
            QCOMPARE(::chmod(private_file(place).c_str(), PRIVATE_MODE), 0);

            exchanges += make_database(place, call, ++at, exchange);

            QCOMPARE(mode_of(private_file(place)), PRIVATE_MODE);
            QCOMPARE(read_file(private_file(place)), SECRET);
        } while (at <= FAULT_INJECTOR::count(call));
        qInstallMessageHandler(handler);
        QVERIFY(exchanges > 0);
    }
};

QTEST_GUILESS_MAIN(TEST_NEW_FILE_FAULTS)

#include "test_new_file_faults.moc"
