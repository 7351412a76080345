// SPDX-License-Identifier: MIT

// The window of the database: what is deleted there comes back, and nothing of somebody else's is lost.
#include "database/database_window.h"
#include "database/device_model.h"
#include "lost_work_test.h"

#include <QAction>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>

class TEST_DATABASE_WINDOW : public LOST_WORK_TEST
{
    Q_OBJECT

private:
    // The window on the directory, shown and active.
    void open_window()
    {
        m_settings = std::make_unique<QSettings>(QString::fromStdString(directory()) + qs("../window.ini"),
                                                 QSettings::IniFormat);
        m_window = std::make_unique<DATABASE_WINDOW>(DIALOG_OPTIONS(), *m_settings);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    QTableView& devices() const { return *m_window->findChild<QTableView*>(qs("m_devices_table")); }
    QAction& undo() const { return *m_window->findChild<QAction*>(qs("m_undo_action")); }
    QString message() const { return m_window->statusBar()->currentMessage(); }

    // The row of the device; -1 when it is not shown.
    int row_of(const QString& name) const
    {
        const QAbstractItemModel& model = *devices().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, 0).data().toString() == name)
                return row;
        }
        return -1;
    }

    QString shown_id(const QString& name) const
    {
        return devices().model()->index(row_of(name), DEVICE_MODEL::DEVICE_ID).data().toString();
    }

    void select(const QStringList& names) const
    {
        devices().setFocus();
        devices().clearSelection();
        for (const QString& name : names) {
            const QModelIndex index = devices().model()->index(row_of(name), 0);
            QVERIFY2(index.isValid(), qPrintable(name));
            devices().selectionModel()->setCurrentIndex(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }

    void press_delete(const QStringList& names) const
    {
        select(names);
        press(Qt::Key_Delete);
    }
    void press_undo() const { press(Qt::Key_Z, Qt::ControlModifier); }
    // The platform of the tests activates no window after a box.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTest::keyClick(&devices(), key, modifiers);
    }

    // The next box says something of this kind.
    void expect_box(const QString& part)
    {
        m_expected = part;
        m_modals.expect(MODAL_DRIVER::accept());
    }
    void check_box() { QVERIFY2(m_modals.last().text.contains(m_expected), qPrintable(m_modals.last().text)); }

    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<DATABASE_WINDOW> m_window;
    QString m_expected;

    void set_up() override
    {
        for (const char* name : {"A", "B", "C"})
            store(name);
        open_window();
    }
    void take_down() override
    {
        m_window.reset();
        m_settings.reset();
    }

private slots:
    void a_deleted_device_comes_back_with_all_it_had()
    {
        const QString flows = stored(qs("A"), "single_flows") + stored(qs("A"), "quad_flows");
        const QString next = devices().model()->index(row_of(qs("A")) + 1, 0).data().toString();
        QVERIFY(!undo().isEnabled());

        press_delete({qs("A")});
        QCOMPARE(stored_names(), (QStringList{qs("B"), qs("C")}));
        QCOMPARE(history(), QStringList{qs("deleted A")});
        QCOMPARE(message(), qs("The device \"A\" is deleted. Ctrl+Z brings it back."));
        QCOMPARE(undo().text(), qs("&Undo (Delete \"A\")"));
        QCOMPARE(row_of(qs("A")), -1);
        // The keys are where they were.
        QCOMPARE(devices().currentIndex().data().toString(), next);

        press_undo();
        QCOMPARE(stored_names(), (QStringList{qs("A"), qs("B"), qs("C")}));
        QCOMPARE(stored(qs("A"), "single_flows") + stored(qs("A"), "quad_flows"), flows);
        QCOMPARE(message(), qs("The device \"A\" is back."));
        QCOMPARE(devices().currentIndex().data().toString(), qs("A"));
        QVERIFY(!undo().isEnabled());
    }

    void what_was_exported_is_dropped_in_again()
    {
        const QString flows = stored(qs("A"), "single_flows");
        const QString file = QFile::decodeName(other_directory().c_str()) + qs("a.json");
        select({qs("A")});
        m_modals.expect([&file](QWidget* dialog) {
            dialog->findChild<QLineEdit*>(qs("m_export_path_edit"))->setText(file);
            dialog->findChild<QAbstractButton*>(qs("m_export_button"))->click();
            dialog->close();
        });
        m_window->findChild<QAction*>(qs("m_export_action"))->trigger();
        press_delete({qs("A")});

        m_modals.expect([](QWidget* dialog) {
            auto* button = dialog->findChild<QAbstractButton*>(qs("m_import_button"));
            QTRY_VERIFY(button->isEnabled());
            button->click();
            dialog->close();
        });
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(file), QUrl::fromLocalFile(qs("/image.bin"))});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window.get(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window.get(), &drop);
        QTRY_VERIFY(row_of(qs("A")) >= 0);
        QCOMPARE(stored(qs("A"), "single_flows"), flows);
    }

    // A dialog would not notice what changes under it, and windows that are waiting take drops all the same.
    void nothing_is_dropped_under_a_dialog()
    {
        QFile file(QString::fromStdString(other_directory()) + qs("a.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(file.fileName())});
        QDialog dialog;
        dialog.setModal(true);
        m_modals.expect([&](QWidget* window) {
            QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(m_window.get(), &enter);
            QVERIFY(!enter.isAccepted());
            QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(m_window.get(), &drop);
            QVERIFY(!drop.isAccepted());
            window->close();
        });
        dialog.exec();
    }

    void each_undo_takes_back_one_delete()
    {
        press_delete({qs("A"), qs("B")});
        QCOMPARE(message(), qs("Devices deleted: 2. Ctrl+Z brings them back."));
        press_delete({qs("C")});
        QCOMPARE(stored_names(), QStringList());

        press_undo();
        QCOMPARE(stored_names(), QStringList{qs("C")});
        press_undo();
        QCOMPARE(stored_names(), (QStringList{qs("A"), qs("B"), qs("C")}));
        QCOMPARE(message(), qs("Devices brought back: 2"));
    }

    void what_someone_else_has_changed_is_not_deleted_before_it_was_seen()
    {
        select({qs("A")});
        run_foreign(qs("UPDATE device SET revision = 'other', device_id = '0x01' WHERE name = 'A'"));
        expect_box(qs("The device \"A\" was changed by "));
        press_delete({qs("A")});
        check_box();
        QCOMPARE(stored_names(), (QStringList{qs("A"), qs("B"), qs("C")}));
        QVERIFY(!undo().isEnabled());

        // Now it is shown as it is.
        QCOMPARE(shown_id(qs("A")), qs("0x01"));
        press_delete({qs("A")});
        QCOMPARE(stored_names(), (QStringList{qs("B"), qs("C")}));
        press_undo();
        QCOMPARE(stored(qs("A")), qs("0x01"));
    }

    void what_can_be_deleted_is_deleted_beside_what_cannot()
    {
        run_foreign(qs("UPDATE device SET revision = 'other' WHERE name = 'A'"));
        run_foreign(qs("DELETE FROM device WHERE name = 'C'"));
        expect_box(qs("The device \"C\" was deleted by another program already."));
        press_delete({qs("A"), qs("B"), qs("C")});
        check_box();
        QVERIFY(m_modals.last().text.contains(qs("The device \"A\" was changed by ")));

        QCOMPARE(stored_names(), QStringList{qs("A")});
        QCOMPARE(undo().text(), qs("&Undo (Delete \"B\")"));
    }

    // Until the name is free.
    void an_undo_takes_no_name_away()
    {
        press_delete({qs("A"), qs("B")});
        store("A", "0x01");
        expect_box(qs("\"A\""));
        press_undo();
        check_box();
        QCOMPARE(stored(qs("A")), qs("0x01"));
        QCOMPARE(stored_names(), (QStringList{qs("A"), qs("B"), qs("C")}));
        QCOMPARE(undo().text(), qs("&Undo (Delete \"A\")"));

        run_foreign(qs("DELETE FROM device WHERE name = 'A'"));
        press_undo();
        QCOMPARE(stored(qs("A")), qs("0xC2 0x20 0x19"));
        QVERIFY(!undo().isEnabled());
    }

    void what_the_history_has_no_more_is_not_tried_again()
    {
        press_delete({qs("A")});
        run_foreign(qs("DELETE FROM history"));
        expect_box(QString());
        press_undo();
        QVERIFY(!m_modals.last().text.isEmpty());
        QVERIFY(!undo().isEnabled());
    }

    // As after a backup copy was put back, or in another directory: the number is that of another state now.
    void an_undo_brings_back_nothing_else()
    {
        press_delete({qs("A")});
        run_foreign(qs("UPDATE history SET name = 'Z', name_key = 'z', revision = 'other'"));
        expect_box(qs("The history does not have the device \"A\" any more."));
        press_undo();
        check_box();
        QCOMPARE(stored_names(), (QStringList{qs("B"), qs("C")}));
        QVERIFY(!undo().isEnabled());
    }

    // Who is about to press Delete has seen another one.
    void what_someone_else_deletes_selects_nothing_in_its_place()
    {
        select({qs("A")});
        const QString next = devices().model()->index(row_of(qs("A")) + 1, 0).data().toString();
        run_foreign(qs("DELETE FROM device WHERE name = 'A'"));
        m_window->refresh();
        QCOMPARE(devices().currentIndex().data().toString(), next);
        QVERIFY(!m_window->findChild<QAction*>(qs("m_delete_action"))->isEnabled());
        press(Qt::Key_Delete);
        QCOMPARE(stored_names(), (QStringList{qs("B"), qs("C")}));
    }

    // A table without the own devices would look as if they were lost.
    void a_table_that_cannot_be_read_says_so()
    {
        lock(qs("EXCLUSIVE"));
        m_window->refresh();
        const auto& problem = *m_window->findChild<QLabel*>(qs("m_database_problem"));
        QCOMPARE(row_of(qs("A")), -1);
        QVERIFY2(problem.isVisible() && problem.text().contains(qs("locked")), qPrintable(problem.text()));
        unlock();
        m_window->refresh();
        QVERIFY(row_of(qs("A")) >= 0);
        QVERIFY(!problem.isVisible());
    }

    // A key that is held down is pressed once.
    void a_held_key_deletes_once()
    {
        QVERIFY(!m_window->findChild<QAction*>(qs("m_delete_action"))->autoRepeat());
        QVERIFY(!undo().autoRepeat());
    }

    void many_problems_fit_on_a_screen()
    {
        QStringList names;
        for (int number = 0; number < 30; ++number) {
            names.append(qs("N%1").arg(number));
            store(names.last().toStdString());
        }
        m_window->refresh();
        select(names);
        run_foreign(qs("UPDATE device SET revision = 'other'"));
        expect_box(qs("The device \"N0\" was changed by "));
        press_delete(names);
        check_box();
        QCOMPARE(m_modals.last().text.count(QLatin1Char('\n')), 10);
        QVERIFY(m_modals.last().text.endsWith(qs("\n...")));
    }

    void a_database_that_is_locked_loses_nothing()
    {
        press_delete({qs("A")});
        lock();
        expect_box(QString());
        press_delete({qs("B")});
        expect_box(QString());
        press_undo();
        unlock();
        QCOMPARE(stored_names(), (QStringList{qs("B"), qs("C")}));

        press_undo();
        QCOMPARE(stored_names(), (QStringList{qs("A"), qs("B"), qs("C")}));
    }

    void an_undo_stays_in_its_directory()
    {
        press_delete({qs("A")});
        GFPDB_MGR::set_db_custom_dir(other_directory());
        m_window->refresh();
        QVERIFY(!undo().isEnabled());
        QCOMPARE(row_of(qs("B")), -1);

        GFPDB_MGR::set_db_custom_dir(directory());
        m_window->refresh();
        QCOMPARE(history(), QStringList{qs("deleted A")});
        QVERIFY(!undo().isEnabled());
    }

    // Else the dialog would take for seen what its user has not seen.
    void a_dialog_keeps_what_it_has_seen_while_the_file_changes()
    {
        open("A").hide();
        dlg().setModal(true);
        bool is_done = false;
        m_modals.expect([&](QWidget* dialog) {
            auto& refreshing = *m_window->findChild<QTimer*>(qs("m_refreshing"));
            run_foreign(qs("UPDATE device SET revision = 'other', device_id = '0x02' WHERE name = 'A'"));
            QTRY_VERIFY(refreshing.isActive());
            QTRY_VERIFY(!refreshing.isActive());
            QCOMPARE(shown_id(qs("A")), qs("0xC2 0x20 0x19"));
            play(qs("id = 0x01; apply says changed; device_id of A is 0x02"));
            is_done = true;
            dialog->close();
        });
        dlg().show();
        QTRY_VERIFY(is_done);

        close_dialog();
        m_window->refresh();
        QCOMPARE(shown_id(qs("A")), qs("0x02"));
    }

    void built_in_devices_are_not_deleted()
    {
        select({qs("A"), qs("MX25L25645G")});
        QVERIFY(!m_window->findChild<QAction*>(qs("m_delete_action"))->isEnabled());
        press(Qt::Key_Delete);
        QCOMPARE(stored_names(), (QStringList{qs("A"), qs("B"), qs("C")}));
    }
};

LOST_WORK_TEST_MAIN(TEST_DATABASE_WINDOW)
#include "test_database_window.moc"
