// SPDX-License-Identifier: MIT

// A change of the settings in which system calls fail.
#include "child_process.h"
#include "fault_stand.h"
#include "gfpdb_test.h"

namespace {

const std::string OTHER_LINES = "\n[another]\nprogram=1\n";

FAULT_SCENE change_of_directory()
{
    FAULT_SCENE scene;
    scene.prepare = [](const GFPDB_PLACE& place) {
        make_dir(place.path("after/"));
        write_file(place.settings(), "[database]\ncustom_dir=" + place.db_dir() + OTHER_LINES);
    };
    scene.begin = [](const GFPDB_PLACE&) {};
    scene.change = [](const GFPDB_PLACE& place) {
        take_messages();
        if (GFPDB_MGR::save_custom_dir_to_ini(place.path("after/"), true))
            return std::string();
        const std::string messages = take_messages();
        return messages.empty() ? std::string(FAULT_TOLD_NOTHING) : messages;
    };
    scene.state = [](const GFPDB_PLACE& place) { return read_file(place.settings()); };
    return scene;
}

} // namespace

class TEST_SETTINGS_FAULTS : public QObject
{
    Q_OBJECT

private slots:
    void settings_are_the_former_or_the_new_ones()
    {
        FAULT_STAND(change_of_directory()).verify({FAULT_CALL::WRITE, FAULT_CALL::RENAME, FAULT_CALL::OPEN});
    }
};

QTEST_GUILESS_MAIN(TEST_SETTINGS_FAULTS)

#include "test_settings_faults.moc"
