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
    void the_calls_of_an_opening_dialog_come_in_order()
    {
        mgr().voltages = {"1.8 V"};
        mgr().builtin_template_operations[{0, false}] = {};

        open_recorded();

        const QStringList load =
            list_of({"mgr.get_voltage_list()", R"(mgr.verify_string_property(2, "1.8 V"))", "mgr.get_density_list()",
                     "mgr.get_template_list()", "mgr.can_edit_flow()", "mgr.get_flow_variant()",
                     "mgr.get_builtin_template_operations(0, false)", "mgr.is_flow_editable(null)"});
        const QStringList expected =
            qs("GFPDB_HELPER.set_active_flash_family(13) GFPDB_HELPER.get_active_flash_manager(true) "
               "mgr.get_family_list() mgr.set_device_family(5) mgr.get_config_scheme_list() mgr.set_config_scheme(13) "
               "GFPDB_MGR.get_db_custom_dir() mgr.is_property_used(0) mgr.is_property_used(1) mgr.is_property_used(2) "
               "mgr.get_voltage_list()")
                .split(QLatin1Char(' ')) +
            list_of({R"(mgr.verify_string_property(2, "1.8 V"))", "mgr.is_property_used(3)", "mgr.get_density_list()",
                     "mgr.is_property_used(4)", "mgr.is_property_used(5)", "mgr.is_property_used(6)",
                     "mgr.is_property_used(8)", "mgr.get_template_list()", "mgr.can_add_flash()",
                     "mgr.get_custom_flash_names(5, 13, 0)", "mgr.get_builtin_flash_names(5, 13, 0)"});
        const int head = expected.size();
        COMPARE_CALLS(log().calls().mid(0, head), expected);
        // The row that was selected is loaded through the selection's change, and once more by the search for its name.
        QStringList rest = log().calls().mid(head);
        for (const QString& call : calls_of({"is_property_used"}))
            rest.removeAll(call);
        COMPARE_CALLS(rest, load + load);
    }

    // Whether that succeeds is not of interest.
    void the_scheme_and_not_the_family_makes_the_manager_active()
    {
        world().set_family_succeeds = false;

        open_recorded({9, SCHEME_X1});

        QCOMPARE(log().calls().mid(0, 2),
                 list_of({"GFPDB_HELPER.set_active_flash_family(7)", "GFPDB_HELPER.get_active_flash_manager(true)"}));
        QCOMPARE(data("m_family_cbox"), 9);
        QCOMPARE(data("m_config_mode_cbox"), SCHEME_X1);
    }

    void without_a_manager_nothing_is_built()
    {
        world().active = nullptr;

        QVERIFY_EXCEPTION_THROWN(open_recorded(), INTERNAL_ERROR_REPORTED);

        QCOMPARE(log().calls(),
                 list_of({"GFPDB_HELPER.set_active_flash_family(13)", "GFPDB_HELPER.get_active_flash_manager(true)",
                          R"(MSG_INTERNAL_ERROR.report("m_gfpdb_mgr != nullptr", "GFPQ", )"
                          R"("pgm/gfpq/gfpq_dlg", 94))"}));
    }

    void building_the_form_leaves_the_warnings_as_they_were()
    {
        QLoggingCategory& category = *QLoggingCategory::defaultCategory();
        const auto restore = qScopeGuard([&category] { category.setEnabled(QtWarningMsg, true); });
        for (const bool heard : {true, false}) {
            category.setEnabled(QtWarningMsg, heard);

            open();

            QCOMPARE(category.isWarningEnabled(), heard);
        }
    }

    void the_window_has_a_title_bar_and_a_close_button_only()
    {
        open();

        const Qt::WindowFlags type_and_hints = dlg().windowFlags();
        QCOMPARE(static_cast<int>(type_and_hints & ~Qt::WindowType_Mask), 0x08003000);
        QCOMPARE(dlg().windowType(), Qt::Dialog);
    }

    void the_directory_is_shown_as_latin_1()
    {
        world().custom_dir = "/db/M\xC3\xBCller/";

        open();

        QCOMPARE(text("m_directory_edit"), QString::fromLatin1("/db/M\xC3\xBCller/"));
    }

    void each_flag_enables_its_controls()
    {
        for (int bits = 0; bits < 8; ++bits) {
            DIALOG_ARGS args;
            args.enable_family = (bits & 1) != 0;
            args.enable_config_mode = (bits & 2) != 0;
            args.enable_edit = (bits & 4) != 0;

            open(args);

            QCOMPARE(widget("m_family_cbox").isEnabled(), args.enable_family);
            QCOMPARE(widget("m_config_mode_cbox").isEnabled(), args.enable_config_mode);
            for (const char* name : {"m_config_device_tab", "m_directory_edit", "m_browse_button"})
                QVERIFY2(widget(name).isEnabled() == args.enable_edit, name);
            for (const char* name : {"m_ok_button", "m_cancel_button", "m_apply_button"})
                QVERIFY2(widget(name).isEnabled(), name);
            for (int operation = 0; operation < 5; ++operation)
                QVERIFY(page(operation).isEnabled());
        }
    }

    void operation_pages_are_behind_the_device_page()
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

    void an_unused_field_leaves_no_row_data()
    {
        const QString nothing;
        rows<int, QStringList, QString>({{"none", -1, QStringList(), nothing},
                                         {"name", 0, {"m_device_name_label", "m_device_name_edit"}, nothing},
                                         {"id", 1, {"m_device_id_label", "m_device_id_edit"}, nothing},
                                         {"voltage", 2, {"m_voltage_label", "m_voltage_cbox"}, "get_voltage_list"},
                                         {"density", 3, {"m_density_lavel", "m_density_cbox"}, "get_density_list"},
                                         {"die", 4, {"m_total_die_label", "m_total_die_edit"}, nothing},
                                         {"single", 5, {"m_clock_cycle_label", "m_clock_cycle_edit"}, nothing},
                                         {"quad", 6, {"m_clock_cycle_label_x4", "m_clock_cycle_edit_x4"}, nothing},
                                         {"template",
                                          8,
                                          {"m_flow_template_label", "m_save_template_check", "m_template_name_edit",
                                           "m_flow_template_cbox", "m_edit_template_button"},
                                          "get_template_list"}});
    }

    void an_unused_field_leaves_no_row()
    {
        const auto [property, names, filled_by] = row<int, QStringList, QString>();
        mgr().unused_properties = {property};

        open_recorded();
        QCOMPARE(count_of("get_voltage_list") > 0, filled_by != QLatin1String("get_voltage_list"));
        QCOMPARE(count_of("get_density_list") > 0, filled_by != QLatin1String("get_density_list"));
        QCOMPARE(count_of("get_template_list") > 0, filled_by != QLatin1String("get_template_list"));
        show_dialog();

        // The template's row is a layout of two, so five widgets are four items.
        QCOMPARE(fields().count(), names.size() == 5 ? 14 : 18 - names.size());
        for (int index = 0; index < fields().count(); ++index)
            QVERIFY(fields().itemAt(index)->widget() == nullptr || !fields().itemAt(index)->widget()->isHidden());
        for (const QString& name : names) {
            QWidget& part = widget(name.toLatin1().constData());
            QVERIFY2(part.isHidden() && part.isEnabled(), qPrintable(name));
            QCOMPARE(fields().indexOf(&part), -1);
            // It is still part of the dialog.
            QCOMPARE(part.window(), &dlg());
            if (const auto* const box = qobject_cast<const QComboBox*>(&part))
                QCOMPARE(box->count(), 0);
        }
        auto& row_of_template = child<QHBoxLayout>("horizontalLayout");
        QCOMPARE(row_of_template.count(), property == 8 ? 0 : 2);
        QCOMPARE(fields().indexOf(&row_of_template) < 0, property == 8);
        QCOMPARE(edit("m_device_id_edit").placeholderText(), property == 1 ? QString() : qs("i.e. 0xC2 0x20 0x19"));
    }

    void taken_out_widgets_go_with_the_dialog()
    {
        mgr().unused_properties = ALL_FIELDS;
        open();
        const QPointer<QObject> row_of_template(&child<QHBoxLayout>("horizontalLayout"));
        const QPointer<QObject> field(&edit("m_device_id_edit"));
        QVERIFY(row_of_template->parent() != nullptr);
        QCOMPARE(fields().count(), 0);

        close_dialog();

        QVERIFY(row_of_template.isNull());
        QVERIFY(field.isNull());
    }

    void only_the_device_id_has_a_placeholder()
    {
        open();

        for (const QLineEdit* field : dlg().findChildren<QLineEdit*>()) {
            const bool is_id = field->objectName() == QLatin1String("m_device_id_edit");
            QCOMPARE(field->placeholderText(), is_id ? qs("i.e. 0xC2 0x20 0x19") : QString());
        }
    }

    void handlers_of_unused_fields_are_not_connected()
    {
        mgr().unused_properties = ALL_FIELDS;
        open();

        for (const char* name : {"m_device_name_edit", "m_device_id_edit", "m_total_die_edit", "m_clock_cycle_edit",
                                 "m_clock_cycle_edit_x4"})
            enter(name, qs("1"));
        for (const char* name : {"m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"})
            combo(name).addItems({qs("x"), qs("y")});
        check("m_save_template_check").setChecked(true);
        button("m_edit_template_button").setEnabled(true);
        button("m_edit_template_button").click();

        QCOMPARE(calls(), QStringList());
    }

    void switching_tabs_activates_the_page_only_when_templates_are_used()
    {
        for (const bool used : {true, false}) {
            mgr().unused_properties = used ? std::set<int>() : std::set<int>{GFPDB_FLASH_FLOW_TEMPLATE};
            open();

            for (int position = 1; position <= 5; ++position) {
                log().clear();
                tabs().setCurrentIndex(position);
                // The first activation makes the page's checker of typed values, a custom action.
                QCOMPARE(calls(),
                         used ? list_of({"GFPDB_HELPER.get_active_flash_manager(false)", "mgr.create_action(5)"})
                              : QStringList());
                QCOMPARE(page(position - 1).findChild<QTableView*>()->model() != nullptr, used);
            }
            log().clear();
            tabs().setCurrentIndex(0);
            QCOMPARE(calls(), QStringList());
            close_dialog();
        }
    }

    void only_operation_pages_are_activated()
    {
        for (const int index : {-1, 0, 6, 1, 2, 3, 4, 5}) {
            open();

            QVERIFY(QMetaObject::invokeMethod(&dlg(), "on_tab_index_changed", Qt::DirectConnection, Q_ARG(int, index)));

            // A page that was activated has its property table set up.
            for (int operation = 0; operation < 5; ++operation)
                QCOMPARE(page(operation).findChild<QTableView*>()->model() != nullptr, operation == index - 1);
        }
    }

    void closing_the_window_neither_rejects_nor_accepts()
    {
        open();
        show_dialog();
        QSignalSpy finished(&dlg(), &QDialog::finished);
        QSignalSpy rejected(&dlg(), &QDialog::rejected);

        QVERIFY(dlg().close());

        QVERIFY(!dlg().isVisible());
        QCOMPARE(finished.size(), 0);
        QCOMPARE(rejected.size(), 0);
        QCOMPARE(dlg().result(), 0);
        QCOMPARE(calls(), QStringList());
    }

    void return_in_a_field_presses_no_button()
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

    void the_save_check_enables_the_template_name()
    {
        open();
        show_dialog();
        type_in("m_device_name_edit", "X");
        check("m_save_template_check").setFocus();
        QVERIFY(!edit("m_template_name_edit").isEnabled());

        // Nothing else happens to it.
        for (const QString& kept : {QString(), qs("kept")}) {
            type_in("m_template_name_edit", kept);
            for (const bool checked : {true, false}) {
                check("m_save_template_check").click();
                QCOMPARE(edit("m_template_name_edit").isEnabled(), checked);
                QCOMPARE(text("m_template_name_edit"), kept);
                QCOMPARE(edit("m_template_name_edit").placeholderText(), QString());
                QCOMPARE(dlg().focusWidget(), &check("m_save_template_check"));
            }
        }
        QCOMPARE(calls(), QStringList());
    }

private:
    QFormLayout& fields() const { return child<QFormLayout>("formLayout_3"); }
};

GFPQ_TEST_MAIN(TEST_CONSTRUCTION)

#include "test_construction.moc"
