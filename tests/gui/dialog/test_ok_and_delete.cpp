// SPDX-License-Identifier: MIT

// OK, Cancel and Delete.
#include "dialog_test.h"

#include <QSignalSpy>

class TEST_OK_AND_DELETE : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void ok_applies_stores_the_choice_and_rejects();
    void ok_takes_the_current_data_of_the_combos();
    void a_failed_ok_stays_open();
    void ok_on_a_builtin_device_closes();
    void ok_on_a_hidden_device_closes();
    void ok_on_a_record_that_cannot_be_made_closes();
    void ok_on_a_new_device_that_cannot_be_made_hands_back_its_row();
    void ok_after_a_rename_hands_back_the_new_name();
    void ok_with_a_name_that_the_filter_hides_hands_it_back();
    void ok_on_the_new_device_row_hands_back_the_saved_name();
    void cancel_rejects_at_once();
    void delete_removes_the_current_record();
    void delete_takes_name_and_directory_from_the_record();
    void a_failed_delete_raises_the_message();
    void delete_on_the_new_device_row_does_nothing();
    void delete_takes_the_device_of_the_form_though_it_is_hidden();
    void delete_twice_deletes_once();
    void delete_selects_the_new_device_row();
    void delete_without_a_new_device_row_selects_the_first_row();
    void delete_keeps_the_page_and_the_dialog_open();
    void selecting_works_again_after_a_delete();
    void apply_and_delete_do_not_touch_what_is_handed_back();

private:
    void fill_world() override;
};

void TEST_OK_AND_DELETE::fill_world()
{
    mgr().add_custom("A");
    mgr().add_custom("C");
    mgr().add_builtin("B");
}

void TEST_OK_AND_DELETE::ok_applies_stores_the_choice_and_rejects()
{
    open_with("A");
    show_dialog();
    QSignalSpy rejected(&dlg(), &QDialog::rejected);
    QSignalSpy accepted(&dlg(), &QDialog::accepted);

    button("m_ok_button").click();

    QCOMPARE(log().count(qs("save_flash")), 1);
    QCOMPARE(rejected.size(), 1);
    QCOMPARE(accepted.size(), 0);
    QCOMPARE(dlg().result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(!dlg().isVisible());
    QCOMPARE(dlg().family(), CEDAR);
    QCOMPARE(dlg().config_scheme(), SCHEME_X4);
    QCOMPARE(dlg().device_name(), std::string("A"));
}

void TEST_OK_AND_DELETE::ok_takes_the_current_data_of_the_combos()
{
    open_with("B");
    choose("m_family_cbox", 70);
    choose("m_config_mode_cbox", 25);
    pick(QStringLiteral("B"));
    QStringList at_the_end;
    connect(&dlg(), &QDialog::rejected, this, [&] {
        at_the_end << QString::number(dlg().family()) << QString::number(dlg().config_scheme())
                   << QString::fromStdString(dlg().device_name());
    });

    button("m_ok_button").click();

    // The choice is there before the dialog closes.
    QCOMPARE(at_the_end, list_of({"70", "25", "B"}));
    QCOMPARE(dlg().family(), 70);
    QCOMPARE(dlg().config_scheme(), 25);
    QCOMPARE(dlg().device_name(), std::string("B"));
}

void TEST_OK_AND_DELETE::a_failed_ok_stays_open()
{
    mgr().save_succeeds = false;
    mgr().follows_saves = false;
    open_with("A");
    choose("m_config_mode_cbox", SCHEME_X1);
    show_dialog();
    QSignalSpy rejected(&dlg(), &QDialog::rejected);

    button("m_ok_button").click();

    QCOMPARE(rejected.size(), 0);
    QVERIFY(dlg().isVisible());
    QCOMPARE(dlg().config_scheme(), SCHEME_X4);
    QCOMPARE(dlg().device_name(), std::string("A"));
    QCOMPARE(prompted_messages().size(), std::size_t(1));
}

void TEST_OK_AND_DELETE::ok_on_a_builtin_device_closes()
{
    open_with("A");
    pick(QStringLiteral("B"));
    QSignalSpy rejected(&dlg(), &QDialog::rejected);

    button("m_ok_button").click();

    QCOMPARE(rejected.size(), 1);
    QCOMPARE(log().count(qs("save_flash")), 0);
    QCOMPARE(dlg().device_name(), std::string("B"));
}

void TEST_OK_AND_DELETE::ok_on_a_hidden_device_closes()
{
    mgr().hidden_properties = {"C"};
    open_with("C");
    QSignalSpy rejected(&dlg(), &QDialog::rejected);

    button("m_ok_button").click();

    QCOMPARE(rejected.size(), 1);
    QCOMPARE(log().count(qs("save_flash")), 0);
    QCOMPARE(dlg().device_name(), std::string("C"));
}

void TEST_OK_AND_DELETE::ok_on_a_record_that_cannot_be_made_closes()
{
    mgr().creates_flash = false;
    open_with("A");
    QSignalSpy rejected(&dlg(), &QDialog::rejected);

    button("m_ok_button").click();

    QCOMPARE(rejected.size(), 1);
    QCOMPARE(log().count(qs("save_flash")), 0);
    QCOMPARE(dlg().device_name(), std::string("A"));
}

void TEST_OK_AND_DELETE::ok_on_a_new_device_that_cannot_be_made_hands_back_its_row()
{
    mgr().creates_flash = false;
    open();
    edit("m_device_name_edit").setText(QStringLiteral("X"));
    QSignalSpy rejected(&dlg(), &QDialog::rejected);

    button("m_ok_button").click();

    QCOMPARE(rejected.size(), 1);
    QCOMPARE(dlg().device_name(), std::string("<<new device>>"));
}

void TEST_OK_AND_DELETE::ok_after_a_rename_hands_back_the_new_name()
{
    open_with("A");
    edit("m_device_name_edit").setText(QStringLiteral("renamed"));

    button("m_ok_button").click();

    QCOMPARE(dlg().device_name(), std::string("renamed"));
}

void TEST_OK_AND_DELETE::ok_with_a_name_that_the_filter_hides_hands_it_back()
{
    open_with("A");
    edit("m_filter_line_edit").setText(QStringLiteral("^A$"));
    edit("m_device_name_edit").setText(QStringLiteral("renamed"));
    QSignalSpy rejected(&dlg(), &QDialog::rejected);

    button("m_ok_button").click();

    QCOMPARE(log().calls_of({qs("delete_flash"), qs("save_flash")}),
             list_of({R"(mgr.delete_flash("A", "/db/custom/"))", R"(mgr.save_flash(new:renamed, "/db/custom/"))"}));
    QCOMPARE(rejected.size(), 1);
    QCOMPARE(dlg().device_name(), std::string("renamed"));
}

void TEST_OK_AND_DELETE::ok_on_the_new_device_row_hands_back_the_saved_name()
{
    open();
    edit("m_device_name_edit").setText(QStringLiteral("X"));

    button("m_ok_button").click();

    QCOMPARE(dlg().device_name(), std::string("X"));
}

void TEST_OK_AND_DELETE::cancel_rejects_at_once()
{
    open_with("A");
    show_dialog();
    edit("m_device_name_edit").setText(QStringLiteral("renamed"));
    choose("m_config_mode_cbox", SCHEME_X1);
    edit("m_device_name_edit").setText(QStringLiteral("renamed"));
    log().clear();
    QSignalSpy rejected(&dlg(), &QDialog::rejected);

    button("m_cancel_button").click();

    QCOMPARE(calls(), QStringList());
    QCOMPARE(rejected.size(), 1);
    QVERIFY(!dlg().isVisible());
    QCOMPARE(dlg().config_scheme(), SCHEME_X4);
    QCOMPARE(dlg().device_name(), std::string("A"));
}

void TEST_OK_AND_DELETE::delete_removes_the_current_record()
{
    open_with("A");

    button("m_delete_button").click();

    // The arguments of a call are read in an order that is the compiler's.
    QCOMPARE(log().count(qs("get_name")), 1);
    QCOMPARE(log().count(qs("get_db_dir")), 1);
    QCOMPARE(log().calls_without({qs("get_name"), qs("get_db_dir")}).mid(0, 4),
             list_of({R"(mgr.delete_flash("A", "/db/of/A/"))", "mgr.can_add_flash()",
                      "mgr.get_custom_flash_names(5, 13, 0)", "mgr.get_builtin_flash_names(5, 13, 0)"}));
    QCOMPARE(all_rows(), list_of({"<<new device>>", "C", "B"}));
    QVERIFY(m_modals.met().isEmpty());
    QVERIFY(prompted_messages().empty());
}

void TEST_OK_AND_DELETE::delete_takes_name_and_directory_from_the_record()
{
    open_with("A");
    edit("m_device_name_edit").setText(QStringLiteral("typed"));
    edit("m_directory_edit").setText(QStringLiteral("/typed"));

    button("m_delete_button").click();

    QCOMPARE(log().calls_of({qs("delete_flash")}), list_of({R"(mgr.delete_flash("A", "/db/of/A/"))"}));
}

void TEST_OK_AND_DELETE::a_failed_delete_raises_the_message()
{
    mgr().delete_succeeds = false;
    open_with("A");

    button("m_delete_button").click();

    QCOMPARE(log().calls_without({qs("get_name"), qs("get_db_dir")}),
             list_of({R"(mgr.delete_flash("A", "/db/of/A/"))", "MSG_O.created(null)",
                      R"(MSG_O.fill_args("Failed to delete flash from database./OGFPQ_DELETE_DB_FAILED"))",
                      "MSG_O.set_id(20440)", "MSG_O.prompt(null)", "MSG_O.destroyed()"}));
    QCOMPARE(all_rows(), list_of({"<<new device>>", "A", "C", "B"}));
    QCOMPARE(current_row(), QStringLiteral("A"));
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("A"));
    // The record stays current.
    mgr().delete_succeeds = true;
    log().clear();
    button("m_delete_button").click();
    QCOMPARE(log().count(qs("delete_flash")), 1);
}

void TEST_OK_AND_DELETE::delete_on_the_new_device_row_does_nothing()
{
    open();

    run("on_delete_clicked");

    QCOMPARE(calls(), QStringList());
    QVERIFY(m_modals.met().isEmpty());
}

void TEST_OK_AND_DELETE::delete_takes_the_device_of_the_form_though_it_is_hidden()
{
    open_with("A");
    edit("m_filter_line_edit").setText(QStringLiteral("none"));
    log().clear();

    run("on_delete_clicked");

    QCOMPARE(log().calls_of({qs("delete_flash")}), list_of({R"(mgr.delete_flash("A", "/db/of/A/"))"}));
    QCOMPARE(edit("m_filter_line_edit").text(), QStringLiteral("none"));
}

void TEST_OK_AND_DELETE::delete_twice_deletes_once()
{
    open_with("A");

    run("on_delete_clicked");
    run("on_delete_clicked");

    QCOMPARE(log().count(qs("delete_flash")), 1);
}

void TEST_OK_AND_DELETE::delete_selects_the_new_device_row()
{
    open_with("C");

    button("m_delete_button").click();

    QCOMPARE(current_row(), QStringLiteral("<<new device>>"));
    QCOMPARE(edit("m_device_name_edit").text(), QString());
    QVERIFY(!button("m_delete_button").isEnabled());
    QVERIFY(combo("m_flow_template_cbox").isEnabled());
    // Loaded once, not through the selection too.
    QCOMPARE(log().count(qs("get_voltage_list")), 1);
}

void TEST_OK_AND_DELETE::delete_without_a_new_device_row_selects_the_first_row()
{
    mgr().add_allowed = false;
    open_with("C");

    button("m_delete_button").click();

    QCOMPARE(current_row(), QStringLiteral("A"));
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("A"));
    QCOMPARE(log().calls_of({qs("find_flash")}), list_of({R"(mgr.find_flash("A", true))"}));
    // That row's record is the current one now.
    log().clear();
    button("m_delete_button").click();
    QCOMPARE(log().calls_of({qs("delete_flash")}), list_of({R"(mgr.delete_flash("A", "/db/of/A/"))"}));
}

void TEST_OK_AND_DELETE::delete_keeps_the_page_and_the_dialog_open()
{
    open_with("A");
    show_dialog();

    button("m_delete_button").click();

    QVERIFY(dlg().isVisible());
    QCOMPARE(tabs().currentIndex(), 0);
}

void TEST_OK_AND_DELETE::selecting_works_again_after_a_delete()
{
    open_with("A");
    button("m_delete_button").click();
    log().clear();

    pick(QStringLiteral("C"));

    QCOMPARE(log().calls_of({qs("find_flash")}), list_of({R"(mgr.find_flash("C", true))"}));
}

void TEST_OK_AND_DELETE::apply_and_delete_do_not_touch_what_is_handed_back()
{
    open_with("A");
    choose("m_family_cbox", ALDER);
    choose("m_config_mode_cbox", SCHEME_X1);
    edit("m_device_name_edit").setText(QStringLiteral("renamed"));

    button("m_apply_button").click();
    button("m_delete_button").click();

    QCOMPARE(dlg().family(), CEDAR);
    QCOMPARE(dlg().config_scheme(), SCHEME_X4);
    QCOMPARE(dlg().device_name(), std::string("A"));
}

GFPQ_TEST_MAIN(TEST_OK_AND_DELETE)

#include "test_ok_and_delete.moc"
