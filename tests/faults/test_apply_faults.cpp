// SPDX-License-Identifier: MIT

// What Apply does to the database, with system calls that fail in it.
#include "fault_stand.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb_test.h"
#include "manager/gfpdb_embedded_mgr.h"
#include "test_rows.h"

#include <QRegularExpression>

namespace {

GFPDB_MGR* manager()
{
    return GFPDB_HELPER::get_active_flash_manager(false);
}

std::string complaint(const GFPDB_MGR& mgr)
{
    return mgr.get_last_error().empty() ? FAULT_TOLD_NOTHING : mgr.get_last_error();
}

// As the dialog does it: the name that was selected is deleted, then the name that was entered is saved. When that has
// been stored already, it is the one that is selected.
std::string press_apply(const std::string& former, const std::string& entered)
{
    GFPDB_MGR* mgr = manager();
    const std::string selected = mgr->is_custom_flash(entered) ? entered : former;
    if (!selected.empty() && !mgr->delete_flash(selected, std::string()))
        return complaint(*mgr);
    GFPDB_FLASH* record = make_device(*mgr, entered);
    record->set_string_property(GFPDB_FLASH_DEVICE_ID, "0x01 0x02 0x03");
    return mgr->save_flash(record, std::string()) ? std::string() : complaint(*mgr);
}

// "... It is state 7 of the history.", or that it cannot be said: then the newest state is looked at.
void restore_what_was_told(const GFPDB_PLACE& place, const std::string& told)
{
    const QRegularExpression not_put_back(QStringLiteral("was not put back: .* It is state (\\d+) of the history"));
    const qlonglong named = not_put_back.match(QString::fromStdString(told)).captured(1).toLongLong();
    const bool is_unknown = told.find("Whether the change was stored cannot be read") != std::string::npos;
    GFPDB_MGR* mgr = fresh_manager();
    const std::vector<GFPDB_HISTORY_ENTRY> history = GFPDB_EMBEDDED_MGR::instance().store().get_history();
    const std::int64_t newest = is_unknown && !history.empty() ? history.back().id : 0;
    mgr->restore_flash(named > 0 ? named : newest, place.db_dir(), GFPDB_RESTORE_KEEP, std::string());
}

} // namespace

class TEST_APPLY_FAULTS : public QObject
{
    Q_OBJECT

private slots:
    void records_are_the_former_or_the_new_ones_data()
    {
        rows<QString, QString, QString>({{"the first device of a directory", "", "", "B"},
                                         {"a new device", "A", "", "B"},
                                         {"a changed device", "A", "A", "A"},
                                         {"a renamed device", "A", "A", "B"}});
    }

    void records_are_the_former_or_the_new_ones()
    {
        const auto [stored, selected, entered] = row<QString, QString, QString>();
        FAULT_SCENE scene;
        scene.prepare = [&](const GFPDB_PLACE& place) {
            write_file(place.settings(), SETTINGS_FOR_FAULTS);
            GFPDB_MGR* mgr = fresh_manager();
            if (!stored.isEmpty())
                mgr->save_flash(make_device(*mgr, stored.toStdString()), std::string());
        };
        scene.begin = [](const GFPDB_PLACE& place) { all_records(place); };
        scene.change = [&](const GFPDB_PLACE&) { return press_apply(selected.toStdString(), entered.toStdString()); };
        scene.recover = &restore_what_was_told;
        scene.state = &all_records;

        FAULT_STAND(scene).verify({FAULT_CALL::WRITE, FAULT_CALL::SYNC, FAULT_CALL::LOCK});
    }
};

QTEST_GUILESS_MAIN(TEST_APPLY_FAULTS)

#include "test_apply_faults.moc"
