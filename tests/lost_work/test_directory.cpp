// SPDX-License-Identifier: MIT

// A directory that was typed is never half taken over: the form saves into the directory that the edit shows.
#include "lost_work_test.h"

#include <QApplication>

class TEST_DIRECTORY : public LOST_WORK_TEST
{
    Q_OBJECT

private:
    // Types the other directory and goes on to Cancel without cancelling: pressed, and released beside it.
    void type_and_press_cancel()
    {
        type("m_directory_edit", QFile::decodeName(other_directory().c_str()));
        auto& cancel = part<QPushButton>("m_cancel_button");
        QTest::mousePress(&cancel, Qt::LeftButton);
        QTest::mouseRelease(&cancel, Qt::LeftButton, Qt::NoModifier, beside_cancel());
        QVERIFY(dlg().isVisible());
        QCOMPARE(QApplication::focusWidget(), &cancel);
    }

    QPoint beside_cancel() { return QPoint(-5, -5); }

private slots:
    void a_press_on_cancel_that_is_dragged_off_takes_nothing_over_yet()
    {
        open();

        type_and_press_cancel();

        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), directory());
    }

    void leaving_cancel_takes_the_directory_over()
    {
        open();
        type_and_press_cancel();

        part("m_filter_line_edit").setFocus(Qt::MouseFocusReason);

        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), other_directory());
    }

    void leaving_cancel_backwards_takes_the_directory_over()
    {
        open();
        type_and_press_cancel();

        QTest::keyClick(&part("m_cancel_button"), Qt::Key_Tab, Qt::ShiftModifier);

        QVERIFY(!part("m_directory_edit").hasFocus());
        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), other_directory());
    }

    void going_back_to_the_directory_leaves_it_open()
    {
        open();
        type_and_press_cancel();

        part("m_directory_edit").setFocus(Qt::MouseFocusReason);

        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), directory());
        QCOMPARE(text("m_directory_edit"), QFile::decodeName(other_directory().c_str()));
    }

    void cancelling_takes_nothing_over()
    {
        open();
        type("m_directory_edit", QFile::decodeName(other_directory().c_str()));

        click("m_cancel_button");

        QVERIFY(!dlg().isVisible());
        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), directory());
    }

    void a_walk_over_cancel_alone_changes_nothing()
    {
        store("Mine");
        open("Mine");
        type("m_device_id_edit", qs("0x01"));

        part("m_cancel_button").setFocus(Qt::TabFocusReason);
        part("m_apply_button").setFocus(Qt::TabFocusReason);

        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), directory());
        QCOMPARE(text("m_device_id_edit"), qs("0x01"));
    }

    void apply_saves_into_the_directory_that_was_left_over_cancel()
    {
        open();
        type_and_press_cancel();
        type("m_device_name_edit", qs("Mine"));
        type("m_device_id_edit", qs("0x01"));
        type("m_total_die_edit", qs("1"));

        click("m_apply_button");

        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), other_directory());
        QVERIFY(QFile::exists(QFile::decodeName(other_directory().c_str()) + qs("gfpdb.sqlite")));
        QVERIFY(!QFile::exists(QFile::decodeName(directory().c_str()) + qs("gfpdb.sqlite")));
        QCOMPARE(current_row(), qs("Mine"));
    }

    // The edit is emptied without being left: no focus, no Return.
    void an_empty_directory_stands_for_the_one_in_use()
    {
        store("Mine");
        open("Mine");
        type("m_device_id_edit", qs("0x01"));
        part<QLineEdit>("m_directory_edit").clear();

        click("m_apply_button");

        QCOMPARE(stored(qs("Mine")), qs("0x01"));
        QCOMPARE(manager().find_flash("Mine", true)->get_db_dir(), directory());
    }
};

LOST_WORK_TEST_MAIN(TEST_DIRECTORY)

#include "test_directory.moc"
