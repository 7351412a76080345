// SPDX-License-Identifier: MIT

// Apply that succeeds, or has nothing to do: what it asks and writes, in which order, and what is shown afterwards.
#include "dialog_test.h"

class TEST_APPLY : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_new_device_is_stored_in_order();
    void a_stored_device_is_replaced_in_order();
    void a_rename_deletes_the_old_name_before_it_saves_the_new_one();
    void an_unchanged_name_is_not_checked();
    void a_name_that_differs_in_case_is_checked();
    void unused_fields_are_neither_checked_nor_written_data();
    void unused_fields_are_neither_checked_nor_written();
    void without_fields_only_the_flows_are_stored();
    void voltage_density_and_template_are_not_checked_again();
    void numbers_are_read_leniently();
    void texts_go_out_as_local_8_bit();
    void without_flow_editing_no_flow_is_checked_or_written();
    void the_template_name_is_written_only_when_asked_for();
    void the_typed_directory_is_the_one_saved_into_data();
    void the_typed_directory_is_the_one_saved_into();
    void an_untouched_directory_is_the_librarys_own();
    void a_builtin_device_is_left_alone();
    void a_hidden_device_is_left_alone();
    void a_record_that_cannot_be_made_is_no_failure();
    void the_saved_device_is_selected_and_loaded_once();
    void the_device_page_is_shown_afterwards();
    void a_filter_that_hides_the_saved_device_is_emptied();
    void selecting_works_again_afterwards();
    void without_a_selected_row_the_form_is_stored();
    void a_library_that_forgets_the_record_is_survived();
    void a_second_apply_replaces_the_first();

private:
    void fill_world() override;
    bool apply();
    void fill_form(const QString& name);
    static QStringList storing(const QString& record, const QString& prefix, bool variant);
};

void TEST_APPLY::fill_world()
{
    mgr().add_custom("A").operations[false] = make_operations("own");
    mgr().flashes["A"]->operations[true] = make_operations("own quad");
    mgr().flashes["A"]->strings = {{1, "0x01"}, {2, "2.5 V"}, {3, "128 Mb"}, {8, "Built-in D"}};
    mgr().flashes["A"]->ints = {{4, 1}, {5, 2}, {6, 3}};
    mgr().builtin_template_operations[{0, false}] = make_operations("first");
    mgr().builtin_template_operations[{1, false}] = make_operations("single");
    mgr().builtin_template_operations[{1, true}] = make_operations("quad");
}

bool TEST_APPLY::apply()
{
    bool applied = false;
    QMetaObject::invokeMethod(&dlg(), "on_apply_clicked", Qt::DirectConnection, Q_RETURN_ARG(bool, applied));
    return applied;
}

void TEST_APPLY::fill_form(const QString& name)
{
    edit("m_device_name_edit").setText(name);
    edit("m_device_id_edit").setText(QStringLiteral("0xC2 0x20"));
    choose_text("m_voltage_cbox", QStringLiteral("3.3 V"));
    choose_text("m_density_cbox", QStringLiteral("1 Gb"));
    edit("m_total_die_edit").setText(QStringLiteral("4"));
    edit("m_clock_cycle_edit").setText(QStringLiteral("8"));
    edit("m_clock_cycle_edit_x4").setText(QStringLiteral("10"));
    log().clear();
}

// The calls that store five operations, each with one action of `prefix`.
QStringList TEST_APPLY::storing(const QString& record, const QString& prefix, bool variant)
{
    QStringList lines;
    for (int kind = 0; kind < 5; ++kind) {
        lines << QStringLiteral("mgr.create_operation(%1)").arg(kind)
              << QStringLiteral("op%1.add_action(0:%2 %1)").arg(kind).arg(prefix)
              << QStringLiteral("%1.set_operation(op%2, %3)").arg(record).arg(kind).arg(log_bool(variant));
    }
    return lines;
}

void TEST_APPLY::a_new_device_is_stored_in_order()
{
    open();
    choose_text("m_flow_template_cbox", QStringLiteral("Built-in B"));
    fill_form(QStringLiteral("X"));
    check("m_save_template_check").setChecked(true);
    edit("m_template_name_edit").setText(QStringLiteral("T"));

    QVERIFY(apply());

    QStringList expected = list_of({R"(mgr.is_hidden_flash("<<new device>>", false))",
                                    R"(mgr.check_string_property(0, "X"))",
                                    R"(mgr.check_string_property(1, "0xC2 0x20"))",
                                    "mgr.check_int_property(4, 4)",
                                    "mgr.check_int_property(5, 8)",
                                    "mgr.check_int_property(6, 10)",
                                    "mgr.can_edit_flow()",
                                    R"(mgr.check_string_property(7, "T"))",
                                    R"(mgr.create_flash("X"))",
                                    "new:X.set_user_defined(true)",
                                    R"(new:X.set_string_property(1, "0xC2 0x20"))",
                                    R"(new:X.set_string_property(2, "3.3 V"))",
                                    R"(new:X.set_density("1 Gb"))",
                                    "new:X.set_int_property(4, 4)",
                                    "new:X.set_int_property(5, 8)",
                                    "new:X.set_int_property(6, 10)",
                                    R"(new:X.set_string_property(8, "Built-in B"))",
                                    R"(new:X.set_db_dir("/db/custom/"))",
                                    "mgr.can_edit_flow()",
                                    "new:X.clear_operations()",
                                    "mgr.get_flow_variant()"});
    expected += storing(QStringLiteral("new:X"), QStringLiteral("single"), false);
    expected += list_of({"mgr.get_flow_variant()", "mgr.get_builtin_template_operations(1, true)"});
    expected += storing(QStringLiteral("new:X"), QStringLiteral("quad"), true);
    expected += list_of({R"(new:X.set_string_property(7, "T"))", R"(mgr.delete_flash("<<new device>>", "/db/custom/"))",
                         R"(mgr.save_flash(new:X, "/db/custom/"))", "mgr.can_add_flash()",
                         "mgr.get_custom_flash_names(5, 13, 0)", "mgr.get_builtin_flash_names(5, 13, 0)"});
    QStringList made;
    for (const QString& call : calls()) {
        if (!call.contains(QLatin1String("check_property_value")) && !call.contains(QLatin1String("create_action")))
            made.append(call);
    }
    COMPARE_CALLS(made.mid(0, expected.size()), expected);
}

void TEST_APPLY::a_stored_device_is_replaced_in_order()
{
    open_with("A");
    fill_form(QStringLiteral("A"));

    QVERIFY(apply());

    QStringList expected = list_of({R"(mgr.is_hidden_flash("A", false))",
                                    "flash:A.is_user_defined()",
                                    R"(mgr.check_string_property(1, "0xC2 0x20"))",
                                    "mgr.check_int_property(4, 4)",
                                    "mgr.check_int_property(5, 8)",
                                    "mgr.check_int_property(6, 10)",
                                    "mgr.can_edit_flow()",
                                    R"(mgr.create_flash("A"))",
                                    "new:A.set_user_defined(true)",
                                    R"(new:A.set_string_property(1, "0xC2 0x20"))",
                                    R"(new:A.set_string_property(2, "3.3 V"))",
                                    R"(new:A.set_density("1 Gb"))",
                                    "new:A.set_int_property(4, 4)",
                                    "new:A.set_int_property(5, 8)",
                                    "new:A.set_int_property(6, 10)",
                                    R"(new:A.set_string_property(8, "Built-in D"))",
                                    R"(new:A.set_db_dir("/db/custom/"))",
                                    "mgr.can_edit_flow()",
                                    "new:A.clear_operations()",
                                    "mgr.get_flow_variant()"});
    expected += storing(QStringLiteral("new:A"), QStringLiteral("own"), false);
    expected += list_of({"mgr.get_flow_variant()", "flash:A.get_operations(true)"});
    expected += storing(QStringLiteral("new:A"), QStringLiteral("own quad"), true);
    expected += list_of(
        {R"(mgr.delete_flash("A", "/db/custom/"))", R"(mgr.save_flash(new:A, "/db/custom/"))", "mgr.can_add_flash()"});
    QStringList made;
    for (const QString& call : calls()) {
        if (!call.contains(QLatin1String("check_property_value")) && !call.contains(QLatin1String("create_action")))
            made.append(call);
    }
    COMPARE_CALLS(made.mid(0, expected.size()), expected);
}

void TEST_APPLY::a_rename_deletes_the_old_name_before_it_saves_the_new_one()
{
    open_with("A");
    edit("m_device_name_edit").setText(QStringLiteral("renamed"));

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("check_string_property"), qs("create_flash"), qs("delete_flash"), qs("save_flash")}),
             list_of({R"(mgr.check_string_property(0, "renamed"))", R"(mgr.check_string_property(1, "0x01"))",
                      R"(mgr.create_flash("renamed"))", R"(mgr.delete_flash("A", "/db/custom/"))",
                      R"(mgr.save_flash(new:renamed, "/db/custom/"))"}));
    QCOMPARE(all_rows(), list_of({"<<new device>>", "renamed"}));
    QCOMPARE(current_row(), QStringLiteral("renamed"));
}

void TEST_APPLY::an_unchanged_name_is_not_checked()
{
    mgr().refuse(0, "taken");
    open_with("A");

    QVERIFY(apply());

    QVERIFY(!log().calls().contains(qs(R"(mgr.check_string_property(0, "A"))")));
}

void TEST_APPLY::a_name_that_differs_in_case_is_checked()
{
    open_with("A");
    edit("m_device_name_edit").setText(QStringLiteral("a"));

    QVERIFY(apply());

    QVERIFY(log().calls().contains(qs(R"(mgr.check_string_property(0, "a"))")));
}

void TEST_APPLY::unused_fields_are_neither_checked_nor_written_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<QStringList>("missing");

    QTest::newRow("name") << 0 << list_of({R"(mgr.check_string_property(0, "X"))"});
    QTest::newRow("id") << 1
                        << list_of({R"(mgr.check_string_property(1, "0xC2 0x20"))",
                                    R"(new:X.set_string_property(1, "0xC2 0x20"))"});
    QTest::newRow("voltage") << 2 << list_of({R"(new:X.set_string_property(2, "3.3 V"))"});
    QTest::newRow("density") << 3 << list_of({R"(new:X.set_density("1 Gb"))"});
    QTest::newRow("die") << 4 << list_of({"mgr.check_int_property(4, 4)", "new:X.set_int_property(4, 4)"});
    QTest::newRow("single") << 5 << list_of({"mgr.check_int_property(5, 8)", "new:X.set_int_property(5, 8)"});
    QTest::newRow("quad") << 6 << list_of({"mgr.check_int_property(6, 10)", "new:X.set_int_property(6, 10)"});
    QTest::newRow("template") << 8
                              << list_of({R"(mgr.check_string_property(7, "T"))",
                                          R"(new:X.set_string_property(8, "Built-in B"))",
                                          "mgr.get_builtin_template_operations(1, true)",
                                          R"(new:X.set_string_property(7, "T"))"});
}

void TEST_APPLY::unused_fields_are_neither_checked_nor_written()
{
    QFETCH(const int, property);
    QFETCH(const QStringList, missing);
    open();
    choose_text("m_flow_template_cbox", QStringLiteral("Built-in B"));
    fill_form(QStringLiteral("X"));
    check("m_save_template_check").setChecked(true);
    edit("m_template_name_edit").setText(QStringLiteral("T"));
    log().clear();
    mgr().save_succeeds = false;
    QVERIFY(!apply());
    const QStringList all =
        log().calls_of({qs("check_string_property"), qs("check_int_property"), qs("set_string_property"),
                        qs("set_density"), qs("set_int_property"), qs("get_builtin_template_operations")});
    for (const QString& call : missing)
        QCOMPARE(all.count(call), 1);
    QStringList expected = all;
    for (const QString& call : missing)
        expected.removeAll(call);

    mgr().unused_properties = {property};
    log().clear();
    QVERIFY(!apply());

    QCOMPARE(log().calls_of({qs("check_string_property"), qs("check_int_property"), qs("set_string_property"),
                             qs("set_density"), qs("set_int_property"), qs("get_builtin_template_operations")}),
             expected);
}

void TEST_APPLY::without_fields_only_the_flows_are_stored()
{
    mgr().unused_properties = {0, 1, 2, 3, 4, 5, 6, 8};
    open_with("A");

    QVERIFY(apply());

    QVERIFY(log()
                .calls_of({qs("check_string_property"), qs("check_int_property"), qs("set_string_property"),
                           qs("set_density"), qs("set_int_property")})
                .isEmpty());
    QCOMPARE(mgr().last_created->flow(2, false), list_of({"0:own 2"}));
    QVERIFY(mgr().last_created->operations.count(true) == 0);
}

void TEST_APPLY::voltage_density_and_template_are_not_checked_again()
{
    open_with("A");
    mgr().refuse(2, "refused");
    mgr().refuse(3, "refused");
    mgr().refuse(8, "refused");

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("check_string_property")}), list_of({R"(mgr.check_string_property(1, "0x01"))"}));
}

void TEST_APPLY::numbers_are_read_leniently()
{
    open_with("A");
    edit("m_total_die_edit").setText(QStringLiteral("12 dies"));
    edit("m_clock_cycle_edit").setText(QString());
    edit("m_clock_cycle_edit_x4").setText(QStringLiteral(" -7"));

    QVERIFY(apply());

    QCOMPARE(
        log().calls_of({qs("check_int_property"), qs("set_int_property")}),
        list_of({"mgr.check_int_property(4, 12)", "mgr.check_int_property(5, 0)", "mgr.check_int_property(6, -7)",
                 "new:A.set_int_property(4, 12)", "new:A.set_int_property(5, 0)", "new:A.set_int_property(6, -7)"}));
}

void TEST_APPLY::texts_go_out_as_local_8_bit()
{
    const QString name = qs("gr\xC3\xBCn '%1' <b>;\"");
    open();
    edit("m_device_name_edit").setText(name);

    QVERIFY(apply());

    QCOMPARE(QString::fromUtf8(mgr().last_created->name.c_str()), name);
    QCOMPARE(current_row(), name);
}

void TEST_APPLY::without_flow_editing_no_flow_is_checked_or_written()
{
    mgr().unused_properties = {8};
    open_with("A");
    mgr().flow_edit_allowed = false;

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("check_property_value"), qs("clear_operations"), qs("get_flow_variant"),
                             qs("create_operation"), qs("add_action"), qs("set_operation")}),
             QStringList());
    QCOMPARE(log().count(qs("save_flash")), 1);
}

void TEST_APPLY::the_template_name_is_written_only_when_asked_for()
{
    open_with("A");
    check("m_save_template_check").setChecked(true);
    edit("m_template_name_edit").setText(QStringLiteral("T"));
    check("m_save_template_check").setChecked(false);

    QVERIFY(apply());

    QVERIFY(log().calls().filter(QStringLiteral("_property(7,")).isEmpty());
}

void TEST_APPLY::the_typed_directory_is_the_one_saved_into_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("used");

    QTest::newRow("empty") << QString() << qs("/db/custom/");
    QTest::newRow("plain") << qs("/typed") << qs("/typed/");
    QTest::newRow("with separator") << qs("/typed/") << qs("/typed/");
    QTest::newRow("back slashes") << qs("\\typed\\\\sub") << qs("/typed/sub/");
    QTest::newRow("letters") << qs("/gr\xC3\xBCn") << qs("/gr\xC3\xBCn/");
}

void TEST_APPLY::the_typed_directory_is_the_one_saved_into()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, used);
    open_with("A");
    edit("m_directory_edit").setText(typed);

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("set_db_dir"), qs("delete_flash"), qs("save_flash")}),
             QStringList({QStringLiteral("new:A.set_db_dir(\"%1\")").arg(used),
                          QStringLiteral("mgr.delete_flash(\"A\", \"%1\")").arg(used),
                          QStringLiteral("mgr.save_flash(new:A, \"%1\")").arg(used)}));
    QCOMPARE(log().count(qs("save_custom_dir_to_ini")), 0);
}

void TEST_APPLY::an_untouched_directory_is_the_librarys_own()
{
    world().custom_dir = "/db/gr\xC3\xBCn/";
    open_with("A");

    QVERIFY(apply());

    QCOMPARE(
        log().calls_of({qs("set_db_dir"), qs("delete_flash"), qs("save_flash")}),
        QStringList({qs("new:A.set_db_dir(\"/db/gr\xC3\xBCn/\")"), qs("mgr.delete_flash(\"A\", \"/db/gr\xC3\xBCn/\")"),
                     qs("mgr.save_flash(new:A, \"/db/gr\xC3\xBCn/\")")}));
}

void TEST_APPLY::a_builtin_device_is_left_alone()
{
    mgr().add_builtin("B");
    open_with("B");

    QVERIFY(apply());

    QCOMPARE(calls(), list_of({R"(mgr.is_hidden_flash("B", false))", "flash:B.is_user_defined()"}));
}

void TEST_APPLY::a_hidden_device_is_left_alone()
{
    open_with("A");
    mgr().hidden_properties = {"A"};

    QVERIFY(apply());

    QCOMPARE(calls(), list_of({R"(mgr.is_hidden_flash("A", false))"}));
}

void TEST_APPLY::a_record_that_cannot_be_made_is_no_failure()
{
    mgr().creates_flash = false;
    open_with("A");

    QVERIFY(apply());

    QCOMPARE(calls().last(), qs(R"(mgr.create_flash("A"))"));
    QCOMPARE(page_flow(1), list_of({"0:own 1"}));
    // There is no current record any more.
    log().clear();
    run("on_delete_clicked");
    QCOMPARE(calls(), QStringList());
}

void TEST_APPLY::the_saved_device_is_selected_and_loaded_once()
{
    mgr().add_custom("Z");
    open();
    fill_form(QStringLiteral("M"));

    QVERIFY(apply());

    QCOMPARE(all_rows(), list_of({"<<new device>>", "A", "Z", "M"}));
    QCOMPARE(current_row(), QStringLiteral("M"));
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("M"));
    QVERIFY(button("m_delete_button").isEnabled());
    QVERIFY(!combo("m_flow_template_cbox").isEnabled());
    QCOMPARE(log().calls_of({qs("find_flash")}), list_of({R"(mgr.find_flash("M", true))"}));
}

void TEST_APPLY::the_device_page_is_shown_afterwards()
{
    open_with("A");
    tabs().setCurrentIndex(4);
    int page_of_refresh = -1;
    log().on_call(qs("can_add_flash"), [&](const QString&) { page_of_refresh = tabs().currentIndex(); });

    QVERIFY(apply());

    // The list comes first.
    QCOMPARE(page_of_refresh, 4);
    QCOMPARE(tabs().currentIndex(), 0);
}

void TEST_APPLY::a_filter_that_hides_the_saved_device_is_emptied()
{
    open();
    fill_form(QStringLiteral("X"));
    edit("m_filter_line_edit").setText(QStringLiteral("new"));
    check("m_save_template_check").setChecked(true);
    edit("m_template_name_edit").setText(QStringLiteral("T"));
    log().clear();

    QVERIFY(apply());

    QCOMPARE(edit("m_filter_line_edit").text(), QString());
    QCOMPARE(current_row(), QStringLiteral("X"));
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("X"));
    // The form is that of a stored device.
    for (const char* name : {"m_device_name_edit", "m_voltage_cbox", "m_density_cbox", "m_save_template_check",
                             "m_delete_button", "m_apply_button"})
        QVERIFY2(widget(name).isEnabled(), name);
    for (const char* name : {"m_flow_template_cbox", "m_edit_template_button", "m_template_name_edit"})
        QVERIFY2(!widget(name).isEnabled(), name);
    QVERIFY(!check("m_save_template_check").isChecked());
    QCOMPARE(edit("m_template_name_edit").text(), QString());
    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList(QStringLiteral("0:first %1").arg(operation)));
}

void TEST_APPLY::selecting_works_again_afterwards()
{
    mgr().add_custom("Z");
    open_with("A");
    QVERIFY(apply());
    log().clear();

    pick(QStringLiteral("Z"));

    QCOMPARE(log().calls_of({qs("find_flash")}), list_of({R"(mgr.find_flash("Z", true))"}));
}

void TEST_APPLY::without_a_selected_row_the_form_is_stored()
{
    mgr().add_allowed = false;
    mgr().custom_names.clear();
    open();
    fill_form(QStringLiteral("X"));

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("is_hidden_flash"), qs("delete_flash"), qs("save_flash")}).mid(0, 3),
             list_of({R"(mgr.is_hidden_flash("", false))", R"(mgr.delete_flash("", "/db/custom/"))",
                      R"(mgr.save_flash(new:X, "/db/custom/"))"}));
    // No record was shown before, so there is no other variant to take over.
    QVERIFY(mgr().last_created->operations.count(true) == 0);
}

void TEST_APPLY::a_library_that_forgets_the_record_is_survived()
{
    open_with("A");
    log().on_call(qs("save_flash"), [this](const QString&) {
        mgr().follows_saves = false;
        mgr().flashes.clear();
        mgr().custom_names = {"A"};
    });

    QVERIFY(apply());

    QCOMPARE(current_row(), QStringLiteral("A"));
    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList());
    QVERIFY(!button("m_delete_button").isEnabled());
}

void TEST_APPLY::a_second_apply_replaces_the_first()
{
    open();
    fill_form(QStringLiteral("X"));
    QVERIFY(apply());
    const FLASH_DOUBLE* const first = mgr().last_created;

    QVERIFY(apply());

    QVERIFY(mgr().last_created != first);
    for (int kind = 0; kind < 5; ++kind) {
        QCOMPARE(mgr().last_created->flow(kind, false), first->flow(kind, false));
        QCOMPARE(mgr().last_created->flow(kind, true), first->flow(kind, true));
    }
    QCOMPARE(all_rows(), list_of({"<<new device>>", "A", "X"}));
}

GFPQ_TEST_MAIN(TEST_APPLY)

#include "test_apply.moc"
