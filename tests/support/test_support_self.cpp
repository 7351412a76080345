// SPDX-License-Identifier: MIT

// The test support itself: what it promises to notice, it notices.
#include "gui_test.h"

#include "kovq/kovq_connect.h"

#include <QMenu>
#include <QProcess>
#include <QPushButton>

class TEST_SUPPORT_SELF : public GUI_TEST
{
    Q_OBJECT

private slots:
    void the_driver_records_a_box_and_clicks_its_button()
    {
        QMessageBox box;
        box.setWindowTitle(QStringLiteral("Title"));
        box.setText(QStringLiteral("<b>text</b>"));
        box.setTextFormat(Qt::PlainText);
        box.setIcon(QMessageBox::Critical);
        m_modals.expect(MODAL_DRIVER::accept());

        QCOMPARE(box.exec(), static_cast<int>(QMessageBox::Ok));

        QCOMPARE(m_modals.met().size(), 1);
        QCOMPARE(m_modals.last().title, QStringLiteral("Title"));
        QCOMPARE(m_modals.last().text, QStringLiteral("<b>text</b>"));
        QCOMPARE(m_modals.last().text_format, Qt::PlainText);
        QCOMPARE(m_modals.last().icon, QMessageBox::Critical);
        QCOMPARE(m_modals.last().buttons, QStringList{QStringLiteral("OK")});
        QVERIFY(m_modals.problems().isEmpty());
    }

    void an_unexpected_modal_window_is_a_problem()
    {
        QMessageBox box;

        box.exec();

        QCOMPARE(m_modals.problems().size(), 1);
        m_modals.reset();
    }

    void an_expected_modal_window_that_never_comes_is_a_problem()
    {
        m_modals.expect(MODAL_DRIVER::accept());

        QCOMPARE(m_modals.problems().size(), 1);
        m_modals.reset();
    }

    void a_modal_window_left_open_is_closed_and_a_problem()
    {
        QDialog dialog;
        m_modals.expect([](QWidget*) {});

        QCOMPARE(dialog.exec(), static_cast<int>(QDialog::Rejected));

        QCOMPARE(m_modals.problems().size(), 1);
        m_modals.reset();
    }

    void a_menu_is_met_and_its_entry_triggered()
    {
        QMenu menu;
        menu.addAction(QStringLiteral("Copy"));
        menu.addSeparator();
        QAction* const paste = menu.addAction(QStringLiteral("Paste"));
        m_modals.expect(MODAL_DRIVER::trigger(QStringLiteral("Paste")));

        QCOMPARE(menu.exec(QPoint(10, 10)), paste);

        const QStringList entries{QStringLiteral("Copy"), QStringLiteral("-"), QStringLiteral("Paste")};
        QCOMPARE(m_modals.last().menu_entries, entries);
    }

    void calls_of_all_doubles_are_in_one_order()
    {
        mgr().can_add_flash();
        {
            MSG_O message;
            message.set_id(7);
        }
        KOVQ_NATIVE_FILE_DLG dialog(nullptr);
        dialog.exec();

        const QStringList expected{QStringLiteral("mgr.can_add_flash()"),    QStringLiteral("MSG_O.created(null)"),
                                   QStringLiteral("MSG_O.set_id(7)"),        QStringLiteral("MSG_O.destroyed()"),
                                   QStringLiteral("file_dlg.created(null)"), QStringLiteral("file_dlg.exec()")};
        QCOMPARE(log().calls(), expected);
    }

    void hooks_run_at_the_call()
    {
        log().on_call(QStringLiteral("can_add_flash"), [this](const QString&) { mgr().add_allowed = false; });

        QVERIFY(!mgr().can_add_flash());
    }

    void a_failed_connection_is_reported()
    {
        QPushButton button;
        expect_warning(QStringLiteral("No such slot"));

        QVERIFY_EXCEPTION_THROWN(kovq_safe_connect(&button, SIGNAL(clicked()), &button, SLOT(no_such_slot())),
                                 INTERNAL_ERROR_REPORTED);

        QCOMPARE(reported_internal_errors().size(), std::size_t(1));
    }

    void a_successful_save_is_followed_by_the_lists()
    {
        GFPDB_FLASH* const flash = mgr().create_flash("A");

        QVERIFY(mgr().save_flash(flash, "/db/"));

        QCOMPARE(mgr().custom_names, std::vector<std::string>{"A"});
        QCOMPARE(mgr().find_flash("A", true), flash);
        QVERIFY(mgr().delete_flash("A", "/db/"));
        QVERIFY(mgr().custom_names.empty());
        QVERIFY(mgr().find_flash("A", true) == nullptr);
    }

    void the_base_class_notices_what_a_test_leaves_behind()
    {
        QProcess flawed;
        flawed.start(QStringLiteral(GFPQ_FLAWED_TEST), QStringList());
        QVERIFY(flawed.waitForFinished());

        const QString output = QString::fromLocal8Bit(flawed.readAllStandardOutput());
        // Seven functions, and the two of the frame around them.
        QVERIFY2(output.contains(QLatin1String("Totals: 2 passed, 7 failed, 0 skipped")), qPrintable(output));
    }
};

GFPQ_TEST_MAIN(TEST_SUPPORT_SELF)

#include "test_support_self.moc"
