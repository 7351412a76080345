// SPDX-License-Identifier: MIT

// The window of the database: what is deleted there comes back, and nothing of somebody else's is lost.
#include "database/database_window.h"
#include "database/device_model.h"
#include "fault_injector.h"
#include "lost_work_test.h"
#include "tcp_proxy.h"

#include "gfpdb/gfpdb_database.h"

#include <QAction>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>

#include <cerrno>

namespace {

// More than are done before a window could be read.
constexpr int MANY = 60;

} // namespace

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
        const QAbstractItemModel& model = *devices().model();
        for (const QString& name : names) {
            const QModelIndexList found = model.match(model.index(0, 0), Qt::DisplayRole, name, -1, Qt::MatchExactly);
            QVERIFY2(!found.isEmpty(), qPrintable(name));
            for (const QModelIndex& index : found)
                devices().selectionModel()->setCurrentIndex(index,
                                                            QItemSelectionModel::Select | QItemSelectionModel::Rows);
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

    // The devices with what is in them.
    QStringList content() const
    {
        return read_column(qs("SELECT name || device_id || single_flows || quad_flows FROM device ORDER BY name_key"));
    }

    QStringList store_many(int count = MANY)
    {
        QStringList names;
        for (int number = 0; number < count; ++number) {
            names.append(qs("N%1").arg(number));
            store(names.last().toStdString());
        }
        m_window->refresh();
        return names;
    }

    // In two modes.
    void store_twice(const std::string& name)
    {
        store(name);
        run_foreign(qs("UPDATE device SET scheme = 7 WHERE name = '%1'").arg(QString::fromStdString(name)));
        m_window->refresh();
        store(name);
        m_window->refresh();
    }

    // From the history, what is not there.
    void bring_back()
    {
        GFPDB_DATABASE database{std::string()};
        const QStringList names = stored_names();
        for (const GFPDB_HISTORY_ENTRY& state : database.find_history({})) {
            if (!names.contains(QString::fromStdString(state.name())))
                manager().restore_flash(state.id, directory(), GFPDB_RESTORE_KEEP, std::string());
        }
        m_window->refresh();
    }

    // The window that shows how far many devices are: it is let be, or its button is clicked.
    void expect_progress(bool is_cancelled)
    {
        m_modals.expect([is_cancelled](QWidget* window) {
            if (is_cancelled)
                window->findChild<QAbstractButton*>()->click();
            else
                window->hide();
        });
    }

    // The database is not there for the window until come_back(): its server is gone, or another program has it.
    void go_away()
    {
        if (server() == nullptr) {
            lock(qs("EXCLUSIVE"));
            return;
        }
        m_proxy = std::make_unique<TCP_PROXY>(POSTGRES_SERVER::of_program().port());
        server()->go_through(m_proxy->port());
        m_window->refresh();
        QVERIFY(m_proxy->connections() > 0);
        m_proxy->refuse();
    }
    void come_back()
    {
        if (server() == nullptr)
            unlock();
        else
            m_proxy->refuse(false);
    }

    std::unique_ptr<TCP_PROXY> m_proxy;
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
        FAULT_INJECTOR::stop();
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
        // Built-in devices cannot be deleted: the next one is not to be one of them.
        store("A next");
        m_window->refresh();
        select({qs("A")});
        run_foreign(qs("DELETE FROM device WHERE name = 'A'"));
        m_window->refresh();
        QCOMPARE(devices().currentIndex().data().toString(), qs("A next"));
        QVERIFY(!m_window->findChild<QAction*>(qs("m_delete_action"))->isEnabled());
        press(Qt::Key_Delete);
        QCOMPARE(stored_names(), (QStringList{qs("A next"), qs("B"), qs("C")}));
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
        const QStringList names = store_many(30);
        select(names);
        run_foreign(qs("UPDATE device SET revision = 'other'"));
        expect_box(qs("The device \"N0\" was changed by "));
        press_delete(names);
        check_box();
        QCOMPARE(m_modals.last().text.count(QLatin1Char('\n')), 10);
        QVERIFY(m_modals.last().text.endsWith(qs("\n...")));
    }

    void many_are_one_act_data()
    {
        rows<bool, bool>(
            {{"to the end", false, false}, {"the delete cancelled", true, false}, {"the undo cancelled", false, true}});
    }

    void many_are_one_act()
    {
        const auto [is_delete_cancelled, is_undo_cancelled] = row<bool, bool>();
        const QStringList names = store_many();
        const QStringList before = content();
        expect_progress(is_delete_cancelled);
        press_delete(names);
        QCOMPARE(m_modals.last().class_name, qs("QProgressDialog"));
        const int deleted = before.size() - stored_names().size();
        QVERIFY(is_delete_cancelled ? deleted > 0 && deleted < MANY : deleted == MANY);
        const QString of_many = is_delete_cancelled ? qs(" of %1").arg(MANY) : QString();
        QCOMPARE(message(), qs("Devices deleted: %1%2. Ctrl+Z brings them back.").arg(deleted).arg(of_many));

        if (!is_delete_cancelled)
            expect_progress(is_undo_cancelled);
        press_undo();
        if (is_undo_cancelled) {
            const int missing = before.size() - stored_names().size();
            QVERIFY(missing > 0 && missing < MANY);
            QCOMPARE(message(), qs("Devices brought back: %1 of %2. Ctrl+Z goes on.").arg(MANY - missing).arg(MANY));
            QCOMPARE(undo().text(), qs("&Undo (Delete, devices: %1)").arg(missing));
            if (missing > 50)
                expect_progress(false);
            press_undo();
        }
        QCOMPARE(content(), before);
        QVERIFY(!undo().isEnabled());
    }

    // Ctrl+Z would bring back what was deleted before.
    void a_cancelled_delete_of_nothing_promises_nothing()
    {
        press_delete({qs("A")});
        const QStringList names = store_many();
        select(names);
        run_foreign(qs("UPDATE device SET revision = 'other'"));
        expect_progress(true);
        expect_box(qs("was changed by "));
        press(Qt::Key_Delete);
        check_box();
        QCOMPARE(message(), QString());
        QCOMPARE(undo().text(), qs("&Undo (Delete \"A\")"));
    }

    void a_database_that_is_not_there_loses_nothing()
    {
        const QStringList before = content();
        press_delete({qs("A"), qs("B")});
        select({qs("C")});
        go_away();
        expect_box(QString());
        press_delete({qs("C")});
        expect_box(QString());
        press_undo();
        come_back();
        m_window->refresh();
        press_undo();
        QCOMPARE(content(), before);
    }

    void a_fault_loses_nothing_data()
    {
        rows<int, int>({{"a full disk", int(FAULT_CALL::WRITE), ENOSPC},
                        {"a dying disk", int(FAULT_CALL::SYNC), EIO},
                        {"a share without locks", int(FAULT_CALL::LOCK), ENOLCK},
                        {"a disk that cannot be read", int(FAULT_CALL::READ), EIO}});
    }

    // At the first places, and at some of those that follow, in the delete and in the undo.
    void a_fault_loses_nothing()
    {
        const auto [call, error] = row<int, int>();
        const QStringList before = content();
        for (int at = 1, boxes = 1; boxes > 0; at += 1 + at / 5) {
            boxes = 0;
            for (const bool is_undo : {false, true}) {
                if (is_undo)
                    press_delete({qs("A"), qs("B")});
                else
                    select({qs("A"), qs("B")});
                const QStringList at_first = content();
                m_modals.expect(MODAL_DRIVER::accept());
                FAULT_INJECTOR::inject(directory(), {FAULT_CALL(call), at, error, true});
                press(is_undo ? Qt::Key_Z : Qt::Key_Delete, is_undo ? Qt::ControlModifier : Qt::NoModifier);
                FAULT_INJECTOR::stop();
                const QString box = m_modals.met().isEmpty() ? QString() : m_modals.last().text;
                boxes += m_modals.met().size();
                m_modals.reset();
                m_window->refresh();
                const bool is_known = !box.contains(qs("Whether the change was stored"));
                QVERIFY(!is_known || message().isEmpty() == (content() == at_first));
                QVERIFY(!is_known || undo().isEnabled() == (content() != before));
                if (undo().isEnabled())
                    press_undo();
                if (!is_known)
                    bring_back();
                QCOMPARE(content(), before);
            }
        }
    }

    // Nobody waits for each of many devices to hear the same.
    void what_is_wrong_for_all_is_not_tried_with_each()
    {
        const QStringList names = store_many(40);
        select(names);
        expect_box(qs("locked"));
        FAULT_INJECTOR::inject(directory(), {FAULT_CALL::LOCK, 1, ENOLCK, true});
        press(Qt::Key_Delete);
        FAULT_INJECTOR::stop();
        check_box();
        QVERIFY2(FAULT_INJECTOR::count(FAULT_CALL::LOCK) < names.size(),
                 qPrintable(QString::number(FAULT_INJECTOR::count(FAULT_CALL::LOCK))));
        QCOMPARE(m_modals.last().text.count(QLatin1Char('\n')), 0);
    }

    // The same is said of both devices of one name, and yet not of those that follow.
    void what_is_wrong_for_two_of_one_name_keeps_no_other_from_a_delete()
    {
        store_twice("A");
        select({qs("A"), qs("B"), qs("C")});
        run_foreign(qs("DELETE FROM device WHERE name = 'A'"));
        expect_box(qs("The device \"A\" was deleted by another program already."));
        press(Qt::Key_Delete);
        check_box();
        QCOMPARE(stored_names(), QStringList());
        QCOMPARE(undo().text(), qs("&Undo (Delete, devices: 2)"));
    }

    void what_is_wrong_for_two_of_one_name_keeps_no_other_from_an_undo_data()
    {
        rows<QString, QString>({{"taken", "A", "A device called \"A\" already exists."},
                                {"taken in another case", "a", "A device called \"a\" already exists."},
                                {"lost by the history", "", "The history does not have the device \"A\" any more."}});
    }

    void what_is_wrong_for_two_of_one_name_keeps_no_other_from_an_undo()
    {
        const auto [taken, expected] = row<QString, QString>();
        store_twice("A");
        press_delete({qs("A"), qs("B"), qs("C")});
        QCOMPARE(stored_names(), QStringList());
        if (taken.isEmpty())
            run_foreign(qs("DELETE FROM history WHERE name = 'A'"));
        else
            store_twice(taken.toStdString());
        expect_box(expected);
        press_undo();
        check_box();
        QCOMPARE(stored_names().mid(stored_names().indexOf(qs("B"))), (QStringList{qs("B"), qs("C")}));
        QCOMPARE(undo().isEnabled(), !taken.isEmpty());
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
