// SPDX-License-Identifier: MIT

// Flow templates in the dialog: what the combo shows and does, and what opening the template editor does to it.
#include "dialog_test.h"

#include "dialog/gfpq_edit_template_dlg.h"

#include <QHeaderView>

class TEST_TEMPLATES : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void choosing_a_template_shows_its_flows()
    {
        for (const bool variant : {false, true}) {
            mgr().flow_variant = variant;
            open();
            check("m_save_template_check").setChecked(true);
            for (const int index : {1, 2, 3, 4, 5, 0}) {
                combo("m_flow_template_cbox").setCurrentIndex(index);

                const QString name = index < 5 ? qs("T%1").arg(index) : qs("mine");
                QCOMPARE(page_flows(), flows_named(name + (variant ? qs(" quad") : qs(" single"))));
            }
            QVERIFY(check("m_save_template_check").isChecked());
        }
    }

    void a_template_without_flows_empties_the_pages()
    {
        open();

        choose_text("m_flow_template_cbox", "yours");

        QCOMPARE(page_flows(), QStringList());
        QCOMPARE(count_of("is_flow_editable"), 0);
    }

    void a_template_of_a_device_whose_record_is_gone_shows_nothing()
    {
        mgr().custom_names.push_back("gone");
        open_with("gone");

        combo("m_flow_template_cbox").setCurrentIndex(2);

        QCOMPARE(calls_of({"check_string_property"}), list_of({R"(mgr.check_string_property(8, "Built-in C"))"}));
        QCOMPARE(count_of("get_builtin_template_operations"), 0);
        QCOMPARE(page_flows(), QStringList());
    }

    void a_templates_flows_are_copies()
    {
        open();

        page(1).get_flow().at(0)->set_property_value(GFPDB_WR_NAME, "changed");
        combo("m_flow_template_cbox").setCurrentIndex(1);
        combo("m_flow_template_cbox").setCurrentIndex(0);

        QCOMPARE(page_flow(1), list_of({"0:T0 single 1"}));
    }

    void kinds_of_a_template_that_are_no_page_are_skipped()
    {
        auto& operations = mgr().builtin_template_operations[{1, false}];
        operations.push_back(new OPERATION_DOUBLE(5, {make_named_action(0, "odd")}));
        operations.push_back(new OPERATION_DOUBLE(-1, {make_named_action(0, "odd")}));
        open();

        combo("m_flow_template_cbox").setCurrentIndex(1);

        QCOMPARE(page_flows(), flows_named("T1 single"));
    }

    void the_editor_is_opened_with_the_dialogs_manager()
    {
        open();
        // The dialog's manager may differ from the one that is active by now.
        MGR_DOUBLE& other = world().add_manager(qs("other"));
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

    void the_editor_is_made_again_each_time()
    {
        open();
        QList<QPointer<QWidget>> editors;
        const auto note = [&editors](QWidget& editor) { editors.append(&editor); };

        edit_templates(note);
        edit_templates(note);

        QCOMPARE(count_of("get_user_template_list"), 2);
        QVERIFY(editors.at(0) != editors.at(1));
        for (const QPointer<QWidget>& editor : qAsConst(editors))
            QVERIFY(!editor.isNull() && editor->parentWidget() == &dlg());
        // They are the dialog's children, and go with it at the latest.
        close_dialog();
        for (const QPointer<QWidget>& editor : qAsConst(editors))
            QVERIFY(editor.isNull());
    }

    void closing_the_editor_unchanged_leaves_the_combo()
    {
        open();
        choose_text("m_flow_template_cbox", "mine");
        mgr().templates = {"other"};
        log().clear();

        edit_templates([](QWidget& editor) { editor.findChild<QPushButton*>(qs("m_remove_button"))->click(); });

        QCOMPARE(calls(), list_of({"mgr.get_user_template_list()"}));
        QCOMPARE(text("m_flow_template_cbox"), qs("mine"));
        QCOMPARE(items("m_flow_template_cbox").size(), 7);
    }

    void a_removed_template_leaves_the_combo_data() { rows_named<QString>({"Close", "Escape", "close button"}); }

    void a_removed_template_leaves_the_combo()
    {
        const QString way = row<QString>();
        open();

        edit_templates([way](QWidget& editor) {
            remove(editor, 1);
            if (way == QLatin1String("Close"))
                editor.findChild<QPushButton*>(qs("m_close_button"))->click();
            else if (way == QLatin1String("Escape"))
                QTest::keyClick(&editor, Qt::Key_Escape);
        });

        QCOMPARE(calls(), list_of({"mgr.get_user_template_list()", R"(mgr.remove_template("yours"))",
                                   "mgr.get_user_template_list()", "mgr.get_template_list()"}));
        QCOMPARE(items("m_flow_template_cbox"),
                 list_of({"Built-in A", "Built-in B", "Built-in C", "Built-in D", "Built-in E", "mine"}));
    }

    void the_refilled_combo_keeps_its_text_data()
    {
        rows<QString, QString, int>({{"still there", "yours", "yours", 6},
                                     {"removed", "mine", "Built-in A", 0},
                                     {"another case", "YOURS", "YOURS", 5}});
    }

    void the_refilled_combo_keeps_its_text()
    {
        const auto [chosen, kept, index] = row<QString, QString, int>();
        mgr().templates.insert(mgr().templates.end() - 1, "YOURS");
        open();
        choose_text("m_flow_template_cbox", chosen);
        mgr().refuse(GFPDB_FLASH_FLOW_TEMPLATE, "refused");
        log().clear();

        edit_templates([](QWidget& editor) { remove(editor, 0); });

        QCOMPARE(text("m_flow_template_cbox"), kept);
        QCOMPARE(combo("m_flow_template_cbox").currentIndex(), index);
        // The refill runs no check, the user's next choice does.
        QCOMPARE(count_of("check_string_property"), 0);
        mgr().refused_properties.clear();
        choose_text("m_flow_template_cbox", "Built-in C");
        QCOMPARE(calls_of({"check_string_property"}), list_of({R"(mgr.check_string_property(8, "Built-in C"))"}));
        QCOMPARE(page_flows(), flows_named("T2 single"));
    }

    void a_failed_removal_leaves_the_combo()
    {
        mgr().remove_succeeds = false;
        open();

        edit_templates([](QWidget& editor) { remove(editor, 0); });

        QCOMPARE(count_of("get_template_list"), 0);
        QCOMPARE(items("m_flow_template_cbox").size(), 7);
    }

private:
    void fill_world() override
    {
        mgr().templates.push_back("mine");
        mgr().templates.push_back("yours");
        mgr().user_templates = {"mine", "yours"};
        for (const bool variant : {false, true}) {
            const std::string suffix = variant ? " quad" : " single";
            for (int index = 0; index < 5; ++index) {
                mgr().builtin_template_operations[{index, variant}] =
                    make_operations("T" + std::to_string(index) + suffix);
            }
            mgr().template_operations[{"mine", variant}] = make_operations("mine" + suffix);
        }
    }

    // Opens the editor and does `act` with it; it is closed afterwards.
    void edit_templates(const std::function<void(QWidget& editor)>& act)
    {
        m_modals.expect([act](QWidget* window) {
            act(*window);
            window->close();
        });
        button("m_edit_template_button").click();
    }

    static void remove(QWidget& editor, int row)
    {
        editor.findChild<QTableView*>(qs("m_template_table_view"))->selectRow(row);
        editor.findChild<QPushButton*>(qs("m_remove_button"))->click();
    }
};

GFPQ_TEST_MAIN(TEST_TEMPLATES)

#include "test_templates.moc"
