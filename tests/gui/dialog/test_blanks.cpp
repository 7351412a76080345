// SPDX-License-Identifier: MIT

// Texts with blanks at both ends and inside: every check, every store and every comparison takes them as they are.
#include "dialog_test.h"

namespace {

// What is said of a text that a call gets: call(argument, "text").
QString call_with(const char* call, const QString& text)
{
    return QString::fromUtf8(call).arg(text);
}

} // namespace

class TEST_BLANKS : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_committed_text_is_checked_as_it_is_data() { blanks_data(); }

    void a_committed_text_is_checked_as_it_is()
    {
        const QString text = row<QString>();
        mgr().voltages = {"1.8 V", text.toStdString()};
        mgr().densities = {"16 Mb", text.toStdString()};
        mgr().templates.push_back(text.toStdString());
        mgr().template_operations[{text.toStdString(), false}] = make_operations("stored");
        open();

        enter("m_device_name_edit", text);
        enter("m_device_id_edit", text);
        for (const char* box : {"m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"})
            choose_text(box, text);

        QCOMPARE(calls().filter(qs("\"")),
                 QStringList({call_with("mgr.check_string_property(0, \"%1\")", text),
                              call_with("mgr.check_string_property(1, \"%1\")", text),
                              call_with("mgr.check_string_property(2, \"%1\")", text),
                              call_with("mgr.verify_string_property(2, \"%1\")", text),
                              call_with("mgr.check_string_property(3, \"%1\")", text),
                              call_with("mgr.check_string_property(8, \"%1\")", text),
                              call_with("mgr.get_template_operations(\"%1\", false)", text)}));
        QCOMPARE(page_flows(), flows_named("stored"));
    }

    void an_accepted_value_stays_as_it_was_typed_data()
    {
        rows<QString>({{"m_device_name_edit", "  a  b "},
                       {"m_device_id_edit", "  0xc2,0x20 "},
                       {"m_total_die_edit", "  007 dies "},
                       {"m_clock_cycle_edit", "  +8 "},
                       {"m_clock_cycle_edit_x4", "  none "}});
    }

    void an_accepted_value_stays_as_it_was_typed()
    {
        const QString text = row<QString>();
        open();

        enter(QTest::currentDataTag(), text);

        QCOMPARE(edit(QTest::currentDataTag()).text(), text);
    }

    void a_new_device_is_checked_and_stored_as_it_is_data() { blanks_data(); }

    void a_new_device_is_checked_and_stored_as_it_is()
    {
        const QString text = row<QString>();
        const std::string bytes = text.toStdString();
        const QString name = text + qs("1");
        const QString id = text + qs("2");
        const QString template_name = text + qs("3");
        mgr().voltages = {"1.8 V", bytes};
        mgr().densities = {"16 Mb", bytes};
        mgr().templates.push_back(bytes);
        open();
        edit("m_device_name_edit").setText(name);
        edit("m_device_id_edit").setText(id);
        for (const char* box : {"m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"})
            choose_text(box, text);
        check("m_save_template_check").setChecked(true);
        edit("m_template_name_edit").setText(template_name);
        log().clear();

        QVERIFY(apply());

        QCOMPARE(
            calls_of({"check_string_property", "create_flash", "set_string_property", "set_density", "save_flash"}),
            QStringList({call_with("mgr.check_string_property(0, \"%1\")", name),
                         call_with("mgr.check_string_property(1, \"%1\")", id),
                         call_with("mgr.check_string_property(7, \"%1\")", template_name),
                         call_with("mgr.create_flash(\"%1\")", name),
                         call_with("new:%1", name) + call_with(".set_string_property(1, \"%1\")", id),
                         call_with("new:%1", name) + call_with(".set_string_property(2, \"%1\")", text),
                         call_with("new:%1", name) + call_with(".set_density(\"%1\")", text),
                         call_with("new:%1", name) + call_with(".set_string_property(8, \"%1\")", text),
                         call_with("new:%1", name) + call_with(".set_string_property(7, \"%1\")", template_name),
                         call_with("mgr.save_flash(new:%1, \"/db/custom/\")", name)}));
        // The flows of the variant that is not shown.
        QVERIFY(log().calls().contains(call_with("mgr.find_flash(\"%1\", true)", text)));
        QCOMPARE(current_row(), name);
    }

    void a_stored_device_is_shown_and_deleted_as_it_is_data() { blanks_data(); }

    void a_stored_device_is_shown_and_deleted_as_it_is()
    {
        const QString text = row<QString>();
        const std::string bytes = text.toStdString();
        FLASH_DOUBLE& flash = mgr().add_custom(bytes);
        set_texts(flash, bytes, bytes, bytes, bytes);
        flash.db_dir = bytes;
        mgr().voltages = {"1.8 V", bytes};
        mgr().densities = {"16 Mb", bytes};

        open_with(bytes);

        QCOMPARE(current_row(), text);
        for (const char* name : {"m_device_name_edit", "m_device_id_edit"})
            QCOMPARE(edit(name).text(), text);
        for (const char* name : {"m_voltage_cbox", "m_density_cbox", "m_flow_template_cbox"})
            QCOMPARE(combo(name).currentText(), text);
        QVERIFY(apply());
        QCOMPARE(calls_of({"is_hidden_flash", "delete_flash", "save_flash"}).mid(0, 3),
                 QStringList({call_with("mgr.is_hidden_flash(\"%1\", false)", text),
                              call_with("mgr.delete_flash(\"%1\", \"/db/custom/\")", text),
                              call_with("mgr.save_flash(new:%1, \"/db/custom/\")", text)}));
        dynamic_cast<FLASH_DOUBLE&>(*mgr().flashes[bytes]).db_dir = bytes;
        log().clear();
        button("m_delete_button").click();
        QCOMPARE(calls_of({"delete_flash"}), QStringList(qs("mgr.delete_flash(\"%1\", \"%1\")").arg(text)));
    }

    void numbers_between_blanks_are_checked_and_stored()
    {
        open();
        type_in("m_total_die_edit", "  4 ");
        type_in("m_clock_cycle_edit", "\t8\t");
        type_in("m_clock_cycle_edit_x4", " 1 0 ");

        QVERIFY(apply());

        QCOMPARE(
            calls_of({"check_int_property", "set_int_property"}),
            list_of({"mgr.check_int_property(4, 4)", "mgr.check_int_property(5, 8)", "mgr.check_int_property(6, 1)",
                     "new:.set_int_property(4, 4)", "new:.set_int_property(5, 8)", "new:.set_int_property(6, 1)"}));
    }

    void another_blank_makes_another_device_name_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("in front") << qs(" A B");
        QTest::newRow("behind") << qs("A B ");
        QTest::newRow("inside") << qs("A  B");
    }

    void another_blank_makes_another_device_name()
    {
        QFETCH(const QString, name);
        mgr().add_custom("A B");
        open_with("A B");
        edit("m_device_name_edit").setText(name);

        QVERIFY(apply());

        QCOMPARE(
            calls_of({"check_string_property", "delete_flash", "save_flash"}),
            QStringList({call_with("mgr.check_string_property(0, \"%1\")", name),
                         qs(R"(mgr.check_string_property(1, ""))"), qs(R"(mgr.delete_flash("A B", "/db/custom/"))"),
                         call_with("mgr.save_flash(new:%1, \"/db/custom/\")", name)}));
    }

    void another_blank_makes_another_template_name_data() { another_blank_makes_another_device_name_data(); }

    void another_blank_makes_another_template_name()
    {
        QFETCH(const QString, name);
        open();
        type_in("m_device_name_edit", "A B");
        check("m_save_template_check").setChecked(true);
        edit("m_template_name_edit").setText(name);

        QVERIFY(apply());

        QCOMPARE(mgr().last_created->strings[GFPDB_FLASH_TEMPLATE_NAME], name.toStdString());
    }

    void a_template_name_with_the_device_names_blanks_is_refused()
    {
        open();
        type_in("m_device_name_edit", "  A  B ");
        check("m_save_template_check").setChecked(true);
        type_in("m_template_name_edit", "  A  B ");
        m_modals.expect(MODAL_DRIVER::accept());

        QVERIFY(!apply());

        QCOMPARE(m_modals.last().text,
                 QStringLiteral("Failed to save flash as Configuration Device tab has invalid property value: \n\n"
                                "Tempate name '  A  B ' is conflicts with the device name   A  B ."));
    }

    void a_choice_with_other_blanks_is_another_choice()
    {
        mgr().add_custom("A").strings = {{GFPDB_FLASH_VOLTAGE, "3.3 V "},
                                         {GFPDB_FLASH_DENSITY, " 1 Gb"},
                                         {GFPDB_FLASH_FLOW_TEMPLATE, "Built-in  C"}};

        open_with("A");

        QCOMPARE(combo("m_voltage_cbox").currentIndex(), 0);
        QCOMPARE(combo("m_density_cbox").currentIndex(), 0);
        QCOMPARE(text("m_flow_template_cbox"), qs("Built-in  C"));
        QCOMPARE(combo("m_flow_template_cbox").count(), 6);
    }

    void an_argument_with_other_blanks_is_another_device_data()
    {
        rows<QString>({{"in front", " A B"}, {"behind", "A B "}, {"inside", "A  B"}, {"nothing else", "   "}});
    }

    void an_argument_with_other_blanks_is_another_device()
    {
        const QString name = row<QString>();
        mgr().add_custom("A B");

        open_with(name.toStdString());

        QCOMPARE(current_row(), qs("<<new device>>"));
    }

    void the_new_device_row_has_no_other_blanks()
    {
        mgr().add_custom("<<new device>> ");

        open_with("<<new device>> ");

        QCOMPARE(current_row(), qs("<<new device>> "));
        QCOMPARE(text("m_device_name_edit"), qs("<<new device>> "));
        QVERIFY(button("m_delete_button").isEnabled());
    }

    void the_filter_takes_blanks_as_they_are_data()
    {
        rows<QString, QStringList>({{"a blank", " ", {"<<new device>>", "A B", " AB", "AB "}},
                                    {"in front", " A", {" AB"}},
                                    {"behind", "B ", {"AB "}},
                                    {"inside", "A B", {"A B"}},
                                    {"beside a star", "A* ", {"A B", "AB "}}});
    }

    void the_filter_takes_blanks_as_they_are()
    {
        const auto [filter, shown] = row<QString, QStringList>();
        for (const char* name : {"AB", "A B", " AB", "AB "})
            mgr().add_custom(name);
        open();

        edit("m_filter_line_edit").setText(filter);

        QCOMPARE(shown_rows(), shown);
        QCOMPARE(text("m_filter_line_edit"), filter);
    }

    void a_directory_is_taken_over_as_it_is_data() { blanks_data(); }

    void a_directory_is_taken_over_as_it_is()
    {
        const QString text = row<QString>();
        open();

        enter("m_directory_edit", text);
        world().save_dir_succeeds = false;
        m_modals.expect(MODAL_DRIVER::accept());
        enter("m_directory_edit", text + qs("?"));

        QCOMPARE(calls_of({"save_custom_dir_to_ini", "set_db_custom_dir"}),
                 QStringList({call_with("GFPDB_MGR.save_custom_dir_to_ini(\"%1/\", false)", text),
                              call_with("GFPDB_MGR.set_db_custom_dir(\"%1/\")", text),
                              call_with("GFPDB_MGR.save_custom_dir_to_ini(\"%1?/\", false)", text)}));
        QCOMPARE(m_modals.last().text, call_with("Failed to set the custom database directory to %1?\n", text));
    }

    // Saved without leaving the edit first.
    void a_directory_of_blanks_is_not_an_empty_one()
    {
        open();
        type_in("m_directory_edit", "  ");

        QVERIFY(apply());

        QCOMPARE(calls_of({"set_db_dir", "delete_flash", "save_flash"}),
                 list_of({R"(new:.set_db_dir("  /"))", R"(mgr.delete_flash("<<new device>>", "  /"))",
                          R"(mgr.save_flash(new:, "  /"))"}));
    }

private:
    // A word with the blanks that are tested.
    static void blanks_data()
    {
        rows<QString>({{"none", "a  b"},
                       {"blanks", "  a  b "},
                       {"tabs", "\ta\t\tb\t"},
                       {"no-break blanks", "\u00A0a\u00A0\u00A0b\u00A0"},
                       {"nothing else", "   "}});
    }
};

GFPQ_TEST_MAIN(TEST_BLANKS)

#include "test_blanks.moc"
