// SPDX-License-Identifier: MIT

// The custom database directory, typed by the user.
#include "dialog_test.h"

#include "marking_translator.h"

#include <QFocusEvent>

namespace {

const QStringList DIRECTORY_CALLS{qs("save_custom_dir_to_ini"),  qs("set_db_custom_dir"),
                                  qs("set_active_flash_family"), qs("get_active_flash_manager"),
                                  qs("set_device_family"),       qs("set_config_scheme"),
                                  qs("can_add_flash"),           qs("get_custom_flash_names"),
                                  qs("get_builtin_flash_names"), qs("find_flash")};

} // namespace

class TEST_DIRECTORY : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    // The scheme that is made active is the one of the start or of the last OK.
    void a_new_directory_calls_in_order()
    {
        mgr().add_custom("A");
        mgr().add_builtin("B");
        open_with("B");
        choose("m_config_mode_cbox", SCHEME_X1);
        choose("m_family_cbox", ALDER);
        tabs().setCurrentIndex(2);
        // The row is what stays, not the name that is being typed.
        type_in("m_device_name_edit", "A");
        log().clear();

        enter("m_directory_edit", "/other");

        QStringList expected =
            list_of({R"(GFPDB_MGR.save_custom_dir_to_ini("/other/", false))",
                     R"(GFPDB_MGR.set_db_custom_dir("/other/"))", "GFPDB_HELPER.set_active_flash_family(13)",
                     "GFPDB_HELPER.get_active_flash_manager(true)", "mgr.set_device_family(3)",
                     "mgr.set_config_scheme(7)", "mgr.can_add_flash()", "mgr.get_custom_flash_names(3, 7, 0)",
                     "mgr.get_builtin_flash_names(3, 7, 0)", R"(mgr.find_flash("B", true))"});
        QCOMPARE(directory_calls(), expected);
        QCOMPARE(calls_of({"get_family_list", "get_config_scheme_list"}), QStringList());
        QCOMPARE(text("m_directory_edit"), qs("/other/"));
        QCOMPARE(tabs().currentIndex(), 2);
        QCOMPARE(current_row(), qs("B"));
        // Only OK changes what is handed back.
        QCOMPARE(dlg().family(), CEDAR);
        QCOMPARE(dlg().config_scheme(), SCHEME_X4);

        button("m_ok_button").click();
        log().clear();
        enter("m_directory_edit", "/third");
        QCOMPARE(calls_of({"set_active_flash_family"}), list_of({"GFPDB_HELPER.set_active_flash_family(7)"}));
        // Selecting works again.
        pick("A");
        QCOMPARE(calls_of({"find_flash"}), list_of({R"(mgr.find_flash("B", true))", R"(mgr.find_flash("A", true))"}));
    }

    void the_edit_shows_what_the_library_made_of_the_directory()
    {
        world().canonical_dir = [](const std::string&) { return std::string("/canonical/"); };
        open();
        QString shown_meanwhile;
        log().on_call(qs("can_edit_flow"), [&](const QString&) { shown_meanwhile = edit("m_directory_edit").text(); });

        enter("m_directory_edit", "/other");

        // After everything else.
        QCOMPARE(shown_meanwhile, qs("/other"));
        QCOMPARE(text("m_directory_edit"), qs("/canonical/"));
    }

    void a_new_directory_can_replace_the_manager()
    {
        open();
        MGR_DOUBLE& other = switch_manager();
        other.add_custom("B");

        enter("m_directory_edit", "/other");

        QCOMPARE(log().calls().filter(qs("mgr.")), QStringList());
        QCOMPARE(all_rows(), list_of({"<<new device>>", "B"}));
    }

    // Apply saves nothing while a built-in device is the current one.
    void a_new_directory_forgets_the_record_that_is_gone()
    {
        mgr().add_builtin("B");
        mgr().add_allowed = false;
        open_with("B");
        mgr().builtin_names.clear();

        enter("m_directory_edit", "/other");
        run("on_apply_clicked");

        QCOMPARE(count_of("create_flash"), 1);
    }

    // The record belongs to the manager that goes.
    void the_record_is_forgotten_before_the_manager_is_fetched()
    {
        mgr().add_custom("A");
        open_with("A");
        log().on_call(qs("get_active_flash_manager"), [this](const QString&) { run("on_delete_clicked"); });

        enter("m_directory_edit", "/other");

        QCOMPARE(count_of("delete_flash"), 0);
    }

    void a_typed_directory_gets_its_slashes_right_data()
    {
        rows<QString, QString>({{"without", "/other", "/other/"},
                                {"with", "/other/", "/other/"},
                                {"doubled", "/other//sub//", "/other/sub/"},
                                {"back slashes", "/other\\sub\\", "/other/sub/"},
                                {"blank at the end", "/other ", "/other /"},
                                {"relative", "other", "other/"}});
    }

    void a_typed_directory_gets_its_slashes_right()
    {
        const auto [typed, saved] = row<QString, QString>();
        open();

        enter("m_directory_edit", typed);

        QCOMPARE(calls_of({"save_custom_dir_to_ini", "set_db_custom_dir"}),
                 QStringList({qs("GFPDB_MGR.save_custom_dir_to_ini(\"%1\", false)").arg(saved),
                              qs("GFPDB_MGR.set_db_custom_dir(\"%1\")").arg(saved)}));
    }

    void the_same_directory_changes_nothing_data()
    {
        rows<QString, QString>({{"untouched", "/db/custom/", "/db/custom/"},
                                {"without separator", "/db/custom", "/db/custom/"},
                                {"more separators", "/db//custom//", "/db/custom/"},
                                {"other case", "/DB/Custom/", "/db/custom/"},
                                {"back slashes", "\\db\\custom", "/db/custom/"},
                                {"empty", "", "/db/custom/"},
                                {"both empty", "", ""},
                                // Shown byte by byte, and kept so.
                                {"letters", QString::fromLatin1("/db/M\xC3\xBCller/"), "/db/M\xC3\xBCller/"}});
    }

    void the_same_directory_changes_nothing()
    {
        const auto [typed, directory] = row<QString, QString>();
        world().custom_dir = directory.toStdString();
        open();

        enter("m_directory_edit", typed);

        QCOMPARE(calls(), QStringList());
        QCOMPARE(text("m_directory_edit"), QString::fromLatin1(directory.toUtf8()));
    }

    void another_directory_is_taken_over_data()
    {
        rows<QString, QString>({{"letters outside ASCII in another case", "/db/gr\xC3\xBCn/", "/db/gr\xC3\x9CN/"},
                                {"separator that the library leaves out", "/db/custom", "/db/custom/"}});
    }

    void another_directory_is_taken_over()
    {
        const auto [directory, typed] = row<QString, QString>();
        world().custom_dir = directory.toStdString();
        open();

        enter("m_directory_edit", typed);

        QCOMPARE(calls_of({"save_custom_dir_to_ini"}),
                 QStringList(qs("GFPDB_MGR.save_custom_dir_to_ini(\"%1\", false)").arg(typed)));
    }

    void a_refused_directory_is_put_back_and_reported()
    {
        const MARKING_TRANSLATOR translator("gfpq_dlg");
        mgr().add_custom("A");
        open_with("A");
        world().save_dir_succeeds = false;
        QString shown_meanwhile;
        m_modals.expect([&](QWidget* box) {
            shown_meanwhile = text("m_directory_edit");
            MODAL_DRIVER::accept()(box);
        });

        enter("m_directory_edit", "\\no\\\\<b>way</b>//");

        QCOMPARE(calls(), list_of({R"(GFPDB_MGR.save_custom_dir_to_ini("/no/<b>way</b>/", false))"}));
        QCOMPARE(shown_meanwhile, qs("/db/custom/"));
        QCOMPARE(text("m_directory_edit"), qs("/db/custom/"));
        const MET_MODAL& box = m_modals.last();
        QCOMPARE(box.text, qs("[Failed to set the custom database directory to ]\\no\\\\<b>way</b>//\n"));
        QCOMPARE(box.icon, QMessageBox::Warning);
        QCOMPARE(box.title, QString());
        QCOMPARE(box.buttons, list_of({"OK"}));
        QCOMPARE(box.text_format, Qt::PlainText);
        QVERIFY(box.is_modal);
        QVERIFY(!box.has_parent);
        QCOMPARE(current_row(), qs("A"));
    }

    void a_typed_directory_goes_out_as_local_8_bit()
    {
        open();
        world().save_dir_succeeds = false;
        m_modals.expect(MODAL_DRIVER::accept());
        m_modals.expect(MODAL_DRIVER::accept());

        enter("m_directory_edit", "/M\xC3\xBCller");
        QCOMPARE(calls(), QStringList(qs("GFPDB_MGR.save_custom_dir_to_ini(\"/M\xC3\xBCller/\", false)")));
        QCOMPARE(m_modals.last().text, qs("Failed to set the custom database directory to /M\xC3\xBCller\n"));

        // What is put back is shown byte by byte again.
        world().custom_dir = "/db/M\xC3\xBCller/";
        enter("m_directory_edit", "/no");
        QCOMPARE(text("m_directory_edit"), QString::fromLatin1("/db/M\xC3\xBCller/"));

        world().save_dir_succeeds = true;
        world().canonical_dir = [](const std::string&) { return std::string("/\xC3\xA4/"); };
        enter("m_directory_edit", "/yes");
        QCOMPARE(text("m_directory_edit"), QString::fromLatin1("/\xC3\xA4/"));
    }

    void a_manager_that_is_gone_is_an_internal_error()
    {
        unwind_through_qt();
        open();
        world().active = nullptr;

        QVERIFY_EXCEPTION_THROWN(enter("m_directory_edit", "/other"), INTERNAL_ERROR_REPORTED);

        const INTERNAL_ERROR_REPORTED& error = reported_internal_errors().back();
        QCOMPARE(error.condition, std::string("m_gfpdb_mgr != nullptr"));
        QCOMPARE(error.category, std::string("GFPQ"));
        QCOMPARE(error.source, std::string("pgm/gfpq/gfpq_dlg"));
        QCOMPARE(count_of("set_device_family"), 0);
    }

    void losing_the_focus_takes_the_directory_over_data()
    {
        rows<int, bool>({{"mouse", Qt::MouseFocusReason, true},
                         {"tab", Qt::TabFocusReason, true},
                         {"back tab", Qt::BacktabFocusReason, true},
                         {"other window", Qt::ActiveWindowFocusReason, true},
                         {"shortcut", Qt::ShortcutFocusReason, true},
                         {"menu bar", Qt::MenuBarFocusReason, true},
                         {"other", Qt::OtherFocusReason, true},
                         {"own context menu", Qt::PopupFocusReason, false}});
    }

    void losing_the_focus_takes_the_directory_over()
    {
        const auto [reason, taken] = row<int, bool>();
        open();
        show_dialog();
        type_in("m_directory_edit", "/other");
        QFocusEvent focus_out(QEvent::FocusOut, static_cast<Qt::FocusReason>(reason));

        // Never consumed.
        QVERIFY(!dlg().eventFilter(&edit("m_directory_edit"), &focus_out));

        QCOMPARE(count_of("save_custom_dir_to_ini"), taken ? 1 : 0);
        QCOMPARE(text("m_directory_edit"), taken ? qs("/other/") : qs("/other"));
    }

    void moving_on_with_tab_takes_the_directory_over()
    {
        open();
        show_dialog();
        edit("m_directory_edit").setFocus();
        QVERIFY(edit("m_directory_edit").hasFocus());
        edit("m_directory_edit").selectAll();
        QTest::keyClicks(&edit("m_directory_edit"), qs("/typed"));

        QTest::keyClick(&edit("m_directory_edit"), Qt::Key_Tab);

        QVERIFY(button("m_browse_button").hasFocus());
        QCOMPARE(calls_of({"set_db_custom_dir"}), list_of({R"(GFPDB_MGR.set_db_custom_dir("/typed/"))"}));
    }

    void other_events_and_other_widgets_do_nothing()
    {
        open();
        show_dialog();
        type_in("m_directory_edit", "/other");
        QFocusEvent focus_in(QEvent::FocusIn, Qt::TabFocusReason);
        QFocusEvent focus_out(QEvent::FocusOut, Qt::TabFocusReason);

        QCoreApplication::sendEvent(&edit("m_directory_edit"), &focus_in);
        QCoreApplication::sendEvent(&edit("m_filter_line_edit"), &focus_out);
        dlg().eventFilter(&edit("m_filter_line_edit"), &focus_out);

        QCOMPARE(calls(), QStringList());
    }

    void cancel_asks_nothing_data()
    {
        rows_named<QString>({"mouse on Cancel", "keyboard to Cancel", "Escape", "close button", "hidden"});
    }

    void cancel_asks_nothing()
    {
        const QString way = row<QString>();
        world().save_dir_succeeds = false;
        open();
        show_dialog();
        edit("m_directory_edit").setFocus();
        QVERIFY(edit("m_directory_edit").hasFocus());
        type_in("m_directory_edit", "/no");

        if (way == QLatin1String("mouse on Cancel")) {
            QTest::mouseClick(&button("m_cancel_button"), Qt::LeftButton);
        } else if (way == QLatin1String("keyboard to Cancel")) {
            button("m_cancel_button").setFocus(Qt::TabFocusReason);
            QTest::keyClick(&button("m_cancel_button"), Qt::Key_Space);
        } else if (way == QLatin1String("Escape")) {
            QTest::keyClick(&edit("m_directory_edit"), Qt::Key_Escape);
        } else if (way == QLatin1String("close button")) {
            dlg().close();
        } else {
            dlg().hide();
        }

        QVERIFY(!dlg().isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(calls(), QStringList());
    }

    void a_refused_directory_is_reported_once()
    {
        world().save_dir_succeeds = false;
        open();
        show_dialog();
        edit("m_directory_edit").setFocus();
        QVERIFY(edit("m_directory_edit").hasFocus());
        m_modals.expect(MODAL_DRIVER::accept());

        enter("m_directory_edit", "/no");
        QCoreApplication::processEvents();

        QCOMPARE(count_of("save_custom_dir_to_ini"), 1);
        QCOMPARE(m_modals.met().size(), 1);
    }

private:
    QStringList directory_calls() const { return log().calls_of(DIRECTORY_CALLS); }
};

GFPQ_TEST_MAIN(TEST_DIRECTORY)

#include "test_directory.moc"
