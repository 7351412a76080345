// SPDX-License-Identifier: MIT

// The upgrade of a database of schema 2, with system calls that fail in it.
#include "fault_stand.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb_test.h"

class TEST_UPGRADE_FAULTS : public QObject
{
    Q_OBJECT

private slots:
    void an_upgrade_happens_whole_or_not_at_all()
    {
        FAULT_SCENE scene;
        scene.prepare = [](const GFPDB_PLACE& place) {
            write_file(place.settings(), SETTINGS_FOR_FAULTS);
            write_file(place.db_file(), read_file(GFPDB_TEST_DATA "schema_2.sqlite"));
        };
        scene.begin = [](const GFPDB_PLACE&) {};
        scene.change = [](const GFPDB_PLACE&) {
            fresh_manager();
            return GFPDB_HELPER::get_database_problem();
        };
        // Looked at past the library, which would upgrade it.
        scene.state = [](const GFPDB_PLACE& place) {
            return run_sql(place.db_file(),
                           "SELECT group_concat(hex(value)) FROM (SELECT value FROM meta WHERE name = 'schema_version' "
                           "UNION ALL SELECT single_flows || quad_flows FROM device UNION ALL "
                           "SELECT single_flows || quad_flows FROM template UNION ALL "
                           "SELECT single_flows || quad_flows FROM history)")
                .toString()
                .toStdString();
        };

        FAULT_STAND(scene).verify({FAULT_CALL::WRITE, FAULT_CALL::SYNC, FAULT_CALL::LOCK});
    }
};

QTEST_GUILESS_MAIN(TEST_UPGRADE_FAULTS)

#include "test_upgrade_faults.moc"
