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
    void bus_widths_get_a_combo_box_everything_else_a_line_edit();
    void a_line_edit_takes_any_text();
    void an_invalid_index_has_no_editor();
    void a_line_edit_starts_with_the_text_of_the_cell();
    void a_combo_box_offers_the_checkers_choices();
    void a_combo_box_starts_with_the_value_data();
    void a_combo_box_starts_with_the_value();
    void filling_a_combo_box_again_adds_nothing();
    void a_typed_value_is_checked_stored_and_has_the_chart_redrawn();
    void the_cell_comes_first_then_the_action_then_the_chart();
    void the_property_is_that_of_the_value_cell();
    void an_invalid_value_is_warned_about_and_stored_all_the_same();
    void a_warning_leaves_the_focus_where_the_user_went();
    void blanks_at_both_ends_are_part_of_a_value();
    void a_chosen_value_is_stored_without_a_check();
    void a_stored_value_is_drawn_when_the_chart_gets_the_focus();
    void a_foreign_model_is_an_internal_error();
    void without_a_current_action_only_the_cell_changes();
    void without_a_checker_everything_is_valid();
    void disabled_and_label_cells_cannot_be_edited();
    void texts_outside_ascii_go_through_local_8_bit();
    void another_code_page_holds_for_all_texts_of_the_library();
    void very_long_values_and_line_breaks_survive_the_editor();
    void a_warning_while_the_chart_waits_for_a_redraw_is_survived();
    void a_warning_takes_no_waiting_redraw_away_and_adds_none();
    void a_value_whose_cell_is_gone_is_stored_nowhere_else();
    void an_open_editor_can_be_committed();
    void an_open_combo_box_can_be_committed();
    void committing_without_an_open_editor_does_nothing();
};

void TEST_FLOW_EDITOR::bus_widths_get_a_combo_box_everything_else_a_line_edit()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
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
                     is_combo ? QStringLiteral("QComboBox") : QStringLiteral("QLineEdit"));
            QCOMPARE(editor->parentWidget(), &parent);
        }
    }
}

void TEST_FLOW_EDITOR::a_line_edit_takes_any_text()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());

    const auto* const edit = qobject_cast<QLineEdit*>(open_editor(*page, 1));

    QVERIFY(edit != nullptr);
    QVERIFY(edit->validator() == nullptr);
    QCOMPARE(edit->inputMask(), QString());
    QCOMPARE(edit->maxLength(), std::numeric_limits<int>::max());
}

void TEST_FLOW_EDITOR::an_invalid_index_has_no_editor()
{
    const auto page = show_selected({});
    const QAbstractItemDelegate& delegate = *property_table_of(*page)->itemDelegateForColumn(1);
    QWidget parent;
    QLineEdit edit(QStringLiteral("kept"));

    QVERIFY(delegate.createEditor(&parent, QStyleOptionViewItem(), QModelIndex()) == nullptr);
    delegate.setEditorData(&edit, QModelIndex());
    QCOMPARE(edit.text(), QStringLiteral("kept"));
}

void TEST_FLOW_EDITOR::a_line_edit_starts_with_the_text_of_the_cell()
{
    const ACTION_LIST actions({make_action(0, {{1, "9Fh"}})});
    const auto page = show_selected(actions.get());

    const auto* const edit = qobject_cast<QLineEdit*>(open_editor(*page, 1));

    QVERIFY(edit != nullptr);
    QCOMPARE(edit->text(), QStringLiteral("9Fh"));
}

void TEST_FLOW_EDITOR::a_combo_box_offers_the_checkers_choices()
{
    const ACTION_LIST actions({make_action(0, {{4, "1-4"}})});
    const auto page = show_selected(actions.get());
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
    QCOMPARE(log().calls_of({QStringLiteral("get_property_choices")}).first(),
             QStringLiteral("action(5:default 38).get_property_choices(4)"));
}

void TEST_FLOW_EDITOR::a_combo_box_starts_with_the_value_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("index");

    QTest::newRow("there") << QStringLiteral("1-4-4") << 2;
    QTest::newRow("first") << QStringLiteral("single") << 0;
    QTest::newRow("another case") << QStringLiteral("QUAD io") << 3;
    QTest::newRow("not there") << QStringLiteral("8-8-8") << 0;
    QTest::newRow("a part of one") << QStringLiteral("1-4") << 0;
    QTest::newRow("a pattern") << QStringLiteral("1.*") << 0;
    QTest::newRow("empty") << QString() << 0;
}

void TEST_FLOW_EDITOR::a_combo_box_starts_with_the_value()
{
    QFETCH(const QString, value);
    QFETCH(const int, index);
    const ACTION_LIST actions({make_action(4, {{37, value.toStdString()}})});
    const auto page = show_selected(actions.get());
    m_checker->choices[37] = {"Single", "1-1-4", "1-4-4", "Quad IO"};

    auto* const combo = qobject_cast<QComboBox*>(open_editor(*page, 6));

    QVERIFY(combo != nullptr);
    QCOMPARE(combo->currentIndex(), index);
}

void TEST_FLOW_EDITOR::filling_a_combo_box_again_adds_nothing()
{
    const ACTION_LIST actions({make_action(0, {{4, "b"}})});
    const auto page = show_selected(actions.get());
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

void TEST_FLOW_EDITOR::a_typed_value_is_checked_stored_and_has_the_chart_redrawn()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));
    QWidget* const editor = open_editor(*page, 1);
    log().clear();

    type_text(editor, "31h");
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(property_table_of(*page)->indexWidget(value_cell(*page, 1)) == nullptr);

    QCOMPARE(value_cell(*page, 1).data().toString(), QStringLiteral("31h"));
    QCOMPARE(value_cell(*page, 1).data(Qt::ToolTipRole).toString(), QStringLiteral("31h"));
    QCOMPARE(value_cell(*page, 1).data(CELL_PROPERTY_ROLE).toInt(), 1);
    QCOMPARE(action_of(*page, 0).values[1], std::string("31h"));
    QCOMPARE(updated.size(), 1);
    QVERIFY(scene_of(*page).take_pending_refresh());
    QCOMPARE(log().calls_of({QStringLiteral("check_property_value"), QStringLiteral("set_property_value")}),
             list({"action(5:default 38).check_property_value(1, \"31h\")",
                   "action(0:default 0).set_property_value(1, \"31h\")"}));
}

void TEST_FLOW_EDITOR::the_cell_comes_first_then_the_action_then_the_chart()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    QStringList steps;
    log().on_call(QStringLiteral("set_property_value"), [&](const QString&) {
        steps.append(QStringLiteral("set, cell ") + value_cell(*page, 1).data().toString() + QStringLiteral(", tip ") +
                     value_cell(*page, 1).data(Qt::ToolTipRole).toString());
    });
    connect(page.get(), &PAGE::emit_update_flow_scene, this, [&] {
        steps.append(QStringLiteral("told, action ") + QString::fromStdString(action_of(*page, 0).values[1]));
    });

    type_text(open_editor(*page, 1), "31h");
    page->commit_open_editor();

    QCOMPARE(steps, list({"set, cell 31h, tip 31h", "told, action 31h"}));
}

void TEST_FLOW_EDITOR::the_property_is_that_of_the_value_cell()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    auto& model = dynamic_cast<QStandardItemModel&>(*property_table_of(*page)->model());
    model.item(1, 0)->setData(4, CELL_PROPERTY_ROLE);
    model.item(4, 0)->setData(1, CELL_PROPERTY_ROLE);
    const QAbstractItemDelegate& delegate = *property_table_of(*page)->itemDelegateForColumn(1);
    QWidget parent;

    QVERIFY(qobject_cast<QLineEdit*>(delegate.createEditor(&parent, QStyleOptionViewItem(), model.index(1, 0))));
    QVERIFY(qobject_cast<QComboBox*>(delegate.createEditor(&parent, QStyleOptionViewItem(), model.index(4, 0))));
}

void TEST_FLOW_EDITOR::an_invalid_value_is_warned_about_and_stored_all_the_same()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    m_checker->refused[1] = "<b>Not</b> a command: \xC3\xA4";
    QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));
    QWidget* const editor = open_editor(*page, 1);
    QString cell_then;
    std::string value_then;
    m_modals.expect([&](QWidget* box) {
        cell_then = value_cell(*page, 1).data().toString();
        value_then = action_of(*page, 0).values[1];
        MODAL_DRIVER::accept()(box);
    });

    type_text(editor, "xyz");
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(property_table_of(*page)->indexWidget(value_cell(*page, 1)) == nullptr);

    QCOMPARE(m_modals.met().size(), 1);
    const MET_MODAL& box = m_modals.last();
    QCOMPARE(box.text, QString::fromUtf8("<b>Not</b> a command: \xC3\xA4"));
    QCOMPARE(box.text_format, Qt::PlainText);
    QCOMPARE(box.title, QString());
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, list({"OK"}));
    QVERIFY(!box.has_parent);
    QVERIFY(box.is_modal);
    // Warned first, then stored.
    QCOMPARE(cell_then, QStringLiteral("default 1"));
    QCOMPARE(value_then, std::string("default 1"));
    QCOMPARE(value_cell(*page, 1).data().toString(), QStringLiteral("xyz"));
    QCOMPARE(value_cell(*page, 1).data(Qt::ToolTipRole).toString(), QStringLiteral("xyz"));
    QCOMPARE(action_of(*page, 0).values[1], std::string("xyz"));
    QCOMPARE(updated.size(), 1);
}

void TEST_FLOW_EDITOR::a_warning_leaves_the_focus_where_the_user_went()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    m_checker->refused[1] = "refused";
    type_text(open_editor(*page, 1), "xyz");
    m_modals.expect(MODAL_DRIVER::accept());

    palette_view_of(*page)->setFocus();
    QTRY_COMPARE(m_modals.met().size(), 1);
    QApplication::setActiveWindow(page.get());

    QTRY_COMPARE(QApplication::focusWidget(), palette_view_of(*page));
}

void TEST_FLOW_EDITOR::blanks_at_both_ends_are_part_of_a_value()
{
    const ACTION_LIST actions({make_action(0, {{1, "  06h "}, {4, " 1-4  "}})});
    const auto page = show_selected(actions.get());
    m_checker->choices[4] = {"1-4", " 1-4  ", "  2-2 "};
    QCOMPARE(column_of(*page, 1).at(1), QStringLiteral("  06h "));
    auto* const edit = qobject_cast<QLineEdit*>(open_editor(*page, 1));
    QVERIFY(edit != nullptr);
    QCOMPARE(edit->text(), QStringLiteral("  06h "));
    log().clear();

    type_text(edit, "  05h   ");
    page->commit_open_editor();

    QCOMPARE(log().calls_of({QStringLiteral("check_property_value"), QStringLiteral("set_property_value")}),
             QStringList({QStringLiteral("action(5:default 38).check_property_value(1, %1)").arg(log_text("  05h   ")),
                          QStringLiteral("action(0:default 0).set_property_value(1, %1)").arg(log_text("  05h   "))}));
    QCOMPARE(action_of(*page, 0).values[1], std::string("  05h   "));
    QCOMPARE(value_cell(*page, 1).data().toString(), QStringLiteral("  05h   "));
    QCOMPARE(value_cell(*page, 1).data(Qt::ToolTipRole).toString(), QStringLiteral("  05h   "));

    auto* const combo = qobject_cast<QComboBox*>(open_editor(*page, 4));
    QVERIFY(combo != nullptr);
    QCOMPARE(combo->currentIndex(), 1);
    QTest::keyClick(combo, Qt::Key_Down);
    page->commit_open_editor();
    QCOMPARE(action_of(*page, 0).values[4], std::string("  2-2 "));
    QCOMPARE(value_cell(*page, 4).data().toString(), QStringLiteral("  2-2 "));
    QCOMPARE(value_cell(*page, 4).data(Qt::ToolTipRole).toString(), QStringLiteral("  2-2 "));
}

void TEST_FLOW_EDITOR::a_chosen_value_is_stored_without_a_check()
{
    const ACTION_LIST actions({make_action(0, {{4, "a"}})});
    const auto page = show_selected(actions.get());
    m_checker->choices[4] = {"a", "b"};
    m_checker->refused[4] = "refused";
    QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));
    auto* const combo = qobject_cast<QComboBox*>(open_editor(*page, 4));
    QVERIFY(combo != nullptr);
    log().clear();

    QTest::keyClick(combo, Qt::Key_Down);
    QTest::keyClick(combo, Qt::Key_Return);
    QTRY_VERIFY(property_table_of(*page)->indexWidget(value_cell(*page, 4)) == nullptr);

    QCOMPARE(value_cell(*page, 4).data().toString(), QStringLiteral("b"));
    QCOMPARE(value_cell(*page, 4).data(Qt::ToolTipRole).toString(), QStringLiteral("b"));
    QCOMPARE(action_of(*page, 0).values[4], std::string("b"));
    QCOMPARE(updated.size(), 1);
    QCOMPARE(log().count(QStringLiteral("check_property_value")), 0);
}

void TEST_FLOW_EDITOR::a_stored_value_is_drawn_when_the_chart_gets_the_focus()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    QWidget* const editor = open_editor(*page, 0);
    QSignalSpy drawn(&scene_of(*page), SIGNAL(emit_clear_table()));
    type_text(editor, "renamed");
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(value_cell(*page, 0).data().toString(), QStringLiteral("renamed"));
    QVERIFY(!texts_of(scene_of(*page)).at(1).contains(QStringLiteral("renamed")));
    QCOMPARE(drawn.size(), 0);

    click(*flow_view_of(*page), on_shape(scene_of(*page), 1));

    QCOMPARE(drawn.size(), 1);
    QVERIFY(texts_of(scene_of(*page)).at(1).contains(QStringLiteral("renamed")));
    // The click that brought the focus also selects in the new picture.
    QCOMPARE(column_of(*page, 1).first(), QStringLiteral("renamed"));
}

void TEST_FLOW_EDITOR::a_foreign_model_is_an_internal_error()
{
    const auto page = show_selected({});
    const QAbstractItemDelegate& delegate = *property_table_of(*page)->itemDelegateForColumn(1);
    QStringListModel foreign(QStringList{QStringLiteral("text")});
    QLineEdit edit;
    bool reported = false;

    try {
        delegate.setModelData(&edit, &foreign, foreign.index(0, 0));
    } catch (const INTERNAL_ERROR_REPORTED& error) {
        reported = true;
        QCOMPARE(error.condition, std::string("std_model != nullptr"));
        QCOMPARE(error.category, std::string("GFPQ"));
        QCOMPARE(error.source, std::string("pgm/gfpq/gfpq_operation_tab_widget"));
        QCOMPARE(error.line, 534);
    }

    QVERIFY(reported);
}

void TEST_FLOW_EDITOR::without_a_current_action_only_the_cell_changes()
{
    const auto page = show_selected({});
    auto& model = dynamic_cast<QStandardItemModel&>(*property_table_of(*page)->model());
    auto* const value = new QStandardItem(QStringLiteral("old"));
    value->setData(1, CELL_PROPERTY_ROLE);
    model.appendRow({new QStandardItem(QStringLiteral("Command:")), value});
    QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));
    QLineEdit edit(QStringLiteral("new"));
    log().clear();

    property_table_of(*page)->itemDelegateForColumn(1)->setModelData(&edit, &model, model.index(0, 1));

    QCOMPARE(value->text(), QStringLiteral("new"));
    QCOMPARE(value->toolTip(), QStringLiteral("new"));
    QCOMPARE(updated.size(), 0);
    QCOMPARE(log().count(QStringLiteral("set_property_value")), 0);
}

void TEST_FLOW_EDITOR::without_a_checker_everything_is_valid()
{
    mgr().refused_actions.insert(GFPDB_ACT_CUSTOM);
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());

    type_text(open_editor(*page, 1), "any");
    page->commit_open_editor();
    const auto* const combo = qobject_cast<QComboBox*>(open_editor(*page, 4));

    QCOMPARE(action_of(*page, 0).values[1], std::string("any"));
    QVERIFY(combo != nullptr);
    QCOMPARE(combo->count(), 0);
}

void TEST_FLOW_EDITOR::disabled_and_label_cells_cannot_be_edited()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    action_of(*page, 0).disabled = {GFPDB_WR_DATA};
    page->update_property_table(page->get_flow().first());

    QVERIFY(open_editor(*page, 2) == nullptr);
    for (int row = 0; row < 5; ++row)
        QVERIFY(open_editor(*page, row, 0) == nullptr);
    QVERIFY(open_editor(*page, 3) != nullptr);
}

void TEST_FLOW_EDITOR::texts_outside_ascii_go_through_local_8_bit()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    auto* const edit = qobject_cast<QLineEdit*>(open_editor(*page, 0));
    QVERIFY(edit != nullptr);
    log().clear();

    edit->setText(QString::fromUtf8("\xC3\xA4\xE2\x82\xAC"));
    page->commit_open_editor();

    QCOMPARE(action_of(*page, 0).values[0], std::string("\xC3\xA4\xE2\x82\xAC"));
    QCOMPARE(log().calls_of({QStringLiteral("check_property_value")}),
             list({"action(5:default 38).check_property_value(0, \"\xC3\xA4\xE2\x82\xAC\")"}));
}

void TEST_FLOW_EDITOR::another_code_page_holds_for_all_texts_of_the_library()
{
    const CODE_PAGE latin_1("ISO-8859-1");
    const ACTION_LIST actions({make_action(0, {{0, "\xE4"}, {4, "\xF6"}})});
    const auto page = show_selected(actions.get());
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
    QCOMPARE(log().calls_of({QStringLiteral("check_property_value")}),
             QStringList{QStringLiteral("action(5:default 38).check_property_value(1, %1)").arg(log_text("\xFC"))});
    // The page's own words are not the library's.
    QVERIFY(PAGE(nullptr, 2).findChild<QLabel*>()->text().contains(QChar(0x201C)));
}

void TEST_FLOW_EDITOR::very_long_values_and_line_breaks_survive_the_editor()
{
    const std::string long_value(100000, 'x');
    const ACTION_LIST actions({make_action(0, {{0, long_value}, {1, "one\ntwo\r\nthree"}})});
    const auto page = show_selected(actions.get());

    QVERIFY(open_editor(*page, 0) != nullptr);
    page->commit_open_editor();
    QVERIFY(open_editor(*page, 1) != nullptr);
    page->commit_open_editor();

    QVERIFY(action_of(*page, 0).values[0] == long_value);
    QCOMPARE(action_of(*page, 0).values[1], std::string("one\ntwo\r\nthree"));
    QVERIFY(!property_table_of(*page)->grab().isNull());
}

void TEST_FLOW_EDITOR::a_warning_while_the_chart_waits_for_a_redraw_is_survived()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
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
    QVERIFY(texts_of(scene_of(*page)).at(1).contains(QStringLiteral("xyz")));
}

void TEST_FLOW_EDITOR::a_warning_takes_no_waiting_redraw_away_and_adds_none()
{
    PAGE page(nullptr, 1);
    m_modals.expect(MODAL_DRIVER::accept());
    m_modals.expect(MODAL_DRIVER::accept());

    page.warn_about_value(QStringLiteral("refused"));
    QVERIFY(!scene_of(page).take_pending_refresh());

    emit page.emit_update_flow_scene();
    page.warn_about_value(QStringLiteral("refused"));
    QVERIFY(scene_of(page).take_pending_refresh());
}

void TEST_FLOW_EDITOR::a_value_whose_cell_is_gone_is_stored_nowhere_else()
{
    const ACTION_LIST actions({make_named_action(0, "first"), make_named_action(0, "second")});
    const auto page = show_selected(actions.get());
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

void TEST_FLOW_EDITOR::an_open_editor_can_be_committed()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
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

void TEST_FLOW_EDITOR::an_open_combo_box_can_be_committed()
{
    const ACTION_LIST actions({make_action(0, {{4, "a"}})});
    const auto page = show_selected(actions.get());
    m_checker->choices[4] = {"a", "b"};
    QTest::keyClick(open_editor(*page, 4), Qt::Key_Down);
    QCOMPARE(action_of(*page, 0).values[4], std::string("a"));

    page->commit_open_editor();

    QCOMPARE(action_of(*page, 0).values[4], std::string("b"));
}

void TEST_FLOW_EDITOR::committing_without_an_open_editor_does_nothing()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    PAGE unready(nullptr, 1);
    unready.commit_open_editor();
    const auto page = show_selected(actions.get());
    QSignalSpy updated(page.get(), SIGNAL(emit_update_flow_scene()));

    page->commit_open_editor();

    QCOMPARE(updated.size(), 0);
}

GFPQ_TEST_MAIN(TEST_FLOW_EDITOR)
#include "test_flow_editor.moc"
