// SPDX-License-Identifier: MIT

// The form and the current row are one: whatever happens to the table, its current row is the device that the form
// shows, or there is none; and a filter takes no device away from the form.
#include "lost_work_test.h"

#include <QScopeGuard>

class TEST_CURRENT_ROW : public LOST_WORK_TEST
{
    Q_OBJECT

private:
    // Types into the filter.
    void filter(const QString& text) { type("m_filter_line_edit", text); }
    // Makes the row of that name the selected one without making it current, as assistive technology does.
    void select_only(const QString& name)
    {
        const QModelIndex index = table().model()->index(shown_rows().indexOf(name), 0);
        QVERIFY(index.isValid());
        table().selectionModel()->select(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }

private slots:
    void a_table_that_gets_the_focus_makes_no_row_current()
    {
        store("Mine");
        open("Mine");
        filter(qs("no such name"));
        filter(qs("W25Q"));

        table().setFocus();

        QCOMPARE(current_row(), QString());
        QCOMPARE(text("m_device_name_edit"), qs("Mine"));
    }

    void a_row_that_is_only_selected_becomes_current()
    {
        store("Mine");
        store("Other", "0xEF 0x40 0x18");
        open("Mine");

        select_only(qs("Other"));

        QCOMPARE(text("m_device_name_edit"), qs("Other"));
        QCOMPARE(current_row(), qs("Other"));
        type("m_device_id_edit", qs("0xEF 0x40 0x19"));
        click("m_apply_button");
        QCOMPARE(stored(qs("Other")), qs("0xEF 0x40 0x19"));
        QCOMPARE(stored(qs("Mine")), qs("0xC2 0x20 0x19"));
    }

    void a_filter_that_hides_the_shown_device_leaves_no_current_row()
    {
        store("Mine");
        open("Mine");

        filter(qs("W25Q"));

        QCOMPARE(current_row(), QString());
        QCOMPARE(selected_row(), QString());
        QCOMPARE(text("m_device_name_edit"), qs("Mine"));
    }

    void a_shown_device_that_comes_back_is_current_again_and_keeps_its_edits()
    {
        store("Mine");
        open("Mine");
        type("m_device_id_edit", qs("0x01"));

        filter(qs("W25Q"));
        filter(QString());

        QCOMPARE(current_row(), qs("Mine"));
        QCOMPARE(selected_row(), qs("Mine"));
        QCOMPARE(text("m_device_id_edit"), qs("0x01"));
    }

    void the_new_device_comes_back_likewise()
    {
        open();
        type("m_device_name_edit", qs("Half typed"));

        filter(qs("W25Q"));
        QCOMPARE(current_row(), QString());
        filter(QString());

        QCOMPARE(current_row(), qs("<<new device>>"));
        QCOMPARE(text("m_device_name_edit"), qs("Half typed"));
    }

    void a_filter_change_that_keeps_the_row_keeps_its_edits()
    {
        store("Mine");
        open("Mine");
        type("m_device_id_edit", qs("0x01"));

        filter(qs("M"));

        QCOMPARE(current_row(), qs("Mine"));
        QCOMPARE(selected_row(), qs("Mine"));
        QCOMPARE(text("m_device_id_edit"), qs("0x01"));
    }

    void apply_on_a_hidden_row_empties_the_filter_and_replaces_the_device()
    {
        store("Mine");
        open("Mine");
        type("m_device_id_edit", qs("0x01"));
        filter(qs("W25Q"));

        click("m_apply_button");

        QCOMPARE(text("m_filter_line_edit"), QString());
        QCOMPARE(current_row(), qs("Mine"));
        QCOMPARE(stored_names(), QStringList{qs("Mine")});
        QCOMPARE(stored(qs("Mine")), qs("0x01"));
    }

    void apply_on_a_hidden_new_device_saves_it()
    {
        open();
        type("m_device_name_edit", qs("Fresh"));
        type("m_device_id_edit", qs("0x01"));
        type("m_total_die_edit", qs("1"));
        filter(qs("W25Q"));

        click("m_apply_button");

        QCOMPARE(text("m_filter_line_edit"), QString());
        QCOMPARE(current_row(), qs("Fresh"));
        QCOMPARE(stored_names(), QStringList{qs("Fresh")});
    }

    void ok_on_a_hidden_row_hands_the_name_back()
    {
        store("Mine");
        open("Mine");
        filter(qs("W25Q"));

        click("m_ok_button");

        QVERIFY(!dlg().isVisible());
        QCOMPARE(dlg().device_name(), std::string("Mine"));
    }

    void a_name_that_the_filter_would_hide_empties_it_after_the_save()
    {
        store("Mine");
        open("Mine");
        filter(qs("M"));
        type("m_device_name_edit", qs("Yours"));

        click("m_ok_button");

        QCOMPARE(text("m_filter_line_edit"), QString());
        QCOMPARE(stored_names(), QStringList{qs("Yours")});
        QCOMPARE(dlg().device_name(), std::string("Yours"));
    }

    void a_name_that_the_filter_shows_keeps_it()
    {
        store("Mine");
        open("Mine");
        filter(qs("m*n"));
        type("m_device_name_edit", qs("Moon"));

        click("m_apply_button");

        QCOMPARE(text("m_filter_line_edit"), qs("m*n"));
        QCOMPARE(current_row(), qs("Moon"));
    }

    void a_failed_save_keeps_the_filter_and_the_form()
    {
        store("Mine");
        open("Mine");
        filter(qs("M"));
        type("m_device_id_edit", qs("0x01"));
        lock();

        m_modals.expect(MODAL_DRIVER::accept());
        click("m_apply_button");
        unlock();

        QCOMPARE(text("m_filter_line_edit"), qs("M"));
        QCOMPARE(text("m_device_id_edit"), qs("0x01"));
        QCOMPARE(current_row(), qs("Mine"));
        QCOMPARE(stored(qs("Mine")), qs("0xC2 0x20 0x19"));
        click("m_apply_button");
        QCOMPARE(stored(qs("Mine")), qs("0x01"));
    }

    void delete_on_a_hidden_row_deletes_the_device_of_the_form()
    {
        store("Mine");
        store("Other");
        open("Mine");
        filter(qs("Oth"));

        click("m_delete_button");

        QCOMPARE(stored_names(), QStringList{qs("Other")});
        QCOMPARE(text("m_filter_line_edit"), qs("Oth"));
        QCOMPARE(text("m_device_name_edit"), QString());
        QCOMPARE(current_row(), QString());
    }

    void a_deleted_device_is_off_the_form_though_the_filter_hides_the_new_one()
    {
        store("Mine 1");
        store("Mine 2");
        open("Mine 1");
        filter(qs("Mine"));

        click("m_delete_button");

        QCOMPARE(text("m_filter_line_edit"), qs("Mine"));
        QCOMPARE(shown_rows(), QStringList{qs("Mine 2")});
        QCOMPARE(current_row(), QString());
        QCOMPARE(text("m_device_name_edit"), QString());
        QVERIFY(!part("m_delete_button").isEnabled());
        filter(QString());
        QCOMPARE(current_row(), qs("<<new device>>"));
    }

    void a_change_of_family_under_a_filter_leaves_no_device_of_the_former_one_in_the_form()
    {
        store("Mine");
        open("Mine");
        filter(qs("Nothing has this name"));

        auto& family = part<QComboBox>("m_family_cbox");
        family.setCurrentIndex((family.currentIndex() + 1) % family.count());

        QCOMPARE(text("m_device_name_edit"), QString());
        filter(QString());
        QCOMPARE(current_row(), qs("<<new device>>"));
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
