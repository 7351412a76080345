// SPDX-License-Identifier: MIT

// The form and the current row are one: whatever happens to the table, its current row is the device that the form
// shows, or there is none; and a filter takes no device away from the form.
#include "lost_work_test.h"

#include <QScopeGuard>

class TEST_CURRENT_ROW : public LOST_WORK_TEST
{
    Q_OBJECT

private slots:
    void the_form_and_the_current_row_are_one_data()
    {
        rows<QString>({
            {"a table that gets the focus makes no row current",
             "store Mine; open Mine; filter = no such name; filter = W25Q; focus; current is; name is Mine"},
            {"a row that is only selected becomes current",
             "store Mine; store Other, 0xEF 0x40 0x18; open Mine; select Other; name is Other; current is Other; "
             "id = 0xEF 0x40 0x19; apply; device_id of Other is 0xEF 0x40 0x19; device_id of Mine is 0xC2 0x20 0x19"},
            {"a filter that hides the shown device leaves no current row",
             "store Mine; open Mine; filter = W25Q; current is; selected is; name is Mine"},
            {"a shown device that comes back is current again and keeps its edits",
             "store Mine; open Mine; id = 0x01; filter = W25Q; filter =; current is Mine; selected is Mine; id is "
             "0x01"},
            {"the new device comes back likewise",
             "open; name = Half typed; filter = W25Q; current is; filter =; current is <<new device>>; "
             "name is Half typed"},
            {"a change of the filter that keeps the row keeps its edits",
             "store Mine; open Mine; id = 0x01; filter = M; current is Mine; selected is Mine; id is 0x01"},
            {"Apply on a hidden row empties the filter and replaces the device",
             "store Mine; open Mine; id = 0x01; filter = W25Q; apply; filter is; current is Mine; devices is Mine; "
             "device_id of Mine is 0x01"},
            {"Apply on a hidden new device saves it",
             "open; name = Fresh; id = 0x01; dies = 1; filter = W25Q; apply; filter is; current is Fresh; "
             "devices is Fresh"},
            {"OK on a hidden row hands the name back",
             "store Mine; open Mine; filter = W25Q; ok; dialog is closed; result is Mine"},
            {"a name that the filter would hide empties it after the save",
             "store Mine; open Mine; filter = M; name = Yours; ok; filter is; devices is Yours; result is Yours"},
            {"a name that the filter shows keeps it",
             "store Mine; open Mine; filter = m*n; name = Moon; apply; filter is m*n; current is Moon"},
            {"a failed save keeps the filter and the form",
             "store Mine; open Mine; filter = M; id = 0x01; lock IMMEDIATE; apply says 20439; unlock; filter is M; "
             "id is 0x01; current is Mine; device_id of Mine is 0xC2 0x20 0x19; apply; device_id of Mine is 0x01"},
            {"Delete on a hidden row deletes the device of the form",
             "store Mine; store Other; open Mine; filter = Oth; delete; devices is Other; filter is Oth; name is; "
             "current is"},
            {"a deleted device is off the form though the filter hides the new one",
             "store Mine 1; store Mine 2; open Mine 1; filter = Mine; delete; filter is Mine; rows is Mine 2; "
             "current is; name is; Delete is disabled; filter =; current is <<new device>>"},
        });
    }

    void the_form_and_the_current_row_are_one() { play(row<QString>()); }

    void a_change_of_family_under_a_filter_leaves_no_device_of_the_former_one_in_the_form()
    {
        store("Mine");
        open("Mine");
        type("m_filter_line_edit", qs("Nothing has this name"));

        auto& family = part<QComboBox>("m_family_cbox");
        family.setCurrentIndex((family.currentIndex() + 1) % family.count());

        QCOMPARE(text("m_device_name_edit"), QString());
        play(qs("filter =; current is <<new device>>"));
    }

    void rows_are_found_in_a_right_to_left_layout()
    {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        const auto restore = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
        store("Mine");

        open("Mine");

        QCOMPARE(current_row(), qs("Mine"));
        QCOMPARE(selected_row(), qs("Mine"));
    }
};

LOST_WORK_TEST_MAIN(TEST_CURRENT_ROW)

#include "test_current_row.moc"
