// SPDX-License-Identifier: MIT

// Editing values in the property table of a page.
#include "code_page.h"
#include "page_stand.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStringListModel>

#include <limits>

class TEST_FLOW_EDITOR : public PAGE_TEST
{
    Q_OBJECT

private slots:
    void bus_widths_get_a_combo_box_everything_else_a_line_edit()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        ACTION_DOUBLE& action = action_of(*page, 0);
        action.properties.clear();
        for (int property = 0; property <= 38; ++property)
            action.properties.push_back(static_cast<GFPDB_ACT_PROPERTY>(property));
        page->update_property_table(&action);
        const QAbstractItemDelegate& delegate = *property_table_of(*page)->itemDelegateForColumn(1);
        QWidget parent;

        for (int row = 0; row <= 38; ++row) {
            // The property is read from the value cell, whichever cell of the row is asked for.
            for (int column = 0; column < 2; ++column) {
                QWidget* const editor =
                    delegate.createEditor(&parent, QStyleOptionViewItem(), rows_of(*page).index(row, column));
                const bool is_combo = row == 4 || row == 12 || row == 20 || row == 30 || row == 37;
                QCOMPARE(QString::fromLatin1(editor->metaObject()->className()),
                         is_combo ? qs("QComboBox") : qs("QLineEdit"));
                QCOMPARE(editor->parentWidget(), &parent);
            }
        }
    }

    void an_invalid_index_has_no_editor()
    {
        const auto page = show_selected({});
        const QAbstractItemDelegate& delegate = *property_table_of(*page)->itemDelegateForColumn(1);
        QWidget parent;
        QLineEdit edit(qs("kept"));

        QVERIFY(delegate.createEditor(&parent, QStyleOptionViewItem(), QModelIndex()) == nullptr);
        delegate.setEditorData(&edit, QModelIndex());
        QCOMPARE(edit.text(), qs("kept"));
        QComboBox box;
        box.addItem(qs("kept"));
        delegate.setEditorData(&box, QModelIndex());
        QCOMPARE(box.count(), 1);
    }

    void a_combo_box_offers_the_checkers_choices()
    {
        const auto page = show_selected(ACTION_LIST({make_action(0, {{4, "1-4"}})}).get());
        m_checker->choices[4] = {"1-1", "1-4", "\xC3\xA4", "1-1"};
        action_of(*page, 0).choices[4] = {"not these"};
        log().clear();

        const auto* const combo = qobject_cast<QComboBox*>(open_editor(*page, 4));

        QVERIFY(combo != nullptr);
        QStringList offered;
        for (int index = 0; index < combo->count(); ++index) {
            offered.append(combo->itemText(index));
            QCOMPARE(combo->itemData(index), QVariant());
        }
        QCOMPARE(offered, list({"1-1", "1-4", "\xC3\xA4", "1-1"}));
        QVERIFY(!combo->isEditable());
        QCOMPARE(combo->insertPolicy(), QComboBox::NoInsert);
        QCOMPARE(combo->currentIndex(), 1);
        QCOMPARE(calls_of({"get_property_choices"}).first(), qs("action(5:default 38).get_property_choices(4)"));
    }

    void a_combo_box_starts_with_the_value_data()
    {
        rows<QString, int>({{"there", "1-4-4", 2},
                            {"first", "single", 0},
                            {"another case", "QUAD io", 3},
                            {"not there", "8-8-8", 0},
                            {"a part of one", "1-4", 0},
                            {"a pattern", "1.*", 0},
                            {"empty", QString(), 0}});
    }

    void a_combo_box_starts_with_the_value()
    {
        const auto [value, index] = row<QString, int>();
        const auto page = show_selected(ACTION_LIST({make_action(4, {{37, value.toStdString()}})}).get());
        m_checker->choices[37] = {"Single", "1-1-4", "1-4-4", "Quad IO"};

        auto* const combo = qobject_cast<QComboBox*>(open_editor(*page, 6));

        QVERIFY(combo != nullptr);
        QCOMPARE(combo->currentIndex(), index);
    }

    void filling_a_combo_box_again_adds_nothing()
    {
        const auto page = show_selected(ACTION_LIST({make_action(0, {{4, "b"}})}).get());
        m_checker->choices[4] = {"a", "b"};
        auto* const combo = qobject_cast<QComboBox*>(open_editor(*page, 4));
        QVERIFY(combo != nullptr);

        property_table_of(*page)->itemDelegateForColumn(1)->setEditorData(combo, value_cell(*page, 4));

        QCOMPARE(combo->count(), 2);
        QCOMPARE(combo->currentIndex(), 1);
        // Whatever it was before, nothing can be typed into it.
        combo->setEditable(true);
        property_table_of(*page)->itemDelegateForColumn(1)->setEditorData(combo, value_cell(*page, 4));
        QVERIFY(!combo->isEditable());
        // Without a choice nothing is chosen, and nothing breaks.
        m_checker->choices.clear();
        property_table_of(*page)->itemDelegateForColumn(1)->setEditorData(combo, value_cell(*page, 4));
        QCOMPARE(combo->count(), 0);
    }

    void a_typed_value_is_checked_stored_and_has_the_chart_redrawn()
    {
        const auto page = show_selected(ACTION_LIST({make_action(0, {{1, "9Fh"}})}).get());
        QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));
        auto* const editor = qobject_cast<QLineEdit*>(open_editor(*page, 1));
        QVERIFY(editor != nullptr);
        QCOMPARE(editor->text(), qs("9Fh"));
        // Any text can be typed.
        QVERIFY(editor->validator() == nullptr);
        QCOMPARE(editor->inputMask(), QString());
        QCOMPARE(editor->maxLength(), std::numeric_limits<int>::max());
        log().clear();

        type_text(editor, "31h");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(property_table_of(*page)->indexWidget(value_cell(*page, 1)) == nullptr);

        QCOMPARE(stored(*page, 1), list({"31h", "31h", "31h"}));
        QCOMPARE(value_cell(*page, 1).data(CELL_PROPERTY_ROLE).toInt(), 1);
        QCOMPARE(updated.size(), 1);
        QVERIFY(scene_of(*page).take_pending_refresh());
        QCOMPARE(calls_of({"check_property_value", "set_property_value"}),
                 list({"action(5:default 38).check_property_value(1, \"31h\")",
                       "action(0:default 0).set_property_value(1, \"31h\")"}));
    }

    // Also an empty one, and one that did not change; a refusal needs no words.
    void every_committed_text_is_checked_and_stored()
    {
        const auto page = show_selected(ACTION_LIST({make_action(0, {{1, "9Fh"}})}).get());
        QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));
        m_checker->refused[1] = "";
        for (const char* text : {"x", "", ""}) {
            auto* const editor = qobject_cast<QLineEdit*>(open_editor(*page, 1));
            QVERIFY(editor != nullptr);
            editor->setText(qs(text));
            m_modals.expect(MODAL_DRIVER::accept());
            log().clear();

            page->commit_open_editor();

            QCOMPARE(m_modals.last().text, QString());
            QCOMPARE(stored(*page, 1), list({text, text, text}));
            QCOMPARE(count_of("check_property_value"), 1);
            QCOMPARE(count_of("set_property_value"), 1);
        }
        QCOMPARE(m_modals.met().size(), 3);
        QCOMPARE(updated.size(), 3);
    }

    void the_cell_comes_first_then_the_action_then_the_chart()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        QStringList steps;
        log().on_call(qs("set_property_value"), [&](const QString&) {
            steps.append(qs("set, cell ") + value_cell(*page, 1).data().toString() + qs(", tip ") +
                         value_cell(*page, 1).data(Qt::ToolTipRole).toString());
        });
        connect(page.get(), &PAGE::emit_update_flow_scene, this,
                [&] { steps.append(qs("told, action ") + QString::fromStdString(action_of(*page, 0).values[1])); });

        type_text(open_editor(*page, 1), "31h");
        page->commit_open_editor();

        QCOMPARE(steps, list({"set, cell 31h, tip 31h", "told, action 31h"}));
    }

    void the_property_is_that_of_the_value_cell()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        auto& model = dynamic_cast<QStandardItemModel&>(*property_table_of(*page)->model());
        model.item(1, 0)->setData(4, CELL_PROPERTY_ROLE);
        model.item(4, 0)->setData(1, CELL_PROPERTY_ROLE);
        const QAbstractItemDelegate& delegate = *property_table_of(*page)->itemDelegateForColumn(1);
        QWidget parent;

        QVERIFY(qobject_cast<QLineEdit*>(delegate.createEditor(&parent, QStyleOptionViewItem(), model.index(1, 0))));
        QVERIFY(qobject_cast<QComboBox*>(delegate.createEditor(&parent, QStyleOptionViewItem(), model.index(4, 0))));
    }

    void an_invalid_value_is_warned_about_and_stored_all_the_same()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        m_checker->refused[1] = "<b>Not</b> a command: \xC3\xA4";
        QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));
        QWidget* const editor = open_editor(*page, 1);
        QStringList stored_then;
        m_modals.expect([&](QWidget* box) {
            stored_then = stored(*page, 1);
            MODAL_DRIVER::accept()(box);
        });

        type_text(editor, "xyz");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(property_table_of(*page)->indexWidget(value_cell(*page, 1)) == nullptr);

        QCOMPARE(m_modals.met().size(), 1);
        const MET_MODAL& box = m_modals.last();
        QCOMPARE(box.text, qs("<b>Not</b> a command: \xC3\xA4"));
        QCOMPARE(box.text_format, Qt::PlainText);
        QCOMPARE(box.title, QString());
        QCOMPARE(box.icon, QMessageBox::Warning);
        QCOMPARE(box.buttons, list({"OK"}));
        QVERIFY(!box.has_parent);
        QVERIFY(box.is_modal);
        // Warned first, then stored.
        QCOMPARE(stored_then, list({"default 1", "", "default 1"}));
        QCOMPARE(stored(*page, 1), list({"xyz", "xyz", "xyz"}));
        QCOMPARE(updated.size(), 1);
    }

    void a_warning_leaves_the_focus_where_the_user_went()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        m_checker->refused[1] = "refused";
        type_text(open_editor(*page, 1), "xyz");
        m_modals.expect(MODAL_DRIVER::accept());

        palette_view_of(*page)->setFocus();
        QTRY_COMPARE(m_modals.met().size(), 1);
        QApplication::setActiveWindow(page.get());

        QTRY_COMPARE(QApplication::focusWidget(), palette_view_of(*page));
    }

    void blanks_at_both_ends_are_part_of_a_value()
    {
        const auto page = show_selected(ACTION_LIST({make_action(0, {{1, "  06h "}, {4, " 1-4  "}})}).get());
        m_checker->choices[4] = {"1-4", " 1-4  ", "  2-2 "};
        QCOMPARE(column_of(*page, 1).at(1), qs("  06h "));
        auto* const edit = qobject_cast<QLineEdit*>(open_editor(*page, 1));
        QVERIFY(edit != nullptr);
        QCOMPARE(edit->text(), qs("  06h "));
        log().clear();

        type_text(edit, "  05h   ");
        page->commit_open_editor();

        QCOMPARE(calls_of({"check_property_value", "set_property_value"}),
                 list({R"(action(5:default 38).check_property_value(1, "  05h   "))",
                       R"(action(0:default 0).set_property_value(1, "  05h   "))"}));
        QCOMPARE(stored(*page, 1), list({"  05h   ", "  05h   ", "  05h   "}));

        auto* const combo = qobject_cast<QComboBox*>(open_editor(*page, 4));
        QVERIFY(combo != nullptr);
        QCOMPARE(combo->currentIndex(), 1);
        QTest::keyClick(combo, Qt::Key_Down);
        page->commit_open_editor();
        QCOMPARE(stored(*page, 4), list({"  2-2 ", "  2-2 ", "  2-2 "}));
    }

    void a_chosen_value_is_stored_without_a_check()
    {
        for (const bool is_committed_by_the_page : {false, true}) {
            const auto page = show_selected(ACTION_LIST({make_action(0, {{4, "a"}})}).get());
            m_checker->choices[4] = {"a", "b"};
            m_checker->refused[4] = "refused";
            QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));
            auto* const combo = qobject_cast<QComboBox*>(open_editor(*page, 4));
            QVERIFY(combo != nullptr);
            log().clear();

            QTest::keyClick(combo, Qt::Key_Down);
            QCOMPARE(action_of(*page, 0).values[4], std::string("a"));
            if (is_committed_by_the_page)
                page->commit_open_editor();
            else
                QTest::keyClick(combo, Qt::Key_Return);
            QTRY_VERIFY(property_table_of(*page)->indexWidget(value_cell(*page, 4)) == nullptr);

            QCOMPARE(stored(*page, 4), list({"b", "b", "b"}));
            QCOMPARE(updated.size(), 1);
            QCOMPARE(count_of("check_property_value"), 0);
        }
    }

    void a_stored_value_is_drawn_when_the_chart_gets_the_focus()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        QWidget* const editor = open_editor(*page, 0);
        QSignalSpy drawn(&scene_of(*page), SIGNAL(emit_clear_table()));
        type_text(editor, "renamed");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(value_cell(*page, 0).data().toString(), qs("renamed"));
        QVERIFY(!texts_of(scene_of(*page)).at(1).contains(qs("renamed")));
        QCOMPARE(drawn.size(), 0);

        click(*flow_view_of(*page), on_shape(scene_of(*page), 1));

        QCOMPARE(drawn.size(), 1);
        QVERIFY(texts_of(scene_of(*page)).at(1).contains(qs("renamed")));
        // The click that brought the focus also selects in the new picture.
        QCOMPARE(column_of(*page, 1).first(), qs("renamed"));
    }

    void a_foreign_model_is_an_internal_error()
    {
        const auto page = show_selected({});
        QStringListModel foreign(QStringList{qs("text")});
        QLineEdit edit;

        QVERIFY_EXCEPTION_THROWN(
            property_table_of(*page)->itemDelegateForColumn(1)->setModelData(&edit, &foreign, foreign.index(0, 0)),
            INTERNAL_ERROR_REPORTED);

        QCOMPARE(calls_of({"report"}), list({R"(MSG_INTERNAL_ERROR.report("std_model != nullptr", "GFPQ", )"
                                             R"("pgm/gfpq/gfpq_operation_tab_widget", 534))"}));
    }

    void without_a_current_action_only_the_cell_changes()
    {
        const auto page = show_selected({});
        auto& model = dynamic_cast<QStandardItemModel&>(*property_table_of(*page)->model());
        auto* const value = new QStandardItem(qs("old"));
        value->setData(1, CELL_PROPERTY_ROLE);
        model.appendRow({new QStandardItem(qs("Command:")), value});
        QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));
        QLineEdit edit(qs("new"));
        log().clear();

        property_table_of(*page)->itemDelegateForColumn(1)->setModelData(&edit, &model, model.index(0, 1));

        QCOMPARE(value->text(), qs("new"));
        QCOMPARE(value->toolTip(), qs("new"));
        QCOMPARE(updated.size(), 0);
        QCOMPARE(count_of("set_property_value"), 0);
    }

    void without_a_checker_everything_is_valid()
    {
        mgr().refused_actions.insert(GFPDB_ACT_CUSTOM);
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());

        type_text(open_editor(*page, 1), "any");
        page->commit_open_editor();
        const auto* const combo = qobject_cast<QComboBox*>(open_editor(*page, 4));

        QCOMPARE(action_of(*page, 0).values[1], std::string("any"));
        QVERIFY(combo != nullptr);
        QCOMPARE(combo->count(), 0);
    }

    void disabled_and_label_cells_cannot_be_edited()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        action_of(*page, 0).disabled = {GFPDB_WR_DATA};
        page->update_property_table(page->get_flow().first());

        QVERIFY(open_editor(*page, 2) == nullptr);
        for (int row = 0; row < 5; ++row)
            QVERIFY(open_editor(*page, row, 0) == nullptr);
        QVERIFY(open_editor(*page, 3) != nullptr);
    }

    void another_code_page_holds_for_all_texts_of_the_library()
    {
        const CODE_PAGE latin_1("ISO-8859-1");
        const auto page = show_selected(ACTION_LIST({make_action(0, {{0, "\xE4"}, {4, "\xF6"}})}).get());
        m_checker->choices[4] = {"a", "\xF6"};
        m_checker->refused[1] = "\xDF";
        m_modals.expect(MODAL_DRIVER::accept());

        QCOMPARE(value_cell(*page, 0).data().toString(), QString(QChar(0xE4)));
        QVERIFY(texts_of(scene_of(*page)).at(1).contains(QChar(0xE4)));
        OPEN_SCENE scene(nullptr, 0);
        action_of(*page, 0).labels[1] = "\xE9";
        QVERIFY(scene.create_text_item(&action_of(*page, 0), Qt::AlignCenter)->toPlainText().contains(QChar(0xE9)));
        const auto* const combo = qobject_cast<QComboBox*>(open_editor(*page, 4));
        QVERIFY(combo != nullptr);
        QCOMPARE(combo->currentText(), QString(QChar(0xF6)));
        page->commit_open_editor();
        QCOMPARE(action_of(*page, 0).values[4], std::string("\xF6"));
        auto* const edit = qobject_cast<QLineEdit*>(open_editor(*page, 1));
        QVERIFY(edit != nullptr);
        edit->setText(QChar(0xFC));
        page->commit_open_editor();
        QCOMPARE(m_modals.last().text, QString(QChar(0xDF)));
        QCOMPARE(action_of(*page, 0).values[1], std::string("\xFC"));
        QCOMPARE(calls_of({"check_property_value"}),
                 QStringList{qs("action(5:default 38).check_property_value(1, %1)").arg(logged(std::string("\xFC")))});
        // The page's own words are not the library's.
        QVERIFY(PAGE(nullptr, 2).findChild<QLabel*>()->text().contains(QChar(0x201C)));
    }

    void very_long_values_and_line_breaks_survive_the_editor()
    {
        const std::string long_value(100000, 'x');
        const auto page =
            show_selected(ACTION_LIST({make_action(0, {{0, long_value}, {1, "one\ntwo\r\nthree"}})}).get());

        QVERIFY(open_editor(*page, 0) != nullptr);
        page->commit_open_editor();
        QVERIFY(open_editor(*page, 1) != nullptr);
        page->commit_open_editor();

        QVERIFY(action_of(*page, 0).values[0] == long_value);
        QCOMPARE(action_of(*page, 0).values[1], std::string("one\ntwo\r\nthree"));
        QVERIFY(!property_table_of(*page)->grab().isNull());
    }

    void a_warning_while_the_chart_waits_for_a_redraw_is_survived()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        type_text(open_editor(*page, 0), "renamed");
        page->commit_open_editor();
        m_checker->refused[1] = "refused";
        type_text(open_editor(*page, 1), "xyz");
        QSignalSpy drawn(&scene_of(*page), SIGNAL(emit_clear_table()));
        int rows_then = -1;
        m_modals.expect([&](QWidget* box) {
            // What the window system does when the box goes.
            QFocusEvent focus(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
            QApplication::sendEvent(flow_view_of(*page), &focus);
            rows_then = rows_of(*page).rowCount();
            MODAL_DRIVER::accept()(box);
        });

        click(*flow_view_of(*page), on_shape(scene_of(*page), 2));

        QCOMPARE(rows_then, 5);
        QCOMPARE(m_modals.met().size(), 1);
        QCOMPARE(action_of(*page, 0).values[0], std::string("renamed"));
        QCOMPARE(action_of(*page, 0).values[1], std::string("xyz"));
        QCOMPARE(drawn.size(), 0);
        QApplication::setActiveWindow(page.get());
        QTRY_COMPARE(drawn.size(), 1);
        QVERIFY(texts_of(scene_of(*page)).at(1).contains(qs("xyz")));
    }

    void a_warning_takes_no_waiting_redraw_away_and_adds_none()
    {
        PAGE page(nullptr, 1);
        m_modals.expect(MODAL_DRIVER::accept());
        m_modals.expect(MODAL_DRIVER::accept());

        page.warn_about_value(qs("refused"));
        QVERIFY(!scene_of(page).take_pending_refresh());

        emit page.emit_update_flow_scene();
        page.warn_about_value(qs("refused"));
        QVERIFY(scene_of(page).take_pending_refresh());
    }

    void a_value_whose_cell_is_gone_is_stored_nowhere_else()
    {
        const auto page =
            show_selected(ACTION_LIST({make_named_action(0, "first"), make_named_action(0, "second")}).get());
        m_checker->refused[1] = "refused";
        QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));
        type_text(open_editor(*page, 1), "xyz");
        m_modals.expect([&](QWidget* box) {
            page->update_property_table(page->get_flow().at(1));
            MODAL_DRIVER::accept()(box);
        });

        page->commit_open_editor();

        QCOMPARE(m_modals.met().size(), 1);
        QCOMPARE(action_of(*page, 0).values[1], std::string("default 1"));
        QCOMPARE(action_of(*page, 1).values[1], std::string("default 1"));
        QCOMPARE(column_of(*page, 1).mid(0, 2), list({"second", "default 1"}));
        QCOMPARE(value_cell(*page, 1).data(Qt::ToolTipRole), QVariant());
        QCOMPARE(updated.size(), 0);
    }

    void an_open_editor_can_be_committed()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        m_checker->refused[1] = "refused";
        m_modals.expect(MODAL_DRIVER::accept());
        // Opened without becoming the current cell.
        property_table_of(*page)->edit(value_cell(*page, 1));
        type_text(property_table_of(*page)->indexWidget(value_cell(*page, 1)), "typed");

        page->commit_open_editor();

        QCOMPARE(action_of(*page, 0).values[1], std::string("typed"));
        QVERIFY(property_table_of(*page)->indexWidget(value_cell(*page, 1)) == nullptr);
        QCOMPARE(m_modals.met().size(), 1);
        // And the table can be edited again.
        QVERIFY(open_editor(*page, 2) != nullptr);
    }

    void committing_without_an_open_editor_does_nothing()
    {
        PAGE unready(nullptr, 1);
        unready.commit_open_editor();
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));

        page->commit_open_editor();

        QCOMPARE(updated.size(), 0);
    }

private:
    // What a row's value cell shows, its tool tip, and the value of the first action.
    static QStringList stored(const PAGE& page, int row)
    {
        return {value_cell(page, row).data().toString(), value_cell(page, row).data(Qt::ToolTipRole).toString(),
                QString::fromStdString(action_of(page, 0).values[row])};
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_EDITOR)

#include "test_flow_editor.moc"
