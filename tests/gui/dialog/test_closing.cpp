// SPDX-License-Identifier: MIT

// What stays as it was: after a failed check or OK, after a warning, and when the dialog is closed with Escape.
#include "dialog_test.h"

#include <QAbstractItemView>
#include <QSignalSpy>

class TEST_CLOSING : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_failed_check_keeps_the_shown_record_data()
    {
        rows<int>({{"name", 0},
                   {"id", 1},
                   {"die", 4},
                   {"single", 5},
                   {"quad", 6},
                   {"template name", 7},
                   {"action", -1},
                   {"template name like the device's", -2}});
    }

    void a_failed_check_keeps_the_shown_record()
    {
        const int property = row<int>();
        open_with("A");
        type_in("m_device_name_edit", "renamed");
        check("m_save_template_check").setChecked(true);
        edit("m_template_name_edit").setText(property == -2 ? qs("renamed") : qs("T"));
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
        QCOMPARE(calls_of({"delete_flash"}), list_of({R"(mgr.delete_flash("A", "/db/of/A/"))"}));
    }

    void an_apply_after_a_failed_check_takes_the_shown_records_other_variant()
    {
        open_with("A");
        mgr().refuse(GFPDB_FLASH_DEVICE_ID, "refused");
        m_modals.expect(MODAL_DRIVER::accept());
        QVERIFY(!apply());
        mgr().refused_properties.clear();
        log().clear();

        QVERIFY(apply());

        QCOMPARE(calls_of({"is_user_defined"}).value(0), qs("flash:A.is_user_defined()"));
        QCOMPARE(calls_of({"get_operations"}).value(0), qs("flash:A.get_operations(true)"));
        QCOMPARE(mgr().last_created->flows(false), flows_named("own"));
        QCOMPARE(mgr().last_created->flows(true), flows_named("own quad"));
    }

    void a_failed_check_of_a_new_device_leaves_no_record()
    {
        open();
        mgr().refuse(GFPDB_FLASH_DEVICE_ID, "refused");
        m_modals.expect(MODAL_DRIVER::accept());
        QVERIFY(!apply());
        log().clear();

        combo("m_flow_template_cbox").setCurrentIndex(1);
        combo("m_flow_template_cbox").setCurrentIndex(0);
        run("on_delete_clicked");

        QCOMPARE(calls_of({"get_operations", "is_flow_editable", "delete_flash"}),
                 list_of({"mgr.is_flow_editable(null)"}));
    }

    void a_failed_ok_leaves_all_that_is_handed_back_data() { rows_named<QString>({"check", "delete", "save"}); }

    void a_failed_ok_leaves_all_that_is_handed_back()
    {
        const QString failure = row<QString>();
        open_edited();
        mgr().delete_succeeds = failure != QLatin1String("delete");
        mgr().save_succeeds = failure != QLatin1String("save");
        if (failure == QLatin1String("check")) {
            mgr().refuse(GFPDB_FLASH_NAME, "refused");
            m_modals.expect(MODAL_DRIVER::accept());
        }
        QSignalSpy finished(&dlg(), &QDialog::finished);

        button("m_ok_button").click();

        QVERIFY(hands_back_what_came());
        QVERIFY(dlg().isVisible());
        QCOMPARE(finished.size(), 0);
        QCOMPARE(data("m_family_cbox"), ALDER);
        QCOMPARE(data("m_config_mode_cbox"), SCHEME_X1);
        QCOMPARE(current_row(), qs("C"));
        QCOMPARE(text("m_device_name_edit"), qs("renamed"));
        // Cancel after it hands nothing back either, and rejects.
        button("m_cancel_button").click();
        QVERIFY(hands_back_what_came());
        QCOMPARE(finished.size(), 1);
        QCOMPARE(dlg().result(), static_cast<int>(QDialog::Rejected));
    }

    void an_apply_that_saves_nothing_leaves_the_page_and_the_form_data()
    {
        rows<QString, bool>({{"built-in", "B", true}, {"hidden", "C", true}, {"no record can be made", "A", false}});
    }

    void an_apply_that_saves_nothing_leaves_the_page_and_the_form()
    {
        const auto [device, can_be_made] = row<QString, bool>();
        mgr().add_builtin("B");
        mgr().creates_flash = can_be_made;
        open_with(device.toStdString());
        mgr().hidden_properties = {"C"};
        tabs().setCurrentIndex(3);
        type_in("m_device_name_edit", "typed");
        type_in("m_device_id_edit", "typed");
        log().clear();

        QVERIFY(apply());

        QCOMPARE(calls_of({"can_add_flash", "delete_flash", "save_flash", "find_flash"}), QStringList());
        QCOMPARE(tabs().currentIndex(), 3);
        QCOMPARE(current_row(), device);
        QCOMPARE(text("m_device_name_edit"), qs("typed"));
        QCOMPARE(text("m_device_id_edit"), qs("typed"));
        QVERIFY(prompted_messages().empty());
    }

    void apply_and_delete_leave_the_dialog_open_data()
    {
        rows<QString, bool>({{"Apply", "m_apply_button", true},
                             {"failing Apply", "m_apply_button", false},
                             {"Delete", "m_delete_button", true},
                             {"failing Delete", "m_delete_button", false}});
    }

    void apply_and_delete_leave_the_dialog_open()
    {
        const auto [button_name, succeeds] = row<QString, bool>();
        open_edited();
        tabs().setCurrentIndex(3);
        mgr().delete_succeeds = succeeds;
        QSignalSpy finished(&dlg(), &QDialog::finished);
        log().clear();

        button(button_name.toLatin1().constData()).click();

        QCOMPARE(count_of("delete_flash"), 1);
        QCOMPARE(prompted_messages().size(), std::size_t(succeeds ? 0 : 1));
        QVERIFY(dlg().isVisible());
        QCOMPARE(finished.size(), 0);
        QVERIFY(hands_back_what_came());
        // Only a record that was saved is looked at on the device page.
        QCOMPARE(tabs().currentIndex(), succeeds && button_name == QLatin1String("m_apply_button") ? 0 : 3);
        QCOMPARE(calls_of({"save_custom_dir_to_ini", "set_db_custom_dir", "set_device_family", "set_config_scheme"}),
                 QStringList());
    }

    void a_warning_leaves_the_focus_where_it_was_data()
    {
        rows<QString, int>({{"name", "m_device_name_edit", 0},
                            {"id", "m_device_id_edit", 1},
                            {"voltage", "m_voltage_cbox", 2},
                            {"density", "m_density_cbox", 3},
                            {"die", "m_total_die_edit", 4},
                            {"single", "m_clock_cycle_edit", 6},
                            {"quad", "m_clock_cycle_edit_x4", 6},
                            {"template", "m_flow_template_cbox", 8},
                            {"directory", "m_directory_edit", -1},
                            // The field that is to be fixed is not the one that gets the focus.
                            {"Apply", "m_filter_line_edit", 1},
                            {"OK", "m_filter_line_edit", 1}});
    }

    void a_warning_leaves_the_focus_where_it_was()
    {
        const auto [name, property] = row<QString, int>();
        open();
        mgr().refuse(property, "refused");
        world().save_dir_succeeds = false;
        show_dialog();
        QWidget& field = widget(name.toLatin1().constData());
        field.setFocus();
        m_modals.expect(MODAL_DRIVER::accept());

        if (qstrcmp(QTest::currentDataTag(), "Apply") == 0)
            button("m_apply_button").click();
        else if (qstrcmp(QTest::currentDataTag(), "OK") == 0)
            button("m_ok_button").click();
        else if (qobject_cast<QComboBox*>(&field) != nullptr)
            QTest::keyClick(&field, Qt::Key_Down);
        else
            enter(name.toLatin1().constData(), "12");

        QCOMPARE(m_modals.met().size(), 1);
        QCOMPARE(dlg().focusWidget(), &field);
        QCOMPARE(tabs().currentIndex(), 0);
    }

    void escape_closes_as_cancel_does_data()
    {
        rows_named<QString>({"m_family_cbox", "m_directory_edit", "m_browse_button", "m_filter_line_edit",
                             "m_device_table_view", "m_delete_button", "m_device_name_edit", "m_total_die_edit",
                             "m_voltage_cbox", "m_ok_button", "m_apply_button", "m_cancel_button",
                             "m_prog_flows_tab_widget"});
    }

    void escape_closes_as_cancel_does()
    {
        const QString focus = row<QString>();
        open_edited();
        type_in("m_directory_edit", "/typed");
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

    void escape_in_an_open_list_closes_the_list_only_data()
    {
        rows_named<QString>(
            {"m_family_cbox", "m_config_mode_cbox", "m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"});
    }

    void escape_in_an_open_list_closes_the_list_only()
    {
        const QString box_name = row<QString>();
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

    void escape_in_an_open_editor_closes_the_editor_only()
    {
        open_with("A");
        tabs().setCurrentIndex(1);
        show_dialog();
        page(0).update_property_table(page(0).get_flow().at(0));
        auto* const properties = page(0).findChild<QTableView*>(qs("m_property_table"));
        properties->setFocus();
        properties->setCurrentIndex(properties->model()->index(0, 1));
        properties->edit(properties->currentIndex());
        QPointer<QLineEdit> editor(properties->findChild<QLineEdit*>());
        QVERIFY(!editor.isNull());
        editor->setText(qs("typed"));
        log().clear();

        QTest::keyClick(editor.data(), Qt::Key_Escape);

        QVERIFY(dlg().isVisible());
        QVERIFY(editor.isNull() || !editor->isVisible());
        QCOMPARE(page_flow(0), list_of({"0:own 0"}));
        QTest::keyClick(properties, Qt::Key_Escape);
        QVERIFY(!dlg().isVisible());
        QVERIFY(hands_back_what_came());
        QCOMPARE(calls_of({"create_flash", "delete_flash", "save_flash", "set_property_value"}), QStringList());
    }

private:
    void fill_world() override
    {
        mgr().add_custom("A").operations[false] = make_operations("own");
        mgr().flashes["A"]->operations[true] = make_operations("own quad");
        mgr().flashes["A"]->strings[GFPDB_FLASH_FLOW_TEMPLATE] = "Built-in A";
        mgr().add_custom("C").operations[false] = make_operations("other");
        mgr().builtin_template_operations[{0, false}] = make_operations("first");
        mgr().follows_saves = false;
    }

    // Opens the device A as the user edits it: other values than the stored ones in everything that OK hands back.
    void open_edited()
    {
        open_with("A");
        choose("m_family_cbox", ALDER);
        choose("m_config_mode_cbox", SCHEME_X1);
        pick("C");
        type_in("m_device_name_edit", "renamed");
        show_dialog();
    }

    bool hands_back_what_came(const char* device_name = "A") const
    {
        return dlg().family() == CEDAR && dlg().config_scheme() == SCHEME_X4 && dlg().device_name() == device_name;
    }
};

GFPQ_TEST_MAIN(TEST_CLOSING)

#include "test_closing.moc"
