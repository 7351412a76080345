// The rows of the property table of a page.
#include "page_stand.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QTextDocument>
#include <QToolTip>

class TEST_FLOW_TABLE : public PAGE_TEST
{
    Q_OBJECT

private slots:
    void rows_show_label_and_value_in_the_actions_order_data();
    void rows_show_label_and_value_in_the_actions_order();
    void cells_carry_their_property_and_only_values_can_be_edited();
    void a_value_without_effect_is_disabled();
    void the_loop_marker_has_no_row();
    void a_property_without_a_label_in_the_table_gets_the_actions_own();
    void custom_actions_and_null_show_no_rows();
    void filling_replaces_the_rows();
    void the_label_column_fits_its_labels();
    void values_are_shown_as_they_stand();
    void tool_tips_are_plain_text();
};

void TEST_FLOW_TABLE::rows_show_label_and_value_in_the_actions_order_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<int>("first");

    QTest::newRow("Write Register") << 0
                                    << list({"Name:", "Command:", "Data:", "Delay(us):", "Command-Data(bus width):"})
                                    << 0;
    QTest::newRow("Read Register") << 1
                                   << list({"Name:", "Command:", "Data length(byte):", "Expected data:",
                                            "Expected data mask:", "Attempt count:", "Delay(us):",
                                            "Command-Data(bus width):"})
                                   << 5;
    QTest::newRow("Write Data") << 2
                                << list({"Name:", "Command:", "Address:", "Data:", "Page size(byte):",
                                         "Addressing mode(byte):", "Delay(us):", "Command-Address-Data(bus width):"})
                                << 13;
    QTest::newRow("Read Data") << 3
                               << list({"Name:", "Command:", "Address:", "Data length(byte):", "Expected data:",
                                        "Expected data mask:", "Addressing mode(byte):", "Dummy clock cycle:",
                                        "Delay(us):", "Command-Address-Data(bus width):"})
                               << 21;
    QTest::newRow("Erase") << 4
                           << list({"Name:", "Command:", "Address:", "Erase size(byte):", "Addressing mode(byte):",
                                    "Delay(us):", "Command-Address(bus width):"})
                           << 31;
}

void TEST_FLOW_TABLE::rows_show_label_and_value_in_the_actions_order()
{
    QFETCH(const int, type);
    QFETCH(const QStringList, labels);
    QFETCH(const int, first);
    const ACTION_LIST actions({new ACTION_DOUBLE(type)});

    const auto page = show_selected(actions.get());

    QCOMPARE(column_of(*page, 0), labels);
    QStringList values;
    for (int row = 0; row < labels.size(); ++row)
        values.append(QStringLiteral("default %1").arg(first + row));
    QCOMPARE(column_of(*page, 1), values);
    QCOMPARE(rows_of(*page).columnCount(), 2);
}

void TEST_FLOW_TABLE::cells_carry_their_property_and_only_values_can_be_edited()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_READ_DATA)});

    const auto page = show_selected(actions.get());

    for (int row = 0; row < rows_of(*page).rowCount(); ++row) {
        const QModelIndex label = rows_of(*page).index(row, 0);
        QCOMPARE(label.data(CELL_PROPERTY_ROLE), QVariant(21 + row));
        QCOMPARE(value_cell(*page, row).data(CELL_PROPERTY_ROLE), QVariant(21 + row));
        QCOMPARE(label.data(CELL_PROPERTY_ROLE).userType(), static_cast<int>(QMetaType::Int));
        QVERIFY(!label.flags().testFlag(Qt::ItemIsEditable));
        QVERIFY(label.flags().testFlag(Qt::ItemIsEnabled));
        QVERIFY(value_cell(*page, row).flags().testFlag(Qt::ItemIsEditable));
        QVERIFY(value_cell(*page, row).flags().testFlag(Qt::ItemIsEnabled));
        QCOMPARE(value_cell(*page, row).data(Qt::ToolTipRole), QVariant());
    }
}

void TEST_FLOW_TABLE::a_value_without_effect_is_disabled()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    action_of(*page, 0).disabled = {GFPDB_WR_DATA, GFPDB_WR_BUS_WIDTH};

    page->update_property_table(page->get_flow().first());

    for (int row = 0; row < 5; ++row) {
        QCOMPARE(value_cell(*page, row).flags().testFlag(Qt::ItemIsEnabled), row != 2 && row != 4);
        QVERIFY(rows_of(*page).index(row, 0).flags().testFlag(Qt::ItemIsEnabled));
    }
}

void TEST_FLOW_TABLE::the_loop_marker_has_no_row()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    ACTION_DOUBLE& action = action_of(*page, 0);
    action.properties = {GFPDB_CUSTOM_LOOP_MARKER, GFPDB_ER_BUS_WIDTH, GFPDB_CUSTOM_LOOP_UNIT, GFPDB_CUSTOM_LOOP_MARKER,
                         GFPDB_WR_NAME};
    action.values[GFPDB_CUSTOM_LOOP_UNIT] = "unit";

    page->update_property_table(&action);

    QCOMPARE(column_of(*page, 0), list({"Command-Address(bus width):", "", "Name:"}));
    QCOMPARE(column_of(*page, 1), list({"", "unit", "default 0"}));
}

// A flash database that is newer than the dialog knows more properties.
void TEST_FLOW_TABLE::a_property_without_a_label_in_the_table_gets_the_actions_own()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    ACTION_DOUBLE& action = action_of(*page, 0);
    action.properties.clear();
    for (const int property : {40, 100000, -1, 0}) {
        action.properties.push_back(static_cast<GFPDB_ACT_PROPERTY>(property));
        action.values[property] = "value of " + std::to_string(property);
        action.labels[property] = "own " + std::to_string(property);
    }

    page->update_property_table(&action);

    QCOMPARE(column_of(*page, 0), list({"own 40", "own 100000", "own -1", "Name:"}));
    QCOMPARE(column_of(*page, 1), list({"value of 40", "value of 100000", "value of -1", "value of 0"}));
}

void TEST_FLOW_TABLE::custom_actions_and_null_show_no_rows()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER), make_loop_action("page", "start")});
    const auto page = show_selected(actions.get());
    QCOMPARE(rows_of(*page).rowCount(), 5);

    page->update_property_table(page->get_flow().at(1));
    QCOMPARE(rows_of(*page).rowCount(), 0);
    // No current action either: nothing is stored.
    page->store_property_value(GFPDB_CUSTOM_LOOP_UNIT, QStringLiteral("changed"));
    QCOMPARE(names_of(page->get_flow()), list({"0:default 0", "5:page"}));

    page->update_property_table(page->get_flow().at(0));
    QCOMPARE(rows_of(*page).rowCount(), 5);
    page->update_property_table(nullptr);
    QCOMPARE(rows_of(*page).rowCount(), 0);
    page->store_property_value(GFPDB_WR_NAME, QStringLiteral("changed"));
    QCOMPARE(names_of(page->get_flow()), list({"0:default 0", "5:page"}));
}

void TEST_FLOW_TABLE::filling_replaces_the_rows()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_ERASE)});
    const auto page = show_selected(actions.get());

    page->update_property_table(page->get_flow().first());
    QCOMPARE(rows_of(*page).rowCount(), 7);

    page->clear_property_table();
    QCOMPARE(rows_of(*page).rowCount(), 0);
    QCOMPARE(rows_of(*page).headerData(0, Qt::Horizontal).toString(), QStringLiteral("Property"));
    QCOMPARE(rows_of(*page).headerData(1, Qt::Horizontal).toString(), QStringLiteral("Value"));
}

void TEST_FLOW_TABLE::the_label_column_fits_its_labels()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_DATA)});
    const auto page = show_page(1, actions.get());
    QTableView& table = *property_table_of(*page);
    const int before = table.columnWidth(0);

    click(*flow_view_of(*page), on_shape(scene_of(*page), 1));

    const int filled = table.columnWidth(0);
    QVERIFY(filled > before);
    QVERIFY(filled >= table.fontMetrics().horizontalAdvance(QStringLiteral("Command-Address-Data(bus width):")));
    table.resizeColumnToContents(0);
    QCOMPARE(table.columnWidth(0), filled);
}

void TEST_FLOW_TABLE::values_are_shown_as_they_stand()
{
    const ACTION_LIST actions(
        {make_action(0, {{0, "<b>bold</b>"}, {1, " 06 "}, {2, ""}, {3, "a\nb"}, {4, "\xD7\xA9\xD7\x9C"}})});

    const auto page = show_selected(actions.get());

    QCOMPARE(column_of(*page, 1), list({"<b>bold</b>", " 06 ", "", "a\nb", "\xD7\xA9\xD7\x9C"}));
}

void TEST_FLOW_TABLE::tool_tips_are_plain_text()
{
    const ACTION_LIST actions({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)});
    const auto page = show_selected(actions.get());
    auto* const edit = qobject_cast<QLineEdit*>(open_editor(*page, 0));
    QVERIFY(edit != nullptr);
    const QString text = QStringLiteral("<b>x</b>") + QString(5000, QLatin1Char('y'));
    edit->setText(text);
    page->commit_open_editor();
    QCOMPARE(value_cell(*page, 0).data(Qt::ToolTipRole).toString(), text);
    QTableView& table = *property_table_of(*page);
    const auto ask = [&table](const QPoint& pos) {
        QHelpEvent help(QEvent::ToolTip, pos, table.viewport()->mapToGlobal(pos));
        QApplication::sendEvent(table.viewport(), &help);
    };

    ask(table.visualRect(value_cell(*page, 0)).center());
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), Qt::convertFromPlainText(text.left(1000)));

    ask(table.visualRect(value_cell(*page, 1)).center());
    QTRY_VERIFY(!QToolTip::isVisible());
}

GFPQ_TEST_MAIN(TEST_FLOW_TABLE)
#include "test_flow_table.moc"
