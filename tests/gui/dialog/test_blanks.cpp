// SPDX-License-Identifier: MIT

// Texts with blanks at both ends and inside: every check, every store and every comparison takes them as they stand.
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
    void a_committed_text_is_checked_as_it_stands_data() { blanks_data(); }
    void a_committed_text_is_checked_as_it_stands();
    void a_chosen_text_is_checked_as_it_stands_data() { blanks_data(); }
    void a_chosen_text_is_checked_as_it_stands();
    void a_chosen_template_is_asked_for_as_it_stands_data() { blanks_data(); }
    void a_chosen_template_is_asked_for_as_it_stands();
    void an_accepted_value_stays_as_it_was_typed_data();
    void an_accepted_value_stays_as_it_was_typed();
    void a_new_device_is_checked_and_stored_as_it_stands_data() { blanks_data(); }
    void a_new_device_is_checked_and_stored_as_it_stands();
    void a_stored_device_is_shown_and_deleted_as_it_stands_data() { blanks_data(); }
    void a_stored_device_is_shown_and_deleted_as_it_stands();
    void numbers_between_blanks_are_checked_and_stored();
    void another_blank_makes_another_device_name_data();
    void another_blank_makes_another_device_name();
    void another_blank_makes_another_template_name_data();
    void another_blank_makes_another_template_name();
    void a_template_name_with_the_device_names_blanks_is_refused();
    void a_choice_with_other_blanks_is_another_choice();
    void an_argument_with_other_blanks_is_another_device_data();
    void an_argument_with_other_blanks_is_another_device();
    void the_new_device_row_has_no_other_blanks();
    void the_filter_takes_blanks_as_they_stand_data();
    void the_filter_takes_blanks_as_they_stand();
    void a_directory_is_taken_over_as_it_stands_data() { blanks_data(); }
    void a_directory_is_taken_over_as_it_stands();
    void a_refused_directory_is_told_as_it_stands_data() { blanks_data(); }
    void a_refused_directory_is_told_as_it_stands();
    void a_directory_of_blanks_is_no_empty_one();

private:
    static void blanks_data();
    bool apply();
};

// A word with the blanks that are tested.
void TEST_BLANKS::blanks_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << qs("a  b");
    QTest::newRow("blanks") << qs("  a  b ");
    QTest::newRow("tabs") << qs("\ta\t\tb\t");
    QTest::newRow("no-break blanks") << qs("\xC2\xA0"
                                           "a\xC2\xA0\xC2\xA0"
                                           "b\xC2\xA0");
    QTest::newRow("nothing else") << qs("   ");
}

bool TEST_BLANKS::apply()
{
    bool applied = false;
    QMetaObject::invokeMethod(&dlg(), "on_apply_clicked", Qt::DirectConnection, Q_RETURN_ARG(bool, applied));
    return applied;
}

void TEST_BLANKS::a_committed_text_is_checked_as_it_stands()
{
    QFETCH(const QString, text);
    open();

    enter("m_device_name_edit", text);
    enter("m_device_id_edit", text);

    QCOMPARE(calls(), QStringList({call_with("mgr.check_string_property(0, \"%1\")", text),
                                   call_with("mgr.check_string_property(1, \"%1\")", text)}));
}

void TEST_BLANKS::a_chosen_text_is_checked_as_it_stands()
{
    QFETCH(const QString, text);
    mgr().voltages = {"1.8 V", text.toStdString()};
    mgr().densities = {"16 Mb", text.toStdString()};
    open();

    choose_text("m_voltage_cbox", text);
    choose_text("m_density_cbox", text);

    QCOMPARE(calls(), QStringList({call_with("mgr.check_string_property(2, \"%1\")", text),
                                   call_with("mgr.verify_string_property(2, \"%1\")", text),
                                   call_with("mgr.check_string_property(3, \"%1\")", text)}));
}

void TEST_BLANKS::a_chosen_template_is_asked_for_as_it_stands()
{
    QFETCH(const QString, text);
    mgr().templates.push_back(text.toStdString());
    mgr().template_operations[{text.toStdString(), false}] = make_operations("stored");
    open();

    choose_text("m_flow_template_cbox", text);

    QCOMPARE(calls().filter(QStringLiteral("\"")),
             QStringList({call_with("mgr.check_string_property(8, \"%1\")", text),
                          call_with("mgr.get_template_operations(\"%1\", false)", text)}));
    QCOMPARE(page_flow(4), list_of({"0:stored 4"}));
}

void TEST_BLANKS::an_accepted_value_stays_as_it_was_typed_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("m_device_name_edit") << qs("  a  b ");
    QTest::newRow("m_device_id_edit") << qs("  0xc2,0x20 ");
    QTest::newRow("m_total_die_edit") << qs("  007 dies ");
    QTest::newRow("m_clock_cycle_edit") << qs("  +8 ");
    QTest::newRow("m_clock_cycle_edit_x4") << qs("  none ");
}

void TEST_BLANKS::an_accepted_value_stays_as_it_was_typed()
{
    QFETCH(const QString, text);
    open();

    enter(QTest::currentDataTag(), text);

    QCOMPARE(edit(QTest::currentDataTag()).text(), text);
}

void TEST_BLANKS::a_new_device_is_checked_and_stored_as_it_stands()
{
    QFETCH(const QString, text);
    const std::string bytes = text.toStdString();
    const QString name = text + QStringLiteral("1");
    const QString id = text + QStringLiteral("2");
    const QString template_name = text + QStringLiteral("3");
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

    QCOMPARE(log().calls_of({qs("check_string_property"), qs("create_flash"), qs("set_string_property"),
                             qs("set_density"), qs("save_flash")}),
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

void TEST_BLANKS::a_stored_device_is_shown_and_deleted_as_it_stands()
{
    QFETCH(const QString, text);
    const std::string bytes = text.toStdString();
    FLASH_DOUBLE& flash = mgr().add_custom(bytes);
    flash.strings = {{1, bytes}, {2, bytes}, {3, bytes}, {8, bytes}};
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
    QCOMPARE(log().calls_of({qs("is_hidden_flash"), qs("delete_flash"), qs("save_flash")}).mid(0, 3),
             QStringList({call_with("mgr.is_hidden_flash(\"%1\", false)", text),
                          call_with("mgr.delete_flash(\"%1\", \"/db/custom/\")", text),
                          call_with("mgr.save_flash(new:%1, \"/db/custom/\")", text)}));
    dynamic_cast<FLASH_DOUBLE&>(*mgr().flashes[bytes]).db_dir = bytes;
    log().clear();
    button("m_delete_button").click();
    QCOMPARE(log().calls_of({qs("delete_flash")}),
             QStringList(QStringLiteral("mgr.delete_flash(\"%1\", \"%1\")").arg(text)));
}

void TEST_BLANKS::numbers_between_blanks_are_checked_and_stored()
{
    open();
    edit("m_total_die_edit").setText(QStringLiteral("  4 "));
    edit("m_clock_cycle_edit").setText(QStringLiteral("\t8\t"));
    edit("m_clock_cycle_edit_x4").setText(QStringLiteral(" 1 0 "));

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("check_int_property"), qs("set_int_property")}),
             list_of({"mgr.check_int_property(4, 4)", "mgr.check_int_property(5, 8)", "mgr.check_int_property(6, 1)",
                      "new:.set_int_property(4, 4)", "new:.set_int_property(5, 8)", "new:.set_int_property(6, 1)"}));
}

void TEST_BLANKS::another_blank_makes_another_device_name_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("in front") << qs(" A B");
    QTest::newRow("behind") << qs("A B ");
    QTest::newRow("inside") << qs("A  B");
}

void TEST_BLANKS::another_blank_makes_another_device_name()
{
    QFETCH(const QString, name);
    mgr().add_custom("A B");
    open_with("A B");
    edit("m_device_name_edit").setText(name);

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("check_string_property"), qs("delete_flash"), qs("save_flash")}),
             QStringList({call_with("mgr.check_string_property(0, \"%1\")", name),
                          qs(R"(mgr.check_string_property(1, ""))"), qs(R"(mgr.delete_flash("A B", "/db/custom/"))"),
                          call_with("mgr.save_flash(new:%1, \"/db/custom/\")", name)}));
}

void TEST_BLANKS::another_blank_makes_another_template_name_data()
{
    another_blank_makes_another_device_name_data();
}

void TEST_BLANKS::another_blank_makes_another_template_name()
{
    QFETCH(const QString, name);
    open();
    edit("m_device_name_edit").setText(QStringLiteral("A B"));
    check("m_save_template_check").setChecked(true);
    edit("m_template_name_edit").setText(name);

    QVERIFY(apply());

    QCOMPARE(mgr().last_created->strings[7], name.toStdString());
}

void TEST_BLANKS::a_template_name_with_the_device_names_blanks_is_refused()
{
    open();
    edit("m_device_name_edit").setText(QStringLiteral("  A  B "));
    check("m_save_template_check").setChecked(true);
    edit("m_template_name_edit").setText(QStringLiteral("  A  B "));
    m_modals.expect(MODAL_DRIVER::accept());

    QVERIFY(!apply());

    QCOMPARE(m_modals.last().text,
             QStringLiteral("Failed to save flash as Configuration Device tab has invalid property value: \n\n"
                            "Tempate name '  A  B ' is conflicts with the device name   A  B ."));
}

void TEST_BLANKS::a_choice_with_other_blanks_is_another_choice()
{
    mgr().add_custom("A").strings = {{2, "3.3 V "}, {3, " 1 Gb"}, {8, "Built-in  C"}};

    open_with("A");

    QCOMPARE(combo("m_voltage_cbox").currentIndex(), 0);
    QCOMPARE(combo("m_density_cbox").currentIndex(), 0);
    QCOMPARE(combo("m_flow_template_cbox").currentText(), QStringLiteral("Built-in  C"));
    QCOMPARE(combo("m_flow_template_cbox").count(), 6);
}

void TEST_BLANKS::an_argument_with_other_blanks_is_another_device_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("in front") << qs(" A B");
    QTest::newRow("behind") << qs("A B ");
    QTest::newRow("inside") << qs("A  B");
    QTest::newRow("nothing else") << qs("   ");
}

void TEST_BLANKS::an_argument_with_other_blanks_is_another_device()
{
    QFETCH(const QString, name);
    mgr().add_custom("A B");

    open_with(name.toStdString());

    QCOMPARE(current_row(), QStringLiteral("<<new device>>"));
}

void TEST_BLANKS::the_new_device_row_has_no_other_blanks()
{
    mgr().add_custom("<<new device>> ");

    open_with("<<new device>> ");

    QCOMPARE(current_row(), QStringLiteral("<<new device>> "));
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("<<new device>> "));
    QVERIFY(button("m_delete_button").isEnabled());
}

void TEST_BLANKS::the_filter_takes_blanks_as_they_stand_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("shown");

    QTest::newRow("a blank") << qs(" ") << list_of({"<<new device>>", "A B", " AB", "AB "});
    QTest::newRow("in front") << qs(" A") << list_of({" AB"});
    QTest::newRow("behind") << qs("B ") << list_of({"AB "});
    QTest::newRow("inside") << qs("A B") << list_of({"A B"});
    QTest::newRow("beside a star") << qs("A* ") << list_of({"A B", "AB "});
}

void TEST_BLANKS::the_filter_takes_blanks_as_they_stand()
{
    QFETCH(const QString, filter);
    QFETCH(const QStringList, shown);
    for (const char* name : {"AB", "A B", " AB", "AB "})
        mgr().add_custom(name);
    open();

    edit("m_filter_line_edit").setText(filter);

    QCOMPARE(shown_rows(), shown);
    QCOMPARE(edit("m_filter_line_edit").text(), filter);
}

void TEST_BLANKS::a_directory_is_taken_over_as_it_stands()
{
    QFETCH(const QString, text);
    open();

    enter("m_directory_edit", text);

    QCOMPARE(log().calls_of({qs("save_custom_dir_to_ini"), qs("set_db_custom_dir")}),
             QStringList({call_with("GFPDB_MGR.save_custom_dir_to_ini(\"%1/\", false)", text),
                          call_with("GFPDB_MGR.set_db_custom_dir(\"%1/\")", text)}));
}

void TEST_BLANKS::a_refused_directory_is_told_as_it_stands()
{
    QFETCH(const QString, text);
    world().save_dir_succeeds = false;
    open();
    m_modals.expect(MODAL_DRIVER::accept());

    enter("m_directory_edit", text);

    QCOMPARE(m_modals.last().text, call_with("Failed to set the custom database directory to %1\n", text));
}

// Saved without leaving the edit first.
void TEST_BLANKS::a_directory_of_blanks_is_no_empty_one()
{
    open();
    edit("m_directory_edit").setText(QStringLiteral("  "));

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("set_db_dir"), qs("delete_flash"), qs("save_flash")}),
             list_of({R"(new:.set_db_dir("  /"))", R"(mgr.delete_flash("<<new device>>", "  /"))",
                      R"(mgr.save_flash(new:, "  /"))"}));
}

GFPQ_TEST_MAIN(TEST_BLANKS)

#include "test_blanks.moc"
