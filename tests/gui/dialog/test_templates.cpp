// SPDX-License-Identifier: MIT

// Flow templates in the dialog: what the combo shows and does, and what opening the template editor does to it.
#include "dialog_test.h"

#include "dialog/gfpq_edit_template_dlg.h"

#include <QHeaderView>

class TEST_TEMPLATES : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_new_device_shows_the_first_template();
    void choosing_a_template_shows_its_flows_data();
    void choosing_a_template_shows_its_flows();
    void a_template_without_flows_empties_the_pages();
    void a_template_of_a_device_whose_record_is_gone_shows_nothing();
    void a_templates_flows_are_copies();
    void kinds_of_a_template_that_are_no_page_are_skipped();
    void the_editor_is_opened_with_the_dialogs_manager();
    void the_editor_is_made_anew_each_time();
    void closing_the_editor_unchanged_leaves_the_combo();
    void a_removed_template_leaves_the_combo_data();
    void a_removed_template_leaves_the_combo();
    void the_refilled_combo_keeps_its_text();
    void the_refilled_combo_tells_texts_apart_by_case();
    void the_refilled_combo_falls_back_to_the_first_item();
    void refilling_runs_no_check();
    void the_combo_works_again_after_the_editor();
    void the_edit_button_follows_the_new_device_row();
    void a_failed_removal_leaves_the_combo();

private:
    void fill_world() override;
    // Opens the editor and does `act` with it; it is closed afterwards.
    void edit_templates(const std::function<void(QWidget& editor)>& act);
    static void remove(QWidget& editor, int row);
};

void TEST_TEMPLATES::fill_world()
{
    mgr().templates.push_back("mine");
    mgr().templates.push_back("yours");
    mgr().user_templates = {"mine", "yours"};
    for (const bool variant : {false, true}) {
        const std::string suffix = variant ? " quad" : " single";
        for (int index = 0; index < 5; ++index) {
            mgr().builtin_template_operations[{index, variant}] = make_operations("T" + std::to_string(index) + suffix);
        }
        mgr().template_operations[{"mine", variant}] = make_operations("mine" + suffix);
    }
}

void TEST_TEMPLATES::edit_templates(const std::function<void(QWidget& editor)>& act)
{
    m_modals.expect([act](QWidget* window) {
        act(*window);
        window->close();
    });
    button("m_edit_template_button").click();
}

void TEST_TEMPLATES::remove(QWidget& editor, int row)
{
    editor.findChild<QTableView*>(QStringLiteral("m_template_table_view"))->selectRow(row);
    editor.findChild<QPushButton*>(QStringLiteral("m_remove_button"))->click();
}

void TEST_TEMPLATES::a_new_device_shows_the_first_template()
{
    open();

    QCOMPARE(combo("m_flow_template_cbox").currentIndex(), 0);
    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList(QStringLiteral("0:T0 single %1").arg(operation)));
}

void TEST_TEMPLATES::choosing_a_template_shows_its_flows_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("variant");
    QTest::addColumn<QString>("prefix");

    for (int index = 1; index < 5; ++index) {
        QTest::addRow("built-in %d, single", index) << index << false << QStringLiteral("T%1 single").arg(index);
        QTest::addRow("built-in %d, quad", index) << index << true << QStringLiteral("T%1 quad").arg(index);
    }
    QTest::newRow("stored, single") << 5 << false << qs("mine single");
    QTest::newRow("stored, quad") << 5 << true << qs("mine quad");
}

void TEST_TEMPLATES::choosing_a_template_shows_its_flows()
{
    QFETCH(const int, index);
    QFETCH(const bool, variant);
    QFETCH(const QString, prefix);
    mgr().flow_variant = variant;
    open();

    combo("m_flow_template_cbox").setCurrentIndex(index);

    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList(QStringLiteral("0:%1 %2").arg(prefix).arg(operation)));
}

void TEST_TEMPLATES::a_template_without_flows_empties_the_pages()
{
    open();

    choose_text("m_flow_template_cbox", QStringLiteral("yours"));

    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList());
    QCOMPARE(log().count(qs("is_flow_editable")), 0);
}

void TEST_TEMPLATES::a_template_of_a_device_whose_record_is_gone_shows_nothing()
{
    mgr().custom_names.push_back("gone");
    open_with("gone");

    combo("m_flow_template_cbox").setCurrentIndex(2);

    QCOMPARE(log().calls_of({qs("check_string_property")}), list_of({R"(mgr.check_string_property(8, "Built-in C"))"}));
    QCOMPARE(log().count(qs("get_builtin_template_operations")), 0);
    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList());
}

void TEST_TEMPLATES::a_templates_flows_are_copies()
{
    open();

    page(1).get_flow().at(0)->set_property_value(GFPDB_WR_NAME, "changed");
    combo("m_flow_template_cbox").setCurrentIndex(1);
    combo("m_flow_template_cbox").setCurrentIndex(0);

    QCOMPARE(page_flow(1), list_of({"0:T0 single 1"}));
}

void TEST_TEMPLATES::kinds_of_a_template_that_are_no_page_are_skipped()
{
    auto& operations = mgr().builtin_template_operations[{1, false}];
    operations.push_back(new OPERATION_DOUBLE(5, {make_named_action(0, "odd")}));
    operations.push_back(new OPERATION_DOUBLE(-1, {make_named_action(0, "odd")}));
    open();

    combo("m_flow_template_cbox").setCurrentIndex(1);

    for (int operation = 0; operation < 5; ++operation)
        QCOMPARE(page_flow(operation), QStringList(QStringLiteral("0:T1 single %1").arg(operation)));
}

void TEST_TEMPLATES::the_editor_is_opened_with_the_dialogs_manager()
{
    open();
    // The dialog's manager may differ from the one that is active by now.
    MGR_DOUBLE& other = world().add_manager(QStringLiteral("other"));
    MGR_DOUBLE& own = mgr();
    world().active = &other;

    edit_templates([this](QWidget& editor) {
        QVERIFY(qobject_cast<GFPQ_EDIT_TEMPLATE_DLG*>(&editor) != nullptr);
        QCOMPARE(editor.parentWidget(), &dlg());
    });

    QCOMPARE(calls(), list_of({"mgr.get_user_template_list()"}));
    QVERIFY(m_modals.last().is_modal);
    world().active = &own;
}

void TEST_TEMPLATES::the_editor_is_made_anew_each_time()
{
    open();
    QList<QPointer<QWidget>> editors;
    const auto note = [&editors](QWidget& editor) { editors.append(&editor); };

    edit_templates(note);
    edit_templates(note);

    QCOMPARE(log().count(qs("get_user_template_list")), 2);
    QVERIFY(editors.at(0) != editors.at(1));
    for (const QPointer<QWidget>& editor : qAsConst(editors))
        QVERIFY(!editor.isNull() && editor->parentWidget() == &dlg());
    // They are the dialog's children, and go with it at the latest.
    close_dialog();
    for (const QPointer<QWidget>& editor : qAsConst(editors))
        QVERIFY(editor.isNull());
}

void TEST_TEMPLATES::closing_the_editor_unchanged_leaves_the_combo()
{
    open();
    choose_text("m_flow_template_cbox", QStringLiteral("mine"));
    mgr().templates = {"other"};
    log().clear();

    edit_templates([](QWidget& editor) { editor.findChild<QPushButton*>(QStringLiteral("m_remove_button"))->click(); });

    QCOMPARE(calls(), list_of({"mgr.get_user_template_list()"}));
    QCOMPARE(combo("m_flow_template_cbox").currentText(), QStringLiteral("mine"));
    QCOMPARE(items("m_flow_template_cbox").size(), 7);
}

void TEST_TEMPLATES::a_removed_template_leaves_the_combo_data()
{
    QTest::addColumn<QString>("way");

    for (const char* way : {"Close", "Escape", "close button"})
        QTest::newRow(way) << qs(way);
}

void TEST_TEMPLATES::a_removed_template_leaves_the_combo()
{
    QFETCH(const QString, way);
    open();

    edit_templates([way](QWidget& editor) {
        remove(editor, 1);
        if (way == QLatin1String("Close"))
            editor.findChild<QPushButton*>(QStringLiteral("m_close_button"))->click();
        else if (way == QLatin1String("Escape"))
            QTest::keyClick(&editor, Qt::Key_Escape);
    });

    QCOMPARE(calls(), list_of({"mgr.get_user_template_list()", R"(mgr.remove_template("yours"))",
                               "mgr.get_user_template_list()", "mgr.get_template_list()"}));
    QCOMPARE(items("m_flow_template_cbox"),
             list_of({"Built-in A", "Built-in B", "Built-in C", "Built-in D", "Built-in E", "mine"}));
}

void TEST_TEMPLATES::the_refilled_combo_keeps_its_text()
{
    open();
    choose_text("m_flow_template_cbox", QStringLiteral("yours"));

    edit_templates([](QWidget& editor) { remove(editor, 0); });

    QCOMPARE(combo("m_flow_template_cbox").currentText(), QStringLiteral("yours"));
    QCOMPARE(combo("m_flow_template_cbox").currentIndex(), 5);
}

void TEST_TEMPLATES::the_refilled_combo_tells_texts_apart_by_case()
{
    mgr().templates.insert(mgr().templates.end() - 1, "YOURS");
    open();
    choose_text("m_flow_template_cbox", QStringLiteral("yours"));

    edit_templates([](QWidget& editor) { remove(editor, 0); });

    QCOMPARE(combo("m_flow_template_cbox").currentText(), QStringLiteral("yours"));
}

void TEST_TEMPLATES::the_refilled_combo_falls_back_to_the_first_item()
{
    open();
    choose_text("m_flow_template_cbox", QStringLiteral("mine"));

    edit_templates([](QWidget& editor) { remove(editor, 0); });

    QCOMPARE(combo("m_flow_template_cbox").currentIndex(), 0);
    QCOMPARE(combo("m_flow_template_cbox").currentText(), QStringLiteral("Built-in A"));
}

void TEST_TEMPLATES::refilling_runs_no_check()
{
    mgr().refuse(8, "refused");
    open();

    edit_templates([](QWidget& editor) { remove(editor, 0); });

    QCOMPARE(log().count(qs("check_string_property")), 0);
    QCOMPARE(m_modals.met().size(), 1);
    QCOMPARE(page_flow(0), list_of({"0:T0 single 0"}));
}

void TEST_TEMPLATES::the_combo_works_again_after_the_editor()
{
    open();
    edit_templates([](QWidget& editor) { remove(editor, 0); });
    log().clear();

    combo("m_flow_template_cbox").setCurrentIndex(2);

    QCOMPARE(log().calls_of({qs("check_string_property")}), list_of({R"(mgr.check_string_property(8, "Built-in C"))"}));
    QCOMPARE(page_flow(0), list_of({"0:T2 single 0"}));
}

void TEST_TEMPLATES::the_edit_button_follows_the_new_device_row()
{
    mgr().add_custom("A");
    open_with("A");
    QVERIFY(!button("m_edit_template_button").isEnabled());

    pick(QStringLiteral("<<new device>>"));

    QVERIFY(button("m_edit_template_button").isEnabled());
}

void TEST_TEMPLATES::a_failed_removal_leaves_the_combo()
{
    mgr().remove_succeeds = false;
    open();

    edit_templates([](QWidget& editor) { remove(editor, 0); });

    QCOMPARE(log().count(qs("get_template_list")), 0);
    QCOMPARE(items("m_flow_template_cbox").size(), 7);
}

GFPQ_TEST_MAIN(TEST_TEMPLATES)

#include "test_templates.moc"
