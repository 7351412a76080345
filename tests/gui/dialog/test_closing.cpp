// SPDX-License-Identifier: MIT

// What stays as it was: after a failed check or OK, after a warning, and when the dialog is closed with Escape.
#include "dialog_test.h"

#include <QAbstractItemView>
#include <QSignalSpy>

class TEST_CLOSING : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_failed_check_keeps_the_shown_record_data();
    void a_failed_check_keeps_the_shown_record();
    void an_apply_after_a_failed_check_takes_the_shown_records_other_variant();
    void a_failed_check_of_a_new_device_leaves_no_record();
    void a_failed_ok_leaves_all_that_is_handed_back_data();
    void a_failed_ok_leaves_all_that_is_handed_back();
    void an_apply_that_saves_nothing_leaves_the_page_and_the_form_data();
    void an_apply_that_saves_nothing_leaves_the_page_and_the_form();
    void a_delete_leaves_the_page();
    void apply_and_delete_leave_the_dialog_open_data();
    void apply_and_delete_leave_the_dialog_open();
    void a_warning_leaves_the_focus_in_its_field_data();
    void a_warning_leaves_the_focus_in_its_field();
    void a_warning_about_a_choice_leaves_the_focus_in_its_combo_data();
    void a_warning_about_a_choice_leaves_the_focus_in_its_combo();
    void a_failed_check_of_the_form_leaves_the_focus_data();
    void a_failed_check_of_the_form_leaves_the_focus();
    void escape_closes_as_cancel_does_data();
    void escape_closes_as_cancel_does();
    void escape_in_an_open_list_closes_the_list_only_data();
    void escape_in_an_open_list_closes_the_list_only();
    void escape_in_an_open_editor_closes_the_editor_only();

private:
    void fill_world() override;
    // Opens the device A as the user edits it: other values than the stored ones in everything that OK hands back.
    void open_edited();
    bool hands_back_what_came(const char* device_name = "A") const;
    bool apply();
};

void TEST_CLOSING::fill_world()
{
    mgr().add_custom("A").operations[false] = make_operations("own");
    mgr().flashes["A"]->operations[true] = make_operations("own quad");
    mgr().flashes["A"]->strings[8] = "Built-in A";
    mgr().add_custom("C").operations[false] = make_operations("other");
    mgr().builtin_template_operations[{0, false}] = make_operations("first");
    mgr().follows_saves = false;
}

bool TEST_CLOSING::apply()
{
    bool applied = false;
    QMetaObject::invokeMethod(&dlg(), "on_apply_clicked", Qt::DirectConnection, Q_RETURN_ARG(bool, applied));
    return applied;
}

void TEST_CLOSING::open_edited()
{
    open_with("A");
    choose("m_family_cbox", ALDER);
    choose("m_config_mode_cbox", SCHEME_X1);
    pick(QStringLiteral("C"));
    edit("m_device_name_edit").setText(QStringLiteral("renamed"));
    show_dialog();
}

bool TEST_CLOSING::hands_back_what_came(const char* device_name) const
{
    return dlg().family() == CEDAR && dlg().config_scheme() == SCHEME_X4 && dlg().device_name() == device_name;
}

void TEST_CLOSING::a_failed_check_keeps_the_shown_record_data()
{
    QTest::addColumn<int>("property");

    for (const int property : {0, 1, 4, 5, 6, 7})
        QTest::addRow("property %d", property) << property;
    QTest::newRow("action") << -1;
    QTest::newRow("template name like the device's") << -2;
}

void TEST_CLOSING::a_failed_check_keeps_the_shown_record()
{
    QFETCH(const int, property);
    open_with("A");
    edit("m_device_name_edit").setText(QStringLiteral("renamed"));
    check("m_save_template_check").setChecked(true);
    edit("m_template_name_edit").setText(property == -2 ? QStringLiteral("renamed") : QStringLiteral("T"));
    if (property >= 0)
        mgr().refuse(property, "refused");
    else if (property == -1)
        dynamic_cast<ACTION_DOUBLE&>(*page(3).get_flow().at(0)).refused = {{GFPDB_WR_NAME, "refused"}};
    m_modals.expect(MODAL_DRIVER::accept());

    QVERIFY(!apply());

    QVERIFY(button("m_delete_button").isEnabled());
    QVERIFY(button("m_apply_button").isEnabled());
    QVERIFY(check("m_save_template_check").isChecked());
    QCOMPARE(page_flow(3), list_of({"0:own 3"}));
    log().clear();
    button("m_delete_button").click();
    QCOMPARE(log().calls_of({qs("delete_flash")}), list_of({R"(mgr.delete_flash("A", "/db/of/A/"))"}));
}

void TEST_CLOSING::an_apply_after_a_failed_check_takes_the_shown_records_other_variant()
{
    open_with("A");
    mgr().refuse(1, "refused");
    m_modals.expect(MODAL_DRIVER::accept());
    QVERIFY(!apply());
    mgr().refused_properties.clear();
    log().clear();

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("is_user_defined")}).value(0), qs("flash:A.is_user_defined()"));
    QCOMPARE(log().calls_of({qs("get_operations")}).value(0), qs("flash:A.get_operations(true)"));
    for (int kind = 0; kind < 5; ++kind) {
        QCOMPARE(mgr().last_created->flow(kind, false), QStringList(QStringLiteral("0:own %1").arg(kind)));
        QCOMPARE(mgr().last_created->flow(kind, true), QStringList(QStringLiteral("0:own quad %1").arg(kind)));
    }
}

void TEST_CLOSING::a_failed_check_of_a_new_device_leaves_no_record()
{
    open();
    mgr().refuse(1, "refused");
    m_modals.expect(MODAL_DRIVER::accept());
    QVERIFY(!apply());
    log().clear();

    combo("m_flow_template_cbox").setCurrentIndex(1);
    combo("m_flow_template_cbox").setCurrentIndex(0);
    run("on_delete_clicked");

    QCOMPARE(log().calls_of({qs("get_operations"), qs("is_flow_editable"), qs("delete_flash")}),
             list_of({"mgr.is_flow_editable(null)"}));
}

void TEST_CLOSING::a_failed_ok_leaves_all_that_is_handed_back_data()
{
    QTest::addColumn<QString>("failure");

    for (const char* failure : {"check", "delete", "save"})
        QTest::newRow(failure) << qs(failure);
}

void TEST_CLOSING::a_failed_ok_leaves_all_that_is_handed_back()
{
    QFETCH(const QString, failure);
    open_edited();
    mgr().delete_succeeds = failure != QLatin1String("delete");
    mgr().save_succeeds = failure != QLatin1String("save");
    if (failure == QLatin1String("check")) {
        mgr().refuse(0, "refused");
        m_modals.expect(MODAL_DRIVER::accept());
    }
    QSignalSpy finished(&dlg(), &QDialog::finished);

    button("m_ok_button").click();

    QVERIFY(hands_back_what_came());
    QVERIFY(dlg().isVisible());
    QCOMPARE(finished.size(), 0);
    QCOMPARE(combo("m_family_cbox").currentData().toInt(), ALDER);
    QCOMPARE(combo("m_config_mode_cbox").currentData().toInt(), SCHEME_X1);
    QCOMPARE(current_row(), QStringLiteral("C"));
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("renamed"));
    // Cancel after it hands nothing back either.
    button("m_cancel_button").click();
    QVERIFY(hands_back_what_came());
}

void TEST_CLOSING::an_apply_that_saves_nothing_leaves_the_page_and_the_form_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("can_be_made");

    QTest::newRow("built-in") << qs("B") << true;
    QTest::newRow("hidden") << qs("C") << true;
    QTest::newRow("no record can be made") << qs("A") << false;
}

void TEST_CLOSING::an_apply_that_saves_nothing_leaves_the_page_and_the_form()
{
    QFETCH(const QString, device);
    QFETCH(const bool, can_be_made);
    mgr().add_builtin("B");
    mgr().creates_flash = can_be_made;
    open_with(device.toStdString());
    mgr().hidden_properties = {"C"};
    tabs().setCurrentIndex(3);
    edit("m_device_name_edit").setText(QStringLiteral("typed"));
    edit("m_device_id_edit").setText(QStringLiteral("typed"));
    log().clear();

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("can_add_flash"), qs("delete_flash"), qs("save_flash"), qs("find_flash")}),
             QStringList());
    QCOMPARE(tabs().currentIndex(), 3);
    QCOMPARE(current_row(), device);
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("typed"));
    QCOMPARE(edit("m_device_id_edit").text(), QStringLiteral("typed"));
    QVERIFY(prompted_messages().empty());
}

void TEST_CLOSING::a_delete_leaves_the_page()
{
    for (const bool succeeds : {false, true}) {
        mgr().delete_succeeds = succeeds;
        open_with("A");
        tabs().setCurrentIndex(3);
        log().clear();

        run("on_delete_clicked");

        QCOMPARE(log().count(qs("delete_flash")), 1);
        QCOMPARE(tabs().currentIndex(), 3);
        QCOMPARE(log().calls_of({qs("save_custom_dir_to_ini"), qs("set_db_custom_dir"), qs("set_device_family"),
                                 qs("set_config_scheme")}),
                 QStringList());
    }
}

void TEST_CLOSING::apply_and_delete_leave_the_dialog_open_data()
{
    QTest::addColumn<QString>("button_name");
    QTest::addColumn<bool>("succeeds");

    for (const char* name : {"m_apply_button", "m_delete_button"}) {
        QTest::addRow("%s", name) << qs(name) << true;
        QTest::addRow("%s, failing", name) << qs(name) << false;
    }
}

void TEST_CLOSING::apply_and_delete_leave_the_dialog_open()
{
    QFETCH(const QString, button_name);
    QFETCH(const bool, succeeds);
    open_edited();
    mgr().delete_succeeds = succeeds;
    QSignalSpy finished(&dlg(), &QDialog::finished);

    button(button_name.toLatin1().constData()).click();

    QCOMPARE(log().count(qs("delete_flash")), 1);
    QCOMPARE(prompted_messages().size(), std::size_t(succeeds ? 0 : 1));
    QVERIFY(dlg().isVisible());
    QCOMPARE(finished.size(), 0);
    QVERIFY(hands_back_what_came());
}

void TEST_CLOSING::a_warning_leaves_the_focus_in_its_field_data()
{
    QTest::addColumn<int>("property");

    QTest::newRow("m_device_name_edit") << 0;
    QTest::newRow("m_device_id_edit") << 1;
    QTest::newRow("m_total_die_edit") << 4;
    QTest::newRow("m_clock_cycle_edit") << 6;
    QTest::newRow("m_clock_cycle_edit_x4") << 6;
    QTest::newRow("m_directory_edit") << -1;
}

void TEST_CLOSING::a_warning_leaves_the_focus_in_its_field()
{
    QFETCH(const int, property);
    open();
    mgr().refuse(property, "refused");
    world().save_dir_succeeds = false;
    show_dialog();
    QLineEdit& field = edit(QTest::currentDataTag());
    field.setFocus();
    m_modals.expect(MODAL_DRIVER::accept());

    enter(QTest::currentDataTag(), QStringLiteral("12"));

    QCOMPARE(m_modals.met().size(), 1);
    QCOMPARE(dlg().focusWidget(), &field);
    QCOMPARE(tabs().currentIndex(), 0);
}

void TEST_CLOSING::a_warning_about_a_choice_leaves_the_focus_in_its_combo_data()
{
    QTest::addColumn<int>("property");

    QTest::newRow("m_voltage_cbox") << 2;
    QTest::newRow("m_density_cbox") << 3;
    QTest::newRow("m_flow_template_cbox") << 8;
}

void TEST_CLOSING::a_warning_about_a_choice_leaves_the_focus_in_its_combo()
{
    QFETCH(const int, property);
    open();
    mgr().refuse(property, "refused");
    show_dialog();
    QComboBox& box = combo(QTest::currentDataTag());
    box.setFocus();
    m_modals.expect(MODAL_DRIVER::accept());

    QTest::keyClick(&box, Qt::Key_Down);

    QCOMPARE(m_modals.met().size(), 1);
    QCOMPARE(box.currentIndex(), 1);
    QCOMPARE(dlg().focusWidget(), &box);
}

void TEST_CLOSING::a_failed_check_of_the_form_leaves_the_focus_data()
{
    QTest::addColumn<QString>("button_name");

    QTest::newRow("apply") << qs("m_apply_button");
    QTest::newRow("ok") << qs("m_ok_button");
}

// The field that is to be mended is not the one that gets the focus: what the user did last keeps it.
void TEST_CLOSING::a_failed_check_of_the_form_leaves_the_focus()
{
    QFETCH(const QString, button_name);
    open();
    mgr().refuse(1, "refused");
    show_dialog();
    edit("m_filter_line_edit").setFocus();
    m_modals.expect(MODAL_DRIVER::accept());

    button(button_name.toLatin1().constData()).click();

    QCOMPARE(dlg().focusWidget(), &edit("m_filter_line_edit"));
}

void TEST_CLOSING::escape_closes_as_cancel_does_data()
{
    QTest::addColumn<QString>("focus");

    for (const char* name :
         {"m_family_cbox", "m_directory_edit", "m_browse_button", "m_filter_line_edit", "m_device_table_view",
          "m_delete_button", "m_device_name_edit", "m_total_die_edit", "m_voltage_cbox", "m_ok_button",
          "m_apply_button", "m_cancel_button", "m_prog_flows_tab_widget"})
        QTest::newRow(name) << qs(name);
}

void TEST_CLOSING::escape_closes_as_cancel_does()
{
    QFETCH(const QString, focus);
    open_edited();
    edit("m_directory_edit").setText(QStringLiteral("/typed"));
    QWidget& focused = widget(focus.toLatin1().constData());
    focused.setFocus();
    log().clear();
    QSignalSpy rejected(&dlg(), &QDialog::rejected);
    QSignalSpy finished(&dlg(), &QDialog::finished);

    QTest::keyClick(dlg().focusWidget(), Qt::Key_Escape);

    QVERIFY(!dlg().isVisible());
    QCOMPARE(rejected.size(), 1);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(dlg().result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(hands_back_what_came());
    QCOMPARE(calls(), QStringList());
}

void TEST_CLOSING::escape_in_an_open_list_closes_the_list_only_data()
{
    QTest::addColumn<QString>("box_name");

    for (const char* name :
         {"m_family_cbox", "m_config_mode_cbox", "m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"})
        QTest::newRow(name) << qs(name);
}

void TEST_CLOSING::escape_in_an_open_list_closes_the_list_only()
{
    QFETCH(const QString, box_name);
    open();
    show_dialog();
    QComboBox& box = combo(box_name.toLatin1().constData());
    const QString chosen = box.currentText();
    box.setFocus();
    box.showPopup();
    QVERIFY(box.view()->isVisible());
    // The row under the keyboard is another one by now.
    QTest::keyClick(box.view(), Qt::Key_Down);

    QTest::keyClick(box.view(), Qt::Key_Escape);

    QVERIFY(!box.view()->isVisible());
    QVERIFY(dlg().isVisible());
    QCOMPARE(box.currentText(), chosen);
    QTest::keyClick(&box, Qt::Key_Escape);
    QVERIFY(!dlg().isVisible());
    QVERIFY(hands_back_what_came(""));
    QCOMPARE(calls(), QStringList());
}

void TEST_CLOSING::escape_in_an_open_editor_closes_the_editor_only()
{
    open_with("A");
    tabs().setCurrentIndex(1);
    show_dialog();
    page(0).update_property_table(page(0).get_flow().at(0));
    auto* const properties = page(0).findChild<QTableView*>(QStringLiteral("m_property_table"));
    properties->setFocus();
    properties->setCurrentIndex(properties->model()->index(0, 1));
    properties->edit(properties->currentIndex());
    QPointer<QLineEdit> editor(properties->findChild<QLineEdit*>());
    QVERIFY(!editor.isNull());
    editor->setText(QStringLiteral("typed"));
    log().clear();

    QTest::keyClick(editor.data(), Qt::Key_Escape);

    QVERIFY(dlg().isVisible());
    QVERIFY(editor.isNull() || !editor->isVisible());
    QCOMPARE(page_flow(0), list_of({"0:own 0"}));
    QTest::keyClick(properties, Qt::Key_Escape);
    QVERIFY(!dlg().isVisible());
    QVERIFY(hands_back_what_came());
    QCOMPARE(log().calls_of({qs("create_flash"), qs("delete_flash"), qs("save_flash"), qs("set_property_value")}),
             QStringList());
}

GFPQ_TEST_MAIN(TEST_CLOSING)

#include "test_closing.moc"
