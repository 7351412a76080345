// SPDX-License-Identifier: MIT

// Apply that succeeds, or has nothing to do: what it asks and writes, in which order, and what is shown afterwards.
#include "dialog_test.h"

namespace {

// What is asked of the fields of fill_form().
const QStringList CHECKS =
    list_of({R"(mgr.check_string_property(1, "0xC2 0x20"))", "mgr.check_int_property(4, 4)",
             "mgr.check_int_property(5, 8)", "mgr.check_int_property(6, 10)", "mgr.can_edit_flow()"});

} // namespace

class TEST_APPLY : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_new_device_is_stored_in_order()
    {
        open();
        choose_text("m_flow_template_cbox", "Built-in B");
        fill_form("X");
        check("m_save_template_check").setChecked(true);
        type_in("m_template_name_edit", "T");

        QVERIFY(apply());

        QStringList expected =
            list_of({R"(mgr.is_hidden_flash("<<new device>>", false))", R"(mgr.check_string_property(0, "X"))"});
        expected += CHECKS;
        expected += list_of({R"(mgr.check_string_property(7, "T"))"});
        expected += writing("X", "Built-in B", "single");
        expected += list_of({"mgr.get_flow_variant()", "mgr.get_builtin_template_operations(1, true)"});
        expected += storing("X", "quad", true);
        expected +=
            list_of({R"(new:X.set_string_property(7, "T"))", R"(mgr.delete_flash("<<new device>>", "/db/custom/"))",
                     R"(mgr.save_flash(new:X, "/db/custom/"))", "mgr.can_add_flash()",
                     "mgr.get_custom_flash_names(5, 13, 0)", "mgr.get_builtin_flash_names(5, 13, 0)"});
        COMPARE_CALLS(calls_of_apply().mid(0, expected.size()), expected);
    }

    void the_pages_have_handed_their_flows_over_when_the_other_variant_is_fetched()
    {
        open();
        QStringList kept{qs("not fetched")};
        log().on_call(qs("get_builtin_template_operations"), [&](const QString&) { kept = page_flows(); });

        QVERIFY(apply());

        QCOMPARE(kept, QStringList());
    }

    void a_stored_device_is_replaced_in_order()
    {
        open_with("A");
        fill_form("A");

        QVERIFY(apply());

        QStringList expected = list_of({R"(mgr.is_hidden_flash("A", false))", "flash:A.is_user_defined()"});
        expected += CHECKS + writing("A", "Built-in D", "own");
        expected += list_of({"mgr.get_flow_variant()", "flash:A.get_operations(true)"});
        expected += storing("A", "own quad", true);
        expected += list_of({R"(mgr.delete_flash("A", "/db/custom/"))", R"(mgr.save_flash(new:A, "/db/custom/"))",
                             "mgr.can_add_flash()"});
        COMPARE_CALLS(calls_of_apply().mid(0, expected.size()), expected);
    }

    void a_rename_deletes_the_old_name_before_it_saves_the_new_one_data()
    {
        // Another case is another name.
        rows_named<QString>({"renamed", "a", "gr\xC3\xBCn '%1' <b>;\""});
    }

    void a_rename_deletes_the_old_name_before_it_saves_the_new_one()
    {
        const QString name = row<QString>();
        open_with("A");
        type_in("m_device_name_edit", name);

        QVERIFY(apply());

        QCOMPARE(
            calls_of({"check_string_property", "create_flash", "delete_flash", "save_flash"}),
            QStringList({qs("mgr.check_string_property(0, \"") + name + qs("\")"),
                         qs(R"(mgr.check_string_property(1, "0x01"))"), qs("mgr.create_flash(\"") + name + qs("\")"),
                         qs(R"(mgr.delete_flash("A", "/db/custom/"))"),
                         qs("mgr.save_flash(new:") + name + qs(", \"/db/custom/\")")}));
        QCOMPARE(all_rows(), QStringList({qs("<<new device>>"), name}));
        QCOMPARE(current_row(), name);
    }

    void unused_fields_are_neither_checked_nor_written_data()
    {
        rows<int, QStringList>(
            {{"name", 0, {R"(mgr.check_string_property(0, "X"))"}},
             {"id",
              1,
              {R"(mgr.check_string_property(1, "0xC2 0x20"))", R"(new:X.set_string_property(1, "0xC2 0x20"))"}},
             {"voltage", 2, {R"(new:X.set_string_property(2, "3.3 V"))"}},
             {"density", 3, {R"(new:X.set_density("1 Gb"))"}},
             {"die", 4, {"mgr.check_int_property(4, 4)", "new:X.set_int_property(4, 4)"}},
             {"single", 5, {"mgr.check_int_property(5, 8)", "new:X.set_int_property(5, 8)"}},
             {"quad", 6, {"mgr.check_int_property(6, 10)", "new:X.set_int_property(6, 10)"}},
             {"template",
              8,
              {R"(mgr.check_string_property(7, "T"))", R"(new:X.set_string_property(8, "Built-in B"))",
               "mgr.get_builtin_template_operations(1, true)", R"(new:X.set_string_property(7, "T"))"}}});
    }

    void unused_fields_are_neither_checked_nor_written()
    {
        const auto [property, missing] = row<int, QStringList>();
        const auto made = [this] {
            log().clear();
            apply();
            return calls_of({"check_string_property", "check_int_property", "set_string_property", "set_density",
                             "set_int_property", "get_builtin_template_operations"});
        };
        open();
        choose_text("m_flow_template_cbox", "Built-in B");
        fill_form("X");
        check("m_save_template_check").setChecked(true);
        type_in("m_template_name_edit", "T");
        mgr().save_succeeds = false;
        QStringList expected = made();
        for (const QString& call : missing)
            QCOMPARE(expected.removeAll(call), 1);

        mgr().unused_properties = {property};

        QCOMPARE(made(), expected);
    }

    void without_fields_only_the_flows_are_stored()
    {
        mgr().unused_properties = ALL_FIELDS;
        open_with("A");

        QVERIFY(apply());

        QCOMPARE(calls_of({"check_string_property", "check_int_property", "set_string_property", "set_density",
                           "set_int_property"}),
                 QStringList());
        QCOMPARE(mgr().last_created->flow(2, false), list_of({"0:own 2"}));
        QVERIFY(mgr().last_created->operations.count(true) == 0);
    }

    // Nor is a template name that is not asked for any more.
    void unchanged_names_and_choices_are_not_checked_again()
    {
        open_with("A");
        check("m_save_template_check").setChecked(true);
        type_in("m_template_name_edit", "T");
        check("m_save_template_check").setChecked(false);
        for (const int property : {GFPDB_FLASH_NAME, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY,
                                   GFPDB_FLASH_TEMPLATE_NAME, GFPDB_FLASH_FLOW_TEMPLATE})
            mgr().refuse(property, "refused");

        QVERIFY(apply());

        QCOMPARE(calls_of({"check_string_property"}), list_of({R"(mgr.check_string_property(1, "0x01"))"}));
        QVERIFY(log().calls().filter(qs("_property(7,")).isEmpty());
    }

    void numbers_are_read_leniently()
    {
        open_with("A");
        type_in("m_total_die_edit", "12 dies");
        edit("m_clock_cycle_edit").setText(QString());
        type_in("m_clock_cycle_edit_x4", " -7");

        QVERIFY(apply());

        QCOMPARE(calls_of({"check_int_property", "set_int_property"}),
                 list_of({"mgr.check_int_property(4, 12)", "mgr.check_int_property(5, 0)",
                          "mgr.check_int_property(6, -7)", "new:A.set_int_property(4, 12)",
                          "new:A.set_int_property(5, 0)", "new:A.set_int_property(6, -7)"}));
    }

    void without_flow_editing_no_flow_is_checked_or_written()
    {
        mgr().unused_properties = {GFPDB_FLASH_FLOW_TEMPLATE};
        open_with("A");
        mgr().flow_edit_allowed = false;

        QVERIFY(apply());

        QCOMPARE(calls_of({"check_property_value", "clear_operations", "get_flow_variant", "create_operation",
                           "add_action", "set_operation"}),
                 QStringList());
        QCOMPARE(count_of("save_flash"), 1);
    }

    void the_typed_directory_is_the_one_saved_into_data()
    {
        rows<QString, QString>({{"empty", "", "/db/gr\xC3\xBCn/"},
                                {"plain", "/typed", "/typed/"},
                                {"with separator", "/typed/", "/typed/"},
                                {"back slashes", "\\typed\\\\sub", "/typed/sub/"},
                                {"letters", "/gr\xC3\xBCn", "/gr\xC3\xBCn/"},
                                // The edit shows the library's own directory byte by byte.
                                {"untouched", QString::fromLatin1("/db/gr\xC3\xBCn/"), "/db/gr\xC3\xBCn/"}});
    }

    void the_typed_directory_is_the_one_saved_into()
    {
        const auto [typed, used] = row<QString, QString>();
        world().custom_dir = "/db/gr\xC3\xBCn/";
        open_with("A");
        if (typed != text("m_directory_edit"))
            type_in("m_directory_edit", typed);

        QVERIFY(apply());

        QCOMPARE(calls_of({"set_db_dir", "delete_flash", "save_flash", "save_custom_dir_to_ini"}),
                 QStringList({qs("new:A.set_db_dir(\"%1\")").arg(used), qs("mgr.delete_flash(\"A\", \"%1\")").arg(used),
                              qs("mgr.save_flash(new:A, \"%1\")").arg(used)}));
    }

    void a_device_that_is_not_the_users_is_left_alone()
    {
        mgr().add_builtin("B");
        open_with("B");

        QVERIFY(apply());

        QCOMPARE(calls(), list_of({R"(mgr.is_hidden_flash("B", false))", "flash:B.is_user_defined()"}));
        mgr().hidden_properties = {"B"};
        log().clear();
        QVERIFY(apply());
        QCOMPARE(calls(), list_of({R"(mgr.is_hidden_flash("B", false))"}));
    }

    void a_record_that_cannot_be_made_is_not_a_failure()
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

    void the_saved_device_is_selected_and_loaded_once()
    {
        mgr().add_custom("Z");
        open();
        fill_form("M");
        tabs().setCurrentIndex(4);
        log().clear();
        int page_of_refresh = -1;
        log().on_call(qs("can_add_flash"), [&](const QString&) { page_of_refresh = tabs().currentIndex(); });

        QVERIFY(apply());

        QCOMPARE(all_rows(), list_of({"<<new device>>", "A", "Z", "M"}));
        QCOMPARE(current_row(), qs("M"));
        QCOMPARE(text("m_device_name_edit"), qs("M"));
        QVERIFY(button("m_delete_button").isEnabled());
        QVERIFY(!combo("m_flow_template_cbox").isEnabled());
        // The list comes first, then the device page is shown.
        QCOMPARE(page_of_refresh, 4);
        QCOMPARE(tabs().currentIndex(), 0);
        // Selecting works again.
        pick("Z");
        QCOMPARE(calls_of({"find_flash"}), list_of({R"(mgr.find_flash("M", true))", R"(mgr.find_flash("Z", true))"}));
    }

    void a_filter_that_hides_the_saved_device_is_emptied()
    {
        open();
        fill_form("X");
        type_in("m_filter_line_edit", "new");
        check("m_save_template_check").setChecked(true);
        type_in("m_template_name_edit", "T");
        log().clear();

        QVERIFY(apply());

        QCOMPARE(text("m_filter_line_edit"), QString());
        QCOMPARE(current_row(), qs("X"));
        QCOMPARE(text("m_device_name_edit"), qs("X"));
        // The form is that of a stored device.
        for (const char* name : {"m_device_name_edit", "m_voltage_cbox", "m_density_cbox", "m_save_template_check",
                                 "m_delete_button", "m_apply_button"})
            QVERIFY2(widget(name).isEnabled(), name);
        for (const char* name : {"m_flow_template_cbox", "m_edit_template_button", "m_template_name_edit"})
            QVERIFY2(!widget(name).isEnabled(), name);
        QVERIFY(!check("m_save_template_check").isChecked());
        QCOMPARE(text("m_template_name_edit"), QString());
        QCOMPARE(page_flows(), flows_named("first"));
    }

    void without_a_selected_row_the_form_is_stored()
    {
        mgr().add_allowed = false;
        mgr().custom_names.clear();
        open();
        fill_form("X");

        QVERIFY(apply());

        QCOMPARE(calls_of({"is_hidden_flash", "delete_flash", "save_flash"}).mid(0, 3),
                 list_of({R"(mgr.is_hidden_flash("", false))", R"(mgr.delete_flash("", "/db/custom/"))",
                          R"(mgr.save_flash(new:X, "/db/custom/"))"}));
        // No record was shown before, so there is no other variant to take over.
        QVERIFY(mgr().last_created->operations.count(true) == 0);
    }

    void a_library_that_forgets_the_record_is_survived()
    {
        open_with("A");
        log().on_call(qs("save_flash"), [this](const QString&) {
            mgr().follows_saves = false;
            mgr().flashes.clear();
            mgr().custom_names = {"A"};
        });

        QVERIFY(apply());

        QCOMPARE(current_row(), qs("A"));
        QCOMPARE(page_flows(), QStringList());
        QVERIFY(!button("m_delete_button").isEnabled());
    }

private:
    void fill_world() override
    {
        mgr().add_custom("A").operations[false] = make_operations("own");
        mgr().flashes["A"]->operations[true] = make_operations("own quad");
        set_texts(*mgr().flashes["A"], "0x01", "2.5 V", "128 Mb", "Built-in D");
        set_numbers(*mgr().flashes["A"], 1, 2, 3);
        mgr().builtin_template_operations[{0, false}] = make_operations("first");
        mgr().builtin_template_operations[{1, false}] = make_operations("single");
        mgr().builtin_template_operations[{1, true}] = make_operations("quad");
    }

    void fill_form(const char* name)
    {
        type_in("m_device_name_edit", name);
        type_in("m_device_id_edit", "0xC2 0x20");
        choose_text("m_voltage_cbox", "3.3 V");
        choose_text("m_density_cbox", "1 Gb");
        type_in("m_total_die_edit", "4");
        type_in("m_clock_cycle_edit", "8");
        type_in("m_clock_cycle_edit_x4", "10");
        log().clear();
    }

    // The calls but those of single actions.
    QStringList calls_of_apply() const
    {
        return calls().filter(QRegularExpression(qs("^(?!.*(check_property_value|create_action))")));
    }

    // The calls that write the form of fill_form() and the shown flows into a new record.
    static QStringList writing(const char* name, const char* flow_template, const char* flows)
    {
        QStringList lines{qs("mgr.create_flash(\"%1\")").arg(qs(name))};
        for (const char* call :
             {"set_user_defined(true)", R"(set_string_property(1, "0xC2 0x20"))", R"(set_string_property(2, "3.3 V"))",
              R"(set_density("1 Gb"))", "set_int_property(4, 4)", "set_int_property(5, 8)", "set_int_property(6, 10)",
              R"(set_string_property(8, "%1"))", R"(set_db_dir("/db/custom/"))"})
            lines << qs("new:") + qs(name) + QLatin1Char('.') + qs(call).replace(qs("%1"), qs(flow_template));
        lines << qs("mgr.can_edit_flow()") << qs("new:%1.clear_operations()").arg(qs(name))
              << qs("mgr.get_flow_variant()");
        return lines + storing(name, flows, false);
    }

    // The calls that store five operations, each with one action of `prefix`.
    static QStringList storing(const char* name, const char* prefix, bool variant)
    {
        QStringList lines;
        for (int kind = 0; kind < 5; ++kind) {
            lines << qs("mgr.create_operation(%1)").arg(kind)
                  << qs("op%1.add_action(0:%2 %1)").arg(kind).arg(qs(prefix))
                  << qs("new:%1.set_operation(op%2, %3)").arg(qs(name)).arg(kind).arg(logged(variant));
        }
        return lines;
    }
};

GFPQ_TEST_MAIN(TEST_APPLY)

#include "test_apply.moc"
