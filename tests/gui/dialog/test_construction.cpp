// SPDX-License-Identifier: MIT

// How the dialog is made: the order of the calls, what each flag and each unused field does.
#include "dialog_test.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLoggingCategory>
#include <QScopeGuard>
#include <QSignalSpy>

class TEST_CONSTRUCTION : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void the_calls_of_an_opening_dialog_come_in_order();
    void the_scheme_and_not_the_family_makes_the_manager_active();
    void the_result_of_making_the_scheme_active_is_ignored();
    void without_a_manager_nothing_is_built();
    void building_the_form_leaves_the_warnings_as_they_were_data();
    void building_the_form_leaves_the_warnings_as_they_were();
    void the_window_has_a_title_bar_and_a_close_button_only();
    void the_parent_is_the_host_window();
    void the_directory_is_shown_as_latin_1();
    void each_flag_enables_its_controls_data();
    void each_flag_enables_its_controls();
    void operation_pages_stand_behind_the_device_page();
    void fields_that_are_used_stay_in_the_form();
    void an_unused_field_leaves_no_row_data();
    void an_unused_field_leaves_no_row();
    void an_unused_template_row_is_taken_out_whole();
    void without_any_field_the_form_is_empty();
    void taken_out_widgets_go_with_the_dialog();
    void only_the_device_id_has_a_placeholder();
    void an_unused_device_id_has_no_placeholder();
    void unused_combos_are_not_filled_data();
    void unused_combos_are_not_filled();
    void handlers_of_unused_fields_are_not_connected();
    void switching_tabs_activates_the_page_only_when_templates_are_used();
    void only_operation_pages_are_activated_data();
    void only_operation_pages_are_activated();
    void the_initial_fill_runs_no_change_handler();
    void the_initial_device_is_loaded_with_its_flows();
    void closing_the_window_neither_rejects_nor_accepts();
    void escape_rejects();
    void return_in_a_field_presses_no_button();
    void the_save_check_enables_the_template_name();

private:
    QFormLayout& fields() const { return child<QFormLayout>("formLayout_3"); }
};

void TEST_CONSTRUCTION::the_calls_of_an_opening_dialog_come_in_order()
{
    mgr().voltages = {"1.8 V"};
    mgr().builtin_template_operations[{0, false}] = {};

    open_recorded();

    const QStringList load =
        list_of({"mgr.get_voltage_list()", R"(mgr.verify_string_property(2, "1.8 V"))", "mgr.get_density_list()",
                 "mgr.get_template_list()", "mgr.can_edit_flow()", "mgr.get_flow_variant()",
                 "mgr.get_builtin_template_operations(0, false)", "mgr.is_flow_editable(null)"});
    const QStringList expected = list_of({"GFPDB_HELPER.set_active_flash_family(13)",
                                          "GFPDB_HELPER.get_active_flash_manager(true)",
                                          "mgr.get_family_list()",
                                          "mgr.set_device_family(5)",
                                          "mgr.get_config_scheme_list()",
                                          "mgr.set_config_scheme(13)",
                                          "GFPDB_MGR.get_db_custom_dir()",
                                          "mgr.is_property_used(0)",
                                          "mgr.is_property_used(1)",
                                          "mgr.is_property_used(2)",
                                          "mgr.get_voltage_list()",
                                          R"(mgr.verify_string_property(2, "1.8 V"))",
                                          "mgr.is_property_used(3)",
                                          "mgr.get_density_list()",
                                          "mgr.is_property_used(4)",
                                          "mgr.is_property_used(5)",
                                          "mgr.is_property_used(6)",
                                          "mgr.is_property_used(8)",
                                          "mgr.get_template_list()",
                                          "mgr.can_add_flash()",
                                          "mgr.get_custom_flash_names(5, 13, 0)",
                                          "mgr.get_builtin_flash_names(5, 13, 0)"});
    const int head = expected.size();
    COMPARE_CALLS(log().calls().mid(0, head), expected);
    // The row that was selected is loaded through the selection's change, and once more by the search for its name.
    QStringList rest = log().calls().mid(head);
    for (const QString& call : log().calls_of({QStringLiteral("is_property_used")}))
        rest.removeAll(call);
    COMPARE_CALLS(rest, load + load);
}

void TEST_CONSTRUCTION::the_scheme_and_not_the_family_makes_the_manager_active()
{
    DIALOG_ARGS args;
    args.family = 9;
    args.config_scheme = SCHEME_X1;

    open_recorded(args);

    QCOMPARE(log().calls().mid(0, 2),
             list_of({"GFPDB_HELPER.set_active_flash_family(7)", "GFPDB_HELPER.get_active_flash_manager(true)"}));
    QCOMPARE(combo("m_family_cbox").currentData().toInt(), 9);
    QCOMPARE(combo("m_config_mode_cbox").currentData().toInt(), SCHEME_X1);
}

void TEST_CONSTRUCTION::the_result_of_making_the_scheme_active_is_ignored()
{
    world().set_family_succeeds = false;

    open();

    QCOMPARE(all_rows(), list_of({"<<new device>>"}));
}

void TEST_CONSTRUCTION::without_a_manager_nothing_is_built()
{
    world().active = nullptr;

    QVERIFY_EXCEPTION_THROWN(open_recorded(), INTERNAL_ERROR_REPORTED);

    QCOMPARE(log().calls(),
             list_of({"GFPDB_HELPER.set_active_flash_family(13)", "GFPDB_HELPER.get_active_flash_manager(true)",
                      R"(MSG_INTERNAL_ERROR.report("m_gfpdb_mgr != nullptr", "GFPQ", )"
                      R"("pgm/gfpq/gfpq_dlg", 94))"}));
}

void TEST_CONSTRUCTION::building_the_form_leaves_the_warnings_as_they_were_data()
{
    QTest::addColumn<bool>("heard");

    QTest::newRow("heard") << true;
    QTest::newRow("silenced by the host") << false;
}

void TEST_CONSTRUCTION::building_the_form_leaves_the_warnings_as_they_were()
{
    QFETCH(const bool, heard);
    QLoggingCategory& category = *QLoggingCategory::defaultCategory();
    const auto restore = qScopeGuard([&category] { category.setEnabled(QtWarningMsg, true); });
    category.setEnabled(QtWarningMsg, heard);

    open();

    QCOMPARE(category.isWarningEnabled(), heard);
}

void TEST_CONSTRUCTION::the_window_has_a_title_bar_and_a_close_button_only()
{
    open();

    const Qt::WindowFlags type_and_hints = dlg().windowFlags();
    QCOMPARE(static_cast<int>(type_and_hints & ~Qt::WindowType_Mask), 0x08003000);
    QCOMPARE(dlg().windowType(), Qt::Dialog);
}

void TEST_CONSTRUCTION::the_parent_is_the_host_window()
{
    QWidget host;
    DIALOG_ARGS args;
    args.parent = &host;

    open(args);

    QCOMPARE(dlg().parentWidget(), &host);
    close_dialog();
}

void TEST_CONSTRUCTION::the_directory_is_shown_as_latin_1()
{
    world().custom_dir = "/db/M\xC3\xBCller/";

    open();

    QCOMPARE(edit("m_directory_edit").text(), QString::fromLatin1("/db/M\xC3\xBCller/"));
}

void TEST_CONSTRUCTION::each_flag_enables_its_controls_data()
{
    QTest::addColumn<bool>("family");
    QTest::addColumn<bool>("mode");
    QTest::addColumn<bool>("editing");

    for (int bits = 0; bits < 8; ++bits)
        QTest::addRow("%d", bits) << ((bits & 1) != 0) << ((bits & 2) != 0) << ((bits & 4) != 0);
}

void TEST_CONSTRUCTION::each_flag_enables_its_controls()
{
    QFETCH(const bool, family);
    QFETCH(const bool, mode);
    QFETCH(const bool, editing);
    DIALOG_ARGS args;
    args.enable_family = family;
    args.enable_config_mode = mode;
    args.enable_edit = editing;

    open(args);

    QCOMPARE(combo("m_family_cbox").isEnabled(), family);
    QCOMPARE(combo("m_config_mode_cbox").isEnabled(), mode);
    QCOMPARE(widget("m_config_device_tab").isEnabled(), editing);
    QCOMPARE(edit("m_directory_edit").isEnabled(), editing);
    QCOMPARE(button("m_browse_button").isEnabled(), editing);
    for (int operation = 0; operation < 5; ++operation)
        QVERIFY(page(operation).isEnabled());
    QVERIFY(button("m_ok_button").isEnabled());
    QVERIFY(button("m_cancel_button").isEnabled());
    QVERIFY(button("m_apply_button").isEnabled());
}

void TEST_CONSTRUCTION::operation_pages_stand_behind_the_device_page()
{
    open();

    QStringList titles;
    for (int position = 0; position < tabs().count(); ++position)
        titles.append(tabs().tabText(position));
    QCOMPARE(titles, list_of({"Configuration Device", "Initialization", "Program", "Erase",
                              "Verify/Blank-Check/Examine", "Termination"}));
    QCOMPARE(tabs().widget(0), &widget("m_config_device_tab"));
    QCOMPARE(tabs().currentIndex(), 0);
    const QStringList described =
        list_of({"Initialization operation at the beginning", "Program operation when", "Erase operation when",
                 "Verify/Blank-Check/Examine operation when", "Termination operation at the end"});
    for (int operation = 0; operation < 5; ++operation) {
        const auto* const description = page(operation).findChild<QLabel*>();
        QVERIFY(description != nullptr);
        QVERIFY(description->text().contains(described.at(operation)));
    }
}

void TEST_CONSTRUCTION::fields_that_are_used_stay_in_the_form()
{
    open();

    QCOMPARE(fields().count(), 18);
    for (int index = 0; index < fields().count(); ++index) {
        if (fields().itemAt(index)->widget() != nullptr)
            QVERIFY(!fields().itemAt(index)->widget()->isHidden());
    }
}

void TEST_CONSTRUCTION::an_unused_field_leaves_no_row_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<QByteArray>("label_name");
    QTest::addColumn<QByteArray>("editor_name");

    QTest::newRow("name") << 0 << QByteArray("m_device_name_label") << QByteArray("m_device_name_edit");
    QTest::newRow("id") << 1 << QByteArray("m_device_id_label") << QByteArray("m_device_id_edit");
    QTest::newRow("voltage") << 2 << QByteArray("m_voltage_label") << QByteArray("m_voltage_cbox");
    QTest::newRow("density") << 3 << QByteArray("m_density_lavel") << QByteArray("m_density_cbox");
    QTest::newRow("die") << 4 << QByteArray("m_total_die_label") << QByteArray("m_total_die_edit");
    QTest::newRow("single") << 5 << QByteArray("m_clock_cycle_label") << QByteArray("m_clock_cycle_edit");
    QTest::newRow("quad") << 6 << QByteArray("m_clock_cycle_label_x4") << QByteArray("m_clock_cycle_edit_x4");
}

void TEST_CONSTRUCTION::an_unused_field_leaves_no_row()
{
    QFETCH(const int, property);
    QFETCH(const QByteArray, label_name);
    QFETCH(const QByteArray, editor_name);
    mgr().unused_properties = {property};

    open();
    show_dialog();

    QVERIFY(widget(label_name.constData()).isHidden());
    QVERIFY(widget(editor_name.constData()).isHidden());
    QCOMPARE(fields().indexOf(&widget(label_name.constData())), -1);
    QCOMPARE(fields().indexOf(&widget(editor_name.constData())), -1);
    QCOMPARE(fields().count(), 16);
    // They are still parts of the dialog.
    QCOMPARE(widget(label_name.constData()).window(), &dlg());
    QCOMPARE(widget(editor_name.constData()).window(), &dlg());
}

void TEST_CONSTRUCTION::an_unused_template_row_is_taken_out_whole()
{
    mgr().unused_properties = {8};

    open();
    show_dialog();

    for (const char* name : {"m_flow_template_label", "m_flow_template_cbox", "m_edit_template_button",
                             "m_save_template_check", "m_template_name_edit"}) {
        QVERIFY2(widget(name).isHidden(), name);
        QCOMPARE(fields().indexOf(&widget(name)), -1);
    }
    auto& row = child<QHBoxLayout>("horizontalLayout");
    QCOMPARE(row.count(), 0);
    for (int index = 0; index < fields().count(); ++index)
        QVERIFY(fields().itemAt(index)->layout() != &row);
    QCOMPARE(fields().count(), 14);
    QCOMPARE(items("m_flow_template_cbox"), QStringList());
}

void TEST_CONSTRUCTION::without_any_field_the_form_is_empty()
{
    mgr().unused_properties = {0, 1, 2, 3, 4, 5, 6, 8};

    open();

    QCOMPARE(fields().count(), 0);
}

void TEST_CONSTRUCTION::taken_out_widgets_go_with_the_dialog()
{
    mgr().unused_properties = {0, 1, 2, 3, 4, 5, 6, 8};
    open();
    const QPointer<QObject> row(&child<QHBoxLayout>("horizontalLayout"));
    const QPointer<QObject> field(&edit("m_device_id_edit"));
    QVERIFY(row->parent() != nullptr);

    close_dialog();

    QVERIFY(row.isNull());
    QVERIFY(field.isNull());
}

void TEST_CONSTRUCTION::only_the_device_id_has_a_placeholder()
{
    open();

    for (const QLineEdit* field : dlg().findChildren<QLineEdit*>()) {
        const bool is_id = field->objectName() == QLatin1String("m_device_id_edit");
        QCOMPARE(field->placeholderText(), is_id ? QStringLiteral("i.e. 0xC2 0x20 0x19") : QString());
    }
}

void TEST_CONSTRUCTION::an_unused_device_id_has_no_placeholder()
{
    mgr().unused_properties = {1};

    open();

    QCOMPARE(edit("m_device_id_edit").placeholderText(), QString());
}

void TEST_CONSTRUCTION::unused_combos_are_not_filled_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<QString>("call");

    QTest::newRow("m_voltage_cbox") << 2 << qs("get_voltage_list");
    QTest::newRow("m_density_cbox") << 3 << qs("get_density_list");
    QTest::newRow("m_flow_template_cbox") << 8 << qs("get_template_list");
}

void TEST_CONSTRUCTION::unused_combos_are_not_filled()
{
    QFETCH(const int, property);
    QFETCH(const QString, call);
    mgr().unused_properties = {property};
    mgr().add_custom("A");

    open_recorded();
    pick(QStringLiteral("A"));

    QCOMPARE(items(QTest::currentDataTag()), QStringList());
    QCOMPARE(log().count(call), 0);
}

void TEST_CONSTRUCTION::handlers_of_unused_fields_are_not_connected()
{
    mgr().unused_properties = {0, 1, 2, 3, 4, 5, 6, 8};
    open();

    for (const char* name :
         {"m_device_name_edit", "m_device_id_edit", "m_total_die_edit", "m_clock_cycle_edit", "m_clock_cycle_edit_x4"})
        enter(name, QStringLiteral("1"));
    for (const char* name : {"m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"})
        combo(name).addItems({QStringLiteral("x"), QStringLiteral("y")});
    check("m_save_template_check").setChecked(true);
    button("m_edit_template_button").setEnabled(true);
    button("m_edit_template_button").click();

    QCOMPARE(calls(), QStringList());
}

void TEST_CONSTRUCTION::switching_tabs_activates_the_page_only_when_templates_are_used()
{
    for (const bool used : {true, false}) {
        mgr().unused_properties = used ? std::set<int>() : std::set<int>{8};
        open();

        for (int position = 1; position <= 5; ++position) {
            log().clear();
            tabs().setCurrentIndex(position);
            // The first activation makes the page's checker of typed values, a custom action.
            QCOMPARE(calls(), used ? list_of({"GFPDB_HELPER.get_active_flash_manager(false)", "mgr.create_action(5)"})
                                   : QStringList());
            QCOMPARE(page(position - 1).findChild<QTableView*>()->model() != nullptr, used);
        }
        log().clear();
        tabs().setCurrentIndex(0);
        QCOMPARE(calls(), QStringList());
        close_dialog();
    }
}

void TEST_CONSTRUCTION::only_operation_pages_are_activated_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("activated");

    QTest::newRow("none") << -1 << -1;
    QTest::newRow("device page") << 0 << -1;
    for (int operation = 0; operation < 5; ++operation)
        QTest::addRow("operation %d", operation) << operation + 1 << operation;
    QTest::newRow("behind the last") << 6 << -1;
}

void TEST_CONSTRUCTION::only_operation_pages_are_activated()
{
    QFETCH(const int, index);
    QFETCH(const int, activated);
    open();

    QVERIFY(QMetaObject::invokeMethod(&dlg(), "on_tab_index_changed", Qt::DirectConnection, Q_ARG(int, index)));

    // A page that was activated has its property table set up.
    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page(operation).findChild<QTableView*>()->model() != nullptr, operation == activated);
}

void TEST_CONSTRUCTION::the_initial_fill_runs_no_change_handler()
{
    open_recorded();

    QCOMPARE(log().count(QStringLiteral("set_active_flash_family")), 1);
    QCOMPARE(log().count(QStringLiteral("set_device_family")), 1);
    QCOMPARE(log().count(QStringLiteral("set_config_scheme")), 1);
    QCOMPARE(log().count(QStringLiteral("check_string_property")), 0);
}

void TEST_CONSTRUCTION::the_initial_device_is_loaded_with_its_flows()
{
    FLASH_DOUBLE& flash = mgr().add_custom("A");
    flash.operations[false] = make_operations("step");

    open_with("A");

    QCOMPARE(current_row(), QStringLiteral("A"));
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("A"));
    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList(QStringLiteral("0:step %1").arg(operation)));
}

void TEST_CONSTRUCTION::closing_the_window_neither_rejects_nor_accepts()
{
    open();
    show_dialog();
    QSignalSpy finished(&dlg(), &QDialog::finished);
    QSignalSpy rejected(&dlg(), &QDialog::rejected);

    QVERIFY(dlg().close());

    QVERIFY(!dlg().isVisible());
    QCOMPARE(finished.size(), 0);
    QCOMPARE(rejected.size(), 0);
    QCOMPARE(calls(), QStringList());
}

void TEST_CONSTRUCTION::escape_rejects()
{
    open();
    show_dialog();
    QSignalSpy rejected(&dlg(), &QDialog::rejected);

    QTest::keyClick(&dlg(), Qt::Key_Escape);

    QCOMPARE(rejected.size(), 1);
    QVERIFY(!dlg().isVisible());
}

void TEST_CONSTRUCTION::return_in_a_field_presses_no_button()
{
    open();
    show_dialog();

    for (const char* name : {"m_device_name_edit", "m_device_id_edit", "m_total_die_edit", "m_clock_cycle_edit",
                             "m_clock_cycle_edit_x4", "m_filter_line_edit", "m_directory_edit"}) {
        edit(name).setFocus();
        QTest::keyClick(&edit(name), Qt::Key_Return);
        QTest::keyClick(&edit(name), Qt::Key_Enter, Qt::KeypadModifier);
    }

    QVERIFY(dlg().isVisible());
    QVERIFY(m_modals.met().isEmpty());
}

void TEST_CONSTRUCTION::the_save_check_enables_the_template_name()
{
    open();
    QVERIFY(!edit("m_template_name_edit").isEnabled());

    check("m_save_template_check").click();
    QVERIFY(edit("m_template_name_edit").isEnabled());
    edit("m_template_name_edit").setText(QStringLiteral("kept"));
    check("m_save_template_check").click();

    QVERIFY(!edit("m_template_name_edit").isEnabled());
    QCOMPARE(edit("m_template_name_edit").text(), QStringLiteral("kept"));
    QCOMPARE(calls(), QStringList());
}

GFPQ_TEST_MAIN(TEST_CONSTRUCTION)

#include "test_construction.moc"
