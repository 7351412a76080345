// SPDX-License-Identifier: MIT

// The checks that a device field runs when its value is committed, and the warning box that they share.
#include "dialog_test.h"

class TEST_FIELD_CHECKS : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_field_is_checked_on_return_data()
    {
        rows<QString, int, QString>(
            {{"m_device_name_edit", "gr\xC3\xBCn", 0, "mgr.check_string_property(0, \"gr\xC3\xBCn\")"},
             {"m_device_id_edit", "0xC2 0x20", 1, R"(mgr.check_string_property(1, "0xC2 0x20"))"},
             {"m_total_die_edit", "37 pieces", 4, "mgr.check_int_property(4, 37)"},
             // The rule of the quad-I/O dummy clocks, on purpose.
             {"m_clock_cycle_edit", "37", 6, "mgr.check_int_property(6, 37)"},
             {"m_clock_cycle_edit_x4", "37", 6, "mgr.check_int_property(6, 37)"}});
    }

    void a_field_is_checked_on_return()
    {
        const auto [typed, property, call] = row<QString, int, QString>();
        const char* const name = QTest::currentDataTag();
        open();

        enter(name, typed);
        QTest::keyClick(&edit(name), Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(calls(), QStringList({call, call}));

        // A refusal is told, and the text stays.
        mgr().refuse(property, "The library's words");
        m_modals.expect(MODAL_DRIVER::accept());
        edit(name).clear();
        edit(name).insert(typed);
        QTest::keyClick(&edit(name), Qt::Key_Return);
        QCOMPARE(m_modals.met().size(), 1);
        QCOMPARE(m_modals.last().text, qs("The library's words"));
        QCOMPARE(text(name), typed);
        QVERIFY(!edit(name).hasSelectedText());
    }

    void what_is_empty_or_unchanged_is_checked_too()
    {
        mgr().add_custom("A");
        open_with("A");

        for (const char* name : {"m_device_name_edit", "m_device_id_edit"})
            QTest::keyClick(&edit(name), Qt::Key_Return);
        for (const char* name : {"m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"})
            combo(name).setCurrentIndex(-1);

        QCOMPARE(calls_of({"check_string_property"}),
                 list_of({R"(mgr.check_string_property(0, "A"))", R"(mgr.check_string_property(1, ""))",
                          R"(mgr.check_string_property(2, ""))", R"(mgr.check_string_property(3, ""))",
                          R"(mgr.check_string_property(8, ""))"}));
    }

    // The fields were chosen when the dialog opened.
    void a_field_that_is_used_no_more_is_checked_all_the_same()
    {
        open();
        mgr().unused_properties = ALL_FIELDS;

        enter("m_device_id_edit", "x");
        enter("m_total_die_edit", "4");
        choose_text("m_density_cbox", "128 Mb");

        QCOMPARE(calls(), list_of({R"(mgr.check_string_property(1, "x"))", "mgr.check_int_property(4, 4)",
                                   R"(mgr.check_string_property(3, "128 Mb"))"}));
    }

    // The second check of a voltage gets what the first one wrote into the error; only their answers count.
    void a_text_in_the_error_is_no_refusal()
    {
        for (const int property : {GFPDB_FLASH_DEVICE_ID, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_TOTAL_DIE})
            mgr().remarks[property] = "remark";
        open();

        enter("m_device_id_edit", "x");
        enter("m_total_die_edit", "4");
        choose_text("m_voltage_cbox", "2.5 V");

        QVERIFY(m_modals.met().isEmpty());
        QCOMPARE(calls().last(), qs(R"(mgr.verify_string_property(2, "2.5 V", error was "remark"))"));
        mgr().unverified_values[{GFPDB_FLASH_VOLTAGE, "3.3 V"}] = "refused";
        m_modals.expect(MODAL_DRIVER::accept());
        choose_text("m_voltage_cbox", "3.3 V");
        QCOMPARE(m_modals.last().text, qs("refused"));
    }

    void a_choice_is_checked_data()
    {
        const QString accepted;
        rows<QString, QString, QString, QStringList>(
            {{"density", "m_density_cbox", "128 Mb", accepted, {R"(mgr.check_string_property(3, "128 Mb"))"}},
             {"refused density", "m_density_cbox", "1 Gb", "Too dense", {R"(mgr.check_string_property(3, "1 Gb"))"}},
             {"voltage",
              "m_voltage_cbox",
              "2.5 V",
              accepted,
              {R"(mgr.check_string_property(2, "2.5 V"))", R"(mgr.verify_string_property(2, "2.5 V"))"}},
             // What fails the first check sees no second one.
             {"voltage refused at first", "m_voltage_cbox", "5 V", "first", {R"(mgr.check_string_property(2, "5 V"))"}},
             {"voltage refused at last",
              "m_voltage_cbox",
              "3.3 V",
              "second",
              {R"(mgr.check_string_property(2, "3.3 V"))", R"(mgr.verify_string_property(2, "3.3 V"))"}}});
    }

    void a_choice_is_checked()
    {
        const auto [name, choice, told, expected] = row<QString, QString, QString, QStringList>();
        const QByteArray combo_name = name.toLatin1();
        mgr().voltages.push_back("5 V");
        mgr().refuse(GFPDB_FLASH_DENSITY, "1 Gb", "Too dense");
        mgr().refuse(GFPDB_FLASH_VOLTAGE, "5 V", "first");
        mgr().unverified_values[{GFPDB_FLASH_VOLTAGE, "5 V"}] = "second";
        mgr().unverified_values[{GFPDB_FLASH_VOLTAGE, "3.3 V"}] = "second";
        open();
        if (!told.isEmpty())
            m_modals.expect(MODAL_DRIVER::accept());

        choose_text(combo_name.constData(), choice);

        QCOMPARE(calls(), expected);
        QCOMPARE(m_modals.met().size(), told.isEmpty() ? 0 : 1);
        QCOMPARE(told.isEmpty() ? told : m_modals.last().text, told);
        QCOMPARE(text(combo_name.constData()), choice);
    }

    void numbers_are_read_leniently_data()
    {
        rows<QString, int>({{"empty", QString(), 0},
                            {"letters", "abc", 0},
                            {"digits and letters", "12abc", 12},
                            {"blanks", "  7 ", 7},
                            {"negative", "-3", -3},
                            {"hexadecimal", "0x10", 0},
                            {"leading zero", "010", 10}});
    }

    void numbers_are_read_leniently()
    {
        const auto [text, number] = row<QString, int>();
        open();

        for (const char* name : {"m_total_die_edit", "m_clock_cycle_edit", "m_clock_cycle_edit_x4"})
            enter(name, text);

        QCOMPARE(calls(), QStringList({qs("mgr.check_int_property(4, %1)").arg(number),
                                       qs("mgr.check_int_property(6, %1)").arg(number),
                                       qs("mgr.check_int_property(6, %1)").arg(number)}));
    }

    void leaving_a_field_checks_nothing()
    {
        open();
        show_dialog();

        for (const char* name : {"m_device_name_edit", "m_device_id_edit", "m_total_die_edit", "m_clock_cycle_edit",
                                 "m_clock_cycle_edit_x4"}) {
            edit(name).setFocus();
            QVERIFY(edit(name).hasFocus());
            QTest::keyClicks(&edit(name), qs("12"));
            QTest::keyClick(&edit(name), Qt::Key_Tab);
            QVERIFY(!edit(name).hasFocus());
        }

        QCOMPARE(calls(), QStringList());
    }

    void return_elsewhere_checks_nothing_data()
    {
        rows<QString>({// Its name is checked when the device is saved, and only then.
                       {"m_template_name_edit", "T"},
                       {"m_filter_line_edit", "new"}});
    }

    void return_elsewhere_checks_nothing()
    {
        const QString text = row<QString>();
        for (int property = 0; property <= 8; ++property)
            mgr().refuse(property, "refused");
        open();
        check("m_save_template_check").setChecked(true);

        enter(QTest::currentDataTag(), text);

        QCOMPARE(calls(), QStringList());
        QCOMPARE(edit(QTest::currentDataTag()).text(), text);
    }

    void a_template_is_checked_and_shown()
    {
        mgr().builtin_template_operations[{1, false}] = make_operations("B");
        open();

        choose_text("m_flow_template_cbox", "Built-in B");

        QCOMPARE(calls().mid(0, 4),
                 list_of({R"(mgr.check_string_property(8, "Built-in B"))", "mgr.get_flow_variant()",
                          "mgr.get_builtin_template_operations(1, false)", "mgr.is_flow_editable(null)"}));
        QCOMPARE(page_flow(3), list_of({"0:B 3"}));
    }

    void a_refused_template_leaves_the_pages()
    {
        mgr().builtin_template_operations[{0, false}] = make_operations("A");
        mgr().builtin_template_operations[{1, false}] = make_operations("B");
        mgr().refuse(GFPDB_FLASH_FLOW_TEMPLATE, "Built-in B", "no such template");
        open();
        m_modals.expect(MODAL_DRIVER::accept());

        choose_text("m_flow_template_cbox", "Built-in B");

        QCOMPARE(calls(), list_of({R"(mgr.check_string_property(8, "Built-in B"))"}));
        QCOMPARE(m_modals.last().text, qs("no such template"));
        QCOMPARE(text("m_flow_template_cbox"), qs("Built-in B"));
        QCOMPARE(page_flow(2), list_of({"0:A 2"}));
    }

    void a_template_of_a_stored_device_leaves_its_flows()
    {
        mgr().builtin_template_operations[{1, false}] = make_operations("B");
        mgr().add_custom("own").operations[false] = make_operations("own");
        open_with("own");

        combo("m_flow_template_cbox").setCurrentIndex(1);

        QCOMPARE(calls_of({"get_operations", "get_builtin_template_operations"}),
                 list_of({"flash:own.get_operations(false)"}));
        QCOMPARE(page_flow(1), list_of({"0:own 1"}));
    }

    void the_warning_box_shows_the_librarys_text_as_it_is_data()
    {
        rows<QString>({{"markup", "<b>bold</b> & <br>"},
                       {"lines", "one\ntwo\n\n"},
                       {"empty", QString()},
                       {"letters", "gr\xC3\xBCn \xE2\x82\xAC"},
                       {"percent", "100 %1 %n"}});
    }

    void the_warning_box_shows_the_librarys_text_as_it_is()
    {
        const QString text = row<QString>();
        mgr().refuse(GFPDB_FLASH_NAME, text.toStdString());
        open();
        m_modals.expect(MODAL_DRIVER::accept());

        enter("m_device_name_edit", "x");

        const MET_MODAL& box = m_modals.last();
        QCOMPARE(box.class_name, qs("QMessageBox"));
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
};

GFPQ_TEST_MAIN(TEST_FIELD_CHECKS)

#include "test_field_checks.moc"
