// SPDX-License-Identifier: MIT

// What selecting a device shows and enables on the device page: fields, combos, buttons.
#include "dialog_test.h"

class TEST_LOAD_DEVICE : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void the_calls_of_a_selection_come_in_order()
    {
        FLASH_DOUBLE& flash = add_full_record("A");
        flash.operations[false] = {};
        mgr().voltages = {"1.8 V", "2.5 V"};
        open();

        pick("A");

        const QStringList used = calls_of({"is_property_used"});
        QVERIFY(!used.isEmpty());
        QStringList expected =
            list_of({"mgr.get_voltage_list()", R"(mgr.verify_string_property(2, "1.8 V"))", "mgr.get_density_list()",
                     "mgr.get_template_list()", R"(mgr.find_flash("A", true))", R"(mgr.is_hidden_flash("A", false))",
                     "flash:A.get_name()", "flash:A.get_string_property(1)", "flash:A.get_string_property(2)",
                     "flash:A.get_density()", "flash:A.get_int_property(4, 0)", "flash:A.get_int_property(5, 0)",
                     "flash:A.get_int_property(6, 0)", "flash:A.get_string_property(8)", "mgr.can_edit_flow()",
                     "mgr.get_flow_variant()", "flash:A.get_operations(false)", "mgr.is_flow_editable(flash:A)"});
        QStringList made = calls();
        made.removeAll(qs("flash:A.is_user_defined()"));
        COMPARE_CALLS(made, expected);
        // The fields are enabled before the pages are: whether a field is used is not asked once flows are.
        const QStringList all = log().calls();
        QVERIFY(all.lastIndexOf(used.last()) < all.indexOf(qs("mgr.can_edit_flow()")));
    }

    void unused_fields_are_neither_read_nor_written_data()
    {
        rows<int, QString, QStringList>(
            {{"name", 0, "flash:A.get_name()", {"m_device_name_edit"}},
             {"id", 1, "flash:A.get_string_property(1)", {"m_device_id_edit"}},
             {"voltage", 2, "flash:A.get_string_property(2)", {"m_voltage_cbox"}},
             {"density", 3, "flash:A.get_density()", {"m_density_cbox"}},
             {"die", 4, "flash:A.get_int_property(4, 0)", {"m_total_die_edit"}},
             {"single", 5, "flash:A.get_int_property(5, 0)", {"m_clock_cycle_edit"}},
             {"quad", 6, "flash:A.get_int_property(6, 0)", {"m_clock_cycle_edit_x4"}},
             {"template",
              8,
              "flash:A.get_string_property(8)",
              {"m_flow_template_cbox", "m_edit_template_button", "m_save_template_check", "m_template_name_edit"}}});
    }

    void unused_fields_are_neither_read_nor_written()
    {
        const auto [property, call, untouched] = row<int, QString, QStringList>();
        add_full_record("A");
        mgr().unused_properties = {property};
        open();
        // A text and a state that stay show that nobody touches the field: every used one is cleared and enabled once.
        for (const QString& name : untouched) {
            widget(name.toLatin1().constData()).setEnabled(false);
            if (auto* const line_edit = qobject_cast<QLineEdit*>(&widget(name.toLatin1().constData())))
                line_edit->setText(qs("kept"));
        }

        pick("A");
        QCOMPARE(log().calls().count(call), 0);
        pick("<<new device>>");

        for (const QString& name : untouched) {
            QVERIFY2(!widget(name.toLatin1().constData()).isEnabled(), qPrintable(name));
            if (name.endsWith(qs("_edit")))
                QCOMPARE(text(name.toLatin1().constData()), qs("kept"));
        }
    }

    void the_fields_show_the_record()
    {
        add_full_record("A");
        FLASH_DOUBLE& builtin = mgr().add_builtin("B");
        set_texts(builtin, "0xEF", "2.5 V", "1 Gb", "Built-in B");
        builtin.ints = {{GFPDB_FLASH_TOTAL_DIE, -12}, {GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, 1234567}};

        // A built-in device shows no voltage and density; numbers are decimal.
        open_with("B");
        QCOMPARE(shown(), list_of({"B", "0xEF", "-12", "1234567", "0", "", "", "Built-in B"}));
        QCOMPARE(combo("m_voltage_cbox").count() + combo("m_density_cbox").count(), 0);

        pick("A");
        QCOMPARE(shown(), list_of({"A", "0xC2 0x20 0x19", "2", "8", "10", "2.5 V", "1 Gb", "Built-in C"}));
        QCOMPARE(items("m_flow_template_cbox").size(), 5);

        pick("<<new device>>");
        QCOMPARE(shown(), list_of({"", "", "", "", "", "1.8 V", "16 Mb", "Built-in A"}));
        QCOMPARE(calls_of({"find_flash", "is_hidden_flash"}),
                 list_of({R"(mgr.find_flash("A", true))", R"(mgr.is_hidden_flash("A", false))"}));
    }

    void a_choice_is_found_among_the_items_data()
    {

        rows<QString, QString, QString, QString>(
            {{"other case", "2.5 v", "1 GB", "BUILT-IN C", "2.5 V|1 Gb|Built-in C|6"},
             // The first fitting voltage is another one: it must not stay.
             {"not offered", "2.5", "Gb", "gone template", "1.8 V|16 Mb|gone template|7"},
             {"the first", "1.8 V", "16 Mb", "Built-in A", "1.8 V|16 Mb|Built-in A|6"},
             {"letter for letter first", "3.3v", "16 Mb", "Built-in A", "3.3v|16 Mb|Built-in A|6"}});
    }

    void a_choice_is_found_among_the_items()
    {
        const auto [voltage, density, flow_template, expected] = row<QString, QString, QString, QString>();
        mgr().voltages = {"1.8 V", "2.5 V", "3.3V", "3.3v"};
        mgr().templates.push_back("stored");
        mgr().unverified_values[{GFPDB_FLASH_VOLTAGE, "1.8 V"}] = "no";
        add_full_record("A").strings = {{GFPDB_FLASH_VOLTAGE, voltage.toStdString()},
                                        {GFPDB_FLASH_DENSITY, density.toStdString()},
                                        {GFPDB_FLASH_FLOW_TEMPLATE, flow_template.toStdString()}};

        open_with("A");

        QCOMPARE(shown().mid(5).join(QLatin1Char('|')) + qs("|%1").arg(combo("m_flow_template_cbox").count()),
                 expected);
        QCOMPARE(combo("m_voltage_cbox").count() + combo("m_density_cbox").count(), 7);
        QCOMPARE(combo("m_flow_template_cbox").currentData(), QVariant());
        // A template that was added is the last one, and leaves with its device.
        QCOMPARE(items("m_flow_template_cbox").indexOf(qs("stored")), 5);
        pick("<<new device>>");
        QCOMPARE(items("m_flow_template_cbox").size(), 6);
        QCOMPARE(combo("m_flow_template_cbox").currentIndex(), 0);
    }

    void a_hidden_device_shows_nothing()
    {
        add_full_record("A");
        add_full_record("H");
        mgr().hidden_properties = {"H"};
        for (const bool has_record : {true, false}) {
            open_with("A");
            if (!has_record)
                mgr().flashes.erase("H");

            pick("H");

            QCOMPARE(shown().mid(0, 5).join(QString()), QString());
            if (has_record)
                QCOMPARE(shown().mid(5).join(QString()), QString());
            QCOMPARE(calls_of({"find_flash", "is_hidden_flash"}).mid(0, 2),
                     list_of({R"(mgr.find_flash("H", true))", R"(mgr.is_hidden_flash("H", false))"}));
        }
    }

    void a_record_that_is_gone_leaves_the_fields()
    {
        add_full_record("A");
        add_full_record("B");
        open_with("A");
        mgr().flashes.erase("B");

        pick("B");

        QCOMPARE(text("m_device_name_edit"), qs("A"));
        QCOMPARE(text("m_device_id_edit"), qs("0xC2 0x20 0x19"));
        QVERIFY(!button("m_delete_button").isEnabled());
        // The row's own mark says that it could be edited.
        QVERIFY(button("m_apply_button").isEnabled());
        log().clear();
        run("on_delete_clicked");
        QCOMPARE(calls(), QStringList());
    }

    void enabled_states_data()
    {
        rows<QString, bool, bool, bool>({{"new device", "<<new device>>", true, true, false},
                                         {"custom", "custom", true, false, true},
                                         {"built-in", "built-in", false, false, false},
                                         // The record has the last word, the mark of the row only counts without one.
                                         {"custom row, built-in record", "odd custom", false, false, false},
                                         {"built-in row, custom record", "odd built-in", true, false, true},
                                         {"built-in row, no record", "no record", false, false, false},
                                         {"custom row, no record", "no custom record", true, false, false}});
    }

    void enabled_states()
    {
        const auto [device, editable, new_device, can_delete] = row<QString, bool, bool, bool>();
        mgr().add_custom("custom");
        mgr().add_builtin("built-in");
        mgr().add_custom("odd custom").user_defined = false;
        mgr().add_builtin("odd built-in").user_defined = true;
        mgr().builtin_names.push_back("no record");
        mgr().custom_names.push_back("no custom record");
        // From the opposite state, so that each is really set.
        open_with(editable ? "built-in" : "custom");
        check("m_save_template_check").setEnabled(true);
        check("m_save_template_check").setChecked(true);
        type_in("m_template_name_edit", "typed");

        pick(device);

        const std::pair<const char*, bool> expected[] = {{"m_device_name_edit", editable},
                                                         {"m_device_id_edit", editable},
                                                         {"m_total_die_edit", editable},
                                                         {"m_clock_cycle_edit", editable},
                                                         {"m_clock_cycle_edit_x4", editable},
                                                         {"m_voltage_cbox", editable},
                                                         {"m_density_cbox", editable},
                                                         {"m_save_template_check", editable},
                                                         {"m_apply_button", editable},
                                                         {"m_flow_template_cbox", new_device},
                                                         {"m_edit_template_button", new_device},
                                                         {"m_delete_button", can_delete},
                                                         {"m_template_name_edit", false},
                                                         {"m_ok_button", true},
                                                         {"m_cancel_button", true}};
        for (const auto& [name, enabled] : expected)
            QVERIFY2(widget(name).isEnabled() == enabled, name);
        QVERIFY(!check("m_save_template_check").isChecked());
        QCOMPARE(text("m_template_name_edit"), QString());
    }

    // Of densities and templates it can.
    void a_lone_voltage_cannot_be_chosen()
    {
        add_full_record("A");
        for (const char* device : {"", "A", "none"}) {
            for (const int count : {0, 1, 2}) {
                for (std::vector<std::string>* list : {&mgr().voltages, &mgr().densities, &mgr().templates})
                    list->assign(static_cast<std::size_t>(count), "one");
                if (qstrcmp(device, "none") == 0) {
                    mgr().add_allowed = false;
                    mgr().custom_names.clear();
                }

                open_with(device);

                QCOMPARE(combo("m_voltage_cbox").isEnabled(), count >= 2);
                QVERIFY(combo("m_density_cbox").isEnabled());
                QVERIFY(combo("m_flow_template_cbox").isEnabled() == (qstrcmp(device, "A") != 0));
            }
        }
        QVERIFY(all_rows().isEmpty());
    }

    void the_new_device_row_is_known_in_any_case()
    {
        add_full_record("A");
        mgr().add_builtin("<<New DEVICE>>");
        mgr().add_allowed = false;
        open_with("A");

        pick("<<New DEVICE>>");

        QCOMPARE(count_of("find_flash"), 0);
        QCOMPARE(text("m_device_id_edit"), QString());
        QVERIFY(edit("m_device_id_edit").isEnabled());
        QVERIFY(combo("m_flow_template_cbox").isEnabled());
        QVERIFY(button("m_apply_button").isEnabled());
        QVERIFY(!button("m_delete_button").isEnabled());
    }

    void the_first_fitting_voltage_is_chosen()
    {
        mgr().unverified_values[{GFPDB_FLASH_VOLTAGE, "1.8 V"}] = "no";
        open_recorded();

        QCOMPARE(text("m_voltage_cbox"), qs("2.5 V"));
        QCOMPARE(items("m_voltage_cbox"), list_of({"1.8 V", "2.5 V", "3.3 V"}));
        QCOMPARE(calls_of({"verify_string_property"}).mid(0, 2),
                 list_of({R"(mgr.verify_string_property(2, "1.8 V"))", R"(mgr.verify_string_property(2, "2.5 V"))"}));
        QVERIFY(!log().calls().contains(qs(R"(mgr.verify_string_property(2, "3.3 V"))")));

        // Where none fits, the first stays.
        for (const std::string& voltage : mgr().voltages)
            mgr().unverified_values[{GFPDB_FLASH_VOLTAGE, voltage}] = "no";
        open();
        QCOMPARE(combo("m_voltage_cbox").currentIndex(), 0);
        QVERIFY(combo("m_voltage_cbox").isEnabled());
    }

    void choices_are_texts_only()
    {
        mgr().add_builtin("built-in");
        open();

        for (const char* name : {"m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"}) {
            QVERIFY(combo(name).count() > 1);
            for (int index = 0; index < combo(name).count(); ++index)
                QCOMPARE(combo(name).itemData(index), QVariant());
        }
        QCOMPARE(items("m_density_cbox"), list_of({"16 Mb", "128 Mb", "1 Gb"}));
        mgr().densities = {"b", "", "a", "b"};
        pick("built-in");
        pick("<<new device>>");
        QCOMPARE(items("m_density_cbox"), list_of({"b", "", "a", "b"}));
        QCOMPARE(items("m_flow_template_cbox"),
                 list_of({"Built-in A", "Built-in B", "Built-in C", "Built-in D", "Built-in E"}));
    }

    void the_old_choices_go_when_the_new_ones_are_known()
    {
        add_full_record("A");
        open();
        QStringList held;
        for (const char* const list : {"get_voltage_list", "get_density_list", "get_template_list"}) {
            log().on_call(qs(list), [&](const QString&) {
                for (const char* const name : {"m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"})
                    held.append(QString::number(combo(name).count()));
            });
        }

        pick("A");

        QCOMPARE(held.join(QLatin1Char(' ')), qs("3 3 5 3 3 5 3 3 5"));
    }

    void loading_runs_no_check_and_no_box()
    {
        add_full_record("A");
        add_full_record("B").strings = {
            {GFPDB_FLASH_VOLTAGE, "3.3 V"}, {GFPDB_FLASH_DENSITY, "128 Mb"}, {GFPDB_FLASH_FLOW_TEMPLATE, "added"}};
        add_full_record("H");
        mgr().hidden_properties = {"H"};
        mgr().add_builtin("built-in");
        for (const int property : ALL_FIELDS)
            mgr().refuse(property, "refused");
        open();

        for (const char* device : {"A", "B", "H", "A", "built-in"})
            pick(qs(device));
        pick("<<new device>>");

        QCOMPARE(calls_of({"check_string_property", "check_int_property"}), QStringList());
    }

    void the_change_slots_work_after_a_load()
    {
        add_full_record("A");
        open_with("A");

        combo("m_voltage_cbox").setCurrentIndex(2);
        combo("m_density_cbox").setCurrentIndex(0);
        combo("m_flow_template_cbox").setCurrentIndex(0);

        QCOMPARE(calls_of({"check_string_property"}),
                 list_of({R"(mgr.check_string_property(2, "3.3 V"))", R"(mgr.check_string_property(3, "16 Mb"))",
                          R"(mgr.check_string_property(8, "Built-in A"))"}));
    }

private:
    FLASH_DOUBLE& add_full_record(const std::string& name)
    {
        FLASH_DOUBLE& flash = mgr().add_custom(name);
        set_texts(flash, "0xC2 0x20 0x19", "2.5 V", "1 Gb", "Built-in C");
        set_numbers(flash, 2, 8, 10);
        return flash;
    }

    // The texts of the line edits and of the combo boxes.
    QStringList shown() const
    {
        QStringList texts;
        for (const char* name : {"m_device_name_edit", "m_device_id_edit", "m_total_die_edit", "m_clock_cycle_edit",
                                 "m_clock_cycle_edit_x4", "m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"})
            texts.append(text(name));
        return texts;
    }
};

GFPQ_TEST_MAIN(TEST_LOAD_DEVICE)

#include "test_load_device.moc"
