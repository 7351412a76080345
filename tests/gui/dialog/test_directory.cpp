// SPDX-License-Identifier: MIT

// The custom database directory, typed by the user.
#include "dialog_test.h"

#include "marking_translator.h"

#include <QFocusEvent>

namespace {

const QStringList DIRECTORY_CALLS{QStringLiteral("save_custom_dir_to_ini"),  QStringLiteral("set_db_custom_dir"),
                                  QStringLiteral("set_active_flash_family"), QStringLiteral("get_active_flash_manager"),
                                  QStringLiteral("set_device_family"),       QStringLiteral("set_config_scheme"),
                                  QStringLiteral("can_add_flash"),           QStringLiteral("get_custom_flash_names"),
                                  QStringLiteral("get_builtin_flash_names"), QStringLiteral("find_flash")};

} // namespace

class TEST_DIRECTORY : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_new_directory_calls_in_order();
    void the_edit_shows_what_the_library_made_of_the_directory();
    void the_combos_are_not_refilled();
    void a_new_directory_can_replace_the_manager();
    void a_new_directory_keeps_the_tab_and_the_device();
    void a_new_directory_forgets_the_record_that_is_gone();
    void the_record_is_forgotten_before_the_manager_is_fetched();
    void selecting_works_again_after_a_new_directory();
    void a_typed_directory_gets_its_slashes_right_data();
    void a_typed_directory_gets_its_slashes_right();
    void the_same_directory_changes_nothing_data();
    void the_same_directory_changes_nothing();
    void an_empty_edit_stands_for_the_current_directory();
    void empty_edit_and_empty_directory_change_nothing();
    void a_refused_directory_is_put_back_and_told();
    void a_refused_directory_is_told_as_it_was_typed();
    void a_refused_directory_is_told_in_the_users_language();
    void a_directory_with_other_letters_is_kept_byte_for_byte();
    void a_typed_directory_goes_out_as_local_8_bit();
    void a_manager_that_is_gone_is_an_internal_error();
    void the_scheme_made_active_is_the_one_of_the_start();
    void the_scheme_made_active_is_the_one_of_the_last_ok();
    void losing_the_focus_takes_the_directory_over_data();
    void losing_the_focus_takes_the_directory_over();
    void moving_on_with_tab_takes_the_directory_over();
    void the_filter_never_consumes();
    void other_events_and_other_widgets_do_nothing();
    void cancel_asks_nothing_data();
    void cancel_asks_nothing();
    void a_refused_directory_is_told_once();

private:
    QStringList directory_calls() const { return log().calls_of(DIRECTORY_CALLS); }
};

void TEST_DIRECTORY::a_new_directory_calls_in_order()
{
    mgr().add_custom("A");
    open_with("A");
    choose("m_config_mode_cbox", SCHEME_X1);
    choose("m_family_cbox", ALDER);
    log().clear();

    enter("m_directory_edit", QStringLiteral("/other"));

    QCOMPARE(directory_calls(),
             list_of({R"(GFPDB_MGR.save_custom_dir_to_ini("/other/", false))",
                      R"(GFPDB_MGR.set_db_custom_dir("/other/"))", "GFPDB_HELPER.set_active_flash_family(13)",
                      "GFPDB_HELPER.get_active_flash_manager(true)", "mgr.set_device_family(3)",
                      "mgr.set_config_scheme(7)", "mgr.can_add_flash()", "mgr.get_custom_flash_names(3, 7, 0)",
                      "mgr.get_builtin_flash_names(3, 7, 0)", R"(mgr.find_flash("A", true))"}));
    QCOMPARE(edit("m_directory_edit").text(), QStringLiteral("/other/"));
}

void TEST_DIRECTORY::the_edit_shows_what_the_library_made_of_the_directory()
{
    world().canonical_dir = [](const std::string&) { return std::string("/canonical/"); };
    open();
    QString shown_meanwhile;
    log().on_call(qs("can_edit_flow"), [&](const QString&) { shown_meanwhile = edit("m_directory_edit").text(); });

    enter("m_directory_edit", QStringLiteral("/other"));

    // After everything else.
    QCOMPARE(shown_meanwhile, QStringLiteral("/other"));
    QCOMPARE(edit("m_directory_edit").text(), QStringLiteral("/canonical/"));
}

void TEST_DIRECTORY::the_combos_are_not_refilled()
{
    open();

    enter("m_directory_edit", QStringLiteral("/other"));

    QCOMPARE(log().count(qs("get_family_list")), 0);
    QCOMPARE(log().count(qs("get_config_scheme_list")), 0);
}

void TEST_DIRECTORY::a_new_directory_can_replace_the_manager()
{
    open();
    MGR_DOUBLE& other = world().add_manager(QStringLiteral("other"));
    other.add_custom("B");
    world().active = &other;

    enter("m_directory_edit", QStringLiteral("/other"));

    QCOMPARE(log().calls().filter(QStringLiteral("mgr.")), QStringList());
    QCOMPARE(all_rows(), list_of({"<<new device>>", "B"}));
}

void TEST_DIRECTORY::a_new_directory_keeps_the_tab_and_the_device()
{
    mgr().add_custom("A");
    mgr().add_custom("B");
    open_with("B");
    tabs().setCurrentIndex(2);

    enter("m_directory_edit", QStringLiteral("/other"));

    QCOMPARE(tabs().currentIndex(), 2);
    QCOMPARE(current_row(), QStringLiteral("B"));
}

// Apply saves nothing while a built-in device is the current one.
void TEST_DIRECTORY::a_new_directory_forgets_the_record_that_is_gone()
{
    mgr().add_builtin("B");
    mgr().add_allowed = false;
    open_with("B");
    mgr().builtin_names.clear();

    enter("m_directory_edit", QStringLiteral("/other"));
    run("on_apply_clicked");

    QCOMPARE(log().count(qs("create_flash")), 1);
}

// The record belongs to the manager that goes.
void TEST_DIRECTORY::the_record_is_forgotten_before_the_manager_is_fetched()
{
    mgr().add_custom("A");
    open_with("A");
    log().on_call(qs("get_active_flash_manager"), [this](const QString&) { run("on_delete_clicked"); });

    enter("m_directory_edit", QStringLiteral("/other"));

    QCOMPARE(log().count(qs("delete_flash")), 0);
}

void TEST_DIRECTORY::selecting_works_again_after_a_new_directory()
{
    mgr().add_custom("A");
    open();
    enter("m_directory_edit", QStringLiteral("/other"));
    log().clear();

    pick(QStringLiteral("A"));

    QCOMPARE(log().count(qs("find_flash")), 1);
}

void TEST_DIRECTORY::a_typed_directory_gets_its_slashes_right_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("saved");

    QTest::newRow("without") << qs("/other") << qs("/other/");
    QTest::newRow("with") << qs("/other/") << qs("/other/");
    QTest::newRow("doubled") << qs("/other//sub//") << qs("/other/sub/");
    QTest::newRow("back slashes") << qs("/other\\sub\\") << qs("/other/sub/");
    QTest::newRow("blank at the end") << qs("/other ") << qs("/other /");
    QTest::newRow("relative") << qs("other") << qs("other/");
}

void TEST_DIRECTORY::a_typed_directory_gets_its_slashes_right()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, saved);
    open();

    enter("m_directory_edit", typed);

    QCOMPARE(log().calls_of({qs("save_custom_dir_to_ini"), qs("set_db_custom_dir")}),
             QStringList({QStringLiteral("GFPDB_MGR.save_custom_dir_to_ini(\"%1\", false)").arg(saved),
                          QStringLiteral("GFPDB_MGR.set_db_custom_dir(\"%1\")").arg(saved)}));
}

void TEST_DIRECTORY::the_same_directory_changes_nothing_data()
{
    QTest::addColumn<QString>("typed");

    QTest::newRow("untouched") << qs("/db/custom/");
    QTest::newRow("without separator") << qs("/db/custom");
    QTest::newRow("more separators") << qs("/db//custom//");
    QTest::newRow("other case") << qs("/DB/Custom/");
    QTest::newRow("back slashes") << qs("\\db\\custom");
}

void TEST_DIRECTORY::the_same_directory_changes_nothing()
{
    QFETCH(const QString, typed);
    open();

    enter("m_directory_edit", typed);

    QCOMPARE(calls(), QStringList());
    QCOMPARE(edit("m_directory_edit").text(), QStringLiteral("/db/custom/"));
}

void TEST_DIRECTORY::an_empty_edit_stands_for_the_current_directory()
{
    open();

    enter("m_directory_edit", QString());

    QCOMPARE(calls(), QStringList());
    QCOMPARE(edit("m_directory_edit").text(), QStringLiteral("/db/custom/"));
}

void TEST_DIRECTORY::empty_edit_and_empty_directory_change_nothing()
{
    world().custom_dir.clear();
    open();

    enter("m_directory_edit", QString());

    QCOMPARE(calls(), QStringList());
    QCOMPARE(edit("m_directory_edit").text(), QString());
}

void TEST_DIRECTORY::a_refused_directory_is_put_back_and_told()
{
    mgr().add_custom("A");
    open_with("A");
    world().save_dir_succeeds = false;
    QString shown_meanwhile;
    m_modals.expect([&](QWidget* box) {
        shown_meanwhile = edit("m_directory_edit").text();
        MODAL_DRIVER::accept()(box);
    });

    enter("m_directory_edit", QStringLiteral("/no"));

    QCOMPARE(calls(), list_of({R"(GFPDB_MGR.save_custom_dir_to_ini("/no/", false))"}));
    QCOMPARE(shown_meanwhile, QStringLiteral("/db/custom/"));
    QCOMPARE(edit("m_directory_edit").text(), QStringLiteral("/db/custom/"));
    const MET_MODAL& box = m_modals.last();
    QCOMPARE(box.text, QStringLiteral("Failed to set the custom database directory to /no\n"));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.title, QString());
    QCOMPARE(box.buttons, list_of({"OK"}));
    QCOMPARE(box.text_format, Qt::PlainText);
    QVERIFY(box.is_modal);
    QVERIFY(!box.has_parent);
    QCOMPARE(current_row(), QStringLiteral("A"));
}

void TEST_DIRECTORY::a_refused_directory_is_told_in_the_users_language()
{
    const MARKING_TRANSLATOR translator("gfpq_dlg");
    open();
    world().save_dir_succeeds = false;
    m_modals.expect(MODAL_DRIVER::accept());

    enter("m_directory_edit", QStringLiteral("/no"));

    QCOMPARE(m_modals.last().text, QStringLiteral("[Failed to set the custom database directory to ]/no\n"));
}

void TEST_DIRECTORY::a_refused_directory_is_told_as_it_was_typed()
{
    open();
    world().save_dir_succeeds = false;
    m_modals.expect(MODAL_DRIVER::accept());

    enter("m_directory_edit", QStringLiteral("\\no\\\\<b>way</b>//"));

    QCOMPARE(m_modals.last().text,
             QStringLiteral("Failed to set the custom database directory to \\no\\\\<b>way</b>//\n"));
}

void TEST_DIRECTORY::a_directory_with_other_letters_is_kept_byte_for_byte()
{
    world().custom_dir = "/db/M\xC3\xBCller/";
    open();

    enter("m_directory_edit", edit("m_directory_edit").text());

    QCOMPARE(calls(), QStringList());
    QCOMPARE(edit("m_directory_edit").text(), QString::fromLatin1("/db/M\xC3\xBCller/"));
}

void TEST_DIRECTORY::a_typed_directory_goes_out_as_local_8_bit()
{
    open();
    world().save_dir_succeeds = false;
    m_modals.expect(MODAL_DRIVER::accept());
    m_modals.expect(MODAL_DRIVER::accept());

    enter("m_directory_edit", qs("/M\xC3\xBCller"));
    QCOMPARE(calls(), QStringList(qs("GFPDB_MGR.save_custom_dir_to_ini(\"/M\xC3\xBCller/\", false)")));
    QCOMPARE(m_modals.last().text, qs("Failed to set the custom database directory to /M\xC3\xBCller\n"));

    // What is put back is shown byte by byte again.
    world().custom_dir = "/db/M\xC3\xBCller/";
    enter("m_directory_edit", QStringLiteral("/no"));
    QCOMPARE(edit("m_directory_edit").text(), QString::fromLatin1("/db/M\xC3\xBCller/"));

    world().save_dir_succeeds = true;
    world().canonical_dir = [](const std::string&) { return std::string("/\xC3\xA4/"); };
    enter("m_directory_edit", QStringLiteral("/yes"));
    QCOMPARE(edit("m_directory_edit").text(), QString::fromLatin1("/\xC3\xA4/"));
}

void TEST_DIRECTORY::a_manager_that_is_gone_is_an_internal_error()
{
    unwind_through_qt();
    open();
    world().active = nullptr;

    QVERIFY_EXCEPTION_THROWN(enter("m_directory_edit", QStringLiteral("/other")), INTERNAL_ERROR_REPORTED);

    const INTERNAL_ERROR_REPORTED& error = reported_internal_errors().back();
    QCOMPARE(error.condition, std::string("m_gfpdb_mgr != nullptr"));
    QCOMPARE(error.category, std::string("GFPQ"));
    QCOMPARE(error.source, std::string("pgm/gfpq/gfpq_dlg"));
    QCOMPARE(log().count(qs("set_device_family")), 0);
}

void TEST_DIRECTORY::the_scheme_made_active_is_the_one_of_the_start()
{
    open();
    choose("m_config_mode_cbox", SCHEME_X1);
    log().clear();

    enter("m_directory_edit", QStringLiteral("/other"));

    QCOMPARE(log().calls_of({qs("set_active_flash_family"), qs("set_config_scheme")}),
             list_of({"GFPDB_HELPER.set_active_flash_family(13)", "mgr.set_config_scheme(7)"}));
}

void TEST_DIRECTORY::the_scheme_made_active_is_the_one_of_the_last_ok()
{
    mgr().add_builtin("A");
    open_with("A");
    choose("m_config_mode_cbox", SCHEME_X1);
    button("m_ok_button").click();
    log().clear();

    enter("m_directory_edit", QStringLiteral("/other"));

    QCOMPARE(log().calls_of({qs("set_active_flash_family")}), list_of({"GFPDB_HELPER.set_active_flash_family(7)"}));
}

void TEST_DIRECTORY::losing_the_focus_takes_the_directory_over_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<bool>("taken");

    QTest::newRow("mouse") << static_cast<int>(Qt::MouseFocusReason) << true;
    QTest::newRow("tab") << static_cast<int>(Qt::TabFocusReason) << true;
    QTest::newRow("back tab") << static_cast<int>(Qt::BacktabFocusReason) << true;
    QTest::newRow("other window") << static_cast<int>(Qt::ActiveWindowFocusReason) << true;
    QTest::newRow("shortcut") << static_cast<int>(Qt::ShortcutFocusReason) << true;
    QTest::newRow("menu bar") << static_cast<int>(Qt::MenuBarFocusReason) << true;
    QTest::newRow("other") << static_cast<int>(Qt::OtherFocusReason) << true;
    QTest::newRow("own context menu") << static_cast<int>(Qt::PopupFocusReason) << false;
}

void TEST_DIRECTORY::losing_the_focus_takes_the_directory_over()
{
    QFETCH(const int, reason);
    QFETCH(const bool, taken);
    open();
    show_dialog();
    edit("m_directory_edit").setText(QStringLiteral("/other"));

    QFocusEvent focus_out(QEvent::FocusOut, static_cast<Qt::FocusReason>(reason));
    QCoreApplication::sendEvent(&edit("m_directory_edit"), &focus_out);

    QCOMPARE(log().count(qs("save_custom_dir_to_ini")), taken ? 1 : 0);
    QCOMPARE(edit("m_directory_edit").text(), taken ? QStringLiteral("/other/") : QStringLiteral("/other"));
}

void TEST_DIRECTORY::moving_on_with_tab_takes_the_directory_over()
{
    open();
    show_dialog();
    edit("m_directory_edit").setFocus();
    QVERIFY(edit("m_directory_edit").hasFocus());
    edit("m_directory_edit").selectAll();
    QTest::keyClicks(&edit("m_directory_edit"), QStringLiteral("/typed"));

    QTest::keyClick(&edit("m_directory_edit"), Qt::Key_Tab);

    QVERIFY(button("m_browse_button").hasFocus());
    QCOMPARE(log().calls_of({qs("set_db_custom_dir")}), list_of({R"(GFPDB_MGR.set_db_custom_dir("/typed/"))"}));
}

void TEST_DIRECTORY::the_filter_never_consumes()
{
    open();
    QFocusEvent focus_out(QEvent::FocusOut, Qt::TabFocusReason);
    QFocusEvent popup(QEvent::FocusOut, Qt::PopupFocusReason);
    QEvent other(QEvent::Enter);

    QVERIFY(!dlg().eventFilter(&edit("m_directory_edit"), &focus_out));
    QVERIFY(!dlg().eventFilter(&edit("m_directory_edit"), &popup));
    QVERIFY(!dlg().eventFilter(&edit("m_directory_edit"), &other));
}

void TEST_DIRECTORY::other_events_and_other_widgets_do_nothing()
{
    open();
    show_dialog();
    edit("m_directory_edit").setText(QStringLiteral("/other"));
    QFocusEvent focus_in(QEvent::FocusIn, Qt::TabFocusReason);
    QFocusEvent focus_out(QEvent::FocusOut, Qt::TabFocusReason);

    QCoreApplication::sendEvent(&edit("m_directory_edit"), &focus_in);
    QCoreApplication::sendEvent(&edit("m_filter_line_edit"), &focus_out);
    dlg().eventFilter(&edit("m_filter_line_edit"), &focus_out);

    QCOMPARE(calls(), QStringList());
}

void TEST_DIRECTORY::cancel_asks_nothing_data()
{
    QTest::addColumn<QString>("way");

    for (const char* way : {"mouse on Cancel", "keyboard to Cancel", "Escape", "close button", "hidden"})
        QTest::newRow(way) << qs(way);
}

void TEST_DIRECTORY::cancel_asks_nothing()
{
    QFETCH(const QString, way);
    world().save_dir_succeeds = false;
    open();
    show_dialog();
    edit("m_directory_edit").setFocus();
    QVERIFY(edit("m_directory_edit").hasFocus());
    edit("m_directory_edit").setText(QStringLiteral("/no"));

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

void TEST_DIRECTORY::a_refused_directory_is_told_once()
{
    world().save_dir_succeeds = false;
    open();
    show_dialog();
    edit("m_directory_edit").setFocus();
    QVERIFY(edit("m_directory_edit").hasFocus());
    m_modals.expect(MODAL_DRIVER::accept());

    enter("m_directory_edit", QStringLiteral("/no"));
    QCoreApplication::processEvents();

    QCOMPARE(log().count(qs("save_custom_dir_to_ini")), 1);
    QCOMPARE(m_modals.met().size(), 1);
}

GFPQ_TEST_MAIN(TEST_DIRECTORY)

#include "test_directory.moc"
