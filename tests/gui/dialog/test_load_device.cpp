// SPDX-License-Identifier: MIT

// What selecting a device shows and enables on the device page: fields, combos, buttons.
#include "dialog_test.h"

namespace {

const char* const LINE_EDITS[] = {"m_device_name_edit", "m_device_id_edit", "m_total_die_edit", "m_clock_cycle_edit",
                                  "m_clock_cycle_edit_x4"};

} // namespace

class TEST_LOAD_DEVICE : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void the_calls_of_a_selection_come_in_order();
    void the_fields_show_the_record();
    void integers_are_shown_in_decimal_data();
    void integers_are_shown_in_decimal();
    void unused_fields_are_neither_read_nor_written_data();
    void unused_fields_are_neither_read_nor_written();
    void texts_match_without_regard_to_case();
    void a_text_that_is_not_offered_shows_the_first_item();
    void a_template_that_is_not_listed_is_added();
    void the_first_template_is_listed_once();
    void texts_are_found_letter_for_letter_first();
    void an_added_template_leaves_with_its_device();
    void a_builtin_device_shows_no_voltage_and_density();
    void a_hidden_device_shows_nothing();
    void a_hidden_device_without_record_shows_nothing();
    void a_record_that_is_gone_leaves_the_fields();
    void enabled_states_data();
    void enabled_states();
    void a_lone_voltage_cannot_be_chosen();
    void a_lone_voltage_cannot_be_chosen_without_a_device();
    void the_new_device_row_is_known_in_any_case();
    void the_new_device_row_clears_the_fields();
    void any_row_clears_the_template_name();
    void the_first_fitting_voltage_is_chosen();
    void without_a_fitting_voltage_the_first_stays();
    void choices_carry_no_data();
    void loading_runs_no_check_and_no_box();
    void the_change_slots_work_after_a_load();

private:
    FLASH_DOUBLE& add_full_record(const std::string& name);
    MGR_DOUBLE& with_unused(std::set<int> properties);
};

FLASH_DOUBLE& TEST_LOAD_DEVICE::add_full_record(const std::string& name)
{
    FLASH_DOUBLE& flash = mgr().add_custom(name);
    flash.strings = {{1, "0xC2 0x20 0x19"}, {2, "2.5 V"}, {3, "1 Gb"}, {8, "Built-in C"}};
    flash.ints = {{4, 2}, {5, 8}, {6, 10}};
    return flash;
}

MGR_DOUBLE& TEST_LOAD_DEVICE::with_unused(std::set<int> properties)
{
    mgr().unused_properties = std::move(properties);
    return mgr();
}

void TEST_LOAD_DEVICE::the_calls_of_a_selection_come_in_order()
{
    FLASH_DOUBLE& flash = add_full_record("A");
    flash.operations[false] = {};
    mgr().voltages = {"1.8 V", "2.5 V"};
    open();

    pick(QStringLiteral("A"));

    const QStringList used = log().calls_of({qs("is_property_used")});
    QVERIFY(!used.isEmpty());
    QStringList expected =
        list_of({"mgr.get_voltage_list()", R"(mgr.verify_string_property(2, "1.8 V"))", "mgr.get_density_list()",
                 "mgr.get_template_list()", R"(mgr.find_flash("A", true))", R"(mgr.is_hidden_flash("A", false))",
                 "flash:A.get_name()", "flash:A.get_string_property(1)", "flash:A.get_string_property(2)",
                 "flash:A.get_density()", "flash:A.get_int_property(4, 0)", "flash:A.get_int_property(5, 0)",
                 "flash:A.get_int_property(6, 0)", "flash:A.get_string_property(8)", "mgr.can_edit_flow()",
                 "mgr.get_flow_variant()", "flash:A.get_operations(false)", "mgr.is_flow_editable(flash:A)"});
    QStringList made = calls();
    made.removeAll(QStringLiteral("flash:A.is_user_defined()"));
    COMPARE_CALLS(made, expected);
    // The fields are enabled before the pages are: whether a field is used is not asked once flows are.
    const QStringList all = log().calls();
    QVERIFY(all.lastIndexOf(used.last()) < all.indexOf(QStringLiteral("mgr.can_edit_flow()")));
}

void TEST_LOAD_DEVICE::the_fields_show_the_record()
{
    add_full_record("A");

    open_with("A");

    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("A"));
    QCOMPARE(edit("m_device_id_edit").text(), QStringLiteral("0xC2 0x20 0x19"));
    QCOMPARE(combo("m_voltage_cbox").currentText(), QStringLiteral("2.5 V"));
    QCOMPARE(combo("m_density_cbox").currentText(), QStringLiteral("1 Gb"));
    QCOMPARE(edit("m_total_die_edit").text(), QStringLiteral("2"));
    QCOMPARE(edit("m_clock_cycle_edit").text(), QStringLiteral("8"));
    QCOMPARE(edit("m_clock_cycle_edit_x4").text(), QStringLiteral("10"));
    QCOMPARE(combo("m_flow_template_cbox").currentText(), QStringLiteral("Built-in C"));
    QCOMPARE(items("m_flow_template_cbox").size(), 5);
}

void TEST_LOAD_DEVICE::integers_are_shown_in_decimal_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("unset") << 0 << qs("0");
    QTest::newRow("negative") << -12 << qs("-12");
    QTest::newRow("large") << 1234567 << qs("1234567");
}

void TEST_LOAD_DEVICE::integers_are_shown_in_decimal()
{
    QFETCH(const int, value);
    QFETCH(const QString, text);
    FLASH_DOUBLE& flash = add_full_record("A");
    if (value == 0)
        flash.ints.clear();
    else
        flash.ints = {{4, value}, {5, value}, {6, value}};

    open_with("A");

    for (const char* name : {"m_total_die_edit", "m_clock_cycle_edit", "m_clock_cycle_edit_x4"})
        QCOMPARE(edit(name).text(), text);
}

void TEST_LOAD_DEVICE::unused_fields_are_neither_read_nor_written_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QStringList>("untouched");

    QTest::newRow("name") << 0 << qs("flash:A.get_name()") << list_of({"m_device_name_edit"});
    QTest::newRow("id") << 1 << qs("flash:A.get_string_property(1)") << list_of({"m_device_id_edit"});
    QTest::newRow("voltage") << 2 << qs("flash:A.get_string_property(2)") << list_of({"m_voltage_cbox"});
    QTest::newRow("density") << 3 << qs("flash:A.get_density()") << list_of({"m_density_cbox"});
    QTest::newRow("die") << 4 << qs("flash:A.get_int_property(4, 0)") << list_of({"m_total_die_edit"});
    QTest::newRow("single") << 5 << qs("flash:A.get_int_property(5, 0)") << list_of({"m_clock_cycle_edit"});
    QTest::newRow("quad") << 6 << qs("flash:A.get_int_property(6, 0)") << list_of({"m_clock_cycle_edit_x4"});
    QTest::newRow("template") << 8 << qs("flash:A.get_string_property(8)")
                              << list_of({"m_flow_template_cbox", "m_edit_template_button", "m_save_template_check",
                                          "m_template_name_edit"});
}

void TEST_LOAD_DEVICE::unused_fields_are_neither_read_nor_written()
{
    QFETCH(const int, property);
    QFETCH(const QString, call);
    QFETCH(const QStringList, untouched);
    add_full_record("A");
    with_unused({property});
    open();
    // A text and a state that stay show that nobody touches the field: every used one is cleared and enabled once.
    for (const QString& name : untouched) {
        QWidget& field = widget(name.toLatin1().constData());
        field.setEnabled(false);
        if (auto* const line_edit = qobject_cast<QLineEdit*>(&field))
            line_edit->setText(QStringLiteral("kept"));
    }

    pick(QStringLiteral("A"));
    QCOMPARE(log().calls().count(call), 0);
    pick(QStringLiteral("<<new device>>"));

    for (const QString& name : untouched) {
        const QWidget& field = widget(name.toLatin1().constData());
        QVERIFY2(!field.isEnabled(), qPrintable(name));
        if (const auto* const line_edit = qobject_cast<const QLineEdit*>(&field))
            QCOMPARE(line_edit->text(), QStringLiteral("kept"));
    }
}

void TEST_LOAD_DEVICE::texts_match_without_regard_to_case()
{
    FLASH_DOUBLE& flash = add_full_record("A");
    flash.strings = {{2, "2.5 v"}, {3, "1 GB"}, {8, "BUILT-IN C"}};

    open_with("A");

    QCOMPARE(combo("m_voltage_cbox").currentText(), QStringLiteral("2.5 V"));
    QCOMPARE(combo("m_density_cbox").currentText(), QStringLiteral("1 Gb"));
    QCOMPARE(combo("m_flow_template_cbox").currentText(), QStringLiteral("Built-in C"));
    QCOMPARE(combo("m_flow_template_cbox").count(), 5);
}

void TEST_LOAD_DEVICE::a_text_that_is_not_offered_shows_the_first_item()
{
    FLASH_DOUBLE& flash = add_full_record("A");
    flash.strings = {{2, "2.5"}, {3, "Gb"}};
    // The first fitting voltage is another one: it must not stay.
    mgr().unverified_values[{2, "1.8 V"}] = "no";

    open_with("A");

    QCOMPARE(combo("m_voltage_cbox").currentIndex(), 0);
    QCOMPARE(combo("m_density_cbox").currentIndex(), 0);
    QCOMPARE(items("m_voltage_cbox").size(), 3);
    QCOMPARE(items("m_density_cbox").size(), 3);
}

void TEST_LOAD_DEVICE::a_template_that_is_not_listed_is_added()
{
    FLASH_DOUBLE& flash = add_full_record("A");
    flash.strings[8] = "gone template";

    open_with("A");

    QCOMPARE(items("m_flow_template_cbox"),
             list_of({"Built-in A", "Built-in B", "Built-in C", "Built-in D", "Built-in E", "gone template"}));
    QCOMPARE(combo("m_flow_template_cbox").currentIndex(), 5);
    QCOMPARE(combo("m_flow_template_cbox").itemData(5), QVariant());
}

void TEST_LOAD_DEVICE::the_first_template_is_listed_once()
{
    add_full_record("A").strings[8] = "Built-in A";

    open_with("A");

    QCOMPARE(items("m_flow_template_cbox").size(), 5);
    QCOMPARE(combo("m_flow_template_cbox").currentIndex(), 0);
}

void TEST_LOAD_DEVICE::texts_are_found_letter_for_letter_first()
{
    mgr().voltages = {"3.3V", "3.3v"};
    add_full_record("A").strings[2] = "3.3v";

    open_with("A");

    QCOMPARE(combo("m_voltage_cbox").currentText(), QStringLiteral("3.3v"));
}

void TEST_LOAD_DEVICE::an_added_template_leaves_with_its_device()
{
    add_full_record("A").strings[8] = "gone template";
    open_with("A");

    pick(QStringLiteral("<<new device>>"));

    QCOMPARE(items("m_flow_template_cbox").size(), 5);
    QCOMPARE(combo("m_flow_template_cbox").currentIndex(), 0);
}

void TEST_LOAD_DEVICE::a_builtin_device_shows_no_voltage_and_density()
{
    FLASH_DOUBLE& flash = mgr().add_builtin("B");
    flash.strings = {{1, "0xEF"}, {2, "2.5 V"}, {3, "1 Gb"}, {8, "Built-in B"}};
    flash.ints = {{4, 1}, {5, 2}, {6, 3}};

    open_with("B");

    QCOMPARE(combo("m_voltage_cbox").count(), 0);
    QCOMPARE(combo("m_density_cbox").count(), 0);
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("B"));
    QCOMPARE(edit("m_device_id_edit").text(), QStringLiteral("0xEF"));
    QCOMPARE(edit("m_total_die_edit").text(), QStringLiteral("1"));
    QCOMPARE(edit("m_clock_cycle_edit").text(), QStringLiteral("2"));
    QCOMPARE(edit("m_clock_cycle_edit_x4").text(), QStringLiteral("3"));
    QCOMPARE(combo("m_flow_template_cbox").currentText(), QStringLiteral("Built-in B"));
}

void TEST_LOAD_DEVICE::a_hidden_device_shows_nothing()
{
    add_full_record("A");
    add_full_record("H");
    mgr().hidden_properties = {"H"};
    open_with("A");

    pick(QStringLiteral("H"));

    for (const char* name : LINE_EDITS)
        QCOMPARE(edit(name).text(), QString());
    for (const char* name : {"m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"})
        QCOMPARE(combo(name).currentText(), QString());
    QCOMPARE(log().calls_of({qs("find_flash"), qs("is_hidden_flash")}).mid(0, 2),
             list_of({R"(mgr.find_flash("H", true))", R"(mgr.is_hidden_flash("H", false))"}));
}

void TEST_LOAD_DEVICE::a_hidden_device_without_record_shows_nothing()
{
    add_full_record("A");
    add_full_record("H");
    mgr().hidden_properties = {"H"};
    open_with("A");
    mgr().flashes.erase("H");

    pick(QStringLiteral("H"));

    for (const char* name : LINE_EDITS)
        QCOMPARE(edit(name).text(), QString());
}

void TEST_LOAD_DEVICE::a_record_that_is_gone_leaves_the_fields()
{
    add_full_record("A");
    add_full_record("B");
    open_with("A");
    mgr().flashes.erase("B");

    pick(QStringLiteral("B"));

    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("A"));
    QCOMPARE(edit("m_device_id_edit").text(), QStringLiteral("0xC2 0x20 0x19"));
    QVERIFY(!button("m_delete_button").isEnabled());
    // The row's own mark says that it could be edited.
    QVERIFY(button("m_apply_button").isEnabled());
    log().clear();
    run("on_delete_clicked");
    QCOMPARE(calls(), QStringList());
}

void TEST_LOAD_DEVICE::enabled_states_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<bool>("new_device");
    QTest::addColumn<bool>("can_delete");

    QTest::newRow("new device") << qs("<<new device>>") << true << true << false;
    QTest::newRow("custom") << qs("custom") << true << false << true;
    QTest::newRow("built-in") << qs("built-in") << false << false << false;
    // The record has the last word, the mark of the row only counts without one.
    QTest::newRow("custom row, built-in record") << qs("odd custom") << false << false << false;
    QTest::newRow("built-in row, custom record") << qs("odd built-in") << true << false << true;
    QTest::newRow("built-in row, no record") << qs("no record") << false << false << false;
    QTest::newRow("custom row, no record") << qs("no custom record") << true << false << false;
}

void TEST_LOAD_DEVICE::enabled_states()
{
    QFETCH(const QString, device);
    QFETCH(const bool, editable);
    QFETCH(const bool, new_device);
    QFETCH(const bool, can_delete);
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
    edit("m_template_name_edit").setText(QStringLiteral("typed"));

    pick(device);

    for (const char* name : LINE_EDITS)
        QCOMPARE(edit(name).isEnabled(), editable);
    QCOMPARE(combo("m_voltage_cbox").isEnabled(), editable);
    QCOMPARE(combo("m_density_cbox").isEnabled(), editable);
    QCOMPARE(combo("m_flow_template_cbox").isEnabled(), new_device);
    QCOMPARE(button("m_edit_template_button").isEnabled(), new_device);
    QCOMPARE(check("m_save_template_check").isEnabled(), editable);
    QVERIFY(!check("m_save_template_check").isChecked());
    QVERIFY(!edit("m_template_name_edit").isEnabled());
    QCOMPARE(edit("m_template_name_edit").text(), QString());
    QCOMPARE(button("m_delete_button").isEnabled(), can_delete);
    QCOMPARE(button("m_apply_button").isEnabled(), editable);
    QVERIFY(button("m_ok_button").isEnabled());
    QVERIFY(button("m_cancel_button").isEnabled());
}

void TEST_LOAD_DEVICE::a_lone_voltage_cannot_be_chosen()
{
    add_full_record("A");
    for (const int count : {0, 1, 2}) {
        mgr().voltages.assign(static_cast<std::size_t>(count), "1.8 V");
        open();
        QCOMPARE(combo("m_voltage_cbox").isEnabled(), count >= 2);
        pick(QStringLiteral("A"));
        QCOMPARE(combo("m_voltage_cbox").isEnabled(), count >= 2);
    }
}

void TEST_LOAD_DEVICE::a_lone_voltage_cannot_be_chosen_without_a_device()
{
    mgr().add_allowed = false;
    for (const int count : {0, 1, 2}) {
        mgr().voltages.assign(static_cast<std::size_t>(count), "1.8 V");

        open();

        QVERIFY(all_rows().isEmpty());
        QCOMPARE(combo("m_voltage_cbox").isEnabled(), count >= 2);
    }
}

void TEST_LOAD_DEVICE::the_new_device_row_is_known_in_any_case()
{
    add_full_record("A");
    mgr().add_builtin("<<New DEVICE>>");
    mgr().add_allowed = false;
    open_with("A");

    pick(QStringLiteral("<<New DEVICE>>"));

    QCOMPARE(log().count(qs("find_flash")), 0);
    QCOMPARE(edit("m_device_id_edit").text(), QString());
    QVERIFY(edit("m_device_id_edit").isEnabled());
    QVERIFY(combo("m_flow_template_cbox").isEnabled());
    QVERIFY(button("m_apply_button").isEnabled());
    QVERIFY(!button("m_delete_button").isEnabled());
}

void TEST_LOAD_DEVICE::the_new_device_row_clears_the_fields()
{
    add_full_record("A");
    open_with("A");

    pick(QStringLiteral("<<new device>>"));

    for (const char* name : LINE_EDITS)
        QCOMPARE(edit(name).text(), QString());
    QCOMPARE(combo("m_voltage_cbox").currentIndex(), 0);
    QCOMPARE(combo("m_density_cbox").currentIndex(), 0);
    QCOMPARE(combo("m_flow_template_cbox").currentIndex(), 0);
    QCOMPARE(log().count(qs("find_flash")), 0);
    QCOMPARE(log().count(qs("is_hidden_flash")), 0);
}

void TEST_LOAD_DEVICE::any_row_clears_the_template_name()
{
    add_full_record("A");
    open();
    for (const char* device : {"A", "<<new device>>"}) {
        check("m_save_template_check").setChecked(true);
        edit("m_template_name_edit").setText(QStringLiteral("typed"));

        pick(qs(device));

        QVERIFY(!check("m_save_template_check").isChecked());
        QCOMPARE(edit("m_template_name_edit").text(), QString());
        QVERIFY(!edit("m_template_name_edit").isEnabled());
    }
}

void TEST_LOAD_DEVICE::the_first_fitting_voltage_is_chosen()
{
    mgr().unverified_values[{2, "1.8 V"}] = "no";
    open_recorded();

    QCOMPARE(combo("m_voltage_cbox").currentText(), QStringLiteral("2.5 V"));
    QCOMPARE(items("m_voltage_cbox"), list_of({"1.8 V", "2.5 V", "3.3 V"}));
    QCOMPARE(log().calls_of({qs("verify_string_property")}).mid(0, 2),
             list_of({R"(mgr.verify_string_property(2, "1.8 V"))", R"(mgr.verify_string_property(2, "2.5 V"))"}));
    QVERIFY(!log().calls().contains(qs(R"(mgr.verify_string_property(2, "3.3 V"))")));
}

void TEST_LOAD_DEVICE::without_a_fitting_voltage_the_first_stays()
{
    for (const std::string& voltage : mgr().voltages)
        mgr().unverified_values[{2, voltage}] = "no";

    open();

    QCOMPARE(combo("m_voltage_cbox").currentIndex(), 0);
    QVERIFY(combo("m_voltage_cbox").isEnabled());
}

void TEST_LOAD_DEVICE::choices_carry_no_data()
{
    open();

    for (const char* name : {"m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"}) {
        QVERIFY(combo(name).count() > 1);
        for (int index = 0; index < combo(name).count(); ++index)
            QCOMPARE(combo(name).itemData(index), QVariant());
    }
    QCOMPARE(items("m_density_cbox"), list_of({"16 Mb", "128 Mb", "1 Gb"}));
    QCOMPARE(items("m_flow_template_cbox"),
             list_of({"Built-in A", "Built-in B", "Built-in C", "Built-in D", "Built-in E"}));
}

void TEST_LOAD_DEVICE::loading_runs_no_check_and_no_box()
{
    add_full_record("A");
    add_full_record("B").strings = {{2, "3.3 V"}, {3, "128 Mb"}, {8, "added"}};
    add_full_record("H");
    mgr().hidden_properties = {"H"};
    mgr().add_builtin("built-in");
    for (const int property : {0, 1, 2, 3, 4, 5, 6, 8})
        mgr().refuse(property, "refused");
    open();

    for (const char* device : {"A", "B", "H", "A", "built-in"})
        pick(qs(device));
    pick(QStringLiteral("<<new device>>"));

    QCOMPARE(log().calls_of({qs("check_string_property"), qs("check_int_property")}), QStringList());
}

void TEST_LOAD_DEVICE::the_change_slots_work_after_a_load()
{
    add_full_record("A");
    open_with("A");

    combo("m_voltage_cbox").setCurrentIndex(2);
    combo("m_density_cbox").setCurrentIndex(0);
    combo("m_flow_template_cbox").setCurrentIndex(0);

    QCOMPARE(log().calls_of({qs("check_string_property")}),
             list_of({R"(mgr.check_string_property(2, "3.3 V"))", R"(mgr.check_string_property(3, "16 Mb"))",
                      R"(mgr.check_string_property(8, "Built-in A"))"}));
}

GFPQ_TEST_MAIN(TEST_LOAD_DEVICE)

#include "test_load_device.moc"
