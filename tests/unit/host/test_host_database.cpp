// SPDX-License-Identifier: MIT

// What the host shows of the database's state while the file of families that the user named cannot be used. A program
// of its own: a process reads the families once.
#include "gfpdb_double.h"
#include "program/host_database.h"

#include <QTest>

namespace {

const QString FAMILIES_PROBLEM = QStringLiteral("GFPQ_FAMILIES: /dev/zero cannot be read: it is not a regular file.");

} // namespace

class TEST_HOST_DATABASE : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("GFPQ_FAMILIES", "/dev/zero"); }

    void init() { GFPDB_WORLD::instance().reset(); }

    void families_file_that_cannot_be_used_is_a_problem() { QCOMPARE(database_state().problem, FAMILIES_PROBLEM); }

    void both_problems_are_shown()
    {
        GFPDB_WORLD::instance().database_problem = "The directory is gone.";

        QCOMPARE(database_state().problem, QLatin1String("The directory is gone.\n") + FAMILIES_PROBLEM);
    }
};

QTEST_GUILESS_MAIN(TEST_HOST_DATABASE)

#include "test_host_database.moc"
