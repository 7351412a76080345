// SPDX-License-Identifier: MIT

// The checks that a device field runs when its value is committed, and the warning box that they share.
#include "dialog_test.h"

class TEST_FIELD_CHECKS : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_text_field_is_checked_on_return_data();
    void a_text_field_is_checked_on_return();
    void a_number_field_is_checked_on_return_data();
    void a_number_field_is_checked_on_return();
    void numbers_are_read_leniently_data();
    void numbers_are_read_leniently();
    void the_keypad_counts_as_return();
    void leaving_a_field_checks_nothing();
    void return_elsewhere_checks_nothing_data();
    void return_elsewhere_checks_nothing();
    void a_refused_text_is_told_and_stays_data();
    void a_refused_text_is_told_and_stays();
    void a_refused_number_is_told_and_stays_data();
    void a_refused_number_is_told_and_stays();
    void a_density_is_checked_when_chosen();
    void a_voltage_is_checked_twice();
    void a_voltage_that_fails_the_first_check_sees_no_second();
    void a_voltage_that_fails_the_second_check_is_told();
    void a_template_is_checked_and_shown();
    void a_refused_template_leaves_the_pages();
    void a_template_of_a_stored_device_leaves_its_flows();
    void the_warning_box_shows_the_librarys_text_as_it_stands_data();
    void the_warning_box_shows_the_librarys_text_as_it_stands();
    void texts_go_out_as_local_8_bit();
    void the_quad_rule_serves_both_dummy_clocks();
};

void TEST_FIELD_CHECKS::a_text_field_is_checked_on_return_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("property");

    QTest::newRow("m_device_name_edit") << qs("some name") << 0;
    QTest::newRow("m_device_id_edit") << qs("0xC2 0x20") << 1;
}

void TEST_FIELD_CHECKS::a_text_field_is_checked_on_return()
{
    QFETCH(const QString, text);
    QFETCH(const int, property);
    open();

    enter(QTest::currentDataTag(), text);
    enter(QTest::currentDataTag(), QString());

    QCOMPARE(calls(), QStringList({QStringLiteral("mgr.check_string_property(%1, \"%2\")").arg(property).arg(text),
                                   QStringLiteral("mgr.check_string_property(%1, \"\")").arg(property)}));
}

void TEST_FIELD_CHECKS::a_number_field_is_checked_on_return_data()
{
    QTest::addColumn<int>("property");

    QTest::newRow("m_total_die_edit") << 4;
    // The rule of the quad-I/O dummy clocks, on purpose.
    QTest::newRow("m_clock_cycle_edit") << 6;
    QTest::newRow("m_clock_cycle_edit_x4") << 6;
}

void TEST_FIELD_CHECKS::a_number_field_is_checked_on_return()
{
    QFETCH(const int, property);
    open();

    enter(QTest::currentDataTag(), QStringLiteral("37"));

    QCOMPARE(calls(), QStringList(QStringLiteral("mgr.check_int_property(%1, 37)").arg(property)));
}

void TEST_FIELD_CHECKS::numbers_are_read_leniently_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");

    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("letters") << qs("abc") << 0;
    QTest::newRow("digits and letters") << qs("12abc") << 12;
    QTest::newRow("blanks") << qs("  7 ") << 7;
    QTest::newRow("negative") << qs("-3") << -3;
    QTest::newRow("hexadecimal") << qs("0x10") << 0;
    QTest::newRow("leading zero") << qs("010") << 10;
}

void TEST_FIELD_CHECKS::numbers_are_read_leniently()
{
    QFETCH(const QString, text);
    QFETCH(const int, number);
    open();

    for (const char* name : {"m_total_die_edit", "m_clock_cycle_edit", "m_clock_cycle_edit_x4"})
        enter(name, text);

    QCOMPARE(calls(), QStringList({QStringLiteral("mgr.check_int_property(4, %1)").arg(number),
                                   QStringLiteral("mgr.check_int_property(6, %1)").arg(number),
                                   QStringLiteral("mgr.check_int_property(6, %1)").arg(number)}));
}

void TEST_FIELD_CHECKS::the_keypad_counts_as_return()
{
    open();

    QTest::keyClick(&edit("m_device_name_edit"), Qt::Key_Enter, Qt::KeypadModifier);

    QCOMPARE(log().count(qs("check_string_property")), 1);
}

void TEST_FIELD_CHECKS::leaving_a_field_checks_nothing()
{
    open();
    show_dialog();

    for (const char* name : {"m_device_name_edit", "m_device_id_edit", "m_total_die_edit", "m_clock_cycle_edit",
                             "m_clock_cycle_edit_x4"}) {
        edit(name).setFocus();
        QVERIFY(edit(name).hasFocus());
        QTest::keyClicks(&edit(name), QStringLiteral("12"));
        QTest::keyClick(&edit(name), Qt::Key_Tab);
        QVERIFY(!edit(name).hasFocus());
    }

    QCOMPARE(calls(), QStringList());
}

void TEST_FIELD_CHECKS::return_elsewhere_checks_nothing_data()
{
    QTest::addColumn<QString>("text");

    // Its name is checked when the device is saved, and only then.
    QTest::newRow("m_template_name_edit") << qs("T");
    QTest::newRow("m_filter_line_edit") << qs("new");
}

void TEST_FIELD_CHECKS::return_elsewhere_checks_nothing()
{
    QFETCH(const QString, text);
    for (int property = 0; property <= 8; ++property)
        mgr().refuse(property, "refused");
    open();
    check("m_save_template_check").setChecked(true);

    enter(QTest::currentDataTag(), text);

    QCOMPARE(calls(), QStringList());
    QCOMPARE(edit(QTest::currentDataTag()).text(), text);
}

void TEST_FIELD_CHECKS::a_refused_text_is_told_and_stays_data()
{
    a_text_field_is_checked_on_return_data();
}

void TEST_FIELD_CHECKS::a_refused_text_is_told_and_stays()
{
    QFETCH(const QString, text);
    QFETCH(const int, property);
    mgr().refuse(property, "The library's words");
    open();
    m_modals.expect(MODAL_DRIVER::accept());

    enter(QTest::currentDataTag(), text);

    QCOMPARE(m_modals.met().size(), 1);
    QCOMPARE(m_modals.last().text, QStringLiteral("The library's words"));
    QCOMPARE(edit(QTest::currentDataTag()).text(), text);
}

void TEST_FIELD_CHECKS::a_refused_number_is_told_and_stays_data()
{
    a_number_field_is_checked_on_return_data();
}

void TEST_FIELD_CHECKS::a_refused_number_is_told_and_stays()
{
    QFETCH(const int, property);
    mgr().refuse(property, "37", "Not 37");
    open();
    m_modals.expect(MODAL_DRIVER::accept());

    enter(QTest::currentDataTag(), QStringLiteral("37 pieces"));

    QCOMPARE(m_modals.last().text, QStringLiteral("Not 37"));
    QCOMPARE(edit(QTest::currentDataTag()).text(), QStringLiteral("37 pieces"));
}

void TEST_FIELD_CHECKS::a_density_is_checked_when_chosen()
{
    mgr().refuse(3, "1 Gb", "Too dense");
    open();

    choose_text("m_density_cbox", QStringLiteral("128 Mb"));
    m_modals.expect(MODAL_DRIVER::accept());
    choose_text("m_density_cbox", QStringLiteral("1 Gb"));

    QCOMPARE(calls(),
             list_of({R"(mgr.check_string_property(3, "128 Mb"))", R"(mgr.check_string_property(3, "1 Gb"))"}));
    QCOMPARE(m_modals.last().text, QStringLiteral("Too dense"));
    QCOMPARE(combo("m_density_cbox").currentText(), QStringLiteral("1 Gb"));
}

void TEST_FIELD_CHECKS::a_voltage_is_checked_twice()
{
    open();

    choose_text("m_voltage_cbox", QStringLiteral("3.3 V"));

    QCOMPARE(calls(),
             list_of({R"(mgr.check_string_property(2, "3.3 V"))", R"(mgr.verify_string_property(2, "3.3 V"))"}));
}

void TEST_FIELD_CHECKS::a_voltage_that_fails_the_first_check_sees_no_second()
{
    mgr().refuse(2, "first");
    mgr().unverified_values[{2, "3.3 V"}] = "second";
    open();
    m_modals.expect(MODAL_DRIVER::accept());

    choose_text("m_voltage_cbox", QStringLiteral("3.3 V"));

    QCOMPARE(calls(), list_of({R"(mgr.check_string_property(2, "3.3 V"))"}));
    QCOMPARE(m_modals.met().size(), 1);
    QCOMPARE(m_modals.last().text, QStringLiteral("first"));
    QCOMPARE(combo("m_voltage_cbox").currentText(), QStringLiteral("3.3 V"));
}

void TEST_FIELD_CHECKS::a_voltage_that_fails_the_second_check_is_told()
{
    mgr().unverified_values[{2, "3.3 V"}] = "second";
    open();
    m_modals.expect(MODAL_DRIVER::accept());

    choose_text("m_voltage_cbox", QStringLiteral("3.3 V"));

    QCOMPARE(m_modals.last().text, QStringLiteral("second"));
    QCOMPARE(combo("m_voltage_cbox").currentText(), QStringLiteral("3.3 V"));
}

void TEST_FIELD_CHECKS::a_template_is_checked_and_shown()
{
    mgr().builtin_template_operations[{1, false}] = make_operations("B");
    open();

    choose_text("m_flow_template_cbox", QStringLiteral("Built-in B"));

    QCOMPARE(calls().mid(0, 4),
             list_of({R"(mgr.check_string_property(8, "Built-in B"))", "mgr.get_flow_variant()",
                      "mgr.get_builtin_template_operations(1, false)", "mgr.is_flow_editable(null)"}));
    QCOMPARE(page_flow(3), list_of({"0:B 3"}));
}

void TEST_FIELD_CHECKS::a_refused_template_leaves_the_pages()
{
    mgr().builtin_template_operations[{0, false}] = make_operations("A");
    mgr().builtin_template_operations[{1, false}] = make_operations("B");
    mgr().refuse(8, "Built-in B", "no such template");
    open();
    m_modals.expect(MODAL_DRIVER::accept());

    choose_text("m_flow_template_cbox", QStringLiteral("Built-in B"));

    QCOMPARE(calls(), list_of({R"(mgr.check_string_property(8, "Built-in B"))"}));
    QCOMPARE(m_modals.last().text, QStringLiteral("no such template"));
    QCOMPARE(combo("m_flow_template_cbox").currentText(), QStringLiteral("Built-in B"));
    QCOMPARE(page_flow(2), list_of({"0:A 2"}));
}

void TEST_FIELD_CHECKS::a_template_of_a_stored_device_leaves_its_flows()
{
    mgr().builtin_template_operations[{1, false}] = make_operations("B");
    mgr().add_custom("own").operations[false] = make_operations("own");
    open_with("own");

    combo("m_flow_template_cbox").setCurrentIndex(1);

    QCOMPARE(log().calls_of({qs("get_operations"), qs("get_builtin_template_operations")}),
             list_of({"flash:own.get_operations(false)"}));
    QCOMPARE(page_flow(1), list_of({"0:own 1"}));
}

void TEST_FIELD_CHECKS::the_warning_box_shows_the_librarys_text_as_it_stands_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("markup") << qs("<b>bold</b> & <br>");
    QTest::newRow("lines") << qs("one\ntwo\n\n");
    QTest::newRow("empty") << QString();
    QTest::newRow("letters") << qs("gr\xC3\xBCn \xE2\x82\xAC");
    QTest::newRow("percent") << qs("100 %1 %n");
}

void TEST_FIELD_CHECKS::the_warning_box_shows_the_librarys_text_as_it_stands()
{
    QFETCH(const QString, text);
    mgr().refuse(0, text.toStdString());
    open();
    m_modals.expect(MODAL_DRIVER::accept());

    enter("m_device_name_edit", QStringLiteral("x"));

    const MET_MODAL& box = m_modals.last();
    QCOMPARE(box.class_name, QStringLiteral("QMessageBox"));
    QCOMPARE(box.text, text);
    QCOMPARE(box.text_format, Qt::PlainText);
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.title, QString());
    QCOMPARE(box.buttons, list_of({"OK"}));
    QCOMPARE(box.informative_text, QString());
    QCOMPARE(box.detailed_text, QString());
    QVERIFY(box.is_modal);
    QVERIFY(!box.has_parent);
}

void TEST_FIELD_CHECKS::texts_go_out_as_local_8_bit()
{
    open();

    enter("m_device_name_edit", qs("gr\xC3\xBCn"));

    QCOMPARE(calls(), QStringList(qs("mgr.check_string_property(0, \"gr\xC3\xBCn\")")));
}

void TEST_FIELD_CHECKS::the_quad_rule_serves_both_dummy_clocks()
{
    mgr().refuse(5, "single rule");
    open();

    enter("m_clock_cycle_edit", QStringLiteral("8"));

    QVERIFY(m_modals.met().isEmpty());
    mgr().refuse(6, "quad rule");
    m_modals.expect(MODAL_DRIVER::accept());
    enter("m_clock_cycle_edit", QStringLiteral("8"));
    QCOMPARE(m_modals.last().text, QStringLiteral("quad rule"));
}

GFPQ_TEST_MAIN(TEST_FIELD_CHECKS)

#include "test_field_checks.moc"
