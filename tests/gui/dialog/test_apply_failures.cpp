// SPDX-License-Identifier: MIT

// Apply that does not get through: the message, and that nothing of the user's work is lost.
#include "dialog_test.h"

class TEST_APPLY_FAILURES : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_failed_step_raises_the_message_data();
    void a_failed_step_raises_the_message();
    void the_form_keeps_the_users_values();
    void the_flows_are_back_before_the_message_is_shown();
    void the_flows_are_copies_of_what_was_handed_over();
    void a_second_apply_stores_the_same_flows();
    void a_second_apply_of_a_new_device_takes_the_template_again();
    void a_template_chosen_after_a_failed_apply_is_shown();
    void a_second_apply_of_a_stored_device_keeps_its_other_variant();
    void the_new_record_stays_current();
    void a_new_device_that_failed_cannot_be_deleted();
    void without_flow_editing_the_pages_are_left_alone();
    void the_property_table_is_emptied();
    void the_flow_flag_is_asked_for_the_new_record();
    void an_operation_that_cannot_be_made_is_an_internal_error_data();
    void an_operation_that_cannot_be_made_is_an_internal_error();
    void an_open_editor_is_committed_data();
    void an_open_editor_is_committed();
    void an_open_editor_is_left_alone_where_nothing_is_saved();

private:
    void fill_world() override;
    bool apply();
    void open_editor(int operation, const QString& text);
};

void TEST_APPLY_FAILURES::fill_world()
{
    mgr().add_custom("A").operations[false] = make_operations("own");
    mgr().flashes["A"]->operations[true] = make_operations("own quad");
    mgr().flashes["A"]->strings[8] = "Built-in A";
    mgr().builtin_template_operations[{0, false}] = make_operations("single");
    mgr().builtin_template_operations[{0, true}] = make_operations("quad");
}

bool TEST_APPLY_FAILURES::apply()
{
    bool applied = false;
    QMetaObject::invokeMethod(&dlg(), "on_apply_clicked", Qt::DirectConnection, Q_RETURN_ARG(bool, applied));
    return applied;
}

// Opens the in-place editor of the first value of an operation page's first action and types `text`.
void TEST_APPLY_FAILURES::open_editor(int operation, const QString& text)
{
    tabs().setCurrentIndex(operation + 1);
    show_dialog();
    page(operation).update_property_table(page(operation).get_flow().at(0));
    auto* const properties = page(operation).findChild<QTableView*>(QStringLiteral("m_property_table"));
    properties->setCurrentIndex(properties->model()->index(0, 1));
    properties->edit(properties->currentIndex());
    auto* const editor = properties->findChild<QLineEdit*>();
    QVERIFY(editor != nullptr);
    editor->setText(text);
    log().clear();
}

void TEST_APPLY_FAILURES::a_failed_step_raises_the_message_data()
{
    QTest::addColumn<bool>("delete_succeeds");

    QTest::newRow("delete") << false;
    QTest::newRow("save") << true;
}

void TEST_APPLY_FAILURES::a_failed_step_raises_the_message()
{
    QFETCH(const bool, delete_succeeds);
    mgr().delete_succeeds = delete_succeeds;
    mgr().save_succeeds = false;
    mgr().follows_saves = false;
    open_with("A");
    tabs().setCurrentIndex(2);

    QVERIFY(!apply());

    QCOMPARE(log().calls_of({qs("delete_flash"), qs("save_flash"), qs("created"), qs("fill_args"), qs("set_id"),
                             qs("prompt"), qs("destroyed"), qs("can_add_flash")}),
             list_of({R"(mgr.delete_flash("A", "/db/custom/"))"}) +
                 (delete_succeeds ? list_of({R"(mgr.save_flash(new:A, "/db/custom/"))"}) : QStringList()) +
                 list_of({"MSG_O.created(null)",
                          R"(MSG_O.fill_args("Failed to save flash into database./OGFPQ_UPDATE_DB_FAILED"))",
                          "MSG_O.set_id(20439)", "MSG_O.prompt(null)", "MSG_O.destroyed()"}));
    QCOMPARE(tabs().currentIndex(), 2);
    QVERIFY(m_modals.met().isEmpty());
}

void TEST_APPLY_FAILURES::the_form_keeps_the_users_values()
{
    mgr().save_succeeds = false;
    mgr().follows_saves = false;
    open_with("A");
    edit("m_device_name_edit").setText(QStringLiteral("renamed"));
    edit("m_device_id_edit").setText(QStringLiteral("0x99"));
    choose_text("m_density_cbox", QStringLiteral("1 Gb"));
    check("m_save_template_check").setChecked(true);
    edit("m_template_name_edit").setText(QStringLiteral("T"));

    QVERIFY(!apply());

    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("renamed"));
    QCOMPARE(edit("m_device_id_edit").text(), QStringLiteral("0x99"));
    QCOMPARE(combo("m_density_cbox").currentText(), QStringLiteral("1 Gb"));
    QVERIFY(check("m_save_template_check").isChecked());
    QCOMPARE(edit("m_template_name_edit").text(), QStringLiteral("T"));
    QCOMPARE(all_rows(), list_of({"<<new device>>", "A"}));
    QCOMPARE(current_row(), QStringLiteral("A"));
    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList(QStringLiteral("0:own %1").arg(operation)));
}

void TEST_APPLY_FAILURES::the_flows_are_back_before_the_message_is_shown()
{
    mgr().save_succeeds = false;
    open_with("A");
    QStringList shown;
    log().on_call(qs("created"), [&](const QString&) {
        for (int operation = 0; operation < 5; ++operation)
            shown += page_flow(operation);
    });

    QVERIFY(!apply());

    QCOMPARE(shown, list_of({"0:own 0", "0:own 1", "0:own 2", "0:own 3", "0:own 4"}));
}

void TEST_APPLY_FAILURES::the_flows_are_copies_of_what_was_handed_over()
{
    mgr().save_succeeds = false;
    open_with("A");
    const GFPDB_ACTION* const shown_before = page(3).get_flow().at(0);

    QVERIFY(!apply());

    const auto& stored = dynamic_cast<OPERATION_DOUBLE&>(*mgr().last_created->operations[false].at(3));
    QCOMPARE(stored.actions.at(0), shown_before);
    QVERIFY(page(3).get_flow().at(0) != shown_before);
}

void TEST_APPLY_FAILURES::a_second_apply_stores_the_same_flows()
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
        for (int kind = 0; kind < 5; ++kind)
            QCOMPARE(mgr().last_created->flow(kind, variant), first->flow(kind, variant));
    }
}

void TEST_APPLY_FAILURES::a_second_apply_of_a_new_device_takes_the_template_again()
{
    mgr().save_succeeds = false;
    open();
    edit("m_device_name_edit").setText(QStringLiteral("X"));
    QVERIFY(!apply());
    mgr().save_succeeds = true;
    log().clear();

    QVERIFY(apply());

    QCOMPARE(
        log().calls_of({qs("delete_flash"), qs("save_flash")}),
        list_of({R"(mgr.delete_flash("<<new device>>", "/db/custom/"))", R"(mgr.save_flash(new:X, "/db/custom/"))"}));
    QCOMPARE(mgr().last_created->flow(2, false), list_of({"0:single 2"}));
    QCOMPARE(mgr().last_created->flow(2, true), list_of({"0:quad 2"}));
}

void TEST_APPLY_FAILURES::a_template_chosen_after_a_failed_apply_is_shown()
{
    mgr().save_succeeds = false;
    mgr().builtin_template_operations[{1, false}] = make_operations("second");
    open();
    edit("m_device_name_edit").setText(QStringLiteral("X"));
    QVERIFY(!apply());
    log().clear();

    choose_text("m_flow_template_cbox", QStringLiteral("Built-in B"));

    // The row is still the new device's, while the record that could not be saved is the current one.
    QCOMPARE(log().calls_of({qs("get_builtin_template_operations"), qs("get_operations"), qs("is_flow_editable")}),
             list_of({"mgr.get_builtin_template_operations(1, false)", "mgr.is_flow_editable(new:X)"}));
    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList(QStringLiteral("0:second %1").arg(operation)));
}

void TEST_APPLY_FAILURES::a_second_apply_of_a_stored_device_keeps_its_other_variant()
{
    mgr().save_succeeds = false;
    open_with("A");
    QVERIFY(!apply());
    mgr().save_succeeds = true;

    QVERIFY(apply());

    QCOMPARE(mgr().last_created->flow(4, true), list_of({"0:own quad 4"}));
}

void TEST_APPLY_FAILURES::the_new_record_stays_current()
{
    mgr().save_succeeds = false;
    mgr().follows_saves = false;
    open_with("A");
    edit("m_device_name_edit").setText(QStringLiteral("renamed"));
    QVERIFY(!apply());
    log().clear();

    button("m_delete_button").click();

    QCOMPARE(log().calls_of({qs("delete_flash")}), list_of({R"(mgr.delete_flash("renamed", "/db/custom/"))"}));
}

void TEST_APPLY_FAILURES::a_new_device_that_failed_cannot_be_deleted()
{
    mgr().save_succeeds = false;
    open();
    QVERIFY(!apply());
    log().clear();

    run("on_delete_clicked");

    QCOMPARE(calls(), QStringList());
}

void TEST_APPLY_FAILURES::without_flow_editing_the_pages_are_left_alone()
{
    mgr().save_succeeds = false;
    open_with("A");
    mgr().flow_edit_allowed = false;
    const GFPDB_ACTION* const shown = page(0).get_flow().at(0);

    QVERIFY(!apply());

    QCOMPARE(page(0).get_flow().at(0), shown);
}

void TEST_APPLY_FAILURES::the_property_table_is_emptied()
{
    mgr().follows_saves = false;
    for (const bool succeeds : {false, true}) {
        mgr().save_succeeds = succeeds;
        open_with("A");
        tabs().setCurrentIndex(1);
        page(0).update_property_table(page(0).get_flow().at(0));
        const auto* const properties = page(0).findChild<QTableView*>(QStringLiteral("m_property_table"));
        QCOMPARE(properties->model()->rowCount(), 5);

        QCOMPARE(apply(), succeeds);

        QCOMPARE(properties->model()->rowCount(), 0);
        // What is typed now must not reach the stored record.
        page(0).store_property_value(GFPDB_WR_NAME, QStringLiteral("late"));
        QCOMPARE(mgr().last_created->flow(0, false), list_of({"0:own 0"}));
    }
}

void TEST_APPLY_FAILURES::the_flow_flag_is_asked_for_the_new_record()
{
    mgr().save_succeeds = false;
    mgr().flow_editable = false;
    open_with("A");

    QVERIFY(!apply());

    QCOMPARE(log().calls_of({qs("is_flow_editable")}), list_of({"mgr.is_flow_editable(new:A)"}));
    QVERIFY(!page_is_editable(0));
}

void TEST_APPLY_FAILURES::an_operation_that_cannot_be_made_is_an_internal_error_data()
{
    QTest::addColumn<bool>("in_copy");

    QTest::newRow("shown variant") << false;
    QTest::newRow("other variant") << true;
}

void TEST_APPLY_FAILURES::an_operation_that_cannot_be_made_is_an_internal_error()
{
    unwind_through_qt();
    QFETCH(const bool, in_copy);
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
    QCOMPARE(log().count(qs("delete_flash")), 0);
    if (!in_copy) {
        for (int operation = 0; operation < 5; ++operation)
            page(operation).release_flow(false);
    }
}

void TEST_APPLY_FAILURES::an_open_editor_is_committed_data()
{
    QTest::addColumn<QString>("button_name");
    QTest::addColumn<int>("operation");

    QTest::newRow("apply") << qs("m_apply_button") << 0;
    QTest::newRow("ok") << qs("m_ok_button") << 4;
}

void TEST_APPLY_FAILURES::an_open_editor_is_committed()
{
    QFETCH(const QString, button_name);
    QFETCH(const int, operation);
    open_with("A");
    open_editor(operation, QStringLiteral("typed"));

    // Not by the mouse: that would take the focus, and with it the editor's text, away first.
    button(button_name.toLatin1().constData()).click();

    QCOMPARE(mgr().last_created->flow(operation, false), list_of({"0:typed"}));
    // What was typed is checked, too.
    QVERIFY(log().calls().contains(qs(R"(action(0:typed).check_property_value(0, "typed"))")));
}

void TEST_APPLY_FAILURES::an_open_editor_is_left_alone_where_nothing_is_saved()
{
    open_with("A");
    open_editor(0, QStringLiteral("typed"));
    mgr().hidden_properties = {"A"};

    QVERIFY(apply());

    QCOMPARE(page_flow(0), list_of({"0:own 0"}));
}

GFPQ_TEST_MAIN(TEST_APPLY_FAILURES)

#include "test_apply_failures.moc"
