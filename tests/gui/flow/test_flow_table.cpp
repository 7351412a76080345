// SPDX-License-Identifier: MIT

// The rows of the property table of a page.
#include "page_stand.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QToolTip>

namespace {

// `count` data bytes as the flash database writes them.
std::string data_bytes(int count)
{
    std::string text;
    for (int byte = 0; byte < count; ++byte)
        text += qs("%1 ").arg(byte % 256, 2, 16, QLatin1Char('0')).toUpper().toStdString();
    return text.empty() ? text : text.substr(0, text.size() - 1);
}

// What the mouse brings about when it rests on a cell; off the cells for an invalid index.
void ask_for_tool_tip(QTableView& table, const QModelIndex& index)
{
    const QPoint pos = index.isValid() ? table.visualRect(index).center() : table.viewport()->rect().bottomLeft();
    QHelpEvent help(QEvent::ToolTip, pos, table.viewport()->mapToGlobal(pos));
    QApplication::sendEvent(table.viewport(), &help);
}

QString plain_tip(const QString& text)
{
    return qs("<p style=\"white-space: pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
}

QWidget* shown_tool_tip()
{
    const QList<QWidget*> windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        if (window->inherits("QTipLabel") && window->isVisible())
            return window;
    }
    return nullptr;
}

} // namespace

class TEST_FLOW_TABLE : public PAGE_TEST
{
    Q_OBJECT

private slots:
    void rows_show_label_and_value_in_the_actions_order_data()
    {
        rows<int, QStringList, int>(
            {{"Write Register", 0, list({"Name:", "Command:", "Data:", "Delay(us):", "Command-Data(bus width):"}), 0},
             {"Read Register", 1,
              list({"Name:", "Command:", "Data length(byte):", "Expected data:", "Expected data mask:",
                    "Attempt count:", "Delay(us):", "Command-Data(bus width):"}),
              5},
             {"Write Data", 2,
              list({"Name:", "Command:", "Address:", "Data:", "Page size(byte):", "Addressing mode(byte):",
                    "Delay(us):", "Command-Address-Data(bus width):"}),
              13},
             {"Read Data", 3,
              list({"Name:", "Command:", "Address:", "Data length(byte):", "Expected data:", "Expected data mask:",
                    "Addressing mode(byte):", "Dummy clock cycle:", "Delay(us):", "Command-Address-Data(bus width):"}),
              21},
             {"Erase", 4,
              list({"Name:", "Command:", "Address:", "Erase size(byte):", "Addressing mode(byte):", "Delay(us):",
                    "Command-Address(bus width):"}),
              31}});
    }

    void rows_show_label_and_value_in_the_actions_order()
    {
        const auto [type, labels, first] = row<int, QStringList, int>();
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(type)}).get());

        QCOMPARE(column_of(*page, 0), labels);
        QStringList values;
        for (int row = 0; row < labels.size(); ++row)
            values.append(qs("default %1").arg(first + row));
        QCOMPARE(column_of(*page, 1), values);
        QCOMPARE(rows_of(*page).columnCount(), 2);
    }

    void cells_carry_their_property_and_only_values_can_be_edited()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_READ_DATA)}).get());

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

    void a_value_without_effect_is_disabled()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        action_of(*page, 0).disabled = {GFPDB_WR_DATA, GFPDB_WR_BUS_WIDTH};

        page->update_property_table(page->get_flow().first());

        for (int row = 0; row < 5; ++row) {
            QCOMPARE(value_cell(*page, row).flags().testFlag(Qt::ItemIsEnabled), row != 2 && row != 4);
            QVERIFY(value_cell(*page, row).flags().testFlag(Qt::ItemIsEditable));
            QVERIFY(rows_of(*page).index(row, 0).flags().testFlag(Qt::ItemIsEnabled));
        }
    }

    void the_loop_marker_has_no_row()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        ACTION_DOUBLE& action = action_of(*page, 0);
        action.properties = {GFPDB_CUSTOM_LOOP_MARKER, GFPDB_ER_BUS_WIDTH, GFPDB_CUSTOM_LOOP_UNIT,
                             GFPDB_CUSTOM_LOOP_MARKER, GFPDB_WR_NAME};
        action.values[GFPDB_CUSTOM_LOOP_UNIT] = "unit";

        page->update_property_table(&action);

        QCOMPARE(column_of(*page, 0), list({"Command-Address(bus width):", "", "Name:"}));
        QCOMPARE(column_of(*page, 1), list({"", "unit", "default 0"}));
    }

    // A flash database that is newer than the dialog knows more properties.
    void a_property_without_a_label_in_the_table_gets_the_actions_own()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
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

    void custom_actions_and_null_show_no_rows()
    {
        const auto page = show_selected(
            ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER), make_loop_action("page", "start")}).get());
        QCOMPARE(rows_of(*page).rowCount(), 5);

        page->update_property_table(page->get_flow().at(1));
        QCOMPARE(rows_of(*page).rowCount(), 0);
        // No current action either: nothing is stored.
        page->store_property_value(GFPDB_CUSTOM_LOOP_UNIT, qs("changed"));
        QCOMPARE(names_of(page->get_flow()), list({"0:default 0", "5:page"}));

        page->update_property_table(page->get_flow().at(0));
        QCOMPARE(rows_of(*page).rowCount(), 5);
        page->update_property_table(nullptr);
        QCOMPARE(rows_of(*page).rowCount(), 0);
        page->store_property_value(GFPDB_WR_NAME, qs("changed"));
        QCOMPARE(names_of(page->get_flow()), list({"0:default 0", "5:page"}));
    }

    void filling_replaces_the_rows()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_ERASE)}).get());

        page->update_property_table(page->get_flow().first());
        QCOMPARE(rows_of(*page).rowCount(), 7);

        page->clear_property_table();
        QCOMPARE(rows_of(*page).rowCount(), 0);
        QCOMPARE(scene_of(*page).selectedItems().size(), 1);
        QCOMPARE(rows_of(*page).headerData(0, Qt::Horizontal).toString(), qs("Property"));
        QCOMPARE(rows_of(*page).headerData(1, Qt::Horizontal).toString(), qs("Value"));
    }

    void the_label_column_fits_its_labels()
    {
        const auto page = show_page(1, ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_DATA)}).get());
        QTableView& table = *property_table_of(*page);
        const int before = table.columnWidth(0);

        click(*flow_view_of(*page), on_shape(scene_of(*page), 1));

        const int filled = table.columnWidth(0);
        QVERIFY(filled > before);
        QVERIFY(filled >= table.fontMetrics().horizontalAdvance(qs("Command-Address-Data(bus width):")));
        table.resizeColumnToContents(0);
        QCOMPARE(table.columnWidth(0), filled);
    }

    void values_are_shown_as_they_stand()
    {
        const auto page = show_selected(
            ACTION_LIST(
                {make_action(0, {{0, "<b>bold</b>"}, {1, " 06 "}, {2, ""}, {3, "a\nb"}, {4, "\xD7\xA9\xD7\x9C"}})})
                .get());

        QCOMPARE(column_of(*page, 1), list({"<b>bold</b>", " 06 ", "", "a\nb", "\xD7\xA9\xD7\x9C"}));
    }

    void tool_tips_are_plain_text()
    {
        const auto page = show_selected(ACTION_LIST({new ACTION_DOUBLE(GFPDB_ACT_WRITE_REGISTER)}).get());
        auto* const edit = qobject_cast<QLineEdit*>(open_editor(*page, 0));
        QVERIFY(edit != nullptr);
        const QString text = qs("<b>x</b>") + QString(5000, QLatin1Char('y'));
        edit->setText(text);
        page->commit_open_editor();
        QCOMPARE(value_cell(*page, 0).data(Qt::ToolTipRole).toString(), text);
        QTableView& table = *property_table_of(*page);

        ask_for_tool_tip(table, value_cell(*page, 0));
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), plain_tip(text.left(4000)));

        ask_for_tool_tip(table, value_cell(*page, 1));
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void long_values_leave_the_table_a_usable_width_data()
    {
        rows<int>({{"none", 0}, {"16", 16}, {"256", 256}, {"4096", 4096}});
    }

    void long_values_leave_the_table_a_usable_width()
    {
        const int bytes = row<int>();
        const auto page =
            show_page(1, ACTION_LIST({make_action(2, {{16, data_bytes(bytes)}})}).get(), true, QSize(740, 500));
        const QTableView& table = *property_table_of(*page);

        click(*flow_view_of(*page), on_shape(scene_of(*page), 1));

        // The longest label and a value of a dozen digits, whatever the chart would like to have.
        const QFontMetrics metrics = table.fontMetrics();
        const int label = metrics.horizontalAdvance(qs("Command-Address-Data(bus width):"));
        QVERIFY(table.columnWidth(0) >= label);
        QVERIFY(table.columnWidth(1) >= metrics.horizontalAdvance(qs("000000000000")));
        QCOMPARE(table.horizontalScrollBar()->maximum(), 0);
        QCOMPARE(page->width(), 740);
        // The palette shows its entries, and the chart scrolls.
        QCOMPARE(palette_view_of(*page)->horizontalScrollBar()->minimum(),
                 palette_view_of(*page)->horizontalScrollBar()->maximum());
        const QGraphicsView& view = *flow_view_of(*page);
        QVERIFY(view.width() >= view.minimumSizeHint().width());
        QCOMPARE(view.horizontalScrollBar()->maximum() > view.horizontalScrollBar()->minimum(),
                 view.sceneRect().width() > view.viewport()->width());
        QCOMPARE(table.textElideMode(), Qt::ElideRight);
    }

    void the_tool_tip_of_an_elided_cell_shows_all_of_it()
    {
        const std::string data = data_bytes(256);
        const auto page = show_selected(ACTION_LIST({make_action(2, {{16, data}})}).get());
        QTableView& table = *property_table_of(*page);

        ask_for_tool_tip(table, value_cell(*page, 3));

        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), plain_tip(QString::fromStdString(data)));
        const QWidget* const tip = shown_tool_tip();
        QVERIFY(tip != nullptr);
        QVERIFY(tip->width() < tip->screen()->geometry().width());
        QVERIFY(tip->height() > 2 * tip->fontMetrics().height());
        // The cell itself has no tool tip of its own before it is edited.
        QCOMPARE(value_cell(*page, 3).data(Qt::ToolTipRole), QVariant());
        // A label that the user has made too narrow, as well.
        table.setColumnWidth(0, 30);
        ask_for_tool_tip(table, rows_of(*page).index(7, 0));
        QCOMPARE(QToolTip::text(), plain_tip(qs("Command-Address-Data(bus width):")));
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void a_cell_that_is_whole_has_no_tool_tip()
    {
        const auto page = show_selected(ACTION_LIST({make_action(2, {{16, data_bytes(2)}})}).get());

        for (int row = 0; row < rows_of(*page).rowCount(); ++row) {
            for (int column = 0; column < 2; ++column) {
                ask_for_tool_tip(*property_table_of(*page), rows_of(*page).index(row, column));
                QVERIFY(!QToolTip::isVisible());
            }
        }
        ask_for_tool_tip(*property_table_of(*page), QModelIndex());
        QVERIFY(!QToolTip::isVisible());
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_TABLE)

#include "test_flow_table.moc"
