// SPDX-License-Identifier: MIT

// Apply that does not get through: the message, and that nothing of the user's work is lost.
#include "dialog_test.h"

class TEST_APPLY_FAILURES : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_failed_step_raises_the_message_data() { rows<bool>({{"delete", false}, {"save", true}}); }

    void a_failed_step_raises_the_message()
    {
        const bool delete_succeeds = row<bool>();
        mgr().delete_succeeds = delete_succeeds;
        mgr().save_succeeds = false;
        mgr().follows_saves = false;
        open_with("A");
        tabs().setCurrentIndex(2);

        QVERIFY(!apply());

        QCOMPARE(calls_of({"delete_flash", "save_flash", "created", "fill_args", "set_id", "prompt", "destroyed",
                           "can_add_flash"}),
                 list_of({R"(mgr.delete_flash("A", "/db/custom/"))"}) +
                     (delete_succeeds ? list_of({R"(mgr.save_flash(new:A, "/db/custom/"))"}) : QStringList()) +
                     list_of({"MSG_O.created(null)",
                              R"(MSG_O.fill_args("Failed to save flash into database./OGFPQ_UPDATE_DB_FAILED"))",
                              "MSG_O.set_id(20439)", "MSG_O.prompt(null)", "MSG_O.destroyed()"}));
        QCOMPARE(tabs().currentIndex(), 2);
        QVERIFY(m_modals.met().isEmpty());
    }

    void the_form_keeps_the_users_values_data() { a_failed_step_raises_the_message_data(); }

    void the_form_keeps_the_users_values()
    {
        mgr().delete_succeeds = row<bool>();
        mgr().save_succeeds = false;
        mgr().follows_saves = false;
        open_with("A");
        type_in("m_device_name_edit", "renamed");
        type_in("m_device_id_edit", "0x99");
        choose_text("m_density_cbox", "1 Gb");
        check("m_save_template_check").setChecked(true);
        type_in("m_template_name_edit", "T");
        QStringList shown_with_the_message;
        log().on_call(qs("created"), [&](const QString&) { shown_with_the_message = page_flows(); });

        QVERIFY(!apply());

        const QStringList kept{text("m_device_name_edit"), text("m_device_id_edit"), text("m_density_cbox"),
                               text("m_template_name_edit"), current_row()};
        QCOMPARE(kept, list_of({"renamed", "0x99", "1 Gb", "T", "A"}));
        QVERIFY(check("m_save_template_check").isChecked());
        QCOMPARE(all_rows(), list_of({"<<new device>>", "A"}));
        QCOMPARE(shown_with_the_message, flows_named("own"));
        QCOMPARE(page_flows(), flows_named("own"));
    }

    void the_flows_are_copies_of_what_was_handed_over()
    {
        mgr().save_succeeds = false;
        open_with("A");
        const GFPDB_ACTION* const shown_before = page(3).get_flow().at(0);

        QVERIFY(!apply());

        const auto& stored = dynamic_cast<OPERATION_DOUBLE&>(*mgr().last_created->operations[false].at(3));
        QCOMPARE(stored.actions.at(0), shown_before);
        QVERIFY(page(3).get_flow().at(0) != shown_before);
    }

    void a_second_apply_stores_the_same_flows()
    {
        for (const bool variant : {false, true}) {
            mgr().flow_variant = variant;
            mgr().save_succeeds = false;
            mgr().follows_saves = false;
            open_with("A");
            page(1).get_flow().at(0)->set_property_value(GFPDB_WR_NAME, "edited");
            QVERIFY(!apply());
            const FLASH_DOUBLE* const first = mgr().last_created;
            mgr().save_succeeds = true;

            QVERIFY(apply());

            QVERIFY(mgr().last_created != first);
            QCOMPARE(mgr().last_created->flow(1, variant), list_of({"0:edited"}));
            for (const bool either : {false, true})
                QCOMPARE(mgr().last_created->flows(either), first->flows(either));
            QCOMPARE(mgr().last_created->flows(!variant).size(), 5);
        }
    }

    void a_second_apply_of_a_new_device_takes_the_template_again()
    {
        mgr().save_succeeds = false;
        open();
        type_in("m_device_name_edit", "X");
        QVERIFY(!apply());
        mgr().save_succeeds = true;
        log().clear();

        QVERIFY(apply());

        QCOMPARE(calls_of({"delete_flash", "save_flash"}),
                 list_of({R"(mgr.delete_flash("<<new device>>", "/db/custom/"))",
                          R"(mgr.save_flash(new:X, "/db/custom/"))"}));
        QCOMPARE(mgr().last_created->flow(2, false), list_of({"0:single 2"}));
        QCOMPARE(mgr().last_created->flow(2, true), list_of({"0:quad 2"}));
    }

    void a_template_chosen_after_a_failed_apply_is_shown()
    {
        mgr().save_succeeds = false;
        mgr().builtin_template_operations[{1, false}] = make_operations("second");
        open();
        type_in("m_device_name_edit", "X");
        QVERIFY(!apply());
        log().clear();

        choose_text("m_flow_template_cbox", "Built-in B");

        // The row is still the new device's, while the record that could not be saved is the current one.
        QCOMPARE(calls_of({"get_builtin_template_operations", "get_operations", "is_flow_editable"}),
                 list_of({"mgr.get_builtin_template_operations(1, false)", "mgr.is_flow_editable(new:X)"}));
        QCOMPARE(page_flows(), flows_named("second"));
    }

    void the_new_record_stays_current_data() { a_failed_step_raises_the_message_data(); }

    void the_new_record_stays_current()
    {
        mgr().delete_succeeds = row<bool>();
        mgr().save_succeeds = false;
        mgr().follows_saves = false;
        open_with("A");
        type_in("m_device_name_edit", "renamed");
        QVERIFY(!apply());
        log().clear();

        button("m_delete_button").click();

        QCOMPARE(calls_of({"delete_flash"}), list_of({R"(mgr.delete_flash("renamed", "/db/custom/"))"}));
        // Of a new device there is nothing to delete.
        pick("<<new device>>");
        QVERIFY(!apply());
        log().clear();
        run("on_delete_clicked");
        QCOMPARE(calls(), QStringList());
    }

    void without_flow_editing_the_pages_are_left_alone()
    {
        mgr().save_succeeds = false;
        open_with("A");
        mgr().flow_edit_allowed = false;
        const GFPDB_ACTION* const shown = page(0).get_flow().at(0);

        QVERIFY(!apply());

        QCOMPARE(page(0).get_flow().at(0), shown);
    }

    void the_property_table_is_emptied()
    {
        mgr().follows_saves = false;
        for (const bool succeeds : {false, true}) {
            mgr().save_succeeds = succeeds;
            open_with("A");
            tabs().setCurrentIndex(1);
            page(0).update_property_table(page(0).get_flow().at(0));
            const auto* const properties = page(0).findChild<QTableView*>(qs("m_property_table"));
            QCOMPARE(properties->model()->rowCount(), 5);

            QCOMPARE(apply(), succeeds);

            QCOMPARE(properties->model()->rowCount(), 0);
            // What is typed now must not reach the stored record.
            page(0).store_property_value(GFPDB_WR_NAME, qs("late"));
            QCOMPARE(mgr().last_created->flow(0, false), list_of({"0:own 0"}));
        }
    }

    void the_flow_flag_is_asked_for_the_new_record()
    {
        mgr().save_succeeds = false;
        mgr().flow_editable = false;
        open_with("A");

        QVERIFY(!apply());

        QCOMPARE(calls_of({"is_flow_editable"}), list_of({"mgr.is_flow_editable(new:A)"}));
        QVERIFY(!page_is_editable(0));
    }

    void an_operation_that_cannot_be_made_is_an_internal_error_data()
    {
        rows<bool>({{"shown variant", false}, {"other variant", true}});
    }

    void an_operation_that_cannot_be_made_is_an_internal_error()
    {
        unwind_through_qt();
        const bool in_copy = row<bool>();
        open_with("A");
        if (in_copy)
            mgr().flow_edit_allowed = false;
        mgr().refused_operations = {3};
        // What was handed over when the program ended is handed to nobody.
        allow_leaks();

        QVERIFY_EXCEPTION_THROWN(apply(), INTERNAL_ERROR_REPORTED);

        const INTERNAL_ERROR_REPORTED& error = reported_internal_errors().back();
        QCOMPARE(error.condition, std::string("op != nullptr"));
        QCOMPARE(error.category, std::string("GFPQ"));
        QCOMPARE(error.source, std::string("pgm/gfpq/gfpq_dlg"));
        QCOMPARE(count_of("delete_flash"), 0);
        if (!in_copy) {
            for (int operation = 0; operation < 5; ++operation)
                page(operation).release_flow(false);
        }
    }

    void an_open_editor_is_committed_data()
    {
        rows<QString, int>({{"apply", "m_apply_button", 0}, {"ok", "m_ok_button", 4}});
    }

    void an_open_editor_is_committed()
    {
        const auto [button_name, operation] = row<QString, int>();
        open_with("A");
        open_editor(operation, qs("typed"));

        // Not by the mouse: that would take the focus, and with it the editor's text, away first.
        button(button_name.toLatin1().constData()).click();

        QCOMPARE(mgr().last_created->flow(operation, false), list_of({"0:typed"}));
        // What was typed is checked, too.
        QVERIFY(log().calls().contains(qs(R"(action(0:typed).check_property_value(0, "typed"))")));
    }

    void an_open_editor_is_left_alone_where_nothing_is_saved()
    {
        open_with("A");
        open_editor(0, qs("typed"));
        mgr().hidden_properties = {"A"};

        QVERIFY(apply());

        QCOMPARE(page_flow(0), list_of({"0:own 0"}));
    }

private:
    void fill_world() override
    {
        mgr().add_custom("A").operations[false] = make_operations("own");
        mgr().flashes["A"]->operations[true] = make_operations("own quad");
        mgr().flashes["A"]->strings[GFPDB_FLASH_FLOW_TEMPLATE] = "Built-in A";
        mgr().builtin_template_operations[{0, false}] = make_operations("single");
        mgr().builtin_template_operations[{0, true}] = make_operations("quad");
    }

    // Opens the in-place editor of the first value of an operation page's first action and types `text`.
    void open_editor(int operation, const QString& text)
    {
        tabs().setCurrentIndex(operation + 1);
        show_dialog();
        page(operation).update_property_table(page(operation).get_flow().at(0));
        auto* const properties = page(operation).findChild<QTableView*>(qs("m_property_table"));
        properties->setCurrentIndex(properties->model()->index(0, 1));
        properties->edit(properties->currentIndex());
        auto* const editor = properties->findChild<QLineEdit*>();
        QVERIFY(editor != nullptr);
        editor->setText(text);
        log().clear();
    }
};

GFPQ_TEST_MAIN(TEST_APPLY_FAILURES)

#include "test_apply_failures.moc"
