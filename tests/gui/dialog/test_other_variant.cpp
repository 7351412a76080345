// SPDX-License-Identifier: MIT

// The flow variant that is not shown: where Apply takes it from, and that what is stored is a copy of its own.
#include "dialog_test.h"

class TEST_OTHER_VARIANT : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void the_other_variant_has_its_three_sources_data();
    void the_other_variant_has_its_three_sources();
    void a_stored_template_comes_from_two_places();
    void a_stored_template_that_is_gone_gives_nothing();
    void without_a_list_nothing_is_copied_data();
    void without_a_list_nothing_is_copied();
    void a_negative_template_index_gives_no_list();
    void an_existing_device_ignores_the_template();
    void the_new_device_row_is_known_in_any_case();
    void the_copy_is_deep();
    void every_property_is_copied_in_list_order();
    void null_operations_and_lists_are_skipped();
    void an_action_that_cannot_be_made_is_left_out();
    void kinds_are_kept_as_they_are();
    void no_flow_editing_still_copies_the_other_variant();
    void the_boundary_between_builtin_and_stored_templates_data();
    void the_boundary_between_builtin_and_stored_templates();

private:
    bool apply();
    QStringList stored(int kind, bool variant) const { return mgr().last_created->flow(kind, variant); }
};

bool TEST_OTHER_VARIANT::apply()
{
    bool applied = false;
    QMetaObject::invokeMethod(&dlg(), "on_apply_clicked", Qt::DirectConnection, Q_RETURN_ARG(bool, applied));
    return applied;
}

void TEST_OTHER_VARIANT::the_other_variant_has_its_three_sources_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("shown");

    for (const char* source : {"record", "built-in template", "stored template"}) {
        QTest::addRow("%s, single shown", source) << qs(source) << false;
        QTest::addRow("%s, quad shown", source) << qs(source) << true;
    }
}

void TEST_OTHER_VARIANT::the_other_variant_has_its_three_sources()
{
    QFETCH(const QString, source);
    QFETCH(const bool, shown);
    mgr().flow_variant = shown;
    mgr().templates.push_back("stored");
    FLASH_DOUBLE& record = mgr().add_custom("A");
    FLASH_DOUBLE& template_record = mgr().add_record("stored");
    for (const bool variant : {false, true}) {
        const std::string suffix = variant ? " quad" : " single";
        record.operations[variant] = make_operations("record" + suffix);
        template_record.operations[variant] = make_operations("stored template" + suffix);
        mgr().builtin_template_operations[{3, variant}] = make_operations("built-in template" + suffix);
        mgr().template_operations[{"stored", variant}] = make_operations("stored template" + suffix);
    }
    if (source == QLatin1String("record")) {
        open_with("A");
    } else {
        open();
        choose_text("m_flow_template_cbox",
                    source == QLatin1String("built-in template") ? qs("Built-in D") : qs("stored"));
    }
    edit("m_device_name_edit").setText(QStringLiteral("X"));

    QVERIFY(apply());

    for (int kind = 0; kind < 5; ++kind) {
        QCOMPARE(stored(kind, false), QStringList(QStringLiteral("0:%1 single %2").arg(source).arg(kind)));
        QCOMPARE(stored(kind, true), QStringList(QStringLiteral("0:%1 quad %2").arg(source).arg(kind)));
    }
}

void TEST_OTHER_VARIANT::a_stored_template_comes_from_two_places()
{
    mgr().templates.push_back("stored");
    mgr().template_operations[{"stored", false}] = make_operations("by name");
    mgr().add_record("stored").operations[true] = make_operations("by record");
    open();

    choose_text("m_flow_template_cbox", QStringLiteral("stored"));
    QCOMPARE(log().calls_of({qs("get_template_operations"), qs("find_flash")}),
             list_of({R"(mgr.get_template_operations("stored", false))"}));
    log().clear();
    QVERIFY(apply());

    QCOMPARE(log()
                 .calls_of({qs("get_template_operations"), qs("get_builtin_template_operations"), qs("find_flash"),
                            qs("get_operations")})
                 .mid(0, 2),
             list_of({R"(mgr.find_flash("stored", true))", "flash:stored.get_operations(true)"}));
    QCOMPARE(stored(1, false), list_of({"0:by name 1"}));
    QCOMPARE(stored(1, true), list_of({"0:by record 1"}));
}

void TEST_OTHER_VARIANT::a_stored_template_that_is_gone_gives_nothing()
{
    mgr().templates.push_back("stored");
    mgr().template_operations[{"stored", false}] = make_operations("by name");
    open();
    choose_text("m_flow_template_cbox", QStringLiteral("stored"));

    QVERIFY(apply());

    QCOMPARE(stored(1, false), list_of({"0:by name 1"}));
    QVERIFY(mgr().last_created->operations.count(true) == 0);
}

void TEST_OTHER_VARIANT::without_a_list_nothing_is_copied_data()
{
    QTest::addColumn<QString>("device");

    QTest::newRow("record") << qs("A");
    QTest::newRow("template") << QString();
}

void TEST_OTHER_VARIANT::without_a_list_nothing_is_copied()
{
    QFETCH(const QString, device);
    mgr().add_custom("A");
    open_with(device.toStdString());

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("set_operation")}).filter(QStringLiteral("true")), QStringList());
    QCOMPARE(log().count(qs("create_operation")), 5);
    QCOMPARE(log().count(qs("save_flash")), 1);
}

void TEST_OTHER_VARIANT::a_negative_template_index_gives_no_list()
{
    mgr().templates.clear();

    open_recorded();
    QCOMPARE(combo("m_flow_template_cbox").currentIndex(), -1);
    QVERIFY(apply());

    QCOMPARE(log()
                 .calls_of({qs("get_builtin_template_operations"), qs("get_template_operations"), qs("find_flash"),
                            qs("is_flow_editable")})
                 .filter(QStringLiteral("template")),
             QStringList());
    QVERIFY(mgr().last_created->operations.count(true) == 0);
    QCOMPARE(log().count(qs("save_flash")), 1);
}

void TEST_OTHER_VARIANT::an_existing_device_ignores_the_template()
{
    mgr().builtin_template_operations[{0, true}] = make_operations("template");
    FLASH_DOUBLE& record = mgr().add_custom("A");
    record.strings[8] = "Built-in A";
    record.operations[true] = make_operations("own");
    open_with("A");
    edit("m_device_name_edit").setText(QStringLiteral("X"));

    QVERIFY(apply());

    QCOMPARE(stored(0, true), list_of({"0:own 0"}));
    QCOMPARE(log().count(qs("get_builtin_template_operations")), 0);
}

void TEST_OTHER_VARIANT::the_new_device_row_is_known_in_any_case()
{
    mgr().add_allowed = false;
    mgr().add_custom("<<NEW device>>");
    mgr().builtin_template_operations[{0, false}] = make_operations("shown");
    mgr().builtin_template_operations[{0, true}] = make_operations("other");
    open();
    QCOMPARE(page_flow(0), list_of({"0:shown 0"}));
    edit("m_device_name_edit").setText(QStringLiteral("X"));

    QVERIFY(apply());

    QCOMPARE(stored(0, false), list_of({"0:shown 0"}));
    QCOMPARE(stored(0, true), list_of({"0:other 0"}));
}

void TEST_OTHER_VARIANT::the_copy_is_deep()
{
    FLASH_DOUBLE& record = mgr().add_custom("A");
    record.operations[true] = make_operations("own");
    open_with("A");
    mgr().follows_saves = false;

    QVERIFY(apply());

    for (std::size_t index = 0; index < 5; ++index) {
        GFPDB_OPERATION* const source = record.operations[true].at(index);
        GFPDB_OPERATION* const copy = mgr().last_created->operations[true].at(index);
        QVERIFY(source != copy);
        QVERIFY(dynamic_cast<OPERATION_DOUBLE&>(*source).actions.at(0) !=
                dynamic_cast<OPERATION_DOUBLE&>(*copy).actions.at(0));
    }
}

void TEST_OTHER_VARIANT::every_property_is_copied_in_list_order()
{
    ACTION_DOUBLE* const action = make_action(3, {{21, "read"}, {24, "256"}, {30, "1-1-4"}});
    action->properties = {GFPDB_RD_BUS_WIDTH, GFPDB_RD_NAME, GFPDB_RD_DATA_LENGTH};
    mgr().add_custom("A").operations[true] = {new OPERATION_DOUBLE(3, {action})};
    open_with("A");

    QVERIFY(apply());

    const QStringList copying =
        log().calls_of({qs("create_action"), qs("get_property_value"), qs("set_property_value")});
    const int start = copying.indexOf(QStringLiteral("mgr.create_action(3)"));
    QVERIFY(start >= 0);
    QCOMPARE(
        copying.mid(start + 1, 6),
        list_of({"action(3:1-1-4).get_property_value(30)", R"(action(3:default 21).set_property_value(30, "1-1-4"))",
                 "action(3:1-1-4).get_property_value(21)", R"(action(3:default 21).set_property_value(21, "read"))",
                 "action(3:1-1-4).get_property_value(24)", R"(action(3:read).set_property_value(24, "256"))"}));
}

void TEST_OTHER_VARIANT::null_operations_and_lists_are_skipped()
{
    auto* const without_list = new OPERATION_DOUBLE(1);
    without_list->without_list = true;
    mgr().add_custom("A").operations[true] = {nullptr, without_list,
                                              new OPERATION_DOUBLE(2, {make_named_action(0, "kept")})};
    open_with("A");

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("set_operation")}).filter(QStringLiteral("true")),
             list_of({"new:A.set_operation(op1, true)", "new:A.set_operation(op2, true)"}));
    QCOMPARE(stored(1, true), QStringList());
    QCOMPARE(stored(2, true), list_of({"0:kept"}));
}

void TEST_OTHER_VARIANT::an_action_that_cannot_be_made_is_left_out()
{
    mgr().add_custom("A").operations[true] = {new OPERATION_DOUBLE(
        2, {make_named_action(0, "first"), make_named_action(4, "refused"), make_named_action(1, "last")})};
    open_with("A");
    mgr().refused_actions = {4};

    QVERIFY(apply());

    QCOMPARE(stored(2, true), list_of({"0:first", "1:last"}));
    QVERIFY(log().calls_of({qs("add_action")}).filter(QStringLiteral("null")).isEmpty());
}

void TEST_OTHER_VARIANT::kinds_are_kept_as_they_are()
{
    mgr().add_custom("A").operations[true] = {new OPERATION_DOUBLE(4, {make_named_action(0, "last")}),
                                              new OPERATION_DOUBLE(7, {make_named_action(0, "odd")}),
                                              new OPERATION_DOUBLE(0, {make_named_action(0, "first")})};
    open_with("A");

    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("set_operation")}).filter(QStringLiteral("true")),
             list_of({"new:A.set_operation(op4, true)", "new:A.set_operation(op7, true)",
                      "new:A.set_operation(op0, true)"}));
    QCOMPARE(stored(7, true), list_of({"0:odd"}));
}

void TEST_OTHER_VARIANT::no_flow_editing_still_copies_the_other_variant()
{
    FLASH_DOUBLE& record = mgr().add_custom("A");
    record.operations[true] = make_operations("own");
    record.operations[false] = make_operations("shown");
    open_with("A");
    mgr().flow_edit_allowed = false;

    QVERIFY(apply());

    QCOMPARE(stored(2, true), list_of({"0:own 2"}));
    QVERIFY(mgr().last_created->operations.count(false) == 0);
}

void TEST_OTHER_VARIANT::the_boundary_between_builtin_and_stored_templates_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("shown_call");
    QTest::addColumn<QString>("stored_call");

    QTest::newRow("first") << 0 << qs("mgr.get_builtin_template_operations(0, false)")
                           << qs("mgr.get_builtin_template_operations(0, true)");
    QTest::newRow("last built-in") << 4 << qs("mgr.get_builtin_template_operations(4, false)")
                                   << qs("mgr.get_builtin_template_operations(4, true)");
    QTest::newRow("first stored") << 5
                                  << qs(R"(mgr.get_template_operations("gr)"
                                        "\xC3\xBC"
                                        R"(n", false))")
                                  << qs(R"(mgr.find_flash("gr)"
                                        "\xC3\xBC"
                                        R"(n", true))");
    QTest::newRow("second stored") << 6 << qs(R"(mgr.get_template_operations("six", false))")
                                   << qs(R"(mgr.find_flash("six", true))");
}

void TEST_OTHER_VARIANT::the_boundary_between_builtin_and_stored_templates()
{
    QFETCH(const int, index);
    QFETCH(const QString, shown_call);
    QFETCH(const QString, stored_call);
    mgr().templates.push_back("gr\xC3\xBCn");
    mgr().templates.push_back("six");
    open();
    // To the index from another one.
    combo("m_flow_template_cbox").setCurrentIndex(index == 1 ? 2 : 1);
    log().clear();
    const QStringList sources{qs("get_builtin_template_operations"), qs("get_template_operations"), qs("find_flash")};

    combo("m_flow_template_cbox").setCurrentIndex(index);
    QCOMPARE(log().calls_of(sources), QStringList(shown_call));
    log().clear();
    QVERIFY(apply());
    QCOMPARE(log().calls_of(sources).value(0), stored_call);
}

GFPQ_TEST_MAIN(TEST_OTHER_VARIANT)

#include "test_other_variant.moc"
